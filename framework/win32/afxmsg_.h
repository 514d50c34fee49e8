#pragma once
// Message maps: the macros that write their entries.
//
// Each macro checks the handler's type with a static_cast and stores it as the general AFX_PMSG. Beside it the entry
// keeps how a message becomes a call of such a handler. A window message's macro says where each argument stands in the
// message; all else follows from the handler's type, so that a message needs its macro and nothing else.

#include "detail/MessageDecoding.h"

/// What ends a message map: an entry that is decoded in no way.
enum AfxSig : UINT_PTR
{
    AfxSig_end = 0
};

#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019 // stands for all the WM_CTLCOLOR... messages in message maps
#endif
#ifndef WM_REFLECT_BASE
#define WM_REFLECT_BASE 0xBC00 // added to a notification that the parent hands back to its control
#endif

#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI (static_cast<UINT>(-1))

/// Where an argument stands: WPARAM or LPARAM as a whole, their words, LPARAM's words as signed numbers. What the
/// handler makes of it (a number, a structure, a point, an object for a handle) is said by the type of its parameter.
struct AfxW
{
    static WPARAM Get(framework::WindowMessage const & message) { return message.w; }
};
struct AfxWLow
{
    static WORD Get(framework::WindowMessage const & message) { return LOWORD(message.w); }
};
struct AfxWHigh
{
    static WORD Get(framework::WindowMessage const & message) { return HIWORD(message.w); }
};
struct AfxL
{
    static LPARAM Get(framework::WindowMessage const & message) { return message.l; }
};
struct AfxLLow
{
    static WORD Get(framework::WindowMessage const & message) { return LOWORD(message.l); }
};
struct AfxLHigh
{
    static WORD Get(framework::WindowMessage const & message) { return HIWORD(message.l); }
};
struct AfxLX
{
    static short Get(framework::WindowMessage const & message) { return static_cast<short>(LOWORD(message.l)); }
};
struct AfxLY
{
    static short Get(framework::WindowMessage const & message) { return static_cast<short>(HIWORD(message.l)); }
};

// Arguments of single messages.
struct AfxAppCommand
{
    static UINT Get(framework::WindowMessage const & message)
    {
        return static_cast<UINT>(GET_APPCOMMAND_LPARAM(message.l));
    }
};
struct AfxAppDevice
{
    static WORD Get(framework::WindowMessage const & message) { return GET_DEVICE_LPARAM(message.l); }
};
struct AfxAppKeys
{
    static WORD Get(framework::WindowMessage const & message) { return GET_KEYSTATE_LPARAM(message.l); }
};
struct AfxRawInputCode
{
    static WPARAM Get(framework::WindowMessage const & message) { return GET_RAWINPUT_CODE_WPARAM(message.w); }
};
struct AfxMdiActivated
{
    static bool Get(framework::WindowMessage const & message)
    {
        return message.window.m_hWnd == reinterpret_cast<HWND>(message.l);
    }
};
struct AfxColourDc
{
    static HDC Get(framework::WindowMessage const & message) { return framework::ColourOf(message).dc; }
};
struct AfxColourControl
{
    static HWND Get(framework::WindowMessage const & message) { return framework::ColourOf(message).control; }
};
struct AfxColourKind
{
    static UINT Get(framework::WindowMessage const & message) { return framework::ColourOf(message).kind; }
};

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

// One entry for a message that is decoded so.
#define AFX_DECODED_ENTRY(message, code, first, last, decoding, prototype, memberFxn)                                  \
    {message,                                                                                                          \
     code,                                                                                                             \
     first,                                                                                                            \
     last,                                                                                                             \
     framework::SignatureOf(decoding),                                                                                 \
     framework::EraseHandlerType(static_cast<prototype>(memberFxn))},

// One entry for a window message, whose handler has a fixed name. Behind it: where the handler's arguments stand.
#define AFX_WND_ENTRY(message, prototype, member, ...)                                                                 \
    AFX_DECODED_ENTRY(message, 0, 0, 0,                                                                                \
                      (framework::message_decoding<framework::AnswerOfHandler, prototype __VA_OPT__(, ) __VA_ARGS__>), \
                      prototype, &ThisClass::member)

// The same where the message has been handled, TRUE, once there was a handler.
#define AFX_WND_ENTRY_TRUE(message, prototype, member, ...)                                                            \
    AFX_DECODED_ENTRY(message, 0, 0, 0,                                                                                \
                      (framework::message_decoding<framework::AnswerTrue, prototype __VA_OPT__(, ) __VA_ARGS__>),      \
                      prototype, &ThisClass::member)

// The same where FALSE of the handler leaves the message to the window's own procedure.
#define AFX_WND_ENTRY_OFFER(message, prototype, member, ...)                                                           \
    AFX_DECODED_ENTRY(message, 0, 0, 0,                                                                                \
                      (framework::message_decoding<framework::AnswerIfTaken, prototype __VA_OPT__(, ) __VA_ARGS__>),   \
                      prototype, &ThisClass::member)

// One entry for commands and notifications of the ids from first to last.
#define AFX_CMD_ENTRY(message, code, first, last, prototype, memberFxn)                                                \
    AFX_DECODED_ENTRY(message, code, static_cast<WORD>(first), static_cast<WORD>(last),                                \
                      (framework::command_decoding<prototype>), prototype, memberFxn)

#define AFX_NOTIFY_CODE(code) static_cast<WORD>(static_cast<int>(code))

