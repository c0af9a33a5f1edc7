// A dialog of a check list, a date, a month and notes, driven by keys and pointer.
#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/mfc/application/Program.h"
#include "tests/mfc/programs/Planner/resource.h"

#include <fstream>
#include <iterator>

namespace {

constexpr char settingsKey[] = "Software\\Umbra Planner Test";
constexpr char planKey[] = "Software\\Umbra Planner Test\\mfc-test-planner\\Plan";

/// The program with a file for its notes. Its settings go with it.
class Planner : public Program
{
public:
    explicit Planner(const char* file)
        : Program((std::string("mfc-test-planner.exe\" ") + file).c_str(), "Planner")
    {
        REQUIRE(BringToFront());
    }
    ~Planner() { ::SHDeleteKeyA(HKEY_CURRENT_USER, settingsKey); }

    bool Says(int id, const char* text)
    {
        return WaitFor([&] { return Text(id) == text; });
    }
    static std::string Setting(const char* name)
    {
        char text[100] = "";
        DWORD size = sizeof(text);
        ::SHGetValueA(HKEY_CURRENT_USER, planKey, name, nullptr, text, &size);
        return text;
    }
    static DWORD Number(const char* name)
    {
        DWORD number = 999, size = sizeof(number);
        ::SHGetValueA(HKEY_CURRENT_USER, planKey, name, nullptr, &number, &size);
        return number;
    }
    /// Of an item of the check list, at the left of its row.
    void ClickTask(int index)
    {
        const HWND list = Control(IDC_TASKS);
        const int height = static_cast<int>(::SendMessage(list, LB_GETITEMHEIGHT, 0, 0));
        ClickAt(list, {7, index * height + height / 2});
    }
};

std::string ContentsOf(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

const char notesFile[] = "planner-notes.rtf";

struct NotesFile
{
    NotesFile() { ::DeleteFileA(notesFile); }
    ~NotesFile() { ::DeleteFileA(notesFile); }
};

} // namespace

TEST_CASE("tasks are checked with the pointer and the space key")
{
    const NotesFile notes;
    Planner program(notesFile);
    CHECK(program.Says(IDC_DONE, "0 of 4 done"));
    program.ClickTask(1);
    CHECK(program.Says(IDC_DONE, "1 of 4 done"));
    CHECK(program.HasFocus(program.Control(IDC_TASKS)));
    program.Press(VK_DOWN);
    program.Press(VK_SPACE);
    CHECK(program.Says(IDC_DONE, "2 of 4 done"));
    program.ClickTask(3); // Disabled.
    program.ClickTask(0);
    CHECK(program.Says(IDC_DONE, "3 of 4 done"));
    program.ClickTask(1);
    CHECK(program.Says(IDC_DONE, "2 of 4 done"));
    program.ClickAt(program.Control(IDOK));
    CHECK(program.ExitCode() == 50 + IDOK);
    CHECK(Planner::Number("Done") == 2);
    CHECK(Planner::Setting("Title") == "My week");
}

TEST_CASE("a date is changed with keys and a day of a month with the pointer")
{
    const NotesFile notes;
    Planner program(notesFile);
    const HWND due = program.Control(IDC_DUE);
    program.ClickAt(due, {8, 8}); // The day, which comes first.
    CHECK(program.HasFocus(due));
    program.Press(VK_UP);
    CHECK(program.Says(IDC_DUE, "24.11.2005"));
    program.ClickAt(program.Control(IDC_MONTH));
    CHECK(WaitFor([&] { return program.Text(IDC_SHOWN).size() == 10; }));
    const std::string day = program.Text(IDC_SHOWN);
    CHECK(day.substr(0, 8) == "2005-11-");
    program.ClickAt(program.Control(IDOK));
    CHECK(program.ExitCode() == 50 + IDOK);
    CHECK(Planner::Setting("Due") == "2005-11-24");
    CHECK(Planner::Setting("Shown") == day);
}

TEST_CASE("notes are typed, made bold, found and saved")
{
    const NotesFile notes;
    Planner program(notesFile);
    program.ClickAt(program.Control(IDC_NOTES));
    CHECK(program.HasFocus(program.Control(IDC_NOTES)));
    program.Type("plain thick");
    CHECK(program.Says(IDC_NOTES, "plain thick"));
    for (int i = 0; i < 5; ++i)
        program.Press(VK_LEFT, VK_SHIFT);
    program.ClickAt(program.Control(IDC_BOLD));
    CHECK(program.HasFocus(program.Control(IDC_NOTES)));

    program.ClickAt(program.Control(IDC_FIND_TEXT));
    CHECK(program.HasFocus(program.Control(IDC_FIND_TEXT)));
    program.Type("ain");
    CHECK(program.Says(IDC_FIND_TEXT, "ain"));
    program.ClickAt(program.Control(IDC_FIND));
    CHECK(program.Says(IDC_FOUND, "Found ain at 2"));
    program.ClickAt(program.Control(IDC_FIND_TEXT));
    program.Type("xx");
    CHECK(WaitFor([&] { return program.Text(IDC_FIND_TEXT).find("xx") != std::string::npos; }));
    program.ClickAt(program.Control(IDC_FIND));
    CHECK(program.Says(IDC_FOUND, "Not found"));

    program.ClickAt(program.Control(IDC_SAVE));
    CHECK(program.Says(IDC_FOUND, "Saved"));
    const std::string rtf = ContentsOf(notesFile);
    CHECK(rtf.rfind("{\\rtf", 0) == 0);
    const size_t bold = rtf.find("\\b "), plain = rtf.find("plain"), thick = rtf.find("thick");
    CHECK(plain < thick);
    CHECK(thick != std::string::npos);
    CHECK(bold > plain);
    CHECK(bold < thick);
    program.Press(VK_ESCAPE);
    CHECK(program.ExitCode() == 50 + IDCANCEL);
}
