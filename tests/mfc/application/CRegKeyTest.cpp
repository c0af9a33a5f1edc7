#include <atlbase.h>

#include <doctest/doctest.h>

#include "testing/Text.h"

#include <string>

namespace {

using umbra::testing::TString;

constexpr TCHAR testKey[] = _T("Software\\Umbra CRegKey Test");

/// A key of the test's own, gone at the end.
class TestKey : public CRegKey
{
public:
    TestKey()
    {
        Remove();
        REQUIRE(Create(HKEY_CURRENT_USER, testKey) == ERROR_SUCCESS);
    }
    ~TestKey() { Remove(); }

private:
    void Remove()
    {
        Close();
        CRegKey software;
        software.Open(HKEY_CURRENT_USER, _T("Software"));
        software.RecurseDeleteKey(_T("Umbra CRegKey Test"));
    }
};

/// A value of any type and bytes.
void SetRaw(CRegKey& key, LPCTSTR name, DWORD type, const void* bytes, size_t size)
{
    REQUIRE(::RegSetValueEx(key, name, 0, type, static_cast<const BYTE*>(bytes),
                            static_cast<DWORD>(size)) == ERROR_SUCCESS);
}

TString TextOf(CRegKey& key, LPCTSTR name)
{
    TCHAR text[100];
    ULONG length = _countof(text);
    REQUIRE(key.QueryStringValue(name, text, &length) == ERROR_SUCCESS);
    CHECK(text[length - 1] == '\0');
    return TString(text, length - 1);
}

const GUID someGuid = {0x12345678, 0x9ABC, 0xDEF0, {1, 2, 3, 4, 5, 6, 7, 8}};

} // namespace

TEST_CASE("a key is made, opened again and closed")
{
    TestKey root;
    CRegKey key;
    CHECK(key.m_hKey == NULL);
    DWORD disposition = 0;
    CHECK(key.Create(root, _T("Sub"), REG_NONE, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE, NULL,
                     &disposition) == ERROR_SUCCESS);
    CHECK(disposition == REG_CREATED_NEW_KEY);
    CHECK(key.m_hKey != NULL);
    CHECK(key.Create(root, _T("Sub"), REG_NONE, 0, KEY_READ, NULL, &disposition) == ERROR_SUCCESS);
    CHECK(disposition == REG_OPENED_EXISTING_KEY);
    CHECK(key.Flush() == ERROR_SUCCESS);
    CHECK(key.Close() == ERROR_SUCCESS);
    CHECK(key.m_hKey == NULL);
    CHECK(key.Close() == ERROR_SUCCESS);
    CHECK(key.Open(root, _T("Missing")) == ERROR_FILE_NOT_FOUND);
    CHECK(key.m_hKey == NULL);
    CHECK(key.Open(root, _T("Sub")) == ERROR_SUCCESS);
    const HKEY handle = key;
    CHECK(key.Open(root, _T("Missing")) == ERROR_FILE_NOT_FOUND);
    CHECK(static_cast<HKEY>(key) == handle); // As it was.
}

TEST_CASE("a key goes from object to object")
{
    TestKey root;
    CRegKey first;
    first.Open(root, _T(""));
    const HKEY handle = first;
    CRegKey second(first);
    CHECK(first.m_hKey == NULL);
    CHECK(static_cast<HKEY>(second) == handle);
    CRegKey third;
    third = second;
    CHECK(second.m_hKey == NULL);
    CHECK(static_cast<HKEY>(third) == handle);
    CRegKey& same = third;
    third = same;
    CHECK(static_cast<HKEY>(third) == handle);
    CHECK(third.Detach() == handle);
    CHECK(third.m_hKey == NULL);
    CRegKey fourth(handle);
    CHECK(fourth.Detach() == handle);
    first.Attach(handle);
    CHECK(first.SetDWORDValue(_T("Value"), 1) == ERROR_SUCCESS);
}

