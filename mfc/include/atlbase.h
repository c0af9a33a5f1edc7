// The string conversions and helpers that programs take from this header, and the registry.
#pragma once
#include <afx.h>
#include <classes/CRegKey.h>
