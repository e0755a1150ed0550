// Regions with free chunks form a list; all of it is guarded by one lock, which a slab takes once for a page of
// objects.
#include "frame/chunk_pool.hpp"

#include <mutex>
#include <new>

#include "frame/huge_pages.hpp"

namespace Vorq {
namespace {

constexpr std::size_t kRegionSize = kHugePageSize;
constexpr std::size_t kChunks = kRegionSize / ChunkPool::kChunkSize - 1;

struct FreeChunk {
  FreeChunk* next;
};

// Stands in the first chunk of its region.
struct Region {
  Region* next = nullptr;  // in the list of regions with free chunks
  Region* previous = nullptr;
  FreeChunk* free = nullptr;  // chunks that came back
  std::size_t taken = 0;      // chunks that are out
  std::size_t touched = 0;    // chunks that were ever out; those behind are free too

  bool IsFull() const { return taken == kChunks; }
};

constinit std::mutex lock;
constinit Region* regions = nullptr;  // those with free chunks
constinit bool hasFirst = false;

Region* NewRegion() {
  void* const memory = ::operator new (kRegionSize, std::align_val_t{kRegionSize});
  // The first region stays in small pages, so that a small model takes little memory.
  if (hasFirst) AdviseHugePages(memory, kRegionSize);
  hasFirst = true;
  return new (memory) Region;
}

void Link(Region* region) {
  region->next = regions;
  if (regions != nullptr) regions->previous = region;
  regions = region;
}

void Unlink(Region* region) {
  (region->previous == nullptr ? regions : region->previous->next) = region->next;
  if (region->next != nullptr) region->next->previous = region->previous;
  region->next = region->previous = nullptr;
}

Region* RegionOf(void* chunk) {
  return reinterpret_cast<Region*>(StartOfBlock(chunk, kRegionSize));
}

}  // namespace

void* ChunkPool::Take() {
  std::lock_guard const guard(lock);
  if (regions == nullptr) Link(NewRegion());
  Region* const region = regions;
  void* chunk = region->free;
  if (chunk != nullptr) {
    region->free = region->free->next;
  } else {
    chunk = reinterpret_cast<std::byte*>(region) + ++region->touched * kChunkSize;
  }
  ++region->taken;
  if (region->IsFull()) Unlink(region);
  return chunk;
}

void ChunkPool::GiveBack(void* chunk) noexcept {
  Region* const region = RegionOf(chunk);
  std::lock_guard const guard(lock);
  if (region->IsFull()) Link(region);
  region->free = new (chunk) FreeChunk{region->free};
  --region->taken;
  // One region is kept, so that a program that comes and goes with few objects does not ask the system each time.
  bool const isOnlyOne = region->next == nullptr && region->previous == nullptr;
  if (region->taken > 0 || isOnlyOne) return;
  Unlink(region);
  ::operator delete (region, std::align_val_t{kRegionSize});
}

}  // namespace Vorq
