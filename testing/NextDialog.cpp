#include <testing/NextDialog.h>

#include <map>
#include <set>
#include <string>

namespace umbra::testing {

namespace {

constexpr UINT lookingMilliseconds = 10;

std::map<UINT_PTR, NextDialog*>& WaitingOnes()
{
    static thread_local std::map<UINT_PTR, NextDialog*> waiting;
    return waiting;
}

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
    : steps_(std::move(steps)),
      isOld_([old = FindOpenDialogs()](HWND dialog) { return old.count(dialog) > 0; })
{
    timer_ = ::SetTimer(nullptr, 0, lookingMilliseconds, Look);
    WaitingOnes()[timer_] = this;
}

NextDialog::~NextDialog()
{
    if (timer_ == 0)
        return;
    ::KillTimer(nullptr, timer_);
    WaitingOnes().erase(timer_);
}

void CALLBACK NextDialog::Look(HWND, UINT, UINT_PTR timer, DWORD)
{
    const auto waiting = WaitingOnes().find(timer);
    if (waiting == WaitingOnes().end())
        return;
    NextDialog* self = waiting->second;
    for (HWND dialog : FindOpenDialogs()) {
        if (self->isOld_(dialog))
            continue;
        self->RunSteps(dialog);
        return;
    }
}

void NextDialog::RunSteps(HWND dialog)
{
    ::KillTimer(nullptr, timer_);
    WaitingOnes().erase(timer_);
    timer_ = 0;
    hasRun_ = true;
    steps_(dialog);
}

} // namespace umbra::testing
