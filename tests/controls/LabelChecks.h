// What the tests of all label classes do and check in the same way.
#pragma once

#include "tests/ForeignFolder.h"
#include "tests/LibraryFiles.h"
#include "tests/controls/LabelHost.h"
#include "tests/controls/ShellSpy.h"
#include "tests/programs/HelpProgram.h"

#include "testing/CallFault.h"
#include "testing/GdiObjects.h"
#include "testing/Input.h"
#include "testing/Picture.h"
#include "testing/Text.h"

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
    explicit LabelOver(LPCTSTR text, DWORD style = SS_NOTIFY, const CRect& place = labelPlace)
    {
        control.SubclassWindow(host.AddStatic(place, text, style));
    }

    void Press() { control.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3)); }

    /// Has the label set the cursor, which is a cross before.
    LRESULT AskCursor()
    {
        ::SetCursor(::LoadCursor(nullptr, IDC_CROSS));
        return control.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(control.m_hWnd),
                                   MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    }

    void Repaint()
    {
        control.Invalidate();
        control.UpdateWindow();
    }

    /// What the host shows, with nothing under the label of what it or the system drew before.
    umbra::testing::Picture ShowAfresh()
    {
        control.ShowWindow(SW_HIDE);
        host.Show();
        control.ShowWindow(SW_SHOWNA);
        return host.Show();
    }

    LabelHost host;
    Control control;
};

/// The font that the window says it has.
inline HFONT FontOf(CWnd& window)
{
    return reinterpret_cast<HFONT>(window.SendMessage(WM_GETFONT));
}

/// That font's description.
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
    const umbra::testing::Picture shown = label.ShowAfresh().Crop(client);

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
    const CountCalls cursors(FindModule(UMBRA_DLL), "user32", "CopyIcon");
    const CountCalls libraries(FindModule(UMBRA_DLL), "kernel32", TEXT_FUNCTION("LoadLibrary"));
    const SIZE_T memory = WorkingSet();
    for (int i = 0; i < 10000; ++i)
        move();
    CHECK(WorkingSet() < memory + 512 * 1024);
    CHECK(cursors.Calls() == 0);
    CHECK(libraries.Calls() == 0);
    CHECK_MESSAGE(objects.IsBalanced(), objects.Describe());
}

/// The keyed picture Next.gif is at the corner of a label without text.
template <class Label>
void CheckShowsKeyedNext(Label& label)
{
    const umbra::testing::Picture shown = label.ShowAfresh().Crop(labelPlace);
    CHECK_FALSE(shown.Contains(black));
    const CRect picture = shown.BoundsOfOthers(green);
    CHECK(picture.right <= 19);
    CHECK(picture.bottom <= 19);
    CHECK(picture.Width() > 10);
}

/// A label of the class loads Next.gif from a folder beyond ASCII. `load` is the class's operation
/// that shows a picture file, here and below.
template <class Control, class Load>
void CheckPictureBeyondAscii(Load load)
{
    const ForeignFolder folder;
    REQUIRE(folder.IsThere());
    LabelOver<Control> label(_T(""));
    label.control.SetTransparentColor(black);
    CHECK((label.control.*load)(folder.ImagePath(_T("Next.gif")).c_str()) == TRUE);
    CheckShowsKeyedNext(label);
}

/// A picture that does not load leaves a label as it was, without a picture or with its former one.
template <class Control, class Load>
void CheckMissingPictureChangesNothing(Load load)
{
    LabelOver<Control> label(_T(""));
    label.control.SetTransparentColor(black);
    CHECK((label.control.*load)(_T("no such file.gif")) == TRUE);
    CHECK(label.control.m_bmpPicture.GetSafeHandle() == nullptr);
    const umbra::testing::Picture empty = label.host.Show();
    CHECK(empty.CountOf(green) == empty.Width() * empty.Height());

    (label.control.*load)(ImagePath(_T("Next.gif")).c_str());
    const HGDIOBJ before = label.control.m_bmpPicture.GetSafeHandle();
    CHECK(before != nullptr);
    CHECK((label.control.*load)(_T("no such file.gif")) == TRUE);
    CHECK(label.control.m_bmpPicture.GetSafeHandle() == before);
    CheckShowsKeyedNext(label);
}

/// A key colour that comes after the picture builds no mask until the next picture.
template <class Control, class Load>
void CheckLaterKeyWaits(Load load)
{
    LabelOver<Control> label(_T(""));
    (label.control.*load)(ImagePath(_T("Next.gif")).c_str());
    label.control.SetTransparentColor(black);
    CHECK(label.control.m_bmpMask.GetSafeHandle() == nullptr);
    label.host.Show(); // Not keyed, and no harm done.
    (label.control.*load)(ImagePath(_T("Next.gif")).c_str());
    CHECK(label.control.m_bmpMask.GetSafeHandle() != nullptr);
    CheckShowsKeyedNext(label);
}

/// The picture that was replaced, and the picture and mask of a label that is gone, are bitmaps
/// still. They are deleted here.
template <class Control, class Load>
void CheckBitmapsOutlive(Load load)
{
    HGDIOBJ replaced, last, mask;
    {
        LabelOver<Control> label(_T(""));
        label.control.SetTransparentColor(black);
        (label.control.*load)(ImagePath(_T("Next.gif")).c_str());
        replaced = label.control.m_bmpPicture.GetSafeHandle();
        CHECK(label.control.m_bmpMask.GetSafeHandle() != nullptr);
        (label.control.*load)(ImagePath(_T("Back.gif")).c_str());
        last = label.control.m_bmpPicture.GetSafeHandle();
        mask = label.control.m_bmpMask.GetSafeHandle();
        CHECK(last != replaced);
    }
    // Kept: the former picture is not deleted.
    CHECK(::GetObjectType(replaced) == OBJ_BITMAP);
    // Kept: the bitmaps outlive the label.
    CHECK(::GetObjectType(last) == OBJ_BITMAP);
    CHECK(::GetObjectType(mask) == OBJ_BITMAP);
    for (const HGDIOBJ bitmap : {replaced, last, mask})
        ::DeleteObject(bitmap);
}
