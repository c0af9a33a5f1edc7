// The modules of the program: where resources come from, and the DLLs that extend the program.
#pragma once

#include <classes/CObject.h>
#include <classes/CString.h>

/// What an extension DLL keeps about itself; one static object in each such DLL.
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource; ///< Where the DLL's resources are: itself.
};

/// Puts an extension DLL into the search for resources as long as the object lives. It is made
/// with new at load time; AfxTermExtensionModule deletes it.
class AFX_EXPORTED CDynLinkLibrary : public CObject
{
public:
    /// A system library is searched after all others.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;
};

/// To be called when the DLL is loaded; FALSE when it cannot be used.
AFX_EXPORTED BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// To be called when the DLL is unloaded: takes it out of the search for resources.
AFX_EXPORTED void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

AFX_EXPORTED HMODULE AFXAPI AfxLoadLibrary(LPCTSTR lpszModuleName);
AFX_EXPORTED HMODULE AFXAPI AfxLoadLibraryEx(LPCTSTR lpFileName, HANDLE hFile, DWORD dwFlags);
AFX_EXPORTED BOOL AFXAPI AfxFreeLibrary(HINSTANCE hInstLib);

/// The program, also when asked inside a DLL.
AFX_EXPORTED HINSTANCE AFXAPI AfxGetInstanceHandle();
/// The module that is searched first for resources, normally the program.
AFX_EXPORTED HINSTANCE AFXAPI AfxGetResourceHandle();
AFX_EXPORTED void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
/// The first module that has the resource: the current resource module, then the extension DLLs,
/// then the system libraries. The current resource module when none has it.
AFX_EXPORTED HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);

/// Copies a string resource and returns its length; 0, and an empty string, when no module of the
/// search has it.
AFX_EXPORTED int AFXAPI AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf = 256);
/// Loads a string resource with %1 (and %2) replaced.
AFX_EXPORTED void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
AFX_EXPORTED void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1,
                                          LPCTSTR lpsz2);
/// Takes part number iSubString (from 0) out of a text; FALSE, and empty, when there are fewer.
AFX_EXPORTED BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString,
                                             int iSubString, TCHAR chSep = '\n');

/// What the library keeps about a module. All modules of a program share one.
class AFX_MODULE_STATE;
AFX_EXPORTED AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();

namespace afxint {

/// Stands where a DLL would change over to its own state; with one state nothing changes.
class ModuleStateScope
{
public:
    explicit ModuleStateScope(AFX_MODULE_STATE*) {}
    ~ModuleStateScope() {}
};

} // namespace afxint

#define AFX_MANAGE_STATE(state) afxint::ModuleStateScope afxintModuleState(state);
