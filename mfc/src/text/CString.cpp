#include <classes/CException.h>
#include <classes/CString.h>

#include "text/FormatResource.h"
#include "application/ResourceChain.h"

#include <mbctype.h>
#include <mbstring.h>

#include <atomic>
#include <string>
#include <string_view>
#include <utility>

namespace {

/// What stands before the characters of a string.
struct Buffer
{
    std::atomic<int> references; ///< The strings that share it, or `locked`.
    int length;
    int capacity; ///< Without the terminator.
};

constexpr int locked = -1;
constexpr int longest = INT_MAX - 64;
constexpr DWORD emptyMessage = 235; ///< ERROR_NO_WORK_DONE, which older headers lack.

/// The buffer of all empty strings; it is never counted nor written.
constinit struct
{
    Buffer head{1, 0, 0};
    char terminator = '\0';
} nothing;

Buffer& HeadOf(const char* data)
{
    return const_cast<Buffer*>(reinterpret_cast<const Buffer*>(data))[-1];
}

char* Nothing()
{
    return reinterpret_cast<char*>(&nothing.head + 1);
}

bool IsLocked(const char* data)
{
    return HeadOf(data).references == locked;
}

/// Whether the characters may be written in place.
bool IsOwned(const char* data)
{
    return data != Nothing() && HeadOf(data).references <= 1;
}

char* Allocate(int capacity)
{
    void* memory = malloc(sizeof(Buffer) + static_cast<size_t>(capacity) + 1);
    if (memory == nullptr)
        AfxThrowMemoryException();
    Buffer* head = ::new (memory) Buffer{1, 0, capacity};
    char* data = reinterpret_cast<char*>(head + 1);
    data[0] = '\0';
    return data;
}

void Release(char* data)
{
    if (data == Nothing())
        return;
    Buffer& head = HeadOf(data);
    if (head.references == locked || --head.references == 0)
        free(&head);
}

void SetLengthOf(char* data, int length)
{
    HeadOf(data).length = length;
    data[length] = '\0';
}

/// New characters of a string's own, with room for `capacity` of them.
char* CopyOf(const char* text, int length, int capacity)
{
    char* copy = Allocate(capacity);
    memcpy(copy, text, length);
    SetLengthOf(copy, length);
    return copy;
}

char* Share(char* data)
{
    if (data == Nothing())
        return data;
    if (!IsLocked(data)) {
        ++HeadOf(data).references;
        return data;
    }
    return CopyOf(data, HeadOf(data).length, HeadOf(data).length);
}

/// Makes the characters the string's own, with room for at least `capacity` of them.
void MakeWritable(char*& data, int capacity)
{
    if (capacity < 0)
        AfxThrowInvalidArgException();
    const Buffer& head = HeadOf(data);
    const bool owned = IsOwned(data);
    if (owned && head.capacity >= capacity)
        return;
    capacity = max(capacity, head.length);
    if (owned) // Growing: leave room, so that appending piece by piece stays cheap.
        capacity = static_cast<int>(min<LONGLONG, int>(
            max<LONGLONG, int>(head.capacity + head.capacity / 2LL, capacity), longest));
    char* copy = CopyOf(data, head.length, capacity);
    if (IsLocked(data))
        HeadOf(copy).references = locked;
    Release(data);
    data = copy;
}

/// Gives the string other characters, which may be a part of its present ones.
void Assign(char*& data, const char* text, int length)
{
    if (length < 0 || (text == nullptr && length > 0))
        AfxThrowInvalidArgException();
    if (IsOwned(data) && HeadOf(data).capacity >= length) {
        if (length > 0)
            memmove(data, text, length);
        SetLengthOf(data, length);
        return;
    }
    if (length == 0 && !IsLocked(data)) {
        Release(std::exchange(data, Nothing()));
        return;
    }
    char* copy = CopyOf(text, length, length);
    if (IsLocked(data))
        HeadOf(copy).references = locked;
    Release(std::exchange(data, copy));
}

/// Adds characters, which may be a part of the present ones.
void AppendTo(char*& data, const char* text, int added)
{
    const int length = HeadOf(data).length;
    if (added == 0)
        return;
    if (added > longest - length)
        AfxThrowMemoryException();
    const bool isPart = text >= data && text <= data + length;
    const ptrdiff_t offset = isPart ? text - data : 0;
    MakeWritable(data, length + added);
    memmove(data + length, isPart ? data + offset : text, added);
    SetLengthOf(data, length + added);
}

std::string_view ViewOf(const CString& string)
{
    return {string.GetString(), static_cast<size_t>(string.GetLength())};
}

/// Whether the C library's code page is one of those whose characters may have two bytes.
bool HasDoubleBytes()
{
    const int codePage = _getmbcp();
    return codePage == 932 || codePage == 936 || codePage == 949 || codePage == 950 ||
           codePage == 1361;
}

/// Bytes of the character at the start of the text.
int CharacterBytes(std::string_view text)
{
    return text.size() > 1 && _ismbblead(static_cast<unsigned char>(text[0])) ? 2 : 1;
}

/// The code of the character as the C library's multibyte functions take it.
unsigned CharacterCode(std::string_view character)
{
    const unsigned first = static_cast<unsigned char>(character[0]);
    return character.size() == 1 ? first : first << 8 | static_cast<unsigned char>(character[1]);
}

/// Calls visit(position, character) for each character until that returns false.
template <class Visit>
void ForEachCharacter(std::string_view text, size_t start, Visit visit)
{
    while (start < text.size()) {
        const std::string_view rest = text.substr(start);
        const std::string_view character = rest.substr(0, CharacterBytes(rest));
        if (!visit(static_cast<int>(start), character))
            return;
        start += character.size();
    }
}

bool Contains(std::string_view set, std::string_view character)
{
    bool found = false;
    ForEachCharacter(set, 0, [&](int, std::string_view member) {
        found = member == character;
        return !found;
    });
    return found;
}

bool IsSpace(std::string_view character)
{
    return character.size() == 1 ? isspace(static_cast<unsigned char>(character[0])) != 0
                                 : _ismbcspace(CharacterCode(character)) != 0;
}

/// The first place, from `start` on, where the needle begins at a character; -1 for none.
int FindText(std::string_view text, std::string_view needle, int start)
{
    if (start < 0 || static_cast<size_t>(start) > text.size())
        return -1;
    if (!HasDoubleBytes() || needle.empty()) {
        const size_t found = text.find(needle, start);
        return found == std::string_view::npos ? -1 : static_cast<int>(found);
    }
    int found = -1;
    ForEachCharacter(text, start, [&](int position, std::string_view) {
        if (text.compare(position, needle.size(), needle) == 0)
            found = position;
        return found < 0;
    });
    return found;
}

/// The first place, from `start` on, of a character that the predicate accepts; the length of the
/// text when there is none.
template <class Predicate>
int FindCharacter(std::string_view text, int start, Predicate accepts)
{
    int found = static_cast<int>(text.size());
    ForEachCharacter(text, start, [&](int position, std::string_view character) {
        if (!accepts(character))
            return true;
        found = position;
        return false;
    });
    return found;
}

/// The length of the text without the accepted characters at its end.
template <class Predicate>
int LengthWithoutTail(std::string_view text, Predicate accepts)
{
    int length = 0;
    ForEachCharacter(text, 0, [&](int position, std::string_view character) {
        if (!accepts(character))
            length = position + static_cast<int>(character.size());
        return true;
    });
    return length;
}

/// Changes each character by a function of the C library, or the whole text by one of the system
/// when all characters are single bytes.
void ChangeCase(char* text, int length, unsigned (*change)(unsigned),
                DWORD(WINAPI* changeBytes)(LPSTR, DWORD))
{
    if (!HasDoubleBytes()) {
        changeBytes(text, length);
        return;
    }
    ForEachCharacter({text, static_cast<size_t>(length)}, 0, [&](int position, std::string_view c) {
        const unsigned changed = change(CharacterCode(c));
        if (c.size() == 2)
            text[position++] = static_cast<char>(changed >> 8);
        text[position] = static_cast<char>(changed);
        return true;
    });
}

std::string Narrowed(std::wstring_view text)
{
    const int length = static_cast<int>(text.size());
    const int needed =
        ::WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string narrow(needed, '\0');
    ::WideCharToMultiByte(CP_ACP, 0, text.data(), length, narrow.data(), needed, nullptr, nullptr);
    return narrow;
}

/// The string resource as it lies in the module; empty when the module has none of that id.
std::wstring_view FindString(HINSTANCE module, UINT id, const WORD* language)
{
    const LPCTSTR block = MAKEINTRESOURCE(id / 16 + 1);
    const HRSRC found = language == nullptr ? ::FindResource(module, block, RT_STRING)
                                            : ::FindResourceEx(module, RT_STRING, block, *language);
    const HGLOBAL loaded = found == NULL ? NULL : ::LoadResource(module, found);
    const auto* text = static_cast<const wchar_t*>(loaded == NULL ? NULL : ::LockResource(loaded));
    if (text == nullptr)
        return {};
    // A block is sixteen counted strings; the count is in characters and stands before each.
    const wchar_t* end = text + ::SizeofResource(module, found) / sizeof(wchar_t);
    for (UINT skipped = id % 16; skipped > 0 && text < end; --skipped)
        text += 1 + *text;
    if (text >= end || *text > end - text - 1)
        return {};
    return {text + 1, static_cast<size_t>(*text)};
}

bool LoadInto(CString& string, HINSTANCE module, UINT id, const WORD* language)
{
    const std::wstring_view text = FindString(module, id, language);
    if (text.empty())
        return false;
    const std::string narrow = Narrowed(text);
    string.SetString(narrow.data(), static_cast<int>(narrow.size()));
    return true;
}

int CompareOrThrow(int (*compare)(const unsigned char*, const unsigned char*), LPCSTR left,
                   LPCSTR right)
{
    if (right == nullptr)
        AfxThrowInvalidArgException();
    return compare(reinterpret_cast<const unsigned char*>(left),
                   reinterpret_cast<const unsigned char*>(right));
}

/// Order by characters; NULL counts as empty.
int CompareText(LPCSTR left, LPCSTR right)
{
    return CompareOrThrow(_mbscmp, left == nullptr ? "" : left, right == nullptr ? "" : right);
}

CString Concatenate(std::string_view left, std::string_view right)
{
    if (left.size() + right.size() > longest)
        AfxThrowMemoryException();
    CString result;
    char* text = result.GetBufferSetLength(static_cast<int>(left.size() + right.size()));
    left.copy(text, left.size());
    right.copy(text + left.size(), right.size());
    return result;
}

std::string_view ViewOf(LPCSTR text)
{
    return text == nullptr ? std::string_view() : std::string_view(text);
}

} // namespace

