// The exported products with sparse matrices: against dense ones on random matrices, the order of terms, empty and
// wrong arguments.
#include <random>

#include "matrix/dense_products.hpp"
#include "tests/operators/operand_fixture.hpp"
#include "vorqmodel/exports.h"

namespace vorqtest {
namespace {

using Vorq::MatMult;
using Vorq::MExpression;
using Vorq::MQExpression;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::Var;

enum class Form { kColumns, kRows };

// A matrix in compressed form, as the exported functions take it.
struct Compressed {
  int dim = 0;
  std::vector<int> beg, idx;
  std::vector<double> val;

  int StartCount() const { return static_cast<int>(beg.size()); }
  int EntryCount() const { return static_cast<int>(idx.size()); }
};

struct Entry {
  int row;
  int column;
  double value;
};

// The same matrix in all forms. Entries of one vector keep their order.
struct TestMatrix {
  int rows;
  int columns;
  std::vector<Entry> entries;

  Compressed Compress(Form form) const {
    bool const byColumns = form == Form::kColumns;
    Compressed result{byColumns ? rows : columns, {0}, {}, {}};
    for (int j = 0; j < (byColumns ? columns : rows); ++j) {
      for (Entry const& entry : entries) {
        if ((byColumns ? entry.column : entry.row) != j) continue;
        result.idx.push_back(byColumns ? entry.row : entry.column);
        result.val.push_back(entry.value);
      }
      result.beg.push_back(result.EntryCount());
    }
    return result;
  }

  NdArray<double, 2> Dense() const {
    auto dense = NdArray<double, 2>::Filled(
        NDim<2>({static_cast<std::uint64_t>(rows), static_cast<std::uint64_t>(columns)}), 0.0);
    for (Entry const& entry : entries) {
      auto const i = static_cast<std::uint64_t>(entry.row * columns + entry.column);
      dense.Set(i, dense.Get(i) + entry.value);
    }
    return dense;
  }
};

// Random entries, some of them zero, some on the same place; with an empty row and an empty column.
TestMatrix RandomMatrix(int rows, int columns, unsigned seed) {
  std::mt19937 random(seed);
  TestMatrix matrix{rows, columns, {}};
  for (int k = 0; k < rows * columns; ++k) {
    auto const draw = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    Entry const entry{draw(rows), draw(columns), 0.5 * (draw(9) - 4)};
    if (entry.row == rows / 2 || entry.column == columns / 2) continue;
    matrix.entries.push_back(entry);
    if (k % 5 == 0) matrix.entries.push_back({entry.row, entry.column, 1.5});
  }
  return matrix;
}

class SparseProductTest : public OperandTest {
 protected:
  template <class Cell, int N>
  static auto Block(Vorq::MatrixObject<Cell, N> block) {
    auto* const wrapped = Vorq::WrapBlock(std::move(block));
    return std::unique_ptr<std::remove_pointer_t<decltype(wrapped)>>(wrapped);
  }

  // The terms of all cells of an owned block.
  template <int N>
  static std::string Cells(Vorq::IMLinExpr<N>* block) {
    std::unique_ptr<Vorq::IMLinExpr<N>> const owner(block);
    std::string text;
    Vorq::Unwrap(block).Cells().ForEach(
        [&](MExpression const& cell) { text += "[" + Terms(cell.ExplicitPart()) + "]"; });
    return text;
  }
  template <int N>
  static std::string Cells(Vorq::IMQuadExpr<N>* block) {
    std::unique_ptr<Vorq::IMQuadExpr<N>> const owner(block);
    std::string text;
    Vorq::Unwrap(block).Cells().ForEach([&](MQExpression const& cell) { text += "[" + Terms(cell.expr) + "]"; });
    return text;
  }

  // "1 (2, 3) message" of an owned result.
  template <class Interface>
  static std::string Report(Interface* block) {
    std::unique_ptr<Interface> const owner(block);
    auto const& result = Vorq::Unwrap(block);
    return std::to_string(result.GetLastError()) + " " + result.GetShape().ToString(Vorq::kSizes) + " " +
           (result.GetErrorMessage() == nullptr ? "-" : result.GetErrorMessage());
  }
};

// ---- Against dense products

class SparseAgainstDense;

struct SparseExport {
  std::string name;
  void (*check)(SparseAgainstDense& test);

