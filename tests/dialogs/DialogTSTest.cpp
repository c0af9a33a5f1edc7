#include "dialogs/DialogTS.h"

#include "units/DialogUnits.h"

#include "tests/dialogs/DialogChecks.h"

#include "testing/Canvas.h"
#include "testing/GdiObjects.h"
#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Page.h"
#include "testing/Picture.h"
#include "testing/Pump.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

const COLORREF red = RGB(200, 30, 40);
const COLORREF green = RGB(20, 160, 60);
const COLORREF blue = RGB(10, 20, 220);
const COLORREF white = RGB(255, 255, 255);
const COLORREF black = RGB(0, 0, 0);

/// A dialog that watches what reaches the system's own handling, and can answer in its place.
class TestDialog : public CDialogTS
{
public:
    TestDialog() : CDialogTS(0U) {}

    bool m_refuseCreation = false;
    LRESULT m_eraseAnswer = -1; ///< What the system's own erase is to answer, when not -1.
    int m_defaultErases = 0;
    bool m_postedBeforeDefault = false;
    int m_defaultPresses = 0;
    CPoint m_dragTo; ///< Where the real pointer goes, in screen pixels, once a move has begun.
    CRect m_asked;   ///< The creation record as the default procedure got it.

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CREATE) {
            const CREATESTRUCT& creation = *reinterpret_cast<CREATESTRUCT*>(lParam);
            m_asked = CRect(CPoint(creation.x, creation.y), CSize(creation.cx, creation.cy));
            if (m_refuseCreation)
                return -1;
        }
        if (message == WM_ERASEBKGND) {
            ++m_defaultErases;
            if (m_eraseAnswer != -1)
                return m_eraseAnswer;
        }
        if (message == WM_ENTERSIZEMOVE) {
            // The system's move loop runs from here on; the pointer moves and lets go in it.
            ::SetCursorPos(m_dragTo.x, m_dragTo.y);
            INPUT release = {};
            release.type = INPUT_MOUSE;
            release.mi.dwFlags = MOUSEEVENTF_LEFTUP;
            ::SendInput(1, &release, sizeof(release));
        }
        if (message == WM_LBUTTONDOWN) {
            ++m_defaultPresses;
            MSG posted;
            m_postedBeforeDefault = ::PeekMessage(&posted, m_hWnd, WM_NCLBUTTONDOWN,
                                                  WM_NCLBUTTONDOWN, PM_NOREMOVE) != FALSE;
        }
        return CDialogTS::DefWindowProc(message, wParam, lParam);
    }
};

/// A template without controls or frame, in dialog units.
DialogTemplate PlainTemplate(int width = 150, int height = 100)
{
    return DialogTemplate(20, 20, width, height, WS_POPUP | WS_VISIBLE, _T("A caption"));
}

/// A bitmap filled with a colour, the left half with another one.
HBITMAP MakeBitmap(int width, int height, COLORREF left, COLORREF right)
{
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ former = ::SelectObject(memory, bitmap);
    const HBRUSH leftBrush = ::CreateSolidBrush(left);
    const HBRUSH rightBrush = ::CreateSolidBrush(right);
    const RECT leftHalf = {0, 0, width / 2, height};
    const RECT rightHalf = {width / 2, 0, width, height};
    ::FillRect(memory, &leftHalf, leftBrush);
    ::FillRect(memory, &rightHalf, rightBrush);
    ::DeleteObject(leftBrush);
    ::DeleteObject(rightBrush);
    ::SelectObject(memory, former);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return bitmap;
}

/// Has the dialog erase its background onto the canvas.
LRESULT Erase(CWnd& dialog, const Canvas& canvas)
{
    return dialog.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc()));
}

/// Whether the handle is that of a bitmap which is still there.
bool IsBitmap(HGDIOBJ handle)
{
    return ::GetObjectType(handle) == OBJ_BITMAP;
}

/// What a supplier hands to a dialog; deleted here, unless the dialog has done so.
struct Supplied
{
    const HBITMAP image = MakeBitmap(10, 10, red, red);
    const HBITMAP mask = MakeBitmap(10, 10, black, black);

