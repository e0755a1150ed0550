// The control record of a shared holder.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

#if defined(__has_include)
#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#define VORQ_KNOWS_THREADS 1
#endif
#endif

namespace Vorq {

// True as long as this process has started no second thread. Counting then needs no atomic operations, which cost
// most of the time on lists of items that lie apart.
inline bool IsSingleThreaded() noexcept {
#ifdef VORQ_KNOWS_THREADS
  return __libc_single_threaded != 0;
#else
  return false;
#endif
}

// How the memory of the elements was taken.
enum class SharedForm : std::uint8_t {
  kPlain,    // by new, apart from the block
  kJoined,   // a single object in one allocation with its block
  kElements  // an array in one allocation with its block, whose elements are destroyed one by one
};

// `count` decides what the last release does: 0 leaves the memory alone, 1 deletes a single object, more deletes an
// array of that many elements.
struct SharedBlock {
  SharedBlock(void* object, std::size_t elements) : ptr(object), count(elements), refs(1) {}

  // One holder more.
  void Retain() noexcept {
    if (IsSingleThreaded()) {
      refs.store(refs.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    } else {
      refs.fetch_add(1);
    }
  }

  // One holder less; true for the last one, whose business the memory is now. Where there is only one holder, nobody
  // else can take or end a share meanwhile.
  bool Release() noexcept {
    std::int32_t const before = refs.load(std::memory_order_acquire);
    if (before == 1) return true;
    if (IsSingleThreaded()) {
      refs.store(before - 1, std::memory_order_relaxed);
      return false;
    }
    return refs.fetch_sub(1) == 1;
  }

  void* ptr;
  std::size_t count;
  std::atomic<std::int32_t> refs;
  SharedForm form = SharedForm::kPlain;
};

}  // namespace Vorq

#undef VORQ_KNOWS_THREADS
