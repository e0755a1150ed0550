// Huge pages: asking the system to back a large block by them. Filling fresh memory costs a page fault for every page,
// which is most of what it costs to build a large model.
#pragma once

#include <cstddef>
#include <cstdint>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace Vorq {

inline constexpr std::size_t kHugePageSize = std::size_t{2} << 20;

// To be called before the block is used. Where the system knows no such pages it does nothing.
inline void AdviseHugePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t bytes) noexcept {
#ifdef MADV_HUGEPAGE
  // From the first whole page on.
  std::size_t const before = -reinterpret_cast<std::uintptr_t>(memory) % kHugePageSize;
  if (bytes < before + kHugePageSize) return;
  std::size_t const whole = (bytes - before) / kHugePageSize * kHugePageSize;
  madvise(static_cast<std::byte*>(memory) + before, whole, MADV_HUGEPAGE);
#endif
}

}  // namespace Vorq
