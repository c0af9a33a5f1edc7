#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/DialogTemplate.h"
#include "testing/ImportHook.h"
#include "testing/Text.h"

#include "tests/LibraryFiles.h"

#include <algorithm>
#include <string>
#include <vector>

using umbra::testing::DialogTemplate;

namespace {

const UINT childId = 321;

/// Writes down what happens while its window is made.
class CWitness : public CWnd
{
public:
    std::vector<std::string> events;
    LPCTSTR className = NULL;
    int createResult = 0;
    BOOL ncCreateResult = TRUE;
    BOOL allowed = TRUE;
    DWORD extraStyle = 0;
    int left = -1;
    bool makesChild = false;
    CWnd child;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        events.push_back("PreCreateWindow");
        cs.style |= static_cast<LONG>(extraStyle);
        if (left >= 0)
            cs.x = left;
        return allowed && CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override
    {
        events.push_back(m_hWnd != NULL && FromHandlePermanent(m_hWnd) == this
                             ? "PreSubclassWindow"
                             : "PreSubclassWindow without a window");
    }

protected:
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct)
    {
        events.push_back("OnNcCreate");
        return CWnd::OnNcCreate(lpCreateStruct) && ncCreateResult;
    }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        events.push_back("OnCreate");
        if (CWnd::OnCreate(lpCreateStruct) == -1)
            return -1;
        if (makesChild)
            child.Create(_T("Static"), _T("inner"), WS_CHILD, CRect(0, 0, 5, 5), this, childId);
        return createResult;
    }
    afx_msg void OnDestroy()
    {
        events.push_back("OnDestroy");
        CWnd::OnDestroy();
    }
    void PostNcDestroy() override
    {
        events.push_back(m_hWnd == NULL ? "PostNcDestroy" : "PostNcDestroy with a window");
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CWitness, CWnd)
    ON_WM_NCCREATE()
    ON_WM_CREATE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

using Events = std::vector<std::string>;

BOOL Make(CWitness& window, LPCTSTR className = NULL)
{
    return window.CreateEx(0, className, _T("Witness"), WS_POPUP, CRect(10, 20, 110, 70), NULL, 0);
}

class CWitnessDialog : public CDialog
{
public:
    std::vector<std::string> events;
    int createResult = 0;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        events.push_back("OnCreate");
        return CDialog::OnCreate(lpCreateStruct) == -1 ? -1 : createResult;
    }
    BOOL OnInitDialog() override
    {
        events.push_back("OnInitDialog");
        EndDialog(5);
        return CDialog::OnInitDialog();
    }
    void PreSubclassWindow() override { events.push_back("PreSubclassWindow"); }
    void PostNcDestroy() override { events.push_back("PostNcDestroy"); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CWitnessDialog, CDialog)
    ON_WM_CREATE()
END_MESSAGE_MAP()

/// A control that is attached when its dialog is there already.
class CLateStatic : public CStatic
{
public:
    int creations = 0;
    int subclassings = 0;

    void PreSubclassWindow() override { ++subclassings; }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        ++creations;
        return CStatic::OnCreate(lpCreateStruct);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CLateStatic, CStatic)
    ON_WM_CREATE()
END_MESSAGE_MAP()

class CThrowing : public CWnd
{
public:
    bool foreign = false;
    void PreSubclassWindow() override
    {
        if (foreign)
            throw 42;
        AfxThrowUserException();
    }
};

/// Makes a window for input methods before each window that the library makes, as the
/// system does before the first one of a thread.
class InputMethod
{
public:
    /// A class of that name, or the system's own.
    explicit InputMethod(LPCTSTR name)
    {
        className = name;
        WNDCLASS windowClass{};
        windowClass.style = CS_IME;
        windowClass.lpfnWndProc = ::DefWindowProc;
        windowClass.lpszClassName = className;
        if (!::GetClassInfo(NULL, className, &windowClass))
            ::RegisterClass(&windowClass);
        original = hook_.OriginalAs<Create>();
    }
    ~InputMethod()
    {
        ::DestroyWindow(made);
        ::UnregisterClass(className, NULL);
    }
    bool IsInstalled() const { return hook_.IsInstalled(); }
    static inline HWND made = NULL;

private:
    using Create = decltype(::CreateWindowEx);
    static inline LPCTSTR className = NULL;
    static inline Create* original = nullptr;

