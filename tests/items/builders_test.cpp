// Builders.
#include "tests/items/items_fixture.hpp"

namespace vorqtest {
namespace {

using testing::ElementsAre;
using Vorq::Expr;
using Vorq::Var;

class BuildersTest : public ItemsTest {
 protected:
  Var x_ = MakeVar("x", 0);
  Var y_ = MakeVar("y", 1);

  Expr XPlusOne() const {
    Expr expr(x_, 1.0);
    expr.constant = 1.0;
    return expr;
  }
};

TEST_F(BuildersTest, ANewBuilderIsZero) {
  Vorq::ConstrBuilder const b;
  EXPECT_EQ(b.sense, '\0');
  EXPECT_EQ(b.range, 0.0);
  EXPECT_EQ(Print(b.expr), "0");
}

TEST_F(BuildersTest, SetFoldsTheRightSideIntoTheConstant) {
  Vorq::ConstrBuilder b;
  b.SetRange(Expr(9.0), 4.0);
  b.Set(XPlusOne(), 'L', 3.0);
  EXPECT_EQ(Print(b.expr), "-2 + x");
  EXPECT_EQ(b.sense, 'L');
  EXPECT_EQ(b.range, 0.0);
}

TEST_F(BuildersTest, SetRangeLeavesTheConstantAlone) {
  Vorq::ConstrBuilder b;
  b.Set(Expr(9.0), 'G', 1.0);
  b.SetRange(XPlusOne(), 4.0);
  EXPECT_EQ(Print(b.expr), "1 + x");
  EXPECT_EQ(b.sense, 'R');
  EXPECT_EQ(b.range, 4.0);
}

TEST_F(BuildersTest, QuadraticAndPsdBuildersFoldIntoTheLinearPart) {
  Vorq::QConstrBuilder q;
  q.Set(Vorq::QuadExpr(XPlusOne()), 'G', 3.0);
  EXPECT_EQ(q.expr.linear.constant, -2.0);
  EXPECT_EQ(q.sense, 'G');
  Vorq::PsdConstrBuilder p;
  p.Set(Vorq::PsdExpr(XPlusOne()), 'E', 3.0);
  EXPECT_EQ(p.expr.linear.constant, -2.0);
  p.SetRange(Vorq::PsdExpr(XPlusOne()), 5.0);
  EXPECT_EQ(p.expr.linear.constant, 1.0);
  EXPECT_EQ(p.sense, 'R');
  EXPECT_EQ(p.range, 5.0);
}

TEST_F(BuildersTest, ASecondSosSetAppends) {
  Vorq::SosBuilder b;
  double const first[] = {1, 2};
  double const second[] = {3, 4};
  b.Set({x_, y_}, first, 1);
  b.Set({y_, x_}, second, 2);
  EXPECT_THAT(Indices(b.vars), ElementsAre(0, 1, 1, 0));
  EXPECT_THAT(b.weights, ElementsAre(1, 2, 3, 4));
  EXPECT_EQ(b.type, 2);
}

TEST_F(BuildersTest, ASecondConeSetAppends) {
  Vorq::ConeBuilder b;
  b.Set({x_}, 1);
  b.Set({y_}, 2);
  EXPECT_THAT(Indices(b.vars), ElementsAre(0, 1));
  EXPECT_EQ(b.type, 2);
}

TEST_F(BuildersTest, AGeneralBuilderTakesTheConstantAsItIs) {
  Vorq::GenConstrBuilder b;
  b.Set(y_, 0, Expr(3.0), 'G', 1);
  b.Set(y_, 1, XPlusOne(), 'L', 2);
  EXPECT_EQ(Print(b.binVar), "y");
  EXPECT_EQ(b.binVal, 1);
  EXPECT_EQ(Print(b.expr), "1 + x");
  EXPECT_EQ(b.sense, 'L');
  EXPECT_EQ(b.type, 2);
}

}  // namespace
}  // namespace vorqtest
