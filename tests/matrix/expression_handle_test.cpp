// The handles on cells, blocks of expressions and builders.
#include "handles/m_expressions.hpp"
#include "tests/matrix/handle_fixture.hpp"
#include "vorqmodel/exports.h"

namespace vorqtest {
namespace {

using Vorq::Expr;
using Vorq::IExpr;
using Vorq::IMConstrBuilder;
using Vorq::IMExpression;
using Vorq::IMPsdConstrBuilder;
using Vorq::IMQConstrBuilder;
using Vorq::IMQExpression;
using Vorq::IPsdExpr;
using Vorq::IPsdVar;
using Vorq::IQuadExpr;
using Vorq::ISymMatExpr;
using Vorq::ISymMatrix;
using Vorq::MExpression;
using Vorq::MLinExpr;
using Vorq::MPsdExpr;
using Vorq::MQExpression;
using Vorq::MQuadExpr;
using Vorq::NDim;
using Vorq::PsdExpr;
using Vorq::QuadExpr;
using Vorq::Unwrap;

class ExpressionHandleTest : public MatrixHandleTest {
 protected:
  std::unique_ptr<Vorq::IMLinExpr<1>> LinBlock(std::uint64_t size = 2) const {
    return Block(MLinExpr<1>(NDim<1>({size}), MExpression(1.0)));
  }
  std::unique_ptr<Vorq::IMQuadExpr<1>> QuadBlock() const {
    return Block(MQuadExpr<1>(NDim<1>({2}), MQExpression(1.0)));
  }
  std::unique_ptr<Vorq::IMPsdExpr<1>> PsdBlock() const { return Block(MPsdExpr<1>(NDim<1>({2}), PsdExpr(1.0))); }

  // What the cells hold.
  static std::string CellTerms(Vorq::IMLinExpr<1>& block, std::uint64_t i) { return Terms(Unwrap(&block).Get(i).expr); }
  static std::string CellTerms(Vorq::IMQuadExpr<1>& block, std::uint64_t i) {
    return Terms(Unwrap(&block).Get(i).expr);
  }
  static std::string CellTerms(Vorq::IMPsdExpr<1>& block, std::uint64_t i) {
    return Terms(Unwrap(&block).Get(i).linear);
  }

