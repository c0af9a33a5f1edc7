// The pages that a monkey plays with: every control of the toolkit, in a host that answers
// notifications with mischief.
#pragma once

#include "tests/robustness/Dice.h"

#include <umbra.h>

#include "resources/resource.h"
#include "testing/DialogTemplate.h"
#include "testing/Pump.h"

#include <deque>
#include <stdlib.h>
#include <string.h>
#include <vector>

/// Memory of deleted pages, filled and kept for a while: what writes to a deleted object shows, and
/// what reads there finds nothing that looks like a window.
class Graveyard
{
public:
    static void Bury(void* memory, size_t size)
    {
        memset(memory, filling, size);
        Graves().push_back({static_cast<BYTE*>(memory), size});
        if (Graves().size() > mostGraves)
            Clear(Graves().front()), Graves().pop_front();
    }
    /// Whether nobody has written to a deleted page.
    static bool IsQuiet()
    {
        for (const Grave& grave : Graves())
            Check(grave);
        return !Disturbed();
    }

private:
    static constexpr int filling = 0xDD;
    static constexpr size_t mostGraves = 16;
    struct Grave
    {
        BYTE* memory;
        size_t size;
    };

    static std::deque<Grave>& Graves()
    {
        static std::deque<Grave> graves;
        return graves;
    }
    static bool& Disturbed()
    {
        static bool disturbed = false;
        return disturbed;
    }
    static void Check(const Grave& grave)
    {
        for (size_t i = 0; i < grave.size; ++i) {
            if (grave.memory[i] != filling)
                Disturbed() = true;
        }
    }
    static void Clear(const Grave& grave)
    {
        Check(grave);
        free(grave.memory);
    }
};

/// A dialog that is made with new and deletes itself with its window, as modeless ones do, and that
/// does something unexpected now and then when it is notified of something.
template <class Dialog>
class MischievousDialog : public Dialog
{
public:
    using Dialog::Dialog;

    /// The one that lives; NULL when there is none.
    static MischievousDialog*& Live()
    {
        static MischievousDialog* live;
        return live;
    }
    /// Where the mischief comes from; NULL: none.
    static Dice*& Mischief()
    {
        static Dice* dice;
        return dice;
    }

    static void* operator new(size_t size) { return malloc(size); }
    static void operator delete(void* memory, size_t size) { Graveyard::Bury(memory, size); }

    /// Does it, with the control that the dialog was notified of. The dialog may be gone then.
    static void Play(HWND dialog, HWND control)
    {
        static int depth = 0;
        Dice* dice = Mischief();
        if (dice == nullptr || depth >= 3 || !dice->Percent(3))
            return;
        ++depth;
        switch (dice->Below(10)) {
        case 0:
            if (FocusDepth() == 0)
                ::DestroyWindow(dialog);
            break;
        case 1:
            ::DestroyWindow(control);
            break;
        case 2:
            umbra::testing::PumpMessages();
            break;
        case 3:
            ::EnableWindow(control, dice->Percent(50));
            break;
        case 4:
            ::ShowWindow(control, dice->Percent(50) ? SW_HIDE : SW_SHOW);
            break;
        case 5:
            ::SetWindowText(control, dice->Text().c_str());
            break;
        case 6:
            ::SetWindowPos(control, nullptr, 0, 0, dice->Below(200), dice->Below(60),
                           SWP_NOMOVE | SWP_NOZORDER);
            break;
        case 7:
            ::SetFocus(::GetNextDlgTabItem(dialog, control, FALSE));
            break;
        case 8:
            ::ReleaseCapture();
            break;
        case 9:
            ::SendMessage(control, BM_SETSTATE, dice->Percent(50), 0);
            break;
        }
        --depth;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const HWND window = this->m_hWnd;
        if (const HWND control = FindNotifier(message, wParam, lParam)) {
            Play(window, control);
            if (!::IsWindow(window) || !::IsWindow(control))
                return 0;
        }
        if (message != WM_SETFOCUS && message != WM_ACTIVATE)
            return Dialog::WindowProc(message, wParam, lParam);
        ++FocusDepth();
        const LRESULT result = Dialog::WindowProc(message, wParam, lParam);
        --FocusDepth();
        return result;
    }

    // A page that is not modal ends with its window.
    void OnOK() override { this->DestroyWindow(); }
    void OnCancel() override { this->DestroyWindow(); }
    void PostNcDestroy() override
    {
        Dialog::PostNcDestroy();
        Live() = nullptr;
        delete this;
    }

private:
    /// Above 0 while a dialog passes the focus on to a control. Ending it there breaks any program
    /// under Wine, which then writes to its own freed record of the dialog.
    static int& FocusDepth()
    {
        static int depth = 0;
        return depth;
    }

    static HWND FindNotifier(UINT message, WPARAM wParam, LPARAM lParam)
    {
        switch (message) {
        case WM_COMMAND:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC:
            return reinterpret_cast<HWND>(lParam);
        case WM_DRAWITEM:
            return reinterpret_cast<DRAWITEMSTRUCT*>(lParam)->hwndItem;
        case WM_NOTIFY:
            return reinterpret_cast<HWND>(reinterpret_cast<NMHDR*>(lParam)->idFrom);
        case WM_SETCURSOR:
            return reinterpret_cast<HWND>(wParam);
        default:
            return nullptr;
        }
    }
};

/// A shaded button whose tool tip comes at once.
class HastyButton : public CxShadeButton
{
public:
    void HurryToolTip()
    {
        if (m_toolTip.GetSafeHwnd() != nullptr)
            m_toolTip.SetDelayTime(TTDT_INITIAL, 1);
    }
    bool IsToolTipShown() const { return ::IsWindowVisible(m_toolTip.GetSafeHwnd()) != FALSE; }
};

