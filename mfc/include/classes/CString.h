// A narrow string that copies cheaply: copies share one reference-counted buffer until one of them
// changes. Text is in the ANSI code page; the functions that look at characters respect the
// multibyte code page of the C library.
//
// A CString is one pointer to its characters, and all instances use the functions of the library,
// so that strings may pass between programs and DLLs. Failed allocation throws CMemoryException;
// an index outside the string throws CInvalidArgException.
#pragma once

#include <classes/Platform.h>

class CString;

namespace afxint {

template <class T>
using EnableIfCharacter =
    std::enable_if_t<std::is_same_v<T, char> || std::is_same_v<T, wchar_t>, int>;

template <class T>
using EnableIfCharacterOrByte = std::enable_if_t<
    std::is_same_v<T, char> || std::is_same_v<T, wchar_t> || std::is_same_v<T, unsigned char>, int>;

/// Characters of text that is converted, or taken over from unsigned bytes.
template <class T>
using EnableIfForeign =
    std::enable_if_t<std::is_same_v<T, wchar_t> || std::is_same_v<T, unsigned char>, int>;

template <class T>
using EnableIfVariant = std::enable_if_t<std::is_same_v<T, VARIANT>, int>;

} // namespace afxint

class AFX_EXPORTED CString
{
public:
    using XCHAR = char;
    using PXSTR = LPSTR;
    using PCXSTR = LPCSTR;
    using YCHAR = wchar_t;
    using PYSTR = LPWSTR;
    using PCYSTR = LPCWSTR;

    CString();
    CString(const CString& strSrc);
    /// NULL gives an empty string; a MAKEINTRESOURCE value loads the string resource of that id.
    CString(PCXSTR pszSrc);
    CString(PCXSTR pch, int nLength);
    CString(PCYSTR pch, int nLength);
    // Most other forms are templates, so that NULL means a narrow string without ambiguity.
    template <class Char, afxint::EnableIfForeign<Char> = 0>
    CString(const Char* pszSrc) : CString()
    {
        Assign(pszSrc);
    }
    template <class Char, afxint::EnableIfCharacter<Char> = 0>
    explicit CString(Char ch, int nLength = 1) : CString()
    {
        Assign(ch, nLength);
    }
    template <class Variant, afxint::EnableIfVariant<Variant> = 0>
    CString(const Variant& varSrc) : CString()
    {
        Assign(varSrc);
    }
    ~CString();

    CString& operator=(const CString& strSrc);
    CString& operator=(PCXSTR pszSrc);
    template <class Char, afxint::EnableIfForeign<Char> = 0>
    CString& operator=(const Char* pszSrc)
    {
        return Assign(pszSrc);
    }
    template <class Char, afxint::EnableIfCharacter<Char> = 0>
    CString& operator=(Char ch)
    {
        return Assign(ch, 1);
    }
    template <class Variant, afxint::EnableIfVariant<Variant> = 0>
    CString& operator=(const Variant& var)
    {
        return Assign(var);
    }

    CString& operator+=(const CString& str);
    CString& operator+=(PCXSTR pszSrc);
    template <class Char, afxint::EnableIfForeign<Char> = 0>
    CString& operator+=(const Char* pszSrc)
    {
        return *this += CString(pszSrc);
    }
    template <class Char, afxint::EnableIfCharacterOrByte<Char> = 0>
    CString& operator+=(Char ch)
    {
        if constexpr (std::is_same_v<Char, wchar_t>)
            return *this += CString(ch);
        AppendChar(static_cast<char>(ch));
        return *this;
    }
    template <class Variant, afxint::EnableIfVariant<Variant> = 0>
    CString& operator+=(const Variant& var)
    {
        return *this += CString(var);
    }

    int GetLength() const;
    bool IsEmpty() const;
    void Empty();
    /// GetAt(GetLength()) is the terminator.
    XCHAR GetAt(int iChar) const;
    XCHAR operator[](int iChar) const;
    void SetAt(int iChar, XCHAR ch);
    /// Valid until the string changes next.
    PCXSTR GetString() const;
    operator PCXSTR() const;
    void SetString(PCXSTR pszSrc);
    void SetString(PCXSTR pszSrc, int nLength);
    void Append(PCXSTR pszSrc);
    void Append(PCXSTR pszSrc, int nLength);
    void Append(const CString& strSrc);
    void AppendChar(XCHAR ch);

