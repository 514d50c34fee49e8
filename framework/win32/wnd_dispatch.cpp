// CWnd: how a message finds its handler in the message maps, and how the handler is called.

#include "afxpriv.h"
#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

#include <windowsx.h>
#undef SubclassWindow

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
using framework::ControlColour;

constexpr UINT first_registered_message = 0xC000;

CWnd * Window(WPARAM handle)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

CWnd * Window(LPARAM handle)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

CMenu * Menu(WPARAM handle)
{
    return CMenu::FromHandle(reinterpret_cast<HMENU>(handle));
}

CMenu * Menu(LPARAM handle)
{
    return CMenu::FromHandle(reinterpret_cast<HMENU>(handle));
}

CPoint Point(LPARAM packed)
{
    return CPoint(GET_X_LPARAM(packed), GET_Y_LPARAM(packed));
}

void * Pointer(LPARAM value)
{
    return reinterpret_cast<void *>(value);
}

/// Calls a handler whose type is known from its signature. Pointers are passed untyped; they are all alike.
class Caller
{
public:
    Caller(CWnd * window, AFX_PMSG handler) : m_window(window), m_handler(handler) {}

    template <class Result, class... Parameters> Result Call(Parameters... parameters) const
    {
        using Member = Result (CWnd::*)(Parameters...);
        return (m_window->*std::bit_cast<Member>(m_handler))(parameters...);
    }
    template <class... Parameters> void Do(Parameters... parameters) const { Call<void>(parameters...); }

private:
    CWnd * m_window;
    AFX_PMSG m_handler;
};

