// CStatusBar: panes on the native status bar.

#include <afxext.h>

#include <algorithm>
#include <vector>

#include "detail/ControlSupport.h"
#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

using framework::Send;
using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

// clang-format off
BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_MESSAGE(WM_SETTEXT, &CStatusBar::HandleSetText)
    ON_MESSAGE(WM_GETTEXT, &CStatusBar::HandleGetText)
    ON_MESSAGE(WM_GETTEXTLENGTH, &CStatusBar::HandleGetTextLength)
    ON_MESSAGE(WM_SETFONT, &CStatusBar::HandleSetFont)
    ON_MESSAGE(SB_SETMINHEIGHT, &CStatusBar::HandleSetMinHeight)
END_MESSAGE_MAP()
// clang-format on

namespace
{
constexpr int pane_padding = 6; // what a pane is wider than its text
constexpr UINT native_styles = SBPS_NOBORDERS | SBPS_POPOUT | SBPS_OWNERDRAW;

/// The bar's font, selected into a device context of the screen.
class BarFont
{
public:
    explicit BarFont(HWND bar) : m_dc(::GetDC(nullptr)), m_previous(::SelectObject(m_dc, FontOf(bar))) {}
    ~BarFont()
    {
        ::SelectObject(m_dc, m_previous);
        ::ReleaseDC(nullptr, m_dc);
    }
    BarFont(BarFont const &) = delete;
    BarFont & operator=(BarFont const &) = delete;

    int Width(CString const & text) const
    {
        SIZE size{};
        ::GetTextExtentPoint32(m_dc, text, text.GetLength(), &size);
        return size.cx;
    }
    int Height() const
    {
        TEXTMETRIC metrics{};
        ::GetTextMetrics(m_dc, &metrics);
        return metrics.tmHeight;
    }

private:
    static HGDIOBJ FontOf(HWND bar)
    {
        HFONT const font = Send<HFONT>(bar, WM_GETFONT);
        return font != nullptr ? font : ::GetStockObject(DEFAULT_GUI_FONT);
    }

    HDC m_dc;
    HGDIOBJ m_previous;
};

/// A pane of the bar as its update handlers see it. A handler may end the bar.
class PaneState : public CCmdUI
{
public:
    explicit PaneState(CStatusBar & bar) : m_guard(&bar) { m_pOther = &bar; }

    void Enable(BOOL bOn) override
    {
        framework::CmdUiAccess::SetEnableChanged(*this, TRUE);
        Change(SBPS_DISABLED, bOn ? 0 : SBPS_DISABLED);
    }
    void SetCheck(int nCheck) override { Change(SBPS_POPOUT, nCheck != 0 ? SBPS_POPOUT : 0); }
    void SetText(LPCTSTR lpszText) override
    {
        if (m_guard.Alive())
            Bar().SetPaneText(static_cast<int>(m_nIndex), lpszText);
    }

private:
    CStatusBar & Bar() const { return *static_cast<CStatusBar *>(m_pOther); }
    void Change(UINT remove, UINT add)
    {
        auto const index = static_cast<int>(m_nIndex);
        if (m_guard.Alive() && index < Bar().GetCount())
            Bar().SetPaneStyle(index, (Bar().GetPaneStyle(index) & ~remove) | add);
    }

    WindowGuard m_guard;
};
} // namespace

CStatusBar::CStatusBar() : m_minHeight(0)
{
    SetBorders(0, 0, 0, 0);
}

CStatusBar::~CStatusBar()
{
    m_control.m_hWnd = nullptr;
    DestroyWindow();
}

BOOL CStatusBar::Create(CWnd * pParentWnd, DWORD dwStyle, UINT nID)
{
    return CreateEx(pParentWnd, 0, dwStyle, nID);
}

BOOL CStatusBar::CreateEx(CWnd * pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID)
{
    ASSERT(pParentWnd != nullptr && (dwStyle & WS_CHILD) != 0);
    DWORD style = TakeStyles(dwStyle, nID) | dwCtrlStyle;
    if ((pParentWnd->GetStyle() & WS_THICKFRAME) != 0)
        style |= SBARS_SIZEGRIP;
    framework::LoadControlClasses(ICC_BAR_CLASSES);
    return CreateNative(STATUSCLASSNAME, style, pParentWnd, nID);
}

CStatusBarCtrl & CStatusBar::GetStatusBarCtrl() const
{
    m_control.m_hWnd = m_hWnd;
    return m_control;
}