    Supplied() = default;
    ~Supplied()
    {
        ::DeleteObject(image);
        ::DeleteObject(mask);
    }
    Supplied(const Supplied&) = delete;
    Supplied& operator=(const Supplied&) = delete;

    void HandTo(TestDialog& dialog) const
    {
        dialog.m_bmpBack.Attach(image);
        dialog.m_bmpMask.Attach(mask);
        dialog.m_bMaskBuilt = TRUE;
    }
};

} // namespace

TEST_CASE("every mode is off after construction")
{
    const TestDialog dialog;
    CHECK_FALSE(dialog.m_bShaped);
    CHECK_FALSE(dialog.m_bSolidFill);
    CHECK_FALSE(dialog.m_bCaptionText);
    CHECK_FALSE(dialog.m_bDragAnywhere);
    CHECK_FALSE(dialog.m_bMaskBuilt);
    CHECK_FALSE(dialog.m_bHasBitmap);
    CHECK(dialog.m_hBackBrush == ::GetStockObject(NULL_BRUSH));
    CHECK(dialog.m_bmpBack.GetSafeHandle() == nullptr);
    CHECK(dialog.m_bmpMask.GetSafeHandle() == nullptr);
}

TEST_CASE("with every mode off the erase answers what the default procedure answers")
{
    TestDialog dialog;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    const Canvas canvas(300, 200, green);
    for (const LRESULT answer : {0, 1, 7}) {
        dialog.m_eraseAnswer = answer;
        CHECK(Erase(dialog, canvas) == answer);
    }
    CHECK(canvas.ToPicture().CountOf(green) == 300 * 200);
}

// Kept: the area is filled, yet the system is told it still needs erasing.
TEST_CASE("a solid fill covers the client area and still answers that it is not erased")
{
    TestDialog dialog;
    dialog.m_bSolidFill = TRUE;
    dialog.m_crFill = red;
    Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    CRect client;
    dialog.GetClientRect(&client);
    const Canvas canvas(client.Width() + 10, client.Height() + 10, white);
    dialog.m_defaultErases = 0;
    CHECK(Erase(dialog, canvas) == FALSE);
    CHECK(dialog.m_defaultErases == 0);
    CHECK(canvas.ToPicture().CountOf(red) == client.Width() * client.Height());
    CHECK(page.Show().CountOf(red) == client.Width() * client.Height());
}

TEST_CASE("a small bitmap is copied to the origin, neither stretched nor tiled")
{
    TestDialog dialog;
    const HBITMAP bitmap = MakeBitmap(100, 50, red, blue);
    dialog.m_bmpBack.Attach(bitmap);
    dialog.m_bHasBitmap = TRUE;
    const Page page(dialog, PlainTemplate(200, 120));
    REQUIRE(page.IsOpen());
    const Canvas canvas(400, 300, green);
    CHECK(Erase(dialog, canvas) == TRUE);
    const Picture shown = canvas.ToPicture();
    CHECK(shown.At(0, 0) == red);
    CHECK(shown.At(49, 49) == red);
    CHECK(shown.At(50, 0) == blue);
    CHECK(shown.At(99, 49) == blue);
    CHECK(shown.At(100, 0) == green);
    CHECK(shown.At(0, 50) == green);
    CHECK(shown.CountOf(red) == 50 * 50);
    CHECK(shown.CountOf(blue) == 50 * 50);
    dialog.FreeBitmaps();
    ::DeleteObject(bitmap);
}

TEST_CASE("a large bitmap is cut to the client area")
{
    TestDialog dialog;
    const HBITMAP bitmap = MakeBitmap(900, 700, red, red);
    dialog.m_bmpBack.Attach(bitmap);
    dialog.m_bHasBitmap = TRUE;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    CRect client;
    dialog.GetClientRect(&client);
    REQUIRE(client.Width() < 900);
    const Canvas canvas(900, 700, green);
    CHECK(Erase(dialog, canvas) == TRUE);
    CHECK(canvas.ToPicture().CountOf(red) == client.Width() * client.Height());
    dialog.FreeBitmaps();
    ::DeleteObject(bitmap);
}

