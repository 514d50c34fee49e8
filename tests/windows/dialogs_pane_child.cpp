// Dialogs that live as children in a pane.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "dialogs_Dialog3dTest.h"

using namespace dialog_tests;

namespace
{
using Dialog3dPaneChild = DialogTest;

class PaneDialog : public TestDialog
{
public:
    using TestDialog::TestDialog;
    int m_createResult = -2;

protected:
    int OnCreate(LPCREATESTRUCT createStruct)
    {
        m_createResult = TestDialog::OnCreate(createStruct);
        m_styleAfter = GetStyle();
        m_exStyleAfter = GetExStyle();
        return m_createResult;
    }

    DECLARE_MESSAGE_MAP()

public:
    DWORD m_styleAfter = 0;
    DWORD m_exStyleAfter = 0;
};

BEGIN_MESSAGE_MAP(PaneDialog, TestDialog)
    ON_WM_CREATE()
END_MESSAGE_MAP()
} // namespace

TEST_F(Dialog3dPaneChild, TheWindowBecomesAPlainChild)
{
    tests::ScopedWindow pane;
    tests::App().m_pMainWnd = &pane;
    StorePlace(L"Fixed_dialog", CRect(300, 310, 320, 330));
    PaneDialog dialog(IDD_FIXED);
    EXPECT_FALSE(dialog.GetPaneChildMode());
    dialog.SetPaneChildMode(true);
    EXPECT_TRUE(dialog.GetPaneChildMode());
    EXPECT_NE(dialog.DisplayDialog(), 0);
    EXPECT_EQ(dialog.m_createResult, 0);
    // The window system keeps WS_CLIPSIBLINGS on a window that has no parent yet.
    EXPECT_EQ(dialog.m_styleAfter & (WS_POPUP | WS_CAPTION | WS_THICKFRAME), 0u);
    EXPECT_NE(dialog.m_styleAfter & WS_CHILD, 0u);
    EXPECT_EQ(dialog.m_exStyleAfter & WS_EX_CONTROLPARENT, 0u);
    EXPECT_NE(dialog.m_exStyleAfter & WS_EX_TRANSPARENT, 0u);
    EXPECT_EQ(dialog.Grip(), nullptr);
    EXPECT_FALSE(dialog.IsWindowVisible()) << "no position was read, which would have shown it";

    CRect const before = OuterOf(dialog);
    dialog.FensterpositionLaden();
    EXPECT_EQ(OuterOf(dialog), before);
    dialog.DestroyWindow();
    tests::App().m_pMainWnd = nullptr;
}

TEST_F(Dialog3dPaneChild, AChildsTemplateLosesTheClippingOfSiblings)
{
    tests::ScopedWindow pane;
    tests::App().m_pMainWnd = &pane;
    PaneDialog dialog(IDD_CLIPPED_CHILD);
    dialog.DisplayDialog();
    EXPECT_NE(dialog.m_styleAfter & WS_CLIPSIBLINGS, 0u);
    dialog.DestroyWindow();
    dialog.SetPaneChildMode(true);
    dialog.DisplayDialog();
    EXPECT_EQ(dialog.m_styleAfter & (WS_POPUP | WS_CLIPSIBLINGS | WS_CAPTION | WS_THICKFRAME), 0u);
    EXPECT_NE(dialog.m_styleAfter & WS_CHILD, 0u);
    EXPECT_EQ(dialog.m_exStyleAfter & WS_EX_CONTROLPARENT, 0u);
    EXPECT_EQ(::GetParent(dialog.m_hWnd), pane.m_hWnd);
    dialog.DestroyWindow();
    tests::App().m_pMainWnd = nullptr;
}

TEST_F(Dialog3dPaneChild, ItFollowsItsSizeWithoutAFrame)
{
    tests::ScopedWindow pane;
    tests::App().m_pMainWnd = &pane;
    PaneDialog dialog(IDD_FIXED);
    dialog.SetPaneChildMode(true);
    dialog.m_onInit = [&] {
        dialog.D3dLayoutChild(IDC_NAME, CEdges::LEFT_RIGHT(), nullptr);
        dialog.D3dLayoutComplete(CDialogResizer::RESIZE_BOTH);
    };
    dialog.DisplayDialog();
    dialog.SetParent(&pane);
    CRect const before = OuterOf(dialog);
    CRect name;
    dialog.ClientCoordinates(IDC_NAME, name);
    dialog.SetSize(before.Width() + 70, before.Height() + 20);
    CRect after;
    dialog.ClientCoordinates(IDC_NAME, after);
    EXPECT_EQ(after, CRect(name.left, name.top, name.right + 70, name.bottom));
    dialog.DestroyWindow();
    tests::App().m_pMainWnd = nullptr;
}

TEST_F(Dialog3dPaneChild, OutsideTheModeOnCreateChangesNothing)
{
    PaneDialog dialog(IDD_SIZABLE);
    dialog.DisplayDialog();
    EXPECT_EQ(dialog.m_createResult, 0);
    EXPECT_NE(dialog.m_styleAfter & WS_POPUP, 0u);
    EXPECT_EQ(dialog.m_styleAfter & WS_CHILD, 0u);
    EXPECT_EQ(dialog.m_exStyleAfter & WS_EX_TRANSPARENT, 0u);
}
