// The common controls.
#pragma once
#include <afxwin.h>
#include <classes/CImageList.h>
#include <classes/CSliderCtrl.h>
#include <classes/CProgressCtrl.h>
#include <classes/CSpinButtonCtrl.h>
#include <classes/CToolTipCtrl.h>
#include <classes/CHeaderCtrl.h>
#include <classes/CListCtrl.h>
#include <classes/CTreeCtrl.h>
#include <classes/CTabCtrl.h>
#include <classes/CAnimateCtrl.h>