  // The operations that all blocks of expressions have, on a block of two cells of constant 1.
  template <class IBlock>
  void ExpectCommonOperations(IBlock& block, std::string const& tail) {
    auto const vars = Block(MakeVars<1>({2}));
    block.AddConstant(0.5);
    block.AddConstant(Array<double, 1>({2}, {1, 2}).get());
    block.AddConstant(Array<long long, 1>({2}, {1, 2}).get());
    block.AddConstant(Array<int, 1>({2}, {1, 2}).get());
    EXPECT_EQ(CellTerms(block, 1), "7.5;" + tail);
    block.SubConstant(Array<double, 1>({2}, {1, 2}).get());
    block.SubConstant(Array<long long, 1>({2}, {1, 2}).get());
    block.SubConstant(Array<int, 1>({2}, {1, 2}).get());
    EXPECT_EQ(CellTerms(block, 1), "1.5;" + tail);
    block.AddTerm(VarHandle("y", 9).get(), 3.0);
    block.AddTerm(vars.get(), 4.0);
    block.AddTerm(vars.get(), Array<double, 1>({2}, {5, 6}).get());
    EXPECT_EQ(CellTerms(block, 0), "1.5; 3 y, 4 x0, 5 x0" + tail);
    EXPECT_EQ(CellTerms(block, 1), "1.5; 3 y, 4 x1, 6 x1" + tail);
    block.Multiply(2.0);
    EXPECT_EQ(CellTerms(block, 1), "3; 6 y, 8 x1, 12 x1" + tail);
    block.Multiply(0.0);
    block.Clear();
    EXPECT_EQ(CellTerms(block, 1), "0;" + tail);
    block.AddMExpression(Make<IMExpression>(LazyCell({2})).get(), 3.0);
    block.AddMLinExpr(Block(MLinExpr<1>(NDim<1>({2}), LazyCell({5}, 7))).get(), 2.0);
    EXPECT_EQ(CellTerms(block, 1), "0; 6 x0, 10 x7" + tail);
    EXPECT_EQ(block.GetSize(), 2u);
    EXPECT_EQ(Own(block.Repeat(2, 0))->GetSize(), 4u);
    EXPECT_EQ(Own(block.Repeat(2, 1))->GetLastError(), 3);
    EXPECT_EQ(Own(block.RepeatBlock(3, 0))->GetSize(), 6u);
    EXPECT_EQ(Own(block.Flatten())->GetSize(), 2u);
  }
};

TEST_F(ExpressionHandleTest, LinearCell) {
  auto const cell = Make<IMExpression>(2.5);
  EXPECT_EQ(cell->GetConstant(), 2.5);
  cell->AddConstant(1.0);
  EXPECT_EQ(cell->GetConstant(), 3.5);
  cell->SetConstant(1.0);
  cell->AddTerm(VarHandle("y", 9).get(), 3.0);
  cell->AddExpr(Make<IExpr>(Expr(MakeVar("z", 10), 2.0)).get(), 2.0);
  cell->AddMExpression(Make<IMExpression>(LazyCell({5})).get(), 1.0);
  auto const clone = Own(cell->Clone());
  cell->Multiply(2.0);
  EXPECT_EQ(cell->ToString(1000), "2 + 6 * y + 8 * z + 10 * x0");
  EXPECT_EQ(clone->ToString(1000), "1 + 3 * y + 4 * z + 5 * x0");
}

TEST_F(ExpressionHandleTest, QuadraticCell) {
  auto const cell = Make<IMQExpression>(1.0);
  auto const y = VarHandle("y", 9);
  auto const z = VarHandle("z", 10);
  auto const lin = Make<IMExpression>(LazyCell({5}));
  cell->AddConstant(0.5);
  cell->AddTerm(y.get(), 2.0);
  cell->AddTerm(y.get(), z.get(), 3.0);
  cell->AddLinExpr(Make<IExpr>(Expr(MakeVar("z", 10), 2.0)).get(), 2.0);
  cell->AddMExpression(lin.get(), 1.0);
  EXPECT_EQ(cell->ToString(1000), "1.5 + 2 * y + 4 * z + 5 * x0 + 3 * y * z");
  cell->Multiply(0.0);
  cell->AddQuadExpr(Make<IQuadExpr>(QuadExpr(Expr(MakeVar("y", 9), 1.0), MakeVar("y", 9))).get(), 4.0);
  cell->AddProduct(lin.get(), z.get());
  cell->AddProduct(lin.get(), Make<IExpr>(Expr(MakeVar("z", 10), 2.0)).get());
  cell->AddProduct(lin.get(), lin.get(), 3.0);
  cell->AddMQExpression(Make<IMQExpression>(MakeVars<1>({1}).Cells(), MakeVars<1>({1}, 1).Cells()).get(), 6.0);
  auto const clone = Own(cell->Clone());
  EXPECT_EQ(Terms(Unwrap(clone.get()).expr), "0; 0 y, 0 z | 4 y y, 5 x0 z, 10 x0 z, 75 x0 x0, 6 x0 x1");
  EXPECT_EQ(clone->GetConstant(), 0.0);
}

TEST_F(ExpressionHandleTest, OperationsOfLinearBlocks) {
  auto const block = LinBlock();
  ExpectCommonOperations(*block, "");
  block->Clear();
  block->AddExpr(Make<IExpr>(Expr(MakeVar("y", 9), 2.0)).get(), 2.0);
  EXPECT_EQ(CellTerms(*block, 1), "0; 4 y");
}

TEST_F(ExpressionHandleTest, OperationsOfQuadraticBlocks) {
  auto const block = QuadBlock();
  ExpectCommonOperations(*block, " |");
  block->Clear();
  block->AddTerm(VarHandle("y", 9).get(), VarHandle("z", 10).get(), 2.0);
  block->AddLinExpr(Make<IExpr>(Expr(MakeVar("y", 9), 2.0)).get(), 2.0);
  block->AddQuadExpr(Make<IQuadExpr>(QuadExpr(Expr(MakeVar("y", 9), 1.0), MakeVar("y", 9))).get(), 3.0);
  auto const product = Make<IMQExpression>(MakeVars<1>({1}).Cells(), MakeVars<1>({1}, 1).Cells());
  block->AddMQExpression(product.get(), 5.0);
  block->AddMQuadExpr(Block(MQuadExpr<1>(NDim<1>({2}), Unwrap(product.get()))).get(), 7.0);
  EXPECT_EQ(CellTerms(*block, 1), "0; 4 y, 0 y | 2 y z, 3 y y, 5 x0 x1, 7 x0 x1");
}

TEST_F(ExpressionHandleTest, OperationsOfPsdBlocks) {
  auto const block = PsdBlock();
  ExpectCommonOperations(*block, "");
  block->Clear();
  auto const psdVar = Make<IPsdVar>(MakePsdVar("X", 0, 2));
  auto const matrix = Make<ISymMatrix>(MakeMatrix(3, 2));
  block->AddTerm(psdVar.get(), matrix.get());
  block->AddTerm(psdVar.get(), Make<ISymMatExpr>(Vorq::SymMatExpr(MakeMatrix(3, 2), 2.0)).get());
  block->AddLinExpr(Make<IExpr>(Expr(MakeVar("y", 9), 2.0)).get(), 2.0);
  block->AddPsdExpr(Make<IPsdExpr>(PsdExpr(MakeVar("z", 10), 1.0)).get(), 3.0);
  block->AddMPsdExpr(Block(MPsdExpr<1>(NDim<1>({2}), PsdExpr(0.5))).get(), 4.0);
  EXPECT_EQ(CellTerms(*block, 1), "2; 4 y, 3 z");
  PsdExpr const cell = Unwrap(block.get()).Get(1);
  ASSERT_EQ(cell.Size(), 2u);
  EXPECT_EQ(cell.coeffs[0].coeffs[0], 1.0);
  EXPECT_EQ(cell.coeffs[1].coeffs[0], 2.0);
}

TEST_F(ExpressionHandleTest, APsdTermIsRepeatedOnACellThatAViewRepeats) {
  auto const block = Block(MPsdExpr<0>(NDim<0>(), PsdExpr(1.0)));
  auto const stretched = Own(block->Pick(Array<int, 1>({3}, {0, 0, 0}).get()));
  stretched->AddTerm(Make<IPsdVar>(MakePsdVar("X", 0, 2)).get(), Make<ISymMatrix>(MakeMatrix(3, 2)).get());
  EXPECT_EQ(Own(stretched->Get(0))->GetSize(), 3u);
}

TEST_F(ExpressionHandleTest, ClearKeepsTheShapeAndTheStore) {
  auto const block = PsdBlock();
  auto const seen = Own(block->Transpose());
  block->Clear();
  EXPECT_EQ(seen->ToString(1000), "[0, 0]\n");
  EXPECT_TRUE(ShareStore(Unwrap(block.get()), Unwrap(seen.get())));
}

TEST_F(ExpressionHandleTest, ClearDropsLazyParts) {
  auto const block = Block(MQuadExpr<1>(
      NDim<1>({1}), MQExpression(MakeVars<1>({1}).Cells(), MLinExpr<1>(NDim<1>({1}), LazyCell({5})).Cells())));
  block->Clear();
  MQExpression const cell = Unwrap(block.get()).Get(0);
  EXPECT_EQ(cell.side1.kind, Vorq::SideKind::kNone);
  EXPECT_EQ(cell.side2.kind, Vorq::SideKind::kNone);
  EXPECT_EQ(cell.ToString(1000), "0");
}

TEST_F(ExpressionHandleTest, ACellThatWasReadIsACopyUntilItIsSet) {
  auto const block = LinBlock();
  auto const cell = Own(block->Get(1));
  cell->AddConstant(10.0);
  EXPECT_EQ(block->ToString(1000), "[1, 1]\n");
  block->Set(1, cell.get());
  EXPECT_EQ(block->ToString(1000), "[1, 11]\n");
}

TEST_F(ExpressionHandleTest, APsdCellIsSetFromEachKindOfExpression) {
  auto const block = PsdBlock();
  block->Set(0, Make<IMExpression>(LazyCell({3, 0})).get());
  block->Set(1, Make<IPsdExpr>(PsdExpr(7.0)).get());
  EXPECT_EQ(CellTerms(*block, 0), "0; 3 x0, 0 x1");
  EXPECT_EQ(CellTerms(*block, 1), "7;");
}

TEST_F(ExpressionHandleTest, SumOfEachKind) {
  EXPECT_EQ(Text(LinBlock()->Sum()), "2");
  EXPECT_EQ(Text(QuadBlock()->Sum()), "2");
  EXPECT_EQ(Text(PsdBlock()->Sum()), "2");
}

TEST_F(ExpressionHandleTest, CloneCopiesTheCells) {
  auto const block = LinBlock();
  auto const clone = Own(block->Clone());
  block->AddConstant(1.0);
  EXPECT_EQ(clone->ToString(1000), "[1, 1]\n");
}

TEST_F(ExpressionHandleTest, PsdExpressionsTakeOverLinearCells) {
  auto const cell = Make<IMExpression>(LazyCell({3, 0}));
  auto const expr = Own(CreatePsdExpr6(cell.get()));
  EXPECT_EQ(Terms(Unwrap(expr.get()).linear), "0; 3 x0, 0 x1");
  expr->AddMExpression(cell.get(), 0.0);
  expr->AddMExpression(cell.get(), 2.0);
  EXPECT_EQ(Terms(Unwrap(expr.get()).linear), "0; 3 x0, 0 x1, 6 x0, 0 x1");
}

TEST_F(ExpressionHandleTest, BuilderOfLinearConstraints) {
  auto const builder = Make<IMConstrBuilder<1>>(NDim<1>({2}));
  auto const lhs = LinBlock();
  EXPECT_EQ(builder->GetND(), 1);
  EXPECT_EQ(Text(builder->GetExpr()), "[0, 0]\n");
  EXPECT_EQ(builder->GetLastError(), 0);
  EXPECT_EQ(builder->GetErrorMessage(), nullptr);
  builder->Set(lhs.get(), 'L', 3.0);
  EXPECT_EQ(Text(builder->GetExpr()), "[-2, -2]\n");
  EXPECT_EQ(builder->GetSense(), 'L');
  builder->Set(lhs.get(), 'G', Array<double, 1>({2}, {1, 2}).get());
  EXPECT_EQ(Text(builder->GetExpr()), "[0, -1]\n");
  builder->Set(lhs.get(), 'G', Array<long long, 1>({2}, {2, 3}).get());
  EXPECT_EQ(Text(builder->GetExpr()), "[-1, -2]\n");
  builder->Set(lhs.get(), 'G', Array<int, 1>({2}, {3, 4}).get());
  EXPECT_EQ(Text(builder->GetExpr()), "[-2, -3]\n");
  builder->SetRange(lhs.get(), 7.0);
  EXPECT_EQ(builder->GetSense(), 'R');
  EXPECT_EQ(builder->GetRange(), 7.0);
  auto const flat = Own(builder->Flatten());
  EXPECT_EQ(flat->GetRange(), 7.0);
  EXPECT_EQ(Text(flat->GetExpr()), "[1, 1]\n");
}

TEST_F(ExpressionHandleTest, BuilderTakesBlocksOfEachRank) {
  auto const builder = Make<IMConstrBuilder<1>>(NDim<1>({2}));
  auto const lhs = LinBlock();
  builder->Set(lhs.get(), 'E', Block(MakeVars<0>({})).get());
  EXPECT_EQ(Text(builder->GetExpr()), "[1 - x0, 1 - x0]\n");
  builder->Set(lhs.get(), 'E', Block(MakeVars<1>({2})).get());
  EXPECT_EQ(Text(builder->GetExpr()), "[1 - x0, 1 - x1]\n");
  builder->Set(lhs.get(), 'E', Block(MLinExpr<0>(NDim<0>(), MExpression(3.0))).get());
  EXPECT_EQ(Text(builder->GetExpr()), "[-2, -2]\n");
  builder->Set(lhs.get(), 'E', LinBlock().get());
  EXPECT_EQ(Text(builder->GetExpr()), "[0, 0]\n");
}

TEST_F(ExpressionHandleTest, BuilderReportsAFailureInItsExpression) {
  auto const builder = Make<IMConstrBuilder<1>>(NDim<1>({2}));
  auto const lhs = LinBlock();
  std::string const cannotCast = "Cannot cast 1-dimensional shape and ";
  auto const message = [&] { return std::string(Own(builder->GetExpr())->GetErrorMessage()); };
  auto const expectFailure = [&](std::string const& text) {
    EXPECT_THAT(message(), testing::EndsWith(text));
    EXPECT_EQ(Own(builder->GetExpr())->GetLastError(), 3);
    EXPECT_EQ(Text(builder->GetExpr()), "[0]\n");
    EXPECT_EQ(builder->GetLastError(), 0);
  };
  builder->Set(lhs.get(), 'E', Block(MakeVars<2>({1, 2})).get());
  expectFailure(cannotCast + "2-dimensional shape to 1-dimension");
  builder->Set(lhs.get(), 'E', Block(MakeVars<3>({1, 1, 2})).get());
  expectFailure(cannotCast + "3-dimensional shape to 1-dimension");
  builder->Set(lhs.get(), 'E', Block(MLinExpr<2>(NDim<2>({1, 2}), MExpression())).get());
  expectFailure(cannotCast + "2-dimensional shape to 1-dimension");
  builder->Set(lhs.get(), 'E', Block(MLinExpr<3>(NDim<3>({1, 1, 2}), MExpression())).get());
  expectFailure(cannotCast + "3-dimensional shape to 1-dimension");
  builder->Set(lhs.get(), 'E', Block(MakeVars<1>({3})).get());
  expectFailure("Operand 1 of shape (2) is not compatible with Operand 2 of shape (3)");
}

TEST_F(ExpressionHandleTest, ChangesInPlaceReachTheBuilder) {
  auto const builder = Make<IMConstrBuilder<1>>(NDim<1>({2}));
  Own(builder->GetExpr())->AddConstant(5.0);
  EXPECT_EQ(Text(builder->GetExpr()), "[5, 5]\n");
}

TEST_F(ExpressionHandleTest, BuilderOfQuadraticConstraints) {
  auto const builder = Make<IMQConstrBuilder<1>>(NDim<1>({2}));
  auto const lhs = QuadBlock();
  builder->Set(lhs.get(), 'G', Block(MQuadExpr<0>(NDim<0>(), MQExpression(3.0))).get());
  EXPECT_EQ(Text(builder->GetExpr()), "[-2, -2]\n");
  builder->Set(lhs.get(), 'L', QuadBlock().get());
  EXPECT_EQ(Text(builder->GetExpr()), "[0, 0]\n");
  builder->Set(lhs.get(), 'L', Block(MQuadExpr<3>(NDim<3>({1, 1, 1}), MQExpression())).get());
  EXPECT_EQ(Own(builder->GetExpr())->GetLastError(), 3);
  builder->Set(lhs.get(), 'L', LinBlock().get());
  builder->Set(lhs.get(), 'L', 0.5);
  EXPECT_EQ(builder->GetSense(), 'L');
  EXPECT_EQ(Text(Own(builder->Flatten())->GetExpr()), "[0.5, 0.5]\n");
}

TEST_F(ExpressionHandleTest, BuilderOfPsdConstraints) {
  auto const builder = Make<IMPsdConstrBuilder<2>>(NDim<2>({1, 2}));
  auto const lhs = Block(MPsdExpr<2>(NDim<2>({1, 2}), PsdExpr(1.0)));
  builder->Set(lhs.get(), 'G', PsdBlock().get());
  EXPECT_EQ(Text(builder->GetExpr()), "[[0, 0]\n]\n");
  builder->Set(lhs.get(), 'L', Block(MakeVars<1>({2})).get());
  EXPECT_EQ(Text(builder->GetExpr()), "[[1 - x0, 1 - x1]\n]\n");
  builder->SetRange(lhs.get(), 7.0);
  EXPECT_EQ(builder->GetRange(), 7.0);
  EXPECT_EQ(Own(builder->Flatten())->GetND(), 1);
  EXPECT_EQ(Own(builder->Flatten())->GetSense(), 'R');
}

TEST_F(ExpressionHandleTest, FlattenOfARankZeroBuilderHasOneCell) {
  auto const builder = Make<IMConstrBuilder<0>>(NDim<0>());
  auto const flat = Own(builder->Flatten());
  EXPECT_EQ(flat->GetND(), 1);
  EXPECT_EQ(Own(flat->GetExpr())->GetSize(), 1u);
}

}  // namespace
}  // namespace vorqtest
