#include "BufferedView.h"

#include <afxcontrolbarutil.h>

BEGIN_MESSAGE_MAP(CBufferedView, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_PRINTCLIENT, &CBufferedView::OnPrintClient)
END_MESSAGE_MAP()

bool CBufferedView::CreateBuffered(wchar_t const * name, DWORD style, CRect const & place, CWnd & parent, UINT id)
{
    LPCTSTR const windowClass =
        AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW));
    return Create(windowClass, name, style | WS_CHILD | WS_VISIBLE | WS_BORDER, place, &parent, id) != FALSE;
}

BOOL CBufferedView::OnEraseBkgnd(CDC *)
{
    return TRUE;
}

void CBufferedView::OnPaint()
{
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    CMemDC buffer(paint, client);
    Draw(buffer.GetDC(), client);
}

LRESULT CBufferedView::OnPrintClient(WPARAM dc, LPARAM)
{
    CRect client;
    GetClientRect(&client);
    Draw(*CDC::FromHandle(reinterpret_cast<HDC>(dc)), client);
    return 0;
}
