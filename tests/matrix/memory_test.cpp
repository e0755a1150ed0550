// What blocks allocate: views, transposes and clones of a million variables share their cells.
#include <functional>

#include "handles/matrix_items.hpp"
#include "tests/matrix/matrix_fixture.hpp"
#include "tests/support/allocations.hpp"

namespace vorqtest {
namespace {

using Vorq::MExpression;
using Vorq::MLinExpr;
using Vorq::MQExpression;
using Vorq::MVar;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::Var;

constexpr std::uint64_t kSide = 1000;

class MatrixMemory : public MatrixTest {
 protected:
  template <class Work>
  static std::size_t Allocated(Work&& work) {
    std::size_t const before = allocatedBytes;
    work();
    return allocatedBytes - before;
  }
  template <class Work>
  static std::size_t Allocations(Work&& work) {
    std::size_t const before = allocations;
    work();
    return allocations - before;
  }
};

TEST_F(MatrixMemory, ShapesOfAMillionVariablesAllocateNothing) {
  MVar<2> const block(NDim<2>({kSide, kSide}), MakeVar("x", 0));
  Vorq::View view;
  view.Slice(0, 0, -2, Vorq::Slice::kStartOmitted | Vorq::Slice::kStopOmitted);
  NDim<1> const flat({kSide * kSide});
  EXPECT_EQ(Allocated([&] { static_cast<void>(block.Transpose()); }), 0u);
  EXPECT_EQ(Allocated([&] { static_cast<void>(block.View(view)); }), 0u);
  EXPECT_EQ(Allocated([&] { static_cast<void>(block.Clone()); }), 0u);
  EXPECT_EQ(Allocated([&] { static_cast<void>(block.Flatten()); }), 0u);
  EXPECT_EQ(Allocated([&] { static_cast<void>(block.Reshape(flat)); }), 0u);
}

TEST_F(MatrixMemory, HandlesOnAMillionVariablesAllocateNoCell) {
  constexpr std::size_t kSmall = 16 * 1024;  // chunks of slabs for handles
  std::unique_ptr<Vorq::IMVar<2>> const block(Vorq::WrapBlock(MVar<2>(NDim<2>({kSide, kSide}), MakeVar("x", 0))));
  EXPECT_LE(Allocated([&] {
              std::unique_ptr<Vorq::IMVar<2>> const transposed(block->Transpose());
              std::unique_ptr<Vorq::IMVar<2>> const clone(transposed->Clone());
              std::unique_ptr<Vorq::IMVar<1>> const flat(block->Flatten());
            }),
            kSmall);
}

TEST_F(MatrixMemory, CopyingALazyCellAllocatesNothing) {
  MExpression const cell = LazyCell(std::vector<double>(100, 1.0));
  MQExpression const product(MakeVars<1>({100}).Cells(), MakeVars<1>({100}).Cells());
  EXPECT_EQ(Allocated([&] { MExpression const copy = cell; }), 0u);
  EXPECT_EQ(Allocated([&] { MQExpression const copy = product; }), 0u);
}

TEST_F(MatrixMemory, ABlockOfLazyCellsTakesOneStore) {
  MExpression const cell = LazyCell(std::vector<double>(100, 1.0));
  EXPECT_LE(Allocations([&] { MLinExpr<1> const block(NDim<1>({kSide}), cell); }), 2u);
}

TEST_F(MatrixMemory, CellsAreSmall) {
  EXPECT_LE(sizeof(MExpression), 144u);
  EXPECT_LE(sizeof(MQExpression), 288u);
}

TEST_F(MatrixMemory, VisitingTermsAllocatesNothing) {
  MExpression const cell = LazyCell(std::vector<double>(100, 1.0));
  double sum = 0.0;
  EXPECT_EQ(Allocated([&] { cell.ForEachTerm([&](Var const&, double factor) { sum += factor; }); }), 0u);
  EXPECT_EQ(sum, 100.0);
}

TEST_F(MatrixMemory, ExpandingACellAllocatesItsListsOnce) {
  MExpression const cell = LazyCell(std::vector<double>(1000, 1.0));
  EXPECT_EQ(Allocations([&] {
              Vorq::Expr expr;
              cell.AddTo(expr, 1.0);
            }),
            2u);
}

TEST_F(MatrixMemory, SummingVariablesAllocatesTheListsOnce) {
  MVar<1> const block(NDim<1>({1000}), MakeVar("x", 0));
  EXPECT_LE(Allocations([&] { static_cast<void>(Sum(block)); }), 3u);
}

}  // namespace
}  // namespace vorqtest
