#include "tests/robustness/FaultRun.h"

#include "tests/robustness/ChildProgram.h"
#include "tests/robustness/Dice.h"
#include "tests/robustness/FailureTable.h"
#include "tests/robustness/Outside.h"

#include "testing/CallFault.h"
#include "testing/GdiObjects.h"

#include <afxwin.h>

#include <algorithm>
#include <memory>
#include <set>
#include <stdio.h>
#include <stdlib.h>

using namespace umbra::testing;

namespace {

const int mostImports = 1024;
const int mostFindings = 300;
const int longestFinding = 300;
const int mostCrashes = 60;

/// Which life, which import, which call: a place on the way through all of them.
struct Place
{
    LONG life;
    LONG import;
    LONG call;

    friend bool operator<=(const Place& a, const Place& b)
    {
        if (a.life != b.life)
            return a.life < b.life;
        if (a.import != b.import)
            return a.import < b.import;
        return a.call <= b.call;
    }
};

/// What parent and child share.
struct Progress
{
    volatile LONG beat; ///< Changes with each life.
    LONG finished;
    Place place; ///< Under way, or the last one when the child is gone.
    char what[longestFinding];
    LONG tried;
    LONG failed;
    LONG findings;
    char finding[mostFindings][longestFinding];
    BYTE called[mostImports];

