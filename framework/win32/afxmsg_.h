#pragma once
// Message maps: the entries' signatures and the macros that write the entries.
//
// Each macro checks the handler's type with a static_cast and stores it as the general AFX_PMSG; the signature tells
// the dispatcher which type it really has and how to unpack WPARAM and LPARAM for it.

#include "detail/cmdtarget.h"

#include <bit>

/// How a handler is called. Within the names: before the first underscore the result (v none, b BOOL, i int, u UINT,
/// l LRESULT, h handle), then what it takes: w WPARAM, wl and wh its words, l, ll and lh likewise of LPARAM, W CWnd,
/// D CDC, M CMenu, L CListBox, p point, s pointer, h handle. A name without such letters stands for one message.
enum AfxSig : UINT_PTR
{
    AfxSig_end = 0,

    AfxSigMessage, // LRESULT (WPARAM, LPARAM)
    AfxSigThread,  // void (WPARAM, LPARAM) of a CWinThread
    AfxSigCmd_v,   // void ()
    AfxSigCmd_b,   // BOOL ()
    AfxSigCmd_RANGE,
    AfxSigCmd_EX,
    AfxSigNotify_v,
    AfxSigNotify_b,
    AfxSigNotify_RANGE,
    AfxSigNotify_EX,
    AfxSigCmdUI,
    AfxSigCmdUI_REFLECT,

    AfxSig_v_activate,
    AfxSig_v_b_dw,
    AfxSig_appcommand,
    AfxSig_v_u_s,
    AfxSig_v_v,
    AfxSig_v_W_l,
    AfxSig_v_h_h,
    AfxSig_v_wl_wh,
    AfxSig_v_w_ll_lh,
    AfxSig_i_wl_L_wh,
    AfxSig_v_w,
    AfxSig_i_i_s,
    AfxSig_v_W_p,
    AfxSig_b_W_s,
    AfxSig_i_s,
    AfxSig_ctlcolor,
    AfxSig_owner,
    AfxSig_b_w_dp,
    AfxSig_v_s,
    AfxSig_v_h,
    AfxSig_v_dw_b,
    AfxSig_v_b,
    AfxSig_v_w_W,
    AfxSig_b_D,
    AfxSig_u_v,
    AfxSig_b_s,
    AfxSig_v_scroll,
    AfxSig_v_W_ll_lh,
    AfxSig_v_D,
    AfxSig_v_M,
    AfxSig_v_M_ll_lh,
    AfxSig_v_rawinput,
    AfxSig_v_wl,
    AfxSig_v_w_l,
    AfxSig_v_W,
    AfxSig_v_w_p,
    AfxSig_v_mdiactivate,
    AfxSig_l_wl_wh_M,
    AfxSig_u_w_M,
    AfxSig_u_s,
    AfxSig_v_w_M,
    AfxSig_v_wl_wh_h,
    AfxSig_i_W_ll_lh,
    AfxSig_v_wheel,
    AfxSig_b_wheel,
    AfxSig_v_move,
    AfxSig_sizing,
    AfxSig_b_b,
    AfxSig_v_b_s,
    AfxSig_l_p,
    AfxSig_ncxbutton,
    AfxSig_v_w_s,
    AfxSig_u_W_l,
    AfxSig_v_W_h,
    AfxSig_v_w_lp,
    AfxSig_u_w_l,
    AfxSig_h_v,
    AfxSig_b_v,
    AfxSig_b_W_ll_lh,
    AfxSig_v_u_cs,
    AfxSig_v_b_l,
    AfxSig_v_size,
    AfxSig_v_w_ll,
    AfxSig_v_i_s,
    AfxSig_v_u_dw,
    AfxSig_v_up,
    AfxSig_v_M_lh,
    AfxSig_v_cs,
    AfxSig_xbutton,
    AfxSig_i_wl_wh,
    AfxSig_ctlcolor_reflect,
    AfxSig_owner_reflect,
};

#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019 // stands for all the WM_CTLCOLOR... messages in message maps
#endif
#ifndef WM_REFLECT_BASE
#define WM_REFLECT_BASE 0xBC00 // added to a notification that the parent hands back to its control
#endif

#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI (static_cast<UINT>(-1))

namespace framework
{
/// The handler as the general type that message-map entries keep.
template <class Handler> AFX_PMSG EraseHandlerType(Handler handler) noexcept
{
    static_assert(sizeof(Handler) == sizeof(AFX_PMSG), "handlers are members of classes with one CCmdTarget base");
    return std::bit_cast<AFX_PMSG>(handler);
}
} // namespace framework

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP * theClass::GetMessageMap() const                                                                 \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP * PASCAL theClass::GetThisMessageMap()                                                            \
    {                                                                                                                  \
        using ThisClass [[maybe_unused]] = theClass;                                                                   \
        using TheBaseClass = baseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                                     \
    template <typename type_name> const AFX_MSGMAP * theClass<type_name>::GetMessageMap() const                        \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    template <typename type_name> const AFX_MSGMAP * PASCAL theClass<type_name>::GetThisMessageMap()                   \
    {                                                                                                                  \
        using ThisClass [[maybe_unused]] = theClass<type_name>;                                                        \
        using TheBaseClass = baseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, 0, AfxSig_end, nullptr                                                                                \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &_messageEntries[0]};                      \
    return &messageMap;                                                                                                \
    }

// One entry for a window message, whose handler has a fixed name.
#define AFX_WND_ENTRY(message, signature, prototype, member)                                                           \
    {message, 0, 0, 0, signature, framework::EraseHandlerType(static_cast<prototype>(&ThisClass::member))},

