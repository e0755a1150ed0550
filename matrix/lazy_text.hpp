// How much of a cell's text its explicit and its lazy part take.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace Vorq {

// The limit for the text of the explicit part: half of the whole.
inline int ExplicitLimit(std::uint64_t limit) {
  return static_cast<int>(std::min<std::uint64_t>(limit / 2, std::numeric_limits<int>::max()));
}

// How many of `count` lazy terms are written behind a text of `length` characters.
inline std::uint64_t ShownLazyTerms(std::uint64_t count, std::uint64_t limit, std::size_t length) {
  constexpr std::uint64_t kCharactersOfTerm = 8;
  return limit <= length ? 0 : std::min(count, (limit - length) / kCharactersOfTerm);
}

}  // namespace Vorq
