// What the products allocate: the store of the result, what the cells of a sparse product share, and room for the terms
// that are neither lazy nor shared.
#include "matrix/dense_products.hpp"
#include "matrix/sparse_products.hpp"
#include "tests/operators/operand_fixture.hpp"
#include "tests/support/allocations.hpp"

namespace vorqtest {
namespace {

using Vorq::MatMult;
using Vorq::MExpression;
using Vorq::MQExpression;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::PsdExpr;
using Vorq::SparseMatrix;
using Vorq::SparseOrder;

constexpr std::uint64_t kCells = 500;
// The store of a result.
constexpr std::size_t kStore = 1;
// The same for numbers, whose store stands apart from its block.
constexpr std::size_t kNumberStore = 2;

class ProductMemory : public OperandTest {
 protected:
#ifdef __SANITIZE_ADDRESS__
  void SetUp() override {
    GTEST_SKIP() << "Under AddressSanitizer small objects are allocations of their own";
  }
#endif

  template <class Work>
  static std::size_t Allocations(Work&& work) {
    std::size_t const before = allocations;
    auto const result = work();
    EXPECT_EQ(result.GetLastError(), 0);
    return allocations - before;
  }
};

TEST_F(ProductMemory, LazyCellsAllocateNothing) {
  auto const a = NdArray<double, 2>::Filled(NDim<2>({kCells, 20}), 1.5);
  auto const x = MakeVars<1>({20});
  auto const cells = MakeOperand<MExpression, 2>({kCells, 20}, 0);
  EXPECT_EQ(Allocations([&] { return MatMult(a, x); }), kStore);
  EXPECT_EQ(Allocations([&] { return MatMult(x, a.Transpose()); }), kStore);
  EXPECT_EQ(Allocations([&] { return MatMult(cells, x); }), kStore);
  EXPECT_EQ(Allocations([&] { return MatMult(cells, cells.Transpose()); }), kStore);
}

TEST_F(ProductMemory, LazyCellsHoldAFixedNumberOfBytes) {
  auto const a = NdArray<double, 2>::Filled(NDim<2>({kCells, 300}), 1.5);
  auto const x = MakeVars<1>({300});
  std::size_t const before = allocatedBytes;
  auto const product = MatMult(a, x);
  EXPECT_LE(allocatedBytes - before, kCells * sizeof(MExpression) + 100);
}

TEST_F(ProductMemory, WholeNumbersAreConvertedIntoOneStore) {
  auto const a = NdArray<int, 2>::Filled(NDim<2>({kCells, 20}), 1);
  auto const x = MakeVars<2>({20, 30});
  std::size_t const before = allocatedBytes;
  EXPECT_EQ(Allocations([&] { return MatMult(a, x); }), kStore + kNumberStore);
  EXPECT_LE(allocatedBytes - before, kCells * 30 * sizeof(MExpression) + kCells * 20 * sizeof(double) + 200);
}

TEST_F(ProductMemory, ExplicitCellsAllocateEachListOnce) {
  auto const a = NdArray<double, 2>::Filled(NDim<2>({kCells, 20}), 1.5);
  EXPECT_LE(Allocations([&] { return MatMult(a, MakeOperand<MExpression, 1>({1}, 0).Repeat(20, 0)); }),
            2 * kCells + 200);
  auto const quads = MakeOperand<MQExpression, 1>({1}, 0).Repeat(20, 0);
  EXPECT_LE(Allocations([&] { return MatMult(a, quads); }), 5 * kCells + kStore);
}

TEST_F(ProductMemory, FactorsOfZeroTakeNoRoom) {
  auto const zeros = NdArray<double, 2>::Filled(NDim<2>({kCells, 20}), 0.0);
  auto const cells = Vorq::MLinExpr<1>(NDim<1>({20}), MExpression(Vorq::Expr(MakeVar("x", 0), 1.0)));
  EXPECT_EQ(Allocations([&] { return MatMult(zeros, cells); }), kStore);
}

TEST_F(ProductMemory, NumbersTakeTheResultAndATile) {
  auto const a = NdArray<double, 2>::Filled(NDim<2>({kCells, 20}), 1.5);
  auto const b = NdArray<int, 2>::Filled(NDim<2>({20, 30}), 1);
  EXPECT_EQ(Allocations([&] { return MatMult(a, b); }), kNumberStore + 1);
}

class SparseProductMemory : public ProductMemory {
 protected:
  // Three entries in each of kCells rows of a matrix with 20 columns.
  SparseProductMemory() {
    for (int i = 0; i <= static_cast<int>(kCells); ++i) beg_.push_back(3 * i);
    for (int k = 0; k < beg_.back(); ++k) {
      idx_.push_back(k * 7 % 20);
      val_.push_back(k);
    }
  }

