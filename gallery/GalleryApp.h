// CGalleryApp: the program. With "--shoot FOLDER" it draws every page into picture files instead of
// waiting for a user.
#pragma once

#include <umbra.h>

class CGalleryApp : public CWinApp
{
public:
    BOOL InitInstance() override;
    int ExitInstance() override;

private:
    int m_exitCode = 0;
};
