#include "HangWatch.h"

#include "CallStack.h"

namespace tests
{
namespace
{
void Say(char const * text)
{
    char line[200];
    int const length = ::wsprintfA(line, "%s\n", text);
    DWORD written = 0;
    ::WriteFile(::GetStdHandle(STD_ERROR_HANDLE), line, static_cast<DWORD>(length), &written, nullptr);
}

unsigned int Milliseconds(FILETIME const & time)
{
    constexpr unsigned long long units = 10000;
    return static_cast<unsigned int>((static_cast<unsigned long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime) /
                                     units);
}

DWORD WINAPI EndLater(void * limit)
{
    ::Sleep(static_cast<DWORD>(reinterpret_cast<std::size_t>(limit)));
    Say("the program stands still");
    // Whether something goes on there, too slowly or in a circle, or nothing does.
    constexpr int looks = 4;
    constexpr DWORD between_looks = 200;
    for (int look = 0; look < looks; ++look)
    {
        FILETIME begun{};
        FILETIME ended{};
        FILETIME kernel{};
        FILETIME user{};
        ::GetProcessTimes(::GetCurrentProcess(), &begun, &ended, &kernel, &user);
        char text[100];
        ::wsprintfA(text, "it has worked for %u ms in the system and %u ms of its own", Milliseconds(kernel),
                    Milliseconds(user));
        Say(text);
        WriteOtherThreads();
        ::Sleep(between_looks);
    }
    ::TerminateProcess(::GetCurrentProcess(), exit_code_of_a_hang);
    return 0;
}
} // namespace

void WatchForHang(std::chrono::milliseconds limit)
{
    auto const count = static_cast<std::size_t>(limit.count());
    if (HANDLE const thread = ::CreateThread(nullptr, 0, EndLater, reinterpret_cast<void *>(count), 0, nullptr))
        ::CloseHandle(thread);
}
} // namespace tests
