// usage: test-unloader LIBRARY ROUNDS [show | hand]
//
// Loads and unloads a library so many times, with `show` calling its ShowPage each time, with
// `hand` having the toolkit load its hand cursor, which has to be gone with the library; ends with
// 0 when the last time went as the first one.
#include "tests/programs/HelpProgram.h"

#include <windows.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

namespace {

template <class Function>
Function Find(HMODULE library, const char* name)
{
    const FARPROC address = ::GetProcAddress(library, name);
    Function function;
    memcpy(&function, &address, sizeof(function));
    return function;
}

bool IsAlive(HCURSOR cursor)
{
    ICONINFO parts = {};
    return ::GetIconInfo(cursor, &parts) != FALSE;
}

} // namespace

int main(int count, char** arguments)
{
    const HelpProgram help;
    if (count < 3)
        return 2;
    const int rounds = atoi(arguments[2]);
    const bool hand = count > 3 && strcmp(arguments[3], "hand") == 0;
    const bool show = count > 3 && strcmp(arguments[3], "show") == 0;
    for (int round = 1; round <= rounds; ++round) {
        const HMODULE library = ::LoadLibraryA(arguments[1]);
        if (library == nullptr) {
            printf("round %d: not loaded, error %lu\n", round, ::GetLastError());
            return 1;
        }
        if (show) {
            const int result = Find<int (*)()>(library, "ShowPage")();
            if (result != 0) {
                printf("round %d: ShowPage answers %d\n", round, result);
                return 1;
            }
        }
        const HCURSOR cursor =
            hand ? Find<HCURSOR (*)()>(library, "_Z14LoadHandCursorv")() : nullptr;
        if (hand && !IsAlive(cursor)) {
            printf("round %d: there is no hand cursor\n", round);
            return 1;
        }
        ::FreeLibrary(library);
        if (hand && IsAlive(cursor)) {
            printf("round %d: the hand cursor outlives the library\n", round);
            return 1;
        }
    }
    printf("%d rounds\n", rounds);
    return 0;
}
