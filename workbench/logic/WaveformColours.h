#pragma once
// The colours of a waveform that the user can choose, and those that follow from them.

#include <afx.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace workbench
{

/// What the user can choose. Made like a scope at first.
struct WaveformColours
{
    COLORREF trace = RGB(0x32, 0xC8, 0xFF); ///< of the first channel
    COLORREF background = RGB(0x00, 0x1E, 0x50);
    COLORREF grid = RGB(0x1A, 0x3A, 0x6E);
    COLORREF cursor = RGB(0xFF, 0xFF, 0xFF);

    bool operator==(WaveformColours const &) const = default;
};

/// The colour of a channel's trace. Those behind the first one have colours of their own, as far as they are seen on
/// the background; beyond the last one they begin again.
COLORREF TraceColour(WaveformColours const & colours, std::size_t channel);

/// The colour of what is beyond full scale.
COLORREF ClippedColour(WaveformColours const & colours);

/// The colours of texts on the background, and of the line of silence.
COLORREF LabelColour(WaveformColours const & colours);
COLORREF CentreColour(WaveformColours const & colours);

/// A colour as #RRGGBB, and the other way round: nothing for any other text.
std::wstring ColourText(COLORREF colour);
std::optional<COLORREF> ColourOf(std::wstring_view text);

} // namespace workbench
