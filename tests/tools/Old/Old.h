// Old.h : main header file for the OLD application

#ifndef __AFXWIN_H__
	#error include 'stdafx.h' before including this file for PCH
#endif

#include "resource.h"		// main symbols

class COldApp : public CWinApp
{
public:
	COldApp();

	int m_nFailures;
	void Expect(BOOL bCondition, LPCTSTR lpszWhat);

// Overrides
	//{{AFX_VIRTUAL(COldApp)
	public:
	virtual BOOL InitInstance();
	virtual int ExitInstance();
	//}}AFX_VIRTUAL

	//{{AFX_MSG(COldApp)
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};