TEST_CASE("a bitmap mode without a bitmap draws nothing and answers that the area is erased")
{
    TestDialog dialog;
    dialog.m_bHasBitmap = TRUE;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    const Canvas canvas(300, 200, green);
    CHECK(Erase(dialog, canvas) == TRUE);
    CHECK(canvas.ToPicture().CountOf(green) == 300 * 200);
}

TEST_CASE("no mode fails without a device context")
{
    TestDialog dialog;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    dialog.m_bSolidFill = TRUE;
    CHECK(dialog.SendMessage(WM_ERASEBKGND, 0) == FALSE);
    dialog.m_bSolidFill = FALSE;
    dialog.m_bHasBitmap = TRUE;
    CHECK(dialog.SendMessage(WM_ERASEBKGND, 0) == TRUE);
    dialog.m_bShaped = TRUE;
    CHECK(dialog.SendMessage(WM_ERASEBKGND, 0) == TRUE);
}

// Kept: the caption line has this place whatever the width of the dialog.
TEST_CASE("the caption line is white, one line, centred in its fixed box")
{
    TestDialog dialog;
    const HBITMAP bitmap = MakeBitmap(600, 400, black, black);
    dialog.m_bmpBack.Attach(bitmap);
    dialog.m_bHasBitmap = TRUE;
    dialog.m_bCaptionText = TRUE;
    for (const int width : {100, 300}) {
        const Page page(dialog, PlainTemplate(width, 60));
        REQUIRE(page.IsOpen());
        dialog.SetWindowText(_T("HHHH"));
        const Canvas canvas(600, 400, black);
        CHECK(Erase(dialog, canvas) == TRUE);
        const Picture shown = canvas.ToPicture();
        CHECK(shown.Contains(white));
        const CRect text = shown.BoundsOfOthers(black);
        CHECK(text.left >= 11);
        CHECK(text.top >= 4);
        CHECK(text.right <= 270);
        CHECK(text.bottom <= 18);
        CHECK(text.Height() <= 8);
        // Letters of one shape on both sides: their box is centred in the line's.
        CHECK(abs((text.left + text.right) - (11 + 270)) <= 2);
        CHECK(abs((text.top + text.bottom) - (4 + 18)) <= 2);
    }
    dialog.FreeBitmaps();
    ::DeleteObject(bitmap);
}

TEST_CASE("the caption line needs its flag and the bitmap mode")
{
    TestDialog dialog;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    dialog.m_bCaptionText = TRUE;
    dialog.m_bSolidFill = TRUE;
    dialog.m_crFill = black;
    const Canvas canvas(300, 60, black);
    Erase(dialog, canvas);
    CHECK_FALSE(canvas.ToPicture().Contains(white));

    dialog.m_bSolidFill = FALSE;
    dialog.m_bCaptionText = FALSE;
    dialog.m_bHasBitmap = TRUE;
    Erase(dialog, canvas);
    CHECK_FALSE(canvas.ToPicture().Contains(white));
}

// Kept: the font goes away while it is still selected, and the former one is not put back.
TEST_CASE("the caption's font and colours stay in the device context, the font itself goes")
{
    TestDialog dialog;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    dialog.m_bHasBitmap = TRUE;
    dialog.m_bCaptionText = TRUE;
    {
        const Canvas canvas(300, 60, black);
        const HGDIOBJ former = ::GetCurrentObject(canvas.Dc(), OBJ_FONT);
        Erase(dialog, canvas);
        CHECK(::GetTextColor(canvas.Dc()) == white);
        CHECK(::GetBkMode(canvas.Dc()) == TRANSPARENT);
        CHECK(::GetCurrentObject(canvas.Dc(), OBJ_FONT) != former);
    }
    const BalancedGdi objects;
    for (int i = 0; i < 20; ++i) {
        const Canvas canvas(300, 60, black);
        Erase(dialog, canvas);
    }
    CHECK_MESSAGE(objects.IsBalanced(), objects.Describe());
}

