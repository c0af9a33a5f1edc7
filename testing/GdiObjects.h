// Counts the GDI objects of this process, to find the ones that are never freed.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace umbra::testing {

/// How many GDI objects live at one moment. Where the system does not tell the kinds, only the
/// total is known and the others are 0.
struct GdiCount
{
    int total = 0;
    int dcs = 0;
    int bitmaps = 0;
    int fonts = 0;
    int brushes = 0;
    int pens = 0;
    int regions = 0;
    int palettes = 0;
    int others = 0;

    friend bool operator==(const GdiCount& a, const GdiCount& b)
    {
        return a.total == b.total && a.dcs == b.dcs && a.bitmaps == b.bitmaps &&
               a.fonts == b.fonts && a.brushes == b.brushes && a.pens == b.pens &&
               a.regions == b.regions && a.palettes == b.palettes && a.others == b.others;
    }
    friend bool operator!=(const GdiCount& a, const GdiCount& b) { return !(a == b); }
};

GdiCount CountGdiObjects();

/// The live GDI objects in the order of the system's table; none where the system does not tell.
std::vector<HGDIOBJ> ListGdiObjects();

/// Does once what makes the system keep objects of its own: a device context of the screen, a
/// text, a loaded picture, a window of each kind. Objects counted afterwards are the program's.
void WarmUpGdi();

/// Takes all of the system's device contexts and gives them back: each of them can keep the font
/// and the regions of its last use until its next one, even when those have been deleted.
void RefreshDeviceContexts();

/// Remembers the count at its beginning; warms up first.
class BalancedGdi
{
public:
    BalancedGdi();

    /// Objects that have come since, less those that have gone.
    int Growth() const;
    bool IsBalanced() const { return CountGdiObjects() == m_start; }
    /// "balanced", or what has grown or shrunk by how many: "bitmaps +1, brushes -1".
    std::string Describe() const;

private:
    GdiCount m_start;
};

} // namespace umbra::testing
