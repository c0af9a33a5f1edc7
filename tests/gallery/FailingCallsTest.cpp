#include "tests/robustness/FaultCheck.h"
#include "tests/gallery/GalleryLives.h"

TEST_CASE("part: pages with failing calls of umbra.dll" * doctest::skip())
{
    LiveWithFailures(UMBRA_DLL, IsOfSystem, LivesOfGallery(), PageOptions({1, 2}));
}

TEST_CASE("whichever call of umbra.dll fails while a gallery page is open: nothing crashes or "
          "hangs and nothing is lost")
{
    CheckReport(FailEachCall(UMBRA_DLL, "part: pages with failing calls of umbra.dll"));
}
