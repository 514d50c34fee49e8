#pragma once
// Images of an image list that was made for another resolution. Internal to the module.

#include <afxcmn.h>

/// The size of an image at that resolution; empty if it can't be told. imageDpi: what the list was made for.
CSize ScaledImageSize(CImageList const & images, int index, UINT dpi, UINT imageDpi);

/// Draws an image stretched to a size, and of it what lies within room from its top left corner on. It covers what it
/// covers at its own size.
void DrawStretchedImage(CDC & dc, CImageList & images, int index, CPoint at, CSize size, CSize room);

/// The size that DrawIcon gives an icon, at that resolution.
CSize UsualIconSize(UINT dpi);

/// An icon stretched from its own size to that one.
void DrawStretchedIcon(CDC & dc, HICON icon, CPoint at, CSize size);
