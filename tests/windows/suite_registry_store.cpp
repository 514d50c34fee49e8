// The preference store in the registry, with other programs at work on it.

#include <afxwin.h>
#include <aclapi.h>

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <string>
#include <vector>

#include "ChildProgram.h"
#include "PreferenceValueNames.h"
#include "RegistryPreferenceStore.h"

namespace
{
constexpr wchar_t tests_key[] = L"Software\\InstrumentUiTests";
constexpr int first_pattern = 0x11111111;
constexpr int second_pattern = 0x22222222;

/// A named event that tells the other program something.
class Signal
{
public:
    explicit Signal(std::wstring const & name) : m_event(::CreateEventW(nullptr, TRUE, FALSE, name.c_str())) {}
    ~Signal() { ::CloseHandle(m_event); }
    Signal(Signal const &) = delete;
    Signal & operator=(Signal const &) = delete;
    void Give() { ::SetEvent(m_event); }
    bool Await() { return ::WaitForSingleObject(m_event, 300000) == WAIT_OBJECT_0; }
    bool Given() { return ::WaitForSingleObject(m_event, 0) == WAIT_OBJECT_0; }

private:
    HANDLE m_event;
};

std::wstring SignalName(std::wstring const & subkey, wchar_t const * name)
{
    std::wstring result = subkey + name;
    for (wchar_t & unit : result)
    {
        if (unit == L'\\')
            unit = L'/';
    }
    return result;
}

class SuiteRegistryStore : public testing::Test
{
protected:
    void TearDown() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, tests_key); }

    static std::wstring OwnSubkey()
    {
        return std::wstring(tests_key) + L"\\Process " + std::to_wstring(::GetCurrentProcessId()) + L"\\Preferences";
    }

    LSTATUS WriteRaw(wchar_t const * name, DWORD type, void const * data, DWORD size)
    {
        return ::RegSetKeyValueW(HKEY_CURRENT_USER, m_subkey.c_str(), name, type, data, size);
    }

    std::vector<std::wstring> Names()
    {
        std::vector<std::wstring> names;
        HKEY key = nullptr;
        if (::RegOpenKeyExW(HKEY_CURRENT_USER, m_subkey.c_str(), 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS)
            return names;
        std::vector<wchar_t> buffer(16384);
        for (DWORD number = 0;; ++number)
        {
            DWORD length = static_cast<DWORD>(buffer.size());
            if (::RegEnumValueW(key, number, buffer.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
                ERROR_SUCCESS)
                break;
            names.emplace_back(buffer.data(), length);
        }
        ::RegCloseKey(key);
        return names;
    }

    std::wstring const m_subkey = OwnSubkey();
};
} // namespace

TEST_F(SuiteRegistryStore, GivesTheFallbackForWhatIsMissing)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    EXPECT_EQ(store.LookupGetInt(L"Key", 0, 7), 7);
    EXPECT_TRUE(store.LookupGetBool(L"Key", 0, true));
    EXPECT_FALSE(store.LookupGetBool(L"Key", 0, false));
    EXPECT_EQ(store.Delete(L"Key"), 0);
    EXPECT_EQ(store.LookupSetInt(L"Key", 1, 1), lookup::success);
    EXPECT_EQ(store.LookupGetInt(L"Key", 0, 7), 7);
    EXPECT_EQ(store.Delete(L"Other"), 0);
}

TEST_F(SuiteRegistryStore, KeepsWhatItIsGiven)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    for (int const value : {0, 1, -1, INT_MAX, INT_MIN})
    {
        EXPECT_EQ(store.LookupSetInt(L"Scope_1-Fensterpos", value, 3), lookup::success);
        EXPECT_EQ(store.LookupGetInt(L"Scope_1-Fensterpos", 3, 77), value);
        EXPECT_EQ(RegistryPreferenceStore(m_subkey.c_str()).LookupGetInt(L"Scope_1-Fensterpos", 3, 77), value);
    }
    EXPECT_EQ(store.LookupSetBool(L"Scope_1-IstOffen", true, 0), lookup::success);
    EXPECT_TRUE(store.LookupGetBool(L"Scope_1-IstOffen", 0, false));
    EXPECT_EQ(store.LookupSetBool(L"Scope_1-IstOffen", false, 0), lookup::success);
    EXPECT_FALSE(store.LookupGetBool(L"Scope_1-IstOffen", 0, true));
    EXPECT_EQ(Names(), (std::vector<std::wstring>{L"Scope_1-Fensterpos@3~84", L"Scope_1-IstOffen@0~848"}));
}

