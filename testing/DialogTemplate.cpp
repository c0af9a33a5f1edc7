#include "testing/DialogTemplate.h"

#include <cstring>

namespace umbra::testing {

namespace {

struct ClassAtom
{
    LPCTSTR name;
    WORD atom;
};
constexpr ClassAtom classAtoms[] = {{_T("Button"), 0x0080},    {_T("Edit"), 0x0081},
                                    {_T("Static"), 0x0082},    {_T("ListBox"), 0x0083},
                                    {_T("ScrollBar"), 0x0084}, {_T("ComboBox"), 0x0085}};

void AppendRaw(std::vector<WORD>& memory, const void* data, size_t bytes)
{
    const size_t end = memory.size();
    memory.resize(end + bytes / sizeof(WORD));
    std::memcpy(&memory[end], data, bytes);
}

void AppendText(std::vector<WORD>& memory, const TString& text)
{
    const std::wstring wide = Widened(text);
    memory.insert(memory.end(), wide.c_str(), wide.c_str() + wide.size() + 1);
}

void AppendClass(std::vector<WORD>& memory, const TString& className)
{
    for (const ClassAtom& known : classAtoms) {
        if (::lstrcmpi(known.name, className.c_str()) != 0)
            continue;
        memory.push_back(0xFFFF);
        memory.push_back(known.atom);
        return;
    }
    AppendText(memory, className);
}

void AlignToDword(std::vector<WORD>& memory)
{
    if (memory.size() % 2 != 0)
        memory.push_back(0);
}

} // namespace

DialogTemplate::DialogTemplate(int x, int y, int width, int height, DWORD style, LPCTSTR title,
                               DWORD extendedStyle)
    : m_title(title)
{
    m_head.style = style;
    m_head.dwExtendedStyle = extendedStyle;
    m_head.x = static_cast<short>(x);
    m_head.y = static_cast<short>(y);
    m_head.cx = static_cast<short>(width);
    m_head.cy = static_cast<short>(height);
}

DialogTemplate& DialogTemplate::Font(int points, LPCTSTR face)
{
    m_head.style |= DS_SETFONT;
    m_points = points;
    m_face = face;
    return *this;
}

DialogTemplate& DialogTemplate::Add(LPCTSTR className, int id, LPCTSTR text, int x, int y,
                                    int width, int height, DWORD style, DWORD extendedStyle)
{
    Item item;
    item.place.style = style;
    item.place.dwExtendedStyle = extendedStyle;
    item.place.x = static_cast<short>(x);
    item.place.y = static_cast<short>(y);
    item.place.cx = static_cast<short>(width);
    item.place.cy = static_cast<short>(height);
    item.place.id = static_cast<WORD>(id);
    item.className = className;
    item.text = text;
    m_items.push_back(item);
    return *this;
}

DialogTemplate& DialogTemplate::Button(int id, LPCTSTR text, int x, int y, int width, int height,
                                       DWORD style)
{
    return Add(_T("Button"), id, text, x, y, width, height, style);
}

DialogTemplate& DialogTemplate::Edit(int id, LPCTSTR text, int x, int y, int width, int height,
                                     DWORD style)
{
    return Add(_T("Edit"), id, text, x, y, width, height, style);
}

DialogTemplate& DialogTemplate::Label(int id, LPCTSTR text, int x, int y, int width, int height,
                                      DWORD style)
{
    return Add(_T("Static"), id, text, x, y, width, height, style);
}

DialogTemplate& DialogTemplate::ListBox(int id, int x, int y, int width, int height, DWORD style)
{
    return Add(_T("ListBox"), id, _T(""), x, y, width, height, style);
}

DialogTemplate& DialogTemplate::ComboBox(int id, int x, int y, int width, int height, DWORD style)
{
    return Add(_T("ComboBox"), id, _T(""), x, y, width, height, style);
}

const DLGTEMPLATE* DialogTemplate::Get() const
{
    m_memory.clear();
    DLGTEMPLATE head = m_head;
    head.cdit = static_cast<WORD>(m_items.size());
    AppendRaw(m_memory, &head, sizeof head);
    m_memory.push_back(0); // No menu.
    m_memory.push_back(0); // The dialog class.
    AppendText(m_memory, m_title);
    if (m_head.style & DS_SETFONT) {
        m_memory.push_back(static_cast<WORD>(m_points));
        AppendText(m_memory, m_face);
    }
    for (const Item& item : m_items) {
        AlignToDword(m_memory);
        AppendRaw(m_memory, &item.place, sizeof item.place);
        AppendClass(m_memory, item.className);
        AppendText(m_memory, item.text);
        m_memory.push_back(0); // No creation data.
    }
    return reinterpret_cast<const DLGTEMPLATE*>(m_memory.data());
}

} // namespace umbra::testing
