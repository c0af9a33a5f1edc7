// The tracking of the pointer comes from a library that is loaded at the first call of it, which
// must not have been made before: these cases have a process of their own.
#include "controls/ShadeButton.h"

#include "tests/LibraryFiles.h"
#include "tests/controls/LabelHost.h"

#include "testing/CallFault.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

class HoveredButton : public CxShadeButton
{
public:
    using CxShadeButton::m_hover;
};

} // namespace

TEST_CASE("a button is not hot while the tracking cannot be loaded, and hot once it can")
{
    LabelHost host;
    HoveredButton button;
    REQUIRE(button.Create(_T("Text"), WS_CHILD | WS_VISIBLE, CRect(50, 60, 170, 100), &host, 7));
#ifdef _WIN64 // A 32-bit library has it loaded at once.
    for (const char* missing : {"LoadLibraryA", "GetProcAddress"}) {
        CAPTURE(missing);
        const FailAlways fault(FindModule(UMBRA_DLL), "kernel32", missing);
        REQUIRE(fault.IsInstalled());
        button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        CHECK(fault.Failed() > 0);
        CHECK_FALSE(button.m_hover);
    }
#endif
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    CHECK(button.m_hover);
}
