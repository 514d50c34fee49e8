// CMFCToolBarButton, CMFCToolBarMenuButton: what buttons of bars and items of menus look like and do.

#include "afxpopupmenu.h"
#include "afxtoolbar.h"

#include <algorithm>

#include "detail/BarLooks.h"
#include "detail/FrameSupport.h"
#include "detail/MenuMode.h"

using framework::DrawMark;
using framework::LabelExtent;
using framework::Mark;
using framework::Scaled;
using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CMFCToolBarButton, CObject)
IMPLEMENT_DYNCREATE(CMFCToolBarMenuButton, CMFCToolBarButton)

namespace
{
constexpr int label_gap = 4;    // between picture and text
constexpr int label_margin = 4; // at the sides of a text
constexpr int arrow_width = 12;
constexpr int item_margin = 4; // of an item of a menu, at its sides
constexpr int item_height_beyond_text = 6;

CMFCToolBar * BarOf(CWnd * window)
{
    return DYNAMIC_DOWNCAST(CMFCToolBar, window);
}

/// A menu with the same items, and menus below it that are copies as well.
HMENU Copy(HMENU menu)
{
    if (menu == nullptr || !::IsMenu(menu))
        return nullptr;
    HMENU const copy = ::CreatePopupMenu();
    int const count = ::GetMenuItemCount(menu);
    for (int at = 0; at < count; ++at)
    {
        wchar_t text[1024] = {};
        MENUITEMINFO info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STATE | MIIM_STRING | MIIM_SUBMENU | MIIM_DATA;
        info.dwTypeData = text;
        info.cch = static_cast<UINT>(std::size(text));
        if (!::GetMenuItemInfo(menu, static_cast<UINT>(at), TRUE, &info))
            continue;
        info.hSubMenu = Copy(info.hSubMenu);
        ::InsertMenuItem(copy, static_cast<UINT>(::GetMenuItemCount(copy)), TRUE, &info);
    }
    return copy;
}

CString LabelPart(CString const & text)
{
    int const tab = text.Find(L'\t');
    return tab >= 0 ? text.Left(tab) : text;
}

CString ShortcutPart(CString const & text)
{
    int const tab = text.Find(L'\t');
    return tab >= 0 ? text.Mid(tab + 1) : CString();
}

void FillButton(CDC & dc, CRect const & rect, COLORREF colour)
{
    dc.FillSolidRect(&rect, ::GetSysColor(COLOR_HIGHLIGHT));
    CRect inner(rect);
    inner.DeflateRect(1, 1);
    dc.FillSolidRect(&inner, colour);
}
} // namespace

CMFCToolBarButton::CMFCToolBarButton() : CMFCToolBarButton(0, -1) {}

CMFCToolBarButton::CMFCToolBarButton(UINT uiID, int iImage, LPCTSTR lpszText, BOOL bUserButton, BOOL bLocked)
    : m_nID(uiID),
      m_nStyle(TBBS_BUTTON),
      m_bText(FALSE),
      m_bImage(TRUE),
      m_bUserButton(bUserButton),
      m_bTextBelow(FALSE),
      m_bWholeText(TRUE),
      m_bWrap(FALSE),
      m_strText(lpszText),
      m_iImage(iImage),
      m_pWndParent(nullptr),
      m_rect(0, 0, 0, 0),
      m_sizeText{0, 0},
      m_visible(true),
      m_locked(bLocked != FALSE)
{
    if (iImage < 0 && lpszText != nullptr)
    {
        m_bImage = FALSE;
        m_bText = TRUE;
    }
}

CMFCToolBarButton::~CMFCToolBarButton() = default;

void CMFCToolBarButton::CopyFrom(const CMFCToolBarButton & src)
{
    m_nID = src.m_nID;
    m_nStyle = src.m_nStyle;
    m_bText = src.m_bText;
    m_bImage = src.m_bImage;
    m_bUserButton = src.m_bUserButton;
    m_bTextBelow = src.m_bTextBelow;
    m_bWholeText = src.m_bWholeText;
    m_bWrap = src.m_bWrap;
    m_strText = src.m_strText;
    m_iImage = src.m_iImage;
    m_visible = src.m_visible;
    m_locked = src.m_locked;
}

