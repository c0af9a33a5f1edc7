// The search in message maps.
#pragma once

#include <afxmsg_.h>

class CWinThread;

namespace afxint {

/// Calls a handler with the arguments of its signature. Gives the message's result; for a command
/// whether it has been dealt with.
LRESULT CallHandler(const AFX_MSGMAP_ENTRY& entry, CCmdTarget* target, const Delivery& delivery);

/// The entry of a window or thread message in the map or those it is derived from; NULL for none.
const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* map, UINT message);

/// The entry of a command or notification; NULL for none.
const AFX_MSGMAP_ENTRY* FindCommandEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id);

/// Runs the ON_THREAD_MESSAGE handler of a posted thread message; false when the map has none.
bool DispatchThreadMessage(CWinThread* thread, const AFX_MSGMAP* map, const MSG& message);

} // namespace afxint