  SparseMatrix Matrix(SparseOrder order) const {
    return {order, 20, beg_.data(), static_cast<int>(beg_.size()), idx_.data(), val_.data()};
  }

  std::vector<int> beg_, idx_;
  std::vector<double> val_;
};

// What the cells of a product share: its record, starts, places and values, and the variables.
constexpr std::size_t kFactors = 4;
// A record may begin a chunk of its slab.
constexpr std::size_t kRecord = 1;

TEST_F(SparseProductMemory, CellsOfVariablesAllocateNothing) {
  auto const x = MakeVars<1>({20});
  EXPECT_LE(Allocations([&] { return MatMult(Matrix(SparseOrder::kRows), x); }), kStore + kFactors + kRecord);
  EXPECT_LE(Allocations([&] { return MatMult(x, Matrix(SparseOrder::kColumns)); }), kStore + kFactors + kRecord);
  auto const columns = MakeVars<2>({20, 30});
  EXPECT_LE(Allocations([&] { return MatMult(Matrix(SparseOrder::kRows), columns); }), kStore + kFactors + kRecord);
}

TEST_F(SparseProductMemory, MinorVectorsAllocateNoMore) {
  auto const x = MakeVars<1>({kCells});
  EXPECT_LE(Allocations([&] { return MatMult(x, Matrix(SparseOrder::kRows)); }), kStore + kFactors + kRecord);
}

TEST_F(SparseProductMemory, ATermTakesAPlaceAndAValue) {
  auto const x = MakeVars<1>({20});
  std::size_t const before = allocatedBytes;
  auto const product = MatMult(Matrix(SparseOrder::kRows), x);
  std::size_t const ofCells = kCells * (sizeof(MExpression) + sizeof(int));
  std::size_t const ofTerms = val_.size() * (sizeof(int) + sizeof(double));
  EXPECT_LE(allocatedBytes - before, ofCells + ofTerms + 20 * sizeof(Vorq::Var) + 8192);
}

TEST_F(SparseProductMemory, ASingleEntryKeepsOneOfManyVariables) {
  constexpr std::uint64_t kMany = 100'000;
  auto const x = MakeOperand<Vorq::Var, 1>({1}, 0).Repeat(kMany, 0);
  std::vector<int> const beg = {0, 1};
  int const column = kMany - 1;
  double const value = 2.0;
  SparseMatrix const matrix{SparseOrder::kRows, static_cast<int>(kMany), beg.data(), 2, &column, &value};
  std::size_t const before = allocatedBytes;
  auto const product = MatMult(matrix, x);
  EXPECT_LE(allocatedBytes - before, 8192U);
}

TEST_F(SparseProductMemory, CopiesAndSumsWithNumbersShareTheTerms) {
  auto const product = MatMult(Matrix(SparseOrder::kRows), MakeVars<1>({20}));
  EXPECT_EQ(Allocations([&] { return product.Clone(); }), kStore);
  auto const bounds = NdArray<double, 1>::Filled(NDim<1>({kCells}), 1.5);
  EXPECT_LE(Allocations([&] { return Vorq::Sub(product, bounds); }), kStore + 8);
}

TEST_F(SparseProductMemory, CellsOfExpressionsAllocateEachListOnce) {
  auto const cells = Vorq::MLinExpr<1>(NDim<1>({20}), MExpression(Vorq::Expr(MakeVar("x", 0), 1.0)));
  EXPECT_EQ(Allocations([&] { return MatMult(Matrix(SparseOrder::kRows), cells); }), 2 * kCells + kStore);
}

TEST_F(SparseProductMemory, QuadraticFormAllocatesEachListOnce) {
  auto const x = MakeVars<1>({kCells});
  auto const y = MakeVars<1>({20});
  // The cell with its block, and three lists.
  EXPECT_LE(Allocations([&] { return MatMult(x, Matrix(SparseOrder::kRows), y); }), 5U);
}

}  // namespace
}  // namespace vorqtest