BOOL CMFCToolBarButton::CompareWith(const CMFCToolBarButton & other) const
{
    return m_nID == other.m_nID;
}

int CMFCToolBarButton::GetImage() const
{
    return m_iImage;
}

void CMFCToolBarButton::SetImage(int iImage)
{
    m_iImage = iImage;
}

void CMFCToolBarButton::SetStyle(UINT nStyle)
{
    m_nStyle = nStyle;
}

void CMFCToolBarButton::SetRadio() {}

BOOL CMFCToolBarButton::IsDrawImage() const
{
    return m_bImage && m_iImage >= 0;
}

BOOL CMFCToolBarButton::IsDrawText() const
{
    return (m_bText || !IsDrawImage()) && !m_strText.IsEmpty();
}

BOOL CMFCToolBarButton::IsVisible() const
{
    return m_visible;
}

void CMFCToolBarButton::SetVisible(BOOL bShow)
{
    m_visible = bShow != FALSE;
}

BOOL CMFCToolBarButton::IsHidden() const
{
    return !m_visible || (m_nStyle & TBBS_HIDDEN) != 0;
}

void CMFCToolBarButton::Show(BOOL bShow)
{
    if (m_visible == (bShow != FALSE))
        return;
    m_visible = bShow != FALSE;
    OnShow(bShow);
}

BOOL CMFCToolBarButton::IsLocked() const
{
    return m_locked;
}

BOOL CMFCToolBarButton::IsHorizontal() const
{
    CMFCToolBar const * const bar = BarOf(m_pWndParent);
    return bar == nullptr || bar->IsHorizontal();
}

SIZE CMFCToolBarButton::GetTextSize() const
{
    return m_sizeText;
}

CWnd * CMFCToolBarButton::GetParentWnd() const
{
    return m_pWndParent;
}

const CRect & CMFCToolBarButton::Rect() const
{
    return m_rect;
}

void CMFCToolBarButton::SetRect(const CRect rect)
{
    m_rect = rect;
    OnMove();
}

const CRect CMFCToolBarButton::GetInvalidateRect() const
{
    return m_rect;
}

BOOL CMFCToolBarButton::HasFocus() const
{
    return FALSE;
}

BOOL CMFCToolBarButton::IsDroppedDown() const
{
    return FALSE;
}

BOOL CMFCToolBarButton::IsEditable() const
{
    return TRUE;
}

BOOL CMFCToolBarButton::IsExtraSize() const
{
    return FALSE;
}

BOOL CMFCToolBarButton::CanBeStretched() const
{
    return FALSE;
}

BOOL CMFCToolBarButton::CanBeStored() const
{
    return TRUE;
}

BOOL CMFCToolBarButton::CanBeDropped(CMFCToolBar *)
{
    return TRUE;
}

HWND CMFCToolBarButton::GetHwnd()
{
    return nullptr;
}

BOOL CMFCToolBarButton::ExportToMenuButton(CMFCToolBarMenuButton &) const
{
    return TRUE;
}

BOOL CMFCToolBarButton::OnClick(CWnd *, BOOL)
{
    return FALSE;
}

BOOL CMFCToolBarButton::OnClickUp()
{
    return FALSE;
}

void CMFCToolBarButton::OnDblClk(CWnd *) {}

void CMFCToolBarButton::OnCancelMode() {}

void CMFCToolBarButton::OnChangeParentWnd(CWnd * pWndParent)
{
    m_pWndParent = pWndParent;
}

void CMFCToolBarButton::OnMove() {}

void CMFCToolBarButton::OnShow(BOOL) {}

void CMFCToolBarButton::OnSize(int iSize)
{
    m_rect.right = m_rect.left + iSize;
}

