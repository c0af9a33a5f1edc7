// stdafx.h : include file for standard system include files
//
#pragma once

#define VC_EXTRALEAN

#include <afxwin.h>         // MFC core and standard components
#include <afxext.h>         // MFC extensions
#include <afxdlgs.h>
#include <afxdtctl.h>       // MFC support for date and month controls
#include <afxcmn.h>         // MFC support for Windows Common Controls
