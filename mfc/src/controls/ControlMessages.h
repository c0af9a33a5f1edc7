// What the classes of the controls share: their creation, and the messages that they wrap.
#pragma once

#include <classes/CImageList.h>
#include <classes/CWnd.h>

#include "windows/CommonControls.h"

#include <type_traits>

namespace afxint {

/// A number, pointer or handle as it travels in a message.
template <class Word, class Value>
Word AsWord(Value value)
{
    if constexpr (std::is_pointer_v<Value>)
        return reinterpret_cast<Word>(value);
    else
        return static_cast<Word>(value);
}

/// Sends a message to a control, with numbers, pointers and handles as they are.
template <class W = WPARAM, class L = LPARAM>
LRESULT Ask(HWND control, UINT message, W wParam = 0, L lParam = 0)
{
    ASSERT(::IsWindow(control));
    return ::SendMessage(control, message, AsWord<WPARAM>(wParam), AsWord<LPARAM>(lParam));
}

/// The same for a message that is answered with a handle or a pointer.
template <class Answer, class W = WPARAM, class L = LPARAM>
Answer AskFor(HWND control, UINT message, W wParam = 0, L lParam = 0)
{
    return reinterpret_cast<Answer>(Ask(control, message, wParam, lParam));
}

/// The same for a message that is answered with a window; NULL for none. The object is temporary
/// unless the window has one of its own.
template <class Window, class W = WPARAM, class L = LPARAM>
Window* AskForWindow(HWND control, UINT message, W wParam = 0, L lParam = 0)
{
    return static_cast<Window*>(CWnd::FromHandle(AskFor<HWND>(control, message, wParam, lParam)));
}

/// The same for a message that is answered with an image list, which stays the control's; NULL for
/// none.
template <class W = WPARAM, class L = LPARAM>
CImageList* AskForImageList(HWND control, UINT message, W wParam = 0, L lParam = 0)
{
    return CImageList::FromHandle(AskFor<HIMAGELIST>(control, message, wParam, lParam));
}

/// An object for an image list that a control has made for the caller, who deletes the object; NULL
/// for none.
inline CImageList* OwnedImageList(HIMAGELIST handle)
{
    if (handle == NULL)
        return NULL;
    CImageList* list = new CImageList;
    list->Attach(handle);
    return list;
}

/// A size out of the two words that a message answered with.
inline SIZE SizeOfWords(LRESULT words)
{
    return {static_cast<short>(LOWORD(words)), static_cast<short>(HIWORD(words))};
}

/// Puts the size of a buffer, in characters, where EM_GETLINE looks for it.
inline void PutRoom(LPTSTR buffer, int characters)
{
    const WORD room = static_cast<WORD>(characters);
    memcpy(buffer, &room, sizeof(room));
}

/// A kind of common control: the name of its window class, and what registers that (ICC_ values).
struct CommonControl
{
    LPCTSTR name;
    DWORD classes;
};

/// Create of a common control without a text.
inline BOOL CreateControl(CWnd& control, const CommonControl& kind, DWORD style, const RECT& rect,
                          CWnd* parent, UINT id)
{
    NeedCommonControls(kind.classes);
    return control.CWnd::Create(kind.name, NULL, style, rect, parent, id);
}

/// CreateEx of a common control without a text.
inline BOOL CreateControlEx(CWnd& control, const CommonControl& kind, DWORD exStyle, DWORD style,
                            const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls(kind.classes);
    return control.CWnd::CreateEx(exStyle, kind.name, NULL, style, rect, parent, id);
}

/// What a control that draws itself does with a message that came back to it: lets DrawItem draw.
/// FALSE for other messages.
template <class Control>
BOOL DrawOnRequest(Control& control, UINT message, LPARAM lParam)
{
    if (message != WM_DRAWITEM)
        return FALSE;
    control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

} // namespace afxint