BOOL CMFCToolBarButton::OnGetCustomToolTipText(CString &)
{
    return FALSE;
}

SIZE CMFCToolBarButton::OnCalculateSize(CDC * pDC, const CSize & sizeDefault, BOOL bHorz)
{
    m_sizeText = SIZE{0, 0};
    if (!IsDrawText() || !bHorz)
        return sizeDefault; // texts don't stand in columns
    m_sizeText = LabelExtent(*pDC, m_strText);
    CSize size(m_sizeText);
    size.cx += 2 * Scaled(label_margin);
    if (!IsDrawImage())
        return CSize(std::max(size.cx, sizeDefault.cx), sizeDefault.cy);
    if (m_bTextBelow)
        return CSize(std::max(size.cx, sizeDefault.cx), sizeDefault.cy + size.cy);
    return CSize(sizeDefault.cx + size.cx - Scaled(label_margin - label_gap), sizeDefault.cy);
}

void CMFCToolBarButton::OnDraw(CDC * pDC, const CRect & rect, CMFCToolBarImages * pImages, BOOL bHorz, BOOL,
                               BOOL bHighlight, BOOL bDrawBorder, BOOL bGrayDisabledButtons)
{
    bool const disabled = (m_nStyle & TBBS_DISABLED) != 0;
    bool const pressed = (m_nStyle & TBBS_PRESSED) != 0 && !disabled;
    bool const checked = (m_nStyle & (TBBS_CHECKED | TBBS_INDETERMINATE)) != 0;
    if (bDrawBorder && (pressed || (checked && bHighlight)))
        FillButton(*pDC, rect, framework::PressedColour());
    else if (bDrawBorder && (checked || (bHighlight && !disabled)))
        FillButton(*pDC, rect, framework::HotColour());
    bool const text = IsDrawText() && bHorz;
    bool const image = IsDrawImage() && pImages != nullptr;
    CRect place(rect);
    if (image)
    {
        CSize const size = pImages->GetImageSize(TRUE);
        CPoint at(place.left + (place.Width() - size.cx) / 2, place.top + (place.Height() - size.cy) / 2);
        if (text && m_bTextBelow)
        {
            at.y = place.top + (place.Height() - size.cy - m_sizeText.cy) / 2;
            place.top = at.y + size.cy;
        }
        else if (text)
        {
            at.x = place.left + Scaled(label_margin);
            place.left = at.x + size.cx + Scaled(label_gap);
        }
        pImages->Draw(pDC, at.x, at.y, m_iImage, bHighlight, disabled && bGrayDisabledButtons);
    }
    if (!text)
        return;
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(::GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
    UINT const align = image && !m_bTextBelow ? DT_LEFT : DT_CENTER;
    ::DrawText(pDC->m_hDC, m_strText, m_strText.GetLength(), &place, DT_SINGLELINE | DT_VCENTER | DT_NOCLIP | align);
}

// Buttons with a menu

CMFCToolBarMenuButton::CMFCToolBarMenuButton()
    : m_menu(nullptr),
      m_ownsMenu(false),
      m_menuOnly(false),
      m_onArrow(false),
      m_radio(false),
      m_default(false),
      m_systemMenu(false),
      m_imported(false),
      m_message(nullptr),
      m_popup(nullptr)
{
}

CMFCToolBarMenuButton::CMFCToolBarMenuButton(CMFCToolBarMenuButton const & src) : CMFCToolBarMenuButton()
{
    CMFCToolBarMenuButton::CopyFrom(src);
}

CMFCToolBarMenuButton::CMFCToolBarMenuButton(UINT uiID, HMENU hMenu, int iImage, LPCTSTR lpszText, BOOL bUserButton)
    : CMFCToolBarMenuButton()
{
    m_nID = uiID;
    m_iImage = iImage;
    m_strText = lpszText;
    m_bUserButton = bUserButton;
    m_bImage = iImage >= 0;
    m_bText = iImage < 0;
    m_menu = Copy(hMenu);
    m_ownsMenu = true;
}

CMFCToolBarMenuButton::~CMFCToolBarMenuButton()
{
    DropMenu();
}

void CMFCToolBarMenuButton::DropMenu()
{
    if (m_ownsMenu && m_menu != nullptr)
        ::DestroyMenu(m_menu);
    m_menu = nullptr;
}

void CMFCToolBarMenuButton::CopyFrom(const CMFCToolBarButton & src)
{
    CMFCToolBarButton::CopyFrom(src);
    auto const * const other = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, const_cast<CMFCToolBarButton *>(&src));
    if (other == nullptr || other == this)
        return;
    DropMenu();
    m_ownsMenu = other->m_ownsMenu;
    m_menu = m_ownsMenu ? Copy(other->m_menu) : other->m_menu;
    m_menuOnly = other->m_menuOnly;
    m_radio = other->m_radio;
    m_default = other->m_default;
    m_systemMenu = other->m_systemMenu;
    m_message = other->m_message;
}

