// A file in memory for other programs.
#pragma once
#include <afxwin.h>
#include <classes/CSharedFile.h>
