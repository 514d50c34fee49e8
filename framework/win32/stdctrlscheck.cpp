// The list box with a check box in each row.

#include <afxwin.h>

#include <algorithm>
#include <memory>

#include "detail/ControlSupport.h"

IMPLEMENT_DYNAMIC(CCheckListBox, CListBox)

BEGIN_MESSAGE_MAP(CCheckListBox, CListBox)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_MESSAGE(WM_SETFONT, &CCheckListBox::OnSetFont)
    ON_MESSAGE(LB_ADDSTRING, &CCheckListBox::OnAddString)
    ON_MESSAGE(LB_INSERTSTRING, &CCheckListBox::OnInsertString)
    ON_MESSAGE(LB_GETITEMDATA, &CCheckListBox::OnGetItemData)
    ON_MESSAGE(LB_SETITEMDATA, &CCheckListBox::OnSetItemData)
END_MESSAGE_MAP()

// What the control keeps as a row's item data: the item data that its user sees, and the check.
struct CCheckListBox::Row
{
    DWORD_PTR data = 0;
    int check = BST_UNCHECKED;
    bool enabled = true;
};

namespace
{
constexpr int check_margin = 1;
constexpr int text_gap = 3;
} // namespace

CCheckListBox::CCheckListBox() = default;

CCheckListBox::~CCheckListBox()
{
    // The rows' records are freed by this object's own handlers, so the window has to end before them.
    DestroyWindow();
}

BOOL CCheckListBox::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    if ((dwStyle & LBS_OWNERDRAWVARIABLE) == 0)
        dwStyle |= LBS_OWNERDRAWFIXED;
    return CListBox::Create(dwStyle | LBS_HASSTRINGS, rect, pParentWnd, nID);
}

void CCheckListBox::PreSubclassWindow()
{
    CListBox::PreSubclassWindow();
    auto const count = static_cast<int>(::SendMessage(m_hWnd, LB_GETCOUNT, 0, 0));
    for (int index = 0; index < count; ++index)
    {
        auto const data = static_cast<DWORD_PTR>(::SendMessage(m_hWnd, LB_GETITEMDATA, index, 0));
        auto row = std::make_unique<Row>();
        row->data = data;
        ::SendMessage(m_hWnd, LB_SETITEMDATA, index, reinterpret_cast<LPARAM>(row.release()));
    }
}

CCheckListBox::Row * CCheckListBox::RowAt(int index) const
{
    auto * const self = const_cast<CCheckListBox *>(this);
    if (index < 0 || index >= GetCount())
        return nullptr;
    LRESULT const data = self->DefWindowProc(LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
    return data == LB_ERR ? nullptr : reinterpret_cast<Row *>(data);
}

void CCheckListBox::SetCheckStyle(UINT nStyle)
{
    ASSERT(nStyle == BS_CHECKBOX || nStyle == BS_AUTOCHECKBOX || nStyle == BS_3STATE || nStyle == BS_AUTO3STATE);
    m_checkStyle = nStyle;
}

UINT CCheckListBox::GetCheckStyle()
{
    return m_checkStyle;
}

void CCheckListBox::SetCheck(int nIndex, int nCheck)
{
    if (nCheck == BST_INDETERMINATE && (m_checkStyle == BS_CHECKBOX || m_checkStyle == BS_AUTOCHECKBOX))
        return;
    Row * const row = RowAt(nIndex);
    if (row == nullptr)
        return;
    row->check = nCheck;
    CRect const area = CheckRect(nIndex);
    InvalidateRect(area, FALSE);
}

int CCheckListBox::GetCheck(int nIndex)
{
    Row const * const row = RowAt(nIndex);
    return row != nullptr ? row->check : BST_UNCHECKED;
}

void CCheckListBox::Enable(int nIndex, BOOL bEnabled)
{
    Row * const row = RowAt(nIndex);
    if (row == nullptr)
        return;
    row->enabled = bEnabled != FALSE;
    CRect area;
    GetItemRect(nIndex, &area);
    InvalidateRect(area, FALSE);
}

BOOL CCheckListBox::IsEnabled(int nIndex)
{
    Row const * const row = RowAt(nIndex);
    return row == nullptr || row->enabled;
}

// Measuring and drawing

CSize CCheckListBox::CheckSize() const
{
    return CSize(::GetSystemMetrics(SM_CXMENUCHECK), ::GetSystemMetrics(SM_CYMENUCHECK));
}

CRect CCheckListBox::OnGetCheckPosition(CRect, CRect rectCheckBox)
{
    return rectCheckBox;
}

CRect CCheckListBox::CheckRect(int index)
{
    CRect item;
    GetItemRect(index, &item);
    CSize const size = CheckSize();
    CRect check = item;
    check.left += check_margin;
    check.right = check.left + size.cx;
    check.top += std::max(0L, (item.Height() - size.cy) / 2);
    check.bottom = check.top + size.cy;
    return OnGetCheckPosition(item, check);
}

void CCheckListBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (m_textHeight == 0)
    {
        CClientDC dc(this);
        CFont * const font = GetFont();
        CFont * const previous = font != nullptr ? dc.SelectObject(font) : nullptr;
        TEXTMETRIC metrics{};
        dc.GetTextMetrics(&metrics);
        if (previous != nullptr)
            dc.SelectObject(previous);
        m_textHeight = metrics.tmHeight;
    }
    int const check = CheckSize().cy + 2 * check_margin;
    lpMeasureItemStruct->itemHeight = static_cast<UINT>(std::max(m_textHeight, check));
}

