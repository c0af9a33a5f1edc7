#include <afxwin.h>
#include <afxres.h>

#include <doctest/doctest.h>

#include "testing/CallFault.h"
#include "testing/NextDialog.h"
#include "testing/Pump.h"
#include "testing/Text.h"

#include "tests/LibraryFiles.h"
#include "tests/mfc/FailureCount.h"
#include "tests/mfc/MessageBoxText.h"

#include <string>
#include <vector>

using umbra::testing::NextDialog;

namespace {

constexpr UINT askNumber = WM_APP + 1;
constexpr UINT throwSomething = WM_APP + 2;

const UINT registeredThreadMessage = ::RegisterWindowMessage(_T("Umbra thread message"));

/// A thread with a message loop that writes down what it sees.
class CLoopThread : public CWinThread
{
    DECLARE_DYNCREATE(CLoopThread)
public:
    static inline std::vector<std::string> log;
    static inline HANDLE ended = ::CreateEvent(NULL, FALSE, FALSE, NULL);
    static inline bool start = true;

    BOOL InitInstance() override
    {
        log.push_back(AfxGetThread() == this ? "init" : "init in a wrong thread");
        return start;
    }
    int ExitInstance() override
    {
        log.push_back("exit");
        return start ? CWinThread::ExitInstance() : 9;
    }
    ~CLoopThread() override { ::SetEvent(ended); }

protected:
    afx_msg void OnNumber(WPARAM wParam, LPARAM lParam)
    {
        log.push_back(std::to_string(wParam) + "/" + std::to_string(lParam));
    }
    afx_msg void OnRegistered(WPARAM, LPARAM) { log.push_back("registered"); }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(CLoopThread, CWinThread)
BEGIN_MESSAGE_MAP(CLoopThread, CWinThread)
    ON_THREAD_MESSAGE(askNumber, &CLoopThread::OnNumber)
    ON_REGISTERED_THREAD_MESSAGE(registeredThreadMessage, &CLoopThread::OnRegistered)
END_MESSAGE_MAP()

struct WorkerData
{
    HANDLE gate = ::CreateEvent(NULL, TRUE, FALSE, NULL);
    DWORD id = 0;
    CWinThread* self = nullptr;
    bool sawApp = false;
    ~WorkerData() { ::CloseHandle(gate); }
};

UINT Work(LPVOID parameter)
{
    auto* data = static_cast<WorkerData*>(parameter);
    data->id = ::GetCurrentThreadId();
    data->self = AfxGetThread();
    data->sawApp = AfxGetApp() != nullptr && AfxGetMainWnd() == nullptr;
    ::WaitForSingleObject(data->gate, 5000);
    return 17;
}

UINT EndInTheMiddle(LPVOID)
{
    AfxEndThread(23);
    return 0;
}

DWORD ExitCodeAfterEnd(HANDLE thread)
{
    REQUIRE(::WaitForSingleObject(thread, 5000) == WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeThread(thread, &code);
    return code;
}

/// A handle of its own, because the object closes its handle when it deletes itself.
HANDLE Duplicate(HANDLE handle)
{
    HANDLE copy = nullptr;
    ::DuplicateHandle(::GetCurrentProcess(), handle, ::GetCurrentProcess(), &copy, 0, FALSE,
                      DUPLICATE_SAME_ACCESS);
    return copy;
}

/// A window whose handlers throw.
class CThrowingWnd : public CWnd
{
public:
    bool m_bRefuseCreation = false;
    bool m_bForeign = false; // Throws what the library does not know.
    int m_nPaints = 0;
    BOOL MakeIt()
    {
        return CreateEx(0, AfxRegisterWndClass(0), _T("throwing"), WS_POPUP, 0, 0, 50, 50, NULL,
                        NULL);
    }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT)
    {
        if (m_bRefuseCreation)
            AfxThrowResourceException();
        return 0;
    }
    afx_msg void OnPaint()
    {
        ++m_nPaints;
        if (m_bForeign)
            throw 42;
        AfxThrowResourceException();
    }
    afx_msg LRESULT OnThrow(WPARAM byUser, LPARAM)
    {
        if (m_bForeign)
            throw 42;
        if (byUser)
            AfxThrowUserException();
        AfxThrowNotSupportedException();
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CThrowingWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_MESSAGE(throwSomething, &CThrowingWnd::OnThrow)
END_MESSAGE_MAP()

/// A main window that records who was asked about a message first.
class CAskedWnd : public CWnd
{
public:
    static inline std::vector<CWnd*> asked;
    bool m_bKeep = false;
    BOOL MakeIt(CWnd* parent)
    {
        return CreateEx(0, AfxRegisterWndClass(0), _T("asked"),
                        parent == NULL ? WS_POPUP : WS_CHILD | WS_VISIBLE, 0, 0, 50, 50,
                        parent == NULL ? NULL : parent->m_hWnd, NULL);
    }
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == askNumber)
            asked.push_back(this);
        return m_bKeep;
    }
};

/// A thread whose loop the test runs itself, and which counts its idle calls.
class CCountingThread : public CWinThread
{
public:
    std::vector<LONG> m_idle;
    LONG m_nIdleCalls = 3;
    int m_nEnded = 0;
    CWnd* m_pTemporary = nullptr;
    BOOL OnIdle(LONG count) override
    {
        m_idle.push_back(count);
        if (count + 1 < m_nIdleCalls)
            return TRUE;
        if (m_idle.size() < 4)
            PostMessageToSelf(askNumber);
        else
            ::PostQuitMessage(12);
        return FALSE;
    }
    void PostMessageToSelf(UINT message)
    {
        ::PostThreadMessage(::GetCurrentThreadId(), message, 0, 0);
    }
};

} // namespace

TEST_CASE("a worker thread runs its function and gives back its result")
{
    WorkerData data;
    CWinThread* thread = AfxBeginThread(&Work, &data);
    REQUIRE(thread != nullptr);
    const HANDLE handle = Duplicate(*thread);
    CHECK(thread->m_hThread == HANDLE(*thread));
    CHECK(thread->GetThreadPriority() == THREAD_PRIORITY_NORMAL);
    const DWORD id = thread->m_nThreadID;
    ::SetEvent(data.gate);
    CHECK(ExitCodeAfterEnd(handle) == 17);
    CHECK(data.id == id);
    CHECK(data.self == thread);
    CHECK(data.sawApp);
    ::CloseHandle(handle);
}

TEST_CASE("a thread that is started suspended waits to be resumed")
{
    WorkerData data;
    ::SetEvent(data.gate);
    CWinThread* thread =
        AfxBeginThread(&Work, &data, THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED);
    REQUIRE(thread != nullptr);
    thread->m_bAutoDelete = FALSE;
    CHECK(::WaitForSingleObject(thread->m_hThread, 50) == WAIT_TIMEOUT);
    CHECK(data.id == 0);
    CHECK(thread->GetThreadPriority() == THREAD_PRIORITY_BELOW_NORMAL);
    CHECK(thread->ResumeThread() == 1);
    CHECK(ExitCodeAfterEnd(thread->m_hThread) == 17);
    delete thread;
}

TEST_CASE("AfxEndThread ends the calling thread at once")
{
    CWinThread* thread =
        AfxBeginThread(&EndInTheMiddle, nullptr, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    REQUIRE(thread != nullptr);
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    CHECK(ExitCodeAfterEnd(thread->m_hThread) == 23);
    delete thread;
}

TEST_CASE("a thread with a loop handles posted messages and deletes itself at the end")
{
    CLoopThread::log.clear();
    CLoopThread::start = true;
    CWinThread* thread = AfxBeginThread(RUNTIME_CLASS(CLoopThread));
    REQUIRE(thread != nullptr);
    const HANDLE handle = Duplicate(*thread);
    CHECK(thread->PostThreadMessage(askNumber, 3, -4));
    CHECK(thread->PostThreadMessage(registeredThreadMessage, 0, 0));
    CHECK(thread->PostThreadMessage(WM_QUIT, 5, 0));
    CHECK(ExitCodeAfterEnd(handle) == 5);
    CHECK(CLoopThread::log == std::vector<std::string>{"init", "3/-4", "registered", "exit"});
    CHECK(::WaitForSingleObject(CLoopThread::ended, 1000) == WAIT_OBJECT_0);
    ::CloseHandle(handle);
}

TEST_CASE("a thread whose InitInstance fails has no loop")
{
    CLoopThread::log.clear();
    CLoopThread::start = false;
    CWinThread* thread =
        AfxBeginThread(RUNTIME_CLASS(CLoopThread), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    REQUIRE(thread != nullptr);
    const HANDLE handle = Duplicate(*thread);
    thread->ResumeThread();
    CHECK(ExitCodeAfterEnd(handle) == 9);
    CHECK(CLoopThread::log == std::vector<std::string>{"init", "exit"});
    CHECK(::WaitForSingleObject(CLoopThread::ended, 1000) == WAIT_OBJECT_0);
    ::CloseHandle(handle);
}

TEST_CASE("idle calls are counted until one is the last, and again after a message")
{
    CCountingThread loop;
    CHECK(loop.Run() == 12);
    CHECK(loop.m_idle == std::vector<LONG>{0, 1, 2, 0, 1, 2});
}

TEST_CASE("destroying the main window ends the loop")
{
    CWnd window;
    REQUIRE(
        window.CreateEx(0, AfxRegisterWndClass(0), _T("main"), WS_POPUP, 0, 0, 10, 10, NULL, NULL));
    CWinThread* thread = AfxGetThread();
    thread->m_pMainWnd = &window;
    window.PostMessage(WM_CLOSE);
    CHECK(thread->CWinThread::Run() == 0);
    CHECK(window.m_hWnd == nullptr);
    thread->m_pMainWnd = NULL;
}

TEST_CASE("a message is offered to its window and the parents up to the main window")
{
    CAskedWnd above;
    CAskedWnd main;
    CAskedWnd child;
    CAskedWnd grandchild;
    REQUIRE(above.MakeIt(nullptr));
    REQUIRE(main.MakeIt(&above));
    REQUIRE(child.MakeIt(&main));
    REQUIRE(grandchild.MakeIt(&child));
    CWinThread* thread = AfxGetThread();
    thread->m_pMainWnd = &main;
    MSG message{};
    message.hwnd = grandchild.m_hWnd;
    message.message = askNumber;

    CAskedWnd::asked.clear();
    CHECK_FALSE(thread->PreTranslateMessage(&message));
    CHECK(CAskedWnd::asked == std::vector<CWnd*>{&grandchild, &child, &main});

    CAskedWnd::asked.clear();
    child.m_bKeep = true;
    CHECK(thread->PreTranslateMessage(&message));
    CHECK(CAskedWnd::asked == std::vector<CWnd*>{&grandchild, &child});

    thread->m_pMainWnd = NULL;
    above.DestroyWindow();
}

TEST_CASE("a loop inside a handler leaves the outer loop its current message")
{
    struct CLoop : CWinThread
    {
        std::vector<UINT> m_asked;
        BOOL IsIdleMessage(MSG* message) override
        {
            if (message->message >= WM_APP)
                m_asked.push_back(message->message);
            return CWinThread::IsIdleMessage(message);
        }
    } loop;
    struct CNesting : CWnd
    {
        CWinThread* m_pLoop = nullptr;
        std::vector<UINT> m_handled;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message >= WM_APP && message < 0xC000)
                m_handled.push_back(message);
            if (message == askNumber) {
                PostMessage(throwSomething);
                m_pLoop->PumpMessage();
                ::PostQuitMessage(8);
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } window;
    REQUIRE(window.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, 10, 10, NULL, NULL));
    umbra::testing::PumpMessages();
    window.m_pLoop = &loop;
    window.PostMessage(askNumber);
    CHECK(loop.Run() == 8);
    CHECK(window.m_handled == std::vector<UINT>{askNumber, throwSomething});
    CHECK(loop.m_asked == std::vector<UINT>{askNumber});
    window.DestroyWindow();
}

TEST_CASE("mouse moves without a movement and paints start no idle time")
{
    CWinThread* thread = AfxGetThread();
    MSG message{};
    message.message = WM_MOUSEMOVE;
    message.pt = {4711, 815};
    CHECK(thread->IsIdleMessage(&message));
    CHECK_FALSE(thread->IsIdleMessage(&message));
    message.pt.x++;
    CHECK(thread->IsIdleMessage(&message));
    message.message = WM_PAINT;
    CHECK_FALSE(thread->IsIdleMessage(&message));
    message.message = WM_KEYDOWN;
    CHECK(thread->IsIdleMessage(&message));
}

TEST_CASE("an exception in WM_CREATE fails the creation")
{
    CThrowingWnd window;
    window.m_bRefuseCreation = true;
    CHECK_FALSE(window.MakeIt());
    CHECK(window.m_hWnd == nullptr);
}

TEST_CASE("an exception in WM_PAINT validates the window")
{
    CThrowingWnd window;
    REQUIRE(window.MakeIt());
    window.ShowWindow(SW_SHOWNA);
    window.Invalidate();
    window.UpdateWindow();
    CHECK(window.m_nPaints > 0);
    CHECK_FALSE(::GetUpdateRect(window.m_hWnd, nullptr, FALSE));
    window.DestroyWindow();
}

TEST_CASE("an exception of a foreign kind in WM_PAINT validates the window, too")
{
    CThrowingWnd window;
    window.m_bForeign = true;
    REQUIRE(window.MakeIt());
    window.ShowWindow(SW_SHOWNA);
    window.Invalidate();
    window.UpdateWindow();
    CHECK(window.m_nPaints > 0);
    CHECK_FALSE(::GetUpdateRect(window.m_hWnd, nullptr, FALSE));
    window.DestroyWindow();
}

TEST_CASE("an exception in any other handler is told to the user, and the result is 0")
{
    CThrowingWnd window;
    REQUIRE(window.MakeIt());
    CString text;
    NextDialog answer([&](HWND box) {
        text = MessageBoxText(box);
        ::PostMessage(box, WM_COMMAND, IDOK, 0);
    });
    CHECK(window.SendMessage(throwSomething, FALSE) == 0);
    CHECK(answer.HasRun());
    CString expected;
    expected.LoadString(AFX_IDS_NOT_SUPPORTED_EXCEPTION);
    CHECK(text == expected.GetString());
    window.DestroyWindow();
}

TEST_CASE("an exception of a foreign kind is told to the user, too, and the program goes on")
{
    CThrowingWnd window;
    REQUIRE(window.MakeIt());
    window.m_bForeign = true;
    CString text;
    NextDialog answer([&](HWND box) {
        text = MessageBoxText(box);
        ::PostMessage(box, WM_COMMAND, IDOK, 0);
    });
    CHECK(window.SendMessage(throwSomething, FALSE) == 0);
    CHECK(answer.HasRun());
    CString expected;
    expected.LoadString(AFX_IDP_INTERNAL_FAILURE);
    CHECK(text == expected.GetString());
    CHECK(::IsWindow(window.m_hWnd));
    window.DestroyWindow();
}

TEST_CASE("an exception in the message filter does not go through the system's loop")
{
    struct CFilter : FailureCount
    {
        bool m_bForeign = false;
        BOOL ProcessMessageFilter(int, LPMSG) override
        {
            if (m_bForeign)
                throw 42;
            AfxThrowResourceException();
        }
    } filter;
    MSG message{};
    message.message = askNumber;
    CHECK_FALSE(::CallMsgFilter(&message, MSGF_DIALOGBOX));
    CHECK(filter.failures == 1);
    CHECK(filter.lastMessage == askNumber);
    filter.m_bForeign = true;
    CHECK_FALSE(::CallMsgFilter(&message, MSGF_DIALOGBOX));
    CHECK(filter.failures == 2);
}

TEST_CASE("a thread does not start without the events that it begins with")
{
    for (const int call : {1, 2}) {
        CAPTURE(call);
        WorkerData data;
        ::SetEvent(data.gate);
        const umbra::testing::FailNth fault(umbra::testing::FindModule(UMBRA_MFC_DLL),
                                            "kernel32.dll", TEXT_FUNCTION("CreateEvent"), call);
        REQUIRE(fault.IsInstalled());
        CHECK(AfxBeginThread(&Work, &data) == nullptr);
        CHECK(fault.Failed() == 1);
        CHECK(data.id == 0);
    }
}

TEST_CASE("a worker thread has the main window of its creator, under an object of its own")
{
    CWnd main;
    REQUIRE(
        main.CreateEx(0, AfxRegisterWndClass(0), _T("main"), WS_POPUP, 0, 0, 10, 10, NULL, NULL));
    struct Seen
    {
        CWnd* creators;
        CWnd* object = nullptr;
        HWND window = NULL;
        bool found = false;
    } seen{&main};
    AfxGetThread()->m_pMainWnd = &main;
    const auto look = [](LPVOID parameter) -> UINT {
        auto* result = static_cast<Seen*>(parameter);
        result->object = AfxGetMainWnd();
        result->window = result->object->GetSafeHwnd();
        result->found = CWnd::FromHandle(result->window) == result->object;
        return 3;
    };
    CWinThread* thread = AfxBeginThread(look, &seen, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    REQUIRE(thread != nullptr);
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    CHECK(ExitCodeAfterEnd(thread->m_hThread) == 3);
    CHECK(seen.window == main.m_hWnd);
    CHECK(seen.object != &main);
    CHECK(seen.found);
    CHECK(thread->m_pMainWnd == nullptr); // The object went with the thread.
    CHECK(::IsWindow(main.m_hWnd));
    delete thread;
    AfxGetThread()->m_pMainWnd = nullptr;
    main.DestroyWindow();
}

TEST_CASE("a user exception is not told again")
{
    CThrowingWnd window;
    REQUIRE(window.MakeIt());
    NextDialog answer([&](HWND box) { ::PostMessage(box, WM_COMMAND, IDOK, 0); });
    CHECK(window.SendMessage(throwSomething, TRUE) == 0);
    CHECK_FALSE(answer.HasRun());
    window.DestroyWindow();
}
