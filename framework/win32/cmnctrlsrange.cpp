// Progress bar, slider, spin button and tooltip control.

#include <afxcmn.h>

#include <iterator>
#include <vector>

#include "detail/ControlSupport.h"

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

// CProgressCtrl

CProgressCtrl::CProgressCtrl() = default;

CProgressCtrl::~CProgressCtrl()
{
    DestroyWindow();
}

BOOL CProgressCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_PROGRESS_CLASS, PROGRESS_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CProgressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControlEx(*this, ICC_PROGRESS_CLASS, dwExStyle, PROGRESS_CLASS, nullptr, dwStyle, rect,
                                      pParentWnd, nID);
}

void CProgressCtrl::GetRange(int & nLower, int & nUpper)
{
    PBRANGE range{};
    framework::Send(m_hWnd, PBM_GETRANGE, TRUE, &range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

// CSliderCtrl

CSliderCtrl::CSliderCtrl() = default;

CSliderCtrl::~CSliderCtrl()
{
    DestroyWindow();
}

BOOL CSliderCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_BAR_CLASSES, TRACKBAR_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CSliderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControlEx(*this, ICC_BAR_CLASSES, dwExStyle, TRACKBAR_CLASS, nullptr, dwStyle, rect,
                                      pParentWnd, nID);
}

void CSliderCtrl::GetRange(int & nMin, int & nMax) const
{
    nMin = GetRangeMin();
    nMax = GetRangeMax();
}

void CSliderCtrl::SetRange(int nMin, int nMax, BOOL bRedraw)
{
    SetRangeMin(nMin, bRedraw);
    SetRangeMax(nMax, bRedraw);
}

void CSliderCtrl::GetSelection(int & nMin, int & nMax) const
{
    nMin = framework::Send<int>(m_hWnd, TBM_GETSELSTART);
    nMax = framework::Send<int>(m_hWnd, TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int nMin, int nMax)
{
    framework::Send(m_hWnd, TBM_SETSELSTART, FALSE, nMin);
    framework::Send(m_hWnd, TBM_SETSELEND, TRUE, nMax);
}

// CSpinButtonCtrl

CSpinButtonCtrl::CSpinButtonCtrl() = default;

CSpinButtonCtrl::~CSpinButtonCtrl()
{
    DestroyWindow();
}

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_UPDOWN_CLASS, UPDOWN_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControlEx(*this, ICC_UPDOWN_CLASS, dwExStyle, UPDOWN_CLASS, nullptr, dwStyle, rect,
                                      pParentWnd, nID);
}

int CSpinButtonCtrl::SetPos(int nPos)
{
    return static_cast<short>(LOWORD(framework::Send<DWORD>(m_hWnd, UDM_SETPOS, 0, MAKELPARAM(nPos, 0))));
}

void CSpinButtonCtrl::GetRange(int & lower, int & upper) const
{
    DWORD const range = GetRange();
    lower = static_cast<short>(HIWORD(range));
    upper = static_cast<short>(LOWORD(range));
}

// CToolTipCtrl

namespace
{
// The text that TTM_GETTEXT and TTM_GETTOOLINFO can give.
constexpr size_t tip_text_room = 32768;

// A tool for the messages: a window as a whole, or for an id a rectangle of the window.
TOOLINFO ToolOf(CWnd const * window, UINT_PTR id)
{
    TOOLINFO tool{};
    // The size without the last field, which the older version of the controls does not know.
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    HWND const handle = framework::HandleOf(window);
    if (id == 0)
    {
        tool.hwnd = ::GetParent(handle);
        tool.uFlags = TTF_IDISHWND;
        tool.uId = reinterpret_cast<UINT_PTR>(handle);
    }
    else
    {
        tool.hwnd = handle;
        tool.uId = id;
    }
    return tool;
}

// A text that the control loads itself, from the string table of the module that has it.
void SetTextId(TOOLINFO & tool, UINT textId)
{
    constexpr UINT strings_in_block = 16;
    tool.hinst = AfxFindResourceHandle(MAKEINTRESOURCE(textId / strings_in_block + 1), RT_STRING);
    tool.lpszText = MAKEINTRESOURCE(textId);
}
} // namespace

CToolTipCtrl::CToolTipCtrl() = default;

CToolTipCtrl::~CToolTipCtrl()
{
    DestroyWindow();
}

BOOL CToolTipCtrl::Create(CWnd * pParentWnd, DWORD dwStyle)
{
    return CreateEx(pParentWnd, dwStyle, 0);
}

BOOL CToolTipCtrl::CreateEx(CWnd * pParentWnd, DWORD dwStyle, DWORD dwStyleEx)
{
    framework::LoadControlClasses(ICC_BAR_CLASSES);
    BOOL const created =
        CWnd::CreateEx(dwStyleEx, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                       CW_USEDEFAULT, CW_USEDEFAULT, framework::HandleOf(pParentWnd), nullptr, nullptr);
    if (created)
        SetOwner(pParentWnd);
    return created;
}

BOOL CToolTipCtrl::AddTool(CWnd * pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    // A rectangle belongs to an id, and a whole window has none.
    ASSERT((lpRectTool != nullptr) == (nIDTool != 0));
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    if (lpRectTool != nullptr)
        tool.rect = *lpRectTool;
    SetTextId(tool, nIDText);
    return framework::Send<BOOL>(m_hWnd, TTM_ADDTOOL, 0, &tool);
}

BOOL CToolTipCtrl::AddTool(CWnd * pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    ASSERT((lpRectTool != nullptr) == (nIDTool != 0));
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    if (lpRectTool != nullptr)
        tool.rect = *lpRectTool;
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    return framework::Send<BOOL>(m_hWnd, TTM_ADDTOOL, 0, &tool);
}

void CToolTipCtrl::DelTool(CWnd * pWnd, UINT_PTR nIDTool)
{
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    framework::Send(m_hWnd, TTM_DELTOOL, 0, &tool);
}

void CToolTipCtrl::GetText(CString & str, CWnd * pWnd, UINT_PTR nIDTool) const
{
    std::vector<TCHAR> text(tip_text_room);
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    tool.lpszText = text.data();
    framework::Send(m_hWnd, TTM_GETTEXT, text.size(), &tool);
    str = text.data();
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo & ToolInfo, CWnd * pWnd, UINT_PTR nIDTool) const
{
    // The message knows no limit for the text.
    std::vector<TCHAR> text(tip_text_room);
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    tool.lpszText = text.data();
    BOOL const found = framework::Send<BOOL>(m_hWnd, TTM_GETTOOLINFO, 0, &tool);
    static_cast<TOOLINFO &>(ToolInfo) = tool;
    ToolInfo.szText[0] = 0;
    if (tool.lpszText == text.data())
    {
        lstrcpyn(ToolInfo.szText, text.data(), static_cast<int>(std::size(ToolInfo.szText)));
        ToolInfo.lpszText = ToolInfo.szText;
    }
    return found;
}

void CToolTipCtrl::SetToolRect(CWnd * pWnd, UINT_PTR nIDTool, LPCRECT lpRect)
{
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    tool.rect = *lpRect;
    framework::Send(m_hWnd, TTM_NEWTOOLRECT, 0, &tool);
}

CSize CToolTipCtrl::GetBubbleSize(LPTOOLINFO lpToolInfo) const
{
    return framework::SizeOf(framework::Send<DWORD>(m_hWnd, TTM_GETBUBBLESIZE, 0, lpToolInfo));
}

BOOL CToolTipCtrl::HitTest(CWnd * pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const
{
    TTHITTESTINFO info{};
    info.hwnd = framework::HandleOf(pWnd);
    info.pt = pt;
    info.ti.cbSize = TTTOOLINFOW_V2_SIZE;
    if (!framework::Send<BOOL>(m_hWnd, TTM_HITTEST, 0, &info))
        return FALSE;
    *lpToolInfo = info.ti;
    return TRUE;
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd * pWnd, UINT_PTR nIDTool)
{
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    framework::Send(m_hWnd, TTM_UPDATETIPTEXT, 0, &tool);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd * pWnd, UINT_PTR nIDTool)
{
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    SetTextId(tool, nIDText);
    framework::Send(m_hWnd, TTM_UPDATETIPTEXT, 0, &tool);
}
