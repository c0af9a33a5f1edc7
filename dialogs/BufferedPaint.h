// A page painted into a buffer, with the controls that it holds.
#pragma once

#include <afxwin.h>

namespace umbra {

/// What a page has to know of its own painting in one pass.
class BufferedPaint
{
public:
    /// Called when the page is to erase itself with that context. TRUE when it is not to do so now,
    /// since its next painting will.
    bool PutsErasingOff(const CWnd& page, HDC dc);

    /// Answers WM_PAINT. What the page draws when it is asked for its background (WM_ERASEBKGND)
    /// and for its picture (WM_PRINTCLIENT), and those controls of the toolkit that are to be
    /// painted anew, go into a buffer, which is copied to the screen once. The system is told that
    /// these controls have been painted; others paint themselves afterwards, as ever. Without
    /// memory for a buffer all of it goes to the screen directly.
    void Paint(CWnd& page);

private:
    void DrawControls(CWnd& page, CDC& dc, CRgn& updated);

    bool m_erases = false; ///< The page's background is asked for by the painting itself.
    bool m_putOff = false; ///< The background was to be erased since the last painting.
};

} // namespace umbra
