#include "tests/robustness/Lives.h"
#include "tests/robustness/Stage.h"

#include "controls/HyperLink.h"
#include "controls/NoteStatic.h"
#include "controls/ShadeButton.h"
#include "dialogs/ModellessDlg.h"
#include "shell/PictureLoader.h"

#include "testing/GdiObjects.h"
#include "testing/Picture.h"
#include "testing/Pump.h"

#include <doctest/doctest.h>

#include <stdio.h>

#include <vector>

using namespace umbra::testing;

namespace {

/// Fills the table of GDI objects, and empties it at its end.
class FullTable
{
public:
    FullTable()
    {
        while (const HRGN object = ::CreateRectRgn(0, 0, 1, 1))
            m_objects.push_back(object);
    }
    ~FullTable()
    {
        for (const HGDIOBJ object : m_objects)
            ::DeleteObject(object);
    }
    FullTable(const FullTable&) = delete;
    FullTable& operator=(const FullTable&) = delete;

    int Count() const { return static_cast<int>(m_objects.size()); }
    /// Makes room for so many objects.
    void Free(int count)
    {
        for (; count > 0 && !m_objects.empty(); --count) {
            ::DeleteObject(m_objects.back());
            m_objects.pop_back();
        }
    }

private:
    std::vector<HGDIOBJ> m_objects;
};

/// Every kind of control in one window.
struct Everything
{
    Everything()
    {
        const auto place = [](int row) { return CRect(10, 10 + 30 * row, 150, 36 + 30 * row); };
        const auto label = [&](int row) {
            return stage.Add(_T("Static"), _T("A text"), SS_NOTIFY, place(row));
        };
        plain.SubclassWindow(label(0));
        keyed.SubclassWindow(label(1));
        keyed.SetTransparentColor(RGB(0, 0, 0));
        keyed.LoadPicture(ImageFile(_T("Info.gif")));
        note.SubclassWindow(label(2));
        note.CopyWindowFont();
        link.SubclassWindow(label(3));
        link.SetTransparentColor(RGB(0, 0, 0));
        link.SetBitmapFile(ImageFile(_T("InfoIcon1.gif")));
        link.SetURL(_T("target"));
        button.SubclassWindow(stage.Add(_T("Button"), _T("Go on"), WS_TABSTOP, place(4)));
        button.SetShade(SHADE_DIAGONAL, 0, 0, 50, RGB(180, 200, 230));
        button.SetPicture(ImageFile(_T("Ok.gif")), CxShadeButton::alignLeft, 19, 19, RGB(0, 0, 0));
    }

    Picture Show()
    {
        stage.Show();
        return Picture::OfWindow(stage.m_hWnd);
    }

    Stage stage;
    CStaticTS plain;
    CStaticTS keyed;
    CNoteStatic note;
    CHyperLink link;
    CxShadeButton button;
};

} // namespace

TEST_CASE("a full table of graphics objects spoils nothing for later")
{
    WarmUpGdi();
    Everything all;
    const Picture before = all.Show();
    REQUIRE_FALSE(before.IsEmpty());
    {
        FullTable full;
        printf("%d objects until the table was full\n", full.Count());
        REQUIRE(full.Count() > 1000);
        // From no room at all to room for a part of what a paint needs.
        for (const int room : {0, 1, 1, 1, 2, 3, 4, 8}) {
            full.Free(room);
            all.stage.Show();
            Stage::HoverAndPress(all.button.m_hWnd);
            Stage::HoverAndPress(all.link.m_hWnd);
            const HBITMAP loaded = LoadPictureBitmap(ImageFile(_T("Info.gif")));
            if (loaded != nullptr)
                ::DeleteObject(loaded);
            all.keyed.LoadPicture(ImageFile(_T("no such.gif")));
        }
    }
    Stage::MovePointer(all.stage.m_hWnd, {-20, -20});
    ::SendMessage(all.button.m_hWnd, WM_MOUSELEAVE, 0, 0);
    ::SetFocus(nullptr);
    PumpMessages();
    CHECK(all.Show().Compare(before) == "the same");
    const HBITMAP loaded = LoadPictureBitmap(ImageFile(_T("Info.gif")));
    CHECK(loaded != nullptr);
    ::DeleteObject(loaded);
    all.stage.Close();
}

TEST_CASE("every life can be lived while the table of graphics objects is full")
{
    for (const Life& life : LivesOfClasses()) {
        INFO(life.name);
        life.run();
        FullTable full;
        REQUIRE(full.Count() > 1000);
        life.run();
        full.Free(5);
        life.run();
    }
}
