// Texts of every length around the sizes of the toolkit's buffers, and far beyond.
#include "tests/robustness/GuardedBuffer.h"

#include "shell/CommandLine.h"
#include "shell/PictureLoader.h"
#include "shell/PicturePath.h"
#include "shell/ShellOpen.h"
#include <umbra.h>

#include "testing/DialogTemplate.h"
#include "testing/ImportHook.h"
#include "testing/Pump.h"

#include <doctest/doctest.h>

#include <direct.h>
#include <map>
#include <mbctype.h>
#include <olectl.h>
#include <string>
#include <vector>

using namespace umbra;
using namespace umbra::testing;

namespace {

const size_t edges[] = {0,   1,   2,   254, 255, 256, 257,  258,   259,   260,
                        261, 526, 527, 528, 529, 530, 4096, 65535, 65536, 65537};

/// The module whose calls are caught.
HMODULE Umbra()
{
    return FindModule("umbra.dll");
}

/// A text that shows where it was cut: its bytes count up.
std::string Long(size_t length)
{
    std::string text(length, ' ');
    for (size_t i = 0; i < length; ++i)
        text[i] = static_cast<char>('a' + i % 26);
    return text;
}

/// A registry of values that a test gives; a value may lack its terminator.
class ScriptedRegistry
{
public:
    ScriptedRegistry() { Values().clear(); }
    static std::map<std::string, std::string>& Values()
    {
        static std::map<std::string, std::string> values;
        return values;
    }
    bool IsInstalled() const
    {
        return m_open.IsInstalled() && m_query.IsInstalled() && m_close.IsInstalled();
    }

private:
    static LSTATUS WINAPI Open(HKEY, LPCSTR name, DWORD, REGSAM, HKEY* key)
    {
        const auto found = Values().find(name);
        if (found == Values().end())
            return ERROR_FILE_NOT_FOUND;
        *key = reinterpret_cast<HKEY>(&found->second);
        return ERROR_SUCCESS;
    }
    /// As the system does: too long a value is not touched; the terminator comes only when stored.
    static LSTATUS WINAPI Query(HKEY key, LPCSTR, LPSTR out, LONG* size)
    {
        const std::string& value = *reinterpret_cast<std::string*>(key);
        const LONG length = static_cast<LONG>(value.size());
        const bool fits = length <= *size;
        if (fits)
            memcpy(out, value.data(), value.size());
        *size = length;
        return fits ? ERROR_SUCCESS : ERROR_MORE_DATA;
    }
    static LSTATUS WINAPI Close(HKEY) { return ERROR_SUCCESS; }

    ImportHook m_open{Umbra(), "advapi32", "RegOpenKeyExA", Open};
    ImportHook m_query{Umbra(), "advapi32", "RegQueryValueA", Query};
    ImportHook m_close{Umbra(), "advapi32", "RegCloseKey", Close};
};

/// A shell that opens nothing, so that everything falls back, and notes what would be run.
class FailingShell
{
public:
    FailingShell()
    {
        Targets().clear();
        Commands().clear();
        REQUIRE(m_shell.IsInstalled());
        REQUIRE(m_winExec.IsInstalled());
    }
    static std::vector<std::string>& Targets()
    {
        static std::vector<std::string> targets;
        return targets;
    }
    static std::vector<std::string>& Commands()
    {
        static std::vector<std::string> commands;
        return commands;
    }

private:
    static HINSTANCE WINAPI Open(HWND, LPCSTR, LPCSTR target, LPCSTR, LPCSTR, INT)
    {
        Targets().push_back(target);
        return reinterpret_cast<HINSTANCE>(ERROR_FILE_NOT_FOUND);
    }
    static UINT WINAPI Execute(LPCSTR command, UINT)
    {
        Commands().push_back(command);
        return 33;
    }

