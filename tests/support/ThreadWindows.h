#pragma once
// The number of top-level windows of the calling thread, to see that a test leaves none behind.

#include <windows.h>

namespace tests
{
inline int ThreadWindows()
{
    int count = 0;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND, LPARAM counter) {
            ++*reinterpret_cast<int *>(counter);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}
} // namespace tests
