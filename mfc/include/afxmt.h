// Synchronisation of threads.
#pragma once
#include <afxwin.h>
#include <classes/Synchronization.h>