CString afxint::LoadFormat(UINT id)
{
    CString format;
    if (!format.LoadString(id))
        AfxThrowResourceException();
    return format;
}

CString::CString() : m_pszData(Nothing())
{
}

CString::CString(const CString& strSrc) : m_pszData(Share(strSrc.m_pszData))
{
}

CString::CString(PCXSTR pszSrc) : CString()
{
    if (pszSrc == NULL)
        return;
    if (IS_INTRESOURCE(pszSrc))
        LoadString(LOWORD(reinterpret_cast<UINT_PTR>(pszSrc)));
    else
        SetString(pszSrc);
}

CString::CString(PCXSTR pch, int nLength) : CString()
{
    SetString(pch, nLength);
}

CString::CString(PCYSTR pch, int nLength) : CString()
{
    if (nLength < 0 || (pch == nullptr && nLength > 0))
        AfxThrowInvalidArgException();
    const std::string narrow = Narrowed({pch, static_cast<size_t>(nLength)});
    SetString(narrow.data(), static_cast<int>(narrow.size()));
}

CString::~CString()
{
    Release(m_pszData);
}

CString& CString::operator=(const CString& strSrc)
{
    if (m_pszData == strSrc.m_pszData)
        return *this;
    if (IsLocked(m_pszData))
        SetString(strSrc.GetString(), strSrc.GetLength());
    else
        Release(std::exchange(m_pszData, Share(strSrc.m_pszData)));
    return *this;
}

