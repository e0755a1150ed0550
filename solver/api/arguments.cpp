// Checks run over whole lists without a branch for each entry; the culprit is looked for only when there is one.
#include "solver/api/arguments.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace vorqsolver {

namespace {

bool IsControl(char character) {
  auto const code = static_cast<unsigned char>(character);
  return code < 0x20 || code == 0x7f;
}

}  // namespace

void CheckCount(int count, char const* what) {
  if (count < 0) Refuse("Negative count ", count, " of argument '", what, "'");
}

void CheckIndex(int index, int limit, char const* kind) {
  if (index < 0 || index >= limit) Refuse(kind, " ", index, " does not exist (there are ", limit, ")");
}

void CheckIndices(std::span<int const> indices, int limit, char const* kind) {
  // An index below 0, or the distance of one behind the last, has the sign bit: one operation takes many entries.
  auto const last = static_cast<unsigned>(limit) - 1;
  unsigned signs = 0;
  for (auto const index : indices) signs |= static_cast<unsigned>(index) | (last - static_cast<unsigned>(index));
  if (static_cast<int>(signs) >= 0) return;
  for (auto const index : indices) CheckIndex(index, limit, kind);
}

void CheckCoefficients(std::span<double const> values, char const* what) {
  // A count as wide as the entries, so that one operation takes several.
  std::int64_t badCount = 0;
  for (auto const value : values) badCount += std::abs(value) < kInfinity ? 0 : 1;
  if (badCount == 0) return;
  auto const bad = std::ranges::find_if(values, [](double value) { return !(std::abs(value) < kInfinity); });
  Refuse("Argument '", what, "' has the entry ", *bad, " at position ", bad - values.begin(),
         ", where a finite number is needed");
}

void CheckBounds(std::span<double const> values, char const* what) {
  auto const bad = std::ranges::find_if(values, [](double value) { return std::isnan(value); });
  if (bad != values.end()) Refuse("Argument '", what, "' is not a number at position ", bad - values.begin());
}

std::string_view CheckedName(char const* name) {
  std::string_view const text = name;
  auto const bad = std::ranges::find_if(text, IsControl);
  if (bad != text.end()) {
    Refuse("A name has the control character ", static_cast<int>(static_cast<unsigned char>(*bad)), " at position ",
           bad - text.begin());
  }
  return text;
}

void CheckNames(int count, char const* const* names) {
  if (names == nullptr) return;
  for (int place = 0; place < count; ++place) ToName(names[place]);
}

void SetNames(NameList& list, int first, int count, char const* const* names) {
  if (names == nullptr) return;
  try {
    for (int place = 0; place < count; ++place) list.Set(first + place, ToName(names[place]));
  } catch (...) {
    list.Truncate(first);
    throw;
  }
}

std::vector<LinearTerm> LinearTerms(std::span<int const> cols, std::span<double const> coefs, int colCount) {
  CheckIndices(cols, colCount, "Column");
  CheckCoefficients(coefs, "coefs");
  std::vector<LinearTerm> terms(cols.size());
  for (std::size_t k = 0; k < cols.size(); ++k) terms[k] = {cols[k], coefs[k]};
  return terms;
}

std::vector<LinearTerm> LinearTerms(int count, int const* cols, double const* coefs, int colCount) {
  return LinearTerms(List(count, cols, "cols"), List(count, coefs, "coefs"), colCount);
}

Selection::Selection(int count, int const* indices, int limit, char const* kind) : count_(count), indices_(indices) {
  CheckCount(count, "indices");
  if (indices != nullptr) {
    CheckIndices({indices, static_cast<std::size_t>(count)}, limit, kind);
  } else if (count > 0) {
    CheckIndex(count - 1, limit, kind);
  }
}

Batch::Batch(int count, int const* begins, int const* counts, bool hasData)
    : count_(count), begins_(hasData ? begins : nullptr), counts_(hasData ? counts : nullptr) {
  CheckCount(count, "count");
  if (!hasData) {
    for (int place = 0; counts != nullptr && place < count; ++place) {
      if (counts[place] != 0) Refuse("Entry ", place, " of the batch has terms, but their arrays are null");
    }
    return;
  }
  if (count > 0 && begins == nullptr && counts == nullptr) Refuse("The batch has terms, but neither begins nor counts");
  if (begins == nullptr) made_.reserve(static_cast<std::size_t>(count));
  for (int place = 0; place < count; ++place) {
    auto const size = counts != nullptr ? static_cast<long long>(counts[place])
                                        : static_cast<long long>(begins[place + 1]) - begins[place];
    if (size < 0 || (begins != nullptr && begins[place] < 0)) {
      Refuse("Entry ", place, " of the batch has a negative begin or count");
    }
    if (begins == nullptr) made_.push_back(elementCount_);
    elementCount_ += static_cast<std::size_t>(size);
  }
}

Batch::Slice Batch::operator[](int place) const {
  auto const at = static_cast<std::size_t>(place);
  if (begins_ == nullptr) {
    if (counts_ == nullptr) return {0, 0};
    return {made_[at], static_cast<std::size_t>(counts_[at])};
  }
  auto const size = counts_ != nullptr ? counts_[at] : begins_[at + 1] - begins_[at];
  return {static_cast<std::size_t>(begins_[at]), static_cast<std::size_t>(size)};
}

Range ToRange(int sense, double bound, double upper) {
  bool const readsUpper = sense == 'R' || sense == 0;
  if (sense != 'N' && std::isnan(bound)) Refuse("The bound of a row is not a number");
  if (readsUpper && std::isnan(upper)) Refuse("The upper bound of a row is not a number");
  switch (sense) {
    case 'E': return {ToBound(bound), ToBound(bound)};
    case 'G': return {ToBound(bound), kInfinity};
    case 'L': return {-kInfinity, ToBound(bound)};
    case 'N': return {-kInfinity, kInfinity};
    case 'R':
    case 0: return {ToBound(bound), ToBound(upper)};
    default: Refuse("Unknown sense ", sense, " of a row");
  }
}

char ToComparison(int sense) {
  if (sense != 'E' && sense != 'G' && sense != 'L') Refuse("Unknown sense ", sense, " of a constraint");
  return static_cast<char>(sense);
}

bool WantsTerms(std::size_t total, std::initializer_list<void const*> arrays, int capacity, int* required) {
  if (total > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    Refuse("The ", total, " entries are more than one call can hand over");
  }
  Store(required, static_cast<int>(total));
  if (std::ranges::all_of(arrays, [](void const* array) { return array == nullptr; })) return false;
  if (capacity < 0 || static_cast<std::size_t>(capacity) < total) {
    Refuse("The capacity ", capacity, " is too small for ", total, " entries");
  }
  return true;
}

}  // namespace vorqsolver
