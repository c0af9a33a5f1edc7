// Arrays, lists and maps of fixed element types.
#pragma once
#include <classes/Collections.h>
