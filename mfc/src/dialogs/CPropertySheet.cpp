#include <classes/CPropertySheet.h>

#include <classes/CPropertyPage.h>
#include <classes/CTabCtrl.h>

#include "controls/ControlMessages.h"
#include "windows/ModalScope.h"
#include "windows/WindowCreation.h"

#include <algorithm>

using afxint::Ask;
using afxint::AskForWindow;

namespace {

constexpr DWORD systemStyle = static_cast<DWORD>(-1); ///< Leaves the styles to the system.

bool IsModal(const CPropertySheet& sheet)
{
    return afxint::ModalState::IsRunning(sheet);
}

} // namespace

/// What the system calls while it makes the window of a sheet.
struct afxint::PropertySheetHook
{
    static int CALLBACK Procedure(HWND, UINT message, LPARAM lParam) noexcept
    {
        const auto* sheet = static_cast<CPropertySheet*>(WindowCreation::AwaitedObject());
        if (message != PSCB_PRECREATE || sheet == NULL || sheet->style_ == systemStyle)
            return 0;
        // Both kinds of dialog templates hold the two styles, but not in the same place.
        struct Template
        {
            WORD version, signature;
            DWORD helpId, exStyle, style;
        };
        auto* extended = reinterpret_cast<Template*>(lParam);
        auto* plain = reinterpret_cast<DLGTEMPLATE*>(lParam);
        const bool isExtended = extended->signature == 0xffff;
        (isExtended ? extended->style : plain->style) =
            (sheet->style_ & ~DS_SETFONT) |
            ((isExtended ? extended->style : plain->style) & DS_SETFONT);
        (isExtended ? extended->exStyle : plain->dwExtendedStyle) = sheet->exStyle_;
        return 0;
    }
};

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::OnInitDialogMessage)
    ON_MESSAGE(PSM_PRESSBUTTON, &CPropertySheet::OnPressButtonMessage)
    ON_WM_CLOSE()
END_MESSAGE_MAP()

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

