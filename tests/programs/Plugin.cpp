// A plug-in that brings the toolkit with it, as a library of a program that knows nothing of
// either.
#include <umbra.h>

#include <testing/DialogTemplate.h>
#include <testing/Pump.h>

namespace {

class Page : public CBaseDialog
{
public:
    Page() : CBaseDialog(0, NULL, false, false, true, false, false, false, false, true) {}

    BOOL Open()
    {
        umbra::testing::DialogTemplate page(10, 10, 200, 100, WS_POPUP | WS_VISIBLE, _T("Page"));
        page.Button(IDCANCEL, _T(""), 100, 70, 60, 18);
        return CreateIndirect(const_cast<DLGTEMPLATE*>(page.Get()), NULL);
    }
};

} // namespace

/// Shows a page and closes it; 0 when it came up with its button captioned.
extern "C" __declspec(dllexport) int ShowPage()
{
    if (AfxGetInstanceHandle() == NULL)
        AfxWinInit(::GetModuleHandle(NULL), NULL, ::GetCommandLine(), SW_SHOW);
    g_strImageDir = _T("C:\\");
    Page page;
    if (!page.Open())
        return 1;
    umbra::testing::PumpMessages();
    CString caption;
    page.GetDlgItemText(IDCANCEL, caption);
    page.DestroyWindow();
    return caption == _T("Cancel") ? 0 : 2;
}
