// Linear expressions and columns.
#include "tests/items/items_fixture.hpp"

namespace vorqtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Vorq::Column;
using Vorq::Constraint;
using Vorq::Expr;
using Vorq::Var;

class ExprTest : public ItemsTest {
 protected:
  Var x_ = MakeVar("x", 0);
  Var y_ = MakeVar("y", 1);
  Var z_ = MakeVar("z", 2);

  static Expr Terms(std::vector<std::pair<Var, double>> const& terms, double constant = 0.0) {
    Expr expr(constant);
    for (auto const& [var, c] : terms) expr.AddTerm(var, c);
    return expr;
  }
};

TEST_F(ExprTest, TermsStayInOrderAndDuplicatesToo) {
  Expr const e = Terms({{y_, 2}, {x_, 0}, {y_, 3}});
  EXPECT_THAT(Indices(e.vars), ElementsAre(1, 0, 1));
  EXPECT_THAT(e.coeffs, ElementsAre(2, 0, 3));
}

TEST_F(ExprTest, AddTermsAppendsAllVariables) {
  Expr e = Terms({{x_, 1}});
  double const c[] = {2, 3, 4};
  EXPECT_EQ(e.AddTerms({y_, z_}, c, 3), 2);
  EXPECT_THAT(Indices(e.vars), ElementsAre(0, 1, 2));
  EXPECT_THAT(e.coeffs, ElementsAre(1, 2, 3));
}

TEST_F(ExprTest, AddTermsRefusesTooFewCoefficients) {
  Expr e;
  double const c[] = {2, 3};
  EXPECT_EQ(e.AddTerms({x_, y_}, c, 1), -1);
  EXPECT_EQ(e.AddTerms({x_, y_}, nullptr, 2), -1);
  EXPECT_EQ(e.Size(), 0u);
}

TEST_F(ExprTest, AddTermsOfNothingGivesZero) {
  Expr e;
  double const c = 0.0;
  EXPECT_EQ(e.AddTerms({}, &c, 0), 0);
}

TEST_F(ExprTest, AddExprWithZeroLeavesTheExpressionAsItIs) {
  Expr e = Terms({{x_, 1}}, 2.0);
  e.AddExpr(Terms({{y_, 5}}, std::nan("")), 0.0);
  EXPECT_THAT(e.coeffs, ElementsAre(1));
  EXPECT_EQ(e.constant, 2.0);
}

TEST_F(ExprTest, AddExprScalesTermsAndConstant) {
  Expr e = Terms({{x_, 1}}, 2.0);
  e.AddExpr(Terms({{y_, 5}, {x_, 0}}, 4.0), 3.0);
  EXPECT_THAT(Indices(e.vars), ElementsAre(0, 1, 0));
  EXPECT_THAT(e.coeffs, ElementsAre(1, 15, 0));
  EXPECT_EQ(e.constant, 14.0);
}

TEST_F(ExprTest, AddExprWithMinusOneTakesCoefficientsFromZero) {
  Expr e;
  e.AddExpr(Terms({{y_, 5}, {x_, 0}}, 4.0), -1.0);
  EXPECT_THAT(e.coeffs, ElementsAre(-5, 0));
  EXPECT_FALSE(std::signbit(e.coeffs[1]));
  EXPECT_EQ(e.constant, -4.0);
}

TEST_F(ExprTest, AddExprOfItselfDoublesTheTerms) {
  Expr e = Terms({{x_, 1}, {y_, 2}}, 3.0);
  e.AddExpr(e, 2.0);
  EXPECT_THAT(Indices(e.vars), ElementsAre(0, 1, 0, 1));
  EXPECT_THAT(e.coeffs, ElementsAre(1, 2, 2, 4));
  EXPECT_EQ(e.constant, 9.0);
}

TEST_F(ExprTest, PlusAndMinusAppendTerms) {
  Expr e = Terms({{x_, 1}}, 3.0);
  e += Terms({{y_, 2}}, 1.0);
  e -= Terms({{z_, 4}, {x_, 0}}, 10.0);
  EXPECT_THAT(e.coeffs, ElementsAre(1, 2, -4, 0));
  EXPECT_FALSE(std::signbit(e.coeffs[3]));
  EXPECT_EQ(e.constant, -6.0);
}

