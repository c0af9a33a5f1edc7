#include "tests/robustness/Lives.h"

#include "tests/robustness/SelfEnding.h"
#include "tests/robustness/Stage.h"

#include "tests/dialogs/PageTemplate.h"

#include "controls/HyperLink.h"
#include "controls/NoteStatic.h"
#include "controls/ShadeButton.h"
#include "units/DialogUnits.h"
#include "dialogs/ModellessDlg.h"
#include "shell/PictureLoader.h"
#include "shell/ShellOpen.h"

#include <afxwin.h>

#include <memory>

using umbra::testing::DialogTemplate;

namespace {

/// Has the window paint itself at once.
void Paint(HWND window)
{
    Stage::Paint(window);
}

/// Presses, leaves, comes back and lets go.
void DragOutAndIn(HWND window)
{
    Stage::SendMouse(window, WM_LBUTTONDOWN, Stage::inside);
    Stage::MovePointer(window, Stage::outside);
    Paint(window);
    Stage::MovePointer(window, Stage::inside);
    Paint(window);
    Stage::SendMouse(window, WM_LBUTTONUP, Stage::inside);
}

/// Everything that a user does with a control.
void Use(HWND window)
{
    Stage::Hover(window);
    DragOutAndIn(window);
    Stage::SendMouse(window, WM_LBUTTONDBLCLK, Stage::inside);
    Stage::SendMouse(window, WM_LBUTTONUP, Stage::inside);
    ::SetFocus(window);
    Paint(window);
    ::SendMessage(window, WM_KEYDOWN, VK_SPACE, 0);
    ::SendMessage(window, WM_KEYUP, VK_SPACE, 0);
    Stage::SendMouse(window, WM_LBUTTONDOWN, Stage::inside);
    ::SendMessage(window, WM_KILLFOCUS, 0, 0);
    Stage::SendMouse(window, WM_LBUTTONUP, Stage::inside);
    ::EnableWindow(window, FALSE);
    Paint(window);
    ::EnableWindow(window, TRUE);
    ::MoveWindow(window, 30, 30, 90, 50, TRUE);
    Paint(window);
}

/// A bitmap with a pixel of the colour.
HBITMAP MakeBitmap(COLORREF color)
{
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, 30, 20);
    const HGDIOBJ former = ::SelectObject(memory, bitmap);
    ::SetPixel(memory, 3, 3, color);
    ::SelectObject(memory, former);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return bitmap;
}

/// An icon of its own.
HICON MakeIcon()
{
    return ::CopyIcon(::LoadIcon(nullptr, IDI_ASTERISK));
}

// Free functions.

void UseGrid()
{
    int x, y, cx, cy;
    PixelsToDialogUnits(11, 20, 100, 100, &x, &y, &cx, &cy);
    DialogUnitsToPixels(6, 12, 57, 62, &x, &y, &cx, &cy);
}

/// Pictures that are there, that are not, and one below the working directory.
void UsePictureLoader()
{
    for (const LPCTSTR name : {_T("Info.gif"), _T("no such.gif")}) {
        const HBITMAP bitmap = LoadPictureBitmap(ImageFile(name));
        if (bitmap != nullptr)
            ::DeleteObject(bitmap);
    }
    const HBITMAP below = LoadPictureBitmap(_T("images\\Info.gif"));
    if (below != nullptr)
        ::DeleteObject(below);
}

/// Targets that are opened.
void UseShell()
{
    for (int i = 0; i < 8; ++i)
        ShellOpen(_T("http://example.org/"), SW_SHOWNORMAL, _T(".htm"));
}

// Labels.

/// A label with everything that its looks have in common.
template <class Label>
void UseLabel(void (*setUp)(Label&))
{
    Stage stage;
    Label label;
    const HWND window = stage.AddLabel();
    if (label.SubclassWindow(window))
        setUp(label);
    stage.Show();
    Use(window);
    stage.Show();
    stage.Close();
}

