#pragma once

#include <cstddef>

/// An executable that links AllocationCounter.cpp counts its requests for memory.
namespace allocationcounter {

/// How often operator new, in any form, was called since the program started.
[[nodiscard]] std::size_t allocations();

} // namespace allocationcounter
