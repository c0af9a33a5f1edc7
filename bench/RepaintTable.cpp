#include "bench/Race.h"
#include "bench/Sizes.h"
#include "bench/Tables.h"

#include "controls/ShadeButton.h"
#include "faces/ShadeGenerator.h"

#include <cstdio>

namespace {

constexpr TCHAR parentClass[] = _T("UmbraBenchParent");
constexpr TCHAR captionText[] = _T("Continue");
constexpr COLORREF tint = RGB(180, 200, 230);

// What the plain button shows: the face alone, or what a dialog's button shows besides.
struct PlainButton
{
    const PaletteDib* face;
    bool decorated;
};

const PlainButton* plainButton = nullptr;

// The least that an owner-drawn button without flicker takes: the face goes to a memory device
// context, with edge and caption if wanted, and from there to the window.
void DrawPlainButton(const DRAWITEMSTRUCT& item)
{
    const int width = item.rcItem.right;
    const int height = item.rcItem.bottom;
    const HDC memory = ::CreateCompatibleDC(item.hDC);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(item.hDC, width, height);
    const HGDIOBJ oldBitmap = ::SelectObject(memory, bitmap);
    plainButton->face->Draw(memory, 0, 0);
    if (plainButton->decorated) {
        RECT area = item.rcItem;
        const HGDIOBJ oldFont = ::SelectObject(memory, ::GetStockObject(DEFAULT_GUI_FONT));
        ::DrawEdge(memory, &area, EDGE_RAISED, BF_RECT);
        TCHAR caption[64];
        ::GetWindowText(item.hwndItem, caption, _countof(caption));
        ::SetBkMode(memory, TRANSPARENT);
        ::SetTextColor(memory, ::GetSysColor(COLOR_BTNTEXT));
        ::DrawText(memory, caption, -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        ::SelectObject(memory, oldFont);
    }
    ::BitBlt(item.hDC, 0, 0, width, height, memory, 0, 0, SRCCOPY);
    ::SelectObject(memory, oldBitmap);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
}

LRESULT CALLBACK PlainParentProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DRAWITEM) {
        DrawPlainButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }
    return ::DefWindowProc(window, message, wParam, lParam);
}

// A visible window for a button of the given size; it must not be covered, since what is covered is
// not painted.
HWND CreateParent(const FaceSize& size, int left)
{
    WNDCLASS windowClass = {};
    windowClass.lpfnWndProc = PlainParentProc;
    windowClass.hInstance = ::GetModuleHandle(nullptr);
    windowClass.lpszClassName = parentClass;
    ::RegisterClass(&windowClass); // Fails from the second time on, which is as well.
    return ::CreateWindow(parentClass, _T(""), WS_POPUP | WS_VISIBLE, left, 0, size.width,
                          size.height, nullptr, nullptr, windowClass.hInstance, nullptr);
}

HWND CreateButton(HWND parent, const FaceSize& size, DWORD style, LPCTSTR caption)
{
    return ::CreateWindow(_T("BUTTON"), caption, WS_CHILD | WS_VISIBLE | style, 0, 0, size.width,
                          size.height, parent, nullptr, ::GetModuleHandle(nullptr), nullptr);
}

void Repaint(HWND button)
{
    ::InvalidateRect(button, nullptr, FALSE);
    ::UpdateWindow(button);
}

// Whether a repaint brings a spoilt pixel back.
bool PaintsItself(HWND button)
{
    constexpr COLORREF spoiltColor = RGB(1, 254, 3);
    const HDC dc = ::GetDC(button);
    Repaint(button);
    const COLORREF painted = ::GetPixel(dc, 5, 5);
    ::SetPixel(dc, 5, 5, spoiltColor);
    const bool spoilt = ::GetPixel(dc, 5, 5) == spoiltColor;
    Repaint(button);
    const bool restored = painted != spoiltColor && ::GetPixel(dc, 5, 5) == painted;
    ::ReleaseDC(button, dc);
    return spoilt && restored;
}

void PrintLine(const FaceSize& size, bool decorated)
{
    const LPCTSTR caption = decorated ? captionText : _T("");

    const HWND plainParent = CreateParent(size, 0);
    const HWND plain = CreateButton(plainParent, size, BS_OWNERDRAW, caption);
    PaletteDib faces[6];
    ShadeRandom random;
    FillShadeFaces({faces[0], faces[1], faces[2], faces[3], faces[4], faces[5]}, size.width,
                   size.height, 4, {SHADE_DIAGONAL, granularity, 20, 30, tint},
                   ShadeColors::OfSystem(), random);
    const PlainButton content = {&faces[0], decorated};
    plainButton = &content;

    // The class library's window sends the drawing on to the button's own class.
    CWnd shadedParent;
    shadedParent.SubclassWindow(CreateParent(size, size.width));
    CxShadeButton shaded;
    shaded.SubclassWindow(CreateButton(shadedParent.m_hWnd, size, BS_PUSHBUTTON, caption));
    shaded.SetFlat(!decorated); // A flat button that is not hot draws no edge.
    shaded.SetShade(SHADE_DIAGONAL, granularity, 20, 30, tint);

    if (!PaintsItself(plain) || !PaintsItself(shaded.m_hWnd))
        std::printf("A button was not painted; the next line means nothing.\n");

    Race race;
    race.Add("plain", [&] { Repaint(plain); });
    race.Add("shaded", [&] { Repaint(shaded.m_hWnd); });
    race.Run(101);
    const double plainTime = race.NanosecondsOf("plain");
    const double shadedTime = race.NanosecondsOf("shaded");
    std::printf("| %d × %d | %s | %.1f | %.1f | %.3f |%s\n", size.width, size.height,
                decorated ? "face, edge, caption" : "face alone", plainTime / 1000,
                shadedTime / 1000, shadedTime / plainTime, race.IsSteady() ? "" : " disturbed |");

    shaded.DestroyWindow();
    shadedParent.DestroyWindow();
    ::DestroyWindow(plainParent);
    plainButton = nullptr;
}

} // namespace

void PrintRepaintTable()
{
    std::printf("Microseconds from invalidating a button until its pixels are there; plain is an "
                "owner-drawn\nbutton that does the least to show the same.\n\n"
                "| Size | Shows | plain | CxShadeButton | ratio |\n"
                "|---|---|--:|--:|--:|\n");
    for (const FaceSize& size : {faceSizes[0], faceSizes[1]}) {
        PrintLine(size, false);
        PrintLine(size, true);
    }
}
