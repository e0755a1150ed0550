// The array service through its interface: what shares cells and what copies them, the terms that conversions make, and
// texts as a whole.
#include "vorqmodel/array_helper.h"

#include "handles/item_arrays.hpp"
#include "tests/matrix/handle_fixture.hpp"
#include "vorqmodel/exports.h"

namespace vorqtest {
namespace {

using Vorq::Constraint;
using Vorq::MExpression;
using Vorq::MQExpression;
using Vorq::PsdExpr;
using Vorq::Var;
using Doubles = std::vector<double>;
using Ints = std::vector<int>;

class ArrayService : public MatrixHandleTest {
 protected:
  // What the cells of an owned block hold, one a line.
  template <class Interface>
  static std::string Cells(Interface* block) {
    auto const owner = Own(block);
    std::string text;
    Vorq::Unwrap(block).ForEach([&](auto const& cell) { text += Content(cell) + "\n"; });
    return text;
  }
  static std::string Content(MExpression const& cell) {
    return Terms(cell.expr) + (cell.LazySize() == 0 ? "" : " and " + std::to_string(cell.LazySize()) + " lazy");
  }
  static std::string Content(MQExpression const& cell) { return Terms(cell.expr); }
  static std::string Content(PsdExpr const& cell) {
    return Terms(cell.linear) + " and " + std::to_string(cell.Size()) + " matrices";
  }

  template <class Interface>
  static std::string Message(Interface* object) {
    return Own(object)->GetErrorMessage();
  }

