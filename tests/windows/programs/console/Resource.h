//{{NO_DEPENDENCIES}}
// Identifiers of the resources in Console.rc
//
#define IDD_ABOUTBOX                    100
#define IDR_MAINFRAME                   128
#define IDR_CONTYPE                     129
#define IDR_CHANNELS                    130
#define IDD_TARGET                      131
#define IDC_TARGET                      1000
#define IDC_RATE                        1001
#define ID_RUN_START                    32771
#define ID_RUN_STOP                     32772
#define ID_CHANNEL_1                    32773
#define ID_CHANNEL_2                    32774
#define ID_CHANNEL_3                    32775
#define ID_CHANNEL_4                    32776
#define ID_TARGET_SET                   32777
#define ID_INDICATOR_RUN                32778
#define ID_INDICATOR_TIME               32779
#define IDW_CHANNELS                    32780
#define ID_VIEW_CHANNELS                32781
