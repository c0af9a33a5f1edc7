// Templates for tests of dialog pages.
#pragma once

#include "resources/resource.h"

#include "tests/Folders.h"

#include "testing/DialogTemplate.h"

#include <afxwin.h>

/// A page with the standard buttons asked for; its client area is wide enough for the picture box.
inline umbra::testing::DialogTemplate MakePageTemplate(bool ok = true, bool back = true,
                                                       bool cancel = true)
{
    umbra::testing::DialogTemplate page(10, 10, 440, 170, WS_POPUP | WS_VISIBLE, "A page");
    if (back)
        page.Button(IDC_BACK, "template back", 200, 145, 60, 18);
    if (ok)
        page.Button(IDOK, "template ok", 270, 145, 60, 18);
    if (cancel)
        page.Button(IDCANCEL, "template cancel", 340, 145, 60, 18);
    return page;
}

/// The process's working directory.
inline CString WorkingDirectory()
{
    char path[1024] = "";
    ::GetCurrentDirectory(sizeof(path), path);
    return path;
}