// Commands
#define ON_COMMAND(id, memberFxn) AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, id, void (CCmdTarget::*)(), memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, void (CCmdTarget::*)(UINT), memberFxn)
#define ON_COMMAND_EX(id, memberFxn)                                                                                   \
    AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, id, BOOL (CCmdTarget::*)(UINT), memberFxn)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                                     \
    AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, BOOL (CCmdTarget::*)(UINT), memberFxn)
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                            \
    AFX_CMD_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, void (CCmdTarget::*)(CCmdUI *), memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                              \
    AFX_CMD_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, void (CCmdTarget::*)(CCmdUI *), memberFxn)
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                                        \
    AFX_CMD_ENTRY(WM_COMMAND + WM_REFLECT_BASE, AFX_NOTIFY_CODE(CN_UPDATE_COMMAND_UI), 0, 0,                           \
                  void(CCmdTarget::*)(CCmdUI *), memberFxn)

// Control notifications
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                                         \
    AFX_CMD_ENTRY(WM_COMMAND, AFX_NOTIFY_CODE(wNotifyCode), id, id, void (CCmdTarget::*)(), memberFxn)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                           \
    AFX_CMD_ENTRY(WM_COMMAND, AFX_NOTIFY_CODE(wNotifyCode), id, idLast, void (CCmdTarget::*)(UINT), memberFxn)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                                     \
    AFX_CMD_ENTRY(WM_COMMAND + WM_REFLECT_BASE, AFX_NOTIFY_CODE(wNotifyCode), 0, 0, void(CCmdTarget::*)(), memberFxn)
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                                  \
    AFX_CMD_ENTRY(WM_COMMAND + WM_REFLECT_BASE, AFX_NOTIFY_CODE(wNotifyCode), 0, 0, BOOL(CCmdTarget::*)(), memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                          \
    AFX_CMD_ENTRY(WM_NOTIFY, AFX_NOTIFY_CODE(wNotifyCode), id, id, void (CCmdTarget::*)(NMHDR *, LRESULT *), memberFxn)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                            \
    AFX_CMD_ENTRY(WM_NOTIFY, AFX_NOTIFY_CODE(wNotifyCode), id, idLast, void (CCmdTarget::*)(UINT, NMHDR *, LRESULT *), \
                  memberFxn)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                                       \
    AFX_CMD_ENTRY(WM_NOTIFY, AFX_NOTIFY_CODE(wNotifyCode), id, id, BOOL (CCmdTarget::*)(UINT, NMHDR *, LRESULT *),     \
                  memberFxn)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                                         \
    AFX_CMD_ENTRY(WM_NOTIFY, AFX_NOTIFY_CODE(wNotifyCode), id, idLast, BOOL (CCmdTarget::*)(UINT, NMHDR *, LRESULT *), \
                  memberFxn)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                                      \
    AFX_CMD_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, AFX_NOTIFY_CODE(wNotifyCode), 0, 0,                                     \
                  void(CCmdTarget::*)(NMHDR *, LRESULT *), memberFxn)
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                                   \
    AFX_CMD_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, AFX_NOTIFY_CODE(wNotifyCode), 0, 0,                                     \
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
    AFX_DECODED_ENTRY(                                                                                                 \
        message, 0, 0, 0,                                                                                              \
        (framework::message_decoding<framework::AnswerOfHandler, LRESULT (CWnd::*)(WPARAM, LPARAM), AfxW, AfxL>),      \
        LRESULT (CWnd::*)(WPARAM, LPARAM), memberFxn)
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                             \
    {0xC000,                                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     reinterpret_cast<UINT_PTR>(&nMessageVariable),                                                                    \
     framework::EraseHandlerType(static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn))},
#define ON_THREAD_MESSAGE(message, memberFxn)                                                                          \
    AFX_DECODED_ENTRY(message, 0, 0, 0, framework::thread_message, void (CWinThread::*)(WPARAM, LPARAM), memberFxn)
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn)                                                      \
    {0xC000,                                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     reinterpret_cast<UINT_PTR>(&nMessageVariable),                                                                    \
     framework::EraseHandlerType(static_cast<void (CWinThread::*)(WPARAM, LPARAM)>(memberFxn))},

// Window messages
#define ON_WM_ACTIVATE()                                                                                               \
    AFX_WND_ENTRY(WM_ACTIVATE, void (CWnd::*)(UINT, CWnd *, BOOL), OnActivate, AfxWLow, AfxL, AfxWHigh)
#define ON_WM_ACTIVATEAPP() AFX_WND_ENTRY(WM_ACTIVATEAPP, void (CWnd::*)(BOOL, DWORD), OnActivateApp, AfxW, AfxL)
#define ON_WM_APPCOMMAND()                                                                                             \
    AFX_WND_ENTRY_TRUE(WM_APPCOMMAND, void (CWnd::*)(CWnd *, UINT, UINT, UINT), OnAppCommand, AfxW, AfxAppCommand,     \
                       AfxAppDevice, AfxAppKeys)
#define ON_WM_ASKCBFORMATNAME()                                                                                        \
    AFX_WND_ENTRY(WM_ASKCBFORMATNAME, void (CWnd::*)(UINT, LPTSTR), OnAskCbFormatName, AfxW, AfxL)
