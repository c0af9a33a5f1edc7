#include "testing/ThreadWindows.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace umbra::testing {

namespace {

BOOL CALLBACK CollectShown(HWND window, LPARAM windows)
{
    if (::IsWindowVisible(window))
        reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

std::vector<HWND> FindWindows()
{
    std::vector<HWND> windows;
    ::EnumThreadWindows(::GetCurrentThreadId(), CollectShown, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

RECT PlaceOf(HWND window)
{
    RECT place{};
    ::GetWindowRect(window, &place);
    return place;
}

/// A window and what is in it, each level further to the right.
void Describe(HWND window, int level, std::string& list)
{
    char kind[64] = "";
    ::GetClassNameA(window, kind, sizeof kind);
    const RECT place = PlaceOf(window);
    char where[80];
    std::snprintf(where, sizeof where, " at (%ld, %ld), %ld x %ld", place.left, place.top,
                  place.right - place.left, place.bottom - place.top);
    list += std::string(static_cast<size_t>(level) * 2, ' ');
    if (level > 0)
        list += std::to_string(static_cast<short>(::GetDlgCtrlID(window))) + " ";
    list += std::string(kind) + " \"" + Printable(TextOf(window)) + "\"" + where;
    const LONG style = ::GetWindowLong(window, GWL_STYLE);
    list += (style & WS_VISIBLE) == 0 ? ", hidden" : "";
    list += (style & WS_DISABLED) != 0 ? ", disabled" : "";
    list += "\n";
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
        Describe(child, level + 1, list);
}

} // namespace

TString TextOf(HWND window)
{
    TString text(static_cast<size_t>(::GetWindowTextLength(window)) + 1, '\0');
    text.resize(
        static_cast<size_t>(::GetWindowText(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::string ListWindows()
{
    std::string list;
    for (HWND window : FindWindows())
        Describe(window, 0, list);
    return list;
}

Picture ShowWindows()
{
    std::vector<HWND> windows = FindWindows();
    RECT all{};
    for (HWND window : windows) {
        const RECT place = PlaceOf(window);
        ::UnionRect(&all, &all, &place);
    }
    Picture picture(all.right - all.left, all.bottom - all.top);
    std::reverse(windows.begin(), windows.end()); // The one in front covers the others.
    for (HWND window : windows) {
        const RECT place = PlaceOf(window);
        HDC dc = ::GetWindowDC(window);
        picture.Paste(Picture::OfDc(dc, {0, 0, place.right - place.left, place.bottom - place.top}),
                      place.left - all.left, place.top - all.top);
        ::ReleaseDC(window, dc);
    }
    return picture;
}

} // namespace umbra::testing
