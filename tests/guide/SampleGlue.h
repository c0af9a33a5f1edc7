// What the samples of the guide and of the test kit leave to their reader: a page, a wizard, and
// the checks of some test framework.
#pragma once

#include <stdio.h>

inline int failedChecks = 0;

inline void Expect(bool condition, const char* text, const char* file, int line)
{
    if (condition)
        return;
    ++failedChecks;
    printf("%s:%d: %s\n", file, line, text);
}

#define CHECK(...) Expect(static_cast<bool>(__VA_ARGS__), #__VA_ARGS__, __FILE__, __LINE__)
#define CHECK_FALSE(...) Expect(!(__VA_ARGS__), "not: " #__VA_ARGS__, __FILE__, __LINE__)

class CMyPage : public CBaseDialog
{
public:
    CMyPage() : CBaseDialog(IDD_MY_PAGE, NULL, false, false, true, true, false, false, false, false)
    {
    }

    CString m_strName;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CBaseDialog::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_NAME, m_strName);
    }

    void OnCancel() override
    {
        if (MessageBox(_T("Give up?"), _T("My page"), MB_YESNO) == IDYES)
            CBaseDialog::OnCancel();
    }
};

inline INT_PTR RunMyWizard()
{
    CMyPage first;
    if (first.DoModal() != IDOK)
        return IDCANCEL;
    CMyPage second;
    return second.DoModal();
}
