#include <afx.h>

#include <doctest/doctest.h>

#include "tests/mfc/text/CStringTest.h"
#include "tests/mfc/LittleMemory.h"
#include "tests/mfc/Throws.h"

#include <mbctype.h>
#include <tchar.h>

#include <algorithm>
#include <string>
#include <thread>
#include <vector>

namespace {

/// Japanese text, as long as it lives: the second byte of a character may look like a letter, a
/// backslash or a bracket.
class JapaneseText
{
public:
    JapaneseText() : former_(_getmbcp()) { available = _setmbcp(932) == 0; }
    ~JapaneseText() { _setmbcp(former_); }
    bool available = false;

private:
    int former_;
};

constexpr char hyou[] = "\x95\x5C";        // Ends in a backslash.
constexpr char katakanaA[] = "\x83\x41";   // Ends in A.
constexpr char katakanaChi[] = "\x83\x61"; // Ends in a.

bool ThrowsInvalidArg(auto action)
{
    return Throws<CInvalidArgException>(action);
}

struct ConvertsToText
{
    operator LPCTSTR() const { return _T("converted"); }
};

} // namespace

TEST_CASE("a string is one pointer, so that it may pass through the C library's functions")
{
    CHECK(sizeof(CString) == sizeof(LPCTSTR));
}

TEST_CASE("strings are made from many kinds of source")
{
    CHECK(CString().IsEmpty());
    CHECK(CString(NULL).IsEmpty());
    CHECK(CString(nullptr).IsEmpty());
    CHECK(CString(static_cast<LPCWSTR>(NULL)).IsEmpty());
    CHECK(CString("narrow") == "narrow");
    CHECK(CString(L"wide") == "wide");
    CHECK(CString(reinterpret_cast<const unsigned char*>("bytes")) == "bytes");
    CHECK(CString('c') == "c");
    CHECK(CString('c', 3) == "ccc");
    CHECK(CString('c', 0).IsEmpty());
    CHECK(CString('c', -1).IsEmpty());
    CHECK(CString(L'w', 2) == "ww");
    CHECK(CString("abcdef", 3) == "abc");
    CHECK(CString(L"abcdef", 3) == "abc");
    CHECK(CString("a\0b", 3).GetLength() == 3);
    CHECK(ThrowsInvalidArg([] { CString("abc", -1); }));

    VARIANT number;
    VariantInit(&number);
    number.vt = VT_I4;
    number.lVal = 42;
    CHECK(CString(number) == "42");
    CString assigned = "before";
    assigned = number;
    CHECK(assigned == "42");
}

TEST_CASE("a resource id makes a string of the resources")
{
    CHECK(CString(MAKEINTRESOURCE(STRING_PLAIN)) == "text of the program");
    CHECK(CString(MAKEINTRESOURCEW(STRING_PLAIN)) == "text of the program");
    CHECK(CString(MAKEINTRESOURCE(STRING_MISSING)).IsEmpty());

    CString text = "before";
    CHECK_FALSE(text.LoadString(STRING_MISSING));
    CHECK(text == "before");
    CHECK(text.LoadString(STRING_PLAIN));
    CHECK(text == "text of the program");
    CHECK(text.LoadString(::GetModuleHandle(NULL), STRING_FORMAT));
    CHECK(text == "%s has %d parts");
    CHECK(text.LoadString(::GetModuleHandle(NULL), STRING_PLAIN,
                          MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN)));
    CHECK(text == "Text des Programms");
    CHECK_FALSE(text.LoadString(::GetModuleHandle(_T("kernel32.dll")), STRING_PLAIN));
}

TEST_CASE("copies share their characters until one of them changes")
{
    const CString first("some text");
    CString second(first);
    CString third;
    third = second;
    CHECK(first.GetString() == second.GetString());
    CHECK(first.GetString() == third.GetString());

    second += '!';
    CHECK(first == "some text");
    CHECK(third == "some text");
    CHECK(second == "some text!");

    third.SetAt(0, 'S');
    CHECK(first == "some text");
    CHECK(third == "Some text");
    CHECK(first.Mid(0).GetString() == first.GetString());
}

