#include "windows/MessageMap.h"

#include <classes/CWinThread.h>

namespace afxint {

namespace {

constexpr UINT firstRegistered = 0xC000;

/// The number under which a map may also have the message: the seven colour requests, also the
/// reflected ones, are one message there.
UINT OtherNumber(UINT message)
{
    const UINT base = message >= WM_REFLECT_BASE ? WM_REFLECT_BASE : 0;
    const UINT plain = message - base;
    return plain >= WM_CTLCOLORMSGBOX && plain <= WM_CTLCOLORSTATIC ? base + WM_CTLCOLOR : message;
}

/// The first entry, from the object's own class to the outermost base, that the test accepts.
template <class Test>
const AFX_MSGMAP_ENTRY* FindEntry(const AFX_MSGMAP* map, Test accepts)
{
    while (map != NULL) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != 0; ++entry) {
            if (accepts(*entry))
                return entry;
        }
        map = map->pfnGetBaseMap == NULL ? NULL : map->pfnGetBaseMap();
    }
    return NULL;
}

using Caller = LRESULT (*)(CCmdTarget* target, AFX_PMSG handler, const Delivery& delivery);

/// By the numbers of the signatures.
constexpr Caller callers[] = {NULL,
#define AFXINT_CALLER(name, ...) &signature::name::Call,
                              AFXINT_SIGNATURES(AFXINT_CALLER)
#undef AFXINT_CALLER
};

} // namespace

LRESULT CallHandler(const AFX_MSGMAP_ENTRY& entry, CCmdTarget* target, const Delivery& delivery)
{
    ASSERT(entry.nSig > 0 && entry.nSig < sizeof(callers) / sizeof(callers[0]));
    return callers[entry.nSig](target, entry.pfn, delivery);
}

const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* map, UINT message)
{
    if (message >= firstRegistered) {
        return FindEntry(map, [message](const AFX_MSGMAP_ENTRY& entry) {
            return entry.pnRegistered != NULL ? *entry.pnRegistered == message
                                              : entry.nMessage == message;
        });
    }
    const UINT other = OtherNumber(message);
    return FindEntry(map, [message, other](const AFX_MSGMAP_ENTRY& entry) {
        return entry.nMessage == message || entry.nMessage == other;
    });
}

const AFX_MSGMAP_ENTRY* FindCommandEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id)
{
    return FindEntry(map, [=](const AFX_MSGMAP_ENTRY& entry) {
        return entry.nMessage == message && entry.nCode == code && entry.nID <= id &&
               id <= entry.nLastID;
    });
}

bool DispatchThreadMessage(CWinThread* thread, const AFX_MSGMAP* map, const MSG& message)
{
    const AFX_MSGMAP_ENTRY* entry = FindMessageEntry(map, message.message);
    if (entry == NULL)
        return false;
    const Delivery delivery{NULL, message.message, message.wParam, message.lParam, 0, NULL};
    CallHandler(*entry, thread, delivery);
    return true;
}

} // namespace afxint
