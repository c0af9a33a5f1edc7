// Loading and unloading the libraries again and again, as hosts do that take the toolkit in by their
// plug-ins.
#include "tests/Folders.h"

#include "tests/robustness/ChildProgram.h"

#include <doctest/doctest.h>
