#include "controls/HyperLink.h"
#include "controls/LinkActions.h"
#include "controls/StaticTS.h"

#include "tests/controls/LabelHost.h"

#include "tests/TraceOf.h"

#include "testing/Text.h"

#include <doctest/doctest.h>

#include <string>

using namespace umbra::testing;

TEST_CASE("a debug build traces a link that can never be clicked, by its control id")
{
    LabelHost host;
    const CRect place(50, 60, 250, 100);
    CStaticTS label;
    label.SubclassWindow(host.AddStatic(place, _T("Text"), 0, 4711));
    CHyperLink link;
    link.SubclassWindow(host.AddStatic(place, _T("Text"), 0, 4712));
    const TString labelTrace = TraceOf([&] { label.SetLink(TRUE); });
    const TString linkTrace = TraceOf([&] { link.SetURL(_T("x")); });
    CHECK((labelTrace.find(_T("4711 lacks SS_NOTIFY")) != TString::npos) == isTraced);
    CHECK((linkTrace.find(_T("4712 lacks SS_NOTIFY")) != TString::npos) == isTraced);
}

TEST_CASE("a link that can be clicked, and a label that is no link, trace nothing")
{
    LabelHost host;
    const CRect place(50, 60, 250, 100);
    CStaticTS clickable, plain;
    clickable.SubclassWindow(host.AddStatic(place, _T("Text"), SS_NOTIFY, 4711));
    plain.SubclassWindow(host.AddStatic(place, _T("Text"), 0, 4712));
    const TString trace = TraceOf([&] {
        clickable.SetLink(TRUE);
        plain.SetLink(FALSE);
    });
    CHECK(trace.find(_T("SS_NOTIFY")) == TString::npos);
}

TEST_CASE("a target is trimmed of white space at both ends, and of nothing else")
{
    CHECK(TrimTarget(_T(" \t a b\r\n")) == _T("a b"));
    CHECK(TrimTarget(_T("   ")) == _T(""));
    CHECK(TrimTarget(_T("")) == _T(""));
    CHECK(TrimTarget(_T("a\x01 b")) == _T("a\x01 b"));
}
