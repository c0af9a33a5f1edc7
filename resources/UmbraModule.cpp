// The DLL's entry: joins the chain of modules in which the class library looks for resources.
#include <afxwin.h>

namespace {

AFX_EXTENSION_MODULE extension = {};

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(extension, instance))
            return FALSE;
        new CDynLinkLibrary(extension); // The class library keeps it until the line below.
    } else if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(extension);
    }
    return TRUE;
}
