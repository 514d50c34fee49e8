// Keeps Wine's desktop process alive during a run of tests: it ends a second after its last program, and every program
// that starts it anew hands its output to it, so that whoever reads that output waits as well.

#include <windows.h>

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int)
{
    if (::CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, instance, nullptr) == nullptr)
        return 1;
    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0)
        ::DispatchMessageW(&message);
    return 0;
}
