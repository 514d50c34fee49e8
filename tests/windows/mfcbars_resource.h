#pragma once
// Identifiers of the resources in mfcbars.rc.

#define IDR_MFC_MAIN 620
#define IDR_MFC_CHILD 621
#define IDR_MFC_TOOLS 622
#define IDR_MFC_DAMAGED 623
#define IDR_MFC_DROP 624

#define ID_MFC_A 34101
#define ID_MFC_B 34102
#define ID_MFC_C 34103
#define ID_MFC_D 34104
#define ID_MFC_E 34105
#define ID_MFC_LOST 34110
#define ID_MFC_INNER 34111
#define ID_MFC_OTHER 34112
#define ID_MFC_PANE 34120
