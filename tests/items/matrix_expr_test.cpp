// Symmetric matrices, and the expressions that have them as coefficients.
#include "tests/items/items_fixture.hpp"

namespace vorqtest {
namespace {

using testing::ElementsAre;
using Vorq::Expr;
using Vorq::LmiExpr;
using Vorq::PsdExpr;
using Vorq::PsdVar;
using Vorq::SymMatExpr;
using Vorq::SymMatrix;
using Vorq::Var;

class SymMatrixTest : public ItemsTest {
 protected:
  struct Elements {
    int count;
    std::vector<int> rows;
    std::vector<int> cols;
    std::vector<double> values;
  };
  static Elements ElementsOf(SymMatExpr const& expr) {
    Elements e;
    e.count = expr.GetElements(&e.rows, &e.cols, &e.values);
    return e;
  }

  // The next read of a matrix gives these entries.
  void AnswerMatrix(std::vector<double> rows, std::vector<double> cols, std::vector<double> values) {
    double_.AnswerNext("VORQ_GetSymMat").Set("n", static_cast<int>(rows.size()));
    double_.AnswerNext("VORQ_GetSymMat").Set("rows", rows).Set("cols", cols).Set("values", values);
  }
};

TEST_F(SymMatrixTest, IndexAndDimension) {
  EXPECT_EQ(MakeMatrix(7, 3).Idx(), 7);
  EXPECT_EQ(SymMatrix::Cached(3, 0, 1, 2.0).Idx(), -1);
  EXPECT_EQ(SymMatrix::Cached(3, 0, 1, 2.0).dim, 3);
}

TEST_F(SymMatrixTest, EqualityIsByIndexOrByEntry) {
  EXPECT_TRUE(MakeMatrix(7, 3) == MakeMatrix(7, 4));
  EXPECT_FALSE(MakeMatrix(7, 3) == MakeMatrix(6, 3));
  EXPECT_TRUE(SymMatrix::Cached(3, 0, 1, 2.0) == SymMatrix::Cached(9, 0, 1, 2.0));
  EXPECT_FALSE(SymMatrix::Cached(3, 0, 1, 2.0) == SymMatrix::Cached(3, 1, 0, 2.0));
  EXPECT_FALSE(SymMatrix::Cached(3, 0, 1, 2.0) == SymMatrix::Cached(3, 0, 1, 3.0));
  EXPECT_FALSE(MakeMatrix(-1, 3) == SymMatrix::Cached(3, 0, 0, 0.0));
}

TEST_F(SymMatrixTest, TextOfARegisteredMatrix) {
  AnswerMatrix({0, 1}, {0, 0}, {1, 2.5});
  SymMatrix matrix = MakeMatrix(7, 3);
  EXPECT_EQ(Print(matrix), " SymMatrix 7-th = [ (0, 0, 1), (1, 0, 2.5) ]");
  EXPECT_CALLS(double_, {"VORQ_GetSymMat(prob#1, 7, null, out, null, null, null)",
                         "VORQ_GetSymMat(prob#1, 7, null, null, out, out, out)"});
}

TEST_F(SymMatrixTest, TextOfACachedMatrix) {
  SymMatrix matrix = SymMatrix::Cached(3, 0, 1, -2.0);
  EXPECT_EQ(Print(matrix), " SymMatrix (cached) = [ (0, 1, -2) ]");
}

TEST_F(SymMatrixTest, TextOfAMatrixThatCannotBeRead) {
  double_.FailNext("VORQ_GetSymMat", VORQ_INTERNAL);
  SymMatrix matrix = MakeMatrix(7, 3);
  EXPECT_EQ(Print(matrix), " SymMatrix 7-th = [ Invalid data ]");
  EXPECT_EQ(Report(matrix.status), "5 (INTERNAL) Fail to get elements of matrix operand");
  SymMatrix invalid = MakeMatrix(-2, 0);
  EXPECT_EQ(Print(invalid), " SymMatrix -2-th = [ Invalid data ]");
  EXPECT_EQ(Report(invalid.status), "3 (INVALID) Fail to get elements of matrix operand");
}

TEST_F(SymMatrixTest, TheFirstMatrixGivesTheDimension) {
  SymMatExpr e;
  EXPECT_EQ(e.GetDim(), 0);
  EXPECT_TRUE(e.AddTerm(MakeMatrix(0, 3), 2.0));
  EXPECT_EQ(e.GetDim(), 3);
  EXPECT_EQ(e.dim, 3);
}

TEST_F(SymMatrixTest, GetDimReadsTheFirstMatrixAndNotTheField) {
  SymMatExpr e(MakeMatrix(0, 3));
  e.Remove(0);
  EXPECT_EQ(e.GetDim(), 0);
  EXPECT_EQ(e.dim, 3);
}

TEST_F(SymMatrixTest, AMatrixOfAnotherDimensionIsRefused) {
  SymMatExpr e(MakeMatrix(0, 3), 1.0);
  EXPECT_FALSE(e.AddTerm(MakeMatrix(1, 4), 1.0));
  EXPECT_EQ(e.Size(), 1u);
  EXPECT_EQ(Report(e.status), "3 (INVALID) Dimension of symmetric matrix mismatch");
  EXPECT_TRUE(e.AddTerm(MakeMatrix(2, 3), 1.0));
  EXPECT_EQ(e.status.Code(), 3);
}

TEST_F(SymMatrixTest, AMatrixWithoutDimensionIsIgnored) {
  SymMatExpr e;
  EXPECT_FALSE(e.AddTerm(MakeMatrix(-2, 0), 1.0));
  EXPECT_EQ(Report(e.status), "0 -");
  EXPECT_EQ(e.Size(), 0u);
}

TEST_F(SymMatrixTest, AddTermsStopsAtTheFirstRefusal) {
  SymMatExpr e;
  double const c[] = {1, 2, 3};
  EXPECT_EQ(e.AddTerms({MakeMatrix(0, 3), MakeMatrix(1, 4), MakeMatrix(2, 3)}, c, 3), -1);
  EXPECT_EQ(e.Size(), 1u);
  EXPECT_EQ(e.AddTerms({MakeMatrix(0, 3)}, nullptr, 1), -1);
  EXPECT_EQ(e.AddTerms({MakeMatrix(0, 3)}, c, 0), -1);
  EXPECT_EQ(e.AddTerms({MakeMatrix(3, 3), MakeMatrix(4, 3)}, c, 3), 2);
  EXPECT_THAT(e.coeffs, ElementsAre(1, 1, 2));
}

TEST_F(SymMatrixTest, AddSymMatExprScales) {
  SymMatExpr const other(MakeMatrix(0, 3), 2.0);
  SymMatExpr e;
  e.AddSymMatExpr(other, 1.0);
  e.AddSymMatExpr(other, -3.0);
  e.AddSymMatExpr(other, 0.0);
  EXPECT_THAT(e.coeffs, ElementsAre(2, -6, 0));
  e.AddSymMatExpr(e, 1.0);
  EXPECT_EQ(e.Size(), 6u);
}

TEST_F(SymMatrixTest, AddSymMatExprOfNothingDoesNothing) {
  SymMatExpr e(MakeMatrix(0, 3));
  e.AddSymMatExpr(SymMatExpr(), 1.0);
  e.AddSymMatExpr(SymMatExpr(MakeMatrix(-2, 0)), 1.0);
  EXPECT_EQ(e.Size(), 1u);
  EXPECT_EQ(Report(e.status), "0 -");
}

TEST_F(SymMatrixTest, AddSymMatExprComparesDimensions) {
  SymMatExpr e(MakeMatrix(0, 3));
  e.AddSymMatExpr(SymMatExpr(MakeMatrix(1, 4)), 1.0);
  EXPECT_EQ(e.Size(), 1u);
  EXPECT_EQ(Report(e.status), "3 (INVALID) Dimension of symmetric matrix mismatch");
}

TEST_F(SymMatrixTest, RemoveByMatrixUsesEquality) {
  SymMatExpr e(SymMatrix::Cached(3, 0, 1, 2.0), 1.0);
  e.AddTerm(MakeMatrix(4, 3), 2.0);
  e.AddTerm(SymMatrix::Cached(3, 0, 1, 2.0), 3.0);
  e.Remove(e.mats[0]);
  EXPECT_THAT(e.coeffs, ElementsAre(2));
  e.Remove(SymMatrix(MakeMatrix(4, 99)));
  EXPECT_EQ(e.Size(), 0u);
}

TEST_F(SymMatrixTest, MultiplyByOneChangesNothing) {
  SymMatExpr e(MakeMatrix(0, 3), std::nan(""));
  e.Multiply(1.0);
  EXPECT_TRUE(std::isnan(e.coeffs[0]));
  e.coeffs[0] = 2.0;
  e.Multiply(-3.0);
  EXPECT_THAT(e.coeffs, ElementsAre(-6));
}

TEST_F(SymMatrixTest, ElementsMergeOnTheLowerTriangle) {
  SymMatExpr e(SymMatrix::Cached(2, 0, 1, 2.0));
  e.AddTerm(SymMatrix::Cached(2, 1, 0, 3.0), 1.0);
  Elements const result = ElementsOf(e);
  EXPECT_EQ(result.count, 1);
  EXPECT_THAT(result.rows, ElementsAre(1));
  EXPECT_THAT(result.cols, ElementsAre(0));
  EXPECT_THAT(result.values, ElementsAre(5));
}

TEST_F(SymMatrixTest, ElementsAreScaledAndOrdered) {
  AnswerMatrix({2, 0, 1}, {1, 0, 0}, {1, 2, 3});
  SymMatExpr e(MakeMatrix(5, 3), 2.0);
  e.AddTerm(SymMatrix::Cached(3, 0, 2, 7.0), 1.0);
  Elements const result = ElementsOf(e);
  EXPECT_THAT(result.rows, ElementsAre(0, 1, 2, 2));
  EXPECT_THAT(result.cols, ElementsAre(0, 0, 0, 1));
  EXPECT_THAT(result.values, ElementsAre(4, 6, 7, 2));
}

TEST_F(SymMatrixTest, ElementsOfNothingAreNone) {
  EXPECT_EQ(ElementsOf(SymMatExpr()).count, 0);
}

TEST_F(SymMatrixTest, ElementsThatCannotBeReadAreAFailure) {
  double_.FailNth("VORQ_GetSymMat", 2, VORQ_INTERNAL);
  double_.AnswerNext("VORQ_GetSymMat").Set("n", 1);
  EXPECT_EQ(ElementsOf(SymMatExpr(MakeMatrix(0, 3))).count, -1);
  EXPECT_EQ(ElementsOf(SymMatExpr(MakeMatrix(-2, 3))).count, -1);
  EXPECT_EQ(ElementsOf(SymMatExpr(MakeMatrix(0, 0))).count, -1);
  std::vector<int> rows;
  std::vector<double> values;
  EXPECT_EQ(SymMatExpr().GetElements(&rows, nullptr, &values), -1);
}

TEST_F(SymMatrixTest, TheTextOfAnExpressionHasTheMatrixFirst) {
  SymMatExpr e(MakeMatrix(7, 3), 2.0);
  EXPECT_EQ(Print(e), "<SymMatrix 7-th> * 2");
  e.AddTerm(SymMatrix::Cached(3, 0, 0, 1.0), 1.0);
  e.AddTerm(MakeMatrix(8, 3), -0.5);
  EXPECT_EQ(Print(e), "<SymMatrix 7-th> * 2 + <SymMatrix (cached)> + <SymMatrix 8-th> * -0.5");
  EXPECT_EQ(Print(SymMatExpr()), "");
}

class PsdExprTest : public SymMatrixTest {
 protected:
  Var x_ = MakeVar("x", 0);
  PsdVar big_ = MakePsdVar("X", 0, 2);
  PsdVar other_ = MakePsdVar("Y", 1, 2);

