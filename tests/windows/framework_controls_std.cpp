// Static control, button, edit control, scroll bar and the button with pictures.

#include <afxcmn.h>
#include <afxext.h>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "resource.h"
#include "ScopedWindow.h"

namespace
{
constexpr UINT control_id = 7;
CRect const place(10, 10, 110, 40);

// A parent that counts the notifications and drawing requests that no control took.
class Parent : public tests::ScopedWindow
{
public:
    int m_drawn = 0;
    int m_clicked = 0;

protected:
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item)
    {
        ++m_drawn;
        CWnd::OnDrawItem(id, item);
    }
    afx_msg void OnClicked() { ++m_clicked; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Parent, tests::ScopedWindow)
    ON_WM_DRAWITEM()
    ON_BN_CLICKED(control_id, &Parent::OnClicked)
END_MESSAGE_MAP()

// Keeps what its DrawItem was given.
template <class Control> class Drawn : public Control
{
public:
    int m_drawn = 0;
    UINT m_id = 0;
    UINT m_type = 0;

    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        ++m_drawn;
        m_id = item->CtlID;
        m_type = item->CtlType;
    }
};

class ReflectingButton : public CButton
{
public:
    int m_clicked = 0;
    bool m_keep = true;

protected:
    afx_msg BOOL OnClicked()
    {
        ++m_clicked;
        return m_keep;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ReflectingButton, CButton)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &ReflectingButton::OnClicked)
END_MESSAGE_MAP()

HBITMAP MakeBitmap(int width, int height)
{
    HDC const screen = ::GetDC(nullptr);
    HBITMAP const bitmap = ::CreateCompatibleBitmap(screen, width, height);
    ::ReleaseDC(nullptr, screen);
    return bitmap;
}

