#include <atlstr.h>

#include <doctest/doctest.h>

#include <string>

namespace {

std::wstring WidenedByMacro(LPCSTR text)
{
    USES_CONVERSION;
    return A2W(text);
}

std::string NarrowedByMacro(LPCWSTR text)
{
    USES_CONVERSION;
    return W2A(text);
}

} // namespace

TEST_CASE("the classes convert both ways and keep the result while they live")
{
    const CA2W wide("text");
    CHECK(std::wstring(wide) == L"text");
    const CW2A narrow(L"text");
    CHECK(std::string(narrow) == "text");
    CHECK(std::wstring(CT2W(_T("text"))) == L"text");
    CHECK(CString(CW2T(L"text")) == _T("text"));
    CHECK(std::wstring(CT2CW(_T("text"))) == L"text");
    CHECK(std::wstring(CA2CW("text")) == L"text");
    CHECK(std::string(CW2CA(L"text")) == "text");
    CHECK(CString(CW2CT(L"text")) == _T("text"));
    CHECK(std::wstring(CT2OLE(_T("text"))) == L"text");
    CHECK(CString(COLE2T(L"text")) == _T("text"));
}

TEST_CASE("text of any length converts")
{
    for (const size_t length : {size_t{0}, size_t{1}, size_t{126}, size_t{127}, size_t{128},
                                size_t{129}, size_t{100000}}) {
        CAPTURE(length);
        const std::string narrow(length, 'x');
        const std::wstring wide(length, L'x');
        CHECK(std::wstring(CA2W(narrow.c_str())) == wide);
        CHECK(std::string(CW2A(wide.c_str())) == narrow);
        CHECK(std::string(CA2A(narrow.c_str())) == narrow);
        CHECK(std::string(CT2A(CString(narrow.c_str()))) == narrow);
        CHECK(std::wstring(CW2W(wide.c_str())) == wide);
        CHECK(std::wstring(CA2WEX<4>(narrow.c_str())) == wide);
        CHECK(WidenedByMacro(narrow.c_str()) == wide);
        CHECK(NarrowedByMacro(wide.c_str()) == narrow);
    }
}

TEST_CASE("NULL converts to NULL")
{
    USES_CONVERSION;
    const LPCSTR narrow = NULL;
    const LPCWSTR wide = NULL;
    CHECK(static_cast<LPWSTR>(CA2W(narrow)) == NULL);
    CHECK(static_cast<LPSTR>(CW2A(wide)) == NULL);
    CHECK(static_cast<LPSTR>(CA2A(narrow)) == NULL);
    CHECK(static_cast<LPCSTR>(CT2CA(static_cast<LPCTSTR>(NULL))) == NULL);
    CHECK(A2W(narrow) == NULL);
    CHECK(W2A(wide) == NULL);
    CHECK(T2A(static_cast<LPCTSTR>(NULL)) == NULL);
    CHECK(A2BSTR(narrow) == NULL);
    CHECK(W2BSTR(wide) == NULL);
}

TEST_CASE("the code page of a conversion may be given")
{
    CHECK(std::wstring(CA2W("\xC3\xA4", CP_UTF8)) == L"\xE4");
    CHECK(std::string(CW2A(L"\xE4", CP_UTF8)) == "\xC3\xA4");
    CHECK(std::wstring(CA2W("\x83\x41", 932)) == L"\x30A2");
}

TEST_CASE("a string takes what a conversion holds, of its own kind and of the other")
{
    CHECK(CString{CW2A(L"wide")} == _T("wide"));
    CHECK(CString{CA2W("narrow")} == _T("narrow"));
    CHECK(CStringA{CA2W("narrow")} == "narrow");
    CHECK(CStringW{CW2A(L"wide")} == L"wide");
    CString text;
    text = CW2A(L"wide");
    text += CA2W("narrow");
    CHECK(text == _T("widenarrow"));
    text = CA2W("narrow");
    text += CW2A(L"wide");
    CHECK(text == _T("narrowwide"));
}

TEST_CASE("strings that a program derives keep their whole text when the other kind takes them")
{
    struct NarrowText : CStringA
    {
        NarrowText() : CStringA("two\0halves", 10) {}
    };
    struct WideText : CStringW
    {
        WideText() : CStringW(L"two\0halves", 10) {}
    };
    CHECK(CStringW{NarrowText()}.GetLength() == 10);
    CHECK(CStringA{WideText()}.GetLength() == 10);
}

TEST_CASE("copies are the program's to change, constant results are the text itself")
{
    const char text[] = "text";
    CA2A copy(text);
    CHECK(copy.m_psz != text);
    copy.m_psz[0] = 'T';
    CHECK(std::string(copy) == "Text");
    CHECK(std::string(text) == "text");
    const wchar_t wide[] = L"wide";
    CHECK(static_cast<LPCWSTR>(CW2CW(wide)) == wide);
    // What need not be converted is the text itself.
    const TCHAR own[] = _T("own");
#ifdef _UNICODE
    CHECK(static_cast<LPCTSTR>(CW2CT(own)) == own);
    CHECK(static_cast<LPCWSTR>(CT2CW(own)) == own);
    CHECK(T2W(own) == own);
#else
    CHECK(static_cast<LPCTSTR>(CA2CT(own)) == own);
    CHECK(static_cast<LPCSTR>(CT2CA(own)) == own);
    CHECK(T2A(own) == own);
#endif
}

TEST_CASE("results of the macros live until the function returns")
{
    USES_CONVERSION;
    const LPCWSTR first = A2W("first");
    const LPCSTR second = W2A(L"second");
    for (int i = 0; i < 1000; ++i)
        (void)A2W("more");
    CHECK(std::wstring(first) == L"first");
    CHECK(std::string(second) == "second");
    CHECK(std::wstring(T2W(_T("t"))) == L"t");
    CHECK(CString(W2T(L"t")) == "t");
    CHECK(std::string(T2CA(_T("t"))) == "t");
    CHECK(CString(A2CT("t")) == "t");
    CHECK(std::wstring(T2COLE(_T("t"))) == L"t");
    CHECK(CString(OLE2CT(L"t")) == "t");
    CHECK(CString(T2A(_T("t"))) + A2T("u") == "tu");
}

TEST_CASE("text becomes strings of the system")
{
    BSTR string = A2BSTR("text");
    CHECK(::SysStringLen(string) == 4);
    CHECK(std::wstring(string) == L"text");
    ::SysFreeString(string);
    string = OLE2BSTR(L"wide");
    CHECK(std::wstring(string) == L"wide");
    ::SysFreeString(string);
}

TEST_CASE("a string takes converted text, and formats it")
{
    CString text = CString(CW2T(L"wide"));
    text.Format(_T("%hs and %ls"), CW2A(L"narrow"), CA2W("wide"));
    CHECK(text == "narrow and wide");
}
