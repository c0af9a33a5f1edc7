// The common dialogs.
#pragma once
#include <afxwin.h>
#include <classes/CCommonDialog.h>
#include <classes/CFileDialog.h>
#include <classes/CColorDialog.h>
#include <classes/CFindReplaceDialog.h>
#include <classes/CFontDialog.h>
#include <classes/CPageSetupDialog.h>
#include <classes/CPrintDialog.h>
#include <classes/CPrintDialogEx.h>
#include <classes/CPropertyPage.h>
#include <classes/CPropertySheet.h>
