// How menus and bars look: the one manager of the program.
#include <classes/CMFCVisualManager.h>

IMPLEMENT_DYNCREATE(CMFCVisualManager, CObject)

namespace {

CMFCVisualManager* theManager = NULL;
CRuntimeClass* classOfNext = NULL; ///< NULL for CMFCVisualManager.

} // namespace

CMFCVisualManager::CMFCVisualManager(BOOL bTemporary)
{
    if (!bTemporary && theManager == NULL)
        theManager = this;
}

CMFCVisualManager::~CMFCVisualManager()
{
    if (theManager == this)
        theManager = NULL;
}

CMFCVisualManager* CMFCVisualManager::GetInstance()
{
    if (theManager != NULL)
        return theManager;
    // The constructor makes it the instance; a class of the program may have another one in mind.
    CObject* const made = classOfNext == NULL ? NULL : classOfNext->CreateObject();
    CMFCVisualManager* manager = DYNAMIC_DOWNCAST(CMFCVisualManager, made);
    if (manager == NULL) {
        delete made;
        manager = new CMFCVisualManager;
    }
    theManager = manager;
    manager->autoDestroy_ = TRUE;
    return manager;
}

void CMFCVisualManager::SetDefaultManager(CRuntimeClass* pRTI)
{
    ASSERT(pRTI == NULL || pRTI->IsDerivedFrom(RUNTIME_CLASS(CMFCVisualManager)));
    if (pRTI == classOfNext)
        return;
    classOfNext = pRTI;
    DestroyInstance(TRUE);
}

void CMFCVisualManager::DestroyInstance(BOOL bAutoDestroyOnly)
{
    if (theManager != NULL && (!bAutoDestroyOnly || theManager->autoDestroy_))
        delete theManager;
}

BOOL CMFCVisualManager::IsAutoDestroy() const
{
    return autoDestroy_;
}

void CMFCVisualManager::SetMenuFlatLook(BOOL bMenuFlatLook)
{
    menuFlatLook_ = bMenuFlatLook;
}

BOOL CMFCVisualManager::IsMenuFlatLook() const
{
    return menuFlatLook_;
}

void CMFCVisualManager::SetMenuShadowDepth(int nDepth)
{
    menuShadowDepth_ = nDepth;
}

int CMFCVisualManager::GetMenuShadowDepth() const
{
    return menuShadowDepth_;
}

void CMFCVisualManager::SetEmbossDisabledImage(BOOL bEmboss)
{
    embossDisabledImage_ = bEmboss;
}

BOOL CMFCVisualManager::IsEmbossDisabledImage() const
{
    return embossDisabledImage_;
}

void CMFCVisualManager::SetFadeInactiveImage(BOOL bFade)
{
    fadeInactiveImage_ = bFade;
}

BOOL CMFCVisualManager::IsFadeInactiveImage() const
{
    return fadeInactiveImage_;
}

void CMFCVisualManager::SetShadowHighlightedImage(BOOL bShadow)
{
    shadowHighlightedImage_ = bShadow;
}

BOOL CMFCVisualManager::IsShadowHighlightedImage() const
{
    return shadowHighlightedImage_;
}

void CMFCVisualManager::EnableToolbarButtonFill(BOOL bEnable)
{
    toolbarButtonFill_ = bEnable;
}

BOOL CMFCVisualManager::IsToolbarButtonFillEnabled() const
{
    return toolbarButtonFill_;
}

BOOL CMFCVisualManager::IsOfficeXPStyleMenus() const
{
    return FALSE;
}

BOOL CMFCVisualManager::IsWindowsThemingSupported() const
{
    return FALSE;
}
