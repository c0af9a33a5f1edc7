#include <Windows.h>
#include <MMSystem.h>

int ClockRuns(void)
{
    return timeGetTime() != 0;
}