/// The working window, which undoes the wait cursor at its end.
class WorkingWindow : public CModellessDlg
{
public:
    WorkingWindow() : CModellessDlg(nullptr) {}
    ~WorkingWindow() override { AfxGetApp()->EndWaitCursor(); }
};

/// All controls on one page.
class EverythingPage : public CBaseDialog
{
public:
    EverythingPage() : CBaseDialog(1, nullptr, true, false, true, false, true, false, false, true)
    {
    }

    static umbra::testing::DialogTemplate MakeTemplate()
    {
        constexpr DWORD tab = umbra::testing::DialogTemplate::tabStop;
        constexpr DWORD label = umbra::testing::DialogTemplate::visibleChild | SS_NOTIFY;
        umbra::testing::DialogTemplate page(10, 10, 440, 200, WS_POPUP | WS_VISIBLE,
                                            _T("Everything"));
        page.Button(IDOK, _T("ok"), 270, 175, 60, 18, tab | BS_DEFPUSHBUTTON)
            .Button(IDCANCEL, _T("cancel"), 340, 175, 60, 18)
            .Button(IDC_BACK, _T("back"), 200, 175, 60, 18);
        const DWORD kinds[] = {BS_PUSHBUTTON,
                               BS_PUSHBUTTON | BS_FLAT,
                               BS_AUTOCHECKBOX | BS_NOTIFY,
                               BS_AUTOCHECKBOX | BS_PUSHLIKE | BS_RIGHT,
                               BS_AUTORADIOBUTTON | WS_GROUP,
                               BS_AUTORADIOBUTTON | BS_LEFT,
                               BS_AUTORADIOBUTTON | BS_PUSHLIKE,
                               BS_PUSHBUTTON | WS_GROUP | BS_NOTIFY,
                               BS_DEFPUSHBUTTON | BS_FLAT};
        int number = 0;
        for (const DWORD kind : kinds) {
            page.Button(firstButton + number, _T("A &button"), 60 + number % 3 * 70,
                        10 + number / 3 * 24, 64, 20, tab | kind);
            ++number;
        }
        const DWORD aligns[] = {SS_LEFT, SS_CENTER, SS_RIGHT, SS_LEFT, SS_CENTER, SS_LEFT};
        for (number = 0; number < labelCount; ++number)
            page.Label(firstLabel + number, _T("A label of several words"), 60 + number % 3 * 100,
                       90 + number / 3 * 26, 94, 22, label | aligns[number]);
        for (number = 0; number < linkCount; ++number)
            page.Label(firstLink + number, _T(" a link "), 60 + number * 100, 145, 94, 22, label);
        return page;
    }

    BOOL OnInitDialog() override
    {
        CBaseDialog::OnInitDialog();
        for (HastyButton& button : m_buttons)
            ApplyButtonShade(button);
        m_buttons[0].SetPicture(m_strImageDir + _T("images\\Info.gif"), CxShadeButton::alignLeft,
                                19, 19, CLR_NONE);
        m_buttons[1].SetPicture(m_strImageDir + _T("images\\Error.gif"), CxShadeButton::alignTop,
                                19, 19, RGB(0, 0, 0));
        m_buttons[2].SetToolTipText(_T("unchecked"), _T("checked"));
        m_buttons[7].SetIcons(::CopyIcon(::LoadIcon(nullptr, IDI_APPLICATION)),
                              CxShadeButton::alignRight, 32, 32);
        m_buttons[8].SetToolTipText(_T("a tool tip"));
        m_labels[1].SetEmbossed(TRUE);
        m_labels[2].SetLink(TRUE);
        m_labels[3].SetTransparentColor(RGB(0, 0, 0));
        m_labels[3].LoadPicture(m_strImageDir + _T("images\\InfoIcon1.gif"));
        m_labels[3].SetLinkTarget(_T("C:\\a target with blanks.txt"));
        m_labels[3].SetLink(TRUE);
        m_labels[4].LoadPicture(m_strImageDir + _T("images\\Ok.gif"));
        m_note.CopyWindowFont();
        m_links[0].ApplyLinkFont();
        m_links[1].SetURL(_T(""));
        m_links[2].SetTransparentColor(RGB(0, 0, 0));
        m_links[2].SetBitmapFile(m_strImageDir + _T("images\\InfoIcon1.gif"));
        m_links[2].SetToolTipText(_T("where it leads"));
        m_links[2].SetURL(_T("http://example.invalid/"));
        ShowPicture(IDS_IMAGE_ERROR);
        return TRUE;
    }

    static constexpr int firstButton = 200;
    static constexpr int buttonCount = 9;
    static constexpr int firstLabel = 220;
    static constexpr int labelCount = 6; // The last one is the note.
    static constexpr int firstLink = 230;
    static constexpr int linkCount = 3;

    CStaticTS& Label(int number)
    {
        return number < labelCount - 1 ? m_labels[number] : static_cast<CStaticTS&>(m_note);
    }

    HastyButton m_buttons[buttonCount];
    CStaticTS m_labels[labelCount - 1];
    CNoteStatic m_note;
    CHyperLink m_links[linkCount];

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CBaseDialog::DoDataExchange(pDX);
        for (int i = 0; i < buttonCount; ++i)
            DDX_Control(pDX, firstButton + i, m_buttons[i]);
        for (int i = 0; i < labelCount; ++i)
            DDX_Control(pDX, firstLabel + i, Label(i));
        for (int i = 0; i < linkCount; ++i)
            DDX_Control(pDX, firstLink + i, m_links[i]);
    }
};

using MonkeyPage = MischievousDialog<EverythingPage>;
using MonkeyWindow = MischievousDialog<WorkingWindow>;
