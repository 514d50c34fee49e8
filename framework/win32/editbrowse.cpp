#include <afxdlgs.h>
#include <afxeditbrowsectrl.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CMFCEditBrowseCtrl, CEdit)

BEGIN_MESSAGE_MAP(CMFCEditBrowseCtrl, CEdit)
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_NCHITTEST()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCMOUSEMOVE()
    ON_WM_NCMOUSELEAVE()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_ENABLE()
END_MESSAGE_MAP()

namespace
{
constexpr int least_button_width = 20;
constexpr int room_beside_content = 8;
constexpr TCHAR illegal_characters[] = _T("*?<>|\"");

/// A context of the window with the system's dialog font.
class LabelContext
{
public:
    explicit LabelContext(HDC dc)
        : m_dc(dc),
          m_font(::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT))),
          m_mode(::SetBkMode(dc, TRANSPARENT))
    {
    }
    ~LabelContext()
    {
        ::SetBkMode(m_dc, m_mode);
        ::SelectObject(m_dc, m_font);
    }
    LabelContext(LabelContext const &) = delete;
    LabelContext & operator=(LabelContext const &) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_font;
    int m_mode;
};
} // namespace

CMFCEditBrowseCtrl::CMFCEditBrowseCtrl() : m_imageSize(0, 0) {}

CMFCEditBrowseCtrl::~CMFCEditBrowseCtrl()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
    ReleaseImage();
}

void CMFCEditBrowseCtrl::EnableBrowseButton(BOOL bEnable, LPCTSTR szLabel)
{
    m_mode = bEnable ? BrowseMode_Default : BrowseMode_None;
    m_label = szLabel;
    OnChangeLayout();
}

void CMFCEditBrowseCtrl::EnableFileBrowseButton(LPCTSTR lpszDefExt, LPCTSTR lpszFilter, DWORD dwFlags)
{
    m_mode = BrowseMode_File;
    m_label = _T("...");
    m_defaultExtension = lpszDefExt;
    m_filter = lpszFilter;
    m_fileFlags = dwFlags;
    OnChangeLayout();
}

void CMFCEditBrowseCtrl::EnableFolderBrowseButton()
{
    m_mode = BrowseMode_Folder;
    m_label = _T("...");
    OnChangeLayout();
}

CMFCEditBrowseCtrl::BrowseMode CMFCEditBrowseCtrl::GetMode() const
{
    return m_mode;
}

void CMFCEditBrowseCtrl::ReleaseImage()
{
    if (m_ownsImage)
    {
        if (m_icon != nullptr)
            ::DestroyIcon(m_icon);
        if (m_bitmap != nullptr)
            ::DeleteObject(m_bitmap);
    }
    m_icon = nullptr;
    m_bitmap = nullptr;
    m_ownsImage = FALSE;
    m_imageSize = CSize(0, 0);
}

void CMFCEditBrowseCtrl::SetBrowseButtonImage(HICON hIcon, BOOL bAutoDestroy)
{
    if (hIcon != m_icon)
        ReleaseImage();
    m_icon = hIcon;
    m_ownsImage = bAutoDestroy;
    ICONINFO info{};
    if (hIcon != nullptr && ::GetIconInfo(hIcon, &info))
    {
        BITMAP mask{};
        ::GetObject(info.hbmMask, sizeof(mask), &mask);
        m_imageSize = CSize(mask.bmWidth, info.hbmColor != nullptr ? mask.bmHeight : mask.bmHeight / 2);
        ::DeleteObject(info.hbmMask);
        if (info.hbmColor != nullptr)
            ::DeleteObject(info.hbmColor);
    }
    OnChangeLayout();
}

void CMFCEditBrowseCtrl::SetBrowseButtonImage(HBITMAP hBitmap, BOOL bAutoDestroy)
{
    if (hBitmap != m_bitmap)
        ReleaseImage();
    m_bitmap = hBitmap;
    m_ownsImage = bAutoDestroy;
    BITMAP description{};
    if (hBitmap != nullptr && ::GetObject(hBitmap, sizeof(description), &description) == sizeof(description))
        m_imageSize = CSize(description.bmWidth, description.bmHeight);
    OnChangeLayout();
}

