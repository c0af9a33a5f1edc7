#include <afxcontrolbars.h>

#include <doctest/doctest.h>

namespace {

int managersAlive = 0;

class COwnManager : public CMFCVisualManager
{
    DECLARE_DYNCREATE(COwnManager)

public:
    COwnManager() { ++managersAlive; }
    ~COwnManager() override { --managersAlive; }
};
IMPLEMENT_DYNCREATE(COwnManager, CMFCVisualManager)

/// Leaves no manager behind, and no class for the next one.
struct Afterwards
{
    ~Afterwards() { CMFCVisualManager::SetDefaultManager(NULL); }
};

} // namespace

TEST_CASE("the program has one manager of the looks, of the class that it has set")
{
    Afterwards afterwards;
    CMFCVisualManager* first = CMFCVisualManager::GetInstance();
    REQUIRE(first != NULL);
    CHECK(first == CMFCVisualManager::GetInstance());
    CHECK(first->GetRuntimeClass() == RUNTIME_CLASS(CMFCVisualManager));
    CHECK(first->IsAutoDestroy());

    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(COwnManager));
    CHECK(managersAlive == 0); // Not before somebody asks for it.
    CHECK(CMFCVisualManager::GetInstance()->IsKindOf(RUNTIME_CLASS(COwnManager)));
    CHECK(managersAlive == 1);
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(COwnManager));
    CHECK(managersAlive == 1); // It is of that class already.
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerWindows));
    CHECK(managersAlive == 0);
    CHECK(CMFCVisualManager::GetInstance()->IsKindOf(RUNTIME_CLASS(CMFCVisualManagerWindows)));
}

TEST_CASE("a manager that the program made itself is deleted by the program")
{
    Afterwards afterwards;
    {
        COwnManager own;
        CHECK(CMFCVisualManager::GetInstance() == &own);
        CHECK_FALSE(own.IsAutoDestroy());
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerWindows));
        CMFCVisualManager::DestroyInstance(TRUE);
        CHECK(CMFCVisualManager::GetInstance() == &own);
    }
    CHECK(managersAlive == 0);
    CHECK(CMFCVisualManager::GetInstance()->IsKindOf(RUNTIME_CLASS(CMFCVisualManagerWindows)));

    CMFCVisualManager::DestroyInstance();
    new COwnManager;
    CHECK(managersAlive == 1);
    CMFCVisualManager::DestroyInstance();
    CHECK(managersAlive == 0);
}

TEST_CASE("a temporary manager does not take the program's place")
{
    Afterwards afterwards;
    CMFCVisualManager temporary(TRUE);
    CHECK(CMFCVisualManager::GetInstance() != &temporary);
}

TEST_CASE("a manager keeps what it is told about menus and pictures")
{
    CMFCVisualManager manager(TRUE);
    CHECK_FALSE(manager.IsMenuFlatLook());
    manager.SetMenuFlatLook();
    CHECK(manager.IsMenuFlatLook());
    manager.SetMenuShadowDepth(3);
    CHECK(manager.GetMenuShadowDepth() == 3);
    manager.SetEmbossDisabledImage(FALSE);
    CHECK_FALSE(manager.IsEmbossDisabledImage());
    manager.SetFadeInactiveImage();
    CHECK(manager.IsFadeInactiveImage());
    manager.SetShadowHighlightedImage();
    CHECK(manager.IsShadowHighlightedImage());
    manager.EnableToolbarButtonFill(FALSE);
    CHECK_FALSE(manager.IsToolbarButtonFillEnabled());
    CHECK_FALSE(manager.IsOfficeXPStyleMenus());
    CHECK_FALSE(manager.IsWindowsThemingSupported());
}
