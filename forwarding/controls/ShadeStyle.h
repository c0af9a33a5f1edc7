// Moved to faces/ShadeStyle.h.
#pragma once

#include "faces/ShadeStyle.h"
