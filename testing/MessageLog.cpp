#include "testing/MessageLog.h"

#include <commctrl.h>

#include <cstdio>

namespace umbra::testing {

namespace {

struct NamedMessage
{
    UINT message;
    const char* name;
};
#define NAMED(message)                                                                             \
    {                                                                                              \
        message, #message                                                                          \
    }
const NamedMessage namedMessages[] = {
    NAMED(WM_NULL),
    NAMED(WM_CREATE),
    NAMED(WM_DESTROY),
    NAMED(WM_MOVE),
    NAMED(WM_SIZE),
    NAMED(WM_ACTIVATE),
    NAMED(WM_SETFOCUS),
    NAMED(WM_KILLFOCUS),
    NAMED(WM_ENABLE),
    NAMED(WM_SETREDRAW),
    NAMED(WM_SETTEXT),
    NAMED(WM_GETTEXT),
    NAMED(WM_GETTEXTLENGTH),
    NAMED(WM_PAINT),
    NAMED(WM_CLOSE),
    NAMED(WM_QUIT),
    NAMED(WM_ERASEBKGND),
    NAMED(WM_SYSCOLORCHANGE),
    NAMED(WM_SHOWWINDOW),
    NAMED(WM_SETTINGCHANGE),
    NAMED(WM_ACTIVATEAPP),
    NAMED(WM_FONTCHANGE),
    NAMED(WM_CANCELMODE),
    NAMED(WM_SETCURSOR),
    NAMED(WM_MOUSEACTIVATE),
    NAMED(WM_CHILDACTIVATE),
    NAMED(WM_GETMINMAXINFO),
    NAMED(WM_NEXTDLGCTL),
    NAMED(WM_DRAWITEM),
    NAMED(WM_MEASUREITEM),
    NAMED(WM_DELETEITEM),
    NAMED(WM_VKEYTOITEM),
    NAMED(WM_CHARTOITEM),
    NAMED(WM_SETFONT),
    NAMED(WM_GETFONT),
    NAMED(WM_COMPAREITEM),
    NAMED(WM_WINDOWPOSCHANGING),
    NAMED(WM_WINDOWPOSCHANGED),
    NAMED(WM_NOTIFY),
    NAMED(WM_HELP),
    NAMED(WM_NOTIFYFORMAT),
    NAMED(WM_CONTEXTMENU),
    NAMED(WM_STYLECHANGING),
    NAMED(WM_STYLECHANGED),
    NAMED(WM_DISPLAYCHANGE),
    NAMED(WM_GETICON),
    NAMED(WM_SETICON),
    NAMED(WM_NCCREATE),
    NAMED(WM_NCDESTROY),
    NAMED(WM_NCCALCSIZE),
    NAMED(WM_NCHITTEST),
    NAMED(WM_NCPAINT),
    NAMED(WM_NCACTIVATE),
    NAMED(WM_GETDLGCODE),
    NAMED(WM_SYNCPAINT),
    NAMED(WM_NCMOUSEMOVE),
    NAMED(WM_NCLBUTTONDOWN),
    NAMED(WM_NCLBUTTONUP),
    NAMED(WM_NCLBUTTONDBLCLK),
    NAMED(WM_NCRBUTTONDOWN),
    NAMED(WM_NCRBUTTONUP),
    NAMED(WM_NCMOUSEHOVER),
    NAMED(WM_NCMOUSELEAVE),
    NAMED(WM_KEYDOWN),
    NAMED(WM_KEYUP),
    NAMED(WM_CHAR),
    NAMED(WM_DEADCHAR),
    NAMED(WM_SYSKEYDOWN),
    NAMED(WM_SYSKEYUP),
    NAMED(WM_SYSCHAR),
    NAMED(WM_INITDIALOG),
    NAMED(WM_COMMAND),
    NAMED(WM_SYSCOMMAND),
    NAMED(WM_TIMER),
    NAMED(WM_HSCROLL),
    NAMED(WM_VSCROLL),
    NAMED(WM_INITMENU),
    NAMED(WM_INITMENUPOPUP),
    NAMED(WM_MENUSELECT),
    NAMED(WM_MENUCHAR),
    NAMED(WM_ENTERIDLE),
    NAMED(WM_CHANGEUISTATE),
    NAMED(WM_UPDATEUISTATE),
    NAMED(WM_QUERYUISTATE),
    NAMED(WM_CTLCOLORMSGBOX),
    NAMED(WM_CTLCOLOREDIT),
    NAMED(WM_CTLCOLORLISTBOX),
    NAMED(WM_CTLCOLORBTN),
    NAMED(WM_CTLCOLORDLG),
    NAMED(WM_CTLCOLORSCROLLBAR),
    NAMED(WM_CTLCOLORSTATIC),
    NAMED(WM_MOUSEMOVE),
    NAMED(WM_LBUTTONDOWN),
    NAMED(WM_LBUTTONUP),
    NAMED(WM_LBUTTONDBLCLK),
    NAMED(WM_RBUTTONDOWN),
    NAMED(WM_RBUTTONUP),
    NAMED(WM_RBUTTONDBLCLK),
    NAMED(WM_MBUTTONDOWN),
    NAMED(WM_MBUTTONUP),
    NAMED(WM_MBUTTONDBLCLK),
    NAMED(WM_MOUSEWHEEL),
    NAMED(WM_PARENTNOTIFY),
    NAMED(WM_ENTERMENULOOP),
    NAMED(WM_EXITMENULOOP),
    NAMED(WM_SIZING),
    NAMED(WM_CAPTURECHANGED),
    NAMED(WM_MOVING),
    NAMED(WM_ENTERSIZEMOVE),
    NAMED(WM_EXITSIZEMOVE),
    NAMED(WM_DROPFILES),
    NAMED(WM_MOUSEHOVER),
    NAMED(WM_MOUSELEAVE),
    NAMED(WM_CUT),
    NAMED(WM_COPY),
    NAMED(WM_PASTE),
    NAMED(WM_CLEAR),
    NAMED(WM_UNDO),
    NAMED(WM_QUERYNEWPALETTE),
    NAMED(WM_PALETTECHANGED),
    NAMED(WM_PRINT),
    NAMED(WM_PRINTCLIENT),
    NAMED(WM_THEMECHANGED),
    NAMED(BM_GETCHECK),
    NAMED(BM_SETCHECK),
    NAMED(BM_GETSTATE),
    NAMED(BM_SETSTATE),
    NAMED(BM_SETSTYLE),
    NAMED(BM_CLICK),
    NAMED(STM_SETICON),
    NAMED(STM_GETICON),
    NAMED(STM_SETIMAGE),
    NAMED(STM_GETIMAGE),
};
#undef NAMED

std::string WithOffset(const char* base, UINT offset)
{
    return offset == 0 ? base : std::string(base) + "+" + std::to_string(offset);
}

} // namespace

std::string MessageName(UINT message)
{
    for (const NamedMessage& named : namedMessages) {
        if (named.message == message)
            return named.name;
    }
    constexpr UINT firstRegistered = 0xC000;
    constexpr UINT lastRegistered = 0xFFFF;
    if (message >= firstRegistered && message <= lastRegistered) {
        char text[256] = "";
        ::GetClipboardFormatNameA(message, text, sizeof text); // Both share one table of names.
        return std::string("registered '") + text + "'";
    }
    if (message >= WM_APP && message < firstRegistered)
        return WithOffset("WM_APP", message - WM_APP);
    if (message >= WM_USER && message < WM_APP)
        return WithOffset("WM_USER", message - WM_USER);
    char number[16];
    std::snprintf(number, sizeof number, "0x%04X", message);
    return number;
}

MessageLog::MessageLog(HWND window) : m_window(window)
{
    const auto self = reinterpret_cast<DWORD_PTR>(this);
    if (!::SetWindowSubclass(window, Record, self, self))
        m_window = nullptr;
}

MessageLog::~MessageLog()
{
    if (m_window != nullptr)
        ::RemoveWindowSubclass(m_window, Record, reinterpret_cast<UINT_PTR>(this));
}

int MessageLog::Count(UINT message) const
{
    int count = 0;
    for (const Entry& entry : m_entries)
        count += entry.message == message;
    return count;
}

const MessageLog::Entry* MessageLog::Last(UINT message) const
{
    for (auto entry = m_entries.rbegin(); entry != m_entries.rend(); ++entry) {
        if (entry->message == message)
            return &*entry;
    }
    return nullptr;
}

std::string MessageLog::Names() const
{
    std::string names;
    for (const Entry& entry : m_entries) {
        if (!names.empty())
            names += ' ';
        names += MessageName(entry.message);
    }
    return names;
}

LRESULT CALLBACK MessageLog::Record(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR log)
{
    auto* self = reinterpret_cast<MessageLog*>(log);
    const size_t index = self->m_entries.size();
    self->m_entries.push_back({message, wParam, lParam, 0, self->m_depth++});
    if (message == WM_NCDESTROY) {
        ::RemoveWindowSubclass(window, Record, id);
        self->m_window = nullptr;
    }
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    --self->m_depth;
    // A handler may have cleared the log meanwhile.
    if (index < self->m_entries.size() && self->m_entries[index].message == message)
        self->m_entries[index].result = result;
    return result;
}

} // namespace umbra::testing