TEST_F(ExprTest, RemoveByPositionMovesTheLastTermIn) {
  Expr e = Terms({{x_, 1}, {y_, 2}, {z_, 3}});
  e.Remove(0);
  EXPECT_THAT(Indices(e.vars), ElementsAre(2, 1));
  EXPECT_THAT(e.coeffs, ElementsAre(3, 2));
  e.Remove(1);
  EXPECT_THAT(e.coeffs, ElementsAre(3));
}

TEST_F(ExprTest, RemoveOutsideDoesNothing) {
  Expr e = Terms({{x_, 1}});
  e.Remove(-1);
  e.Remove(1);
  EXPECT_EQ(e.Size(), 1u);
}

TEST_F(ExprTest, RemoveByVariableTakesEveryOccurrence) {
  Expr e = Terms({{x_, 1}, {y_, 2}, {x_, 3}, {x_, 4}});
  e.Remove(MakeVar("another handle on x", 0));
  EXPECT_THAT(Indices(e.vars), ElementsAre(1));
  EXPECT_THAT(e.coeffs, ElementsAre(2));
}

TEST_F(ExprTest, RemoveOfADeadVariableDoesNothing) {
  x_.MarkRemoved();
  Expr e = Terms({{x_, 1}});
  e.Remove(x_);
  EXPECT_EQ(e.Size(), 1u);
}

TEST_F(ExprTest, RemoveOfAVariableOfTheListItself) {
  Expr e = Terms({{x_, 1}, {y_, 2}, {x_, 3}});
  e.Remove(e.vars[0]);
  EXPECT_THAT(Indices(e.vars), ElementsAre(1));
}

TEST_F(ExprTest, ReserveGrowsAndNeverShrinks) {
  Expr e;
  e.Reserve(100);
  EXPECT_GE(e.coeffs.capacity(), 100u);
  EXPECT_GE(e.vars.capacity(), 100u);
  e.Reserve(1);
  e.Reserve(-1);
  EXPECT_GE(e.vars.capacity(), 100u);
}

TEST_F(ExprTest, ClearEmptiesAndZeroesTheConstant) {
  Expr e = Terms({{x_, 1}}, 2.0);
  e.Clear();
  EXPECT_EQ(e.Size(), 0u);
  EXPECT_EQ(e.constant, 0.0);
}

TEST_F(ExprTest, MultiplyByZeroKeepsTheTerms) {
  Expr e = Terms({{x_, 1}, {y_, -2}}, 2.0);
  e.Multiply(3.0);
  EXPECT_THAT(e.coeffs, ElementsAre(3, -6));
  EXPECT_EQ(e.constant, 6.0);
  e.Multiply(0.0);
  EXPECT_EQ(e.Size(), 2u);
  EXPECT_EQ(e.constant, 0.0);
}

TEST_F(ExprTest, EvaluateTakesTheValuesInTermOrder) {
  double_.Values("VORQ_GetColInfo", "Value", {10, 100});
  Expr e = Terms({{y_, 2}, {x_, 3}}, 0.5);
  EXPECT_EQ(e.Evaluate(), 230.5);
  EXPECT_CALLS(double_, {R"(VORQ_GetColInfo(prob#1, "Value", 1, [1], out))",
                         R"(VORQ_GetColInfo(prob#1, "Value", 1, [0], out))"});
}

TEST_F(ExprTest, EvaluateWithoutAValueIsNotANumber) {
  double_.FailNext("VORQ_GetColInfo", VORQ_INVALID);
  EXPECT_TRUE(std::isnan(Terms({{x_, 1}}).Evaluate()));
  EXPECT_TRUE(std::isnan(Terms({{MakeVar("gone", -3), 1}}).Evaluate()));
}

// The dense path: at most 99 indices a term.
TEST_F(ExprTest, ReduceMergesDuplicates) {
  Expr e = Terms({{x_, 1}, {x_, 1}});
  e.Reduce(3);
  EXPECT_THAT(e.coeffs, ElementsAre(2));
}

TEST_F(ExprTest, ReduceKeepsASumOfZero) {
  Expr e = Terms({{x_, 1}, {x_, -1}});
  e.Reduce(3);
  EXPECT_THAT(Indices(e.vars), ElementsAre(0));
  EXPECT_THAT(e.coeffs, ElementsAre(0));
}

