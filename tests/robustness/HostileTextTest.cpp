// Texts of every length around the sizes of the toolkit's buffers, and far beyond.
#include "tests/robustness/GuardedBuffer.h"

#include "tests/LibraryFiles.h"
#include "tests/StartStandIn.h"

#include "shell/CommandLine.h"
#include "shell/PictureLoader.h"
#include "shell/PicturePath.h"
#include "shell/ShellOpen.h"
#include <umbra.h>

#include "testing/DialogTemplate.h"
#include "testing/ImportHook.h"
#include "testing/Pump.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <direct.h>
#include <map>
#include <mbctype.h>
#include <olectl.h>
#include <vector>

using namespace umbra;
using namespace umbra::testing;

/// The name by which a function of the run-time library is imported that takes text.
#ifdef UNICODE
#define RUN_TIME_FUNCTION(name) "_w" name
#else
#define RUN_TIME_FUNCTION(name) "_" name
#endif

namespace {

const size_t edges[] = {0,   1,   2,   254, 255, 256, 257,  258,   259,   260,
                        261, 526, 527, 528, 529, 530, 4096, 65535, 65536, 65537};

/// The module whose calls are caught.
HMODULE Umbra()
{
    return FindModule(UMBRA_DLL);
}

/// A text that shows where it was cut: its characters count up.
TString Long(size_t length)
{
    TString text(length, _T(' '));
    for (size_t i = 0; i < length; ++i)
        text[i] = static_cast<TCHAR>(_T('a') + i % 26);
    return text;
}

/// A registry of values that a test gives; a value may lack its terminator.
class ScriptedRegistry
{
public:
    ScriptedRegistry() { Values().clear(); }
    static std::map<TString, TString>& Values()
    {
        static std::map<TString, TString> values;
        return values;
    }
    bool IsInstalled() const
    {
        return m_open.IsInstalled() && m_query.IsInstalled() && m_close.IsInstalled();
    }

private:
    static LSTATUS WINAPI Open(HKEY, LPCTSTR name, DWORD, REGSAM, HKEY* key)
    {
        const auto found = Values().find(name);
        if (found == Values().end())
            return ERROR_FILE_NOT_FOUND;
        *key = reinterpret_cast<HKEY>(&found->second);
        return ERROR_SUCCESS;
    }
    /// As the system does: too long a value is not touched; the terminator comes only when stored.
    static LSTATUS WINAPI Query(HKEY key, LPCTSTR, LPTSTR out, LONG* size)
    {
        const TString& value = *reinterpret_cast<TString*>(key);
        const LONG length = static_cast<LONG>(value.size() * sizeof(TCHAR));
        const bool fits = length <= *size;
        if (fits)
            std::copy(value.begin(), value.end(), out);
        *size = length;
        return fits ? ERROR_SUCCESS : ERROR_MORE_DATA;
    }
    static LSTATUS WINAPI Close(HKEY) { return ERROR_SUCCESS; }

    ImportHook m_open{Umbra(), "advapi32", TEXT_FUNCTION("RegOpenKeyEx"), Open};
    ImportHook m_query{Umbra(), "advapi32", TEXT_FUNCTION("RegQueryValue"), Query};
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
        REQUIRE(m_start.IsInstalled());
    }
    static std::vector<TString>& Targets()
    {
        static std::vector<TString> targets;
        return targets;
    }
    static std::vector<TString>& Commands()
    {
        static std::vector<TString> commands;
        return commands;
    }

private:
    static HINSTANCE WINAPI Open(HWND, LPCTSTR, LPCTSTR target, LPCTSTR, LPCTSTR, INT)
    {
        Targets().push_back(target);
        return reinterpret_cast<HINSTANCE>(ERROR_FILE_NOT_FOUND);
    }
    static UINT Execute(LPCTSTR command, UINT)
    {
        Commands().push_back(command);
        return 33;
    }

    using Starts = StartStandIn<Execute>;

    ImportHook m_shell{Umbra(), "shell32", TEXT_FUNCTION("ShellExecute"), Open};
    ImportHook m_start{Umbra(), "kernel32", Starts::function, Starts::Start};
};

const TString openVerb = _T("\\shell\\open\\command");

/// What ShellOpen runs for a type name and a command of the registry, both with their terminators;
/// empty when nothing.
TString RunWith(const TString& type, const TString& command, const TString& target)
{
    const ScriptedRegistry registry;
    REQUIRE(registry.IsInstalled());
    ScriptedRegistry::Values()[_T(".hostile")] = type;
    ScriptedRegistry::Values()[type.c_str() + openVerb] = command;
    const FailingShell shell;
    const GuardedText guarded(target);
    ShellOpen(guarded, SW_SHOWNORMAL, _T(".hostile"));
    REQUIRE(FailingShell::Commands().size() <= 1);
    return FailingShell::Commands().empty() ? TString() : FailingShell::Commands()[0];
}