    /// A writable buffer of this string alone, of at least the given number of characters.
    PXSTR GetBuffer(int nMinBufferLength);
    PXSTR GetBuffer();
    PXSTR GetBufferSetLength(int nLength);
    /// Ends the use of the buffer; -1 takes the length up to the terminator.
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength);
    /// As GetBuffer, and copies do not share the buffer until UnlockBuffer.
    PXSTR LockBuffer();
    void UnlockBuffer();
    int GetAllocLength() const;
    void Preallocate(int nLength);
    void FreeExtra();
    void Truncate(int nNewLength);

    int Compare(PCXSTR psz) const;
    int CompareNoCase(PCXSTR psz) const;
    int Collate(PCXSTR psz) const;
    int CollateNoCase(PCXSTR psz) const;

    CString Mid(int iFirst) const;
    CString Mid(int iFirst, int nCount) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;
    CString SpanIncluding(PCXSTR pszCharSet) const;
    CString SpanExcluding(PCXSTR pszCharSet) const;
    /// The next token from iStart on; iStart moves past it, or becomes -1 when there is none.
    CString Tokenize(PCXSTR pszTokens, int& iStart) const;

    /// Positions are in bytes; -1 means not found.
    int Find(PCXSTR pszSub, int iStart = 0) const;
    int Find(XCHAR ch, int iStart = 0) const;
    int ReverseFind(XCHAR ch) const;
    int FindOneOf(PCXSTR pszCharSet) const;

    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    CString& Trim();
    CString& Trim(XCHAR chTarget);
    CString& Trim(PCXSTR pszTargets);
    CString& TrimLeft();
    CString& TrimLeft(XCHAR chTarget);
    CString& TrimLeft(PCXSTR pszTargets);
    CString& TrimRight();
    CString& TrimRight(XCHAR chTarget);
    CString& TrimRight(PCXSTR pszTargets);

    /// Both return the number of replaced instances.
    int Replace(XCHAR chOld, XCHAR chNew);
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    /// The number of characters removed.
    int Remove(XCHAR chRemove);
    /// These return the new length.
    int Insert(int iIndex, XCHAR ch);
    int Insert(int iIndex, PCXSTR psz);
    int Delete(int iIndex, int nCount = 1);

    /// printf-style; a CString argument counts as its characters, and so does any object that
    /// converts to them. The forms with an id load the format from the resources.
    template <class... Args>
    void Format(PCXSTR pszFormat, Args... args);
    template <class... Args>
    void Format(UINT nFormatID, Args... args);
    template <class... Args>
    void AppendFormat(PCXSTR pszFormat, Args... args);
    template <class... Args>
    void AppendFormat(UINT nFormatID, Args... args);
    void FormatV(PCXSTR pszFormat, va_list args);

    /// Like Format, with the numbered inserts (%1, %2!d!) of the system's message texts.
    template <class... Args>
    void FormatMessage(PCXSTR pszFormat, Args... args);
    template <class... Args>
    void FormatMessage(UINT nFormatID, Args... args);
    void FormatMessageV(PCXSTR pszFormat, va_list* pArgList);

    /// Looks the string up along the resource chain. On failure the string stays as it was.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);
    /// FALSE and an empty string when there is no such variable.
    BOOL GetEnvironmentVariable(PCXSTR pszVar);

    /// The caller frees the result with SysFreeString.
    BSTR AllocSysString() const;
    BSTR SetSysString(BSTR* pbstr) const;
    void AnsiToOem();
    void OemToAnsi();

    static void CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars);
    static void CopyChars(XCHAR* pchDest, size_t nDestLen, const XCHAR* pchSrc, int nChars);
    static void CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc, int nChars);
    static int StringLength(PCXSTR psz);

private:
    // What the templates above end in; arguments for "..." are plain by then.
    CString& Assign(PCYSTR text);
    CString& Assign(const unsigned char* text);
    CString& Assign(char ch, int count);
    CString& Assign(wchar_t ch, int count);
    CString& Assign(const VARIANT& variant);
    void AFX_CDECL FormatPlain(PCXSTR format, ...);
    void AFX_CDECL FormatPlain(UINT formatId, ...);
    void AFX_CDECL AppendPlain(PCXSTR format, ...);
    void AFX_CDECL AppendPlain(UINT formatId, ...);
    void AFX_CDECL MessagePlain(PCXSTR format, ...);
    void AFX_CDECL MessagePlain(UINT formatId, ...);

    PXSTR data_; ///< The characters; the bookkeeping of the buffer stands before them.
};

using CStringA = CString;

AFX_EXPORTED CString operator+(const CString& str1, const CString& str2);
AFX_EXPORTED CString operator+(const CString& str1, LPCSTR psz2);
AFX_EXPORTED CString operator+(LPCSTR psz1, const CString& str2);

