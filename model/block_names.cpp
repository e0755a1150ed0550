// Writing the names of the cells of a block.
#include "model/block_names.hpp"

#include <algorithm>
#include <array>
#include <charconv>

#include "frame/growth.hpp"
#include "frame/huge_pages.hpp"
#include "items/normalize_name.hpp"

namespace Vorq {
namespace {

constexpr std::size_t kMaxRank = 3;

std::size_t DigitCount(std::uint64_t number) {
  std::size_t count = 1;
  for (; number >= 10; number /= 10) ++count;
  return count;
}

// The text of an index, which counts up from 0 in all axes. What stands before the last axis is kept.
class IndexText {
 public:
  explicit IndexText(std::span<std::uint64_t const> sizes) : sizes_(sizes) { WriteOuter(); }

  // Writes the text and a terminating zero to `target`, which has room for it, goes on to the next index, and returns
  // the end of what was written.
  char* Write(char* target) {
    target = std::copy_n(outer_.data(), outerLength_, target);
    if (!sizes_.empty()) {
      target = WriteNumber(target, index_[sizes_.size() - 1]);
      Advance();
    }
    *target++ = ')';
    *target++ = '\0';
    return target;
  }

  // The length of the longest text, with its terminating zero.
  static std::size_t Longest(std::span<std::uint64_t const> sizes) {
    std::size_t length = 3 + (sizes.empty() ? 0 : sizes.size() - 1);
    for (std::uint64_t const size : sizes) length += DigitCount(size);
    return length;
  }

 private:
  static constexpr std::size_t kNumberRoom = 20;

  static char* WriteNumber(char* target, std::uint64_t number) {
    return std::to_chars(target, target + kNumberRoom, number).ptr;
  }

  void WriteOuter() {
    char* end = outer_.data();
    *end++ = '(';
    for (std::size_t axis = 0; axis + 1 < sizes_.size(); ++axis) {
      end = WriteNumber(end, index_[axis]);
      *end++ = ',';
    }
    outerLength_ = static_cast<std::size_t>(end - outer_.data());
  }

  void Advance() {
    std::size_t axis = sizes_.size() - 1;
    if (++index_[axis] < sizes_[axis]) return;
    while (axis > 0 && index_[axis] == sizes_[axis]) {
      index_[axis] = 0;
      ++index_[--axis];
    }
    WriteOuter();
  }

  std::span<std::uint64_t const> sizes_;
  std::array<std::uint64_t, kMaxRank> index_{};
  std::array<char, 1 + kMaxRank*(kNumberRoom + 1)> outer_{};
  std::size_t outerLength_ = 0;
};

}  // namespace

// Index texts are at most 24 characters long, as the digits of all axes together are those of a count of cells, so that
// none has to be cut.
void BlockNames::Write(std::string_view prefix, std::span<std::uint64_t const> sizes) {
  std::size_t count = 1;
  for (std::uint64_t const size : sizes) count *= size;
  ReserveMore(pointers_, count);
  // WriteNumber may look at the room of its longest number behind the last name.
  constexpr std::size_t kSpareRoom = 24;
  std::size_t const room = count * (prefix.size() + IndexText::Longest(sizes)) + kSpareRoom;
  buffer_.reset(new char[room]);
  AdviseHugePages(buffer_.get(), room);
  char* end = buffer_.get();
  IndexText index(sizes);
  for (std::size_t i = 0; i < count; ++i) {
    pointers_.push_back(end);
    end = index.Write(std::ranges::copy(prefix, end).out);
  }
}

template <int N>
BlockNames::BlockNames(NDim<N> const& shape, char const* prefix) {
  auto const sizes = shape.GetDims();
  Write(NormalizeName(prefix), sizes);
}

template BlockNames::BlockNames(NDim<0> const&, char const*);
template BlockNames::BlockNames(NDim<1> const&, char const*);
template BlockNames::BlockNames(NDim<2> const&, char const*);
template BlockNames::BlockNames(NDim<3> const&, char const*);

}  // namespace Vorq
