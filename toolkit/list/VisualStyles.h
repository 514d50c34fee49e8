#pragma once

#include <afxwin.h>
#include <uxtheme.h>

#include "frame/Export.h"

/// Access to the platform's visual styles. The library is loaded by name, and what it lacks answers with failure, so
/// that a caller need not test for presence.
///
/// The members are the platform's functions under their names and with their arguments. What each calls is found at its
/// first use and then stays for the whole process, whichever object is used. A missing function does nothing and
/// returns E_FAIL where it returns a result code, else 0. For the user-interface thread alone.
class INSTRUMENT_UI_API CVisualStyles
{
public:
    explicit CVisualStyles(wchar_t const * library = L"UxTheme.dll");
    CVisualStyles(CVisualStyles const &) = delete;
    CVisualStyles & operator=(CVisualStyles const &) = delete;
    ~CVisualStyles();

    /// Whether controls paint themselves with the visual style. The answer is found once in the process; hosts expect
    /// that an answer found while the application was not themed becomes 1 from the second call on.
    int IsStyledPaintingOn() const;

    HTHEME OpenThemeData(HWND window, LPCWSTR classList) const;
    HRESULT CloseThemeData(HTHEME theme) const;
    HRESULT DrawThemeBackground(HTHEME theme, HDC dc, int part, int state, RECT const * rect, RECT const * clip) const;
    HRESULT DrawThemeText(HTHEME theme, HDC dc, int part, int state, LPCWSTR text, int length, DWORD flags,
                          DWORD flags2, RECT const * rect) const;
    HRESULT GetThemeBackgroundContentRect(HTHEME theme, HDC dc, int part, int state, RECT const * bounding,
                                          RECT * content) const;
    HRESULT GetThemeBackgroundExtent(HTHEME theme, HDC dc, int part, int state, RECT const * content,
                                     RECT * extent) const;
    HRESULT GetThemePartSize(HTHEME theme, HDC dc, int part, int state, RECT const * rect, enum THEMESIZE which,
                             SIZE * size) const;
    HRESULT GetThemeTextExtent(HTHEME theme, HDC dc, int part, int state, LPCWSTR text, int length, DWORD flags,
                               RECT const * bounding, RECT * extent) const;
    HRESULT GetThemeTextMetrics(HTHEME theme, HDC dc, int part, int state, TEXTMETRICW * metrics) const;
    HRESULT GetThemeBackgroundRegion(HTHEME theme, HDC dc, int part, int state, RECT const * rect, HRGN * region) const;
    HRESULT HitTestThemeBackground(HTHEME theme, HDC dc, int part, int state, DWORD options, RECT const * rect,
                                   HRGN region, POINT point, WORD * code) const;
    HRESULT DrawThemeEdge(HTHEME theme, HDC dc, int part, int state, RECT const * rect, UINT edge, UINT flags,
                          RECT * content) const;
    HRESULT DrawThemeIcon(HTHEME theme, HDC dc, int part, int state, RECT const * rect, HIMAGELIST images,
                          int image) const;
    BOOL IsThemePartDefined(HTHEME theme, int part, int state) const;
    BOOL IsThemeBackgroundPartiallyTransparent(HTHEME theme, int part, int state) const;
    HRESULT GetThemeColor(HTHEME theme, int part, int state, int property, COLORREF * color) const;
    HRESULT GetThemeMetric(HTHEME theme, HDC dc, int part, int state, int property, int * value) const;
    HRESULT GetThemeString(HTHEME theme, int part, int state, int property, LPWSTR buffer, int size) const;
    HRESULT GetThemeBool(HTHEME theme, int part, int state, int property, BOOL * value) const;
    HRESULT GetThemeInt(HTHEME theme, int part, int state, int property, int * value) const;
    HRESULT GetThemeEnumValue(HTHEME theme, int part, int state, int property, int * value) const;
    HRESULT GetThemePosition(HTHEME theme, int part, int state, int property, POINT * point) const;
    HRESULT GetThemeFont(HTHEME theme, HDC dc, int part, int state, int property, LOGFONTW * font) const;
    HRESULT GetThemeRect(HTHEME theme, int part, int state, int property, RECT * rect) const;
    HRESULT GetThemeMargins(HTHEME theme, HDC dc, int part, int state, int property, RECT const * rect,
                            MARGINS * margins) const;
    HRESULT GetThemeIntList(HTHEME theme, int part, int state, int property, INTLIST * list) const;
    HRESULT GetThemePropertyOrigin(HTHEME theme, int part, int state, int property, enum PROPERTYORIGIN * origin) const;
    HRESULT SetWindowTheme(HWND window, LPCWSTR application, LPCWSTR classList) const;
    HRESULT GetThemeFilename(HTHEME theme, int part, int state, int property, LPWSTR buffer, int size) const;
    COLORREF GetThemeSysColor(HTHEME theme, int color) const;
    HBRUSH GetThemeSysColorBrush(HTHEME theme, int color) const;
    BOOL GetThemeSysBool(HTHEME theme, int which) const;
    int GetThemeSysSize(HTHEME theme, int which) const;
    HRESULT GetThemeSysFont(HTHEME theme, int which, LOGFONTW * font) const;
    HRESULT GetThemeSysString(HTHEME theme, int which, LPWSTR buffer, int size) const;
    HRESULT GetThemeSysInt(HTHEME theme, int which, int * value) const;
    BOOL IsThemeActive() const;
    BOOL IsAppThemed() const;
    HTHEME GetWindowTheme(HWND window) const;
    HRESULT EnableThemeDialogTexture(HWND window, DWORD flags) const;
    BOOL IsThemeDialogTextureEnabled(HWND window) const;
    DWORD GetThemeAppProperties() const;
    void SetThemeAppProperties(DWORD flags) const;
    HRESULT GetCurrentThemeName(LPWSTR theme, int themeSize, LPWSTR color, int colorSize, LPWSTR fontSize,
                                int fontSizeSize) const;
    HRESULT GetThemeDocumentationProperty(LPCWSTR theme, LPCWSTR property, LPWSTR buffer, int size) const;
    HRESULT DrawThemeParentBackground(HWND window, HDC dc, RECT const * rect) const;
    HRESULT EnableTheming(BOOL enable) const;

private:
    HMODULE m_library;
};

/// The module's own object. Internal to the module.
CVisualStyles & VisualStyles();