TEST_CASE("values of every type come back")
{
    TestKey key;
    CHECK(key.SetDWORDValue(_T("DWORD"), 0xFEDCBA98) == ERROR_SUCCESS);
    DWORD number = 0;
    CHECK(key.QueryDWORDValue(_T("DWORD"), number) == ERROR_SUCCESS);
    CHECK(number == 0xFEDCBA98);

    CHECK(key.SetQWORDValue(_T("QWORD"), 0x123456789ABCDEF0) == ERROR_SUCCESS);
    ULONGLONG greatNumber = 0;
    CHECK(key.QueryQWORDValue(_T("QWORD"), greatNumber) == ERROR_SUCCESS);
    CHECK(greatNumber == 0x123456789ABCDEF0);

    CHECK(key.SetGUIDValue(_T("GUID"), someGuid) == ERROR_SUCCESS);
    GUID guid = {};
    CHECK(key.QueryGUIDValue(_T("GUID"), guid) == ERROR_SUCCESS);
    CHECK(IsEqualGUID(guid, someGuid));
    CHECK(TextOf(key, _T("GUID")) == _T("{12345678-9ABC-DEF0-0102-030405060708}"));

    const BYTE bytes[] = {1, 0, 2};
    CHECK(key.SetBinaryValue(_T("Binary"), bytes, 3) == ERROR_SUCCESS);
    BYTE loaded[5] = {};
    ULONG size = sizeof(loaded);
    CHECK(key.QueryBinaryValue(_T("Binary"), loaded, &size) == ERROR_SUCCESS);
    CHECK(size == 3);
    CHECK(memcmp(loaded, bytes, 3) == 0);

    CHECK(key.SetStringValue(_T("Text"), _T("some text")) == ERROR_SUCCESS);
    CHECK(TextOf(key, _T("Text")) == _T("some text"));
    CHECK(key.SetStringValue(NULL, _T("of the key")) == ERROR_SUCCESS);
    CHECK(TextOf(key, NULL) == _T("of the key"));
    CHECK(key.SetStringValue(_T("Path"), _T("%TEMP%"), REG_EXPAND_SZ) == ERROR_SUCCESS);
    CHECK(TextOf(key, _T("Path")) == _T("%TEMP%"));
    DWORD type = 0;
    size = 0;
    CHECK(key.QueryValue(_T("Path"), &type, NULL, &size) == ERROR_SUCCESS);
    CHECK(type == REG_EXPAND_SZ);
    CHECK(size == 7 * sizeof(TCHAR));

    const TString texts(_T("one\0three\0"), 10);
    CHECK(key.SetMultiStringValue(_T("Texts"), texts.c_str()) == ERROR_SUCCESS);
    TCHAR loadedTexts[20];
    ULONG length = _countof(loadedTexts);
    CHECK(key.QueryMultiStringValue(_T("Texts"), loadedTexts, &length) == ERROR_SUCCESS);
    CHECK(length == 11);
    CHECK(TString(loadedTexts, 11) == texts + TString(1, '\0'));
    CHECK(key.SetMultiStringValue(_T("None"), _T("")) == ERROR_SUCCESS);
    length = _countof(loadedTexts);
    CHECK(key.QueryMultiStringValue(_T("None"), loadedTexts, &length) == ERROR_SUCCESS);
    CHECK(loadedTexts[0] == '\0');
}

TEST_CASE("a value of another type is no valid data, and changes nothing")
{
    TestKey key;
    key.SetDWORDValue(_T("Number"), 5);
    key.SetStringValue(_T("Text"), _T("text"));
    DWORD number = 7;
    CHECK(key.QueryDWORDValue(_T("Text"), number) == ERROR_INVALID_DATA);
    CHECK(number == 7);
    ULONGLONG greatNumber = 7;
    CHECK(key.QueryQWORDValue(_T("Number"), greatNumber) == ERROR_INVALID_DATA);
    CHECK(greatNumber == 7);
    GUID guid = someGuid;
    CHECK(key.QueryGUIDValue(_T("Number"), guid) == ERROR_INVALID_DATA);
    CHECK(key.QueryGUIDValue(_T("Text"), guid) == ERROR_INVALID_DATA);
    key.SetStringValue(_T("Long"), TString(500, 'x').c_str());
    CHECK(key.QueryGUIDValue(_T("Long"), guid) == ERROR_INVALID_DATA);
    CHECK(IsEqualGUID(guid, someGuid));
    TCHAR text[20];
    ULONG size = _countof(text);
    CHECK(key.QueryStringValue(_T("Number"), text, &size) == ERROR_INVALID_DATA);
    size = _countof(text);
    CHECK(key.QueryMultiStringValue(_T("Text"), text, &size) == ERROR_INVALID_DATA);
    size = sizeof(text);
    CHECK(key.QueryBinaryValue(_T("Text"), text, &size) == ERROR_INVALID_DATA);

    // Of the right type, but of another size.
    SetRaw(key, _T("Short"), REG_DWORD, "ab", 2);
    CHECK(key.QueryDWORDValue(_T("Short"), number) == ERROR_INVALID_DATA);
    SetRaw(key, _T("Long number"), REG_QWORD, "0123456789", 10);
    CHECK(key.QueryQWORDValue(_T("Long number"), greatNumber) == ERROR_INVALID_DATA);
    CHECK(number == 7);

    CHECK(key.QueryDWORDValue(_T("Missing"), number) == ERROR_FILE_NOT_FOUND);
    size = _countof(text);
    CHECK(key.QueryStringValue(_T("Missing"), text, &size) == ERROR_FILE_NOT_FOUND);
    CHECK(key.SetStringValue(_T("Text"), _T("x"), REG_DWORD) == ERROR_INVALID_DATA);
    CHECK(key.SetStringValue(_T("Text"), NULL) == ERROR_INVALID_DATA);
    CHECK(key.SetMultiStringValue(_T("Text"), NULL) == ERROR_INVALID_DATA);
}