TEST_CASE("the shaped mode shows the image where the mask is black and keeps the rest")
{
    TestDialog dialog;
    dialog.m_bShaped = TRUE;
    dialog.m_bmpMask.Attach(MakeBitmap(600, 400, black, white));
    dialog.m_bmpBack.Attach(MakeBitmap(600, 400, blue, black));
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    CRect window;
    dialog.GetWindowRect(&window);
    REQUIRE(window.Width() < 600);

    const Canvas canvas(600, 400, green);
    CHECK(Erase(dialog, canvas) == TRUE);
    const Picture shown = canvas.ToPicture();
    CHECK(shown.At(0, 0) == blue);
    CHECK(shown.At(min(299, window.Width() - 1), window.Height() - 1) == blue);
    CHECK(shown.At(window.Width(), 0) == green);
    CHECK(shown.At(0, window.Height()) == green);
    CHECK(shown.CountOf(blue) == min(300, window.Width()) * window.Height());
}

TEST_CASE("the shape is as large as the whole window, its caption and frame included")
{
    TestDialog dialog;
    dialog.m_bShaped = TRUE;
    dialog.m_bmpMask.Attach(MakeBitmap(600, 400, black, black));
    dialog.m_bmpBack.Attach(MakeBitmap(600, 400, blue, blue));
    const Page page(dialog, DialogTemplate(20, 20, 150, 100,
                                           WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_THICKFRAME));
    REQUIRE(page.IsOpen());
    CRect window, client;
    dialog.GetWindowRect(&window);
    dialog.GetClientRect(&client);
    REQUIRE(client.Width() < window.Width());
    REQUIRE(client.Height() < window.Height());
    const Canvas canvas(600, 400, green);
    CHECK(Erase(dialog, canvas) == TRUE);
    CHECK(canvas.ToPicture().CountOf(blue) == window.Width() * window.Height());
    CHECK(canvas.ToPicture().At(window.Width() - 1, window.Height() - 1) == blue);
}

TEST_CASE("white parts of the mask keep what was there")
{
    TestDialog dialog;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    dialog.m_bmpMask.Attach(MakeBitmap(40, 20, black, white));
    dialog.m_bmpBack.Attach(MakeBitmap(40, 20, blue, black));
    const Canvas canvas(60, 30, green);
    dialog.DrawShaped(CDC::FromHandle(canvas.Dc()), 40, 20);
    const Picture shown = canvas.ToPicture();
    CHECK(shown.CountOf(blue) == 20 * 20);
    CHECK(shown.At(19, 19) == blue);
    CHECK(shown.At(20, 0) == green);
    CHECK(shown.CountOf(green) == 60 * 30 - 20 * 20);
}

TEST_CASE("a shape without an image clears what the mask covers")
{
    TestDialog dialog;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    dialog.m_bmpMask.Attach(MakeBitmap(40, 20, black, white));
    const Canvas canvas(60, 30, green);
    dialog.DrawShaped(CDC::FromHandle(canvas.Dc()), 40, 20);
    const Picture shown = canvas.ToPicture();
    CHECK(shown.CountOf(black) == 20 * 20);
    CHECK(shown.CountOf(green) == 60 * 30 - 20 * 20);
}

TEST_CASE("the shaped mode goes before the solid fill")
{
    TestDialog dialog;
    dialog.m_bShaped = TRUE;
    dialog.m_bSolidFill = TRUE;
    dialog.m_crFill = red;
    dialog.m_bmpMask.Attach(MakeBitmap(600, 400, black, black));
    dialog.m_bmpBack.Attach(MakeBitmap(600, 400, blue, blue));
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    const Canvas canvas(600, 400, green);
    CHECK(Erase(dialog, canvas) == TRUE);
    CHECK_FALSE(canvas.ToPicture().Contains(red));
    CHECK(canvas.ToPicture().Contains(blue));
}

