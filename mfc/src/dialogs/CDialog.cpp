#include <classes/CDialog.h>

#include <classes/Application.h>
#include <classes/CException.h>
#include <classes/CFont.h>
#include <classes/CRect.h>

#include "dialogs/DialogTemplate.h"
#include "windows/CommonControls.h"
#include "windows/ModalScope.h"
#include "windows/WindowCreation.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::OnInitDialogMessage)
    ON_MESSAGE(WM_SETFONT, &CDialog::OnSetFontMessage)
    ON_MESSAGE(WM_COMMANDHELP, &CDialog::OnCommandHelpMessage)
END_MESSAGE_MAP()

namespace {

// The range of commands, as opposed to controls and to the commands of the system menu.
constexpr UINT firstCommand = 0x8000;
constexpr UINT firstSystemCommand = 0xF000;

/// Locks a global block as long as the object lives.
class ScopedGlobalLock
{
public:
    explicit ScopedGlobalLock(HGLOBAL memory)
        : memory_(memory), address_(memory == NULL ? NULL : GlobalLock(memory))
    {
    }
    ~ScopedGlobalLock()
    {
        if (address_ != NULL)
            GlobalUnlock(memory_);
    }
    ScopedGlobalLock(const ScopedGlobalLock&) = delete;
    ScopedGlobalLock& operator=(const ScopedGlobalLock&) = delete;

    LPCDLGTEMPLATE Template() const { return static_cast<LPCDLGTEMPLATE>(address_); }

private:
    HGLOBAL memory_;
    void* address_;
};

void TraceMissingTemplate(LPCTSTR name)
{
    if (IS_INTRESOURCE(name))
        TRACE(_T("There is no dialog template %d.\n"), static_cast<int>(LOWORD(name)));
    else
        TRACE(_T("There is no dialog template %s.\n"), name);
}

/// The template in the resources; NULL when no module has it.
LPCDLGTEMPLATE FindTemplate(LPCTSTR name, HINSTANCE& module)
{
    if (name == NULL)
        return NULL;
    module = AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC found = FindResource(module, name, RT_DIALOG);
    if (found == NULL) {
        TraceMissingTemplate(name);
        return NULL;
    }
    return static_cast<LPCDLGTEMPLATE>(LockResource(LoadResource(module, found)));
}

/// Whether the template leaves the place of the window to the library, which centres it.
bool LeavesPlaceOpen(const afxint::DialogTemplate& dialog)
{
    constexpr DWORD placed = DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN | WS_CHILD;
    return (dialog.Style() & placed) == 0 && dialog.X() == 0 && dialog.Y() == 0;
}

/// What ::IsDialogMessage is asked about; it would also dispatch all other messages.
bool IsInput(UINT message)
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

} // namespace

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : templateName_(lpszTemplateName), parent_(pParentWnd)
{
    if (IS_INTRESOURCE(lpszTemplateName))
        helpId_ = LOWORD(lpszTemplateName);
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd)
{
}

CDialog::~CDialog()
{
    // The base would find the window with the base's map only.
    if (m_hWnd != NULL) {
        TRACE(_T("A CDialog object goes before its window.\n"));
        CWnd::DestroyWindow();
    }
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    templateName_ = lpszTemplateName;
    if (IS_INTRESOURCE(lpszTemplateName) && helpId_ == 0)
        helpId_ = LOWORD(lpszTemplateName);
    HINSTANCE module = NULL;
    const LPCDLGTEMPLATE found = FindTemplate(lpszTemplateName, module);
    return found != NULL && CreateFromTemplate(found, pParentWnd, module);
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    dialogInit_ = lpDialogInit;
    return lpDialogTemplate != NULL &&
           CreateFromTemplate(lpDialogTemplate, pParentWnd, AfxGetInstanceHandle());
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    const ScopedGlobalLock lock(hDialogTemplate);
    return CreateIndirect(lock.Template(), pParentWnd);
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd,
                                void* lpDialogInit)
{
    dialogTemplate_ = lpDialogTemplate;
    dialogInit_ = lpDialogInit;
    if (parent_ == NULL)
        parent_ = pParentWnd;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    dialogTemplateMemory_ = hDialogTemplate;
    if (parent_ == NULL)
        parent_ = pParentWnd;
    return TRUE;
}

