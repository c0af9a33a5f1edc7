// One life of each page of the gallery: opened as the gallery opens it, used all over and closed.
#pragma once

#include <tests/robustness/FaultRun.h>

const std::vector<Life>& LivesOfGallery();

/// A page's life is long, and makes the same calls for each of its controls. What the gallery's own
/// code cannot get it leaves to the class library to report, as any program does.
const FaultOptions pageOptions = {
    {1, 2}, "Something that the program needs could not be loaded or created."};
