// The settings of a program: in the registry once SetRegistryKey was called, else in a file.
#include <classes/CWinApp.h>

#include "application/ProfileFile.h"

#include <vector>

namespace {

HKEY MakeKey(HKEY parent, LPCTSTR name)
{
    HKEY key = NULL;
    if (parent == NULL || name == NULL)
        return NULL;
    RegCreateKeyEx(parent, name, 0, NULL, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE, NULL, &key,
                   NULL);
    return key;
}

/// A registry key that is closed at the end of the scope.
class ScopedKey
{
public:
    explicit ScopedKey(HKEY key) : key_(key) {}
    ~ScopedKey()
    {
        if (key_ != NULL)
            RegCloseKey(key_);
    }
    ScopedKey(const ScopedKey&) = delete;
    ScopedKey& operator=(const ScopedKey&) = delete;

    HKEY Get() const { return key_; }
    explicit operator bool() const { return key_ != NULL; }
    bool Read(LPCTSTR entry, DWORD type, void* data, DWORD& size) const
    {
        DWORD found = 0;
        return RegQueryValueEx(key_, entry, NULL, &found, static_cast<BYTE*>(data), &size) ==
                   ERROR_SUCCESS &&
               found == type;
    }
    bool Write(LPCTSTR entry, DWORD type, const void* data, DWORD size) const
    {
        return RegSetValueEx(key_, entry, 0, type, static_cast<const BYTE*>(data), size) ==
               ERROR_SUCCESS;
    }

private:
    HKEY key_;
};

BOOL WriteToFile(LPCTSTR file, LPCTSTR section, LPCTSTR entry, LPCTSTR value)
{
    afxint::PrepareProfileFile(file);
    return ::WritePrivateProfileString(section, entry, value, file);
}

// A file holds bytes as two letters each, A to P for the upper and the lower half.
CString SpellBytes(const BYTE* data, UINT size)
{
    CString text;
    for (UINT i = 0; i < size; ++i) {
        text += static_cast<TCHAR>('A' + (data[i] >> 4));
        text += static_cast<TCHAR>('A' + (data[i] & 0x0F));
    }
    return text;
}

bool ReadBytes(const CString& text, BYTE* data)
{
    for (int i = 0; i + 1 < text.GetLength(); i += 2) {
        const int high = text[i] - 'A';
        const int low = text[i + 1] - 'A';
        if (high < 0 || high > 15 || low < 0 || low > 15)
            return false;
        data[i / 2] = static_cast<BYTE>(high << 4 | low);
    }
    return true;
}

/// Gives bytes to a caller who frees them with delete[].
void HandOut(const std::vector<BYTE>& bytes, LPBYTE* data, UINT* size)
{
    *size = static_cast<UINT>(bytes.size());
    *data = new BYTE[bytes.size()];
    if (!bytes.empty())
        memcpy(*data, bytes.data(), bytes.size());
}

} // namespace

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault)
{
    if (m_pszRegistryKey == NULL)
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    const ScopedKey section(GetSectionKey(lpszSection));
    DWORD value = 0;
    DWORD size = sizeof(value);
    if (!section || !section.Read(lpszEntry, REG_DWORD, &value, size))
        return static_cast<UINT>(nDefault);
    return value;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue)
{
    if (m_pszRegistryKey == NULL) {
        CString text;
        text.Format(_T("%d"), nValue);
        return WriteToFile(m_pszProfileName, lpszSection, lpszEntry, text);
    }
    const ScopedKey section(GetSectionKey(lpszSection));
    return section && section.Write(lpszEntry, REG_DWORD, &nValue, sizeof(nValue));
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault)
{
    if (m_pszRegistryKey == NULL) {
        std::vector<TCHAR> text(4096);
        const LPCTSTR otherwise = lpszDefault == NULL ? _T("") : lpszDefault;
        // A result of the size less one means that the value was cut short.
        while (::GetPrivateProfileString(lpszSection, lpszEntry, otherwise, text.data(),
                                         static_cast<DWORD>(text.size()),
                                         m_pszProfileName) == text.size() - 1)
            text.resize(2 * text.size());
        return text.data();
    }
    const ScopedKey section(GetSectionKey(lpszSection));
    DWORD size = 0;
    if (!section || !section.Read(lpszEntry, REG_SZ, NULL, size))
        return lpszDefault;
    std::vector<TCHAR> text(size / sizeof(TCHAR) + 1); // The registry may lack the terminator.
    if (!section.Read(lpszEntry, REG_SZ, text.data(), size))
        return lpszDefault;
    return text.data();
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue)
{
    if (m_pszRegistryKey == NULL)
        return WriteToFile(m_pszProfileName, lpszSection, lpszEntry, lpszValue);
    if (lpszEntry == NULL) {
        const ScopedKey application(GetAppRegistryKey());
        return application && DelRegTree(application.Get(), lpszSection) == ERROR_SUCCESS;
    }
    const ScopedKey section(GetSectionKey(lpszSection));
    if (!section)
        return FALSE;
    if (lpszValue == NULL) {
        const LONG result = RegDeleteValue(section.Get(), lpszEntry);
        return result == ERROR_SUCCESS || result == ERROR_FILE_NOT_FOUND;
    }
    const auto size = static_cast<DWORD>((_tcslen(lpszValue) + 1) * sizeof(TCHAR));
    return section.Write(lpszEntry, REG_SZ, lpszValue, size);
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes)
{
    *ppData = NULL;
    *pBytes = 0;
    if (m_pszRegistryKey == NULL) {
        const CString text = GetProfileString(lpszSection, lpszEntry);
        if (text.IsEmpty())
            return FALSE;
        std::vector<BYTE> bytes(text.GetLength() / 2);
        if (!ReadBytes(text, bytes.data()))
            return FALSE;
        HandOut(bytes, ppData, pBytes);
        return TRUE;
    }
    const ScopedKey section(GetSectionKey(lpszSection));
    DWORD size = 0;
    if (!section || !section.Read(lpszEntry, REG_BINARY, NULL, size))
        return FALSE;
    std::vector<BYTE> bytes(size);
    if (!section.Read(lpszEntry, REG_BINARY, bytes.data(), size))
        return FALSE;
    HandOut(bytes, ppData, pBytes);
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes)
{
    if (m_pszRegistryKey == NULL)
        return WriteProfileString(lpszSection, lpszEntry, SpellBytes(pData, nBytes));
    const ScopedKey section(GetSectionKey(lpszSection));
    return section && section.Write(lpszEntry, REG_BINARY, pData, nBytes);
}

HKEY CWinApp::GetAppRegistryKey()
{
    const ScopedKey software(MakeKey(HKEY_CURRENT_USER, _T("Software")));
    const ScopedKey company(MakeKey(software.Get(), m_pszRegistryKey));
    return MakeKey(company.Get(), m_pszProfileName);
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection)
{
    const ScopedKey application(GetAppRegistryKey());
    return MakeKey(application.Get(), lpszSection);
}

LONG CWinApp::DelRegTree(HKEY hParentKey, const CString& strKeyName)
{
    return static_cast<LONG>(SHDeleteKey(hParentKey, strKeyName));
}
