#include "gallery/GridView.h"

#include "tests/LibraryFiles.h"
#include "tests/robustness/Stage.h"

#include "testing/CallFault.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

const CRect someRectangle(3, 4, 60, 50);

/// Paints a view; what goes on for ever is ended by the test program's own limit.
bool Paints(CSize extent)
{
    Stage stage;
    CGridView view;
    const HWND window = stage.Add(_T("Static"), _T(""), 0, CRect(20, 20, 220, 120));
    if (!view.SubclassWindow(window))
        return false;
    view.Show(someRectangle, CRect(), RGB(200, 100, 0), extent);
    Stage::Paint(window);
    const bool painted = !::GetUpdateRect(window, nullptr, FALSE);
    stage.Close();
    return painted;
}

} // namespace

TEST_CASE("a view of any extent is painted at once")
{
    for (const int side : {0, 1, 64, 4096, 2000000000}) {
        CAPTURE(side);
        CHECK(Paints(CSize(side, side)));
    }
}

TEST_CASE("a view without base units, or with one only, is painted without lines")
{
    const HMODULE umbra = FindModule(UMBRA_DLL);
    {
        const FailAlways none(umbra, "user32", "GetDialogBaseUnits");
        REQUIRE(none.IsInstalled());
        CHECK(Paints(CSize(64, 64)));
    }
    for (const long long call : {1, 2}) { // One asks for the horizontal unit, one for the vertical.
        CAPTURE(call);
        const FailNth one(umbra, "user32", "GetDialogBaseUnits", call);
        CHECK(Paints(CSize(64, 64)));
        CHECK(one.Failed() == 1);
    }
}
