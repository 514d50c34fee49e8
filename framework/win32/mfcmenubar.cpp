// CMFCMenuBar.

#include "afxmenubar.h"

#include <algorithm>

#include "detail/BarLooks.h"
#include "detail/FrameSupport.h"
#include "detail/MenuMode.h"

using framework::MenuMode;
using framework::Scaled;
using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CMFCMenuBar, CMFCToolBar)

BEGIN_MESSAGE_MAP(CMFCMenuBar, CMFCToolBar)
    ON_WM_DESTROY()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

namespace
{
constexpr int text_margin = 7; // at the sides of a menu's name
constexpr int height_beyond_text = 7;
constexpr int system_button_size = 18;

/// The name of a menu.
class NameButton : public CMFCToolBarMenuButton
{
public:
    SIZE OnCalculateSize(CDC * pDC, const CSize & sizeDefault, BOOL bHorz) override
    {
        CSize size = framework::LabelExtent(*pDC, m_strText);
        size.cx += 2 * Scaled(text_margin);
        size.cy = sizeDefault.cy;
        if (!bHorz)
            size.cx = std::max(size.cx, sizeDefault.cx);
        return size;
    }
};

/// A maximised child's icon, with its system menu.
class ChildMenuButton : public CMFCToolBarMenuButton
{
public:
    explicit ChildMenuButton(HICON icon) : m_icon(icon) {}

    SIZE OnCalculateSize(CDC *, const CSize & sizeDefault, BOOL) override
    {
        return CSize(::GetSystemMetrics(SM_CXSMICON) + Scaled(4), sizeDefault.cy);
    }
    void OnDraw(CDC * pDC, const CRect & rect, CMFCToolBarImages *, BOOL, BOOL, BOOL bHighlight, BOOL, BOOL) override
    {
        if (bHighlight || IsDroppedDown())
            pDC->FillSolidRect(&rect, framework::HotColour());
        int const width = ::GetSystemMetrics(SM_CXSMICON);
        int const height = ::GetSystemMetrics(SM_CYSMICON);
        ::DrawIconEx(pDC->m_hDC, rect.left + (rect.Width() - width) / 2, rect.top + (rect.Height() - height) / 2,
                     m_icon, width, height, 0, nullptr, DI_NORMAL);
    }

private:
    HICON m_icon; // the child's
};

/// One of a maximised child's buttons: its command is the system's.
class SystemButton : public CMFCToolBarButton
{
public:
    explicit SystemButton(UINT command) : CMFCToolBarButton(command, -1) {}

    SIZE OnCalculateSize(CDC *, const CSize & sizeDefault, BOOL) override
    {
        return CSize(Scaled(system_button_size), sizeDefault.cy);
    }
    void OnDraw(CDC * pDC, const CRect & rect, CMFCToolBarImages *, BOOL, BOOL, BOOL bHighlight, BOOL, BOOL) override
    {
        bool const pressed = (m_nStyle & TBBS_PRESSED) != 0;
        if (pressed || bHighlight)
            pDC->FillSolidRect(&rect, pressed ? framework::PressedColour() : framework::HotColour());
        COLORREF const colour = ::GetSysColor((m_nStyle & TBBS_DISABLED) != 0 ? COLOR_GRAYTEXT : COLOR_MENUTEXT);
        CPoint const middle = rect.CenterPoint();
        int const size = Scaled(4);
        int const line = Scaled(1);
        switch (m_nID)
        {
        case SC_MINIMIZE:
            pDC->FillSolidRect(middle.x - size, middle.y + size - 2 * line, 2 * size, 2 * line, colour);
            break;
        case SC_RESTORE:
            Outline(*pDC, CRect(middle.x - size / 2, middle.y - size, middle.x + size, middle.y + size / 2), line,
                    colour);
            pDC->FillSolidRect(middle.x - size, middle.y - size / 2, size + size / 2, size + size / 2,
                               ::GetSysColor(COLOR_BTNFACE));
            Outline(*pDC, CRect(middle.x - size, middle.y - size / 2, middle.x + size / 2, middle.y + size), line,
                    colour);
            break;
        default:
            for (int step = -size; step <= size; ++step)
            {
                pDC->FillSolidRect(middle.x + step - line / 2, middle.y + step, line + 1, line, colour);
                pDC->FillSolidRect(middle.x + step - line / 2, middle.y - step, line + 1, line, colour);
            }
            break;
        }
    }

private:
    static void Outline(CDC & dc, CRect const & rect, int line, COLORREF colour)
    {
        dc.FillSolidRect(rect.left, rect.top, rect.Width(), 2 * line, colour);
        dc.FillSolidRect(rect.left, rect.bottom - line, rect.Width(), line, colour);
        dc.FillSolidRect(rect.left, rect.top, line, rect.Height(), colour);
        dc.FillSolidRect(rect.right - line, rect.top, line, rect.Height(), colour);
    }
};

bool IsSystemCommand(UINT id)
{
    return id >= SC_SIZE && id < AFX_IDM_FIRST_MDICHILD;
}
} // namespace

