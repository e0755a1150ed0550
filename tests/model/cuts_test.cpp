// User cuts and lazy constraints: one path, two functions and texts.
#include "tests/model/model_fixture.hpp"

namespace {

using vorqtest::Own;

class CutsTest : public vorqtest::ModelTest {
 protected:
  CutsTest() : vars_(AddVars(2)) {}

  std::vector<Var> vars_;
  Var const& x_ = vars_[0];
  Var const& y_ = vars_[1];
};

TEST_F(CutsTest, EachKindHasItsFunction) {
  model_->AddUserCut(Sum({{x_, 1.0}}, 1.0).get(), 'L', 5.0, " my cut");
  model_->AddLazyConstr(Sum({{x_, 1.0}}, 1.0).get(), 'G', 5.0, "lazy");
  EXPECT_CALLS(double_, {R"(VORQ_AddUserCut(prob#1, 1, [0], [1], 'L', 4, 1e+30, "my_cut"))",
                         R"(VORQ_AddLazyConstr(prob#1, 1, [0], [1], 'G', 4, 1e+30, "lazy"))"});
  EXPECT_EQ(Own(model_->GetConstrs())->Size(), 0);
}

TEST_F(CutsTest, FreeAndRangeRowsHaveTheirBounds) {
  model_->AddUserCut(Sum({{x_, 1.0}}, 1.0).get(), 'N', 5.0, "n");
  model_->AddUserCut(Sum({{x_, 1.0}}, 1.0).get(), 'R', 5.0, "r");
  EXPECT_CALLS(double_, {R"(VORQ_AddUserCut(prob#1, 1, [0], [1], 'N', -1e+30, 1e+30, "n"))",
                         R"(VORQ_AddUserCut(prob#1, 1, [0], [1], 'R', -1, 5, "r"))"});
}

TEST_F(CutsTest, RangeOfABuilderIsNotRead) {
  model_->AddLazyConstr(RangeBuilder(Sum({{x_, 1.0}}, -1.0), 4.0).get(), "r");
  EXPECT_CALLS(double_, {R"(VORQ_AddLazyConstr(prob#1, 1, [0], [1], 'R', 1, 0, "r"))"});
}

TEST_F(CutsTest, TwoExpressionsMakeTheirDifference) {
  model_->AddUserCut(Sum({{x_, 1.0}}, 1.0).get(), 'E', Sum({{y_, 1.0}}, 3.0).get(), "c");
  EXPECT_CALLS(double_, {R"(VORQ_AddUserCut(prob#1, 2, [0,1], [1,-1], 'E', 2, 1e+30, "c"))"});
}

TEST_F(CutsTest, BadSenseIsReportedWithTheTextOfTheOperation) {
  model_->AddUserCut(Sum({{x_, 1.0}}).get(), 'x', 5.0, "c");
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to add user cut to model");
  model_->AddLazyConstr(Sum({{x_, 1.0}}).get(), 'x', 5.0, "c");
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to add lazy constraint to model");
  EXPECT_CALLS(double_, {});
}

TEST_F(CutsTest, RefusedCutsHaveTheirTexts) {
  auto const builders = ArrayOf({Builder(Sum({{x_, 1.0}}), 'L', 1.0).get()});
  double_.FailNext("VORQ_AddUserCut", VORQ_MEMORY);
  model_->AddUserCut(Sum({{x_, 1.0}}).get(), 'L', 5.0, "c");
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add user cut to model");
  double_.FailNext("VORQ_AddLazyConstr", VORQ_MEMORY);
  model_->AddLazyConstr(Sum({{x_, 1.0}}).get(), 'L', 5.0, "c");
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add lazy constraint to model");
  double_.FailNext("VORQ_AddUserCuts", VORQ_MEMORY);
  model_->AddUserCuts(builders.get(), "c");
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add user cuts to model");
  double_.FailNext("VORQ_AddLazyConstrs", VORQ_MEMORY);
  model_->AddLazyConstrs(builders.get(), "c");
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add lazy constraints to model");
}

TEST_F(CutsTest, BatchesAreNumberedFromZero) {
  AddConstrs(2);
  auto const a = Builder(Sum({{x_, 1.0}}, 1.0), 'L', 1.0);
  auto const b = RangeBuilder(Sum({{y_, 2.0}}, 1.0), 4.0);
  auto const builders = ArrayOf({a.get(), b.get()});
  model_->AddUserCuts(builders.get(), "p");
  model_->AddLazyConstrs(builders.get(), "p");
  std::string const rows = R"((prob#1, 2, [0,1], [1,1], [0,1], [1,2], ['L','R'], [-0,-1], [1e+30,4], ["p_0","p_1"]))";
  EXPECT_CALLS(double_, {"VORQ_AddUserCuts" + rows, "VORQ_AddLazyConstrs" + rows});
}

TEST_F(CutsTest, BatchTakesANamesBuffer) {
  auto const builders = ArrayOf({Builder(Sum({{x_, 1.0}}), 'E', 1.0).get()});
  model_->AddUserCuts(builders.get(), " a b", 5);
  EXPECT_CALLS(double_, {R"(VORQ_AddUserCuts(prob#1, 1, [0], [1], [0], [1], ['E'], [1], [1e+30], [" a b"]))"});
}

TEST_F(CutsTest, BadSensesAndShortNamesOfABatchEndInTheTextOfTheOperation) {
  auto const bad = ArrayOf({Builder(Sum({{x_, 1.0}}), 'x', 1.0).get()});
  auto const good = ArrayOf({Builder(Sum({{x_, 1.0}}), 'E', 1.0).get()});
  model_->AddUserCuts(bad.get(), "p");
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to add user cuts to model");
  model_->AddLazyConstrs(good.get(), "name", 4);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to add lazy constraints to model");
  EXPECT_CALLS(double_, {});
}

TEST_F(CutsTest, EmptyBatchDoesNothing) {
  Fail();
  auto const none = Own(CreateConstrBuilderArray());
  model_->AddUserCuts(none.get(), "p");
  model_->AddLazyConstrs(none.get(), "p", 2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

}  // namespace
