#pragma once
// Messages that the framework sends to its own windows.

#include <afxwin.h>

#define WM_QUERYAFXWNDPROC 0x0360 // answered with 1 by a window that has AfxWndProc
#define WM_SIZEPARENT 0x0361      // lParam: AFX_SIZEPARENTPARAMS; a bar takes its place
#define WM_SETMESSAGESTRING 0x0362
#define WM_IDLEUPDATECMDUI 0x0363 // wParam: disable what has no handler
#define WM_INITIALUPDATE 0x0364
#define WM_COMMANDHELP 0x0365
#define WM_HELPHITTEST 0x0366
#define WM_EXITHELPMODE 0x0367
#define WM_RECALCPARENT 0x0368
#define WM_SIZECHILD 0x0369
#define WM_KICKIDLE 0x036A // sent by a modal loop: wParam MSGF_..., lParam the idle count; 0 = no more to do
#define WM_QUERYCENTERWND 0x036B
#define WM_DISABLEMODAL 0x036C
#define WM_FLOATSTATUS 0x036D
#define WM_ACTIVATETOPLEVEL 0x036E // wParam: WA_..., lParam: HWND[2], losing and gaining
#define WM_RESERVED_036F 0x036F

struct AFX_SIZEPARENTPARAMS
{
    HDWP hDWP;      // null: only measure
    RECT rect;      // what is left of the parent; the bar takes its part away
    SIZE sizeTotal; // the extent of the bars
    BOOL bStretch;
};

#include "detail/previewview.h"