CMFCMenuBar::CMFCMenuBar()
    : m_shown(nullptr),
      m_default(nullptr),
      m_defaultId(0),
      m_maximised(nullptr),
      m_systemButtons(0),
      m_systemMenu(false)
{
}

CMFCMenuBar::~CMFCMenuBar()
{
    DestroyWindow();
    if (m_default != nullptr && ::IsMenu(m_default))
        ::DestroyMenu(m_default);
}

BOOL CMFCMenuBar::Create(CWnd * pParentWnd, DWORD dwStyle, UINT nID)
{
    return CreateEx(pParentWnd, TBSTYLE_FLAT, dwStyle, CRect(1, 1, 1, 1), nID);
}

BOOL CMFCMenuBar::CreateEx(CWnd * pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect rcBorders, UINT nID)
{
    if (!CMFCToolBar::CreateEx(pParentWnd, dwCtrlStyle, dwStyle & ~static_cast<DWORD>(CBRS_TOOLTIPS), rcBorders, nID))
        return FALSE;
    WindowGuard const guard(this);
    MenuMode::Current().AttachBar(pParentWnd->m_hWnd, *this);
    TakeFrameMenu();
    return guard.Alive();
}

void CMFCMenuBar::OnDestroy()
{
    if (CWnd * const owner = GetOwner())
        MenuMode::Current().DetachBar(owner->m_hWnd, *this);
    m_maximised = nullptr;
    CMFCToolBar::OnDestroy();
}

/// The frame's menu becomes the bar's, which destroys it.
void CMFCMenuBar::TakeFrameMenu()
{
    CWnd * const frame = GetOwner();
    HMENU const menu = frame != nullptr ? ::GetMenu(frame->m_hWnd) : nullptr;
    if (menu == nullptr)
        return;
    WindowGuard const guard(this);
    if (m_default != nullptr && m_default != menu && ::IsMenu(m_default))
        ::DestroyMenu(m_default);
    m_default = menu;
    ::SetMenu(frame->m_hWnd, nullptr);
    if (guard.Alive())
        OnDefaultMenuLoaded(menu);
    if (guard.Alive())
        CreateFromMenu(menu, TRUE);
}

void CMFCMenuBar::OnDefaultMenuLoaded(HMENU) {}

void CMFCMenuBar::CreateFromMenu(HMENU hMenu, BOOL bDefaultMenu, BOOL bForceUpdate)
{
    if (hMenu == m_shown && !bForceUpdate && GetCount() != 0)
        return;
    if (bDefaultMenu && m_default == nullptr)
        m_default = hMenu;
    m_shown = hMenu;
    Rebuild();
}

