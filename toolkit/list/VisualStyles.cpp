#include "list/VisualStyles.h"

#include <commctrl.h>
#include <shlwapi.h>

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <type_traits>

namespace
{
constexpr int name_buffer_size = 255;
constexpr int not_known = -1;

/// Set up while the module is loaded, under the loader's lock: the library needs none but the system's own.
CVisualStyles g_visualStyles;

int g_styledPainting = not_known;

/// A function's name as a template argument.
template <std::size_t size> struct Name
{
    consteval Name(char const (&text)[size]) { std::copy_n(text, size, m_text); }

    char m_text[size];
};

template <typename Result, typename... Arguments> Result WINAPI Fallback(Arguments...)
{
    if constexpr (std::is_same_v<Result, HRESULT>)
    {
        return E_FAIL;
    }
    else if constexpr (!std::is_void_v<Result>)
    {
        return Result();
    }
}

template <typename Function> Function Find(HMODULE library, char const * name)
{
    FARPROC const address = library != nullptr ? ::GetProcAddress(library, name) : nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void *>(address));
}

/// Calls the library's function of that name, or the fallback where there is none. The slot is the process's.
template <Name name, typename Result, typename... Arguments> Result Call(HMODULE library, Arguments... arguments)
{
    using Function = Result(WINAPI *)(Arguments...);
    static Function slot = nullptr;
    if (slot == nullptr)
    {
        slot = Find<Function>(library, name.m_text);
        if (slot == nullptr)
        {
            slot = &Fallback<Result, Arguments...>;
        }
    }
    return slot(arguments...);
}

/// The common controls have version 6.0.
bool HasStyledControls()
{
    DLLVERSIONINFO version = {};
    version.cbSize = sizeof(version);
    if (HMODULE const library = ::LoadLibraryW(L"comctl32.dll"); library != nullptr)
    {
        auto const getVersion = Find<DLLGETVERSIONPROC>(library, "DllGetVersion");
        if (getVersion == nullptr || FAILED(getVersion(&version)))
        {
            version = {};
        }
        ::FreeLibrary(library);
    }
    return version.dwMajorVersion == 6 && version.dwMinorVersion == 0;
}

bool IsKnownColorScheme(wchar_t const * name)
{
    wchar_t const * const known[] = {L"normalcolor", L"homestead", L"metallic"};
    return std::ranges::any_of(known, [&](wchar_t const * scheme) { return _wcsicmp(name, scheme) == 0; });
}
} // namespace

CVisualStyles & VisualStyles()
{
    return g_visualStyles;
}

CVisualStyles::CVisualStyles(wchar_t const * library) : m_library(::LoadLibraryW(library)) {}

CVisualStyles::~CVisualStyles()
{
    if (m_library != nullptr)
    {
        ::FreeLibrary(m_library);
    }
}

int CVisualStyles::IsStyledPaintingOn() const
{
    if (g_styledPainting != not_known)
    {
        return g_styledPainting;
    }
    g_styledPainting = 0;
    if (!HasStyledControls())
    {
        return 0;
    }
    wchar_t theme[name_buffer_size] = {};
    wchar_t color[name_buffer_size] = {};
    // Hosts expect that only a failure to name the theme goes on.
    if (SUCCEEDED(GetCurrentThemeName(theme, name_buffer_size, color, name_buffer_size, nullptr, 0)))
    {
        return 0;
    }
    if (!IsKnownColorScheme(color))
    {
        return 0;
    }
    g_styledPainting = 1;
    return IsAppThemed() && m_library != nullptr ? 1 : 0;
}

HTHEME CVisualStyles::OpenThemeData(HWND window, LPCWSTR classList) const
{
    return Call<"OpenThemeData", HTHEME>(m_library, window, classList);
}

HRESULT CVisualStyles::CloseThemeData(HTHEME theme) const
{
    return Call<"CloseThemeData", HRESULT>(m_library, theme);
}

HRESULT CVisualStyles::DrawThemeBackground(HTHEME theme, HDC dc, int part, int state, RECT const * rect,
                                           RECT const * clip) const
{
    return Call<"DrawThemeBackground", HRESULT>(m_library, theme, dc, part, state, rect, clip);
}

HRESULT CVisualStyles::DrawThemeText(HTHEME theme, HDC dc, int part, int state, LPCWSTR text, int length, DWORD flags,
                                     DWORD flags2, RECT const * rect) const
{
    return Call<"DrawThemeText", HRESULT>(m_library, theme, dc, part, state, text, length, flags, flags2, rect);
}

HRESULT CVisualStyles::GetThemeBackgroundContentRect(HTHEME theme, HDC dc, int part, int state, RECT const * bounding,
                                                     RECT * content) const
{
    return Call<"GetThemeBackgroundContentRect", HRESULT>(m_library, theme, dc, part, state, bounding, content);
}

