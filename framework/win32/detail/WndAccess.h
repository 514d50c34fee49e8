#pragma once
// The framework's own way to what CWnd keeps private. Inside framework.dll only.

#include <afxwin.h>

namespace framework
{
enum WndFlags : UINT
{
    wnd_tool_tips = 0x0001,
    wnd_tracking_tool_tips = 0x0002,
    wnd_modal_loop = 0x0010,
    wnd_continue_modal = 0x0020,
    wnd_owned_by_temporary_map = 0x0100
};

struct WndAccess
{
    static UINT & Flags(CWnd & window) { return window.m_nFlags; }
    static WNDPROC & SuperProcedure(CWnd & window) { return window.m_pfnSuper; }
    static int ModalResult(CWnd const & window) { return window.m_nModalResult; }
    static bool IsFrame(CWnd const & window) { return window.IsFrameWnd() != FALSE; }
    static void SubclassCreated(CWnd & window, HWND handle) { window.SubclassCreated(handle); }
    static LRESULT CallWindowProc(CWnd & window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return window.WindowProc(message, wParam, lParam);
    }
};

/// The handle of a window that may be missing.
inline HWND SafeHandle(CWnd const * window)
{
    return window != nullptr ? window->m_hWnd : nullptr;
}

/// Offers a message to the objects from the window up to the last window, and says whether one took it.
FRAMEWORK_API BOOL WalkPreTranslateTree(HWND last, MSG * message);
FRAMEWORK_API void SendMessageToDescendants(HWND window, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                                            BOOL onlyPermanent);
/// The window that a modal window can belong to. topLevel, if given, gets the window that was disabled, or null.
FRAMEWORK_API HWND FindSafeOwner(HWND parent, HWND * topLevel);
/// Shows the user what a handler of the message threw, as far as it's his business.
void ReportHandlerException(CException & exception, MSG const & message);
/// The first entry of a map for a message, without its base maps. Null if there is none.
const AFX_MSGMAP_ENTRY * FindEntry(const AFX_MSGMAP_ENTRY * entries, UINT message, UINT code, UINT id);
} // namespace framework