TEST_CASE("a change of a shared string leaves every other one alone")
{
    const CString original(" aXbXc ");
    const auto changed = [&](auto change) {
        CString copy(original);
        change(copy);
        return original == " aXbXc " ? copy : CString("the original has changed");
    };
    CHECK(changed([](CString& s) { s.MakeUpper(); }) == " AXBXC ");
    CHECK(changed([](CString& s) { s.MakeLower(); }) == " axbxc ");
    CHECK(changed([](CString& s) { s.MakeReverse(); }) == " cXbXa ");
    CHECK(changed([](CString& s) { s.Trim(); }) == "aXbXc");
    CHECK(changed([](CString& s) { s.Replace('X', '-'); }) == " a-b-c ");
    CHECK(changed([](CString& s) { s.Remove('X'); }) == " abc ");
    CHECK(changed([](CString& s) { s.Delete(0, 3); }) == "bXc ");
    CHECK(changed([](CString& s) { s.Insert(1, _T("--")); }) == _T(" --aXbXc "));
    CHECK(changed([](CString& s) { s.Truncate(2); }) == " a");
    CHECK(changed([](CString& s) { s.Empty(); }) == "");
    CHECK(changed([](CString& s) { *s.GetBuffer() = '_'; }) == "_aXbXc ");
    CHECK(changed([](CString& s) { s.ReleaseBuffer(3); }) == " aX");
    CHECK(changed([](CString& s) { s.Format(_T("%d"), 1); }) == _T("1"));
}

TEST_CASE("a string may be changed by a part of itself")
{
    CString text = "abcdef";
    text = text.GetString() + 2;
    CHECK(text == "cdef");
    text += text;
    CHECK(text == "cdefcdef");
    text.Append(text.GetString() + 6);
    CHECK(text == "cdefcdefef");
    text.Format(_T("<%s|%s>"), text.GetString(), text);
    CHECK(text == "<cdefcdefef|cdefcdefef>");
    text = text;
    CHECK(text.GetLength() == 23);
    text.Insert(0, text.GetString() + 20);
    CHECK(text == "ef><cdefcdefef|cdefcdefef>");
    CString many = "ab";
    for (int i = 0; i < 10; ++i)
        many += many;
    CHECK(many.GetLength() == 2048);
    CHECK(many.Right(4) == "abab");
}

TEST_CASE("single characters are read up to the terminator and written up to the last one")
{
    CString text("abc");
    CHECK(text.GetAt(0) == 'a');
    CHECK(text[2] == 'c');
    CHECK(text.GetAt(3) == '\0');
    CHECK(CString().GetAt(0) == '\0');
    CHECK(ThrowsInvalidArg([&] { text.GetAt(4); }));
    CHECK(ThrowsInvalidArg([&] { text.GetAt(-1); }));
    text.SetAt(1, 'X');
    CHECK(text == "aXc");
    CHECK(ThrowsInvalidArg([&] { text.SetAt(3, 'X'); }));
    CHECK(ThrowsInvalidArg([&] { text.SetAt(-1, 'X'); }));
}

TEST_CASE("a buffer has the asked length, is the string's own and ends at the terminator")
{
    CString text("abc");
    const CString copy(text);
    LPTSTR buffer = text.GetBuffer(100);
    CHECK(buffer != copy.GetString());
    CHECK(text.GetAllocLength() >= 100);
    CHECK(_tcscmp(buffer, _T("abc")) == 0);
    std::fill_n(buffer, 100, _T('x'));
    buffer[5] = '\0';
    text.ReleaseBuffer();
    CHECK(text == "xxxxx");
    CHECK(text.GetLength() == 5);
    CHECK(copy == "abc");

    _tcscpy(text.GetBuffer(20), _T("twelve chars"));
    text.ReleaseBuffer(6);
    CHECK(text == "twelve");
    CHECK(ThrowsInvalidArg([&] { text.GetBuffer(-1); }));
    CHECK(ThrowsInvalidArg([&] { text.ReleaseBuffer(text.GetAllocLength() + 1); }));

    std::fill_n(text.GetBufferSetLength(4), 4, _T('z'));
    CHECK(text == "zzzz");
    text.GetBuffer(10)[2] = '\0';
    text.ReleaseBufferSetLength(4);
    CHECK(text.GetLength() == 4);

    CString empty;
    empty.GetBuffer(0);
    empty.ReleaseBuffer();
    CHECK(empty.IsEmpty());
}

