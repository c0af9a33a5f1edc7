// Has nothing to do: the hand cursor tests look at its resources.
#include <windows.h>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
{
    return 0;
}
