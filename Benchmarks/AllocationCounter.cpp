// Replaces the global allocation functions of the binary with ones that count live bytes. Written by
// hand because no library here counts the heap by allocation site: malloc statistics (mallinfo2)
// include the allocator's own caches and free lists, which a measurement of one structure must not.

#include "AllocationCounter.h"

#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace benchmarks
{
namespace
{

// Single-threaded benchmarks, but Google Benchmark and the C++ runtime may allocate from other
// threads; relaxed atomics keep the count right at little cost.
std::atomic<std::size_t> liveBytes{0};

void* allocate(std::size_t size, std::size_t alignment)
{
    if (size == 0)
        size = 1;
    void* memory = nullptr;
    if (alignment <= alignof(std::max_align_t))
        memory = std::malloc(size);
    else if (posix_memalign(&memory, alignment, size) != 0)
        memory = nullptr;
    if (memory != nullptr)
        liveBytes.fetch_add(malloc_usable_size(memory), std::memory_order_relaxed);
    return memory;
}

void* allocateOrThrow(std::size_t size, std::size_t alignment)
{
    void* const memory = allocate(size, alignment);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void release(void* memory) noexcept
{
    if (memory == nullptr)
        return;
    liveBytes.fetch_sub(malloc_usable_size(memory), std::memory_order_relaxed);
    std::free(memory);
}

constexpr std::size_t plain = alignof(std::max_align_t);

} // namespace

std::size_t liveHeapBytes() noexcept
{
    return liveBytes.load(std::memory_order_relaxed);
}

} // namespace benchmarks

using benchmarks::allocate;
using benchmarks::allocateOrThrow;
using benchmarks::plain;
using benchmarks::release;

void* operator new(std::size_t size)
{
    return allocateOrThrow(size, plain);
}
void* operator new[](std::size_t size)
{
    return allocateOrThrow(size, plain);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size, plain);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size, plain);
}
void* operator new(std::size_t size, std::align_val_t alignment)
{
    return allocateOrThrow(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return allocateOrThrow(size, static_cast<std::size_t>(alignment));
}
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return allocate(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return allocate(size, static_cast<std::size_t>(alignment));
}

void operator delete(void* memory) noexcept
{
    release(memory);
}
void operator delete[](void* memory) noexcept
{
    release(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    release(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    release(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    release(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    release(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept
{
    release(memory);
}
void operator delete[](void* memory, std::align_val_t) noexcept
{
    release(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    release(memory);
}
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept
{
    release(memory);
}
void operator delete(void* memory, std::align_val_t, const std::nothrow_t&) noexcept
{
    release(memory);
}
void operator delete[](void* memory, std::align_val_t, const std::nothrow_t&) noexcept
{
    release(memory);
}
