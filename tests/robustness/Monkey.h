// Sends messages and inputs at random to pages with all controls.
//
// One round is the life of a page and a working window under some hundreds of messages; a round is
// all that has to be repeated, since its seed decides everything in it.
//
// Left out, because any program is broken or held up by them:
// - messages with addresses or handles that cannot be made up (WM_SETICON, STM_SETIMAGE,
//   WM_WINDOWPOSCHANGED, WM_COPYDATA and so on); WM_SETTEXT, WM_SETFONT, WM_DRAWITEM, WM_NOTIFY,
//   WM_CTLCOLOR... and WM_PRINT come with real ones;
// - WM_NCDESTROY, WM_DESTROY, WM_CREATE and WM_INITDIALOG by hand, which only the system sends;
// - what starts the system's own loops for moving, sizing and menus, which wait for a person
//   (WM_SYSCOMMAND, WM_SYSKEYDOWN, the Alt and F10 keys); the move that m_bDragAnywhere starts is
//   in, and ended with the Escape key;
// - WM_QUIT and the end of a session, which end the program; F1 and WM_HELP, which start another;
// - BM_SETSTYLE with the type of the automatic radio button: a click on a hidden or disabled one of
//   these never ends under Wine, which walks around the group until it is back at the clicked one;
// - the styles with which a static control shortens its text, which Wine's own drawing does not
// bear;
// - the class library's own messages from 0x0360 on, some of which carry addresses.
#pragma once

#include "tests/robustness/MonkeyPage.h"
#include "tests/robustness/Outside.h"

#include "testing/CrashReport.h"
#include "testing/GdiObjects.h"
#include "testing/MessageLog.h"

#include <stdio.h>

/// Ends the system's own loop for moving a window, which waits for a person, by the Escape key.
class EscapeFromLoops
{
public:
    EscapeFromLoops() : m_timer(::SetTimer(nullptr, 0, 20, PressEscape)) {}
    ~EscapeFromLoops() { ::KillTimer(nullptr, m_timer); }
    EscapeFromLoops(const EscapeFromLoops&) = delete;
    EscapeFromLoops& operator=(const EscapeFromLoops&) = delete;

private:
    static void CALLBACK PressEscape(HWND, UINT, UINT_PTR, DWORD)
    {
        ::PostThreadMessage(::GetCurrentThreadId(), WM_KEYDOWN, VK_ESCAPE, 0);
    }

    UINT_PTR m_timer;
};

class Monkey
{
public:
    /// The seeds of rounds are numbers of 32 bits.
    explicit Monkey(unsigned seed) : m_seed(seed), m_dice(seed), m_mischief(seed ^ 0x5EED)
    {
        m_fonts[0].CreatePointFont(80, _T("Arial"));
        m_fonts[1].CreatePointFont(240, _T("Courier New"));
        umbra::testing::SetCrashContext(m_context);
    }
    ~Monkey() { umbra::testing::SetCrashContext(nullptr); }

    /// One round. Leaves no window.
    void Play(int messages)
    {
        const EscapeFromLoops escape;
        MonkeyPage::Mischief() = MonkeyWindow::Mischief() = &m_mischief;
        FakeShell::WhileOpening() = [] {
            if (MonkeyPage* page = MonkeyPage::Live())
                MonkeyPage::Play(page->m_hWnd, ::GetFocus());
        };
        for (m_step = 0; m_step < messages; ++m_step)
            Step();
        MonkeyPage::Mischief() = MonkeyWindow::Mischief() = nullptr;
        CloseAll();
    }

private:
    void Step()
    {
        Describe("opening");
        OpenMissing();
        const HWND window = PickWindow();
        const int choice = m_dice.Below(1000);
        if (choice < 550)
            SendSome(window);
        else if (choice < 700)
            UseInput(window);
        else if (choice < 820)
            ChangeWindow(window);
        else if (choice < 870)
            ChangeControl();
        else if (choice < 900)
            SetText(window);
        else if (choice < 990)
            Pump();
        else if (choice < 995)
            DestroyChild(window);
        else if (choice < 998)
            ::PostMessage(::GetAncestor(window, GA_ROOT), WM_CLOSE, 0, 0);
        else
            ::DestroyWindow(::GetAncestor(window, GA_ROOT));
    }

