#include "graphics/ImagingSystem.h"

#include "application/ModuleState.h"

#include <objidl.h>

#include <gdiplus.h>

#include <utility>

namespace afxint {

namespace {

int users = 0;       ///< These two are guarded by the module's lock.
ULONG_PTR token = 0; ///< 0 while the component is not running.

void EndRunning()
{
    if (token != 0)
        Gdiplus::GdiplusShutdown(std::exchange(token, 0));
}

} // namespace

bool StartImaging()
{
    const ScopedLock lock(Module().lock);
    if (token == 0) {
        const Gdiplus::GdiplusStartupInput input;
        if (Gdiplus::GdiplusStartup(&token, &input, NULL) != Gdiplus::Ok)
            token = 0;
    }
    return token != 0;
}

void EndImaging()
{
    const ScopedLock lock(Module().lock);
    EndRunning();
}

void ImagingUser::Enter()
{
    const ScopedLock lock(Module().lock);
    ++users;
}

void ImagingUser::Leave()
{
    const ScopedLock lock(Module().lock);
    if (--users == 0)
        EndRunning();
}

} // namespace afxint
