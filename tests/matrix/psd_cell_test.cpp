// What PSD expressions take over from linear cells.
#include <limits>

#include "matrix/psd_cell.hpp"
#include "tests/matrix/matrix_fixture.hpp"

namespace vorqtest {
namespace {

using Vorq::MExpression;
using Vorq::PsdExpr;

class PsdCellTest : public MatrixTest {
 protected:
  MExpression MakeCell() const {
    MExpression cell = LazyCell({3.0, 0.0});
    cell.AddTerm(MakeVar("y", 9), 5.0);
    cell.AddConstant(1.5);
    cell.scale = 2.0;
    return cell;
  }
};

TEST_F(PsdCellTest, AConvertedCellHasItsTermsExplicit) {
  EXPECT_EQ(Terms(Vorq::PsdExprOf(MakeCell()).linear), "1.5; 5 y, 6 x0, 0 x1");
}

TEST_F(PsdCellTest, AddingMultipliesAllTerms) {
  PsdExpr expr(1.0);
  Vorq::AddMExpression(expr, MakeCell(), 2.0);
  EXPECT_EQ(Terms(expr.linear), "4; 10 y, 12 x0, 0 x1");
  EXPECT_EQ(expr.Size(), 0u);
}

TEST_F(PsdCellTest, AddingZeroTimesAddsNothing) {
  PsdExpr expr(1.0);
  Vorq::AddMExpression(expr, MakeCell(), 0.0);
  EXPECT_EQ(Terms(expr.linear), "1;");
}

TEST_F(PsdCellTest, ANaNCoefficientCountsAsNotZero) {
  MExpression const cell = LazyCell({std::numeric_limits<double>::quiet_NaN()});
  EXPECT_TRUE(std::isnan(Vorq::PsdExprOf(cell).linear.coeffs[0]));
}

}  // namespace
}  // namespace vorqtest