void CCheckListBox::DrawRow(LPDRAWITEMSTRUCT item, Row const & row)
{
    CRect const check = CheckRect(static_cast<int>(item->itemID));
    DRAWITEMSTRUCT text = *item;
    text.itemData = row.data;
    // The text stands beside the check box, on the side that has the room.
    CRect const whole(item->rcItem);
    if (check.CenterPoint().x <= whole.CenterPoint().x)
        text.rcItem.left = std::max(text.rcItem.left, check.right + text_gap);
    else
        text.rcItem.right = std::min(text.rcItem.right, check.left - text_gap);
    if (!row.enabled)
        text.itemState |= ODS_DISABLED;

    CDC * const dc = CDC::FromHandle(item->hDC);
    CRect margin(whole);
    margin.right = text.rcItem.left;
    dc->FillSolidRect(margin, ::GetSysColor(COLOR_WINDOW));
    UINT state = DFCS_BUTTONCHECK;
    if (row.check == BST_INDETERMINATE)
        state = DFCS_BUTTON3STATE | DFCS_CHECKED;
    else if (row.check == BST_CHECKED)
        state |= DFCS_CHECKED;
    if (!row.enabled || !IsWindowEnabled())
        state |= DFCS_INACTIVE;
    CRect box = check;
    dc->DrawFrameControl(box, DFC_BUTTON, state);
    DrawItem(&text);
}

void CCheckListBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC * const dc = CDC::FromHandle(lpDrawItemStruct->hDC);
    CRect const area(lpDrawItemStruct->rcItem);
    UINT const state = lpDrawItemStruct->itemState;
    bool const usable = (state & ODS_DISABLED) == 0 && IsWindowEnabled();
    bool const selected = (state & ODS_SELECTED) != 0;
    int const textColor = !usable ? COLOR_GRAYTEXT : selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;

    CString text;
    GetText(static_cast<int>(lpDrawItemStruct->itemID), text);
    COLORREF const previousText = dc->SetTextColor(::GetSysColor(textColor));
    COLORREF const previousBack = dc->SetBkColor(::GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    int const top = area.top + std::max(0, (area.Height() - m_textHeight) / 2);
    dc->ExtTextOut(area.left, top, ETO_OPAQUE | ETO_CLIPPED, area, text, nullptr);
    dc->SetTextColor(previousText);
    dc->SetBkColor(previousBack);
    if ((state & ODS_FOCUS) != 0 && (state & ODS_NOFOCUSRECT) == 0)
        dc->DrawFocusRect(area);
}

BOOL CCheckListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    switch (message)
    {
    case WM_DRAWITEM: {
        auto * const item = reinterpret_cast<LPDRAWITEMSTRUCT>(lParam);
        // An empty list's focus is drawn with no row.
        if (Row const * const row = RowAt(static_cast<int>(item->itemID)))
            DrawRow(item, *row);
        return TRUE;
    }
    case WM_DELETEITEM: {
        DELETEITEMSTRUCT item = *reinterpret_cast<LPDELETEITEMSTRUCT>(lParam);
        std::unique_ptr<Row> const row(reinterpret_cast<Row *>(item.itemData));
        if (row != nullptr)
        {
            item.itemData = row->data;
            DeleteItem(&item);
        }
        return TRUE;
    }
    case WM_COMPAREITEM: {
        COMPAREITEMSTRUCT items = *reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam);
        auto const dataOf = [](ULONG_PTR value) { return value != 0 ? reinterpret_cast<Row *>(value)->data : 0; };
        items.itemData1 = dataOf(items.itemData1);
        items.itemData2 = dataOf(items.itemData2);
        int const order = CompareItem(&items);
        if (pResult != nullptr)
            *pResult = order;
        return TRUE;
    }
    default:
        return CListBox::OnChildNotify(message, wParam, lParam, pResult);
    }
}

