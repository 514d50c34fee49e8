// start_and_close PROGRAM: starts a program, closes its main window by the command of its button once it shows, and
// ends with the program's code.

#include <windows.h>

#include <cstdio>
#include <string>

namespace
{
constexpr DWORD time_limit = 600000; // milliseconds, against hangs alone

struct Search
{
    DWORD process;
    HWND found;
};

BOOL CALLBACK TakeVisible(HWND window, LPARAM parameter)
{
    auto & search = *reinterpret_cast<Search *>(parameter);
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process == search.process && ::IsWindowVisible(window))
        search.found = window;
    return search.found == nullptr;
}

int Failed(char const * what)
{
    std::fprintf(stderr, "%s (error %lu)\n", what, ::GetLastError());
    return 1;
}
} // namespace

int wmain(int count, wchar_t ** arguments)
{
    if (count != 2)
        return Failed("one program is wanted");
    std::wstring line = L"\"" + std::wstring(arguments[1]) + L"\"";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION child{};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &child))
        return Failed("the program does not start");

    Search search{child.dwProcessId, nullptr};
    ULONGLONG const end = ::GetTickCount64() + time_limit;
    while (search.found == nullptr && ::GetTickCount64() < end)
    {
        ::EnumWindows(&TakeVisible, reinterpret_cast<LPARAM>(&search));
        if (search.found == nullptr && ::WaitForSingleObject(child.hProcess, 20) == WAIT_OBJECT_0)
        {
            DWORD code = 0;
            ::GetExitCodeProcess(child.hProcess, &code);
            std::fprintf(stderr, "the program ended with %#lx before it showed a window\n", code);
            return 1;
        }
    }
    if (search.found == nullptr || !::PostMessageW(search.found, WM_COMMAND, IDCANCEL, 0) ||
        ::WaitForSingleObject(child.hProcess, time_limit) != WAIT_OBJECT_0)
    {
        ::TerminateProcess(child.hProcess, 1);
        return Failed("the program showed no window, or its button does not close it");
    }
    DWORD code = 1;
    ::GetExitCodeProcess(child.hProcess, &code);
    if (code != 0)
        std::fprintf(stderr, "the program ended with %#lx\n", code);
    return code == 0 ? 0 : 1;
}
