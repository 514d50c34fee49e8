#include "list/XHeaderCtrl.h"

#include <afxcontrolbarutil.h>

#include "list/XListCtrl.h"

IMPLEMENT_DYNCREATE(CXHeaderCtrl, CHeaderCtrl)

BEGIN_MESSAGE_MAP(CXHeaderCtrl, CHeaderCtrl)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_LBUTTONDBLCLK()
    ON_MESSAGE(HDM_INSERTITEMA, &CXHeaderCtrl::OnInsertItem)
    ON_MESSAGE(HDM_INSERTITEMW, &CXHeaderCtrl::OnInsertItem)
    ON_MESSAGE(HDM_DELETEITEM, &CXHeaderCtrl::OnDeleteItem)
    ON_MESSAGE(HDM_SETIMAGELIST, &CXHeaderCtrl::OnSetImageList)
    ON_MESSAGE(HDM_LAYOUT, &CXHeaderCtrl::OnLayout)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CXHeaderCtrl::CXHeaderCtrl() : m_textColor(::GetSysColor(COLOR_BTNTEXT))
{
    ReadColors();
}

void CXHeaderCtrl::ReadColors()
{
    m_colorHighlight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    m_colorShadow = ::GetSysColor(COLOR_BTNSHADOW);
    m_colorFace = ::GetSysColor(COLOR_BTNFACE);
    m_colorText = ::GetSysColor(COLOR_BTNTEXT);
}

BOOL CXHeaderCtrl::OnEraseBkgnd(CDC *)
{
    return TRUE;
}

void CXHeaderCtrl::OnPaint()
{
    CPaintDC dc(this);
    if (m_doubleBuffer != 0)
    {
        CMemDC buffer(dc, this);
        PaintHeader(&buffer.GetDC());
    }
    else
    {
        PaintHeader(&dc);
    }
}

// The title colour is the host's and stays.
void CXHeaderCtrl::OnSysColorChange()
{
    CHeaderCtrl::OnSysColorChange();
    ReadColors();
}

// Hosts expect that a double click is nothing but another press, on a divider too.
void CXHeaderCtrl::OnLButtonDblClk(UINT flags, CPoint point)
{
    SendMessage(WM_LBUTTONDOWN, flags, MAKELPARAM(point.x, point.y));
}

LRESULT CXHeaderCtrl::OnInsertItem(WPARAM, LPARAM)
{
    return Default();
}

LRESULT CXHeaderCtrl::OnDeleteItem(WPARAM, LPARAM)
{
    return Default();
}

LRESULT CXHeaderCtrl::OnSetImageList(WPARAM, LPARAM lParam)
{
    IMAGEINFO info = {};
    auto const images = reinterpret_cast<HIMAGELIST>(lParam);
    if (images == nullptr || !ImageList_GetImageInfo(images, 0, &info))
    {
        info = {};
    }
    m_imageWidth = info.rcImage.right - info.rcImage.left;
    m_imageHeight = info.rcImage.bottom - info.rcImage.top;
    return Default();
}

LRESULT CXHeaderCtrl::OnLayout(WPARAM, LPARAM lParam)
{
    if (m_layoutWiden != 0)
    {
        reinterpret_cast<HDLAYOUT *>(lParam)->prc->right += 2 * ::GetSystemMetrics(SM_CXBORDER);
    }
    return Default();
}

void CXHeaderCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    if (m_directColumnClick && m_list != nullptr)
    {
        int const count = GetItemCount();
        for (int order = 0; order < count; ++order)
        {
            int const index = OrderToIndex(order);
            CRect rect;
            if (GetItemRect(index, &rect) && rect.PtInRect(point))
            {
                m_list->OnHeaderColumnClick(index);
                break;
            }
        }
    }
    CHeaderCtrl::OnLButtonDown(flags, point);
}
