// Which keys a dialog keeps: real keyboard input that reaches the dialog manager or the application's frame.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <set>
#include <utility>
#include <vector>

#include "dialogs_Dialog3dTest.h"

using namespace dialog_tests;

namespace
{
constexpr WORD function_keys[] = {VK_F2, VK_F5, VK_F12};
constexpr WORD digit_keys[] = {'0', '9', VK_NUMPAD0, VK_NUMPAD9};
constexpr WORD letter_keys[] = {'A', 'M', 'Z'};
constexpr WORD editing_keys[] = {VK_BACK, VK_DELETE, VK_SPACE};
constexpr WORD navigation_keys[] = {VK_LEFT, VK_DOWN, VK_HOME, VK_END, VK_PRIOR, VK_NEXT, VK_CLEAR};

constexpr WORD marker_key = VK_F20; // in no group

/// Counts the releases of the marker key.
class KeyDialog : public TestDialog
{
public:
    int m_markers = 0;

    BOOL PreTranslateMessage(MSG * message) override
    {
        if (message->message == WM_KEYUP && message->wParam == marker_key)
            ++m_markers;
        return TestDialog::PreTranslateMessage(message);
    }
};

/// The application's frame: its pre-translation sees the keys that the dialog passes over.
class Frame : public tests::ScopedWindow
{
public:
    std::vector<std::pair<UINT, WPARAM>> m_keys;

    bool Saw(UINT message, WORD key) const
    {
        return std::find(m_keys.begin(), m_keys.end(), std::pair<UINT, WPARAM>(message, key)) != m_keys.end();
    }

protected:
    BOOL PreTranslateMessage(MSG * message) override
    {
        if (message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST)
            m_keys.emplace_back(message->message, message->wParam);
        return ScopedWindow::PreTranslateMessage(message);
    }
};

/// A control that wants no key of its own and counts those that it gets.
class KeyCounter : public CWnd
{
public:
    std::vector<std::pair<UINT, WPARAM>> m_keys;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_KEYDOWN || message == WM_KEYUP)
            m_keys.emplace_back(message, wParam);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class Dialog3dKeys : public DialogTest
{
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        tests::App().m_pMainWnd = &m_frame;
        ASSERT_NE(m_dialog.DisplayDialog(), 0);
        ASSERT_TRUE(m_control.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                       CRect(200, 10, 240, 40), &m_dialog, 3000));
        ASSERT_TRUE(tests::BringToFront(m_dialog));
        m_control.SetFocus();
        tests::PumpPosted();
        ASSERT_EQ(::GetFocus(), m_control.m_hWnd);
    }
    void TearDown() override
    {
        m_dialog.DestroyWindow();
        tests::App().m_pMainWnd = nullptr;
        DialogTest::TearDown();
    }

    /// Presses and releases the key; whether the frame saw both messages. Fails if it saw one of them only.
    bool PassesOver(WORD key)
    {
        m_frame.m_keys.clear();
        m_control.m_keys.clear();
        m_control.SetFocus();
        tests::Key(key);
        int const markers = m_dialog.m_markers;
        tests::Key(marker_key);
        EXPECT_TRUE(tests::PumpUntil([&] { return m_dialog.m_markers > markers; }));
        bool const down = m_frame.Saw(WM_KEYDOWN, key);
        EXPECT_EQ(m_frame.Saw(WM_KEYUP, key), down) << key;
        return down;
    }
    bool Received(WORD key) const
    {
        return std::find(m_control.m_keys.begin(), m_control.m_keys.end(), std::pair<UINT, WPARAM>(WM_KEYUP, key)) !=
               m_control.m_keys.end();
    }
    template <class Keys> void ExpectAll(Keys const & keys, bool passOver, char const * what)
    {
        for (WORD const key : keys)
            EXPECT_EQ(PassesOver(key), passOver) << what << ", key " << key;
    }

    Frame m_frame;
    KeyDialog m_dialog;
    KeyCounter m_control;
};
} // namespace

TEST_F(Dialog3dKeys, AtFirstOnlyTheFunctionKeysFromF2PassOver)
{
    EXPECT_FALSE(PassesOver(VK_F1));
    ExpectAll(function_keys, true, "function keys");
    ExpectAll(digit_keys, false, "digits");
    ExpectAll(letter_keys, false, "letters");
    ExpectAll(editing_keys, false, "editing");
    ExpectAll(navigation_keys, false, "navigation");
    EXPECT_FALSE(PassesOver(VK_INSERT));

    EXPECT_FALSE(PassesOver(VK_RETURN));
    EXPECT_EQ(m_dialog.m_oks, 1);
    EXPECT_FALSE(PassesOver(VK_ESCAPE));
    EXPECT_EQ(m_dialog.m_cancels, 1);
    EXPECT_FALSE(PassesOver(VK_TAB));
    EXPECT_NE(::GetFocus(), m_control.m_hWnd) << "the dialog manager moved the focus";
}

