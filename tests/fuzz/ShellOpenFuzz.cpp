// Opening targets with a registry that holds anything. Built from shell/ShellOpen.cpp,
// CommandLine.cpp and ProgramStart.cpp.
#include "tests/fuzz/Input.h"

#include "shell/CommandLine.h"
#include "shell/ShellOpen.h"

#include <vector>

using namespace umbra;

namespace {

Input* input;
std::vector<std::string> values;   // What the registry has answered, whole.
std::vector<std::string> commands; // What was run.
unsigned shellAnswer;
bool twoByteCharacters;

/// A command with a placeholder often, which mutations alone would find slowly.
std::string MakeValue()
{
    std::string value = input->Text();
    static const char* const parts[] = {"%1", "\"%1\"", "\"%1", "%", " "};
    const unsigned part = input->Byte();
    if (part < 5)
        value.insert(value.size() / 2, parts[part]);
    return value;
}

} // namespace

int _ismbblead(unsigned int byte)
{
    return twoByteCharacters && byte >= 0x81 && byte != 0xA0 && byte != 0xFF;
}

LONG RegOpenKeyEx(HKEY, const char*, DWORD, DWORD, HKEY* key)
{
    if (input->Byte() % 8 == 0)
        return ERROR_FILE_NOT_FOUND;
    *key = nullptr;
    return ERROR_SUCCESS;
}

LONG RegQueryValue(HKEY, const char*, char* value, LONG* size)
{
    const std::string text = MakeValue();
    const std::size_t stored = text.size() + (input->Byte() % 2); // With or without a terminator.
    const bool fits = stored <= static_cast<std::size_t>(*size);
    if (fits)
        std::memcpy(value, text.c_str(), stored);
    values.push_back(fits ? text : "");
    *size = static_cast<LONG>(stored);
    return fits ? ERROR_SUCCESS : ERROR_MORE_DATA;
}

LONG RegCloseKey(HKEY)
{
    return ERROR_SUCCESS;
}

HINSTANCE ShellExecute(HWND, const char*, const char*, const char*, const char*, int)
{
    return reinterpret_cast<HINSTANCE>(static_cast<UINT_PTR>(shellAnswer));
}

UINT WinExec(const char* command, UINT)
{
    commands.push_back(command);
    return 33;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input made(data, size);
    input = &made;
    values.clear();
    commands.clear();
    twoByteCharacters = made.Byte() % 2 != 0;
    shellAnswer = made.Byte() % 66;

    const std::string target = made.Text();
    const ExactText exact(target);
    const UINT result = ShellOpen(exact, 1, ".htm");
    REQUIRE(commands.size() <= 1);
    if (shellAnswer > 32)
        REQUIRE(commands.empty() && result == shellAnswer);
    if (!commands.empty()) {
        // A whole value of the registry, cut at a placeholder if anywhere, and the whole target.
        const std::string& run = commands[0];
        REQUIRE(values.size() == 2 && !values[1].empty());
        REQUIRE(run.size() < shellCommandCapacity && run.size() > target.size());
        REQUIRE(run.compare(run.size() - target.size(), target.size(), target) == 0);
        const std::string head = run.substr(0, run.size() - target.size() - 1);
        REQUIRE(run[head.size()] == ' ');
        REQUIRE(values[1].compare(0, head.size(), head) == 0);
        const std::string rest = values[1].substr(head.size());
        REQUIRE(rest.empty() || rest.compare(0, 2, "%1") == 0 || rest.compare(0, 4, "\"%1\"") == 0);
    }

    // The two text routines by themselves, in blocks of any size.
    const std::string command = made.Text();
    const std::size_t capacity = command.size() + 1 + made.Byte();
    const std::unique_ptr<char[]> buffer(new char[capacity]);
    std::memcpy(buffer.get(), command.c_str(), command.size() + 1);
    const std::string appended = made.Text();
    if (ComposeCommandLine(buffer.get(), capacity, ExactText(appended)))
        REQUIRE(std::strlen(buffer.get()) < capacity);
    ExactText cut(command);
    const BOOL found = CutPlaceholder(cut);
    REQUIRE(found || command == static_cast<const char*>(cut));
    REQUIRE(!found || command.find("%1") != std::string::npos);
    return 0;
}
