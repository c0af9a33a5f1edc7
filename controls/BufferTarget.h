// Whether what a control draws into is a buffer already, so that it needs none of its own.
#pragma once

#include <windows.h>

namespace umbra {

/// The context of the buffer that a page is painted into by this thread; NULL at other times.
HDC BufferTarget();

/// Names the context for its length.
class ScopedBufferTarget
{
public:
    explicit ScopedBufferTarget(HDC dc);
    ~ScopedBufferTarget();
    ScopedBufferTarget(const ScopedBufferTarget&) = delete;
    ScopedBufferTarget& operator=(const ScopedBufferTarget&) = delete;

private:
    const HDC m_outer;
};

} // namespace umbra
