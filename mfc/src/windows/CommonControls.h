// The window classes of the common controls. Their library takes longer to load than the rest of a
// small program, so it is left alone until somebody names one of its classes.
#pragma once

#include <classes/Platform.h>

namespace afxint {

/// Registers the classes of the kinds given (ICC_ values).
void NeedCommonControls(DWORD classes);

/// Registers all of them when the program has no window class of that name yet. Any text may be a
/// name: whether it is one of theirs is not asked.
void NeedClassOfControl(LPCWSTR name);

/// The same for the class of a window that is about to be made; an atom stands for itself.
void NeedClassOfWindow(LPCTSTR name, HINSTANCE module);

} // namespace afxint
