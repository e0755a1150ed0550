// A model on the real solver library, through the interfaces: build, solve, read back, remove, copy, clear.
#include <vorq>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/objects.hpp"

namespace {

using vorqtest::Own;
using vorqtest::SilentSink;

// max 3x + 2y, x + y <= 4, x + 3y <= 6, x <= 3: the best point is (3, 1) with 11.
class RealSolverTest : public testing::Test {
 protected:
  RealSolverTest() {
    model_->SetIntParam("LogToConsole", 0);
    auto const sum = Own(CreateLinExpr(x_.get(), 1.0));
    sum->AddTerm(y_.get(), 1.0);
    first_ = Own(model_->AddConstr(sum.get(), 'L', 4.0, "first"));
    auto const weighted = Own(CreateLinExpr(x_.get(), 1.0));
    weighted->AddTerm(y_.get(), 3.0);
    second_ = Own(model_->AddConstr(weighted.get(), 'L', 6.0, "second"));
    auto const objective = Own(CreateLinExpr(x_.get(), 3.0));
    objective->AddTerm(y_.get(), 2.0);
    model_->SetObjective(objective.get(), -1);
  }

  void ExpectSuccess() { EXPECT_EQ(model_->GetLastError(), 0) << model_->GetErrorMessage(); }

  SilentSink sink_;
  std::unique_ptr<Vorq::IEnvr> envr_{CreateEnvr(&sink_)};
  std::unique_ptr<Vorq::IModel> model_{envr_->CreateModel("real")};
  std::unique_ptr<Vorq::IVar> x_{model_->AddVar(0.0, 3.0, 0.0, 'C', "x")};
  std::unique_ptr<Vorq::IVar> y_{model_->AddVar(0.0, 1e30, 0.0, 'C', "y")};
  std::unique_ptr<Vorq::IConstraint> first_, second_;
};

TEST_F(RealSolverTest, SolvesAndReadsTheSolution) {
  ExpectSuccess();
  model_->Solve();
  ExpectSuccess();
  EXPECT_NEAR(x_->Get("Value"), 3.0, 1e-7);
  EXPECT_NEAR(y_->Get("Value"), 1.0, 1e-7);
  EXPECT_NEAR(model_->GetDblAttr("LpObjval"), 11.0, 1e-7);
}

TEST_F(RealSolverTest, ReadsRowsAndObjectiveBack) {
  auto const builder = Own(model_->GetConstrBuilder(second_.get()));
  ExpectSuccess();
  auto const expr = Own(builder->GetExpr());
  EXPECT_EQ(builder->GetSense(), 'L');
  EXPECT_EQ(expr->GetConstant(), -6.0);
  ASSERT_EQ(expr->GetSize(), 2u);
  EXPECT_EQ(expr->GetCoeff(1), 3.0);
  auto const objective = Own(model_->GetObjective());
  ASSERT_EQ(objective->GetSize(), 2u);
  EXPECT_EQ(objective->GetCoeff(0), 3.0);
}

TEST_F(RealSolverTest, FindsItemsByName) {
  EXPECT_EQ(Own(model_->GetVarByName("y"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetConstrByName("second"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetVarByName("nobody"))->GetIdx(), -2);
  EXPECT_NE(model_->GetLastError(), 0);
}

TEST_F(RealSolverTest, RemovedColumnLeavesItsRows) {
  x_->Remove();
  EXPECT_EQ(model_->GetIntAttr("Cols"), 1);
  EXPECT_EQ(y_->GetIdx(), 0);
  auto const row = Own(model_->GetRow(second_.get()));
  ASSERT_EQ(row->GetSize(), 1u);
  EXPECT_EQ(row->GetCoeff(0), 3.0);
  model_->Solve();
  ExpectSuccess();
  EXPECT_NEAR(y_->Get("Value"), 2.0, 1e-7);
}

TEST_F(RealSolverTest, ChangedCoefficientsAreReadBack) {
  model_->SetCoeff(first_.get(), y_.get(), 2.5);
  EXPECT_EQ(model_->GetCoeff(first_.get(), y_.get()), 2.5);
  EXPECT_EQ(Own(model_->GetCol(y_.get()))->GetCoeff(0), 2.5);
}

TEST_F(RealSolverTest, CopyGoesItsOwnWay) {
  auto const copy = Own(model_->Clone());
  ExpectSuccess();
  Own(copy->GetConstr(0))->Remove();
  copy->Solve();
  EXPECT_EQ(copy->GetIntAttr("Rows"), 1);
  EXPECT_EQ(model_->GetIntAttr("Rows"), 2);
  EXPECT_STREQ(Own(copy->GetVar(0))->GetName(), "x");
}

TEST_F(RealSolverTest, ClearedModelStartsAnew) {
  model_->Clear();
  ExpectSuccess();
  EXPECT_EQ(model_->GetIntAttr("Cols"), 0);
  EXPECT_EQ(Own(model_->AddVar(0.0, 1.0, 0.0, 'B', "new"))->GetIdx(), 0);
}

TEST_F(RealSolverTest, WritesWhatItReads) {
  auto const buffer = Own(model_->WriteMpsStr());
  ExpectSuccess();
  EXPECT_NE(std::string(buffer->GetData()).find("ROWS"), std::string::npos);
}

}  // namespace
