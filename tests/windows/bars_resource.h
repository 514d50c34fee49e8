#pragma once
// Identifiers of the resources in bars.rc.

#define IDR_BARS 600
#define IDR_BARS_DAMAGED 601
#define IDD_BAR 610
#define IDC_BAR_TEXT 611

#define ID_TOOL_A 34001
#define ID_TOOL_B 34002
#define ID_TOOL_C 34003
#define ID_TOOL_D 34004
#define ID_TOOL_E 34005
#define ID_BAR_GO 34010
#define ID_BAR_LOST 34011
#define ID_PANE_OWN 34020