TEST_CASE("a buffer that is full has no terminator to find, and ends at its capacity")
{
    CString text;
    LPTSTR buffer = text.GetBuffer(8);
    std::fill_n(buffer, text.GetAllocLength(), _T('x'));
    text.ReleaseBuffer();
    CHECK(text.GetLength() == text.GetAllocLength());
    CHECK(text[text.GetLength()] == '\0');
}

TEST_CASE("a locked buffer is not shared and stays with its string")
{
    CString text("locked");
    LPTSTR buffer = text.LockBuffer();
    CString copy(text);
    CHECK(copy.GetString() != buffer);
    CHECK(copy == "locked");
    buffer[0] = 'b';
    CHECK(text == "bocked");
    CHECK(copy == "locked");
    text = copy;
    CHECK(text.GetString() == buffer);
    CHECK(text == "locked");
    text.Empty();
    CHECK(text.GetString() == buffer);
    text.UnlockBuffer();
    text = copy;
    CHECK(text.GetString() == copy.GetString());

    CString grown;
    grown.LockBuffer();
    grown += "0123456789";
    grown += grown.GetString() + 5;
    CHECK(grown == "012345678956789");
    CHECK(CString(grown).GetString() != grown.GetString());
}

TEST_CASE("room may be taken ahead and given back")
{
    CString text("abc");
    text.Preallocate(1000);
    CHECK(text.GetAllocLength() >= 1000);
    const LPCTSTR before = text;
    for (int i = 0; i < 900; ++i)
        text += 'x';
    CHECK(text.GetString() == before);
    text.Truncate(3);
    text.FreeExtra();
    CHECK(text.GetAllocLength() == 3);
    CHECK(text == "abc");
    text.Truncate(10);
    CHECK(text == "abc");
    CHECK(ThrowsInvalidArg([&] { text.Truncate(-1); }));
}

TEST_CASE("appending takes text, characters and counts")
{
    CString text;
    text.Append("abc");
    text.Append(_T("defgh"), 2);
    text.Append(_T("x"), 100);
    text.Append(CString("-"));
    text.AppendChar('!');
    text += "n";
    text += L"w";
    text += 'c';
    text += L'W';
    text += static_cast<BYTE>('b');
    text += CString("s");
    CHECK(text == "abcdex-!nwcWbs");
    text += static_cast<LPCTSTR>(NULL);
    CHECK(text == "abcdex-!nwcWbs");
    CHECK(ThrowsInvalidArg([&] { text.Append(_T("abc"), -1); }));
}

TEST_CASE("strings are joined with strings, text and characters on both sides")
{
    const CString s("s");
    CHECK(s + s == "ss");
    CHECK(s + "t" == "st");
    CHECK("t" + s == "ts");
    CHECK(s + 'c' == "sc");
    CHECK('c' + s == "cs");
    CHECK(s + L'w' == "sw");
    CHECK(L'w' + s == "ws");
    CHECK(s + L"wide" == "swide");
    CHECK(s + static_cast<LPCTSTR>(NULL) == "s");
    CHECK("a" + s + "b" + s + 'c' == "asbsc");
    CHECK(s == "s");
}