TEST_CASE("a buffer that is too small is told the size, and without one only that is told")
{
    TestKey key;
    key.SetStringValue(_T("Text"), _T("some text"));
    TCHAR text[20];
    ULONG length = 4;
    CHECK(key.QueryStringValue(_T("Text"), text, &length) == ERROR_MORE_DATA);
    CHECK(length == 10);
    length = 0;
    CHECK(key.QueryStringValue(_T("Text"), NULL, &length) == ERROR_SUCCESS);
    CHECK(length == 10);
    length = 10;
    CHECK(key.QueryStringValue(_T("Text"), text, &length) == ERROR_SUCCESS);
    CHECK(length == 10);
    CHECK(key.QueryStringValue(_T("Text"), text, NULL) == ERROR_INVALID_PARAMETER);

    key.SetBinaryValue(_T("Binary"), "abcd", 4);
    ULONG size = 2;
    CHECK(key.QueryBinaryValue(_T("Binary"), text, &size) == ERROR_MORE_DATA);
    CHECK(size == 4);
    size = 0;
    CHECK(key.QueryBinaryValue(_T("Binary"), NULL, &size) == ERROR_SUCCESS);
    CHECK(size == 4);
    CHECK(key.QueryBinaryValue(_T("Binary"), text, NULL) == ERROR_INVALID_PARAMETER);
}

TEST_CASE("text gets the terminators that the registry did not keep")
{
    TestKey key;
    SetRaw(key, _T("Text"), REG_SZ, _T("abc"), 3 * sizeof(TCHAR));
    CHECK(TextOf(key, _T("Text")) == _T("abc"));
    SetRaw(key, _T("Texts"), REG_MULTI_SZ, _T("abc"), 3 * sizeof(TCHAR));
    TCHAR texts[10];
    ULONG length = _countof(texts);
    CHECK(key.QueryMultiStringValue(_T("Texts"), texts, &length) == ERROR_SUCCESS);
    CHECK(TString(texts, length) == TString(_T("abc\0\0"), 5));
    SetRaw(key, _T("Texts"), REG_MULTI_SZ, _T(""), 0);
    length = _countof(texts);
    CHECK(key.QueryMultiStringValue(_T("Texts"), texts, &length) == ERROR_SUCCESS);
    CHECK(TString(texts, length) == TString(2, '\0'));
}

TEST_CASE("keys below are counted off and deleted")
{
    TestKey key;
    CRegKey sub;
    for (LPCTSTR name : {_T("b"), _T("a"), _T("c\\d\\e")})
        CHECK(sub.Create(key, name) == ERROR_SUCCESS);
    CHECK(sub.SetKeyValue(_T("f"), _T("value"), _T("Name")) == ERROR_SUCCESS);
    sub.Close();
    TString names;
    TCHAR name[20];
    DWORD index = 0;
    for (;; ++index) {
        DWORD length = _countof(name);
        FILETIME written = {};
        const LONG result = key.EnumKey(index, name, &length, &written);
        if (result == ERROR_NO_MORE_ITEMS)
            break;
        REQUIRE(result == ERROR_SUCCESS);
        CHECK(length == _tcslen(name));
        names += name;
    }
    CHECK(index == 3);
    CHECK(names == _T("abc"));
    DWORD length = 1;
    CHECK(key.EnumKey(0, name, &length) == ERROR_MORE_DATA);

    CHECK(key.DeleteSubKey(_T("a")) == ERROR_SUCCESS);
    CHECK(key.DeleteSubKey(_T("a")) == ERROR_FILE_NOT_FOUND);
    CHECK(key.RecurseDeleteKey(_T("c")) == ERROR_SUCCESS);
    CHECK(sub.Open(key, _T("c")) == ERROR_FILE_NOT_FOUND);
    CHECK(key.RecurseDeleteKey(_T("c")) == ERROR_FILE_NOT_FOUND);
    // Which would be the key itself.
    CHECK(key.RecurseDeleteKey(_T("")) == ERROR_INVALID_PARAMETER);
    CHECK(key.RecurseDeleteKey(NULL) == ERROR_INVALID_PARAMETER);
    CHECK(sub.Open(key, _T("b")) == ERROR_SUCCESS);

    key.SetDWORDValue(_T("Value"), 1);
    CHECK(key.DeleteValue(_T("Value")) == ERROR_SUCCESS);
    CHECK(key.DeleteValue(_T("Value")) == ERROR_FILE_NOT_FOUND);
}

