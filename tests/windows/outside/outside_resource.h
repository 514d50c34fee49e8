#pragma once
// Identifiers of the resources in outside.rc.

#define IDD_OUTSIDE_FIRST 3001
#define IDD_OUTSIDE_SECOND 3002
#define IDD_OUTSIDE_WIDE 3003
#define IDC_OUTSIDE_BUTTON 3010
#define IDC_OUTSIDE_EDIT 3011
#define IDC_OUTSIDE_OWN 3012
#define IDS_OUTSIDE_CAPTION 3020
#define IDS_OUTSIDE_TAB 3021