// Kept: this paint cycle takes the update region, so nothing else is painted in it.
TEST_CASE("a shaped erase takes the update region with it")
{
    TestDialog dialog;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    dialog.m_bShaped = TRUE;
    dialog.Invalidate();
    REQUIRE(dialog.GetUpdateRect(nullptr));
    const Canvas canvas(10, 10);
    Erase(dialog, canvas);
    CHECK_FALSE(dialog.GetUpdateRect(nullptr));
}

TEST_CASE("the solid fill goes before the bitmap")
{
    TestDialog dialog;
    const HBITMAP bitmap = MakeBitmap(600, 400, blue, blue);
    dialog.m_bmpBack.Attach(bitmap);
    dialog.m_bHasBitmap = TRUE;
    dialog.m_bSolidFill = TRUE;
    dialog.m_crFill = red;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    const Canvas canvas(600, 400, green);
    CHECK(Erase(dialog, canvas) == FALSE);
    CHECK_FALSE(canvas.ToPicture().Contains(blue));
    dialog.FreeBitmaps();
    ::DeleteObject(bitmap);
}

// Kept: a bitmap that was handed in for display stays valid for its supplier.
TEST_CASE("displayed bitmaps stay valid for their supplier when the dialog lets go of them")
{
    const Supplied bitmaps;
    {
        TestDialog dialog;
        bitmaps.HandTo(dialog);
        dialog.m_bHasBitmap = TRUE;
        dialog.FreeBitmaps();
        CHECK(dialog.m_bmpBack.GetSafeHandle() == nullptr);
        CHECK(dialog.m_bmpMask.GetSafeHandle() == nullptr);
        CHECK_FALSE(dialog.m_bHasBitmap);
        CHECK_FALSE(dialog.m_bMaskBuilt);
    }
    CHECK(IsBitmap(bitmaps.image));
    CHECK(IsBitmap(bitmaps.mask));
    {
        TestDialog dialog;
        bitmaps.HandTo(dialog);
        dialog.m_bHasBitmap = TRUE;
    }
    CHECK(IsBitmap(bitmaps.image));
    CHECK(IsBitmap(bitmaps.mask));
}

TEST_CASE("bitmaps that are not displayed belong to the dialog and go with it")
{
    const Supplied bitmaps;
    {
        TestDialog dialog;
        bitmaps.HandTo(dialog);
        dialog.FreeBitmaps();
        CHECK(dialog.m_bmpBack.GetSafeHandle() == bitmaps.image);
        CHECK(dialog.m_bMaskBuilt);
    }
    CHECK_FALSE(IsBitmap(bitmaps.image));
    CHECK_FALSE(IsBitmap(bitmaps.mask));
}

TEST_CASE("a press reaches the default procedure and nothing else while dragging is off")
{
    TestDialog dialog;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    dialog.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 6));
    CHECK(dialog.m_defaultPresses == 1);
    MSG posted;
    CHECK_FALSE(
        ::PeekMessage(&posted, dialog.m_hWnd, WM_NCLBUTTONDOWN, WM_NCLBUTTONDOWN, PM_REMOVE));
}

TEST_CASE("with dragging on, a press is posted as one on the title bar, after the default")
{
    TestDialog dialog;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    dialog.m_bDragAnywhere = TRUE;
    dialog.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 6));
    CHECK(dialog.m_defaultPresses == 1);
    CHECK_FALSE(dialog.m_postedBeforeDefault);
    MSG posted;
    REQUIRE(::PeekMessage(&posted, dialog.m_hWnd, WM_NCLBUTTONDOWN, WM_NCLBUTTONDOWN, PM_REMOVE));
    CHECK(posted.wParam == HTCAPTION);
    CHECK(posted.lParam == MAKELPARAM(5, 6));
}

