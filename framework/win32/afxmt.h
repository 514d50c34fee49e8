#pragma once
// What threads wait for, and locks that give it back at the end of their scope.

#define __AFXMT_H__

#include <afx.h>

/// A handle that threads wait for.
class FRAMEWORK_API CSyncObject : public CObject
{
    DECLARE_DYNAMIC(CSyncObject)

public:
    explicit CSyncObject(LPCTSTR pstrName);
    ~CSyncObject() override;

    HANDLE m_hObject = nullptr;

    operator HANDLE() const { return m_hObject; }
    /// FALSE when the time is over.
    virtual BOOL Lock(DWORD dwTimeout = INFINITE);
    virtual BOOL Unlock() = 0;
    virtual BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr);

    void AssertValid() const override;
    void Dump(CDumpContext & dc) const override;

private:
    CString m_name;
};

/// Its creation throws CResourceException where the system has no more of them, or has the name for something else;
/// that of an event and a mutex does, too.
class FRAMEWORK_API CSemaphore : public CSyncObject
{
    DECLARE_DYNAMIC(CSemaphore)

public:
    explicit CSemaphore(LONG lInitialCount = 1, LONG lMaxCount = 1, LPCTSTR pstrName = nullptr,
                        LPSECURITY_ATTRIBUTES lpsaAttributes = nullptr);
    ~CSemaphore() override;

    BOOL Unlock() override;
    BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr) override;
};

class FRAMEWORK_API CMutex : public CSyncObject
{
    DECLARE_DYNAMIC(CMutex)

public:
    explicit CMutex(BOOL bInitiallyOwn = FALSE, LPCTSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    ~CMutex() override;

    BOOL Unlock() override;
    using CSyncObject::Unlock;
};

class FRAMEWORK_API CEvent : public CSyncObject
{
    DECLARE_DYNAMIC(CEvent)

public:
    /// bInitiallyOwn: set from the start.
    explicit CEvent(BOOL bInitiallyOwn = FALSE, BOOL bManualReset = FALSE, LPCTSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    ~CEvent() override;

    BOOL SetEvent() { return ::SetEvent(m_hObject); }
    BOOL PulseEvent() { return ::PulseEvent(m_hObject); }
    BOOL ResetEvent() { return ::ResetEvent(m_hObject); }
    /// Does nothing, and succeeds: what a lock of the event ends with.
    BOOL Unlock() override;
    using CSyncObject::Unlock;
};

/// Of the threads of one process. It has no handle, so that CMultiLock can't wait for it.
class FRAMEWORK_API CCriticalSection : public CSyncObject
{
    DECLARE_DYNAMIC(CCriticalSection)

public:
    CCriticalSection();
    ~CCriticalSection() override;

    CRITICAL_SECTION m_sect;

    operator CRITICAL_SECTION *() { return &m_sect; }
    BOOL Lock();
    /// Waits without a limit, whatever the time.
    BOOL Lock(DWORD dwTimeout) override;
    BOOL Unlock() override;
    using CSyncObject::Unlock;
};

/// Holds one object, once, until the end of the scope.
class FRAMEWORK_API CSingleLock
{
public:
    explicit CSingleLock(CSyncObject * pObject, BOOL bInitialLock = FALSE);
    CSingleLock(CSingleLock const &) = delete;
    CSingleLock & operator=(CSingleLock const &) = delete;
    ~CSingleLock();

    BOOL Lock(DWORD dwTimeOut = INFINITE);
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    BOOL IsLocked() { return m_locked; }

private:
    CSyncObject * m_object;
    BOOL m_locked = FALSE;
};

/// Holds several objects, at most MAXIMUM_WAIT_OBJECTS.
class FRAMEWORK_API CMultiLock
{
public:
    CMultiLock(CSyncObject * ppObjects[], DWORD dwCount, BOOL bInitialLock = FALSE);
    CMultiLock(CMultiLock const &) = delete;
    CMultiLock & operator=(CMultiLock const &) = delete;
    ~CMultiLock();

    /// What the system's wait gives: WAIT_OBJECT_0 and the number of the object, WAIT_TIMEOUT, ...
    DWORD Lock(DWORD dwTimeOut = INFINITE, BOOL bWaitForAll = TRUE, DWORD dwWakeMask = 0);
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    BOOL IsLocked(DWORD dwItem);

private:
    template <class Release> BOOL UnlockEach(Release release);

    CSyncObject * const * m_objects;
    DWORD m_count;
    HANDLE m_handles[MAXIMUM_WAIT_OBJECTS];
    BOOL m_locked[MAXIMUM_WAIT_OBJECTS] = {};
};