// One entry for commands and notifications of the ids from first to last.
#define AFX_CMD_ENTRY(message, code, first, last, signature, prototype, memberFxn)                                     \
    {message,                                                                                                          \
     code,                                                                                                             \
     static_cast<WORD>(first),                                                                                         \
     static_cast<WORD>(last),                                                                                          \
     signature,                                                                                                        \
     framework::EraseHandlerType(static_cast<prototype>(memberFxn))},

#define AFX_NOTIFY_CODE(code) static_cast<WORD>(static_cast<int>(code))

// Commands
#define ON_COMMAND(id, memberFxn)                                                                                      \
    AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_v, void (CCmdTarget::*)(), memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_RANGE, void (CCmdTarget::*)(UINT), memberFxn)
#define ON_COMMAND_EX(id, memberFxn)                                                                                   \
    AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_EX, BOOL (CCmdTarget::*)(UINT), memberFxn)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                                     \
    AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_EX, BOOL (CCmdTarget::*)(UINT), memberFxn)
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                            \
    AFX_CMD_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, AfxSigCmdUI, void (CCmdTarget::*)(CCmdUI *), memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                              \
    AFX_CMD_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, AfxSigCmdUI, void (CCmdTarget::*)(CCmdUI *), memberFxn)
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                                        \
    AFX_CMD_ENTRY(WM_COMMAND + WM_REFLECT_BASE, AFX_NOTIFY_CODE(CN_UPDATE_COMMAND_UI), 0, 0, AfxSigCmdUI_REFLECT,      \
                  void(CCmdTarget::*)(CCmdUI *), memberFxn)

// Control notifications
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                                         \
    AFX_CMD_ENTRY(WM_COMMAND, AFX_NOTIFY_CODE(wNotifyCode), id, id, AfxSigCmd_v, void (CCmdTarget::*)(), memberFxn)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                           \
    AFX_CMD_ENTRY(WM_COMMAND, AFX_NOTIFY_CODE(wNotifyCode), id, idLast, AfxSigCmd_RANGE, void (CCmdTarget::*)(UINT),   \
                  memberFxn)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                                     \
    AFX_CMD_ENTRY(WM_COMMAND + WM_REFLECT_BASE, AFX_NOTIFY_CODE(wNotifyCode), 0, 0, AfxSigCmd_v,                       \
                  void(CCmdTarget::*)(), memberFxn)
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                                  \
    AFX_CMD_ENTRY(WM_COMMAND + WM_REFLECT_BASE, AFX_NOTIFY_CODE(wNotifyCode), 0, 0, AfxSigCmd_b,                       \
                  BOOL(CCmdTarget::*)(), memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                          \
    AFX_CMD_ENTRY(WM_NOTIFY, AFX_NOTIFY_CODE(wNotifyCode), id, id, AfxSigNotify_v,                                     \
                  void (CCmdTarget::*)(NMHDR *, LRESULT *), memberFxn)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                            \
    AFX_CMD_ENTRY(WM_NOTIFY, AFX_NOTIFY_CODE(wNotifyCode), id, idLast, AfxSigNotify_RANGE,                             \
                  void (CCmdTarget::*)(UINT, NMHDR *, LRESULT *), memberFxn)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                                       \
    AFX_CMD_ENTRY(WM_NOTIFY, AFX_NOTIFY_CODE(wNotifyCode), id, id, AfxSigNotify_EX,                                    \
                  BOOL (CCmdTarget::*)(UINT, NMHDR *, LRESULT *), memberFxn)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                                         \
    AFX_CMD_ENTRY(WM_NOTIFY, AFX_NOTIFY_CODE(wNotifyCode), id, idLast, AfxSigNotify_EX,                                \
                  BOOL (CCmdTarget::*)(UINT, NMHDR *, LRESULT *), memberFxn)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                                      \
    AFX_CMD_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, AFX_NOTIFY_CODE(wNotifyCode), 0, 0, AfxSigNotify_v,                     \
                  void(CCmdTarget::*)(NMHDR *, LRESULT *), memberFxn)
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                                   \
    AFX_CMD_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, AFX_NOTIFY_CODE(wNotifyCode), 0, 0, AfxSigNotify_b,                     \
                  BOOL(CCmdTarget::*)(NMHDR *, LRESULT *), memberFxn)

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_BN_PAINT(id, memberFxn) ON_CONTROL(BN_PAINT, id, memberFxn)
#define ON_BN_HILITE(id, memberFxn) ON_CONTROL(BN_HILITE, id, memberFxn)
#define ON_BN_UNHILITE(id, memberFxn) ON_CONTROL(BN_UNHILITE, id, memberFxn)
#define ON_BN_DISABLE(id, memberFxn) ON_CONTROL(BN_DISABLE, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_EN_ALIGN_LTR_EC(id, memberFxn) ON_CONTROL(EN_ALIGN_LTR_EC, id, memberFxn)
#define ON_EN_ALIGN_RTL_EC(id, memberFxn) ON_CONTROL(EN_ALIGN_RTL_EC, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)

// Messages by number. A registered message's entry keeps the address of the variable that holds its number.
#define ON_MESSAGE(message, memberFxn)                                                                                 \
    {message,                                                                                                          \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSigMessage,                                                                                                    \
     framework::EraseHandlerType(static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn))},
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                             \
    {0xC000,                                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     reinterpret_cast<UINT_PTR>(&nMessageVariable),                                                                    \
     framework::EraseHandlerType(static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn))},
