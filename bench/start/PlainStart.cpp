// A dialog of the system's own controls that ends when it has been painted.

#include "bench/start/EndWhenPainted.h"
#include "bench/start/resource.h"

namespace {

INT_PTR CALLBACK PageProcedure(HWND page, UINT message, WPARAM, LPARAM)
{
    switch (message) {
    case WM_INITDIALOG:
        return TRUE;
    case WM_PAINT:
        ::PostMessage(page, paintedMessage, 0, 0);
        return FALSE;
    case paintedMessage:
        EndWhenPainted(page);
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int)
{
    ::DialogBoxParam(instance, MAKEINTRESOURCE(IDD_START), nullptr, PageProcedure, 0);
    return 1;
}