  friend std::ostream& operator<<(std::ostream& out, SparseExport const& entry) { return out << entry.name; }
};

class SparseAgainstDense : public SparseProductTest, public testing::WithParamInterface<SparseExport> {
 public:
  void TestBody() override {}

  template <class Cell, int N, class Multiply>
  void CheckLeft(Form form, Multiply multiply) const {
    for (bool const strided : {false, true}) {
      TestMatrix const matrix = RandomMatrix(7, 5, N);
      auto const x = MakeOperand<Cell, N>(N == 1 ? Sizes<N>{7} : LeftSizes<N>(), 1, strided);
      Compressed const a = matrix.Compress(form);
      auto const handle = Block(x);
      ExpectEqual(Take(multiply(handle.get(), a)), Read(MatMult(x, matrix.Dense())));
    }
  }

  template <class Cell, int N, class Multiply>
  void CheckRight(Form form, Multiply multiply) const {
    for (bool const strided : {false, true}) {
      TestMatrix const matrix = RandomMatrix(7, 5, N + 10);
      auto const x = MakeOperand<Cell, N>(N == 1 ? Sizes<N>{5} : RightSizes<N>(), 1, strided);
      Compressed const a = matrix.Compress(form);
      auto const handle = Block(x);
      ExpectEqual(Take(multiply(handle.get(), a)), Read(MatMult(matrix.Dense(), x)));
    }
  }

 private:
  template <int N>
  static Sizes<N> LeftSizes() {
    Sizes<N> sizes{};
    sizes.front() = 3;
    sizes.back() = 7;
    return sizes;
  }
  template <int N>
  static Sizes<N> RightSizes() {
    Sizes<N> sizes{};
    sizes.front() = 5;
    sizes.back() = 3;
    return sizes;
  }

  static void ExpectEqual(Outcome const& sparse, Outcome const& dense) {
    EXPECT_EQ(sparse.code, 0) << sparse.message;
    EXPECT_EQ(sparse.sizes, dense.sizes);
    EXPECT_TRUE(sparse.isCompact);
    EXPECT_EQ(sparse.values, dense.values);
  }
};

#define VORQ_ARGUMENTS a.dim, a.beg.data(), a.StartCount(), a.idx.data(), a.EntryCount(), a.val.data(), a.EntryCount()
#define VORQ_EXPORTS(Short, Order, Kind, Cell, N)                                             \
  {#Kind #N "MatMult" #Short,                                                                 \
   [](SparseAgainstDense& test) {                                                             \
     test.CheckLeft<Cell, N>(Form::Order, [](Vorq::I##Kind<N>* x, Compressed const& a) {      \
       return Kind##N##MatMult##Short(x, VORQ_ARGUMENTS);                                     \
     });                                                                                      \
   }},                                                                                        \
      {#Short "MatMult" #Kind #N, [](SparseAgainstDense& test) {                              \
         test.CheckRight<Cell, N>(Form::Order, [](Vorq::I##Kind<N>* x, Compressed const& a) { \
           return Short##MatMult##Kind##N(VORQ_ARGUMENTS, x);                                 \
         });                                                                                  \
       }},
#define VORQ_EXPORTS_OF(Kind, Cell)          \
  VORQ_EXPORTS(Csc, kColumns, Kind, Cell, 1) \
  VORQ_EXPORTS(Csc, kColumns, Kind, Cell, 2) \
  VORQ_EXPORTS(Csr, kRows, Kind, Cell, 1) VORQ_EXPORTS(Csr, kRows, Kind, Cell, 2)

SparseExport const kExports[] = {VORQ_EXPORTS_OF(MVar, Var) VORQ_EXPORTS_OF(MLinExpr, MExpression)
                                     VORQ_EXPORTS_OF(MQuadExpr, MQExpression)};

TEST_P(SparseAgainstDense, SameValues) {
  GetParam().check(*this);
}

INSTANTIATE_TEST_SUITE_P(AllExports, SparseAgainstDense, testing::ValuesIn(kExports),
                         [](testing::TestParamInfo<SparseExport> const& entry) { return entry.param.name; });

class SparseForms : public SparseProductTest {};

TEST_F(SparseForms, QuadraticFormsEqualDenseProducts) {
  TestMatrix const matrix = RandomMatrix(6, 8, 3);
  auto const x = MakeOperand<Var, 1>({6}, 1);
  auto const y = MakeOperand<Var, 1>({8}, 9);
  auto const left = Block(x);
  auto const right = Block(y);
  double const expected = ValueOf(MatMult(MatMult(x, matrix.Dense()), y).Get(0));
  Compressed a = matrix.Compress(Form::kColumns);
  EXPECT_EQ(Take(MVar1MatMultCscMVar1(left.get(), VORQ_ARGUMENTS, right.get())).values, std::vector<double>{expected});
  a = matrix.Compress(Form::kRows);
  EXPECT_EQ(Take(MVar1MatMultCsrMVar1(left.get(), VORQ_ARGUMENTS, right.get())).values, std::vector<double>{expected});
}

// ---- Terms and their order

// 3 rows, 2 columns: (0, 0) 4, (2, 0) 5, (1, 1) 6, (1, 1) 0 again.
class SmallSparse : public SparseProductTest {
 protected:
  template <int N>
  auto Vars(Sizes<N> const& sizes) const {
    return Block(MakeVars<N>(sizes));
  }