TEST_F(ExprTest, ReduceDropsZeroTermsAndDeadItems) {
  Expr e = Terms({{x_, 0}, {MakeVar("", -3), 4}, {y_, 2}, {MakeVar("", -2), 1}});
  e.Reduce(3);
  EXPECT_THAT(Indices(e.vars), ElementsAre(1));
}

TEST_F(ExprTest, ReduceKeepsNotANumber) {
  Expr e = Terms({{x_, std::nan("")}, {x_, 0}});
  e.Reduce(3);
  ASSERT_EQ(e.Size(), 1u);
  EXPECT_TRUE(std::isnan(e.coeffs[0]));
}

TEST_F(ExprTest, ReduceKeepsTheFirstOccurrenceAndFillsGapsFromTheEnd) {
  Expr two = Terms({{x_, 1}, {y_, 1}, {x_, 1}});
  two.Reduce(3);
  EXPECT_THAT(Indices(two.vars), ElementsAre(0, 1));
  EXPECT_THAT(two.coeffs, ElementsAre(2, 1));
  Expr three = Terms({{x_, 1}, {x_, 1}, {y_, 1}, {z_, 1}});
  three.Reduce(3);
  EXPECT_THAT(Indices(three.vars), ElementsAre(0, 2, 1));
  EXPECT_THAT(three.coeffs, ElementsAre(2, 1, 1));
}

TEST_F(ExprTest, AZeroTermBeforeALiveOneOfItsVariableTakesTheSum) {
  Expr e = Terms({{x_, 0}, {y_, 1}, {x_, 5}});
  e.Reduce(3);
  EXPECT_THAT(Indices(e.vars), ElementsAre(0, 1));
  EXPECT_THAT(e.coeffs, ElementsAre(5, 1));
}

TEST_F(ExprTest, ReduceOfNothingDoesNothing) {
  Expr e(2.0);
  e.Reduce(0);
  EXPECT_EQ(e.constant, 2.0);
}

TEST_F(ExprTest, ReduceDenseLeavesTheMarksZero) {
  std::vector<double> sums(3);
  std::vector<unsigned char> marks(3);
  Expr e = Terms({{x_, 1}, {y_, 0}, {z_, 2}, {x_, 1}, {MakeVar("", -3), 1}});
  e.ReduceDense(sums, marks);
  EXPECT_THAT(marks, ElementsAre(0, 0, 0));
  EXPECT_THAT(Indices(e.vars), ElementsAre(0, 2));
}

// The sparse path: 100 indices a term or more.
TEST_F(ExprTest, SparseReduceKeepsZeroTerms) {
  Expr e = Terms({{x_, 0}, {y_, 2}});
  e.Reduce(200);
  EXPECT_THAT(e.coeffs, ElementsAre(0, 2));
  e.Reduce(199);
  EXPECT_THAT(e.coeffs, ElementsAre(2));
}

TEST_F(ExprTest, SparseReduceMergesIntoTheFirstOccurrence) {
  Expr e = Terms({{x_, 1}, {x_, 2}, {y_, 1}, {z_, 1}, {y_, 4}});
  e.Reduce(500);
  EXPECT_THAT(Indices(e.vars), ElementsAre(0, 1, 2));
  EXPECT_THAT(e.coeffs, ElementsAre(3, 5, 1));
}

TEST_F(ExprTest, SparseReduceDropsDeadItems) {
  Expr e = Terms({{MakeVar("", -3), 1}, {y_, 1}, {MakeVar("", -2), 1}});
  e.Reduce(500);
  EXPECT_THAT(Indices(e.vars), ElementsAre(1));
}

TEST_F(ExprTest, ConstantsPrintAlone) {
  EXPECT_EQ(Print(Expr(0.0)), "0");
  EXPECT_EQ(Print(Expr(2.5)), "2.5");
}

TEST_F(ExprTest, TermsPrintInOrder) {
  EXPECT_EQ(Print(Terms({{x_, 1}, {y_, 2}}, -3)), "-3 + x + 2 * y");
  EXPECT_EQ(Print(Terms({{x_, 1}, {y_, 2}})), "x + 2 * y");
  EXPECT_EQ(Print(Terms({{x_, 2}, {y_, -1}})), "2 * x - y");
}