    /// For a crash report.
    void Describe(const char* what, HWND window = nullptr)
    {
        snprintf(m_context, sizeof(m_context), "monkey, seed %u, message %d: %s, control %d",
                 m_seed, m_step, what, window != nullptr ? ::GetDlgCtrlID(window) : -1);
        if (m_trace)
            fprintf(stderr, "%s, %d objects\n", m_context, umbra::testing::CountGdiObjects().total);
    }

    void OpenMissing()
    {
        Dice* const mischief = MonkeyPage::Mischief();
        if (MonkeyPage::Live() == nullptr) {
            MonkeyPage::Mischief() = nullptr; // Nobody ends a window that is being made.
            MonkeyPage* page = new MonkeyPage;
            MonkeyPage::Live() = page;
            ChooseBackground(*page);
            if (!page->CreateIndirect(EverythingPage::MakeTemplate().Get()) &&
                MonkeyPage::Live() != nullptr)
                delete page;
            MonkeyPage::Mischief() = mischief;
        }
        if (MonkeyWindow::Live() == nullptr && m_dice.Percent(1)) {
            MonkeyWindow* window = new MonkeyWindow;
            MonkeyWindow::Live() = window;
            window->Create(CModellessDlg::IDD, nullptr);
            window->ShowWindow(SW_SHOW);
        }
    }

    void ChooseBackground(CDialogTS& page)
    {
        page.m_bSolidFill = m_dice.Percent(20);
        page.m_crFill = m_dice.Color();
        page.m_bShaped = m_dice.Percent(10);
        page.m_bDragAnywhere = m_dice.Percent(20);
        page.m_bCaptionText = m_dice.Percent(50);
        if (m_dice.Percent(40)) {
            page.m_bmpBack.CreateBitmap(100, 80, 1, 32, nullptr);
            page.m_bmpMask.CreateBitmap(100, 80, 1, 1, nullptr);
            page.m_bHasBitmap = m_dice.Percent(80);
        }
    }

    void CloseAll()
    {
        for (int tries = 0; tries < 10 && IsAnyOpen(); ++tries) {
            if (MonkeyPage::Live() != nullptr)
                MonkeyPage::Live()->DestroyWindow();
            if (MonkeyWindow::Live() != nullptr)
                MonkeyWindow::Live()->DestroyWindow();
            Pump();
        }
        Pump();
    }

    static bool IsAnyOpen()
    {
        return MonkeyPage::Live() != nullptr || MonkeyWindow::Live() != nullptr;
    }

    /// One of the dialogs or, mostly, one of their controls.
    HWND PickWindow()
    {
        const HWND page = MonkeyPage::Live() != nullptr ? MonkeyPage::Live()->m_hWnd : nullptr;
        const HWND working =
            MonkeyWindow::Live() != nullptr ? MonkeyWindow::Live()->m_hWnd : nullptr;
        const HWND dialog = working != nullptr && m_dice.Percent(20) ? working : page;
        if (m_dice.Percent(10))
            return dialog;
        std::vector<HWND> children;
        for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
            children.push_back(child);
        return children.empty() ? dialog : m_dice.Pick(children);
    }

    bool IsDialog(HWND window) const { return ::GetParent(window) == nullptr; }

    void SendSome(HWND window)
    {
        if (m_dice.Percent(15)) {
            SendWithRecord(window);
            return;
        }
        const UINT message = PickMessage();
        const WPARAM wParam = PickWParam(message);
        const LPARAM lParam = PickLParam(window, message);
        Describe(umbra::testing::MessageName(message).c_str(), window);
        if (m_dice.Percent(70))
            ::SendMessage(window, message, wParam, lParam);
        else
            ::PostMessage(window, message, wParam, lParam);
    }

