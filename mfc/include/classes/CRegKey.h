// A key of the registry, closed at its end.
//
// Nothing throws: functions return ERROR_SUCCESS or another error of the system. A value of another
// type than is asked for gives ERROR_INVALID_DATA; a buffer that is too small gives
// ERROR_MORE_DATA, and the size that is needed; without a buffer only that size is told.
#pragma once

#include <classes/Platform.h>

class AFX_EXPORTED CRegKey
{
public:
    CRegKey() noexcept;
    /// Takes the key over; the other object has none any more.
    CRegKey(CRegKey& key) noexcept;
    explicit CRegKey(HKEY hKey) noexcept;
    ~CRegKey() noexcept;
    CRegKey& operator=(CRegKey& key) noexcept;

    operator HKEY() const noexcept;
    HKEY m_hKey = NULL;

    void Attach(HKEY hKey) noexcept;
    HKEY Detach() noexcept;
    LONG Close() noexcept;
    LONG Flush() noexcept;
    /// Opens the key, and makes it when it is missing.
    LONG Create(HKEY hKeyParent, LPCTSTR lpszKeyName, LPTSTR lpszClass = REG_NONE,
                DWORD dwOptions = REG_OPTION_NON_VOLATILE, REGSAM samDesired = KEY_READ | KEY_WRITE,
                LPSECURITY_ATTRIBUTES lpSecAttr = NULL, LPDWORD lpdwDisposition = NULL) noexcept;
    LONG Open(HKEY hKeyParent, LPCTSTR lpszKeyName,
              REGSAM samDesired = KEY_READ | KEY_WRITE) noexcept;

    LONG SetValue(LPCTSTR pszValueName, DWORD dwType, const void* pValue, ULONG nBytes) noexcept;
    LONG SetGUIDValue(LPCTSTR pszValueName, REFGUID guidValue) noexcept;
    LONG SetBinaryValue(LPCTSTR pszValueName, const void* pValue, ULONG nBytes) noexcept;
    LONG SetDWORDValue(LPCTSTR pszValueName, DWORD dwValue) noexcept;
    LONG SetQWORDValue(LPCTSTR pszValueName, ULONGLONG qwValue) noexcept;
    /// REG_SZ or REG_EXPAND_SZ.
    LONG SetStringValue(LPCTSTR pszValueName, LPCTSTR pszValue, DWORD dwType = REG_SZ) noexcept;
    /// Strings one after another, with an empty one behind the last.
    LONG SetMultiStringValue(LPCTSTR pszValueName, LPCTSTR pszValue) noexcept;
    /// Sets a string value of a key below this one, which is made when it is missing.
    LONG SetKeyValue(LPCTSTR lpszKeyName, LPCTSTR lpszValue, LPCTSTR lpszValueName = NULL) noexcept;
    static LONG WINAPI SetValue(HKEY hKeyParent, LPCTSTR lpszKeyName, LPCTSTR lpszValue,
                                LPCTSTR lpszValueName = NULL);
    // Forms of former versions.
    LONG SetValue(DWORD dwValue, LPCTSTR lpszValueName);
    LONG SetValue(LPCTSTR lpszValue, LPCTSTR lpszValueName = NULL, bool bMulti = false,
                  int nValueLen = -1);

    /// Sizes in bytes.
    LONG QueryValue(LPCTSTR pszValueName, DWORD* pdwType, void* pData, ULONG* pnBytes) noexcept;
    LONG QueryGUIDValue(LPCTSTR pszValueName, GUID& guidValue) noexcept;
    LONG QueryBinaryValue(LPCTSTR pszValueName, void* pValue, ULONG* pnBytes) noexcept;
    LONG QueryDWORDValue(LPCTSTR pszValueName, DWORD& dwValue) noexcept;
    LONG QueryQWORDValue(LPCTSTR pszValueName, ULONGLONG& qwValue) noexcept;
    /// Sizes in characters, with the terminators.
    LONG QueryStringValue(LPCTSTR pszValueName, LPTSTR pszValue, ULONG* pnChars) noexcept;
    LONG QueryMultiStringValue(LPCTSTR pszValueName, LPTSTR pszValue, ULONG* pnChars) noexcept;
    // Forms of former versions.
    LONG QueryValue(DWORD& dwValue, LPCTSTR lpszValueName);
    LONG QueryValue(LPTSTR szValue, LPCTSTR lpszValueName, DWORD* pdwCount);

    LONG GetKeySecurity(SECURITY_INFORMATION si, PSECURITY_DESCRIPTOR psd,
                        LPDWORD pnBytes) noexcept;
    LONG SetKeySecurity(SECURITY_INFORMATION si, PSECURITY_DESCRIPTOR psd) noexcept;

    /// A key below this one, without keys of its own.
    LONG DeleteSubKey(LPCTSTR lpszSubKey) noexcept;
    /// A key below this one with all that is below it.
    LONG RecurseDeleteKey(LPCTSTR lpszKey) noexcept;
    LONG DeleteValue(LPCTSTR lpszValue) noexcept;
    /// The name of key number iIndex below this one; ERROR_NO_MORE_ITEMS behind the last.
    LONG EnumKey(DWORD iIndex, LPTSTR pszName, LPDWORD pnNameLength,
                 FILETIME* pftLastWriteTime = NULL) noexcept;
    /// Sets the event when something changes, or waits for that when bAsync is FALSE.
    LONG NotifyChangeKeyValue(BOOL bWatchSubtree, DWORD dwNotifyFilter, HANDLE hEvent,
                              BOOL bAsync = TRUE) noexcept;
};
