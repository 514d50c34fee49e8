// The search for resources through the application, its extension modules and the framework.

#include <afxdllx.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "resource.h"

namespace
{
constexpr UINT id_own = 9001;    // in one module
constexpr UINT id_shared = 9002; // in all of them
constexpr UINT id_string = 9040; // a block of strings of its own
constexpr UINT id_missing = 9043;

/// A library with nothing but resources: data under two ids, and one string.
class ResourceLibrary
{
public:
    ResourceLibrary(UINT ownId, std::wstring const & text)
    {
        wchar_t folder[MAX_PATH] = {};
        wchar_t source[MAX_PATH] = {};
        ::GetTempPath(MAX_PATH, folder);
        ::GetTempFileName(folder, L"res", 0, m_path);
        ::GetSystemDirectory(source, MAX_PATH);
        EXPECT_TRUE(::CopyFile((std::wstring(source) + L"\\version.dll").c_str(), m_path, FALSE));
        HANDLE const update = ::BeginUpdateResource(m_path, TRUE);
        EXPECT_NE(update, nullptr);
        char data[] = "data";
        WORD const language = MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL);
        for (UINT const id : {ownId, id_shared})
            EXPECT_TRUE(::UpdateResource(update, RT_RCDATA, MAKEINTRESOURCE(id), language, data, sizeof data));
        std::vector<wchar_t> block;
        for (UINT index = 0; index < 16; ++index)
        {
            std::wstring const string = index == (id_string & 15) ? text : L"";
            block.push_back(static_cast<wchar_t>(string.size()));
            block.insert(block.end(), string.begin(), string.end());
        }
        EXPECT_TRUE(::UpdateResource(update, RT_STRING, MAKEINTRESOURCE((id_string >> 4) + 1), language, block.data(),
                                     static_cast<DWORD>(block.size() * sizeof(wchar_t))));
        EXPECT_TRUE(::EndUpdateResource(update, FALSE));
        m_module = ::LoadLibraryEx(m_path, nullptr, LOAD_LIBRARY_AS_DATAFILE);
        EXPECT_NE(m_module, nullptr);
    }
    ResourceLibrary(ResourceLibrary const &) = delete;
    ResourceLibrary & operator=(ResourceLibrary const &) = delete;
    ~ResourceLibrary()
    {
        ::FreeLibrary(m_module);
        ::DeleteFile(m_path);
    }
    HMODULE Module() const { return m_module; }
    AFX_EXTENSION_MODULE Record() const
    {
        AFX_EXTENSION_MODULE record{};
        AfxInitExtensionModule(record, m_module);
        return record;
    }

private:
    wchar_t m_path[MAX_PATH] = {};
    HMODULE m_module = nullptr;
};

HINSTANCE Find(UINT id)
{
    return AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_RCDATA);
}

TEST(CoreModules, RecordIsFilledOnce)
{
    AFX_EXTENSION_MODULE record{};
    auto const module = reinterpret_cast<HMODULE>(0x10000);
    EXPECT_TRUE(AfxInitExtensionModule(record, module));
    EXPECT_TRUE(record.bInitialized);
    EXPECT_EQ(record.hModule, module);
    EXPECT_EQ(record.hResource, module);
    EXPECT_TRUE(AfxInitExtensionModule(record, nullptr));
    EXPECT_EQ(record.hModule, module);
}

TEST(CoreModules, ResourceThatNobodyHasIsTheApplications)
{
    EXPECT_EQ(Find(id_own), AfxGetResourceHandle());
    EXPECT_EQ(AfxFindStringResourceHandle(id_string), nullptr);
}

TEST(CoreModules, ModuleTakesPartWhileItIsHooked)
{
    ResourceLibrary const library(id_own, L"text");
    AFX_EXTENSION_MODULE record = library.Record();
    {
        CDynLinkLibrary const hook(record);
        EXPECT_EQ(Find(id_own), library.Module());
        EXPECT_EQ(AfxFindStringResourceHandle(id_string), library.Module());
        EXPECT_EQ(AfxFindStringResourceHandle(id_missing), nullptr); // in the block, but empty
        CString text;
        EXPECT_TRUE(text.LoadString(id_string));
        EXPECT_STREQ(text, L"text");
    }
    EXPECT_EQ(Find(id_own), AfxGetResourceHandle());
}

TEST(CoreModules, ApplicationComesFirstThenTheYoungestModuleAndSystemModulesLast)
{
    ResourceLibrary const first(id_own, L"first");
    ResourceLibrary const second(id_own + 10, L"second");
    ResourceLibrary const system(id_own + 20, L"system");
    AFX_EXTENSION_MODULE firstRecord = first.Record();
    AFX_EXTENSION_MODULE secondRecord = second.Record();
    AFX_EXTENSION_MODULE systemRecord = system.Record();
    CDynLinkLibrary const firstHook(firstRecord);
    auto secondHook = std::make_unique<CDynLinkLibrary>(secondRecord);
    CDynLinkLibrary const systemHook(systemRecord, TRUE);
    EXPECT_EQ(Find(id_shared), second.Module());
    EXPECT_EQ(Find(id_own + 20), system.Module());
    secondHook.reset(); // out of the middle of the chain
    EXPECT_EQ(Find(id_shared), first.Module());
    EXPECT_EQ(Find(id_own + 20), system.Module());

    HINSTANCE const application = AfxGetResourceHandle();
    AfxSetResourceHandle(system.Module());
    EXPECT_EQ(Find(id_shared), system.Module());
    EXPECT_EQ(AfxFindStringResourceHandle(id_string), system.Module());
    AfxSetResourceHandle(application);
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_GREETING)); // the program's own string
}

TEST(CoreModules, ResourcesMayLieInAModuleOfTheirOwn)
{
    ResourceLibrary const language(id_own, L"language");
    AFX_EXTENSION_MODULE record{};
    AfxInitExtensionModule(record, ::GetModuleHandle(nullptr));
    record.hResource = language.Module();
    CDynLinkLibrary const hook(record);
    EXPECT_EQ(Find(id_own), language.Module());
}

TEST(CoreModules, TerminationUnhooksTheModule)
{
    ResourceLibrary const library(id_own, L"text");
    AFX_EXTENSION_MODULE record = library.Record();
    new CDynLinkLibrary(record);
    ASSERT_EQ(Find(id_own), library.Module());
    AfxTermExtensionModule(record);
    EXPECT_EQ(Find(id_own), AfxGetResourceHandle());
}

TEST(CoreModules, ModuleStateIsChangedForAScopeAndThread)
{
    AFX_MODULE_STATE other(reinterpret_cast<HINSTANCE>(0x20000));
    HINSTANCE const own = AfxGetInstanceHandle();
    CWinApp * const app = AfxGetApp();
    ASSERT_NE(app, nullptr);
    {
        AFX_MANAGE_STATE(&other)
        EXPECT_EQ(AfxGetInstanceHandle(), reinterpret_cast<HINSTANCE>(0x20000));
        EXPECT_EQ(AfxGetApp(), nullptr);
        EXPECT_EQ(AfxGetAppModuleState()->m_pCurrentWinApp, app);
    }
    EXPECT_EQ(AfxGetInstanceHandle(), own);
    EXPECT_EQ(AfxGetApp(), app);
}
} // namespace
