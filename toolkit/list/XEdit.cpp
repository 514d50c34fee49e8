#include "list/XEdit.h"

#include "frame/InternalMessages.h"

#include <utility>

namespace XListCtrl
{
namespace
{
constexpr COLORREF frame_color = 0x996633;
constexpr int frame_widening = 2;

/// Whether the object is still there: with its window it is, and whoever ends it ends that.
bool IsStillThere(HWND window, CWnd const * object)
{
    return ::IsWindow(window) && CWnd::FromHandlePermanent(window) == object;
}
} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CXEdit, CEdit)
    ON_WM_CHAR()
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_KILLFOCUS()
    ON_WM_PAINT()
END_MESSAGE_MAP()
// clang-format on

BOOL CXEdit::PreTranslateMessage(MSG * message)
{
    if (message->message == WM_KEYDOWN && (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE))
    {
        SendClosing(message->wParam == VK_RETURN ? WM_XEDIT_KILL_FOCUS : WM_XEDIT_VK_ESCAPE);
        return TRUE;
    }
    return CEdit::PreTranslateMessage(message);
}

void CXEdit::OnChar(UINT character, UINT repeat, UINT flags)
{
    if (m_list != nullptr && (character == VK_RETURN || character == VK_ESCAPE))
        SendClosing(character == VK_RETURN ? WM_XEDIT_KILL_FOCUS : WM_XEDIT_VK_ESCAPE);
    else
        CEdit::OnChar(character, repeat, flags);
}

int CXEdit::OnCreate(LPCREATESTRUCT create)
{
    if (CEdit::OnCreate(create) == -1)
        return -1;
    if (m_list == nullptr)
        m_list = GetParent();
    if (m_list == nullptr || !::IsWindow(m_list->m_hWnd))
        m_list = nullptr;
    else
        SetFont(m_list->GetFont());
    HWND const window = m_hWnd;
    SetWindowText(m_text);
    SetSel(0, -1);
    // Whoever loses the focus may end the window, and then it captures nothing.
    SetFocus();
    if (m_hWnd == window && ::IsWindow(window))
        SetCapture();
    return 0;
}

void CXEdit::OnDestroy()
{
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    CEdit::OnDestroy();
}

void CXEdit::OnKillFocus(CWnd * newWindow)
{
    // The host hears of the loss as well.
    HWND const window = m_hWnd;
    CEdit::OnKillFocus(newWindow);
    if (IsStillThere(window, this))
        SendClosing(WM_XEDIT_KILL_FOCUS);
}

void CXEdit::OnPaint()
{
    HWND const window = m_hWnd;
    CRect area;
    GetClientRect(&area);
    area.right += frame_widening;
    if (CDC * const dc = GetDC())
    {
        dc->FillSolidRect(&area, ::GetSysColor(COLOR_WINDOW));
        ReleaseDC(dc);
    }
    Default();
    // The list is asked for colours, and is anything its host makes of it.
    if (IsStillThere(window, this))
        PaintFrame();
}

void CXEdit::PaintFrame()
{
    CWnd * const parent = GetParent();
    CDC * const dc = parent != nullptr ? parent->GetDC() : nullptr;
    if (dc == nullptr)
        return;
    CRect area;
    GetClientRect(&area);
    MapWindowPoints(parent, &area);
    area.right += frame_widening;
    area.InflateRect(1, 1, 0, 1);
    CPen pen(PS_SOLID, 1, frame_color);
    CPen * const formerPen = dc->SelectObject(&pen);
    CGdiObject * const formerBrush = dc->SelectStockObject(HOLLOW_BRUSH);
    dc->Rectangle(&area);
    dc->SelectObject(static_cast<CBrush *>(formerBrush));
    dc->SelectObject(formerPen);
    parent->ReleaseDC(dc);
}

void CXEdit::SendClosing(UINT message)
{
    bool const first = std::exchange(m_closing, 1) == 0;
    if (first && m_list != nullptr && ::IsWindow(m_list->m_hWnd))
        m_list->SendMessage(message);
}
} // namespace XListCtrl