TEST_CASE("comparisons go by characters, with every type on both sides")
{
    const CString a("a");
    const CString b("b");
    CHECK(a == "a");
    CHECK("a" == a);
    CHECK(a == CString("a"));
    CHECK(a == 'a');
    CHECK('a' == a);
    CHECK(a == L"a");
    CHECK(L"a" == a);
    CHECK(a != b);
    CHECK(a != "b");
    CHECK("b" != a);
    CHECK(a != 'b');
    CHECK('b' != a);
    CHECK(a != L"b");
    CHECK(L"b" != a);
    CHECK(a < b);
    CHECK(a < "b");
    CHECK("a" < b);
    CHECK(b > a);
    CHECK(b > "a");
    CHECK("b" > a);
    CHECK(a <= b);
    CHECK(a <= "a");
    CHECK("a" <= b);
    CHECK(b >= a);
    CHECK(b >= "b");
    CHECK("b" >= a);
    CHECK_FALSE(a == "A");
    CHECK_FALSE(a == "ab");
    CHECK(CString() == "");
    CHECK(CString() == static_cast<LPCTSTR>(NULL));

    CHECK(a.Compare(_T("b")) < 0);
    CHECK(b.Compare(_T("a")) > 0);
    CHECK(CString(_T("\xE9")).Compare(_T("z")) > 0);
    CHECK(CString(_T("TeXt")).CompareNoCase(_T("tExT")) == 0);
    CHECK(CString(_T("a")).CompareNoCase(_T("B")) < 0);
    CHECK(CString(_T("text")).Collate(_T("text")) == 0);
    CHECK(CString(_T("a")).Collate(_T("b")) < 0);
    CHECK(CString(_T("TEXT")).CollateNoCase(_T("text")) == 0);
    CHECK(ThrowsInvalidArg([&] { a.Compare(NULL); }));
}

TEST_CASE("parts of a string are cut where it ends")
{
    const CString text("0123456789");
    CHECK(text.Left(3) == "012");
    CHECK(text.Left(100) == text);
    CHECK(text.Left(0) == "");
    CHECK(text.Left(-1) == "");
    CHECK(text.Right(3) == "789");
    CHECK(text.Right(100) == text);
    CHECK(text.Right(-1) == "");
    CHECK(text.Mid(7) == "789");
    CHECK(text.Mid(10) == "");
    CHECK(text.Mid(11) == "");
    CHECK(text.Mid(-5) == text);
    CHECK(text.Mid(2, 3) == "234");
    CHECK(text.Mid(8, 100) == "89");
    CHECK(text.Mid(8, INT_MAX) == "89");
    CHECK(text.Mid(2, -1) == "");
    CHECK(text.Mid(-2, 3) == "012");
    CHECK(text.Mid(INT_MAX, INT_MAX) == "");
}

TEST_CASE("searching finds text, characters and sets")
{
    const CString text("abcabc");
    CHECK(text.Find('b') == 1);
    CHECK(text.Find('b', 2) == 4);
    CHECK(text.Find('x') == -1);
    CHECK(text.Find(_T("ca")) == 2);
    CHECK(text.Find(_T("abc"), 1) == 3);
    CHECK(text.Find(_T("abcabcabc")) == -1);
    CHECK(text.Find(_T("a"), 6) == -1);
    CHECK(text.Find(_T("a"), 7) == -1);
    CHECK(text.Find(_T("a"), -1) == -1);
    CHECK(text.Find('a', INT_MAX) == -1);
    CHECK(text.Find(_T(""), 2) == 2);
    CHECK(text.ReverseFind('b') == 4);
    CHECK(text.ReverseFind('x') == -1);
    CHECK(text.FindOneOf(_T("xcb")) == 1);
    CHECK(text.FindOneOf(_T("xyz")) == -1);
    CHECK(text.FindOneOf(_T("")) == -1);
    CHECK(text.SpanIncluding(_T("ba")) == _T("ab"));
    CHECK(text.SpanIncluding(_T("x")) == _T(""));
    CHECK(text.SpanIncluding(_T("abc")) == text);
    CHECK(text.SpanExcluding(_T("c")) == _T("ab"));
    CHECK(text.SpanExcluding(_T("x")) == text);
    CHECK(text.SpanExcluding(_T("a")) == _T(""));
}

