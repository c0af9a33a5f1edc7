// Moved to faces/PaletteDib.h.
#pragma once

#include "faces/PaletteDib.h"
