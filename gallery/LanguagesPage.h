// CLanguagesPage: texts of four scripts in labels, links, tips, buttons, notes, a list and an edit.
#pragma once

#include "gallery/GalleryPage.h"
#include "gallery/Languages.h"

/// A link whose tip has a font of its own.
class CLanguageLink : public CHyperLink
{
public:
    void SetTip(const CString& text, CFont& font);

protected:
    DECLARE_MESSAGE_MAP()
};

/// The names of the languages, each in a font that has its letters.
class CLanguageList : public CListBox
{
public:
    void Fill(CFont (&fonts)[languageCount]);
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    CFont* m_fonts = nullptr; ///< One a language, the page's.

    DECLARE_MESSAGE_MAP()
};

class CLanguagesPage : public CGalleryPage
{
public:
    explicit CLanguagesPage(CWnd* parent);

    BOOL OnInitDialog() override;

    /// Shows the sentence of one of the languages.
    void Choose(int language);

protected:
    CStaticTS m_labels[languageCount];
    CLanguageLink m_links[languageCount];
    CxShadeButton m_buttons[languageCount];
    CLanguageList m_list;
    CNoteStatic m_note;
    CNoteStatic m_typed;
    CEdit m_edit;
    CFont m_fonts[languageCount];

    void DoDataExchange(CDataExchange* pDX) override;
    void DrawBackdrop(CDC& dc) override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnGreeting(UINT buttonId);
    afx_msg void OnLanguage();
    afx_msg void OnTyped();
};
