#pragma once
// Extensions: button with pictures, splitters, and what is passed along while frames are created.

#define __AFXEXT_H__

#include <afxwin.h>

#include "detail/bitmapbutton.h"
#include "detail/createcontext.h"
#include "detail/formview.h"
#include "detail/splitter.h"