TEST_CASE("values of keys below can be set at once, and in the forms of former versions")
{
    TestKey key;
    CHECK(key.SetKeyValue(_T("Sub"), _T("one"), _T("Name")) == ERROR_SUCCESS);
    CHECK(CRegKey::SetValue(key, _T("Sub"), _T("two")) == ERROR_SUCCESS);
    CRegKey sub;
    REQUIRE(sub.Open(key, _T("Sub")) == ERROR_SUCCESS);
    CHECK(TextOf(sub, _T("Name")) == _T("one"));
    CHECK(TextOf(sub, NULL) == _T("two"));

    CHECK(sub.SetValue(5ul, _T("Number")) == ERROR_SUCCESS);
    DWORD number = 0;
    CHECK(sub.QueryValue(number, _T("Number")) == ERROR_SUCCESS);
    CHECK(number == 5);
    CHECK(sub.SetValue(_T("three"), _T("Text")) == ERROR_SUCCESS);
    TCHAR text[20];
    DWORD length = _countof(text);
    CHECK(sub.QueryValue(text, _T("Text"), &length) == ERROR_SUCCESS);
    CHECK(TString(text) == _T("three"));
    CHECK(sub.SetValue(_T("a\0b\0"), _T("Texts"), true) == ERROR_SUCCESS);
    length = _countof(text);
    CHECK(sub.QueryMultiStringValue(_T("Texts"), text, &length) == ERROR_SUCCESS);
    CHECK(length == 5);
    CHECK(sub.SetValue(_T("a\0\0b"), _T("Texts"), true, 3) == ERROR_SUCCESS);
    ULONG bytes = 0;
    CHECK(sub.QueryValue(_T("Texts"), NULL, NULL, &bytes) == ERROR_SUCCESS);
    CHECK(bytes == 3 * sizeof(TCHAR));
}

TEST_CASE("a change of a key sets an event")
{
    TestKey key;
    const HANDLE changed = ::CreateEvent(NULL, TRUE, FALSE, NULL);
    CHECK(key.NotifyChangeKeyValue(FALSE, REG_NOTIFY_CHANGE_LAST_SET, changed) == ERROR_SUCCESS);
    CHECK(::WaitForSingleObject(changed, 0) == WAIT_TIMEOUT);
    key.SetDWORDValue(_T("Value"), 1);
    CHECK(::WaitForSingleObject(changed, 40000) == WAIT_OBJECT_0);
    ::CloseHandle(changed);
}

TEST_CASE("the security of a key can be read and set")
{
    TestKey key;
    DWORD size = 0;
    CHECK(key.GetKeySecurity(DACL_SECURITY_INFORMATION, NULL, &size) == ERROR_INSUFFICIENT_BUFFER);
    std::string descriptor(size, '\0');
    CHECK(key.GetKeySecurity(DACL_SECURITY_INFORMATION, descriptor.data(), &size) == ERROR_SUCCESS);
    CHECK(key.SetKeySecurity(DACL_SECURITY_INFORMATION, descriptor.data()) == ERROR_ACCESS_DENIED);
    CRegKey owned;
    REQUIRE(owned.Open(HKEY_CURRENT_USER, testKey, READ_CONTROL | WRITE_DAC) == ERROR_SUCCESS);
    CHECK(owned.SetKeySecurity(DACL_SECURITY_INFORMATION, descriptor.data()) == ERROR_SUCCESS);
}

TEST_CASE("an object without a key reports the error of the system")
{
    CRegKey none;
    DWORD number = 3;
    CHECK(none.QueryDWORDValue(_T("x"), number) == ERROR_INVALID_HANDLE);
    CHECK(none.SetDWORDValue(_T("x"), 1) == ERROR_INVALID_HANDLE);
    CHECK(none.DeleteValue(_T("x")) == ERROR_INVALID_HANDLE);
    CHECK(none.Flush() == ERROR_INVALID_HANDLE);
    CHECK(none.RecurseDeleteKey(_T("x")) == ERROR_INVALID_HANDLE);
    CHECK(number == 3);
}
