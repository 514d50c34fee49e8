#pragma once
// Extensions: button with pictures.

#include <afxwin.h>

#include "detail/bitmapbutton.h"
