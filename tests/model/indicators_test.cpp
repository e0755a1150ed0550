// Indicator constraints: adding one or many, and reading them back as builders.
#include "tests/model/special_fixture.hpp"

namespace {

using vorqtest::Own;

class IndicatorsTest : public vorqtest::SpecialConstraintsTest {
 protected:
  IndicatorsTest() { double_.ClearLog(); }

  std::unique_ptr<Vorq::IGenConstrBuilder> Implication(Expr const& expr, char sense) {
    auto builder = Own(CreateGenConstrBuilder());
    builder->Set(b_.get(), 1, expr.get(), sense, 0);
    return builder;
  }
  static std::unique_ptr<Vorq::IGenConstrBuilderArray> ListOf(
      std::initializer_list<Vorq::IGenConstrBuilder*> builders) {
    auto array = Own(CreateGenConstrBuilderArray());
    for (Vorq::IGenConstrBuilder* builder : builders) array->PushBack(*builder);
    return array;
  }

  Var b_ = Own(model_->AddVar(0.0, 1.0, 0.0, 'B', "b"));
};

TEST_F(IndicatorsTest, IsHandedOverAsABatchOfOne) {
  auto const constr =
      Own(model_->AddGenConstrIndicator(b_.get(), 1, Sum({{x_, 1.0}, {x_, 1.0}}, 3.0).get(), 'L', 5.0, 0, " my row "));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(constr->GetIdx(), 0);
  EXPECT_STREQ(constr->GetName(), "my_row");
  EXPECT_CALLS(double_,
               {"VORQ_GetColType(prob#1, 1, [3], out)",
                R"(VORQ_AddIndicators(prob#1, 1, [0], [3], [1], [0], [1], [0], [2], ['L'], [2], ["my_row"]))"});
}

TEST_F(IndicatorsTest, VariableMustBeBinary) {
  EXPECT_EQ(Own(model_->AddGenConstrIndicator(x_.get(), 1, Sum({}).get(), 'L', 0.0, 0, "g"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid indicator variable");
  EXPECT_EQ(double_.CountCalls("VORQ_AddIndicators"), 0u);
}

TEST_F(IndicatorsTest, RemovedVariableIsNotBinary) {
  b_->Remove();
  EXPECT_EQ(Own(model_->AddGenConstrIndicator(b_.get(), 1, Sum({}).get(), 'L', 0.0, 0, "g"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid indicator variable");
  EXPECT_CALLS(double_, {});
}

TEST_F(IndicatorsTest, OtherSensesAreRefused) {
  for (char sense : {'N', 'R', 'l'}) {
    EXPECT_EQ(Own(model_->AddGenConstrIndicator(b_.get(), 1, Sum({}).get(), sense, 0.0, 0, "g"))->GetIdx(), -2);
    EXPECT_FAILURE(model_, 3, "(INVALID) Invalid general constraint sense");
  }
  EXPECT_EQ(double_.CountCalls("VORQ_AddIndicators"), 0u);
}

TEST_F(IndicatorsTest, AnEarlierFailureDoesNotStopIt) {
  Fail();
  EXPECT_EQ(Own(model_->AddGenConstrIndicator(b_.get(), 1, Sum({}).get(), 'L', 0.0, 0, "g"))->GetIdx(), 0);
  EXPECT_SUCCESS(model_);
}

TEST_F(IndicatorsTest, RefusedConstraintIsInvalid) {
  double_.FailNext("VORQ_AddIndicators", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddGenConstrIndicator(b_.get(), 1, Sum({}).get(), 'L', 0.0, 0, "g"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add an indicator constraint");
}

TEST_F(IndicatorsTest, FormsWithBuilders) {
  Own(model_->AddGenConstrIndicator(b_.get(), 0, Builder(Sum({{x_, 1.0}}), 'G', 4.0).get(), 0, "a"));
  Own(model_->AddGenConstrIndicator(Implication(Sum({{y_, 2.0}}, -3.0), 'E').get(), "b"));
  EXPECT_CALLS_OF(double_, "VORQ_AddIndicators",
                  {R"(VORQ_AddIndicators(prob#1, 1, [0], [3], [0], [0], [1], [0], [1], ['G'], [4], ["a"]))",
                   R"(VORQ_AddIndicators(prob#1, 1, [0], [3], [1], [0], [1], [1], [2], ['E'], [3], ["b"]))"});
}

TEST_F(IndicatorsTest, ABuilderThatWasNeverSetHasNoVariable) {
  auto const empty = Own(CreateGenConstrBuilder());
  EXPECT_EQ(Own(model_->AddGenConstrIndicator(empty.get(), "g"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid indicator variable");
  EXPECT_EQ(Own(model_->AddGenConstrIndicators(ListOf({empty.get()}).get(), "g"))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid indicator variable");
  EXPECT_CALLS(double_, {});
}

TEST_F(IndicatorsTest, ManyAreOneCall) {
  auto const a = Implication(Sum({{x_, 1.0}, {x_, 1.0}}, -1.0), 'L');
  auto const b = Implication(Sum({}), 'E');
  auto const c = Implication(Sum({{z_, 3.0}, {y_, 4.0}}, 2.0), 'G');
  auto const constrs = Own(model_->AddGenConstrIndicators(ListOf({a.get(), b.get(), c.get()}).get(), "a\0b\0c", 6));
  EXPECT_EQ(constrs->Size(), 3);
  EXPECT_EQ(Own(constrs->Get(2))->GetIdx(), 2);
  EXPECT_CALLS(double_, {"VORQ_AddIndicators(prob#1, 3, [0,0,0], [3,3,3], [1,1,1], [0,1,1], [1,0,2], [0,2,1], [2,3,4], "
                         R"(['L','E','G'], [1,0,-2], ["a","b","c"]))"});
}

TEST_F(IndicatorsTest, ManyAreNumberedFromTheNextIndex) {
  auto const a = Implication(Sum({{x_, 1.0}}), 'L');
  Own(model_->AddGenConstrIndicator(a.get(), "first"));
  auto const constrs = Own(model_->AddGenConstrIndicators(ListOf({a.get(), a.get()}).get(), " g h"));
  EXPECT_STREQ(Own(constrs->Get(0))->GetName(), "g_h_1");
  EXPECT_STREQ(Own(constrs->Get(1))->GetName(), "g_h_2");
}

TEST_F(IndicatorsTest, FailuresOfManyAddNothing) {
  auto const a = Implication(Sum({{x_, 1.0}}), 'L');
  auto const bad = Implication(Sum({{x_, 1.0}}), 'N');
  EXPECT_EQ(Own(model_->AddGenConstrIndicators(ListOf({a.get(), a.get()}).get(), "a", 2))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of input names");
  EXPECT_EQ(Own(model_->AddGenConstrIndicators(ListOf({a.get(), bad.get()}).get(), "g"))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid general constraint sense");
  EXPECT_CALLS(double_, {});
  double_.FailNext("VORQ_AddIndicators", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddGenConstrIndicators(ListOf({a.get()}).get(), "g"))->Size(), 0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add indicator constraints");
  EXPECT_EQ(Own(model_->GetGenConstr(0))->GetIdx(), -2);
}

TEST_F(IndicatorsTest, NoBuildersAddNothing) {
  Fail();
  auto const none = Own(CreateGenConstrBuilderArray());
  EXPECT_EQ(Own(model_->AddGenConstrIndicators(none.get(), "g"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddGenConstrIndicators(none.get(), "g", 2))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

// Two constraints, of which the model knows.
class IndicatorReadingTest : public IndicatorsTest {
 protected:
  IndicatorReadingTest() {
    for (auto& constr : constrs_) {
      constr = Own(model_->AddGenConstrIndicator(Implication(Sum({{x_, 1.0}}), 'L').get(), "g"));
    }
    double_.Answer("VORQ_GetIndicators")
        .Set("types", {0, 1})
        .Set("binCols", {3, 3})
        .Set("binVals", {1, 0})
        .Set("rowBeg", {0, 1})
        .Set("rowCnt", {1, 2})
        .Set("cols", {0, 1, 2})
        .Set("coefs", {1.5, 2.5, 3.5})
        .Set("senses", {'L', 'G'})
        .Set("rhss", {4.0, -5.0});
    double_.ClearLog();
  }

  std::unique_ptr<Vorq::IGenConstr> constrs_[2];
};

TEST_F(IndicatorReadingTest, AllComeFromOnePairOfCalls) {
  auto const builders = Own(model_->GetGenConstrBuilders());
  EXPECT_SUCCESS(model_);
  std::string const nulls = "null, null, null, null, null, null, null, null, null";
  EXPECT_CALLS(double_, {"VORQ_GetIndicators(prob#1, 2, null, " + nulls + ", 0, out)",
                         "VORQ_GetIndicators(prob#1, 2, null, out, out, out, out, out, out, out, out, out, 3, null)"});
  ASSERT_EQ(builders->Size(), 2);
  auto const second = Own(builders->Get(1));
  EXPECT_EQ(Own(second->GetBinVar())->GetIdx(), 3);
  EXPECT_EQ(second->GetBinVal(), 0);
  EXPECT_EQ(second->GetSense(), 'G');
  EXPECT_EQ(second->GetType(), 1);
  Expr const expr = Own(second->GetExpr());
  EXPECT_EQ(expr->GetConstant(), 5.0);
  ASSERT_EQ(expr->GetSize(), 2u);
  EXPECT_EQ(expr->GetCoeff(1), 3.5);
}

TEST_F(IndicatorReadingTest, MarkedConstraintsAreLeftOut) {
  constrs_[0]->Remove();
  auto const builders = Own(model_->GetGenConstrBuilders());
  ASSERT_EQ(builders->Size(), 1);
  EXPECT_EQ(Own(builders->Get(0))->GetSense(), 'G');
}

TEST_F(IndicatorReadingTest, OneIsReadByItsIndex) {
  auto const builder = Own(model_->GetGenConstrBuilder(constrs_[1].get()));
  EXPECT_EQ(double_.Calls()[0].substr(0, 38), "VORQ_GetIndicators(prob#1, 1, [1], nul");
  EXPECT_EQ(builder->GetSense(), 'L');
  EXPECT_EQ(Own(builder->GetExpr())->GetConstant(), -4.0);
}

TEST_F(IndicatorReadingTest, FailuresTellWhichReadFailed) {
  double_.FailNth("VORQ_GetIndicators", 1, VORQ_MEMORY);
  Own(model_->GetGenConstrBuilders());
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get required size of general constraints");
  double_.FailNth("VORQ_GetIndicators", 2, VORQ_MEMORY);
  Own(model_->GetGenConstrBuilders());
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get data of indicators");
  double_.FailNth("VORQ_GetIndicators", 1, VORQ_MEMORY);
  Own(model_->GetGenConstrBuilder(constrs_[0].get()));
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get required indicator size");
  double_.FailNth("VORQ_GetIndicators", 2, VORQ_MEMORY);
  Own(model_->GetGenConstrBuilder(constrs_[0].get()));
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get indicator data");
}

TEST_F(IndicatorReadingTest, LostColumnEndsTheList) {
  double_.Answer("VORQ_GetIndicators")
      .Set("types", {0, 0})
      .Set("binCols", {-1, 3})
      .Set("binVals", {1, 1})
      .Set("rowBeg", {0, 0})
      .Set("rowCnt", {0, 0})
      .Set("senses", {'L', 'L'})
      .Set("rhss", {4.0, 4.0});
  EXPECT_EQ(Own(model_->GetGenConstrBuilders())->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
}

}  // namespace