void CMFCMenuBar::Rebuild()
{
    framework::BarGuard const self(*this);
    if (MenuMode::Current().IsOn(*this))
        MenuMode::Current().End();
    if (!self.Alive())
        return;
    RemoveAllButtons();
    if (!self.Alive())
        return;
    m_systemMenu = false;
    m_systemButtons = 0;
    HICON icon = nullptr;
    if (DYNAMIC_DOWNCAST(CMDIChildWnd, CWnd::FromHandlePermanent(m_maximised)) != nullptr)
    {
        // Asked for by a message: the child may have ended since, or have had the bar built anew.
        icon = reinterpret_cast<HICON>(::SendMessage(m_maximised, WM_GETICON, ICON_SMALL, 0));
        if (!self.Alive() || GetCount() != 0)
            return;
    }
    auto * const child = DYNAMIC_DOWNCAST(CMDIChildWnd, CWnd::FromHandlePermanent(m_maximised));
    if (child != nullptr)
    {
        if (icon == nullptr)
            icon = reinterpret_cast<HICON>(::GetClassLongPtr(m_maximised, GCLP_HICONSM));
        if (icon == nullptr)
            icon = reinterpret_cast<HICON>(::GetClassLongPtr(m_maximised, GCLP_HICON));
        auto * const button = new ChildMenuButton(icon);
        button->m_menu = ::GetSystemMenu(m_maximised, FALSE);
        button->m_systemMenu = true;
        button->m_message = m_maximised;
        InsertButton(button);
        m_systemMenu = true;
    }
    int const count = m_shown != nullptr && ::IsMenu(m_shown) ? ::GetMenuItemCount(m_shown) : 0;
    for (int at = 0; at < count; ++at)
    {
        wchar_t text[256] = {};
        ::GetMenuString(m_shown, static_cast<UINT>(at), text, static_cast<int>(std::size(text)), MF_BYPOSITION);
        UINT const state = ::GetMenuState(m_shown, static_cast<UINT>(at), MF_BYPOSITION);
        HMENU const popup = ::GetSubMenu(m_shown, at);
        if (popup == nullptr && (state & MF_SEPARATOR) != 0)
            continue;
        auto * const button = new NameButton;
        button->m_strText = text;
        button->m_bText = TRUE;
        button->m_bImage = FALSE;
        button->m_menu = popup; // the frame's goes on being used, as it is brought up to date by the frame
        button->m_nID = popup != nullptr ? static_cast<UINT>(-1) : ::GetMenuItemID(m_shown, at);
        if ((state & (MF_GRAYED | MF_DISABLED)) != 0 && (popup != nullptr))
            button->m_nStyle |= TBBS_DISABLED;
        InsertButton(button);
    }
    if (child != nullptr)
    {
        DWORD const style = child->GetStyle();
        for (UINT const command : {SC_MINIMIZE, SC_RESTORE, SC_CLOSE})
        {
            auto * const button = new SystemButton(command);
            if (command == SC_MINIMIZE && (style & WS_MINIMIZEBOX) == 0)
                button->m_nStyle |= TBBS_DISABLED;
            InsertButton(button);
            ++m_systemButtons;
        }
    }
    if (m_hWnd != nullptr)
        AdjustSize();
}

HMENU CMFCMenuBar::GetHMenu() const
{
    return m_shown;
}

HMENU CMFCMenuBar::GetDefaultMenu() const
{
    return m_default;
}

UINT CMFCMenuBar::GetDefaultMenuResId() const
{
    return m_defaultId;
}

void CMFCMenuBar::SetDefaultMenuResId(UINT uiResId)
{
    m_defaultId = uiResId;
}

CMFCToolBarButton * CMFCMenuBar::GetMenuItem(int iItem) const
{
    return GetButton(iItem);
}

const CFont & CMFCMenuBar::GetMenuFont(BOOL)
{
    return framework::MenuFont();
}

BOOL CMFCMenuBar::SetMenuFont(LPLOGFONT lpLogFont, BOOL bHorz)
{
    CFont & font = framework::MenuFont();
    if (!bHorz)
        return FALSE;
    font.DeleteObject();
    if (font.CreateFontIndirect(lpLogFont))
        return TRUE;
    framework::ReloadMenuFont();
    return FALSE;
}

// A maximised child

void CMFCMenuBar::SetMaximizeMode(BOOL bMax, CWnd * pWnd, BOOL)
{
    HWND const child = bMax && pWnd != nullptr ? pWnd->m_hWnd : nullptr;
    if (child == m_maximised)
        return;
    m_maximised = child;
    Rebuild();
}

int CMFCMenuBar::GetSystemButtonsCount() const
{
    return m_systemButtons;
}

/// The child's buttons are the last ones, as many as the program has left there.
int CMFCMenuBar::FirstSystemButton() const
{
    int first = GetCount();
    while (first > 0 && dynamic_cast<SystemButton const *>(GetButton(first - 1)) != nullptr)
        --first;
    return first;
}

BOOL CMFCMenuBar::OnSendCommand(const CMFCToolBarButton * pButton)
{
    if (!IsSystemCommand(pButton->m_nID) || pButton->m_nID == static_cast<UINT>(-1))
        return FALSE;
    if (::IsWindow(m_maximised))
        ::PostMessage(m_maximised, WM_SYSCOMMAND, pButton->m_nID, 0);
    return TRUE;
}

