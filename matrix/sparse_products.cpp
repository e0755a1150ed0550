// The products with sparse matrices. A cell of a result takes the entries of one row or one column of the matrix: where
// that is no major vector, the matrix is transposed first, which keeps the order of the entries.
#include "matrix/sparse_products.hpp"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "matrix/dense_products_cells.hpp"
#include "matrix/matrix_operand.hpp"
#include "matrix/readable_cells.hpp"

namespace Vorq {
namespace {

// The entries of one major vector.
struct SparseVector {
  int const* idx;
  double const* val;
  std::int64_t size;
};

// Major vectors: a matrix as the products walk through it. A vector whose end lies before its start has no entries.
struct SparseVectors {
  SparseVector operator[](std::int64_t j) const {
    return {idx + beg[j], val + beg[j], std::max<std::int64_t>(std::int64_t{beg[j + 1]} - beg[j], 0)};
  }

  // Calls visit(j, index, value) for each entry.
  template <class Visit>
  void ForEach(Visit&& visit) const {
    for (std::int64_t j = 0; j < count; ++j) {
      for (int k = beg[j]; k < beg[j + 1]; ++k) visit(static_cast<int>(j), idx[k], val[k]);
    }
  }

  std::int64_t count;
  int const* beg;
  int const* idx;
  double const* val;
};

SparseVectors MajorVectors(SparseMatrix const& a) {
  return {std::max<std::int64_t>(std::int64_t{a.nBeg} - 1, 0), a.beg, a.idx, a.val};
}

// The minor vectors of a matrix, in arrays of their own.
class MinorVectors {
 public:
  explicit MinorVectors(SparseMatrix const& a)
      : count_(static_cast<std::size_t>(std::max(a.dim, 0))), beg_(count_ + 2) {
    SparseVectors const major = MajorVectors(a);
    // The number of entries of vector i at i + 2, then its start at i + 1, which becomes its end.
    major.ForEach([this](int, int index, double) { ++beg_[static_cast<std::size_t>(index) + 2]; });
    for (std::size_t i = 2; i < beg_.size(); ++i) beg_[i] += beg_[i - 1];
    auto const total = static_cast<std::size_t>(beg_.back());
    idx_.resize(total);
    val_.resize(total);
    major.ForEach([this](int j, int index, double value) {
      auto const place = static_cast<std::size_t>(beg_[static_cast<std::size_t>(index) + 1]++);
      idx_[place] = j;
      val_[place] = value;
    });
  }

  operator SparseVectors() const { return {static_cast<std::int64_t>(count_), beg_.data(), idx_.data(), val_.data()}; }

 private:
  std::size_t count_;
  std::vector<int> beg_;
  std::vector<int> idx_;
  std::vector<double> val_;
};

template <class... Arguments>
std::string Text(char const* format, Arguments... arguments) {
  char text[Status::kMessageRoom];
  std::snprintf(text, sizeof text, format, arguments...);
  return text;
}

// Why the arrays of a matrix cannot be walked through; nothing if they can.
std::string FindFault(SparseMatrix const& a) {
  std::int64_t const count = MajorVectors(a).count;
  if (count > 0 && a.beg == nullptr) return "Sparse matrix has no starts";
  std::int64_t total = 0;
  for (std::int64_t j = 0; j < count; ++j) {
    if (a.beg[j] >= a.beg[j + 1]) continue;
    if (a.beg[j] < 0) return Text("Start %d of the sparse matrix is negative", a.beg[j]);
    total += std::int64_t{a.beg[j + 1]} - a.beg[j];
    if (a.idx == nullptr) return "Sparse matrix has no indices";
    if (a.val == nullptr) return "Sparse matrix has no values";
    for (int k = a.beg[j]; k < a.beg[j + 1]; ++k) {
      if (a.idx[k] < 0 || a.idx[k] >= a.dim) {
        return Text("Index %d of sparse entry %d is out of bounds: size %d", a.idx[k], k, a.dim);
      }
    }
  }
  return total > std::numeric_limits<int>::max() ? "Sparse matrix has too many entries" : "";
}

// The cells of a row or a column that the entries of a vector take up.
template <class Cell>
struct Gathered {
  Stepping<Cell> cells;
  int const* idx;

