// Every page of the gallery shows the same when it is painted through a buffer.
#include "tests/gallery/GalleryLives.h"
#include "tests/robustness/SelfEnding.h"

#include "gallery/BackgroundsPage.h"
#include "gallery/ButtonsPage.h"
#include "gallery/GridPage.h"
#include "gallery/Images.h"
#include "gallery/LabelsPage.h"
#include "gallery/LanguagesPage.h"
#include "gallery/ShadeLabPage.h"
#include "gallery/StartPage.h"
#include "gallery/WizardPages.h"
#include "gallery/WorkingPage.h"

#include "testing/Picture.h"
#include "testing/Pump.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

Picture PaintAnew(CBaseDialog& page, bool buffered)
{
    page.SetBufferedPainting(buffered);
    page.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    PumpMessages();
    return Picture::OfWindow(page);
}

template <class Page, class... Arguments>
void Compare(Arguments&&... arguments)
{
    g_strImageDir = GalleryFolder();
    SelfEnding<Page> page(
        [&](HWND) {
            const Picture direct = PaintAnew(page, false);
            const Picture buffered = PaintAnew(page, true);
            CHECK(direct.Width() > 300);
            CHECK(buffered.Compare(direct) == "the same");
        },
        std::forward<Arguments>(arguments)...);
    page.DoModal();
}

} // namespace

TEST_CASE("the rooms show the same through a buffer")
{
    SUBCASE("start page")
    {
        Compare<CStartPage>(nullptr);
    }
    SUBCASE("backgrounds")
    {
        Compare<CBackgroundsPage>(nullptr);
    }
    SUBCASE("grid")
    {
        Compare<CGridPage>(nullptr);
    }
    SUBCASE("buttons")
    {
        Compare<CButtonsPage>(nullptr);
    }
    SUBCASE("shade lab")
    {
        Compare<CShadeLabPage>(nullptr);
    }
    SUBCASE("labels")
    {
        Compare<CLabelsPage>(nullptr);
    }
    SUBCASE("languages")
    {
        Compare<CLanguagesPage>(nullptr);
    }
    SUBCASE("working")
    {
        Compare<CWorkingPage>(nullptr);
    }
}

TEST_CASE("the steps of the wizard show the same through a buffer")
{
    WizardTask task = MakeTask();
    SUBCASE("folder")
    {
        Compare<CWizardFolderPage>(task, nullptr);
    }
    SUBCASE("pictures")
    {
        Compare<CWizardPicturesPage>(task, nullptr);
    }
    SUBCASE("confirm")
    {
        Compare<CWizardConfirmPage>(task, nullptr);
    }
    SUBCASE("result")
    {
        Compare<CWizardResultPage>(task, nullptr);
    }
}
