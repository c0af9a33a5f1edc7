// Lives lived again and again, each time with another system call that fails.
#pragma once

#include "tests/robustness/Lives.h"

#include "testing/ImportHook.h"

#include <limits.h>
#include <string>
#include <vector>

/// Which imports of a module are made to fail, of those that can.
using ImportFilter = bool (*)(const umbra::testing::Import&);

/// Which of a function's calls in one life fail: all of the first ones, then as many spread over
/// the rest. UMBRA_FAULT_CALLS=all makes every single one fail.
struct CallSample
{
    long first = 4;
    long spread = 2;
};

constexpr CallSample everyCall = {LONG_MAX, 0};

/// What is asked of a run.
struct FaultOptions
{
    CallSample calls;
    /// The message box with which the class library reports an exception of the program's own;
    /// other boxes are findings, and this one too where it is NULL.
    const char* report = nullptr;
};

/// What came of the lives with failing calls.
struct FaultReport
{
    int functions = 0; ///< Imported functions that a life calls and that can fail.
    int tried = 0;     ///< Lives with a failing call.
    int survived = 0;  ///< Those without a crash, a hang, a throw, a message box or a loss.
    std::vector<std::string> findings; ///< One for each that was not survived.
};

/// Runs the lives with failing calls of the module in child processes; a crash there costs one
/// life. `childTest` names the test case that calls LiveWithFailures for the module.
FaultReport FailEachCall(const char* module, const char* childTest);

/// The child's part. UMBRA_FAULT_LIFE picks lives by the beginning of their name.
void LiveWithFailures(const char* module, ImportFilter filter, const std::vector<Life>& lives,
                      const FaultOptions& options = {});