TEST_CASE("tokens come one by one, and -1 tells that there are no more")
{
    const CString text("%First Second#Third");
    int position = 0;
    std::vector<CString> tokens;
    for (CString token = text.Tokenize(_T("% #"), position); position != -1;
         token = text.Tokenize(_T("% #"), position))
        tokens.emplace_back(token);
    CHECK(tokens == std::vector<CString>{_T("First"), _T("Second"), _T("Third")});

    position = -1;
    CHECK(text.Tokenize(_T("#"), position) == _T(""));
    CHECK(position == -1);
    position = 0;
    CHECK(CString(_T("###")).Tokenize(_T("#"), position) == _T(""));
    CHECK(position == -1);
    position = 0;
    CHECK(text.Tokenize(_T(""), position) == text);
    CHECK(text.Tokenize(_T(""), position) == _T(""));
    CHECK(position == -1);
}

TEST_CASE("ends are trimmed of white space, of a character or of a set")
{
    CHECK(CString(" \t\r\n text \v\f").Trim() == "text");
    CHECK(CString("  text  ").TrimLeft() == "text  ");
    CHECK(CString("  text  ").TrimRight() == "  text");
    CHECK(CString("   ").Trim() == "");
    CHECK(CString().Trim() == "");
    CHECK(CString("xxtextxx").Trim('x') == "text");
    CHECK(CString("xxtext").TrimLeft('x') == "text");
    CHECK(CString("textxx").TrimRight('x') == "text");
    CHECK(CString(_T("xyxtextyx")).Trim(_T("xy")) == _T("text"));
    CHECK(CString(_T("text")).Trim(_T("")) == _T("text"));
    CHECK(CString(_T("text")).Trim(static_cast<LPCTSTR>(NULL)) == _T("text"));
}

TEST_CASE("replacing, removing, inserting and deleting tell what they did")
{
    CString text("a.b.c");
    CHECK(text.Replace('.', '-') == 2);
    CHECK(text == "a-b-c");
    CHECK(text.Replace('x', 'y') == 0);
    CHECK(text.Replace(_T("-"), _T("<->")) == 2);
    CHECK(text == "a<->b<->c");
    CHECK(text.Replace(_T("<->"), _T("")) == 2);
    CHECK(text == "abc");
    CHECK(text.Replace(_T(""), _T("x")) == 0);
    CHECK(text.Replace(_T("b"), NULL) == 1);
    CHECK(text == "ac");
    CHECK(CString(_T("aaa")).Replace(_T("aa"), _T("b")) == 1);

    text = "banana";
    CHECK(text.Remove('a') == 3);
    CHECK(text == "bnn");
    CHECK(text.Remove('x') == 0);

    CHECK(text.Insert(1, 'a') == 4);
    CHECK(text.Insert(3, _T("a")) == 5);
    CHECK(text == "banan");
    CHECK(text.Insert(-1, _T("<")) == 6);
    CHECK(text.Insert(100, _T(">")) == 7);
    CHECK(text == "<banan>");
    CHECK(text.Insert(3, static_cast<LPCTSTR>(NULL)) == 7);

    CHECK(text.Delete(0) == 6);
    CHECK(text.Delete(5, 100) == 5);
    CHECK(text == "banan");
    CHECK(text.Delete(5) == 5);
    CHECK(text.Delete(2, 0) == 5);
    CHECK(text.Delete(2, -1) == 5);
    CHECK(text.Delete(INT_MAX, INT_MAX) == 5);
    CHECK(text.Delete(1, 3) == 2);
    CHECK(text == "bn");
}

