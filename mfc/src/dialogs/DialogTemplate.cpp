#include "dialogs/DialogTemplate.h"

namespace afxint {

namespace {

constexpr WORD extendedMark = 0xFFFF; ///< Second word of an extended template.
constexpr WORD ordinalMark = 0xFFFF;  ///< A number follows in place of a text.

// Offsets of the fixed parts: of the old kind, and of the extended one.
struct Layout
{
    size_t style;
    size_t count;
    size_t x;
    size_t variable; ///< Menu, class and title follow.
    size_t font;     ///< Words of the font before its name.
    size_t control;  ///< Fixed bytes of a control.
};
constexpr Layout oldLayout = {0, 8, 10, 18, 1, 18};
constexpr Layout extendedLayout = {12, 16, 18, 26, 3, 24};

const Layout& LayoutOf(bool extended)
{
    return extended ? extendedLayout : oldLayout;
}

size_t AlignToDword(size_t offset)
{
    return (offset + 3) & ~size_t{3};
}

} // namespace

DialogTemplate::DialogTemplate(LPCDLGTEMPLATE source)
    : source_(reinterpret_cast<const BYTE*>(source)), extended_(false)
{
    extended_ = WordAt(0) == 1 && WordAt(sizeof(WORD)) == extendedMark;
}

DWORD DialogTemplate::Style() const
{
    DWORD style = 0;
    memcpy(&style, At(StyleOffset()), sizeof style);
    return style;
}

int DialogTemplate::X() const
{
    return static_cast<short>(WordAt(LayoutOf(extended_).x));
}

int DialogTemplate::Y() const
{
    return static_cast<short>(WordAt(LayoutOf(extended_).x + sizeof(WORD)));
}

size_t DialogTemplate::Size() const
{
    size_t offset = FirstControl();
    for (WORD rest = CountOfControls(); rest > 0; --rest)
        offset = SkipControl(offset);
    return offset;
}

std::vector<BYTE> DialogTemplate::CopyHidden() const
{
    std::vector<BYTE> copy(source_, source_ + Size());
    const DWORD hidden = Style() & ~static_cast<DWORD>(WS_VISIBLE);
    memcpy(copy.data() + StyleOffset(), &hidden, sizeof hidden);
    return copy;
}

const BYTE* DialogTemplate::At(size_t offset) const
{
    return source_ + offset;
}

WORD DialogTemplate::WordAt(size_t offset) const
{
    WORD word = 0;
    memcpy(&word, At(offset), sizeof word);
    return word;
}

bool DialogTemplate::IsOrdinal(size_t offset) const
{
    return WordAt(offset) == ordinalMark;
}

size_t DialogTemplate::SkipText(size_t offset) const
{
    while (WordAt(offset) != 0)
        offset += sizeof(WORD);
    return offset + sizeof(WORD);
}

size_t DialogTemplate::SkipNameOrText(size_t offset) const
{
    return IsOrdinal(offset) ? offset + 2 * sizeof(WORD) : SkipText(offset);
}

size_t DialogTemplate::StyleOffset() const
{
    return LayoutOf(extended_).style;
}

size_t DialogTemplate::FirstControl() const
{
    const Layout& layout = LayoutOf(extended_);
    size_t offset = SkipNameOrText(layout.variable); // Menu.
    offset = SkipNameOrText(offset);                 // Class.
    offset = SkipText(offset);                       // Title.
    if ((Style() & DS_SETFONT) != 0)
        offset = SkipText(offset + layout.font * sizeof(WORD));
    return offset;
}

WORD DialogTemplate::CountOfControls() const
{
    return WordAt(LayoutOf(extended_).count);
}

size_t DialogTemplate::ClassOfControl(size_t control) const
{
    return AlignToDword(control) + LayoutOf(extended_).control;
}

size_t DialogTemplate::SkipControl(size_t control) const
{
    const size_t title = SkipNameOrText(ClassOfControl(control));
    const size_t data = SkipNameOrText(title);
    // The old kind counts the word with the number of bytes, the extended one does not.
    const WORD extra = WordAt(data);
    if (extended_)
        return data + sizeof(WORD) + extra;
    return data + (extra == 0 ? sizeof(WORD) : extra);
}

} // namespace afxint
