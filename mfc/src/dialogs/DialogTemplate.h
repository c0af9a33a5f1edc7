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
    /// A copy whose window the system does not show by itself.
    std::vector<BYTE> CopyHidden() const;

private:
    const BYTE* At(size_t offset) const;
    WORD WordAt(size_t offset) const;
    size_t SkipText(size_t offset) const;
    size_t SkipNameOrText(size_t offset) const;
    size_t StyleOffset() const;

    const BYTE* source_;
    bool extended_;
};

} // namespace afxint
