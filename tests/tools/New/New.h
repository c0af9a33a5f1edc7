// New.h : main header file for the PROJECT_NAME application
//

#pragma once

#ifndef __AFXWIN_H__
	#error "include 'stdafx.h' before including this file for PCH"
#endif

#include "resource.h"		// main symbols

class CNewApp : public CWinApp
{
public:
	CNewApp();

	int m_nFailures;
	void Expect(BOOL bCondition, LPCTSTR lpszWhat);

// Overrides
public:
	virtual BOOL InitInstance();
	virtual int ExitInstance();

// Implementation

	DECLARE_MESSAGE_MAP()
};

extern CNewApp theApp;
