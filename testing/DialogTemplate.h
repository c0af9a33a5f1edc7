// Builds dialog templates in memory, for dialogs without a resource.
#pragma once

#include "testing/Text.h"

#include <windows.h>

#include <string>
#include <vector>

namespace umbra::testing {

/// A dialog template; sizes and positions are in dialog units.
///
///     DialogTemplate page(0, 0, 180, 100);
///     page.Button(IDOK, "Forward", 10, 80, 50, 14).Label(-1, "A text", 10, 10, 100, 8);
///     dialog.CreateIndirect(page.Get());
class DialogTemplate
{
public:
    static constexpr DWORD popup = WS_POPUP | WS_CAPTION | WS_SYSMENU;
    static constexpr DWORD visibleChild = WS_CHILD | WS_VISIBLE;
    static constexpr DWORD tabStop = visibleChild | WS_TABSTOP;

    DialogTemplate(int x, int y, int width, int height, DWORD style = popup, LPCTSTR title = _T(""),
                   DWORD extendedStyle = 0);

    /// Without it the dialog uses the system font.
    DialogTemplate& Font(int points, LPCTSTR face);

    /// A control of any class.
    DialogTemplate& Add(LPCTSTR className, int id, LPCTSTR text, int x, int y, int width,
                        int height, DWORD style = visibleChild, DWORD extendedStyle = 0);
    DialogTemplate& Button(int id, LPCTSTR text, int x, int y, int width, int height,
                           DWORD style = tabStop | BS_PUSHBUTTON);
    DialogTemplate& Edit(int id, LPCTSTR text, int x, int y, int width, int height,
                         DWORD style = tabStop | WS_BORDER | ES_AUTOHSCROLL);
    DialogTemplate& Label(int id, LPCTSTR text, int x, int y, int width, int height,
                          DWORD style = visibleChild | SS_LEFT);
    DialogTemplate& ListBox(int id, int x, int y, int width, int height,
                            DWORD style = tabStop | WS_BORDER | LBS_NOTIFY);
    DialogTemplate& ComboBox(int id, int x, int y, int width, int height,
                             DWORD style = tabStop | CBS_DROPDOWNLIST);

    /// Valid until the template is changed or destroyed.
    const DLGTEMPLATE* Get() const;

private:
    struct Item
    {
        DLGITEMTEMPLATE place;
        TString className;
        TString text;
    };

    DLGTEMPLATE m_head{};
    TString m_title;
    int m_points = 0;
    TString m_face;
    std::vector<Item> m_items;
    mutable std::vector<WORD> m_memory;
};

} // namespace umbra::testing
