#include <afxcmn.h>
#include <afxdialogex.h>
#include <afxdlgs.h>
#include <afxres.h>

#include <doctest/doctest.h>

#include "tests/mfc/Resources.h"
#include "tests/mfc/programs/Extension/ExtensionResource.h"

namespace {

/// The extension DLL, loaded as long as this lives.
class Extension
{
public:
    Extension() : m_hModule(AfxLoadLibrary(_T("mfc-test-extension.dll"))) {}
    ~Extension() { AfxFreeLibrary(m_hModule); }
    Extension(const Extension&) = delete;
    Extension& operator=(const Extension&) = delete;
    /// An exported function of the DLL; the test ends when there is none.
    template <class Function>
    Function Find(LPCSTR name) const
    {
        const auto address = reinterpret_cast<INT_PTR>(::GetProcAddress(m_hModule, name));
        REQUIRE(address != 0);
        return reinterpret_cast<Function>(address);
    }

    HMODULE m_hModule;
};

CString LoadOne(UINT id)
{
    TCHAR text[256];
    const int length = AfxLoadString(id, text);
    CHECK(length == int(_tcslen(text)));
    return text;
}

HINSTANCE FindIcon()
{
    return AfxFindResourceHandle(MAKEINTRESOURCE(EXT_ICON), RT_GROUP_ICON);
}

CString TitleOf(const CWnd& window)
{
    CString title;
    window.GetWindowText(title);
    return title;
}

/// The extension DLL once more, from a copy of its file: another module with the same resources.
class ExtensionCopy
{
public:
    ExtensionCopy()
    {
        TCHAR folder[MAX_PATH], original[MAX_PATH];
        ::GetTempPath(MAX_PATH, folder);
        REQUIRE(::GetTempFileName(folder, _T("ext"), 0, path_) != 0);
        ::GetModuleFileName(::GetModuleHandle(_T("mfc-test-extension.dll")), original, MAX_PATH);
        REQUIRE(::CopyFile(original, path_, FALSE));
        m_hModule = AfxLoadLibrary(path_);
        REQUIRE(m_hModule != nullptr);
    }
    ~ExtensionCopy()
    {
        AfxFreeLibrary(m_hModule);
        ::DeleteFile(path_);
    }
    ExtensionCopy(const ExtensionCopy&) = delete;
    ExtensionCopy& operator=(const ExtensionCopy&) = delete;

    HMODULE m_hModule = nullptr;

private:
    TCHAR path_[MAX_PATH];
};

} // namespace

TEST_CASE("an extension DLL enters the search for resources by itself and leaves it at the end")
{
    CHECK(FindIcon() == AfxGetResourceHandle());
    CHECK(AfxGetApp()->LoadIcon(EXT_ICON) == nullptr);
    {
        const Extension extension;
        REQUIRE(extension.m_hModule != nullptr);
        CHECK(FindIcon() == extension.m_hModule);
        CHECK(AfxGetApp()->LoadIcon(EXT_ICON) != nullptr);
        CHECK(LoadOne(EXT_STRING) == "from the extension");
    }
    CHECK(FindIcon() == AfxGetResourceHandle());
    CHECK(LoadOne(EXT_STRING) == "");
    const Extension again;
    CHECK(LoadOne(EXT_STRING) == "from the extension");
}

TEST_CASE("the extension DLL that was loaded last is searched first")
{
    const Extension extension;
    REQUIRE(extension.m_hModule != nullptr);
    {
        const ExtensionCopy later;
        CHECK(later.m_hModule != extension.m_hModule);
        CHECK(FindIcon() == later.m_hModule);
    }
    CHECK(FindIcon() == extension.m_hModule);
}

TEST_CASE("a system module is searched after all extension DLLs, though it came last")
{
    const Extension extension;
    const ExtensionCopy later;
    AFX_EXTENSION_MODULE state{};
    // The module that came last enters the list once more, now as a part of the system.
    REQUIRE(AfxInitExtensionModule(state, later.m_hModule));
    AfxTermExtensionModule(state);
    REQUIRE(FindIcon() == extension.m_hModule);
    REQUIRE(AfxInitExtensionModule(state, later.m_hModule));
    new CDynLinkLibrary(state, TRUE);
    CHECK(FindIcon() == extension.m_hModule);
    AfxTermExtensionModule(state);
}

