#include "detail/GdiHandles.h"
#include "detail/ThreadState.h"

using framework::GdiObjectMap;
using framework::MaybeNull;

IMPLEMENT_DYNCREATE(CGdiObject, CObject)

namespace framework
{
namespace
{
CGdiObject * NewObjectFor(HGDIOBJ handle)
{
    switch (::GetObjectType(handle))
    {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return new CPen;
    case OBJ_BRUSH:
        return new CBrush;
    case OBJ_FONT:
        return new CFont;
    case OBJ_BITMAP:
        return new CBitmap;
    case OBJ_PAL:
        return new CPalette;
    case OBJ_REGION:
        return new CRgn;
    default:
        return new CGdiObject;
    }
}
} // namespace

CGdiObject * MakeTemporaryGdiObject(void * handle)
{
    CGdiObject * const object = NewObjectFor(handle);
    object->m_hObject = handle;
    return object;
}

void ReleaseTemporaryGdiObject(CGdiObject * object)
{
    object->m_hObject = nullptr;
}
} // namespace framework

CGdiObject::CGdiObject() : m_hObject(nullptr) {}

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

CGdiObject * PASCAL CGdiObject::FromHandle(HGDIOBJ hObject)
{
    return GdiObjectMap().FromHandle(hObject);
}

void PASCAL CGdiObject::DeleteTempMap()
{
    GdiObjectMap().DeleteTemporaries();
}

CGdiObject::operator HGDIOBJ() const
{
    return GetSafeHandle();
}

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    return framework::HandleOf(MaybeNull(this));
}

BOOL CGdiObject::operator==(CGdiObject const & obj) const
{
    return m_hObject == obj.m_hObject;
}

BOOL CGdiObject::operator!=(CGdiObject const & obj) const
{
    return m_hObject != obj.m_hObject;
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    ASSERT(m_hObject == nullptr);
    if (hObject == nullptr)
        return FALSE;
    m_hObject = hObject;
    GdiObjectMap().SetPermanent(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    HGDIOBJ const handle = m_hObject;
    // A shared handle, such as that of a stock object, may stand for another object in the map.
    if (handle != nullptr && GdiObjectMap().LookupPermanent(handle) == this)
        GdiObjectMap().RemovePermanent(handle);
    m_hObject = nullptr;
    return handle;
}

BOOL CGdiObject::DeleteObject()
{
    return m_hObject != nullptr && ::DeleteObject(Detach());
}

BOOL CGdiObject::CreateStockObject(int nIndex)
{
    return Attach(::GetStockObject(nIndex));
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const
{
    return ::GetObject(m_hObject, nCount, lpObject);
}

UINT CGdiObject::GetObjectType() const
{
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::UnrealizeObject()
{
    return ::UnrealizeObject(m_hObject);
}