    UINT PickMessage()
    {
        static const UINT mouse[] = {WM_MOUSEMOVE,   WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK,
                                     WM_RBUTTONDOWN, WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MOUSELEAVE,
                                     WM_MOUSEHOVER,  WM_MOUSEWHEEL};
        static const UINT keys[] = {WM_KEYDOWN, WM_KEYUP, WM_CHAR, WM_DEADCHAR};
        static const UINT button[] = {BM_SETCHECK, BM_GETCHECK, BM_SETSTATE,     BM_GETSTATE,
                                      BM_CLICK,    BM_SETSTYLE, WM_SHADE_UNCHECK};
        static const UINT general[] = {
            WM_NULL,          WM_ENABLE,        WM_SHOWWINDOW,     WM_GETTEXTLENGTH,
            WM_SETFOCUS,      WM_KILLFOCUS,     WM_CAPTURECHANGED, WM_CANCELMODE,
            WM_SIZE,          WM_MOVE,          WM_PAINT,          WM_ERASEBKGND,
            WM_NCPAINT,       WM_NCHITTEST,     WM_SETCURSOR,      WM_GETDLGCODE,
            WM_SETREDRAW,     WM_TIMER,         WM_SYSCOLORCHANGE, WM_FONTCHANGE,
            WM_THEMECHANGED,  WM_DISPLAYCHANGE, WM_SETTINGCHANGE,  WM_UPDATEUISTATE,
            WM_CHANGEUISTATE, WM_QUERYUISTATE,  WM_GETFONT,        WM_SETFONT,
            WM_ACTIVATE,      WM_NCACTIVATE,    WM_ACTIVATEAPP,    WM_MOUSEACTIVATE,
            WM_PARENTNOTIFY,  WM_COMMAND,       WM_QUERYOPEN,      WM_CHILDACTIVATE};
        switch (m_dice.Below(6)) {
        case 0:
        case 1:
            return m_dice.Pick(mouse);
        case 2:
            return m_dice.Pick(keys);
        case 3:
            return m_dice.Pick(button);
        case 4:
            return m_dice.Percent(50) ? WM_USER + m_dice.Below(0x400)
                                      : WM_APP + m_dice.Below(0x400);
        default:
            return m_dice.Pick(general);
        }
    }

    WPARAM PickWParam(UINT message)
    {
        switch (message) {
        case WM_SETFONT:
            return reinterpret_cast<WPARAM>(PickFont());
        case WM_ERASEBKGND:
        case WM_NCPAINT:
            return message == WM_NCPAINT; // No device context; the whole frame.
        case WM_PAINT: // Wine's own controls paint with what is given here, and a forged device
            return 0;  // context of some values brings its graphics down.
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_SETTINGCHANGE:
            return 0;
        case WM_SETCURSOR:
        case WM_MOUSEACTIVATE:
            return reinterpret_cast<WPARAM>(PickWindow());
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_CHAR:
        case WM_DEADCHAR:
            return PickKey();
        case WM_COMMAND: // Of menus and accelerators; IDOK and IDCANCEL close.
            return m_dice.Percent(5) ? static_cast<WPARAM>(m_dice.Between(IDOK, IDCANCEL))
                                     : static_cast<WPARAM>(m_dice.Between(3, 0xDFFF));
        case BM_SETSTYLE:
            return PickButtonStyle();
        case WM_TIMER:
            return static_cast<WPARAM>(m_dice.Between(0x5000, 0x6000)); // Nobody's.
        default:
            return PickNumber();
        }
    }

    WPARAM PickNumber()
    {
        return static_cast<WPARAM>(m_dice.Percent(70) ? m_dice.Below(3) : m_dice.Below(0x7FFFFFFF));
    }

    WPARAM PickButtonStyle()
    {
        const WPARAM style = PickNumber();
        return (style & BS_TYPEMASK) == BS_AUTORADIOBUTTON ? style & ~BS_TYPEMASK : style;
    }

