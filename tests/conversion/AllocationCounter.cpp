#include "AllocationCounter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> counted = 0;

void *countedMemory(std::size_t size) noexcept
{
    counted.fetch_add(1, std::memory_order_relaxed);
    return std::malloc(size > 0 ? size : 1);
}

void *countedMemoryOrThrow(std::size_t size)
{
    void *memory = countedMemory(size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

/// As above for types that want more than malloc's alignment; malloc's size is a multiple of it.
void *countedAlignedMemory(std::size_t size, std::align_val_t alignment)
{
    counted.fetch_add(1, std::memory_order_relaxed);
    const auto boundary = static_cast<std::size_t>(alignment);
    void *memory = std::aligned_alloc(boundary, (size + boundary - 1) / boundary * boundary);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

} // namespace

std::size_t allocationcounter::allocations() { return counted.load(std::memory_order_relaxed); }

void *operator new(std::size_t size) { return countedMemoryOrThrow(size); }
void *operator new[](std::size_t size) { return countedMemoryOrThrow(size); }
void *operator new(std::size_t size, const std::nothrow_t & /*tag*/) noexcept
{
    return countedMemory(size);
}
void *operator new[](std::size_t size, const std::nothrow_t & /*tag*/) noexcept
{
    return countedMemory(size);
}
void *operator new(std::size_t size, std::align_val_t alignment)
{
    return countedAlignedMemory(size, alignment);
}
void *operator new[](std::size_t size, std::align_val_t alignment)
{
    return countedAlignedMemory(size, alignment);
}

void operator delete(void *memory) noexcept { std::free(memory); }
void operator delete[](void *memory) noexcept { std::free(memory); }
void operator delete(void *memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete[](void *memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete(void *memory, const std::nothrow_t & /*tag*/) noexcept { std::free(memory); }
void operator delete[](void *memory, const std::nothrow_t & /*tag*/) noexcept { std::free(memory); }
void operator delete(void *memory, std::align_val_t /*alignment*/) noexcept { std::free(memory); }
void operator delete[](void *memory, std::align_val_t /*alignment*/) noexcept { std::free(memory); }
void operator delete(void *memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept
{
    std::free(memory);
}
void operator delete[](void *memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept
{
    std::free(memory);
}