TEST(FrameworkControlsStd, RunTimeClassesNameTheirBases)
{
    EXPECT_TRUE(RUNTIME_CLASS(CStatic)->IsDerivedFrom(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(RUNTIME_CLASS(CBitmapButton)->IsDerivedFrom(RUNTIME_CLASS(CButton)));
    EXPECT_TRUE(RUNTIME_CLASS(CCheckListBox)->IsDerivedFrom(RUNTIME_CLASS(CListBox)));
    EXPECT_TRUE(RUNTIME_CLASS(CComboBoxEx)->IsDerivedFrom(RUNTIME_CLASS(CComboBox)));
    EXPECT_FALSE(RUNTIME_CLASS(CListCtrl)->IsDerivedFrom(RUNTIME_CLASS(CListBox)));
}

TEST(FrameworkControlsStd, StaticKeepsTextAndId)
{
    tests::ScopedWindow parent;
    CStatic label;
    ASSERT_TRUE(label.Create(L"Level", WS_CHILD | WS_VISIBLE, place, parent, control_id));
    CString text;
    label.GetWindowText(text);
    EXPECT_EQ(text, L"Level");
    EXPECT_EQ(label.GetDlgCtrlID(), static_cast<int>(control_id));
    EXPECT_EQ(CWnd::FromHandlePermanent(label), &label);
}

TEST(FrameworkControlsStd, StaticKeepsPictures)
{
    tests::ScopedWindow parent;
    CStatic icon;
    ASSERT_TRUE(icon.Create(nullptr, WS_CHILD | SS_ICON, place, parent));
    HICON const warning = ::LoadIcon(nullptr, IDI_WARNING);
    EXPECT_EQ(icon.SetIcon(warning), nullptr);
    EXPECT_EQ(icon.GetIcon(), warning);
    EXPECT_EQ(icon.SetIcon(nullptr), warning);
    HCURSOR const arrow = ::LoadCursor(nullptr, IDC_ARROW);
    icon.SetCursor(arrow);
    EXPECT_EQ(icon.GetCursor(), arrow);

    CStatic picture;
    ASSERT_TRUE(picture.Create(nullptr, WS_CHILD | SS_BITMAP, place, parent));
    HBITMAP const bitmap = MakeBitmap(4, 4);
    EXPECT_EQ(picture.SetBitmap(bitmap), nullptr);
    EXPECT_EQ(picture.GetBitmap(), bitmap);
    picture.SetBitmap(nullptr);
    ::DeleteObject(bitmap);
}

TEST(FrameworkControlsStd, OwnerDrawnStaticDrawsItself)
{
    Parent parent;
    Drawn<CStatic> label;
    ASSERT_TRUE(label.Create(L"x", WS_CHILD | WS_VISIBLE | SS_OWNERDRAW, place, parent, control_id));
    label.Invalidate();
    label.UpdateWindow();
    EXPECT_GE(label.m_drawn, 1);
    EXPECT_EQ(label.m_id, control_id);
    EXPECT_EQ(label.m_type, static_cast<UINT>(ODT_STATIC));
}

TEST(FrameworkControlsStd, OwnerDrawnButtonDrawsItselfOnceItsParentPassesItOn)
{
    Parent parent;
    Drawn<CButton> button;
    ASSERT_TRUE(button.Create(L"x", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, place, parent, control_id));
    parent.m_drawn = 0;
    button.m_drawn = 0;
    button.Invalidate();
    button.UpdateWindow();
    EXPECT_GE(button.m_drawn, 1);
    EXPECT_EQ(button.m_drawn, parent.m_drawn);
    EXPECT_EQ(button.m_type, static_cast<UINT>(ODT_BUTTON));
}

TEST(FrameworkControlsStd, OwnerDrawnButtonWithoutAnOverrideDrawsNothing)
{
    Parent parent;
    CButton button;
    ASSERT_TRUE(button.Create(L"x", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, place, parent, control_id));
    parent.m_drawn = 0;
    button.Invalidate();
    button.UpdateWindow();
    EXPECT_GE(parent.m_drawn, 1);
}

TEST(FrameworkControlsStd, ButtonStateRoundTrips)
{
    tests::ScopedWindow parent;
    CButton button;
    ASSERT_TRUE(button.Create(L"Loop", WS_CHILD | WS_VISIBLE | BS_AUTO3STATE, place, parent, control_id));
    EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
    for (int const check : {BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED})
    {
        button.SetCheck(check);
        EXPECT_EQ(button.GetCheck(), check);
    }
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTO3STATE));
    button.SetButtonStyle(BS_AUTOCHECKBOX);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTOCHECKBOX));
    EXPECT_EQ(button.GetState() & BST_PUSHED, 0U);
    button.SetState(TRUE);
    EXPECT_NE(button.GetState() & BST_PUSHED, 0U);
    button.SetState(FALSE);
    EXPECT_EQ(button.GetState() & BST_PUSHED, 0U);
}

TEST(FrameworkControlsStd, ButtonKeepsPictures)
{
    tests::ScopedWindow parent;
    CButton button;
    ASSERT_TRUE(button.Create(L"x", WS_CHILD | BS_BITMAP, place, parent, control_id));
    HBITMAP const bitmap = MakeBitmap(4, 4);
    EXPECT_EQ(button.SetBitmap(bitmap), nullptr);
    EXPECT_EQ(button.GetBitmap(), bitmap);
    EXPECT_EQ(button.SetBitmap(nullptr), bitmap);
    ::DeleteObject(bitmap);
    CButton iconButton;
    ASSERT_TRUE(iconButton.Create(L"x", WS_CHILD | BS_ICON, place, parent, control_id + 1));
    HICON const warning = ::LoadIcon(nullptr, IDI_WARNING);
    EXPECT_EQ(iconButton.SetIcon(warning), nullptr);
    EXPECT_EQ(iconButton.GetIcon(), warning);
}

