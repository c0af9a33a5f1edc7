#include "testing/DoModal.h"
#include "testing/OpenDialogs.h"
#include "testing/ThreadWindows.h"
#include "testing/Ticker.h"

#include <afxdlgs.h>

#include <algorithm>
#include <exception>

namespace umbra::testing {

namespace {

using Clock = std::chrono::steady_clock;

/// A file of the working directory, named after the program and the number of the failure.
TString NamePicture()
{
    static int count = 0;
    TCHAR program[MAX_PATH] = _T("");
    ::GetModuleFileName(nullptr, program, MAX_PATH);
    TString name(program);
    name = name.substr(name.find_last_of(_T("\\/")) + 1);
    const std::string number = std::to_string(++count);
    return name.substr(0, name.rfind('.')) + _T("-never-closed-") +
           TString(number.begin(), number.end()) + _T(".png");
}

/// As its own code would, so that also the class library's modal loop ends.
void EndDialog(HWND dialog)
{
    CWnd* object = CWnd::FromHandlePermanent(dialog);
    if (auto* page = dynamic_cast<CDialog*>(object))
        page->EndDialog(IDABORT);
    else if (auto* sheet = dynamic_cast<CPropertySheet*>(object))
        sheet->EndDialog(IDABORT);
    else
        ::EndDialog(dialog, IDABORT);
}

/// The system's own loops for menus and for moving a window go on whatever becomes of the dialog.
void EndMenuOrMove()
{
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    if (!::GetGUIThreadInfo(::GetCurrentThreadId(), &info))
        return;
    if (info.hwndMenuOwner != nullptr)
        ::EndMenu();
    if (info.hwndMoveSize != nullptr)
        ::PostMessage(info.hwndMoveSize, WM_KEYDOWN, VK_ESCAPE, 0);
}

bool HasQuit()
{
    MSG message;
    return ::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE;
}

/// Runs the steps of one dialog after another, from within their message loops.
class Driver
{
public:
    Driver(std::vector<Steps> dialogs, std::chrono::milliseconds limit)
        : m_dialogs(std::move(dialogs)), m_limit(limit), m_old(FindShownDialogs())
    {
        RestartClock();
    }

    void Finish(ModalOutcome& outcome);

private:
    void Tick();
    bool FindDialog();
    void RunStep();
    void GiveUp();
    void EndDialogs();
    bool IsOld(HWND dialog) const;
    bool HasStep() const { return m_step < m_dialogs[m_current].size(); }
    std::string DueStep() const;
    void RestartClock() { m_deadline = Clock::now() + m_limit; }

    std::vector<Steps> m_dialogs;
    std::chrono::milliseconds m_limit;
    std::vector<HWND> m_old; // Dialogs that were there before.
    Clock::time_point m_deadline;
    size_t m_current = 0; // The dialog that is open, or the one that is to come.
    size_t m_step = 0;
    HWND m_window = nullptr;
    bool m_isInStep = false;
    bool m_hasGivenUp = false;
    std::string m_failure;
    TString m_pictureFile;
    std::exception_ptr m_thrown;
    Ticker m_ticker{[this] { Tick(); }};
};

void Driver::Tick()
{
    if (m_hasGivenUp) {
        EndDialogs();
        return;
    }
    if (Clock::now() >= m_deadline) {
        GiveUp();
        return;
    }
    if (!m_isInStep && FindDialog() && HasStep() && IsOpenDialog(m_window))
        RunStep();
}

/// Whether the dialog that is due is there. One that has gone makes place for the next.
bool Driver::FindDialog()
{
    if (m_window != nullptr && ::IsWindowVisible(m_window))
        return true;
    if (m_window != nullptr) {
        m_window = nullptr;
        if (HasStep())
            m_failure += DueStep() + " was still to come when the dialog closed.\n";
        ++m_current;
        m_step = 0;
        RestartClock();
    }
    if (m_current == m_dialogs.size())
        return false;
    for (HWND dialog : FindOpenDialogs()) {
        if (IsOld(dialog))
            continue;
        m_window = dialog;
        RestartClock();
        return true;
    }
    return false;
}

void Driver::RunStep()
{
    m_isInStep = true;
    RestartClock();
    try {
        Page page(m_window);
        m_dialogs[m_current][m_step](page);
    } catch (...) { // Not through the system's code, which has called us.
        if (m_thrown == nullptr)
            m_thrown = std::current_exception();
        m_hasGivenUp = true;
        EndDialogs();
    }
    m_isInStep = false;
    ++m_step;
    RestartClock();
}

void Driver::GiveUp()
{
    m_hasGivenUp = true;
    if (m_current == m_dialogs.size() || !HasStep())
        m_failure += "A dialog never closed, after all steps";
    else
        m_failure += DueStep() + (m_isInStep ? " never ended" : " never began");
    m_failure += " (limit: " + std::to_string(m_limit.count()) + " ms). Open were:\n";
    m_failure += ListWindows();
    m_pictureFile = NamePicture();
    if (!ShowWindows().SavePng(m_pictureFile.c_str()))
        m_pictureFile.clear();
    EndDialogs();
}

void Driver::EndDialogs()
{
    EndMenuOrMove();
    for (HWND dialog : FindDialogs()) {
        if (!IsOld(dialog))
            EndDialog(dialog);
    }
}

bool Driver::IsOld(HWND dialog) const
{
    return std::find(m_old.begin(), m_old.end(), dialog) != m_old.end();
}

std::string Driver::DueStep() const
{
    return "Step " + std::to_string(m_step + 1) + " of " +
           std::to_string(m_dialogs[m_current].size()) + " of dialog " +
           std::to_string(m_current + 1);
}

void Driver::Finish(ModalOutcome& outcome)
{
    m_ticker.Stop();
    outcome.hasQuit = HasQuit();
    if (m_thrown != nullptr)
        std::rethrow_exception(m_thrown);
    if (!m_hasGivenUp) {
        for (; m_current < m_dialogs.size(); ++m_current, m_step = 0, m_window = nullptr) {
            if (m_window == nullptr)
                m_failure += "Dialog " + std::to_string(m_current + 1) + " never came.\n";
            else if (HasStep())
                m_failure += DueStep() + " was still to come when the dialog closed.\n";
        }
    }
    outcome.failure = m_failure;
    outcome.pictureFile = m_pictureFile;
}

} // namespace

ModalOutcome DoModal(CDialog& dialog, Steps steps, std::chrono::milliseconds limit)
{
    return DriveDialogs([&] { return dialog.DoModal(); }, {std::move(steps)}, limit);
}

ModalOutcome DriveDialogs(const std::function<INT_PTR()>& show, std::vector<Steps> dialogs,
                          std::chrono::milliseconds limit)
{
    ModalOutcome outcome;
    Driver driver(std::move(dialogs), limit);
    outcome.result = show();
    driver.Finish(outcome);
    return outcome;
}

} // namespace umbra::testing
