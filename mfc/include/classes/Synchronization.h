// Objects that threads wait for, and locks that hold them.
//
// A constructor that cannot make its object throws CResourceException.
#pragma once

#include <classes/CObject.h>
#include <classes/CString.h>
#include <classes/Platform.h>

#include <vector>

/// What all of them have: a handle, Lock and Unlock.
class AFX_EXPORTED CSyncObject : public CObject
{
    DECLARE_DYNAMIC(CSyncObject)

public:
    explicit CSyncObject(LPCTSTR pstrName);
    ~CSyncObject() override;

    operator HANDLE() const;

    /// FALSE when the time, in milliseconds, has passed or the wait failed.
    virtual BOOL Lock(DWORD dwTimeout = INFINITE);
    virtual BOOL Unlock() = 0;
    virtual BOOL Unlock(LONG lCount, LPLONG lpPrevCount = NULL);

    HANDLE m_hObject;
};

class AFX_EXPORTED CSemaphore : public CSyncObject
{
    DECLARE_DYNAMIC(CSemaphore)

public:
    CSemaphore(LONG lInitialCount = 1, LONG lMaxCount = 1, LPCTSTR pstrName = NULL,
               LPSECURITY_ATTRIBUTES lpsaAttributes = NULL);

    BOOL Unlock() override;
    BOOL Unlock(LONG lCount, LPLONG lprevCount = NULL) override;
};

class AFX_EXPORTED CMutex : public CSyncObject
{
    DECLARE_DYNAMIC(CMutex)

public:
    CMutex(BOOL bInitiallyOwn = FALSE, LPCTSTR lpszName = NULL,
           LPSECURITY_ATTRIBUTES lpsaAttribute = NULL);

    BOOL Unlock() override;
    using CSyncObject::Unlock;
};

/// Unlock does nothing: an event is not owned.
class AFX_EXPORTED CEvent : public CSyncObject
{
    DECLARE_DYNAMIC(CEvent)

public:
    CEvent(BOOL bInitiallyOwn = FALSE, BOOL bManualReset = FALSE, LPCTSTR lpszName = NULL,
           LPSECURITY_ATTRIBUTES lpsaAttribute = NULL);

    BOOL SetEvent();
    BOOL PulseEvent();
    BOOL ResetEvent();
    BOOL Unlock() override;
    using CSyncObject::Unlock;
};

/// For the threads of one process. Lock always waits without limit.
class AFX_EXPORTED CCriticalSection : public CSyncObject
{
    DECLARE_DYNAMIC(CCriticalSection)

public:
    CCriticalSection();
    ~CCriticalSection() override;

    operator CRITICAL_SECTION*();

    BOOL Unlock() override;
    using CSyncObject::Unlock;
    BOOL Lock();
    BOOL Lock(DWORD dwTimeout) override;

    CRITICAL_SECTION m_sect;
};

/// Holds one object; the destructor unlocks it.
class AFX_EXPORTED CSingleLock
{
public:
    explicit CSingleLock(CSyncObject* pObject, BOOL bInitialLock = FALSE);
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;
    ~CSingleLock();

    BOOL Lock(DWORD dwTimeOut = INFINITE);
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = NULL);
    BOOL IsLocked();

private:
    CSyncObject* object_;
    BOOL acquired_;
};

/// Waits for one or all of several objects, at most 64; critical sections cannot be among them.
class AFX_EXPORTED CMultiLock
{
public:
    CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock = FALSE);
    CMultiLock(const CMultiLock&) = delete;
    CMultiLock& operator=(const CMultiLock&) = delete;
    ~CMultiLock();

    /// The result of MsgWaitForMultipleObjects when dwWakeMask is not 0, else of
    /// WaitForMultipleObjects.
    DWORD Lock(DWORD dwTimeOut = INFINITE, BOOL bWaitForAll = TRUE, DWORD dwWakeMask = 0);
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = NULL);
    BOOL IsLocked(DWORD dwItem);

private:
    std::vector<CSyncObject*> objects_;
    std::vector<HANDLE> handles_;
    std::vector<BOOL> locked_;
};