BOOL CMFCToolBarMenuButton::CompareWith(const CMFCToolBarButton & other) const
{
    return CMFCToolBarButton::CompareWith(other) && (m_nID != 0 || m_strText == other.m_strText);
}

void CMFCToolBarMenuButton::CreateFromMenu(HMENU hMenu)
{
    HMENU const copy = Copy(hMenu); // it may be its own
    DropMenu();
    m_menu = copy;
    m_ownsMenu = true;
}

HMENU CMFCToolBarMenuButton::CreateMenu() const
{
    return Copy(m_menu);
}

CMFCPopupMenu * CMFCToolBarMenuButton::CreatePopupMenu()
{
    return new CMFCPopupMenu;
}

CMFCPopupMenu * CMFCToolBarMenuButton::GetPopupMenu() const
{
    return DYNAMIC_DOWNCAST(CMFCPopupMenu, CWnd::FromHandlePermanent(m_popup));
}

BOOL CMFCToolBarMenuButton::IsDroppedDown() const
{
    return GetPopupMenu() != nullptr;
}

BOOL CMFCToolBarMenuButton::IsClickedOnMenu() const
{
    return m_onArrow;
}

void CMFCToolBarMenuButton::SetMenuOnly(BOOL bMenuOnly)
{
    m_menuOnly = bMenuOnly != FALSE;
}

void CMFCToolBarMenuButton::SetMessageWnd(CWnd * pWndMessage)
{
    m_message = pWndMessage->GetSafeHwnd();
}

BOOL CMFCToolBarMenuButton::HasButton() const
{
    return !m_menuOnly && m_nID != 0 && m_nID != static_cast<UINT>(-1);
}

BOOL CMFCToolBarMenuButton::IsBorder() const
{
    return TRUE;
}

BOOL CMFCToolBarMenuButton::IsEmptyMenuAllowed() const
{
    return FALSE;
}

BOOL CMFCToolBarMenuButton::IsExclusive() const
{
    return FALSE;
}

BOOL CMFCToolBarMenuButton::OnClickMenuItem()
{
    return FALSE;
}

void CMFCToolBarMenuButton::OnAfterCreatePopupMenu() {}

void CMFCToolBarMenuButton::SetRadio()
{
    m_radio = true;
}

void CMFCToolBarMenuButton::OnChangeParentWnd(CWnd * pWndParent)
{
    CMFCToolBarButton::OnChangeParentWnd(pWndParent);
    if (pWndParent == nullptr)
        OnCancelMode();
}

void CMFCToolBarMenuButton::OnCancelMode()
{
    if (CMFCPopupMenu * const popup = GetPopupMenu())
        popup->CloseMenu();
}

