// Points, sizes and rectangles.
#pragma once
#include <classes/CSize.h>
#include <classes/CPoint.h>
#include <classes/CRect.h>
