// MpsFields: cuts the data lines of an MPS file into fields, by words (free format) and, where names have blanks, by
// the fixed columns 2-3, 5-12, 15-22, 25-36, 40-47 and 50-61.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "solver/files/text_source.hpp"

namespace vorqsolver {

// A line of COLUMNS, RHS or RANGES: a name and pairs of name and number.
struct MpsPairs {
  struct Pair {
    std::string_view name;
    std::string_view value;
  };
  std::string_view head;  // empty where it is missing
  std::vector<Pair> pairs;
};

// A line of BOUNDS. The set and the value may be missing.
struct MpsBound {
  std::string_view kind;
  std::string_view set;
  std::string_view column;
  std::string_view value;
};

// Whether a kind of bound goes with a value.
enum class MpsBoundValue { kNone, kOptional, kNeeded };

class MpsFields {
 public:
  explicit MpsFields(LineReader const& lines) : lines_(lines) {}

  // The words of the current line.
  std::vector<std::string_view> const& Words();

  // A line of ROWS: the sense and the name.
  std::array<std::string_view, 2> SenseAndName();

  // `headNeeded`: whether the first name can be missing. The result lives until the next call.
  MpsPairs const& Pairs(bool headNeeded);

  // `need` tells of the kind of bound whether a value goes with it; `isColumn` tells whether a name is a column's.
  template <typename Need, typename IsColumn>
  MpsBound Bound(Need need, IsColumn isColumn) {
    Words();
    MpsBound bound;
    if (byPosition_ && BoundByPosition(bound)) return bound;
    if (BoundByWords(need, isColumn, bound)) return bound;
    if (BoundByPosition(bound)) return bound;
    lines_.Refuse("a line of BOUNDS needs kind, set, column and value");
  }

 private:
  using Fields = std::array<std::string_view, 6>;

  bool PairsByWords(bool headNeeded);
  bool PairsByPosition(bool headNeeded);
  bool BoundByPosition(MpsBound& bound);

  template <typename Need, typename IsColumn>
  bool BoundByWords(Need need, IsColumn isColumn, MpsBound& bound) const {
    auto const& w = words_;
    if (w.size() < 2 || w.size() > 4) return false;
    MpsBoundValue const value = need(w[0]);
    bool const number = IsNumber(w.back());
    if (value == MpsBoundValue::kNeeded && !number) return false;
    if (w.size() == 4) {
      bound = {w[0], w[1], w[2], w[3]};
      return number;
    }
    // Of three words the second is the set, unless the third is a value.
    bool const valued =
        w.size() == 3 && number && (value == MpsBoundValue::kNeeded || (isColumn(w[1]) && !isColumn(w[2])));
    if (w.size() == 2) {
      bound = {w[0], {}, w[1], {}};
    } else if (valued) {
      bound = {w[0], {}, w[1], w[2]};
    } else {
      bound = {w[0], w[1], w[2], {}};
    }
    return w.size() == 3 || value != MpsBoundValue::kNeeded;
  }

  static bool IsNumber(std::string_view word) {
    double value = 0.0;
    return ParseNumber(word, value) != NumberForm::kNone;
  }

  // False where the line does not keep to the fixed columns.
  bool FieldsByPosition(Fields& fields) const;

  LineReader const& lines_;
  std::vector<std::string_view> words_;
  MpsPairs pairs_;
  bool byPosition_ = false;  // once a line had to be read by position, the others are tried so first
};

}  // namespace vorqsolver
