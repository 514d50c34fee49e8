#include "CallStack.h"

#include <tlhelp32.h>

namespace tests
{
namespace
{
/// How many callers are shown.
constexpr int deepest_shown = 40;

/// From a function to its caller; false at the end.
bool Unwind(CONTEXT & frame)
{
    DWORD64 base = 0;
    RUNTIME_FUNCTION * const function = ::RtlLookupFunctionEntry(frame.Rip, &base, nullptr);
    if (function == nullptr)
    {
        if (frame.Rsp == 0 || frame.Rip == 0)
            return false;
        frame.Rip = *reinterpret_cast<DWORD64 const *>(frame.Rsp); // it has no frame
        frame.Rsp += sizeof(DWORD64);
        return true;
    }
    void * handler = nullptr;
    DWORD64 establisher = 0;
    ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, frame.Rip, function, &frame, &handler, &establisher, nullptr);
    return true;
}

struct Places
{
    std::size_t place[deepest_shown];
    int count = 0;
};

Places Callers(CONTEXT frame)
{
    Places places;
    while (places.count < deepest_shown && Unwind(frame) && frame.Rip != 0)
        places.place[places.count++] = frame.Rip;
    return places;
}

void Write(Places const & places)
{
    for (int depth = 0; depth < places.count; ++depth)
        WritePlace("    %lu called from %Ix of %s\n", static_cast<DWORD>(depth), places.place[depth]);
}

void WriteThread(DWORD id)
{
    HANDLE const thread = ::OpenThread(THREAD_SUSPEND_RESUME | THREAD_GET_CONTEXT, FALSE, id);
    if (thread == nullptr)
        return;
    // It may hold a lock that the names of modules need: they are asked for when it goes on.
    CONTEXT context = {};
    context.ContextFlags = CONTEXT_FULL;
    Places places;
    ::SuspendThread(thread);
    bool const known = ::GetThreadContext(thread, &context) != FALSE;
    if (known)
        places = Callers(context);
    ::ResumeThread(thread);
    ::CloseHandle(thread);
    if (!known)
        return;
    WritePlace("thread %lx at %Ix of %s\n", id, context.Rip);
    Write(places);
}
} // namespace

void WritePlace(char const * format, DWORD what, std::size_t at)
{
    HMODULE module = nullptr;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<char const *>(at), &module);
    char name[MAX_PATH] = "no module";
    ::GetModuleFileNameA(module, name, MAX_PATH);
    char text[MAX_PATH + 100];
    int const length = ::wsprintfA(text, format, what, at - reinterpret_cast<std::size_t>(module), name);
    DWORD written = 0;
    ::WriteFile(::GetStdHandle(STD_ERROR_HANDLE), text, static_cast<DWORD>(length), &written, nullptr);
}

void WriteCallers(CONTEXT const & context)
{
    Write(Callers(context));
}

void WriteOtherThreads()
{
    HANDLE const all = ::CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    if (all == INVALID_HANDLE_VALUE)
        return;
    THREADENTRY32 each = {};
    each.dwSize = sizeof(each);
    for (BOOL more = ::Thread32First(all, &each); more; more = ::Thread32Next(all, &each))
    {
        if (each.th32OwnerProcessID == ::GetCurrentProcessId() && each.th32ThreadID != ::GetCurrentThreadId())
            WriteThread(each.th32ThreadID);
    }
    ::CloseHandle(all);
}
} // namespace tests
