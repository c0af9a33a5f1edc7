// What the tests of all label classes do and check in the same way.
#pragma once

#include "tests/ForeignFolder.h"
#include "tests/controls/LabelHost.h"
#include "tests/controls/ShellSpy.h"
#include "tests/programs/HelpProgram.h"

#include "testing/CallFault.h"
#include "testing/GdiObjects.h"
#include "testing/Input.h"
#include "testing/Picture.h"

#include <doctest/doctest.h>

#include <string>

const COLORREF green = RGB(20, 160, 60); // What the host is filled with.
const COLORREF red = RGB(200, 30, 40);
const COLORREF blue = RGB(0, 0, 255);
const COLORREF black = RGB(0, 0, 0);

const CRect labelPlace(50, 60, 250, 100);

// There from the beginning: the toolkit looks for the hand once a process.
inline const HelpProgram help;

/// A label over a control that exists already, as in a dialog template.
template <class Control>
struct LabelOver
{
    explicit LabelOver(const char* text, DWORD style = SS_NOTIFY, const CRect& place = labelPlace)
    {
        control.SubclassWindow(host.AddStatic(place, text, style));
    }

    void Press() { control.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3)); }

    /// Has the label set the cursor, which is a cross before.
    LRESULT AskCursor()
    {
        ::SetCursor(::LoadCursor(NULL, IDC_CROSS));
        return control.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(control.m_hWnd),
                                   MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    }

    void Repaint()
    {
        control.Invalidate();
        control.UpdateWindow();
    }

    LabelHost host;
    Control control;
};

inline HFONT FontOf(CWnd& window)
{
    return reinterpret_cast<HFONT>(window.SendMessage(WM_GETFONT));
}

inline LOGFONT DescribeFont(CWnd& window)
{
    LOGFONT description = {};
    ::GetObject(FontOf(window), sizeof(description), &description);
    return description;
}

/// The label's font became an underlined one, and nothing else of it changed.
inline void CheckOnlyUnderlineDiffers(LOGFONT before, LOGFONT after)
{
    CHECK(after.lfUnderline != 0);
    before.lfUnderline = after.lfUnderline = 0;
    CHECK(memcmp(&before, &after, sizeof(LOGFONT)) == 0);
}

/// The label shows what DrawText with `font` gives in its window rectangle moved by `shift`. What
/// lies outside its client area (a border) is not looked at.
template <class Label>
void CheckTextIsDrawnAs(Label& label, HFONT font, COLORREF color, CSize shift, UINT format)
{
    CString text;
    label.control.GetWindowText(text);
    CRect window, client;
    label.control.GetWindowRect(&window);
    label.host.ScreenToClient(&window);
    label.control.GetClientRect(&client);
    label.control.MapWindowPoints(&label.host, &client);
    // Hidden in between, so that nothing of what the system drew at once stays under the text.
    label.control.ShowWindow(SW_HIDE);
    label.host.Show();
    label.control.ShowWindow(SW_SHOWNA);
    const umbra::testing::Picture shown = label.host.Show().Crop(client);

    label.control.ShowWindow(SW_HIDE);
    label.host.Show();
    CClientDC dc(&label.host);
    const HGDIOBJ former = ::SelectObject(dc.GetSafeHdc(), font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(color);
    dc.DrawText(text, -1, window + shift, format);
    ::SelectObject(dc.GetSafeHdc(), former);
    const umbra::testing::Picture drawn = umbra::testing::Picture::OfWindow(label.host.m_hWnd);
    CHECK(drawn.Contains(color));
    CHECK(drawn.Crop(client).Compare(shown) == "the same");
    label.control.ShowWindow(SW_SHOWNA);
}

/// Painting leaves the control's font where it is and no graphics object behind.
template <class Label>
void CheckPaintsLeaveNothing(Label& label)
{
    label.host.Show();
    const HFONT font = FontOf(label.control);
    const umbra::testing::BalancedGdi objects;
    for (int i = 0; i < 20; ++i)
        label.Repaint();
    CHECK_MESSAGE(objects.IsBalanced(), objects.Describe());
    CHECK(FontOf(label.control) == font);
}

/// 10,000 pointer moves over a link: no memory, no graphics object, no hand loaded once more.
template <class Label>
void CheckMovesLeaveNothing(Label& link)
{
    using namespace umbra::testing;
    link.host.Show();
    const auto move = [&] {
        link.AskCursor();
        link.control.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    };
    for (int i = 0; i < 10; ++i)
        move();
    const BalancedGdi objects;
    const CountCalls cursors(FindModule("umbra.dll"), "user32", "CopyIcon");
    const CountCalls libraries(FindModule("umbra.dll"), "kernel32", "LoadLibraryA");
    const SIZE_T memory = WorkingSet();
    for (int i = 0; i < 10000; ++i)
        move();
    CHECK(WorkingSet() < memory + 512 * 1024);
    CHECK(cursors.Calls() == 0);
    CHECK(libraries.Calls() == 0);
    CHECK_MESSAGE(objects.IsBalanced(), objects.Describe());
}

/// Bitmaps that outlive their label; they are deleted here.
inline void CheckBitmapsLive(std::initializer_list<HGDIOBJ> bitmaps)
{
    for (const HGDIOBJ bitmap : bitmaps) {
        CHECK(::GetObjectType(bitmap) == OBJ_BITMAP);
        ::DeleteObject(bitmap);
    }
}

/// The keyed picture Next.gif is at the corner of a label without text.
template <class Label>
void CheckShowsKeyedNext(Label& label)
{
    const umbra::testing::Picture shown = label.host.Show().Crop(labelPlace);
    CHECK_FALSE(shown.Contains(black));
    const CRect picture = shown.BoundsOfOthers(green);
    CHECK(picture.right <= 19);
    CHECK(picture.bottom <= 19);
    CHECK(picture.Width() > 10);
}
