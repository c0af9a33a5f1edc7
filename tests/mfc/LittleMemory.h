// Lets blocks of memory fail, for the class library only.
#pragma once

#include "testing/CallFault.h"

#include "tests/LibraryFiles.h"

#include <cstdlib>

/// While it lives, the library gets no block of `bigBlock` bytes or more.
class LittleMemory
{
public:
    static constexpr size_t bigBlock = 100000;

    bool IsInstalled() const { return plain_.IsInstalled(); }

private:
    static void* Allocate(size_t size) { return size < bigBlock ? std::malloc(size) : nullptr; }
    static void* Reallocate(void* block, size_t size)
    {
        return size < bigBlock ? std::realloc(block, size) : nullptr;
    }

    const HMODULE library_ = umbra::testing::FindModule(UMBRA_MFC_DLL);
    umbra::testing::ImportHook plain_{library_, "msvcrt.dll", "malloc", Allocate};
    umbra::testing::ImportHook again_{library_, "msvcrt.dll", "realloc", Reallocate};
};

/// While it lives, the library does not get its n-th block; the first is number 1.
class OneBlockMissing : public umbra::testing::FailNth
{
public:
    explicit OneBlockMissing(long long n)
        : FailNth(umbra::testing::FindModule(UMBRA_MFC_DLL), "msvcrt.dll", "malloc", n)
    {
    }
};
