// MappedMemory: large blocks that come from the system by themselves, in whole huge pages, and that grow by handing
// their pages on to a longer block. Nothing is copied then, and nothing lies there twice.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>

#include "frame/huge_pages.hpp"

namespace Vorq {

// All sizes are multiples of the size of a huge page. Where memory runs out std::bad_alloc is thrown.
class MappedMemory {
 public:
  static constexpr std::size_t RoundUp(std::size_t bytes) {
    if (bytes > std::numeric_limits<std::size_t>::max() - 2 * kHugePageSize) throw std::bad_alloc();
    return (bytes + kHugePageSize - 1) / kHugePageSize * kHugePageSize;
  }

#ifdef __linux__
  static void* Allocate(std::size_t bytes) {
    void* const memory = Map(bytes, PROT_READ | PROT_WRITE);
    if (memory == nullptr) throw std::bad_alloc();
    AdviseHugePages(memory, bytes);
    return memory;
  }

  static void Release(void* memory, std::size_t bytes) noexcept {
    munmap(memory, bytes);
  }

  // The content moves to the block that is returned; `memory` stays as it is where the call fails.
  static void* Grow(void* memory, std::size_t bytes, std::size_t wanted) {
    // The place is chosen here since pages that are not aligned as before would be taken apart.
    void* const place = Map(wanted, PROT_NONE);
    if (place == nullptr) throw std::bad_alloc();
    void* const grown = mremap(memory, bytes, wanted, MREMAP_MAYMOVE | MREMAP_FIXED, place);
    if (grown == place) return grown;
    munmap(place, wanted);
    return GrowByCopy(memory, bytes, wanted);
  }

 private:
  // Aligned memory, or null.
  static void* Map(std::size_t bytes, int protection) noexcept {
    std::size_t const padded = bytes + kHugePageSize;
    void* const mapped = mmap(nullptr, padded, protection, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED) return nullptr;
    auto* const start = static_cast<std::byte*>(mapped);
    std::size_t const before = -reinterpret_cast<std::uintptr_t>(mapped) % kHugePageSize;
    if (before > 0) munmap(start, before);
    if (before < kHugePageSize) munmap(start + before + bytes, kHugePageSize - before);
    return start + before;
  }
#else
  static void* Allocate(std::size_t bytes) {
    return ::operator new (bytes, std::align_val_t{kHugePageSize});
  }
  static void Release(void* memory, std::size_t) noexcept {
    ::operator delete (memory, std::align_val_t{kHugePageSize});
  }
  static void* Grow(void* memory, std::size_t bytes, std::size_t wanted) {
    return GrowByCopy(memory, bytes, wanted);
  }

 private:
#endif
  static void* GrowByCopy(void* memory, std::size_t bytes, std::size_t wanted) {
    void* const grown = Allocate(wanted);
    std::memcpy(grown, memory, bytes);
    Release(memory, bytes);
    return grown;
  }
};

}  // namespace Vorq
