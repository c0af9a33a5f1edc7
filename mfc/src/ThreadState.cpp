#include "ThreadState.h"

#include <utility>

namespace afxint {

namespace {

struct StateSlot
{
    ThreadState* state = nullptr;
    ~StateSlot() { delete std::exchange(state, nullptr); }
};

thread_local StateSlot slot;

} // namespace

ThreadState& CurrentThread()
{
    if (slot.state == nullptr)
        slot.state = new ThreadState;
    return *slot.state;
}

int HandlerDepth()
{
    return CurrentThread().handlerDepth;
}

void DropTemporaryObjects()
{
    ThreadState& thread = CurrentThread();
    const int depth = thread.handlerDepth;
    thread.windows.DropTemporaries(depth);
    thread.gdiObjects.DropTemporaries(depth);
    thread.dcs.DropTemporaries(depth);
    thread.menus.DropTemporaries(depth);
    thread.imageLists.DropTemporaries(depth);
}

} // namespace afxint