#define ON_THREAD_MESSAGE(message, memberFxn)                                                                          \
    {message,                                                                                                          \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSigThread,                                                                                                     \
     framework::EraseHandlerType(static_cast<void (CWinThread::*)(WPARAM, LPARAM)>(memberFxn))},
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn)                                                      \
    {0xC000,                                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     reinterpret_cast<UINT_PTR>(&nMessageVariable),                                                                    \
     framework::EraseHandlerType(static_cast<void (CWinThread::*)(WPARAM, LPARAM)>(memberFxn))},

// Window messages
#define ON_WM_ACTIVATE() AFX_WND_ENTRY(WM_ACTIVATE, AfxSig_v_activate, void (CWnd::*)(UINT, CWnd *, BOOL), OnActivate)
#define ON_WM_ACTIVATEAPP() AFX_WND_ENTRY(WM_ACTIVATEAPP, AfxSig_v_b_dw, void (CWnd::*)(BOOL, DWORD), OnActivateApp)
#define ON_WM_APPCOMMAND()                                                                                             \
    AFX_WND_ENTRY(WM_APPCOMMAND, AfxSig_appcommand, void (CWnd::*)(CWnd *, UINT, UINT, UINT), OnAppCommand)
#define ON_WM_ASKCBFORMATNAME()                                                                                        \
    AFX_WND_ENTRY(WM_ASKCBFORMATNAME, AfxSig_v_u_s, void (CWnd::*)(UINT, LPTSTR), OnAskCbFormatName)
#define ON_WM_CANCELMODE() AFX_WND_ENTRY(WM_CANCELMODE, AfxSig_v_v, void (CWnd::*)(), OnCancelMode)
#define ON_WM_CAPTURECHANGED() AFX_WND_ENTRY(WM_CAPTURECHANGED, AfxSig_v_W_l, void (CWnd::*)(CWnd *), OnCaptureChanged)
#define ON_WM_CHANGECBCHAIN() AFX_WND_ENTRY(WM_CHANGECBCHAIN, AfxSig_v_h_h, void (CWnd::*)(HWND, HWND), OnChangeCbChain)
#define ON_WM_CHANGEUISTATE()                                                                                          \
    AFX_WND_ENTRY(WM_CHANGEUISTATE, AfxSig_v_wl_wh, void (CWnd::*)(UINT, UINT), OnChangeUIState)
#define ON_WM_CHAR() AFX_WND_ENTRY(WM_CHAR, AfxSig_v_w_ll_lh, void (CWnd::*)(UINT, UINT, UINT), OnChar)
#define ON_WM_CHARTOITEM()                                                                                             \
    AFX_WND_ENTRY(WM_CHARTOITEM, AfxSig_i_wl_L_wh, int (CWnd::*)(UINT, CListBox *, UINT), OnCharToItem)
#define ON_WM_CHILDACTIVATE() AFX_WND_ENTRY(WM_CHILDACTIVATE, AfxSig_v_v, void (CWnd::*)(), OnChildActivate)
#define ON_WM_CLIPBOARDUPDATE() AFX_WND_ENTRY(WM_CLIPBOARDUPDATE, AfxSig_v_v, void (CWnd::*)(), OnClipboardUpdate)
#define ON_WM_CLOSE() AFX_WND_ENTRY(WM_CLOSE, AfxSig_v_v, void (CWnd::*)(), OnClose)
#define ON_WM_COMPACTING() AFX_WND_ENTRY(WM_COMPACTING, AfxSig_v_w, void (CWnd::*)(UINT), OnCompacting)
#define ON_WM_COMPAREITEM()                                                                                            \
    AFX_WND_ENTRY(WM_COMPAREITEM, AfxSig_i_i_s, int (CWnd::*)(int, LPCOMPAREITEMSTRUCT), OnCompareItem)
#define ON_WM_CONTEXTMENU() AFX_WND_ENTRY(WM_CONTEXTMENU, AfxSig_v_W_p, void (CWnd::*)(CWnd *, CPoint), OnContextMenu)
#define ON_WM_COPYDATA() AFX_WND_ENTRY(WM_COPYDATA, AfxSig_b_W_s, BOOL (CWnd::*)(CWnd *, COPYDATASTRUCT *), OnCopyData)
#define ON_WM_CREATE() AFX_WND_ENTRY(WM_CREATE, AfxSig_i_s, int (CWnd::*)(LPCREATESTRUCT), OnCreate)
#define ON_WM_CTLCOLOR() AFX_WND_ENTRY(WM_CTLCOLOR, AfxSig_ctlcolor, HBRUSH (CWnd::*)(CDC *, CWnd *, UINT), OnCtlColor)
#define ON_WM_DEADCHAR() AFX_WND_ENTRY(WM_DEADCHAR, AfxSig_v_w_ll_lh, void (CWnd::*)(UINT, UINT, UINT), OnDeadChar)
#define ON_WM_DELETEITEM()                                                                                             \
    AFX_WND_ENTRY(WM_DELETEITEM, AfxSig_owner, void (CWnd::*)(int, LPDELETEITEMSTRUCT), OnDeleteItem)
#define ON_WM_DESTROY() AFX_WND_ENTRY(WM_DESTROY, AfxSig_v_v, void (CWnd::*)(), OnDestroy)
#define ON_WM_DESTROYCLIPBOARD() AFX_WND_ENTRY(WM_DESTROYCLIPBOARD, AfxSig_v_v, void (CWnd::*)(), OnDestroyClipboard)
#define ON_WM_DEVICECHANGE()                                                                                           \
    AFX_WND_ENTRY(WM_DEVICECHANGE, AfxSig_b_w_dp, BOOL (CWnd::*)(UINT, DWORD_PTR), OnDeviceChange)
