// The looks of the system's theme.
#include <classes/CMFCVisualManagerWindows.h>

IMPLEMENT_DYNCREATE(CMFCVisualManagerWindows, CMFCVisualManager)

CMFCVisualManagerWindows::CMFCVisualManagerWindows(BOOL bIsTemporary)
    : CMFCVisualManager(bIsTemporary)
{
}

CMFCVisualManagerWindows::~CMFCVisualManagerWindows() = default;

BOOL CMFCVisualManagerWindows::IsWinXPThemeAvailable()
{
    using Ask = BOOL(WINAPI*)();
    // Loaded on demand: it is not needed otherwise.
    static const HMODULE themes = ::LoadLibrary(_T("uxtheme.dll"));
    if (themes == NULL)
        return FALSE;
    const auto isActive =
        reinterpret_cast<Ask>(reinterpret_cast<INT_PTR>(GetProcAddress(themes, "IsThemeActive")));
    return isActive != NULL && isActive();
}

void CMFCVisualManagerWindows::SetOfficeStyleMenus(BOOL bOn)
{
    officeStyleMenus_ = bOn;
}

BOOL CMFCVisualManagerWindows::IsOfficeStyleMenus() const
{
    return officeStyleMenus_;
}

BOOL CMFCVisualManagerWindows::IsOfficeXPStyleMenus() const
{
    return officeStyleMenus_;
}

BOOL CMFCVisualManagerWindows::IsWindowsThemingSupported() const
{
    return TRUE;
}
