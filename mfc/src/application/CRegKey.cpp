#include <classes/CRegKey.h>

#include <utility>

namespace {

/// The bytes of a string with its terminator.
DWORD SizeOf(LPCTSTR text)
{
    return static_cast<DWORD>((_tcslen(text) + 1) * sizeof(TCHAR));
}

/// The characters of strings one after another, with the empty one behind the last.
size_t LengthOfMulti(LPCTSTR texts)
{
    LPCTSTR at = texts;
    while (*at != '\0')
        at += _tcslen(at) + 1;
    return static_cast<size_t>(at - texts) + 1;
}

/// Reads a value of one type and size.
LONG QueryFixed(HKEY key, LPCTSTR name, DWORD wanted, void* value, DWORD size)
{
    DWORD type = REG_NONE;
    DWORD got = size;
    const LONG result = ::RegQueryValueEx(key, name, NULL, &type, static_cast<BYTE*>(value), &got);
    if (result != ERROR_SUCCESS && result != ERROR_MORE_DATA)
        return result;
    return result == ERROR_SUCCESS && type == wanted && got == size ? ERROR_SUCCESS
                                                                    : ERROR_INVALID_DATA;
}

bool IsText(DWORD type)
{
    return type == REG_SZ || type == REG_EXPAND_SZ;
}

bool IsMultiText(DWORD type)
{
    return type == REG_MULTI_SZ;
}

/// Reads text and sees to its terminators, which the registry does not ask for: `terminators` of
/// them have to stand at its end.
LONG QueryText(HKEY key, LPCTSTR name, bool (*fits)(DWORD), ULONG terminators, LPTSTR text,
               ULONG* count)
{
    if (count == NULL)
        return ERROR_INVALID_PARAMETER;
    DWORD type = REG_NONE;
    DWORD bytes = text == NULL ? 0 : static_cast<DWORD>(*count * sizeof(TCHAR));
    const ULONG room = text == NULL ? 0 : *count;
    *count = 0;
    LONG result = ::RegQueryValueEx(key, name, NULL, &type, reinterpret_cast<BYTE*>(text), &bytes);
    if (result != ERROR_SUCCESS && result != ERROR_MORE_DATA)
        return result;
    if (!fits(type) || bytes % sizeof(TCHAR) != 0)
        return ERROR_INVALID_DATA;
    ULONG length = static_cast<ULONG>(bytes / sizeof(TCHAR));
    if (text == NULL || result == ERROR_MORE_DATA) {
        *count = length;
        return result;
    }
    ULONG ending = 0;
    while (ending < terminators && ending < length && text[length - 1 - ending] == '\0')
        ++ending;
    if (terminators - ending > room - length) {
        *count = length + terminators - ending;
        return ERROR_MORE_DATA;
    }
    for (; ending < terminators; ++ending)
        text[length++] = '\0';
    *count = length;
    return ERROR_SUCCESS;
}

/// Deletes what is below the key, from the last on, so that the numbers of the others stay.
LONG DeleteAllBelow(HKEY key)
{
    DWORD keys = 0;
    LONG result =
        ::RegQueryInfoKey(key, NULL, NULL, NULL, &keys, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
    TCHAR name[256]; // Longer than names of keys may be.
    while (result == ERROR_SUCCESS && keys-- > 0) {
        DWORD length = _countof(name);
        result = ::RegEnumKeyEx(key, keys, name, &length, NULL, NULL, NULL, NULL);
        if (result != ERROR_SUCCESS)
            break;
        CRegKey below;
        result = below.Open(key, name);
        if (result == ERROR_SUCCESS)
            result = DeleteAllBelow(below);
        below.Close();
        if (result == ERROR_SUCCESS)
            result = ::RegDeleteKey(key, name);
    }
    return result;
}

} // namespace

CRegKey::CRegKey() noexcept = default;

CRegKey::CRegKey(CRegKey& key) noexcept : m_hKey(key.Detach())
{
}

CRegKey::CRegKey(HKEY hKey) noexcept : m_hKey(hKey)
{
}

CRegKey::~CRegKey() noexcept
{
    Close();
}

CRegKey& CRegKey::operator=(CRegKey& key) noexcept
{
    if (this != &key) {
        Close();
        Attach(key.Detach());
    }
    return *this;
}

CRegKey::operator HKEY() const noexcept
{
    return m_hKey;
}

void CRegKey::Attach(HKEY hKey) noexcept
{
    ASSERT(m_hKey == NULL);
    m_hKey = hKey;
}

HKEY CRegKey::Detach() noexcept
{
    return std::exchange(m_hKey, nullptr);
}

LONG CRegKey::Close() noexcept
{
    const HKEY key = Detach();
    return key == NULL ? ERROR_SUCCESS : ::RegCloseKey(key);
}

LONG CRegKey::Flush() noexcept
{
    return ::RegFlushKey(m_hKey);
}

LONG CRegKey::Create(HKEY hKeyParent, LPCTSTR lpszKeyName, LPTSTR lpszClass, DWORD dwOptions,
                     REGSAM samDesired, LPSECURITY_ATTRIBUTES lpSecAttr,
                     LPDWORD lpdwDisposition) noexcept
{
    HKEY key = NULL;
    DWORD disposition = 0;
    LONG result = ::RegCreateKeyEx(hKeyParent, lpszKeyName, 0, lpszClass, dwOptions, samDesired,
                                   lpSecAttr, &key, &disposition);
    if (lpdwDisposition != NULL)
        *lpdwDisposition = disposition;
    if (result == ERROR_SUCCESS) {
        result = Close();
        m_hKey = key;
    }
    return result;
}

LONG CRegKey::Open(HKEY hKeyParent, LPCTSTR lpszKeyName, REGSAM samDesired) noexcept
{
    HKEY key = NULL;
    LONG result = ::RegOpenKeyEx(hKeyParent, lpszKeyName, 0, samDesired, &key);
    if (result == ERROR_SUCCESS) {
        result = Close();
        m_hKey = key;
    }
    return result;
}

LONG CRegKey::SetValue(LPCTSTR pszValueName, DWORD dwType, const void* pValue,
                       ULONG nBytes) noexcept
{
    return ::RegSetValueEx(m_hKey, pszValueName, 0, dwType, static_cast<const BYTE*>(pValue),
                           nBytes);
}

LONG CRegKey::SetGUIDValue(LPCTSTR pszValueName, REFGUID guidValue) noexcept
{
    OLECHAR text[64];
    if (::StringFromGUID2(guidValue, text, _countof(text)) == 0)
        return ERROR_INVALID_PARAMETER;
    TCHAR value[64];
    for (int i = 0; (value[i] = static_cast<TCHAR>(text[i])) != '\0';) // Digits and braces.
        ++i;
    return SetStringValue(pszValueName, value);
}

LONG CRegKey::SetBinaryValue(LPCTSTR pszValueName, const void* pValue, ULONG nBytes) noexcept
{
    return SetValue(pszValueName, REG_BINARY, pValue, nBytes);
}

LONG CRegKey::SetDWORDValue(LPCTSTR pszValueName, DWORD dwValue) noexcept
{
    return SetValue(pszValueName, REG_DWORD, &dwValue, sizeof(dwValue));
}

LONG CRegKey::SetQWORDValue(LPCTSTR pszValueName, ULONGLONG qwValue) noexcept
{
    return SetValue(pszValueName, REG_QWORD, &qwValue, sizeof(qwValue));
}

LONG CRegKey::SetStringValue(LPCTSTR pszValueName, LPCTSTR pszValue, DWORD dwType) noexcept
{
    if (pszValue == NULL || !IsText(dwType))
        return ERROR_INVALID_DATA;
    return SetValue(pszValueName, dwType, pszValue, SizeOf(pszValue));
}

LONG CRegKey::SetMultiStringValue(LPCTSTR pszValueName, LPCTSTR pszValue) noexcept
{
    if (pszValue == NULL)
        return ERROR_INVALID_DATA;
    return SetValue(pszValueName, REG_MULTI_SZ, pszValue,
                    static_cast<ULONG>(LengthOfMulti(pszValue) * sizeof(TCHAR)));
}

LONG CRegKey::SetKeyValue(LPCTSTR lpszKeyName, LPCTSTR lpszValue, LPCTSTR lpszValueName) noexcept
{
    CRegKey key;
    const LONG result = key.Create(m_hKey, lpszKeyName);
    return result == ERROR_SUCCESS ? key.SetStringValue(lpszValueName, lpszValue) : result;
}

LONG WINAPI CRegKey::SetValue(HKEY hKeyParent, LPCTSTR lpszKeyName, LPCTSTR lpszValue,
                              LPCTSTR lpszValueName)
{
    CRegKey key;
    const LONG result = key.Create(hKeyParent, lpszKeyName);
    return result == ERROR_SUCCESS ? key.SetStringValue(lpszValueName, lpszValue) : result;
}

LONG CRegKey::SetValue(DWORD dwValue, LPCTSTR lpszValueName)
{
    return SetDWORDValue(lpszValueName, dwValue);
}

LONG CRegKey::SetValue(LPCTSTR lpszValue, LPCTSTR lpszValueName, bool bMulti, int nValueLen)
{
    if (!bMulti)
        return SetStringValue(lpszValueName, lpszValue);
    if (nValueLen < 0)
        return SetMultiStringValue(lpszValueName, lpszValue);
    return SetValue(lpszValueName, REG_MULTI_SZ, lpszValue,
                    static_cast<ULONG>(nValueLen * sizeof(TCHAR)));
}

LONG CRegKey::QueryValue(LPCTSTR pszValueName, DWORD* pdwType, void* pData, ULONG* pnBytes) noexcept
{
    return ::RegQueryValueEx(m_hKey, pszValueName, NULL, pdwType, static_cast<BYTE*>(pData),
                             pnBytes);
}

LONG CRegKey::QueryGUIDValue(LPCTSTR pszValueName, GUID& guidValue) noexcept
{
    TCHAR text[64];
    ULONG length = _countof(text);
    LONG result = QueryStringValue(pszValueName, text, &length);
    if (result != ERROR_SUCCESS)
        return result == ERROR_MORE_DATA ? ERROR_INVALID_DATA : result;
    OLECHAR wide[64];
    for (int i = 0; (wide[i] = static_cast<OLECHAR>(text[i])) != '\0';)
        ++i;
    GUID read;
    // Names of classes would do, too, but are no GUIDs.
    if (wide[0] != '{' || FAILED(::CLSIDFromString(wide, &read)))
        return ERROR_INVALID_DATA;
    guidValue = read;
    return ERROR_SUCCESS;
}

LONG CRegKey::QueryBinaryValue(LPCTSTR pszValueName, void* pValue, ULONG* pnBytes) noexcept
{
    if (pnBytes == NULL)
        return ERROR_INVALID_PARAMETER;
    DWORD type = REG_NONE;
    const LONG result = QueryValue(pszValueName, &type, pValue, pnBytes);
    if (result != ERROR_SUCCESS && result != ERROR_MORE_DATA)
        return result;
    return type == REG_BINARY ? result : ERROR_INVALID_DATA;
}

LONG CRegKey::QueryDWORDValue(LPCTSTR pszValueName, DWORD& dwValue) noexcept
{
    DWORD read = 0;
    const LONG result = QueryFixed(m_hKey, pszValueName, REG_DWORD, &read, sizeof(read));
    if (result == ERROR_SUCCESS)
        dwValue = read;
    return result;
}

LONG CRegKey::QueryQWORDValue(LPCTSTR pszValueName, ULONGLONG& qwValue) noexcept
{
    ULONGLONG read = 0;
    const LONG result = QueryFixed(m_hKey, pszValueName, REG_QWORD, &read, sizeof(read));
    if (result == ERROR_SUCCESS)
        qwValue = read;
    return result;
}

LONG CRegKey::QueryStringValue(LPCTSTR pszValueName, LPTSTR pszValue, ULONG* pnChars) noexcept
{
    return QueryText(m_hKey, pszValueName, IsText, 1, pszValue, pnChars);
}

LONG CRegKey::QueryMultiStringValue(LPCTSTR pszValueName, LPTSTR pszValue, ULONG* pnChars) noexcept
{
    return QueryText(m_hKey, pszValueName, IsMultiText, 2, pszValue, pnChars);
}

LONG CRegKey::QueryValue(DWORD& dwValue, LPCTSTR lpszValueName)
{
    return QueryDWORDValue(lpszValueName, dwValue);
}

LONG CRegKey::QueryValue(LPTSTR szValue, LPCTSTR lpszValueName, DWORD* pdwCount)
{
    return QueryStringValue(lpszValueName, szValue, pdwCount);
}

LONG CRegKey::GetKeySecurity(SECURITY_INFORMATION si, PSECURITY_DESCRIPTOR psd,
                             LPDWORD pnBytes) noexcept
{
    return ::RegGetKeySecurity(m_hKey, si, psd, pnBytes);
}

LONG CRegKey::SetKeySecurity(SECURITY_INFORMATION si, PSECURITY_DESCRIPTOR psd) noexcept
{
    return ::RegSetKeySecurity(m_hKey, si, psd);
}

LONG CRegKey::DeleteSubKey(LPCTSTR lpszSubKey) noexcept
{
    return ::RegDeleteKey(m_hKey, lpszSubKey);
}

LONG CRegKey::RecurseDeleteKey(LPCTSTR lpszKey) noexcept
{
    if (lpszKey == NULL || *lpszKey == '\0') // Which would mean this key.
        return ERROR_INVALID_PARAMETER;
    CRegKey key;
    LONG result = key.Open(m_hKey, lpszKey);
    if (result == ERROR_SUCCESS)
        result = DeleteAllBelow(key);
    key.Close();
    return result == ERROR_SUCCESS ? DeleteSubKey(lpszKey) : result;
}

LONG CRegKey::DeleteValue(LPCTSTR lpszValue) noexcept
{
    return ::RegDeleteValue(m_hKey, lpszValue);
}

LONG CRegKey::EnumKey(DWORD iIndex, LPTSTR pszName, LPDWORD pnNameLength,
                      FILETIME* pftLastWriteTime) noexcept
{
    FILETIME ignored;
    return ::RegEnumKeyEx(m_hKey, iIndex, pszName, pnNameLength, NULL, NULL, NULL,
                          pftLastWriteTime == NULL ? &ignored : pftLastWriteTime);
}

LONG CRegKey::NotifyChangeKeyValue(BOOL bWatchSubtree, DWORD dwNotifyFilter, HANDLE hEvent,
                                   BOOL bAsync) noexcept
{
    return ::RegNotifyChangeKeyValue(m_hKey, bWatchSubtree, dwNotifyFilter, hEvent, bAsync);
}
