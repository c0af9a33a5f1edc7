// The message by which a drag list talks to its parent.
#pragma once

#include <classes/Platform.h>

namespace afxint {

/// Asks for the message's number only when it can be one that a text stands for.
inline bool IsDragListMessage(UINT message)
{
    constexpr UINT firstRegistered = 0xC000;
    if (message < firstRegistered)
        return false;
    static const UINT dragList = ::RegisterWindowMessage(DRAGLISTMSGSTRING);
    return message == dragList;
}

} // namespace afxint
