// Prints the tables of docs/performance.md, or those named on the command line.

#include "bench/Tables.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

struct Table
{
    const char* name;
    const char* title;
    void (*print)();
};

constexpr Table tables[] = {
    {"pixels", "Pixels of a face", PrintPixelTable},
    {"faces", "All bitmaps of a button", PrintFacesTable},
    {"repaint", "Repaint of a button", PrintRepaintTable},
    {"pages", "Repaint of a page", PrintPageTable},
    {"start", "Start of a program", PrintStartTable},
};

bool IsWanted(const Table& table, int count, char** names)
{
    for (int i = 1; i < count; ++i) {
        if (std::strcmp(names[i], table.name) == 0)
            return true;
    }
    return count == 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 5 && std::strcmp(argv[1], "--scene") == 0)
        return RepaintScene(argv[2], std::atoi(argv[3]), std::atoi(argv[4])) ? 0 : 1;
    for (const Table& table : tables) {
        if (!IsWanted(table, argc, argv))
            continue;
        std::printf("### %s\n\n", table.title);
        table.print();
        std::printf("\n");
        std::fflush(stdout);
    }
    return 0;
}
