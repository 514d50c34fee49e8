//{{NO_DEPENDENCIES}}
// Identifiers of the resources in Register.rc
//
#define IDD_ABOUTBOX                    100
#define IDR_MAINFRAME                   128
#define IDR_REGTYPE                     129