TEST(FrameworkControlsStd, ButtonKeepsMarginsAndSplitInfo)
{
    tests::ScopedWindow parent;
    CButton button;
    ASSERT_TRUE(button.Create(L"Split", WS_CHILD | WS_VISIBLE | BS_SPLITBUTTON, place, parent, control_id));
    RECT margin{1, 2, 3, 4};
    ASSERT_TRUE(button.SetTextMargin(&margin));
    RECT read{};
    ASSERT_TRUE(button.GetTextMargin(&read));
    EXPECT_EQ(CRect(read), CRect(1, 2, 3, 4));
    ASSERT_TRUE(button.SetSplitStyle(BCSS_NOSPLIT | BCSS_ALIGNLEFT));
    EXPECT_EQ(button.GetSplitStyle(), static_cast<UINT>(BCSS_NOSPLIT | BCSS_ALIGNLEFT));
    SIZE size{11, 12};
    ASSERT_TRUE(button.SetSplitSize(&size));
    SIZE readSize{};
    ASSERT_TRUE(button.GetSplitSize(&readSize));
    EXPECT_EQ(readSize.cx, 11);
    EXPECT_EQ(readSize.cy, 12);
    ASSERT_TRUE(button.SetSplitGlyph(L'v'));
    EXPECT_EQ(button.GetSplitGlyph(), L'v');
    SIZE ideal{};
    ASSERT_TRUE(button.GetIdealSize(&ideal));
    EXPECT_GT(ideal.cx, 0);
    EXPECT_GT(ideal.cy, 0);
}

TEST(FrameworkControlsStd, ButtonKeepsNote)
{
    tests::ScopedWindow parent;
    CButton link;
    ASSERT_TRUE(link.Create(L"Export", WS_CHILD | WS_VISIBLE | BS_COMMANDLINK, place, parent, control_id));
    ASSERT_TRUE(link.SetNote(L"as WAV"));
    EXPECT_EQ(link.GetNoteLength(), 6U);
    EXPECT_EQ(link.GetNote(), L"as WAV");
    wchar_t note[16]{};
    UINT room = 16;
    EXPECT_TRUE(link.GetNote(note, &room));
    EXPECT_STREQ(note, L"as WAV");
}

TEST(FrameworkControlsStd, ReflectedClickReachesTheButtonBeforeTheParent)
{
    Parent parent;
    ReflectingButton button;
    ASSERT_TRUE(button.Create(L"x", WS_CHILD | WS_VISIBLE, place, parent, control_id));
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(button.m_clicked, 1);
    EXPECT_EQ(parent.m_clicked, 0);
    button.m_keep = false;
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(button.m_clicked, 2);
    EXPECT_EQ(parent.m_clicked, 1);
}

class EditTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_edit.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE | ES_AUTOVSCROLL, CRect(0, 0, 300, 100), m_host,
                                  control_id));
        m_edit.SetWindowText(L"first\r\nsecond line\r\nthird");
    }

    tests::ScopedWindow m_host;
    CEdit m_edit;
};

TEST_F(EditTest, LinesAndCharactersAreFound)
{
    EXPECT_EQ(m_edit.GetLineCount(), 3);
    EXPECT_EQ(m_edit.LineIndex(1), 7);
    EXPECT_EQ(m_edit.LineFromChar(8), 1);
    EXPECT_EQ(m_edit.LineLength(7), 11);
    EXPECT_EQ(m_edit.LineIndex(99), -1);
    EXPECT_EQ(m_edit.GetFirstVisibleLine(), 0);
    CPoint const second = m_edit.PosFromChar(7);
    EXPECT_GT(second.y, m_edit.PosFromChar(0).y);
    int const found = m_edit.CharFromPos(second + CSize(1, 1));
    EXPECT_EQ(LOWORD(found), 7);
    EXPECT_EQ(HIWORD(found), 1);
}