CPropertySheet::CPropertySheet()
{
    Construct(_T(""));
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    Construct(nIDCaption, pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    Construct(pszCaption, pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage,
                               HBITMAP hbmWatermark, HPALETTE hpalWatermark, HBITMAP hbmHeader)
{
    Construct(nIDCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage,
                               HBITMAP hbmWatermark, HPALETTE hpalWatermark, HBITMAP hbmHeader)
{
    Construct(pszCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    CString caption;
    VERIFY(caption.LoadString(nIDCaption));
    Construct(caption, pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
{
    caption_ = pszCaption;
    parent_ = pParentWnd;
    m_psh = {};
    m_psh.dwSize = sizeof(m_psh);
    m_psh.pszCaption = caption_;
    m_psh.nStartPage = iSelectPage;
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage,
                               HBITMAP hbmWatermark, HPALETTE hpalWatermark, HBITMAP hbmHeader)
{
    CString caption;
    VERIFY(caption.LoadString(nIDCaption));
    Construct(caption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage,
                               HBITMAP hbmWatermark, HPALETTE hpalWatermark, HBITMAP hbmHeader)
{
    Construct(pszCaption, pParentWnd, iSelectPage);
    if (hbmWatermark != NULL) {
        m_psh.hbmWatermark = hbmWatermark;
        m_psh.dwFlags |= PSH_USEHBMWATERMARK | PSH_WATERMARK;
    }
    if (hpalWatermark != NULL) {
        m_psh.hplWatermark = hpalWatermark;
        m_psh.dwFlags |= PSH_USEHPLWATERMARK;
    }
    if (hbmHeader != NULL) {
        m_psh.hbmHeader = hbmHeader;
        m_psh.dwFlags |= PSH_USEHBMHEADER | PSH_HEADER;
    }
}

INT_PTR CPropertySheet::DoModal()
{
    // The system's own modal loop knows no PreTranslateMessage, so the sheet runs modeless to the
    // system, inside a loop of the library.
    const afxint::ModalScope modal(*this, parent_);
    lastButton_ = IDCANCEL;
    style_ = systemStyle;
    return ShowSheet(modal.Owner()) ? RunModalLoop() : -1;
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle)
{
    style_ = dwStyle;
    exStyle_ = dwExStyle;
    parent_ = pParentWnd;
    return ShowSheet(pParentWnd->GetSafeHwnd());
}

void CPropertySheet::AddPage(CPropertyPage* pPage)
{
    pages_.push_back(pPage);
    if (m_hWnd != NULL)
        Ask(m_hWnd, PSM_ADDPAGE, 0, pPage->MakeSystemPage());
}

void CPropertySheet::RemovePage(CPropertyPage* pPage)
{
    const int index = GetPageIndex(pPage);
    if (index >= 0)
        RemovePage(index);
}

void CPropertySheet::RemovePage(int nPage)
{
    if (!HasPage(nPage))
        return;
    if (m_hWnd != NULL)
        Ask(m_hWnd, PSM_REMOVEPAGE, nPage);
    pages_.erase(pages_.begin() + nPage);
}

int CPropertySheet::GetPageCount() const
{
    return static_cast<int>(pages_.size());
}

CPropertyPage* CPropertySheet::GetPage(int nPage) const
{
    return HasPage(nPage) ? pages_[nPage] : NULL;
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage)
{
    const auto found = std::find(pages_.begin(), pages_.end(), pPage);
    return found == pages_.end() ? -1 : static_cast<int>(found - pages_.begin());
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    return GetPage(GetActiveIndex());
}

int CPropertySheet::GetActiveIndex() const
{
    return m_hWnd != NULL ? GetTabControl()->GetCurSel() : static_cast<int>(m_psh.nStartPage);
}

BOOL CPropertySheet::SetActivePage(int nPage)
{
    if (!HasPage(nPage))
        return FALSE;
    if (m_hWnd != NULL)
        return Ask(m_hWnd, PSM_SETCURSEL, nPage);
    m_psh.nStartPage = nPage;
    return TRUE;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage)
{
    const int index = GetPageIndex(pPage);
    return index >= 0 && SetActivePage(index);
}

CTabCtrl* CPropertySheet::GetTabControl() const
{
    return AskForWindow<CTabCtrl>(m_hWnd, PSM_GETTABCONTROL);
}

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle)
{
    if (m_hWnd != NULL) {
        Ask(m_hWnd, PSM_SETTITLE, nStyle, lpszText);
        return;
    }
    caption_ = lpszText;
    m_psh.pszCaption = caption_;
    m_psh.dwFlags = (m_psh.dwFlags & ~PSH_PROPTITLE) | nStyle;
}

void CPropertySheet::EnableStackedTabs(BOOL bStacked)
{
    stacked_ = bStacked;
}

void CPropertySheet::SetWizardMode()
{
    m_psh.dwFlags |= PSH_WIZARD;
}

void CPropertySheet::SetFinishText(LPCTSTR lpszText)
{
    Ask(m_hWnd, PSM_SETFINISHTEXT, 0, lpszText);
}

void CPropertySheet::SetWizardButtons(DWORD dwFlags)
{
    // Posted, as the page that asks for it in OnSetActive is not the active one yet.
    PostMessage(PSM_SETWIZBUTTONS, 0, dwFlags);
}

void CPropertySheet::PressButton(int nButton)
{
    PostMessage(PSM_PRESSBUTTON, nButton);
}

void CPropertySheet::EndDialog(int nEndID)
{
    if (IsModal(*this))
        EndModalLoop(nEndID);
    else
        DestroyWindow();
}

void CPropertySheet::MapDialogRect(LPRECT lpRect) const
{
    ::MapDialogRect(m_hWnd, lpRect);
}

BOOL CPropertySheet::OnInitDialog()
{
    const BOOL systemSetsFocus = Default(); // The system makes the tabs and the first page.
    if (!stacked_)
        GetTabControl()->ModifyStyle(TCS_MULTILINE, TCS_SINGLELINE);
    if (!IsModal(*this) && !(m_psh.dwFlags & PSH_WIZARD))
        HideButtons();
    return systemSetsFocus;
}

BOOL CPropertySheet::ContinueModal()
{
    // A sheet that the system sees as modeless does not close: it only has no current page.
    if (IsModal(*this) && m_hWnd != NULL && Ask(m_hWnd, PSM_GETCURRENTPAGEHWND) == 0)
        EndModalLoop(lastButton_);
    return CWnd::ContinueModal();
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    return m_hWnd != NULL && Ask(m_hWnd, PSM_ISDIALOGMESSAGE, 0, pMsg);
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const int id = LOWORD(wParam);
    if (id == IDOK || id == IDCANCEL || id == ID_WIZFINISH)
        lastButton_ = id;
    return CWnd::OnCommand(wParam, lParam);
}

LRESULT CPropertySheet::OnInitDialogMessage(WPARAM, LPARAM)
{
    return OnInitDialog();
}

LRESULT CPropertySheet::OnPressButtonMessage(WPARAM wParam, LPARAM)
{
    // The system does what the button would do, without its command.
    if (wParam == PSBTN_OK)
        lastButton_ = IDOK;
    else if (wParam == PSBTN_CANCEL)
        lastButton_ = IDCANCEL;
    else if (wParam == PSBTN_FINISH)
        lastButton_ = ID_WIZFINISH;
    return Default();
}

void CPropertySheet::OnClose()
{
    if (IsModal(*this))
        PressButton(PSBTN_CANCEL);
    else
        DestroyWindow();
}

bool CPropertySheet::HasPage(int index) const
{
    return index >= 0 && index < GetPageCount();
}

bool CPropertySheet::ShowSheet(HWND owner)
{
    afxint::NeedCommonControls(ICC_WIN95_CLASSES);
    std::vector<HPROPSHEETPAGE> systemPages;
    systemPages.reserve(pages_.size());
    for (CPropertyPage* page : pages_)
        systemPages.push_back(page->MakeSystemPage());

    PROPSHEETHEADER header = m_psh;
    header.dwFlags |= PSH_MODELESS | PSH_USECALLBACK;
    header.dwFlags &= ~PSH_PROPSHEETPAGE;
    header.hwndParent = owner;
    header.nPages = systemPages.size();
    header.phpage = systemPages.data();
    header.pfnCallback = afxint::PropertySheetHook::Procedure;
    afxint::WindowCreation creation(this);
    const INT_PTR sheet = creation.IsReady() ? ::PropertySheet(&header) : -1;
    const HWND window = sheet == -1 ? NULL : (HWND)sheet;
    if (!creation.Finish(window))
        PostNcDestroy();
    return window != NULL;
}

void CPropertySheet::HideButtons()
{
    int top = INT_MAX;
    for (int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP}) {
        const HWND button = ::GetDlgItem(m_hWnd, id);
        if (button == NULL)
            continue;
        CRect place;
        ::GetWindowRect(button, place);
        top = min(top, place.top);
        ::ShowWindow(button, SW_HIDE);
        ::EnableWindow(button, FALSE);
    }
    if (top == INT_MAX)
        return;

    CRect frame, client;
    GetWindowRect(frame);
    GetClientRect(client);
    ClientToScreen(client);
    frame.bottom -= client.bottom - top;
    SetWindowPos(NULL, 0, 0, frame.Width(), frame.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
