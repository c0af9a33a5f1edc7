// What is measured: sizes, grain and styles of faces.
#pragma once

struct FaceSize
{
    int width;
    int height;
};

/// A usual button, a large one, a screen.
constexpr FaceSize faceSizes[] = {{120, 28}, {400, 300}, {1920, 1080}};

constexpr int granularity = 20;

constexpr const char* styleNames[] = {"noise",      "diagonal",     "rows",
                                      "columns",    "row bump",     "column bump",
                                      "cross bump", "rounded bump", "scratched"};
