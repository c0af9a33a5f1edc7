// Conversions and private messages that programs take from this header.
#pragma once
#include <afxwin.h>
