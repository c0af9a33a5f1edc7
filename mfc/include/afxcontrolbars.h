// What newer wizards expect before a program's own headers: extended dialogs, the shell, the
// managers of the looks. Control bars themselves are not part of the subset.
#pragma once
#include <afxwin.h>
#include <afxcmn.h>
#include <afxdialogex.h>
#include <afxext.h>
#include <shlobj.h>
#include <classes/CMFCVisualManager.h>
#include <classes/CMFCVisualManagerWindows.h>
#include <classes/CShellManager.h>
