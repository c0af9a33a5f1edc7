// The real pointer, moved and pressed by the program itself, and the time that its effects take.
#pragma once

#include <umbra.h>

/// Lets this thread's windows work off their messages for that long.
void Settle(DWORD milliseconds);

/// Moves the pointer over the middle of a window, or away from all of ours.
void PointAt(const CWnd& window);
void PointAway();

void PressPointer();
void ReleasePointer();
void Click(const CWnd& window);