#define ON_WM_DEVMODECHANGE() AFX_WND_ENTRY(WM_DEVMODECHANGE, AfxSig_v_s, void (CWnd::*)(LPTSTR), OnDevModeChange)
#define ON_WM_DRAWCLIPBOARD() AFX_WND_ENTRY(WM_DRAWCLIPBOARD, AfxSig_v_v, void (CWnd::*)(), OnDrawClipboard)
#define ON_WM_DRAWITEM() AFX_WND_ENTRY(WM_DRAWITEM, AfxSig_owner, void (CWnd::*)(int, LPDRAWITEMSTRUCT), OnDrawItem)
#define ON_WM_DROPFILES() AFX_WND_ENTRY(WM_DROPFILES, AfxSig_v_h, void (CWnd::*)(HDROP), OnDropFiles)
#define ON_WM_DWMCOLORIZATIONCOLORCHANGED()                                                                            \
    AFX_WND_ENTRY(WM_DWMCOLORIZATIONCOLORCHANGED, AfxSig_v_dw_b, void (CWnd::*)(DWORD, BOOL),                          \
                  OnColorizationColorChanged)
#define ON_WM_DWMCOMPOSITIONCHANGED()                                                                                  \
    AFX_WND_ENTRY(WM_DWMCOMPOSITIONCHANGED, AfxSig_v_v, void (CWnd::*)(), OnCompositionChanged)
#define ON_WM_DWMNCRENDERINGCHANGED()                                                                                  \
    AFX_WND_ENTRY(WM_DWMNCRENDERINGCHANGED, AfxSig_v_b, void (CWnd::*)(BOOL), OnNcRenderingChanged)
#define ON_WM_DWMWINDOWMAXIMIZEDCHANGE()                                                                               \
    AFX_WND_ENTRY(WM_DWMWINDOWMAXIMIZEDCHANGE, AfxSig_v_b, void (CWnd::*)(BOOL), OnWindowMaximizedChanged)
#define ON_WM_ENABLE() AFX_WND_ENTRY(WM_ENABLE, AfxSig_v_b, void (CWnd::*)(BOOL), OnEnable)
#define ON_WM_ENDSESSION() AFX_WND_ENTRY(WM_ENDSESSION, AfxSig_v_b, void (CWnd::*)(BOOL), OnEndSession)
#define ON_WM_ENTERIDLE() AFX_WND_ENTRY(WM_ENTERIDLE, AfxSig_v_w_W, void (CWnd::*)(UINT, CWnd *), OnEnterIdle)
#define ON_WM_ENTERMENULOOP() AFX_WND_ENTRY(WM_ENTERMENULOOP, AfxSig_v_b, void (CWnd::*)(BOOL), OnEnterMenuLoop)
#define ON_WM_ENTERSIZEMOVE() AFX_WND_ENTRY(WM_ENTERSIZEMOVE, AfxSig_v_v, void (CWnd::*)(), OnEnterSizeMove)
#define ON_WM_ERASEBKGND() AFX_WND_ENTRY(WM_ERASEBKGND, AfxSig_b_D, BOOL (CWnd::*)(CDC *), OnEraseBkgnd)
#define ON_WM_EXITMENULOOP() AFX_WND_ENTRY(WM_EXITMENULOOP, AfxSig_v_b, void (CWnd::*)(BOOL), OnExitMenuLoop)
#define ON_WM_EXITSIZEMOVE() AFX_WND_ENTRY(WM_EXITSIZEMOVE, AfxSig_v_v, void (CWnd::*)(), OnExitSizeMove)
#define ON_WM_FONTCHANGE() AFX_WND_ENTRY(WM_FONTCHANGE, AfxSig_v_v, void (CWnd::*)(), OnFontChange)
#define ON_WM_GETDLGCODE() AFX_WND_ENTRY(WM_GETDLGCODE, AfxSig_u_v, UINT (CWnd::*)(), OnGetDlgCode)
#define ON_WM_GETMINMAXINFO() AFX_WND_ENTRY(WM_GETMINMAXINFO, AfxSig_v_s, void (CWnd::*)(MINMAXINFO *), OnGetMinMaxInfo)
#define ON_WM_HELPINFO() AFX_WND_ENTRY(WM_HELP, AfxSig_b_s, BOOL (CWnd::*)(HELPINFO *), OnHelpInfo)
#define ON_WM_HOTKEY() AFX_WND_ENTRY(WM_HOTKEY, AfxSig_v_w_ll_lh, void (CWnd::*)(UINT, UINT, UINT), OnHotKey)
#define ON_WM_HSCROLL() AFX_WND_ENTRY(WM_HSCROLL, AfxSig_v_scroll, void (CWnd::*)(UINT, UINT, CScrollBar *), OnHScroll)
#define ON_WM_HSCROLLCLIPBOARD()                                                                                       \
    AFX_WND_ENTRY(WM_HSCROLLCLIPBOARD, AfxSig_v_W_ll_lh, void (CWnd::*)(CWnd *, UINT, UINT), OnHScrollClipboard)
#define ON_WM_ICONERASEBKGND() AFX_WND_ENTRY(WM_ICONERASEBKGND, AfxSig_v_D, void (CWnd::*)(CDC *), OnIconEraseBkgnd)
#define ON_WM_INITMENU() AFX_WND_ENTRY(WM_INITMENU, AfxSig_v_M, void (CWnd::*)(CMenu *), OnInitMenu)
#define ON_WM_INITMENUPOPUP()                                                                                          \
    AFX_WND_ENTRY(WM_INITMENUPOPUP, AfxSig_v_M_ll_lh, void (CWnd::*)(CMenu *, UINT, BOOL), OnInitMenuPopup)
