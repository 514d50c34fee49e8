#include "list/XEdit.h"

#include <utility>

#include "colours/ControlColors.h"
#include "frame/GraphicsScopes.h"
#include "frame/InternalMessages.h"
#include "layout/Resolution.h"

namespace XListCtrl
{
namespace
{
constexpr int frame_widening = 2; // pixels at 96 dots an inch
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

void CXEdit::Close()
{
    SetClosing();
    m_list = nullptr;
    if (std::exchange(m_isClosed, true) || !::IsWindow(m_hWnd))
        return;
    if (m_native == 0)
    {
        DestroyWindow();
        return;
    }
    m_windowWaits = true;
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    HWND const window = m_hWnd;
    ::ShowWindow(window, SW_HIDE);
    // The list, or a window above it, may be ending: the edit does not go with them.
    if (::IsWindow(window))
    {
        ModifyStyleEx(0, WS_EX_NOPARENTNOTIFY);
        ::SetParent(window, HWND_MESSAGE);
    }
}

void CXEdit::End()
{
    Close();
    m_isEnded = true;
    if (m_messages == 0)
        delete this;
}

LRESULT CXEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    ++m_messages;
    LRESULT const result = CEdit::WindowProc(message, wParam, lParam);
    if (m_messages == 1 && std::exchange(m_windowWaits, false) && ::IsWindow(m_hWnd))
        DestroyWindow();
    if (--m_messages == 0 && m_isEnded)
        delete this;
    return result;
}

LRESULT CXEdit::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    ++m_native;
    LRESULT const result = CEdit::DefWindowProc(message, wParam, lParam);
    --m_native;
    return result;
}

BOOL CXEdit::PreTranslateMessage(MSG * message)
{
    if (message->message == WM_KEYDOWN && (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE))
    {
        SendClosing(message->wParam == VK_RETURN ? WM_XEDIT_KILL_FOCUS : WM_XEDIT_VK_ESCAPE);
        return TRUE;
    }
    if (message->message == WM_KEYDOWN && message->wParam == VK_TAB && m_tabsToList && m_list != nullptr)
    {
        HWND const list = m_list->m_hWnd;
        LPARAM const flags = message->lParam;
        SendClosing(WM_XEDIT_KILL_FOCUS);
        // By the queue, so that a dialog gets the key where the list has no use for it.
        ::PostMessageW(list, WM_KEYDOWN, VK_TAB, flags);
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
    if (m_hWnd == window)
        SendClosing(WM_XEDIT_KILL_FOCUS);
}

void CXEdit::OnPaint()
{
    CRect area;
    GetClientRect(&area);
    area.right += resolution::Scaled(frame_widening, m_dpi);
    {
        ClientContext const context(*this);
        if (CDC * const dc = context.Get())
            dc->FillSolidRect(&area, control_colors::Of(m_hWnd).window);
    }
    Default();
    // The list has been asked for colours, and its host may have ended it or the edit.
    if (m_hWnd != nullptr && !m_isClosed)
        PaintFrame();
}

void CXEdit::PaintFrame()
{
    CWnd * const parent = GetParent();
    if (parent == nullptr)
        return;
    ClientContext const context(*parent);
    CDC * const dc = context.Get();
    if (dc == nullptr)
        return;
    CRect area;
    GetClientRect(&area);
    MapWindowPoints(parent, &area);
    area.right += resolution::Scaled(frame_widening, m_dpi);
    int const width = resolution::LineWidth(1, m_dpi);
    area.InflateRect(width, width, 0, width);
    CPen pen(width == 1 ? PS_SOLID : PS_INSIDEFRAME, width, control_colors::Of(m_hWnd).editFrame);
    SelectScope const penScope(*dc, pen.GetSafeHandle());
    SelectScope const brushScope(*dc, ::GetStockObject(HOLLOW_BRUSH));
    dc->Rectangle(&area);
}

void CXEdit::SendClosing(UINT message)
{
    bool const first = std::exchange(m_closing, 1) == 0;
    if (first && m_list != nullptr && ::IsWindow(m_list->m_hWnd))
        m_list->SendMessage(message);
}
} // namespace XListCtrl
