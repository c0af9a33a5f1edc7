// The common dialogs.
#pragma once
#include <afxwin.h>
#include <classes/CCommonDialog.h>
#include <classes/CFileDialog.h>
#include <classes/CColorDialog.h>
#include <classes/CFontDialog.h>
#include <classes/CPropertyPage.h>
#include <classes/CPropertySheet.h>