TEST_CASE("menus, keys, bitmaps and cursors are looked for in the extension DLLs, too")
{
    const Extension extension;
    CMenu menu;
    REQUIRE(menu.LoadMenu(EXT_FRAME));
    CHECK(menu.GetMenuItemCount() == 2);

    CBitmap bitmap;
    REQUIRE(bitmap.LoadBitmap(EXT_BITMAP));
    BITMAP data{};
    CHECK(bitmap.GetBitmap(&data) != 0);
    CHECK(data.bmWidth == 8);
    CBitmap mapped;
    CHECK(mapped.LoadMappedBitmap(EXT_BITMAP));
    CImageList images;
    REQUIRE(images.Create(EXT_BITMAP, 4, 0, CLR_NONE));
    CHECK(images.GetImageCount() == 2);

    CHECK(AfxGetApp()->LoadCursor(EXT_CURSOR) != nullptr);
    CFrameWnd frame;
    CHECK(frame.LoadAccelTable(MAKEINTRESOURCE(EXT_FRAME)));
}

TEST_CASE("a frame takes its menu and title from an extension DLL")
{
    const Extension extension;
    auto* frame = new CFrameWnd;
    REQUIRE(frame->LoadFrame(EXT_FRAME));
    CHECK(TitleOf(*frame) == "Frame of the extension");
    REQUIRE(frame->GetMenu() != NULL);
    CHECK(frame->GetMenu()->GetMenuItemCount() == 2);
    frame->DestroyWindow();
}

TEST_CASE("the templates and contents of dialogs are looked for in the extension DLLs, too")
{
    const Extension extension;
    CDialog modeless;
    REQUIRE(modeless.Create(EXT_DIALOG));
    CHECK(TitleOf(modeless) == "Dialog of the extension");
    CHECK(modeless.SendDlgItemMessage(EXT_LIST, LB_GETCOUNT) == 1);
    modeless.DestroyWindow();

    class CModal : public CDialog
    {
    public:
        using CDialog::CDialog;

    protected:
        BOOL OnInitDialog() override
        {
            CDialog::OnInitDialog();
            EndDialog(static_cast<int>(SendDlgItemMessage(EXT_LIST, LB_GETCOUNT)));
            return TRUE;
        }
    } modal(EXT_DIALOG);
    CHECK(modal.DoModal() == 1);

    CDialogEx painted(EXT_DIALOG);
    CHECK(painted.SetBackgroundImage(EXT_BITMAP));

    CPropertyPage page(EXT_DIALOG);
    CPropertySheet sheet(_T("sheet"));
    sheet.AddPage(&page);
    REQUIRE(sheet.Create());
    CHECK(page.m_hWnd != NULL);
    sheet.DestroyWindow();
}

TEST_CASE("the program's string wins over the DLL's string of the same id")
{
    const Extension extension;
    CHECK(LoadOne(EXT_STRING_OF_BOTH) == "from the program");
}

TEST_CASE("a block of strings in the program does not hide the DLL's strings in the same block")
{
    static_assert(EXT_STRING / 16 == EXT_STRING_OF_BOTH / 16);
    static_assert(EXT_STRING / 16 == EXT_STRING_OF_PROGRAM / 16);
    const Extension extension;
    CHECK(LoadOne(EXT_STRING_OF_PROGRAM) == "only in the program");
    CHECK(LoadOne(EXT_STRING) == "from the extension");
    CString text;
    CHECK(text.LoadString(EXT_STRING));
    CHECK(text == "from the extension");
}

TEST_CASE("an empty string in a block counts as missing")
{
    CHECK(LoadOne(EXT_STRING_OF_NOBODY) == "");
    CString text = "before";
    CHECK_FALSE(text.LoadString(EXT_STRING_OF_NOBODY));
}

TEST_CASE("the library's own strings come last")
{
    CHECK_FALSE(LoadOne(AFX_IDP_PARSE_INT).IsEmpty());
    CHECK(LoadOne(AFX_IDP_PARSE_UINT) == "the program's own wording");
}

