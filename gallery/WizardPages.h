// The four pages of the wizard.
#pragma once

#include "gallery/GalleryPage.h"
#include "gallery/PicturePreview.h"
#include "gallery/Wizard.h"

/// What the pages have in common: the task, "Step n of 4", the Back button, and the place on the
/// screen that the page before had.
class CWizardPage : public CGalleryPage
{
public:
    BOOL OnInitDialog() override;

protected:
    /// The flags are those of CBaseDialog.
    CWizardPage(UINT templateId, WizardTask& task, CWnd* parent, bool confirm, bool ok, bool cancel,
                bool next, bool back, bool closeCaption, bool proceedCaption);

    WizardTask& m_task;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnBack();
    afx_msg void OnDestroy();
};

/// Chooses the folder. Next, Cancel.
class CWizardFolderPage : public CWizardPage
{
public:
    CWizardFolderPage(WizardTask& task, CWnd* parent);

    BOOL OnInitDialog() override;

protected:
    CxShadeButton m_btnBrowse;
    CNoteStatic m_found;

    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnFolder();
    afx_msg void OnBrowse();

private:
    CString Folder() const; ///< With a backslash at its end.
    void ShowFound();
};

/// Shows the pictures. Back, Proceed, Cancel.
class CWizardPicturesPage : public CWizardPage
{
public:
    CWizardPicturesPage(WizardTask& task, CWnd* parent);

    BOOL OnInitDialog() override;

    /// Shows one of the pictures.
    void Select(const CString& fileName);

protected:
    CListBox m_list;
    CPicturePreview m_preview;
    CNoteStatic m_info;

    void DoDataExchange(CDataExchange* pDX) override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnPicture();
};

/// Says what will be done. Back, Confirm, Cancel.
class CWizardConfirmPage : public CWizardPage
{
public:
    CWizardConfirmPage(WizardTask& task, CWnd* parent);

    BOOL OnInitDialog() override;

protected:
    CNoteStatic m_summary;

    void DoDataExchange(CDataExchange* pDX) override;

    DECLARE_MESSAGE_MAP()
};

/// Says what was done: OK; or what went wrong: Back, Close.
class CWizardResultPage : public CWizardPage
{
public:
    CWizardResultPage(WizardTask& task, CWnd* parent);

    BOOL OnInitDialog() override;

protected:
    CNoteStatic m_summary;
    CHyperLink m_link;

    void DoDataExchange(CDataExchange* pDX) override;

    DECLARE_MESSAGE_MAP()
};
