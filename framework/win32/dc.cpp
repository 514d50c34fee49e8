// Device contexts: their handles, making and deleting them, and what is selected into them.

#include "detail/GdiHandles.h"
#include "detail/ThreadState.h"

using framework::DcMap;
using framework::HandleOf;
using framework::MaybeNull;
using framework::OnBoth;

IMPLEMENT_DYNCREATE(CDC, CObject)

namespace framework
{
CDC * MakeTemporaryDc(void * handle)
{
    CDC * const dc = new CDC;
    dc->m_hDC = dc->m_hAttribDC = static_cast<HDC>(handle);
    return dc;
}

void ReleaseTemporaryDc(CDC * dc)
{
    dc->m_hDC = dc->m_hAttribDC = nullptr;
}
} // namespace framework

namespace
{
HGDIOBJ SelectIntoBoth(CDC const & dc, HGDIOBJ object)
{
    return OnBoth(dc, [object](HDC handle) { return ::SelectObject(handle, object); });
}
} // namespace

CDC::CDC() : m_hDC(nullptr), m_hAttribDC(nullptr), m_abortProc(nullptr), m_printing(false) {}

CDC::~CDC()
{
    DeleteDC();
}

CDC * PASCAL CDC::FromHandle(HDC hDC)
{
    CDC * const dc = DcMap().FromHandle(hDC);
    if (dc != nullptr && dc->m_hDC == nullptr) // a temporary object that was detached since
        dc->m_hDC = dc->m_hAttribDC = hDC;
    return dc;
}

void PASCAL CDC::DeleteTempMap()
{
    DcMap().DeleteTemporaries();
}

CDC::operator HDC() const
{
    return HandleOf(MaybeNull(this));
}

HDC CDC::GetSafeHdc() const
{
    return HandleOf(MaybeNull(this));
}

CWnd * CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

BOOL CDC::Attach(HDC hDC)
{
    ASSERT(m_hDC == nullptr);
    ASSERT(m_hAttribDC == nullptr);
    if (hDC == nullptr)
        return FALSE;
    m_hDC = hDC;
    DcMap().SetPermanent(hDC, this);
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach()
{
    HDC const handle = m_hDC;
    if (handle != nullptr && DcMap().LookupPermanent(handle) == this)
        DcMap().RemovePermanent(handle);
    ReleaseAttribDC();
    m_hDC = nullptr;
    m_abortProc = nullptr;
    m_printing = false;
    return handle;
}

void CDC::SetAttribDC(HDC hDC)
{
    m_hAttribDC = hDC;
}

void CDC::SetOutputDC(HDC hDC)
{
    // An attached context is in the handle map under its output handle.
    ASSERT(m_hDC == nullptr || DcMap().LookupPermanent(m_hDC) != this);
    m_hDC = hDC;
}

void CDC::ReleaseAttribDC()
{
    m_hAttribDC = nullptr;
}

void CDC::ReleaseOutputDC()
{
    ASSERT(m_hDC == nullptr || DcMap().LookupPermanent(m_hDC) != this);
    m_hDC = nullptr;
}

BOOL CDC::IsPrinting() const
{
    if (m_printing)
        return TRUE;
    HDC const device = m_hAttribDC == nullptr ? m_hDC : m_hAttribDC;
    if (::GetObjectType(device) == OBJ_MEMDC)
        return FALSE;
    int const technology = ::GetDeviceCaps(device, TECHNOLOGY);
    return device != nullptr && (technology == DT_RASPRINTER || technology == DT_PLOTTER);
}

CPen * CDC::GetCurrentPen() const
{
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush * CDC::GetCurrentBrush() const
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CPalette * CDC::GetCurrentPalette() const
{
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hAttribDC, OBJ_PAL)));
}

