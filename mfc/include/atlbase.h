// The string conversions and helpers that programs take from this header.
#pragma once
#include <afx.h>
