#include <afxext.h>

#include <doctest/doctest.h>

TEST_CASE("a print job begins with the first page of as many as there may be")
{
    CPrintInfo info;
    CHECK(info.m_nCurPage == 1);
    CHECK(info.GetMinPage() == 1);
    CHECK(info.GetMaxPage() == 0xffff);
    CHECK(info.m_bContinuePrinting);
    CHECK_FALSE(info.m_bPreview);
    CHECK_FALSE(info.m_bDirect);
    CHECK(info.m_nNumPreviewPages == 0);
    CString line;
    line.Format(info.m_strPageDesc, 3, 4, 5);
    CHECK(line == _T("Page 3\nPages 4-5\n"));
}

TEST_CASE("the pages of a job are those of its dialog")
{
    CPrintInfo info;
    info.SetMinPage(2);
    info.SetMaxPage(9);
    CHECK(info.m_pPD->m_pd.nMinPage == 2);
    CHECK(info.GetMaxPage() == 9);
    info.m_pPD->m_pd.nFromPage = 3;
    info.m_pPD->m_pd.nToPage = 4;
    CHECK(info.GetFromPage() == 3);
    CHECK(info.GetToPage() == 4);
    info.m_nOffsetPage = 6;
    CHECK(info.GetOffsetPage() == 6);
    info.m_pPD->m_pd.hDC = ::CreateCompatibleDC(NULL); // Goes with the job.
}
