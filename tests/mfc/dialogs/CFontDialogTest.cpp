#include <afxdlgs.h>

#include <doctest/doctest.h>

#include "testing/NextDialog.h"
#include "testing/Page.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

/// The name of a font of this system that exists in every size and is not a rotated one.
CString FindScalableFace()
{
    const auto take = [](const LOGFONT* font, const TEXTMETRIC*, DWORD kind, LPARAM name)
                          CALLBACK -> int {
        if (!(kind & TRUETYPE_FONTTYPE) || font->lfFaceName[0] == '@')
            return TRUE;
        *(CString*)name = font->lfFaceName;
        return FALSE;
    };
    CString name;
    CClientDC screen(NULL);
    LOGFONT any = {};
    any.lfCharSet = ANSI_CHARSET;
    ::EnumFontFamiliesEx(screen, &any, take, (LPARAM)&name, 0);
    REQUIRE_FALSE(name.IsEmpty());
    return name;
}

} // namespace

TEST_CASE("the font dialog gives back the font it began with")
{
    ControlHost host;
    LOGFONT font = {};
    lstrcpy(font.lfFaceName, FindScalableFace());
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = -16;
    font.lfWeight = FW_BOLD;
    font.lfUnderline = TRUE;
    CFontDialog dialog(&font, CF_EFFECTS | CF_SCREENFONTS, NULL, &host);
    dialog.m_cf.rgbColors = RGB(128, 0, 0);
    LOGFONT whileOpen = {};
    NextDialog answer([&](HWND box) {
        dialog.GetCurrentFont(&whileOpen);
        Page(box).Click(IDOK);
    });
    REQUIRE(dialog.DoModal() == IDOK);
    REQUIRE(answer.HasRun());
    CHECK(whileOpen.lfWeight == FW_BOLD);
    CHECK(dialog.GetSize() == 120);
    CHECK(dialog.IsBold());
    CHECK(dialog.GetWeight() == FW_BOLD);
    CHECK(dialog.IsUnderline());
    CHECK_FALSE(dialog.IsStrikeOut());
    CHECK_FALSE(dialog.IsItalic());
    CHECK_FALSE(dialog.GetFaceName().IsEmpty());
    CHECK(dialog.GetColor() == RGB(128, 0, 0));
    LOGFONT chosen = {};
    dialog.GetCurrentFont(&chosen);
    CHECK(dialog.GetFaceName() == chosen.lfFaceName);
    CHECK(chosen.lfHeight == -16);
}

TEST_CASE("the font dialog starts with a character format and gives one back")
{
    ControlHost host;
    CHARFORMAT format = {};
    format.cbSize = sizeof(format);
    format.dwMask = CFM_SIZE | CFM_ITALIC | CFM_COLOR;
    format.dwEffects = CFE_ITALIC;
    format.yHeight = 240; // Twelve points.
    format.crTextColor = RGB(0, 0, 255);
    CFontDialog dialog(format, CF_EFFECTS | CF_SCREENFONTS, NULL, &host);
    CHECK(dialog.IsItalic());
    CHECK(dialog.GetColor() == RGB(0, 0, 255));
    CHECK(dialog.m_cf.lpLogFont->lfHeight == -16);
    dialog.m_cf.iPointSize = 140;
    CHARFORMAT back = {};
    dialog.GetCharFormat(back);
    CHECK(back.yHeight == 280);
    CHECK((back.dwEffects & CFE_ITALIC) != 0);
    CHECK((back.dwEffects & CFE_BOLD) == 0);
    CHECK(back.crTextColor == RGB(0, 0, 255));

    NextDialog answer([&](HWND box) { Page(box).Click(IDCANCEL); });
    CHECK(dialog.DoModal() == IDCANCEL);
    CHECK(answer.HasRun());
}
