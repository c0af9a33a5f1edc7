// usage: test-unloader LIBRARY ROUNDS [show]
//
// Loads and unloads a library so many times, with `show` calling its ShowPage each time; ends with
// 0 when the last time went as the first one.
#include <windows.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int main(int count, char** arguments)
{
    if (count < 3)
        return 2;
    const int rounds = atoi(arguments[2]);
    const bool show = count > 3 && strcmp(arguments[3], "show") == 0;
    for (int round = 1; round <= rounds; ++round) {
        const HMODULE library = ::LoadLibraryA(arguments[1]);
        if (library == nullptr) {
            printf("round %d: not loaded, error %lu\n", round, ::GetLastError());
            return 1;
        }
        if (show) {
            const FARPROC address = ::GetProcAddress(library, "ShowPage");
            int (*showPage)();
            memcpy(&showPage, &address, sizeof(showPage));
            const int result = showPage();
            if (result != 0) {
                printf("round %d: ShowPage answers %d\n", round, result);
                return 1;
            }
        }
        ::FreeLibrary(library);
    }
    printf("%d rounds\n", rounds);
    return 0;
}
