#include "gallery/Album.h"

#include "gallery/GalleryPage.h"
#include "gallery/Pointer.h"

#include <testing/Picture.h>
#include <testing/Text.h>

#include <stdio.h>

using umbra::testing::Picture;

namespace {

const DWORD paintTime = 120;                // Milliseconds.
const COLORREF behindColor = palette::page; // As the index page has it.

// Copies a window, its frame included, to its place in a picture of `area` of the screen.
void DrawWindow(CDC& target, HWND window, const CRect& area)
{
    CRect place;
    ::GetWindowRect(window, &place);
    CRgn shape;
    shape.CreateRectRgn(0, 0, 0, 0);
    const bool shaped = ::GetWindowRgn(window, shape) != ERROR;
    if (shaped) {
        shape.OffsetRgn(place.left - area.left, place.top - area.top);
        target.SelectClipRgn(&shape);
    }
    CWindowDC source(CWnd::FromHandle(window));
    source.SetLayout(0); // As the screen shows it, a right-to-left window, too.
    target.BitBlt(place.left - area.left, place.top - area.top, place.Width(), place.Height(),
                  &source, 0, 0, SRCCOPY);
    if (shaped)
        target.SelectClipRgn(nullptr);
}

// A window and those of this program above it: a tool tip, an open list.
std::vector<HWND> WindowsFrom(const CWnd& window)
{
    std::vector<HWND> windows = {window.GetSafeHwnd()};
    for (HWND above = ::GetWindow(window.GetSafeHwnd(), GW_HWNDPREV); above != nullptr;
         above = ::GetWindow(above, GW_HWNDPREV)) {
        const bool ours = ::GetWindowThreadProcessId(above, nullptr) == ::GetCurrentThreadId();
        if (ours && ::IsWindowVisible(above))
            windows.push_back(above);
    }
    return windows;
}

CRect AreaOf(const std::vector<HWND>& windows)
{
    CRect area;
    for (HWND window : windows) {
        CRect place;
        ::GetWindowRect(window, &place);
        area.UnionRect(&area, &place);
    }
    return area;
}

// Whether all points of a coarse grid have one colour.
bool IsBlank(CDC& dc, CSize size)
{
    const int step = 7; // Pixels.
    const COLORREF first = dc.GetPixel(0, 0);
    for (int y = 0; y < size.cy; y += step) {
        for (int x = 0; x < size.cx; x += step) {
            if (dc.GetPixel(x, y) != first)
                return false;
        }
    }
    return true;
}

} // namespace

void CAlbum::Take(CWnd& window, const char* name, const char* caption)
{
    Settle(paintTime);
    // Window by window, because a screen that nobody looks at may have no picture as a whole.
    const std::vector<HWND> windows = WindowsFrom(window);
    const CRect area = AreaOf(windows);
    CClientDC screen(nullptr);
    CDC memory;
    CBitmap picture;
    if (!memory.CreateCompatibleDC(&screen) ||
        !picture.CreateCompatibleBitmap(&screen, area.Width(), area.Height())) {
        Fail(CString(name) + _T(": no memory for the picture"));
        return;
    }
    CBitmap* before = memory.SelectObject(&picture);
    memory.FillSolidRect(0, 0, area.Width(), area.Height(), behindColor);
    for (HWND each : windows)
        DrawWindow(memory, each, area);
    const bool blank = IsBlank(memory, area.Size());
    memory.SelectObject(before);

    const CString file = CString(name) + _T(".png");
    if (blank) {
        Fail(file + _T(": the window shows nothing"));
        return;
    }
    const Picture shot = Picture::OfBitmap(static_cast<HBITMAP>(picture.GetSafeHandle()));
    if (!shot.SavePng(m_folder + file)) {
        Fail(m_folder + file + _T(" could not be written"));
        return;
    }
    m_entries.push_back({name, caption});
    printf("%s.png\n", name);
    fflush(stdout);
}

void CAlbum::WriteIndex()
{
    CStringA page = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                    "<title>Umbra gallery</title>\n<style>\n"
                    "body { font: 15px/1.5 sans-serif; background: #f0f3f8; color: #2b3852;"
                    " margin: 32px; }\n"
                    "h1 { color: #1c263b; }\n"
                    "figure { display: inline-block; margin: 0 28px 32px 0;"
                    " vertical-align: top; }\n"
                    "img { display: block; border: 1px solid #becadb; }\n"
                    "figcaption { margin-top: 6px; color: #54637e; max-width: 640px; }\n"
                    "</style>\n</head>\n<body>\n<h1>Umbra gallery</h1>\n";
    for (const Entry& entry : m_entries) {
        page += "<figure><img src=\"" + entry.name + ".png\" alt=\"" + entry.caption +
                "\"><figcaption>" + entry.caption + "</figcaption></figure>\n";
    }
    page += "</body>\n</html>\n";

    CFile file;
    const CString path = m_folder + _T("index.html");
    if (!file.Open(path, CFile::modeCreate | CFile::modeWrite)) {
        Fail(path + _T(" could not be written"));
        return;
    }
    try {
        file.Write(static_cast<LPCSTR>(page), page.GetLength());
        file.Close();
    } catch (CFileException* exception) {
        exception->Delete();
        Fail(path + _T(" could not be written"));
    }
}

void CAlbum::Fail(const CString& what)
{
    fprintf(stderr, "umbra-gallery: %s\n",
            umbra::testing::Printable(static_cast<LPCTSTR>(what)).c_str());
    m_complete = FALSE;
}
