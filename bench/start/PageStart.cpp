// The same page as the toolkit shows it: shaded buttons with pictures, a label that draws itself.
#include <umbra.h>

#include "bench/start/EndWhenPainted.h"
#include "bench/start/resource.h"

namespace {

class CStartPage : public CBaseDialog
{
public:
    CStartPage()
        : CBaseDialog(IDD_START, nullptr, true, false, true, false, false, true, false, true)
    {
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CBaseDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_TEXT, m_text);
    }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == paintedMessage)
            EndWhenPainted(m_hWnd);
        const LRESULT result = CBaseDialog::WindowProc(message, wParam, lParam);
        if (message == WM_PAINT)
            PostMessage(paintedMessage);
        return result;
    }

private:
    CNoteStatic m_text;
};

class CStartApp : public CWinApp
{
    BOOL InitInstance() override
    {
        TCHAR program[MAX_PATH];
        ::GetModuleFileName(nullptr, program, MAX_PATH);
        const CString folder(program);
        g_strImageDir = folder.Left(folder.ReverseFind(_T('\\')));
        g_crShade = RGB(180, 200, 230);
        CStartPage page;
        page.DoModal();
        return FALSE;
    }
} theApp;

} // namespace
