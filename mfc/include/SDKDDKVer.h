// The versions of Windows, under the name by which wizards include this header of the system.
#pragma once
#include_next <sdkddkver.h>