/// The text with its terminator as one more character.
TString Terminated(const TString& text)
{
    return text + _T('\0');
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
    explicit FarFolder(const TString& folder)
    {
        Folder() = folder;
        Visited().clear();
        REQUIRE(m_get.IsInstalled());
        REQUIRE(m_change.IsInstalled());
    }
    static std::vector<TString>& Visited()
    {
        static std::vector<TString> folders;
        return folders;
    }

private:
    static TString& Folder()
    {
        static TString folder;
        return folder;
    }
    static TCHAR* Get(TCHAR* out, int capacity)
    {
        if (Folder().size() >= static_cast<size_t>(capacity))
            return nullptr;
        return _tcscpy(out, Folder().c_str());
    }
    static int Change(const TCHAR* folder)
    {
        Visited().push_back(folder);
        return 0;
    }

    ImportHook m_get{Umbra(), "msvcrt", RUN_TIME_FUNCTION("getcwd"), Get};
    ImportHook m_change{Umbra(), "msvcrt", RUN_TIME_FUNCTION("chdir"), Change};
};

#ifndef UNICODE
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
#endif

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
                _tcscpy(buffer.Get(), Long(length).c_str());
                const TString target = Long(static_cast<size_t>(room));
                const GuardedText guarded(target);
                const BOOL composed = ComposeCommandLine(buffer.Get(), capacity, guarded);
                REQUIRE(composed == (spare <= 0));
                if (composed)
                    REQUIRE(TString(buffer.Get()) == Long(length) + _T(" ") + target);
                REQUIRE(_tcsnlen(buffer.Get(), capacity) < capacity);
                REQUIRE(buffer.IsFrontIntact());
            }
        }
    }
}

TEST_CASE("what stands behind a placeholder takes no room from the target")
{
    const TString command = _T("run.exe \"%1\" ") + Long(shellCommandCapacity - 14);
    REQUIRE(command.size() == shellCommandCapacity - 1);
    const TString target = Long(shellCommandCapacity - 8 - 2);
    const GuardedBuffer buffer(shellCommandCapacity);
    _tcscpy(buffer.Get(), command.c_str());
    REQUIRE(ComposeCommandLine(buffer.Get(), shellCommandCapacity, target.c_str()));
    CHECK(TString(buffer.Get()) == _T("run.exe  ") + target);
    CHECK(_tcslen(buffer.Get()) == shellCommandCapacity - 1);
}

TEST_CASE("a placeholder is found at the very end of a text, and no half of one beyond it")
{
    for (const LPCTSTR ending :
         {_T("%1"), _T("\"%1\""), _T("%"), _T("\"%1"), _T("\"%"), _T("\""), _T("\x83")}) {
        CAPTURE(ending);
        const GuardedText command(Long(300) + ending);
        const bool whole = _tcsstr(ending, _T("%1")) != nullptr;
        CHECK(CutPlaceholder(command.Get()) == (whole ? TRUE : FALSE));
        CHECK(_tcslen(command.Get()) >= 300);
    }
}

#ifndef UNICODE
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
#endif

TEST_CASE("registered values of every length are read whole or not at all")
{
    for (const size_t length : edges) {
        for (const bool terminated : {true, false}) {
            CAPTURE(length);
            CAPTURE(terminated);
            const ScriptedRegistry registry;
            const TString value = Long(length);
            ScriptedRegistry::Values()[_T("key")] = terminated ? Terminated(value) : value;
            const GuardedBuffer out(MAX_PATH);
            REQUIRE(QueryRegistryDefault(HKEY_CLASSES_ROOT, _T("key"), out.Get()) == ERROR_SUCCESS);
            const TString read = out.Get();
            CHECK((read == value || read.empty()));
            CHECK(read.empty() == (length == 0 || length >= MAX_PATH));
            CHECK(out.IsFrontIntact());
        }
    }
}

