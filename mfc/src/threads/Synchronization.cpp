#include <classes/CException.h>
#include <classes/Synchronization.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CSyncObject, CObject)
IMPLEMENT_DYNAMIC(CSemaphore, CSyncObject)
IMPLEMENT_DYNAMIC(CMutex, CSyncObject)
IMPLEMENT_DYNAMIC(CEvent, CSyncObject)
IMPLEMENT_DYNAMIC(CCriticalSection, CSyncObject)

namespace {

HANDLE CreatedOrThrow(HANDLE handle)
{
    if (handle == NULL)
        AfxThrowResourceException();
    return handle;
}

} // namespace

CSyncObject::CSyncObject(LPCTSTR /*pstrName*/) : m_hObject(NULL)
{
}

CSyncObject::~CSyncObject()
{
    if (m_hObject != NULL)
        ::CloseHandle(m_hObject);
}

CSyncObject::operator HANDLE() const
{
    return m_hObject;
}

BOOL CSyncObject::Lock(DWORD dwTimeout)
{
    const DWORD result = ::WaitForSingleObject(m_hObject, dwTimeout);
    return result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

BOOL CSyncObject::Unlock(LONG /*lCount*/, LPLONG /*lpPrevCount*/)
{
    return TRUE;
}

CSemaphore::CSemaphore(LONG lInitialCount, LONG lMaxCount, LPCTSTR pstrName,
                       LPSECURITY_ATTRIBUTES lpsaAttributes)
    : CSyncObject(pstrName)
{
    m_hObject =
        CreatedOrThrow(::CreateSemaphore(lpsaAttributes, lInitialCount, lMaxCount, pstrName));
}

BOOL CSemaphore::Unlock()
{
    return Unlock(1, NULL);
}

BOOL CSemaphore::Unlock(LONG lCount, LPLONG lprevCount)
{
    return ::ReleaseSemaphore(m_hObject, lCount, lprevCount);
}

CMutex::CMutex(BOOL bInitiallyOwn, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName)
{
    m_hObject = CreatedOrThrow(::CreateMutex(lpsaAttribute, bInitiallyOwn, lpszName));
}

BOOL CMutex::Unlock()
{
    return ::ReleaseMutex(m_hObject);
}

CEvent::CEvent(BOOL bInitiallyOwn, BOOL bManualReset, LPCTSTR lpszName,
               LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName)
{
    m_hObject = CreatedOrThrow(::CreateEvent(lpsaAttribute, bManualReset, bInitiallyOwn, lpszName));
}

BOOL CEvent::SetEvent()
{
    return ::SetEvent(m_hObject);
}

BOOL CEvent::PulseEvent()
{
    return ::PulseEvent(m_hObject);
}

BOOL CEvent::ResetEvent()
{
    return ::ResetEvent(m_hObject);
}

BOOL CEvent::Unlock()
{
    return TRUE;
}

CCriticalSection::CCriticalSection() : CSyncObject(NULL)
{
    ::InitializeCriticalSection(&m_sect);
}

CCriticalSection::~CCriticalSection()
{
    ::DeleteCriticalSection(&m_sect);
}

CCriticalSection::operator CRITICAL_SECTION*()
{
    return &m_sect;
}

BOOL CCriticalSection::Unlock()
{
    ::LeaveCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Lock()
{
    ::EnterCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Lock(DWORD /*dwTimeout*/)
{
    return Lock();
}

CSingleLock::CSingleLock(CSyncObject* pObject, BOOL bInitialLock)
    : m_pObject(pObject), m_bAcquired(FALSE)
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
    m_bAcquired = m_pObject->Lock(dwTimeOut);
    return m_bAcquired;
}

BOOL CSingleLock::Unlock()
{
    if (m_bAcquired)
        m_bAcquired = !m_pObject->Unlock();
    return !m_bAcquired;
}

BOOL CSingleLock::Unlock(LONG lCount, LPLONG lPrevCount)
{
    if (m_bAcquired)
        m_bAcquired = !m_pObject->Unlock(lCount, lPrevCount);
    return !m_bAcquired;
}

BOOL CSingleLock::IsLocked()
{
    return m_bAcquired;
}

CMultiLock::CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock)
{
    if (ppObjects == nullptr || dwCount == 0 || dwCount > MAXIMUM_WAIT_OBJECTS)
        AfxThrowInvalidArgException();
    for (DWORD i = 0; i < dwCount; ++i) {
        if (ppObjects[i] == nullptr || ppObjects[i]->IsKindOf(RUNTIME_CLASS(CCriticalSection)))
            AfxThrowInvalidArgException();
        m_objects.push_back(ppObjects[i]);
        m_handles.push_back(*ppObjects[i]);
        m_locked.push_back(FALSE);
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
    const DWORD count = static_cast<DWORD>(m_handles.size());
    const DWORD result =
        dwWakeMask == 0 ? ::WaitForMultipleObjects(count, m_handles.data(), bWaitForAll, dwTimeOut)
                        : ::MsgWaitForMultipleObjects(count, m_handles.data(), bWaitForAll,
                                                      dwTimeOut, dwWakeMask);
    const DWORD base = result >= WAIT_ABANDONED_0 ? WAIT_ABANDONED_0 : WAIT_OBJECT_0;
    if (result - base >= count) // A message, the time-out or a failure.
        return result;
    if (bWaitForAll)
        std::fill(m_locked.begin(), m_locked.end(), TRUE);
    else
        m_locked[result - base] = TRUE;
    return result;
}

BOOL CMultiLock::Unlock()
{
    BOOL allReleased = TRUE;
    for (size_t i = 0; i < m_objects.size(); ++i) {
        if (m_locked[i])
            m_locked[i] = !m_objects[i]->Unlock();
        allReleased = allReleased && !m_locked[i];
    }
    return allReleased;
}

BOOL CMultiLock::Unlock(LONG lCount, LPLONG lPrevCount)
{
    BOOL allReleased = TRUE;
    for (size_t i = 0; i < m_objects.size(); ++i) {
        // Only a semaphore counts more than one.
        if (!m_locked[i] || !m_objects[i]->IsKindOf(RUNTIME_CLASS(CSemaphore)))
            continue;
        m_locked[i] = !m_objects[i]->Unlock(lCount, lPrevCount);
        allReleased = allReleased && !m_locked[i];
    }
    return allReleased;
}

BOOL CMultiLock::IsLocked(DWORD dwItem)
{
    return dwItem < m_locked.size() && m_locked[dwItem];
}