CString& CString::operator=(PCXSTR pszSrc)
{
    SetString(pszSrc);
    return *this;
}

CString& CString::operator+=(const CString& str)
{
    Append(str);
    return *this;
}

CString& CString::operator+=(PCXSTR pszSrc)
{
    Append(pszSrc);
    return *this;
}

int CString::GetLength() const
{
    return HeadOf(m_pszData).length;
}

bool CString::IsEmpty() const
{
    return GetLength() == 0;
}

void CString::Empty()
{
    if (IsLocked(m_pszData))
        SetLengthOf(m_pszData, 0);
    else
        Release(std::exchange(m_pszData, Nothing()));
}

CString::XCHAR CString::GetAt(int iChar) const
{
    if (iChar < 0 || iChar > GetLength())
        AfxThrowInvalidArgException();
    return m_pszData[iChar];
}

CString::XCHAR CString::operator[](int iChar) const
{
    return GetAt(iChar);
}

void CString::SetAt(int iChar, XCHAR ch)
{
    if (iChar < 0 || iChar >= GetLength())
        AfxThrowInvalidArgException();
    MakeWritable(m_pszData, GetLength());
    m_pszData[iChar] = ch;
}

CString::PCXSTR CString::GetString() const
{
    return m_pszData;
}

CString::operator PCXSTR() const
{
    return m_pszData;
}

