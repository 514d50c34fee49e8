// A program's precompiled header for an older system, as a wizard made them. That it compiles is the test.

#include <afxcmn.h>
#include <afxdisp.h>
#include <afxdlgs.h>
#include <afxdtctl.h>
#include <afxext.h>
#include <afxmt.h>
#include <afxole.h>
#include <afxtempl.h>
#include <afxwin.h>
#include <atlbase.h>
#include <sdkddkver.h>

class COldApp : public CWinApp
{
public:
    BOOL InitInstance() override;
};

BOOL COldApp::InitInstance()
{
    AfxEnableControlContainer();
    return CWinApp::InitInstance() && AfxOleInit();
}