TEST_F(EditTest, GetLineFillsTheBufferWithoutEndingIt)
{
    wchar_t buffer[32];
    std::fill(std::begin(buffer), std::end(buffer), L'#');
    ASSERT_EQ(m_edit.GetLine(1, buffer, 6), 6);
    EXPECT_EQ(std::wstring(buffer, 7), L"second#");
    std::fill(std::begin(buffer), std::end(buffer), L'#');
    EXPECT_EQ(m_edit.GetLine(9, buffer, 6), 0);
}

TEST_F(EditTest, SelectionIsPackedAndUnpacked)
{
    m_edit.SetSel(2, 9);
    int start = 0;
    int end = 0;
    m_edit.GetSel(start, end);
    EXPECT_EQ(start, 2);
    EXPECT_EQ(end, 9);
    EXPECT_EQ(m_edit.GetSel(), static_cast<DWORD>(MAKELONG(2, 9)));
    m_edit.SetSel(MAKELONG(1, 3));
    EXPECT_EQ(m_edit.GetSel(), static_cast<DWORD>(MAKELONG(1, 3)));
    m_edit.SetSel(MAKELONG(0, 0xFFFF));
    EXPECT_EQ(m_edit.GetSel(), static_cast<DWORD>(MAKELONG(0, m_edit.GetWindowTextLength())));
    m_edit.SetSel(MAKELONG(0xFFFF, 0));
    m_edit.GetSel(start, end);
    EXPECT_EQ(start, end);
}

TEST_F(EditTest, ReplacedTextCanBeUndone)
{
    m_edit.SetModify(FALSE);
    m_edit.SetSel(0, 5);
    m_edit.ReplaceSel(L"1st", TRUE);
    CString text;
    m_edit.GetWindowText(text);
    EXPECT_EQ(text.Left(5), L"1st\r\n");
    EXPECT_TRUE(m_edit.GetModify());
    ASSERT_TRUE(m_edit.CanUndo());
    EXPECT_TRUE(m_edit.Undo());
    m_edit.GetWindowText(text);
    EXPECT_EQ(text.Left(5), L"first");
    m_edit.EmptyUndoBuffer();
    EXPECT_FALSE(m_edit.CanUndo());
}

TEST_F(EditTest, LimitsMarginsAndRectanglesRoundTrip)
{
    m_edit.SetLimitText(40);
    EXPECT_EQ(m_edit.GetLimitText(), 40U);
    CRect const wanted(10, 8, 200, 60);
    m_edit.SetRect(wanted);
    CRect area;
    m_edit.GetRect(area);
    EXPECT_EQ(area.left, wanted.left);
    EXPECT_EQ(area.top, wanted.top);
    m_edit.SetMargins(3, 5);
    EXPECT_EQ(m_edit.GetMargins(), static_cast<DWORD>(MAKELONG(3, 5)));
    EXPECT_TRUE(m_edit.SetTabStops(20));
    int stops[]{8, 16};
    EXPECT_TRUE(m_edit.SetTabStops(2, stops));
    EXPECT_TRUE(m_edit.SetReadOnly());
    EXPECT_NE(m_edit.GetStyle() & ES_READONLY, 0U);
}

TEST(FrameworkControlsStd, SingleLineEditKeepsPasswordAndCueBanner)
{
    tests::ScopedWindow parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | ES_PASSWORD, place, parent, control_id));
    edit.SetPasswordChar(L'?');
    EXPECT_EQ(edit.GetPasswordChar(), L'?');
    CEdit search;
    ASSERT_TRUE(search.Create(WS_CHILD | WS_VISIBLE, place, parent, control_id + 1));
    EXPECT_EQ(search.GetCueBanner(), L"");
    ASSERT_TRUE(search.SetCueBanner(L"Search"));
    EXPECT_EQ(search.GetCueBanner(), L"Search");
    wchar_t few[4]{};
    EXPECT_TRUE(search.GetCueBanner(few, 4));
    EXPECT_STREQ(few, L"Sea");
}