#define ON_WM_CANCELMODE() AFX_WND_ENTRY(WM_CANCELMODE, void (CWnd::*)(), OnCancelMode)
#define ON_WM_CAPTURECHANGED() AFX_WND_ENTRY(WM_CAPTURECHANGED, void (CWnd::*)(CWnd *), OnCaptureChanged, AfxL)
#define ON_WM_CHANGECBCHAIN() AFX_WND_ENTRY(WM_CHANGECBCHAIN, void (CWnd::*)(HWND, HWND), OnChangeCbChain, AfxW, AfxL)
#define ON_WM_CHANGEUISTATE()                                                                                          \
    AFX_WND_ENTRY(WM_CHANGEUISTATE, void (CWnd::*)(UINT, UINT), OnChangeUIState, AfxWLow, AfxWHigh)
#define ON_WM_CHAR() AFX_WND_ENTRY(WM_CHAR, void (CWnd::*)(UINT, UINT, UINT), OnChar, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_CHARTOITEM()                                                                                             \
    AFX_WND_ENTRY(WM_CHARTOITEM, int (CWnd::*)(UINT, CListBox *, UINT), OnCharToItem, AfxWLow, AfxL, AfxWHigh)
#define ON_WM_CHILDACTIVATE() AFX_WND_ENTRY(WM_CHILDACTIVATE, void (CWnd::*)(), OnChildActivate)
#define ON_WM_CLIPBOARDUPDATE() AFX_WND_ENTRY(WM_CLIPBOARDUPDATE, void (CWnd::*)(), OnClipboardUpdate)
#define ON_WM_CLOSE() AFX_WND_ENTRY(WM_CLOSE, void (CWnd::*)(), OnClose)
#define ON_WM_COMPACTING() AFX_WND_ENTRY(WM_COMPACTING, void (CWnd::*)(UINT), OnCompacting, AfxW)
#define ON_WM_COMPAREITEM()                                                                                            \
    AFX_WND_ENTRY(WM_COMPAREITEM, int (CWnd::*)(int, LPCOMPAREITEMSTRUCT), OnCompareItem, AfxW, AfxL)
#define ON_WM_CONTEXTMENU() AFX_WND_ENTRY(WM_CONTEXTMENU, void (CWnd::*)(CWnd *, CPoint), OnContextMenu, AfxW, AfxL)
#define ON_WM_COPYDATA() AFX_WND_ENTRY(WM_COPYDATA, BOOL (CWnd::*)(CWnd *, COPYDATASTRUCT *), OnCopyData, AfxW, AfxL)
#define ON_WM_CREATE() AFX_WND_ENTRY(WM_CREATE, int (CWnd::*)(LPCREATESTRUCT), OnCreate, AfxL)
#define ON_WM_CTLCOLOR()                                                                                               \
    AFX_WND_ENTRY(WM_CTLCOLOR, HBRUSH (CWnd::*)(CDC *, CWnd *, UINT), OnCtlColor, AfxColourDc, AfxColourControl,       \
                  AfxColourKind)