  std::unique_ptr<Vorq::IMHelper> const helper_{CreateMHelper()};
};

TEST_F(ArrayService, DiagonalsOfThreeByFour) {
  auto const x = Block(MakeVars<2>({3, 4}));
  EXPECT_EQ(Text(helper_->Diagonal(x.get(), 0, 0, 1)), "[Var(x0), Var(x5), Var(x10)]\n");
  EXPECT_EQ(Text(helper_->Diagonal(x.get(), 0, 1, 0)), "[Var(x0), Var(x5), Var(x10)]\n");
  EXPECT_EQ(Text(helper_->Diagonal(x.get(), 1, 0, 1)), "[Var(x1), Var(x6), Var(x11)]\n");
  EXPECT_EQ(Text(helper_->Diagonal(x.get(), -1, 0, 1)), "[Var(x4), Var(x9)]\n");
  EXPECT_EQ(Text(helper_->Diagonal(x.get(), 3, 0, 1)), "[Var(x3)]\n");
}

TEST_F(ArrayService, DiagonalsThatThereAreNot) {
  auto const x = Block(MakeVars<2>({3, 4}, 7));
  auto const failed = Own(helper_->Diagonal(x.get(), 4, 0, 1));
  EXPECT_EQ(failed->GetLastError(), 3);
  EXPECT_STREQ(failed->GetErrorMessage(), "(INVALID) Offset (4) is out of bounds: dimensions (4) at axis2");
  EXPECT_EQ(failed->ToString(100), "[Var(x7)]\n");
  EXPECT_EQ(Message(helper_->Diagonal(x.get(), -3, 0, 1)),
            "(INVALID) Offset (-3) is out of bounds: dimensions (3) at axis1");
  EXPECT_EQ(Message(helper_->Diagonal(x.get(), 0, -1, 1)), "(INVALID) One axis is negative (-1)");
  EXPECT_EQ(Message(helper_->Diagonal(x.get(), 0, 0, 2)), "(INVALID) One axis is out of bounds: #axis (2) >= #ND (2)");
  // The negative one is told first, whichever of the two it is; the same axis twice before that.
  EXPECT_EQ(Message(helper_->Diagonal(x.get(), 0, 5, -2)), "(INVALID) One axis is negative (-2)");
  EXPECT_EQ(Message(helper_->Diagonal(x.get(), 0, -2, -2)), "(INVALID) Axis 1 and axis 2 are the same (-2)");
}

TEST_F(ArrayService, WritingThroughADiagonalWritesTheSource) {
  auto const array = Array<double, 2>({2, 2}, {1, 2, 3, 4});
  auto const diagonal = Own(helper_->Diagonal(array.get(), 0, 0, 1));
  diagonal->Set(1, 9.0);
  EXPECT_EQ(array->ToString(100), "[[1, 2]\n [3, 9]\n]\n");
}

TEST_F(ArrayService, NewAxesAndTheirRemovalShareCells) {
  auto const array = Array<int, 1>({3}, {1, 2, 3});
  auto const column = Own(helper_->ExpandDims(array.get(), 1));
  column->Set(0, 7);
  EXPECT_EQ(column->ToString(100), "[[7]\n [2]\n [3]\n]\n");
  EXPECT_EQ(array->ToString(100), "[7, 2, 3]\n");
  auto const back = Own(helper_->Squeeze(column.get(), 1));
  back->Set(1, 8);
  EXPECT_EQ(array->ToString(100), "[7, 8, 3]\n");
}

TEST_F(ArrayService, ShapesGetAndLoseAxes) {
  auto const shape = Shape<2>({3, 4});
  auto const behind = Own(helper_->ExpandDims(shape.get(), 2));
  EXPECT_EQ(behind->ToString(0), "(3, 4, 1)");
  EXPECT_EQ(behind->ToString(1), "(4, 1, 1)");
  auto const front = Own(helper_->ExpandDims(shape.get(), 0));
  EXPECT_EQ(front->ToString(0), "(1, 3, 4)");
  EXPECT_EQ(front->ToString(1), "(12, 4, 1)");
  EXPECT_EQ(Own(helper_->Squeeze(front.get(), 0))->ToString(0), "(3, 4)");
  EXPECT_EQ(Message(helper_->ExpandDims(shape.get(), 3)), "(INVALID) Axis is out of bounds: #axis (3) > #ND (2)");
}

TEST_F(ArrayService, SqueezeOfAnAxisOfSizeTwoFails) {
  auto const failed = Own(helper_->Squeeze(Array<int, 2>({2, 1}, {7, 8}).get(), 0));
  EXPECT_EQ(failed->GetLastError(), 3);
  EXPECT_STREQ(failed->GetErrorMessage(), "(INVALID) (INVALID) Dimension size at axis 0 is not one (2)");
  EXPECT_EQ(failed->ToString(100), "[7]\n");
}

TEST_F(ArrayService, RepeatedValueIsOneElement) {
  auto const repeated = Own(helper_->Repeat1d(2.5, 3));
  EXPECT_EQ(repeated->ToString(100), "[2.5, 2.5, 2.5]\n");
  repeated->Set(1, 4.0);
  EXPECT_EQ(repeated->ToString(100), "[4, 4, 4]\n");
  EXPECT_EQ(Text(helper_->Repeat1d(7LL, 2)), "[7, 7]\n");
  EXPECT_EQ(Text(helper_->Repeat1d(7, 0)), "[]\n");
}

TEST_F(ArrayService, RepeatedCellIsACopy) {
  auto const cell = Make<Vorq::IMExpression>(MExpression(1.0));
  auto const repeated = Own(helper_->Repeat1d(cell.get(), 2));
  cell->AddConstant(5.0);
  EXPECT_EQ(Own(repeated->Get(0))->GetConstant(), 1.0);
  repeated->AddConstant(1.0);  // to the one cell, once for each position
  EXPECT_EQ(Own(repeated->Get(1))->GetConstant(), 3.0);
}

TEST_F(ArrayService, ConcatOfVariablesKeepsItems) {
  auto const x = Block(MakeVars<2>({2, 3}));
  auto const y = Block(MakeVars<2>({2, 4}, 10));
  EXPECT_EQ(Text(helper_->Concat(x.get(), y.get(), 1)),
            "[[Var(x0), Var(x1), Var(x2), Var(x10), Var(x11), Var(x12), Var(x13)]\n"
            " [Var(x3), Var(x4), Var(x5), Var(x14), Var(x15), Var(x16), Var(x17)]\n]\n");
  EXPECT_EQ(Own(helper_->Concat(x.get(), y.get(), -1))->GetDim(1), 7U);
  EXPECT_EQ(Message(helper_->Concat(x.get(), y.get(), 0)),
            "(INVALID) Along the 1-th dimension, array 1 has size [3] and array 2 has size [4]");
  EXPECT_EQ(Message(helper_->Concat(x.get(), y.get(), 2)),
            "(INVALID) Axis 2 is out of bounds for array of dimensions 2");
}

TEST_F(ArrayService, FailedConcatHoldsADefaultCell) {
  auto const rows = Block(MakeBlock<Constraint, 1>({2}));
  auto const failed = Own(helper_->Concat(rows.get(), rows.get(), 1));
  EXPECT_EQ(failed->GetSize(), 1U);
  EXPECT_EQ(Own(failed->Get(0))->GetIdx(), -2);
}

TEST_F(ArrayService, ConcatOfNumbersTakesTheWiderType) {
  auto const ints = Array<int, 1>({2}, {1, 2});
  auto const doubles = Array<double, 1>({1}, {0.5});
  std::unique_ptr<Vorq::INdArray<double, 1>> const result(helper_->Concat(ints.get(), doubles.get(), 0));
  EXPECT_EQ(result->ToString(100), "[1, 2, 0.5]\n");
  auto const longs = Array<long long, 1>({1}, {1LL << 40});
  EXPECT_EQ(Text(helper_->Concat(ints.get(), longs.get(), 0)), "[1, 2, 1099511627776]\n");
}

TEST_F(ArrayService, ConcatConvertsTheNarrowerCells) {
  auto const x = Block(MakeVars<1>({1}, 3));
  auto const numbers = Array<int, 1>({1}, {4});
  EXPECT_EQ(Cells(helper_->Concat(x.get(), numbers.get(), 0)), "0; 1 x3\n4;\n");
  EXPECT_EQ(Cells(helper_->Concat(numbers.get(), x.get(), 0)), "4;\n0; 1 x3\n");
  auto const quads = Block(Vorq::MQuadExpr<1>(Vorq::NDim<1>({1}), MQExpression(2.0)));
  EXPECT_EQ(Cells(helper_->Concat(quads.get(), x.get(), 0)), "2; |\n0; 1 x3 |\n");
  EXPECT_EQ(Cells(helper_->Concat(numbers.get(), quads.get(), 0)), "4; |\n2; |\n");
  auto const psds = Block(Vorq::MPsdExpr<1>(Vorq::NDim<1>({1}), PsdExpr()));
  EXPECT_EQ(Cells(helper_->Concat(psds.get(), x.get(), 0)), "0; and 0 matrices\n0; 1 x3 and 0 matrices\n");
}

TEST_F(ArrayService, ConcatCopiesLazyCellsAndExpandsThemForWiderOnes) {
  auto const lins = Block(Vorq::MLinExpr<1>(Vorq::NDim<1>({1}), LazyCell({5.0, 0.0})));
  EXPECT_EQ(Cells(helper_->Concat(lins.get(), lins.get(), 0)), "0; and 2 lazy\n0; and 2 lazy\n");
  auto const quads = Block(Vorq::MQuadExpr<1>(Vorq::NDim<1>({0}), MQExpression()));
  EXPECT_EQ(Cells(helper_->Concat(lins.get(), quads.get(), 0)), "0; 5 x0, 0 x1 |\n");
  auto const psds = Block(Vorq::MPsdExpr<1>(Vorq::NDim<1>({0}), PsdExpr()));
  EXPECT_EQ(Cells(helper_->Concat(psds.get(), lins.get(), 0)), "0; 5 x0, 0 x1 and 0 matrices\n");
}

TEST_F(ArrayService, ConcatSharesNoCell) {
  auto const lins = Block(Vorq::MLinExpr<1>(Vorq::NDim<1>({2}), MExpression(1.0)));
  auto const result = Own(helper_->Concat(lins.get(), lins.get(), 0));
  result->AddConstant(5.0);
  EXPECT_EQ(Own(lins->Get(0))->GetConstant(), 1.0);
  EXPECT_EQ(Own(result->Get(3))->GetConstant(), 6.0);
}

TEST_F(ArrayService, SumsAppendTermsInCoordinateOrder) {
  auto const x = Block(MakeVars<2>({2, 3}));
  EXPECT_EQ(Cells(helper_->SumAxis(x.get(), 0)), "0; 1 x0, 1 x3\n0; 1 x1, 1 x4\n0; 1 x2, 1 x5\n");
  EXPECT_EQ(Cells(helper_->SumAxis(x.get(), 1)), "0; 1 x0, 1 x1, 1 x2\n0; 1 x3, 1 x4, 1 x5\n");
}

TEST_F(ArrayService, SumsKeepDuplicatesAndExpandLazyCells) {
  MExpression cell = LazyCell({2.0});
  cell.AddTerm(MakeVar("x0", 0), 3.0);
  cell.AddConstant(1.0);
  auto const lins = Block(Vorq::MLinExpr<1>(Vorq::NDim<1>({2}), cell));
  EXPECT_EQ(Cells(helper_->SumAxis(lins.get(), 0)), "2; 3 x0, 2 x0, 3 x0, 2 x0\n");
}

TEST_F(ArrayService, SumOfNothingIsADefaultCell) {
  auto const none = Block(MakeVars<2>({0, 2}));
  EXPECT_EQ(Cells(helper_->SumAxis(none.get(), 0)), "0;\n0;\n");
  EXPECT_EQ(Own(helper_->SumAxis(none.get(), 1))->GetSize(), 0U);
}

TEST_F(ArrayService, SumOfRankOneIsOfRankZero) {
  auto const sum = Own(helper_->SumAxis(Array<long long, 1>({3}, {1, 2, 3}).get(), 0));
  EXPECT_EQ(sum->GetND(), 0);
  EXPECT_EQ(sum->ToString(100), "6");
  auto const failed = Own(helper_->SumAxis(Array<long long, 1>({3}, {1, 2, 3}).get(), -1));
  EXPECT_STREQ(failed->GetErrorMessage(), "(INVALID) Axis is negative (-1)");
  EXPECT_EQ(failed->ToString(100), "0");
}

TEST_F(ArrayService, ArraysOfVariablesAreVectors) {
  auto const vars = Make<Vorq::IVarArray>();
  for (Var const& var : MakeItems<Var>(2)) vars->PushBack(*Make<Vorq::IVar>(var));
  auto const numbers = Array<double, 2>({2, 2}, {1, 2, 3, 4});
  EXPECT_EQ(Text(helper_->MatMult(numbers.get(), vars.get())), "[0 + 1 * x0 + 2 * x1, 0 + 3 * x0 + 4 * x1]\n");
  EXPECT_EQ(Text(helper_->MatMult(vars.get(), numbers.get())), "[0 + 1 * x0 + 3 * x1, 0 + 2 * x0 + 4 * x1]\n");
  EXPECT_EQ(Message(helper_->MatMult(Array<double, 1>({3}, {1, 2, 3}).get(), vars.get())),
            "(INVALID) Operand 1 has a mismatch at axis 0, size 3 != 2");
}

TEST_F(ArrayService, ArrayOfVariablesWithIntsReadsThemAtAnotherWidth) {
  auto const vars = Make<Vorq::IVarArray>();
  for (Var const& var : MakeItems<Var>(2)) vars->PushBack(*Make<Vorq::IVar>(var));
  // Two ints make the first long long; the second one lies outside of the array.
  auto const ints = Array<int, 1>({2}, {7, 0});
  EXPECT_EQ(Text(helper_->MatMult(vars.get(), ints.get())), "0 + 7 * x0 + 0 * x1");
}

TEST_F(ArrayService, PositionsOutsideOfTheStoreReadAsDefaults) {
  auto const view = Make<Vorq::IView>();
  delete view->Slice(-10, 2, 1, Vorq::Slice::kStepOmitted);  // starts one before the first
  auto const numbers = Own(Array<int, 1>({2}, {7, 8})->View(view.get()));
  EXPECT_EQ(Text(helper_->Concat(numbers.get(), numbers.get(), 0)), "[0, 7, 8, 0, 7, 8]\n");
  EXPECT_EQ(Text(helper_->SumAxis(numbers.get(), 0)), "15");
}

TEST_F(ArrayService, ArraysWithoutElementsReadAsZeros) {
  std::unique_ptr<Vorq::INdArray<double, 1>> const none(CreateNdArrayDbl1WithExData(nullptr, 2));
  auto const x = Block(MakeVars<1>({1}));
  EXPECT_EQ(Cells(helper_->Concat(x.get(), none.get(), 0)), "0; 1 x0\n0;\n0;\n");
  EXPECT_EQ(Text(helper_->SumAxis(none.get(), 0)), "0");
}

}  // namespace
}  // namespace vorqtest
