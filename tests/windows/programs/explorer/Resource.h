//{{NO_DEPENDENCIES}}
// Identifiers of the resources in Explorer.rc
//
#define IDD_ABOUTBOX                    100
#define IDR_MAINFRAME                   128
#define IDR_EXPTYPE                     129
