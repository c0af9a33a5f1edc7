// Dialog templates in memory.
#pragma once

#include <classes/Platform.h>

#include <vector>

namespace afxint {

/// What both kinds of templates, old and extended, say about the dialog window.
class DialogTemplate
{
public:
    /// Keeps no copy; the template has to live on.
    explicit DialogTemplate(LPCDLGTEMPLATE source);

    DWORD Style() const;
    int X() const;
    int Y() const;
    /// Bytes of the whole template, with all its controls.
    size_t Size() const;
    /// Calls visit(name) for each control whose class is named by a text.
    template <class Visit>
    void ForEachNamedClass(Visit visit) const;
    /// A copy whose window the system does not show by itself.
    std::vector<BYTE> CopyHidden() const;

private:
    const BYTE* At(size_t offset) const;
    WORD WordAt(size_t offset) const;
    bool IsOrdinal(size_t offset) const; ///< Whether a number stands there in place of a text.
    size_t SkipText(size_t offset) const;
    size_t SkipNameOrText(size_t offset) const;
    size_t StyleOffset() const;
    size_t FirstControl() const; ///< Where the fixed bytes of the first control begin, or would.
    WORD CountOfControls() const;
    size_t ClassOfControl(size_t control) const;
    size_t SkipControl(size_t control) const;

    const BYTE* source_;
    bool extended_;
};

template <class Visit>
void DialogTemplate::ForEachNamedClass(Visit visit) const
{
    size_t control = FirstControl();
    for (WORD rest = CountOfControls(); rest > 0; --rest) {
        const size_t name = ClassOfControl(control);
        if (!IsOrdinal(name))
            visit(reinterpret_cast<LPCWSTR>(At(name)));
        control = SkipControl(control);
    }
}

} // namespace afxint
