#include <afxwin.h>
#include <afxtempl.h>

#include <doctest/doctest.h>

#include "testing/MessageBoxAnswer.h"

#include "tests/mfc/objects/DebuggerText.h"

namespace {

/// What a file context gets.
template <class Action>
CString Dumped(Action action)
{
    CMemFile file;
    CDumpContext dc(&file);
    action(dc);
    dc.Flush();
    CString text;
    const UINT bytes = static_cast<UINT>(file.GetLength());
    file.SeekToBegin();
    file.Read(text.GetBufferSetLength(static_cast<int>(bytes / sizeof(TCHAR))), bytes);
    return text;
}

template <class Value>
CString Written(const Value& value)
{
    return Dumped([&](CDumpContext& dc) { dc << value; });
}

CString AddressOf(const void* object)
{
    return Written(object);
}

/// As programs have them.
class CBook : public CObject
{
    DECLARE_DYNAMIC(CBook)

public:
    CString m_strTitle;
    int m_nPages = 0;
    mutable int m_nChecks = 0;

    virtual void AssertValid() const
    {
        CObject::AssertValid();
        ++m_nChecks;
        ASSERT(m_nPages >= 0);
    }
    virtual void Dump(CDumpContext& dc) const
    {
        CObject::Dump(dc);
        dc << "title: " << m_strTitle << ", pages: " << m_nPages << "\n";
    }
};
IMPLEMENT_DYNAMIC(CBook, CObject)

class CBookDialog : public CDialog
{
public:
#ifdef _DEBUG
    virtual void AssertValid() const
    {
        CDialog::AssertValid();
    }
    virtual void Dump(CDumpContext& dc) const
    {
        CDialog::Dump(dc);
        dc << "a dialog of books\n";
    }
#endif
};

} // namespace

TEST_CASE("a dump context writes values as a person reads them")
{
    CHECK(Written(_T("text")) == "text");
    CHECK(Written("narrow") == "narrow");
    CHECK(Written(L"wide") == "wide");
    CHECK(Written(CString(_T("string"))) == "string");
    CHECK(Written(CStringW(L"wide string")) == "wide string");
    CHECK(Written(static_cast<BYTE>(200)) == "200");
    CHECK(Written(static_cast<WORD>(60000)) == "60000");
    CHECK(Written(-7) == "-7");
    CHECK(Written(7u) == "7");
    CHECK(Written(-70000L) == "-70000");
    CHECK(Written(4000000000ul) == "4000000000");
    CHECK(Written(-5000000000ll) == "-5000000000");
    CHECK(Written(18000000000000000000ull) == "18000000000000000000");
    CHECK(Written(1.5) == "1.5");
    CHECK(Written(0.25f) == "0.25");
    CHECK(Written(CSize(3, 4)) == "(3 x 4)");
    CHECK(Written(CPoint(3, -4)) == "(3, -4)");
    CHECK(Written(CRect(1, 2, 3, 4)) == "(L 1, T 2, R 3, B 4)");
    CHECK(Written(CTime(2004, 5, 6, 7, 8, 9)) == "CTime(\"2004-05-06 07:08:09\")");
    CHECK(Written(CTimeSpan(1, 2, 3, 4)) == "CTimeSpan(1 days, 2 hours, 3 minutes, 4 seconds)");
}

TEST_CASE("pointers and handles are written with all their digits")
{
    const CString address = AddressOf(reinterpret_cast<void*>(0x1AB));
    CHECK(address.GetLength() == 1 + 2 * static_cast<int>(sizeof(void*)));
    CHECK(address[0] == '$');
    CHECK(address.Right(4) == "01AB");
    CHECK(Written(reinterpret_cast<HWND>(0x1AB)) == address);
    CHECK(Written(reinterpret_cast<HDC>(0x1AB)) == address);
    CHECK(Written(reinterpret_cast<HMENU>(0x1AB)) == address);
    CHECK(Written(reinterpret_cast<HACCEL>(0x1AB)) == address);
    CHECK(Written(reinterpret_cast<HFONT>(0x1AB)) == address);
}

TEST_CASE("numbers are written in hexadecimal, too, and blocks of bytes in lines")
{
    CHECK(Dumped([](CDumpContext& dc) { dc.DumpAsHex(static_cast<BYTE>(10)); }) == "0x0A");
    CHECK(Dumped([](CDumpContext& dc) { dc.DumpAsHex(static_cast<WORD>(10)); }) == "0x000A");
    CHECK(Dumped([](CDumpContext& dc) { dc.DumpAsHex(255).DumpAsHex(255u); }) == "0xFF0xFF");
    CHECK(Dumped([](CDumpContext& dc) { dc.DumpAsHex(16L).DumpAsHex(17ul); }) == "0x100x11");
    CHECK(Dumped([](CDumpContext& dc) { dc.DumpAsHex(1ll << 40); }) == "0x10000000000");
    CHECK(Dumped([](CDumpContext& dc) { dc.DumpAsHex(1ull << 63); }) == "0x8000000000000000");
    BYTE bytes[] = {0, 1, 0xAB, 0xCD, 0xEF};
    CHECK(Dumped([&](CDumpContext& dc) { dc.HexDump(_T(">"), bytes, 5, 2); }) ==
          "> 00 01\n> AB CD\n> EF\n");
    CHECK(Dumped([&](CDumpContext& dc) { dc.HexDump(_T(">"), bytes, 0, 2); }) == "");
}

