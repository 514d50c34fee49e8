#include "combo_FakeStyles.h"
#include "list/VisualStyles.h"

namespace combo_test
{
bool g_styled = false;
bool g_colorsFail = false;
ThemeUse g_use;
} // namespace combo_test

using namespace combo_test;

CVisualStyles & VisualStyles()
{
    static CVisualStyles styles;
    return styles;
}

CVisualStyles::CVisualStyles(wchar_t const *) : m_library(nullptr) {}

CVisualStyles::~CVisualStyles() {}

int CVisualStyles::IsStyledPaintingOn() const
{
    return g_styled;
}

HTHEME CVisualStyles::OpenThemeData(HWND window, LPCWSTR classList) const
{
    ++g_use.opened;
    return ::OpenThemeData(window, classList);
}

HRESULT CVisualStyles::CloseThemeData(HTHEME theme) const
{
    ++g_use.closed;
    return ::CloseThemeData(theme);
}

HRESULT CVisualStyles::DrawThemeBackground(HTHEME theme, HDC dc, int part, int state, RECT const * rect,
                                           RECT const * clip) const
{
    g_use.drawn.emplace_back(part, state);
    return ::DrawThemeBackground(theme, dc, part, state, rect, clip);
}

HRESULT CVisualStyles::GetThemeColor(HTHEME theme, int part, int state, int property, COLORREF * color) const
{
    return g_colorsFail ? E_FAIL : ::GetThemeColor(theme, part, state, property, color);
}
