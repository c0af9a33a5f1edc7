// An extension DLL as programs have them: it enters the search for resources when it is loaded.
#include <afxwin.h>
#include <afxdllx.h>

class CExtensionObject : public CCmdTarget
{
    DECLARE_DYNCREATE(CExtensionObject)
};
IMPLEMENT_DYNCREATE(CExtensionObject, CCmdTarget)

class CExtensionItem : public CObject
{
    DECLARE_SERIAL(CExtensionItem)

public:
    CString m_strName = _T("item");

    virtual void Serialize(CArchive& ar)
    {
        CObject::Serialize(ar);
        if (ar.IsStoring())
            ar << m_strName;
        else
            ar >> m_strName;
    }
};
IMPLEMENT_SERIAL(CExtensionItem, CObject, 1)

static AFX_EXTENSION_MODULE extensionDLL = {FALSE, NULL};

extern "C" int APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(extensionDLL, hInstance))
            return 0;
        new CDynLinkLibrary(extensionDLL);
    } else if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(extensionDLL);
    }
    return 1;
}

extern "C" __declspec(dllexport) void AskForProgram(CWinApp** app, HINSTANCE* instance)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    *app = AfxGetApp();
    *instance = AfxGetInstanceHandle();
}

extern "C" __declspec(dllexport) bool CallAndCatch(void (*function)())
{
    try {
        function();
    } catch (CUserException* e) {
        e->Delete();
        return true;
    }
    return false;
}

extern "C" __declspec(dllexport) void ThrowUser()
{
    throw new CUserException;
}
