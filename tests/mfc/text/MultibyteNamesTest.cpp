// Built with _MBCS, and with <tchar.h> before the class library, as programs may have it.
#ifndef _MBCS
#error This file is about programs that define _MBCS.
#endif
#include <tchar.h>

#include <afxtempl.h>
#include <afxwin.h>

#include <doctest/doctest.h>

#include <mbctype.h>

namespace {

/// Lets the text functions read code page 932, in which a character may end with a backslash.
struct JapaneseText
{
    JapaneseText() : before(_getmbcp()) { _setmbcp(932); }
    ~JapaneseText() { _setmbcp(before); }
    int before;
};

} // namespace

TEST_CASE("a program that defines _MBCS compares and searches texts by the generic names")
{
    CHECK(_tcscmp(_T("abc"), _T("abd")) < 0);
    CHECK(_tcsicmp(_T("ABC"), _T("abc")) == 0);
    CHECK(_tcsncmp(_T("abc"), _T("abd"), 2) == 0);
    CHECK(_tcsnicmp(_T("ABx"), _T("aby"), 2) == 0);
    CHECK(_tcsncicmp(_T("ABx"), _T("aby"), 2) == 0);
    CHECK(_tcscoll(_T("a"), _T("b")) < 0);
    CHECK(_tcsclen(_T("four")) == 4);
    CHECK(_tcscspn(_T("abc,d"), _T(",")) == 3);
    CHECK(_tcsspn(_T("aab"), _T("a")) == 2);

    const TCHAR* const constant = _T("a.b.c");
    const TCHAR* const found = _tcschr(constant, '.');
    CHECK(found == constant + 1);
    CHECK(_tcsrchr(constant, '.') == constant + 3);
    CHECK(_tcsstr(constant, _T("b.")) == constant + 2);
    CHECK(_tcspbrk(constant, _T("cb")) == constant + 2);
    CHECK(_tcsinc(constant) == constant + 1);
    CHECK(_tcsdec(constant, constant + 2) == constant + 1);
}

TEST_CASE("a program that defines _MBCS changes texts by the generic names")
{
    TCHAR text[20] = _T("Some,Text");
    TCHAR* const comma = _tcschr(text, ','); // Not constant when the text is not.
    REQUIRE(comma == text + 4);
    CHECK(_tcstok(text, _T(",")) == text);
    CHECK(_tcscmp(_tcsupr(text), _T("SOME")) == 0);
    CHECK(_tcscmp(_tcslwr(text), _T("some")) == 0);
    CHECK(_tcscmp(_tcsrev(text), _T("emos")) == 0);
    _tcsncpy(text, _T("abcdef"), 3);
    text[3] = 0;
    _tcsncat(text, _T("xyz"), 2);
    CHECK(_tcscmp(text, _T("abcxy")) == 0);
    CHECK(_tcsncpy_s(text, _countof(text), _T("lmnop"), 2) == 0);
    CHECK(_tcscmp(text, _T("lm")) == 0);
    CHECK(_tcscmp(_tcsset(text, '-'), _T("--")) == 0);
}

TEST_CASE("characters of two bytes are one character to the generic names")
{
    JapaneseText japanese;
    const char text[] = "\x83\x5C\\a"; // The second byte of the first character is a backslash's.
    CHECK(_tcschr(text, '\\') == text + 2);
    CHECK(_tcsclen(text) == 3);
    CHECK(_tcslen(text) == 4);
    CHECK(_tcsinc(text) == text + 2);
    CHECK(_tclen(text) == 2);
    CHECK(_tcsnextc(text) == 0x835Cu);
    CHECK(_istlead(static_cast<unsigned char>(text[0])) != 0);
}

TEST_CASE("the class library serves a program that defines _MBCS")
{
    CString text(_T("one,two"));
    CHECK(text.Find(_T("two")) == 4);
    CHECK(text.CompareNoCase(_T("ONE,TWO")) == 0);
    CMap<CString, LPCTSTR, int, int> map;
    map[_T("key")] = 7;
    int value = 0;
    CHECK(map.Lookup(_T("key"), value));
    CHECK(value == 7);
}
