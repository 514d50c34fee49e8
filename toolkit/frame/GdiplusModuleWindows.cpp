#include "frame/GdiplusModule.h"

bool StartGdiplus()
{
    static bool const started = [] {
        ULONG_PTR token = 0;
        Gdiplus::GdiplusStartupInput const input;
        return Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok;
    }();
    return started;
}
