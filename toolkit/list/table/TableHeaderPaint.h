#pragma once
// The titles of a table, which are native, in a set of colours that the system knows nothing of. Internal to the
// module.

#include <afxcmn.h>

/// Answers a native header's custom draw: true with a result where the header is to be painted by this. In the standard
/// set the system paints it.
bool PaintTableHeader(NMCUSTOMDRAW const & draw, LRESULT & result);
