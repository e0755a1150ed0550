// ChunkPool: pages for the slabs, cut from regions of 2 MiB.
//
// A model with a million variables holds hundreds of megabytes of small objects, and on such lists most of the time
// goes into page faults. So the regions behind the first one are asked for as huge pages: one fault instead of 512.
// Chunks that come back are given out again first, and a region goes back to the system with its last chunk.
#pragma once

#include <cstddef>
#include <cstdint>

namespace Vorq {

// The start of the block in which `place` lies, blocks being aligned to their size, a power of two.
inline std::byte* StartOfBlock(void* place, std::size_t size) {
  return static_cast<std::byte*>(place) - (reinterpret_cast<std::uintptr_t>(place) & (size - 1));
}

class ChunkPool {
 public:
  // The size of a chunk, and its alignment: what lies in a chunk finds it by masking its own address.
  static constexpr std::size_t kChunkSize = 4096;

  // Any thread may take and give back.
  static void* Take();
  static void GiveBack(void* chunk) noexcept;
};

}  // namespace Vorq
