#include "shell/WorkingFolder.h"

#include "tests/Folders.h"
#include "tests/ForeignFolder.h"

#include "testing/CallFault.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

#include <string>

using namespace umbra::testing;

namespace {

/// The working directory, however long.
std::wstring HereWide()
{
    std::wstring path(2048, L'\0');
    path.resize(::GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data()));
    return path;
}

/// The working directory, where it is of an ordinary length.
TString Here()
{
    TCHAR path[MAX_PATH] = _T("");
    ::GetCurrentDirectory(_countof(path), path);
    return path;
}

/// A folder whose path is longer than the class can remember; below the temporary ones.
class DeepFolder
{
public:
    DeepFolder()
    {
        std::wstring path = Root();
        ::CreateDirectoryW(path.c_str(), nullptr);
        for (int i = 0; i < depth; ++i) {
            path += L"\\" + std::wstring(nameLength, L'd');
            ::CreateDirectoryW((L"\\\\?\\" + path).c_str(), nullptr);
        }
        m_path = path;
    }
    ~DeepFolder()
    {
        for (std::wstring path = m_path; path.size() >= Root().size();
             path.resize(path.rfind(L'\\')))
            ::RemoveDirectoryW((L"\\\\?\\" + path).c_str());
    }
    DeepFolder(const DeepFolder&) = delete;
    DeepFolder& operator=(const DeepFolder&) = delete;

    /// False where the system refuses working directories as long as this one.
    bool Enter() const { return ::SetCurrentDirectoryW((m_path + L"\\").c_str()) != FALSE; }

private:
    static constexpr int depth = 4;
    static constexpr size_t nameLength = 100;

    static std::wstring Root()
    {
        const TString root = TemporaryPath(_T("umbra-deep"));
        return std::wstring(root.begin(), root.end());
    }

    std::wstring m_path;
};

} // namespace

TEST_CASE("the working directory moves for the length of a scope")
{
    const TString before = Here();
    REQUIRE(before != ProgramFolder());
    {
        const WorkingFolder folder(ProgramFolder().c_str());
        CHECK(Here() == ProgramFolder());
        {
            const WorkingFolder inner((ProgramFolder() + _T("\\images")).c_str());
            CHECK(Here() == ProgramFolder() + _T("\\images"));
        }
        CHECK(Here() == ProgramFolder());
    }
    CHECK(Here() == before);
}

TEST_CASE("the former directory is gone back to from wherever the process is at the end")
{
    const TString before = Here();
    {
        const WorkingFolder folder(ProgramFolder().c_str());
        ::SetCurrentDirectory((ProgramFolder() + _T("\\images")).c_str());
    }
    CHECK(Here() == before);
}

TEST_CASE("a folder that is not there moves nothing")
{
    const TString before = Here();
    for (LPCTSTR missing : {_T("C:\\no such folder"), _T("")}) {
        const WorkingFolder folder(missing);
        CHECK(Here() == before);
    }
    CHECK(Here() == before);
}

TEST_CASE("a folder beyond ASCII is moved to, and back from one")
{
    const ForeignFolder foreign;
    REQUIRE(foreign.IsThere());
    const TString before = Here();
    {
        const WorkingFolder folder(foreign.Path().c_str());
        CHECK(Here() == foreign.Path());
        {
            const WorkingFolder inner(ProgramFolder().c_str());
            CHECK(Here() == ProgramFolder());
        }
        CHECK(Here() == foreign.Path());
    }
    CHECK(Here() == before);
}

TEST_CASE("where the directory is too long to be remembered, the process stays where it is")
{
    const TString before = Here();
    {
        const DeepFolder deep;
        if (!deep.Enter()) {
            MESSAGE("this system has no working directories that long");
            return;
        }
        const std::wstring there = HereWide();
        REQUIRE(there.size() > MAX_PATH);
        {
            const WorkingFolder folder(ProgramFolder().c_str());
            CHECK((HereWide() == there));
        }
        CHECK((HereWide() == there));
        ::SetCurrentDirectory(before.c_str());
    }
    CHECK(Here() == before);
}
