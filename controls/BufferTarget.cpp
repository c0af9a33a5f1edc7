#include "controls/BufferTarget.h"

namespace umbra {

namespace {

thread_local HDC current = nullptr;

} // namespace

HDC BufferTarget()
{
    return current;
}

ScopedBufferTarget::ScopedBufferTarget(HDC dc) : m_outer(current)
{
    current = dc;
}

ScopedBufferTarget::~ScopedBufferTarget()
{
    current = m_outer;
}

} // namespace umbra
