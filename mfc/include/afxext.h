// Bitmap buttons and metafile contexts, and what programs expect this header to bring along.
#pragma once
#include <afxwin.h>
#include <afxdlgs.h>
#include <afxtempl.h>
#include <classes/CBitmapButton.h>
#include <classes/CMetaFileDC.h>
