// The colour tables as the framework's objects: palettes, and texts from the module's resources.

#include "colours/Farbtabellen.h"

#include <afxcolorbar.h>
#include <afxwin.h>

#include <cstddef>
#include <vector>

#include "frame/ToolkitResources.h"
#include "resources/resource_ids.h"

namespace Farbtabellen
{
namespace
{
constexpr WORD palette_version = 0x300;
static_assert(TOOLKIT_STRING_SCOPE_COLOUR_LAST - TOOLKIT_STRING_SCOPE_COLOUR_FIRST + 1 == SCOPE_COLOURS);
static_assert(TOOLKIT_STRING_SPECTROGRAM_SCALE_LAST - TOOLKIT_STRING_SPECTROGRAM_SCALE_FIRST + 1 == spectrogram_scales);

CPalette scopePalette;
bool scopePaletteBuilt = false;
CPalette selvanePalette;
bool selvanePaletteBuilt = false;
// The last one is for an unknown scale.
CString scaleNames[spectrogram_scales + 1];
bool scaleNamesLoaded = false;

void MakePalette(CPalette & palette, COLORREF (*colourAt)(int))
{
    std::vector<std::byte> storage(sizeof(LOGPALETTE) + (SCOPE_COLOURS - 1) * sizeof(PALETTEENTRY));
    auto * const description = reinterpret_cast<LOGPALETTE *>(storage.data());
    description->palVersion = palette_version;
    description->palNumEntries = SCOPE_COLOURS;
    PALETTEENTRY * const entries = description->palPalEntry;
    for (int i = 0; i < SCOPE_COLOURS; ++i)
    {
        COLORREF const colour = colourAt(i);
        entries[i] = {GetRValue(colour), GetGValue(colour), GetBValue(colour), 0};
    }
    palette.Attach(::CreatePalette(description));
}

void NameScopeColours()
{
    CToolkitResourceExchange const exchange;
    for (int index = 0; index < SCOPE_COLOURS; ++index)
    {
        CString name;
        name.LoadString(static_cast<UINT>(TOOLKIT_STRING_SCOPE_COLOUR_FIRST + index));
        CMFCColorBar::SetColorName(ScopePalette[index], name);
    }
}

CPalette * BuildOnce(CPalette & palette, bool & built, COLORREF (*colourAt)(int))
{
    if (!built)
    {
        built = true;
        MakePalette(palette, colourAt);
        NameScopeColours();
    }
    return &palette;
}
} // namespace

CPalette * ScopeFarbenPalette()
{
    return BuildOnce(scopePalette, scopePaletteBuilt, ScopeFarbe);
}

CPalette * SelvaneFarbenPalette()
{
    return BuildOnce(selvanePalette, selvanePaletteBuilt, SelvaneFarbe);
}

CString const & SpektrogrammFarbtabellenName(unsigned int index)
{
    if (!scaleNamesLoaded)
    {
        scaleNamesLoaded = true;
        CToolkitResourceExchange const exchange;
        for (unsigned int scale = 0; scale < spectrogram_scales; ++scale)
            scaleNames[scale].LoadString(TOOLKIT_STRING_SPECTROGRAM_SCALE_FIRST + scale);
        scaleNames[spectrogram_scales].LoadString(TOOLKIT_STRING_SPECTROGRAM_SCALE_UNKNOWN);
    }
    return scaleNames[index < spectrogram_scales ? index : spectrogram_scales];
}
} // namespace Farbtabellen
