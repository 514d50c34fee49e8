#include "Divider.h"

BEGIN_MESSAGE_MAP(CDivider, CWnd)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

bool CDivider::CreateDivider(CWnd & parent, UINT id)
{
    LPCTSTR const windowClass =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_SIZEWE), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    return Create(windowClass, L"", WS_CHILD, CRect(), &parent, id) != FALSE;
}

void CDivider::OnLButtonDown(UINT, CPoint point)
{
    m_grip = point.x;
    SetCapture();
}

void CDivider::OnMouseMove(UINT, CPoint point)
{
    if (m_grip < 0 || GetCapture() != this)
    {
        return;
    }
    point.x -= m_grip;
    MapWindowPoints(GetParent(), &point, 1);
    if (m_onMoved)
    {
        m_onMoved(point.x);
    }
}

void CDivider::OnLButtonUp(UINT, CPoint)
{
    if (GetCapture() == this)
    {
        ::ReleaseCapture();
    }
}

void CDivider::OnCaptureChanged(CWnd *)
{
    if (m_grip >= 0)
    {
        m_grip = -1;
        if (m_onReleased)
        {
            m_onReleased();
        }
    }
}
