#pragma once
// Windows, menus, device contexts, dialogs, controls, threads and the application.

#define __AFXWIN_H__

#include "afxmsg_.h"
#include "afxres.h"
#include <afx.h>
#include <afxcoll.h>
#include <afxtempl.h>
#include <commctrl.h>
#include <shellapi.h>
#include <tchar.h>

#include "detail/app.h"
#include "detail/cmdtarget.h"
#include "detail/dialog.h"
#include "detail/document.h"
#include "detail/frame.h"
#include "detail/gdi.h"
#include "detail/menu.h"
#include "detail/scrollview.h"
#include "detail/stdctrls.h"
#include "detail/view.h"
#include "detail/wnd.h"
