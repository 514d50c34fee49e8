#pragma once
// Extensions: bars, button with pictures, splitters, trackers, and what is passed along while frames are created.

#define __AFXEXT_H__

#include <afxdlgs.h>
#include <afxwin.h>

#include "detail/bitmapbutton.h"
#include "detail/controlbar.h"
#include "detail/createcontext.h"
#include "detail/dialogbar.h"
#include "detail/formview.h"
#include "detail/printinfo.h"
#include "detail/rebar.h"
#include "detail/recttracker.h"
#include "detail/splitter.h"
#include "detail/statusbar.h"
#include "detail/toolbar.h"