    ImportHook m_shell{Umbra(), "shell32", "ShellExecuteA", Open};
    ImportHook m_winExec{Umbra(), "kernel32", "WinExec", Execute};
};

const std::string openVerb = "\\shell\\open\\command";

/// What ShellOpen runs for a type name and a command of the registry, both with their terminators;
/// empty when nothing.
std::string RunWith(const std::string& type, const std::string& command, const std::string& target)
{
    const ScriptedRegistry registry;
    REQUIRE(registry.IsInstalled());
    ScriptedRegistry::Values()[".hostile"] = type;
    ScriptedRegistry::Values()[type.c_str() + openVerb] = command;
    const FailingShell shell;
    const GuardedText guarded(target);
    ShellOpen(guarded, SW_SHOWNORMAL, ".hostile");
    REQUIRE(FailingShell::Commands().size() <= 1);
    return FailingShell::Commands().empty() ? "" : FailingShell::Commands()[0];
}

/// The text with its terminator as one more character.
std::string Terminated(const std::string& text)
{
    return text + '\0';
}

/// Notes the paths that the picture loader is asked for, and finds none of them.
class NoPictures
{
public:
    NoPictures()
    {
        Paths().clear();
        REQUIRE(m_load.IsInstalled());
    }
    static std::vector<std::wstring>& Paths()
    {
        static std::vector<std::wstring> paths;
        return paths;
    }

private:
    static HRESULT WINAPI Load(LPOLESTR path, LPUNKNOWN, DWORD, OLE_COLOR, REFIID, void** picture)
    {
        Paths().push_back(path == nullptr ? L"(none)" : path);
        *picture = nullptr;
        return E_FAIL;
    }

    ImportHook m_load{Umbra(), "oleaut32", "OleLoadPicturePath", Load};
};

/// A working directory of any length, and none at all when it does not fit the buffer.
class FarFolder
{
public:
    explicit FarFolder(const std::string& folder)
    {
        Folder() = folder;
        Visited().clear();
        REQUIRE(m_get.IsInstalled());
        REQUIRE(m_change.IsInstalled());
    }
    static std::vector<std::string>& Visited()
    {
        static std::vector<std::string> folders;
        return folders;
    }

private:
    static std::string& Folder()
    {
        static std::string folder;
        return folder;
    }
    static char* Get(char* out, int capacity)
    {
        if (Folder().size() >= static_cast<size_t>(capacity))
            return nullptr;
        return strcpy(out, Folder().c_str());
    }
    static int Change(const char* folder)
    {
        Visited().push_back(folder);
        return 0;
    }

    ImportHook m_get{Umbra(), "msvcrt", "_getcwd", Get};
    ImportHook m_change{Umbra(), "msvcrt", "_chdir", Change};
};

/// Code page 932, in which bytes from 0x81 on may lead a character of two.
class JapaneseText
{
public:
    JapaneseText() : m_locale(::GetThreadLocale()), m_codePage(_getmbcp())
    {
        REQUIRE(
            ::SetThreadLocale(MAKELCID(MAKELANGID(LANG_JAPANESE, SUBLANG_DEFAULT), SORT_DEFAULT)));
        REQUIRE(_setmbcp(932) == 0);
    }
    ~JapaneseText()
    {
        _setmbcp(m_codePage);
        ::SetThreadLocale(m_locale);
    }

private:
    LCID m_locale;
    int m_codePage;
};

} // namespace

TEST_CASE("a composed command line fills its buffer to the last byte and never goes beyond")
{
    for (const size_t capacity : {size_t{2}, size_t{16}, size_t{260}, shellCommandCapacity}) {
        for (const size_t length : edges) {
            if (length == 0 || length >= capacity)
                continue;
            for (const int spare : {-300, -2, -1, 0, 1, 2, 300}) {
                // The blank and the terminator take two bytes.
                const long long room = static_cast<long long>(capacity - length) - 2 + spare;
                if (room < 0)
                    continue;
                CAPTURE(capacity);
                CAPTURE(length);
                CAPTURE(room);
                const GuardedBuffer buffer(capacity);
                strcpy(buffer.Get(), Long(length).c_str());
                const std::string target = Long(static_cast<size_t>(room));
                const GuardedText guarded(target);
                const BOOL composed = ComposeCommandLine(buffer.Get(), capacity, guarded);
                REQUIRE(composed == (spare <= 0));
                if (composed)
                    REQUIRE(std::string(buffer.Get()) == Long(length) + " " + target);
                REQUIRE(strnlen(buffer.Get(), capacity) < capacity);
                REQUIRE(buffer.IsFrontIntact());
            }
        }
    }
}

TEST_CASE("what stands behind a placeholder takes no room from the target")
{
    const std::string command = "run.exe \"%1\" " + Long(shellCommandCapacity - 14);
    REQUIRE(command.size() == shellCommandCapacity - 1);
    const std::string target = Long(shellCommandCapacity - 8 - 2);
    const GuardedBuffer buffer(shellCommandCapacity);
    strcpy(buffer.Get(), command.c_str());
    REQUIRE(ComposeCommandLine(buffer.Get(), shellCommandCapacity, target.c_str()));
    CHECK(std::string(buffer.Get()) == "run.exe  " + target);
    CHECK(strlen(buffer.Get()) == shellCommandCapacity - 1);
}

