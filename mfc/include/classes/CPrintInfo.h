// What a print job, or a preview, is about.
#pragma once

#include <classes/CPrintDialog.h>
#include <classes/CRect.h>
#include <classes/CString.h>

/// The pages of a job and its state, for the code that prints.
struct AFX_EXPORTED CPrintInfo
{
    CPrintInfo();
    ~CPrintInfo();
    CPrintInfo(const CPrintInfo&) = delete;
    CPrintInfo& operator=(const CPrintInfo&) = delete;

    CPrintDialog* m_pPD;      ///< The dialog for the job; owned.
    BOOL m_bPreview;          ///< Whether pages are only shown.
    BOOL m_bDirect;           ///< Prints without asking.
    BOOL m_bDocObject;        ///< Always FALSE: the subset embeds no documents.
    BOOL m_bContinuePrinting; ///< FALSE ends the job.
    UINT m_nCurPage;          ///< The first page is 1.
    UINT m_nNumPreviewPages;  ///< 1 or 2; 0 leaves it to the preview.
    CString m_strPageDesc;    ///< The formats of a page number and of a pair, each ended by a line.
    LPVOID m_lpUserData;
    CRect m_rectDraw;   ///< The usable area of the page, in logical units.
    UINT m_nOffsetPage; ///< Pages of documents before this one in a common job.
    DWORD m_dwFlags;    ///< Of an embedded document's job.
    UINT m_nJobNumber;  ///< 0 when unknown.

    void SetMinPage(UINT nMinPage);
    void SetMaxPage(UINT nMaxPage);
    UINT GetMinPage() const;
    UINT GetMaxPage() const;
    UINT GetFromPage() const;
    UINT GetToPage() const;
    UINT GetOffsetPage() const;
};
