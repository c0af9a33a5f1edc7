// What the class library keeps for the whole program.
#pragma once

#include <classes/Modules.h>

#include <vector>

class CWinApp;

/// The one module state of the program.
class AFX_MODULE_STATE
{
public:
    /// One module that the search for resources visits after the current resource module.
    struct Library
    {
        const CDynLinkLibrary* object; ///< Not owned here; AfxTermExtensionModule deletes it.
        HINSTANCE module;
        HINSTANCE resource;
        bool system;
    };

    CWinApp* app = NULL;            ///< The program's object; not owned.
    HINSTANCE instance = NULL;      ///< The program.
    HINSTANCE resource = NULL;      ///< Where resources are looked for first.
    HINSTANCE ownLibrary = NULL;    ///< The class library itself, last in the search.
    std::vector<Library> libraries; ///< In the order of their loading. Guarded by lock.
    bool oleStarted = false;        ///< AfxOleInit was called; WinMain ends it.
    CRITICAL_SECTION lock;          ///< For what several threads use.

private:
    friend AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();
    AFX_MODULE_STATE();
};

namespace afxint {

/// Holds a critical section for a scope.
class ScopedLock
{
public:
    explicit ScopedLock(CRITICAL_SECTION& section) : section_(section)
    {
        EnterCriticalSection(&section_);
    }
    ~ScopedLock() { LeaveCriticalSection(&section_); }
    ScopedLock(const ScopedLock&) = delete;
    ScopedLock& operator=(const ScopedLock&) = delete;

private:
    CRITICAL_SECTION& section_;
};

inline AFX_MODULE_STATE& Module()
{
    return *AfxGetStaticModuleState();
}

/// Lets CWinThread::ProcessMessageFilter of the calling thread see the system's own loops.
void WatchSystemLoops();

} // namespace afxint
