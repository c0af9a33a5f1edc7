#pragma once

struct FaceSize
{
    int width;
    int height;
};

// A usual button, a large one, a screen.
constexpr FaceSize kFaceSizes[] = {{120, 28}, {400, 300}, {1920, 1080}};

constexpr int kGranularity = 20;

constexpr const char* kStyleNames[] = {"noise",      "diagonal",     "rows",
                                       "columns",    "row bump",     "column bump",
                                       "cross bump", "rounded bump", "scratched"};
