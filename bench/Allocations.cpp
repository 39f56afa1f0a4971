#include "bench/Allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::uint64_t count = 0;

}  // namespace

// The other forms of new and delete end in these two, but for the aligned ones.
void* operator new(std::size_t size) {
    ++count;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

std::uint64_t ombrel::bench::Allocations() { return count; }
