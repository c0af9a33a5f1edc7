#include "testing/GdiObjects.h"

#include <objbase.h>
#include <ocidl.h>
#include <olectl.h>

namespace umbra::testing {

namespace {

// The table of GDI handles that 64-bit Windows, and Wine after it, maps into each process; Wine's
// is the same for 32-bit ones.
struct GdiTableEntry
{
    ULONGLONG object;
    ULONG owner;
    USHORT unique; // The upper half of the handle: a generation and the kind.
    BYTE type;     // 0 in a free entry.
    BYTE flags;
    ULONGLONG user;
};
static_assert(sizeof(GdiTableEntry) == 24);
constexpr int gdiTableLength = 65536;
constexpr size_t gdiTableOffsetInPeb = sizeof(void*) == 8 ? 0xF8 : 0x94;

const GdiTableEntry* FindGdiTable()
{
    using GetPeb = const BYTE*(WINAPI*)();
    const auto getPeb = reinterpret_cast<GetPeb>(reinterpret_cast<ULONG_PTR>(
        ::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "RtlGetCurrentPeb")));
    const BYTE* peb = getPeb();
    return *reinterpret_cast<const GdiTableEntry* const*>(peb + gdiTableOffsetInPeb);
}

bool IsWine()
{
    return ::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
}

void CountOne(GdiCount& count, HGDIOBJ object)
{
    ++count.total;
    switch (::GetObjectType(object)) {
    case OBJ_DC:
    case OBJ_MEMDC:
    case OBJ_METADC:
    case OBJ_ENHMETADC:
        ++count.dcs;
        break;
    case OBJ_BITMAP:
        ++count.bitmaps;
        break;
    case OBJ_FONT:
        ++count.fonts;
        break;
    case OBJ_BRUSH:
        ++count.brushes;
        break;
    case OBJ_PEN:
    case OBJ_EXTPEN:
        ++count.pens;
        break;
    case OBJ_REGION:
        ++count.regions;
        break;
    case OBJ_PAL:
        ++count.palettes;
        break;
    default:
        ++count.others;
    }
}

void LoadSmallPicture()
{
    // One pixel, 24 bits.
    static const BYTE file[] = {'B', 'M', 58, 0, 0, 0, 0, 0, 0,  0, 54, 0, 0, 0, 40, 0, 0, 0, 1, 0,
                                0,   0,   1,  0, 0, 0, 1, 0, 24, 0, 0,  0, 0, 0, 4,  0, 0, 0, 0, 0,
                                0,   0,   0,  0, 0, 0, 0, 0, 0,  0, 0,  0, 0, 0, 0,  0, 0, 0};
    HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, sizeof file);
    memcpy(::GlobalLock(memory), file, sizeof file);
    ::GlobalUnlock(memory);
    IStream* stream = nullptr;
    if (FAILED(::CreateStreamOnHGlobal(memory, TRUE, &stream))) {
        ::GlobalFree(memory);
        return;
    }
    void* picture = nullptr;
    if (SUCCEEDED(::OleLoadPicture(stream, sizeof file, FALSE, IID_IPicture, &picture)))
        static_cast<IUnknown*>(picture)->Release();
    stream->Release();
}

void ShowWindowOfEachKind()
{
    for (const char* name : {"Button", "Static", "Edit", "ListBox", "ComboBox"}) {
        HWND window = ::CreateWindowExA(WS_EX_TOOLWINDOW, name, "a", WS_POPUP | WS_VISIBLE, 0, 0,
                                        10, 10, nullptr, nullptr, nullptr, nullptr);
        ::UpdateWindow(window);
        ::DestroyWindow(window);
    }
}

void DrawSomeText()
{
    HDC screen = ::GetDC(nullptr);
    SIZE size{};
    ::GetTextExtentPoint32A(screen, "a", 1, &size);
    ::ReleaseDC(nullptr, screen);
}

void Append(std::string& text, const char* kind, int growth)
{
    if (growth == 0)
        return;
    if (!text.empty())
        text += ", ";
    text += std::string(kind) + (growth > 0 ? " +" : " ") + std::to_string(growth);
}

} // namespace

GdiCount CountGdiObjects()
{
    GdiCount count;
    if (!IsWine()) {
        count.total = static_cast<int>(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
        return count;
    }
    // There GetGuiResources answers 0.
    for (const HGDIOBJ object : ListGdiObjects())
        CountOne(count, object);
    return count;
}

std::vector<HGDIOBJ> ListGdiObjects()
{
    std::vector<HGDIOBJ> objects;
    if (!IsWine())
        return objects;
    // There the table holds this process's objects only.
    const GdiTableEntry* table = FindGdiTable();
    for (int i = 0; i < gdiTableLength; ++i) {
        if (table[i].type == 0)
            continue;
        const ULONG_PTR handle = static_cast<ULONG_PTR>(table[i].unique) << 16 | i;
        objects.push_back(reinterpret_cast<HGDIOBJ>(handle));
    }
    return objects;
}

void WarmUpGdi()
{
    static bool warm = false;
    if (warm)
        return;
    warm = true;
    DrawSomeText();
    LoadSmallPicture();
    ShowWindowOfEachKind();
}

void RefreshDeviceContexts()
{
    HDC contexts[100]; // More than are ever in use at the same time.
    for (HDC& context : contexts)
        context = ::GetDC(nullptr);
    for (const HDC context : contexts)
        ::ReleaseDC(nullptr, context);
}

BalancedGdi::BalancedGdi()
{
    WarmUpGdi();
    m_start = CountGdiObjects();
}

int BalancedGdi::Growth() const
{
    return CountGdiObjects().total - m_start.total;
}

std::string BalancedGdi::Describe() const
{
    const GdiCount now = CountGdiObjects();
    std::string text;
    Append(text, "device contexts", now.dcs - m_start.dcs);
    Append(text, "bitmaps", now.bitmaps - m_start.bitmaps);
    Append(text, "fonts", now.fonts - m_start.fonts);
    Append(text, "brushes", now.brushes - m_start.brushes);
    Append(text, "pens", now.pens - m_start.pens);
    Append(text, "regions", now.regions - m_start.regions);
    Append(text, "palettes", now.palettes - m_start.palettes);
    Append(text, "others", now.others - m_start.others);
    if (text.empty())
        Append(text, "objects", now.total - m_start.total);
    return text.empty() ? "balanced" : text;
}

} // namespace umbra::testing