INT_PTR CDialog::DoModal()
{
    ASSERT(m_hWnd == NULL);
    HINSTANCE module = AfxGetInstanceHandle();
    const ScopedGlobalLock lock(dialogTemplateMemory_);
    LPCDLGTEMPLATE found = dialogTemplate_ != NULL ? dialogTemplate_ : lock.Template();
    if (found == NULL)
        found = FindTemplate(templateName_, module);
    if (found == NULL)
        return -1;

    const afxint::ModalScope modal(*this, parent_);
    // Hidden at first, so that a dialog that OnInitDialog ends is never seen.
    const std::vector<BYTE> hidden = afxint::DialogTemplate(found).CopyHidden();
    if (!CreateFromTemplate(reinterpret_cast<LPCDLGTEMPLATE>(hidden.data()),
                            CWnd::FromHandle(modal.Owner()), module))
        return -1;
    if (!afxint::ModalState::MayGoOn(*this))
        return modal.Result();
    const bool quiet = (GetStyle() & DS_NOIDLEMSG) != 0;
    return RunModalLoop(quiet ? MLF_SHOWONIDLE | MLF_NOIDLEMSG : MLF_SHOWONIDLE);
}

void CDialog::EndDialog(int nResult)
{
    if (afxint::ModalState::IsRunning(*this))
        EndModalLoop(nResult);
    ::EndDialog(m_hWnd, nResult);
}

void CDialog::MapDialogRect(LPRECT lpRect) const
{
    ::MapDialogRect(m_hWnd, lpRect);
}

void CDialog::SetHelpID(UINT nIDR)
{
    helpId_ = nIDR;
}

void CDialog::NextDlgCtrl() const
{
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, FALSE);
}

void CDialog::PrevDlgCtrl() const
{
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, FALSE);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl)
{
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->GetSafeHwnd()), TRUE);
}

void CDialog::SetDefID(UINT nID)
{
    SendMessage(DM_SETDEFID, nID);
}

DWORD CDialog::GetDefID() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0));
}

BOOL CDialog::OnInitDialog()
{
    const BOOL filled =
        dialogInit_ != NULL ? ExecuteDlgInit(dialogInit_) : ExecuteDlgInit(templateName_);
    if (!filled || !UpdateData(FALSE)) {
        TRACE(_T("The controls of a dialog could not be filled.\n"));
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnSetFont(CFont*)
{
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    return IsInput(pMsg->message) && IsDialogMessage(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    // Commands go on, notifications of controls are nobody else's business.
    const bool command = nCode == CN_COMMAND || nCode == static_cast<int>(CN_UPDATE_COMMAND_UI);
    if (!command || nID < firstCommand || nID >= firstSystemCommand)
        return FALSE;
    CWnd* owner = GetParent();
    if (owner != NULL && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinThread* thread = AfxGetThread();
    return thread != NULL && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

BOOL CDialog::CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE module)
{
    const afxint::DialogTemplate dialog(dialogTemplate);
    centred_ = LeavesPlaceOpen(dialog);
    dialog.ForEachNamedClass(afxint::NeedClassOfControl);
    // Without a parent the main window owns the dialog, unless that is this very object.
    if (parent == NULL && !afxint::ModalState::IsRunning(*this))
        parent = AfxGetMainWnd();
    const HWND owner = parent == this ? NULL : parent->GetSafeHwnd();

    afxint::WindowCreation creation(this);
    HWND window = NULL;
    if (creation.IsReady()) {
        window =
            ::CreateDialogIndirectParam(module, dialogTemplate, owner, &afxint::DialogProcedure, 0);
    }
    if (window == NULL)
        TRACE(_T("A dialog could not be created, error %u.\n"), GetLastError());
    if (!creation.Finish(window))
        PostNcDestroy();
    return window != NULL;
}

LRESULT CDialog::OnInitDialogMessage(WPARAM, LPARAM)
{
    CRect before;
    GetWindowRect(&before);
    Default(); // The system's own dialogs do their part here.
    const BOOL chooseFocus = OnInitDialog();
    CRect after;
    if (!centred_ || m_hWnd == NULL || IsWindowVisible())
        return chooseFocus;
    GetWindowRect(&after);
    if (::EqualRect(&after, &before))
        CenterWindow();
    return chooseFocus;
}

LRESULT CDialog::OnSetFontMessage(WPARAM wParam, LPARAM)
{
    const LRESULT result = Default();
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return result;
}

LRESULT CDialog::OnCommandHelpMessage(WPARAM, LPARAM lParam)
{
    if (lParam == 0 && helpId_ != 0) {
        // Help contexts of dialogs follow those of commands and windows.
        constexpr DWORD firstDialogContext = 0x20000;
        lParam = static_cast<LPARAM>(firstDialogContext + helpId_);
    }
    CWinApp* app = AfxGetApp();
    if (lParam == 0 || app == NULL)
        return FALSE;
    app->WinHelp(static_cast<DWORD_PTR>(lParam));
    return TRUE;
}
