// What the texts of linear and quadratic expressions have in common.
#pragma once

#include <algorithm>
#include <cstddef>
#include <ostream>

namespace Vorq {

// The length of text to which expressions are printed to a stream.
inline constexpr int kPrintLimit = 512;

// Closes a text that leaves out terms.
inline constexpr char const* kMoreTerms = " ... ";

// How many of `count` terms are looked at for a text of about `limit` characters.
inline std::size_t ShownTerms(std::size_t count, int limit) {
  constexpr int kCharactersOfTerm = 8;
  return limit < kCharactersOfTerm ? 0 : std::min(count, static_cast<std::size_t>(limit / kCharactersOfTerm));
}

// The sign of a term, and its absolute value unless that is 1. A first term has no plus, but a minus with its blanks.
inline void WriteCoefficient(std::ostream& out, double c, bool isFirst) {
  if (c < 0.0) {
    out << " - ";
    c = -c;
  } else if (!isFirst) {
    out << " + ";
  }
  if (c != 1.0) out << c << " * ";
}

}  // namespace Vorq
