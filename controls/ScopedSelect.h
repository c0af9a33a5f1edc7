// A graphics object selected into a device context for the length of a scope.
#pragma once

#include <afxwin.h>

class ScopedSelect
{
public:
    /// Selects nothing when `object` is NULL.
    ScopedSelect(CDC& dc, HGDIOBJ object)
        : m_dc(dc.GetSafeHdc()),
          m_previous(object != nullptr ? ::SelectObject(m_dc, object) : nullptr)
    {
    }

    ~ScopedSelect()
    {
        if (m_previous != nullptr)
            ::SelectObject(m_dc, m_previous);
    }

    bool IsSelected() const { return m_previous != nullptr; }

    ScopedSelect(const ScopedSelect&) = delete;
    ScopedSelect& operator=(const ScopedSelect&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};
