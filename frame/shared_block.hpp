// The control record of a shared holder.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace Vorq {

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

  void* ptr;
  std::size_t count;
  std::atomic<std::int32_t> refs;
  SharedForm form = SharedForm::kPlain;
};

}  // namespace Vorq