    void AddFinding(const char* text)
    {
        if (findings < mostFindings)
            snprintf(finding[findings], longestFinding, "%s: %s", what, text);
        ++findings;
    }
};

/// Whether the long run was asked for.
bool WantsEveryCall()
{
    const char* wanted = getenv("UMBRA_FAULT_CALLS");
    return wanted != nullptr && strcmp(wanted, "all") == 0;
}

/// The numbers of the calls that are to fail in turn.
std::set<LONG> PickCalls(long long count, const CallSample& sample)
{
    std::set<LONG> calls;
    const LONG last = static_cast<LONG>(count);
    const LONG first = WantsEveryCall() ? last : min(last, sample.first);
    for (LONG call = 1; call <= first; ++call)
        calls.insert(call);
    for (LONG i = 1; i <= sample.spread && last > first; ++i)
        calls.insert(first + (last - first) * i / sample.spread);
    return calls;
}

/// For the message box below, which knows no object.
Progress* sharedProgress = nullptr;
const char* expectedReport = nullptr;

/// Of the class library's data exchange, when a control cannot be bound.
const char notBound[] = "This operation is not supported.";

/// Debug builds tell the programmer of what they did not expect; it has to be survived all the
/// same.
const char assertion[] = "Assertion failed";

/// Stands in for the message box: closes it, and reports one that nobody expects.
int WINAPI AnswerBox(HWND, LPCTSTR text, LPCTSTR, UINT)
{
    const std::string said = Printable(text);
    const bool isReport = expectedReport != nullptr && said == expectedReport;
    if (isReport || said == notBound)
        return IDOK;
    if (said.compare(0, strlen(assertion), assertion) == 0)
        return IDIGNORE;
    sharedProgress->AddFinding(("says \"" + said + "\"").c_str());
    return IDOK;
}

/// The windows of this thread.
std::set<HWND> ListWindows()
{
    std::set<HWND> windows;
    const auto collect = [](HWND window, LPARAM found) CALLBACK -> BOOL {
        reinterpret_cast<std::set<HWND>*>(found)->insert(window);
        return TRUE;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

/// Ends what a life that came off badly has left, so that the next one begins like the first.
class Surroundings
{
public:
    Surroundings() : m_windows(ListWindows()) { Count(); }

    void Restore()
    {
        ::ReleaseCapture();
        for (const HWND window : ListWindows()) {
            if (m_windows.count(window) == 0)
                ::DestroyWindow(window);
        }
        MSG message; // A WM_QUIT among them is forgotten.
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessage(&message);
    }

    /// Objects that have come since the last time. Those that somebody could have kept are deleted:
    /// thousands of lives have to share one table.
    int TakeObjects()
    {
        const std::vector<HGDIOBJ> now = ListGdiObjects();
        const int growth = static_cast<int>(now.size()) - static_cast<int>(m_objects.size());
        for (const HGDIOBJ object : now) {
            if (m_objects.count(object) == 0 && IsKeepable(object))
                ::DeleteObject(object);
        }
        Count();
        return growth;
    }

private:
    static bool IsKeepable(HGDIOBJ object)
    {
        const DWORD type = ::GetObjectType(object);
        return type == OBJ_FONT || type == OBJ_BITMAP;
    }
    void Count()
    {
        const std::vector<HGDIOBJ> now = ListGdiObjects();
        m_objects = std::set<HGDIOBJ>(now.begin(), now.end());
    }

    std::set<HWND> m_windows;
    std::set<HGDIOBJ> m_objects;
};

/// The child's way through all lives and failures.
class FaultRun
{
public:
    FaultRun(HMODULE module, ImportFilter filter, const std::vector<Life>& lives,
             const CallSample& calls, Progress& progress)
        : m_module(module), m_lives(lives), m_calls(calls), m_progress(progress),
          m_resume(progress.place)
    {
        for (const Import& import : ImportsOf(module)) {
            if (!import.name.empty() && CanFail(import) && filter(import))
                m_imports.push_back(import);
        }
    }

    void Run()
    {
        for (m_life = 0; m_life < static_cast<LONG>(m_lives.size()); ++m_life) {
            if (m_life >= m_resume.life && IsWanted(m_lives[m_life]))
                RunLife(m_lives[m_life]);
        }
        m_progress.finished = TRUE;
    }

private:
    static bool IsWanted(const Life& life)
    {
        const char* name = getenv("UMBRA_FAULT_LIFE");
        return name == nullptr || strncmp(life.name, name, strlen(name)) == 0;
    }

    void RunLife(const Life& life)
    {
        snprintf(m_progress.what, longestFinding, "%s, nothing failing", life.name);
        // What the system and the class library keep for good is there after two lives.
        Live(life);
        Live(life);
        const std::vector<long long> calls = CountCallsOf(life);
        const int usual = Live(life);
        for (size_t i = 0; i < m_imports.size(); ++i) {
            m_progress.called[i] |= calls[i] > 0;
            for (const LONG call : PickCalls(calls[i], m_calls)) {
                const Place place = {m_life, static_cast<LONG>(i), call};
                if (!(place <= m_resume))
                    LiveWithFailure(life, place, usual);
            }
        }
    }

    std::vector<long long> CountCallsOf(const Life& life)
    {
        std::vector<std::unique_ptr<CountCalls>> counters;
        for (const Import& import : m_imports) {
            counters.push_back(
                std::make_unique<CountCalls>(m_module, import.dll.c_str(), import.name.c_str()));
        }
        life.run(); // Cleaning up belongs to the test.
        std::vector<long long> calls;
        for (const auto& counter : counters)
            calls.push_back(counter->Calls());
        counters.clear();
        Restore();
        return calls;
    }

    void LiveWithFailure(const Life& life, const Place& place, int usual)
    {
        const Import& import = m_imports[place.import];
        snprintf(m_progress.what, longestFinding, "%s, call %ld of %s failing", life.name,
                 place.call, import.name.c_str());
        m_progress.place = place;
        ++m_progress.tried;
        const LONG findings = m_progress.findings;
        const int allowed = usual + ObjectsLostBy(import);
        int growth = GrowthWithFailure(life, import, place.call);
        // What the system keeps for later, such as one more device context for nested painting, it
        // takes only once.
        if (growth > allowed)
            growth = GrowthWithFailure(life, import, place.call);
        if (growth > allowed && m_progress.findings == findings)
            m_progress.AddFinding(
                ("loses " + std::to_string(growth - allowed) + " objects").c_str());
        m_progress.failed += m_progress.findings > findings ? 1 : 0;
    }

    int GrowthWithFailure(const Life& life, const Import& import, LONG call)
    {
        {
            const FailNth fault(m_module, import.dll.c_str(), import.name.c_str(), call,
                                FailureOf(import));
            Live(life, false);
        }
        return Restore();
    }

    /// Answers the objects that the life has left.
    int Live(const Life& life, bool restore = true)
    {
        m_progress.beat = m_progress.beat + 1;
        m_dice = Dice(firstSeed); // The shell answers the same each time.
        try {
            life.run();
        } catch (CException* e) {
            m_progress.AddFinding(e->GetRuntimeClass()->m_lpszClassName);
            e->Delete();
        } catch (const std::exception& e) {
            m_progress.AddFinding(e.what());
        }
        return restore ? Restore() : 0;
    }

    int Restore()
    {
        m_surroundings.Restore();
        RefreshDeviceContexts();
        return m_surroundings.TakeObjects();
    }

    static const unsigned firstSeed = 7;

    HMODULE m_module;
    const std::vector<Life>& m_lives;
    const CallSample m_calls;
    Progress& m_progress;
    Place m_resume; ///< All places up to here are done.
    std::vector<Import> m_imports;
    LONG m_life = 0;
    Dice m_dice{firstSeed};
    FakeShell m_shell{m_dice};
    Surroundings m_surroundings;
};

} // namespace

FaultReport FailEachCall(const char* module, const char* childTest)
{
    const std::string name =
        std::string("umbra-faults-") + module + std::to_string(::GetCurrentProcessId());
    const SharedMemory memory(name, sizeof(Progress));
    auto& progress = *static_cast<Progress*>(memory.Get());
    progress.place = {-1, 0, 0};

    for (int crashes = 0; !progress.finished; ++crashes) {
        const ChildEnd end = RunChild(childTest, name, [&] { return progress.beat; });
        if (progress.finished && end.IsGood())
            break;
        progress.AddFinding(end.Describe().substr(0, longestFinding).c_str());
        ++progress.failed;
        printf("%s: %s\n", progress.what, end.Describe().c_str());
        if (progress.tried == 0 || crashes == mostCrashes)
            break; // It cannot even live without failures, or there is no end to this.
    }

    FaultReport report;
    report.functions = static_cast<int>(
        std::count(std::begin(progress.called), std::end(progress.called), BYTE{TRUE}));
    report.tried = progress.tried;
    report.survived = progress.tried - progress.failed;
    for (LONG i = 0; i < min(progress.findings, LONG{mostFindings}); ++i)
        report.findings.push_back(progress.finding[i]);
    return report;
}

void LiveWithFailures(const char* module, ImportFilter filter, const std::vector<Life>& lives,
                      const FaultOptions& options)
{
    const SharedMemory memory(ChildArgument(), sizeof(Progress));
    sharedProgress = static_cast<Progress*>(memory.Get());
    expectedReport = options.report;
    const ImportHook boxes(FindModule(UMBRA_MFC_DLL), "user32", TEXT_FUNCTION("MessageBox"),
                           AnswerBox);
    FaultRun(FindModule(module), filter, lives, options.calls, *sharedProgress).Run();
}