    static HWND WINAPI MakeBoth(DWORD exStyle, LPCTSTR name, LPCTSTR title, DWORD style, int x,
                                int y, int width, int height, HWND parent, HMENU menu,
                                HINSTANCE instance, LPVOID parameter)
    {
        made = original(0, className, _T(""), WS_POPUP, 0, 0, 5, 5, NULL, NULL, NULL, NULL);
        return original(exStyle, name, title, style, x, y, width, height, parent, menu, instance,
                        parameter);
    }
    umbra::testing::ImportHook hook_{umbra::testing::FindModule(UMBRA_MFC_DLL), "user32.dll",
                                     TEXT_FUNCTION("CreateWindowEx"), MakeBoth};
};

CString ClassOf(HWND window)
{
    TCHAR name[100] = _T("");
    ::GetClassName(window, name, _countof(name));
    return name;
}

} // namespace

TEST_CASE("a window is prepared, attached and only then gets its first message")
{
    CWitness window;
    REQUIRE(Make(window));
    CHECK(window.events ==
          Events{"PreCreateWindow", "PreSubclassWindow", "OnNcCreate", "OnCreate"});
    CHECK(CWnd::FromHandle(window.m_hWnd) == &window);
    window.events.clear();
    CHECK(window.DestroyWindow());
    CHECK(window.events == Events{"OnDestroy", "PostNcDestroy"});
    CHECK(window.m_hWnd == NULL);
    CHECK(window.DestroyWindow() == FALSE);
}

TEST_CASE("windows of the system's classes deliver WM_CREATE to their objects, too")
{
    for (LPCTSTR name : {_T("Static"), _T("Button"), _T("Edit"), _T("#32770")}) {
        CAPTURE(name);
        CWitness window;
        REQUIRE(Make(window, name));
        CHECK(window.events ==
              Events{"PreCreateWindow", "PreSubclassWindow", "OnNcCreate", "OnCreate"});
        CHECK(ClassOf(window) == name);
    }
}

TEST_CASE("Create makes a child with the id given")
{
    CWitness parent;
    REQUIRE(Make(parent));
    CWitness child;
    REQUIRE(
        child.Create(_T("Static"), _T("text"), WS_VISIBLE, CRect(1, 2, 31, 42), &parent, childId));
    CHECK((child.GetStyle() & WS_CHILD) != 0);
    CHECK(child.GetDlgCtrlID() == static_cast<int>(childId));
    CHECK(child.GetParent() == &parent);
    CRect place;
    child.GetWindowRect(&place);
    CHECK(place.Size() == CSize(30, 40));
    CHECK(parent.GetDlgItem(childId) == &child);
}

TEST_CASE("PreCreateWindow may change everything")
{
    CWitness window;
    window.extraStyle = WS_DISABLED;
    window.left = 55;
    REQUIRE(Make(window));
    CHECK((window.GetStyle() & WS_DISABLED) != 0);
    CRect place;
    window.GetWindowRect(&place);
    CHECK(place.left == 55);
}

TEST_CASE("PreCreateWindow may stop the creation")
{
    CWitness window;
    window.allowed = FALSE;
    CHECK(Make(window) == FALSE);
    CHECK(window.m_hWnd == NULL);
    CHECK(window.events == Events{"PreCreateWindow", "PostNcDestroy"});
}

TEST_CASE("without a class name a window gets the default class")
{
    CWitness window;
    REQUIRE(Make(window));
    CHECK(ClassOf(window).Left(4) == _T("Afx:"));
}

TEST_CASE("a missing window class fails the creation, and PostNcDestroy is called once")
{
    CWitness window;
    CHECK(Make(window, _T("No class of this name")) == FALSE);
    CHECK(window.m_hWnd == NULL);
    CHECK(window.events == Events{"PreCreateWindow", "PostNcDestroy"});
}

TEST_CASE("OnCreate with -1 destroys the window and fails the creation")
{
    CWitness window;
    window.createResult = -1;
    CHECK(Make(window) == FALSE);
    CHECK(window.m_hWnd == NULL);
    CHECK(std::count(window.events.begin(), window.events.end(), "PostNcDestroy") == 1);
    CHECK(window.events.back() == "PostNcDestroy");

    window.events.clear();
    window.createResult = 0;
    CHECK(Make(window));
}

