// Device contexts of windows, and painting through a buffer.

#include "afxcontrolbarutil.h"

#include "detail/GdiHandles.h"

using framework::HandleOf;

IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CClientDC::CClientDC(CWnd * pWnd) : m_hWnd(HandleOf(pWnd))
{
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    if (m_hDC != nullptr)
        ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd * pWnd) : m_hWnd(HandleOf(pWnd))
{
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC()
{
    if (m_hDC != nullptr)
        ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd * pWnd) : m_ps(), m_hWnd(HandleOf(pWnd))
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CMemDC::CMemDC(CDC & dc, CWnd * pWnd) : m_target(dc)
{
    ::GetClientRect(HandleOf(pWnd), m_rect);
    Begin();
}

CMemDC::CMemDC(CDC & dc, CRect const & rect) : m_target(dc), m_rect(rect)
{
    Begin();
}

CMemDC::~CMemDC()
{
    if (m_themedBuffer != nullptr)
    {
        m_buffer.Detach();
        ::EndBufferedPaint(m_themedBuffer, TRUE);
        ::BufferedPaintUnInit();
    }
    else if (IsMemDC())
    {
        m_target.BitBlt(m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), &m_buffer, m_rect.left, m_rect.top,
                        SRCCOPY);
        ::SelectObject(m_buffer, m_previousBitmap);
    }
}

CDC & CMemDC::GetDC()
{
    return IsMemDC() ? m_buffer : m_target;
}

BOOL CMemDC::IsMemDC()
{
    return m_buffer.m_hDC != nullptr;
}

BOOL CMemDC::IsVistaDC()
{
    return m_themedBuffer != nullptr;
}

void CMemDC::Begin()
{
    if (m_rect.IsRectEmpty())
        return;
    bool const themed = ::IsAppThemed() && (::GetThemeAppProperties() & STAP_ALLOW_CONTROLS) != 0;
    if (themed && SUCCEEDED(::BufferedPaintInit()))
    {
        HDC buffer = nullptr;
        m_themedBuffer = ::BeginBufferedPaint(m_target, m_rect, BPBF_TOPDOWNDIB, nullptr, &buffer);
        if (m_themedBuffer != nullptr)
        {
            m_buffer.Attach(buffer);
            return;
        }
        ::BufferedPaintUnInit();
    }
    if (!m_buffer.CreateCompatibleDC(&m_target))
        return;
    if (!m_bitmap.CreateCompatibleBitmap(&m_target, m_rect.Width(), m_rect.Height()))
    {
        m_buffer.DeleteDC();
        return;
    }
    m_previousBitmap = ::SelectObject(m_buffer, m_bitmap);
    m_buffer.SetViewportOrg(-m_rect.left, -m_rect.top);
}