TEST_CASE("a value of the real registry that fills the buffer without a terminator is not cut")
{
    const TString key = _T("umbra.hostile.value");
    HKEY opened;
    REQUIRE(::RegCreateKeyEx(HKEY_CURRENT_USER, key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                             &opened, nullptr) == ERROR_SUCCESS);
    for (const DWORD length : {MAX_PATH - 2, MAX_PATH - 1, MAX_PATH, MAX_PATH + 1}) {
        CAPTURE(length);
        const TString value = Long(length + 1); // The character behind must not look like its end.
        REQUIRE(::RegSetValueEx(opened, nullptr, 0, REG_SZ,
                                reinterpret_cast<const BYTE*>(value.c_str()),
                                length * sizeof(TCHAR)) == ERROR_SUCCESS);
        const GuardedBuffer out(MAX_PATH);
        CHECK(QueryRegistryDefault(HKEY_CURRENT_USER, key.c_str(), out.Get()) == ERROR_SUCCESS);
        const TString read = out.Get();
        CHECK((read.empty() || read == Long(length)));
    }
    ::RegCloseKey(opened);
    ::RegDeleteKey(HKEY_CURRENT_USER, key.c_str());
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
        ScriptedRegistry::Values()[_T("key")] = Terminated(Long(length));
        const GuardedBuffer ofLink(MAX_PATH);
        const GuardedBuffer ofLabel(MAX_PATH);
        CHECK(link.QueryRegistryDefault(nullptr, _T("key"), ofLink.Get()) == ERROR_SUCCESS);
        CHECK(label.QueryRegistryDefault(nullptr, _T("key"), ofLabel.Get()) == ERROR_SUCCESS);
        CHECK(TString(ofLink.Get()) == (length < MAX_PATH ? Long(length) : TString()));
        CHECK(TString(ofLabel.Get()) == ofLink.Get());
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
                const TString ran =
                    RunWith(Terminated(Long(type)), Terminated(Long(command)), Long(target));
                const bool fits = type < MAX_PATH && command < MAX_PATH &&
                                  command + 1 + target < shellCommandCapacity;
                CAPTURE(type);
                CAPTURE(command);
                CAPTURE(target);
                REQUIRE(ran == (fits ? Long(command) + _T(" ") + Long(target) : TString()));
                run += fits ? 1 : 0;
            }
        }
    }
    CHECK(run > 0);
}

TEST_CASE("the shell itself gets a target of any length whole")
{
    for (const size_t length : edges) {
        RunWith(Terminated(_T("type")), Terminated(_T("run.exe %1")), Long(length));
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
                REQUIRE(TString(out.Get()) ==
                        (joined ? Long(folder) + _T("//") + Long(path) : TString()));
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
            const TString text = Long(path);
            const GuardedText guarded(text);
            REQUIRE(LoadPictureBitmap(guarded) == nullptr);
            const std::vector<std::wstring>& asked = NoPictures::Paths();
            const bool fits = folder + 2 + path < 256;
            REQUIRE(asked.size() == (fits ? 2 : 1));
            REQUIRE(asked[0] == std::wstring(text.begin(), text.end()));
            const TString joined = Long(folder) + _T("//") + text;
            if (fits)
                REQUIRE(asked[1] == std::wstring(joined.begin(), joined.end()));
        }
    }
}

#ifndef UNICODE // Nothing is converted there.
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
#endif

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
    const TString here = _T("C:\\here");
    for (const size_t length : {size_t{1}, size_t{255}, size_t{256}, size_t{257}, size_t{259},
                                size_t{260}, size_t{261}, size_t{65536}}) {
        for (const size_t away : {here.size(), size_t{259}, size_t{260}, size_t{261}}) {
            CAPTURE(length);
            CAPTURE(away);
            const TString folder = away == here.size() ? here : Long(away);
            const FarFolder working(folder);
            g_strImageDir = Long(length).c_str();
            PicturePage page;
            umbra::testing::DialogTemplate source(0, 0, 300, 100,
                                                  umbra::testing::DialogTemplate::popup);
            source.Button(IDCANCEL, _T("Cancel"), 10, 10, 50, 14);
            REQUIRE(page.CreateIndirect(source.Get()));
            FarFolder::Visited().clear();
            page.ShowPicture(16);
            const std::vector<TString>& visited = FarFolder::Visited();
            if (away <= 260) { // It can be remembered, so it is left and come back to.
                REQUIRE(visited.size() == 2);
                CHECK(visited[0] == Long(length) + _T("\\"));
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
    for (const LPCTSTR extension : {_T(".htm"), _T(".QVXLog")})
        ScriptedRegistry::Values()[extension] = Terminated(_T("type"));
    ScriptedRegistry::Values()[_T("type") + openVerb] = Terminated(_T("run.exe %1"));
    const FailingShell shell;

    CDialogTS dialog(1);
    umbra::testing::DialogTemplate source(10, 10, 300, 150,
                                          umbra::testing::DialogTemplate::popup | WS_VISIBLE);
    const DWORD style = umbra::testing::DialogTemplate::visibleChild | SS_NOTIFY;
    source.Label(100, _T(""), 10, 10, 100, 20, style).Label(101, _T(""), 10, 40, 100, 20, style);
    source.Button(102, _T(""), 10, 70, 100, 20);
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
    link.SetURL(_T(""));
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
        const TString whole = _T("run.exe  ") + Long(length);
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
