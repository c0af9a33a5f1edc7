// The looks of the system's theme.
#pragma once

#include <classes/CMFCVisualManager.h>

/// The manager that has everything look as the system's theme does. Left out, as in its base, is
/// what draws.
class AFX_EXPORTED CMFCVisualManagerWindows : public CMFCVisualManager
{
    DECLARE_DYNCREATE(CMFCVisualManagerWindows)

public:
    explicit CMFCVisualManagerWindows(BOOL bIsTemporary = FALSE);
    ~CMFCVisualManagerWindows() override;

    /// Whether the system draws controls with a theme now.
    static BOOL IsWinXPThemeAvailable();

    void SetOfficeStyleMenus(BOOL bOn = TRUE);
    BOOL IsOfficeStyleMenus() const;
    BOOL IsOfficeXPStyleMenus() const override;
    BOOL IsWindowsThemingSupported() const override;

private:
    BOOL officeStyleMenus_ = FALSE;
};
