#pragma once

#include <cstddef>

namespace benchmarks
{

// The bytes of heap memory that the process holds through operator new now, as malloc rounds them
// (malloc_usable_size): the binary that links AllocationCounter.cpp replaces the global operator
// new and delete with counting ones, which every library of the process then calls. Allocations
// made with malloc directly are not counted.
std::size_t liveHeapBytes() noexcept;

} // namespace benchmarks
