// The arguments of C functions, checked: lists, chosen items, batches of rows or columns, names, bounds, and the
// required-size protocol. Every check throws Failure with VORQ_INVALID and a text that names the culprit.
#pragma once

#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

#include "solver/api/guard.hpp"
#include "solver/problem/name_list.hpp"
#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

void CheckCount(int count, char const* what);

// The `count` entries at `data`, which may be null only for no entries.
template <typename T>
std::span<T const> List(int count, T const* data, char const* what) {
  CheckCount(count, what);
  if (count > 0) Need(data, what);
  return {data, static_cast<std::size_t>(count)};
}

// Fails with "Column 7 does not exist (there are 5)" and the like; `kind` begins with a capital.
void CheckIndex(int index, int limit, char const* kind);
void CheckIndices(std::span<int const> indices, int limit, char const* kind);

// Coefficients are numbers below 1e30 in size.
void CheckCoefficients(std::span<double const> values, char const* what);
inline void CheckCoefficient(double value, char const* what) {
  if (!(std::abs(value) < kInfinity)) [[unlikely]]
    CheckCoefficients({&value, 1}, what);
}

// Bounds may be infinite, but not NaN.
void CheckBounds(std::span<double const> values, char const* what);
inline void CheckBound(double value, char const* what) {
  if (std::isnan(value)) [[unlikely]]
    CheckBounds({&value, 1}, what);
}

// What lies at 1e30 and beyond is infinite.
inline double ToBound(double value) {
  return value >= kInfinity ? kInfinity : value <= -kInfinity ? -kInfinity : value;
}

// Names are free of control characters; null stands for none.
std::string_view CheckedName(char const* name);
inline std::string_view ToName(char const* name) {
  return name == nullptr || *name == '\0' ? std::string_view() : CheckedName(name);
}
void CheckNames(int count, char const* const* names);
void SetNames(NameList& list, int first, int count, char const* const* names);

// Checked terms of one row.
std::vector<LinearTerm> LinearTerms(int count, int const* cols, double const* coefs, int colCount);
std::vector<LinearTerm> LinearTerms(std::span<int const> cols, std::span<double const> coefs, int colCount);

// Items chosen by a list of indices, or the first `count` of them in order by a null list.
class Selection {
 public:
  Selection(int count, int const* indices, int limit, char const* kind);

  int Size() const { return count_; }
  int operator[](int place) const { return indices_ == nullptr ? place : indices_[place]; }

 private:
  int count_;
  int const* indices_;
};

// The positions of the rows of a batch in its flat arrays. Without begins the rows lie behind each other; without
// counts the begins have one entry more, the end of the last row; without data all rows are empty.
class Batch {
 public:
  struct Slice {
    std::size_t begin;
    std::size_t size;
  };

  Batch(int count, int const* begins, int const* counts, bool hasData);

  int Count() const { return count_; }
  Slice operator[](int place) const;

  // The entries of one row in a flat array.
  template <typename T>
  std::span<T const> Of(int place, T const* data) const {
    auto const [begin, size] = (*this)[place];
    if (size == 0) return {};
    return {data + begin, size};
  }

  std::size_t ElementCount() const { return elementCount_; }

 private:
  int count_;
  int const* begins_;
  int const* counts_;
  std::size_t elementCount_ = 0;
  std::vector<std::size_t> made_;  // the begins, where only counts were given
};

struct Range {
  double lower;
  double upper;
};

// The bounds of a row: 'E', 'G' and 'L' read `bound` as the right-hand side, 'N' reads nothing, 'R' and 0 read both.
Range ToRange(int sense, double bound, double upper);

// The senses of quadratic and indicator constraints are 'E', 'G' and 'L'.
char ToComparison(int sense);

// The required-size protocol: stores `total`, and tells whether the term arrays are to be filled. Fails when there are
// some and `capacity` is too small.
bool WantsTerms(std::size_t total, std::initializer_list<void const*> arrays, int capacity, int* required);

// Stores `value` where the caller gave a place.
template <typename T>
void Store(T* place, T value) {
  if (place != nullptr) *place = value;
}

}  // namespace vorqsolver
