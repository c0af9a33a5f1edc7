// pch.cpp: source file corresponding to the pre-compiled header

#include "pch.h"
