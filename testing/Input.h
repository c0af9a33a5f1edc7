// Real pointer and keyboard input, through the system's own input queue.
//
// Each function returns when the input has arrived: the calling thread has taken it from its
// queue and dispatched it with whatever followed from it. It returns false when the input did not
// come, because the point belongs to another thread's window or no window of this thread has the
// keyboard. Points are client coordinates of the window given.
#pragma once

#include <windows.h>

namespace umbra::testing {

/// Moves the pointer. Nothing moves, and no message is awaited, when the pointer is there already.
bool MovePointer(HWND window, POINT client);
/// The middle of the window's client area.
bool MovePointer(HWND window);
/// Moves the pointer to a corner of the screen, off every window that keeps clear of it.
bool MovePointerAway();

/// The button goes down or up where the pointer is.
bool PressLeft();
bool ReleaseLeft();
bool PressRight();
bool ReleaseRight();

/// Moves to the point, then presses and releases the left button. Two clicks at one place stay two:
/// the second waits until it no longer counts as the second half of a double click.
bool Click(HWND window, POINT client);
bool Click(HWND window);
bool DoubleClick(HWND window, POINT client);
bool DoubleClick(HWND window);
/// Presses at one point, moves to the other by way of the middle, and releases there.
bool Drag(HWND window, POINT from, POINT to);

/// What became of a key. Only one that was not taken counts as false.
enum KeyResult {
    keyNotTaken,     ///< No window of this thread has the keyboard.
    keyTaken,        ///< It has arrived.
    keyClosedWindow, ///< It has closed the window that the focus was in, as Escape does a dialog.
};

/// Presses and releases a key (VK_...), while the given modifier key, if any, is down.
KeyResult PressKey(WORD virtualKey, WORD modifier = 0);
/// Types a text into the window that has the focus, key by key of the current layout; characters
/// that the layout lacks arrive as characters without a key.
bool TypeText(LPCTSTR text);

} // namespace umbra::testing
