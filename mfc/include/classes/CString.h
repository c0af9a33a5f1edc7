// Strings that copy cheaply: copies share one reference-counted buffer until one of them changes.
//
// CStringA has narrow text, in the ANSI code page; its functions that look at characters respect
// the multibyte code page of the C library. CStringW has wide text, in UTF-16. CString is the one
// of them whose characters are TCHAR. All come from one template, and each converts into the other.
//
// A string is one pointer to its characters, and all instances use the functions of the library,
// so that strings may pass between programs and DLLs. Failed allocation throws CMemoryException;
// an index outside the string throws CInvalidArgException.
#pragma once

#include <classes/Platform.h>

/// The types of characters: X of the string itself, Y of what it converts.
template <class BaseType>
struct ChTraitsCRT
{
    using XCHAR = BaseType;
    using PXSTR = XCHAR*;
    using PCXSTR = const XCHAR*;
    using YCHAR = std::conditional_t<std::is_same_v<BaseType, char>, wchar_t, char>;
    using PYSTR = YCHAR*;
    using PCYSTR = const YCHAR*;
};

/// Says also where the resources of a string are: along the resource chain.
template <class BaseType, class StringIterator = ChTraitsCRT<BaseType>>
struct StrTraitMFC_DLL : StringIterator
{
};

template <class BaseType, class StringTraits>
class CStringT;

using CStringA = CStringT<char, StrTraitMFC_DLL<char>>;
using CStringW = CStringT<wchar_t, StrTraitMFC_DLL<wchar_t>>;
using CString = CStringT<TCHAR, StrTraitMFC_DLL<TCHAR>>;

namespace afxint {

template <class T>
using EnableIfCharacter =
    std::enable_if_t<std::is_same_v<T, char> || std::is_same_v<T, wchar_t>, int>;

template <class T>
using EnableIfCharacterOrByte = std::enable_if_t<
    std::is_same_v<T, char> || std::is_same_v<T, wchar_t> || std::is_same_v<T, unsigned char>, int>;

/// Characters of text that a string of Char converts, or takes over from unsigned bytes.
template <class T, class Char>
using EnableIfForeign = std::enable_if_t<
    std::is_same_v<T, typename ChTraitsCRT<Char>::YCHAR> || std::is_same_v<T, unsigned char>, int>;

template <class T>
using EnableIfVariant = std::enable_if_t<std::is_same_v<T, VARIANT>, int>;

template <class T>
using EnableIfNarrow = std::enable_if_t<std::is_same_v<T, char>, int>;

/// Objects, such as CW2A, that convert to text of the kind that a string of Char converts, and not
/// to its own. The strings themselves have members of their own.
template <class T, class Char>
using EnableIfHoldsForeign = std::enable_if_t<
    std::is_class_v<T> && !std::is_base_of_v<CStringA, T> && !std::is_base_of_v<CStringW, T> &&
        std::is_convertible_v<const T&, const typename ChTraitsCRT<Char>::YCHAR*> &&
        !std::is_convertible_v<const T&, const Char*>,
    int>;

/// What stands for an argument in a "..." of the library: its characters for strings and for
/// objects that convert to them, those of the kind Char sooner than others, else the argument
/// itself.
template <class Char, class T>
auto PlainArgument(const T& argument)
{
    using Other = typename ChTraitsCRT<Char>::YCHAR;
    if constexpr (std::is_base_of_v<CStringA, T> || std::is_base_of_v<CStringW, T>) {
        return argument.GetString();
    } else if constexpr (!std::is_class_v<T>) {
        return argument;
    } else if constexpr (std::is_convertible_v<const T&, const Char*>) {
        return static_cast<const Char*>(argument);
    } else {
        static_assert(std::is_convertible_v<const T&, const Other*>,
                      "an object that is no string cannot be formatted");
        return static_cast<const Other*>(argument);
    }
}

} // namespace afxint

template <class BaseType, class StringTraits>
class AFX_EXPORTED CStringT
{
public:
    using XCHAR = BaseType;
    using PXSTR = XCHAR*;
    using PCXSTR = const XCHAR*;
    using YCHAR = typename StringTraits::YCHAR;
    using PYSTR = YCHAR*;
    using PCYSTR = const YCHAR*;

