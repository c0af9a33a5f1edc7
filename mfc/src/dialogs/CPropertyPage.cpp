#include <classes/CPropertyPage.h>

#include <classes/Modules.h>

#include "controls/ControlMessages.h"
#include "threads/SystemCall.h"
#include "windows/WindowCreation.h"

using afxint::Ask;

/// What a sheet calls when it makes the window of a page, and when it is done with the page.
struct afxint::PropertyPageHook
{
    static UINT CALLBACK Procedure(HWND, UINT message, PROPSHEETPAGE* systemPage)
    {
        auto* page = reinterpret_cast<CPropertyPage*>(systemPage->lParam);
        if (message == PSPCB_RELEASE)
            page->creation_.reset();
        if (message != PSPCB_CREATE)
            return TRUE;
        MSG creation{};
        creation.message = WM_CREATE;
        return CalledBySystem(creation, UINT{FALSE}, [page]() -> UINT { // FALSE: no such page.
            page->creation_ = std::make_unique<WindowCreation>(page);
            return TRUE;
        });
    }
};

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

CPropertyPage::CPropertyPage() : m_psp{}
{
    Initialize(NULL, 0, sizeof(m_psp));
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, DWORD dwSize) : m_psp{}
{
    Initialize(MAKEINTRESOURCE(nIDTemplate), nIDCaption, dwSize);
}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, DWORD dwSize) : m_psp{}
{
    Initialize(lpszTemplateName, nIDCaption, dwSize);
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle,
                             UINT nIDHeaderSubTitle, DWORD dwSize)
    : CPropertyPage(nIDTemplate, nIDCaption, dwSize)
{
    SetHeader(nIDHeaderTitle, nIDHeaderSubTitle);
}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                             UINT nIDHeaderSubTitle, DWORD dwSize)
    : CPropertyPage(lpszTemplateName, nIDCaption, dwSize)
{
    SetHeader(nIDHeaderTitle, nIDHeaderSubTitle);
}

CPropertyPage::~CPropertyPage() = default;

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption)
{
    Initialize(MAKEINTRESOURCE(nIDTemplate), nIDCaption, sizeof(m_psp));
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption)
{
    Initialize(lpszTemplateName, nIDCaption, sizeof(m_psp));
}

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle,
                              UINT nIDHeaderSubTitle)
{
    Construct(nIDTemplate, nIDCaption);
    SetHeader(nIDHeaderTitle, nIDHeaderSubTitle);
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                              UINT nIDHeaderSubTitle)
{
    Construct(lpszTemplateName, nIDCaption);
    SetHeader(nIDHeaderTitle, nIDHeaderSubTitle);
}

const PROPSHEETPAGE& CPropertyPage::GetPSP() const
{
    return m_psp;
}

PROPSHEETPAGE& CPropertyPage::GetPSP()
{
    return m_psp;
}

void CPropertyPage::CancelToClose()
{
    Ask(::GetParent(m_hWnd), PSM_CANCELTOCLOSE);
}

void CPropertyPage::SetModified(BOOL bChanged)
{
    // A page that no sheet has shown yet has no window, and nothing to tell.
    if (m_hWnd != NULL)
        Ask(::GetParent(m_hWnd), bChanged ? PSM_CHANGED : PSM_UNCHANGED, m_hWnd);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam)
{
    return Ask(::GetParent(m_hWnd), PSM_QUERYSIBLINGS, wParam, lParam);
}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset()
{
    OnCancel();
}

void CPropertyPage::OnOK()
{
}

void CPropertyPage::OnCancel()
{
}

BOOL CPropertyPage::OnSetActive()
{
    if (firstActivation_)
        firstActivation_ = false;
    else
        UpdateData(FALSE);
    return TRUE;
}

BOOL CPropertyPage::OnKillActive()
{
    return UpdateData(TRUE);
}

BOOL CPropertyPage::OnQueryCancel()
{
    return TRUE;
}

LRESULT CPropertyPage::OnWizardBack()
{
    return 0;
}

LRESULT CPropertyPage::OnWizardNext()
{
    return 0;
}

BOOL CPropertyPage::OnWizardFinish()
{
    return TRUE;
}

BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg)
{
    // The sheet filters the keys for itself and its pages, so the page as a dialog must not.
    return CWnd::PreTranslateMessage(pMsg);
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    // Only the sheet itself speaks to the page in this way, not a sheet within the page.
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    const HWND sheet = ::GetParent(m_hWnd);
    if (header->hwndFrom != sheet && header->hwndFrom != m_hWnd)
        return CDialog::OnNotify(wParam, lParam, pResult);
    if (CDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;

    LRESULT answer = 0;
    if (!AnswerSheet(header->code, answer))
        return FALSE;
    // The system may take the answer of the window procedure or that of a dialog procedure.
    ::SetWindowLongPtr(m_hWnd, DWLP_MSGRESULT, answer);
    *pResult = answer;
    return TRUE;
}

LRESULT CPropertyPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (creation_)
        creation_.reset(); // The first message: the object has its window.
    return CDialog::WindowProc(message, wParam, lParam);
}

void CPropertyPage::Initialize(LPCTSTR templateName, UINT captionId, DWORD size)
{
    templateName_ = templateName;
    m_psp = {};
    m_psp.dwSize = size;
    m_psp.pszTemplate = templateName;
    if (captionId != 0 && caption_.LoadString(captionId)) {
        m_psp.dwFlags |= PSP_USETITLE;
        m_psp.pszTitle = caption_;
    }
}

void CPropertyPage::SetHeader(UINT titleId, UINT subTitleId)
{
    if (titleId != 0 && headerTitle_.LoadString(titleId)) {
        m_psp.dwFlags |= PSP_USEHEADERTITLE;
        m_psp.pszHeaderTitle = headerTitle_;
    }
    if (subTitleId != 0 && headerSubTitle_.LoadString(subTitleId)) {
        m_psp.dwFlags |= PSP_USEHEADERSUBTITLE;
        m_psp.pszHeaderSubTitle = headerSubTitle_;
    }
}

HPROPSHEETPAGE CPropertyPage::MakeSystemPage()
{
    PROPSHEETPAGE page = m_psp;
    page.dwFlags |= PSP_USECALLBACK;
    page.pfnCallback = afxint::PropertyPageHook::Procedure;
    page.pfnDlgProc = afxint::DialogProcedure;
    page.lParam = reinterpret_cast<LPARAM>(this);
    if (!(page.dwFlags & PSP_DLGINDIRECT))
        page.hInstance = AfxFindResourceHandle(page.pszTemplate, RT_DIALOG);
    firstActivation_ = true;
    return ::CreatePropertySheetPage(&page);
}

bool CPropertyPage::AnswerSheet(UINT code, LRESULT& answer)
{
    switch (code) {
    case PSN_SETACTIVE:
        answer = OnSetActive() ? 0 : -1;
        return true;
    case PSN_KILLACTIVE:
        answer = !OnKillActive();
        return true;
    case PSN_APPLY:
        answer = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        return true;
    case PSN_RESET:
        OnReset();
        return true;
    case PSN_QUERYCANCEL:
        answer = !OnQueryCancel();
        return true;
    case PSN_WIZBACK:
        answer = OnWizardBack();
        return true;
    case PSN_WIZNEXT:
        answer = OnWizardNext();
        return true;
    case PSN_WIZFINISH:
        answer = !OnWizardFinish();
        return true;
    default:
        return false;
    }
}
