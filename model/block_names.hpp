// BlockNames: the names of the cells of a block in flat order: a prefix, and the index of the cell in brackets.
//
//     BlockNames names(NDim<2>({2, 2}), "x");       // x(0,0) x(0,1) x(1,0) x(1,1)
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "ndarray/shape.hpp"

namespace Vorq {

class BlockNames {
 public:
  // The prefix is normalised; a null one counts as empty. The shape must have no more cells than an int counts.
  template <int N>
  BlockNames(NDim<N> const& shape, char const* prefix);

  // Valid as long as this object.
  std::vector<char const*> const& Pointers() const { return pointers_; }

 private:
  void Write(std::string_view prefix, std::span<std::uint64_t const> sizes);

  std::unique_ptr<char[]> buffer_;  // the names one behind the other, each with its terminating zero
  std::vector<char const*> pointers_;
};

}  // namespace Vorq
