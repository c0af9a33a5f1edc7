// One life of each page of the gallery: opened as the gallery opens it, used all over and closed.
#pragma once

#include <tests/robustness/FaultRun.h>

const std::vector<Life>& LivesOfGallery();

/// What the gallery's own code cannot get it leaves to the class library to report, as any program
/// does. A page's life is long and makes the same calls for each of its controls, so few of them
/// do.
constexpr FaultOptions PageOptions(const CallSample& calls)
{
    return {calls, "Something that the program needs could not be loaded or created."};
}