TEST_CASE("a placeholder is found at the very end of a text, and no half of one beyond it")
{
    for (const char* ending : {"%1", "\"%1\"", "%", "\"%1", "\"%", "\"", "\x83"}) {
        CAPTURE(ending);
        const GuardedText command(Long(300) + ending);
        const bool whole = strstr(ending, "%1") != nullptr;
        CHECK(CutPlaceholder(command.Get()) == (whole ? TRUE : FALSE));
        CHECK(strlen(command.Get()) >= 300);
    }
}

TEST_CASE("a lead byte at the end of a command takes nothing from beyond it")
{
    const JapaneseText japanese;
    for (const char* ending : {"\x83", "\x83\x25", "\x83\x83", "\x83\x25\x31", "\xFC"}) {
        CAPTURE(ending);
        const GuardedText command(std::string("run.exe ") + ending);
        CHECK_FALSE(CutPlaceholder(command.Get()));
    }
    const GuardedText command("run.exe \x83\x25%1");
    CHECK(CutPlaceholder(command.Get()));
    CHECK(std::string(command) == "run.exe \x83\x25");
}

TEST_CASE("registered values of every length are read whole or not at all")
{
    for (const size_t length : edges) {
        for (const bool terminated : {true, false}) {
            CAPTURE(length);
            CAPTURE(terminated);
            const ScriptedRegistry registry;
            const std::string value = Long(length);
            ScriptedRegistry::Values()["key"] = terminated ? Terminated(value) : value;
            const GuardedBuffer out(MAX_PATH);
            REQUIRE(QueryRegistryDefault(HKEY_CLASSES_ROOT, "key", out.Get()) == ERROR_SUCCESS);
            const std::string read = out.Get();
            CHECK((read == value || read.empty()));
            CHECK(read.empty() == (length == 0 || length >= MAX_PATH));
            CHECK(out.IsFrontIntact());
        }
    }
}

TEST_CASE("a value of the real registry that fills the buffer without a terminator is not cut")
{
    const std::string key = "umbra.hostile.value";
    HKEY opened;
    REQUIRE(::RegCreateKeyExA(HKEY_CURRENT_USER, key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                              nullptr, &opened, nullptr) == ERROR_SUCCESS);
    for (const DWORD length : {MAX_PATH - 2, MAX_PATH - 1, MAX_PATH, MAX_PATH + 1}) {
        CAPTURE(length);
        const std::string value = Long(length + 1); // The byte behind must not look like its end.
        REQUIRE(::RegSetValueExA(opened, nullptr, 0, REG_SZ,
                                 reinterpret_cast<const BYTE*>(value.c_str()),
                                 length) == ERROR_SUCCESS);
        const GuardedBuffer out(MAX_PATH);
        CHECK(QueryRegistryDefault(HKEY_CURRENT_USER, key.c_str(), out.Get()) == ERROR_SUCCESS);
        const std::string read = out.Get();
        CHECK((read.empty() || read == Long(length)));
    }
    ::RegCloseKey(opened);
    ::RegDeleteKeyA(HKEY_CURRENT_USER, key.c_str());
}

TEST_CASE("each label reads the registry the same way")
{
    class Link : public CHyperLink
    {
    public:
        using CHyperLink::QueryRegistryDefault;
    } link;
    class Label : public CStaticTS
    {
    public:
        using CStaticTS::QueryRegistryDefault;
    } label;
    const ScriptedRegistry registry;
    for (const size_t length : {size_t{259}, size_t{260}}) {
        ScriptedRegistry::Values()["key"] = Terminated(Long(length));
        const GuardedBuffer ofLink(MAX_PATH);
        const GuardedBuffer ofLabel(MAX_PATH);
        CHECK(link.QueryRegistryDefault(nullptr, "key", ofLink.Get()) == ERROR_SUCCESS);
        CHECK(label.QueryRegistryDefault(nullptr, "key", ofLabel.Get()) == ERROR_SUCCESS);
        CHECK(std::string(ofLink.Get()) == (length < MAX_PATH ? Long(length) : ""));
        CHECK(std::string(ofLabel.Get()) == ofLink.Get());
    }
}

TEST_CASE("no command is run that was cut, whatever the lengths of type, command and target")
{
    const size_t shorts[] = {1, 100, 258, 259, 260, 261, 527, 528, 529, 65536};
    int run = 0;
    for (const size_t type : shorts) {
        for (const size_t command : shorts) {
            for (const size_t target : {size_t{1}, size_t{266}, size_t{267}, size_t{268},
                                        size_t{269}, size_t{525}, size_t{526}, size_t{65536}}) {
                const std::string ran =
                    RunWith(Terminated(Long(type)), Terminated(Long(command)), Long(target));
                const bool fits = type < MAX_PATH && command < MAX_PATH &&
                                  command + 1 + target < shellCommandCapacity;
                CAPTURE(type);
                CAPTURE(command);
                CAPTURE(target);
                REQUIRE(ran == (fits ? Long(command) + " " + Long(target) : ""));
                run += fits ? 1 : 0;
            }
        }
    }
    CHECK(run > 0);
}

