// Adding variables one by one and in batches, their names, and reading columns back.
#include "tests/model/model_fixture.hpp"

namespace {

using vorqtest::Own;

class VariablesTest : public vorqtest::ModelTest {
 protected:
  using Column = std::unique_ptr<Vorq::IColumn>;

  static Column ColumnOf(std::initializer_list<std::pair<Vorq::IConstraint*, double>> terms) {
    Column column = Own(CreateColumn());
    for (auto const& [constr, coefficient] : terms) column->AddTerm(constr, coefficient);
    return column;
  }
};

TEST_F(VariablesTest, AddVarIsOneCall) {
  Var const var = Own(model_->AddVar(-1.0, 4.5, 2.5, 'I', "x"));
  EXPECT_CALLS(double_, {R"(VORQ_AddCol(prob#1, 2.5, 0, null, null, 'I', -1, 4.5, "x"))"});
  EXPECT_EQ(var->GetIdx(), 0);
  EXPECT_STREQ(var->GetName(), "x");
  EXPECT_EQ(AddVar("y")->GetIdx(), 1);
}

TEST_F(VariablesTest, AddVarNormalisesTheName) {
  Var const var = AddVar("  my var ");
  EXPECT_CALLS(double_, {R"(VORQ_AddCol(prob#1, 0, 0, null, null, 'C', 0, 1, "my_var"))"});
  EXPECT_STREQ(var->GetName(), "my_var");
}

TEST_F(VariablesTest, AddVarTakesANullNameAsEmpty) {
  AddVar(nullptr);
  EXPECT_CALLS(double_, {R"(VORQ_AddCol(prob#1, 0, 0, null, null, 'C', 0, 1, ""))"});
}

TEST_F(VariablesTest, RefusedVarIsInvalidAndTakesNoIndex) {
  double_.FailNext("VORQ_AddCol", VORQ_MEMORY);
  Var const var = AddVar("x");
  EXPECT_EQ(var->GetIdx(), -2);
  EXPECT_SUCCESS(var);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add a variable");
  EXPECT_EQ(AddVar("y")->GetIdx(), 0);
}

TEST_F(VariablesTest, ColumnIsCompactedInPlace) {
  auto const constrs = AddConstrs(3);
  Column const column = ColumnOf({{constrs[2].get(), 1.0}, {constrs[0].get(), 4.0}, {constrs[2].get(), 2.0}});
  Var const var = Own(model_->AddVar(0.0, 1.0, 7.0, 'C', column.get(), "x"));
  EXPECT_CALLS(double_, {R"(VORQ_AddCol(prob#1, 7, 2, [2,0], [3,4], 'C', 0, 1, "x"))"});
  EXPECT_EQ(var->GetIdx(), 0);
  EXPECT_EQ(column->GetSize(), 2);
  EXPECT_EQ(column->GetCoeff(0), 3.0);
}

TEST_F(VariablesTest, RefusedColumnHasItsText) {
  double_.FailNext("VORQ_AddCol", VORQ_INVALID);
  Column const column = ColumnOf({});
  EXPECT_EQ(Own(model_->AddVar(0.0, 1.0, 0.0, 'C', column.get(), "x"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to add a variable using Column data");
}

// ---- Batches

TEST_F(VariablesTest, BatchIsNumberedFromTheNextIndex) {
  AddVars(5);
  auto const vars = Own(model_->AddVars(3, 'C', "x"));
  EXPECT_CALLS(double_, {R"(VORQ_AddCols(prob#1, 3, null, null, null, null, null, null, null, null, )"
                         R"(["x_5","x_6","x_7"]))"});
  ASSERT_EQ(vars->Size(), 3);
  EXPECT_EQ(Own(vars->Get(2))->GetIdx(), 7);
  EXPECT_STREQ(Own(vars->Get(2))->GetName(), "x_7");
}

TEST_F(VariablesTest, NullPrefixGivesBareNumbers) {
  auto const vars = Own(model_->AddVars(2, 'C', nullptr));
  EXPECT_STREQ(Own(vars->Get(0))->GetName(), "_0");
  EXPECT_STREQ(Own(vars->Get(1))->GetName(), "_1");
}

TEST_F(VariablesTest, PrefixIsNormalised) {
  auto const vars = Own(model_->AddVars(1, 'C', " a b "));
  EXPECT_STREQ(Own(vars->Get(0))->GetName(), "a_b_0");
}

TEST_F(VariablesTest, NumbersOfABatchCountMarkedVariables) {
  auto const vars = AddVars(2);
  vars[0]->Remove();
  EXPECT_STREQ(Own(Own(model_->AddVars(1, 'C', "x"))->Get(0))->GetName(), "x_2");
}

TEST_F(VariablesTest, OtherTypesThanContinuousAreHandedOver) {
  Own(model_->AddVars(2, 'B', "b"));
  EXPECT_CALLS(double_,
               {R"(VORQ_AddCols(prob#1, 2, null, null, null, null, null, ['B','B'], null, null, ["b_0","b_1"]))"});
}

TEST_F(VariablesTest, ScalarsAreRepeated) {
  Own(model_->AddVars(2, -1.0, 1.0, 0.5, 'C', "x"));
  EXPECT_CALLS(double_, {R"(VORQ_AddCols(prob#1, 2, [0.5,0.5], null, null, null, null, null, [-1,-1], [1,1], )"
                         R"(["x_0","x_1"]))"});
}

TEST_F(VariablesTest, ScalarsGoWithANamesBuffer) {
  Own(model_->AddVars(1, -1.0, 1.0, 0.5, 'I', "x", 2));
  EXPECT_CALLS(double_, {R"(VORQ_AddCols(prob#1, 1, [0.5], null, null, null, null, ['I'], [-1], [1], ["x"]))"});
}

TEST_F(VariablesTest, ArraysAreHandedOver) {
  double const lbs[] = {1.0, 2.0};
  double const ubs[] = {3.0, 4.0};
  double const objs[] = {5.0, 6.0};
  Own(model_->AddVars(2, lbs, ubs, objs, "CI", "x"));
  EXPECT_CALLS(double_,
               {R"(VORQ_AddCols(prob#1, 2, [5,6], null, null, null, null, ['C','I'], [1,2], [3,4], ["x_0","x_1"]))"});
}

TEST_F(VariablesTest, NamesOfABufferAreNotNormalised) {
  auto const vars = Own(model_->AddVars(2, 'C', " a b\0c\0surplus", 7));
  EXPECT_CALLS(double_, {R"(VORQ_AddCols(prob#1, 2, null, null, null, null, null, null, null, null, [" a b","c"]))"});
  EXPECT_STREQ(Own(vars->Get(0))->GetName(), " a b");
}

TEST_F(VariablesTest, ShortNamesBufferIsRefused) {
  auto const vars = Own(model_->AddVars(2, 'C', "a\0", 2));
  EXPECT_EQ(vars->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of input names");
  EXPECT_CALLS(double_, {});
}

TEST_F(VariablesTest, NullNamesBufferIsRefused) {
  EXPECT_EQ(Own(model_->AddVars(2, 'C', nullptr, 0))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of input names");
}

TEST_F(VariablesTest, EmptyBatchesLeaveTheStatusAlone) {
  Fail();
  auto const columns = Own(CreateColumnArray());
  EXPECT_EQ(Own(model_->AddVars(0, 'C', "x"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddVars(-1, 'B', "x", 2))->Size(), 0);
  EXPECT_EQ(Own(model_->AddVars(0, 0.0, 1.0, 0.0, 'I', "x"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddVars(-5, 0.0, 1.0, 0.0, 'I', "x", 2))->Size(), 0);
  EXPECT_EQ(Own(model_->AddVars(0, nullptr, nullptr, nullptr, nullptr, "x"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddVars(0, nullptr, nullptr, nullptr, nullptr, columns.get(), "x"))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(VariablesTest, RefusedBatchAddsNothing) {
  double_.FailNext("VORQ_AddCols", VORQ_INTERNAL);
  EXPECT_EQ(Own(model_->AddVars(3, 'C', "x"))->Size(), 0);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to add vars");
  EXPECT_EQ(AddVar("y")->GetIdx(), 0);
}

TEST_F(VariablesTest, ColumnsOfABatchLieBehindEachOther) {
  auto const constrs = AddConstrs(2);
  auto const columns = Own(CreateColumnArray());
  columns->PushBack(*ColumnOf({{constrs[0].get(), 1.0}, {constrs[0].get(), 1.0}}));
  columns->PushBack(*ColumnOf({}));
  columns->PushBack(*ColumnOf({{constrs[1].get(), 3.0}, {constrs[0].get(), 4.0}}));
  columns->PushBack(*ColumnOf({{constrs[1].get(), 9.0}}));
  auto const vars = Own(model_->AddVars(3, nullptr, nullptr, nullptr, nullptr, columns.get(), "x"));
  EXPECT_EQ(vars->Size(), 3);
  EXPECT_CALLS(double_, {R"(VORQ_AddCols(prob#1, 3, null, [0,1,1], [1,0,2], [0,1,0], [2,3,4], null, null, null, )"
                         R"(["x_0","x_1","x_2"]))"});
}

TEST_F(VariablesTest, TooFewColumnsAreRefused) {
  auto const columns = Own(CreateColumnArray());
  columns->PushBack(*ColumnOf({}));
  EXPECT_EQ(Own(model_->AddVars(2, nullptr, nullptr, nullptr, nullptr, columns.get(), "x"))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Not enough columns");
}

// ---- Reading back

TEST_F(VariablesTest, GetColReadsTwice) {
  auto const vars = AddVars(2);
  auto const constrs = AddConstrs(3);
  double_.Answer("VORQ_GetCols").Set("colBeg", {0}).Set("colCnt", {2}).Set("rows", {2, 0}).Set("coefs", {1.5, 2.0});
  Column const column = Own(model_->GetCol(vars[1].get()));
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_GetCols(prob#1, 1, [1], null, null, null, null, 0, out)",
                         "VORQ_GetCols(prob#1, 1, [1], out, out, out, out, 2, null)"});
  ASSERT_EQ(column->GetSize(), 2);
  EXPECT_EQ(Own(column->GetConstr(0))->GetIdx(), 2);
  EXPECT_EQ(column->GetCoeff(1), 2.0);
}

TEST_F(VariablesTest, GetColOfARemovedVariableIsEmptyAndSaysNothing) {
  auto const vars = AddVars(1);
  vars[0]->Remove();
  EXPECT_EQ(Own(model_->GetCol(vars[0].get()))->GetSize(), 0);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {});
}

TEST_F(VariablesTest, GetColTellsWhichReadFailed) {
  auto const vars = AddVars(1);
  double_.FailNth("VORQ_GetCols", 1, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetCol(vars[0].get()))->GetSize(), 0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get required col size");
  double_.FailNth("VORQ_GetCols", 2, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetCol(vars[0].get()))->GetSize(), 0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get col data");
}

}  // namespace
