// Views that scroll, and views that are a control or a dialog template.

#include <afxcview.h>

#include "views_FramesTest.h"

namespace
{
class ScrollingView : public CScrollView
{
    DECLARE_DYNCREATE(ScrollingView)

public:
    ScrollingView() { ++frames::g_views; }
    ~ScrollingView() override { --frames::g_views; }

protected:
    void OnDraw(CDC *) override {}
    void OnInitialUpdate() override
    {
        CScrollView::OnInitialUpdate();
        SetScrollSizes(MM_TEXT, CSize(1000, 2000), CSize(100, 200), CSize(10, 20));
    }
};

class TestForm : public CFormView
{
    DECLARE_DYNCREATE(TestForm)

public:
    TestForm() : CFormView(IDD_FORM) { ++frames::g_views; }
    ~TestForm() override { --frames::g_views; }

    CString m_name = L"from the member";
    int m_pressed = 0;

protected:
    void DoDataExchange(CDataExchange * pDX) override
    {
        CFormView::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_FORM_NAME, m_name);
    }
    afx_msg void OnPress() { ++m_pressed; }

    DECLARE_MESSAGE_MAP()
};

class OpenEditView : public CEditView
{
    DECLARE_DYNCREATE(OpenEditView)

public:
    using CEditView::OnReplaceAll;
};

IMPLEMENT_DYNCREATE(ScrollingView, CScrollView)
IMPLEMENT_DYNCREATE(TestForm, CFormView)
IMPLEMENT_DYNCREATE(OpenEditView, CEditView)

BEGIN_MESSAGE_MAP(TestForm, CFormView)
    ON_BN_CLICKED(IDC_FORM_BUTTON, &TestForm::OnPress)
END_MESSAGE_MAP()

class Views : public frames::FramesTest
{
protected:
    template <class View> View * Open()
    {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(View);
        auto * const frame = new CMDIChildWndEx;
        if (!frame->Create(nullptr, L"View", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300),
                           nullptr, &context))
            return nullptr;
        frame->InitialUpdateFrame(nullptr, TRUE);
        return static_cast<View *>(frame->GetActiveView());
    }
};
} // namespace

TEST_F(Views, ScrollOverTheirWholeSize)
{
    auto * const view = Open<ScrollingView>();
    ASSERT_NE(view, nullptr);
    BOOL horizontal = FALSE;
    BOOL vertical = FALSE;
    view->CheckScrollBars(horizontal, vertical);
    EXPECT_TRUE(horizontal);
    EXPECT_TRUE(vertical);
    EXPECT_EQ(view->GetTotalSize(), CSize(1000, 2000));
    CRect client;
    view->GetClientRect(&client);
    view->SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(view->GetScrollPosition(), CPoint(0, 20));
    view->SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(view->GetScrollPosition(), CPoint(0, 220));
    view->SendMessage(WM_HSCROLL, SB_PAGERIGHT);
    EXPECT_EQ(view->GetScrollPosition(), CPoint(100, 220));
    view->SendMessage(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(view->GetScrollPosition().y, 2000 - client.Height());
    view->ScrollToPosition(CPoint(5000, 7));
    EXPECT_EQ(view->GetScrollPosition(), CPoint(1000 - client.Width(), 7));
    view->SendMessage(WM_VSCROLL, SB_TOP);
    EXPECT_FALSE(view->OnScrollBy(CSize(0, -5)));
    EXPECT_TRUE(view->OnScrollBy(CSize(0, 5), FALSE)); // it could
    EXPECT_EQ(view->GetScrollPosition().y, 0);
    // What all fits has no bars.
    view->SetScrollSizes(MM_TEXT, CSize(10, 10));
    view->CheckScrollBars(horizontal, vertical);
    EXPECT_FALSE(horizontal);
    EXPECT_FALSE(vertical);
    EXPECT_EQ(view->GetScrollPosition(), CPoint(0, 0));
}

TEST_F(Views, FormsShowTheirTemplatesControls)
{
    auto * const form = Open<TestForm>();
    ASSERT_NE(form, nullptr);
    EXPECT_TRUE(form->IsInitDlgCompleted());
    CString text;
    form->GetDlgItemText(IDC_FORM_NAME, text);
    EXPECT_EQ(text, L"from the member");
    form->SetDlgItemText(IDC_FORM_NAME, L"typed");
    EXPECT_TRUE(form->UpdateData(TRUE));
    EXPECT_EQ(form->m_name, L"typed");
    form->GetDlgItem(IDC_FORM_BUTTON)->SendMessage(BM_CLICK);
    EXPECT_EQ(form->m_pressed, 1);
    CRect client;
    form->GetParent()->GetClientRect(&client);
    CRect place;
    form->GetWindowRect(&place);
    EXPECT_EQ(place.Size(), client.Size());
}

TEST_F(Views, EditFieldsAreSearched)
{
    auto * const edit = Open<OpenEditView>();
    ASSERT_NE(edit, nullptr);
    edit->SetWindowText(L"one two One two");
    EXPECT_EQ(edit->GetBufferLength(), 15u);
    EXPECT_STREQ(edit->LockBuffer(), L"one two One two");
    edit->UnlockBuffer();
    edit->GetEditCtrl().SetSel(0, 0);
    EXPECT_TRUE(edit->FindText(L"two"));
    CString selected;
    edit->GetSelectedText(selected);
    EXPECT_EQ(selected, L"two");
    EXPECT_TRUE(edit->FindText(L"two"));
    int start = 0;
    int end = 0;
    edit->GetEditCtrl().GetSel(start, end);
    EXPECT_EQ(start, 12);
    EXPECT_FALSE(edit->FindText(L"two"));
    EXPECT_TRUE(edit->FindText(L"two", FALSE));
    edit->GetEditCtrl().GetSel(start, end);
    EXPECT_EQ(start, 4);
    EXPECT_FALSE(edit->FindText(L"ONE", FALSE, TRUE));
    EXPECT_TRUE(edit->FindText(L"ONE", FALSE, FALSE));
    edit->OnReplaceAll(L"one", L"one one", FALSE);
    edit->GetWindowText(selected);
    EXPECT_EQ(selected, L"one one two one one two");
}

TEST_F(Views, ListsAndTreesHaveTheirControl)
{
    auto * const list = Open<CListView>();
    ASSERT_NE(list, nullptr);
    CListCtrl & control = list->GetListCtrl();
    EXPECT_EQ(control.m_hWnd, list->m_hWnd);
    EXPECT_EQ(control.InsertItem(0, L"item"), 0);
    EXPECT_EQ(control.GetItemCount(), 1);
    auto * const tree = Open<CTreeView>();
    ASSERT_NE(tree, nullptr);
    EXPECT_NE(tree->GetTreeCtrl().InsertItem(L"item"), nullptr);
    EXPECT_EQ(tree->GetTreeCtrl().GetCount(), 1u);
    EXPECT_EQ(CWnd::FromHandlePermanent(tree->m_hWnd), tree);
}
