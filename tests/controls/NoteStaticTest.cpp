#include "controls/NoteStatic.h"

#include "tests/LibraryFiles.h"
#include "tests/controls/LabelHost.h"

#include "testing/CallFault.h"
#include "testing/GdiObjects.h"
#include "testing/ImportHook.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

const CRect place(50, 60, 250, 100);

/// A note over a control that exists already.
struct Note
{
    Note() { control.SubclassWindow(host.AddStatic(place, _T("A note"))); }
    LabelHost host;
    CNoteStatic control;
};

/// The font that the window says it has.
HFONT FontOf(CWnd& window)
{
    return reinterpret_cast<HFONT>(window.SendMessage(WM_GETFONT));
}

} // namespace

TEST_CASE("a note without a font of its own is drawn exactly as a label")
{
    Note note;
    const Picture shown = note.host.Show();
    LabelHost host;
    CStaticTS label;
    label.SubclassWindow(host.AddStatic(place, _T("A note")));
    CHECK(host.Show().Compare(shown) == "the same");
}

TEST_CASE("the copied font looks the same and is an object of its own")
{
    Note note;
    const Picture before = note.host.Show();
    const HFONT dialogs = FontOf(note.control);
    note.control.CopyWindowFont();
    const HFONT own = FontOf(note.control);
    CHECK(own != dialogs);
    LOGFONT a = {}, b = {};
    ::GetObject(dialogs, sizeof(a), &a);
    ::GetObject(own, sizeof(b), &b);
    CHECK(memcmp(&a, &b, sizeof(LOGFONT)) == 0);
    CHECK_FALSE(note.control.m_bOwnFont);
    CHECK(note.host.Show().Compare(before) == "the same");
}

TEST_CASE("a copy of an underlined font loses the underline, because the note is no link")
{
    Note note;
    CFont underlined;
    underlined.CreateFont(-13, 0, 0, 0, FW_NORMAL, FALSE, TRUE, FALSE, ANSI_CHARSET, 0, 0, 0, 0,
                          _T("Arial"));
    note.control.SetFont(&underlined);
    note.control.CopyWindowFont();
    LOGFONT font = {};
    ::GetObject(FontOf(note.control), sizeof(font), &font);
    CHECK(font.lfUnderline == 0);
}

TEST_CASE("where no font can be made the note falls back to the system's")
{
    Note note;
    {
        const FailAlways fonts(FindModule(UMBRA_DLL), "gdi32", TEXT_FUNCTION("CreateFontIndirect"));
        REQUIRE(fonts.IsInstalled());
        note.control.CopyWindowFont();
    }
    CHECK(FontOf(note.control) == nullptr);
    CHECK(note.host.Show().Contains(RGB(0, 0, 0)));
}

// Kept: the copy lives until the process ends.
TEST_CASE("each copy leaves its fonts behind")
{
    Note note;
    note.control.CopyWindowFont();
    note.control.ShowWindow(SW_HIDE); // Its paints would leave fonts of their own.
    const BalancedGdi objects;
    for (int i = 0; i < 5; ++i)
        note.control.CopyWindowFont();
    // The copy, and the one that takes the link state.
    CHECK(objects.Describe() == "fonts +10");
}

TEST_CASE("a note's own map is empty and leads to the label's")
{
    class Peek : public CNoteStatic
    {
    public:
        using CNoteStatic::GetBaseMessageMap;
        using CNoteStatic::GetMessageMap;
        static const AFX_MSGMAP* LabelMap()
        {
            class Label : public CStaticTS
            {
            public:
                using CStaticTS::GetMessageMap;
            };
            return Label().GetMessageMap();
        }
    };
    const Peek note;
    CHECK(note.GetBaseMessageMap() == Peek::LabelMap());
    CHECK(note.GetMessageMap() != Peek::LabelMap());
}
