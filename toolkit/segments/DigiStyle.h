#pragma once
// The style word of the segment displays: one unsigned 32-bit value, whose bits are shared by both displays and by the
// characters they build. Only the values count; a bit that a display does not use may be set and does nothing there.

/// Characters take their rounded outlines instead of the plain ones.
inline constexpr unsigned long DigiStyleRounded = 1;
/// Digits, blank, "-", "_" and the degree sign are 14-segment characters too, as letters always are.
inline constexpr unsigned long DigiStyleAlways14 = 2;
/// One common scale for both directions; without it the line of a CDigiStatic fills its client rectangle.
inline constexpr unsigned long DigiStyleKeepAspect = 4;
/// Unlit segments are not painted at all.
inline constexpr unsigned long DigiStyleHideOff = 8;
/// CDigiStatic draws the edges of segments in a pen blended towards the background.
inline constexpr unsigned long DigiStyleSoftPen = 16;
/// CDigiStatic leaves a corner of the control out of all painting; set and cleared by CDigiStatic::SetButtonRect.
inline constexpr unsigned long DigiStyleButtonRect = 32;
/// The line of a CLedTextAnzeiger starts at the left edge.
inline constexpr unsigned long LedAlignLeft = 64;
/// The line of a CLedTextAnzeiger ends at the right edge. With neither bit the line is centred.
inline constexpr unsigned long LedAlignRight = 128;
