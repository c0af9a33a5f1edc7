#include "gallery/GalleryApp.h"

#include "gallery/Images.h"
#include "gallery/Shoot.h"
#include "gallery/StartPage.h"

#include <shellapi.h>

#include <vector>

CGalleryApp theApp;

namespace {

const int wrongUsage = 2;

// The words of the command line, without the program.
std::vector<CString> Arguments()
{
    int count = 0;
    LPWSTR* const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    if (words == nullptr)
        return {};
    const std::vector<CString> arguments(words + 1, words + count);
    ::LocalFree(words);
    return arguments;
}

} // namespace

BOOL CGalleryApp::InitInstance()
{
    INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_STANDARD_CLASSES | ICC_BAR_CLASSES |
                                                        ICC_UPDOWN_CLASS | ICC_PROGRESS_CLASS};
    ::InitCommonControlsEx(&classes);
    CWinApp::InitInstance();
    g_strImageDir = GalleryFolder();
    g_crShade = palette::tint;

    const std::vector<CString> arguments = Arguments();
    if (!arguments.empty()) {
        if (arguments.size() == 2 && arguments[0] == _T("--shoot"))
            m_exitCode = ShootGallery(arguments[1]) ? 0 : 1;
        else {
            m_exitCode = wrongUsage;
            AfxMessageBox(_T("Usage: umbra-gallery [--shoot FOLDER]"), MB_OK | MB_ICONINFORMATION);
        }
        return FALSE;
    }

    CStartPage page;
    page.DoModal();
    return FALSE;
}

int CGalleryApp::ExitInstance()
{
    CWinApp::ExitInstance();
    return m_exitCode;
}
