#include "shell/WorkingFolder.h"

#include <direct.h>
#include <tchar.h>

WorkingFolder::WorkingFolder(LPCTSTR folder)
{
    if (_tgetcwd(m_former, _countof(m_former)) == nullptr) {
        m_former[0] = '\0';
        return;
    }
    _tchdir(folder);
}

WorkingFolder::~WorkingFolder()
{
    if (m_former[0] != '\0')
        _tchdir(m_former);
}