BOOL CMFCToolBarMenuButton::OpenPopupMenu(CWnd *)
{
    CMFCToolBar * const bar = BarOf(m_pWndParent);
    if (bar == nullptr || bar->m_hWnd == nullptr || IsDroppedDown())
        return FALSE;
    int const index = bar->ButtonToIndex(this);
    CMFCPopupMenu * const popup = CreatePopupMenu();
    if (popup == nullptr)
        return FALSE;
    CRect rect(m_rect);
    bar->ClientToScreen(&rect);
    popup->m_fromBar = true;
    popup->m_parentBar = bar->m_hWnd;
    popup->m_parentIndex = index;
    popup->m_parentRect = rect;
    popup->m_systemMenu = m_systemMenu;
    popup->m_message = m_message != nullptr ? m_message : bar->CommandTarget();
    auto * const column = DYNAMIC_DOWNCAST(CMFCPopupMenuBar, bar);
    CWnd * owner = bar;
    if (column != nullptr && column->Popup() != nullptr)
    {
        popup->m_parentPopup = column->Popup()->m_hWnd;
        owner = column->Popup();
        if (m_message == nullptr)
            popup->m_systemMenu = column->Popup()->m_systemMenu;
    }
    OnAfterCreatePopupMenu();
    // Who is asked about the items may end the bar, or this button.
    WindowGuard const guard(bar);
    if (!popup->Open(*owner, rect.TopLeft(), m_menu))
        return FALSE;
    return guard.Alive();
}

BOOL CMFCToolBarMenuButton::OnClick(CWnd * pWnd, BOOL)
{
    if (!HasMenu() && !IsEmptyMenuAllowed())
        return FALSE;
    CPoint point;
    ::GetCursorPos(&point);
    if (m_pWndParent != nullptr)
        m_pWndParent->ScreenToClient(&point);
    m_onArrow = !HasButton() || point.x >= m_rect.right - ArrowWidth();
    if (!m_onArrow)
        return FALSE;
    if (IsDroppedDown())
        framework::MenuMode::Current().End();
    else
        OpenPopupMenu(pWnd);
    return TRUE;
}

int CMFCToolBarMenuButton::ArrowWidth() const
{
    return Scaled(arrow_width);
}

SIZE CMFCToolBarMenuButton::OnCalculateSize(CDC * pDC, const CSize & sizeDefault, BOOL bHorz)
{
    if (DYNAMIC_DOWNCAST(CMFCPopupMenuBar, m_pWndParent) != nullptr)
        return ItemSize(*pDC);
    CSize size = CMFCToolBarButton::OnCalculateSize(pDC, sizeDefault, bHorz);
    CMFCToolBar const * const bar = BarOf(m_pWndParent);
    if (HasMenu() && bHorz && (bar == nullptr || !bar->IsMenuBar()))
        size.cx += ArrowWidth();
    return size;
}

