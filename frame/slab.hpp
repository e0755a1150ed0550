// Slab: the source of memory for small objects of one size that come and go in great numbers, such as handles and item
// records.
//
// Each thread takes slots from a chunk of its own, one behind the other, without a lock. A slot can be given back by
// any thread: it knows its chunk, and the chunk counts what is still out, so that it goes back to the system with its
// last slot. The slot that a thread took last is taken again when it is given back at once, as with a temporary handle.
//
// Under AddressSanitizer each slot is an allocation of its own, so that no defect is hidden.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <new>

#if defined(__SANITIZE_ADDRESS__)
#define VORQ_PLAIN_SLABS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VORQ_PLAIN_SLABS 1
#endif
#endif

namespace Vorq {

template <std::size_t kSize>
class Slab {
 public:
  // The largest size that is worth a slab, and the alignment that one gives.
  static constexpr std::size_t kLargest = 256;
  static constexpr std::size_t kAlignment = alignof(void*);

#ifdef VORQ_PLAIN_SLABS
  static void* Allocate() {
    return ::operator new(kSize);
  }
  static void Release(void* memory) noexcept {
    ::operator delete(memory);
  }
#else
  static void* Allocate() {
    Cursor& cursor = cursor_;
    if (cursor.next == cursor.end) [[unlikely]] {
      if (!Refill(cursor)) return AllocateAlone();
    }
    Slot* slot = cursor.next++;
    slot->chunk = cursor.chunk;
    return slot->memory;
  }

  static void Release(void* memory) noexcept {
    Slot* slot = reinterpret_cast<Slot*>(static_cast<std::byte*>(memory) - offsetof(Slot, memory));
    Cursor& cursor = cursor_;
    if (slot + 1 == cursor.next) {
      cursor.next = slot;
    } else if (slot->chunk != nullptr) {
      GiveBack(slot->chunk, 1);
    } else {
      ::operator delete(slot);
    }
  }

 private:
  struct Chunk;
  struct Slot {
    Chunk* chunk;  // null for a slot that stands alone
    alignas(kAlignment) std::byte memory[kSize];
  };

  static constexpr std::size_t kChunkSize = 4096 - 2 * sizeof(void*);  // a page, with the allocator's own header
  static constexpr std::uint32_t kSlots = (kChunkSize - sizeof(std::uint64_t)) / sizeof(Slot);

  struct Chunk {
    // The slots that are out or not taken yet, and one for the cursor that takes from the chunk.
    std::atomic<std::uint32_t> outstanding{kSlots + 1};
    Slot slots[kSlots];
  };

  // What is left of the chunk from which this thread takes.
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

  static void GiveBack(Chunk* chunk, std::uint32_t count) noexcept {
    if (chunk->outstanding.fetch_sub(count, std::memory_order_acq_rel) == count) delete chunk;
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
      Chunk* fresh = new Chunk;
      if (chunk != nullptr) GiveBack(chunk, 1);
      cursor.chunk = chunk = fresh;
    }
    cursor.next = chunk->slots;
    cursor.end = chunk->slots + kSlots;
    return true;
  }

  [[gnu::noinline]] static void* AllocateAlone() {
    Slot* slot = static_cast<Slot*>(::operator new(sizeof(Slot)));
    slot->chunk = nullptr;
    return slot->memory;
  }

  static inline thread_local constinit Cursor cursor_{};
#endif
};

}  // namespace Vorq

#undef VORQ_PLAIN_SLABS
