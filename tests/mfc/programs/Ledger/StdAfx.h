// stdafx.h : the headers that every source of this program includes
//
#if !defined(AFX_STDAFX_H__LEDGER__INCLUDED_)
#define AFX_STDAFX_H__LEDGER__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif

#define VC_EXTRALEAN

#include <afxwin.h>
#include <afxext.h>
#include <afxtempl.h>

#endif
