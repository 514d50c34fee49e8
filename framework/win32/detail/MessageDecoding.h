#pragma once
// How a message becomes the call of a handler of the documented type. The macros of message maps name what is here.

#include <bit>
#include <type_traits>

#include "detail/cmdtarget.h"
#include "detail/gdi.h"
#include "detail/menu.h"
#include "detail/wnd.h"

namespace framework
{
/// A window message on its way to its handler.
struct WindowMessage
{
    CWnd & window;
    WPARAM w;
    LPARAM l;
};

/// What the lParam of a WM_CTLCOLOR, made from the message of one kind of control, points to.
struct ControlColour
{
    HWND control;
    HDC dc;
    UINT kind; // CTLCOLOR_...
};

inline ControlColour const & ColourOf(WindowMessage const & message)
{
    return *reinterpret_cast<ControlColour const *>(message.l);
}

/// How the entries of message maps call their handlers. One of the two is null, both where the dispatcher knows the
/// type.
struct MessageDecoding
{
    /// A handler of a window message. False if it leaves the message to the window's own procedure.
    bool (*message)(WindowMessage const & message, AFX_PMSG handler, LRESULT & result);
    /// A handler of a command or notification. False if others are to be asked for it.
    BOOL (*command)(CCmdTarget & target, AFX_PMSG handler, UINT id, void * extra);
};

/// What the entries of message maps keep of a decoding.
inline UINT_PTR SignatureOf(MessageDecoding const & decoding) noexcept
{
    return reinterpret_cast<UINT_PTR>(&decoding);
}

inline MessageDecoding const & DecodingOf(AFX_MSGMAP_ENTRY const & entry) noexcept
{
    return *reinterpret_cast<MessageDecoding const *>(entry.nSig);
}

/// The handler as the general type that message-map entries keep.
template <class Handler> AFX_PMSG EraseHandlerType(Handler handler) noexcept
{
    static_assert(sizeof(Handler) == sizeof(AFX_PMSG), "handlers are members of classes with one CCmdTarget base");
    return std::bit_cast<AFX_PMSG>(handler);
}

/// The object that belongs to a handle.
template <class Object> Object * ObjectOf(INT_PTR handle)
{
    if constexpr (std::is_same_v<Object, CDC>)
        return CDC::FromHandle(reinterpret_cast<HDC>(handle));
    else if constexpr (std::is_same_v<Object, CMenu>)
        return CMenu::FromHandle(reinterpret_cast<HMENU>(handle));
    else
        return static_cast<Object *>(CWnd::FromHandle(reinterpret_cast<HWND>(handle)));
}

/// A handler's argument from a part of the message.
template <class Parameter, class Part> Parameter Argument(Part part)
{
    if constexpr (std::is_pointer_v<Part>)
        return Argument<Parameter>(reinterpret_cast<INT_PTR>(part));
    else if constexpr (std::is_same_v<Parameter, CPoint>)
        return CPoint(static_cast<short>(LOWORD(part)), static_cast<short>(HIWORD(part)));
    else if constexpr (std::is_convertible_v<Parameter, CObject const *>)
        return ObjectOf<std::remove_pointer_t<Parameter>>(static_cast<INT_PTR>(part));
    else if constexpr (std::is_pointer_v<Parameter>)
        return reinterpret_cast<Parameter>(part);
    else
        return static_cast<Parameter>(part);
}

/// The message is handled, with what the handler gives.
struct AnswerOfHandler
{
    static bool Finish(LRESULT &) { return true; }
};

/// The message is handled, with TRUE.
struct AnswerTrue
{
    static bool Finish(LRESULT & result)
    {
        result = TRUE;
        return true;
    }
};

/// The message is handled if the handler says so.
struct AnswerIfTaken
{
    static bool Finish(LRESULT const & result) { return result != 0; }
};

template <class Answer, class Prototype, class... Parts> struct MessageDecoder;

template <class Answer, class Result, class... Parameters, class... Parts>
struct MessageDecoder<Answer, Result (CWnd::*)(Parameters...), Parts...>
{
    static_assert(sizeof...(Parameters) == sizeof...(Parts), "each of the handler's arguments stands somewhere");

    static bool Call(WindowMessage const & message, AFX_PMSG handler, LRESULT & result)
    {
        auto const member = std::bit_cast<Result (CWnd::*)(Parameters...)>(handler);
        if constexpr (std::is_void_v<Result>)
            (message.window.*member)(Argument<Parameters>(Parts::Get(message))...);
        else if constexpr (std::is_pointer_v<Result>)
            result = reinterpret_cast<LRESULT>((message.window.*member)(Argument<Parameters>(Parts::Get(message))...));
        else
            result = static_cast<LRESULT>((message.window.*member)(Argument<Parameters>(Parts::Get(message))...));
        return Answer::Finish(result);
    }
};

/// A handler's argument from a command, a notification or the state of a command's item.
template <class Parameter> Parameter CommandArgument([[maybe_unused]] UINT id, [[maybe_unused]] void * extra)
{
    if constexpr (std::is_same_v<Parameter, UINT>)
        return id;
    else if constexpr (std::is_same_v<Parameter, NMHDR *>)
        return static_cast<AFX_NOTIFY *>(extra)->pNMHDR;
    else if constexpr (std::is_same_v<Parameter, LRESULT *>)
        return static_cast<AFX_NOTIFY *>(extra)->pResult;
    else
        return static_cast<Parameter>(extra);
}

template <class Prototype> struct CommandDecoder;

template <class Result, class... Parameters> struct CommandDecoder<Result (CCmdTarget::*)(Parameters...)>
{
    static BOOL Call(CCmdTarget & target, AFX_PMSG handler, UINT id, void * extra)
    {
        auto const member = std::bit_cast<Result (CCmdTarget::*)(Parameters...)>(handler);
        if constexpr (!std::is_void_v<Result>)
            return (target.*member)(CommandArgument<Parameters>(id, extra)...);
        else
            (target.*member)(CommandArgument<Parameters>(id, extra)...);
        if constexpr ((std::is_same_v<Parameters, CCmdUI *> || ...))
            return !CmdUiAccess::TakeContinueRouting(*static_cast<CCmdUI *>(extra));
        else
            return TRUE;
    }
};

template <class Answer, class Prototype, class... Parts>
inline constexpr MessageDecoding message_decoding = {&MessageDecoder<Answer, Prototype, Parts...>::Call, nullptr};

template <class Prototype>
inline constexpr MessageDecoding command_decoding = {nullptr, &CommandDecoder<Prototype>::Call};

/// Handlers of threads have one type.
inline constexpr MessageDecoding thread_message = {nullptr, nullptr};
} // namespace framework
