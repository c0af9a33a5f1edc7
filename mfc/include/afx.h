// Objects, run-time classes, exceptions, strings, files: what needs no window.
#pragma once
#define __AFX_H__
#include <classes/Platform.h>
#include <classes/CRuntimeClass.h>
#include <classes/CObject.h>
#include <atltypes.h>
#include <atlstr.h>
#include <classes/CException.h>
#include <atltime.h>
#include <classes/CFile.h>
#include <classes/CStdioFile.h>
#include <classes/CMemFile.h>
#include <classes/CFileFind.h>
#include <classes/CArchive.h>
#include <classes/CDumpContext.h>
#include <classes/Trace.h>
#include <classes/Collections.h>
