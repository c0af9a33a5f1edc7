// Breaks the heap in the way that its argument names, so that a test sees that this is noticed.
#include <malloc.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int main(int argc, char** argv)
{
    const char* way = argc > 1 ? argv[1] : "";
    // Volatile all over, so that the compiler writes what no correct program would read.
    volatile size_t size = 400;
    volatile char* volatile block = static_cast<char*>(malloc(size));
    if (block == nullptr)
        return EXIT_FAILURE;
    if (strcmp(way, "past") == 0)
        block[size] = 1;
    _heapchk(); // The heap looks at a block's surroundings only when it is asked to.
    free(const_cast<char*>(block));
    if (strcmp(way, "after") == 0)
        block[80] = 1;
    if (strcmp(way, "twice") == 0)
        free(const_cast<char*>(block));
    _heapchk();
    puts("end");
    return EXIT_SUCCESS;
}
