#include <classes/CWinThread.h>

#include <classes/Application.h>
#include <classes/CDumpContext.h>
#include <classes/CWnd.h>

#include <afxres.h>

#include "windows/MessageMap.h"
#include "application/ModuleState.h"
#include "threads/SystemCall.h"
#include "threads/ThreadState.h"

#include <process.h>

#include <memory>
#include <utility>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

namespace {

constexpr UINT caretBlink = 0x0118; // WM_SYSTIMER, which has no name in the Windows headers.

LRESULT CALLBACK WatchSystemLoop(int code, WPARAM wParam, LPARAM lParam)
{
    CWinThread* thread = AfxGetThread();
    auto* message = reinterpret_cast<LPMSG>(lParam);
    if (code >= 0 && thread != NULL && afxint::CalledBySystem(*message, FALSE, [&] {
            return thread->ProcessMessageFilter(code, message);
        }))
        return 1;
    return CallNextHookEx(NULL, code, wParam, lParam);
}

/// Gives a worker thread the main window of its creator, under an object of the thread's own:
/// objects belong to one thread each.
void InheritMainWindow(CWinThread& thread, HWND window)
{
    if (window == NULL || thread.m_pMainWnd != NULL)
        return;
    thread.m_pMainWnd = new CWnd;
    thread.m_pMainWnd->m_hWnd = window;
    afxint::CurrentThread().inheritedMainWindow = thread.m_pMainWnd;
    afxint::CurrentThread().windows.Add(window, thread.m_pMainWnd);
}

/// At the end of the thread; the window itself stays.
void DropInheritedMainWindow()
{
    CWnd* object = std::exchange(afxint::CurrentThread().inheritedMainWindow, nullptr);
    if (object == NULL)
        return;
    CWinThread* thread = AfxGetThread();
    if (thread != NULL && thread->m_pMainWnd == object)
        thread->m_pMainWnd = NULL;
    afxint::CurrentThread().windows.Remove(object->m_hWnd);
    object->m_hWnd = NULL;
    delete object;
}

/// Starts the thread of a new object; deletes the object when that fails.
CWinThread* StartThread(CWinThread* thread, int priority, UINT stackSize, DWORD flags,
                        LPSECURITY_ATTRIBUTES security)
{
    // Suspended at first, so that the thread does not run with a wrong priority.
    if (!thread->CreateThread(flags | CREATE_SUSPENDED, stackSize, security)) {
        delete thread;
        return NULL;
    }
    thread->SetThreadPriority(priority);
    if ((flags & CREATE_SUSPENDED) == 0)
        thread->ResumeThread();
    return thread;
}

} // namespace

/// What CreateThread tells the new thread, and the two points where they wait for each other.
struct CWinThread::Start
{
    explicit Start(CWinThread* owner)
        : thread(owner), ready(CreateEvent(NULL, TRUE, FALSE, NULL)),
          go(CreateEvent(NULL, TRUE, FALSE, NULL))
    {
    }
    ~Start()
    {
        for (const HANDLE event : {ready, go}) {
            if (event != NULL)
                CloseHandle(event);
        }
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;
    bool IsComplete() const { return ready != NULL && go != NULL; }

    CWinThread* thread;
    HWND mainWindow = AfxGetMainWnd()->GetSafeHwnd(); ///< Of the creator.
    HANDLE ready;                                     ///< The thread can be sent messages.
    HANDLE go; ///< The creator has finished; the block may be deleted by the thread.
};

CWinThread::CWinThread()
    : m_pMainWnd(NULL), m_pActiveWnd(NULL), m_bAutoDelete(TRUE), m_hThread(NULL), m_nThreadID(0),
      m_pfnThreadProc(NULL), m_pThreadParams(NULL), m_msgCur(), m_ptLastMouse(), m_nLastMouse(0)
{
}

CWinThread::~CWinThread()
{
    afxint::ThreadState& state = afxint::CurrentThread();
    if (state.thread == this)
        state.thread = NULL;
    if (m_hThread != NULL)
        CloseHandle(m_hThread);
}

void CWinThread::Dump(CDumpContext& dc) const
{
    CCmdTarget::Dump(dc);
    dc << "with thread " << m_nThreadID << "\n";
}

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize,
                              LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    auto made = std::make_unique<Start>(this);
    if (!made->IsComplete())
        return FALSE;
    Start* start = made.get();
    // The thread always runs up to the point where it has a message queue.
    const DWORD flags = dwCreateFlags & ~CREATE_SUSPENDED;
    unsigned id = 0;
    const uintptr_t handle =
        _beginthreadex(lpSecurityAttrs, nStackSize, &CWinThread::Enter, start, flags, &id);
    if (handle == 0)
        return FALSE;
    made.release(); // The thread deletes it.
    m_hThread = reinterpret_cast<HANDLE>(handle);
    m_nThreadID = id;
    WaitForSingleObject(start->ready, INFINITE);
    if ((dwCreateFlags & CREATE_SUSPENDED) != 0)
        ::SuspendThread(m_hThread);
    SetEvent(start->go);
    return TRUE;
}

int CWinThread::GetThreadPriority()
{
    return ::GetThreadPriority(m_hThread);
}

BOOL CWinThread::SetThreadPriority(int nPriority)
{
    return ::SetThreadPriority(m_hThread, nPriority);
}