void CMFCEditBrowseCtrl::SetBrowseButtonImage(UINT uiBmpResId)
{
    LPCTSTR const name = MAKEINTRESOURCE(uiBmpResId);
    SetBrowseButtonImage(static_cast<HBITMAP>(
        ::LoadImage(AfxFindResourceHandle(name, RT_BITMAP), name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

void CMFCEditBrowseCtrl::OnBrowse()
{
    if (m_mode != BrowseMode_File && m_mode != BrowseMode_Folder)
        return;
    HWND const window = m_hWnd;
    CString text;
    GetWindowText(text);
    CString chosen;
    if (m_mode == BrowseMode_File)
    {
        if (text.FindOneOf(illegal_characters) >= 0 && !OnIllegalFileName(text))
            return;
        CFileDialog dialog(TRUE, m_defaultExtension.IsEmpty() ? nullptr : m_defaultExtension.GetString(), text,
                           m_fileFlags, m_filter.IsEmpty() ? nullptr : m_filter.GetString(), this);
        if (dialog.DoModal() != IDOK)
            return;
        chosen = dialog.GetPathName();
    }
    else
    {
        CFolderPickerDialog dialog(text, 0, this);
        if (dialog.DoModal() != IDOK)
            return;
        chosen = dialog.GetFolderPath();
    }
    // The application's code ran meanwhile.
    if (CWnd::FromHandlePermanent(window) != this || chosen == text)
        return;
    SetWindowText(chosen);
    SetModify(TRUE);
    OnAfterUpdate();
}

void CMFCEditBrowseCtrl::OnAfterUpdate() {}

BOOL CMFCEditBrowseCtrl::OnIllegalFileName(CString &)
{
    return FALSE;
}

void CMFCEditBrowseCtrl::OnChangeLayout()
{
    if (GetSafeHwnd() != nullptr)
        SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

int CMFCEditBrowseCtrl::ButtonWidth() const
{
    if (m_mode == BrowseMode_None)
        return 0;
    int content = m_imageSize.cx;
    if (content == 0 && !m_label.IsEmpty())
    {
        HDC const dc = ::GetDC(m_hWnd);
        SIZE size{};
        {
            LabelContext const context(dc);
            ::GetTextExtentPoint32(dc, m_label, m_label.GetLength(), &size);
        }
        ::ReleaseDC(m_hWnd, dc);
        content = size.cx;
    }
    return std::max(least_button_width, content + room_beside_content);
}

CRect CMFCEditBrowseCtrl::ButtonRect() const
{
    // Between the client area and the frame, in the window's own coordinates.
    CRect window;
    GetWindowRect(&window);
    CRect client;
    GetClientRect(&client);
    ClientToScreen(&client);
    CRect rect(client.right, client.top, client.right + (m_mode == BrowseMode_None ? 0 : ButtonWidth()), client.bottom);
    rect.right = std::min(rect.right, window.right);
    rect.OffsetRect(-window.left, -window.top);
    return rect;
}

bool CMFCEditBrowseCtrl::IsOnButton(CPoint screen) const
{
    if (m_mode == BrowseMode_None)
        return false;
    CRect window;
    GetWindowRect(&window);
    return ButtonRect().PtInRect(CPoint(screen.x - window.left, screen.y - window.top)) != FALSE;
}

void CMFCEditBrowseCtrl::Redraw()
{
    if (m_hWnd != nullptr)
        ::RedrawWindow(m_hWnd, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
}

void CMFCEditBrowseCtrl::OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS * lpncsp)
{
    CEdit::OnNcCalcSize(bCalcValidRects, lpncsp);
    RECT & client = lpncsp->rgrc[0];
    client.right = std::max(client.left, client.right - ButtonWidth());
}

void CMFCEditBrowseCtrl::OnNcPaint()
{
    CEdit::OnNcPaint();
    if (m_mode == BrowseMode_None)
        return;
    CRect const rect = ButtonRect();
    CWindowDC dc(this);
    OnDrawBrowseButton(&dc, rect, m_pressed, m_hot);
}

void CMFCEditBrowseCtrl::OnDrawBrowseButton(CDC * pDC, CRect rect, BOOL bIsButtonPressed, BOOL bIsButtonHot)
{
    HDC const dc = pDC->GetSafeHdc();
    bool const enabled = IsWindowEnabled() != FALSE;
    ::FillRect(dc, &rect,
               ::GetSysColorBrush(bIsButtonHot && enabled && !bIsButtonPressed ? COLOR_3DLIGHT : COLOR_BTNFACE));
    CRect edge = rect;
    ::DrawEdge(dc, &edge, bIsButtonPressed ? BDR_SUNKENOUTER : BDR_RAISEDINNER, BF_RECT);
    if (bIsButtonPressed)
        rect.OffsetRect(1, 1);
    CPoint const middle = rect.CenterPoint();
    int const x = middle.x - m_imageSize.cx / 2;
    int const y = middle.y - m_imageSize.cy / 2;
    UINT const state = enabled ? DSS_NORMAL : DSS_DISABLED;
    // What is larger than the button stays within it.
    int const saved = ::SaveDC(dc);
    ::IntersectClipRect(dc, edge.left, edge.top, edge.right, edge.bottom);
    if (m_icon != nullptr)
    {
        ::DrawState(dc, nullptr, nullptr, reinterpret_cast<LPARAM>(m_icon), 0, x, y, m_imageSize.cx, m_imageSize.cy,
                    DST_ICON | state);
    }
    else if (m_bitmap != nullptr)
    {
        ::DrawState(dc, nullptr, nullptr, reinterpret_cast<LPARAM>(m_bitmap), 0, x, y, m_imageSize.cx, m_imageSize.cy,
                    DST_BITMAP | state);
    }
    else
    {
        LabelContext const context(dc);
        COLORREF const former = ::SetTextColor(dc, ::GetSysColor(enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
        ::DrawText(dc, m_label, m_label.GetLength(), &rect, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
        ::SetTextColor(dc, former);
    }
    ::RestoreDC(dc, saved);
}

LRESULT CMFCEditBrowseCtrl::OnNcHitTest(CPoint point)
{
    return IsOnButton(point) ? HTBORDER : CEdit::OnNcHitTest(point);
}

void CMFCEditBrowseCtrl::Press()
{
    HWND const window = m_hWnd;
    SetFocus();
    if (CWnd::FromHandlePermanent(window) != this)
        return;
    m_tracking = true;
    m_pressed = true;
    SetCapture();
    Redraw();
}

void CMFCEditBrowseCtrl::OnNcLButtonDown(UINT nHitTest, CPoint point)
{
    if (IsOnButton(point))
        Press();
    else
        CEdit::OnNcLButtonDown(nHitTest, point);
}

void CMFCEditBrowseCtrl::OnNcLButtonDblClk(UINT nHitTest, CPoint point)
{
    if (IsOnButton(point))
        Press();
    else
        CEdit::OnNcLButtonDblClk(nHitTest, point);
}

void CMFCEditBrowseCtrl::OnNcMouseMove(UINT nHitTest, CPoint point)
{
    bool const hot = IsOnButton(point);
    if (hot != m_hot)
    {
        m_hot = hot;
        Redraw();
        TRACKMOUSEEVENT request{sizeof(request), TME_LEAVE | TME_NONCLIENT, m_hWnd, 0};
        if (hot)
            ::TrackMouseEvent(&request);
    }
    CEdit::OnNcMouseMove(nHitTest, point);
}

void CMFCEditBrowseCtrl::OnNcMouseLeave()
{
    if (m_hot)
    {
        m_hot = false;
        Redraw();
    }
    Default();
}

void CMFCEditBrowseCtrl::OnMouseMove(UINT nFlags, CPoint point)
{
    if (m_hot && !m_tracking)
    {
        m_hot = false;
        Redraw();
    }
    if (!m_tracking)
    {
        CEdit::OnMouseMove(nFlags, point);
        return;
    }
    ClientToScreen(&point);
    bool const pressed = IsOnButton(point);
    if (pressed != m_pressed)
    {
        m_pressed = pressed;
        Redraw();
    }
}

void CMFCEditBrowseCtrl::OnLButtonUp(UINT nFlags, CPoint point)
{
    if (!m_tracking)
    {
        CEdit::OnLButtonUp(nFlags, point);
        return;
    }
    ClientToScreen(&point);
    bool const chosen = IsOnButton(point);
    HWND const window = m_hWnd;
    m_tracking = false;
    m_pressed = false;
    Redraw();
    ::ReleaseCapture();
    if (chosen && CWnd::FromHandlePermanent(window) == this)
        OnBrowse();
}

void CMFCEditBrowseCtrl::OnCaptureChanged(CWnd * pWnd)
{
    if (m_tracking)
    {
        m_tracking = false;
        m_pressed = false;
        Redraw();
    }
    CEdit::OnCaptureChanged(pWnd);
}

void CMFCEditBrowseCtrl::OnEnable(BOOL bEnable)
{
    CEdit::OnEnable(bEnable);
    Redraw();
}