void CString::SetString(PCXSTR pszSrc)
{
    SetString(pszSrc, StringLength(pszSrc));
}

void CString::SetString(PCXSTR pszSrc, int nLength)
{
    ::Assign(m_pszData, pszSrc, nLength);
}

void CString::Append(PCXSTR pszSrc)
{
    Append(pszSrc, StringLength(pszSrc));
}

void CString::Append(PCXSTR pszSrc, int nLength)
{
    if (nLength < 0 || (pszSrc == nullptr && nLength > 0))
        AfxThrowInvalidArgException();
    if (nLength > 0)
        AppendTo(m_pszData, pszSrc, static_cast<int>(strnlen(pszSrc, nLength)));
}

void CString::Append(const CString& strSrc)
{
    if (m_pszData == Nothing())
        *this = strSrc;
    else
        AppendTo(m_pszData, strSrc.m_pszData, strSrc.GetLength());
}

void CString::AppendChar(XCHAR ch)
{
    AppendTo(m_pszData, &ch, 1);
}

CString::PXSTR CString::GetBuffer(int nMinBufferLength)
{
    if (nMinBufferLength < 0)
        AfxThrowInvalidArgException();
    MakeWritable(m_pszData, nMinBufferLength);
    return m_pszData;
}

CString::PXSTR CString::GetBuffer()
{
    return GetBuffer(0);
}

CString::PXSTR CString::GetBufferSetLength(int nLength)
{
    GetBuffer(nLength);
    SetLengthOf(m_pszData, nLength);
    return m_pszData;
}

void CString::ReleaseBuffer(int nNewLength)
{
    if (nNewLength == -1)
        nNewLength = static_cast<int>(strnlen(m_pszData, GetAllocLength()));
    ReleaseBufferSetLength(nNewLength);
}

void CString::ReleaseBufferSetLength(int nNewLength)
{
    if (nNewLength < 0 || nNewLength > GetAllocLength())
        AfxThrowInvalidArgException();
    if (nNewLength == GetLength() && m_pszData[nNewLength] == '\0')
        return;
    MakeWritable(m_pszData, nNewLength);
    SetLengthOf(m_pszData, nNewLength);
}

CString::PXSTR CString::LockBuffer()
{
    GetBuffer();
    HeadOf(m_pszData).references = locked;
    return m_pszData;
}

void CString::UnlockBuffer()
{
    if (IsLocked(m_pszData))
        HeadOf(m_pszData).references = 1;
}

int CString::GetAllocLength() const
{
    return HeadOf(m_pszData).capacity;
}

void CString::Preallocate(int nLength)
{
    MakeWritable(m_pszData, nLength);
}

