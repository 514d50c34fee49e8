#pragma once
// Extensions: button with pictures.

#define __AFXEXT_H__

#include <afxwin.h>

#include "detail/bitmapbutton.h"
