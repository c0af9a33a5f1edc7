// Every life of every class, again and again, each time with another system call that fails.
#pragma once

#include <testing/ImportHook.h>

#include <string>
#include <vector>

/// Which imports of a module are made to fail, of those that can.
using ImportFilter = bool (*)(const umbra::testing::Import&);

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

/// The child's part.
void LiveWithFailures(const char* module, ImportFilter filter);
