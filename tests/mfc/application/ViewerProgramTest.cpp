// A program as the newer wizard leaves it, which shows pictures, driven from outside.
#include <atlimage.h>

#include <doctest/doctest.h>

#include "tests/mfc/MessageBoxText.h"
#include "tests/mfc/application/Program.h"
#include "tests/mfc/files/TestFolder.h"
#include "tests/mfc/programs/Viewer/resource.h"

#include <string>

namespace {

/// The field for the name in the system's dialog, an edit or a combo box.
HWND NameField(HWND dialog)
{
    constexpr int combo = 0x47c, edit = 0x480; // cmb13 and edt1.
    const HWND field = ::GetDlgItem(dialog, combo);
    return field != nullptr ? field : ::GetDlgItem(dialog, edit);
}

class Viewer : public Program
{
public:
    Viewer() : Program("mfc-test-viewer.exe\"", "Viewer") {}

    /// Answers the dialog for files that a button opens.
    void ChooseFile(int button, const char* title, const CString& path)
    {
        PostClick(button);
        const HWND dialog = Find(title);
        REQUIRE(dialog != nullptr);
        REQUIRE(WaitFor([&] { return NameField(dialog) != nullptr; }));
        CHECK_FALSE(::IsWindowEnabled(window));
        ::SendMessage(NameField(dialog), WM_SETTEXT, 0,
                      reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(path)));
        ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
        REQUIRE(WaitFor([&] { return !::IsWindow(dialog); }));
    }
    bool Tells(const char* info)
    {
        return WaitFor([&] { return Text(IDC_INFO) == info; });
    }
};

void SavePicture(const CString& path)
{
    CImage picture;
    REQUIRE(picture.Create(6, 3, 24));
    for (int x = 0; x < 6; ++x) {
        for (int y = 0; y < 3; ++y)
            picture.SetPixelRGB(x, y, 200, 100, 50);
    }
    picture.SetPixel(5, 2, RGB(1, 2, 3));
    REQUIRE(picture.Save(path) == S_OK);
}

} // namespace

TEST_CASE("a picture is opened through the dialog for files, shown, and saved in another format")
{
    const TestFolder folder;
    SavePicture(folder / _T("small.bmp"));
    Viewer program;
    CHECK(program.Text(IDC_INFO) == "No picture");
    CHECK_FALSE(::IsWindowEnabled(::GetDlgItem(program.window, IDC_SAVE)));
    program.ChooseFile(IDC_OPEN, "Open", folder / _T("small.bmp"));
    REQUIRE(program.Tells("small.bmp: 6 x 3"));
    CHECK(WaitFor([&] { return ::IsWindowEnabled(::GetDlgItem(program.window, IDC_SAVE)); }));

    program.ChooseFile(IDC_SAVE, "Save As", folder / _T("other"));
    const CString saved = folder / _T("other.png");
    CImage copy;
    REQUIRE(WaitFor([&] { return SUCCEEDED(copy.Load(saved)); }));
    CHECK(copy.GetWidth() == 6);
    CHECK(copy.GetHeight() == 3);
    CHECK(copy.GetPixel(0, 0) == RGB(200, 100, 50));
    CHECK(copy.GetPixel(5, 2) == RGB(1, 2, 3));
    ::PostMessageA(program.window, WM_COMMAND, IDCANCEL, 0);
    CHECK(program.ExitCode() == 0);
}

TEST_CASE("a file that is no picture is refused, and the one before stays")
{
    const TestFolder folder;
    SavePicture(folder / _T("small.bmp"));
    WriteFile(folder / _T("broken.bmp"), "BM, but nothing more");
    Viewer program;
    program.ChooseFile(IDC_OPEN, "Open", folder / _T("small.bmp"));
    REQUIRE(program.Tells("small.bmp: 6 x 3"));
    program.ChooseFile(IDC_OPEN, "Open", folder / _T("broken.bmp"));
    const HWND box = program.Find("mfc-test-viewer");
    REQUIRE(box != nullptr);
    CHECK(MessageBoxText(box) == _T("This is not a picture."));
    ::PostMessageA(box, WM_COMMAND, IDOK, 0);
    CHECK(WaitFor([&] { return !::IsWindow(box); }));
    CHECK(program.Tells("small.bmp: 6 x 3"));
}

TEST_CASE("the newer wizard's about box opens from the system menu")
{
    Viewer program;
    ::PostMessageA(program.window, WM_SYSCOMMAND, IDM_ABOUTBOX, 0);
    const HWND about = program.Find("About Viewer");
    REQUIRE(about != nullptr);
    CHECK_FALSE(::IsWindowEnabled(program.window));
    ::PostMessageA(about, WM_COMMAND, IDOK, 0);
    CHECK(WaitFor([&] { return !::IsWindow(about); }));
    CHECK(WaitFor([&] { return ::IsWindowEnabled(program.window) != FALSE; }));
    ::ShowWindow(program.window, SW_MINIMIZE);
    CHECK(WaitFor([&] { return ::IsIconic(program.window) != FALSE; }));
    ::ShowWindow(program.window, SW_RESTORE);
    CHECK(WaitFor([&] { return ::IsIconic(program.window) == FALSE; }));
}
