// Random choices that a seed repeats.
#pragma once

#include "testing/Text.h"

#include <afxcmn.h>

#include <iterator>
#include <random>

class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}

    /// 0 to limit - 1.
    int Below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }
    int Between(int least, int most) { return least + Below(most - least + 1); }
    bool Percent(int chance) { return Below(100) < chance; }
    template <class List>
    auto Pick(const List& list)
    {
        return std::data(list)[Below(static_cast<int>(std::size(list)))];
    }

    COLORREF Color() { return Percent(10) ? CLR_NONE : m_engine() & 0xFFFFFF; }

    /// A text of any characters but 0, its length often at the edge of some buffer.
    umbra::testing::TString Text()
    {
        static const int edges[] = {0,   1,   2,   255, 256,  257,  259, 260,
                                    261, 527, 528, 529, 1023, 1024, 4096};
        const int length = Percent(50) ? Below(40) : Pick(edges);
        umbra::testing::TString text(static_cast<size_t>(length), _T('x'));
        for (TCHAR& c : text)
            c = static_cast<TCHAR>(Percent(70) ? Between('a', 'z')
                                               : Between(1, sizeof(TCHAR) == 1 ? 255 : 0xFFFF));
        return text;
    }

private:
    std::mt19937 m_engine; // Its numbers are the same on every system.
};
