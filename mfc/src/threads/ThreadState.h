// What the class library keeps for each thread.
#pragma once

#include "objects/HandleMap.h"
#include "windows/ToolTips.h"

#include <memory>

class CCommonDialog;
class CDC;
class CGdiObject;
class CImageList;
class CMenu;
class CWinThread;
class CWnd;

namespace afxint {

class SocketWindow;
class WindowCreation;

// Wrap and Unwrap of each kind stand in the source of the class.
struct WindowTraits
{
    using Handle = HWND;
    using Object = CWnd;
    static CWnd* Wrap(HWND window);
    static void Unwrap(CWnd* window);
};
struct GdiObjectTraits
{
    using Handle = HGDIOBJ;
    using Object = CGdiObject;
    static CGdiObject* Wrap(HGDIOBJ handle);
    static void Unwrap(CGdiObject* object);
};
struct DcTraits
{
    using Handle = HDC;
    using Object = CDC;
    static CDC* Wrap(HDC handle);
    static void Unwrap(CDC* dc);
};
struct MenuTraits
{
    using Handle = HMENU;
    using Object = CMenu;
    static CMenu* Wrap(HMENU handle);
    static void Unwrap(CMenu* menu);
};
struct ImageListTraits
{
    using Handle = HIMAGELIST;
    using Object = CImageList;
    static CImageList* Wrap(HIMAGELIST handle);
    static void Unwrap(CImageList* list);
};

/// No variable of the library is thread_local: this compiler's run-time library ends the program
/// where there is no memory for one, and may free an object's memory before its destructor runs.
struct ThreadState
{
    CWinThread* thread = NULL;       ///< What AfxGetThread answers; not owned.
    int handlerDepth = 0;            ///< Message handlers on the stack.
    MSG currentMessage{};            ///< The message that Default() hands on.
    WindowCreation* creation = NULL; ///< Waits for the next window that is created.
    CCommonDialog* awaited = NULL;   ///< The common dialog whose window is still to come.
    HHOOK systemLoopHook = NULL;     ///< Watches the system's own loops; the system frees it.
    TCHAR className[128] = {};       ///< What AfxRegisterWndClass gave last.
    ToolTip toolTip;
    HMENU openedMenu = NULL;          ///< The menu whose items may be measured next.
    CWnd* inheritedMainWindow = NULL; ///< The worker thread's own object for its creator's one.

    std::shared_ptr<SocketWindow> sockets; ///< Made with the thread's first socket.

    HandleMap<WindowTraits> windows;
    HandleMap<GdiObjectTraits> gdiObjects;
    HandleMap<DcTraits> dcs;
    HandleMap<MenuTraits> menus;
    HandleMap<ImageListTraits> imageLists;
};

/// The state of the calling thread, made on first use and freed when the thread ends.
ThreadState& CurrentThread();

/// The depth in handlers up to which temporary objects outlive an idle time of the calling thread:
/// running handlers may still hold those.
int DepthOfIdleTime();

/// Deletes the temporary objects of the calling thread that no running handler can still hold.
void DropTemporaryObjects();

} // namespace afxint