TEST_F(ExprTest, ANegativeFirstTermHasALeadingBlank) {
  EXPECT_EQ(Print(Terms({{x_, -1}, {y_, 2}})), " - x + 2 * y");
  EXPECT_EQ(Print(Terms({{x_, -2}})), " - 2 * x");
}

TEST_F(ExprTest, ZeroTermsAndDeadItemsDoNotPrint) {
  EXPECT_EQ(Print(Terms({{x_, 0}, {MakeVar("gone", -3), 1}, {y_, 2}})), "2 * y");
  EXPECT_EQ(Print(Terms({{x_, 0}})), "");
}

TEST_F(ExprTest, TheLimitBoundsTheTermsLookedAt) {
  Expr const e = Terms({{x_, 0}, {y_, 2}, {z_, 3}}, 1);
  EXPECT_EQ(e.ToString(7), "1 ... ");
  EXPECT_EQ(e.ToString(8), "1 ... ");
  EXPECT_EQ(e.ToString(16), "1 + 2 * y ... ");
  EXPECT_EQ(e.ToString(24), "1 + 2 * y + 3 * z");
  EXPECT_EQ(e.ToString(-100), "1 ... ");
  EXPECT_EQ(Expr(1.0).ToString(0), "1");
}

TEST_F(ExprTest, AStreamTakesSixtyFourTerms) {
  Expr e;
  for (int i = 0; i < 65; ++i) e.AddTerm(x_, 1);
  std::string text = "x";
  for (int i = 1; i < 64; ++i) text += " + x";
  EXPECT_EQ(Print(e), text + " ... ");
}

class ColumnTest : public ItemsTest {
 protected:
  Constraint r_ = Make<Constraint>("r", 0);
  Constraint s_ = Make<Constraint>("s", 1);
};

TEST_F(ColumnTest, AddTermsFollowsTheRuleOfExpressions) {
  Column column;
  double const c[] = {2, 3};
  EXPECT_EQ(column.AddTerms({r_, s_}, c, 2), 2);
  EXPECT_EQ(column.AddTerms({r_, s_}, c, 1), -1);
  EXPECT_EQ(column.AddTerms({r_, s_}, nullptr, 2), -1);
  EXPECT_THAT(column.coeffs, ElementsAre(2, 3));
}

TEST_F(ColumnTest, AddColumnWithZeroAddsZeroTerms) {
  Column column;
  column.AddTerm(r_, 1);
  Column other;
  other.AddTerm(s_, 5);
  column.AddColumn(other, 0.0);
  column.AddColumn(other, -1.0);
  EXPECT_THAT(column.coeffs, ElementsAre(1, 0, -5));
  EXPECT_THAT(Indices(column.constrs), ElementsAre(0, 1, 1));
}

TEST_F(ColumnTest, RemoveByConstraintTellsWhetherATermWent) {
  Column column;
  for (double const c : {1, 2, 3}) column.AddTerm(r_, c);
  column.AddTerm(s_, 4);
  EXPECT_EQ(column.Remove(r_), 1);
  EXPECT_THAT(column.coeffs, ElementsAre(4));
  EXPECT_EQ(column.Remove(r_), 0);
  s_.MarkRemoved();
  EXPECT_EQ(column.Remove(s_), 0);
  EXPECT_EQ(column.Size(), 1u);
}

TEST_F(ColumnTest, RemoveByPositionMovesTheLastTermIn) {
  Column column;
  column.AddTerm(r_, 1);
  column.AddTerm(s_, 2);
  column.Remove(-1);
  column.Remove(2);
  EXPECT_EQ(column.Size(), 2u);
  column.Remove(0);
  EXPECT_THAT(column.coeffs, ElementsAre(2));
}

TEST_F(ColumnTest, ReduceMergesOnBothPaths) {
  Column column;
  for (double const c : {1, 2}) column.AddTerm(r_, c);
  Column sparse = column;
  column.Reduce(2);
  EXPECT_THAT(column.coeffs, ElementsAre(3));
  sparse.Reduce(1000);
  EXPECT_THAT(sparse.coeffs, ElementsAre(3));
}

TEST_F(ColumnTest, ClearEmpties) {
  Column column;
  column.AddTerm(r_, 1);
  column.Clear();
  EXPECT_THAT(column.coeffs, IsEmpty());
  EXPECT_THAT(column.constrs, IsEmpty());
}

}  // namespace
}  // namespace vorqtest
