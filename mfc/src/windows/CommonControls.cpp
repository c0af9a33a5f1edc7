#include "windows/CommonControls.h"

#include <classes/Modules.h>

namespace afxint {

void NeedCommonControls(DWORD classes)
{
    INITCOMMONCONTROLSEX request = {sizeof(request), classes};
    ::InitCommonControlsEx(&request);
}

void NeedClassOfControl(LPCWSTR name)
{
    WNDCLASSW known;
    if (!::GetClassInfoW(AfxGetInstanceHandle(), name, &known))
        ::InitCommonControls();
}

void NeedClassOfWindow(LPCTSTR name, HINSTANCE module)
{
    WNDCLASS known;
    if (!IS_INTRESOURCE(name) && !::GetClassInfo(module, name, &known))
        ::InitCommonControls();
}

} // namespace afxint