    LPARAM PickLParam(HWND window, UINT message)
    {
        switch (message) {
        case WM_SETCURSOR:
            return MAKELPARAM(HTCLIENT, WM_MOUSEMOVE);
        case WM_KEYDOWN:
            return 1;
        case WM_KEYUP:
            return static_cast<LPARAM>(0xC0000001);
        case WM_COMMAND:
        case WM_TIMER:
        case WM_SETTINGCHANGE:
        case WM_ACTIVATE:
        case WM_CAPTURECHANGED:
        case WM_SHOWWINDOW:
            return 0;
        case WM_SETFONT:
            return m_dice.Below(2);
        }
        if (message >= WM_USER)
            return m_dice.Percent(50) ? 0 : m_dice.Below(0x7FFFFFFF);
        RECT client = {};
        ::GetClientRect(window, &client);
        return MAKELPARAM(m_dice.Between(-10, client.right + 10),
                          m_dice.Between(-10, client.bottom + 10));
    }

    UINT PickKey()
    {
        static const UINT keys[] = {VK_SPACE, VK_TAB,  VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN,
                                    VK_HOME,  VK_NEXT, VK_BACK, 'B',      'A',   '0',
                                    VK_SHIFT, 0x00,    0xE5,    VK_RETURN};
        return m_dice.Pick(keys);
    }

    HGDIOBJ PickFont()
    {
        return m_dice.Percent(20) ? nullptr : m_fonts[m_dice.Below(fontCount)].GetSafeHandle();
    }

    /// Messages whose parameters are addresses or handles.
    void SendWithRecord(HWND window)
    {
        CClientDC dc(nullptr);
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        const HDC context = memory.GetSafeHdc();
        const HWND dialog = ::GetAncestor(window, GA_ROOT);
        switch (m_dice.Below(5)) {
        case 0: {
            Describe("WM_PRINTCLIENT", window);
            ::SendMessage(window, m_dice.Percent(50) ? WM_PRINT : WM_PRINTCLIENT,
                          reinterpret_cast<WPARAM>(context),
                          m_dice.Below(0x40) & ~PRF_CHECKVISIBLE);
            break;
        }
        case 1:
            Describe("WM_ERASEBKGND", window);
            ::SendMessage(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0);
            break;
        case 2:
            Describe("WM_CTLCOLOR", window);
            ::SendMessage(dialog, m_dice.Percent(50) ? WM_CTLCOLORSTATIC : WM_CTLCOLORBTN,
                          reinterpret_cast<WPARAM>(context), reinterpret_cast<LPARAM>(window));
            break;
        case 3: {
            Describe("WM_DRAWITEM", window);
            DRAWITEMSTRUCT item = {};
            item.CtlType = ODT_BUTTON;
            item.CtlID = ::GetDlgCtrlID(window);
            item.itemAction = ODA_DRAWENTIRE;
            item.itemState = m_dice.Below(0x1000);
            item.hwndItem = window;
            item.hDC = m_dice.Percent(90) ? context : nullptr;
            ::SetRect(&item.rcItem, 0, 0, m_dice.Between(-5, 300), m_dice.Between(-5, 300));
            ::SendMessage(dialog, WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
            break;
        }
        case 4: {
            Describe("WM_GETTEXT", window);
            TCHAR text[300];
            memset(text, '#', sizeof(text));
            ::SendMessage(window, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text));
            break;
        }
        }
    }

