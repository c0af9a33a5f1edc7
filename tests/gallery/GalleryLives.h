// One life of each page of the gallery: opened as the gallery opens it, used all over and closed.
#pragma once

#include "tests/robustness/FaultRun.h"

const std::vector<Life>& LivesOfGallery();

struct WizardTask;

/// A task of the wizard: some pictures of the gallery's own.
WizardTask MakeTask();

/// What is asked of a run of these: which calls fail, and that the class library may report what
/// the gallery's own code could not get, as it does for any program.
constexpr FaultOptions PageOptions(const CallSample& calls)
{
    return {calls, "Something that the program needs could not be loaded or created."};
}
