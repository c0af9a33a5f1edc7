// The hand cursor is loaded once in a process, so each failing call has a process of its own.
#include "tests/robustness/ChildProgram.h"
#include "tests/robustness/FailureTable.h"
#include "tests/robustness/Stage.h"

#include "tests/LibraryFiles.h"
#include "tests/programs/HelpProgram.h"

#include "controls/StaticTS.h"
#include "shell/HandCursor.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <memory>
#include <stdio.h>
#include <stdlib.h>
#include <vector>

using namespace umbra::testing;

namespace {

const char childTest[] = "part: the hand cursor with a failing call";
const int mostImports = 1024;

/// What parent and child share.
struct Progress
{
    volatile LONG beat;
    LONG import; ///< Whose first call fails; -1: none, calls are counted.
    LONG result; ///< What the failing call gives back, unless 0.
    LONG calls[mostImports];
    LONG hasHand;
    LONG isHandled; ///< What the label answered.
};

/// The toolkit's imports that can fail.
std::vector<Import> ImportsThatCanFail()
{
    std::vector<Import> imports;
    for (const Import& import : ImportsOf(FindModule(UMBRA_DLL))) {
        if (!import.name.empty() && import.dll != UMBRA_MFC_DLL && CanFail(import))
            imports.push_back(import);
    }
    return imports;
}

/// What the import gives back when it fails in this child.
Failure ChooseFailure(const Import& import, const Progress& progress)
{
    Failure failure = FailureOf(import);
    if (progress.result != 0)
        failure.result = progress.result;
    return failure;
}

/// The name of the memory that parent and child share.
std::string ShareName()
{
    return "umbra-hand-" + std::to_string(::GetCurrentProcessId());
}

} // namespace

TEST_CASE("part: the hand cursor with a failing call" * doctest::skip())
{
    const SharedMemory memory(ChildArgument(), sizeof(Progress));
    auto& progress = *static_cast<Progress*>(memory.Get());
    const std::vector<Import> imports = ImportsThatCanFail();
    Stage stage;
    CStaticTS label;
    label.SubclassWindow(stage.AddLabel());
    label.SetLink(TRUE);
    {
        std::vector<std::unique_ptr<CallFault>> faults;
        for (size_t i = 0; i < imports.size(); ++i) {
            const bool fails = progress.import == static_cast<LONG>(i);
            faults.push_back(std::make_unique<CallFault>(
                FindModule(UMBRA_DLL), imports[i].dll.c_str(), imports[i].name.c_str(), 1,
                fails ? 1 : 0, ChooseFailure(imports[i], progress)));
        }
        progress.hasHand = LoadHandCursor() != nullptr;
        progress.isHandled = static_cast<LONG>(::SendMessage(label.m_hWnd, WM_SETCURSOR,
                                                             reinterpret_cast<WPARAM>(label.m_hWnd),
                                                             MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
        for (size_t i = 0; i < imports.size(); ++i)
            progress.calls[i] = static_cast<LONG>(faults[i]->Calls());
    }
    stage.Close();
}

TEST_CASE("whichever call fails, there is a hand or there is none, and the pointer is looked after")
{
    const HelpProgram help;
    REQUIRE(help.IsInstalled());
    const SharedMemory memory(ShareName(), sizeof(Progress));
    auto& progress = *static_cast<Progress*>(memory.Get());
    const auto run = [&] {
        return RunChild(childTest, ShareName(), [&] { return progress.beat; });
    };

    progress.import = -1;
    REQUIRE(run().IsGood());
    REQUIRE(progress.hasHand);
    const std::vector<Import> imports = ImportsThatCanFail();
    const std::vector<LONG> calls(progress.calls, progress.calls + imports.size());

    int tried = 0;
    for (size_t i = 0; i < imports.size(); ++i) {
        if (calls[i] == 0)
            continue;
        INFO(imports[i].name);
        ++tried;
        progress.import = static_cast<LONG>(i);
        progress.isHandled = FALSE;
        const ChildEnd end = run();
        INFO(end.Describe());
        CHECK(end.IsGood());
        // Kept: handled, though there may be no hand to show.
        CHECK(progress.isHandled);
    }
    printf("%d functions failed while the hand was loaded\n", tried);
    CHECK(tried >= 4); // The folder, the program, its cursor, a copy.
}

TEST_CASE("a Windows directory that does not fit its buffer has no help program")
{
    const HelpProgram help;
    REQUIRE(help.IsInstalled());
    const SharedMemory memory(ShareName(), sizeof(Progress));
    auto& progress = *static_cast<Progress*>(memory.Get());
    const std::vector<Import> imports = ImportsThatCanFail();
    const auto folder = std::find_if(imports.begin(), imports.end(), [](const Import& import) {
        return import.name == TEXT_FUNCTION("GetWindowsDirectory");
    });
    REQUIRE(folder != imports.end());
    progress.import = static_cast<LONG>(folder - imports.begin());
    for (const LONG needed : {MAX_PATH, MAX_PATH + 1, 30000}) { // What the system says it needs.
        CAPTURE(needed);
        progress.result = needed;
        progress.hasHand = TRUE;
        REQUIRE(RunChild(childTest, ShareName(), [&] { return progress.beat; }).IsGood());
        CHECK(progress.calls[progress.import] == 1);
        CHECK_FALSE(progress.hasHand);
    }
}
