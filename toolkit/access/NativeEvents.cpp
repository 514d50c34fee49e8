#include "access/NativeEvents.h"

#include <oleacc.h>

#include <algorithm>
#include <iterator>

namespace
{
/// An event of the native controls of one class.
struct NativeEvent
{
    bool IsOf(ATOM other, DWORD otherEvent) const { return kind == other && event == otherEvent; }
    /// Until it is known.
    bool IsOpen() const { return !told && changes < enough_changes; }
    void Listen(HWND wanted);
    void End();

    /// Changes without a word from the native control, after which it tells of none.
    static constexpr int enough_changes = 8;

    ATOM kind = 0;
    DWORD event = 0;
    bool told = false;
    int changes = 0;
    HWND window = nullptr;
    bool ofItem = false;
    HWINEVENTHOOK hook = nullptr;
};

/// Those that anybody heard of; the rest is told in any case.
thread_local NativeEvent s_events[16];
/// What is told here is not the native control's.
thread_local bool s_own = false;

void CALLBACK Hear(HWINEVENTHOOK hook, DWORD, HWND window, LONG object, LONG child, DWORD, DWORD)
{
    if (s_own || object != OBJID_CLIENT)
        return;
    for (NativeEvent & each : s_events)
    {
        if (each.hook == hook && each.window == window && each.ofItem == (child != CHILDID_SELF))
            each.told = true;
    }
}

void NativeEvent::Listen(HWND wanted)
{
    End();
    window = wanted;
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<wchar_t const *>(&Hear), &module);
    // To some a further choice is an event of its own.
    DWORD const last = event == EVENT_OBJECT_SELECTION ? EVENT_OBJECT_SELECTIONADD : event;
    hook = ::SetWinEventHook(event, last, module, Hear, ::GetCurrentProcessId(), ::GetCurrentThreadId(),
                             WINEVENT_INCONTEXT);
}

void NativeEvent::End()
{
    if (hook != nullptr)
        ::UnhookWinEvent(hook);
    hook = nullptr;
}

/// Null where there are too many.
NativeEvent * Find(HWND window, DWORD event)
{
    auto const kind = static_cast<ATOM>(::GetClassLongPtrW(window, GCW_ATOM));
    NativeEvent * const end = std::end(s_events);
    NativeEvent * const found =
        std::find_if(s_events, end, [=](NativeEvent const & each) { return each.kind == 0 || each.IsOf(kind, event); });
    if (found == end)
        return nullptr;
    found->kind = kind;
    found->event = event;
    return found;
}
} // namespace

void TellUnlessNative(DWORD event, HWND window, accessible::Element element)
{
    if (!::IsWinEventHookInstalled(event))
        return;
    NativeEvent * const native = Find(window, event);
    if (native != nullptr && native->IsOpen())
    {
        native->ofItem = !element.IsControl();
        if (native->window != window || native->hook == nullptr)
            native->Listen(window);
        ++native->changes;
    }
    if (native != nullptr && !native->IsOpen())
        native->End();
    if (native != nullptr && native->told)
        return;
    s_own = true;
    TellOfEvent(event, window, element);
    s_own = false;
}
