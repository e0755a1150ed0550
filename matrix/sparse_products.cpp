// The products with sparse matrices. A cell of a result takes the entries of one row or one column of the matrix: where
// that is no major vector, the matrix is transposed first, which keeps the order of the entries.
#include "matrix/sparse_products.hpp"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <numeric>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "matrix/dense_products_cells.hpp"
#include "matrix/matrix_operand.hpp"
#include "matrix/readable_cells.hpp"
#include "matrix/sparse_terms.hpp"

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

// Copies of the entries, those of one major vector behind those of the other.
SparseEntries MajorEntries(SparseMatrix const& a) {
  SparseVectors const major = MajorVectors(a);
  auto const count = static_cast<std::size_t>(major.count);
  std::vector<int> begins(count + 1);
  for (std::size_t j = 0; j < count; ++j) {
    begins[j + 1] = begins[j] + static_cast<int>(major[static_cast<std::int64_t>(j)].size);
  }
  SparseEntries entries(std::move(begins));
  std::vector<int> const& to = entries.begins;
  for (std::size_t j = 0, end = 0; j < count; j = end) {
    // Vectors that follow each other in the matrix are copied at once.
    for (end = j + 1; end < count && std::int64_t{a.beg[end]} - a.beg[j] == to[end] - to[j];) ++end;
    if (to[end] == to[j]) continue;
    std::copy_n(a.idx + a.beg[j], to[end] - to[j], entries.places.get() + to[j]);
    std::copy_n(a.val + a.beg[j], to[end] - to[j], entries.values.get() + to[j]);
  }
  return entries;
}

// The same for the minor vectors.
SparseEntries MinorEntries(SparseMatrix const& a) {
  SparseVectors const major = MajorVectors(a);
  // The number of entries of vector i at i + 2, then its start at i + 1, which becomes its end.
  std::vector<int> begins(static_cast<std::size_t>(std::max(a.dim, 0)) + 2);
  major.ForEach([&begins](int, int index, double) { ++begins[static_cast<std::size_t>(index) + 2]; });
  std::partial_sum(begins.begin(), begins.end(), begins.begin());
  SparseEntries entries(std::move(begins));
  major.ForEach([&entries](int j, int index, double value) {
    auto const place = static_cast<std::size_t>(entries.begins[static_cast<std::size_t>(index) + 1]++);
    entries.places[place] = j;
    entries.values[place] = value;
  });
  entries.begins.pop_back();
  return entries;
}

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

// Makes the cells of a product: the columns, or the rows, of a matrix times the rows of an operand.
template <class Cell>
class CellMaker {
 public:
  CellMaker(SparseMatrix const& a, SparseOrder wanted, MatrixOperand<Cell> operand)
      : operand_(std::move(operand)), vectors_(MajorVectors(a)) {
    if (a.order == wanted) return;
    minor_.emplace(MinorEntries(a));
    vectors_ = {std::max(a.dim, 0), minor_->begins.data(), minor_->places.get(), minor_->values.get()};
  }

  std::uint64_t VectorCount() const { return static_cast<std::uint64_t>(vectors_.count); }
  std::uint64_t RowCount() const { return operand_.RowCount(); }

  // The next cell is that of a vector of the matrix and a row of the operand.
  void Make(SharedArrayBuilder<ResultCell<Cell>>& cells, std::uint64_t vector, std::uint64_t row) const {
    SparseVector const entries = vectors_[static_cast<std::int64_t>(vector)];
    Stepping<Cell> const factors{operand_.Find(row, 0), operand_.ColumnStride()};
    AddProduct(cells.Emplace(), Gathered<Cell>{factors, entries.idx}, entries.val, entries.size);
  }

 private:
  MatrixOperand<Cell> operand_;
  std::optional<SparseEntries> minor_;
  SparseVectors vectors_;
};

// The cells of a product with variables share its factors.
template <>
class CellMaker<Var> {
 public:
  CellMaker(SparseMatrix const& a, SparseOrder wanted, MatrixOperand<Var> const& operand)
      : rowCount_(operand.RowCount()),
        factors_(Factors(a.order == wanted ? MajorEntries(a) : MinorEntries(a), operand)) {}

  std::uint64_t VectorCount() const { return factors_->entries.begins.size() - 1; }
  std::uint64_t RowCount() const { return rowCount_; }

  void Make(SharedArrayBuilder<MExpression>& cells, std::uint64_t vector, std::uint64_t row) const {
    cells.Emplace(SparseTerms(factors_, static_cast<std::uint32_t>(vector), static_cast<std::uint32_t>(row)));
  }

 private:
  static SharedPtr<SparseFactors> Factors(SparseEntries entries, MatrixOperand<Var> const& operand) {
    std::size_t const count = entries.Size();
    auto const copy = [&](std::size_t length, auto placeOf) {
      SharedArrayBuilder<Var> vars(NDim<2>({operand.RowCount(), length}).StoreSize());
      for (std::uint64_t row = 0; row < operand.RowCount(); ++row) {
        for (std::size_t k = 0; k < length; ++k) vars.Emplace(*operand.Find(row, placeOf(k)));
      }
      return vars.Finish();
    };
    std::size_t length = operand.ColumnCount();
    if (length <= count) {
      SharedPtr<Var> vars = copy(length, [](std::size_t k) { return k; });
      return MakeShared<SparseFactors>(std::move(entries), std::move(vars), length);
    }
    // Of a long vector only what the entries meet is kept, one variable for each.
    SharedPtr<Var> vars = copy(count, [&](std::size_t k) { return static_cast<std::uint64_t>(entries.places[k]); });
    std::iota(entries.places.get(), entries.places.get() + count, 0);
    return MakeShared<SparseFactors>(std::move(entries), std::move(vars), count);
  }

  std::uint64_t rowCount_;
  SharedPtr<SparseFactors> factors_;
};

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
  CellMaker<Cell> const maker(a, SparseOrder::kColumns, MatrixOperand<Cell>::Left(ReadableCells(x)));
  sizes.back() = maker.VectorCount();
  NDim<N> shape(sizes);
  SharedArrayBuilder<ResultCell<Cell>> cells(shape.StoreSize());
  for (std::uint64_t i = 0; i < maker.RowCount(); ++i) {
    for (std::uint64_t j = 0; j < maker.VectorCount(); ++j) maker.Make(cells, j, i);
  }
  return Result(NdArray<ResultCell<Cell>, N>(std::move(shape), cells.Finish()));
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
  CellMaker<Cell> const maker(a, SparseOrder::kRows, MatrixOperand<Cell>::Right(ReadableCells(x)).Transposed());
  sizes.front() = maker.VectorCount();
  NDim<N> shape(sizes);
  SharedArrayBuilder<ResultCell<Cell>> cells(shape.StoreSize());
  for (std::uint64_t i = 0; i < maker.VectorCount(); ++i) {
    for (std::uint64_t j = 0; j < maker.RowCount(); ++j) maker.Make(cells, i, j);
  }
  return Result(NdArray<ResultCell<Cell>, N>(std::move(shape), cells.Finish()));
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
