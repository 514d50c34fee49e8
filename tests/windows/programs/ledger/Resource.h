//{{NO_DEPENDENCIES}}
// Identifiers of the resources in Ledger.rc
//
#define IDD_ABOUTBOX                    100
#define IDR_MAINFRAME                   128
#define IDR_LEDTYPE                     129
#define ID_ENTRY_ADD                    32771
#define ID_ENTRY_REMOVE                 32772
