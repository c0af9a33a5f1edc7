// Dialogs with a background colour or image.
#pragma once
#include <afxwin.h>
#include <classes/CDialogEx.h>
