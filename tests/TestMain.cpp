// The main program of every layer's tests: an MFC application without a window of its own, around
// the test framework.
#define DOCTEST_CONFIG_IMPLEMENT
#include "tests/ThreadStandIn.h"

#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/CrashReport.h"
#include "testing/Input.h"

#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace {

/// Less than what the launcher allows, so that the report of a hanging test comes first.
DWORD FindRunTimeLimit()
{
    constexpr DWORD usualMilliseconds = 50000;
    const char* wanted = std::getenv("UMBRA_RUN_TIME_MILLISECONDS");
    return wanted == nullptr ? usualMilliseconds : std::strtoul(wanted, nullptr, 10);
}

class TestApp : public CWinApp
{
public:
    BOOL OnIdle(LONG count) override
    {
        ThreadStandIn* standIn = ThreadStandIn::Current();
        return standIn != nullptr ? standIn->OnIdle(count) : CWinApp::OnIdle(count);
    }
    LRESULT ProcessWndProcException(CException* error, const MSG* message) override
    {
        ThreadStandIn* standIn = ThreadStandIn::Current();
        return standIn != nullptr ? standIn->ProcessWndProcException(error, message)
                                  : CWinApp::ProcessWndProcException(error, message);
    }
    BOOL ProcessMessageFilter(int code, LPMSG message) override
    {
        ThreadStandIn* standIn = ThreadStandIn::Current();
        return standIn != nullptr ? standIn->ProcessMessageFilter(code, message)
                                  : CWinApp::ProcessMessageFilter(code, message);
    }
} theApp;

int casesRun = 0;
bool heapIsBroken = false;

/// Tells a crash report which test was running, counts, and looks at the heap after each test.
class CurrentTest : public doctest::IReporter
{
public:
    explicit CurrentTest(const doctest::ContextOptions&) {}

    void test_case_start(const doctest::TestCaseData& test) override
    {
        ++casesRun;
        name_ = test.m_name;
        umbra::testing::SetCrashContext(test.m_name);
    }
    void test_case_end(const doctest::CurrentTestCaseStats&) override
    {
        if (!heapIsBroken && _heapchk() != _HEAPOK) {
            heapIsBroken = true;
            std::fprintf(stderr, "the heap is broken at the end of: %s\n", name_);
        }
        umbra::testing::SetCrashContext(nullptr);
    }

    void report_query(const doctest::QueryData&) override {}
    void test_run_start() override {}
    void test_run_end(const doctest::TestRunStats&) override {}
    void test_case_reenter(const doctest::TestCaseData&) override {}
    void test_case_exception(const doctest::TestCaseException&) override {}
    void subcase_start(const doctest::SubcaseSignature&) override {}
    void subcase_end() override {}
    void log_assert(const doctest::AssertData&) override {}
    void log_message(const doctest::MessageData&) override {}
    void test_case_skipped(const doctest::TestCaseData&) override {}

private:
    const char* name_ = "";
};
REGISTER_LISTENER("current-test", 1, CurrentTest);

} // namespace

int main(int argc, char** argv)
{
    umbra::testing::InstallCrashReport();
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL)) {
        std::fputs("the class library could not be initialised\n", stderr);
        return EXIT_FAILURE;
    }
    umbra::testing::MovePointerAway(); // From wherever another program has left it.
    doctest::Context context(argc, argv);
    context.setOption("no-path-filenames", true);
    if (!::IsDebuggerPresent())
        umbra::testing::LimitRunTime(FindRunTimeLimit());
    const int result = context.run();
    if (context.shouldExit())
        return result; // A question such as --list-test-cases was answered.
    if (casesRun == 0) {
        std::fputs("no test case matches the filter\n", stderr);
        return EXIT_FAILURE;
    }
    return heapIsBroken ? EXIT_FAILURE : result;
}
