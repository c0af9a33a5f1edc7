// The first call of a function whose library is not loaded before it is needed: see
// cmake/DelayedImports.cmake.
#include <windows.h>

#include <delayimp.h>

extern "C" const IMAGE_DOS_HEADER __ImageBase; // The linker's: where this module lies.

namespace {

template <class T>
T* At(RVA address)
{
    return reinterpret_cast<T*>(reinterpret_cast<ULONG_PTR>(&__ImageBase) + address);
}

FARPROC Find(const ImgDelayDescr& library, ptrdiff_t index)
{
    const HMODULE module = ::LoadLibraryA(At<const char>(library.rvaDLLName)); // It stays loaded.
    if (module == nullptr)
        return nullptr;
    const ULONGLONG name = At<const IMAGE_THUNK_DATA>(library.rvaINT)[index].u1.AddressOfData;
    return ::GetProcAddress(module,
                            IMAGE_SNAP_BY_ORDINAL(name)
                                ? MAKEINTRESOURCEA(IMAGE_ORDINAL(name))
                                : At<const IMAGE_IMPORT_BY_NAME>(static_cast<RVA>(name))->Name);
}

/// Answers for a function that could not be found. Nearly all that are imported late tell a failure
/// by 0; what starts the sockets is asked for their version, too.
INT_PTR WINAPI Unavailable()
{
    ::SetLastError(ERROR_PROC_NOT_FOUND);
    return 0;
}

} // namespace

/// Called by the code that stands in the function's place, with that place, where its address goes.
/// The run-time's own raises an exception when there is no such function; here the caller sees a
/// call that failed, and the next one tries again.
extern "C" FARPROC WINAPI __delayLoadHelper2(const ImgDelayDescr* library, FARPROC* place)
{
    const FARPROC function = Find(*library, place - At<FARPROC>(library->rvaIAT));
    if (function == nullptr)
        return reinterpret_cast<FARPROC>(Unavailable);
    *place = function;
    return function;
}