#define ON_WM_INPUT() AFX_WND_ENTRY(WM_INPUT, AfxSig_v_rawinput, void (CWnd::*)(UINT, HRAWINPUT), OnRawInput)
#define ON_WM_INPUT_DEVICE_CHANGE()                                                                                    \
    AFX_WND_ENTRY(WM_INPUT_DEVICE_CHANGE, AfxSig_v_wl, void (CWnd::*)(unsigned short), OnInputDeviceChange)
#define ON_WM_INPUTLANGCHANGE()                                                                                        \
    AFX_WND_ENTRY(WM_INPUTLANGCHANGE, AfxSig_v_w_l, void (CWnd::*)(UINT, UINT), OnInputLangChange)
#define ON_WM_INPUTLANGCHANGEREQUEST()                                                                                 \
    AFX_WND_ENTRY(WM_INPUTLANGCHANGEREQUEST, AfxSig_v_w_l, void (CWnd::*)(UINT, UINT), OnInputLangChangeRequest)
#define ON_WM_KEYDOWN() AFX_WND_ENTRY(WM_KEYDOWN, AfxSig_v_w_ll_lh, void (CWnd::*)(UINT, UINT, UINT), OnKeyDown)
#define ON_WM_KEYUP() AFX_WND_ENTRY(WM_KEYUP, AfxSig_v_w_ll_lh, void (CWnd::*)(UINT, UINT, UINT), OnKeyUp)
#define ON_WM_KILLFOCUS() AFX_WND_ENTRY(WM_KILLFOCUS, AfxSig_v_W, void (CWnd::*)(CWnd *), OnKillFocus)
#define ON_WM_LBUTTONDBLCLK()                                                                                          \
    AFX_WND_ENTRY(WM_LBUTTONDBLCLK, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnLButtonDblClk)
