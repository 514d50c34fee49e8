// What threads wait for.

#include <afxmt.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CSyncObject, CObject)
IMPLEMENT_DYNAMIC(CSemaphore, CSyncObject)
IMPLEMENT_DYNAMIC(CMutex, CSyncObject)
IMPLEMENT_DYNAMIC(CEvent, CSyncObject)
IMPLEMENT_DYNAMIC(CCriticalSection, CSyncObject)

CSyncObject::CSyncObject(LPCTSTR pstrName) : m_name(pstrName) {}

CSyncObject::~CSyncObject()
{
    if (m_hObject != nullptr)
        ::CloseHandle(m_hObject);
}

BOOL CSyncObject::Lock(DWORD dwTimeout)
{
    DWORD const result = ::WaitForSingleObject(m_hObject, dwTimeout);
    return result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

BOOL CSyncObject::Unlock(LONG, LPLONG)
{
    return TRUE;
}

void CSyncObject::AssertValid() const
{
    CObject::AssertValid();
}

void CSyncObject::Dump(CDumpContext & dc) const
{
    CObject::Dump(dc);
    dc << "named " << m_name.GetString() << "\n";
}

CSemaphore::CSemaphore(LONG lInitialCount, LONG lMaxCount, LPCTSTR pstrName, LPSECURITY_ATTRIBUTES lpsaAttributes)
    : CSyncObject(pstrName)
{
    m_hObject = ::CreateSemaphore(lpsaAttributes, lInitialCount, lMaxCount, pstrName);
    if (m_hObject == nullptr)
        AfxThrowResourceException();
}

CSemaphore::~CSemaphore() = default;

BOOL CSemaphore::Unlock()
{
    return Unlock(1, nullptr);
}

BOOL CSemaphore::Unlock(LONG lCount, LPLONG lpPrevCount)
{
    return ::ReleaseSemaphore(m_hObject, lCount, lpPrevCount);
}

CMutex::CMutex(BOOL bInitiallyOwn, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute) : CSyncObject(lpszName)
{
    m_hObject = ::CreateMutex(lpsaAttribute, bInitiallyOwn, lpszName);
    if (m_hObject == nullptr)
        AfxThrowResourceException();
}

CMutex::~CMutex() = default;

BOOL CMutex::Unlock()
{
    return ::ReleaseMutex(m_hObject);
}

CEvent::CEvent(BOOL bInitiallyOwn, BOOL bManualReset, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName)
{
    m_hObject = ::CreateEvent(lpsaAttribute, bManualReset, bInitiallyOwn, lpszName);
    if (m_hObject == nullptr)
        AfxThrowResourceException();
}

CEvent::~CEvent() = default;

BOOL CEvent::Unlock()
{
    return TRUE;
}

CCriticalSection::CCriticalSection() : CSyncObject(nullptr)
{
    ::InitializeCriticalSection(&m_sect);
}

CCriticalSection::~CCriticalSection()
{
    ::DeleteCriticalSection(&m_sect);
}

BOOL CCriticalSection::Lock()
{
    ::EnterCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Lock(DWORD)
{
    return Lock();
}

BOOL CCriticalSection::Unlock()
{
    ::LeaveCriticalSection(&m_sect);
    return TRUE;
}

CSingleLock::CSingleLock(CSyncObject * pObject, BOOL bInitialLock) : m_object(pObject)
{
    if (pObject == nullptr)
        AfxThrowInvalidArgException();
    if (bInitialLock)
        Lock();
}

CSingleLock::~CSingleLock()
{
    Unlock();
}

BOOL CSingleLock::Lock(DWORD dwTimeOut)
{
    ASSERT(!m_locked);
    m_locked = m_object->Lock(dwTimeOut);
    return m_locked;
}

BOOL CSingleLock::Unlock()
{
    if (m_locked)
        m_locked = !m_object->Unlock();
    return !m_locked;
}

BOOL CSingleLock::Unlock(LONG lCount, LPLONG lPrevCount)
{
    if (m_locked)
        m_locked = !m_object->Unlock(lCount, lPrevCount);
    return !m_locked;
}

CMultiLock::CMultiLock(CSyncObject * ppObjects[], DWORD dwCount, BOOL bInitialLock)
    : m_objects(ppObjects),
      m_count(dwCount)
{
    if (ppObjects == nullptr || dwCount == 0 || dwCount > MAXIMUM_WAIT_OBJECTS)
        AfxThrowInvalidArgException();
    for (DWORD i = 0; i < dwCount; ++i)
    {
        if (ppObjects[i] == nullptr || ppObjects[i]->m_hObject == nullptr)
            AfxThrowInvalidArgException();
        m_handles[i] = ppObjects[i]->m_hObject;
    }
    if (bInitialLock)
        Lock();
}

CMultiLock::~CMultiLock()
{
    Unlock();
}

DWORD CMultiLock::Lock(DWORD dwTimeOut, BOOL bWaitForAll, DWORD dwWakeMask)
{
    DWORD const result = dwWakeMask == 0
                             ? ::WaitForMultipleObjects(m_count, m_handles, bWaitForAll, dwTimeOut)
                             : ::MsgWaitForMultipleObjects(m_count, m_handles, bWaitForAll, dwTimeOut, dwWakeMask);
    DWORD const first = result >= WAIT_ABANDONED_0 ? static_cast<DWORD>(WAIT_ABANDONED_0) : WAIT_OBJECT_0;
    // One beyond the objects is a message.
    bool const got = result != WAIT_TIMEOUT && result != WAIT_FAILED && result - first < m_count;
    for (DWORD i = 0; got && i < m_count; ++i)
    {
        if (bWaitForAll || i == result - first)
            m_locked[i] = TRUE;
    }
    return result;
}

template <class Release> BOOL CMultiLock::UnlockEach(Release release)
{
    for (DWORD i = 0; i < m_count; ++i)
    {
        if (m_locked[i] && release(*m_objects[i]))
            m_locked[i] = FALSE;
    }
    return TRUE;
}

BOOL CMultiLock::Unlock()
{
    return UnlockEach([](CSyncObject & object) { return object.Unlock(); });
}

BOOL CMultiLock::Unlock(LONG lCount, LPLONG lPrevCount)
{
    // Of these only semaphores have a count.
    return UnlockEach([=](CSyncObject & object) {
        return object.IsKindOf(RUNTIME_CLASS(CSemaphore)) && object.Unlock(lCount, lPrevCount);
    });
}

BOOL CMultiLock::IsLocked(DWORD dwItem)
{
    return dwItem < m_count && m_locked[dwItem];
}
