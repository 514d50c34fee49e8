#pragma once
// The suite's vocabulary of colours: 32 named scope colours in two display orders, their substitutes on white paper,
// and nine colour scales for spectrograms. A colour is a COLORREF, red in its lowest byte.

#include <afx.h>

#include "frame/Export.h"

class CPalette;

namespace Farbtabellen
{
/// Colours of a scope.
constexpr int SCOPE_COLOURS = 32;
/// Entries of a spectrogram scale.
constexpr int SCALE_COLOURS = 33;
/// Spectrogram scales.
constexpr unsigned int spectrogram_scales = 9;

/// The scope colours by their index.
extern INSTRUMENT_UI_API COLORREF const ScopePalette[SCOPE_COLOURS];

/// The spectrogram scales: entries 0 to 31 from the lowest level to the highest, then one more colour outside the scale
/// for the host's use. Filled when the module is loaded.
extern INSTRUMENT_UI_API COLORREF FarbenGreyLdRGB[SCALE_COLOURS];
/// See FarbenGreyLdRGB.
extern INSTRUMENT_UI_API COLORREF FarbenStandardRGB[SCALE_COLOURS];
/// See FarbenGreyLdRGB.
extern INSTRUMENT_UI_API COLORREF FarbenGoldRGB[SCALE_COLOURS];
/// See FarbenGreyLdRGB.
extern INSTRUMENT_UI_API COLORREF FarbenOceanRGB[SCALE_COLOURS];
/// See FarbenGreyLdRGB.
extern INSTRUMENT_UI_API COLORREF FarbenEarthRGB[SCALE_COLOURS];
/// See FarbenGreyLdRGB.
extern INSTRUMENT_UI_API COLORREF FarbenTemperaturRGB[SCALE_COLOURS];
/// See FarbenGreyLdRGB.
extern INSTRUMENT_UI_API COLORREF FarbenGreyDlRGB[SCALE_COLOURS];
/// See FarbenGreyLdRGB.
extern INSTRUMENT_UI_API COLORREF FarbenSommerRGB[SCALE_COLOURS];
/// See FarbenGreyLdRGB.
extern INSTRUMENT_UI_API COLORREF FarbenRegenbogenRGB[SCALE_COLOURS];

/// The scope colour of the index, which must be 0 to 31: it is not checked.
INSTRUMENT_UI_API COLORREF ScopeFarbe(int index);
/// The index of the scope colour that looks most like the colour; of several equally near ones the lowest.
INSTRUMENT_UI_API unsigned int ScopeFarbIndex(COLORREF colour);
/// All scope colours by index. Made at the first call, together with the colours' names for the framework's colour
/// bars, which stay in the language of that call. The module owns it.
INSTRUMENT_UI_API CPalette * ScopeFarbenPalette();

/// The scope index at a position of the second display order. Anything but 0 to 31 comes back unchanged.
INSTRUMENT_UI_API int SelvaneFarbIndex(int position);
/// The scope colour at a position of the second display order, which must be 0 to 31: it is not checked.
INSTRUMENT_UI_API COLORREF SelvaneFarbe(int position);
/// All scope colours in the second display order; otherwise as ScopeFarbenPalette.
INSTRUMENT_UI_API CPalette * SelvaneFarbenPalette();

/// The colour that stands for a scope colour on white paper. The index must be 0 to 31: another one is read unchecked.
INSTRUMENT_UI_API COLORREF DruckFarbe(int index);

/// The colour as the drawing library's ARGB: alpha, red, green, blue from the highest byte down. Of alpha the low 8
/// bits count; 255 is opaque.
INSTRUMENT_UI_API DWORD MakeArgb(COLORREF colour, unsigned int alpha);
/// The same for a scope colour by index, which must be 0 to 31: it is not checked.
INSTRUMENT_UI_API DWORD ArgbFarbe(int index, unsigned int alpha);

/// The 33 colours of a spectrogram scale, 0 to 8; of the standard scale for any other index.
INSTRUMENT_UI_API COLORREF const * SpektrogrammFarbtabelle(unsigned int index);
/// The spectrogram scale that goes with a scope colour; the standard scale for an index outside 0 to 31.
INSTRUMENT_UI_API COLORREF const * SpektrogrammFarbtabelleSopeFarbe(int index);
/// The name of a spectrogram scale, 0 to 8; for any other index a text that says that there is none. The texts stay in
/// the language of the first call.
INSTRUMENT_UI_API CString const & SpektrogrammFarbtabellenName(unsigned int index);
} // namespace Farbtabellen
