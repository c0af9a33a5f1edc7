#include "shell/HandCursor.h"

#include <tchar.h>

namespace {

const TCHAR helpProgram[] = _T("\\winhlp32.exe");
const int handResource = 106;

class HandCursorCache
{
public:
    ~HandCursorCache()
    {
        if (m_hand != nullptr)
            ::DestroyCursor(m_hand);
    }

    HCURSOR Get()
    {
        if (m_hand == nullptr && !m_noHandHere)
            m_hand = Load();
        return m_hand;
    }

private:
    /// A copy, which outlives the help program's module.
    HCURSOR Load()
    {
        const HMODULE module = LoadHelpProgram();
        const HCURSOR hand =
            module != nullptr ? ::LoadCursor(module, MAKEINTRESOURCE(handResource)) : nullptr;
        m_noHandHere = hand == nullptr;
        const HCURSOR copy = hand != nullptr ? ::CopyIcon(hand) : nullptr;
        if (module != nullptr)
            ::FreeLibrary(module);
        return copy;
    }

    static HMODULE LoadHelpProgram()
    {
        TCHAR path[MAX_PATH + _countof(helpProgram)] = _T("");
        const UINT length = ::GetWindowsDirectory(path, MAX_PATH);
        if (length == 0 || length >= MAX_PATH)
            return nullptr;
        _tcscat(path, helpProgram);
        return ::LoadLibrary(path);
    }

    HCURSOR m_hand = nullptr;
    bool m_noHandHere = false; // Not looked for again: every pointer move would pay for it.
};

} // namespace

HCURSOR LoadHandCursor()
{
    static HandCursorCache cache;
    return cache.Get();
}
