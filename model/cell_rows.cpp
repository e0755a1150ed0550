// Writing the rows of a block.
#include "model/cell_rows.hpp"

#include <algorithm>
#include <cstdint>

#include "frame/growth.hpp"
#include "model/cell_terms.hpp"

namespace Vorq {
namespace {

bool AreSame(StridedVector<Var> const& a, StridedVector<Var> const& b) {
  return a.First() == b.First() && a.Stride() == b.Stride() && a.Size() == b.Size();
}

// Whether the cell is nothing but its lazy product, apart from its constant.
bool IsLazyProduct(MExpression const& cell) {
  return cell.ExplicitSize() == 0 && !cell.vars.IsEmpty() && cell.coeffs.Size() >= cell.vars.Size() &&
         cell.scale != 0.0;
}

// Whether the cell is nothing but terms of a sparse product, apart from its constant.
bool IsSparseProduct(MExpression const& cell) {
  return !cell.Sparse().IsEmpty() && cell.expr.Size() == 0 && cell.vars.IsEmpty();
}

// Whether the coefficients can be read as they lie there.
bool IsPlain(MExpression const& cell) {
  return cell.scale == 1.0 && (cell.coeffs.Stride() == 1 || cell.LazySize() == 1);
}

bool HasZero(double const* values, std::size_t count) {
  // A count as wide as the values, so that one operation takes several.
  std::int64_t zeros = 0;
  for (std::size_t i = 0; i < count; ++i) zeros += values[i] == 0.0 ? 1 : 0;
  return zeros > 0;
}

}  // namespace

CellRows::CellRows(std::vector<int>& marks, std::size_t rows, std::size_t terms)
    : marks_(marks), indices_(terms), coefficients_(terms), factorColumns_(terms) {
  ReserveMore(begins_, rows);
  ReserveMore(counts_, rows);
}

void CellRows::Add(MExpression const& cell) {
  for (Var const& var : cell.expr.vars) var.Prefetch();
  if (MExpression const* later = waiting_[(turn_ + kAhead / 2) % kAhead]) PrefetchMarks(*later);
  MExpression const*& place = waiting_[turn_++ % kAhead];
  if (place != nullptr) Write(*place);
  place = &cell;
}

void CellRows::PrefetchMarks(MExpression const& cell) const {
  for (Var const& var : cell.expr.vars) {
    auto const column = static_cast<std::size_t>(std::max(var.Idx(), 0));
    if (column < marks_.size()) __builtin_prefetch(&marks_[column], 1);
  }
}

void CellRows::Finish() {
  for (std::size_t i = 0; i < kAhead; ++i) {
    MExpression const*& place = waiting_[turn_++ % kAhead];
    if (place != nullptr) Write(*place);
    place = nullptr;
  }
}

void CellRows::Write(MExpression const& cell) {
  std::size_t const begin = indices_.Size();
  begins_.push_back(static_cast<int>(begin));
  bool const isShared = IsSparseProduct(cell) ? AddSparseRow(cell.Sparse()) : IsLazyProduct(cell) && AddSharedRow(cell);
  if (!isShared) AddOwnRow(cell);
  counts_.push_back(static_cast<int>(indices_.Size() - begin));
}

// False, with nothing added, for a row that shares no columns with the one before.
bool CellRows::AddSharedRow(MExpression const& cell) {
  if (!FindColumns(cell.vars)) return false;
  std::size_t const count = columns_.size();
  double const* coefficient = cell.coeffs.First();
  std::vector<int>& indices = indices_.Numbers();
  if (IsPlain(cell) && !HasZero(coefficient, count)) {
    indices.insert(indices.end(), columns_.begin(), columns_.end());
    coefficients_.Append(coefficient, count);
    return true;
  }
  std::vector<double>& coefficients = coefficients_.Numbers();
  for (std::size_t i = 0; i < count; ++i, coefficient += cell.coeffs.Stride()) {
    if (*coefficient == 0.0) continue;
    indices.push_back(columns_[i]);
    coefficients.push_back(*coefficient * cell.scale);
  }
  return true;
}

// False, with nothing added, for a row that has to be merged, or whose columns are not known.
bool CellRows::AddSparseRow(SparseTerms const& terms) {
  std::size_t const count = terms.Size();
  int const* const columns = factorColumns_.Find(terms);
  if (columns == nullptr || HasZero(terms.Values(), count)) return false;
  int const* indices = terms.Places();
  bool const isInPlace = factorColumns_.AreInOrder() && terms.VectorBegin() == 0;
  if (!isInPlace) {
    row_.resize(count);
    for (std::size_t k = 0; k < count; ++k) row_[k] = columns[indices[k]];
    indices = row_.data();
  }
  if (!AreDistinctColumns({indices, count})) return false;
  if (isInPlace) {
    indices_.Append(indices, count);
  } else {
    indices_.Numbers().insert(indices_.Numbers().end(), row_.begin(), row_.end());
  }
  coefficients_.Append(terms.Values(), count);
  return true;
}

void CellRows::AddOwnRow(MExpression const& cell) {
  bool const isFirst = indices_.Size() == 0;
  int const* const sparseColumns = cell.Sparse().IsEmpty() ? nullptr : factorColumns_.Find(cell.Sparse());
  std::size_t const count = CollectTerms(cell, marks_, indices_.Numbers(), coefficients_.Numbers(), sparseColumns);
  // A first row without merged and without missing terms may turn out to be the first of a matrix.
  if (isFirst && IsLazyProduct(cell) && IsPlain(cell) && count == cell.LazySize()) {
    coefficients_.StandAt(cell.coeffs.First());
  }
}

// Whether all columns are of the model, and none comes twice.
bool CellRows::AreDistinctColumns(std::span<int const> columns) {
  // What is negative has the sign bit, as has a step that does not go up: one operation takes many.
  int signs = 0;
  for (int const column : columns) signs |= column;
  if (signs < 0) return false;
  for (std::size_t k = 1; k < columns.size(); ++k) signs |= columns[k] - columns[k - 1] - 1;
  if (signs >= 0) return true;
  auto const words = static_cast<std::size_t>(factorColumns_.Greatest()) / 64 + 1;
  if (seen_.size() < words) seen_.resize(words);
  bool isTwice = false;
  for (int const column : columns) {
    std::uint64_t& word = seen_[static_cast<std::size_t>(column) / 64];
    std::uint64_t const bit = std::uint64_t{1} << (column % 64);
    isTwice = isTwice || (word & bit) != 0;
    word |= bit;
  }
  for (int const column : columns) seen_[static_cast<std::size_t>(column) / 64] = 0;
  return !isTwice;
}

bool CellRows::FindColumns(StridedVector<Var> const& vars) {
  if (vars_ == nullptr || !AreSame(*vars_, vars)) {
    vars_ = &vars;
    hasColumns_ = false;
    return false;
  }
  if (!hasColumns_) {
    hasColumns_ = true;
    columns_.clear();
    std::vector<double> coefficients;
    double one = 1.0;
    MExpression const sum(StridedVector<double>(SharedPtr<double>(&one, 0), 0, 0, vars.Size()), vars);
    if (CollectTerms(sum, marks_, columns_, coefficients) != vars.Size()) columns_.clear();
  }
  return !columns_.empty();
}

}  // namespace Vorq
