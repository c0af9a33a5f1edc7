// How the system's common dialogs are tied to their objects.
#pragma once

#include <classes/CCommonDialog.h>

namespace afxint {

struct CommonDialogHook
{
    /// Makes an object the one whose window is still to come.
    class Awaiting
    {
    public:
        explicit Awaiting(CCommonDialog* dialog);
        ~Awaiting();
        Awaiting(const Awaiting&) = delete;
        Awaiting& operator=(const Awaiting&) = delete;
    };

    /// The hook of all common dialogs: puts the object that is being shown around the window.
    static UINT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

private:
    static UINT_PTR Handle(const MSG& message);
};

} // namespace afxint
