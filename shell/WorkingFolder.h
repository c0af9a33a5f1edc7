// The process's working directory, moved for the length of a scope.
#pragma once

#include <afxwin.h>

class WorkingFolder
{
public:
    /// Remembers the working directory and moves to `folder`. Where it cannot be remembered, being
    /// too long, the process stays where it is.
    explicit WorkingFolder(LPCTSTR folder);
    ~WorkingFolder(); ///< Moves back.

    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    TCHAR m_former[MAX_PATH + 1];
};
