// An extension module: classes and resources that join those of the program.

#include "Shapes.h"

#include <afxdllx.h>

namespace
{
AFX_EXTENSION_MODULE ShapesModule = {FALSE, nullptr, nullptr, nullptr, nullptr};
}

extern "C" int APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH)
    {
        if (!AfxInitExtensionModule(ShapesModule, hInstance))
            return 0;
        new CDynLinkLibrary(ShapesModule); // the framework deletes it in AfxTermExtensionModule
    }
    else if (dwReason == DLL_PROCESS_DETACH)
        AfxTermExtensionModule(ShapesModule);
    return 1;
}

IMPLEMENT_DYNAMIC(CShape, CObject)
IMPLEMENT_DYNCREATE(CSquare, CShape)

CString CSquare::Name() const
{
    return _T("square");
}

BEGIN_MESSAGE_MAP(CSizeDialog, CDialog)
END_MESSAGE_MAP()

CSizeDialog::CSizeDialog(CWnd * parent) : CDialog(IDD_SHAPES_SIZE, parent) {}

void CSizeDialog::DoDataExchange(CDataExchange * pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_SHAPES_SIZE, m_size);
    DDV_MinMaxInt(pDX, m_size, 1, 100);
}
