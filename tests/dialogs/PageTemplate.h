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
    umbra::testing::DialogTemplate page(10, 10, 440, 170, WS_POPUP | WS_VISIBLE, _T("A page"));
    if (back)
        page.Button(IDC_BACK, _T("template back"), 200, 145, 60, 18);
    if (ok)
        page.Button(IDOK, _T("template ok"), 270, 145, 60, 18);
    if (cancel)
        page.Button(IDCANCEL, _T("template cancel"), 340, 145, 60, 18);
    return page;
}

/// The process's working directory.
inline CString WorkingDirectory()
{
    TCHAR path[1024] = _T("");
    ::GetCurrentDirectory(_countof(path), path);
    return path;
}