/// False if the handler leaves the message to the window's own procedure.
bool DispatchMessageEntry(CWnd * window, const AFX_MSGMAP_ENTRY & entry, WPARAM w, LPARAM l, LRESULT & result)
{
    Caller const handler(window, entry.pfn);
    auto const u = static_cast<UINT>(w);
    UINT const wl = LOWORD(w);
    UINT const wh = HIWORD(w);
    UINT const ll = LOWORD(l);
    UINT const lh = HIWORD(l);
    switch (entry.nSig)
    {
    case AfxSigMessage:
        result = handler.Call<LRESULT>(w, l);
        break;
    case AfxSig_v_v:
        handler.Do();
        break;
    case AfxSig_v_w:
        handler.Do(u);
        break;
    case AfxSig_v_wl:
        handler.Do(static_cast<unsigned short>(wl));
        break;
    case AfxSig_v_up:
        handler.Do(static_cast<UINT_PTR>(w));
        break;
    case AfxSig_v_b:
        handler.Do(static_cast<BOOL>(w));
        break;
    case AfxSig_v_s:
    case AfxSig_v_cs:
        handler.Do(Pointer(l));
        break;
    case AfxSig_v_h:
        handler.Do(reinterpret_cast<void *>(w));
        break;
    case AfxSig_v_W:
        handler.Do(Window(w));
        break;
    case AfxSig_v_W_l:
        handler.Do(Window(l));
        break;
    case AfxSig_v_D:
        handler.Do(CDC::FromHandle(reinterpret_cast<HDC>(w)));
        break;
    case AfxSig_v_M:
        handler.Do(Menu(w));
        break;
    case AfxSig_v_activate:
        handler.Do(wl, Window(l), static_cast<BOOL>(wh));
        break;
    case AfxSig_v_b_dw:
        handler.Do(static_cast<BOOL>(w), static_cast<DWORD>(l));
        break;
    case AfxSig_v_dw_b:
        handler.Do(static_cast<DWORD>(w), static_cast<BOOL>(l));
        break;
    case AfxSig_v_u_dw:
        handler.Do(u, static_cast<DWORD>(l));
        break;
    case AfxSig_v_u_s:
    case AfxSig_v_u_cs:
    case AfxSig_v_w_s:
        handler.Do(u, Pointer(l));
        break;
    case AfxSig_v_i_s:
        handler.Do(static_cast<int>(w), Pointer(l));
        break;
    case AfxSig_v_b_s:
        handler.Do(static_cast<BOOL>(w), Pointer(l));
        break;
    case AfxSig_v_b_l:
        handler.Do(static_cast<BOOL>(w), static_cast<UINT>(l));
        break;
    case AfxSig_v_h_h:
        handler.Do(reinterpret_cast<void *>(w), Pointer(l));
        break;
    case AfxSig_v_wl_wh:
        handler.Do(wl, wh);
        break;
    case AfxSig_v_w_ll:
        handler.Do(u, ll);
        break;
    case AfxSig_v_w_l:
        handler.Do(u, static_cast<UINT>(l));
        break;
    case AfxSig_v_w_lp:
        handler.Do(u, l);
        break;
    case AfxSig_v_w_ll_lh:
        handler.Do(u, ll, lh);
        break;
    case AfxSig_v_w_p:
        handler.Do(u, Point(l));
        break;
    case AfxSig_v_W_p:
        handler.Do(Window(w), Point(l));
        break;
    case AfxSig_v_W_h:
        handler.Do(Window(w), Pointer(l));
        break;
    case AfxSig_v_W_ll_lh:
        handler.Do(Window(w), ll, lh);
        break;
    case AfxSig_v_w_W:
        handler.Do(u, Window(l));
        break;
    case AfxSig_v_w_M:
        handler.Do(u, Menu(l));
        break;
    case AfxSig_v_M_lh:
        handler.Do(Menu(w), lh);
        break;
    case AfxSig_v_M_ll_lh:
        handler.Do(Menu(w), ll, static_cast<BOOL>(lh));
        break;
    case AfxSig_v_wl_wh_h:
        handler.Do(wl, wh, Pointer(l));
        break;
    case AfxSig_v_scroll:
        handler.Do(wl, wh, static_cast<CScrollBar *>(Window(l)));
        break;
    case AfxSig_v_rawinput:
        handler.Do(static_cast<UINT>(GET_RAWINPUT_CODE_WPARAM(w)), Pointer(l));
        break;
    case AfxSig_v_mdiactivate:
        handler.Do(static_cast<BOOL>(window->m_hWnd == reinterpret_cast<HWND>(l)), Window(l), Window(w));
        break;
    case AfxSig_v_wheel:
        handler.Do(wl, static_cast<short>(wh), Point(l));
        break;
    case AfxSig_v_move:
        handler.Do(GET_X_LPARAM(l), GET_Y_LPARAM(l));
        break;
    case AfxSig_v_size:
        handler.Do(u, static_cast<int>(ll), static_cast<int>(lh));
        break;
    case AfxSig_appcommand:
        handler.Do(Window(w), static_cast<UINT>(GET_APPCOMMAND_LPARAM(l)), static_cast<UINT>(GET_DEVICE_LPARAM(l)),
                   static_cast<UINT>(GET_KEYSTATE_LPARAM(l)));
        result = TRUE;
        break;
    case AfxSig_sizing:
        handler.Do(u, Pointer(l));
        result = TRUE;
        break;
    case AfxSig_owner:
        handler.Do(static_cast<int>(w), Pointer(l));
        result = TRUE;
        break;
    case AfxSig_owner_reflect:
        handler.Do(Pointer(l));
        result = TRUE;
        break;
    case AfxSig_xbutton:
        handler.Do(wl, wh, Point(l));
        result = TRUE;
        break;
    case AfxSig_ncxbutton:
        handler.Do(static_cast<short>(wl), wh, Point(l));
        result = TRUE;
        break;
    case AfxSig_b_v:
        result = handler.Call<BOOL>();
        break;
    case AfxSig_b_b:
        result = handler.Call<BOOL>(static_cast<BOOL>(w));
        break;
    case AfxSig_b_s:
        result = handler.Call<BOOL>(Pointer(l));
        break;
    case AfxSig_b_D:
        result = handler.Call<BOOL>(CDC::FromHandle(reinterpret_cast<HDC>(w)));
        break;
    case AfxSig_b_W_s:
        result = handler.Call<BOOL>(Window(w), Pointer(l));
        break;
    case AfxSig_b_W_ll_lh:
        result = handler.Call<BOOL>(Window(w), ll, lh);
        break;
    case AfxSig_b_w_dp:
        result = handler.Call<BOOL>(u, static_cast<DWORD_PTR>(l));
        break;
    case AfxSig_b_wheel:
        // A wheel turn that the handler has no use for goes on to the parents, as by default.
        result = handler.Call<BOOL>(wl, static_cast<short>(wh), Point(l));
        return result != 0;
    case AfxSig_i_s:
        result = handler.Call<int>(Pointer(l));
        break;
    case AfxSig_i_i_s:
        result = handler.Call<int>(static_cast<int>(w), Pointer(l));
        break;
    case AfxSig_i_wl_wh:
        result = handler.Call<int>(wl, wh);
        break;
    case AfxSig_i_wl_L_wh:
        result = handler.Call<int>(wl, static_cast<CListBox *>(Window(l)), wh);
        break;
    case AfxSig_i_W_ll_lh:
        result = handler.Call<int>(Window(w), ll, lh);
        break;
    case AfxSig_u_v:
        result = handler.Call<UINT>();
        break;
    case AfxSig_u_s:
        result = handler.Call<UINT>(Pointer(l));
        break;
    case AfxSig_u_w_l:
        result = handler.Call<UINT>(u, static_cast<UINT>(l));
        break;
    case AfxSig_u_w_M:
        result = handler.Call<UINT>(u, Menu(l));
        break;
    case AfxSig_u_W_l:
        result = handler.Call<UINT>(Window(w), static_cast<UINT>(l));
        break;
    case AfxSig_l_p:
        result = handler.Call<LRESULT>(Point(l));
        break;
    case AfxSig_l_wl_wh_M:
        result = handler.Call<LRESULT>(wl, wh, Menu(l));
        break;
    case AfxSig_h_v:
        result = reinterpret_cast<LRESULT>(handler.Call<HCURSOR>());
        break;
    case AfxSig_ctlcolor: {
        auto const & colour = *reinterpret_cast<ControlColour *>(l);
        result = reinterpret_cast<LRESULT>(
            handler.Call<HBRUSH>(CDC::FromHandle(colour.dc), CWnd::FromHandle(colour.control), colour.kind));
        break;
    }
    case AfxSig_ctlcolor_reflect: {
        auto const & colour = *reinterpret_cast<ControlColour *>(l);
        result = reinterpret_cast<LRESULT>(handler.Call<HBRUSH>(CDC::FromHandle(colour.dc), colour.kind));
        break;
    }
    default:
        ASSERT(FALSE); // a command's signature in a message's entry
        return false;
    }
    return true;
}
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
    for (auto map = GetMessageMap(); map->pfnGetBaseMap != nullptr; map = map->pfnGetBaseMap())
    {
        if (message < first_registered_message)
        {
            auto const entry = framework::FindEntry(map->lpEntries, message, 0, 0);
            if (entry == nullptr)
                continue;
            return DispatchMessageEntry(this, *entry, wParam, lParam, result) ? answer() : FALSE;
        }
        for (auto entry = map->lpEntries;
             (entry = framework::FindEntry(entry, first_registered_message, 0, 0)) != nullptr; ++entry)
        {
            if (*reinterpret_cast<UINT const *>(entry->nSig) != message)
                continue;
            result = Caller(this, entry->pfn).Call<LRESULT>(wParam, lParam);
            return answer();
        }
    }
    return FALSE;
}
