#pragma once
// The common controls.

#define __AFXCMN_H__

#include <afxwin.h>

#include "detail/animatectrl.h"
#include "detail/barctrls.h"
#include "detail/extctrls.h"
#include "detail/headerctrl.h"
#include "detail/imagelist.h"
#include "detail/listctrl.h"
#include "detail/rangectrls.h"
#include "detail/toolbarctrl.h"
#include "detail/tooltipctrl.h"
#include "detail/treectrl.h"