void CString::FreeExtra()
{
    const int length = GetLength();
    if (!IsOwned(m_pszData) || IsLocked(m_pszData) || GetAllocLength() == length)
        return;
    Release(std::exchange(m_pszData, CopyOf(m_pszData, length, length)));
}

void CString::Truncate(int nNewLength)
{
    if (nNewLength < 0)
        AfxThrowInvalidArgException();
    if (nNewLength >= GetLength())
        return;
    MakeWritable(m_pszData, nNewLength);
    SetLengthOf(m_pszData, nNewLength);
}

int CString::Compare(PCXSTR psz) const
{
    return CompareOrThrow(_mbscmp, m_pszData, psz);
}

int CString::CompareNoCase(PCXSTR psz) const
{
    return CompareOrThrow(_mbsicmp, m_pszData, psz);
}

int CString::Collate(PCXSTR psz) const
{
    return CompareOrThrow(_mbscoll, m_pszData, psz);
}

int CString::CollateNoCase(PCXSTR psz) const
{
    return CompareOrThrow(_mbsicoll, m_pszData, psz);
}

CString CString::Mid(int iFirst) const
{
    return Mid(iFirst, GetLength());
}

CString CString::Mid(int iFirst, int nCount) const
{
    const int length = GetLength();
    iFirst = min(max(iFirst, 0), length);
    nCount = min(max(nCount, 0), length - iFirst);
    return nCount == length ? *this : CString(m_pszData + iFirst, nCount);
}

