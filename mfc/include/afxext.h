// Bitmap buttons, metafile contexts and print jobs, and what programs expect this header to bring
// along.
#pragma once
#include <afxwin.h>
#include <afxdlgs.h>
#include <afxtempl.h>
#include <classes/CBitmapButton.h>
#include <classes/CMetaFileDC.h>
#include <classes/CPrintInfo.h>
