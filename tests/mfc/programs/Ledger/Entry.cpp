// Entry.cpp : what a ledger is made of
//
#include "StdAfx.h"
#include "Entry.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CEntry

IMPLEMENT_SERIAL(CEntry, CObject, VERSIONABLE_SCHEMA | 2)

CEntry::CEntry()
{
    m_lCents = 0;
}

CEntry::CEntry(LPCTSTR lpszText, long lCents, LPCTSTR lpszCategory)
    : m_strText(lpszText), m_lCents(lCents), m_strCategory(lpszCategory)
{
}

CString CEntry::GetLine() const
{
    CString strLine;
    strLine.Format(_T("%s (%s): %ld.%02ld"), (LPCTSTR)m_strText, (LPCTSTR)m_strCategory,
        m_lCents / 100, m_lCents % 100);
    return strLine;
}

void CEntry::Serialize(CArchive& ar)
{
    CObject::Serialize(ar);
    if (ar.IsStoring())
    {
        ar << m_strText << m_lCents << m_strCategory;
        return;
    }
    switch (ar.GetObjectSchema())
    {
    case 1:
        ar >> m_strText >> m_lCents;
        m_strCategory = _T("general");
        break;
    case 2:
        ar >> m_strText >> m_lCents >> m_strCategory;
        break;
    default:
        AfxThrowArchiveException(CArchiveException::badSchema, ar.GetFile()->GetFilePath());
    }
}

#ifdef _DEBUG
void CEntry::AssertValid() const
{
    CObject::AssertValid();
    ASSERT(!m_strCategory.IsEmpty());
}

void CEntry::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "entry: " << GetLine() << "\n";
}
#endif

/////////////////////////////////////////////////////////////////////////////
// CLedger

IMPLEMENT_SERIAL(CLedger, CObject, 1)

CLedger::CLedger()
{
    m_pLargest = NULL;
}

CLedger::~CLedger()
{
    while (!m_entries.IsEmpty())
        delete m_entries.RemoveHead();
}

void CLedger::Add(CEntry* pEntry)
{
    ASSERT_VALID(pEntry);
    m_entries.AddTail(pEntry);
    if (m_pLargest == NULL || pEntry->m_lCents > m_pLargest->m_lCents)
        m_pLargest = pEntry;
    ASSERT_VALID(this);
}

long CLedger::GetTotal() const
{
    long lTotal = 0;
    POSITION pos = m_entries.GetHeadPosition();
    while (pos != NULL)
        lTotal += m_entries.GetNext(pos)->m_lCents;
    return lTotal;
}

void CLedger::Serialize(CArchive& ar)
{
    CObject::Serialize(ar);
    if (ar.IsStoring())
        ar << m_strOwner;
    else
        ar >> m_strOwner;
    m_entries.Serialize(ar);
    if (ar.IsStoring())
        ar << m_pLargest;
    else
        ar >> m_pLargest;
}

#ifdef _DEBUG
void CLedger::AssertValid() const
{
    CObject::AssertValid();
    m_entries.AssertValid();
    ASSERT(m_pLargest == NULL || m_entries.Find(m_pLargest) != NULL);
    POSITION pos = m_entries.GetHeadPosition();
    while (pos != NULL)
        ASSERT_VALID(m_entries.GetNext(pos));
}

void CLedger::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "ledger of " << m_strOwner << "\n";
    dc.SetDepth(1);
    m_entries.Dump(dc);
    dc.SetDepth(0);
}
#endif