CString CString::Left(int nCount) const
{
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const
{
    nCount = min(max(nCount, 0), GetLength());
    return Mid(GetLength() - nCount, nCount);
}

CString CString::SpanIncluding(PCXSTR pszCharSet) const
{
    if (pszCharSet == nullptr)
        AfxThrowInvalidArgException();
    return Left(FindCharacter(ViewOf(*this), 0, [=](std::string_view character) {
        return !Contains(pszCharSet, character);
    }));
}

CString CString::SpanExcluding(PCXSTR pszCharSet) const
{
    if (pszCharSet == nullptr)
        AfxThrowInvalidArgException();
    return Left(FindCharacter(ViewOf(*this), 0, [=](std::string_view character) {
        return Contains(pszCharSet, character);
    }));
}

CString CString::Tokenize(PCXSTR pszTokens, int& iStart) const
{
    const std::string_view text = ViewOf(*this);
    const std::string_view delimiters = ViewOf(pszTokens);
    const auto delimits = [=](std::string_view c) { return Contains(delimiters, c); };
    const int length = GetLength();
    if (iStart >= 0 && iStart < length) {
        const int first =
            FindCharacter(text, iStart, [=](std::string_view c) { return !delimits(c); });
        const int end = FindCharacter(text, first, delimits);
        if (first < length) {
            // Past the delimiter that ends the token, or past the end.
            iStart = end == length ? length : end + CharacterBytes(text.substr(end));
            return Mid(first, end - first);
        }
    }
    iStart = -1;
    return CString();
}

int CString::Find(PCXSTR pszSub, int iStart) const
{
    return pszSub == nullptr ? -1 : FindText(ViewOf(*this), pszSub, iStart);
}

int CString::Find(XCHAR ch, int iStart) const
{
    return FindText(ViewOf(*this), {&ch, 1}, iStart);
}

int CString::ReverseFind(XCHAR ch) const
{
    int found = -1;
    ForEachCharacter(ViewOf(*this), 0, [&](int position, std::string_view character) {
        if (character == std::string_view(&ch, 1))
            found = position;
        return true;
    });
    return found;
}

int CString::FindOneOf(PCXSTR pszCharSet) const
{
    if (pszCharSet == nullptr)
        AfxThrowInvalidArgException();
    const int found = FindCharacter(ViewOf(*this), 0, [=](std::string_view character) {
        return Contains(pszCharSet, character);
    });
    return found == GetLength() ? -1 : found;
}

CString& CString::MakeUpper()
{
    MakeWritable(m_pszData, GetLength());
    ChangeCase(m_pszData, GetLength(), _mbctoupper, ::CharUpperBuff);
    return *this;
}

CString& CString::MakeLower()
{
    MakeWritable(m_pszData, GetLength());
    ChangeCase(m_pszData, GetLength(), _mbctolower, ::CharLowerBuff);
    return *this;
}

CString& CString::MakeReverse()
{
    const CString forward(*this);
    MakeWritable(m_pszData, GetLength());
    char* to = m_pszData + GetLength();
    ForEachCharacter(ViewOf(forward), 0, [&](int, std::string_view character) {
        to -= character.size();
        character.copy(to, character.size());
        return true;
    });
    return *this;
}

CString& CString::Trim()
{
    return TrimRight().TrimLeft();
}

CString& CString::Trim(XCHAR chTarget)
{
    return TrimRight(chTarget).TrimLeft(chTarget);
}

CString& CString::Trim(PCXSTR pszTargets)
{
    return TrimRight(pszTargets).TrimLeft(pszTargets);
}

CString& CString::TrimLeft()
{
    Delete(0, FindCharacter(ViewOf(*this), 0, [](std::string_view c) { return !IsSpace(c); }));
    return *this;
}

CString& CString::TrimLeft(XCHAR chTarget)
{
    const char set[] = {chTarget, '\0'};
    return TrimLeft(set);
}

CString& CString::TrimLeft(PCXSTR pszTargets)
{
    const std::string_view set = ViewOf(pszTargets);
    Delete(0,
           FindCharacter(ViewOf(*this), 0, [=](std::string_view c) { return !Contains(set, c); }));
    return *this;
}

CString& CString::TrimRight()
{
    Truncate(LengthWithoutTail(ViewOf(*this), IsSpace));
    return *this;
}

CString& CString::TrimRight(XCHAR chTarget)
{
    const char set[] = {chTarget, '\0'};
    return TrimRight(set);
}

CString& CString::TrimRight(PCXSTR pszTargets)
{
    const std::string_view set = ViewOf(pszTargets);
    Truncate(
        LengthWithoutTail(ViewOf(*this), [=](std::string_view c) { return Contains(set, c); }));
    return *this;
}

int CString::Replace(XCHAR chOld, XCHAR chNew)
{
    if (chOld == chNew)
        return 0;
    int replaced = 0;
    for (int at = Find(chOld); at >= 0; at = Find(chOld, at + 1)) {
        SetAt(at, chNew);
        ++replaced;
    }
    return replaced;
}

int CString::Replace(PCXSTR pszOld, PCXSTR pszNew)
{
    const std::string_view text = ViewOf(*this);
    const std::string_view wanted = ViewOf(pszOld);
    if (wanted.empty())
        return 0;
    std::string result;
    int replaced = 0;
    int copied = 0;
    for (int at = FindText(text, wanted, 0); at >= 0; at = FindText(text, wanted, copied)) {
        result.append(text, copied, at - copied).append(ViewOf(pszNew));
        copied = at + static_cast<int>(wanted.size());
        ++replaced;
    }
    if (replaced == 0)
        return 0;
    result.append(text, copied);
    if (result.size() > longest)
        AfxThrowMemoryException();
    SetString(result.data(), static_cast<int>(result.size()));
    return replaced;
}

int CString::Remove(XCHAR chRemove)
{
    std::string kept;
    ForEachCharacter(ViewOf(*this), 0, [&](int, std::string_view character) {
        if (character != std::string_view(&chRemove, 1))
            kept += character;
        return true;
    });
    const int removed = GetLength() - static_cast<int>(kept.size());
    if (removed > 0)
        SetString(kept.data(), static_cast<int>(kept.size()));
    return removed;
}

int CString::Insert(int iIndex, XCHAR ch)
{
    const char text[] = {ch, '\0'};
    return Insert(iIndex, text);
}

int CString::Insert(int iIndex, PCXSTR psz)
{
    const std::string_view inserted = ViewOf(psz);
    if (inserted.empty())
        return GetLength();
    iIndex = min(max(iIndex, 0), GetLength());
    const std::string_view text = ViewOf(*this);
    const CString head = Concatenate(text.substr(0, iIndex), inserted);
    return (*this = Concatenate(ViewOf(head), text.substr(iIndex))).GetLength();
}

int CString::Delete(int iIndex, int nCount)
{
    const int length = GetLength();
    iIndex = max(iIndex, 0);
    nCount = min(max(nCount, 0), length - iIndex);
    if (nCount <= 0)
        return length;
    MakeWritable(m_pszData, length);
    memmove(m_pszData + iIndex, m_pszData + iIndex + nCount, length - iIndex - nCount);
    SetLengthOf(m_pszData, length - nCount);
    return length - nCount;
}

void CString::FormatV(PCXSTR pszFormat, va_list args)
{
    if (pszFormat == nullptr)
        AfxThrowInvalidArgException();
    va_list measured;
    va_copy(measured, args);
    const int length = _vscprintf(pszFormat, measured);
    va_end(measured);
    if (length < 0)
        AfxThrowInvalidArgException();
    // Into a string of its own: the arguments may be parts of this one.
    CString result;
    _vsnprintf(result.GetBufferSetLength(length), static_cast<size_t>(length) + 1, pszFormat, args);
    *this = result;
}

void CString::FormatMessageV(PCXSTR pszFormat, va_list* pArgList)
{
    if (pszFormat == nullptr)
        AfxThrowInvalidArgException();
    LPTSTR text = nullptr;
    ::SetLastError(ERROR_SUCCESS);
    ::FormatMessage(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, pszFormat, 0, 0,
                    reinterpret_cast<LPTSTR>(&text), 0, pArgList);
    const DWORD error = ::GetLastError();
    if (text == nullptr && error != ERROR_SUCCESS && error != emptyMessage)
        AfxThrowMemoryException();
    SetString(text);
    ::LocalFree(text);
}

BOOL CString::LoadString(UINT nID)
{
    const HINSTANCE module = afxint::FindStringModule(nID);
    return module != NULL && LoadString(module, nID);
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID)
{
    return LoadInto(*this, hInstance, nID, nullptr);
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID)
{
    return LoadInto(*this, hInstance, nID, &wLanguageID);
}

BOOL CString::GetEnvironmentVariable(PCXSTR pszVar)
{
    Empty();
    // Another thread may make the value longer between asking for its length and reading it.
    for (DWORD room = 0;;) {
        LPSTR value = GetBuffer(static_cast<int>(room));
        ::SetLastError(ERROR_SUCCESS);
        const DWORD length = ::GetEnvironmentVariable(pszVar, value, room + 1);
        if (length <= room) {
            ReleaseBufferSetLength(static_cast<int>(length));
            return length > 0 || ::GetLastError() != ERROR_ENVVAR_NOT_FOUND;
        }
        room = length;
    }
}

BSTR CString::AllocSysString() const
{
    const int needed = ::MultiByteToWideChar(CP_ACP, 0, m_pszData, GetLength(), nullptr, 0);
    BSTR result = ::SysAllocStringLen(nullptr, needed);
    if (result == nullptr)
        AfxThrowMemoryException();
    ::MultiByteToWideChar(CP_ACP, 0, m_pszData, GetLength(), result, needed);
    return result;
}

BSTR CString::SetSysString(BSTR* pbstr) const
{
    if (pbstr == nullptr)
        AfxThrowInvalidArgException();
    BSTR result = AllocSysString();
    ::SysFreeString(std::exchange(*pbstr, result));
    return result;
}

void CString::AnsiToOem()
{
    MakeWritable(m_pszData, GetLength());
    ::CharToOemBuff(m_pszData, m_pszData, GetLength());
}

void CString::OemToAnsi()
{
    MakeWritable(m_pszData, GetLength());
    ::OemToCharBuff(m_pszData, m_pszData, GetLength());
}

void CString::CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars)
{
    if (nChars > 0)
        memcpy(pchDest, pchSrc, nChars);
}

