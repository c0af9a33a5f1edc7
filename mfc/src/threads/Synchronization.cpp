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
    : object_(pObject), acquired_(FALSE)
{
    if (pObject == NULL)
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
    acquired_ = object_->Lock(dwTimeOut);
    return acquired_;
}

BOOL CSingleLock::Unlock()
{
    if (acquired_)
        acquired_ = !object_->Unlock();
    return !acquired_;
}

BOOL CSingleLock::Unlock(LONG lCount, LPLONG lPrevCount)
{
    if (acquired_)
        acquired_ = !object_->Unlock(lCount, lPrevCount);
    return !acquired_;
}

BOOL CSingleLock::IsLocked()
{
    return acquired_;
}

CMultiLock::CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock)
{
    if (ppObjects == NULL || dwCount == 0 || dwCount > MAXIMUM_WAIT_OBJECTS)
        AfxThrowInvalidArgException();
    for (DWORD i = 0; i < dwCount; ++i) {
        if (ppObjects[i] == NULL || ppObjects[i]->IsKindOf(RUNTIME_CLASS(CCriticalSection)))
            AfxThrowInvalidArgException();
        objects_.push_back(ppObjects[i]);
        handles_.push_back(*ppObjects[i]);
        locked_.push_back(FALSE);
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
    const DWORD count = static_cast<DWORD>(handles_.size());
    const DWORD result =
        dwWakeMask == 0 ? ::WaitForMultipleObjects(count, handles_.data(), bWaitForAll, dwTimeOut)
                        : ::MsgWaitForMultipleObjects(count, handles_.data(), bWaitForAll,
                                                      dwTimeOut, dwWakeMask);
    const DWORD base = result >= WAIT_ABANDONED_0 ? WAIT_ABANDONED_0 : WAIT_OBJECT_0;
    if (result - base >= count) // A message, the time-out or a failure.
        return result;
    if (bWaitForAll)
        std::fill(locked_.begin(), locked_.end(), TRUE);
    else
        locked_[result - base] = TRUE;
    return result;
}

BOOL CMultiLock::Unlock()
{
    BOOL allReleased = TRUE;
    for (size_t i = 0; i < objects_.size(); ++i) {
        if (locked_[i])
            locked_[i] = !objects_[i]->Unlock();
        allReleased = allReleased && !locked_[i];
    }
    return allReleased;
}

BOOL CMultiLock::Unlock(LONG lCount, LPLONG lPrevCount)
{
    BOOL allReleased = TRUE;
    for (size_t i = 0; i < objects_.size(); ++i) {
        // Only a semaphore counts more than one.
        if (!locked_[i] || !objects_[i]->IsKindOf(RUNTIME_CLASS(CSemaphore)))
            continue;
        locked_[i] = !objects_[i]->Unlock(lCount, lPrevCount);
        allReleased = allReleased && !locked_[i];
    }
    return allReleased;
}

BOOL CMultiLock::IsLocked(DWORD dwItem)
{
    return dwItem < locked_.size() && locked_[dwItem];
}
