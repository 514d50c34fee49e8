#pragma once
// Sending a control its messages with typed arguments and results.

#include <afx.h>

#include <type_traits>

namespace framework
{
template <class To, class From> To MessageValue(From value)
{
    if constexpr (std::is_same_v<To, From>)
        return value;
    else if constexpr (std::is_null_pointer_v<From>)
        return To{};
    else if constexpr (std::is_pointer_v<From> && !std::is_function_v<std::remove_pointer_t<From>>)
        return reinterpret_cast<To>(const_cast<std::remove_cv_t<std::remove_pointer_t<From>> *>(value));
    else if constexpr (std::is_pointer_v<From> || std::is_pointer_v<To>)
        return reinterpret_cast<To>(value);
    else
        return static_cast<To>(value);
}

/// Sends the message to the window: pointers and numbers of any kind as arguments, the result as Result.
template <class Result = LRESULT, class First = WPARAM, class Second = LPARAM>
Result Send(HWND window, UINT message, First first = {}, Second second = {})
{
    ASSERT(::IsWindow(window));
    LRESULT const result = ::SendMessage(window, message, MessageValue<WPARAM>(first), MessageValue<LPARAM>(second));
    if constexpr (!std::is_void_v<Result>)
        return MessageValue<Result>(result);
}
} // namespace framework