#define ON_WM_DEADCHAR()                                                                                               \
    AFX_WND_ENTRY(WM_DEADCHAR, void (CWnd::*)(UINT, UINT, UINT), OnDeadChar, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_DELETEITEM()                                                                                             \
    AFX_WND_ENTRY_TRUE(WM_DELETEITEM, void (CWnd::*)(int, LPDELETEITEMSTRUCT), OnDeleteItem, AfxW, AfxL)
#define ON_WM_DESTROY() AFX_WND_ENTRY(WM_DESTROY, void (CWnd::*)(), OnDestroy)
#define ON_WM_DESTROYCLIPBOARD() AFX_WND_ENTRY(WM_DESTROYCLIPBOARD, void (CWnd::*)(), OnDestroyClipboard)
#define ON_WM_DEVICECHANGE() AFX_WND_ENTRY(WM_DEVICECHANGE, BOOL (CWnd::*)(UINT, DWORD_PTR), OnDeviceChange, AfxW, AfxL)
#define ON_WM_DEVMODECHANGE() AFX_WND_ENTRY(WM_DEVMODECHANGE, void (CWnd::*)(LPTSTR), OnDevModeChange, AfxL)
#define ON_WM_DRAWCLIPBOARD() AFX_WND_ENTRY(WM_DRAWCLIPBOARD, void (CWnd::*)(), OnDrawClipboard)
#define ON_WM_DRAWITEM() AFX_WND_ENTRY_TRUE(WM_DRAWITEM, void (CWnd::*)(int, LPDRAWITEMSTRUCT), OnDrawItem, AfxW, AfxL)
#define ON_WM_DROPFILES() AFX_WND_ENTRY(WM_DROPFILES, void (CWnd::*)(HDROP), OnDropFiles, AfxW)
#define ON_WM_DWMCOLORIZATIONCOLORCHANGED()                                                                            \
    AFX_WND_ENTRY(WM_DWMCOLORIZATIONCOLORCHANGED, void (CWnd::*)(DWORD, BOOL), OnColorizationColorChanged, AfxW, AfxL)
#define ON_WM_DWMCOMPOSITIONCHANGED() AFX_WND_ENTRY(WM_DWMCOMPOSITIONCHANGED, void (CWnd::*)(), OnCompositionChanged)
#define ON_WM_DWMNCRENDERINGCHANGED()                                                                                  \
    AFX_WND_ENTRY(WM_DWMNCRENDERINGCHANGED, void (CWnd::*)(BOOL), OnNcRenderingChanged, AfxW)
#define ON_WM_DWMWINDOWMAXIMIZEDCHANGE()                                                                               \
    AFX_WND_ENTRY(WM_DWMWINDOWMAXIMIZEDCHANGE, void (CWnd::*)(BOOL), OnWindowMaximizedChanged, AfxW)
#define ON_WM_ENABLE() AFX_WND_ENTRY(WM_ENABLE, void (CWnd::*)(BOOL), OnEnable, AfxW)
#define ON_WM_ENDSESSION() AFX_WND_ENTRY(WM_ENDSESSION, void (CWnd::*)(BOOL), OnEndSession, AfxW)
#define ON_WM_ENTERIDLE() AFX_WND_ENTRY(WM_ENTERIDLE, void (CWnd::*)(UINT, CWnd *), OnEnterIdle, AfxW, AfxL)
#define ON_WM_ENTERMENULOOP() AFX_WND_ENTRY(WM_ENTERMENULOOP, void (CWnd::*)(BOOL), OnEnterMenuLoop, AfxW)
#define ON_WM_ENTERSIZEMOVE() AFX_WND_ENTRY(WM_ENTERSIZEMOVE, void (CWnd::*)(), OnEnterSizeMove)
#define ON_WM_ERASEBKGND() AFX_WND_ENTRY(WM_ERASEBKGND, BOOL (CWnd::*)(CDC *), OnEraseBkgnd, AfxW)
#define ON_WM_EXITMENULOOP() AFX_WND_ENTRY(WM_EXITMENULOOP, void (CWnd::*)(BOOL), OnExitMenuLoop, AfxW)
#define ON_WM_EXITSIZEMOVE() AFX_WND_ENTRY(WM_EXITSIZEMOVE, void (CWnd::*)(), OnExitSizeMove)
#define ON_WM_FONTCHANGE() AFX_WND_ENTRY(WM_FONTCHANGE, void (CWnd::*)(), OnFontChange)
#define ON_WM_GETDLGCODE() AFX_WND_ENTRY(WM_GETDLGCODE, UINT (CWnd::*)(), OnGetDlgCode)
#define ON_WM_GETMINMAXINFO() AFX_WND_ENTRY(WM_GETMINMAXINFO, void (CWnd::*)(MINMAXINFO *), OnGetMinMaxInfo, AfxL)
#define ON_WM_HELPINFO() AFX_WND_ENTRY(WM_HELP, BOOL (CWnd::*)(HELPINFO *), OnHelpInfo, AfxL)
#define ON_WM_HOTKEY() AFX_WND_ENTRY(WM_HOTKEY, void (CWnd::*)(UINT, UINT, UINT), OnHotKey, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_HSCROLL()                                                                                                \
    AFX_WND_ENTRY(WM_HSCROLL, void (CWnd::*)(UINT, UINT, CScrollBar *), OnHScroll, AfxWLow, AfxWHigh, AfxL)
#define ON_WM_HSCROLLCLIPBOARD()                                                                                       \
    AFX_WND_ENTRY(WM_HSCROLLCLIPBOARD, void (CWnd::*)(CWnd *, UINT, UINT), OnHScrollClipboard, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_ICONERASEBKGND() AFX_WND_ENTRY(WM_ICONERASEBKGND, void (CWnd::*)(CDC *), OnIconEraseBkgnd, AfxW)
#define ON_WM_INITMENU() AFX_WND_ENTRY(WM_INITMENU, void (CWnd::*)(CMenu *), OnInitMenu, AfxW)
#define ON_WM_INITMENUPOPUP()                                                                                          \
    AFX_WND_ENTRY(WM_INITMENUPOPUP, void (CWnd::*)(CMenu *, UINT, BOOL), OnInitMenuPopup, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_INPUT() AFX_WND_ENTRY(WM_INPUT, void (CWnd::*)(UINT, HRAWINPUT), OnRawInput, AfxRawInputCode, AfxL)
#define ON_WM_INPUT_DEVICE_CHANGE()                                                                                    \
    AFX_WND_ENTRY(WM_INPUT_DEVICE_CHANGE, void (CWnd::*)(unsigned short), OnInputDeviceChange, AfxWLow)
#define ON_WM_INPUTLANGCHANGE()                                                                                        \
    AFX_WND_ENTRY(WM_INPUTLANGCHANGE, void (CWnd::*)(UINT, UINT), OnInputLangChange, AfxW, AfxL)
#define ON_WM_INPUTLANGCHANGEREQUEST()                                                                                 \
    AFX_WND_ENTRY(WM_INPUTLANGCHANGEREQUEST, void (CWnd::*)(UINT, UINT), OnInputLangChangeRequest, AfxW, AfxL)
#define ON_WM_KEYDOWN() AFX_WND_ENTRY(WM_KEYDOWN, void (CWnd::*)(UINT, UINT, UINT), OnKeyDown, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_KEYUP() AFX_WND_ENTRY(WM_KEYUP, void (CWnd::*)(UINT, UINT, UINT), OnKeyUp, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_KILLFOCUS() AFX_WND_ENTRY(WM_KILLFOCUS, void (CWnd::*)(CWnd *), OnKillFocus, AfxW)
#define ON_WM_LBUTTONDBLCLK() AFX_WND_ENTRY(WM_LBUTTONDBLCLK, void (CWnd::*)(UINT, CPoint), OnLButtonDblClk, AfxW, AfxL)
#define ON_WM_LBUTTONDOWN() AFX_WND_ENTRY(WM_LBUTTONDOWN, void (CWnd::*)(UINT, CPoint), OnLButtonDown, AfxW, AfxL)
#define ON_WM_LBUTTONUP() AFX_WND_ENTRY(WM_LBUTTONUP, void (CWnd::*)(UINT, CPoint), OnLButtonUp, AfxW, AfxL)
#define ON_WM_MBUTTONDBLCLK() AFX_WND_ENTRY(WM_MBUTTONDBLCLK, void (CWnd::*)(UINT, CPoint), OnMButtonDblClk, AfxW, AfxL)
#define ON_WM_MBUTTONDOWN() AFX_WND_ENTRY(WM_MBUTTONDOWN, void (CWnd::*)(UINT, CPoint), OnMButtonDown, AfxW, AfxL)
#define ON_WM_MBUTTONUP() AFX_WND_ENTRY(WM_MBUTTONUP, void (CWnd::*)(UINT, CPoint), OnMButtonUp, AfxW, AfxL)
#define ON_WM_MDIACTIVATE()                                                                                            \
    AFX_WND_ENTRY(WM_MDIACTIVATE, void (CWnd::*)(BOOL, CWnd *, CWnd *), OnMDIActivate, AfxMdiActivated, AfxL, AfxW)
#define ON_WM_MEASUREITEM()                                                                                            \
    AFX_WND_ENTRY_TRUE(WM_MEASUREITEM, void (CWnd::*)(int, LPMEASUREITEMSTRUCT), OnMeasureItem, AfxW, AfxL)
#define ON_WM_MENUCHAR()                                                                                               \
    AFX_WND_ENTRY(WM_MENUCHAR, LRESULT (CWnd::*)(UINT, UINT, CMenu *), OnMenuChar, AfxWLow, AfxWHigh, AfxL)
#define ON_WM_MENUDRAG() AFX_WND_ENTRY(WM_MENUDRAG, UINT (CWnd::*)(UINT, CMenu *), OnMenuDrag, AfxW, AfxL)
#define ON_WM_MENUGETOBJECT()                                                                                          \
    AFX_WND_ENTRY(WM_MENUGETOBJECT, UINT (CWnd::*)(MENUGETOBJECTINFO *), OnMenuGetObject, AfxL)
#define ON_WM_MENURBUTTONUP()                                                                                          \
    AFX_WND_ENTRY(WM_MENURBUTTONUP, void (CWnd::*)(UINT, CMenu *), OnMenuRButtonUp, AfxW, AfxL)
#define ON_WM_MENUSELECT()                                                                                             \
    AFX_WND_ENTRY(WM_MENUSELECT, void (CWnd::*)(UINT, UINT, HMENU), OnMenuSelect, AfxWLow, AfxWHigh, AfxL)
#define ON_WM_MOUSEACTIVATE()                                                                                          \
    AFX_WND_ENTRY(WM_MOUSEACTIVATE, int (CWnd::*)(CWnd *, UINT, UINT), OnMouseActivate, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_MOUSEHOVER() AFX_WND_ENTRY(WM_MOUSEHOVER, void (CWnd::*)(UINT, CPoint), OnMouseHover, AfxW, AfxL)
#define ON_WM_MOUSEHWHEEL()                                                                                            \
    AFX_WND_ENTRY(WM_MOUSEHWHEEL, void (CWnd::*)(UINT, short, CPoint), OnMouseHWheel, AfxWLow, AfxWHigh, AfxL)
#define ON_WM_MOUSELEAVE() AFX_WND_ENTRY(WM_MOUSELEAVE, void (CWnd::*)(), OnMouseLeave)
#define ON_WM_MOUSEMOVE() AFX_WND_ENTRY(WM_MOUSEMOVE, void (CWnd::*)(UINT, CPoint), OnMouseMove, AfxW, AfxL)
#define ON_WM_MOUSEWHEEL()                                                                                             \
    AFX_WND_ENTRY_OFFER(WM_MOUSEWHEEL, BOOL (CWnd::*)(UINT, short, CPoint), OnMouseWheel, AfxWLow, AfxWHigh, AfxL)
#define ON_WM_MOVE() AFX_WND_ENTRY(WM_MOVE, void (CWnd::*)(int, int), OnMove, AfxLX, AfxLY)
#define ON_WM_MOVING() AFX_WND_ENTRY_TRUE(WM_MOVING, void (CWnd::*)(UINT, LPRECT), OnMoving, AfxW, AfxL)
#define ON_WM_NCACTIVATE() AFX_WND_ENTRY(WM_NCACTIVATE, BOOL (CWnd::*)(BOOL), OnNcActivate, AfxW)
#define ON_WM_NCCALCSIZE()                                                                                             \
    AFX_WND_ENTRY(WM_NCCALCSIZE, void (CWnd::*)(BOOL, NCCALCSIZE_PARAMS *), OnNcCalcSize, AfxW, AfxL)
#define ON_WM_NCCREATE() AFX_WND_ENTRY(WM_NCCREATE, BOOL (CWnd::*)(LPCREATESTRUCT), OnNcCreate, AfxL)
#define ON_WM_NCDESTROY() AFX_WND_ENTRY(WM_NCDESTROY, void (CWnd::*)(), OnNcDestroy)
#define ON_WM_NCHITTEST() AFX_WND_ENTRY(WM_NCHITTEST, LRESULT (CWnd::*)(CPoint), OnNcHitTest, AfxL)
#define ON_WM_NCLBUTTONDBLCLK()                                                                                        \
    AFX_WND_ENTRY(WM_NCLBUTTONDBLCLK, void (CWnd::*)(UINT, CPoint), OnNcLButtonDblClk, AfxW, AfxL)
#define ON_WM_NCLBUTTONDOWN() AFX_WND_ENTRY(WM_NCLBUTTONDOWN, void (CWnd::*)(UINT, CPoint), OnNcLButtonDown, AfxW, AfxL)
#define ON_WM_NCLBUTTONUP() AFX_WND_ENTRY(WM_NCLBUTTONUP, void (CWnd::*)(UINT, CPoint), OnNcLButtonUp, AfxW, AfxL)
#define ON_WM_NCMBUTTONDBLCLK()                                                                                        \
    AFX_WND_ENTRY(WM_NCMBUTTONDBLCLK, void (CWnd::*)(UINT, CPoint), OnNcMButtonDblClk, AfxW, AfxL)
#define ON_WM_NCMBUTTONDOWN() AFX_WND_ENTRY(WM_NCMBUTTONDOWN, void (CWnd::*)(UINT, CPoint), OnNcMButtonDown, AfxW, AfxL)
#define ON_WM_NCMBUTTONUP() AFX_WND_ENTRY(WM_NCMBUTTONUP, void (CWnd::*)(UINT, CPoint), OnNcMButtonUp, AfxW, AfxL)
#define ON_WM_NCMOUSEHOVER() AFX_WND_ENTRY(WM_NCMOUSEHOVER, void (CWnd::*)(UINT, CPoint), OnNcMouseHover, AfxW, AfxL)
#define ON_WM_NCMOUSELEAVE() AFX_WND_ENTRY(WM_NCMOUSELEAVE, void (CWnd::*)(), OnNcMouseLeave)
#define ON_WM_NCMOUSEMOVE() AFX_WND_ENTRY(WM_NCMOUSEMOVE, void (CWnd::*)(UINT, CPoint), OnNcMouseMove, AfxW, AfxL)
#define ON_WM_NCPAINT() AFX_WND_ENTRY(WM_NCPAINT, void (CWnd::*)(), OnNcPaint)
#define ON_WM_NCRBUTTONDBLCLK()                                                                                        \
    AFX_WND_ENTRY(WM_NCRBUTTONDBLCLK, void (CWnd::*)(UINT, CPoint), OnNcRButtonDblClk, AfxW, AfxL)
#define ON_WM_NCRBUTTONDOWN() AFX_WND_ENTRY(WM_NCRBUTTONDOWN, void (CWnd::*)(UINT, CPoint), OnNcRButtonDown, AfxW, AfxL)
#define ON_WM_NCRBUTTONUP() AFX_WND_ENTRY(WM_NCRBUTTONUP, void (CWnd::*)(UINT, CPoint), OnNcRButtonUp, AfxW, AfxL)
#define ON_WM_NCXBUTTONDBLCLK()                                                                                        \
    AFX_WND_ENTRY_TRUE(WM_NCXBUTTONDBLCLK, void (CWnd::*)(short, UINT, CPoint), OnNcXButtonDblClk, AfxWLow, AfxWHigh,  \
                       AfxL)
#define ON_WM_NCXBUTTONDOWN()                                                                                          \
    AFX_WND_ENTRY_TRUE(WM_NCXBUTTONDOWN, void (CWnd::*)(short, UINT, CPoint), OnNcXButtonDown, AfxWLow, AfxWHigh, AfxL)
#define ON_WM_NCXBUTTONUP()                                                                                            \
    AFX_WND_ENTRY_TRUE(WM_NCXBUTTONUP, void (CWnd::*)(short, UINT, CPoint), OnNcXButtonUp, AfxWLow, AfxWHigh, AfxL)
#define ON_WM_NEXTMENU() AFX_WND_ENTRY(WM_NEXTMENU, void (CWnd::*)(UINT, LPMDINEXTMENU), OnNextMenu, AfxW, AfxL)
#define ON_WM_NOTIFYFORMAT() AFX_WND_ENTRY(WM_NOTIFYFORMAT, UINT (CWnd::*)(CWnd *, UINT), OnNotifyFormat, AfxW, AfxL)
#define ON_WM_PAINT() AFX_WND_ENTRY(WM_PAINT, void (CWnd::*)(), OnPaint)
#define ON_WM_PAINTCLIPBOARD()                                                                                         \
    AFX_WND_ENTRY(WM_PAINTCLIPBOARD, void (CWnd::*)(CWnd *, HGLOBAL), OnPaintClipboard, AfxW, AfxL)
#define ON_WM_PALETTECHANGED() AFX_WND_ENTRY(WM_PALETTECHANGED, void (CWnd::*)(CWnd *), OnPaletteChanged, AfxW)
#define ON_WM_PALETTEISCHANGING() AFX_WND_ENTRY(WM_PALETTEISCHANGING, void (CWnd::*)(CWnd *), OnPaletteIsChanging, AfxW)
#define ON_WM_PARENTNOTIFY() AFX_WND_ENTRY(WM_PARENTNOTIFY, void (CWnd::*)(UINT, LPARAM), OnParentNotify, AfxW, AfxL)
#define ON_WM_POWERBROADCAST()                                                                                         \
    AFX_WND_ENTRY(WM_POWERBROADCAST, UINT (CWnd::*)(UINT, UINT), OnPowerBroadcast, AfxW, AfxL)
#define ON_WM_QUERYDRAGICON() AFX_WND_ENTRY(WM_QUERYDRAGICON, HCURSOR (CWnd::*)(), OnQueryDragIcon)
#define ON_WM_QUERYENDSESSION() AFX_WND_ENTRY(WM_QUERYENDSESSION, BOOL (CWnd::*)(), OnQueryEndSession)
#define ON_WM_QUERYNEWPALETTE() AFX_WND_ENTRY(WM_QUERYNEWPALETTE, BOOL (CWnd::*)(), OnQueryNewPalette)
#define ON_WM_QUERYOPEN() AFX_WND_ENTRY(WM_QUERYOPEN, BOOL (CWnd::*)(), OnQueryOpen)
#define ON_WM_QUERYUISTATE() AFX_WND_ENTRY(WM_QUERYUISTATE, UINT (CWnd::*)(), OnQueryUIState)
#define ON_WM_RBUTTONDBLCLK() AFX_WND_ENTRY(WM_RBUTTONDBLCLK, void (CWnd::*)(UINT, CPoint), OnRButtonDblClk, AfxW, AfxL)
#define ON_WM_RBUTTONDOWN() AFX_WND_ENTRY(WM_RBUTTONDOWN, void (CWnd::*)(UINT, CPoint), OnRButtonDown, AfxW, AfxL)
#define ON_WM_RBUTTONUP() AFX_WND_ENTRY(WM_RBUTTONUP, void (CWnd::*)(UINT, CPoint), OnRButtonUp, AfxW, AfxL)
#define ON_WM_RENDERALLFORMATS() AFX_WND_ENTRY(WM_RENDERALLFORMATS, void (CWnd::*)(), OnRenderAllFormats)
#define ON_WM_RENDERFORMAT() AFX_WND_ENTRY(WM_RENDERFORMAT, void (CWnd::*)(UINT), OnRenderFormat, AfxW)
#define ON_WM_SETCURSOR()                                                                                              \
    AFX_WND_ENTRY(WM_SETCURSOR, BOOL (CWnd::*)(CWnd *, UINT, UINT), OnSetCursor, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_SETFOCUS() AFX_WND_ENTRY(WM_SETFOCUS, void (CWnd::*)(CWnd *), OnSetFocus, AfxW)
#define ON_WM_SETTINGCHANGE()                                                                                          \
    AFX_WND_ENTRY(WM_SETTINGCHANGE, void (CWnd::*)(UINT, LPCTSTR), OnSettingChange, AfxW, AfxL)
#define ON_WM_SHOWWINDOW() AFX_WND_ENTRY(WM_SHOWWINDOW, void (CWnd::*)(BOOL, UINT), OnShowWindow, AfxW, AfxL)
#define ON_WM_SIZE() AFX_WND_ENTRY(WM_SIZE, void (CWnd::*)(UINT, int, int), OnSize, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_SIZECLIPBOARD()                                                                                          \
    AFX_WND_ENTRY(WM_SIZECLIPBOARD, void (CWnd::*)(CWnd *, HGLOBAL), OnSizeClipboard, AfxW, AfxL)
#define ON_WM_SIZING() AFX_WND_ENTRY_TRUE(WM_SIZING, void (CWnd::*)(UINT, LPRECT), OnSizing, AfxW, AfxL)
#define ON_WM_SPOOLERSTATUS()                                                                                          \
    AFX_WND_ENTRY(WM_SPOOLERSTATUS, void (CWnd::*)(UINT, UINT), OnSpoolerStatus, AfxW, AfxLLow)
#define ON_WM_STYLECHANGED()                                                                                           \
    AFX_WND_ENTRY(WM_STYLECHANGED, void (CWnd::*)(int, LPSTYLESTRUCT), OnStyleChanged, AfxW, AfxL)
#define ON_WM_STYLECHANGING()                                                                                          \
    AFX_WND_ENTRY(WM_STYLECHANGING, void (CWnd::*)(int, LPSTYLESTRUCT), OnStyleChanging, AfxW, AfxL)
#define ON_WM_SYSCHAR() AFX_WND_ENTRY(WM_SYSCHAR, void (CWnd::*)(UINT, UINT, UINT), OnSysChar, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_SYSCOLORCHANGE() AFX_WND_ENTRY(WM_SYSCOLORCHANGE, void (CWnd::*)(), OnSysColorChange)
#define ON_WM_SYSCOMMAND() AFX_WND_ENTRY(WM_SYSCOMMAND, void (CWnd::*)(UINT, LPARAM), OnSysCommand, AfxW, AfxL)
#define ON_WM_SYSDEADCHAR()                                                                                            \
    AFX_WND_ENTRY(WM_SYSDEADCHAR, void (CWnd::*)(UINT, UINT, UINT), OnSysDeadChar, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_SYSKEYDOWN()                                                                                             \
    AFX_WND_ENTRY(WM_SYSKEYDOWN, void (CWnd::*)(UINT, UINT, UINT), OnSysKeyDown, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_SYSKEYUP()                                                                                               \
    AFX_WND_ENTRY(WM_SYSKEYUP, void (CWnd::*)(UINT, UINT, UINT), OnSysKeyUp, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_TCARD() AFX_WND_ENTRY(WM_TCARD, void (CWnd::*)(UINT, DWORD), OnTCard, AfxW, AfxL)
#define ON_WM_TIMECHANGE() AFX_WND_ENTRY(WM_TIMECHANGE, void (CWnd::*)(), OnTimeChange)
#define ON_WM_TIMER() AFX_WND_ENTRY(WM_TIMER, void (CWnd::*)(UINT_PTR), OnTimer, AfxW)
#define ON_WM_UNICHAR() AFX_WND_ENTRY(WM_UNICHAR, void (CWnd::*)(UINT, UINT, UINT), OnUniChar, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_UNINITMENUPOPUP()                                                                                        \
    AFX_WND_ENTRY(WM_UNINITMENUPOPUP, void (CWnd::*)(CMenu *, UINT), OnUnInitMenuPopup, AfxW, AfxLHigh)
#define ON_WM_UPDATEUISTATE()                                                                                          \
    AFX_WND_ENTRY(WM_UPDATEUISTATE, void (CWnd::*)(UINT, UINT), OnUpdateUIState, AfxWLow, AfxWHigh)
#define ON_WM_USERCHANGED() AFX_WND_ENTRY(WM_USERCHANGED, void (CWnd::*)(), OnUserChanged)
#define ON_WM_VKEYTOITEM()                                                                                             \
    AFX_WND_ENTRY(WM_VKEYTOITEM, int (CWnd::*)(UINT, CListBox *, UINT), OnVKeyToItem, AfxWLow, AfxL, AfxWHigh)
#define ON_WM_VSCROLL()                                                                                                \
    AFX_WND_ENTRY(WM_VSCROLL, void (CWnd::*)(UINT, UINT, CScrollBar *), OnVScroll, AfxWLow, AfxWHigh, AfxL)
#define ON_WM_VSCROLLCLIPBOARD()                                                                                       \
    AFX_WND_ENTRY(WM_VSCROLLCLIPBOARD, void (CWnd::*)(CWnd *, UINT, UINT), OnVScrollClipboard, AfxW, AfxLLow, AfxLHigh)
#define ON_WM_WINDOWPOSCHANGED()                                                                                       \
    AFX_WND_ENTRY(WM_WINDOWPOSCHANGED, void (CWnd::*)(WINDOWPOS *), OnWindowPosChanged, AfxL)
#define ON_WM_WINDOWPOSCHANGING()                                                                                      \
    AFX_WND_ENTRY(WM_WINDOWPOSCHANGING, void (CWnd::*)(WINDOWPOS *), OnWindowPosChanging, AfxL)
#define ON_WM_WININICHANGE() AFX_WND_ENTRY(WM_WININICHANGE, void (CWnd::*)(LPCTSTR), OnWinIniChange, AfxL)
#define ON_WM_WTSSESSION_CHANGE()                                                                                      \
    AFX_WND_ENTRY(WM_WTSSESSION_CHANGE, void (CWnd::*)(UINT, UINT), OnSessionChange, AfxW, AfxL)
#define ON_WM_XBUTTONDBLCLK()                                                                                          \
    AFX_WND_ENTRY_TRUE(WM_XBUTTONDBLCLK, void (CWnd::*)(UINT, UINT, CPoint), OnXButtonDblClk, AfxWLow, AfxWHigh, AfxL)
#define ON_WM_XBUTTONDOWN()                                                                                            \
    AFX_WND_ENTRY_TRUE(WM_XBUTTONDOWN, void (CWnd::*)(UINT, UINT, CPoint), OnXButtonDown, AfxWLow, AfxWHigh, AfxL)
#define ON_WM_XBUTTONUP()                                                                                              \
    AFX_WND_ENTRY_TRUE(WM_XBUTTONUP, void (CWnd::*)(UINT, UINT, CPoint), OnXButtonUp, AfxWLow, AfxWHigh, AfxL)

// Messages that a control's parent hands back to it.
#define ON_WM_CHARTOITEM_REFLECT()                                                                                     \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_CHARTOITEM, int(CWnd::*)(UINT, UINT), CharToItem, AfxWLow, AfxWHigh)
#define ON_WM_COMPAREITEM_REFLECT()                                                                                    \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_COMPAREITEM, int(CWnd::*)(LPCOMPAREITEMSTRUCT), CompareItem, AfxL)
#define ON_WM_CTLCOLOR_REFLECT()                                                                                       \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_CTLCOLOR, HBRUSH(CWnd::*)(CDC *, UINT), CtlColor, AfxColourDc, AfxColourKind)
#define ON_WM_DELETEITEM_REFLECT()                                                                                     \
    AFX_WND_ENTRY_TRUE(WM_REFLECT_BASE + WM_DELETEITEM, void(CWnd::*)(LPDELETEITEMSTRUCT), DeleteItem, AfxL)
#define ON_WM_DRAWITEM_REFLECT()                                                                                       \
    AFX_WND_ENTRY_TRUE(WM_REFLECT_BASE + WM_DRAWITEM, void(CWnd::*)(LPDRAWITEMSTRUCT), DrawItem, AfxL)
#define ON_WM_HSCROLL_REFLECT()                                                                                        \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_HSCROLL, void(CWnd::*)(UINT, UINT), HScroll, AfxWLow, AfxWHigh)
#define ON_WM_MEASUREITEM_REFLECT()                                                                                    \
    AFX_WND_ENTRY_TRUE(WM_REFLECT_BASE + WM_MEASUREITEM, void(CWnd::*)(LPMEASUREITEMSTRUCT), MeasureItem, AfxL)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                                   \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_PARENTNOTIFY, void(CWnd::*)(UINT, LPARAM), ParentNotify, AfxW, AfxL)
#define ON_WM_VKEYTOITEM_REFLECT()                                                                                     \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_VKEYTOITEM, int(CWnd::*)(UINT, UINT), VKeyToItem, AfxWLow, AfxWHigh)
#define ON_WM_VSCROLL_REFLECT()                                                                                        \
    AFX_WND_ENTRY(WM_REFLECT_BASE + WM_VSCROLL, void(CWnd::*)(UINT, UINT), VScroll, AfxWLow, AfxWHigh)
