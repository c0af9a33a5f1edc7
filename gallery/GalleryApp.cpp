#include "gallery/GalleryApp.h"

#include "gallery/Images.h"
#include "gallery/Shoot.h"
#include "gallery/StartPage.h"

#include <string.h>

CGalleryApp theApp;

namespace {

const int wrongUsage = 2;

} // namespace

BOOL CGalleryApp::InitInstance()
{
    INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_STANDARD_CLASSES | ICC_BAR_CLASSES |
                                                        ICC_UPDOWN_CLASS | ICC_PROGRESS_CLASS};
    ::InitCommonControlsEx(&classes);
    CWinApp::InitInstance();
    g_strImageDir = GalleryFolder();
    g_crShade = palette::tint;

    if (__argc > 1) {
        if (__argc == 3 && strcmp(__argv[1], "--shoot") == 0)
            m_exitCode = ShootGallery(__argv[2]) ? 0 : 1;
        else {
            m_exitCode = wrongUsage;
            AfxMessageBox("Usage: umbra-gallery [--shoot FOLDER]", MB_OK | MB_ICONINFORMATION);
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
