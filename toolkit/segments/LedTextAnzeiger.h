#pragma once

#include <afx.h>
#include <atltypes.h>

#include <memory>

#include "frame/Export.h"
#include "segments/DigiStyle.h"

namespace DigiStatic
{
struct CDigiCharArray;
} // namespace DigiStatic

namespace Gdiplus
{
class Graphics;
} // namespace Gdiplus

/// Paints a line of segment text into a rectangle of a graphics object, in one scale for both directions. No window: a
/// view holds it as a member and asks it to paint. Background and smoothing are the caller's business.
///
/// A copy shares the characters with its original, which is meant: a new text of the one shows in the other, in the
/// other's old length and width, until a text is too long for the array that they share. The characters are deleted
/// with the last object that has them. Displays that are to be independent are set up one by one.
class INSTRUMENT_UI_API CLedTextAnzeiger
{
public:
    CLedTextAnzeiger();
    /// With text, colours and spacing of the other.
    CLedTextAnzeiger(CLedTextAnzeiger const & other);
    /// Takes text, colours and spacing of the other.
    CLedTextAnzeiger & operator=(CLedTextAnzeiger const & other);
    ~CLedTextAnzeiger();

    /// The text to paint; letters of both cases look the same. The same text as before changes nothing.
    void SetText(CString const & text);
    /// 0: centred, as at the start; LedAlignLeft; LedAlignRight. Any other value changes nothing.
    void SetTextAlign(unsigned int align);
    /// On comes first here, unlike CDigiStatic::SetColor. Colours are 0x00BBGGRR; the background is only kept.
    void SetColors(COLORREF onColor, COLORREF offColor, COLORREF backColor);
    /// Design units between two characters (a digit is 49 wide). Painting follows at once, the text's width only with
    /// the next text; until then a wider line runs out of its place.
    void SetExtraSpacing(unsigned int spacing);
    /// Whether unlit segments are painted, in characters that are built from now on.
    void ShowOffSegments(bool show);
    /// Whether digits have 14 segments as letters do, in characters that are built from now on.
    void Always14Sement(bool always);
    /// The width of the text in design units, with its spacing; 0 for an empty text.
    unsigned int TextWidht() const;

    /// Paints the text as large as it fits into the rectangle, centred from top to bottom. Nothing for an empty text.
    void DrawTextW(Gdiplus::Graphics & graphics, CRect & rect);

protected:
    /// Builds the characters of a text that is another than the present one.
    void BuildString(CString const & text);
    /// Deletes the characters in use; their count and the array stay.
    void FreeCharArray();

    /// DigiStyle and LedAlign bits.
    DWORD m_flags;
    COLORREF m_offColor;
    COLORREF m_onColor;
    COLORREF m_backColor;
    unsigned int m_extraSpacing;
    CString m_text;
    /// Shared with copies.
    std::shared_ptr<DigiStatic::CDigiCharArray> m_chars;
    /// Characters in use.
    unsigned int m_charCount;
    /// Length of the array.
    unsigned int m_capacity;
    /// In design units.
    unsigned int m_textWidth;
};
