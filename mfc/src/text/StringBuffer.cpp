#include "text/StringBuffer.h"

constinit afxint::EmptyBuffer afxint::nothing;
