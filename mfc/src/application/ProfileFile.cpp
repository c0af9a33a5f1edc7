#include "application/ProfileFile.h"

#include <classes/CString.h>

void afxint::PrepareProfileFile([[maybe_unused]] LPCTSTR name)
{
#ifdef UNICODE
    if (name == NULL)
        return;
    // The system looks for a name without a folder in its own one.
    TCHAR folder[MAX_PATH] = _T("");
    if (::PathIsFileSpec(name))
        ::GetWindowsDirectory(folder, _countof(folder));
    const CString path = *folder == '\0' ? CString(name) : CString(folder) + _T("\\") + name;
    const HANDLE file = ::CreateFile(path, GENERIC_WRITE, 0, NULL, CREATE_NEW, 0, NULL);
    if (file == INVALID_HANDLE_VALUE)
        return;
    constexpr wchar_t mark = 0xFEFF;
    DWORD written = 0;
    ::WriteFile(file, &mark, sizeof(mark), &written, NULL);
    ::CloseHandle(file);
#endif
}