TEST_F(SuiteRegistryStore, CompanyAndApplicationNameTheSubkey)
{
    std::wstring const application = L"Process " + std::to_wstring(::GetCurrentProcessId());
    RegistryPreferenceStore store(CString(L"InstrumentUiTests"), CString(application.c_str()));
    EXPECT_EQ(store.LookupSetInt(L"key", 5, 0), lookup::success);
    EXPECT_EQ(Names(), (std::vector<std::wstring>{L"key@0"}));
}

TEST_F(SuiteRegistryStore, KeysThatDifferByCaseAloneAreKeptApart)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    wchar_t const * const keys[] = {L"key",    L"Key",    L"KEY",    L"kEy",    L"\u00E4", L"\u00C4",
                                    L"\u03C9", L"\u03A9", L"\u00FF", L"\u0178", L"k",      L"K",
                                    L"\u212A", L"\u00B5", L"\u03BC", L"\u039C", L"i",      L"I",
                                    L"\u0130", L"\u0131", L"s",      L"\u017F", L"\u00DF", L"\u1E9E"};
    int number = 0;
    for (wchar_t const * const key : keys)
        EXPECT_EQ(store.LookupSetInt(key, ++number, 0), lookup::success);
    number = 0;
    for (wchar_t const * const key : keys)
        EXPECT_EQ(store.LookupGetInt(key, 0, -1), ++number);
    EXPECT_EQ(Names().size(), std::size(keys));
}

TEST_F(SuiteRegistryStore, OddKeysComeBack)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    wchar_t const * const keys[] = {L"",    L"@",   L"a@1", L"a\\b",   L"\\",         L"a\nb",
                                    L"50%", L"a~8", L" ",   L"\u20AC", L"\U0001F600", L"%0041"};
    int number = 100;
    for (wchar_t const * const key : keys)
        EXPECT_EQ(store.LookupSetInt(key, ++number, 2), lookup::success);
    number = 100;
    for (wchar_t const * const key : keys)
        EXPECT_EQ(store.LookupGetInt(key, 2, -1), ++number);
    for (wchar_t const * const key : keys)
    {
        EXPECT_NE(store.Delete(key), 0);
        EXPECT_EQ(store.LookupGetInt(key, 2, -1), -1);
    }
    EXPECT_TRUE(Names().empty());
}

TEST_F(SuiteRegistryStore, EveryCharacterOfTheFirstPlaneHasAValueOfItsOwn)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    for (int unit = 1; unit < 0x600; ++unit)
    {
        wchar_t const key[] = {static_cast<wchar_t>(unit), L'\0'};
        ASSERT_EQ(store.LookupSetInt(key, unit, 0), lookup::success);
    }
    for (int unit = 1; unit < 0x600; ++unit)
    {
        wchar_t const key[] = {static_cast<wchar_t>(unit), L'\0'};
        ASSERT_EQ(store.LookupGetInt(key, 0, -1), unit);
    }
}

TEST_F(SuiteRegistryStore, VeryLongKeysAreKeptUpToTheRegistrysLimit)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    std::wstring const longest(16381, L'x');
    EXPECT_EQ(store.LookupSetInt(longest.c_str(), 9, 0), lookup::success);
    EXPECT_EQ(store.LookupGetInt(longest.c_str(), 0, -1), 9);
    EXPECT_NE(store.CreateEntry(longest.c_str(), 0), nullptr);
    EXPECT_NE(store.Delete(longest.c_str()), 0);

    std::wstring const tooLong(16382, L'x');
    EXPECT_EQ(store.LookupSetInt(tooLong.c_str(), 9, 0), lookup::bad_key);
    EXPECT_EQ(store.LookupSetBool(tooLong.c_str(), true, 0), lookup::bad_key);
    EXPECT_EQ(store.LookupGetInt(tooLong.c_str(), 0, -1), -1);
    EXPECT_EQ(store.CreateEntry(tooLong.c_str(), 0), nullptr);
    EXPECT_EQ(store.Delete(tooLong.c_str()), 0);
}

