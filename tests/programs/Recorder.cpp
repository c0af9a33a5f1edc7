// Writes its command line and show state to the file that the environment names.
#include <windows.h>

#include <stdio.h>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
{
    char path[MAX_PATH] = "";
    if (GetEnvironmentVariableA("UMBRA_RECORD", path, MAX_PATH) == 0)
        return 1;
    STARTUPINFOA start = {};
    GetStartupInfoA(&start);
    const int show = (start.dwFlags & STARTF_USESHOWWINDOW) != 0 ? start.wShowWindow : -1;

    // Complete from the first moment that it can be seen.
    char draft[MAX_PATH + 8];
    snprintf(draft, sizeof(draft), "%s.draft", path);
    FILE* file = fopen(draft, "wb");
    if (file == nullptr)
        return 1;
    fprintf(file, "%d\n%s", show, GetCommandLineA());
    fclose(file);
    return MoveFileExA(draft, path, MOVEFILE_REPLACE_EXISTING) ? 0 : 1;
}
