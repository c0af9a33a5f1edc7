// A buffer of characters whose end is the end of the accessible memory: the first byte written or
// read past it is an access violation. The bytes before it are watched.
#pragma once

#include "testing/Text.h"

#include <windows.h>

#include <algorithm>
#include <string.h>

class GuardedBuffer
{
public:
    explicit GuardedBuffer(size_t characters)
    {
        const size_t size = characters * sizeof(TCHAR);
        SYSTEM_INFO system;
        ::GetSystemInfo(&system);
        const size_t page = system.dwPageSize;
        m_before = page - size % page;
        const size_t usable = m_before + size;
        m_memory = static_cast<char*>(
            ::VirtualAlloc(nullptr, usable + page, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
        DWORD former;
        ::VirtualProtect(m_memory + usable, page, PAGE_NOACCESS, &former);
        memset(m_memory, filling, usable);
    }
    ~GuardedBuffer() { ::VirtualFree(m_memory, 0, MEM_RELEASE); }
    GuardedBuffer(const GuardedBuffer&) = delete;
    GuardedBuffer& operator=(const GuardedBuffer&) = delete;

    TCHAR* Get() const { return reinterpret_cast<TCHAR*>(m_memory + m_before); }
    bool IsFrontIntact() const
    {
        for (size_t i = 0; i < m_before; ++i) {
            if (m_memory[i] != filling)
                return false;
        }
        return true;
    }

private:
    static constexpr char filling = '#';
    char* m_memory;
    size_t m_before;
};

/// A text whose terminator is the last accessible byte.
class GuardedText : public GuardedBuffer
{
public:
    explicit GuardedText(const umbra::testing::TString& text) : GuardedBuffer(text.size() + 1)
    {
        std::copy_n(text.c_str(), text.size() + 1, Get());
    }
    operator LPCTSTR() const { return Get(); }
};