TEST_F(SuiteRegistryStore, ANullKeyIsRefused)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    EXPECT_EQ(store.CreateEntry(nullptr, 0), nullptr);
    EXPECT_EQ(store.LookupSetInt(nullptr, 1, 0), lookup::bad_key);
    EXPECT_EQ(store.LookupSetBool(nullptr, true, 0), lookup::bad_key);
    EXPECT_EQ(store.LookupGetInt(nullptr, 0, 3), 3);
    EXPECT_TRUE(store.LookupGetBool(nullptr, 0, true));
    EXPECT_EQ(store.Delete(nullptr), 0);
    EXPECT_TRUE(Names().empty());
}

TEST_F(SuiteRegistryStore, AnEntryIsTheKeysOwn)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    CVeskEntry * const entry = store.CreateEntry(L"Dialog", 0);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(store.CreateEntry(L"Dialog", 0), entry);
    EXPECT_NE(store.CreateEntry(L"dialog", 0), entry);
    EXPECT_EQ(entry->GetIntFb(1, 4), 4);
    entry->SetInt(5, 1);
    EXPECT_EQ(store.LookupGetInt(L"Dialog", 1, 0), 5);
    EXPECT_NE(store.Delete(L"Dialog"), 0);
    EXPECT_EQ(entry->GetIntFb(1, 4), 4);
    entry->SetInt(6, 0);
    EXPECT_EQ(store.LookupGetInt(L"Dialog", 0, 0), 6) << "the entry stays usable";
}

TEST_F(SuiteRegistryStore, DeleteRemovesAllIndicesOfTheKeyAlone)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    for (std::size_t const index : {std::size_t{0}, std::size_t{1}, std::size_t{20}, SIZE_MAX})
    {
        EXPECT_EQ(store.LookupSetInt(L"Key", 1, index), lookup::success);
        EXPECT_EQ(store.LookupSetInt(L"key", 2, index), lookup::success);
        EXPECT_EQ(store.LookupSetInt(L"Key@1", 3, index), lookup::success);
    }
    EXPECT_NE(store.Delete(L"Key"), 0);
    for (std::size_t const index : {std::size_t{0}, std::size_t{1}, std::size_t{20}, SIZE_MAX})
    {
        EXPECT_EQ(store.LookupGetInt(L"Key", index, -1), -1);
        EXPECT_EQ(store.LookupGetInt(L"key", index, -1), 2);
        EXPECT_EQ(store.LookupGetInt(L"Key@1", index, -1), 3);
    }
    EXPECT_EQ(store.Delete(L"Key"), 0);
}

TEST_F(SuiteRegistryStore, AValueOfAnotherTypeReadsAsAbsent)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    long long const wide = 5;
    EXPECT_EQ(WriteRaw(L"key@0", REG_SZ, L"12", 6), ERROR_SUCCESS);
    EXPECT_EQ(WriteRaw(L"key@1", REG_BINARY, &wide, 4), ERROR_SUCCESS);
    EXPECT_EQ(WriteRaw(L"key@2", REG_QWORD, &wide, 8), ERROR_SUCCESS);
    EXPECT_EQ(WriteRaw(L"key@3", REG_DWORD, &wide, 2), ERROR_SUCCESS) << "a cut number";
    EXPECT_EQ(WriteRaw(L"key@4", REG_DWORD, &wide, 0), ERROR_SUCCESS);
    for (std::size_t index = 0; index < 5; ++index)
    {
        EXPECT_EQ(store.LookupGetInt(L"key", index, 77), 77) << index;
        EXPECT_TRUE(store.LookupGetBool(L"key", index, true)) << index;
        EXPECT_EQ(store.LookupSetInt(L"key", 8, index), lookup::success);
        EXPECT_EQ(store.LookupGetInt(L"key", index, 77), 8) << "writing makes it a number again";
    }
}