void CMFCToolBarMenuButton::OnDraw(CDC * pDC, const CRect & rect, CMFCToolBarImages * pImages, BOOL bHorz,
                                   BOOL bCustomizeMode, BOOL bHighlight, BOOL bDrawBorder, BOOL bGrayDisabledButtons)
{
    if (DYNAMIC_DOWNCAST(CMFCPopupMenuBar, m_pWndParent) != nullptr)
    {
        DrawItem(*pDC, rect, pImages, bHighlight != FALSE);
        return;
    }
    CMFCToolBar const * const bar = BarOf(m_pWndParent);
    bool const arrow = HasMenu() && bHorz && (bar == nullptr || !bar->IsMenuBar());
    CRect face(rect);
    if (IsDroppedDown())
    {
        FillButton(*pDC, rect, framework::PressedColour());
        bDrawBorder = FALSE;
    }
    else if (arrow && bHighlight && bDrawBorder && (m_nStyle & TBBS_DISABLED) == 0)
    {
        FillButton(*pDC, rect, framework::HotColour());
        if (HasButton())
            pDC->FillSolidRect(rect.right - ArrowWidth(), rect.top, 1, rect.Height(), ::GetSysColor(COLOR_HIGHLIGHT));
    }
    if (arrow)
        face.right -= ArrowWidth();
    CMFCToolBarButton::OnDraw(pDC, face, pImages, bHorz, bCustomizeMode, bHighlight, bDrawBorder && !arrow,
                              bGrayDisabledButtons);
    if (arrow)
    {
        CRect const place(face.right, rect.top, rect.right, rect.bottom);
        DrawMark(*pDC, place, Mark::arrow_down,
                 ::GetSysColor((m_nStyle & TBBS_DISABLED) != 0 ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
    }
}

// Items of menus

CSize CMFCToolBarMenuButton::ItemSize(CDC & dc) const
{
    auto const & column = *static_cast<CMFCPopupMenuBar const *>(m_pWndParent);
    CString const text = LabelPart(m_strText);
    CSize size = LabelExtent(dc, text.IsEmpty() ? CString(L" ") : text);
    CSize const image = CMFCToolBar::GetMenuImageSize();
    size.cy = std::max<LONG>(size.cy, image.cy) + Scaled(item_height_beyond_text);
    size.cx += column.TextColumn() + Scaled(3 * item_margin + arrow_width);
    return size;
}

void CMFCToolBarMenuButton::DrawItem(CDC & dc, CRect const & rect, CMFCToolBarImages * images, bool highlight) const
{
    auto const & column = *static_cast<CMFCPopupMenuBar const *>(m_pWndParent);
    bool const disabled = (m_nStyle & TBBS_DISABLED) != 0;
    bool const checked = (m_nStyle & TBBS_CHECKED) != 0;
    COLORREF const ground = ::GetSysColor(highlight ? COLOR_HIGHLIGHT : COLOR_MENU);
    COLORREF const colour = ::GetSysColor(disabled ? COLOR_GRAYTEXT : highlight ? COLOR_HIGHLIGHTTEXT : COLOR_MENUTEXT);
    dc.FillSolidRect(&rect, ground);
    CRect mark(rect);
    mark.right = mark.left + column.TextColumn() - Scaled(item_margin);
    bool const image = images != nullptr && IsDrawImage() && m_iImage < images->GetCount();
    if (image)
    {
        CSize const size = images->GetImageSize(TRUE);
        CPoint const at(mark.left + (mark.Width() - size.cx) / 2, mark.top + (mark.Height() - size.cy) / 2);
        if (checked)
        {
            FillButton(
                dc, CRect(at.x - Scaled(2), at.y - Scaled(2), at.x + size.cx + Scaled(2), at.y + size.cy + Scaled(2)),
                framework::HotColour());
        }
        images->Draw(&dc, at.x, at.y, m_iImage, FALSE, disabled);
    }
    else if (checked)
        DrawMark(dc, mark, m_radio ? Mark::bullet : Mark::check, colour);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(colour);
    CFont bold;
    HGDIOBJ previous = nullptr;
    if (m_default)
    {
        LOGFONT font{};
        framework::MenuFont().GetLogFont(&font);
        font.lfWeight = FW_BOLD;
        if (bold.CreateFontIndirect(&font))
            previous = ::SelectObject(dc.m_hDC, bold.m_hObject);
    }
    CRect text(rect);
    text.left += column.TextColumn();
    text.right -= Scaled(item_margin);
    CString const label = LabelPart(m_strText);
    ::DrawText(dc.m_hDC, label, label.GetLength(), &text, DT_SINGLELINE | DT_VCENTER | DT_LEFT);
    CString const shortcut = ShortcutPart(m_strText);
    if (!shortcut.IsEmpty())
    {
        CRect keys(text);
        keys.left = rect.left + column.ShortcutColumn();
        ::DrawText(dc.m_hDC, shortcut, shortcut.GetLength(), &keys, DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_NOPREFIX);
    }
    if (previous != nullptr)
        ::SelectObject(dc.m_hDC, previous);
    if (HasMenu())
    {
        DrawMark(dc, CRect(rect.right - Scaled(arrow_width), rect.top, rect.right, rect.bottom), Mark::arrow_right,
                 colour);
    }
}
