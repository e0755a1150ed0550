// Adding linear constraints in all forms: merging of terms, senses and bounds, failures that stand.
#include "tests/model/model_fixture.hpp"

namespace {

using vorqtest::Own;

class ConstraintsTest : public vorqtest::ModelTest {
 protected:
  ConstraintsTest() : vars_(AddVars(3)) {}

  std::vector<Var> vars_;
  Var const& x_ = vars_[0];
  Var const& y_ = vars_[1];
  Var const& z_ = vars_[2];
};

TEST_F(ConstraintsTest, ConstantMovesToTheBound) {
  Constr const constr = Own(model_->AddConstr(Sum({{x_, 1.0}}, 3.0).get(), 'L', 5.0, " my row "));
  EXPECT_CALLS(double_, {R"(VORQ_AddRow(prob#1, 1, [0], [1], 'L', 2, 1e+30, "my_row"))"});
  EXPECT_EQ(constr->GetIdx(), 0);
  EXPECT_STREQ(constr->GetName(), "my_row");
}

TEST_F(ConstraintsTest, UpperBoundIsInfiniteWhateverTheSense) {
  for (char sense : {'E', 'G', 'L'}) Own(model_->AddConstr(Sum({{x_, 1.0}}).get(), sense, 1.0, nullptr));
  EXPECT_CALLS(double_, {R"(VORQ_AddRow(prob#1, 1, [0], [1], 'E', 1, 1e+30, ""))",
                         R"(VORQ_AddRow(prob#1, 1, [0], [1], 'G', 1, 1e+30, ""))",
                         R"(VORQ_AddRow(prob#1, 1, [0], [1], 'L', 1, 1e+30, ""))"});
}

TEST_F(ConstraintsTest, CancelledTermStaysWithZero) {
  Own(model_->AddConstr(Sum({{x_, 1.0}, {x_, 1.0}, {x_, -2.0}}).get(), 'E', 0.0, "c"));
  EXPECT_CALLS(double_, {R"(VORQ_AddRow(prob#1, 1, [0], [0], 'E', 0, 1e+30, "c"))"});
}

TEST_F(ConstraintsTest, MergingKeepsTheFirstPlaceAndMovesTheLast) {
  Own(model_->AddConstr(Sum({{x_, 1.0}, {y_, 1.0}, {x_, 1.0}}).get(), 'E', 0.0, "a"));
  Own(model_->AddConstr(Sum({{x_, 1.0}, {x_, 1.0}, {y_, 1.0}, {z_, 1.0}}).get(), 'E', 0.0, "b"));
  EXPECT_CALLS(double_, {R"(VORQ_AddRow(prob#1, 2, [0,1], [2,1], 'E', 0, 1e+30, "a"))",
                         R"(VORQ_AddRow(prob#1, 3, [0,2,1], [2,1,1], 'E', 0, 1e+30, "b"))"});
}

TEST_F(ConstraintsTest, MergingShowsInTheCallersExpression) {
  Expr const expr = Sum({{x_, 1.0}, {y_, 0.0}, {x_, 4.0}});
  Own(model_->AddConstr(expr.get(), 'E', 0.0, "c"));
  ASSERT_EQ(expr->GetSize(), 1u);
  EXPECT_EQ(expr->GetCoeff(0), 5.0);
}

TEST_F(ConstraintsTest, RemovedVariablesDropOut) {
  Expr const expr = Sum({{x_, 1.0}, {y_, 2.0}});
  x_->Remove();
  Own(model_->AddConstr(expr.get(), 'E', 0.0, "c"));
  EXPECT_CALLS(double_, {R"(VORQ_AddRow(prob#1, 1, [1], [2], 'E', 0, 1e+30, "c"))"});
  EXPECT_EQ(expr->GetSize(), 1u);
}

TEST_F(ConstraintsTest, OtherSensesAreRefused) {
  for (char sense : {'N', 'R', 'e', '<'}) {
    auto const model = Own(envr_->CreateModel("other"));
    double_.ClearLog();
    Constr const constr = Own(model->AddConstr(Sum({}).get(), sense, 0.0, "c"));
    EXPECT_EQ(constr->GetIdx(), -2);
    EXPECT_FAILURE(model, 3, "(INVALID) Invalid constraint sense");
    EXPECT_CALLS(double_, {});
  }
}

TEST_F(ConstraintsTest, EarlierFailureStopsTheFormsWithASense) {
  Fail();
  Expr const expr = Sum({{x_, 1.0}});
  EXPECT_EQ(Own(model_->AddConstr(expr.get(), 'L', 1.0, "c"))->GetIdx(), -2);
  EXPECT_EQ(Own(model_->AddConstr(expr.get(), 'L', Sum({}).get(), "c"))->GetIdx(), -2);
  EXPECT_EQ(Own(model_->AddConstr(Builder(expr, 'L', 1.0).get(), "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(ConstraintsTest, EarlierFailureDoesNotStopTheFormWithBounds) {
  Fail();
  EXPECT_EQ(Own(model_->AddConstr(Sum({{x_, 1.0}}).get(), 0.0, 1.0, "c"))->GetIdx(), 0);
  EXPECT_SUCCESS(model_);
}

TEST_F(ConstraintsTest, RefusedRowIsInvalidAndTakesNoIndex) {
  double_.FailNext("VORQ_AddRow", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddConstr(Sum({{x_, 1.0}}).get(), 0.0, 1.0, "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add a constraint");
  EXPECT_EQ(Own(model_->AddConstr(Sum({{x_, 1.0}}).get(), 0.0, 1.0, "c"))->GetIdx(), 0);
}

TEST_F(ConstraintsTest, TwoExpressionsMakeTheirDifference) {
  Expr const lhs = Sum({{x_, 1.0}, {y_, 1.0}}, 1.0);
  Expr const rhs = Sum({{x_, 3.0}}, 5.0);
  Own(model_->AddConstr(lhs.get(), 'G', rhs.get(), "c"));
  EXPECT_CALLS(double_, {R"(VORQ_AddRow(prob#1, 2, [0,1], [-2,1], 'G', 4, 1e+30, "c"))"});
  EXPECT_EQ(lhs->GetSize(), 2u);
  EXPECT_EQ(lhs->GetConstant(), 1.0);
}

TEST_F(ConstraintsTest, BoundsAreShiftedByTheConstant) {
  Own(model_->AddConstr(Sum({{x_, 2.0}}, 1.0).get(), 0.0, 10.0, "c"));
  EXPECT_CALLS(double_, {R"(VORQ_AddRow(prob#1, 1, [0], [2], 0, -1, 9, "c"))"});
}

TEST_F(ConstraintsTest, BuilderWithASense) {
  Own(model_->AddConstr(Builder(Sum({{x_, 1.0}}, 1.0), 'L', 4.0).get(), "c"));
  EXPECT_CALLS(double_, {R"(VORQ_AddRow(prob#1, 1, [0], [1], 'L', 3, 1e+30, "c"))"});
}

TEST_F(ConstraintsTest, RangeDiffersBetweenSingleAndBatch) {
  auto const builder = RangeBuilder(Sum({{x_, 1.0}}, -1.0), 4.0);
  Own(model_->AddConstr(builder.get(), "single"));
  Own(model_->AddConstrs(ArrayOf({builder.get()}).get(), "batch"));
  EXPECT_CALLS(double_, {R"(VORQ_AddRow(prob#1, 1, [0], [1], 0, -3, 1, "single"))",
                         R"(VORQ_AddRows(prob#1, 1, [0], [1], [0], [1], ['R'], [1], [4], ["batch_1"]))"});
}

// ---- Batches without terms

TEST_F(ConstraintsTest, SensesBecomeBounds) {
  double const rhss[] = {1.0, 2.0, 3.0, 4.0};
  auto const constrs = Own(model_->AddConstrs(4, "EGLN", rhss, "c"));
  EXPECT_EQ(constrs->Size(), 4);
  EXPECT_CALLS(double_, {"VORQ_AddRows(prob#1, 4, null, null, null, null, null, [1,2,-1e+30,-1e+30], "
                         R"([1,1e+30,3,1e+30], ["c_0","c_1","c_2","c_3"]))"});
}

TEST_F(ConstraintsTest, BadSenseOfABatchIsLostInASuccess) {
  double const rhss[] = {1.0, 2.0, 3.0};
  for (char const* senses : {"ERL", "E?L"}) {
    double_.ClearLog();
    EXPECT_EQ(Own(model_->AddConstrs(3, senses, rhss, "c"))->Size(), 3);
    EXPECT_SUCCESS(model_);
    EXPECT_EQ(double_.Calls()[0].substr(0, 75),
              "VORQ_AddRows(prob#1, 3, null, null, null, null, null, [1,0,0], [1,0,0], [\"c");
  }
}

TEST_F(ConstraintsTest, BadSenseOfABatchLeavesItsTextBehind) {
  double const rhss[] = {1.0};
  Own(model_->AddConstrs(1, "R", rhss, "c"));
  EXPECT_FAILURE(model_, 0, "(INVALID) Use constrbuilder to add range constraint");
  Own(model_->AddConstrs(1, "x", rhss, "c"));
  EXPECT_FAILURE(model_, 0, "(INVALID) Invalid constraint sense");
}

TEST_F(ConstraintsTest, MissingArraysGiveAnEmptyArray) {
  Fail();
  double const bounds[] = {1.0};
  EXPECT_EQ(Own(model_->AddConstrs(1, static_cast<char const*>(nullptr), bounds, "c"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddConstrs(1, "E", nullptr, "c"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddConstrs(0, "E", bounds, "c"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddConstrs(1, static_cast<double const*>(nullptr), bounds, "c"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddConstrs(1, bounds, nullptr, "c", 2))->Size(), 0);
  EXPECT_EQ(Own(model_->AddConstrs(-1, bounds, bounds, "c", 2))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(ConstraintsTest, BatchIsNumberedFromTheNextIndex) {
  AddConstrs(2);
  double const bounds[] = {1.0, 2.0};
  auto const constrs = Own(model_->AddConstrs(2, bounds, bounds, " a b"));
  EXPECT_STREQ(Own(constrs->Get(0))->GetName(), "a_b_2");
  EXPECT_EQ(Own(constrs->Get(1))->GetIdx(), 3);
}

TEST_F(ConstraintsTest, BatchWithANamesBuffer) {
  double const lowers[] = {1.0, 2.0};
  double const uppers[] = {3.0, 4.0};
  Own(model_->AddConstrs(2, lowers, uppers, "a\0b", 4));
  EXPECT_CALLS(double_, {R"(VORQ_AddRows(prob#1, 2, null, null, null, null, null, [1,2], [3,4], ["a","b"]))"});
  EXPECT_EQ(Own(model_->AddConstrs(2, lowers, uppers, "a\0b", 3))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of input names");
}

TEST_F(ConstraintsTest, RefusedBatchAddsNothing) {
  double const bounds[] = {1.0};
  double_.FailNext("VORQ_AddRows", VORQ_INTERNAL);
  EXPECT_EQ(Own(model_->AddConstrs(1, bounds, bounds, "c"))->Size(), 0);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to add constraints");
  EXPECT_EQ(Own(model_->GetConstr(0))->GetIdx(), -2);
}

// ---- Batches from builders

TEST_F(ConstraintsTest, BuildersLieBehindEachOther) {
  auto const a = Builder(Sum({{x_, 1.0}, {x_, 1.0}}), 'E', 1.0);
  auto const b = Builder(Sum({}), 'N', 2.0);
  auto const c = Builder(Sum({{z_, 3.0}, {y_, 4.0}}, 1.0), 'L', 3.0);
  auto const constrs = Own(model_->AddConstrs(ArrayOf({a.get(), b.get(), c.get()}).get(), "a\0b\0c", 6));
  EXPECT_EQ(constrs->Size(), 3);
  EXPECT_CALLS(double_, {"VORQ_AddRows(prob#1, 3, [0,1,1], [1,0,2], [0,2,1], [2,3,4], ['E','N','L'], "
                         R"([1,-1e+30,2], [1e+30,1e+30,1e+30], ["a","b","c"]))"});
}

TEST_F(ConstraintsTest, BuilderWithABadSenseStopsTheBatch) {
  auto const a = Builder(Sum({{x_, 1.0}}), 'E', 1.0);
  auto const b = Builder(Sum({{x_, 1.0}}), 'x', 1.0);
  EXPECT_EQ(Own(model_->AddConstrs(ArrayOf({a.get(), b.get()}).get(), "c"))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid constraint sense");
  EXPECT_CALLS(double_, {});
}

TEST_F(ConstraintsTest, BuildersAreNumberedFromTheNextIndex) {
  AddConstrs(1);
  auto const a = Builder(Sum({{x_, 1.0}}), 'E', 1.0);
  auto const constrs = Own(model_->AddConstrs(ArrayOf({a.get()}).get(), nullptr));
  EXPECT_STREQ(Own(constrs->Get(0))->GetName(), "_1");
}

TEST_F(ConstraintsTest, NoBuildersAddNothing) {
  Fail();
  auto const none = Own(CreateConstrBuilderArray());
  EXPECT_EQ(Own(model_->AddConstrs(none.get(), "c"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddConstrs(none.get(), "c", 2))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(ConstraintsTest, BuildersWithTooFewNamesAreRefused) {
  auto const a = Builder(Sum({{x_, 1.0}}), 'E', 1.0);
  EXPECT_EQ(Own(model_->AddConstrs(ArrayOf({a.get(), a.get()}).get(), "c", 2))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of input names");
}

}  // namespace
