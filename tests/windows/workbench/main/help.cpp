// The help and the box that tells about the program.

#include <set>
#include <string>
#include <vector>

#include "logic/Texts.h"
#include "MainWindowTest.h"

namespace
{

using workbench::HelpTopic;

class WorkbenchHelpWindow : public tests::MainWindowTest
{
protected:
    void TearDown() override
    {
        workbench::UseLanguage(1033);
        ::SetThreadLocale(m_locale);
        ::SetThreadUILanguage(0);
        MainWindowTest::TearDown();
    }
    CWnd & Topics() { return *m_window->Help().GetDlgItem(IDC_HELP_TOPICS); }
    bool IsOpen() { return m_window->Help().GetSafeHwnd() != nullptr && m_window->Help().IsWindowVisible(); }
    std::wstring Page()
    {
        CString text;
        m_window->Help().GetDlgItem(IDC_HELP_PAGE)->GetWindowText(text);
        return text.GetString();
    }
    HelpTopic Topic() { return static_cast<HelpTopic>(Topics().SendMessage(LB_GETCURSEL)); }
    bool PressF1AndWait(HelpTopic topic)
    {
        tests::Key(VK_F1);
        return tests::PumpUntil([&] { return IsOpen() && Topic() == topic; }, tests::read_limit);
    }
    bool PressEscapeAndWait()
    {
        tests::Key(VK_ESCAPE);
        return tests::PumpUntil([&] { return !IsOpen(); }, tests::read_limit);
    }

private:
    LCID const m_locale = ::GetThreadLocale();
};

} // namespace

TEST_F(WorkbenchHelpWindow, CtrlF1TellsTheKeysInDialogsToo)
{
    m_window->ShowTargets({Folder(1)});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ShowDetails(0));
    ASSERT_TRUE(tests::PumpUntil([this] { return CWnd::GetActiveWindow() == &m_window->Details(); }));
    tests::Key(VK_F1, {VK_CONTROL});
    EXPECT_TRUE(tests::PumpUntil([this] { return IsOpen() && Topic() == HelpTopic::keys; }));
}

TEST_F(WorkbenchHelpWindow, F1TellsAboutThePartWithTheFocusAndEscapeGoesBackToIt)
{
    m_window->List().SetFocus();
    ASSERT_TRUE(PressF1AndWait(HelpTopic::list));
    EXPECT_EQ(::GetFocus(), Topics().m_hWnd);
    ASSERT_TRUE(PressEscapeAndWait());
    EXPECT_EQ(::GetFocus(), m_window->List().m_hWnd);
    m_window->Waveform().SetFocus();
    ASSERT_TRUE(PressF1AndWait(HelpTopic::waveform));
    ASSERT_TRUE(PressEscapeAndWait());
    EXPECT_EQ(::GetFocus(), m_window->Waveform().m_hWnd);
}

TEST_F(WorkbenchHelpWindow, F1TellsAboutTheListWhileARatingIsChosen)
{
    m_window->ShowTargets({Folder(1)});
    ASSERT_TRUE(WaitUntilRead());
    for (bool const opens : {false, true})
    {
        m_window->List().ChooseRating(0);
        ASSERT_NE(m_window->List().RatingCombo(), nullptr);
        tests::PumpPosted();
        if (opens)
        {
            tests::Key(VK_DOWN, {VK_MENU});
            tests::PumpPosted();
        }
        ASSERT_TRUE(PressF1AndWait(HelpTopic::list)) << opens;
        ASSERT_TRUE(PressEscapeAndWait());
    }
}

TEST_F(WorkbenchHelpWindow, ArrowsGoThroughTheTopicsAndEscapeClosesFromThePageToo)
{
    ASSERT_TRUE(m_window->ShowHelp(HelpTopic::overview));
    std::wstring const first = Page();
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([&] { return Topic() == HelpTopic::list; }));
    EXPECT_NE(Page(), first);
    tests::Key(VK_TAB);
    ASSERT_TRUE(tests::PumpUntil([&] { return ::GetFocus() == m_window->Help().GetDlgItem(IDC_HELP_PAGE)->m_hWnd; }));
    ASSERT_TRUE(PressEscapeAndWait());
}