// Rows

int CCheckListBox::Added(LRESULT index, DWORD_PTR data)
{
    if (index < 0)
        return static_cast<int>(index);
    auto row = std::make_unique<Row>();
    row->data = data;
    DefWindowProc(LB_SETITEMDATA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(row.release()));
    return static_cast<int>(index);
}

LRESULT CCheckListBox::OnAddString(WPARAM wParam, LPARAM lParam)
{
    return Added(DefWindowProc(LB_ADDSTRING, wParam, lParam), 0);
}

LRESULT CCheckListBox::OnInsertString(WPARAM wParam, LPARAM lParam)
{
    return Added(DefWindowProc(LB_INSERTSTRING, wParam, lParam), 0);
}

LRESULT CCheckListBox::OnGetItemData(WPARAM wParam, LPARAM)
{
    Row const * const row = RowAt(static_cast<int>(wParam));
    return row != nullptr ? static_cast<LRESULT>(row->data) : LB_ERR;
}

LRESULT CCheckListBox::OnSetItemData(WPARAM wParam, LPARAM lParam)
{
    Row * const row = RowAt(static_cast<int>(wParam));
    if (row == nullptr)
        return LB_ERR;
    row->data = static_cast<DWORD_PTR>(lParam);
    return TRUE;
}

LRESULT CCheckListBox::OnSetFont(WPARAM, LPARAM)
{
    LRESULT const result = Default();
    m_textHeight = 0;
    if ((GetStyle() & LBS_OWNERDRAWFIXED) != 0)
    {
        MEASUREITEMSTRUCT item{};
        item.CtlType = ODT_LISTBOX;
        MeasureItem(&item);
        SetItemHeight(0, item.itemHeight);
    }
    return result;
}

// Input

void CCheckListBox::Notify()
{
    if (CWnd * const parent = GetParent())
        parent->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), CLBN_CHKCHANGE), reinterpret_cast<LPARAM>(m_hWnd));
}

void CCheckListBox::ToggleSelected(int index)
{
    Row const * const row = RowAt(index);
    if (row == nullptr || !row->enabled)
        return;
    if (m_checkStyle != BS_AUTOCHECKBOX && m_checkStyle != BS_AUTO3STATE)
        return;
    int const states = m_checkStyle == BS_AUTO3STATE ? 3 : 2;
    int const check = (row->check + 1) % states;
    bool const several = (GetStyle() & (LBS_EXTENDEDSEL | LBS_MULTIPLESEL)) != 0;
    if (several && GetSel(index) > 0)
    {
        for (int other = 0, count = GetCount(); other < count; ++other)
        {
            if (GetSel(other) > 0 && IsEnabled(other))
                SetCheck(other, check);
        }
    }
    SetCheck(index, check);
    Notify();
}

void CCheckListBox::OnLButtonDown(UINT nFlags, CPoint point)
{
    BOOL outside = TRUE;
    int const index = static_cast<int>(ItemFromPoint(point, outside));
    bool const onCheck = !outside && index < GetCount() && CheckRect(index).PtInRect(point);
    bool const selected = onCheck && GetSel(index) > 0 && (GetStyle() & LBS_EXTENDEDSEL) != 0;
    // A click on the check box of one of several selected rows keeps the selection.
    if (selected)
        SetFocus();
    else
        CListBox::OnLButtonDown(nFlags, point);
    if (onCheck)
        ToggleSelected(index);
}

void CCheckListBox::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    BOOL outside = TRUE;
    int const index = static_cast<int>(ItemFromPoint(point, outside));
    if (!outside && index < GetCount() && CheckRect(index).PtInRect(point))
        OnLButtonDown(nFlags, point);
    else
        CListBox::OnLButtonDblClk(nFlags, point);
}

void CCheckListBox::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_SPACE)
    {
        int const index = GetCaretIndex();
        if (index != LB_ERR)
            ToggleSelected(index);
    }
    else
        CListBox::OnKeyDown(nChar, nRepCnt, nFlags);
}
