// RunList: a list of numbers put together from runs that lie somewhere in memory. As long as each run begins where the
// one before it ends, nothing is copied: the list stands there. The memory must stay as it is while the list is used.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "frame/growth.hpp"

namespace Vorq {

template <class T>
class RunList {
 public:
  // `room` is what the list may need, taken when the first number is copied.
  explicit RunList(std::size_t room) : room_(room) {}

  std::size_t Size() const { return source_ != nullptr ? size_ : own_.size(); }
  T const* Data() const { return source_ != nullptr ? source_ : own_.data(); }

  // A run that begins where the list ends: it goes on there.
  void Append(T const* run, std::size_t count) {
    if (Size() == 0) StandAt(run);
    if (source_ != nullptr && run == source_ + size_) {
      size_ += count;
    } else {
      std::vector<T>& numbers = Numbers();
      numbers.insert(numbers.end(), run, run + count);
    }
  }

  // Tells that the list, as it is so far, also stands there.
  void StandAt(T const* source) {
    size_ = Size();
    source_ = source;
  }

  // The list to append to.
  std::vector<T>& Numbers() {
    if (own_.capacity() < room_) ReserveMore(own_, room_ - own_.size());
    if (source_ != nullptr) {
      own_.insert(own_.end(), source_ + own_.size(), source_ + size_);
      source_ = nullptr;
    }
    return own_;
  }

 private:
  std::size_t room_;
  // What was copied; where the list stands elsewhere, its beginning.
  std::vector<T> own_;
  T const* source_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace Vorq
