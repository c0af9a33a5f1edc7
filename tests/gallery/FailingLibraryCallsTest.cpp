#include "tests/robustness/FaultCheck.h"
#include "tests/gallery/GalleryLives.h"

TEST_CASE("part: pages with failing calls of umbra-mfc.dll" * doctest::skip())
{
    LiveWithFailures(UMBRA_MFC_DLL, IsOfWindows, LivesOfGallery(), PageOptions({1, 1}));
}

TEST_CASE("whichever call of umbra-mfc.dll fails while a gallery page is open: nothing crashes or "
          "hangs and nothing is lost")
{
    CheckReport(FailEachCall(UMBRA_MFC_DLL, "part: pages with failing calls of umbra-mfc.dll"));
}
