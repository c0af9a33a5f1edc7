// What the classes of the controls share.
#pragma once

#include <classes/CImageList.h>

namespace afxint {

/// Sends a message to a control, with numbers, pointers and handles as they are.
template <class W = WPARAM, class L = LPARAM>
LRESULT Ask(HWND control, UINT message, W wParam = 0, L lParam = 0)
{
    ASSERT(::IsWindow(control));
    return ::SendMessage(control, message, (WPARAM)wParam, (LPARAM)lParam);
}

/// Registers the window classes of common controls (ICC_ values), which the system does only on
/// demand.
inline void NeedCommonControls(DWORD classes)
{
    INITCOMMONCONTROLSEX request = {sizeof(request), classes};
    ::InitCommonControlsEx(&request);
}

/// A size out of the two words that a message answered with.
inline SIZE SizeOfWords(LRESULT words)
{
    return {(short)LOWORD(words), (short)HIWORD(words)};
}

/// An object for an image list that a control has made for the caller; NULL for none.
inline CImageList* OwnedImageList(HIMAGELIST handle)
{
    if (handle == NULL)
        return NULL;
    CImageList* list = new CImageList;
    list->Attach(handle);
    return list;
}

} // namespace afxint
