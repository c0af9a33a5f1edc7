#include <classes/CPrintInfo.h>

#include <afxres.h>

CPrintInfo::CPrintInfo()
    : m_pPD(new CPrintDialog(FALSE, PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION)),
      m_bPreview(FALSE), m_bDirect(FALSE), m_bDocObject(FALSE), m_bContinuePrinting(TRUE),
      m_nCurPage(1), m_nNumPreviewPages(0), m_lpUserData(NULL), m_nOffsetPage(0), m_dwFlags(0),
      m_nJobNumber(0)
{
    SetMinPage(1);
    SetMaxPage(0xffff);
    m_strPageDesc.LoadString(AFX_IDS_PREVIEWPAGEDESC);
}

CPrintInfo::~CPrintInfo()
{
    // A job that did not take the device context leaves it here.
    if (m_pPD->m_pd.hDC != NULL)
        ::DeleteDC(m_pPD->m_pd.hDC);
    delete m_pPD;
}

void CPrintInfo::SetMinPage(UINT nMinPage)
{
    m_pPD->m_pd.nMinPage = static_cast<WORD>(nMinPage);
}

void CPrintInfo::SetMaxPage(UINT nMaxPage)
{
    m_pPD->m_pd.nMaxPage = static_cast<WORD>(nMaxPage);
}

UINT CPrintInfo::GetMinPage() const
{
    return m_pPD->m_pd.nMinPage;
}

UINT CPrintInfo::GetMaxPage() const
{
    return m_pPD->m_pd.nMaxPage;
}

UINT CPrintInfo::GetFromPage() const
{
    return m_pPD->m_pd.nFromPage;
}

UINT CPrintInfo::GetToPage() const
{
    return m_pPD->m_pd.nToPage;
}

UINT CPrintInfo::GetOffsetPage() const
{
    return m_nOffsetPage;
}