TEST_CASE("the shell itself gets a target of any length whole")
{
    for (const size_t length : edges) {
        RunWith(Terminated("type"), Terminated("run.exe %1"), Long(length));
        REQUIRE(FailingShell::Targets().size() == 1);
        CHECK(FailingShell::Targets()[0] == Long(length));
    }
}

TEST_CASE("a joined picture path fills its buffer to the last byte and never goes beyond")
{
    for (const size_t capacity : {size_t{1}, size_t{2}, size_t{3}, size_t{256}, size_t{260}}) {
        for (const size_t folder : edges) {
            for (const size_t path : edges) {
                CAPTURE(capacity);
                CAPTURE(folder);
                CAPTURE(path);
                const GuardedBuffer out(capacity);
                const GuardedText guardedFolder(Long(folder));
                const GuardedText guardedPath(Long(path));
                const BOOL joined =
                    JoinPicturePath(guardedFolder, guardedPath, out.Get(), capacity);
                REQUIRE(joined == (folder + 2 + path < capacity));
                REQUIRE(std::string(out.Get()) == (joined ? Long(folder) + "//" + Long(path) : ""));
                REQUIRE(out.IsFrontIntact());
            }
        }
    }
}

TEST_CASE("picture paths and working directories of every length are joined whole or not at all")
{
    const NoPictures pictures;
    for (const size_t folder : edges) {
        const FarFolder working(Long(folder));
        for (const size_t path : edges) {
            CAPTURE(folder);
            CAPTURE(path);
            NoPictures::Paths().clear();
            const std::string narrow = Long(path);
            const GuardedText guarded(narrow);
            REQUIRE(LoadPictureBitmap(guarded) == nullptr);
            const std::vector<std::wstring>& asked = NoPictures::Paths();
            const bool fits = folder + 2 + path < 256;
            REQUIRE(asked.size() == (fits ? 2 : 1));
            REQUIRE(asked[0] == std::wstring(narrow.begin(), narrow.end()));
            const std::string joined = Long(folder) + "//" + narrow;
            if (fits)
                REQUIRE(asked[1] == std::wstring(joined.begin(), joined.end()));
        }
    }
}

TEST_CASE("a path that ends in half a character is converted within its own length")
{
    const JapaneseText japanese;
    const NoPictures pictures;
    const FarFolder working("C:\\\x83");
    for (const char* path : {"\x83", "a\x83", "\x83\x5C\x83", "\x83\x83\x83", "x.gif\xFC"}) {
        CAPTURE(path);
        const GuardedText guarded(path);
        NoPictures::Paths().clear();
        CHECK(LoadPictureBitmap(guarded) == nullptr);
        REQUIRE(NoPictures::Paths().size() == 2);
        CHECK(NoPictures::Paths()[0].size() <= strlen(path));
        CHECK(NoPictures::Paths()[1].size() <= strlen(path) + strlen("C:\\\x83//"));
    }
}

