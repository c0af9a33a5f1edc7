// The message by which a drag list talks to its parent.
#pragma once

#include <classes/Platform.h>

namespace afxint {

inline UINT DragListMessage()
{
    static const UINT message = ::RegisterWindowMessage(DRAGLISTMSGSTRING);
    return message;
}

} // namespace afxint
