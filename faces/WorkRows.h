// The working memory of one fill of a face.
#pragma once

#include "faces/ShadeGrain.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

/// Rows to work in, rounded up as the kernels need it.
class WorkRows
{
public:
    WorkRows(int width, int height)
    {
        const std::size_t rounded =
            (static_cast<std::size_t>(width) + grainBlock - 1) / grainBlock * grainBlock;
        m_states.reset(new (std::nothrow) std::uint32_t[rounded * 2]);
        m_columns.reset(new (std::nothrow) std::int16_t[rounded]());
        m_bytes.reset(new (std::nothrow) std::uint8_t[rounded * 2 + height]());
        base = m_bytes.get();
        row = base + rounded;
        add = row + rounded;
        states = m_states.get();
        columns = m_columns.get();
    }

    bool IsValid() const { return m_bytes && m_columns && m_states; }

    std::uint8_t* base;    ///< per column, zeros at first
    std::uint8_t* row;     ///< one row on its way to the surface
    std::uint8_t* add;     ///< per row, zeros at first
    std::int16_t* columns; ///< per column
    std::uint32_t* states; ///< of the grain of columns

private:
    std::unique_ptr<std::uint8_t[]> m_bytes;
    std::unique_ptr<std::int16_t[]> m_columns;
    std::unique_ptr<std::uint32_t[]> m_states;
};