TEST_CASE("OnNcCreate with FALSE fails the creation, and PostNcDestroy is called once")
{
    CWitness window;
    window.ncCreateResult = FALSE;
    CHECK(Make(window) == FALSE);
    CHECK(window.m_hWnd == NULL);
    CHECK(std::count(window.events.begin(), window.events.end(), "PostNcDestroy") == 1);
}

TEST_CASE("a window made inside OnCreate gets its own object")
{
    CWitness window;
    window.makesChild = true;
    REQUIRE(Make(window));
    CHECK(window.child.m_hWnd != NULL);
    CHECK(window.GetDlgItem(childId) == &window.child);
    CHECK(CWnd::FromHandle(window.m_hWnd) == &window);
}

TEST_CASE("after a creation no other window of the thread is attached by mistake")
{
    CWitness window;
    REQUIRE(Make(window));
    const HWND stranger =
        ::CreateWindow(_T("Static"), _T(""), WS_POPUP, 0, 0, 5, 5, NULL, NULL, NULL, NULL);
    CHECK(CWnd::FromHandlePermanent(stranger) == NULL);
    ::DestroyWindow(stranger);

    CWitness failed;
    CHECK(Make(failed, _T("No class of this name")) == FALSE);
    const HWND second =
        ::CreateWindow(_T("Static"), _T(""), WS_POPUP, 0, 0, 5, 5, NULL, NULL, NULL, NULL);
    CHECK(CWnd::FromHandlePermanent(second) == NULL);
    ::DestroyWindow(second);
}

TEST_CASE("an exception in PreSubclassWindow fails the creation")
{
    CThrowing window;
    for (const bool foreign : {false, true}) {
        CAPTURE(foreign);
        window.foreign = foreign;
        CHECK(window.CreateEx(0, _T("Static"), _T(""), WS_POPUP, CRect(0, 0, 9, 9), NULL, 0) ==
              FALSE);
        CHECK(window.m_hWnd == NULL);
    }
    CWitness other; // The next creation is not disturbed.
    CHECK(Make(other));
}

TEST_CASE("a window for input methods that comes first is left alone, whatever its class is called")
{
    for (const LPCTSTR className : {_T("IME"), _T("Method of input")}) {
        CAPTURE(className);
        const InputMethod method(className);
        REQUIRE(method.IsInstalled());
        CWitness window;
        REQUIRE(Make(window));
        CHECK(::IsWindow(method.made));
        CHECK(CWnd::FromHandlePermanent(method.made) == NULL);
        CHECK(window.m_hWnd != NULL);
        CHECK(window.events ==
              Events{"PreCreateWindow", "PreSubclassWindow", "OnNcCreate", "OnCreate"});
    }
}

TEST_CASE("a dialog sees its own WM_CREATE, modeless and modal")
{
    DialogTemplate page(5, 5, 60, 40);
    CWitnessDialog modeless;
    REQUIRE(modeless.CreateIndirect(page.Get()));
    CHECK(modeless.events == Events{"PreSubclassWindow", "OnCreate", "OnInitDialog"});
    modeless.DestroyWindow();

    CWitnessDialog modal;
    modal.InitModalIndirect(page.Get());
    CHECK(modal.DoModal() == 5);
    CHECK(modal.events == Events{"PreSubclassWindow", "OnCreate", "OnInitDialog", "PostNcDestroy"});
}

TEST_CASE("a dialog whose OnCreate fails is not made")
{
    DialogTemplate page(5, 5, 60, 40);
    CWitnessDialog dialog;
    dialog.createResult = -1;
    CHECK(dialog.CreateIndirect(page.Get()) == FALSE);
    CHECK(dialog.m_hWnd == NULL);
    CHECK(dialog.events == Events{"PreSubclassWindow", "OnCreate", "PostNcDestroy"});

    dialog.InitModalIndirect(page.Get());
    CHECK(dialog.DoModal() == -1);
}

TEST_CASE("a control of a template sees no WM_CREATE through an object attached later")
{
    DialogTemplate page(5, 5, 60, 40);
    page.Label(childId, _T("late"), 5, 5, 30, 10);
    CDialog dialog;
    REQUIRE(dialog.CreateIndirect(page.Get()));
    CLateStatic label;
    REQUIRE(label.SubclassDlgItem(childId, &dialog));
    CHECK(label.creations == 0);
    CHECK(label.subclassings == 1);
    CHECK(dialog.GetDlgItem(childId) == &label);
    dialog.DestroyWindow();
    CHECK(label.m_hWnd == NULL);
}