    CStringT();
    CStringT(const CStringT& strSrc);
    /// NULL gives an empty string; a MAKEINTRESOURCE value loads the string resource of that id.
    CStringT(PCXSTR pszSrc);
    CStringT(PCXSTR pch, int nLength);
    CStringT(PCYSTR pch, int nLength);
    // Most other forms are templates, so that NULL means a string of XCHAR without ambiguity.
    template <class Char, afxint::EnableIfForeign<Char, XCHAR> = 0>
    CStringT(const Char* pszSrc) : CStringT()
    {
        Assign(pszSrc);
    }
    template <class Holder, afxint::EnableIfHoldsForeign<Holder, XCHAR> = 0>
    explicit CStringT(const Holder& source) : CStringT(static_cast<PCYSTR>(source))
    {
    }
    template <class Char, afxint::EnableIfCharacter<Char> = 0>
    explicit CStringT(Char ch, int nLength = 1) : CStringT()
    {
        Assign(ch, nLength);
    }
    template <class Variant, afxint::EnableIfVariant<Variant> = 0>
    CStringT(const Variant& varSrc) : CStringT()
    {
        Assign(varSrc);
    }
    template <class Traits>
    CStringT(const CStringT<YCHAR, Traits>& strSrc)
        : CStringT(strSrc.GetString(), strSrc.GetLength())
    {
    }
    ~CStringT();

    CStringT& operator=(const CStringT& strSrc);
    CStringT& operator=(PCXSTR pszSrc);
    template <class Char, afxint::EnableIfForeign<Char, XCHAR> = 0>
    CStringT& operator=(const Char* pszSrc)
    {
        return Assign(pszSrc);
    }
    template <class Holder, afxint::EnableIfHoldsForeign<Holder, XCHAR> = 0>
    CStringT& operator=(const Holder& source)
    {
        return *this = static_cast<PCYSTR>(source);
    }
    template <class Char, afxint::EnableIfCharacter<Char> = 0>
    CStringT& operator=(Char ch)
    {
        return Assign(ch, 1);
    }
    template <class Variant, afxint::EnableIfVariant<Variant> = 0>
    CStringT& operator=(const Variant& var)
    {
        return Assign(var);
    }
    template <class Traits>
    CStringT& operator=(const CStringT<YCHAR, Traits>& strSrc)
    {
        return *this = CStringT(strSrc);
    }

