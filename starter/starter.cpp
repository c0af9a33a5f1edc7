// The smallest good host of Umbra: one page.
#include <umbra.h>

#include "resource.h"

class CStarterPage : public CBaseDialog
{
public:
    CStarterPage()
        : CBaseDialog(IDD_STARTER, NULL, true, false, true, false, false, true, false, true)
    {
    }

    BOOL OnInitDialog() override
    {
        CBaseDialog::OnInitDialog();
        m_note.SetLabelTextColor(RGB(40, 60, 110));
        AssistKeyboard(*this);
        return TRUE;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CBaseDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_NOTE, m_note);
    }

private:
    CNoteStatic m_note;
};

class CStarterApp : public CWinApp
{
    BOOL InitInstance() override
    {
        TCHAR program[MAX_PATH];
        GetModuleFileName(NULL, program, MAX_PATH);
        CString folder(program);
        g_strImageDir = folder.Left(folder.ReverseFind('\\'));
        g_crShade = RGB(180, 200, 230);

        // Not as m_pMainWnd: what is shown after the end of the main window does not appear.
        CStarterPage page;
        page.DoModal();
        return FALSE; // The page is all there is: no message loop of the program's own.
    }
} theApp;
