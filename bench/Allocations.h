// Counts what the whole program takes from the heap.
#pragma once

#include <cstdint>

namespace ombrel::bench {

std::uint64_t Allocations();

}  // namespace ombrel::bench
