#include "controls/HyperLink.h"
#include "controls/LinkActions.h"
#include "controls/StaticTS.h"

#include "tests/controls/LabelHost.h"

#include "tests/TraceOf.h"

#include <doctest/doctest.h>

#include <string>

using namespace umbra::testing;

TEST_CASE("a debug build traces a link that can never be clicked, by its control id")
{
    LabelHost host;
    const CRect place(50, 60, 250, 100);
    CStaticTS label;
    label.SubclassWindow(host.AddStatic(place, "Text", 0, 4711));
    CHyperLink link;
    link.SubclassWindow(host.AddStatic(place, "Text", 0, 4712));
    const std::string labelTrace = TraceOf([&] { label.SetLink(TRUE); });
    const std::string linkTrace = TraceOf([&] { link.SetURL("x"); });
    CHECK((labelTrace.find("4711 lacks SS_NOTIFY") != std::string::npos) == isTraced);
    CHECK((linkTrace.find("4712 lacks SS_NOTIFY") != std::string::npos) == isTraced);
}

TEST_CASE("a link that can be clicked, and a label that is no link, trace nothing")
{
    LabelHost host;
    const CRect place(50, 60, 250, 100);
    CStaticTS clickable, plain;
    clickable.SubclassWindow(host.AddStatic(place, "Text", SS_NOTIFY, 4711));
    plain.SubclassWindow(host.AddStatic(place, "Text", 0, 4712));
    const std::string trace = TraceOf([&] {
        clickable.SetLink(TRUE);
        plain.SetLink(FALSE);
    });
    CHECK(trace.find("SS_NOTIFY") == std::string::npos);
}

TEST_CASE("a target is trimmed of white space at both ends, and of nothing else")
{
    CHECK(TrimTarget(" \t a b\r\n") == "a b");
    CHECK(TrimTarget("   ") == "");
    CHECK(TrimTarget("") == "");
    CHECK(TrimTarget("a\x01 b") == "a\x01 b");
}
