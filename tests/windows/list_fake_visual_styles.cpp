// Without the header of the real functions, whose names these have.

#include <cwchar>

#include "list_FakeVisualStyles.h"

namespace tests::fake_visual_styles
{
HRESULT g_result = S_OK;
wchar_t const * g_colorScheme = L"";
BOOL g_themed = FALSE;
int g_calls = 0;
int g_themeSize = 0;
int g_colorSize = 0;
} // namespace tests::fake_visual_styles

using namespace tests::fake_visual_styles;

extern "C"
{
    __declspec(dllexport) HRESULT WINAPI
        GetCurrentThemeName(LPWSTR, int themeSize, LPWSTR color, int colorSize, LPWSTR, int)
    {
        ++g_calls;
        g_themeSize = themeSize;
        g_colorSize = colorSize;
        std::wcsncpy(color, g_colorScheme, static_cast<size_t>(colorSize));
        return g_result;
    }

    __declspec(dllexport) BOOL WINAPI IsAppThemed()
    {
        return g_themed;
    }
}
