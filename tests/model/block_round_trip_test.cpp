// Blocks on the real solver library, through the interfaces: what was added as a block is what the solver library gives
// back row by row, and it is solved as it was meant.
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <vector>
#include <vorq>

#include "tests/model/expression_texts.hpp"
#include "tests/support/objects.hpp"

namespace {

using vorqtest::Own;
using vorqtest::SilentSink;
using vorqtest::Text;

class BlockRoundTripTest : public testing::Test {
 protected:
  BlockRoundTripTest() { model_->SetIntParam("LogToConsole", 0); }
  void TearDown() override { EXPECT_EQ(model_->GetLastError(), 0) << model_->GetErrorMessage(); }

  std::unique_ptr<Vorq::INdArray<double, 2>> Numbers(std::uint64_t rows, std::uint64_t cols,
                                                     std::vector<double> const& values) {
    auto const shape = Own(factory_->CreateNDim(rows, cols));
    return Own(factory_->CreateNdArray(shape.get(), values.data(), values.size()));
  }
  // The name, bounds and terms of a row.
  std::string Row(Vorq::IConstraint* row) {
    std::ostringstream out;
    out << row->GetName() << ": " << row->Get("LB") << " <= " << Text(Own(model_->GetRow(row)).get())
        << " <= " << row->Get("UB");
    return out.str();
  }