TEST_CASE("an object writes itself, and NULL is no trouble")
{
    CBook book;
    book.m_strTitle = _T("Stories");
    book.m_nPages = 12;
    const CString expected =
        _T("a CBook at ") + AddressOf(&book) + _T("\ntitle: Stories, pages: 12\n");
    CHECK(Dumped([&](CDumpContext& dc) { dc << book; }) == expected);
    CHECK(Dumped([&](CDumpContext& dc) { dc << static_cast<const CObject*>(&book); }) == expected);
    CHECK(Dumped([](CDumpContext& dc) { dc << static_cast<CObject*>(NULL); }) == "NULL");
    CHECK(Dumped([](CDumpContext& dc) { dc << static_cast<LPCSTR>(NULL); }) == "(NULL)");
    CHECK(Dumped([](CDumpContext& dc) { dc << static_cast<LPCWSTR>(NULL); }) == "(NULL)");
}

TEST_CASE("afxDump and AfxDump write to the debugger")
{
    CBook book;
    book.m_strTitle = _T("Shown");
    const std::string text = SentToDebugger([&] {
        afxDump << "before ";
        AfxDump(&book);
    });
    CHECK(text.find("before a CBook at ") == 0);
    CHECK(text.find("title: Shown, pages: 0\n") != std::string::npos);
}

TEST_CASE("collections write their elements when the depth is above 0")
{
    CBook book;
    CObList books;
    books.AddTail(&book);
    CStringArray texts;
    texts.Add(_T("one"));
    texts.Add(_T("two"));
    CMapStringToString map;
    map[_T("key")] = _T("value");
    CArray<int> numbers;
    numbers.Add(5);
    const auto dumpAll = [&](CDumpContext& dc) { dc << books << texts << map << numbers; };

    const CString shallow = Dumped(dumpAll);
    CHECK(shallow.Find(_T("a CObList at ") + AddressOf(&books) + _T("\nwith 1 elements\n")) == 0);
    CHECK(shallow.Find(_T("with 2 elements\n")) > 0);
    CHECK(shallow.Find(_T("CBook")) == -1);
    CHECK(shallow.Find(_T("two")) == -1);
    CHECK(shallow.Find(_T("value")) == -1);

    const CString deep = Dumped([&](CDumpContext& dc) {
        dc.SetDepth(1);
        CHECK(dc.GetDepth() == 1);
        dumpAll(dc);
    });
    CHECK(deep.Find(_T("a CBook at ") + AddressOf(&book)) > 0);
    CHECK(deep.Find(_T("[0] = one\n\t[1] = two\n")) > 0);
    CHECK(deep.Find(_T("[key] = value\n")) > 0);
}

TEST_CASE("objects of the library write their handles")
{
    CWnd window;
    window.CreateEx(0, _T("Static"), _T("Caption"), WS_POPUP, 1, 2, 30, 40, NULL, NULL);
    const CString text = Written(static_cast<const CObject*>(&window));
    CHECK(text.Find(_T("a CWnd at ")) == 0);
    CHECK(text.Find(Written(window.m_hWnd) + _T(" \"Caption\" at (L 1, T 2, R 31, B 42)\n")) > 0);
    CClientDC dc(&window);
    CHECK(Written(static_cast<const CObject*>(&dc)).Find(Written(dc.m_hDC)) > 0);
    CBrush brush(RGB(1, 2, 3));
    CHECK(Written(static_cast<const CObject*>(&brush)).Find(AddressOf(brush.m_hObject)) > 0);
    CMenu menu;
    menu.CreateMenu();
    CHECK(Written(static_cast<const CObject*>(&menu)).Find(Written(menu.m_hMenu)) > 0);
    CFile file;
    file.SetFilePath(_T("name.txt"));
    CHECK(Written(static_cast<const CObject*>(&file)).Find(_T("name \"name.txt\"")) > 0);
    CHECK(Written(static_cast<const CObject*>(AfxGetApp())).Find(AfxGetAppName()) > 0);

    window.AssertValid();
    dc.AssertValid();
    brush.AssertValid();
    menu.AssertValid();
    file.AssertValid();
    const CBookDialog dialog;
    dialog.AssertValid();
#ifdef _DEBUG
    CHECK(Written(static_cast<const CObject*>(&dialog)).Find(_T("a dialog of books\n")) > 0);
#endif
}

TEST_CASE("ASSERT_VALID lets an object look at itself, in a debug build")
{
    CBook book;
    AfxAssertValidObject(&book, "file.cpp", 5);
    CHECK(book.m_nChecks == 1);
    ASSERT_VALID(&book);
#ifdef _DEBUG
    CHECK(book.m_nChecks == 2);
    book.m_nPages = -1;
    const umbra::testing::MessageBoxAnswer ignore(IDIGNORE);
    ASSERT_VALID(&book);
    CHECK(ignore.HasAnswered());
    CHECK(ignore.Text().find(_T("Assertion failed in ")) == 0);
    CHECK(ignore.Text().find(_T("CDumpContextTest.cpp")) != umbra::testing::TString::npos);
#else
    CHECK(book.m_nChecks == 1);
#endif
}

TEST_CASE("a pointer to no object is a failed assertion where it is used")
{
    const auto complaintAbout = [](const CObject* object) {
        const umbra::testing::MessageBoxAnswer ignore(IDIGNORE);
        AfxAssertValidObject(object, "file.cpp", 5);
        CHECK(ignore.HasAnswered());
        return ignore.Text();
    };
    const umbra::testing::TString expected = _T("Assertion failed in file.cpp, line 5.");
    CHECK(complaintAbout(NULL).find(expected) == 0);
    CHECK(complaintAbout(reinterpret_cast<CObject*>(0x40)).find(expected) == 0);
    void* noObject[] = {reinterpret_cast<void*>(0x40)}; // Its functions would be nowhere.
    CHECK(complaintAbout(reinterpret_cast<CObject*>(noObject)).find(expected) == 0);
}
