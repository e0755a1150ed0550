// CellRows: the rows of a block of linear cells in flat arrays, as the batch functions of the solver library take them.
//
// Each row is written once, from the vectors of its cell. The rows of a product of a matrix and one vector of variables
// share the columns of that vector, and as long as their coefficients lie behind each other in the matrix they are not
// copied at all: the solver library gets them from there. The cells must stay as they are until it has them.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "matrix/m_expression.hpp"

namespace Vorq {

class CellRows {
 public:
  // `marks` as CollectTerms takes them. Makes room for this many rows, with this many terms before any are merged.
  CellRows(std::vector<int>& marks, std::size_t rows, std::size_t terms);

  // Rows are written a few cells later; Finish writes the last ones.
  void Add(MExpression const& cell);
  void Finish();

  std::size_t EntryCount() const { return indices_.size(); }
  int const* Begins() const { return begins_.data(); }
  int const* Counts() const { return counts_.data(); }
  int const* Indices() const { return indices_.data(); }
  double const* Coefficients() const { return source_ != nullptr ? source_ : coefficients_.data(); }

 private:
  // The indices of the variables of a cell are asked for this many cells before it is written, and the marks of its
  // columns on half of that way.
  static constexpr std::size_t kAhead = 4;

  void PrefetchMarks(MExpression const& cell) const;
  void Write(MExpression const& cell);
  bool AddSharedRow(MExpression const& cell);
  void AddOwnRow(MExpression const& cell);
  // The distinct columns of the vector that the row before had too; none where there are no such columns.
  bool FindColumns(StridedVector<Var> const& vars);
  void CopySource();

  std::vector<int>& marks_;
  std::size_t terms_;
  std::vector<int> begins_;
  std::vector<int> counts_;
  std::vector<int> indices_;
  std::vector<double> coefficients_;
  // Where the coefficients of all rows so far lie behind each other; null if they do not, and stand in `coefficients_`.
  double const* source_ = nullptr;

  std::array<MExpression const*, kAhead> waiting_{};
  std::size_t turn_ = 0;

  // The vector of variables of the row before, and its columns once a second row has it. They are empty for a vector
  // with a variable that is not live or comes twice.
  StridedVector<Var> const* vars_ = nullptr;
  std::vector<int> columns_;
  bool hasColumns_ = false;
};

}  // namespace Vorq
