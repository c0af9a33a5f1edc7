#include "shell/WorkingFolder.h"

#include <direct.h>

WorkingFolder::WorkingFolder(const char* folder)
{
    if (_getcwd(m_former, sizeof(m_former)) == nullptr) {
        m_former[0] = '\0';
        return;
    }
    _chdir(folder);
}

WorkingFolder::~WorkingFolder()
{
    if (m_former[0] != '\0')
        _chdir(m_former);
}
