// What the processor can do.
#pragma once

/// Whether the processor and the system allow AVX2 instructions.
bool CpuHasAvx2();
