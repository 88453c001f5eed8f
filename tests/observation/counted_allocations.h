#pragma once
// Counts every heap allocation of the program that includes this. It replaces the program's
// operator new, so only one file of a program may include it, and none under the address sanitizer,
// which brings its own.

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> allocations{0};

}  // namespace

// Not inlined: the compiler would take the pair of them apart and warn of the halves.
#define KAVREL_OUT_OF_LINE __attribute__((noinline))
KAVREL_OUT_OF_LINE void* operator new(std::size_t size) {
  allocations.fetch_add(1, std::memory_order_relaxed);
  if (void* block = std::malloc(size)) return block;
  throw std::bad_alloc();
}
KAVREL_OUT_OF_LINE void operator delete(void* block) noexcept {
  std::free(block);
}
KAVREL_OUT_OF_LINE void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}
