// Slab: the source of memory for small objects of one size that come and go in great numbers, such as handles and item
// records.
//
// Each thread takes slots from a chunk of its own, one behind the other, without a lock. A slot can be given back by
// any thread: its address tells its chunk, and the chunk counts what is still out, so that it goes back to the pool
// with its last slot. The slot that a thread took last is taken again when it is given back at once, as with a
// temporary handle.
//
// Under AddressSanitizer each slot is an allocation of its own, so that no defect is hidden.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <new>

#include "frame/address_sanitizer.hpp"
#include "frame/chunk_pool.hpp"

namespace Vorq {

template <std::size_t kSize>
class Slab {
 public:
  // The largest size that is worth a slab, and the alignment that one gives.
  static constexpr std::size_t kLargest = 256;
  static constexpr std::size_t kAlignment = alignof(void*);

  static void* Allocate() {
    if constexpr (kIsAddressSanitized) return ::operator new(kSize);
    Cursor& cursor = cursor_;
    if (cursor.next == cursor.end) [[unlikely]] {
      if (!Refill(cursor)) return AllocateAlone();
    }
    return (cursor.next++)->memory;
  }

  static void Release(void* memory) noexcept {
    if constexpr (kIsAddressSanitized) return ::operator delete(memory);
    Slot* slot = static_cast<Slot*>(memory);
    Cursor& cursor = cursor_;
    if (slot + 1 == cursor.next) {
      cursor.next = slot;
    } else {
      GiveBack(ChunkOf(slot), 1);
    }
  }

 private:
  struct Slot {
    alignas(kAlignment) std::byte memory[kSize];
  };

  static constexpr std::uint32_t kSlots = (ChunkPool::kChunkSize - sizeof(std::uint64_t)) / sizeof(Slot);

  struct Chunk {
    explicit Chunk(std::uint32_t count) : outstanding(count) {}

    // In front, so that slots whose size divides that of a cache line lie in one line each.
    Slot slots[kSlots];
    // The slots that are out or not taken yet, and one for the cursor that takes from the chunk.
    std::atomic<std::uint32_t> outstanding;
  };
  static_assert(sizeof(Chunk) <= ChunkPool::kChunkSize);

  // What is left of the chunk from which this thread takes. A slot in front of `next` lies in that chunk, also where
  // the chunk is used up.
  struct Cursor {
    Slot* next;
    Slot* end;
    Chunk* chunk;
    bool hasEnded;
  };

  // Gives the rest of a chunk back when its thread ends.
  struct CursorEnd {
    ~CursorEnd() {
      Cursor& cursor = cursor_;
      cursor.hasEnded = true;
      if (cursor.chunk == nullptr) return;
      GiveBack(cursor.chunk, static_cast<std::uint32_t>(cursor.end - cursor.next) + 1);
      cursor.next = cursor.end = nullptr;
      cursor.chunk = nullptr;
    }
  };

  static Chunk* NewChunk(std::uint32_t outstanding) { return new (ChunkPool::Take()) Chunk(outstanding); }

  static Chunk* ChunkOf(Slot* slot) { return reinterpret_cast<Chunk*>(StartOfBlock(slot, ChunkPool::kChunkSize)); }

  static void GiveBack(Chunk* chunk, std::uint32_t count) noexcept {
    if (chunk->outstanding.fetch_sub(count, std::memory_order_acq_rel) == count) ChunkPool::GiveBack(chunk);
  }

  // Starts a chunk. False once the thread's own objects are being destroyed: nobody would give back the rest of it.
  [[gnu::noinline]] static bool Refill(Cursor& cursor) {
    thread_local CursorEnd cursorEnd;
    if (cursor.hasEnded) return false;
    static_cast<void>(&cursorEnd);
    Chunk* chunk = cursor.chunk;
    if (chunk != nullptr && chunk->outstanding.load(std::memory_order_acquire) == 1) {
      // All slots have come back: the chunk starts anew.
      chunk->outstanding.store(kSlots + 1, std::memory_order_relaxed);
    } else {
      Chunk* fresh = NewChunk(kSlots + 1);
      if (chunk != nullptr) GiveBack(chunk, 1);
      cursor.chunk = chunk = fresh;
    }
    cursor.next = chunk->slots;
    cursor.end = chunk->slots + kSlots;
    return true;
  }

  // A chunk for one slot.
  [[gnu::noinline]] static void* AllocateAlone() { return NewChunk(1)->slots[0].memory; }

  [[gnu::tls_model("initial-exec")]] static inline thread_local constinit Cursor cursor_{};
};

}  // namespace Vorq