TEST_CASE("a path of more than a thousand million characters gives no picture")
{
    // One piece of memory, seen again and again at addresses that follow each other.
    const size_t piece = 16 * 1024 * 1024;
    const size_t pieces = 65;
    const HANDLE memory = ::CreateFileMapping(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                              static_cast<DWORD>(piece), nullptr);
    REQUIRE(memory != nullptr);
    char* const start = static_cast<char*>(
        ::VirtualAlloc(nullptr, (pieces + 1) * piece, MEM_RESERVE, PAGE_NOACCESS));
    REQUIRE(start != nullptr);
    ::VirtualFree(start, 0, MEM_RELEASE);
    for (size_t i = 0; i < pieces; ++i)
        REQUIRE(::MapViewOfFileEx(memory, FILE_MAP_WRITE, 0, 0, piece, start + i * piece) !=
                nullptr);
    memset(start, 'p', piece);
    char* const end = static_cast<char*>(
        ::VirtualAlloc(start + pieces * piece, piece, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    CHECK(end == start + pieces * piece); // Zeros, which end the path.
    {
        const NoPictures pictures;
        if (end != nullptr)
            CHECK(LoadPictureBitmap(start) == nullptr);
        CHECK(NoPictures::Paths() == std::vector<std::wstring>{L"(none)"});
    }
    ::VirtualFree(end, 0, MEM_RELEASE);
    for (size_t i = 0; i < pieces; ++i)
        ::UnmapViewOfFile(start + i * piece);
    ::CloseHandle(memory);
}

TEST_CASE("a page with an image folder of any length opens, and goes back to the folder it was in")
{
    class PicturePage : public CBaseDialog
    {
    public:
        PicturePage()
            : CBaseDialog(1, nullptr, false, false, true, false, false, false, false, true)
        {
        }
    };
    const CString former = g_strImageDir;
    const std::string here = "C:\\here";
    for (const size_t length : {size_t{1}, size_t{255}, size_t{256}, size_t{257}, size_t{259},
                                size_t{260}, size_t{261}, size_t{65536}}) {
        for (const size_t away : {here.size(), size_t{259}, size_t{260}, size_t{261}}) {
            CAPTURE(length);
            CAPTURE(away);
            const std::string folder = away == here.size() ? here : Long(away);
            const FarFolder working(folder);
            g_strImageDir = Long(length).c_str();
            PicturePage page;
            umbra::testing::DialogTemplate source(0, 0, 300, 100,
                                                  umbra::testing::DialogTemplate::popup);
            source.Button(IDCANCEL, "Cancel", 10, 10, 50, 14);
            REQUIRE(page.CreateIndirect(source.Get()));
            FarFolder::Visited().clear();
            page.ShowPicture(16);
            const std::vector<std::string>& visited = FarFolder::Visited();
            if (away <= 260) { // It can be remembered, so it is left and come back to.
                REQUIRE(visited.size() == 2);
                CHECK(visited[0] == Long(length) + "\\");
                CHECK(visited[1] == folder);
            } else {
                CHECK(visited.empty());
            }
            page.DestroyWindow();
        }
    }
    g_strImageDir = former;
}

TEST_CASE("labels, links and buttons take, paint and open texts of any length")
{
    const ScriptedRegistry registry;
    for (const char* extension : {".htm", ".QVXLog"})
        ScriptedRegistry::Values()[extension] = Terminated("type");
    ScriptedRegistry::Values()["type" + openVerb] = Terminated("run.exe %1");
    const FailingShell shell;

    CDialogTS dialog(1);
    umbra::testing::DialogTemplate source(10, 10, 300, 150,
                                          umbra::testing::DialogTemplate::popup | WS_VISIBLE);
    const DWORD style = umbra::testing::DialogTemplate::visibleChild | SS_NOTIFY;
    source.Label(100, "", 10, 10, 100, 20, style).Label(101, "", 10, 40, 100, 20, style);
    source.Button(102, "", 10, 70, 100, 20);
    dialog.m_bmpBack.CreateBitmap(40, 40, 1, 32, nullptr);
    dialog.m_bHasBitmap = TRUE;
    dialog.m_bCaptionText = TRUE;
    REQUIRE(dialog.CreateIndirect(source.Get()));
    const HBITMAP back = static_cast<HBITMAP>(dialog.m_bmpBack.GetSafeHandle());

    CHyperLink link;
    CStaticTS label;
    CxShadeButton button;
    link.SubclassDlgItem(100, &dialog);
    label.SubclassDlgItem(101, &dialog);
    button.SubclassDlgItem(102, &dialog);
    link.SetURL("");
    label.SetLink(TRUE);
    for (const size_t length : edges) {
        CAPTURE(length);
        const GuardedText text(Long(length));
        for (CWnd* control : {static_cast<CWnd*>(&dialog), static_cast<CWnd*>(&link),
                              static_cast<CWnd*>(&label), static_cast<CWnd*>(&button)}) {
            control->SetWindowText(text);
            CString back;
            control->GetWindowText(back);
            REQUIRE(back.GetLength() == static_cast<int>(length));
        }
        link.SetToolTipText(text.Get());
        button.SetToolTipText(text.Get(), text.Get());
        dialog.RedrawWindow(nullptr, nullptr,
                            RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);

        FailingShell::Commands().clear();
        link.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, 0);
        label.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, 0);
        const std::string whole = "run.exe  " + Long(length);
        if (length == 0 || whole.size() >= shellCommandCapacity) {
            CHECK(FailingShell::Commands().empty());
        } else {
            REQUIRE(FailingShell::Commands().size() == 2);
            CHECK(FailingShell::Commands()[0] == whole);
            CHECK(FailingShell::Commands()[1] == whole);
        }
    }
    dialog.DestroyWindow();
    dialog.FreeBitmaps();
    ::DeleteObject(back);
}
