#include "threads/ThreadState.h"

namespace afxint {

namespace {

DWORD StateSlot()
{
    static const DWORD slot = TlsAlloc();
    return slot;
}

/// Deletes the temporary objects that were made deeper in handlers than `depth`.
void DropTemporaries(ThreadState& thread, int depth)
{
    thread.windows.DropTemporaries(depth);
    thread.gdiObjects.DropTemporaries(depth);
    thread.dcs.DropTemporaries(depth);
    thread.menus.DropTemporaries(depth);
    thread.imageLists.DropTemporaries(depth);
}

void FreeState()
{
    auto* state = static_cast<ThreadState*>(TlsGetValue(StateSlot()));
    if (state == NULL)
        return;
    DropTemporaries(*state, -1); // While their destructors still find the state.
    TlsSetValue(StateSlot(), NULL);
    delete state;
}

} // namespace

ThreadState& CurrentThread()
{
    const DWORD error = GetLastError(); // Asking for the state must not cost a caller the error.
    auto* state = static_cast<ThreadState*>(TlsGetValue(StateSlot()));
    if (state == NULL) {
        state = new ThreadState;
        TlsSetValue(StateSlot(), state);
    }
    SetLastError(error);
    return *state;
}

int HandlerDepth()
{
    return CurrentThread().handlerDepth;
}

int DepthOfIdleTime()
{
    // What was made outside of handlers lives until the next idle time of any loop.
    const int depth = HandlerDepth();
    return depth == 0 ? -1 : depth;
}

void DropTemporaryObjects()
{
    DropTemporaries(CurrentThread(), DepthOfIdleTime());
}

} // namespace afxint

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID)
{
    if (reason == DLL_THREAD_DETACH)
        afxint::FreeState();
    return TRUE;
}
