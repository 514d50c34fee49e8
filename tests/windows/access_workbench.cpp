// The workbench, as a program that reads the screen walks through it.

#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "access_AccessTest.h"

using access_tests::Ask;
using access_tests::CountOf;
using access_tests::Held;
using access_tests::Number;
using access_tests::RoleOf;
using access_tests::StatesOf;
using access_tests::ValueOf;

namespace
{
constexpr wchar_t settings_key[] = L"Software\\Instrument Suite";
constexpr wchar_t kept_key[] = L"Software\\Instrument Suite, kept by a test";

/// The settings of whoever uses the workbench here are put aside as long as this lives.
class SettingsAside
{
public:
    SettingsAside() { Move(settings_key, kept_key); }
    ~SettingsAside()
    {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, settings_key);
        Move(kept_key, settings_key);
    }
    SettingsAside(SettingsAside const &) = delete;
    SettingsAside & operator=(SettingsAside const &) = delete;

private:
    static void Move(wchar_t const * from, wchar_t const * to)
    {
        HKEY source = nullptr;
        HKEY target = nullptr;
        if (::RegOpenKeyExW(HKEY_CURRENT_USER, from, 0, KEY_READ, &source) != ERROR_SUCCESS)
            return;
        bool const copied = ::RegCreateKeyExW(HKEY_CURRENT_USER, to, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &target,
                                              nullptr) == ERROR_SUCCESS &&
                            ::RegCopyTreeW(source, nullptr, target) == ERROR_SUCCESS;
        ::RegCloseKey(source);
        ::RegCloseKey(target);
        if (copied)
            ::RegDeleteTreeW(HKEY_CURRENT_USER, from);
    }
};

/// A recording of one channel with 16 bits.
void WriteRecording(std::filesystem::path const & path)
{
    constexpr unsigned int rate = 8000;
    constexpr unsigned int frames = 800;
    std::ofstream file(path, std::ios::binary);
    auto const number = [&file](unsigned int value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            file.put(static_cast<char>(value >> (8 * i)));
    };
    file << "RIFF";
    number(36 + frames * 2, 4);
    file << "WAVEfmt ";
    number(16, 4);
    number(1, 2);
    number(1, 2);
    number(rate, 4);
    number(rate * 2, 4);
    number(2, 2);
    number(16, 2);
    file << "data";
    number(frames * 2, 4);
    for (unsigned int i = 0; i < frames; ++i)
        number(i * 50 % 20000, 2);
}

class AccessWorkbench : public testing::Test
{
protected:
    static constexpr int recordings = 3;

    void SetUp() override
    {
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder);
        for (int i = 0; i < recordings; ++i)
            WriteRecording(m_folder / ("tone " + std::to_string(i) + ".wav"));
        wchar_t path[MAX_PATH] = {};
        ::GetModuleFileNameW(nullptr, path, MAX_PATH);
        std::wstring const program = (std::filesystem::path(path).parent_path() / L"workbench.exe").wstring();
        std::wstring command = L"\"" + program + L"\" \"" + m_folder.wstring() + L"\"";
        STARTUPINFOW startup{};
        startup.cb = sizeof(startup);
        ASSERT_TRUE(::CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                     &startup, &m_process));
        ASSERT_TRUE(tests::PumpUntil([this] { return FindList(); }));
        ASSERT_EQ(Ask(m_list, m_object), S_OK);
    }
    void TearDown() override
    {
        m_object.Release();
        if (m_process.hProcess != nullptr)
        {
            if (m_main != nullptr)
                ::PostMessageW(m_main, WM_CLOSE, 0, 0);
            else
                ::TerminateProcess(m_process.hProcess, 1);
            EXPECT_TRUE(
                tests::PumpUntil([this] { return ::WaitForSingleObject(m_process.hProcess, 0) == WAIT_OBJECT_0; }));
            ::CloseHandle(m_process.hThread);
            ::CloseHandle(m_process.hProcess);
        }
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }
    /// The list with as many rows as there are recordings, each of which has been read.
    bool FindList()
    {
        ::EnumWindows(
            [](HWND window, LPARAM test) {
                auto & self = *reinterpret_cast<AccessWorkbench *>(test);
                DWORD process = 0;
                ::GetWindowThreadProcessId(window, &process);
                if (process != self.m_process.dwProcessId)
                    return TRUE;
                if (::IsWindowVisible(window) && ::GetWindow(window, GW_OWNER) == nullptr)
                    self.m_main = window;
                ::EnumChildWindows(
                    window,
                    [](HWND child, LPARAM found) {
                        wchar_t name[32] = {};
                        ::GetClassNameW(child, name, 32);
                        if (std::wstring(name) == L"SysListView32" &&
                            ::SendMessageW(child, LVM_GETITEMCOUNT, 0, 0) == recordings)
                            reinterpret_cast<AccessWorkbench *>(found)->m_list = child;
                        return TRUE;
                    },
                    test);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(this));
        return m_main != nullptr && m_list != nullptr;
    }
    /// The column that shows a text in a row, in whatever language the columns are named; -1 for none.
    int ColumnOf(int row, CString const & text)
    {
        for (int col = 0; col < 12; ++col)
        {
            if (ValueOf(*m_object.Get(), Cell(row, col)) == text)
                return col;
        }
        return -1;
    }
    static long Cell(int row, int col) { return accessible::NumberOf({row, col}); }

    access_tests::ComScope m_com;
    SettingsAside m_settings;
    std::filesystem::path m_folder =
        std::filesystem::temp_directory_path() / ("access workbench " + std::to_string(::GetCurrentProcessId()));
    PROCESS_INFORMATION m_process{};
    HWND m_main = nullptr;
    HWND m_list = nullptr;
    Held<IAccessible> m_object;
};

TEST_F(AccessWorkbench, IsReadAndMarkedFromOutside)
{
    ASSERT_EQ(RoleOf(*m_object.Get()), ROLE_SYSTEM_LIST);
    ASSERT_EQ(CountOf(*m_object.Get()), recordings);
    std::set<int> columns;
    for (int row = 0; row < recordings; ++row)
    {
        CString const name = (L"tone " + std::to_wstring(row) + L".wav").c_str();
        EXPECT_TRUE(tests::PumpUntil([&] { return ColumnOf(row, name) >= 0; }));
        columns.insert(ColumnOf(row, name));
    }
    EXPECT_EQ(columns.size(), 1U) << "one column has all names";
    // The marks are the first column's check boxes.
    EXPECT_EQ(RoleOf(*m_object.Get(), Cell(1, 0)), ROLE_SYSTEM_CHECKBUTTON);
    bool const before = (StatesOf(*m_object.Get(), Cell(1, 0)) & STATE_SYSTEM_CHECKED) != 0;
    for (bool const marked : {!before, before})
    {
        ASSERT_EQ(m_object->accDoDefaultAction(Number(Cell(1, 0))), S_OK);
        EXPECT_TRUE(tests::PumpUntil(
            [&] { return ((StatesOf(*m_object.Get(), Cell(1, 0)) & STATE_SYSTEM_CHECKED) != 0) == marked; }));
    }
    EXPECT_EQ(m_object->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Number(3)), S_OK);
    EXPECT_TRUE(tests::PumpUntil([&] { return (StatesOf(*m_object.Get(), 3) & STATE_SYSTEM_SELECTED) != 0; }));
}
} // namespace
