#pragma once
// Styles and modes of panes. Included by the panes' headers.

#include <afxext.h>
#include <afxwin.h>

// What a pane can do
#define AFX_CBRS_FLOAT 0x0001u
#define AFX_CBRS_AUTOHIDE 0x0002u
#define AFX_CBRS_RESIZE 0x0004u
#define AFX_CBRS_CLOSE 0x0008u
#define AFX_CBRS_AUTO_ROLLUP 0x0010u
// How tabs look that it gets together with another pane
#define AFX_CBRS_REGULAR_TABS 0x0020u
#define AFX_CBRS_OUTLOOK_TABS 0x0040u

#define AFX_DEFAULT_PANE_STYLE (AFX_CBRS_FLOAT | AFX_CBRS_CLOSE)
#define AFX_DEFAULT_DOCKING_PANE_STYLE (AFX_CBRS_FLOAT | AFX_CBRS_CLOSE | AFX_CBRS_RESIZE | AFX_CBRS_AUTOHIDE)

#define DT_DOCK_FIRST 0x1u // before what is there
#define DT_DOCK_LAST 0x2u  // after it

/// What led to docking or floating.
enum AFX_DOCK_METHOD
{
    DM_UNKNOWN,
    DM_MOUSE,
    DM_DBL_CLICK,
    DM_SHOW,
    DM_RECT,
    DM_STANDARD
};

/// When a dragged pane docks: as it is moved, or once it is let go.
enum AFX_DOCK_TYPE
{
    DT_UNDEFINED = 0,
    DT_IMMEDIATE = 1,
    DT_STANDARD = 2,
    DT_SMART = 0x80
};

enum AFX_CS_STATUS
{
    CS_NOTHING,
    CS_DELAY_DOCK,
    CS_DOCK_IMMEDIATELY,
    CS_DELAY_DOCK_TO_TAB
};

class CBasePane;
class CBaseTabbedPane;
class CDockablePane;
class CDockingManager;
class CMFCAutoHideBar;
class CPane;
class CPaneDivider;
class CPaneFrameWnd;
class CTabbedPane;

namespace framework
{
class DockHost;
struct PaneAccess;
} // namespace framework
