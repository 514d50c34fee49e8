#include <afxwin.h>

#include "instrument_ui.h"

class CHostApp : public CWinApp
{
    BOOL InitInstance() override { return CWinApp::InitInstance() && WM_XLISTCTRL_EDIT_END != 0; }
    int Run() override { return CEdges::BOTTOM_RIGHT() & CEdges::RIGHT() ? 0 : 1; }
};

CHostApp theApp;
