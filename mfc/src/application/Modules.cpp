#include <classes/Modules.h>

#include "application/ModuleState.h"
#include "application/ResourceChain.h"
#include "text/StringResource.h"

#include <algorithm>

extern "C" IMAGE_DOS_HEADER __ImageBase; // Where the linker put this module.

AFX_MODULE_STATE::AFX_MODULE_STATE()
    : instance(GetModuleHandle(NULL)), resource(instance),
      ownLibrary(reinterpret_cast<HINSTANCE>(&__ImageBase))
{
    InitializeCriticalSection(&lock);
}

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState()
{
    // Never deleted: extension DLLs may be unloaded after this one's static objects are gone.
    static AFX_MODULE_STATE* state = new AFX_MODULE_STATE;
    return state;
}

namespace {

/// The modules in the order in which resources are looked for.
std::vector<HINSTANCE> ListResourceModules()
{
    AFX_MODULE_STATE& state = afxint::Module();
    const afxint::ScopedLock lock(state.lock);
    std::vector<HINSTANCE> modules{state.resource};
    for (const bool system : {false, true}) {
        for (auto library = state.libraries.rbegin(); library != state.libraries.rend();
             ++library) {
            if (library->system == system)
                modules.push_back(library->resource);
        }
    }
    modules.push_back(state.ownLibrary);
    return modules;
}

void ReplacePlaceholders(CString& result, UINT id, const LPCTSTR* parts, int count)
{
    CString format;
    format.LoadString(id);
    result.Empty();
    for (LPCTSTR at = format; *at != '\0'; ++at) {
        const int part = *at == '%' ? at[1] - '1' : -1;
        if (part < 0 || part >= count) {
            result += *at;
            continue;
        }
        result += parts[part] == NULL ? _T("") : parts[part];
        ++at;
    }
}

} // namespace

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
{
    AFX_MODULE_STATE& program = afxint::Module();
    const afxint::ScopedLock lock(program.lock);
    program.libraries.push_back({this, state.hModule, state.hResource, bSystem != FALSE});
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
{
    AFX_MODULE_STATE& program = afxint::Module();
    const afxint::ScopedLock lock(program.lock);
    program.libraries.push_back({this, hModule, hResource, false});
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    AFX_MODULE_STATE& program = afxint::Module();
    const afxint::ScopedLock lock(program.lock);
    std::erase_if(program.libraries,
                  [this](const auto& library) { return library.object == this; });
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule)
{
    if (state.bInitialized)
        return TRUE;
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll)
{
    if (!state.bInitialized)
        return;
    AFX_MODULE_STATE& program = afxint::Module();
    std::vector<const CDynLinkLibrary*> leaving;
    {
        const afxint::ScopedLock lock(program.lock);
        for (const auto& library : program.libraries) {
            if (bAll || library.module == state.hModule)
                leaving.push_back(library.object);
        }
    }
    for (const CDynLinkLibrary* object : leaving)
        delete object;
    state.bInitialized = FALSE;
}

HMODULE AFXAPI AfxLoadLibrary(LPCTSTR lpszModuleName)
{
    return ::LoadLibrary(lpszModuleName);
}

HMODULE AFXAPI AfxLoadLibraryEx(LPCTSTR lpFileName, HANDLE hFile, DWORD dwFlags)
{
    return ::LoadLibraryEx(lpFileName, hFile, dwFlags);
}

BOOL AFXAPI AfxFreeLibrary(HINSTANCE hInstLib)
{
    return ::FreeLibrary(hInstLib);
}

HINSTANCE AFXAPI AfxGetInstanceHandle()
{
    return afxint::Module().instance;
}

HINSTANCE AFXAPI AfxGetResourceHandle()
{
    return afxint::Module().resource;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource)
{
    // The program is meant by NULL, here and in the system's own functions.
    AFX_MODULE_STATE& state = afxint::Module();
    state.resource = hInstResource == NULL ? state.instance : hInstResource;
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType)
{
    for (HINSTANCE module : ListResourceModules()) {
        if (FindResource(module, lpszName, lpszType) != NULL)
            return module;
    }
    return AfxGetResourceHandle();
}

int AFXAPI AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf)
{
    if (lpszBuf == NULL || nMaxBuf == 0)
        return 0;
    lpszBuf[0] = '\0';
    HINSTANCE module = afxint::FindStringModule(nID);
    return module == NULL ? 0 : ::LoadString(module, nID, lpszBuf, static_cast<int>(nMaxBuf));
}

void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1)
{
    ReplacePlaceholders(rString, nIDS, &lpsz1, 1);
}

void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2)
{
    const LPCTSTR parts[] = {lpsz1, lpsz2};
    ReplacePlaceholders(rString, nIDS, parts, 2);
}

BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                TCHAR chSep)
{
    rString.Empty();
    LPCTSTR start = lpszFullString;
    for (int skipped = 0; start != NULL && skipped < iSubString; ++skipped) {
        start = _tcschr(start, chSep);
        if (start != NULL)
            ++start;
    }
    if (start == NULL)
        return FALSE;
    const LPCTSTR end = _tcschr(start, chSep);
    rString = end == NULL ? CString(start) : CString(start, static_cast<int>(end - start));
    return TRUE;
}

namespace afxint {

HINSTANCE FindStringModule(UINT id)
{
    for (HINSTANCE module : ListResourceModules()) {
        if (!afxint::FindString(module, id).empty())
            return module;
    }
    return NULL;
}

} // namespace afxint
