// The module's entry function, built once more with substitutes for what it calls, so that its failures can be had.

#define ENTRY_SUBSTITUTES_ONLY
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame_EntrySubstitutes.h"

namespace
{
struct Calls
{
    BOOL initialisation = TRUE;
    bool noMemory = false;
    std::vector<std::string> made;
    AFX_EXTENSION_MODULE const * initialised = nullptr;
    AFX_EXTENSION_MODULE const * hooked = nullptr;
    LibrarySubstitute * library = nullptr;
    int destroyedLibraries = 0;
};
Calls calls;
} // namespace

BOOL InitialiseSubstitute(AFX_EXTENSION_MODULE & record, HMODULE module)
{
    calls.made.push_back("initialise");
    calls.initialised = &record;
    if (calls.initialisation)
    {
        record.hModule = module;
    }
    return calls.initialisation;
}

void TerminateSubstitute(AFX_EXTENSION_MODULE &, BOOL)
{
    calls.made.push_back("terminate");
}

LibrarySubstitute::LibrarySubstitute(AFX_EXTENSION_MODULE & record)
{
    calls.made.push_back("hook");
    if (calls.noMemory)
    {
        AfxThrowMemoryException();
    }
    calls.hooked = &record;
    calls.library = this;
}

LibrarySubstitute::~LibrarySubstitute()
{
    ++calls.destroyedLibraries;
}

namespace
{
class ModuleEntry : public testing::Test
{
protected:
    void SetUp() override
    {
        calls = Calls();
        g_recordUnderTest = AFX_EXTENSION_MODULE();
        g_instanceUnderTest = nullptr;
    }
    void TearDown() override
    {
        delete calls.library;
        calls.library = nullptr;
    }

    HINSTANCE const m_instance = reinterpret_cast<HINSTANCE>(UINT_PTR{0x660000});
};

using Steps = std::vector<std::string>;
} // namespace

TEST_F(ModuleEntry, AttachInitialisesHooksAndStoresTheInstance)
{
    EXPECT_EQ(EntryUnderTest(m_instance, DLL_PROCESS_ATTACH, nullptr), 1);
    EXPECT_EQ(calls.made, (Steps{"initialise", "hook"}));
    EXPECT_EQ(calls.initialised, &g_recordUnderTest);
    EXPECT_EQ(calls.hooked, &g_recordUnderTest);
    EXPECT_EQ(g_recordUnderTest.hModule, m_instance);
    EXPECT_EQ(g_instanceUnderTest, m_instance);
}

TEST_F(ModuleEntry, FailedInitialisationFailsTheLoad)
{
    calls.initialisation = FALSE;
    EXPECT_EQ(EntryUnderTest(m_instance, DLL_PROCESS_ATTACH, nullptr), 0);
    EXPECT_EQ(calls.made, Steps{"initialise"});
    EXPECT_EQ(g_instanceUnderTest, nullptr);
}

TEST_F(ModuleEntry, LoadsWithoutMemoryForTheHook)
{
    calls.noMemory = true;
    EXPECT_EQ(EntryUnderTest(m_instance, DLL_PROCESS_ATTACH, nullptr), 1);
    EXPECT_EQ(calls.made, (Steps{"initialise", "hook"}));
    EXPECT_EQ(g_instanceUnderTest, m_instance);
}

TEST_F(ModuleEntry, DoesNothingForAnyOtherReason)
{
    ASSERT_EQ(EntryUnderTest(m_instance, DLL_PROCESS_ATTACH, nullptr), 1);
    calls.made.clear();
    HINSTANCE const other = reinterpret_cast<HINSTANCE>(UINT_PTR{0x770000});
    void * const atProcessEnd = &calls;
    for (DWORD const reason : {DLL_THREAD_ATTACH, DLL_THREAD_DETACH, DLL_PROCESS_DETACH})
    {
        EXPECT_EQ(EntryUnderTest(other, reason, nullptr), 1) << reason;
        EXPECT_EQ(EntryUnderTest(other, reason, atProcessEnd), 1) << reason;
    }
    EXPECT_EQ(calls.made, Steps{});
    EXPECT_EQ(calls.destroyedLibraries, 0);
    EXPECT_EQ(g_recordUnderTest.hModule, m_instance);
    EXPECT_EQ(g_instanceUnderTest, m_instance);
}