void CString::CopyChars(XCHAR* pchDest, size_t nDestLen, const XCHAR* pchSrc, int nChars)
{
    if (nChars < 0 || static_cast<size_t>(nChars) > nDestLen)
        AfxThrowInvalidArgException();
    CopyChars(pchDest, pchSrc, nChars);
}

void CString::CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc, int nChars)
{
    if (nChars > 0)
        memmove(pchDest, pchSrc, nChars);
}

int CString::StringLength(PCXSTR psz)
{
    if (psz == nullptr)
        return 0;
    const size_t length = strlen(psz);
    if (length > longest)
        AfxThrowMemoryException();
    return static_cast<int>(length);
}

CString& CString::Assign(PCYSTR text)
{
    if (text == nullptr) {
        Empty();
    } else if (IS_INTRESOURCE(text)) {
        LoadString(LOWORD(reinterpret_cast<UINT_PTR>(text)));
    } else {
        const std::string narrow = Narrowed(text);
        SetString(narrow.data(), static_cast<int>(narrow.size()));
    }
    return *this;
}

CString& CString::Assign(const unsigned char* text)
{
    SetString(reinterpret_cast<LPCSTR>(text));
    return *this;
}

CString& CString::Assign(char ch, int count)
{
    count = max(count, 0);
    memset(GetBufferSetLength(count), ch, count);
    return *this;
}