DWORD CWinThread::SuspendThread()
{
    return ::SuspendThread(m_hThread);
}

DWORD CWinThread::ResumeThread()
{
    return ::ResumeThread(m_hThread);
}

BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pMainWnd;
}

BOOL CWinThread::InitInstance()
{
    return FALSE;
}

int CWinThread::Run()
{
    bool idle = true;
    LONG idleCount = 0;
    for (;;) {
        MSG next;
        while (idle && !PeekMessage(&next, NULL, 0, 0, PM_NOREMOVE))
            idle = OnIdle(idleCount++) != FALSE;
        do {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&m_msgCur)) {
                idle = true;
                idleCount = 0;
            }
        } while (PeekMessage(&next, NULL, 0, 0, PM_NOREMOVE));
    }
}

int CWinThread::ExitInstance()
{
    // Without WM_QUIT the loop has not run, and there is nothing to complain about.
    return m_msgCur.message == WM_QUIT ? static_cast<int>(m_msgCur.wParam) : 0;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->hwnd == NULL)
        return afxint::DispatchThreadMessage(this, GetMessageMap(), *pMsg);
    CWnd* mainWindow = GetMainWnd();
    const HWND last = mainWindow == NULL ? NULL : mainWindow->m_hWnd;
    for (HWND window = pMsg->hwnd; window != NULL; window = ::GetParent(window)) {
        CWnd* object = CWnd::FromHandlePermanent(window);
        if (object != NULL && object->PreTranslateMessage(pMsg))
            return TRUE;
        if (window == last)
            break;
    }
    return FALSE;
}

BOOL CWinThread::PumpMessage()
{
    if (GetMessage(&m_msgCur, NULL, 0, 0) <= 0)
        return FALSE;
    // A handler may run a loop of its own; what this one fetched must survive that.
    MSG message = m_msgCur;
    if (!PreTranslateMessage(&message)) {
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
    m_msgCur = message;
    return TRUE;
}

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount <= 0)
        return TRUE;
    afxint::DropTemporaryObjects();
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE) {
        // The system repeats mouse moves without any movement, after each change of a window.
        if (pMsg->message == m_nLastMouse && pMsg->pt.x == m_ptLastMouse.x &&
            pMsg->pt.y == m_ptLastMouse.y)
            return FALSE;
        m_nLastMouse = pMsg->message;
        m_ptLastMouse = pMsg->pt;
        return TRUE;
    }
    return pMsg->message != WM_PAINT && pMsg->message != caretBlink;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    switch (pMsg->message) {
    case WM_CREATE:
        return -1;
    case WM_PAINT:
        // An area that stays invalid would be painted, and fail, for ever.
        ValidateRect(pMsg->hwnd, NULL);
        return 0;
    }
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException))) {
        e->ReportError(MB_ICONEXCLAMATION, pMsg->message == WM_COMMAND ? AFX_IDP_COMMAND_FAILURE
                                                                       : AFX_IDP_INTERNAL_FAILURE);
    }
    return 0;
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG)
{
    return FALSE;
}

unsigned __stdcall CWinThread::Enter(void* start)
{
    auto* handover = static_cast<Start*>(start);
    CWinThread* thread = handover->thread;
    afxint::CurrentThread().thread = thread;
    MSG message;
    PeekMessage(&message, NULL, WM_USER, WM_USER, PM_NOREMOVE); // Makes the message queue.
    afxint::WatchSystemLoops();
    if (thread->m_pfnThreadProc != NULL)
        InheritMainWindow(*thread, handover->mainWindow);
    SetEvent(handover->ready);
    WaitForSingleObject(handover->go, INFINITE);
    delete handover;
    AfxEndThread(thread->RunToEnd());
    return 0;
}

UINT CWinThread::RunToEnd()
{
    if (m_pfnThreadProc != NULL)
        return m_pfnThreadProc(m_pThreadParams);
    return static_cast<UINT>(InitInstance() ? Run() : ExitInstance());
}

void CWinThread::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority,
                                  UINT nStackSize, DWORD dwCreateFlags,
                                  LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    auto* thread = new CWinThread;
    thread->m_pfnThreadProc = pfnThreadProc;
    thread->m_pThreadParams = pParam;
    return StartThread(thread, nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize,
                                  DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    auto* thread = static_cast<CWinThread*>(pThreadClass->CreateObject());
    if (thread == NULL)
        AfxThrowMemoryException();
    return StartThread(thread, nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete)
{
    afxint::DropTemporaryObjects();
    CWinThread* thread = afxint::CurrentThread().thread;
    DropInheritedMainWindow();
    if (thread != NULL && bDelete)
        thread->Delete();
    afxint::CurrentThread().thread = NULL;
    _endthreadex(nExitCode);
}

CWinThread* AFXAPI AfxGetThread()
{
    return afxint::CurrentThread().thread;
}

CWnd* AFXAPI AfxGetMainWnd()
{
    CWinThread* thread = AfxGetThread();
    return thread == NULL ? NULL : thread->GetMainWnd();
}

namespace afxint {

void WatchSystemLoops()
{
    HHOOK& hook = CurrentThread().systemLoopHook;
    if (hook == NULL)
        hook = SetWindowsHookEx(WH_MSGFILTER, &WatchSystemLoop, NULL, GetCurrentThreadId());
}

} // namespace afxint
