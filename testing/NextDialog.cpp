#include "testing/NextDialog.h"

#include <set>
#include <string>

namespace umbra::testing {

namespace {

constexpr UINT lookingMilliseconds = 10;

/// Those of a thread that wait, as a list. No object with a destructor: this compiler's run-time
/// library may free the memory of such an object before it is destroyed.
thread_local NextDialog* newest = nullptr;

bool IsOpenDialog(HWND window)
{
    char className[16] = "";
    ::GetClassNameA(window, className, sizeof className);
    return std::string(className) == "#32770" && ::IsWindowVisible(window) &&
           ::IsWindowEnabled(window);
}

std::set<HWND> FindOpenDialogs()
{
    std::set<HWND> dialogs;
    const auto collect = [](HWND window, LPARAM found) -> BOOL {
        if (IsOpenDialog(window))
            reinterpret_cast<std::set<HWND>*>(found)->insert(window);
        return TRUE;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&dialogs));
    return dialogs;
}

} // namespace

NextDialog::NextDialog(std::function<void(HWND)> steps)
    : m_steps(std::move(steps)),
      m_isOld([old = FindOpenDialogs()](HWND dialog) { return old.count(dialog) > 0; })
{
    m_timer = ::SetTimer(nullptr, 0, lookingMilliseconds, Look);
    if (m_timer == 0)
        return;
    m_older = newest;
    newest = this;
}

NextDialog::~NextDialog()
{
    StopWaiting();
}

void CALLBACK NextDialog::Look(HWND, UINT, UINT_PTR timer, DWORD)
{
    NextDialog* self = newest;
    while (self != nullptr && self->m_timer != timer)
        self = self->m_older;
    if (self == nullptr)
        return;
    for (HWND dialog : FindOpenDialogs()) {
        if (self->m_isOld(dialog))
            continue;
        self->RunSteps(dialog);
        return;
    }
}

void NextDialog::RunSteps(HWND dialog)
{
    StopWaiting();
    m_hasRun = true;
    m_steps(dialog);
}

void NextDialog::StopWaiting()
{
    if (m_timer == 0)
        return;
    ::KillTimer(nullptr, m_timer);
    m_timer = 0;
    NextDialog** link = &newest;
    while (*link != this)
        link = &(*link)->m_older;
    *link = m_older;
}

} // namespace umbra::testing
