// What an archive knows about the objects and classes that it has met.
//
// Both count in the order in which they come; number 0 is NULL. A number stands in the file for
// what was stored before.
#pragma once

#include <classes/CArchive.h>

#include <unordered_map>
#include <vector>

struct CArchive::Objects
{
    struct Loaded
    {
        CObject* object;      ///< NULL for a class, and for an object that could not be loaded.
        CRuntimeClass* known; ///< NULL for an object.
        UINT schema;          ///< The version in which the class was stored.
    };

    std::vector<Loaded> loaded{{NULL, NULL, 0}};
    std::unordered_map<const void*, DWORD> stored; ///< Without NULL.
    DWORD storedCount = 1;                         ///< With NULL.
};
