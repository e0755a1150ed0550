// ProbBuffer: a growable text, the result of Model::WriteMpsStr. Its last byte is always a terminating zero.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace Vorq {

class ProbBuffer {
 public:
  // Room for `size` characters and the terminating zero.
  explicit ProbBuffer(int size) { Resize(size); }

  char* Data() { return bytes_.data(); }

  // The number of bytes, the terminating zero included.
  int Size() const { return static_cast<int>(bytes_.size()); }

  // Keeps what fits.
  void Resize(int size) {
    bytes_.resize(static_cast<std::size_t>(std::max(size, 0)) + 1);
    bytes_.back() = '\0';
  }

 private:
  std::vector<char> bytes_;
};

}  // namespace Vorq