TEST_F(SuiteRegistryStore, ForeignValuesAreLeftAlone)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    for (wchar_t const * const name : {L"", L"key", L"key@", L"key@x", L"%@0", L"key@01"})
        EXPECT_EQ(WriteRaw(name, REG_SZ, L"x", 4), ERROR_SUCCESS);
    store.LookupSetInt(L"key", 1, 0);
    EXPECT_NE(store.Delete(L"key"), 0);
    EXPECT_EQ(Names().size(), 6U);
}

TEST_F(SuiteRegistryStore, ANumberReadAsBooleanIsTrueUnlessZero)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    store.LookupSetInt(L"key", 256, 0);
    EXPECT_TRUE(store.LookupGetBool(L"key", 0, false));
    store.LookupSetInt(L"key", 0, 0);
    EXPECT_FALSE(store.LookupGetBool(L"key", 0, true));
}

TEST_F(SuiteRegistryStore, AnUnusableSubkeyIsAFailure)
{
    std::wstring const name(300, L'x'); // a key's name has 255 characters at most
    RegistryPreferenceStore store((std::wstring(tests_key) + L"\\" + name).c_str());
    EXPECT_EQ(store.LookupSetInt(L"key", 1, 0), lookup::failure);
    EXPECT_EQ(store.LookupGetInt(L"key", 0, 7), 7);
    EXPECT_EQ(store.Delete(L"key"), 0);
}

