// How menus and bars look.
#pragma once

#include <classes/CObject.h>

/// The manager of the looks, one for the whole program: made when it is first asked for, of the
/// class that the program has set. Left out is everything that draws: it concerns bars, ribbons and
/// panes, which are not part of the subset; so are the classes between this one and CObject.
class AFX_EXPORTED CMFCVisualManager : public CObject
{
    DECLARE_DYNCREATE(CMFCVisualManager)

public:
    /// An object that is not temporary becomes the program's manager.
    explicit CMFCVisualManager(BOOL bTemporary = FALSE);
    ~CMFCVisualManager() override;

    /// The program's manager.
    static CMFCVisualManager* GetInstance();
    /// Sets the class of the next manager, and destroys the one that was made of another class.
    /// NULL goes back to CMFCVisualManager.
    static void SetDefaultManager(CRuntimeClass* pRTI);
    /// Deletes the manager. `bAutoDestroyOnly` spares one that the program has made itself.
    static void DestroyInstance(BOOL bAutoDestroyOnly = FALSE);
    /// Whether GetInstance has made it.
    BOOL IsAutoDestroy() const;

    void SetMenuFlatLook(BOOL bMenuFlatLook = TRUE);
    BOOL IsMenuFlatLook() const;
    void SetMenuShadowDepth(int nDepth);
    int GetMenuShadowDepth() const;
    void SetEmbossDisabledImage(BOOL bEmboss = TRUE);
    BOOL IsEmbossDisabledImage() const;
    void SetFadeInactiveImage(BOOL bFade = TRUE);
    BOOL IsFadeInactiveImage() const;
    void SetShadowHighlightedImage(BOOL bShadow = TRUE);
    BOOL IsShadowHighlightedImage() const;
    void EnableToolbarButtonFill(BOOL bEnable = TRUE);
    BOOL IsToolbarButtonFillEnabled() const;

    virtual BOOL IsOfficeXPStyleMenus() const;
    virtual BOOL IsWindowsThemingSupported() const;

private:
    BOOL autoDestroy_ = FALSE;
    BOOL menuFlatLook_ = FALSE;
    int menuShadowDepth_ = 7; ///< Pixels.
    BOOL embossDisabledImage_ = TRUE;
    BOOL fadeInactiveImage_ = FALSE;
    BOOL shadowHighlightedImage_ = FALSE;
    BOOL toolbarButtonFill_ = TRUE;
};
