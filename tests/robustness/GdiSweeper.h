// Counts the fonts and bitmaps that were left behind since a moment, and deletes them, so that many
// cycles fit into one table of objects.
#pragma once

#include "testing/GdiObjects.h"

#include <set>

class GdiSweeper
{
public:
    struct Left
    {
        int fonts = 0;
        int bitmaps = 0;
        int others = 0; ///< Of any other kind; not deleted.

        friend bool operator==(const Left& a, const Left& b)
        {
            return a.fonts == b.fonts && a.bitmaps == b.bitmaps && a.others == b.others;
        }
    };

    /// The most objects of other kinds that the system itself keeps: Wine has up to 64 device
    /// contexts of windows for later use, each with two regions, and adds to them at any time.
    static constexpr int systemCache = 3 * 64;

    GdiSweeper() { Remember(); }

    Left Sweep()
    {
        Left left;
        int others = 0;
        for (const HGDIOBJ object : umbra::testing::ListGdiObjects()) {
            const DWORD type = ::GetObjectType(object);
            if (type != OBJ_FONT && type != OBJ_BITMAP) {
                ++others;
                continue;
            }
            if (m_objects.count(object) != 0)
                continue;
            ++(type == OBJ_FONT ? left.fonts : left.bitmaps);
            ::DeleteObject(object);
        }
        left.others = others - m_others;
        Remember();
        return left;
    }

private:
    void Remember()
    {
        m_objects.clear();
        m_others = 0;
        for (const HGDIOBJ object : umbra::testing::ListGdiObjects()) {
            const DWORD type = ::GetObjectType(object);
            if (type == OBJ_FONT || type == OBJ_BITMAP)
                m_objects.insert(object);
            else
                ++m_others;
        }
    }

    std::set<HGDIOBJ> m_objects;
    int m_others = 0;
};