CFont * CDC::GetCurrentFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap * CDC::GetCurrentBitmap() const
{
    // A bitmap is only ever selected into the output context.
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hDC, OBJ_BITMAP)));
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, void const * lpInitData)
{
    return Attach(::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<DEVMODE const *>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, void const * lpInitData)
{
    return Attach(::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<DEVMODE const *>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC * pDC)
{
    return Attach(::CreateCompatibleDC(HandleOf(pDC)));
}

BOOL CDC::DeleteDC()
{
    return m_hDC != nullptr && ::DeleteDC(Detach());
}

BOOL CDC::ResetDC(DEVMODE const * lpDevMode)
{
    return ::ResetDC(m_hAttribDC, lpDevMode) != nullptr;
}

int CDC::SaveDC()
{
    int saved = 0;
    if (m_hAttribDC != nullptr)
        saved = ::SaveDC(m_hAttribDC);
    // The levels of two contexts need not agree: only "the last one" means the same to both.
    if (m_hDC != m_hAttribDC && ::SaveDC(m_hDC) != 0)
        saved = -1;
    return saved;
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    BOOL restored = TRUE;
    if (m_hDC != m_hAttribDC)
        restored = ::RestoreDC(m_hDC, nSavedDC);
    if (m_hAttribDC != nullptr)
        restored = restored && ::RestoreDC(m_hAttribDC, nSavedDC);
    return restored;
}

int CDC::GetDeviceCaps(int nIndex) const
{
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

UINT CDC::SetBoundsRect(LPCRECT lpRectBounds, UINT flags)
{
    return ::SetBoundsRect(m_hDC, lpRectBounds, flags);
}

UINT CDC::GetBoundsRect(LPRECT lpRectBounds, UINT flags)
{
    return ::GetBoundsRect(m_hAttribDC, lpRectBounds, flags);
}

DWORD CDC::GetLayout() const
{
    return ::GetLayout(m_hDC);
}

DWORD CDC::SetLayout(DWORD dwLayout)
{
    return ::SetLayout(m_hDC, dwLayout);
}

int CDC::EnumObjects(int nObjectType, int(CALLBACK * lpfn)(LPVOID, LPARAM), LPARAM lpData)
{
    return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
}

CGdiObject * CDC::SelectStockObject(int nIndex)
{
    return CGdiObject::FromHandle(SelectIntoBoth(*this, ::GetStockObject(nIndex)));
}

CPen * CDC::SelectObject(CPen * pPen)
{
    return static_cast<CPen *>(CGdiObject::FromHandle(SelectIntoBoth(*this, HandleOf(pPen))));
}

CBrush * CDC::SelectObject(CBrush * pBrush)
{
    return static_cast<CBrush *>(CGdiObject::FromHandle(SelectIntoBoth(*this, HandleOf(pBrush))));
}

CFont * CDC::SelectObject(CFont * pFont)
{
    return static_cast<CFont *>(CGdiObject::FromHandle(SelectIntoBoth(*this, HandleOf(pFont))));
}

CBitmap * CDC::SelectObject(CBitmap * pBitmap)
{
    return static_cast<CBitmap *>(CGdiObject::FromHandle(::SelectObject(m_hDC, HandleOf(pBitmap))));
}

int CDC::SelectObject(CRgn * pRgn)
{
    // For a region the answer is the complexity of the clip region, not an object.
    return static_cast<int>(reinterpret_cast<INT_PTR>(SelectIntoBoth(*this, HandleOf(pRgn))));
}

CGdiObject * CDC::SelectObject(CGdiObject * pObject)
{
    return CGdiObject::FromHandle(::SelectObject(m_hDC, HandleOf(pObject)));
}

CPalette * CDC::SelectPalette(CPalette * pPalette, BOOL bForceBackground)
{
    HPALETTE const palette = static_cast<HPALETTE>(HandleOf(pPalette));
    return CPalette::FromHandle(::SelectPalette(m_hDC, palette, bForceBackground));
}

UINT CDC::RealizePalette()
{
    return ::RealizePalette(m_hDC);
}

void CDC::UpdateColors()
{
    ::UpdateColors(m_hDC);
}
