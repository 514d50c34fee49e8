// The dialog base's exchange of numbers with combo boxes, and its message pumps.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <vector>

#include "dialogs_Dialog3dTest.h"

using namespace dialog_tests;

namespace
{
using Dialog3dExchange = DialogTest;
using Dialog3dPumps = DialogTest;

class PumpedWindow : public tests::ScopedWindow
{
public:
    std::vector<UINT> m_seen;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message >= WM_USER || message == WM_PAINT)
            m_seen.push_back(message);
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST_F(Dialog3dExchange, NumbersGoToTheComboBoxAndBack)
{
    TestDialog dialog;
    int whole = -42;
    float broken = 1.5F;
    bool floating = false;
    dialog.m_onExchange = [&](CDataExchange * exchange) {
        if (floating)
            dialog.DDX_CBFloat(exchange, IDC_CHOICE, broken);
        else
            dialog.DDX_CBInt(exchange, IDC_CHOICE, whole);
    };
    dialog.DisplayDialog();
    CWnd & combo = *dialog.GetDlgItem(IDC_CHOICE);
    EXPECT_EQ(TextOf(combo), L"-42");
    combo.SetWindowText(L"1234");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(whole, 1234);
    combo.SetWindowText(L" 77 pieces");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(whole, 77);
    for (wchar_t const * const text : {L"", L"none", L"x9"})
    {
        combo.SetWindowText(text);
        EXPECT_TRUE(dialog.UpdateData(TRUE));
        EXPECT_EQ(whole, 77) << text;
        EXPECT_EQ(TextOf(combo), text) << "reading writes nothing";
    }

    floating = true;
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(TextOf(combo), L"1.500000");
    combo.SetWindowText(L"-0.25");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(broken, -0.25F);
    combo.SetWindowText(L"?");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(broken, -0.25F);
}

TEST_F(Dialog3dPumps, OnlyTheMessageOfThatNumberIsPumped)
{
    PumpedWindow window;
    tests::PumpPosted();
    window.m_seen.clear();
    window.PostMessage(WM_USER + 1);
    window.PostMessage(WM_USER + 2);
    window.PostMessage(WM_USER + 1);
    EXPECT_TRUE(CDialog3d::PumpWindowsMessages(WM_USER + 1));
    EXPECT_EQ(window.m_seen, (std::vector<UINT>{WM_USER + 1, WM_USER + 1}));
    EXPECT_TRUE(CDialog3d::PumpWindowsMessages(WM_USER + 1)) << "an empty queue";
    EXPECT_TRUE(CDialog3d::PumpWindowsMessages(0));
    EXPECT_EQ(window.m_seen.back(), static_cast<UINT>(WM_USER + 2));
}

TEST_F(Dialog3dPumps, TheEndOfTheProgramIsPutBack)
{
    PumpedWindow window;
    tests::PumpPosted();
    ::PostQuitMessage(17);
    EXPECT_FALSE(CDialog3d::PumpWindowsMessages(0));
    MSG message{};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    while (message.message != WM_QUIT && ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    {
    }
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 17u);
}

TEST_F(Dialog3dPumps, PaintMessagesAreDispatchedAndTheHostsMessageBefore)
{
    PumpedWindow window;
    tests::PumpPosted();
    window.m_seen.clear();
    window.PostMessage(2024);
    window.PostMessage(WM_USER + 2);
    window.Invalidate();
    CDialog3d::PumpPaintMessages(false);
    EXPECT_EQ(window.m_seen, std::vector<UINT>{WM_PAINT});
    window.Invalidate();
    CDialog3d::PumpPaintMessages(true);
    EXPECT_EQ(window.m_seen, (std::vector<UINT>{WM_PAINT, 2024, WM_PAINT}));
    tests::PumpPosted();
    EXPECT_EQ(window.m_seen.back(), static_cast<UINT>(WM_USER + 2)) << "everything else waited";
}