/// The looks of labels.
void SetUpPlainLabel(CStaticTS& label)
{
    label.SetLabelTextColor(RGB(0, 100, 0));
    label.SetEmbossed(TRUE);
    label.SetBackColor(RGB(240, 240, 200));
    ::SendMessage(label.m_hWnd, WM_PRINTCLIENT, 0, 0);
}

void SetUpLinkLabel(CStaticTS& label)
{
    label.SetLink(TRUE);
    label.SetTransparent(TRUE);
    label.SetLinkTarget(_T("  http://example.org/  "));
    label.SetLabelFont(static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT)));
}

void SetUpKeyedLabel(CStaticTS& label)
{
    label.SetTransparentColor(RGB(0, 0, 0));
    label.LoadPicture(ImageFile(_T("Info.gif")));
    label.LoadPicture(ImageFile(_T("Error.gif")));
}

void SetUpOpaqueLabel(CStaticTS& label)
{
    label.LoadPicture(ImageFile(_T("Info.gif")));
    label.LoadPicture(ImageFile(_T("no such.gif")));
}

void SetUpNote(CNoteStatic& note)
{
    note.CopyWindowFont();
    note.SetLabelTextColor(RGB(0, 0, 255));
    note.SetLink(FALSE);
}

void SetUpHyperLink(CHyperLink& link)
{
    link.SetTextColor(RGB(0, 0, 255));
    link.SetTransparentColor(RGB(0, 0, 0));
    link.SetBitmapFile(ImageFile(_T("InfoIcon1.gif")));
    link.SetBitmapFile(ImageFile(_T("Error.gif")));
    link.SetToolTipText(_T("A tip"));
    link.SetToolTipText(_T("Another tip"));
    link.SetURL(_T("http://example.org/"));
    link.ApplyLinkFont();
}

void SetUpPlainHyperLink(CHyperLink& link)
{
    link.ApplyLinkFont();
    link.SetToolTipText(_T("A tip"));
}

/// A label that is made through its class.
void UseCreatedLabel()
{
    Stage stage;
    CStaticTS label;
    if (label.Create(_T("A text"), WS_CHILD | WS_VISIBLE | SS_NOTIFY, CRect(20, 20, 140, 60),
                     &stage, 7))
        label.LoadPicture(ImageFile(_T("Info.gif")));
    stage.Show();
    label.DestroyWindow();
    // The object may also go before its window.
    CStaticTS second;
    second.Create(_T("Another"), WS_CHILD | WS_VISIBLE, CRect(20, 20, 140, 60), &stage, 8);
}

// Buttons.

void SetUpButton(CxShadeButton& button)
{
    button.SetShade(SHADE_NOISE, 20, 30, 40, RGB(180, 200, 230));
    button.SetBorder(3);
    button.SetTextColor(RGB(90, 0, 0));
    LOGFONT font = {};
    font.lfHeight = -12;
    lstrcpy(font.lfFaceName, _T("Arial"));
    button.SetTextFont(font);
    button.SetToolTipText(_T("A tip"), _T("While checked"));
}

/// A button of the style, with everything that a user does.
void UseButton(DWORD style, void (*more)(CxShadeButton&))
{
    Stage stage;
    CxShadeButton button;
    const HWND window = stage.AddButton(style);
    if (button.SubclassWindow(window)) {
        SetUpButton(button);
        more(button);
    }
    stage.Show();
    Use(window);
    ::SendMessage(window, BM_SETCHECK, BST_CHECKED, 0);
    stage.Show();
    if (button.m_hWnd != nullptr)
        button.SetShade(SHADE_SCRATCHED, 0, 0, 100, RGB(180, 200, 230));
    stage.Show();
    stage.Close();
}

/// What buttons can show beside their caption.
void GiveNothing(CxShadeButton&)
{
}

void GivePicture(CxShadeButton& button)
{
    button.SetPicture(ImageFile(_T("Ok.gif")), CxShadeButton::alignLeft, 19, 19, RGB(0, 0, 0));
    button.SetPicture(ImageFile(_T("Next.gif")), CxShadeButton::alignRight, 19, 19, RGB(0, 0, 0));
    button.SetPicture(ImageFile(_T("no such.gif")), CxShadeButton::alignTop, 19, 19, RGB(0, 0, 0));
    button.SetPicture(ImageFile(_T("Back.gif")), CxShadeButton::alignTop, 19, 19, RGB(0, 0, 0));
}