TEST_F(WorkbenchHelpWindow, EveryAcceleratorIsAmongTheKeysInEveryLanguage)
{
    HACCEL const table = ::LoadAcceleratorsW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(IDR_MAIN_FRAME));
    std::vector<ACCEL> keys(static_cast<std::size_t>(::CopyAcceleratorTableW(table, nullptr, 0)));
    ::CopyAcceleratorTableW(table, keys.data(), static_cast<int>(keys.size()));
    ASSERT_GT(keys.size(), 20U);
    for (workbench::LanguageFacts const & language : workbench::language_facts)
    {
        m_window->ChooseLanguage(language.id);
        ASSERT_TRUE(m_window->ShowHelp(HelpTopic::keys));
        for (tagACCEL const & key : keys)
        {
            CString text;
            ASSERT_NE(m_window->GetMenu()->GetMenuString(key.cmd, text, MF_BYCOMMAND), 0) << key.cmd;
            int const tab = text.Find(L'\t');
            ASSERT_GT(tab, 0) << key.cmd;
            auto const line = L'\n' + std::wstring((text.Mid(tab + 1) + L'\t').GetString());
            EXPECT_NE(Page().find(line), std::wstring::npos) << key.cmd;
        }
    }
}

TEST_F(WorkbenchHelpWindow, ItFollowsTheLanguage)
{
    ASSERT_TRUE(m_window->ShowHelp(HelpTopic::measures));
    std::wstring const english = Page();
    m_window->ChooseLanguage(1031);
    CString title;
    m_window->Help().GetWindowText(title);
    EXPECT_STREQ(title, L"Hilfe");
    EXPECT_NE(Page(), english);
    EXPECT_EQ(Topic(), HelpTopic::measures);
}

TEST_F(WorkbenchHelpWindow, IsThereInTheSettingsAndInModalDialogs)
{
    ASSERT_TRUE(m_window->ShowSettings());
    ASSERT_TRUE(PressF1AndWait(HelpTopic::settings));
    ASSERT_TRUE(PressEscapeAndWait());
    EXPECT_TRUE(m_window->SettingsSheet().IsChild(CWnd::GetFocus()));
    m_window->CloseDialogs();

    std::vector<std::pair<UINT, HelpTopic>> const dialogs{{ID_OPEN_FOLDER, HelpTopic::folders},
                                                          {ID_EXPORT_LIST, HelpTopic::taking_away},
                                                          {ID_CHOOSE_LANGUAGE, HelpTopic::settings},
                                                          {ID_CHOOSE_COLUMNS, HelpTopic::list},
                                                          {ID_ABOUT, HelpTopic::overview}};
    for (auto const & [command, topic] : dialogs)
    {
        HWND dialog = nullptr;
        auto wasTopic = HelpTopic::count;
        bool wasBack = false;
        tests::LaterActions later;
        later.Add(
            [&] {
                dialog = ::GetActiveWindow();
                tests::Key(VK_F1);
            },
            [&] { return ::GetActiveWindow() != m_window->m_hWnd && ::IsWindowVisible(::GetActiveWindow()); });
        later.Add(
            [&] {
                wasTopic = Topic();
                tests::Key(VK_ESCAPE);
            },
            [&] { return IsOpen() && ::GetActiveWindow() == m_window->Help().m_hWnd; });
        later.Add(
            [&] {
                wasBack = ::GetActiveWindow() == dialog;
                ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
            },
            [&] { return !IsOpen(); });
        m_window->SendMessage(WM_COMMAND, command);
        EXPECT_FALSE(later.Failed()) << command;
        EXPECT_EQ(wasTopic, topic) << command;
        EXPECT_TRUE(wasBack) << command;
        EXPECT_TRUE(m_window->IsWindowEnabled());
    }
}

TEST_F(WorkbenchHelpWindow, TheBoxTellsNameAndVersionOfTheResources)
{
    std::vector<std::wstring> texts;
    tests::LaterActions later;
    later.Add(
        [&] {
            for (int const id : {IDC_ABOUT_NAME, IDC_ABOUT_VERSION, IDC_ABOUT_PARTS})
            {
                CString text;
                CWnd::GetActiveWindow()->GetDlgItemText(id, text);
                texts.emplace_back(text.GetString());
            }
            tests::Key(VK_ESCAPE);
        },
        [&] { return ::GetDlgItem(::GetActiveWindow(), IDC_ABOUT_NAME) != nullptr; });
    m_window->SendMessage(WM_COMMAND, ID_ABOUT);
    EXPECT_FALSE(later.Failed());
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0], L"Instrument Workbench");
    EXPECT_EQ(texts[1], L"Version 1.0.0.0, Instrument Suite");
    EXPECT_NE(texts[2].find(L"C++20"), std::wstring::npos);
    EXPECT_NE(texts[2].find(L"Instrument user interface toolkit 1.0.0.0"), std::wstring::npos);
}
