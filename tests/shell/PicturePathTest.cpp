#include "shell/PicturePath.h"

#include <doctest/doctest.h>

#include <string.h>
#include <string>

using namespace umbra;

// Kept: the doubled slash works as it is.
TEST_CASE("directory and path are joined by two slashes, within the room there is")
{
    char out[16 + 4];
    memset(out, '#', sizeof(out));
    CHECK(JoinPicturePath("C:\\dir", "a.gif", out, 16));
    CHECK(std::string(out) == "C:\\dir//a.gif");
    CHECK(JoinPicturePath("C:\\dir", "abc.gif", out, 16)); // Fifteen characters.
    CHECK(std::string(out) == "C:\\dir//abc.gif");
    CHECK_FALSE(JoinPicturePath("C:\\dir", "abcd.gif", out, 16));
    CHECK(std::string(out).empty());
    for (size_t i = 16; i < sizeof(out); ++i)
        CHECK(out[i] == '#');
}

TEST_CASE("slashes that are there already are doubled all the same")
{
    char out[32];
    CHECK(JoinPicturePath("C:\\", "\\a.gif", out, sizeof(out)));
    CHECK(std::string(out) == "C:\\//\\a.gif");
    CHECK(JoinPicturePath("", "", out, sizeof(out)));
    CHECK(std::string(out) == "//");
}
