#include "testing/OpenDialogs.h"

#include <afxwin.h>

#include <algorithm>
#include <string>

namespace umbra::testing {

namespace {

std::string ClassOf(HWND window)
{
    char name[64] = "";
    ::GetClassNameA(window, name, sizeof name);
    return name;
}

bool IsPlainDialog(HWND window)
{
    return ClassOf(window) == "#32770";
}

template <class Condition>
std::vector<HWND> Select(Condition condition)
{
    std::vector<HWND> dialogs = FindDialogs();
    const auto isOther = [&](HWND dialog) { return !condition(dialog); };
    dialogs.erase(std::remove_if(dialogs.begin(), dialogs.end(), isOther), dialogs.end());
    return dialogs;
}

} // namespace

bool IsDialog(HWND window)
{
    if (IsPlainDialog(window))
        return true;
    const CWnd* object = CWnd::FromHandlePermanent(window);
    return object != nullptr && object->IsKindOf(RUNTIME_CLASS(CDialog));
}

bool IsMessageBox(HWND window)
{
    if (!IsPlainDialog(window) || CWnd::FromHandlePermanent(window) != nullptr)
        return false;
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        const std::string kind = ClassOf(child);
        if (kind != "Static" && kind != "Button")
            return false;
    }
    return true;
}

bool IsOpenDialog(HWND window)
{
    return ::IsWindowVisible(window) && ::IsWindowEnabled(window) && IsDialog(window);
}

namespace {

BOOL CALLBACK CollectDialog(HWND window, LPARAM dialogs)
{
    if (IsDialog(window))
        reinterpret_cast<std::vector<HWND>*>(dialogs)->push_back(window);
    return TRUE;
}

} // namespace

std::vector<HWND> FindDialogs()
{
    std::vector<HWND> dialogs;
    ::EnumThreadWindows(::GetCurrentThreadId(), CollectDialog, reinterpret_cast<LPARAM>(&dialogs));
    return dialogs;
}

std::vector<HWND> FindShownDialogs()
{
    return Select([](HWND dialog) { return ::IsWindowVisible(dialog) != FALSE; });
}

std::vector<HWND> FindOpenDialogs()
{
    return Select(IsOpenDialog);
}

} // namespace umbra::testing
