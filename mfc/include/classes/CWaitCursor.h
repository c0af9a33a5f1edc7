// The hourglass while something takes long.
#pragma once

#include <classes/Platform.h>

/// Shows the hourglass as long as the object lives.
class AFX_EXPORTED CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

    /// Shows the hourglass again after something else, such as a message box, changed the cursor.
    void Restore();
};
