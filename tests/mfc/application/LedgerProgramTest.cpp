// A ledger in an archive: entered by hand, saved, opened again, of a former version, damaged.
#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/mfc/MessageBoxText.h"
#include "tests/mfc/application/Program.h"
#include "tests/mfc/files/ArchiveBytes.h"
#include "tests/mfc/files/TestFolder.h"
#include "tests/mfc/programs/Ledger/resource.h"

#include <string>

namespace {

/// The program with the name of its file entered.
class Ledger : public Program
{
public:
    explicit Ledger(const CString& file)
        : Program(("mfc-test-ledger.exe\" \"" + std::string(CStringA(file)) + '"').c_str(),
                  "Ledger")
    {
        REQUIRE(BringToFront());
    }

    bool Says(const char* text)
    {
        return WaitFor([&] { return Text(IDC_TOTAL) == text; });
    }
    /// Types into the control, which has the focus, with its text selected if it has any.
    void TypeInto(int id, const char* text)
    {
        CHECK(HasFocus(Control(id)));
        Type(text);
        CHECK(WaitFor([&] { return Text(id) == text; }));
    }
    void Enter(int id, const char* text)
    {
        ClickAt(Control(id));
        TypeInto(id, text);
    }
    void Add(const char* text, const char* amount, const char* category)
    {
        Enter(IDC_TEXT, text);
        Press(VK_TAB);
        TypeInto(IDC_AMOUNT, amount);
        Press(VK_TAB);
        TypeInto(IDC_CATEGORY, category);
        const LRESULT before = Count();
        Press(VK_RETURN);
        CHECK(WaitFor([&] { return Count() == before + 1; }));
    }
    LRESULT Count() const { return ::SendMessageA(Control(IDC_ENTRIES), LB_GETCOUNT, 0, 0); }
    /// Their lines, one after another.
    std::string Entries() const
    {
        std::string lines;
        const HWND list = Control(IDC_ENTRIES);
        const LRESULT count = Count();
        for (LRESULT i = 0; i < count; ++i) {
            WCHAR line[200] = L""; // As wide text, which passes between all programs unchanged.
            ::SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i),
                           reinterpret_cast<LPARAM>(line));
            lines += std::string(CStringA(line)) + '\n';
        }
        return lines;
    }
    /// Opens the file, which the program complains about.
    CString ComplaintWhenOpening()
    {
        ClickAt(Control(IDC_OPEN));
        const HWND box = Find("mfc-test-ledger");
        REQUIRE(box != nullptr);
        const CString text = MessageBoxText(box);
        ::PostMessage(box, WM_COMMAND, IDOK, 0);
        CHECK(WaitFor([&] { return ::IsWindowEnabled(window) != FALSE && !::IsWindow(box); }));
        return text;
    }
    void CloseByKey()
    {
        REQUIRE(BringToFront());
        Press(VK_ESCAPE);
        CHECK(ExitCode() == 0);
    }
};

void WriteBytes(LPCTSTR path, const std::string& bytes)
{
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
}

std::string BytesIn(LPCTSTR path)
{
    CFile file(path, CFile::modeRead);
    std::string bytes(static_cast<size_t>(file.GetLength()), '\0');
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

void PutClass(CArchive& ar, const CStringA& name, WORD schema)
{
    ar << static_cast<WORD>(0xFFFF) << schema << static_cast<WORD>(name.GetLength());
    ar.Write(name, name.GetLength());
}

/// A ledger of one entry as the program stored it when entries had no category.
std::string OldLedger(WORD entrySchema)
{
    return Stored([&](CArchive& ar) {
        PutClass(ar, "CLedger", 1);
        ar << CStringA("Ann") << static_cast<WORD>(1);
        PutClass(ar, "CEntry", entrySchema);
        ar << CStringA("Rent") << 50000L << static_cast<WORD>(4); // The entry is object number 4.
    });
}

} // namespace

TEST_CASE("entries are typed in, saved, and seen again when the file is opened")
{
    const TestFolder folder;
    const CString path = folder / _T("ledger.dat");
    {
        Ledger program(path);
        CHECK(program.Says("Total 0.00"));
        program.Enter(IDC_OWNER, "ann");
        program.Add("tea", "1.50", "food");
        program.Add("rent", "500", "home");
        CHECK(program.Says("Total 501.50, largest rent"));
        Ledger::ClickAt(program.Control(IDC_SAVE));
        CHECK(program.Says("Saved"));
        program.CloseByKey();
    }
    Ledger again(path);
    CHECK(again.Count() == 0);
    Ledger::ClickAt(again.Control(IDC_OPEN));
    CHECK(again.Says("Total 501.50, largest rent"));
    CHECK(again.Text(IDC_OWNER) == "ann");
    CHECK(again.Entries() == "tea (food): 1.50\nrent (home): 500.00\n");
    again.Add("more", "2", "food");
    CHECK(again.Says("Total 503.50, largest rent"));
    again.CloseByKey();
}

TEST_CASE("a ledger of the former version opens, and one of a later version does not")
{
    const TestFolder folder;
    const CString path = folder / _T("ledger.dat");
    WriteBytes(path, OldLedger(1));
    Ledger program(path);
    Ledger::ClickAt(program.Control(IDC_OPEN));
    CHECK(program.Says("Total 500.00, largest Rent"));
    CHECK(program.Entries() == "Rent (general): 500.00\n");
    WriteBytes(path, OldLedger(3));
    CHECK(program.ComplaintWhenOpening() ==
          path + _T(" was written by another version of the program."));
    CHECK(program.Entries() == "Rent (general): 500.00\n");
    program.CloseByKey();
}

TEST_CASE("a damaged file is complained about, and the ledger stays as it is")
{
    const TestFolder folder;
    const CString path = folder / _T("ledger.dat");
    Ledger program(path);
    program.Add("tea", "1.50", "food");
    program.Add("jam", "2.50", "food");
    Ledger::ClickAt(program.Control(IDC_SAVE));
    REQUIRE(program.Says("Saved"));
    const std::string whole = BytesIn(path);
    const std::string entries = program.Entries();
    REQUIRE(program.Count() == 2);

    WriteBytes(path, whole.substr(0, whole.size() - 5));
    CHECK(program.ComplaintWhenOpening() == path + _T(" ends too early."));
    CHECK(program.Entries() == entries);

    std::string damaged = whole;
    damaged[damaged.size() - 2] = 0x66; // The reference to the largest.
    WriteBytes(path, damaged);
    CHECK(program.ComplaintWhenOpening() == path + _T(" is damaged."));
    damaged = whole;
    damaged.replace(damaged.find("CEntry"), 6, "CPanel");
    WriteBytes(path, damaged);
    CHECK(program.ComplaintWhenOpening() == path + _T(" has something of an unexpected kind."));
    CFile::Remove(path);
    CHECK(program.ComplaintWhenOpening().Find(path) == 0);
    CHECK(program.Entries() == entries);

    WriteBytes(path, whole);
    Ledger::ClickAt(program.Control(IDC_OPEN));
    CHECK(program.Says("Total 4.00, largest jam"));
    CHECK(program.Entries() == entries);
    program.CloseByKey();
}
