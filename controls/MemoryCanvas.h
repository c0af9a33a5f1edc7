// A bitmap in memory to draw on before it is copied to where it is shown.
#pragma once

#include "controls/FollowLayout.h"
#include "controls/ScopedSelect.h"

#include <afxwin.h>

#include <optional>

namespace umbra {

/// A bitmap of its own in a context that is like the one it is for, and lives as long.
class MemoryCanvas
{
public:
    MemoryCanvas(CDC& target, const CSize& size)
    {
        m_dc.CreateCompatibleDC(&target);
        m_bitmap.CreateCompatibleBitmap(&target, size.cx, size.cy);
        m_selected.emplace(m_dc, m_bitmap.GetSafeHandle());
        FollowLayout(m_dc, target);
    }

    /// False when there was no memory for it; what is drawn then goes nowhere.
    bool IsReady() const { return m_selected->IsSelected(); }
    CDC& Dc() { return m_dc; }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    std::optional<ScopedSelect> m_selected;
};

} // namespace umbra
