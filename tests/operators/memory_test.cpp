// What the operators allocate: the store of the result, and exact room for its terms.
#include "matrix/operators.hpp"
#include "tests/operators/operand_fixture.hpp"
#include "tests/support/allocations.hpp"

namespace vorqtest {
namespace {

using Vorq::NdArray;
using Vorq::NDim;

constexpr std::uint64_t kCells = 500;
// The store and its block, and what a stretched shape or a failure text takes.
constexpr std::size_t kFixed = 4;

class OperatorMemory : public OperandTest {
 protected:
  template <class Work>
  static std::size_t Allocations(Work&& work) {
    std::size_t const before = allocations;
    auto const result = work();
    return allocations - before;
  }
};

TEST_F(OperatorMemory, NumbersAllocateTheResultOnly) {
  auto const a = NdArray<double, 2>::Filled(NDim<2>({kCells, 100}), 1.0);
  auto const b = NdArray<double, 1>::Filled(NDim<1>({100}), 2.0);
  std::size_t const bytesBefore = allocatedBytes;
  EXPECT_EQ(Allocations([&] { return Vorq::Add(a, b); }), 2U);
  EXPECT_LE(allocatedBytes - bytesBefore, kCells * 100 * sizeof(double) + 100);
}

TEST_F(OperatorMemory, SumsAndDifferencesAllocateTheTwoListsOfACell) {
  auto const x = MakeVars<1>({kCells}).Cells();
  Vorq::MVar<1> const vars(x);
  auto const cells = MakeOperand<Vorq::MExpression, 1>({kCells}, 1);
  EXPECT_LE(Allocations([&] { return Vorq::Add(vars, vars); }), 2 * kCells + kFixed);
  EXPECT_LE(Allocations([&] { return Vorq::Sub(cells, vars); }), 2 * kCells + kFixed);
  EXPECT_LE(Allocations([&] { return Vorq::Sub(cells, cells); }), 2 * kCells + kFixed);
  EXPECT_LE(Allocations([&] { return Vorq::Mul(cells, NdArray<double, 0>::OneElement(2.0)); }), 2 * kCells + kFixed);
}

TEST_F(OperatorMemory, ProductsAllocateTheThreeListsOfACell) {
  Vorq::MVar<1> const vars = MakeVars<1>({kCells});
  EXPECT_LE(Allocations([&] { return Vorq::Mul(vars, vars); }), 3 * kCells + kFixed);
}

TEST_F(OperatorMemory, StretchedOperandIsNotCopied) {
  auto const number = NdArray<double, 0>::OneElement(1.0);
  auto const grid = NdArray<double, 3>::Filled(NDim<3>({10, 10, 10}), 1.0);
  EXPECT_EQ(Allocations([&] { return Vorq::Mul(grid, number); }), 2U);
}

}  // namespace
}  // namespace vorqtest
