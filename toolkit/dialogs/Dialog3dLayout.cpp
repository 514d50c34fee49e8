// Resizing: the controls, the limits and the size grip.

#include "dialogs/Dialog3d.h"

#include <algorithm>

#include "frame/WindowAlive.h"

BEGIN_MESSAGE_MAP(CDialog3d::CSizeGrip, CScrollBar)
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

namespace
{
constexpr wchar_t no_frame_message[] = L"Achtung: Dialog-Ressource zu '%s' hat nicht die 'Resizing'-Eigenschaft!";
} // namespace

CDialog3d::CSizeGrip::CSizeGrip() : m_size(0, 0) {}

CDialog3d::CSizeGrip::~CSizeGrip() = default;

BOOL CDialog3d::CSizeGrip::Create(CWnd * dialog)
{
    m_size = CSize(::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL));
    BOOL const result =
        CScrollBar::Create(WS_CHILD | WS_CLIPSIBLINGS | SBS_SIZEGRIP, CRect(CPoint(0, 0), m_size), dialog, 0);
    if (result && m_hWnd != nullptr)
    {
        HWND const grip = m_hWnd;
        Place();
        ::ShowWindow(grip, SW_SHOW);
    }
    return result;
}

void CDialog3d::CSizeGrip::Place()
{
    if (GetSafeHwnd() == nullptr)
        return;
    CWnd * const parent = GetParent();
    CRect client;
    parent->GetClientRect(&client);
    BOOL const usable = !parent->IsZoomed();
    HWND const grip = m_hWnd;
    // Behind the controls.
    SetWindowPos(&wndBottom, client.right - m_size.cx, client.bottom - m_size.cy, 0, 0,
                 SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    ::EnableWindow(grip, usable);
}

// A border that doesn't size, as hosts expect.
LRESULT CDialog3d::CSizeGrip::OnNcHitTest(CPoint)
{
    return HTBORDER;
}

void CDialog3d::MakeResizingDialog()
{
    m_fenster.SetMyType(CFensterManager::window_sizable_dialog);
}

void CDialog3d::D3dLayoutChild(int id, CEdges const & edges, CRect const * designRect)
{
    if (m_resizer != nullptr)
        m_resizer->PositionChild(id, edges, designRect);
}

void CDialog3d::D3dLayoutChild(int id, CRect const & fractions, CRect const * designRect)
{
    if (m_resizer != nullptr)
        m_resizer->PositionChild(id, fractions, designRect);
}

void CDialog3d::D3dLayoutMoveChild(int id, CSize const * offset, CSize const * growth, bool scale)
{
    if (m_resizer != nullptr)
        m_resizer->RepositionChild(id, offset, growth, scale);
}

void CDialog3d::D3dLayoutTouch()
{
    if (m_resizer != nullptr)
        m_resizer->OnSize();
}

void CDialog3d::D3dLayoutComplete(CDialogResizer::resize_dims_t dims)
{
    if (dims == CDialogResizer::RESIZE_NONE)
        return;
    if (m_resizeDims == CDialogResizer::RESIZE_NONE)
    {
        CString text;
        text.Format(no_frame_message, m_dialogTitle.GetString());
        AfxMessageBox(text, MB_ICONERROR);
        return;
    }
    m_resizeDims = dims;
    WindowAlive const alive(*this, m_life);
    FensterpositionLaden();
    if (alive.IsAlive())
        D3dLayoutTouch();
}

void CDialog3d::ClientCoordinates(int id, CRect & rect)
{
    GetDlgItem(id)->GetWindowRect(&rect);
    ScreenToClient(&rect);
}

int CDialog3d::GetMaxID()
{
    int largest = 0;
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        largest = std::max(largest, ::GetDlgCtrlID(child));
    return largest;
}

void CDialog3d::OnGetMinMaxInfo(MINMAXINFO * info)
{
    if (m_resizeDims != CDialogResizer::RESIZE_NONE)
        m_resizer->OnGetMinMaxInfo(info, m_resizeDims);
}

void CDialog3d::OnSize(UINT type, int cx, int cy)
{
    WindowAlive const alive(*this, m_life);
    CDialogEx::OnSize(type, cx, cy);
    if (m_resizeDims == CDialogResizer::RESIZE_NONE)
        return;
    m_resizer->OnSize();
    if (!alive.IsAlive())
        return;
    m_sizeGrip.Place();
    if (alive.IsAlive())
        Invalidate(TRUE);
}

// A move lays out as well, which keeps the rectangle that the resizer has seen last up to date.
void CDialog3d::OnMove(int x, int y)
{
    CDialogEx::OnMove(x, y);
    if (m_resizeDims != CDialogResizer::RESIZE_NONE)
        m_resizer->OnSize();
}
