// Entry.h : what a ledger is made of
//
#if !defined(LEDGER_ENTRY_H__INCLUDED_)
#define LEDGER_ENTRY_H__INCLUDED_

class CEntry : public CObject
{
    DECLARE_SERIAL(CEntry)

public:
    CEntry();
    CEntry(LPCTSTR lpszText, long lCents, LPCTSTR lpszCategory);

    CString m_strText;
    long    m_lCents;
    CString m_strCategory;      // since version 2

    CString GetLine() const;

    virtual void Serialize(CArchive& ar);
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif
};

typedef CTypedPtrList<CObList, CEntry*> CEntryList;

class CLedger : public CObject
{
    DECLARE_SERIAL(CLedger)

public:
    CLedger();
    virtual ~CLedger();

    CString    m_strOwner;
    CEntryList m_entries;       // owned
    CEntry*    m_pLargest;      // one of them, or NULL

    void Add(CEntry* pEntry);
    long GetTotal() const;

    virtual void Serialize(CArchive& ar);
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif
};

#endif
