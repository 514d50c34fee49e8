#pragma once
// Identifiers of sheets.rc: pages of property sheets and their captions.

#define IDD_PAGE_ONE 2700
#define IDD_PAGE_TWO 2701
#define IDD_PAGE_THREE 2702
#define IDD_PAGE_BAD_CONTROL 2703
#define IDD_PAGE_NO_RESOURCE 2799

#define IDC_PAGE_TEXT 2710
#define IDC_PAGE_CHECK 2711
#define IDC_PAGE_LINES 2712
#define IDC_PAGE_PUSH 2713

#define IDS_PAGE_CAPTION 2720
#define IDS_SHEET_CAPTION 2721
