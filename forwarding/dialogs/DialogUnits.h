// Moved to units/DialogUnits.h.
#pragma once

#include "units/DialogUnits.h"
