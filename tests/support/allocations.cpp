// The counting forms of operator new and delete.
#include "tests/support/allocations.hpp"

#include <cstdlib>
#include <new>

namespace vorqtest {

std::size_t allocations = 0;
std::size_t allocatedBytes = 0;

}  // namespace vorqtest

namespace {

void* CountedAllocate(std::size_t size) {
  ++vorqtest::allocations;
  vorqtest::allocatedBytes += size;
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

void* operator new(std::size_t size) {
  return CountedAllocate(size);
}
void* operator new[](std::size_t size) {
  return CountedAllocate(size);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}
