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
  return cell.expr.Size() == 0 && !cell.vars.IsEmpty() && cell.coeffs.Size() >= cell.vars.Size() && cell.scale != 0.0;
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

CellRows::CellRows(std::vector<int>& marks, std::size_t rows, std::size_t terms) : marks_(marks), terms_(terms) {
  begins_.reserve(rows);
  counts_.reserve(rows);
  ReserveMore(indices_, terms);
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
  std::size_t const begin = indices_.size();
  begins_.push_back(static_cast<int>(begin));
  if (!IsLazyProduct(cell) || !AddSharedRow(cell)) AddOwnRow(cell);
  counts_.push_back(static_cast<int>(indices_.size() - begin));
}

// False, with nothing added, for a row that shares no columns with the one before.
bool CellRows::AddSharedRow(MExpression const& cell) {
  if (!FindColumns(cell.vars)) return false;
  std::size_t const count = columns_.size();
  double const* coefficient = cell.coeffs.First();
  bool const isPlain = IsPlain(cell) && !HasZero(coefficient, count);
  if (source_ != nullptr && isPlain && coefficient == source_ + indices_.size()) {
    indices_.insert(indices_.end(), columns_.begin(), columns_.end());
    return true;
  }
  CopySource();
  if (isPlain) {
    indices_.insert(indices_.end(), columns_.begin(), columns_.end());
    coefficients_.insert(coefficients_.end(), coefficient, coefficient + count);
    return true;
  }
  for (std::size_t i = 0; i < count; ++i, coefficient += cell.coeffs.Stride()) {
    if (*coefficient == 0.0) continue;
    indices_.push_back(columns_[i]);
    coefficients_.push_back(*coefficient * cell.scale);
  }
  return true;
}

void CellRows::AddOwnRow(MExpression const& cell) {
  CopySource();
  bool const isFirst = indices_.empty();
  std::size_t const count = CollectTerms(cell, marks_, indices_, coefficients_);
  // A first row without merged and without missing terms may turn out to be the first of a matrix.
  if (isFirst && IsLazyProduct(cell) && IsPlain(cell) && count == cell.LazySize()) source_ = cell.coeffs.First();
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

void CellRows::CopySource() {
  if (coefficients_.capacity() < terms_) ReserveMore(coefficients_, terms_ - coefficients_.size());
  if (source_ == nullptr) return;
  std::size_t const copied = coefficients_.size();
  coefficients_.insert(coefficients_.end(), source_ + copied, source_ + indices_.size());
  source_ = nullptr;
}

}  // namespace Vorq
