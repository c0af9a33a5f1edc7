#include "shell/PicturePath.h"

#include "testing/Text.h"

#include <doctest/doctest.h>

#include <string.h>
#include <algorithm>
#include <string>

using umbra::testing::TString;

using namespace umbra;

// Kept: the doubled slash works as it is.
TEST_CASE("directory and path are joined by two slashes, within the room there is")
{
    TCHAR out[16 + 4];
    std::fill_n(out, _countof(out), _T('#'));
    CHECK(JoinPicturePath(_T("C:\\dir"), _T("a.gif"), out, 16));
    CHECK(TString(out) == _T("C:\\dir//a.gif"));
    CHECK(JoinPicturePath(_T("C:\\dir"), _T("abc.gif"), out, 16)); // Fifteen characters.
    CHECK(TString(out) == _T("C:\\dir//abc.gif"));
    CHECK_FALSE(JoinPicturePath(_T("C:\\dir"), _T("abcd.gif"), out, 16));
    CHECK(TString(out).empty());
    for (size_t i = 16; i < _countof(out); ++i)
        CHECK(out[i] == '#');
}

TEST_CASE("slashes that are there already are doubled all the same")
{
    TCHAR out[32];
    CHECK(JoinPicturePath(_T("C:\\"), _T("\\a.gif"), out, _countof(out)));
    CHECK(TString(out) == _T("C:\\//\\a.gif"));
    CHECK(JoinPicturePath(_T(""), _T(""), out, _countof(out)));
    CHECK(TString(out) == _T("//"));
}
