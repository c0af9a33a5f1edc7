#include "gallery/Languages.h"

#include "gallery/resource.h"

const Language languages[languageCount] = {
    {IDS_JAPANESE_NAME,
     IDS_JAPANESE_GREETING,
     IDS_JAPANESE_SENTENCE,
     _T("https://www.gnu.org/home.ja.html"),
     {_T("MS UI Gothic"), _T("IPAPMincho")}},
    {IDS_POLISH_NAME,
     IDS_POLISH_GREETING,
     IDS_POLISH_SENTENCE,
     _T("https://www.gnu.org/home.pl.html"),
     {nullptr, nullptr}},
    {IDS_ARABIC_NAME,
     IDS_ARABIC_GREETING,
     IDS_ARABIC_SENTENCE,
     _T("https://www.gnu.org/home.ar.html"),
     {_T("Segoe UI"), _T("DejaVu Sans")}},
    {IDS_EMOJI_NAME,
     IDS_EMOJI_GREETING,
     IDS_EMOJI_SENTENCE,
     _T("https://www.unicode.org/emoji/"),
     {_T("Segoe UI Symbol"), _T("DejaVu Sans")}},
};

namespace {

bool IsAscii(const CString& text)
{
    for (int i = 0; i < text.GetLength(); ++i) {
        if (static_cast<unsigned>(text[i]) > 0x7F)
            return false;
    }
    return true;
}

// Whether the system has it; it takes another one in its place otherwise.
bool HasFace(CFont& font, const CString& face)
{
    CClientDC screen(nullptr);
    CFont* former = screen.SelectObject(&font);
    CString taken;
    screen.GetTextFace(taken);
    screen.SelectObject(former);
    return taken == face;
}

} // namespace

void CreateLanguageFont(CFont& font, const Language& language, CFont* model)
{
    LOGFONT description = {};
    if (model == nullptr || model->GetLogFont(&description) == 0)
        return;
    CString greeting;
    greeting.LoadString(language.greeting);
    for (const LPCTSTR face : language.faces) {
        if (face == nullptr || IsAscii(greeting))
            break;
        LOGFONT wanted = description;
        wanted.lfCharSet = DEFAULT_CHARSET;
        lstrcpyn(wanted.lfFaceName, face, LF_FACESIZE);
        if (font.CreateFontIndirect(&wanted) && HasFace(font, face))
            return;
        font.DeleteObject();
    }
    font.CreateFontIndirect(&description);
}
