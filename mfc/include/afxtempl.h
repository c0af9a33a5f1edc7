// Array, list and map templates.
#pragma once
#include <afx.h>
#include <classes/CArray.h>
#include <classes/CList.h>
#include <classes/CMap.h>
#include <classes/CTypedPtr.h>