    void UseInput(HWND window)
    {
        Describe("input", window);
        INPUT input = {};
        switch (m_dice.Below(4)) {
        case 0:
        case 1: {
            RECT place = {};
            ::GetWindowRect(window, &place);
            ::SetCursorPos(m_dice.Between(place.left - 3, place.right + 3),
                           m_dice.Between(place.top - 3, place.bottom + 3));
            break;
        }
        case 2: {
            static const DWORD buttons[] = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP,
                                            MOUSEEVENTF_LEFTUP, MOUSEEVENTF_MIDDLEDOWN,
                                            MOUSEEVENTF_MIDDLEUP};
            input.type = INPUT_MOUSE;
            input.mi.dwFlags = m_dice.Pick(buttons);
            ::SendInput(1, &input, sizeof(input));
            break;
        }
        case 3:
            input.type = INPUT_KEYBOARD;
            input.ki.wVk = static_cast<WORD>(PickKey());
            input.ki.dwFlags = m_dice.Percent(50) ? KEYEVENTF_KEYUP : 0;
            ::SendInput(1, &input, sizeof(input));
            break;
        }
        if (m_dice.Percent(50))
            Pump();
    }

    void ChangeWindow(HWND window)
    {
        Describe("change of the window", window);
        switch (m_dice.Below(6)) {
        case 0:
            ::EnableWindow(window, m_dice.Percent(70));
            break;
        case 1:
            ::ShowWindow(window, m_dice.Percent(70) ? SW_SHOWNA : SW_HIDE);
            break;
        case 2:
            Resize(window);
            break;
        case 3:
            ::SetFocus(m_dice.Percent(90) ? window : nullptr);
            break;
        case 4:
            ChangeStyle(window);
            break;
        case 5:
            ::RedrawWindow(window, nullptr, nullptr,
                           RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN |
                               (m_dice.Percent(50) ? RDW_ERASE : 0));
            break;
        }
    }

    void Resize(HWND window)
    {
        static const int sizes[] = {0, 1, 2, 3, 9, 20, 64, 200, 640};
        const bool large = m_dice.Percent(1);
        ::SetWindowPos(window, m_dice.Percent(20) ? HWND_TOP : nullptr, m_dice.Between(-50, 500),
                       m_dice.Between(-50, 300), large ? 3000 : m_dice.Pick(sizes),
                       large ? 2000 : m_dice.Pick(sizes),
                       m_dice.Percent(80) ? SWP_NOZORDER : SWP_NOMOVE);
    }

    void ChangeStyle(HWND window)
    {
        static const DWORD any[] = {WS_TABSTOP, WS_GROUP, WS_BORDER, WS_VISIBLE, WS_CLIPSIBLINGS};
        static const DWORD button[] = {BS_LEFT, BS_FLAT, BS_PUSHLIKE, BS_MULTILINE};
        static const DWORD label[] = {SS_CENTER, SS_RIGHT, SS_NOPREFIX, SS_CENTERIMAGE, SS_SUNKEN};
        DWORD bit = m_dice.Pick(any);
        if (!IsDialog(window) && m_dice.Percent(50))
            bit = IsButton(window) ? m_dice.Pick(button) : m_dice.Pick(label);
        const LONG style = ::GetWindowLong(window, GWL_STYLE);
        ::SetWindowLong(window, GWL_STYLE, style ^ static_cast<LONG>(bit));
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    }

    static bool IsButton(HWND window)
    {
        return (::SendMessage(window, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) == 0;
    }

    void ChangeControl()
    {
        MonkeyPage* page = MonkeyPage::Live();
        if (page == nullptr)
            return;
        switch (m_dice.Below(3)) {
        case 0:
            ChangeButton(page->m_buttons[m_dice.Below(EverythingPage::buttonCount)]);
            break;
        case 1:
            ChangeLabel(page->Label(m_dice.Below(EverythingPage::labelCount)));
            break;
        case 2:
            ChangeLink(page->m_links[m_dice.Below(EverythingPage::linkCount)]);
            break;
        }
    }

    LPCTSTR PickPicture()
    {
        static const LPCTSTR names[] = {_T("Info.gif"), _T("Error.gif"), _T("InfoIcon1.gif"),
                                        _T("None.gif"), _T("")};
        static CString path;
        path = g_strImageDir + _T("\\images\\") + m_dice.Pick(names);
        return path;
    }

    void ChangeButton(HastyButton& button)
    {
        if (button.GetSafeHwnd() == nullptr)
            return;
        const int choice = m_dice.Below(10);
        Describe("setter of a button", button.m_hWnd);
        switch (choice) {
        case 0:
        case 1:
            button.SetShade(m_dice.Below(11), static_cast<BYTE>(m_dice.Below(256)),
                            static_cast<BYTE>(m_dice.Below(256)),
                            static_cast<BYTE>(m_dice.Below(256)), m_dice.Color());
            break;
        case 2:
            button.SetPicture(PickPicture(), m_dice.Below(5) * 0x100, m_dice.Between(-5, 300),
                              m_dice.Between(-5, 300), m_dice.Color());
            break;
        case 3:
            button.SetIcons(m_dice.Percent(70) ? ::CopyIcon(::LoadIcon(nullptr, IDI_WARNING))
                                               : nullptr,
                            m_dice.Below(5) * 0x100, m_dice.Below(50), m_dice.Below(50));
            break;
        case 4: {
            LOGFONT font = {};
            font.lfHeight = m_dice.Between(-40, 40);
            lstrcpy(font.lfFaceName, m_dice.Percent(50) ? _T("Arial") : _T("No such face"));
            button.SetTextFont(font);
            break;
        }
        case 5:
            button.SetBorder(m_dice.Between(-10, 100));
            break;
        case 6:
            button.SetFlat(m_dice.Percent(50));
            break;
        case 7:
            button.Set3dBorder(m_dice.Percent(50));
            break;
        case 8:
            button.SetTextColor(m_dice.Color());
            break;
        case 9:
            button.SetToolTipText(m_dice.Text().c_str(), m_dice.Text().c_str());
            if (MonkeyPage::Live() != nullptr)
                button.HurryToolTip();
            break;
        }
    }

    void ChangeLabel(CStaticTS& label)
    {
        if (label.GetSafeHwnd() == nullptr)
            return;
        Describe("setter of a label", label.m_hWnd);
        switch (m_dice.Below(10)) {
        case 0:
            label.SetLink(m_dice.Percent(50));
            break;
        case 1:
            label.SetLabelFont(static_cast<HFONT>(PickFont()));
            break;
        case 2:
            label.SetLabelTextColor(m_dice.Color());
            break;
        case 3:
            label.SetTransparentColor(m_dice.Color());
            break;
        case 4:
            label.LoadPicture(PickPicture());
            break;
        case 5:
            label.SetLinkTarget(m_dice.Text().c_str());
            break;
        case 6:
            label.SetTransparent(m_dice.Percent(50));
            break;
        case 7:
            label.SetEmbossed(m_dice.Percent(50));
            break;
        case 8:
            label.SetBackColor(m_dice.Color());
            break;
        case 9:
            label.m_bStyleAlign = m_dice.Percent(50);
            break;
        }
    }

    void ChangeLink(CHyperLink& link)
    {
        if (link.GetSafeHwnd() == nullptr)
            return;
        Describe("setter of a link", link.m_hWnd);
        switch (m_dice.Below(6)) {
        case 0:
            link.SetTextColor(m_dice.Color());
            break;
        case 1:
            link.SetTransparentColor(m_dice.Color());
            break;
        case 2:
            link.SetBitmapFile(PickPicture());
            break;
        case 3:
            link.SetToolTipText(m_dice.Text().c_str());
            break;
        case 4:
            link.SetURL(m_dice.Text().c_str());
            break;
        case 5:
            link.ApplyLinkFont();
            break;
        }
    }

    void SetText(HWND window)
    {
        Describe("WM_SETTEXT", window);
        if (!m_dice.Percent(2)) {
            ::SendMessage(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(m_dice.Text().c_str()));
            return;
        }
        // A text of 64 K is painted once and then made short again, or nothing else would happen.
        const umbra::testing::TString text(static_cast<size_t>(m_dice.Between(65534, 65538)),
                                           _T('W'));
        ::SendMessage(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
        ::UpdateWindow(window);
        ::SendMessage(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(_T("short")));
    }

    void Pump()
    {
        Describe("pump");
        if (MonkeyWindow::Live() != nullptr && m_dice.Percent(30))
            MonkeyWindow::Live()->PumpMessages();
        else
            umbra::testing::PumpMessages();
    }

    void DestroyChild(HWND window)
    {
        Describe("destruction", window);
        if (!IsDialog(window))
            ::DestroyWindow(window);
    }

    static constexpr int fontCount = 2;

    unsigned m_seed;
    Dice m_dice;
    Dice m_mischief; // Of its own: when notifications come is the system's affair.
    CFont m_fonts[fontCount];
    int m_step = 0;
    bool m_trace = getenv("UMBRA_MONKEY_TRACE") != nullptr;
    char m_context[200] = "";
};
