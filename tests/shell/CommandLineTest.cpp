#include "shell/CommandLine.h"

#include "testing/Text.h"

#include <doctest/doctest.h>

#include <mbctype.h>
#include <string.h>
#include <algorithm>
#include <string>

using umbra::testing::TString;

using namespace umbra;

namespace {

/// What is to be run for the target, and whether anything is; the room behind the buffer stays as
/// it was.
TString Compose(const TString& command, const TString& target, bool* composed = nullptr)
{
    TCHAR buffer[shellCommandCapacity + 8];
    std::fill_n(buffer, _countof(buffer), _T('#'));
    _tcscpy(buffer, command.c_str());
    const BOOL result = ComposeCommandLine(buffer, shellCommandCapacity, target.c_str());
    if (composed != nullptr)
        *composed = result != FALSE;
    for (size_t i = shellCommandCapacity; i < _countof(buffer); ++i)
        CHECK(buffer[i] == '#');
    return buffer;
}

} // namespace

TEST_CASE("a quoted placeholder is cut off at its opening quote, with all behind it")
{
    TCHAR command[] = _T("\"C:\\a b\\run.exe\" \"%1\" -x");
    CHECK(CutPlaceholder(command));
    CHECK(TString(command) == _T("\"C:\\a b\\run.exe\" "));
}

TEST_CASE("a bare placeholder is cut off at the percent sign, with all behind it")
{
    TCHAR command[] = _T("run.exe %1 /p %2");
    CHECK(CutPlaceholder(command));
    CHECK(TString(command) == _T("run.exe "));
}

TEST_CASE("the quoted form is looked for first, wherever it stands")
{
    TCHAR command[] = _T("run.exe %1 \"%1\"");
    CHECK(CutPlaceholder(command));
    CHECK(TString(command) == _T("run.exe %1 "));
}

TEST_CASE("a command without a placeholder stays whole")
{
    TCHAR command[] = _T("run.exe %2 50%");
    CHECK_FALSE(CutPlaceholder(command));
    CHECK(TString(command) == _T("run.exe %2 50%"));
}

// Kept: the target is never quoted, not even where the placeholder was.
TEST_CASE("the target follows the cut command after one blank of its own, without quotes")
{
    CHECK(Compose(_T("\"C:\\a b\\run.exe\" \"%1\""), _T("C:\\my file.txt")) ==
          _T("\"C:\\a b\\run.exe\"  C:\\my file.txt"));
    CHECK(Compose(_T("run.exe %1 -option"), _T("x")) == _T("run.exe  x"));
    CHECK(Compose(_T("run.exe"), _T("x y")) == _T("run.exe x y"));
    CHECK(Compose(_T("%1"), _T("x")) == _T(" x"));
}

TEST_CASE("an empty command runs nothing")
{
    bool composed = true;
    Compose(TString(), _T("target"), &composed);
    CHECK_FALSE(composed);
}

TEST_CASE("a command that does not fit its buffer runs nothing, one that just fits runs")
{
    // The buffer holds the command, a blank, the target and the terminator.
    const TString command = _T("run.exe");
    const size_t room = shellCommandCapacity - command.size() - 2;
    bool composed = false;
    CHECK(Compose(command, TString(room, 'a'), &composed).size() == shellCommandCapacity - 1);
    CHECK(composed);
    Compose(command, TString(room + 1, 'a'), &composed);
    CHECK_FALSE(composed);
    Compose(command, TString(10000, 'a'), &composed);
    CHECK_FALSE(composed);
    Compose(TString(shellCommandCapacity - 1, 'c'), TString(), &composed);
    CHECK_FALSE(composed);
}

#ifndef UNICODE
TEST_CASE("a trail byte that looks like a percent sign or quote is no placeholder")
{
    const int former = _getmbcp();
    REQUIRE(_setmbcp(932) == 0);
    // In code page 932, 0x83 leads and takes the next byte with it; '%' and '"' are no trail
    // bytes there, so the pair stands for itself and must not be taken apart.
    TCHAR command[] = _T("run.exe \x83\x25\x31 x");
    const BOOL cut = CutPlaceholder(command);
    TCHAR following[] = _T("run.exe \x83\x5C%1"); // Right behind a character of two bytes.
    const BOOL followingCut = CutPlaceholder(following);
    _setmbcp(former);
    CHECK_FALSE(cut);
    CHECK(followingCut);
    CHECK(TString(following) == _T("run.exe \x83\x5C"));
    CHECK(TString(command) == _T("run.exe \x83\x25\x31 x"));
}
#endif