    CStringT& operator+=(const CStringT& str);
    CStringT& operator+=(PCXSTR pszSrc);
    template <class Char, afxint::EnableIfForeign<Char, XCHAR> = 0>
    CStringT& operator+=(const Char* pszSrc)
    {
        return *this += CStringT(pszSrc);
    }
    template <class Holder, afxint::EnableIfHoldsForeign<Holder, XCHAR> = 0>
    CStringT& operator+=(const Holder& source)
    {
        return *this += static_cast<PCYSTR>(source);
    }
    template <class Char, afxint::EnableIfCharacterOrByte<Char> = 0>
    CStringT& operator+=(Char ch)
    {
        if constexpr (sizeof(Char) == sizeof(XCHAR)) {
            AppendChar(static_cast<XCHAR>(ch));
            return *this;
        } else {
            using Other = std::conditional_t<std::is_same_v<Char, wchar_t>, wchar_t, char>;
            return *this += CStringT(static_cast<Other>(ch));
        }
    }
    template <class Variant, afxint::EnableIfVariant<Variant> = 0>
    CStringT& operator+=(const Variant& var)
    {
        return *this += CStringT(var);
    }
    template <class Traits>
    CStringT& operator+=(const CStringT<YCHAR, Traits>& str)
    {
        return *this += CStringT(str);
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
    void Append(const CStringT& strSrc);
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

    CStringT Mid(int iFirst) const;
    CStringT Mid(int iFirst, int nCount) const;
    CStringT Left(int nCount) const;
    CStringT Right(int nCount) const;
    CStringT SpanIncluding(PCXSTR pszCharSet) const;
    CStringT SpanExcluding(PCXSTR pszCharSet) const;
    /// The next token from iStart on; iStart moves past it, or becomes -1 when there is none.
    CStringT Tokenize(PCXSTR pszTokens, int& iStart) const;

    /// Positions are in units of XCHAR; -1 means not found.
    int Find(PCXSTR pszSub, int iStart = 0) const;
    int Find(XCHAR ch, int iStart = 0) const;
    int ReverseFind(XCHAR ch) const;
    int FindOneOf(PCXSTR pszCharSet) const;

    CStringT& MakeUpper();
    CStringT& MakeLower();
    CStringT& MakeReverse();
    CStringT& Trim();
    CStringT& Trim(XCHAR chTarget);
    CStringT& Trim(PCXSTR pszTargets);
    CStringT& TrimLeft();
    CStringT& TrimLeft(XCHAR chTarget);
    CStringT& TrimLeft(PCXSTR pszTargets);
    CStringT& TrimRight();
    CStringT& TrimRight(XCHAR chTarget);
    CStringT& TrimRight(PCXSTR pszTargets);

    /// Both return the number of replaced instances.
    int Replace(XCHAR chOld, XCHAR chNew);
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    /// The number of characters removed.
    int Remove(XCHAR chRemove);
    /// These return the new length.
    int Insert(int iIndex, XCHAR ch);
    int Insert(int iIndex, PCXSTR psz);
    int Delete(int iIndex, int nCount = 1);

    /// printf-style; a CStringT argument counts as its characters, and so does any object that
    /// converts to them. The forms with an id load the format from the resources.
    template <class... Args>
    void Format(PCXSTR pszFormat, Args... args)
    {
        FormatPlain(pszFormat, afxint::PlainArgument<XCHAR>(args)...);
    }
    template <class... Args>
    void Format(UINT nFormatID, Args... args)
    {
        FormatPlain(nFormatID, afxint::PlainArgument<XCHAR>(args)...);
    }
    template <class... Args>
    void AppendFormat(PCXSTR pszFormat, Args... args)
    {
        AppendPlain(pszFormat, afxint::PlainArgument<XCHAR>(args)...);
    }
    template <class... Args>
    void AppendFormat(UINT nFormatID, Args... args)
    {
        AppendPlain(nFormatID, afxint::PlainArgument<XCHAR>(args)...);
    }
    void FormatV(PCXSTR pszFormat, va_list args);

    /// Like Format, with the numbered inserts (%1, %2!d!) of the system's message texts.
    template <class... Args>
    void FormatMessage(PCXSTR pszFormat, Args... args)
    {
        MessagePlain(pszFormat, afxint::PlainArgument<XCHAR>(args)...);
    }
    template <class... Args>
    void FormatMessage(UINT nFormatID, Args... args)
    {
        MessagePlain(nFormatID, afxint::PlainArgument<XCHAR>(args)...);
    }
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
    /// These change the code page of the text, which wide text has not.
    template <class Char = XCHAR, afxint::EnableIfNarrow<Char> = 0>
    void AnsiToOem()
    {
        const PXSTR text = GetBuffer();
        ::CharToOemBuffA(text, text, GetLength());
    }
    template <class Char = XCHAR, afxint::EnableIfNarrow<Char> = 0>
    void OemToAnsi()
    {
        const PXSTR text = GetBuffer();
        ::OemToCharBuffA(text, text, GetLength());
    }

    static void CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars);
    static void CopyChars(XCHAR* pchDest, size_t nDestLen, const XCHAR* pchSrc, int nChars);
    static void CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc, int nChars);
    static int StringLength(PCXSTR psz);

    friend CStringT operator+(const CStringT& str1, const CStringT& str2)
    {
        return Concatenate(str1, str1.GetLength(), str2, str2.GetLength());
    }
    friend CStringT operator+(const CStringT& str1, PCXSTR psz2)
    {
        return Concatenate(str1, str1.GetLength(), psz2, StringLength(psz2));
    }
    friend CStringT operator+(PCXSTR psz1, const CStringT& str2)
    {
        return Concatenate(psz1, StringLength(psz1), str2, str2.GetLength());
    }
    template <class Char, afxint::EnableIfCharacter<Char> = 0>
    friend CStringT operator+(const CStringT& str1, Char ch2)
    {
        return str1 + CStringT(ch2);
    }
    template <class Char, afxint::EnableIfCharacter<Char> = 0>
    friend CStringT operator+(Char ch1, const CStringT& str2)
    {
        return CStringT(ch1) + str2;
    }

    friend bool operator==(const CStringT& str1, const CStringT& str2)
    {
        return CompareText(str1, str2) == 0;
    }
    friend bool operator==(const CStringT& str1, PCXSTR psz2)
    {
        return CompareText(str1, psz2) == 0;
    }
    friend bool operator==(PCXSTR psz1, const CStringT& str2)
    {
        return CompareText(psz1, str2) == 0;
    }
    friend bool operator!=(const CStringT& str1, const CStringT& str2)
    {
        return CompareText(str1, str2) != 0;
    }
    friend bool operator!=(const CStringT& str1, PCXSTR psz2)
    {
        return CompareText(str1, psz2) != 0;
    }
    friend bool operator!=(PCXSTR psz1, const CStringT& str2)
    {
        return CompareText(psz1, str2) != 0;
    }
    friend bool operator<(const CStringT& str1, const CStringT& str2)
    {
        return CompareText(str1, str2) < 0;
    }
    friend bool operator<(const CStringT& str1, PCXSTR psz2) { return CompareText(str1, psz2) < 0; }
    friend bool operator<(PCXSTR psz1, const CStringT& str2) { return CompareText(psz1, str2) < 0; }
    friend bool operator>(const CStringT& str1, const CStringT& str2)
    {
        return CompareText(str1, str2) > 0;
    }
    friend bool operator>(const CStringT& str1, PCXSTR psz2) { return CompareText(str1, psz2) > 0; }
    friend bool operator>(PCXSTR psz1, const CStringT& str2) { return CompareText(psz1, str2) > 0; }
    friend bool operator<=(const CStringT& str1, const CStringT& str2)
    {
        return CompareText(str1, str2) <= 0;
    }
    friend bool operator<=(const CStringT& str1, PCXSTR psz2)
    {
        return CompareText(str1, psz2) <= 0;
    }
    friend bool operator<=(PCXSTR psz1, const CStringT& str2)
    {
        return CompareText(psz1, str2) <= 0;
    }
    friend bool operator>=(const CStringT& str1, const CStringT& str2)
    {
        return CompareText(str1, str2) >= 0;
    }
    friend bool operator>=(const CStringT& str1, PCXSTR psz2)
    {
        return CompareText(str1, psz2) >= 0;
    }
    friend bool operator>=(PCXSTR psz1, const CStringT& str2)
    {
        return CompareText(psz1, str2) >= 0;
    }
    // With single characters, narrow or wide, and with text of the other kind.
    template <class Char, afxint::EnableIfCharacter<Char> = 0>
    friend bool operator==(const CStringT& str1, Char ch2)
    {
        return str1 == CStringT(ch2);
    }
    template <class Char, afxint::EnableIfCharacter<Char> = 0>
    friend bool operator==(Char ch1, const CStringT& str2)
    {
        return CStringT(ch1) == str2;
    }
    template <class Char, afxint::EnableIfForeign<Char, XCHAR> = 0>
    friend bool operator==(const CStringT& str1, const Char* psz2)
    {
        return str1 == CStringT(psz2);
    }
    template <class Char, afxint::EnableIfForeign<Char, XCHAR> = 0>
    friend bool operator==(const Char* psz1, const CStringT& str2)
    {
        return CStringT(psz1) == str2;
    }
    template <class Char, afxint::EnableIfCharacter<Char> = 0>
    friend bool operator!=(const CStringT& str1, Char ch2)
    {
        return str1 != CStringT(ch2);
    }
    template <class Char, afxint::EnableIfCharacter<Char> = 0>
    friend bool operator!=(Char ch1, const CStringT& str2)
    {
        return CStringT(ch1) != str2;
    }
    template <class Char, afxint::EnableIfForeign<Char, XCHAR> = 0>
    friend bool operator!=(const CStringT& str1, const Char* psz2)
    {
        return str1 != CStringT(psz2);
    }
    template <class Char, afxint::EnableIfForeign<Char, XCHAR> = 0>
    friend bool operator!=(const Char* psz1, const CStringT& str2)
    {
        return CStringT(psz1) != str2;
    }

