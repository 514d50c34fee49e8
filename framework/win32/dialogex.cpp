#include <afxdialogex.h>

#include <iterator>

IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

BEGIN_MESSAGE_MAP(CDialogEx, CDialog)
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

namespace
{
bool IsOfClass(HWND window, LPCTSTR className)
{
    TCHAR name[32] = {};
    ::GetClassName(window, name, static_cast<int>(std::size(name)));
    return ::lstrcmpi(name, className) == 0;
}
} // namespace

CDialogEx::CDialogEx() = default;

CDialogEx::CDialogEx(UINT nIDTemplate, CWnd * pParent) : CDialog(nIDTemplate, pParent) {}

CDialogEx::CDialogEx(LPCTSTR lpszTemplateName, CWnd * pParentWnd) : CDialog(lpszTemplateName, pParentWnd) {}

CDialogEx::~CDialogEx()
{
    ReleaseImage();
}

void CDialogEx::ReleaseImage()
{
    if (m_image != nullptr && m_ownsImage)
        ::DeleteObject(m_image);
    m_image = nullptr;
    m_ownsImage = false;
}

void CDialogEx::SetBackgroundColor(COLORREF color, BOOL bRepaint)
{
    m_brush.DeleteObject();
    if (color != CLR_INVALID)
        m_brush.CreateSolidBrush(color);
    if (bRepaint && GetSafeHwnd() != nullptr)
    {
        Invalidate();
        UpdateWindow();
    }
}

void CDialogEx::SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location, BOOL bAutoDestroy, BOOL bRepaint)
{
    if (hBitmap != m_image)
        ReleaseImage();
    m_image = hBitmap;
    m_ownsImage = hBitmap != nullptr && bAutoDestroy;
    m_location = location;
    m_imageSize = CSize(0, 0);
    if (hBitmap != nullptr)
    {
        BITMAP description = {};
        if (::GetObject(hBitmap, sizeof(description), &description) == sizeof(description))
            m_imageSize = CSize(description.bmWidth, description.bmHeight);
    }
    if (bRepaint && GetSafeHwnd() != nullptr)
    {
        Invalidate();
        UpdateWindow();
    }
}

BOOL CDialogEx::SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location, BOOL bRepaint)
{
    HBITMAP bitmap = nullptr;
    if (uiBmpResId != 0)
    {
        LPCTSTR const name = MAKEINTRESOURCE(uiBmpResId);
        bitmap = static_cast<HBITMAP>(
            ::LoadImage(AfxFindResourceHandle(name, RT_BITMAP), name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
        if (bitmap == nullptr)
            return FALSE;
    }
    SetBackgroundImage(bitmap, location, TRUE, bRepaint);
    return TRUE;
}

BOOL CDialogEx::OnEraseBkgnd(CDC * pDC)
{
    if (m_brush.GetSafeHandle() == nullptr && m_image == nullptr)
        return CDialog::OnEraseBkgnd(pDC);

    CRect client;
    GetClientRect(&client);
    bool const empty = m_imageSize.cx <= 0 || m_imageSize.cy <= 0;
    if (m_image == nullptr || empty || m_location != BACKGR_TILE)
    {
        if (m_brush.GetSafeHandle() != nullptr)
            pDC->FillRect(client, &m_brush);
        else
            CDialog::OnEraseBkgnd(pDC);
    }
    if (m_image == nullptr || empty)
        return TRUE;

    HDC const source = ::CreateCompatibleDC(pDC->GetSafeHdc());
    HGDIOBJ const previous = ::SelectObject(source, m_image);
    int const width = m_imageSize.cx;
    int const height = m_imageSize.cy;
    if (m_location == BACKGR_TILE)
    {
        for (int y = client.top; y < client.bottom; y += height)
        {
            for (int x = client.left; x < client.right; x += width)
                ::BitBlt(pDC->GetSafeHdc(), x, y, width, height, source, 0, 0, SRCCOPY);
        }
    }
    else
    {
        bool const right = m_location == BACKGR_TOPRIGHT || m_location == BACKGR_BOTTOMRIGHT;
        bool const bottom = m_location == BACKGR_BOTTOMLEFT || m_location == BACKGR_BOTTOMRIGHT;
        ::BitBlt(pDC->GetSafeHdc(), right ? client.right - width : client.left,
                 bottom ? client.bottom - height : client.top, width, height, source, 0, 0, SRCCOPY);
    }
    ::SelectObject(source, previous);
    ::DeleteDC(source);
    return TRUE;
}

HBRUSH CDialogEx::OnCtlColor(CDC * pDC, CWnd * pWnd, UINT nCtlColor)
{
    bool const coloured = m_brush.GetSafeHandle() != nullptr;
    if (coloured || m_image != nullptr)
    {
        if (nCtlColor == CTLCOLOR_DLG && coloured && m_image == nullptr)
            return static_cast<HBRUSH>(m_brush.GetSafeHandle());
        // A read-only edit field asks with the static colour too; it keeps its own background.
        bool const onBackground =
            (nCtlColor == CTLCOLOR_STATIC && !IsOfClass(pWnd->GetSafeHwnd(), _T("Edit"))) || nCtlColor == CTLCOLOR_BTN;
        if (onBackground)
        {
            pDC->SetBkMode(TRANSPARENT);
            if (m_image == nullptr)
                return static_cast<HBRUSH>(m_brush.GetSafeHandle());
            return static_cast<HBRUSH>(::GetStockObject(HOLLOW_BRUSH));
        }
    }
    return CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
}
