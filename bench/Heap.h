#pragma once

#include <malloc.h>

#include <cstddef>

namespace Ondo::Bench {

/// Of the heap, pages that it took from the system by themselves included.
inline std::size_t bytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace Ondo::Bench