TEST_CASE("characters of two bytes are never cut in half")
{
    JapaneseText japanese;
    REQUIRE_MESSAGE(japanese.available, "this system has no Japanese code page");

    const CStringA text = CStringA(hyou) + "\\" + katakanaA + "A";
    CHECK(text.Find('\\') == 2);
    CHECK(text.Find("A") == 5);
    CHECK(CStringA(katakanaA).Find('A') == -1);
    CHECK(CStringA(katakanaA).Find("A") == -1);
    CHECK(text.ReverseFind('\\') == 2);
    CHECK(CStringA(hyou).ReverseFind('\\') == -1);
    CHECK(text.Find(katakanaA) == 3);
    CHECK(CStringA(hyou).FindOneOf("\\") == -1);
    CHECK(text.FindOneOf(katakanaA) == 3);
    CHECK(text.SpanExcluding("\\") == hyou);
    CHECK(text.SpanIncluding("\x83\x5C\\") == "");

    CHECK(CStringA(hyou).TrimRight('\\') == hyou);
    CHECK((CStringA(hyou) + "\\\\").TrimRight('\\') == hyou);
    CHECK((CStringA(" ") + hyou + " ").Trim() == hyou);
    CHECK(CStringA(katakanaA).TrimRight("A") == katakanaA);

    CHECK(CStringA(katakanaChi).MakeUpper() == katakanaChi);
    CHECK((CStringA(katakanaChi) + "a").MakeUpper() == CStringA(katakanaChi) + "A");
    CHECK(CStringA(katakanaA).MakeLower() == katakanaA);
    CHECK(CStringA("\x82\x81").MakeUpper() == "\x82\x60"); // The letter A of full width.
    CHECK((CStringA("ab") + hyou + katakanaA).MakeReverse() == CStringA(katakanaA) + hyou + "ba");

    CStringA changed = text;
    CHECK(changed.Replace('\\', '/') == 1);
    CHECK(changed == CStringA(hyou) + "/" + katakanaA + "A");
    changed = text;
    CHECK(changed.Remove('A') == 1);
    CHECK(changed == CStringA(hyou) + "\\" + katakanaA);
    changed = CStringA(katakanaA) + "A";
    CHECK(changed.Replace("A", "BB") == 1);
    CHECK(changed == CStringA(katakanaA) + "BB");

    int position = 0;
    CHECK(text.Tokenize("\\", position) == hyou);
    CHECK(text.Tokenize("\\", position) == CStringA(katakanaA) + "A");
    text.Tokenize("\\", position);
    CHECK(position == -1);
    position = 0; // A delimiter of two bytes is left behind whole.
    const CStringA three = CStringA("one") + katakanaA + "two" + hyou + katakanaA + "three";
    const CStringA delimiters = CStringA(hyou) + katakanaA;
    CHECK(three.Tokenize(delimiters, position) == "one");
    CHECK(position == 5);
    CHECK(three.Tokenize(delimiters, position) == "two");
    CHECK(position == 10);
    CHECK(three.Tokenize(delimiters, position) == "three");
    three.Tokenize(delimiters, position);
    CHECK(position == -1);
    CHECK(CStringA("A").CompareNoCase("a") == 0);
    CHECK(CStringA(katakanaA).CompareNoCase(katakanaChi) != 0);
}

TEST_CASE("a string for which memory does not suffice throws the library's exception and stays")
{
    constexpr int much = static_cast<int>(LittleMemory::bigBlock);
    const CString big('x', much);
    const std::wstring wide(much, L'w');
    CString text("before");
    CString changed = big;
    const auto lacksMemory = [](auto action) { return Throws<CMemoryException>(action); };
    const LittleMemory memory;
    REQUIRE(memory.IsInstalled());
    CHECK(lacksMemory([&] { text = wide.c_str(); }));
    CHECK(lacksMemory([&] { CString made(wide.c_str(), much); }));
    CHECK(lacksMemory([&] { CString made(L'w', much); }));
    CHECK(lacksMemory([&] { text = CString('c', much); }));
    CHECK(lacksMemory([&] { text += big; }));
    CHECK(lacksMemory([&] { text.Replace(_T("before"), big); }));
    CHECK(lacksMemory([&] { text.Insert(3, big); }));
    CHECK(lacksMemory([&] { text.Format(_T("%s"), big); }));
    CHECK(lacksMemory([&] { changed.Replace(_T("x"), _T("yy")); }));
    CHECK(lacksMemory([&] { changed.Remove('z'); }));
    CHECK(text == "before");
    CHECK(changed == big);
}

TEST_CASE("letters beyond ASCII change their case as the system's code page says")
{
    if (::GetACP() != 1252) {
        MESSAGE("not checked: the code page is not 1252");
        return;
    }
    CHECK(CStringA("\xE9t\xE9").MakeUpper() == "\xC9T\xC9");
    CHECK(CStringA("\xC9T\xC9").MakeLower() == "\xE9t\xE9");
    CHECK(CStringA(L"\x20AC") == "\x80");
    CHECK(CStringA("\x80") == L"\x20AC");
}

