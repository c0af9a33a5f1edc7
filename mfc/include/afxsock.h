// Sockets.
#pragma once
#include <afxwin.h>
#include <classes/CAsyncSocket.h>
#include <classes/CSocket.h>
#include <classes/CSocketFile.h>
