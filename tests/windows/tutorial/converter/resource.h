#pragma once

#define IDD_CONVERTER 101
#define IDD_ABOUT 102
#define IDS_ABOUT_MENU 103

#define IDM_ABOUT 0x0010 // in the system menu: below 0xF000, the low four bits zero

#define IDC_INPUT 1001
#define IDC_RESULT 1002
#define IDC_TO_FAHRENHEIT 1003
#define IDC_TO_KELVIN 1004
#define IDC_ROUND 1005
#define IDC_UNIT_NOTE 1006
#define IDC_CONVERT 1007
#define IDC_VERSION 1008