TEST_F(Dialog3dKeys, AKeyThatIsPassedOverReachesTheControlWithTheFocus)
{
    EXPECT_TRUE(PassesOver(VK_F5));
    EXPECT_TRUE(Received(VK_F5));
}

TEST_F(Dialog3dKeys, AnyKeysPassesOverKeysOfNoGroupAsWell)
{
    m_dialog.DontAbsorbAnyKeys();
    EXPECT_TRUE(PassesOver(VK_ESCAPE));
    EXPECT_EQ(m_dialog.m_cancels, 0);
    EXPECT_TRUE(PassesOver(VK_RETURN));
    EXPECT_EQ(m_dialog.m_oks, 0);
    EXPECT_TRUE(PassesOver(VK_TAB));
    EXPECT_EQ(::GetFocus(), m_control.m_hWnd);
    EXPECT_TRUE(PassesOver(VK_F1));
    EXPECT_TRUE(PassesOver(VK_INSERT));
    ExpectAll(letter_keys, true, "letters");
}

TEST_F(Dialog3dKeys, AllSixBitsAreNotEveryKey)
{
    m_dialog.DontAbsorbKeys(63);
    EXPECT_FALSE(PassesOver(VK_ESCAPE));
    EXPECT_EQ(m_dialog.m_cancels, 1);
    EXPECT_FALSE(PassesOver(VK_F1));
    EXPECT_TRUE(PassesOver(VK_RETURN));
    EXPECT_EQ(m_dialog.m_oks, 0);
    ExpectAll(function_keys, true, "function keys");
    ExpectAll(digit_keys, true, "digits");
    ExpectAll(letter_keys, true, "letters");
    ExpectAll(editing_keys, true, "editing");
    ExpectAll(navigation_keys, true, "navigation");
}

TEST_F(Dialog3dKeys, EveryBitIsOneGroup)
{
    m_dialog.DontAbsorbKeys(0);
    ExpectAll(function_keys, false, "none");
    m_dialog.DontAbsorbKeys(2);
    ExpectAll(function_keys, false, "digits");
    ExpectAll(digit_keys, true, "digits");
    m_dialog.DontAbsorbKeys(4);
    ExpectAll(letter_keys, true, "letters");
    ExpectAll(digit_keys, false, "letters");
    m_dialog.DontAbsorbKeys(8);
    ExpectAll(editing_keys, true, "editing");
    ExpectAll(navigation_keys, false, "editing");
    for (WORD const key : {VK_TAB, VK_RETURN, VK_SHIFT, VK_CONTROL})
        EXPECT_TRUE(PassesOver(key)) << key;
    m_dialog.DontAbsorbKeys(16);
    ExpectAll(navigation_keys, true, "navigation");
    ExpectAll(editing_keys, false, "navigation");
    m_dialog.DontAbsorbKeys(32);
    EXPECT_TRUE(PassesOver(VK_SPACE));
    EXPECT_FALSE(PassesOver(VK_BACK));
}

TEST_F(Dialog3dKeys, NormalKeysAreFunctionKeysDigitsLettersAndNavigation)
{
    m_dialog.DontAbsorbNormalKeys();
    ExpectAll(function_keys, true, "function keys");
    ExpectAll(digit_keys, true, "digits");
    ExpectAll(letter_keys, true, "letters");
    ExpectAll(navigation_keys, true, "navigation");
    ExpectAll(editing_keys, false, "editing");
    EXPECT_FALSE(PassesOver(VK_ESCAPE));
}

TEST_F(Dialog3dKeys, ControlKeysAreTheDefaultAndMayAddSpace)
{
    m_dialog.DontAbsorbAnyKeys();
    m_dialog.DontAbsorbControlKeys(true);
    EXPECT_TRUE(PassesOver(VK_SPACE));
    EXPECT_TRUE(PassesOver(VK_F2));
    EXPECT_FALSE(PassesOver(VK_BACK));
    m_dialog.DontAbsorbControlKeys(false);
    EXPECT_FALSE(PassesOver(VK_SPACE));
    EXPECT_TRUE(PassesOver(VK_F2));
    EXPECT_FALSE(PassesOver(VK_F1));
    EXPECT_FALSE(PassesOver('A'));
}

TEST_F(Dialog3dKeys, OnlyKeyDownAndKeyUpAreLookedAt)
{
    m_dialog.DontAbsorbAnyKeys();
    MSG message{};
    message.hwnd = m_control.m_hWnd;
    message.wParam = 'A';
    for (UINT const passed : {WM_KEYDOWN, WM_KEYUP})
    {
        message.message = passed;
        EXPECT_FALSE(m_dialog.PreTranslateMessage(&message)) << passed;
    }
    for (UINT const kept : {WM_CHAR, WM_SYSKEYDOWN, WM_SYSKEYUP})
    {
        message.message = kept;
        EXPECT_TRUE(m_dialog.PreTranslateMessage(&message)) << kept;
    }
}
