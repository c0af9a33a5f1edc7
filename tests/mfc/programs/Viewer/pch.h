// pch.h: This is a precompiled header file.
#ifndef PCH_H
#define PCH_H

#include "framework.h"

#endif //PCH_H
