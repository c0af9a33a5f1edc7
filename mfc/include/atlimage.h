// Pictures.
#pragma once
#include <afxwin.h>
#include <classes/CImage.h>
