#include "ScreenMetrics.h"

#include "DrawingScopes.h"

namespace workbench
{

namespace
{

// The text over whose width the system, too, takes the average for dialog units.
constexpr wchar_t alphabet[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int alphabet_length = 52;

} // namespace

int ScreenMetrics::usualResolution = 0;

int ScreenMetrics::UseResolution(int dotsPerInch)
{
    usualResolution = dotsPerInch;
    return dotsPerInch;
}

ScreenMetrics::ScreenMetrics(int dotsPerInch)
{
    if (dotsPerInch <= 0)
    {
        dotsPerInch = usualResolution;
    }
    CDC dc;
    bool const onScreen = dc.CreateCompatibleDC(nullptr) != FALSE;
    int const screenResolution = onScreen ? dc.GetDeviceCaps(LOGPIXELSY) : USER_DEFAULT_SCREEN_DPI;
    m_dotsPerInch = dotsPerInch > 0 ? dotsPerInch : screenResolution;

    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof(metrics);
    if (!::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0))
    {
        ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof(metrics.lfMessageFont), &metrics.lfMessageFont);
    }
    LONG & height = metrics.lfMessageFont.lfHeight;
    height = ::MulDiv(height, m_dotsPerInch, screenResolution);
    VERIFY(m_font.CreateFontIndirect(&metrics.lfMessageFont));
    LOGFONTW bold = metrics.lfMessageFont;
    bold.lfWeight = FW_BOLD;
    VERIFY(m_boldFont.CreateFontIndirect(&bold));

    if (onScreen)
    {
        FontScope const font(dc, m_font);
        CSize const extent = dc.GetTextExtent(alphabet, alphabet_length);
        TEXTMETRIC text{};
        dc.GetTextMetrics(&text);
        m_averageWidth = (extent.cx + alphabet_length / 2) / alphabet_length;
        m_height = text.tmHeight;
    }
}

} // namespace workbench
