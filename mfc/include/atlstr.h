// Strings and string conversions.
#pragma once
#include <classes/CString.h>
#include <classes/Conversions.h>