void GiveOpaquePicture(CxShadeButton& button)
{
    button.SetPicture(ImageFile(_T("Ok.gif")), CxShadeButton::alignLeft, 19, 19, CLR_NONE);
    button.SetFlat(TRUE);
}

void GiveIcons(CxShadeButton& button)
{
    button.SetIcons(MakeIcon(), CxShadeButton::alignLeft, 32, 32);
    button.SetIcons(MakeIcon(), CxShadeButton::alignRight, 32, 32, MakeIcon(), MakeIcon());
    button.Set3dBorder(FALSE);
}

/// Radio buttons that check each other.
void UseRadioGroup()
{
    Stage stage;
    CxShadeButton buttons[3];
    for (int i = 0; i < 3; ++i) {
        const DWORD first = i == 0 ? WS_GROUP : 0;
        if (buttons[i].SubclassWindow(stage.AddButton(BS_AUTORADIOBUTTON | first, 10 + 45 * i)))
            SetUpButton(buttons[i]);
    }
    stage.Show();
    for (CxShadeButton& button : buttons) {
        if (button.m_hWnd != nullptr)
            Use(button.m_hWnd);
    }
    stage.Show();
    stage.Close();
}

// Dialogs.

class LifeDialog : public CDialogTS
{
public:
    LifeDialog() : CDialogTS(0U) {}

    /// Shows it, modeless, presses it and closes it.
    void Live()
    {
        const DialogTemplate source =
            DialogTemplate(20, 20, 150, 100, WS_POPUP | WS_VISIBLE | WS_CAPTION, _T("A caption"))
                .Button(IDOK, _T("&Go on"), 10, 10, 50, 14);
        if (!CreateIndirect(source.Get()))
            return;
        const HWND window = m_hWnd;
        Paint(window);
        Stage::SendMouse(window, WM_LBUTTONDOWN, {100, 60});
        MSG drag; // The system's own move loop is not the toolkit's.
        ::PeekMessage(&drag, window, WM_NCLBUTTONDOWN, WM_NCLBUTTONDOWN, PM_REMOVE);
        ::MoveWindow(window, 30, 30, 200, 150, TRUE);
        Paint(window);
        DestroyWindow();
    }
};

/// The modes of a dialog's background.
void UsePlainDialog()
{
    LifeDialog dialog;
    dialog.m_bDragAnywhere = TRUE;
    dialog.Live();
}

void UseFilledDialog()
{
    LifeDialog dialog;
    dialog.m_bSolidFill = TRUE;
    dialog.m_crFill = RGB(20, 160, 60);
    dialog.Live();
}

void UseShapedDialog()
{
    LifeDialog dialog;
    dialog.m_bShaped = TRUE;
    dialog.m_bmpBack.Attach(MakeBitmap(RGB(200, 30, 40)));
    dialog.m_bmpMask.Attach(MakeBitmap(RGB(255, 255, 255)));
    dialog.Live();
}

void UseBitmapDialog()
{
    const HBITMAP image = MakeBitmap(RGB(200, 30, 40));
    LifeDialog dialog;
    dialog.m_bHasBitmap = TRUE;
    dialog.m_bCaptionText = TRUE;
    dialog.m_bmpBack.Attach(image);
    dialog.Live();
    dialog.FreeBitmaps();
    ::DeleteObject(image);
}

/// Everything with the button of a dialog whose modal loop runs.
void UseItsButton(HWND dialog)
{
    Paint(dialog);
    if (const HWND button = ::GetDlgItem(dialog, IDCANCEL))
        Use(button);
}

/// A page with all of its buttons, which ends its own modal loop.
class LifePage : public SelfEnding<CBaseDialog>
{
public:
    LifePage()
        : SelfEnding(UseItsButton, 0U, nullptr, true, true, true, true, true, true, true, true)
    {
    }
    using CBaseDialog::m_btnBack;
};

