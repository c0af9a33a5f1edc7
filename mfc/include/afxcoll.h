// Arrays, lists and maps of fixed element types.
#pragma once
#include <afx.h>
#include <classes/Collections.h>
