#include "shell/CommandLine.h"

#include <doctest/doctest.h>

#include <mbctype.h>
#include <string.h>
#include <string>

using namespace umbra;

namespace {

/// What is to be run for the target, and whether anything is; the room behind the buffer stays as
/// it was.
std::string Compose(const std::string& command, const std::string& target, bool* composed = nullptr)
{
    char buffer[shellCommandCapacity + 8];
    memset(buffer, '#', sizeof(buffer));
    strcpy(buffer, command.c_str());
    const BOOL result = ComposeCommandLine(buffer, shellCommandCapacity, target.c_str());
    if (composed != nullptr)
        *composed = result != FALSE;
    for (size_t i = shellCommandCapacity; i < sizeof(buffer); ++i)
        CHECK(buffer[i] == '#');
    return buffer;
}

} // namespace

TEST_CASE("a quoted placeholder is cut off at its opening quote, with all behind it")
{
    char command[] = "\"C:\\a b\\run.exe\" \"%1\" -x";
    CHECK(CutPlaceholder(command));
    CHECK(std::string(command) == "\"C:\\a b\\run.exe\" ");
}

TEST_CASE("a bare placeholder is cut off at the percent sign, with all behind it")
{
    char command[] = "run.exe %1 /p %2";
    CHECK(CutPlaceholder(command));
    CHECK(std::string(command) == "run.exe ");
}

TEST_CASE("the quoted form is looked for first, wherever it stands")
{
    char command[] = "run.exe %1 \"%1\"";
    CHECK(CutPlaceholder(command));
    CHECK(std::string(command) == "run.exe %1 ");
}

TEST_CASE("a command without a placeholder stays whole")
{
    char command[] = "run.exe %2 50%";
    CHECK_FALSE(CutPlaceholder(command));
    CHECK(std::string(command) == "run.exe %2 50%");
}

// Kept: the target is never quoted, not even where the placeholder was.
TEST_CASE("the target follows the cut command after one blank of its own, without quotes")
{
    CHECK(Compose("\"C:\\a b\\run.exe\" \"%1\"", "C:\\my file.txt") ==
          "\"C:\\a b\\run.exe\"  C:\\my file.txt");
    CHECK(Compose("run.exe %1 -option", "x") == "run.exe  x");
    CHECK(Compose("run.exe", "x y") == "run.exe x y");
    CHECK(Compose("%1", "x") == " x");
}

TEST_CASE("an empty command runs nothing")
{
    bool composed = true;
    Compose("", "target", &composed);
    CHECK_FALSE(composed);
}

TEST_CASE("a command that does not fit its buffer runs nothing, one that just fits runs")
{
    // The buffer holds the command, a blank, the target and the terminator.
    const std::string command = "run.exe";
    const size_t room = shellCommandCapacity - command.size() - 2;
    bool composed = false;
    CHECK(Compose(command, std::string(room, 'a'), &composed).size() == shellCommandCapacity - 1);
    CHECK(composed);
    Compose(command, std::string(room + 1, 'a'), &composed);
    CHECK_FALSE(composed);
    Compose(command, std::string(10000, 'a'), &composed);
    CHECK_FALSE(composed);
    Compose(std::string(shellCommandCapacity - 1, 'c'), "", &composed);
    CHECK_FALSE(composed);
}

TEST_CASE("a trail byte that looks like a percent sign or quote is no placeholder")
{
    const int former = _getmbcp();
    REQUIRE(_setmbcp(932) == 0);
    // In code page 932, 0x83 leads and takes the next byte with it; '%' and '"' are no trail
    // bytes there, so the pair stands for itself and must not be taken apart.
    char command[] = "run.exe \x83\x25\x31 x";
    const BOOL cut = CutPlaceholder(command);
    char following[] = "run.exe \x83\x5C%1"; // Right behind a character of two bytes.
    const BOOL followingCut = CutPlaceholder(following);
    _setmbcp(former);
    CHECK_FALSE(cut);
    CHECK(followingCut);
    CHECK(std::string(following) == "run.exe \x83\x5C");
    CHECK(std::string(command) == "run.exe \x83\x25\x31 x");
}