TEST_CASE("formats take strings as arguments, whole and by their characters")
{
    const CString name("name");
    CString text;
    text.Format(_T("%s=%d"), name, 42);
    CHECK(text == "name=42");
    text.Format(_T("%s=%s"), name.GetString(), _T("value"));
    CHECK(text == "name=value");
    text.Format(_T("%s %s %s"), name, name + _T("!"), ConvertsToText());
    CHECK(text == "name name! converted");
    text.Format(_T("%-6s|%6s|%.2s"), name, name, name);
    CHECK(text == "name  |  name|na");
    const CStringT<CString::YCHAR, StrTraitMFC_DLL<CString::YCHAR>> other("other");
    text.Format(_T("%S, %hs and %ls"), other, "narrow", L"wide");
    CHECK(text == "other, narrow and wide");
    text.Format(_T("%S, %hs and %ls"), other, CStringA("narrow"), CStringW("wide"));
    CHECK(text == "other, narrow and wide");
    text.Format(_T("%I64d %lld %08X %.3f %c%%"), 1LL << 40, -1LL, 0xBEEFu, 1.5, 'c');
    CHECK(text == "1099511627776 -1 0000BEEF 1.500 c%");
    text.Format(_T("plain"));
    CHECK(text == "plain");
    text.Format(_T("%s"), _T(""));
    CHECK(text == "");
    text.Format(_T("%2000d"), 1);
    CHECK(text.GetLength() == 2000);
    text.Format(STRING_FORMAT, name, 3);
    CHECK(text == "name has 3 parts");
    CHECK(Throws<CResourceException>([&] { text.Format(STRING_MISSING, 1); }));
    CHECK(ThrowsInvalidArg([&] { text.Format(static_cast<LPCTSTR>(NULL)); }));

    text = "a";
    text.AppendFormat(_T("%s%d"), name, 1);
    text.AppendFormat(STRING_FORMAT, CString("-b"), 2);
    CHECK(text == "aname1-b has 2 parts");

    text.FormatMessage(_T("%2 and %1, %3!d! times"), name, CString(_T("more")), 7);
    CHECK(text == "more and name, 7 times");
    text.FormatMessage(STRING_MESSAGE, _T("one"), name);
    CHECK(text == "name before one");
}

TEST_CASE("a variable of the environment is read whole")
{
    const CString longValue('v', 3000);
    REQUIRE(::SetEnvironmentVariable(_T("UMBRA_TEST_VARIABLE"), longValue));
    CString text("before");
    CHECK(text.GetEnvironmentVariable(_T("UMBRA_TEST_VARIABLE")));
    CHECK(text == longValue);
    ::SetEnvironmentVariable(_T("UMBRA_TEST_VARIABLE"), NULL);
    CHECK_FALSE(text.GetEnvironmentVariable(_T("UMBRA_TEST_VARIABLE")));
    CHECK(text.IsEmpty());
}

TEST_CASE("strings become wide strings of the system")
{
    const CString text("abc");
    BSTR wide = text.AllocSysString();
    CHECK(::SysStringLen(wide) == 3);
    CHECK(wcscmp(wide, L"abc") == 0);
    CHECK(CString("longer text").SetSysString(&wide) == wide);
    CHECK(wcscmp(wide, L"longer text") == 0);
    ::SysFreeString(wide);
}

TEST_CASE("characters of the OEM code page go there and back")
{
    CStringA text("\xE4");
    text.AnsiToOem();
    char expected[2] = "";
    ::CharToOemA("\xE4", expected);
    CHECK(text == expected);
    text.OemToAnsi();
    char back[2] = "";
    ::OemToCharA(expected, back);
    CHECK(text == back);

    const CStringA original(" aXbXc ");
    CStringA copy(original);
    copy.AnsiToOem();
    CHECK(original == " aXbXc ");
}

