// stdafx.h : include file for standard system include files
//
#pragma once

#define VC_EXTRALEAN

#include <afxwin.h>         // MFC core and standard components
#include <afxext.h>         // MFC extensions
#include <afxsock.h>        // MFC socket extensions
