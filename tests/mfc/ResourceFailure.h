// Asks whether something ends in a CResourceException.
#pragma once

#include <afxwin.h>

template <class Action>
bool ThrowsResourceException(Action action)
{
    try {
        action();
    } catch (CResourceException* failure) {
        failure->Delete();
        return true;
    }
    return false;
}
