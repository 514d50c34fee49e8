//{{NO_DEPENDENCIES}}
// Identifiers of the resources in Options.rc
//
#define IDR_MAINFRAME                   128
#define IDS_CAPTION                     129
#define IDP_NO_NAME                     130
#define IDD_GENERAL                     131
#define IDD_CHANNELS                    132
#define IDD_COLOURS                     133
#define IDD_WELCOME                     134
#define IDD_SUMMARY                     135
#define IDC_NAME                        1000
#define IDC_FOLDER                      1001
#define IDC_COUNT                       1002
#define IDC_SPIN                        1003
#define IDC_LIST                        1004
#define IDC_DARK                        1005
#define IDC_LIGHT                       1006
#define IDC_LEVEL                       1007
#define IDC_WIZARD                      1008
#define IDC_TEXT                        1009
