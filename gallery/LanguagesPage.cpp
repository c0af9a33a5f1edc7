#include "gallery/LanguagesPage.h"

BEGIN_MESSAGE_MAP(CLanguageLink, CHyperLink)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CLanguageList, CListBox)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CLanguagesPage, CGalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_GREETING_FIRST, IDC_GREETING_LAST, &CLanguagesPage::OnGreeting)
    ON_LBN_SELCHANGE(IDC_LANGUAGES, &CLanguagesPage::OnLanguage)
    ON_EN_CHANGE(IDC_TYPED, &CLanguagesPage::OnTyped)
END_MESSAGE_MAP()

namespace {

const COLORREF noteFill = RGB(253, 246, 224);
const COLORREF noteText = RGB(112, 74, 20);
const int boxMargin = 4; // Pixels between the note and the box around it.
const int itemIndent = 4;

CString LoadText(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}

} // namespace

void CLanguageLink::SetTip(const CString& text, CFont& font)
{
    SetToolTipText(text);
    if (m_ToolTip.GetSafeHwnd() != nullptr)
        m_ToolTip.SetFont(&font);
}

void CLanguageList::Fill(CFont (&fonts)[languageCount])
{
    m_fonts = fonts;
    for (const Language& language : languages)
        AddString(LoadText(language.name));
}

void CLanguageList::DrawItem(LPDRAWITEMSTRUCT item)
{
    CDC& dc = *CDC::FromHandle(item->hDC);
    const bool selected = (item->itemState & ODS_SELECTED) != 0;
    dc.FillSolidRect(&item->rcItem, ::GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (item->itemID >= languageCount)
        return; // An empty list draws its focus only.
    CString text;
    GetText(static_cast<int>(item->itemID), text);
    CFont* former = dc.SelectObject(&m_fonts[item->itemID]);
    dc.SetTextColor(::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    dc.SetBkMode(TRANSPARENT);
    CRect place(item->rcItem);
    place.DeflateRect(itemIndent, 0);
    dc.DrawText(text, &place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    dc.SelectObject(former);
    if ((item->itemState & ODS_FOCUS) != 0)
        dc.DrawFocusRect(&item->rcItem);
}

CLanguagesPage::CLanguagesPage(CWnd* parent) : CGalleryPage(IDD_LANGUAGES, parent)
{
}

BOOL CLanguagesPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    for (int i = 0; i < languageCount; ++i) {
        const CString greeting = LoadText(languages[i].greeting);
        CreateLanguageFont(m_fonts[i], languages[i], GetFont());
        m_labels[i].SetFont(&m_fonts[i]);
        m_labels[i].SetWindowText(greeting);
        m_labels[i].SetLabelTextColor(palette::text);
        m_links[i].SetFont(&m_fonts[i]);
        m_links[i].SetWindowText(greeting);
        m_links[i].SetTextColor(palette::accent);
        m_links[i].SetURL(languages[i].address);
        FitToText(m_links[i]);
        m_links[i].SetTip(LoadText(languages[i].sentence), m_fonts[i]);
        LOGFONT description = {};
        m_fonts[i].GetLogFont(&description);
        m_buttons[i].SetTextFont(description);
        m_buttons[i].SetWindowText(greeting);
        ApplyButtonShade(m_buttons[i]);
    }
    m_note.SetLabelTextColor(noteText);
    m_typed.SetLabelTextColor(palette::muted);
    m_list.Fill(m_fonts);
    Choose(0);
    return TRUE;
}

void CLanguagesPage::Choose(int language)
{
    const CString sentence = LoadText(languages[language].sentence);
    m_list.SetCurSel(language);
    m_note.SetFont(&m_fonts[language]);
    SetLabelText(m_note, sentence);
    m_edit.SetFont(&m_fonts[language]);
    m_edit.SetWindowText(sentence);
}

void CLanguagesPage::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    for (int i = 0; i < languageCount; ++i) {
        DDX_Control(pDX, IDC_LANGUAGE_LABEL_FIRST + i, m_labels[i]);
        DDX_Control(pDX, IDC_LANGUAGE_LINK_FIRST + i, m_links[i]);
        DDX_Control(pDX, IDC_GREETING_FIRST + i, m_buttons[i]);
    }
    DDX_Control(pDX, IDC_LANGUAGES, m_list);
    DDX_Control(pDX, IDC_LANGUAGE_NOTE, m_note);
    DDX_Control(pDX, IDC_TYPED, m_edit);
    DDX_Control(pDX, IDC_TYPED_LENGTH, m_typed);
}

void CLanguagesPage::DrawBackdrop(CDC& dc)
{
    CGalleryPage::DrawBackdrop(dc);
    CRect box = PlaceOf(IDC_LANGUAGE_NOTE);
    box.InflateRect(boxMargin, boxMargin);
    dc.FillSolidRect(&box, palette::line);
    box.DeflateRect(1, 1);
    dc.FillSolidRect(&box, noteFill);
}

void CLanguagesPage::OnGreeting(UINT buttonId)
{
    Choose(static_cast<int>(buttonId) - IDC_GREETING_FIRST);
}

void CLanguagesPage::OnLanguage()
{
    const int language = m_list.GetCurSel();
    if (language >= 0)
        Choose(language);
}

void CLanguagesPage::OnTyped()
{
    if (m_typed.GetSafeHwnd() == nullptr)
        return; // The controls are not bound yet.
    CString text;
    m_edit.GetWindowText(text);
    CString length;
    length.Format(_T("%d characters"), text.GetLength());
    SetLabelText(m_typed, length);
}