/// Dialogs from their templates to their ends.
void UseModalDialog()
{
    const DialogTemplate source =
        DialogTemplate(20, 20, 150, 100, WS_POPUP | WS_CAPTION, _T("A caption"))
            .Button(IDCANCEL, _T("&Go on"), 10, 10, 50, 14);
    SelfEnding<CDialogTS> dialog(UseItsButton, 0U, nullptr);
    dialog.InitModalIndirect(source.Get());
    dialog.DoModal();
}

void UseModalPage()
{
    g_strImageDir = ProgramFolder().c_str();
    const DialogTemplate source = MakePageTemplate();
    LifePage page;
    page.InitModalIndirect(source.Get());
    page.DoModal();
}

void UsePage()
{
    g_strImageDir = ProgramFolder().c_str();
    const DialogTemplate source = MakePageTemplate();
    LifePage page;
    if (!page.CreateIndirect(source.Get()))
        return;
    const HWND window = page.m_hWnd;
    page.ShowPicture(IDS_IMAGE_INFO);
    Paint(window);
    if (page.m_btnBack.m_hWnd != nullptr)
        Use(page.m_btnBack.m_hWnd);
    Paint(window);
    page.DestroyWindow();
}

void UseModelessDialog()
{
    g_strImageDir = ProgramFolder().c_str();
    const std::unique_ptr<CModellessDlg> dialog(new CModellessDlg(nullptr));
    if (dialog->Create(CModellessDlg::IDD, nullptr)) {
        const HWND window = dialog->m_hWnd;
        dialog->ShowWindow(SW_SHOW);
        dialog->InvalidateRect(nullptr, TRUE);
        ::PostMessage(window, WM_KEYDOWN, VK_TAB, 0);
        dialog->PumpMessages();
        Stage::Hover(dialog->m_icon.m_hWnd);
        dialog->PumpMessages();
        Paint(window);
        dialog->DestroyWindow();
    }
    AfxGetApp()->EndWaitCursor();
}

} // namespace

const std::vector<Life>& LivesOfClasses()
{
    static const std::vector<Life> lives = {
        {"grid functions", UseGrid},
        {"LoadPictureBitmap", UsePictureLoader},
        {"ShellOpen", UseShell},
        {"CStaticTS, etched", [] { UseLabel<CStaticTS>(SetUpPlainLabel); }},
        {"CStaticTS, link with a font", [] { UseLabel<CStaticTS>(SetUpLinkLabel); }},
        {"CStaticTS, keyed picture", [] { UseLabel<CStaticTS>(SetUpKeyedLabel); }},
        {"CStaticTS, opaque picture", [] { UseLabel<CStaticTS>(SetUpOpaqueLabel); }},
        {"CStaticTS, created", UseCreatedLabel},
        {"CNoteStatic", [] { UseLabel<CNoteStatic>(SetUpNote); }},
        {"CHyperLink, link with a picture", [] { UseLabel<CHyperLink>(SetUpHyperLink); }},
        {"CHyperLink, plain", [] { UseLabel<CHyperLink>(SetUpPlainHyperLink); }},
        {"CxShadeButton, push", [] { UseButton(BS_DEFPUSHBUTTON, GiveNothing); }},
        {"CxShadeButton, check box", [] { UseButton(BS_AUTOCHECKBOX, GivePicture); }},
        {"CxShadeButton, flat", [] { UseButton(BS_FLAT, GiveOpaquePicture); }},
        {"CxShadeButton, icons", [] { UseButton(BS_AUTOCHECKBOX | BS_PUSHLIKE, GiveIcons); }},
        {"CxShadeButton, radio group", UseRadioGroup},
        {"CDialogTS, plain", UsePlainDialog},
        {"CDialogTS, filled", UseFilledDialog},
        {"CDialogTS, shaped", UseShapedDialog},
        {"CDialogTS, bitmap", UseBitmapDialog},
        {"CDialogTS, modal", UseModalDialog},
        {"CBaseDialog", UsePage},
        {"CBaseDialog, modal", UseModalPage},
        {"CModellessDlg", UseModelessDialog},
    };
    return lives;
}