  SilentSink sink_;
  std::unique_ptr<Vorq::IEnvr> envr_{CreateEnvr(&sink_)};
  std::unique_ptr<Vorq::IModel> model_{envr_->CreateModel("m")};
  std::unique_ptr<Vorq::IMFactory> factory_{CreateMFactory()};
  std::unique_ptr<Vorq::INDim<2>> shape_ = Own(factory_->CreateNDim(2, 2));
  std::unique_ptr<Vorq::IMVar<2>> x_ = Own(model_->AddMVar(shape_.get(), 0.0, 10.0, 1.0, 'C', "x"));
};

TEST_F(BlockRoundTripTest, VariablesKeepWhatTheyWereGiven) {
  double const lbs[] = {-1.0, 0.0, 1.0};
  double const ubs[] = {2.0, 3.0, 4.0};
  double const objs[] = {5.0, 6.0, 7.0};
  auto const y = Own(model_->AddMVar(Own(factory_->CreateNDim(3)).get(), lbs, ubs, objs, "CBI", "y"));
  EXPECT_EQ(Own(y->Get("LB"))->ToString(100), "[-1, 0, 1]\n");
  EXPECT_EQ(Own(y->Get("UB"))->ToString(100), "[2, 1, 4]\n");
  EXPECT_EQ(Own(y->Get("Obj"))->ToString(100), "[5, 6, 7]\n");
  EXPECT_EQ(Own(y->GetType())->ToString(100), "[C, B, I]\n");
  EXPECT_EQ(Own(x_->Get("UB"))->ToString(100), "[[10, 10]\n [10, 10]\n]\n");
  EXPECT_EQ(Own(model_->GetVarByName("x(1,0)"))->GetIdx(), 2);
  EXPECT_EQ(Own(model_->GetVarByName("y(2)"))->GetIdx(), 6);
}

TEST_F(BlockRoundTripTest, RowsOfABuilder) {
  auto const expr = Own(factory_->CreateMLinExpr(shape_.get(), 0.5));
  expr->AddTerm(x_.get(), Numbers(2, 2, {1.0, 2.0, 3.0, 0.0}).get());
  expr->AddTerm(Own(x_->Get(std::uint64_t{0})).get(), 4.0);
  auto const builder = Own(factory_->CreateMConstrBuilder(shape_.get()));
  builder->Set(expr.get(), 'L', Numbers(2, 2, {10.0, 20.0, 30.0, 40.0}).get());
  auto const rows = Own(model_->AddMConstr(builder.get(), "c"));
  ASSERT_EQ(rows->GetSize(), 4u);
  EXPECT_EQ(Row(Own(rows->Get(std::uint64_t{0})).get()), "c(0,0): -1e+30 <= 0 + 5 x(0,0) <= 9.5");
  EXPECT_EQ(Row(Own(rows->Get(std::uint64_t{1})).get()), "c(0,1): -1e+30 <= 0 + 2 x(0,1) + 4 x(0,0) <= 19.5");
  EXPECT_EQ(Row(Own(rows->Get(std::uint64_t{2})).get()), "c(1,0): -1e+30 <= 0 + 3 x(1,0) + 4 x(0,0) <= 29.5");
  EXPECT_EQ(Row(Own(rows->Get(std::uint64_t{3})).get()), "c(1,1): -1e+30 <= 0 + 4 x(0,0) <= 39.5");
}

TEST_F(BlockRoundTripTest, RowsOfARangeAndOfAnExpression) {
  auto const expr = Own(factory_->CreateMLinExpr(shape_.get(), -1.0));
  expr->AddTerm(x_.get(), 2.0);
  auto const builder = Own(factory_->CreateMConstrBuilder(shape_.get()));
  builder->SetRange(expr.get(), 4.0);
  auto const range = Own(model_->AddMConstr(builder.get(), "r"));
  EXPECT_EQ(Row(Own(range->Get(std::uint64_t{3})).get()), "r(1,1): 1 <= 0 + 2 x(1,1) <= 4");
  auto const rows = Own(model_->AddMConstr(expr.get(), 'G', 100.0, "g"));
  EXPECT_EQ(Row(Own(rows->Get(std::uint64_t{1})).get()), "g(0,1): 1 <= 0 + 2 x(0,1) <= 1e+30");
}

TEST_F(BlockRoundTripTest, SolvesABlock) {
  auto const expr = Own(factory_->CreateMLinExpr(shape_.get(), 0.0));
  expr->AddTerm(x_.get(), Numbers(2, 2, {1.0, 2.0, 4.0, 0.0}).get());
  auto const builder = Own(factory_->CreateMConstrBuilder(shape_.get()));
  builder->Set(expr.get(), 'L', 12.0);
  Own(model_->AddMConstr(builder.get(), "c"));
  // Maximise the sum of all, plus 3.
  auto const sum = Own(Own(x_->Sum())->Get(std::uint64_t{0}));
  sum->AddConstant(3.0);
  model_->SetObjective(sum.get(), -1);
  model_->SolveLp();
  EXPECT_EQ(Own(x_->Get("Value"))->ToString(100), "[[10, 6]\n [3, 10]\n]\n");
  EXPECT_EQ(model_->GetDblAttr("LpObjVal"), 32.0);
}

TEST_F(BlockRoundTripTest, RefusedBlocksLeaveTheModelAsItWas) {
  auto const expr = Own(factory_->CreateMLinExpr(shape_.get(), 0.0));
  expr->AddTerm(x_.get(), Numbers(2, 2, {1.0, 2.0, 1e40, 4.0}).get());
  auto const rows = Own(model_->AddMConstr(expr.get(), 'L', 0.0, "c"));
  EXPECT_EQ(rows->GetSize(), 0u);
  EXPECT_STREQ(model_->GetErrorMessage(), "(INVALID) Fail to add constraints");
  EXPECT_EQ(model_->GetIntAttr("Rows"), 0);
  EXPECT_EQ(model_->GetIntAttr("Elems"), 0);
  double const lbs[] = {0.0, std::numeric_limits<double>::quiet_NaN()};
  auto const y = Own(model_->AddMVar(Own(factory_->CreateNDim(2)).get(), lbs, nullptr, nullptr, nullptr, "y"));
  EXPECT_EQ(y->GetSize(), 2u);
  EXPECT_STREQ(model_->GetErrorMessage(), "(INVALID) Fail to add vars");
  EXPECT_EQ(model_->GetIntAttr("Cols"), 4);
}

TEST_F(BlockRoundTripTest, QuadraticRows) {
  auto const expr = Own(factory_->CreateMQuadExpr(shape_.get(), 1.0));
  expr->AddTerm(x_.get(), 2.0);
  expr->AddTerm(Own(x_->Get(std::uint64_t{0})).get(), Own(x_->Get(std::uint64_t{3})).get(), 5.0);
  auto const rows = Own(model_->AddMQConstr(expr.get(), 'L', 8.0, "q"));
  ASSERT_EQ(rows->GetSize(), 4u);
  EXPECT_EQ(Own(rows->GetRhs())->ToString(100), "[[7, 7]\n [7, 7]\n]\n");
  auto const row = Own(model_->GetQuadRow(Own(rows->Get(std::uint64_t{2})).get()));
  EXPECT_EQ(Text(Own(row->GetLinExpr()).get()), "0 + 2 x(1,0)");
  ASSERT_EQ(row->GetSize(), 1u);
  EXPECT_EQ(row->GetCoeff(0), 5.0);
  EXPECT_STREQ(Own(row->GetVar1(0))->GetName(), "x(0,0)");
  EXPECT_STREQ(Own(row->GetVar2(0))->GetName(), "x(1,1)");
}

TEST_F(BlockRoundTripTest, Indicators) {
  auto const b = Own(model_->AddMVar(shape_.get(), 'B', "b"));
  auto const expr = Own(factory_->CreateMLinExpr(shape_.get(), 0.0));
  expr->AddTerm(x_.get(), 2.0);
  auto const builder = Own(factory_->CreateMConstrBuilder(shape_.get()));
  builder->Set(expr.get(), 'L', 6.0);
  auto const constrs = Own(model_->AddGenConstrIndicators(b.get(), 1, builder.get(), 0, "g"));
  ASSERT_EQ(constrs->Size(), 4);
  auto const last = Own(model_->GetGenConstrBuilder(Own(constrs->Get(3)).get()));
  EXPECT_STREQ(Own(last->GetBinVar())->GetName(), "b(1,1)");
  EXPECT_EQ(Text(Own(last->GetExpr()).get()), "-6 + 2 x(1,1)");
  EXPECT_STREQ(Own(constrs->Get(3))->GetName(), "g(1,1)");
}

}  // namespace
