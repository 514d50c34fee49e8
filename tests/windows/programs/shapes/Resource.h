//{{NO_DEPENDENCIES}}
// Identifiers of the resources in Shapes.rc
//
#define IDD_ABOUTBOX                    100
#define IDR_MAINFRAME                   128
#define IDR_SHAPETYPE                   129
#define ID_SHAPE_RECTANGLE              32771
#define ID_SHAPE_ELLIPSE                32772
#define ID_SHAPE_UNDO                   32773
