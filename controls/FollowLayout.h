// Memory contexts on right-to-left pages.
#pragma once

#include <afxwin.h>

namespace umbra {

/// Whether a context with this layout mirrors its coordinates.
inline bool IsMirrored(DWORD layout)
{
    return layout != GDI_ERROR && (layout & LAYOUT_RTL) != 0;
}

/// Gives a memory context, its bitmap selected, the layout of the context that it is copied to.
/// Where both mirror their coordinates, the copy leaves the pixels as they are: captions read
/// right, and pictures are not mirrored.
inline void FollowLayout(CDC& memory, const CDC& target)
{
    const DWORD layout = target.GetLayout();
    if (IsMirrored(layout))
        memory.SetLayout(layout);
}

/// For its length, a context's coordinates run from left to right, so that bitmaps and icons that
/// the system draws are not mirrored; their places have to be mirrored by hand.
class LeftToRight
{
public:
    explicit LeftToRight(CDC& dc) : m_dc(dc), m_layout(dc.GetLayout())
    {
        if (WasMirrored())
            m_dc.SetLayout(0);
    }
    ~LeftToRight()
    {
        if (WasMirrored())
            m_dc.SetLayout(m_layout);
    }
    LeftToRight(const LeftToRight&) = delete;
    LeftToRight& operator=(const LeftToRight&) = delete;

    bool WasMirrored() const { return IsMirrored(m_layout); }

private:
    CDC& m_dc;
    const DWORD m_layout;
};

} // namespace umbra
