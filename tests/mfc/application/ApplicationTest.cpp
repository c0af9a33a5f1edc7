#include <afxwin.h>

#include <doctest/doctest.h>

TEST_CASE("a window class is named after its arguments and registered once")
{
    const HCURSOR arrow = ::LoadCursor(NULL, IDC_ARROW);
    const CString first = AfxRegisterWndClass(CS_DBLCLKS, arrow);
    CHECK(first.Left(4) == "Afx:");
    CHECK(first == AfxRegisterWndClass(CS_DBLCLKS, arrow));
    const CString other = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(NULL, IDC_CROSS));
    CHECK(first != other);
    WNDCLASS found;
    REQUIRE(::GetClassInfo(AfxGetInstanceHandle(), first, &found));
    CHECK(found.style == CS_DBLCLKS);
    CHECK(found.hCursor == arrow);
}

TEST_CASE("registering a class twice succeeds")
{
    WNDCLASS windowClass{};
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.lpszClassName = _T("UmbraTwice");
    CHECK(AfxRegisterClass(&windowClass));
    CHECK(AfxRegisterClass(&windowClass));
    ::UnregisterClass(_T("UmbraTwice"), AfxGetInstanceHandle());
    windowClass.lpszClassName = _T("");
    CHECK_FALSE(AfxRegisterClass(&windowClass));
}

TEST_CASE("OLE can be started again and again")
{
    CHECK(AfxOleInit());
    CHECK(AfxOleInit());
}

TEST_CASE("addresses and strings are told from nonsense")
{
    int value = 1;
    CHECK(AfxIsValidAddress(&value, sizeof(value)));
    CHECK_FALSE(AfxIsValidAddress(nullptr, 1));
    CHECK_FALSE(AfxIsValidAddress(reinterpret_cast<void*>(16), 4));
    CHECK(AfxIsValidString("text"));
    CHECK_FALSE(AfxIsValidString(nullptr));
    CHECK_FALSE(AfxIsValidString(reinterpret_cast<LPCSTR>(16)));
}
