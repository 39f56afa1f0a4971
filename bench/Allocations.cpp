#include "bench/Allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::uint64_t count = 0;

}  // namespace

// The forms that the plug-in uses. A sanitizer's own allocate what they free: those of arrays and of aligned memory may
// stay.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++count;
    return std::malloc(size == 0 ? 1 : size);
}
void* operator new(std::size_t size) {
    if (void* memory = operator new(size, std::nothrow)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }

std::uint64_t ombrel::bench::Allocations() { return count; }
