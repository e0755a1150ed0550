// Quadratic expressions.
#include "tests/items/items_fixture.hpp"

namespace vorqtest {
namespace {

using testing::ElementsAre;
using Vorq::Expr;
using Vorq::QuadExpr;
using Vorq::Var;

class QuadExprTest : public ItemsTest {
 protected:
  Var x_ = MakeVar("x", 0);
  Var y_ = MakeVar("y", 1);
  Var z_ = MakeVar("z", 2);

  static Expr Linear(Var const& var, double c, double constant) {
    Expr expr(var, c);
    expr.constant = constant;
    return expr;
  }
};

TEST_F(QuadExprTest, TheProductOfTwoExpressionsIsFull) {
  QuadExpr const q(Linear(x_, 1, 1), Linear(y_, 1, 2));
  EXPECT_EQ(Print(q.linear), "2 + y + 2 * x");
  EXPECT_THAT(Indices(q.vars1), ElementsAre(0));
  EXPECT_THAT(Indices(q.vars2), ElementsAre(1));
  EXPECT_THAT(q.coeffs, ElementsAre(1));
}

TEST_F(QuadExprTest, TheProductOfTwoConstantsChangesTheConstantOnly) {
  QuadExpr q(1.0);
  q.AddProduct(Expr(2), Expr(3));
  EXPECT_EQ(q.linear.constant, 7.0);
  EXPECT_EQ(q.linear.Size(), 0u);
  EXPECT_EQ(q.Size(), 0u);
}

TEST_F(QuadExprTest, AProductMergesNothing) {
  QuadExpr const q(Linear(x_, 1, 1), Linear(x_, 1, 1));
  EXPECT_THAT(q.linear.coeffs, ElementsAre(1, 1));
  EXPECT_EQ(q.linear.constant, 1.0);
  EXPECT_EQ(q.Size(), 1u);
}

TEST_F(QuadExprTest, AProductRunsThroughTheSecondFactorFirst) {
  Expr a(x_, 2);
  a.AddTerm(y_, 3);
  Expr b(y_, 5);
  b.AddTerm(z_, 7);
  QuadExpr const q(a, b);
  EXPECT_THAT(Indices(q.vars1), ElementsAre(0, 0, 1, 1));
  EXPECT_THAT(Indices(q.vars2), ElementsAre(1, 2, 1, 2));
  EXPECT_THAT(q.coeffs, ElementsAre(10, 14, 15, 21));
}

TEST_F(QuadExprTest, AProductWithAVariableAddsTheConstantEvenIfZero) {
  QuadExpr const q(Linear(x_, 3, 0), y_);
  EXPECT_THAT(q.linear.coeffs, ElementsAre(0));
  EXPECT_THAT(Indices(q.linear.vars), ElementsAre(1));
  EXPECT_THAT(Indices(q.vars1), ElementsAre(0));
  EXPECT_THAT(Indices(q.vars2), ElementsAre(1));
}

TEST_F(QuadExprTest, MirroredTermsStayTwoAfterReduce) {
  QuadExpr q;
  q.AddTerm(x_, y_, 1);
  q.AddTerm(y_, x_, 1);
  q.AddTerm(x_, 1);
  q.AddTerm(x_, 1);
  q.Reduce(3);
  EXPECT_EQ(q.Size(), 2u);
  EXPECT_EQ(q.linear.Size(), 1u);
}

TEST_F(QuadExprTest, AddTermsReadsAllPairsAlsoWhenTheCountIsBelow) {
  QuadExpr q;
  double const c[] = {1, 2, 3};
  EXPECT_EQ(q.AddTerms({x_, y_, z_}, {z_, y_, x_}, c, 2), 3);
  EXPECT_THAT(q.coeffs, ElementsAre(1, 2, 3));
  EXPECT_THAT(Indices(q.vars2), ElementsAre(2, 1, 0));
}

TEST_F(QuadExprTest, AddTermsRefusesACountAboveTheLength) {
  QuadExpr q;
  double const c[] = {1, 2, 3, 4};
  EXPECT_EQ(q.AddTerms({x_, y_, z_}, {z_, y_, x_}, c, 4), -1);
  EXPECT_EQ(q.AddTerms({x_, y_}, {z_}, c, 2), -1);
  EXPECT_EQ(q.AddTerms({x_}, {z_}, nullptr, 1), -1);
  EXPECT_EQ(q.Size(), 0u);
}

TEST_F(QuadExprTest, LinearAddTermsFollowsTheLinearRule) {
  QuadExpr q;
  double const c[] = {1, 2};
  EXPECT_EQ(q.AddTerms({x_, y_}, c, 1), -1);
  EXPECT_EQ(q.AddTerms({x_, y_}, c, 2), 2);
  EXPECT_EQ(q.linear.Size(), 2u);
}

TEST_F(QuadExprTest, AddQuadExprScales) {
  QuadExpr other(Linear(x_, 1, 2));
  other.AddTerm(x_, y_, 3);
  other.AddTerm(y_, y_, 0);
  QuadExpr q;
  q.AddQuadExpr(other, 1.0);
  q.AddQuadExpr(other, 0.0);
  q.AddQuadExpr(other, -1.0);
  q.AddQuadExpr(other, 2.0);
  EXPECT_THAT(q.coeffs, ElementsAre(3, 0, -3, 0, 6, 0));
  EXPECT_FALSE(std::signbit(q.coeffs[3]));
  EXPECT_THAT(q.linear.coeffs, ElementsAre(1, -1, 2));
  EXPECT_EQ(q.linear.constant, 4.0);
}

TEST_F(QuadExprTest, AddQuadExprOfItselfDoubles) {
  QuadExpr q;
  q.AddTerm(x_, y_, 3);
  q.AddQuadExpr(q, 1.0);
  EXPECT_THAT(q.coeffs, ElementsAre(3, 3));
}

TEST_F(QuadExprTest, RemoveByVariableLooksAtTheFirstPlaceOnly) {
  QuadExpr q(x_, 1);
  q.AddTerm(x_, y_, 3);
  q.Remove(y_);
  EXPECT_EQ(q.Size(), 1u);
  q.Remove(x_);
  EXPECT_EQ(q.Size(), 0u);
  EXPECT_EQ(q.linear.Size(), 1u);
}

TEST_F(QuadExprTest, RemoveByPositionMovesTheLastTermIn) {
  QuadExpr q;
  q.AddTerm(x_, y_, 1);
  q.AddTerm(y_, z_, 2);
  q.AddTerm(z_, x_, 3);
  q.Remove(0);
  q.Remove(7);
  q.Remove(-1);
  EXPECT_THAT(Indices(q.vars1), ElementsAre(2, 1));
  EXPECT_THAT(Indices(q.vars2), ElementsAre(0, 2));
  EXPECT_THAT(q.coeffs, ElementsAre(3, 2));
}

TEST_F(QuadExprTest, EvaluateMultipliesInOrder) {
  double_.Values("VORQ_GetColInfo", "Value", {2, 3});
  QuadExpr q(Linear(x_, 1, 0.5));
  q.AddTerm(x_, y_, 10);
  EXPECT_EQ(q.Evaluate(), 62.5);
  EXPECT_EQ(double_.CountCalls("VORQ_GetColInfo"), 3u);
}

TEST_F(QuadExprTest, EvaluateWithoutAValueIsNotANumber) {
  QuadExpr q;
  q.AddTerm(x_, MakeVar("gone", -3), 1);
  EXPECT_TRUE(std::isnan(q.Evaluate()));
}

TEST_F(QuadExprTest, ReserveIsForTheQuadraticListsOnly) {
  QuadExpr q;
  q.Reserve(50);
  EXPECT_GE(q.vars1.capacity(), 50u);
  EXPECT_GE(q.vars2.capacity(), 50u);
  EXPECT_GE(q.coeffs.capacity(), 50u);
  EXPECT_EQ(q.linear.vars.capacity(), 0u);
}

TEST_F(QuadExprTest, ClearAndMultiplyReachBothParts) {
  QuadExpr q(Linear(x_, 1, 2));
  q.AddTerm(x_, y_, 3);
  q.Multiply(2);
  EXPECT_EQ(Print(q), "4 + 2 * x + 6 * x * y");
  q.Clear();
  EXPECT_EQ(Print(q), "0");
}

TEST_F(QuadExprTest, AnAllQuadraticExpressionStartsWithZero) {
  QuadExpr q;
  q.AddTerm(x_, x_, 1);
  EXPECT_EQ(Print(q), "0 + x * x");
  q.coeffs[0] = -2;
  EXPECT_EQ(Print(q), "0 - 2 * x * x");
}

TEST_F(QuadExprTest, ZeroTermsAndDeadItemsDoNotPrint) {
  QuadExpr q(1.0);
  q.AddTerm(x_, x_, 0);
  q.AddTerm(x_, MakeVar("gone", -3), 1);
  q.AddTerm(MakeVar("gone", -3), x_, 1);
  EXPECT_EQ(Print(q), "1");
}

TEST_F(QuadExprTest, TheLinearPartTakesHalfTheLimit) {
  Expr linear(x_, 1);
  linear.AddTerm(y_, 1);
  QuadExpr q(linear);
  q.AddTerm(x_, x_, 1);
  q.AddTerm(y_, y_, 1);
  EXPECT_EQ(q.ToString(7), " ...  ... ");
  EXPECT_EQ(q.ToString(8), " ...  + x * x ... ");
  EXPECT_EQ(q.ToString(16), "x ...  + x * x + y * y");
  EXPECT_EQ(q.ToString(32), "x + y + x * x + y * y");
}

}  // namespace
}  // namespace vorqtest