HRESULT CVisualStyles::GetThemeBackgroundExtent(HTHEME theme, HDC dc, int part, int state, RECT const * content,
                                                RECT * extent) const
{
    return Call<"GetThemeBackgroundExtent", HRESULT>(m_library, theme, dc, part, state, content, extent);
}

HRESULT CVisualStyles::GetThemePartSize(HTHEME theme, HDC dc, int part, int state, RECT const * rect,
                                        enum THEMESIZE which, SIZE * size) const
{
    return Call<"GetThemePartSize", HRESULT>(m_library, theme, dc, part, state, rect, which, size);
}

HRESULT CVisualStyles::GetThemeTextExtent(HTHEME theme, HDC dc, int part, int state, LPCWSTR text, int length,
                                          DWORD flags, RECT const * bounding, RECT * extent) const
{
    return Call<"GetThemeTextExtent", HRESULT>(m_library, theme, dc, part, state, text, length, flags, bounding,
                                               extent);
}

HRESULT CVisualStyles::GetThemeTextMetrics(HTHEME theme, HDC dc, int part, int state, TEXTMETRICW * metrics) const
{
    return Call<"GetThemeTextMetrics", HRESULT>(m_library, theme, dc, part, state, metrics);
}

HRESULT CVisualStyles::GetThemeBackgroundRegion(HTHEME theme, HDC dc, int part, int state, RECT const * rect,
                                                HRGN * region) const
{
    return Call<"GetThemeBackgroundRegion", HRESULT>(m_library, theme, dc, part, state, rect, region);
}

HRESULT CVisualStyles::HitTestThemeBackground(HTHEME theme, HDC dc, int part, int state, DWORD options,
                                              RECT const * rect, HRGN region, POINT point, WORD * code) const
{
    return Call<"HitTestThemeBackground", HRESULT>(m_library, theme, dc, part, state, options, rect, region, point,
                                                   code);
}

HRESULT CVisualStyles::DrawThemeEdge(HTHEME theme, HDC dc, int part, int state, RECT const * rect, UINT edge,
                                     UINT flags, RECT * content) const
{
    return Call<"DrawThemeEdge", HRESULT>(m_library, theme, dc, part, state, rect, edge, flags, content);
}

HRESULT CVisualStyles::DrawThemeIcon(HTHEME theme, HDC dc, int part, int state, RECT const * rect, HIMAGELIST images,
                                     int image) const
{
    return Call<"DrawThemeIcon", HRESULT>(m_library, theme, dc, part, state, rect, images, image);
}

BOOL CVisualStyles::IsThemePartDefined(HTHEME theme, int part, int state) const
{
    return Call<"IsThemePartDefined", BOOL>(m_library, theme, part, state);
}

BOOL CVisualStyles::IsThemeBackgroundPartiallyTransparent(HTHEME theme, int part, int state) const
{
    return Call<"IsThemeBackgroundPartiallyTransparent", BOOL>(m_library, theme, part, state);
}

HRESULT CVisualStyles::GetThemeColor(HTHEME theme, int part, int state, int property, COLORREF * color) const
{
    return Call<"GetThemeColor", HRESULT>(m_library, theme, part, state, property, color);
}

HRESULT CVisualStyles::GetThemeMetric(HTHEME theme, HDC dc, int part, int state, int property, int * value) const
{
    return Call<"GetThemeMetric", HRESULT>(m_library, theme, dc, part, state, property, value);
}

HRESULT CVisualStyles::GetThemeString(HTHEME theme, int part, int state, int property, LPWSTR buffer, int size) const
{
    return Call<"GetThemeString", HRESULT>(m_library, theme, part, state, property, buffer, size);
}

HRESULT CVisualStyles::GetThemeBool(HTHEME theme, int part, int state, int property, BOOL * value) const
{
    return Call<"GetThemeBool", HRESULT>(m_library, theme, part, state, property, value);
}

HRESULT CVisualStyles::GetThemeInt(HTHEME theme, int part, int state, int property, int * value) const
{
    return Call<"GetThemeInt", HRESULT>(m_library, theme, part, state, property, value);
}

HRESULT CVisualStyles::GetThemeEnumValue(HTHEME theme, int part, int state, int property, int * value) const
{
    return Call<"GetThemeEnumValue", HRESULT>(m_library, theme, part, state, property, value);
}

HRESULT CVisualStyles::GetThemePosition(HTHEME theme, int part, int state, int property, POINT * point) const
{
    return Call<"GetThemePosition", HRESULT>(m_library, theme, part, state, property, point);
}

HRESULT CVisualStyles::GetThemeFont(HTHEME theme, HDC dc, int part, int state, int property, LOGFONTW * font) const
{
    return Call<"GetThemeFont", HRESULT>(m_library, theme, dc, part, state, property, font);
}

