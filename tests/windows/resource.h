#pragma once
// Identifiers of the resources in tests.rc.

#define IDD_EXCHANGE 2000
#define IDD_SIMPLE 2001
#define IDD_PRESET 2002
#define IDD_CHILD 2003
#define IDB_BACKGROUND 2050
#define IDS_GREETING 2060

#define IDC_BYTE 2100
#define IDC_SHORT 2101
#define IDC_INT 2102
#define IDC_UINT 2103
#define IDC_LONG 2104
#define IDC_DWORD 2105
#define IDC_TEXT 2106
#define IDC_FLOAT 2107
#define IDC_DOUBLE 2108
#define IDC_CHECK 2110
#define IDC_RADIO_FIRST 2111
#define IDC_RADIO_SECOND 2112
#define IDC_RADIO_THIRD 2113
#define IDC_LIST 2120
#define IDC_COMBO 2121
#define IDC_DROP_LIST 2122
#define IDC_SCROLL 2123
#define IDC_SLIDER 2124
#define IDC_APPLY 2130
#define IDC_LABEL 2131
#define IDC_READ_ONLY 2132
