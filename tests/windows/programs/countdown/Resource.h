//{{NO_DEPENDENCIES}}
// Identifiers of the resources in Countdown.rc
//
#define IDM_ABOUTBOX                    0x0010
#define IDD_ABOUTBOX                    100
#define IDS_ABOUTBOX                    101
#define IDD_COUNTDOWN_DIALOG            102
#define IDP_RUNNING                     103
#define IDR_MAINFRAME                   128
#define IDC_MINUTES                     1000
#define IDC_SPIN                        1001
#define IDC_SECONDS                     1002
#define IDC_PROGRESS                    1003
#define IDC_REST                        1004
#define IDC_START                       1005
#define IDC_SOUND                       1006

#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        129
#define _APS_NEXT_COMMAND_VALUE         32771
#define _APS_NEXT_CONTROL_VALUE         1007
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
