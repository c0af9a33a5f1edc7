// A thread of the program.
#pragma once

#include <classes/CCmdTarget.h>
#include <classes/CException.h>

class CWnd;

typedef UINT(AFX_CDECL* AFX_THREADPROC)(LPVOID);

/// A thread, with a message loop or with a function of its own, and the loop of the program's
/// first thread.
class AFX_EXPORTED CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;
    void Dump(CDumpContext& dc) const override;

    /// Starts the thread and waits until it can be sent messages; FALSE when it does not start.
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0,
                      LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);

    CWnd* m_pMainWnd;   ///< Destroying this window ends the message loop. Not owned.
    CWnd* m_pActiveWnd; ///< Always NULL: the subset embeds no documents.
    BOOL m_bAutoDelete; ///< Whether the object deletes itself when the thread ends.
    HANDLE m_hThread;
    DWORD m_nThreadID;

    operator HANDLE() const { return m_hThread; }
    int GetThreadPriority();
    BOOL SetThreadPriority(int nPriority);
    DWORD SuspendThread();
    DWORD ResumeThread();
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);
    virtual CWnd* GetMainWnd();

    /// To be overridden: prepares the thread. FALSE ends it without a message loop.
    virtual BOOL InitInstance();
    /// Runs the message loop until WM_QUIT and returns the exit code.
    virtual int Run();
    /// Called when the loop has ended; the result is the exit code.
    virtual int ExitInstance();

    /// Looks at a message before it is dispatched; TRUE when it is dealt with already.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Fetches and dispatches one message; FALSE for WM_QUIT.
    virtual BOOL PumpMessage();
    /// Called with 0, 1, ... while the queue is empty, until it returns FALSE.
    virtual BOOL OnIdle(LONG lCount);
    /// FALSE for messages that start no new idle time.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// Called for each exception that leaves a message handler; gives the result of the message.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    /// Sees the messages of the system's own loops (dialogs, menus, scroll bars); TRUE stops one.
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);

private:
    friend AFX_EXPORTED CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc,
                                                          LPVOID pParam, int nPriority,
                                                          UINT nStackSize, DWORD dwCreateFlags,
                                                          LPSECURITY_ATTRIBUTES lpSecurityAttrs);
    friend AFX_EXPORTED void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete);
    struct Start;

    static unsigned __stdcall Enter(void* start);
    UINT RunToEnd();
    void Delete();

    AFX_THREADPROC m_pfnThreadProc; ///< NULL for a thread with a message loop.
    LPVOID m_pThreadParams;
    MSG m_msgCur;
    POINT m_ptLastMouse; ///< Where the last mouse move was that started idle time.
    UINT m_nLastMouse;
};

/// Starts a worker thread; the object deletes itself when the function returns. NULL on failure.
AFX_EXPORTED CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                               int nPriority = THREAD_PRIORITY_NORMAL,
                                               UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                               LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);
/// Starts a thread with a message loop, of a class derived from CWinThread. NULL on failure.
AFX_EXPORTED CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* pThreadClass,
                                               int nPriority = THREAD_PRIORITY_NORMAL,
                                               UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                               LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);
/// Ends the calling thread.
AFX_EXPORTED void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);

/// The object of the calling thread; NULL in a thread that the library did not start.
AFX_EXPORTED CWinThread* AFXAPI AfxGetThread();
/// The main window of the calling thread; NULL when it has none.
AFX_EXPORTED CWnd* AFXAPI AfxGetMainWnd();
