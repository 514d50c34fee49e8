#include "logic/WaveformColours.h"

#include <cwchar>
#include <iterator>

#include "logic/ReadableColours.h"

namespace workbench
{

namespace
{

// Of the channels behind the first one.
constexpr COLORREF traces[] = {RGB(0xFF, 0x96, 0x00), RGB(0x00, 0xFF, 0x00), RGB(0xFF, 0x32, 0xDC),
                               RGB(0x00, 0xFF, 0xD5), RGB(0xFF, 0xFF, 0x00)};
constexpr COLORREF clipped = RGB(0xFF, 0x00, 0x00);
constexpr COLORREF label = RGB(0xB0, 0xC4, 0xE0);

constexpr double trace_contrast = 3.0;
constexpr double label_in_centre = 0.3;

constexpr std::size_t digits = 6;

int DigitOf(wchar_t character)
{
    if (character >= L'0' && character <= L'9')
    {
        return character - L'0';
    }
    int const letter = character | 0x20;
    return letter >= L'a' && letter <= L'f' ? static_cast<int>(letter - L'a') + 10 : -1;
}

} // namespace

COLORREF TraceColour(WaveformColours const & colours, std::size_t channel)
{
    std::size_t const place = channel % (std::size(traces) + 1);
    return place == 0 ? colours.trace : ReadableColour(traces[place - 1], colours.background, trace_contrast);
}

COLORREF ClippedColour(WaveformColours const & colours)
{
    return ReadableColour(clipped, colours.background, trace_contrast);
}

COLORREF LabelColour(WaveformColours const & colours)
{
    return ReadableColour(label, colours.background);
}

COLORREF CentreColour(WaveformColours const & colours)
{
    return MixedColour(colours.grid, LabelColour(colours), label_in_centre);
}

std::wstring ColourText(COLORREF colour)
{
    wchar_t text[16];
    std::swprintf(text, std::size(text), L"#%02X%02X%02X", static_cast<unsigned>(GetRValue(colour)),
                  static_cast<unsigned>(GetGValue(colour)), static_cast<unsigned>(GetBValue(colour)));
    return text;
}

std::optional<COLORREF> ColourOf(std::wstring_view text)
{
    if (text.size() != digits + 1 || text.front() != L'#')
    {
        return std::nullopt;
    }
    int value = 0;
    for (wchar_t const character : text.substr(1))
    {
        int const digit = DigitOf(character);
        if (digit < 0)
        {
            return std::nullopt;
        }
        value = value * 16 + digit;
    }
    return RGB(value >> 16 & 0xFF, value >> 8 & 0xFF, value & 0xFF);
}

} // namespace workbench
