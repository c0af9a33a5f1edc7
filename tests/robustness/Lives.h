// One whole life of each class: made, set up in every way, painted, hovered over, pressed, resized
// and destroyed. Any system call may fail in the middle of it: what is needed around the classes is
// made by calls of the test program's own.
#pragma once

#include <vector>

struct Life
{
    const char* name;
    void (*run)();
};

const std::vector<Life>& AllLives();