  PsdExpr TwoParts() {
    PsdExpr e(big_, SymMatExpr(MakeMatrix(3, 2), 2.0));
    e.linear = Expr(x_, 4.0);
    e.linear.constant = 1.0;
    return e;
  }
};

TEST_F(PsdExprTest, PrintsTheLinearPartAndTheTerms) {
  EXPECT_EQ(Print(TwoParts()), "1 + 4 * x +  (<SymMatrix 3-th> * 2) * X");
  EXPECT_EQ(Print(PsdExpr(0.0)), "0");
}

TEST_F(PsdExprTest, ATermOfARemovedVariablePrintsNothing) {
  PsdExpr e = TwoParts();
  big_.MarkRemoved();
  EXPECT_EQ(Print(e), "1 + 4 * x");
}

TEST_F(PsdExprTest, AddPsdExprWithZeroAddsZeroTermsOnly) {
  PsdExpr e(2.0);
  e.AddPsdExpr(TwoParts(), 0.0);
  EXPECT_EQ(e.linear.constant, 2.0);
  EXPECT_EQ(e.linear.Size(), 0u);
  ASSERT_EQ(e.Size(), 1u);
  EXPECT_THAT(e.coeffs[0].coeffs, ElementsAre(0));
}

TEST_F(PsdExprTest, AddPsdExprScalesACopy) {
  PsdExpr const source = TwoParts();
  PsdExpr e;
  e.AddPsdExpr(source, 1.0);
  e.AddPsdExpr(source, -3.0);
  EXPECT_EQ(Print(e), "-2 + 4 * x - 12 * x +  (<SymMatrix 3-th> * 2) * X +  (<SymMatrix 3-th> * -6) * X");
  EXPECT_THAT(source.coeffs[0].coeffs, ElementsAre(2));
}

TEST_F(PsdExprTest, MultiplyReachesBothParts) {
  PsdExpr e = TwoParts();
  e.Multiply(1.0);
  EXPECT_THAT(e.coeffs[0].coeffs, ElementsAre(2));
  e.Multiply(0.0);
  EXPECT_EQ(e.Size(), 1u);
  EXPECT_THAT(e.coeffs[0].coeffs, ElementsAre(0));
  EXPECT_THAT(e.linear.coeffs, ElementsAre(0));
}

TEST_F(PsdExprTest, AddTermsNeedsListsOfOneLength) {
  PsdExpr e;
  EXPECT_EQ(e.AddTerms({big_, other_}, {MakeMatrix(0, 2), MakeMatrix(1, 2), MakeMatrix(2, 2)}), -1);
  EXPECT_EQ(e.Size(), 0u);
  EXPECT_EQ(e.AddTerms({big_, other_}, {MakeMatrix(0, 2), MakeMatrix(1, 2)}), 2);
  EXPECT_EQ(Print(e), "0 +  (<SymMatrix 0-th>) * X +  (<SymMatrix 1-th>) * Y");
}

TEST_F(PsdExprTest, RemoveByPsdVariableLeavesLinearTerms) {
  PsdExpr e = TwoParts();
  e.AddTerm(other_, MakeMatrix(4, 2));
  e.AddTerm(big_, MakeMatrix(5, 2));
  e.Remove(big_);
  EXPECT_THAT(Indices(e.vars), ElementsAre(1));
  EXPECT_EQ(e.linear.Size(), 1u);
}

TEST_F(PsdExprTest, RemoveByPositionMovesTheLastTermIn) {
  PsdExpr e = TwoParts();
  e.AddTerm(other_, MakeMatrix(4, 2));
  e.Remove(-1);
  e.Remove(2);
  e.Remove(0);
  EXPECT_EQ(Print(e), "1 + 4 * x +  (<SymMatrix 4-th>) * Y");
}

TEST_F(PsdExprTest, MergeTermsLeavesOneTermAVariable) {
  PsdExpr e;
  for (int const i : {3, 4}) e.AddTerm(big_, MakeMatrix(i, 2));
  e.AddTerm(other_, MakeMatrix(5, 2));
  e.AddTerm(MakePsdVar("gone", -3, 2), MakeMatrix(6, 2));
  e.AddTerm(big_, MakeMatrix(7, 2));
  e.MergeTerms();
  EXPECT_EQ(Print(e), "0 +  (<SymMatrix 3-th> + <SymMatrix 4-th> + <SymMatrix 7-th>) * X +  (<SymMatrix 5-th>) * Y");
}

TEST_F(PsdExprTest, ReduceIsForTheLinearPart) {
  PsdExpr e = TwoParts();
  e.AddPsdExpr(e, 1.0);
  e.Reduce(1);
  EXPECT_EQ(e.linear.Size(), 1u);
  EXPECT_EQ(e.Size(), 2u);
}

TEST_F(PsdExprTest, EvaluateCountsBothHalves) {
  double_.Answer("VORQ_GetPSDColInfo").Set("values", {1, 10, 100, 1000});
  PsdExpr e(big_, SymMatrix::Cached(2, 1, 0, 0.5));
  EXPECT_EQ(e.Evaluate(), 100.0);
  PsdExpr diagonal(big_, SymMatrix::Cached(2, 1, 1, 0.5));
  diagonal.linear.constant = 1.0;
  EXPECT_EQ(diagonal.Evaluate(), 501.0);
  EXPECT_EQ(double_.Calls("VORQ_GetPSDColInfo")[0], R"(VORQ_GetPSDColInfo(prob#1, "Value", 1, [0], out))");
}

TEST_F(PsdExprTest, EvaluateWithoutAValueIsNotANumber) {
  PsdExpr e(big_, SymMatrix::Cached(2, 0, 0, 1.0));
  double_.FailNext("VORQ_GetPSDColInfo", VORQ_INVALID);
  EXPECT_TRUE(std::isnan(e.Evaluate()));
  PsdExpr unreadable(big_, MakeMatrix(-2, 2));
  EXPECT_TRUE(std::isnan(unreadable.Evaluate()));
  PsdExpr outside(big_, SymMatrix::Cached(3, 2, 0, 1.0));
  EXPECT_TRUE(std::isnan(outside.Evaluate()));
  big_.MarkRemoved();
  EXPECT_TRUE(std::isnan(e.Evaluate()));
}

class LmiExprTest : public SymMatrixTest {
 protected:
  Var x_ = MakeVar("x", 0);
  Var y_ = MakeVar("y", 1);
};

TEST_F(LmiExprTest, PrintsTheConstantAndTheTerms) {
  LmiExpr e(MakeMatrix(2, 3));
  e.AddTerm(x_, MakeMatrix(3, 3));
  e.AddTerm(y_, SymMatExpr(MakeMatrix(4, 3), -1.5));
  EXPECT_EQ(Print(e), "<SymMatrix 2-th> +  (<SymMatrix 3-th>) * x +  (<SymMatrix 4-th> * -1.5) * y");
  x_.MarkRemoved();
  EXPECT_EQ(Print(e), "<SymMatrix 2-th> +  (<SymMatrix 4-th> * -1.5) * y");
  EXPECT_EQ(Print(LmiExpr()), "");
}

TEST_F(LmiExprTest, AddLmiExprScalesEverythingAlsoByZero) {
  LmiExpr source(SymMatExpr(MakeMatrix(2, 3), 2.0));
  source.AddTerm(x_, SymMatExpr(MakeMatrix(3, 3), 4.0));
  LmiExpr e;
  e.AddLmiExpr(source, 1.0);
  e.AddLmiExpr(source, 0.0);
  e.AddLmiExpr(source, -1.0);
  EXPECT_THAT(e.constant.coeffs, ElementsAre(2, 0, -2));
  ASSERT_EQ(e.Size(), 3u);
  EXPECT_THAT(e.coeffs[1].coeffs, ElementsAre(0));
  EXPECT_THAT(e.coeffs[2].coeffs, ElementsAre(-4));
}

TEST_F(LmiExprTest, AddTermsNeedsListsOfOneLength) {
  LmiExpr e;
  EXPECT_EQ(e.AddTerms({x_}, {MakeMatrix(0, 3), MakeMatrix(1, 3)}), -1);
  EXPECT_EQ(e.AddTerms({x_, y_}, {MakeMatrix(0, 3), MakeMatrix(1, 3)}), 2);
  EXPECT_EQ(e.Size(), 2u);
}

TEST_F(LmiExprTest, RemoveAndMerge) {
  LmiExpr e(x_, MakeMatrix(1, 3));
  e.AddTerm(y_, MakeMatrix(2, 3));
  e.AddTerm(x_, MakeMatrix(3, 3));
  e.AddTerm(MakeVar("gone", -3), MakeMatrix(4, 3));
  LmiExpr merged = e;
  merged.MergeTerms();
  EXPECT_EQ(Print(merged), " +  (<SymMatrix 1-th> + <SymMatrix 3-th>) * x +  (<SymMatrix 2-th>) * y");
  e.Remove(x_);
  EXPECT_THAT(Indices(e.vars), ElementsAre(-3, 1));
  e.Remove(0);
  EXPECT_THAT(Indices(e.vars), ElementsAre(1));
}

TEST_F(LmiExprTest, MultiplyReachesTheConstant) {
  LmiExpr e(MakeMatrix(2, 3));
  e.AddTerm(x_, MakeMatrix(3, 3));
  e.Multiply(2.0);
  EXPECT_EQ(Print(e), "<SymMatrix 2-th> * 2 +  (<SymMatrix 3-th> * 2) * x");
}

TEST_F(LmiExprTest, AddConstantKeepsTheDimension) {
  LmiExpr e(MakeMatrix(2, 3));
  e.AddConstant(SymMatExpr(MakeMatrix(5, 4)));
  EXPECT_EQ(Report(e.constant.status), "3 (INVALID) Dimension of symmetric matrix mismatch");
  e.AddConstant(SymMatExpr(MakeMatrix(6, 3)));
  EXPECT_EQ(e.constant.Size(), 2u);
}

}  // namespace
}  // namespace vorqtest
