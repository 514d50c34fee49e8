#pragma once
// The platform's luminance function where it does something. Internal to the module.

#include <windows.h>

/// Whether a function of ColorAdjustLuma's kind adjusts anything; some platforms' returns its argument.
bool AdjustsLuma(COLORREF(WINAPI * function)(COLORREF, int, BOOL));

/// ColorAdjustLuma with a scaled change, computed here where the platform's does nothing.
COLORREF AdjustLuma(COLORREF color, int thousandths);
