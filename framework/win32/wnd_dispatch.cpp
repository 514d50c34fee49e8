// CWnd: how a message finds its handler in the message maps.

#include "afxpriv.h"

#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

// clang-format off
BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_MESSAGE(WM_CTLCOLORMSGBOX, &CWnd::OnNtCtlColor)
    ON_MESSAGE(WM_CTLCOLOREDIT, &CWnd::OnNtCtlColor)
    ON_MESSAGE(WM_CTLCOLORLISTBOX, &CWnd::OnNtCtlColor)
    ON_MESSAGE(WM_CTLCOLORBTN, &CWnd::OnNtCtlColor)
    ON_MESSAGE(WM_CTLCOLORDLG, &CWnd::OnNtCtlColor)
    ON_MESSAGE(WM_CTLCOLORSCROLLBAR, &CWnd::OnNtCtlColor)
    ON_MESSAGE(WM_CTLCOLORSTATIC, &CWnd::OnNtCtlColor)
    ON_MESSAGE(WM_DISPLAYCHANGE, &CWnd::OnDisplayChange)
    ON_MESSAGE(WM_TOUCH, &CWnd::OnTouchMessage)
    ON_WM_CTLCOLOR()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_PARENTNOTIFY()
    ON_WM_NCDESTROY()
    ON_WM_SETTINGCHANGE()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_HELPINFO()
END_MESSAGE_MAP()
// clang-format on

namespace
{
constexpr UINT first_registered_message = 0xC000;
} // namespace

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    LRESULT result = 0;
    auto const answer = [&result, pResult] {
        if (pResult != nullptr)
            *pResult = result;
        return TRUE;
    };
    switch (message)
    {
    case WM_COMMAND:
        if (!OnCommand(wParam, lParam))
            return FALSE;
        result = 1;
        return answer();
    case WM_NOTIFY:
        if (reinterpret_cast<NMHDR *>(lParam)->hwndFrom == nullptr || !OnNotify(wParam, lParam, &result))
            return FALSE;
        return answer();
    case WM_ACTIVATE: {
        HWND const window = m_hWnd;
        HandleActivate(wParam, lParam);
        if (FromHandlePermanent(window) != this)
            return answer(); // a handler has ended the window or the object
        break;
    }
    case WM_SETCURSOR:
        if (HandleSetCursor(lParam))
        {
            result = TRUE;
            return answer();
        }
        break;
    case WM_INITMENU:
        framework::CurrentThreadState().menuInUse = reinterpret_cast<HMENU>(wParam);
        break;
    default:
        break;
    }
    for (AFX_MSGMAP const * map = GetMessageMap(); map->pfnGetBaseMap != nullptr; map = map->pfnGetBaseMap())
    {
        if (message < first_registered_message)
        {
            AFX_MSGMAP_ENTRY const * const entry = framework::FindEntry(map->lpEntries, message, 0, 0);
            if (entry == nullptr)
                continue;
            auto const call = framework::DecodingOf(*entry).message;
            ASSERT(call != nullptr); // a command's entry
            return call != nullptr && call({*this, wParam, lParam}, entry->pfn, result) ? answer() : FALSE;
        }
        for (AFX_MSGMAP_ENTRY const * entry = map->lpEntries;
             (entry = framework::FindEntry(entry, first_registered_message, 0, 0)) != nullptr; ++entry)
        {
            if (*reinterpret_cast<UINT const *>(entry->nSig) != message)
                continue;
            result = (this->*std::bit_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(entry->pfn))(wParam, lParam);
            return answer();
        }
    }
    return FALSE;
}
