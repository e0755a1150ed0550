// CellRows: the rows of a block of linear cells in flat arrays, as the batch functions of the solver library take them.
//
// Each row is written once, from the vectors of its cell. The rows of a product of a matrix and one vector of variables
// share the columns of that vector, and as long as their coefficients lie behind each other in the matrix they are not
// copied at all: the solver library gets them from there. So it does with the rows of a sparse product, also the
// indices where they are columns as they stand. The cells must stay as they are until it has them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "matrix/m_expression.hpp"
#include "model/factor_columns.hpp"
#include "model/run_list.hpp"

namespace Vorq {

class CellRows {
 public:
  // `marks` as CollectTerms takes them. Makes room for this many rows, with this many terms before any are merged.
  CellRows(std::vector<int>& marks, std::size_t rows, std::size_t terms);

  // Rows are written a few cells later; Finish writes the last ones.
  void Add(MExpression const& cell);
  void Finish();

  std::size_t EntryCount() const { return indices_.Size(); }
  int const* Begins() const { return begins_.data(); }
  int const* Counts() const { return counts_.data(); }
  int const* Indices() const { return indices_.Data(); }
  double const* Coefficients() const { return coefficients_.Data(); }

 private:
  // The indices of the variables of a cell are asked for this many cells before it is written, and the marks of its
  // columns on half of that way.
  static constexpr std::size_t kAhead = 4;

  void PrefetchMarks(MExpression const& cell) const;
  void Write(MExpression const& cell);
  bool AddSharedRow(MExpression const& cell);
  bool AddSparseRow(SparseTerms const& terms);
  void AddOwnRow(MExpression const& cell);
  // The distinct columns of the vector that the row before had too; none where there are no such columns.
  bool FindColumns(StridedVector<Var> const& vars);
  bool AreDistinctColumns(std::span<int const> columns);

  std::vector<int>& marks_;
  std::vector<int> begins_;
  std::vector<int> counts_;
  RunList<int> indices_;
  RunList<double> coefficients_;

  std::array<MExpression const*, kAhead> waiting_{};
  std::size_t turn_ = 0;

  // The vector of variables of the row before, and its columns once a second row has it. They are empty for a vector
  // with a variable that is not live or comes twice.
  StridedVector<Var> const* vars_ = nullptr;
  std::vector<int> columns_;
  bool hasColumns_ = false;

  // For the rows of sparse products.
  FactorColumns factorColumns_;
  std::vector<int> row_;
  std::vector<std::uint64_t> seen_;  // one bit for each column, all clear between rows
};

}  // namespace Vorq
