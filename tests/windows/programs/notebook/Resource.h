//{{NO_DEPENDENCIES}}
// Identifiers of the resources in Notebook.rc
//
#define IDD_ABOUTBOX                    100
#define IDR_MAINFRAME                   128
#define IDR_NOTETYPE                    129
#define ID_EDIT_STAMP                   32771