TEST_CASE("with dragging on, the real pointer moves the dialog from any point of it")
{
    TestDialog dialog;
    dialog.m_bDragAnywhere = TRUE;
    const Page page(dialog, PlainTemplate());
    REQUIRE(page.IsOpen());
    CRect before;
    dialog.GetWindowRect(&before);
    CPoint start(30, 30);
    REQUIRE(MovePointer(dialog.m_hWnd, start));
    dialog.ClientToScreen(&start);
    dialog.m_dragTo = start + CSize(60, 40);
    PressLeft();
    CRect after;
    WaitUntil([&] {
        dialog.GetWindowRect(&after);
        return after.TopLeft() != before.TopLeft();
    });
    CHECK(after.left - before.left == 60);
    CHECK(after.top - before.top == 40);
    CHECK(after.Size() == before.Size());
}

TEST_CASE("a dialog is created on the dialog-unit grid")
{
    TestDialog dialog;
    const Page page(dialog, DialogTemplate(13, 17, 151, 99, WS_POPUP | WS_VISIBLE));
    REQUIRE(page.IsOpen());

    CRect window;
    dialog.GetWindowRect(&window);
    CREATESTRUCT again = {};
    again.x = window.left;
    again.y = window.top;
    again.cx = window.Width();
    again.cy = window.Height();
    // What stands in the record, snapped already, is where the window stands.
    CHECK(dialog.m_asked == window);

    int x, y, cx, cy;
    PixelsToDialogUnits(again.x, again.y, again.cx, again.cy, &x, &y, &cx, &cy);
    int px, py, pcx, pcy;
    DialogUnitsToPixels(x, y, cx, cy, &px, &py, &pcx, &pcy);
    CHECK(px == window.left);
    CHECK(py == window.top);
}

TEST_CASE("the requested rectangle goes through dialog units and back")
{
    // A window of the dialog class, made with numbers of our own.
    TestDialog dialog;
    const BOOL created = dialog.CWnd::CreateEx(0, _T("#32770"), _T(""), WS_POPUP, 103, 59, 211, 97,
                                               static_cast<HWND>(nullptr), nullptr);
    REQUIRE(created);
    int x, y, cx, cy;
    PixelsToDialogUnits(103, 59, 211, 97, &x, &y, &cx, &cy);
    int px, py, pcx, pcy;
    DialogUnitsToPixels(x, y, cx, cy, &px, &py, &pcx, &pcy);
    CRect window;
    dialog.GetWindowRect(&window);
    CHECK(window == CRect(px, py, px + pcx, py + pcy));
    dialog.DestroyWindow();
}

TEST_CASE("a creation that the default procedure refuses fails and moves nothing")
{
    TestDialog dialog;
    dialog.m_refuseCreation = true;
    const DialogTemplate source = PlainTemplate();
    CHECK_FALSE(dialog.CreateIndirect(source.Get()));
    CHECK(dialog.m_hWnd == nullptr);
    CHECK_FALSE(dialog.m_asked.IsRectEmpty()); // The record had been replaced all the same.
}

TEST_CASE("a created dialog lies on top of the z-order")
{
    TestDialog first;
    const Page firstPage(first, PlainTemplate());
    TestDialog second;
    const Page secondPage(second, PlainTemplate());
    REQUIRE(secondPage.IsOpen());
    HWND above = ::GetWindow(second.m_hWnd, GW_HWNDPREV);
    while (above != nullptr && above != first.m_hWnd)
        above = ::GetWindow(above, GW_HWNDPREV);
    CHECK(above == nullptr);
}

TEST_CASE("a modal run answers what the dialog was ended with, and -1 without a template")
{
    class Ending : public CDialogTS
    {
    public:
        explicit Ending(UINT id) : CDialogTS(id) {}
        BOOL OnInitDialog() override
        {
            CDialogTS::OnInitDialog();
            EndDialog(42);
            return TRUE;
        }
    };
    Ending missing(60000);
    CHECK(missing.DoModal() == -1);

    Ending present(0);
    const DialogTemplate source = PlainTemplate();
    REQUIRE(present.InitModalIndirect(source.Get()));
    CHECK(present.DoModal() == 42);
}

TEST_CASE("a dialog leaves no graphics object behind")
{
    CheckNothingStays([] {
        TestDialog dialog;
        dialog.m_bSolidFill = TRUE;
        dialog.m_crFill = red;
        Page page(dialog, PlainTemplate());
        page.Show();
    });
}