private:
    // What the templates and operators above end in; arguments for "..." are plain by then.
    CStringT& Assign(PCYSTR text);
    CStringT& Assign(const unsigned char* text);
    CStringT& Assign(XCHAR ch, int count);
    CStringT& Assign(YCHAR ch, int count);
    CStringT& Assign(const VARIANT& variant);
    void AFX_CDECL FormatPlain(PCXSTR format, ...);
    void AFX_CDECL FormatPlain(UINT formatId, ...);
    void AFX_CDECL AppendPlain(PCXSTR format, ...);
    void AFX_CDECL AppendPlain(UINT formatId, ...);
    void AFX_CDECL MessagePlain(PCXSTR format, ...);
    void AFX_CDECL MessagePlain(UINT formatId, ...);
    static CStringT Concatenate(PCXSTR left, int leftLength, PCXSTR right, int rightLength);
    /// Order by characters; NULL counts as empty.
    static int CompareText(PCXSTR left, PCXSTR right);

    PXSTR data_; ///< The characters; the bookkeeping of the buffer stands before them.
};

// Both are compiled into the library, whatever its TCHAR is, and nowhere else. There, GCC wants the
// mark of the exports at the definition, and no declaration before; clang wants it here.
#if !defined(umbra_mfc_EXPORTS) || defined(__clang__)
extern template class AFX_EXPORTED CStringT<char, StrTraitMFC_DLL<char>>;
extern template class AFX_EXPORTED CStringT<wchar_t, StrTraitMFC_DLL<wchar_t>>;
#endif
