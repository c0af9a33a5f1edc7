// The debug form of the macros, whatever the test program itself is built as.
#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/mfc/objects/DebuggerText.h"

#include <string>

namespace {

/// What a TRACE call hands to the debugger.
template <class... Arguments>
std::string TextOf(const Arguments&... arguments)
{
    return SentToDebugger([&] { afxint::Trace(arguments...); });
}

} // namespace

TEST_CASE("a traced line carries its values")
{
    CHECK(TextOf(_T("%d and %s\n"), 5, _T("five")) == "5 and five\n");
}

TEST_CASE("a string object can be traced as it stands")
{
    const CString name = _T("object");
    CHECK(TextOf(_T("%s %d"), name, 7) == "object 7");
    CHECK(TextOf(_T("%s"), name + _T("s")) == "objects");
}

TEST_CASE("a category and a level may come first")
{
    CHECK(TextOf(traceAppMsg, 0, _T("%d"), 3) == "3");
}

TEST_CASE("a line that is too long is cut")
{
    const CString longText('x', 5000);
    const std::string line = TextOf(_T("%s"), longText);
    CHECK(line.size() == 1023);
    CHECK(line.find_first_not_of('x') == std::string::npos);
}

TEST_CASE("a format may be narrow, with values of the program's own characters")
{
    CHECK(TextOf("%s and %d", CString(_T("text")), 2) == "text and 2");
}