#define ON_WM_LBUTTONDOWN() AFX_WND_ENTRY(WM_LBUTTONDOWN, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_WND_ENTRY(WM_LBUTTONUP, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnLButtonUp)
#define ON_WM_MBUTTONDBLCLK()                                                                                          \
    AFX_WND_ENTRY(WM_MBUTTONDBLCLK, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnMButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFX_WND_ENTRY(WM_MBUTTONDOWN, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_WND_ENTRY(WM_MBUTTONUP, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnMButtonUp)
#define ON_WM_MDIACTIVATE()                                                                                            \
    AFX_WND_ENTRY(WM_MDIACTIVATE, AfxSig_v_mdiactivate, void (CWnd::*)(BOOL, CWnd *, CWnd *), OnMDIActivate)
#define ON_WM_MEASUREITEM()                                                                                            \
    AFX_WND_ENTRY(WM_MEASUREITEM, AfxSig_owner, void (CWnd::*)(int, LPMEASUREITEMSTRUCT), OnMeasureItem)
#define ON_WM_MENUCHAR()                                                                                               \
    AFX_WND_ENTRY(WM_MENUCHAR, AfxSig_l_wl_wh_M, LRESULT (CWnd::*)(UINT, UINT, CMenu *), OnMenuChar)
#define ON_WM_MENUDRAG() AFX_WND_ENTRY(WM_MENUDRAG, AfxSig_u_w_M, UINT (CWnd::*)(UINT, CMenu *), OnMenuDrag)
#define ON_WM_MENUGETOBJECT()                                                                                          \
    AFX_WND_ENTRY(WM_MENUGETOBJECT, AfxSig_u_s, UINT (CWnd::*)(MENUGETOBJECTINFO *), OnMenuGetObject)
#define ON_WM_MENURBUTTONUP()                                                                                          \
    AFX_WND_ENTRY(WM_MENURBUTTONUP, AfxSig_v_w_M, void (CWnd::*)(UINT, CMenu *), OnMenuRButtonUp)
#define ON_WM_MENUSELECT()                                                                                             \
    AFX_WND_ENTRY(WM_MENUSELECT, AfxSig_v_wl_wh_h, void (CWnd::*)(UINT, UINT, HMENU), OnMenuSelect)
#define ON_WM_MOUSEACTIVATE()                                                                                          \
    AFX_WND_ENTRY(WM_MOUSEACTIVATE, AfxSig_i_W_ll_lh, int (CWnd::*)(CWnd *, UINT, UINT), OnMouseActivate)
#define ON_WM_MOUSEHOVER() AFX_WND_ENTRY(WM_MOUSEHOVER, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnMouseHover)
#define ON_WM_MOUSEHWHEEL()                                                                                            \
    AFX_WND_ENTRY(WM_MOUSEHWHEEL, AfxSig_v_wheel, void (CWnd::*)(UINT, short, CPoint), OnMouseHWheel)
#define ON_WM_MOUSELEAVE() AFX_WND_ENTRY(WM_MOUSELEAVE, AfxSig_v_v, void (CWnd::*)(), OnMouseLeave)
#define ON_WM_MOUSEMOVE() AFX_WND_ENTRY(WM_MOUSEMOVE, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnMouseMove)
#define ON_WM_MOUSEWHEEL()                                                                                             \
    AFX_WND_ENTRY(WM_MOUSEWHEEL, AfxSig_b_wheel, BOOL (CWnd::*)(UINT, short, CPoint), OnMouseWheel)
#define ON_WM_MOVE() AFX_WND_ENTRY(WM_MOVE, AfxSig_v_move, void (CWnd::*)(int, int), OnMove)
#define ON_WM_MOVING() AFX_WND_ENTRY(WM_MOVING, AfxSig_sizing, void (CWnd::*)(UINT, LPRECT), OnMoving)
#define ON_WM_NCACTIVATE() AFX_WND_ENTRY(WM_NCACTIVATE, AfxSig_b_b, BOOL (CWnd::*)(BOOL), OnNcActivate)
#define ON_WM_NCCALCSIZE()                                                                                             \
    AFX_WND_ENTRY(WM_NCCALCSIZE, AfxSig_v_b_s, void (CWnd::*)(BOOL, NCCALCSIZE_PARAMS *), OnNcCalcSize)
#define ON_WM_NCCREATE() AFX_WND_ENTRY(WM_NCCREATE, AfxSig_b_s, BOOL (CWnd::*)(LPCREATESTRUCT), OnNcCreate)
#define ON_WM_NCDESTROY() AFX_WND_ENTRY(WM_NCDESTROY, AfxSig_v_v, void (CWnd::*)(), OnNcDestroy)
#define ON_WM_NCHITTEST() AFX_WND_ENTRY(WM_NCHITTEST, AfxSig_l_p, LRESULT (CWnd::*)(CPoint), OnNcHitTest)
#define ON_WM_NCLBUTTONDBLCLK()                                                                                        \
    AFX_WND_ENTRY(WM_NCLBUTTONDBLCLK, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnNcLButtonDblClk)
#define ON_WM_NCLBUTTONDOWN()                                                                                          \
    AFX_WND_ENTRY(WM_NCLBUTTONDOWN, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() AFX_WND_ENTRY(WM_NCLBUTTONUP, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnNcLButtonUp)
#define ON_WM_NCMBUTTONDBLCLK()                                                                                        \
    AFX_WND_ENTRY(WM_NCMBUTTONDBLCLK, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnNcMButtonDblClk)
#define ON_WM_NCMBUTTONDOWN()                                                                                          \
    AFX_WND_ENTRY(WM_NCMBUTTONDOWN, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnNcMButtonDown)
#define ON_WM_NCMBUTTONUP() AFX_WND_ENTRY(WM_NCMBUTTONUP, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnNcMButtonUp)
#define ON_WM_NCMOUSEHOVER() AFX_WND_ENTRY(WM_NCMOUSEHOVER, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnNcMouseHover)
#define ON_WM_NCMOUSELEAVE() AFX_WND_ENTRY(WM_NCMOUSELEAVE, AfxSig_v_v, void (CWnd::*)(), OnNcMouseLeave)
#define ON_WM_NCMOUSEMOVE() AFX_WND_ENTRY(WM_NCMOUSEMOVE, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnNcMouseMove)
#define ON_WM_NCPAINT() AFX_WND_ENTRY(WM_NCPAINT, AfxSig_v_v, void (CWnd::*)(), OnNcPaint)
#define ON_WM_NCRBUTTONDBLCLK()                                                                                        \
    AFX_WND_ENTRY(WM_NCRBUTTONDBLCLK, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnNcRButtonDblClk)
#define ON_WM_NCRBUTTONDOWN()                                                                                          \
    AFX_WND_ENTRY(WM_NCRBUTTONDOWN, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnNcRButtonDown)
#define ON_WM_NCRBUTTONUP() AFX_WND_ENTRY(WM_NCRBUTTONUP, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnNcRButtonUp)
#define ON_WM_NCXBUTTONDBLCLK()                                                                                        \
    AFX_WND_ENTRY(WM_NCXBUTTONDBLCLK, AfxSig_ncxbutton, void (CWnd::*)(short, UINT, CPoint), OnNcXButtonDblClk)
#define ON_WM_NCXBUTTONDOWN()                                                                                          \
    AFX_WND_ENTRY(WM_NCXBUTTONDOWN, AfxSig_ncxbutton, void (CWnd::*)(short, UINT, CPoint), OnNcXButtonDown)
#define ON_WM_NCXBUTTONUP()                                                                                            \
    AFX_WND_ENTRY(WM_NCXBUTTONUP, AfxSig_ncxbutton, void (CWnd::*)(short, UINT, CPoint), OnNcXButtonUp)
#define ON_WM_NEXTMENU() AFX_WND_ENTRY(WM_NEXTMENU, AfxSig_v_w_s, void (CWnd::*)(UINT, LPMDINEXTMENU), OnNextMenu)
#define ON_WM_NOTIFYFORMAT() AFX_WND_ENTRY(WM_NOTIFYFORMAT, AfxSig_u_W_l, UINT (CWnd::*)(CWnd *, UINT), OnNotifyFormat)
#define ON_WM_PAINT() AFX_WND_ENTRY(WM_PAINT, AfxSig_v_v, void (CWnd::*)(), OnPaint)
#define ON_WM_PAINTCLIPBOARD()                                                                                         \
    AFX_WND_ENTRY(WM_PAINTCLIPBOARD, AfxSig_v_W_h, void (CWnd::*)(CWnd *, HGLOBAL), OnPaintClipboard)
#define ON_WM_PALETTECHANGED() AFX_WND_ENTRY(WM_PALETTECHANGED, AfxSig_v_W, void (CWnd::*)(CWnd *), OnPaletteChanged)
#define ON_WM_PALETTEISCHANGING()                                                                                      \
    AFX_WND_ENTRY(WM_PALETTEISCHANGING, AfxSig_v_W, void (CWnd::*)(CWnd *), OnPaletteIsChanging)
#define ON_WM_PARENTNOTIFY() AFX_WND_ENTRY(WM_PARENTNOTIFY, AfxSig_v_w_lp, void (CWnd::*)(UINT, LPARAM), OnParentNotify)
#define ON_WM_POWERBROADCAST()                                                                                         \
    AFX_WND_ENTRY(WM_POWERBROADCAST, AfxSig_u_w_l, UINT (CWnd::*)(UINT, UINT), OnPowerBroadcast)
#define ON_WM_QUERYDRAGICON() AFX_WND_ENTRY(WM_QUERYDRAGICON, AfxSig_h_v, HCURSOR (CWnd::*)(), OnQueryDragIcon)
#define ON_WM_QUERYENDSESSION() AFX_WND_ENTRY(WM_QUERYENDSESSION, AfxSig_b_v, BOOL (CWnd::*)(), OnQueryEndSession)
#define ON_WM_QUERYNEWPALETTE() AFX_WND_ENTRY(WM_QUERYNEWPALETTE, AfxSig_b_v, BOOL (CWnd::*)(), OnQueryNewPalette)
#define ON_WM_QUERYOPEN() AFX_WND_ENTRY(WM_QUERYOPEN, AfxSig_b_v, BOOL (CWnd::*)(), OnQueryOpen)
#define ON_WM_QUERYUISTATE() AFX_WND_ENTRY(WM_QUERYUISTATE, AfxSig_u_v, UINT (CWnd::*)(), OnQueryUIState)
#define ON_WM_RBUTTONDBLCLK()                                                                                          \
    AFX_WND_ENTRY(WM_RBUTTONDBLCLK, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnRButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_WND_ENTRY(WM_RBUTTONDOWN, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_WND_ENTRY(WM_RBUTTONUP, AfxSig_v_w_p, void (CWnd::*)(UINT, CPoint), OnRButtonUp)
#define ON_WM_RENDERALLFORMATS() AFX_WND_ENTRY(WM_RENDERALLFORMATS, AfxSig_v_v, void (CWnd::*)(), OnRenderAllFormats)
#define ON_WM_RENDERFORMAT() AFX_WND_ENTRY(WM_RENDERFORMAT, AfxSig_v_w, void (CWnd::*)(UINT), OnRenderFormat)
#define ON_WM_SETCURSOR() AFX_WND_ENTRY(WM_SETCURSOR, AfxSig_b_W_ll_lh, BOOL (CWnd::*)(CWnd *, UINT, UINT), OnSetCursor)
#define ON_WM_SETFOCUS() AFX_WND_ENTRY(WM_SETFOCUS, AfxSig_v_W, void (CWnd::*)(CWnd *), OnSetFocus)
#define ON_WM_SETTINGCHANGE()                                                                                          \
    AFX_WND_ENTRY(WM_SETTINGCHANGE, AfxSig_v_u_cs, void (CWnd::*)(UINT, LPCTSTR), OnSettingChange)
#define ON_WM_SHOWWINDOW() AFX_WND_ENTRY(WM_SHOWWINDOW, AfxSig_v_b_l, void (CWnd::*)(BOOL, UINT), OnShowWindow)
#define ON_WM_SIZE() AFX_WND_ENTRY(WM_SIZE, AfxSig_v_size, void (CWnd::*)(UINT, int, int), OnSize)
#define ON_WM_SIZECLIPBOARD()                                                                                          \
    AFX_WND_ENTRY(WM_SIZECLIPBOARD, AfxSig_v_W_h, void (CWnd::*)(CWnd *, HGLOBAL), OnSizeClipboard)
#define ON_WM_SIZING() AFX_WND_ENTRY(WM_SIZING, AfxSig_sizing, void (CWnd::*)(UINT, LPRECT), OnSizing)
#define ON_WM_SPOOLERSTATUS()                                                                                          \
    AFX_WND_ENTRY(WM_SPOOLERSTATUS, AfxSig_v_w_ll, void (CWnd::*)(UINT, UINT), OnSpoolerStatus)
#define ON_WM_STYLECHANGED()                                                                                           \
    AFX_WND_ENTRY(WM_STYLECHANGED, AfxSig_v_i_s, void (CWnd::*)(int, LPSTYLESTRUCT), OnStyleChanged)
#define ON_WM_STYLECHANGING()                                                                                          \
    AFX_WND_ENTRY(WM_STYLECHANGING, AfxSig_v_i_s, void (CWnd::*)(int, LPSTYLESTRUCT), OnStyleChanging)
#define ON_WM_SYSCHAR() AFX_WND_ENTRY(WM_SYSCHAR, AfxSig_v_w_ll_lh, void (CWnd::*)(UINT, UINT, UINT), OnSysChar)
#define ON_WM_SYSCOLORCHANGE() AFX_WND_ENTRY(WM_SYSCOLORCHANGE, AfxSig_v_v, void (CWnd::*)(), OnSysColorChange)
#define ON_WM_SYSCOMMAND() AFX_WND_ENTRY(WM_SYSCOMMAND, AfxSig_v_w_lp, void (CWnd::*)(UINT, LPARAM), OnSysCommand)
#define ON_WM_SYSDEADCHAR()                                                                                            \
    AFX_WND_ENTRY(WM_SYSDEADCHAR, AfxSig_v_w_ll_lh, void (CWnd::*)(UINT, UINT, UINT), OnSysDeadChar)
#define ON_WM_SYSKEYDOWN()                                                                                             \
    AFX_WND_ENTRY(WM_SYSKEYDOWN, AfxSig_v_w_ll_lh, void (CWnd::*)(UINT, UINT, UINT), OnSysKeyDown)
#define ON_WM_SYSKEYUP() AFX_WND_ENTRY(WM_SYSKEYUP, AfxSig_v_w_ll_lh, void (CWnd::*)(UINT, UINT, UINT), OnSysKeyUp)
#define ON_WM_TCARD() AFX_WND_ENTRY(WM_TCARD, AfxSig_v_u_dw, void (CWnd::*)(UINT, DWORD), OnTCard)
#define ON_WM_TIMECHANGE() AFX_WND_ENTRY(WM_TIMECHANGE, AfxSig_v_v, void (CWnd::*)(), OnTimeChange)
#define ON_WM_TIMER() AFX_WND_ENTRY(WM_TIMER, AfxSig_v_up, void (CWnd::*)(UINT_PTR), OnTimer)
#define ON_WM_UNICHAR() AFX_WND_ENTRY(WM_UNICHAR, AfxSig_v_w_ll_lh, void (CWnd::*)(UINT, UINT, UINT), OnUniChar)
#define ON_WM_UNINITMENUPOPUP()                                                                                        \
    AFX_WND_ENTRY(WM_UNINITMENUPOPUP, AfxSig_v_M_lh, void (CWnd::*)(CMenu *, UINT), OnUnInitMenuPopup)
#define ON_WM_UPDATEUISTATE()                                                                                          \
    AFX_WND_ENTRY(WM_UPDATEUISTATE, AfxSig_v_wl_wh, void (CWnd::*)(UINT, UINT), OnUpdateUIState)
#define ON_WM_USERCHANGED() AFX_WND_ENTRY(WM_USERCHANGED, AfxSig_v_v, void (CWnd::*)(), OnUserChanged)
#define ON_WM_VKEYTOITEM()                                                                                             \
    AFX_WND_ENTRY(WM_VKEYTOITEM, AfxSig_i_wl_L_wh, int (CWnd::*)(UINT, CListBox *, UINT), OnVKeyToItem)
#define ON_WM_VSCROLL() AFX_WND_ENTRY(WM_VSCROLL, AfxSig_v_scroll, void (CWnd::*)(UINT, UINT, CScrollBar *), OnVScroll)
#define ON_WM_VSCROLLCLIPBOARD()                                                                                       \
    AFX_WND_ENTRY(WM_VSCROLLCLIPBOARD, AfxSig_v_W_ll_lh, void (CWnd::*)(CWnd *, UINT, UINT), OnVScrollClipboard)
#define ON_WM_WINDOWPOSCHANGED()                                                                                       \
    AFX_WND_ENTRY(WM_WINDOWPOSCHANGED, AfxSig_v_s, void (CWnd::*)(WINDOWPOS *), OnWindowPosChanged)
#define ON_WM_WINDOWPOSCHANGING()                                                                                      \
    AFX_WND_ENTRY(WM_WINDOWPOSCHANGING, AfxSig_v_s, void (CWnd::*)(WINDOWPOS *), OnWindowPosChanging)
#define ON_WM_WININICHANGE() AFX_WND_ENTRY(WM_WININICHANGE, AfxSig_v_cs, void (CWnd::*)(LPCTSTR), OnWinIniChange)
#define ON_WM_WTSSESSION_CHANGE()                                                                                      \
    AFX_WND_ENTRY(WM_WTSSESSION_CHANGE, AfxSig_v_w_l, void (CWnd::*)(UINT, UINT), OnSessionChange)
#define ON_WM_XBUTTONDBLCLK()                                                                                          \
    AFX_WND_ENTRY(WM_XBUTTONDBLCLK, AfxSig_xbutton, void (CWnd::*)(UINT, UINT, CPoint), OnXButtonDblClk)
#define ON_WM_XBUTTONDOWN()                                                                                            \
    AFX_WND_ENTRY(WM_XBUTTONDOWN, AfxSig_xbutton, void (CWnd::*)(UINT, UINT, CPoint), OnXButtonDown)
#define ON_WM_XBUTTONUP() AFX_WND_ENTRY(WM_XBUTTONUP, AfxSig_xbutton, void (CWnd::*)(UINT, UINT, CPoint), OnXButtonUp)

// Messages that a control's parent hands back to it.
#define ON_WM_CHARTOITEM_REFLECT()                                                                                     \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_CHARTOITEM, AfxSig_i_wl_wh, int(CWnd::*)(UINT, UINT), CharToItem)
#define ON_WM_COMPAREITEM_REFLECT()                                                                                    \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_COMPAREITEM, AfxSig_i_s, int(CWnd::*)(LPCOMPAREITEMSTRUCT), CompareItem)
#define ON_WM_CTLCOLOR_REFLECT()                                                                                       \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_CTLCOLOR, AfxSig_ctlcolor_reflect, HBRUSH(CWnd::*)(CDC *, UINT), CtlColor)
#define ON_WM_DELETEITEM_REFLECT()                                                                                     \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_DELETEITEM, AfxSig_owner_reflect, void(CWnd::*)(LPDELETEITEMSTRUCT), DeleteItem)
#define ON_WM_DRAWITEM_REFLECT()                                                                                       \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_DRAWITEM, AfxSig_owner_reflect, void(CWnd::*)(LPDRAWITEMSTRUCT), DrawItem)
#define ON_WM_HSCROLL_REFLECT()                                                                                        \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_HSCROLL, AfxSig_v_wl_wh, void(CWnd::*)(UINT, UINT), HScroll)
#define ON_WM_MEASUREITEM_REFLECT()                                                                                    \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_MEASUREITEM, AfxSig_owner_reflect, void(CWnd::*)(LPMEASUREITEMSTRUCT),          \
                  MeasureItem)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                                   \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_PARENTNOTIFY, AfxSig_v_w_lp, void(CWnd::*)(UINT, LPARAM), ParentNotify)
#define ON_WM_VKEYTOITEM_REFLECT()                                                                                     \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_VKEYTOITEM, AfxSig_i_wl_wh, int(CWnd::*)(UINT, UINT), VKeyToItem)
#define ON_WM_VSCROLL_REFLECT()                                                                                        \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_VSCROLL, AfxSig_v_wl_wh, void(CWnd::*)(UINT, UINT), VScroll)
