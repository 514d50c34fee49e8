// CObject and run-time classes.

#include "afx.h"

#include <cstdlib>
#include <mutex>
#include <vector>

constinit CRuntimeClass const CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr, nullptr};

namespace
{
AFX_CLASSINIT const init_object(RUNTIME_CLASS(CObject));

constinit CRuntimeClass const * s_classes = nullptr;

// Never destroyed: modules register and leave at any time.
std::mutex & ClassMutex()
{
    static std::mutex & mutex = *new std::mutex;
    return mutex;
}

void * Allocate(size_t size)
{
    void * const memory = std::malloc(size);
    if (memory == nullptr)
        AfxThrowMemoryException();
    return memory;
}
} // namespace

CObject::CObject() = default;
CObject::~CObject() = default;

CRuntimeClass * PASCAL CObject::_GetBaseClass()
{
    return nullptr;
}

CRuntimeClass * PASCAL CObject::GetThisClass()
{
    return const_cast<CRuntimeClass *>(&classCObject);
}

CRuntimeClass * CObject::GetRuntimeClass() const
{
    return GetThisClass();
}

BOOL CObject::IsKindOf(CRuntimeClass const * pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

BOOL CObject::IsSerializable() const
{
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

void CObject::Serialize(CArchive &) {}

void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext & dc) const
{
    dc << "a " << GetRuntimeClass()->m_lpszClassName << " at " << static_cast<void const *>(this) << "\n";
}

void * PASCAL CObject::operator new(size_t nSize)
{
    return Allocate(nSize);
}

void * PASCAL CObject::operator new(size_t, void * p)
{
    return p;
}

void * PASCAL CObject::operator new(size_t nSize, LPCSTR, int)
{
    return Allocate(nSize);
}

void PASCAL CObject::operator delete(void * p)
{
    std::free(p);
}

void PASCAL CObject::operator delete(void *, void *) {}

void PASCAL CObject::operator delete(void * p, LPCSTR, int)
{
    std::free(p);
}

CObject * CRuntimeClass::CreateObject()
{
    return m_pfnCreateObject == nullptr ? nullptr : m_pfnCreateObject();
}

BOOL CRuntimeClass::IsDerivedFrom(CRuntimeClass const * pBaseClass) const
{
    ASSERT(pBaseClass != nullptr);
    for (CRuntimeClass const * at = this; at != nullptr;
         at = at->m_pfnGetBaseClass == nullptr ? nullptr : at->m_pfnGetBaseClass())
    {
        if (at == pBaseClass)
            return TRUE;
    }
    return FALSE;
}

CRuntimeClass * PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    if (lpszClassName == nullptr)
        return nullptr;
    std::scoped_lock const lock(ClassMutex());
    CRuntimeClass const * at = s_classes;
    while (at != nullptr && std::strcmp(at->m_lpszClassName, lpszClassName) != 0)
        at = at->m_pNextClass;
    return const_cast<CRuntimeClass *>(at);
}

CRuntimeClass * PASCAL CRuntimeClass::FromName(LPCWSTR lpszClassName)
{
    return lpszClassName == nullptr ? nullptr : FromName(CStringA(lpszClassName).GetString());
}

CObject * PASCAL CRuntimeClass::CreateObject(LPCSTR lpszClassName)
{
    CRuntimeClass * const found = FromName(lpszClassName);
    return found == nullptr ? nullptr : found->CreateObject();
}

CObject * PASCAL CRuntimeClass::CreateObject(LPCWSTR lpszClassName)
{
    CRuntimeClass * const found = FromName(lpszClassName);
    return found == nullptr ? nullptr : found->CreateObject();
}

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass const * pNewClass) : m_class(pNewClass)
{
    std::scoped_lock const lock(ClassMutex());
    m_class->m_pNextClass = s_classes;
    s_classes = m_class;
}

AFX_CLASSINIT::~AFX_CLASSINIT()
{
    std::scoped_lock const lock(ClassMutex());
    if (s_classes == m_class)
    {
        s_classes = m_class->m_pNextClass;
        return;
    }
    for (CRuntimeClass const * at = s_classes; at != nullptr; at = at->m_pNextClass)
    {
        if (at->m_pNextClass == m_class)
        {
            at->m_pNextClass = m_class->m_pNextClass;
            return;
        }
    }
}

void AFXAPI AfxDoForAllClasses(void(AFX_CDECL * pfn)(CRuntimeClass const * pClass, void * pContext), void * pContext)
{
    // The function may load a module or look up a class, so it is called without the lock.
    std::vector<CRuntimeClass const *> classes;
    {
        std::scoped_lock const lock(ClassMutex());
        for (CRuntimeClass const * at = s_classes; at != nullptr; at = at->m_pNextClass)
            classes.push_back(at);
    }
    for (CRuntimeClass const * const each : classes)
        pfn(each, pContext);
}

CObject * AFX_CDECL AfxDynamicDownCast(CRuntimeClass * pClass, CObject * pObject)
{
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject * AFX_CDECL AfxStaticDownCast([[maybe_unused]] CRuntimeClass * pClass, CObject * pObject)
{
    ASSERT(pObject == nullptr || pObject->IsKindOf(pClass));
    return pObject;
}