  Compressed const columns_{3, {0, 2, 4}, {2, 0, 1, 1}, {5, 4, 6, 0}};
  Compressed const rows_{2, {0, 1, 3, 4}, {0, 1, 1, 0}, {4, 6, 0, 5}};
};

TEST_F(SmallSparse, RowTimesColumnsTakesEntriesAsTheyStand) {
  Compressed const& a = columns_;
  EXPECT_EQ(Cells(MVar1MatMultCsc(Vars<1>({3}).get(), VORQ_ARGUMENTS)), "[0; 5 x2, 4 x0][0; 6 x1, 0 x1]");
}

TEST_F(SmallSparse, ColumnsTimesColumnKeepTheOrderOfColumns) {
  Compressed const& a = columns_;
  EXPECT_EQ(Cells(CscMatMultMVar1(VORQ_ARGUMENTS, Vars<1>({2}).get())), "[0; 4 x0][0; 6 x1, 0 x1][0; 5 x0]");
}

TEST_F(SmallSparse, RowTimesRowsKeepsTheOrderOfRows) {
  Compressed const& a = rows_;
  EXPECT_EQ(Cells(MVar1MatMultCsr(Vars<1>({3}).get(), VORQ_ARGUMENTS)), "[0; 4 x0, 5 x2][0; 6 x1, 0 x1]");
}

TEST_F(SmallSparse, RowsTimesColumnTakesEntriesAsTheyStand) {
  Compressed const& a = rows_;
  EXPECT_EQ(Cells(CsrMatMultMVar1(VORQ_ARGUMENTS, Vars<1>({2}).get())), "[0; 4 x0][0; 6 x1, 0 x1][0; 5 x0]");
}

TEST_F(SmallSparse, MatricesRunAlongTheFreeAxis) {
  {
    Compressed const& a = columns_;
    EXPECT_EQ(Cells(MVar2MatMultCsc(Vars<2>({2, 3}).get(), VORQ_ARGUMENTS)),
              "[0; 5 x2, 4 x0][0; 6 x1, 0 x1][0; 5 x5, 4 x3][0; 6 x4, 0 x4]");
    EXPECT_EQ(Cells(CscMatMultMVar2(VORQ_ARGUMENTS, Vars<2>({2, 2}).get())),
              "[0; 4 x0][0; 4 x1][0; 6 x2, 0 x2][0; 6 x3, 0 x3][0; 5 x0][0; 5 x1]");
  }
  Compressed const& a = rows_;
  EXPECT_EQ(Cells(MVar2MatMultCsr(Vars<2>({1, 3}).get(), VORQ_ARGUMENTS)), "[0; 4 x0, 5 x2][0; 6 x1, 0 x1]");
  EXPECT_EQ(Cells(CsrMatMultMVar2(VORQ_ARGUMENTS, Vars<2>({2, 1}).get())), "[0; 4 x0][0; 6 x1, 0 x1][0; 5 x0]");
}

TEST_F(SmallSparse, QuadraticFormHasATermForEachEntry) {
  auto const x = Vars<1>({3});
  auto const y = Block(MakeVars<1>({2}, 10));
  {
    Compressed const& a = columns_;
    EXPECT_EQ(Cells(MVar1MatMultCscMVar1(x.get(), VORQ_ARGUMENTS, y.get())),
              "[0; | 5 x2 x10, 4 x0 x10, 6 x1 x11, 0 x1 x11]");
  }
  Compressed const& a = rows_;
  EXPECT_EQ(Cells(MVar1MatMultCsrMVar1(x.get(), VORQ_ARGUMENTS, y.get())),
            "[0; | 4 x0 x10, 6 x1 x11, 0 x1 x11, 5 x2 x10]");
}

TEST_F(SmallSparse, LinearCellsAreExpanded) {
  MExpression first = LazyCell({2.0, 3.0}, 5);
  first.AddConstant(1.0);
  MExpression second(7.0);
  second.AddTerm(MakeVar("a", 0), 1.0);
  auto const cells = Block(Vorq::MLinExpr<1>(
      NdArray<MExpression, 1>::Generated(NDim<1>({2}), [&](std::uint64_t i) { return i == 0 ? first : second; })));
  Compressed const& a = columns_;
  // A factor of 0 drops the explicit part.
  EXPECT_EQ(Cells(CscMatMultMLinExpr1(VORQ_ARGUMENTS, cells.get())), "[4; 8 x5, 12 x6][42; 6 a][5; 10 x5, 15 x6]");
}

TEST_F(SmallSparse, OperandsStayAsTheyAre) {
  auto const x = Vars<1>({2});
  Compressed const& a = columns_;
  delete CscMatMultMVar1(VORQ_ARGUMENTS, x.get());
  EXPECT_EQ(Names(Vorq::Unwrap(x.get())), "x0 x1");
}

TEST_F(SmallSparse, CountsAreNotRead) {
  Compressed const& a = columns_;
  auto const x = Vars<1>({2});
  EXPECT_EQ(Cells(CscMatMultMVar1(a.dim, a.beg.data(), 3, a.idx.data(), -1, a.val.data(), 1'000'000, x.get())),
            "[0; 4 x0][0; 6 x1, 0 x1][0; 5 x0]");
}

// ---- Without entries

class EmptySparse : public SparseProductTest {};

TEST_F(EmptySparse, EmptyColumnLeavesTheOtherCells) {
  Compressed const a{3, {0, 1, 1, 2}, {0, 0}, {2, 3}};
  auto const x = Block(MakeVars<1>({3}));
  // Nor do rows 1 and 2 have entries: their cells are worth 0.
  EXPECT_EQ(Cells(CscMatMultMVar1(VORQ_ARGUMENTS, x.get())), "[0; 2 x0, 3 x2][0;][0;]");
}

TEST_F(EmptySparse, StartsThatGoBackGiveEmptyVectors) {
  Compressed const a{2, {0, 2, 1, 2}, {0, 1}, {2, 3}};
  auto const x = Block(MakeVars<1>({2}));
  EXPECT_EQ(Cells(MVar1MatMultCsc(x.get(), VORQ_ARGUMENTS)), "[0; 2 x0, 3 x1][0;][0; 3 x1]");
}

TEST_F(EmptySparse, NoColumnsGiveAnEmptyProduct) {
  int const beg[] = {0};
  auto const row = Block(MakeVars<1>({3}));
  auto const none = Block(MakeVars<1>({0}));
  for (int starts : {0, 1}) {
    EXPECT_EQ(Report(MVar1MatMultCsc(row.get(), 3, beg, starts, nullptr, 0, nullptr, 0)), "0 (0) -");
    EXPECT_EQ(Report(MVar1MatMultCsc(row.get(), 3, nullptr, starts, nullptr, 0, nullptr, 0)), "0 (0) -");
    EXPECT_EQ(Cells(CscMatMultMVar1(2, nullptr, starts, nullptr, 0, nullptr, 0, none.get())), "[0;][0;]");
    EXPECT_EQ(Cells(MVar1MatMultCsr(none.get(), 2, nullptr, starts, nullptr, 0, nullptr, 0)), "[0;][0;]");
    EXPECT_EQ(Report(CsrMatMultMVar1(3, nullptr, starts, nullptr, 0, nullptr, 0, row.get())), "0 (0) -");
    EXPECT_EQ(Cells(MVar1MatMultCscMVar1(row.get(), 3, nullptr, starts, nullptr, 0, nullptr, 0, none.get())), "[0; |]");
    EXPECT_EQ(Cells(MVar1MatMultCsrMVar1(none.get(), 3, nullptr, starts, nullptr, 0, nullptr, 0, row.get())), "[0; |]");
  }
}

TEST_F(EmptySparse, NoEntriesNeedNoArrays) {
  int const beg[] = {0, 0, 0};
  auto const x = Block(MakeVars<1>({2}));
  EXPECT_EQ(Cells(CsrMatMultMVar1(2, beg, 3, nullptr, 0, nullptr, 0, x.get())), "[0;][0;]");
  EXPECT_EQ(Cells(CscMatMultMVar1(3, beg, 3, nullptr, 0, nullptr, 0, x.get())), "[0;][0;][0;]");
}

TEST_F(EmptySparse, NoRowsGiveEmptyBlocks) {
  auto const none = Block(MakeVars<2>({0, 2}));
  Compressed const a{2, {0, 1, 1, 1}, {1}, {1}};
  EXPECT_EQ(Report(MVar2MatMultCsc(none.get(), VORQ_ARGUMENTS)), "0 (0, 3) -");
  auto const narrow = Block(MakeVars<2>({2, 0}));
  EXPECT_EQ(Report(CsrMatMultMVar2(VORQ_ARGUMENTS, narrow.get())), "0 (3, 0) -");
}

// ---- Failures

// A matrix of 4 rows and 2 columns in both forms, which fits none of the operands.
class WrongSparse : public SparseProductTest {
 protected:
  Compressed const columns_{4, {0, 1, 2}, {0, 3}, {1, 1}};
  Compressed const rows_{2, {0, 1, 1, 1, 2}, {0, 1}, {1, 1}};
};

TEST_F(WrongSparse, RowOfTheWrongSize) {
  auto const x = Block(MakeVars<1>({3}));
  std::string const failure = "3 (1) (INVALID) Operand 1 has a mismatch at axis 0, size 3 != 4";
  {
    Compressed const& a = columns_;
    EXPECT_EQ(Report(MVar1MatMultCsc(x.get(), VORQ_ARGUMENTS)), failure);
    EXPECT_EQ(Cells(MVar1MatMultCsc(x.get(), VORQ_ARGUMENTS)), "[0;]");
    EXPECT_EQ(Report(MLinExpr1MatMultCsc(Block(MakeOperand<MExpression, 1>({3}, 0)).get(), VORQ_ARGUMENTS)), failure);
  }
  Compressed const& a = rows_;
  EXPECT_EQ(Report(MVar1MatMultCsr(x.get(), VORQ_ARGUMENTS)), failure);
  EXPECT_EQ(Report(MQuadExpr1MatMultCsr(Block(MakeOperand<MQExpression, 1>({3}, 0)).get(), VORQ_ARGUMENTS)), failure);
}

TEST_F(WrongSparse, ColumnOfTheWrongSize) {
  auto const x = Block(MakeVars<1>({3}));
  std::string const failure = "3 (1) (INVALID) Operand 1 has a mismatch at axis 1, size 2 != 3";
  {
    Compressed const& a = columns_;
    EXPECT_EQ(Report(CscMatMultMVar1(VORQ_ARGUMENTS, x.get())), failure);
  }
  Compressed const& a = rows_;
  EXPECT_EQ(Report(CsrMatMultMVar1(VORQ_ARGUMENTS, x.get())), failure);
}

TEST_F(WrongSparse, RowsOfTheWrongSize) {
  auto const x = Block(MakeVars<2>({2, 3}));
  std::string const failure = "3 (1, 1) (INVALID) Operand 1 has a mismatch at axis 1, size 3 != 4";
  {
    Compressed const& a = columns_;
    EXPECT_EQ(Report(MVar2MatMultCsc(x.get(), VORQ_ARGUMENTS)), failure);
  }
  Compressed const& a = rows_;
  EXPECT_EQ(Report(MVar2MatMultCsr(x.get(), VORQ_ARGUMENTS)), failure);
}

TEST_F(WrongSparse, ColumnsOfTheWrongSize) {
  auto const x = Block(MakeVars<2>({3, 2}));
  std::string const failure = "3 (1, 1) (INVALID) Operand 1 has a mismatch at axis 1, size 2 != 3";
  {
    Compressed const& a = columns_;
    EXPECT_EQ(Report(CscMatMultMVar2(VORQ_ARGUMENTS, x.get())), failure);
  }
  Compressed const& a = rows_;
  EXPECT_EQ(Report(CsrMatMultMVar2(VORQ_ARGUMENTS, x.get())), failure);
}

TEST_F(WrongSparse, QuadraticFormTellsTheOperand) {
  auto const two = Block(MakeVars<1>({2}));
  auto const three = Block(MakeVars<1>({3}));
  auto const four = Block(MakeVars<1>({4}));
  std::string const first = "3 () (INVALID) Operand 1 has a mismatch at axis 0, size 3 != 4";
  std::string const second = "3 () (INVALID) Operand 2 has a mismatch at axis 1, size 2 != 3";
  {
    Compressed const& a = columns_;
    EXPECT_EQ(Report(MVar1MatMultCscMVar1(three.get(), VORQ_ARGUMENTS, two.get())), first);
    EXPECT_EQ(Report(MVar1MatMultCscMVar1(four.get(), VORQ_ARGUMENTS, three.get())), second);
    EXPECT_EQ(Cells(MVar1MatMultCscMVar1(four.get(), VORQ_ARGUMENTS, three.get())), "[0; |]");
    EXPECT_EQ(Report(MVar1MatMultCscMVar1(four.get(), VORQ_ARGUMENTS, two.get())), "0 () -");
  }
  Compressed const& a = rows_;
  EXPECT_EQ(Report(MVar1MatMultCsrMVar1(three.get(), VORQ_ARGUMENTS, two.get())), first);
  EXPECT_EQ(Report(MVar1MatMultCsrMVar1(four.get(), VORQ_ARGUMENTS, three.get())), second);
}

TEST_F(WrongSparse, MatrixWithoutStartsHasMinusOneVectors) {
  auto const x = Block(MakeVars<1>({3}));
  EXPECT_EQ(Report(CscMatMultMVar1(2, nullptr, 0, nullptr, 0, nullptr, 0, x.get())),
            "3 (1) (INVALID) Operand 1 has a mismatch at axis 1, size -1 != 3");
}

TEST_F(WrongSparse, IndexOutsideOfTheMatrix) {
  auto const x = Block(MakeVars<1>({2}));
  Compressed a{2, {0, 1, 2}, {0, 2}, {1, 1}};
  EXPECT_EQ(Report(MVar1MatMultCsc(x.get(), VORQ_ARGUMENTS)),
            "3 (1) (INVALID) Index 2 of sparse entry 1 is out of bounds: size 2");
  EXPECT_EQ(Report(CscMatMultMVar1(VORQ_ARGUMENTS, x.get())),
            "3 (1) (INVALID) Index 2 of sparse entry 1 is out of bounds: size 2");
  EXPECT_EQ(Report(MVar1MatMultCsrMVar1(x.get(), VORQ_ARGUMENTS, x.get())),
            "3 () (INVALID) Index 2 of sparse entry 1 is out of bounds: size 2");
  a.idx[0] = -1;
  EXPECT_EQ(Report(CsrMatMultMVar1(VORQ_ARGUMENTS, x.get())),
            "3 (1) (INVALID) Index -1 of sparse entry 0 is out of bounds: size 2");
}

TEST_F(WrongSparse, ArraysThatAreMissing) {
  auto const x = Block(MakeVars<1>({2}));
  int const beg[] = {0, 1, 2};
  int const idx[] = {0, 1};
  double const val[] = {1, 1};
  EXPECT_EQ(Report(CsrMatMultMVar1(2, nullptr, 3, idx, 2, val, 2, x.get())),
            "3 (1) (INVALID) Sparse matrix has no starts");
  EXPECT_EQ(Report(CsrMatMultMVar1(2, beg, 3, nullptr, 2, val, 2, x.get())),
            "3 (1) (INVALID) Sparse matrix has no indices");
  EXPECT_EQ(Report(CsrMatMultMVar1(2, beg, 3, idx, 2, nullptr, 2, x.get())),
            "3 (1) (INVALID) Sparse matrix has no values");
  int const negative[] = {-1, 1, 2};
  EXPECT_EQ(Report(CsrMatMultMVar1(2, negative, 3, idx, 2, val, 2, x.get())),
            "3 (1) (INVALID) Start -1 of the sparse matrix is negative");
}

}  // namespace
}  // namespace vorqtest