HRESULT CVisualStyles::GetThemeRect(HTHEME theme, int part, int state, int property, RECT * rect) const
{
    return Call<"GetThemeRect", HRESULT>(m_library, theme, part, state, property, rect);
}

HRESULT CVisualStyles::GetThemeMargins(HTHEME theme, HDC dc, int part, int state, int property, RECT const * rect,
                                       MARGINS * margins) const
{
    return Call<"GetThemeMargins", HRESULT>(m_library, theme, dc, part, state, property, rect, margins);
}

HRESULT CVisualStyles::GetThemeIntList(HTHEME theme, int part, int state, int property, INTLIST * list) const
{
    return Call<"GetThemeIntList", HRESULT>(m_library, theme, part, state, property, list);
}

HRESULT CVisualStyles::GetThemePropertyOrigin(HTHEME theme, int part, int state, int property,
                                              enum PROPERTYORIGIN * origin) const
{
    return Call<"GetThemePropertyOrigin", HRESULT>(m_library, theme, part, state, property, origin);
}

HRESULT CVisualStyles::SetWindowTheme(HWND window, LPCWSTR application, LPCWSTR classList) const
{
    return Call<"SetWindowTheme", HRESULT>(m_library, window, application, classList);
}

HRESULT CVisualStyles::GetThemeFilename(HTHEME theme, int part, int state, int property, LPWSTR buffer, int size) const
{
    return Call<"GetThemeFilename", HRESULT>(m_library, theme, part, state, property, buffer, size);
}

COLORREF CVisualStyles::GetThemeSysColor(HTHEME theme, int color) const
{
    return Call<"GetThemeSysColor", COLORREF>(m_library, theme, color);
}

HBRUSH CVisualStyles::GetThemeSysColorBrush(HTHEME theme, int color) const
{
    return Call<"GetThemeSysColorBrush", HBRUSH>(m_library, theme, color);
}

BOOL CVisualStyles::GetThemeSysBool(HTHEME theme, int which) const
{
    return Call<"GetThemeSysBool", BOOL>(m_library, theme, which);
}

int CVisualStyles::GetThemeSysSize(HTHEME theme, int which) const
{
    return Call<"GetThemeSysSize", int>(m_library, theme, which);
}

HRESULT CVisualStyles::GetThemeSysFont(HTHEME theme, int which, LOGFONTW * font) const
{
    return Call<"GetThemeSysFont", HRESULT>(m_library, theme, which, font);
}

HRESULT CVisualStyles::GetThemeSysString(HTHEME theme, int which, LPWSTR buffer, int size) const
{
    return Call<"GetThemeSysString", HRESULT>(m_library, theme, which, buffer, size);
}

HRESULT CVisualStyles::GetThemeSysInt(HTHEME theme, int which, int * value) const
{
    return Call<"GetThemeSysInt", HRESULT>(m_library, theme, which, value);
}

BOOL CVisualStyles::IsThemeActive() const
{
    return Call<"IsThemeActive", BOOL>(m_library);
}

BOOL CVisualStyles::IsAppThemed() const
{
    return Call<"IsAppThemed", BOOL>(m_library);
}

HTHEME CVisualStyles::GetWindowTheme(HWND window) const
{
    return Call<"GetWindowTheme", HTHEME>(m_library, window);
}

HRESULT CVisualStyles::EnableThemeDialogTexture(HWND window, DWORD flags) const
{
    return Call<"EnableThemeDialogTexture", HRESULT>(m_library, window, flags);
}

BOOL CVisualStyles::IsThemeDialogTextureEnabled(HWND window) const
{
    return Call<"IsThemeDialogTextureEnabled", BOOL>(m_library, window);
}

DWORD CVisualStyles::GetThemeAppProperties() const
{
    return Call<"GetThemeAppProperties", DWORD>(m_library);
}

void CVisualStyles::SetThemeAppProperties(DWORD flags) const
{
    Call<"SetThemeAppProperties", void>(m_library, flags);
}

HRESULT CVisualStyles::GetCurrentThemeName(LPWSTR theme, int themeSize, LPWSTR color, int colorSize, LPWSTR fontSize,
                                           int fontSizeSize) const
{
    return Call<"GetCurrentThemeName", HRESULT>(m_library, theme, themeSize, color, colorSize, fontSize, fontSizeSize);
}

HRESULT CVisualStyles::GetThemeDocumentationProperty(LPCWSTR theme, LPCWSTR property, LPWSTR buffer, int size) const
{
    return Call<"GetThemeDocumentationProperty", HRESULT>(m_library, theme, property, buffer, size);
}

HRESULT CVisualStyles::DrawThemeParentBackground(HWND window, HDC dc, RECT const * rect) const
{
    return Call<"DrawThemeParentBackground", HRESULT>(m_library, window, dc, rect);
}

HRESULT CVisualStyles::EnableTheming(BOOL enable) const
{
    return Call<"EnableTheming", HRESULT>(m_library, enable);
}