  Cell const& operator[](std::int64_t i) const { return cells[idx[i]]; }
};

template <class Cell>
using ResultCell = ProductResult<double, Cell>;

template <class Cell>
void AddEntries(ResultCell<Cell>& out, Stepping<Cell> cells, SparseVector const& entries) {
  AddProduct(out, Gathered<Cell>{cells, entries.idx}, entries.val, entries.size);
}

// The products of the rows of x with the columns of a matrix, row behind row.
template <class Cell>
SharedPtr<ResultCell<Cell>> MultiplyRows(MatrixOperand<Cell> const& x, SparseVectors const& columns) {
  auto const count = static_cast<std::uint64_t>(columns.count);
  SharedArrayBuilder<ResultCell<Cell>> cells(NDim<2>({x.RowCount(), count}).StoreSize());
  for (std::uint64_t i = 0; i < x.RowCount(); ++i) {
    Stepping<Cell> const row{x.Find(i, 0), x.ColumnStride()};
    for (std::int64_t j = 0; j < columns.count; ++j) AddEntries(cells.Emplace(), row, columns[j]);
  }
  return cells.Finish();
}

// The products of the rows of a matrix with the columns of x, row behind row.
template <class Cell>
SharedPtr<ResultCell<Cell>> MultiplyColumns(SparseVectors const& rows, MatrixOperand<Cell> const& x) {
  auto const count = static_cast<std::uint64_t>(rows.count);
  SharedArrayBuilder<ResultCell<Cell>> cells(NDim<2>({count, x.ColumnCount()}).StoreSize());
  for (std::int64_t i = 0; i < rows.count; ++i) {
    SparseVector const entries = rows[i];
    for (std::uint64_t j = 0; j < x.ColumnCount(); ++j) {
      AddEntries(cells.Emplace(), Stepping<Cell>{x.Find(0, j), x.RowStride()}, entries);
    }
  }
  return cells.Finish();
}

// Calls multiply(vectors) with the columns, or the rows, of a matrix.
template <class Multiply>
auto WithVectors(SparseMatrix const& a, SparseOrder wanted, Multiply&& multiply) {
  return a.order == wanted ? multiply(MajorVectors(a)) : multiply(SparseVectors(MinorVectors(a)));
}

// Whether `size` is the number of columns or of rows. A matrix without starts has -1 of them for the failure, and takes
// an empty operand.
bool Matches(SparseMatrix const& a, SparseOrder side, std::uint64_t size) {
  return a.order == side ? std::cmp_equal(size, MajorVectors(a).count) : std::cmp_equal(size, a.dim);
}

}  // namespace

template <class Cell, int N>
MatrixObject<ResultCell<Cell>, N> MatMult(MatrixObject<Cell, N> const& x, SparseMatrix const& a) {
  using Result = MatrixObject<ResultCell<Cell>, N>;
  auto sizes = x.GetShape().GetDims();
  if (!Matches(a, SparseOrder::kRows, sizes.back())) {
    return Result::Failed(Text("Operand 1 has a mismatch at axis %d, size %zu != %d", N - 1,
                               static_cast<std::size_t>(sizes.back()), a.RowCount())
                              .c_str());
  }
  if (std::string const fault = FindFault(a); !fault.empty()) return Result::Failed(fault.c_str());
  return WithVectors(a, SparseOrder::kColumns, [&](SparseVectors const& columns) {
    sizes.back() = static_cast<std::uint64_t>(columns.count);
    return Result(NdArray<ResultCell<Cell>, N>(NDim<N>(sizes),
                                               MultiplyRows(MatrixOperand<Cell>::Left(ReadableCells(x)), columns)));
  });
}

template <class Cell, int N>
MatrixObject<ResultCell<Cell>, N> MatMult(SparseMatrix const& a, MatrixObject<Cell, N> const& x) {
  using Result = MatrixObject<ResultCell<Cell>, N>;
  auto sizes = x.GetShape().GetDims();
  if (!Matches(a, SparseOrder::kColumns, sizes.front())) {
    return Result::Failed(Text("Operand 1 has a mismatch at axis 1, size %d != %zu", a.ColumnCount(),
                               static_cast<std::size_t>(sizes.front()))
                              .c_str());
  }
  if (std::string const fault = FindFault(a); !fault.empty()) return Result::Failed(fault.c_str());
  return WithVectors(a, SparseOrder::kRows, [&](SparseVectors const& rows) {
    sizes.front() = static_cast<std::uint64_t>(rows.count);
    return Result(NdArray<ResultCell<Cell>, N>(NDim<N>(sizes),
                                               MultiplyColumns(rows, MatrixOperand<Cell>::Right(ReadableCells(x)))));
  });
}

MQuadExpr<0> MatMult(MVar<1> const& x, SparseMatrix const& a, MVar<1> const& y) {
  if (!Matches(a, SparseOrder::kRows, x.GetSize())) {
    return MQuadExpr<0>::Failed(
        Text("Operand 1 has a mismatch at axis 0, size %zu != %d", static_cast<std::size_t>(x.GetSize()), a.RowCount())
            .c_str());
  }
  if (!Matches(a, SparseOrder::kColumns, y.GetSize())) {
    return MQuadExpr<0>::Failed(Text("Operand 2 has a mismatch at axis 1, size %d != %zu", a.ColumnCount(),
                                     static_cast<std::size_t>(y.GetSize()))
                                    .c_str());
  }
  if (std::string const fault = FindFault(a); !fault.empty()) return MQuadExpr<0>::Failed(fault.c_str());
  StridedVector<Var> const rows(ReadableCells(x));
  StridedVector<Var> const columns(ReadableCells(y));
  SparseVectors const major = MajorVectors(a);
  std::size_t count = 0;
  major.ForEach([&count](int, int, double) { ++count; });
  MQExpression cell;
  ReserveProducts(cell.expr, count);
  bool const isByColumns = a.order == SparseOrder::kColumns;
  major.ForEach([&](int j, int index, double value) {
    auto const row = static_cast<std::uint64_t>(isByColumns ? index : j);
    auto const column = static_cast<std::uint64_t>(isByColumns ? j : index);
    cell.AddTerm(rows[row], columns[column], value);
  });
  return MQuadExpr<0>(NdArray<MQExpression, 0>(NDim<0>(), MakeShared<MQExpression>(std::move(cell))));
}

#define VORQ_SPARSE_PRODUCTS(Cell, N)                                                                               \
  template MatrixObject<ProductResult<double, Cell>, N> MatMult(MatrixObject<Cell, N> const&, SparseMatrix const&); \
  template MatrixObject<ProductResult<double, Cell>, N> MatMult(SparseMatrix const&, MatrixObject<Cell, N> const&);

VORQ_SPARSE_PRODUCTS(Var, 1)
VORQ_SPARSE_PRODUCTS(Var, 2)
VORQ_SPARSE_PRODUCTS(MExpression, 1)
VORQ_SPARSE_PRODUCTS(MExpression, 2)
VORQ_SPARSE_PRODUCTS(MQExpression, 1)
VORQ_SPARSE_PRODUCTS(MQExpression, 2)

#undef VORQ_SPARSE_PRODUCTS

}  // namespace Vorq