TEST_CASE("the resource module can be another one than the program")
{
    const Extension extension;
    const HINSTANCE program = AfxGetResourceHandle();
    CHECK(program == AfxGetInstanceHandle());
    AfxSetResourceHandle(extension.m_hModule);
    CHECK(AfxGetResourceHandle() == extension.m_hModule);
    CHECK(LoadOne(EXT_STRING_OF_BOTH) == "from the extension, too");
    CHECK(LoadOne(EXT_STRING_OF_PROGRAM) == "");
    CHECK(AfxGetInstanceHandle() == program);
    AfxSetResourceHandle(program);
}

TEST_CASE("NULL as the resource module means the program")
{
    const HINSTANCE program = AfxGetResourceHandle();
    AfxSetResourceHandle(NULL);
    CHECK(AfxGetResourceHandle() == program);
    CHECK(LoadOne(EXT_STRING_OF_PROGRAM) == "only in the program");
    CHECK(AfxFindResourceHandle(MAKEINTRESOURCE(IDR_FRAME), RT_MENU) == program);
    AfxSetResourceHandle(program);
}

TEST_CASE("a long string is cut to the buffer")
{
    TCHAR text[8];
    CHECK(AfxLoadString(AFX_IDP_PARSE_INT, text, 8) == 7);
    CHECK(_tcslen(text) == 7);
    CHECK(AfxLoadString(AFX_IDP_PARSE_INT, text, 0) == 0);
}

TEST_CASE("placeholders of a string are replaced")
{
    CString text;
    AfxFormatString2(text, EXT_STRING_WITH_PLACES, _T("left"), _T("right"));
    CHECK(text == "right before left, 100% %3");
    AfxFormatString1(text, EXT_STRING_WITH_PLACES, _T("left"));
    CHECK(text == "%2 before left, 100% %3");
    AfxFormatString2(text, EXT_STRING_WITH_PLACES, NULL, _T("%1"));
    CHECK(text == "%1 before , 100% %3");
}

TEST_CASE("parts are taken out of a text")
{
    CString part;
    CHECK(AfxExtractSubString(part, _T("one\ntwo\n\nfour"), 0));
    CHECK(part == "one");
    CHECK(AfxExtractSubString(part, _T("one\ntwo\n\nfour"), 1));
    CHECK(part == "two");
    CHECK(AfxExtractSubString(part, _T("one\ntwo\n\nfour"), 2));
    CHECK(part == "");
    CHECK(AfxExtractSubString(part, _T("one\ntwo\n\nfour"), 3));
    CHECK(part == "four");
    CHECK_FALSE(AfxExtractSubString(part, _T("one\ntwo\n\nfour"), 4));
    CHECK(part == "");
    CHECK(AfxExtractSubString(part, _T("a;b"), 1, ';'));
    CHECK(part == "b");
    CHECK_FALSE(AfxExtractSubString(part, NULL, 0));
}

TEST_CASE("inside a DLL the functions answer the program's objects")
{
    const Extension extension;
    using Ask = void (*)(CWinApp**, HINSTANCE*);
    const auto ask = extension.Find<Ask>("AskForProgram");
    CWinApp* app = nullptr;
    HINSTANCE instance = nullptr;
    ask(&app, &instance);
    CHECK(app == AfxGetApp());
    CHECK(app != nullptr);
    CHECK(instance == ::GetModuleHandle(nullptr));
}

TEST_CASE("classes of a DLL are known as long as it is loaded")
{
    CHECK(CRuntimeClass::FromName("CExtensionObject") == nullptr);
    {
        const Extension extension;
        CObject* made = CRuntimeClass::CreateObject("CExtensionObject");
        REQUIRE(made != nullptr);
        CHECK(made->IsKindOf(RUNTIME_CLASS(CCmdTarget)));
        delete made;
    }
    CHECK(CRuntimeClass::FromName("CExtensionObject") == nullptr);
}

TEST_CASE("an exception thrown in one module is caught in the other")
{
    const Extension extension;
    using Call = bool (*)(void (*)());
    using Throw = void (*)();
    const auto callAndCatch = extension.Find<Call>("CallAndCatch");
    const auto throwUser = extension.Find<Throw>("ThrowUser");
    CHECK(callAndCatch([] { AfxThrowUserException(); }));
    CHECK(callAndCatch([] { throw new CUserException; }));
    CHECK_FALSE(callAndCatch([] {}));
    bool caught = false;
    TRY
    {
        throwUser();
    }
    CATCH(CUserException, e)
    {
        caught = true;
    }
    END_CATCH
    CHECK(caught);
}