AFX_EXPORTED bool operator==(const CString& str1, const CString& str2);
AFX_EXPORTED bool operator==(const CString& str1, LPCSTR psz2);
AFX_EXPORTED bool operator==(LPCSTR psz1, const CString& str2);
AFX_EXPORTED bool operator!=(const CString& str1, const CString& str2);
AFX_EXPORTED bool operator!=(const CString& str1, LPCSTR psz2);
AFX_EXPORTED bool operator!=(LPCSTR psz1, const CString& str2);
AFX_EXPORTED bool operator<(const CString& str1, const CString& str2);
AFX_EXPORTED bool operator<(const CString& str1, LPCSTR psz2);
AFX_EXPORTED bool operator<(LPCSTR psz1, const CString& str2);
AFX_EXPORTED bool operator>(const CString& str1, const CString& str2);
AFX_EXPORTED bool operator>(const CString& str1, LPCSTR psz2);
AFX_EXPORTED bool operator>(LPCSTR psz1, const CString& str2);
AFX_EXPORTED bool operator<=(const CString& str1, const CString& str2);
AFX_EXPORTED bool operator<=(const CString& str1, LPCSTR psz2);
AFX_EXPORTED bool operator<=(LPCSTR psz1, const CString& str2);
AFX_EXPORTED bool operator>=(const CString& str1, const CString& str2);
AFX_EXPORTED bool operator>=(const CString& str1, LPCSTR psz2);
AFX_EXPORTED bool operator>=(LPCSTR psz1, const CString& str2);

namespace afxint {

/// What stands for an argument in a "..." of the library: its characters for strings and for
/// objects that convert to them, else the argument itself.
template <class T>
auto PlainArgument(const T& argument)
{
    if constexpr (std::is_base_of_v<CString, T>) {
        return argument.GetString();
    } else if constexpr (!std::is_class_v<T>) {
        return argument;
    } else if constexpr (std::is_convertible_v<const T&, LPCSTR>) {
        return static_cast<LPCSTR>(argument);
    } else {
        static_assert(std::is_convertible_v<const T&, LPCWSTR>,
                      "an object that is no string cannot be formatted");
        return static_cast<LPCWSTR>(argument);
    }
}

} // namespace afxint

// With single characters, narrow or wide, and with wide text.
template <class Char, afxint::EnableIfCharacter<Char> = 0>
CString operator+(const CString& str1, Char ch2)
{
    return str1 + CString(ch2);
}
template <class Char, afxint::EnableIfCharacter<Char> = 0>
CString operator+(Char ch1, const CString& str2)
{
    return CString(ch1) + str2;
}
template <class Char, afxint::EnableIfCharacter<Char> = 0>
bool operator==(const CString& str1, Char ch2)
{
    return str1 == CString(ch2);
}
template <class Char, afxint::EnableIfCharacter<Char> = 0>
bool operator==(Char ch1, const CString& str2)
{
    return CString(ch1) == str2;
}
template <class Char, afxint::EnableIfCharacter<Char> = 0>
bool operator!=(const CString& str1, Char ch2)
{
    return !(str1 == CString(ch2));
}
template <class Char, afxint::EnableIfCharacter<Char> = 0>
bool operator!=(Char ch1, const CString& str2)
{
    return !(CString(ch1) == str2);
}
template <class Char, afxint::EnableIfForeign<Char> = 0>
bool operator==(const CString& str1, const Char* psz2)
{
    return str1 == CString(psz2);
}
template <class Char, afxint::EnableIfForeign<Char> = 0>
bool operator==(const Char* psz1, const CString& str2)
{
    return CString(psz1) == str2;
}
template <class Char, afxint::EnableIfForeign<Char> = 0>
bool operator!=(const CString& str1, const Char* psz2)
{
    return !(str1 == CString(psz2));
}
template <class Char, afxint::EnableIfForeign<Char> = 0>
bool operator!=(const Char* psz1, const CString& str2)
{
    return !(CString(psz1) == str2);
}

template <class... Args>
void CString::Format(PCXSTR pszFormat, Args... args)
{
    FormatPlain(pszFormat, afxint::PlainArgument(args)...);
}

template <class... Args>
void CString::Format(UINT nFormatID, Args... args)
{
    FormatPlain(nFormatID, afxint::PlainArgument(args)...);
}

template <class... Args>
void CString::AppendFormat(PCXSTR pszFormat, Args... args)
{
    AppendPlain(pszFormat, afxint::PlainArgument(args)...);
}

template <class... Args>
void CString::AppendFormat(UINT nFormatID, Args... args)
{
    AppendPlain(nFormatID, afxint::PlainArgument(args)...);
}

template <class... Args>
void CString::FormatMessage(PCXSTR pszFormat, Args... args)
{
    MessagePlain(pszFormat, afxint::PlainArgument(args)...);
}

template <class... Args>
void CString::FormatMessage(UINT nFormatID, Args... args)
{
    MessagePlain(nFormatID, afxint::PlainArgument(args)...);
}