void CMFCMenuBar::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    // A double click on the icon closes the child, as in a caption.
    if (m_systemMenu && HitTest(point) == 0 && dynamic_cast<ChildMenuButton const *>(GetButton(0)) != nullptr &&
        ::IsWindow(m_maximised))
    {
        HWND const child = m_maximised;
        MenuMode::Current().End();
        ::PostMessage(child, WM_SYSCOMMAND, SC_CLOSE, 0);
        return;
    }
    CMFCToolBar::OnLButtonDblClk(nFlags, point);
}

void CMFCMenuBar::UpdateStates(CFrameWnd * target, BOOL disableIfNoHandler)
{
    WindowGuard const guard(this);
    if (m_default == nullptr)
        TakeFrameMenu(); // the frame has been given it only now
    if (!guard.Alive())
        return;
    if (auto * const frame = DYNAMIC_DOWNCAST(CMDIFrameWnd, GetOwner()))
    {
        BOOL maximised = FALSE;
        CMDIChildWnd * const child = frame->MDIGetActive(&maximised);
        SetMaximizeMode(maximised, child);
        if (!guard.Alive())
            return;
    }
    CMFCToolBar::UpdateStates(target, disableIfNoHandler);
}

/// Only items that are commands by themselves, and nothing of the system's.
bool CMFCMenuBar::IsUpdated(CMFCToolBarButton const & button) const
{
    return CMFCToolBar::IsUpdated(button) && !IsSystemCommand(button.m_nID);
}

// Layout

int CMFCMenuBar::GetRowHeight() const
{
    framework::MeasureDC dc;
    return std::max<int>(framework::LabelExtent(dc.Get(), L"X").cy + Scaled(height_beyond_text),
                         m_systemMenu ? ::GetSystemMetrics(SM_CYSMICON) + Scaled(2) : 0);
}

int CMFCMenuBar::GetColumnWidth() const
{
    return GetButtonSize().cx;
}

int CMFCMenuBar::CalcMaxButtonHeight()
{
    return GetRowHeight();
}

CSize CMFCMenuBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    return CMFCToolBar::CalcFixedLayout(bStretch, bHorz);
}

CSize CMFCMenuBar::Arrange(CDC & dc, int length, bool horizontal, bool place)
{
    int const first = FirstSystemButton();
    if (first == GetCount() || !horizontal)
        return CMFCToolBar::Arrange(dc, length, horizontal, place);
    // The child's buttons stand at the end of the first row, out of the others' way.
    int width = 0;
    for (int at = first; at < GetCount(); ++at)
    {
        GetButton(at)->SetVisible(FALSE);
        width += SizeOf(dc, *GetButton(at), true).cx;
    }
    CSize size = CMFCToolBar::Arrange(dc, length - width, true, place);
    CRect const inside = Inside();
    int x = inside.left + length - width;
    for (int at = first; at < GetCount(); ++at)
    {
        CMFCToolBarButton & button = *GetButton(at);
        button.SetVisible(TRUE);
        CSize const need = SizeOf(dc, button, true);
        if (place)
            button.SetRect(CRect(CPoint(x, inside.top), need));
        x += need.cx;
    }
    size.cx += width;
    return size;
}

BOOL CMFCMenuBar::AllowChangeTextLabels() const
{
    return FALSE;
}

BOOL CMFCMenuBar::AllowShowOnPaneMenu() const
{
    return FALSE;
}

BOOL CMFCMenuBar::CanBeClosed() const
{
    return FALSE;
}

BOOL CMFCMenuBar::IsButtonExtraSizeAvailable() const
{
    return FALSE;
}

INT_PTR CMFCMenuBar::OnToolHitTest(CPoint, TOOLINFO *) const
{
    return -1;
}

bool framework::ShowMenuInBar(HWND frame, HMENU menu)
{
    CMFCMenuBar * const bar = MenuMode::BarOf(frame);
    if (bar == nullptr)
        return false;
    bar->CreateFromMenu(menu != nullptr ? menu : bar->GetDefaultMenu());
    return true;
}

HMENU framework::MenuOfBar(HWND frame)
{
    CMFCMenuBar const * const bar = MenuMode::BarOf(frame);
    return bar != nullptr ? bar->GetDefaultMenu() : nullptr;
}
