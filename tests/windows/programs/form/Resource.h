//{{NO_DEPENDENCIES}}
// Identifiers of the resources in Form.rc
//
#define IDD_ABOUTBOX                    100
#define IDR_MAINFRAME                   128
#define IDR_FORMTYPE                    129
#define IDD_SHEET                       130
#define IDC_DEVICE                      1000
#define IDC_KIND                        1001
#define IDC_DATE                        1002
#define IDC_REFERENCE                   1003
#define IDC_READING                     1004
#define IDC_PASSED                      1005
#define IDC_REMARKS                     1006
#define IDC_DEVIATION                   1007