BOOL CStatusBar::SetIndicators(const UINT * lpIDArray, int nIDCount)
{
    ASSERT(::IsWindow(m_hWnd) && nIDCount > 0);
    BarFont const font(m_hWnd);
    CArray<Pane, Pane const &> panes;
    bool complete = true;
    for (int at = 0; at < nIDCount; ++at)
    {
        Pane pane;
        pane.stale = true;
        pane.id = lpIDArray != nullptr ? lpIDArray[at] : ID_SEPARATOR;
        if (pane.id != ID_SEPARATOR)
        {
            if (!pane.text.LoadString(pane.id))
            {
                complete = false;
                break;
            }
            pane.width = font.Width(pane.text);
        }
        else
            pane.width = ::GetSystemMetrics(SM_CXSCREEN) / 4;
        if (at == 0)
            pane.style = SBPS_STRETCH | SBPS_NOBORDERS;
        panes.Add(pane);
    }
    if (!complete)
        return FALSE;
    m_panes.Copy(panes);
    m_count = nIDCount;
    // What the control is given it may paint at once, and a window that is painted may be ended.
    WindowGuard const guard(this);
    UpdateParts();
    if (guard.Alive())
        UpdateTexts();
    return guard.Alive();
}

void CStatusBar::UpdateParts()
{
    auto const count = static_cast<int>(m_panes.GetSize());
    if (m_hWnd == nullptr || count == 0)
        return;
    int borders[3] = {};
    Send(m_hWnd, SB_GETBORDERS, 0, borders);
    CRect client;
    GetClientRect(&client);
    int right = client.right;
    CWnd const * const frame = GetParent();
    if ((GetStyle() & SBARS_SIZEGRIP) != 0 && frame != nullptr && !frame->IsZoomed())
        right -= ::GetSystemMetrics(SM_CXVSCROLL);
    // What the panes of a fixed width leave is shared by the others.
    int left = right - borders[0];
    int stretching = 0;
    for (int at = 0; at < count; ++at)
    {
        if ((m_panes[at].style & SBPS_STRETCH) != 0)
        {
            ++stretching;
            left -= borders[2];
        }
        else
            left -= m_panes[at].width + pane_padding + borders[2];
    }
    left = std::max(left, 0);
    std::vector<int> parts;
    int x = borders[0];
    for (int at = 0; at < count; ++at)
    {
        if ((m_panes[at].style & SBPS_STRETCH) != 0)
        {
            int const share = left / stretching;
            left -= share;
            --stretching;
            x += share;
        }
        else
            x += m_panes[at].width + pane_padding;
        parts.push_back(x);
        x += borders[2];
    }
    std::vector<int> present(parts.size(), 0);
    int const presentCount = Send<int>(m_hWnd, SB_GETPARTS, count, present.data());
    if (presentCount != count || present != parts)
        Send(m_hWnd, SB_SETPARTS, count, parts.data());
}

void CStatusBar::ShowText(int index)
{
    Pane & pane = m_panes[index];
    pane.stale = false;
    bool const shown = (pane.style & (SBPS_DISABLED | SBPS_OWNERDRAW)) == 0;
    CString const text = shown ? pane.text : CString();
    Send(m_hWnd, SB_SETTEXT, static_cast<UINT>(index) | (pane.style & native_styles), text.GetString());
}

void CStatusBar::UpdateTexts()
{
    WindowGuard const guard(this);
    for (int at = 0; guard.Alive() && at < static_cast<int>(m_panes.GetSize()); ++at)
    {
        if (m_panes[at].stale)
            ShowText(at);
    }
}

int CStatusBar::CommandToIndex(UINT nIDFind) const
{
    for (int at = 0; at < static_cast<int>(m_panes.GetSize()); ++at)
    {
        if (m_panes[at].id == nIDFind)
            return at;
    }
    return -1;
}

UINT CStatusBar::GetItemID(int nIndex) const
{
    return m_panes[nIndex].id;
}

void CStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const
{
    if (!Send<BOOL>(m_hWnd, SB_GETRECT, nIndex, lpRect))
        ::SetRectEmpty(lpRect);
}

UINT CStatusBar::GetPaneStyle(int nIndex) const
{
    return m_panes[nIndex].style;
}

void CStatusBar::SetPaneStyle(int nIndex, UINT nStyle)
{
    Pane & pane = m_panes[nIndex];
    if (pane.style == nStyle)
        return;
    bool const layout = ((pane.style ^ nStyle) & SBPS_STRETCH) != 0;
    pane.style = nStyle;
    WindowGuard const guard(this);
    if (layout)
        UpdateParts();
    if (guard.Alive() && nIndex < m_panes.GetSize())
        ShowText(nIndex);
}

void CStatusBar::GetPaneInfo(int nIndex, UINT & nID, UINT & nStyle, int & cxWidth) const
{
    Pane const & pane = m_panes[nIndex];
    nID = pane.id;
    nStyle = pane.style;
    cxWidth = pane.width;
}

void CStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth)
{
    Pane & pane = m_panes[nIndex];
    pane.id = nID;
    bool const layout = pane.width != cxWidth;
    pane.width = cxWidth;
    WindowGuard const guard(this);
    SetPaneStyle(nIndex, nStyle);
    if (layout && guard.Alive())
        UpdateParts();
}

