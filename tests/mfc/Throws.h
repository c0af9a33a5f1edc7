// Checks for what the class library throws: pointers, which somebody has to delete.
#pragma once

#include <afx.h>

/// Whether the action throws an exception of that class. Others pass on.
template <class Exception, class Action>
bool Throws(Action action)
{
    try {
        action();
    } catch (Exception* exception) {
        exception->Delete();
        return true;
    }
    return false;
}

/// The cause of the CFileException that the action throws; `none` when it throws nothing.
template <class Action>
int CauseOf(Action action)
{
    try {
        action();
    } catch (CFileException* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return CFileException::none;
}