CString& CString::Assign(wchar_t ch, int count)
{
    const std::string narrow = Narrowed(std::wstring(max(count, 0), ch));
    SetString(narrow.data(), static_cast<int>(narrow.size()));
    return *this;
}

CString& CString::Assign(const VARIANT& variant)
{
    if (variant.vt == VT_EMPTY || variant.vt == VT_NULL) {
        Empty();
        return *this;
    }
    VARIANT text;
    ::VariantInit(&text);
    if (FAILED(::VariantChangeType(&text, const_cast<VARIANT*>(&variant), 0, VT_BSTR)))
        AfxThrowInvalidArgException();
    const CString converted(text.bstrVal, static_cast<int>(::SysStringLen(text.bstrVal)));
    ::VariantClear(&text);
    return *this = converted;
}

void CString::FormatPlain(PCXSTR format, ...)
{
    va_list args;
    va_start(args, format);
    FormatV(format, args);
    va_end(args);
}

void CString::FormatPlain(UINT formatId, ...)
{
    va_list args;
    va_start(args, formatId);
    FormatV(afxint::LoadFormat(formatId), args);
    va_end(args);
}

void CString::AppendPlain(PCXSTR format, ...)
{
    va_list args;
    va_start(args, format);
    CString added;
    added.FormatV(format, args);
    Append(added);
    va_end(args);
}

void CString::AppendPlain(UINT formatId, ...)
{
    va_list args;
    va_start(args, formatId);
    CString added;
    added.FormatV(afxint::LoadFormat(formatId), args);
    Append(added);
    va_end(args);
}

void CString::MessagePlain(PCXSTR format, ...)
{
    va_list args;
    va_start(args, format);
    FormatMessageV(format, &args);
    va_end(args);
}

void CString::MessagePlain(UINT formatId, ...)
{
    va_list args;
    va_start(args, formatId);
    FormatMessageV(afxint::LoadFormat(formatId), &args);
    va_end(args);
}

CString operator+(const CString& str1, const CString& str2)
{
    return Concatenate(ViewOf(str1), ViewOf(str2));
}

CString operator+(const CString& str1, LPCSTR psz2)
{
    return Concatenate(ViewOf(str1), ViewOf(psz2));
}

CString operator+(LPCSTR psz1, const CString& str2)
{
    return Concatenate(ViewOf(psz1), ViewOf(str2));
}

bool operator==(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) == 0;
}

bool operator==(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) == 0;
}

bool operator==(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) == 0;
}

bool operator!=(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) != 0;
}

bool operator!=(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) != 0;
}

bool operator!=(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) != 0;
}

bool operator<(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) < 0;
}

bool operator<(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) < 0;
}

bool operator<(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) < 0;
}

bool operator>(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) > 0;
}

bool operator>(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) > 0;
}

bool operator>(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) > 0;
}

bool operator<=(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) <= 0;
}

bool operator<=(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) <= 0;
}

bool operator<=(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) <= 0;
}

bool operator>=(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) >= 0;
}

bool operator>=(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) >= 0;
}

bool operator>=(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) >= 0;
}
