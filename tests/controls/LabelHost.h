// A window over which labels are drawn, with what tests of labels need around it.
#pragma once

#include "tests/Folders.h"

#include "testing/Picture.h"
#include "testing/Pump.h"
#include "testing/Text.h"

#include <afxwin.h>

#include <psapi.h>

#include <string>

/// A visible window filled with one colour.
class LabelHost : public CWnd
{
public:
    explicit LabelHost(COLORREF background = RGB(20, 160, 60))
    {
        m_brush.CreateSolidBrush(background);
        CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), m_brush),
                 _T(""), WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 40, 40, 500, 400, nullptr,
                 nullptr);
        m_font.CreateFont(-13, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET, 0, 0, 0, 0,
                          _T("Arial"));
        UpdateWindow();
    }
    ~LabelHost() override { DestroyWindow(); }

    /// A plain static control with the host's font, to be subclassed by a label.
    HWND AddStatic(const CRect& place, LPCTSTR text, DWORD style = SS_NOTIFY, int id = 100)
    {
        const HWND window =
            ::CreateWindow(_T("Static"), text, WS_CHILD | WS_VISIBLE | style, place.left, place.top,
                           place.Width(), place.Height(), m_hWnd,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
        ::SendMessage(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.GetSafeHandle()), FALSE);
        return window;
    }

    /// What the screen shows of the host's client area, everything painted.
    umbra::testing::Picture Show()
    {
        RedrawWindow(nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        umbra::testing::PumpMessages();
        return umbra::testing::Picture::OfWindow(m_hWnd);
    }

    CFont m_font;

private:
    CBrush m_brush;
};

/// Bytes of memory that the process has in use.
inline SIZE_T WorkingSet()
{
    PROCESS_MEMORY_COUNTERS counters = {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
    return counters.WorkingSetSize;
}

/// Sets the default value of a class in the registry; removes the class at its end.
class RegisteredClass
{
public:
    RegisteredClass(LPCTSTR key, const umbra::testing::TString& value) : m_root(key)
    {
        m_root = m_root.substr(0, m_root.find('\\'));
        HKEY opened;
        if (::RegCreateKeyEx(HKEY_CLASSES_ROOT, key, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                             &opened, nullptr) != ERROR_SUCCESS)
            return;
        ::RegSetValueEx(opened, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                        static_cast<DWORD>((value.size() + 1) * sizeof(TCHAR)));
        ::RegCloseKey(opened);
    }
    ~RegisteredClass() { ::SHDeleteKey(HKEY_CLASSES_ROOT, m_root.c_str()); }
    RegisteredClass(const RegisteredClass&) = delete;
    RegisteredClass& operator=(const RegisteredClass&) = delete;

private:
    umbra::testing::TString m_root;
};
