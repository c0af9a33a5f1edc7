// Whole lives: made, set up in every way, painted, hovered over, pressed, resized and destroyed.
// Any system call may fail in the middle of them: what is needed around them is made by calls of
// the test program's own.
#pragma once

#include <vector>

/// One thing to do with the toolkit, from its beginning to its end.
struct Life
{
    const char* name;
    void (*run)();
};

/// One or more of each class of the toolkit.
const std::vector<Life>& LivesOfClasses();
