// A host that uses much of the standard library beside the toolkit. Ends with 0 when all of it
// works, else with the number of what does not.
#include <umbra.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <mutex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <unordered_map>
#include <vector>

namespace {

const UINT askMessage = WM_APP + 1;
CRuntimeClass* reported; // Of the last exception that came to the program's object.

/// A window whose handler throws.
class CThrower : public CWnd
{
public:
    using CWnd::WindowProc;

protected:
    DECLARE_MESSAGE_MAP()

private:
    LRESULT OnAsk(WPARAM wParam, LPARAM)
    {
        if (wParam == 1)
            throw std::runtime_error("asked for");
        if (wParam == 2)
            AfxThrowInvalidArgException();
        return 7;
    }
};

BEGIN_MESSAGE_MAP(CThrower, CWnd)
    ON_MESSAGE(askMessage, &CThrower::OnAsk)
END_MESSAGE_MAP()

bool StringsAndStreamsWork()
{
    std::string text = "one";
    text.insert(0, "zero ").append(" two").replace(0, 4, "nought").erase(6, 1);
    std::ostringstream written;
    written << text << ' ' << 42 << ' ' << 1.5;
    std::istringstream read(written.str());
    std::string first;
    read >> first;
    std::map<std::string, int> lengths{{first, static_cast<int>(first.size())}};
    std::unordered_map<std::string, std::wstring> wide{{first, L"wide"}};
    wide[first] += std::to_wstring(lengths[first]);
    CString mixed(written.str().c_str());
    mixed += wide[first].c_str();
    return mixed == "noughtone two 42 1.5wide9";
}

bool FilesWork()
{
    const auto path = std::filesystem::temp_directory_path() / "umbra-consumer.txt";
    std::ofstream(path) << "line\n";
    std::string line;
    std::ifstream file(path);
    std::getline(file, line);
    file.close();
    CFileStatus status;
    const bool same = CFile::GetStatus(CString(path.c_str()), status) != FALSE &&
                      status.m_size == std::filesystem::file_size(path);
    std::filesystem::remove(path);
    return line == "line" && same && !std::filesystem::exists(path);
}

bool ThreadsWork()
{
    std::mutex mutex;
    std::vector<std::thread> threads;
    int sum = 0;
    for (int number = 1; number <= 4; ++number) {
        threads.emplace_back([number, &mutex, &sum] {
            CString text;
            text.Format(_T("%d"), number);
            const std::lock_guard<std::mutex> lock(mutex);
            sum += _ttoi(text);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    return sum == 10;
}

/// Thrown in a handler, which the library has called, and caught here.
bool ExceptionsCrossHandlers()
{
    CThrower window;
    if (!window.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, 9, 9, NULL, NULL))
        return false;
    bool own = false, library = false;
    try {
        window.WindowProc(askMessage, 1, 0);
    } catch (const std::exception& error) {
        own = std::string(error.what()) == "asked for";
    }
    try {
        window.WindowProc(askMessage, 2, 0);
    } catch (CInvalidArgException* error) {
        library = true;
        error->Delete();
    }
    reported = NULL;
    window.SendMessage(askMessage, 2); // Nobody here catches it: the program's object does.
    const bool answered = window.SendMessage(askMessage) == 7;
    window.DestroyWindow();
    return own && library && answered && reported == RUNTIME_CLASS(CInvalidArgException);
}

/// Thrown by the library, caught as its base class.
bool LibraryExceptionsAreCaught()
{
    try {
        CFile file(_T("no such folder\\no such file"), CFile::modeRead);
    } catch (CException* error) {
        const bool isOfFile = error->IsKindOf(RUNTIME_CLASS(CFileException)) != FALSE;
        error->Delete();
        return isOfFile;
    }
    return false;
}

bool ToolkitWorks()
{
    g_crShade = RGB(180, 200, 230);
    const auto label = std::make_unique<CStaticTS>();
    CWnd parent;
    return parent.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, 90, 90, NULL, NULL) &&
           label->Create(_T("Text"), WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &parent) &&
           label->IsKindOf(RUNTIME_CLASS(CStatic));
}

class CConsumerApp : public CWinApp
{
    int m_nResult = 1;

    BOOL InitInstance() override
    {
        bool (*const checks[])() = {
            StringsAndStreamsWork,      FilesWork,   ThreadsWork, ExceptionsCrossHandlers,
            LibraryExceptionsAreCaught, ToolkitWorks};
        m_nResult = 0;
        int number = 0;
        for (const auto check : checks) {
            ++number;
            if (m_nResult == 0 && !check())
                m_nResult = number;
        }
        std::cout << "result " << m_nResult << std::endl;
        return FALSE;
    }

    int ExitInstance() override { return m_nResult; }

    LRESULT ProcessWndProcException(CException* e, const MSG*) override
    {
        reported = e->GetRuntimeClass();
        return 0;
    }
} theApp;

} // namespace