TEST_CASE("static helpers copy and measure characters")
{
    TCHAR buffer[] = _T("0123456789");
    CString::CopyChars(buffer, _T("abc"), 3);
    CHECK(CString(buffer) == "abc3456789");
    CString::CopyCharsOverlapped(buffer + 1, buffer, 3);
    CHECK(CString(buffer) == "aabc456789");
    CHECK(ThrowsInvalidArg([&] { CString::CopyChars(buffer, 2, _T("abc"), 3); }));
    CHECK(CString::StringLength(_T("four")) == 4);
    CHECK(CString::StringLength(NULL) == 0);
}

TEST_CASE("a string shared by threads is counted without loss")
{
    const CString shared("shared by many");
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&shared] {
            for (int round = 0; round < 20000; ++round) {
                CString copy(shared);
                CString other;
                other = copy;
                other += 'x';
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    CHECK(shared == "shared by many");
    CString last(shared);
    CHECK(last.GetString() == shared.GetString());
}

TEST_CASE("narrow and wide strings become each other in both flavours")
{
    const CStringA narrow("text");
    const CStringW wide = narrow;
    CHECK(wide == L"text");
    CHECK(CStringA(wide) == narrow);

    CStringW changed(L"before");
    changed = narrow;
    changed += CStringA(" and ");
    changed += "more";
    changed += '!';
    CHECK(changed == L"text and more!");
    CHECK(changed == "text and more!");
    CStringA back("before");
    back = changed;
    back += L"?";
    CHECK(back == "text and more!?");

    CStringW format;
    format.Format(L"%s %S %hs", wide, narrow, narrow);
    CHECK(format == L"text text text");
    back.Format("%s %S %ls", narrow, wide, wide);
    CHECK(back == "text text text");
    CHECK(format.LoadString(STRING_PLAIN));
    CHECK(format == L"text of the program");
    CHECK(back.LoadString(STRING_PLAIN));
    CHECK(back == "text of the program");
    CHECK(CStringW(CStringA("a\0b", 3)).GetLength() == 3);
}

TEST_CASE("wide text of four scripts is kept, cut and joined whole")
{
    const CStringW japanese(L"\u65E5\u672C\u8A9E");
    const CStringW polish(L"za\u017C\u00F3\u0142\u0107");
    const CStringW arabic(L"\u0645\u0631\u062D\u0628\u0627");
    const CStringW emoji(L"\U0001F600\U0001F408");
    CHECK(emoji.GetLength() == 4);
    const CStringW all = japanese + L" " + polish + L" " + arabic + L" " + emoji;
    CHECK(all.Find(polish) == 4);
    CHECK(all.Find(emoji) == all.GetLength() - 4);
    CHECK(all.Right(4) == emoji);
    CHECK(CStringW(polish).MakeUpper() == L"ZA\u017B\u00D3\u0141\u0106");
    CHECK(CStringW(polish).MakeUpper().MakeLower() == polish);

    // The halves of a pair stay together.
    CHECK(CStringW(emoji).MakeReverse() == L"\U0001F408\U0001F600");
    CHECK(CStringW(L"\U0001F600x\U0001F600").Trim(L"\U0001F600") == L"x");
    CHECK(CStringW(L"\U0001F601x").TrimLeft(L"\U0001F600") == L"\U0001F601x");
    CHECK(emoji.FindOneOf(L"\U0001F408") == 2);
    CHECK(emoji.SpanExcluding(L"\U0001F408") == L"\U0001F600");
    int position = 0;
    CHECK(CStringW(L"a\U0001F600b").Tokenize(L"\U0001F600", position) == L"a");
    CHECK(position == 3);
    CHECK((CStringW(L"\u3000") + japanese + L"\u3000").Trim() == japanese);

    BSTR system = all.AllocSysString();
    CHECK(all == system);
    ::SysFreeString(system);
    CStringW formatted;
    formatted.Format(L"%s|%s", emoji, static_cast<LPCWSTR>(arabic));
    CHECK(formatted == emoji + L"|" + arabic);
    formatted.FormatMessage(L"%2 %1", polish, japanese);
    CHECK(formatted == japanese + L" " + polish);
}