TEST_F(SuiteRegistryStore, DeniedAccessIsToldAndChangesNothing)
{
    RegistryPreferenceStore store(m_subkey.c_str());
    ASSERT_EQ(store.LookupSetInt(L"key", 1, 0), lookup::success);

    // Everybody may read and change the access list, nobody may write a value.
    PSECURITY_DESCRIPTOR former = nullptr;
    HKEY key = nullptr;
    ASSERT_EQ(::RegOpenKeyExW(HKEY_CURRENT_USER, m_subkey.c_str(), 0, KEY_READ | WRITE_DAC, &key), ERROR_SUCCESS);
    PACL formerList = nullptr;
    ASSERT_EQ(::GetSecurityInfo(key, SE_REGISTRY_KEY, DACL_SECURITY_INFORMATION, nullptr, nullptr, &formerList, nullptr,
                                &former),
              static_cast<DWORD>(ERROR_SUCCESS));
    alignas(DWORD) BYTE everybody[SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof(everybody);
    ASSERT_TRUE(::CreateWellKnownSid(WinWorldSid, nullptr, everybody, &size));
    alignas(DWORD) BYTE list[256];
    ACL & readOnly = *reinterpret_cast<ACL *>(list);
    ASSERT_TRUE(::InitializeAcl(&readOnly, sizeof(list), ACL_REVISION));
    ASSERT_TRUE(::AddAccessAllowedAce(&readOnly, ACL_REVISION, KEY_READ | WRITE_DAC | DELETE, everybody));
    ASSERT_EQ(::SetSecurityInfo(key, SE_REGISTRY_KEY, DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                                nullptr, nullptr, &readOnly, nullptr),
              static_cast<DWORD>(ERROR_SUCCESS));

    EXPECT_EQ(store.LookupSetInt(L"key", 2, 0), lookup::access_denied);
    EXPECT_EQ(store.LookupSetBool(L"other", true, 0), lookup::access_denied);
    EXPECT_EQ(store.LookupGetInt(L"key", 0, 7), 1);
    EXPECT_EQ(store.Delete(L"key"), 0);
    EXPECT_EQ(store.LookupGetInt(L"key", 0, 7), 1);

    ::SetSecurityInfo(key, SE_REGISTRY_KEY, DACL_SECURITY_INFORMATION, nullptr, nullptr, formerList, nullptr);
    ::LocalFree(former);
    ::RegCloseKey(key);
    EXPECT_EQ(store.LookupSetInt(L"key", 2, 0), lookup::success);
}

// The other program of the next test: writes, tells that it has written, and waits to be killed.
CHILD_PROGRAM(WritesAndWaits)
{
    RegistryPreferenceStore store(argument.c_str());
    store.LookupSetInt(L"Written", 4711, 0);
    store.LookupSetBool(L"Written", true, 1);
    store.CreateEntry(L"Entry", 0)->SetInt(-5, 2);
    Signal written(SignalName(argument, L"written"));
    written.Give();
    ::Sleep(300000);
    return 0;
}

TEST_F(SuiteRegistryStore, WhatAKilledProgramHasWrittenStays)
{
    Signal written(SignalName(m_subkey, L"written"));
    tests::ChildProgram child("WritesAndWaits", m_subkey);
    ASSERT_TRUE(child.Started());
    ASSERT_TRUE(written.Await());
    child.Kill();
    RegistryPreferenceStore store(m_subkey.c_str());
    EXPECT_EQ(store.LookupGetInt(L"Written", 0, -1), 4711);
    EXPECT_TRUE(store.LookupGetBool(L"Written", 1, false));
    EXPECT_EQ(store.LookupGetInt(L"Entry", 2, -1), -5);
}

// The other program of the next test: changes one value again and again, and counts another up, until it is told to
// end.
CHILD_PROGRAM(WritesAllTheTime)
{
    RegistryPreferenceStore store(argument.c_str());
    Signal end(SignalName(argument, L"end"));
    int count = 0;
    while (!end.Given())
    {
        if (store.LookupSetInt(L"Pattern", count % 2 == 0 ? first_pattern : second_pattern, 0) != lookup::success ||
            store.LookupSetInt(L"Child", ++count, 0) != lookup::success)
            return 1;
    }
    // What the parent has written meanwhile is seen here.
    return store.LookupGetInt(L"Parent", 0, -1) == 1000 && store.LookupSetInt(L"Child", count, 1) == lookup::success
               ? 0
               : 2;
}

TEST_F(SuiteRegistryStore, TwoProgramsWriteAtOnce)
{
    Signal end(SignalName(m_subkey, L"end"));
    RegistryPreferenceStore store(m_subkey.c_str());
    ASSERT_EQ(store.LookupSetInt(L"Pattern", first_pattern, 0), lookup::success);
    EXPECT_EQ(store.LookupGetInt(L"Child", 0, 0), 0) << "read before, so that a kept value would show";
    tests::ChildProgram child("WritesAllTheTime", m_subkey);
    ASSERT_TRUE(child.Started());
    ULONGLONG const limit = ::GetTickCount64() + 300000;
    while (store.LookupGetInt(L"Child", 0, 0) == 0 && ::GetTickCount64() < limit)
        ::Sleep(5);

    int seen = store.LookupGetInt(L"Child", 0, 0);
    ASSERT_GT(seen, 0);
    int changes = 0;
    for (int round = 1; round <= 1000 || (changes < 3 && ::GetTickCount64() < limit); ++round)
    {
        if (round <= 1000)
        {
            ASSERT_EQ(store.LookupSetInt(L"Parent", round, 0), lookup::success);
        }
        int const pattern = store.LookupGetInt(L"Pattern", 0, 0);
        ASSERT_TRUE(pattern == first_pattern || pattern == second_pattern) << pattern;
        int const now = store.LookupGetInt(L"Child", 0, 0);
        ASSERT_GE(now, seen);
        changes += now > seen ? 1 : 0;
        seen = now;
    }
    EXPECT_GE(changes, 3);
    end.Give();
    ASSERT_TRUE(child.WaitForEnd());
    EXPECT_EQ(child.ExitCode(), 0U) << child.ErrorText();
    EXPECT_GE(store.LookupGetInt(L"Child", 1, -1), seen);
    EXPECT_EQ(store.LookupGetInt(L"Parent", 0, -1), 1000);
}