CString CStatusBar::GetPaneText(int nIndex) const
{
    return m_panes[nIndex].text;
}

void CStatusBar::GetPaneText(int nIndex, CString & rString) const
{
    rString = GetPaneText(nIndex);
}

BOOL CStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate)
{
    if (nIndex < 0 || nIndex >= m_panes.GetSize())
        return FALSE;
    Pane & pane = m_panes[nIndex];
    CString const text(lpszNewText);
    if (!pane.stale && pane.text == text)
        return TRUE;
    pane.text = text;
    pane.stale = true;
    if (bUpdate)
        ShowText(nIndex);
    return TRUE;
}

CSize CStatusBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    int borders[3] = {};
    Send(m_hWnd, SB_GETBORDERS, 0, borders);
    CRect inside(0, 0, 0, 0);
    CalcInsideRect(inside, bHorz);
    int const text = BarFont(m_hWnd).Height() + 2 * ::GetSystemMetrics(SM_CYEDGE);
    int const height = std::max(text, m_minHeight) + 2 * borders[1] - inside.Height();
    CSize const size = CControlBar::CalcFixedLayout(TRUE, TRUE); // it has no length of its own
    return CSize(bStretch || bHorz ? size.cx : 0, height);
}

void CStatusBar::OnUpdateCmdUI(CFrameWnd * pTarget, BOOL bDisableIfNoHndler)
{
    WindowGuard const guard(this);
    WindowGuard const target(pTarget);
    PaneState state(*this);
    constexpr LONG reflected = MAKELONG(0xFFFF, WM_COMMAND + WM_REFLECT_BASE);
    for (state.m_nIndex = 0; guard.Alive() && target.Alive(); ++state.m_nIndex)
    {
        auto const count = static_cast<UINT>(m_panes.GetSize());
        if (state.m_nIndex >= count)
            break;
        framework::CmdUiAccess::SetIndexMax(state, count);
        state.m_nID = m_panes[state.m_nIndex].id;
        if (CWnd::OnCmdMsg(0, static_cast<int>(reflected), &state, nullptr) || !guard.Alive())
            continue;
        if (CWnd::OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, nullptr))
            continue;
        // A pane without a handler keeps what it shows.
        if (guard.Alive() && target.Alive())
            framework::CmdUiAccess::DoUpdate(state, pTarget, FALSE);
    }
    if (!guard.Alive())
        return;
    UpdateTexts();
    if (guard.Alive() && target.Alive())
        UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

void CStatusBar::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // a bar with panes of the style SBPS_OWNERDRAW overrides it
}

BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    if (message != WM_DRAWITEM)
        return CControlBar::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CStatusBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS * lpncsp)
{
    CalcNonClient(lpncsp);
}

void CStatusBar::OnNcPaint()
{
    PaintNonClient();
}

void CStatusBar::OnPaint()
{
    WindowGuard const guard(this);
    UpdateTexts();
    if (guard.Alive())
        Default();
}

void CStatusBar::OnSize(UINT nType, int cx, int cy)
{
    WindowGuard const guard(this);
    CWnd::OnSize(nType, cx, cy);
    if (guard.Alive())
        UpdateParts();
}

LRESULT CStatusBar::HandleSetText(WPARAM, LPARAM lParam)
{
    // The window's text is that of the pane without an identifier, where the frame's messages go.
    int const index = CommandToIndex(ID_SEPARATOR);
    return index >= 0 && SetPaneText(index, reinterpret_cast<LPCTSTR>(lParam));
}

LRESULT CStatusBar::HandleGetText(WPARAM wParam, LPARAM lParam)
{
    auto const room = static_cast<int>(wParam);
    int const index = CommandToIndex(ID_SEPARATOR);
    auto * const text = reinterpret_cast<LPTSTR>(lParam);
    if (room == 0 || text == nullptr)
        return 0;
    CString const found = index >= 0 ? m_panes[index].text : CString();
    ::lstrcpyn(text, found, room);
    return ::lstrlen(text);
}

LRESULT CStatusBar::HandleGetTextLength(WPARAM, LPARAM)
{
    int const index = CommandToIndex(ID_SEPARATOR);
    return index >= 0 ? m_panes[index].text.GetLength() : 0;
}

LRESULT CStatusBar::HandleSetFont(WPARAM, LPARAM)
{
    // Panes are as wide as their texts in the font that they were made with; the program gives them other widths.
    WindowGuard const guard(this);
    LRESULT const result = Default();
    if (guard.Alive())
        UpdateParts();
    return result;
}

LRESULT CStatusBar::HandleSetMinHeight(WPARAM wParam, LPARAM)
{
    m_minHeight = static_cast<int>(wParam);
    return Default();
}