TEST(FrameworkControlsStd, ScrollBarKeepsRangePageAndPosition)
{
    tests::ScopedWindow parent;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, place, parent, control_id));
    bar.SetScrollRange(5, 105);
    int lowest = 0;
    int highest = 0;
    bar.GetScrollRange(&lowest, &highest);
    EXPECT_EQ(lowest, 5);
    EXPECT_EQ(highest, 105);
    bar.SetScrollPos(30);
    EXPECT_EQ(bar.SetScrollPos(40), 30);
    EXPECT_EQ(bar.GetScrollPos(), 40);
    SCROLLINFO info{};
    info.fMask = SIF_PAGE;
    info.nPage = 11;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    SCROLLINFO read{};
    ASSERT_TRUE(bar.GetScrollInfo(&read));
    EXPECT_EQ(read.nPage, 11U);
    EXPECT_EQ(read.nPos, 40);
    EXPECT_EQ(bar.GetScrollLimit(), 95);
    SCROLLBARINFO state{};
    EXPECT_TRUE(bar.GetScrollBarInfo(&state));
    EXPECT_GT(state.dxyLineButton, 0);
    EXPECT_TRUE(bar.EnableScrollBar(ESB_DISABLE_BOTH));
    bar.ShowScrollBar(FALSE);
    EXPECT_FALSE(bar.IsWindowVisible());
}

class PaintedButton : public CBitmapButton
{
public:
    using CBitmapButton::DrawItem;
};

TEST(FrameworkControlsStd, BitmapButtonTakesSizeAndPictureFromItsResource)
{
    tests::ScopedWindow parent;
    PaintedButton button;
    ASSERT_TRUE(button.Create(L"x", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, place, parent, control_id));
    EXPECT_FALSE(button.LoadBitmaps(UINT{1}));
    EXPECT_FALSE(button.LoadBitmaps(IDB_BACKGROUND, 1U)) << "the picture of the pressed button is missing";
    ASSERT_TRUE(button.LoadBitmaps(IDB_BACKGROUND));
    button.SizeToContent();
    CRect area;
    button.GetClientRect(area);
    EXPECT_EQ(area.Size(), CSize(4, 2));
    tests::Canvas canvas(8, 8);
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_BUTTON;
    item.hDC = canvas.Dc();
    item.rcItem = area;
    button.DrawItem(&item);
    EXPECT_EQ(::GetPixel(canvas.Dc(), 1, 0), RGB(0, 0, 255));
    EXPECT_EQ(::GetPixel(canvas.Dc(), 1, 1), RGB(255, 0, 0));
}

TEST(FrameworkControlsStd, SubclassedControlAnswersThroughItsObject)
{
    tests::ScopedWindow parent;
    HWND const plain = ::CreateWindow(L"EDIT", L"text", WS_CHILD | WS_VISIBLE, 0, 0, 80, 20, parent.m_hWnd,
                                      reinterpret_cast<HMENU>(static_cast<UINT_PTR>(control_id)), nullptr, nullptr);
    CEdit edit;
    ASSERT_TRUE(edit.SubclassDlgItem(control_id, parent));
    EXPECT_EQ(edit.m_hWnd, plain);
    edit.SetSel(1, 3);
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKELONG(1, 3)));
    EXPECT_EQ(edit.UnsubclassWindow(), plain);
    EXPECT_EQ(edit.m_hWnd, nullptr);
    EXPECT_TRUE(::IsWindow(plain));
}

TEST(FrameworkControlsStd, ControlEndsItsWindowWithItself)
{
    tests::ScopedWindow parent;
    HWND handle = nullptr;
    {
        CButton button;
        ASSERT_TRUE(button.Create(L"x", WS_CHILD, place, parent, control_id));
        handle = button;
    }
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(FrameworkControlsStd, CreationWithoutParentFails)
{
    CButton button;
    EXPECT_FALSE(button.Create(L"x", WS_CHILD, place, nullptr, control_id));
    EXPECT_EQ(button.m_hWnd, nullptr);
}
} // namespace
