#include <classes/CWaitCursor.h>

#include <classes/Application.h>

namespace {

void ChangeWaitCursor(int code)
{
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(code);
}

} // namespace

CWaitCursor::CWaitCursor()
{
    ChangeWaitCursor(1);
}

CWaitCursor::~CWaitCursor()
{
    ChangeWaitCursor(-1);
}

void CWaitCursor::Restore()
{
    ChangeWaitCursor(0);
}
