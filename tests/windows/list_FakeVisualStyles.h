#pragma once
// This program as a visual-style library: it exports two of such a library's functions, which answer what is set here.

#include <windows.h>

namespace tests::fake_visual_styles
{
/// What GetCurrentThemeName returns, and the colour scheme that it names all the same.
extern HRESULT g_result;
extern wchar_t const * g_colorScheme;
/// What IsAppThemed returns.
extern BOOL g_themed;
/// Calls of GetCurrentThemeName, and the sizes that it was given last.
extern int g_calls;
extern int g_themeSize;
extern int g_colorSize;
} // namespace tests::fake_visual_styles
