#pragma once
// The workbench's main window, with settings and recordings of the test's own.

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "frame/PreferenceStore.h"
#include "Graphics.h"
#include "Input.h"
#include "MainWindow.h"
#include "MemoryPreferenceStore.h"
#include "Pump.h"
#include "resource.h"
#include "Settings.h"
#include "TestApp.h"

namespace tests
{
inline constexpr auto read_limit = std::chrono::seconds(60);

/// A mono recording with 16 bits.
inline void WriteRecording(std::filesystem::path const & path, std::uint32_t rate = 48000, std::uint32_t frames = 480)
{
    std::ofstream file(path, std::ios::binary);
    auto const number = [&file](std::uint64_t value, int bytes) {
        for (int i = 0; i < bytes; ++i)
        {
            file.put(static_cast<char>(value >> (8 * i)));
        }
    };
    file << "RIFF";
    number(36 + frames * std::uint64_t{2}, 4);
    file << "WAVEfmt ";
    number(16, 4);
    number(1, 2);
    number(1, 2);
    number(rate, 4);
    number(rate * std::uint64_t{2} & 0xFFFFFFFF, 4);
    number(2, 2);
    number(16, 2);
    file << "data";
    number(frames * std::uint64_t{2}, 4);
    for (std::uint32_t i = 0; i < frames; ++i)
    {
        number(i * std::uint64_t{50} % 20000, 2);
    }
}

class MainWindowTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder / "recordings");
        tests::App().m_pszRegistryKey = registry_key;
        tests::App().m_pszProfileName = L"Settings";
        tests::App().m_keepsWorkspace = true;
        ForgetSettings();
        CVeskBase::SetPreferenceVesk(&m_store);
        OpenWindow();
    }
    void TearDown() override
    {
        CloseWindow();
        CVeskBase::SetPreferenceVesk(nullptr);
        ForgetSettings();
        tests::App().m_keepsWorkspace = false;
        tests::App().m_pszProfileName = m_formerProfile;
        tests::App().m_pszRegistryKey = m_formerKey;
        // A program that stays in a folder, or keeps a file open, keeps its user from deleting it.
        EXPECT_TRUE(tests::PumpUntil([this] {
            std::error_code error;
            std::filesystem::remove_all(m_folder, error);
            return !error;
        })) << "held by the program, which is in "
            << std::filesystem::current_path();
    }

    static void ForgetSettings()
    {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, (std::wstring(L"Software\\") + registry_key).c_str());
        std::filesystem::remove_all(workbench::NotesFile());
        std::filesystem::remove_all(workbench::ViewsFile());
    }

    void OpenWindow(int dotsPerInch = 0)
    {
        m_window = std::make_unique<CMainWindow>(dotsPerInch);
        tests::App().m_pMainWnd = m_window.get();
        ASSERT_TRUE(m_window->CreateMainWindow());
        m_window->ShowAsBefore(SW_SHOW);
        m_window->UpdateWindow();
        ASSERT_TRUE(tests::BringToFront(m_window->m_hWnd));
    }
    void CloseWindow()
    {
        if (m_window == nullptr)
        {
            return;
        }
        m_window->SendMessage(WM_CLOSE);
        m_window.reset();
        tests::App().m_pMainWnd = nullptr;
    }

    /// The folder with that many recordings.
    std::filesystem::path Folder(int count)
    {
        for (int i = 0; i < count; ++i)
        {
            std::string const number = std::to_string(i);
            WriteRecording(m_folder / "recordings" / ("r" + std::string(5 - number.size(), '0') + number + ".wav"));
        }
        return m_folder / "recordings";
    }
    bool WaitUntilRead()
    {
        return tests::PumpUntil([this] { return !m_window->IsBusy(); }, read_limit);
    }
    static int Widths(CRecordingList & list)
    {
        int sum = 0;
        for (int column = 0; column < CRecordingList::column_count; ++column)
        {
            sum += list.GetColumnWidth(column);
        }
        return sum;
    }
    static bool FillsItsWindow(CRecordingList & list)
    {
        CRect client;
        list.GetClientRect(&client);
        return Widths(list) == client.Width();
    }
    std::wstring Status()
    {
        CString text;
        m_window->GetDescendantWindow(IDC_STATUS_TEXT)->GetWindowText(text);
        return text.GetString();
    }
    bool CancelShows() { return m_window->GetDescendantWindow(IDC_CANCEL_READING)->IsWindowVisible() != FALSE; }

    std::filesystem::path const m_folder = std::filesystem::temp_directory_path() / "workbench_main_window_test";
    static constexpr wchar_t registry_key[] = L"Workbench Main Window Test";
    LPCTSTR const m_formerProfile = tests::App().m_pszProfileName;
    LPCTSTR const m_formerKey = tests::App().m_pszRegistryKey;
    workbench::GraphicsScope m_graphics;
    MemoryPreferenceStore m_store;
    std::unique_ptr<CMainWindow> m_window;
};
} // namespace tests
