#pragma once
// Where the two parts of a level slider's channel lie. Internal to the module.

#include <afx.h>
#include <atltypes.h>

/// How far the position is along the range, 0 at its least. A range without extent gives 0.
float SliderFraction(int least, int greatest, int position);

/// The rectangle that the system gives for the channel, grown across the slider.
CRect ThickSliderChannel(CRect const & channel, bool vertical);

struct SliderParts
{
    /// In the main colour: left of the thumb, or below it.
    CRect main;
    CRect second;
};
SliderParts PartsOfSlider(CRect const & channel, bool vertical, float fraction);

/// The rectangle that the system gives for the thumb, made narrower along the slider by so many pixels at each end.
CRect SlimSliderThumb(CRect const & thumb, bool vertical, int by = 1);

/// A part of a colour as a gradient's corner takes it.
constexpr unsigned short GradientChannel(unsigned char channel)
{
    return static_cast<unsigned short>(channel << 8);
}
