// The kinds of items beside the variable: their functions and their texts.
#include "tests/items/items_fixture.hpp"

namespace vorqtest {
namespace {

using Vorq::AffineCone;
using Vorq::Cone;
using Vorq::Constraint;
using Vorq::ExpCone;
using Vorq::GenConstr;
using Vorq::LmiConstraint;
using Vorq::PsdConstraint;
using Vorq::PsdVar;
using Vorq::QConstraint;
using Vorq::Sos;
using Vorq::SymMatrix;
using Vorq::Var;

class ItemKindsTest : public ItemsTest {
 protected:
  // The three ways of a name, with the texts and functions that a kind has for them.
  template <class Item>
  void CheckNames(std::string const& functionStem, std::string const& failure, std::string const& invalid) {
    Item item = Make<Item>("", 5);
    item.SetName(" a b");
    EXPECT_STREQ(item.GetName(), "a_b");
    EXPECT_CALLS(double_, {"VORQ_Set" + functionStem + "Names(prob#1, 1, [5], [\" a b\"])"});
    double_.FailNext("VORQ_Set" + functionStem + "Names", VORQ_INTERNAL);
    item.SetName("c");
    EXPECT_EQ(Report(item.status), "5 (INTERNAL) " + failure);

    double_.ClearLog();
    double_.Answer("VORQ_Get" + functionStem + "Name").Set("buffer", "fetched");
    EXPECT_STREQ(Make<Item>("", 6).GetName(), "fetched");
    EXPECT_CALLS(double_, {"VORQ_Get" + functionStem + "Name(prob#1, 6, out, 128, out)"});

    item.MarkRemoved();
    item.SetName("d");
    EXPECT_EQ(Report(item.status), "3 (INVALID) " + invalid);
    EXPECT_STREQ(item.GetName(), "c");
  }
};

TEST_F(ItemKindsTest, NamesOfVariables) {
  CheckNames<Var>("Col", "Fail to set variable name", "Invalid variable");
}
TEST_F(ItemKindsTest, NamesOfConstraints) {
  CheckNames<Constraint>("Row", "Fail to set constraint name", "Invalid constraint");
}
TEST_F(ItemKindsTest, NamesOfQuadraticConstraintsSpeakOfConstraints) {
  CheckNames<QConstraint>("QConstr", "Fail to set name of quadratic constraint", "Invalid constraint");
}
TEST_F(ItemKindsTest, NamesOfPsdVariables) {
  CheckNames<PsdVar>("PSDCol", "Fail to set PSD variable name", "Invalid PSD variable");
}
TEST_F(ItemKindsTest, NamesOfPsdConstraintsSpeakOfConstraints) {
  CheckNames<PsdConstraint>("PSDConstr", "Fail to set name of PSD constraint", "Invalid constraint");
}
TEST_F(ItemKindsTest, NamesOfLmiConstraints) {
  CheckNames<LmiConstraint>("LMIConstr", "Fail to set name of LMI constraint", "Invalid LMI constraint");
}
TEST_F(ItemKindsTest, NamesOfGeneralConstraints) {
  CheckNames<GenConstr>("Indicator", "Fail to set name of general constraint", "Invalid general constraint");
}
TEST_F(ItemKindsTest, NamesOfAffineCones) {
  CheckNames<AffineCone>("AffineCone", "Fail to set name of affine cone", "Invalid affine cone");
}

TEST_F(ItemKindsTest, ConesHaveAnIndexAndCanBeRemoved) {
  Cone cone = Make<Cone>("", 1);
  ExpCone expCone = Make<ExpCone>("", 0);
  cone.MarkRemoved();
  expCone.MarkRemoved();
  EXPECT_EQ(cone.Idx(), -4);
  EXPECT_EQ(expCone.Idx(), -3);
}

TEST_F(ItemKindsTest, ConstraintReads) {
  double_.Values("VORQ_GetRowBasis", {2});
  double_.Values("VORQ_GetRowLowerIIS", {1});
  double_.Values("VORQ_GetRowUpperIIS", {1});
  double_.Values("VORQ_GetRowInfo", "Slack", {0.5});
  Constraint row = Make<Constraint>("r", 0);
  EXPECT_EQ(row.GetBasis(), 2);
  EXPECT_EQ(row.GetLowerIIS(), 1);
  EXPECT_EQ(row.GetUpperIIS(), 1);
  EXPECT_EQ(row.Get("Slack"), 0.5);
  EXPECT_CALLS(double_,
               {"VORQ_GetRowBasis(prob#1, 1, [0], out)", "VORQ_GetRowLowerIIS(prob#1, 1, [0], out)",
                "VORQ_GetRowUpperIIS(prob#1, 1, [0], out)", R"(VORQ_GetRowInfo(prob#1, "Slack", 1, [0], out))"});
}

TEST_F(ItemKindsTest, ConstraintTexts) {
  Constraint row = Make<Constraint>("r", 0);
  double_.FailNext("VORQ_GetRowBasis", 9);
  EXPECT_EQ(row.GetBasis(), -2147483647 - 1);
  EXPECT_EQ(Report(row.status), "9 (UNKNOWN) Fail to get a constraint basis");
  double_.FailNext("VORQ_GetRowLowerIIS", 5);
  row.GetLowerIIS();
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to get IIS status for constraint");
  double_.FailNext("VORQ_GetRowUpperIIS", 5);
  row.GetUpperIIS();
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to get IIS status for constraint");
  double_.FailNext("VORQ_GetRowInfo", 5);
  EXPECT_EQ(row.Get("Slack"), -2147483648.0);
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to get a constraint information");
  double_.FailNext("VORQ_SetRowLower", 5);
  row.Set("lb", 0.0);
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to set constraint LB");
  double_.FailNext("VORQ_SetRowUpper", 5);
  row.Set("ub", 0.0);
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to set constraint UB");
  row.Set("Obj", 0.0);
  EXPECT_EQ(Report(row.status), "3 (INVALID) Unknown constraint information");
  row.Set("", 0.0);
  EXPECT_EQ(Report(row.status), "3 (INVALID) Invalid args");
  row.MarkRemoved();
  row.GetBasis();
  EXPECT_EQ(Report(row.status), "3 (INVALID) Invalid constraint");
}

TEST_F(ItemKindsTest, ConstraintSetCalls) {
  Constraint row = Make<Constraint>("r", 3);
  row.Set("lb", -1e30);
  row.Set("UB", 4.0);
  EXPECT_CALLS(double_, {"VORQ_SetRowLower(prob#1, 1, [3], [-1e+30])", "VORQ_SetRowUpper(prob#1, 1, [3], [4])"});
}

TEST_F(ItemKindsTest, QuadraticConstraintReadsAndWrites) {
  double_.Answer("VORQ_GetQConstrRhs").Set("rhss", 2.5);
  double_.Answer("VORQ_GetQConstrSense").Set("senses", "G");
  double_.Answer("VORQ_GetQConstrInfo").Set("values", 0.25);
  QConstraint row = Make<QConstraint>("q", 2);
  EXPECT_EQ(row.GetRhs(), 2.5);
  EXPECT_EQ(row.GetSense(), 'G');
  EXPECT_EQ(row.Get("Slack"), 0.25);
  row.SetRhs(7.0);
  row.SetSense('L');
  EXPECT_CALLS(double_, {"VORQ_GetQConstrRhs(prob#1, 1, [2], out)", "VORQ_GetQConstrSense(prob#1, 1, [2], out)",
                         R"(VORQ_GetQConstrInfo(prob#1, "Slack", 1, [2], out))",
                         "VORQ_SetQConstrRhs(prob#1, 1, [2], [7])", "VORQ_SetQConstrSense(prob#1, 1, [2], ['L'])"});
}

TEST_F(ItemKindsTest, QuadraticConstraintTexts) {
  QConstraint row = Make<QConstraint>("q", 2);
  double_.FailNext("VORQ_GetQConstrRhs", 5);
  EXPECT_EQ(row.GetRhs(), 0.0);
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to get rhs of quadratic constraint");
  double_.FailNext("VORQ_GetQConstrSense", 5);
  EXPECT_EQ(row.GetSense(), '\0');
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to get sense of quadratic constraint");
  double_.FailNext("VORQ_SetQConstrRhs", 5);
  row.SetRhs(1.0);
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to set rhs of quadratic constraint");
  double_.FailNext("VORQ_SetQConstrSense", 5);
  row.SetSense('E');
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to set sense of quadratic constraint");
  double_.FailNext("VORQ_GetQConstrInfo", 5);
  EXPECT_EQ(row.Get("Slack"), -2147483648.0);
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to get information of a quadratic constraint");
  row.MarkRemoved();
  for (auto const& operation : std::vector<std::function<void()>>{
           [&] { row.GetRhs(); }, [&] { row.GetSense(); }, [&] { row.SetRhs(1.0); }, [&] { row.SetSense('E'); },
           [&] { row.Get("Slack"); }, [&] { row.Set("LB", 1.0); }}) {
    SetStatus(row.status, 0, "%s", "");
    operation();
    EXPECT_EQ(Report(row.status), "3 (INVALID) Invalid quadratic constraint");
  }
}

TEST_F(ItemKindsTest, QuadraticConstraintHasNothingToSet) {
  QConstraint row = Make<QConstraint>("q", 2);
  row.Set("LB", 1.0);
  EXPECT_EQ(Report(row.status), "3 (INVALID) Unknown quadratic constraint information");
  row.Set(nullptr, 1.0);
  EXPECT_EQ(Report(row.status), "3 (INVALID) Must specify information name of quadratic constraint");
  EXPECT_CALLS(double_, {});
}

TEST_F(ItemKindsTest, PsdConstraintTexts) {
  PsdConstraint row = Make<PsdConstraint>("p", 2);
  double_.FailNext("VORQ_GetPSDConstrInfo", 5);
  EXPECT_EQ(row.Get("Slack"), -2147483648.0);
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to get a PSD constraint information");
  double_.FailNext("VORQ_SetPSDConstrLower", 5);
  row.Set("lb", 1.0);
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to set LB of PSD constraint");
  double_.FailNext("VORQ_SetPSDConstrUpper", 5);
  row.Set("ub", 1.0);
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to set UB of PSD constraint");
  row.Set("Obj", 1.0);
  EXPECT_EQ(Report(row.status), "3 (INVALID) Unknown PSD constraint information");
  row.MarkRemoved();
  row.Set("", 1.0);
  EXPECT_EQ(Report(row.status), "3 (INVALID) Must specify information name of PSD constraint");
  row.Set("LB", 1.0);
  EXPECT_EQ(Report(row.status), "3 (INVALID) Invalid PSD constraint");
}

TEST_F(ItemKindsTest, PsdConstraintCalls) {
  PsdConstraint row = Make<PsdConstraint>("p", 2);
  row.Set("Lb", 1.0);
  row.Set("Ub", 2.0);
  row.Get("Dual");
  EXPECT_CALLS(double_, {"VORQ_SetPSDConstrLower(prob#1, 1, [2], [1])", "VORQ_SetPSDConstrUpper(prob#1, 1, [2], [2])",
                         R"(VORQ_GetPSDConstrInfo(prob#1, "Dual", 1, [2], out))"});
}

TEST_F(ItemKindsTest, LengthIsTheSquareOfTheDimension) {
  EXPECT_EQ(MakePsdVar("X", 0, 3).len, 9);
  EXPECT_EQ(LmiConstraint(problem_, "L", 0, 4).len, 16);
}

TEST_F(ItemKindsTest, GetInfoReadsAMatrix) {
  double_.Answer("VORQ_GetPSDColInfo").Set("values", {1, 2, 3, 4});
  PsdVar x = MakePsdVar("X", 1, 2);
  std::vector<double> out(4);
  x.GetInfo("Value", out.data(), 4);
  EXPECT_EQ(out, (std::vector<double>{1, 2, 3, 4}));
  EXPECT_CALLS(double_, {R"(VORQ_GetPSDColInfo(prob#1, "Value", 1, [1], out))"});
}

TEST_F(ItemKindsTest, GetInfoNeedsRoomForTheWholeMatrix) {
  PsdVar x = MakePsdVar("X", 1, 2);
  LmiConstraint row(problem_, "L", 1, 2);
  std::vector<double> out(3);
  x.GetInfo("Value", out.data(), 3);
  row.GetInfo("Slack", out.data(), 3);
  EXPECT_EQ(Report(x.status), "3 (INVALID) Insufficient output buffer");
  EXPECT_EQ(Report(row.status), "3 (INVALID) Insufficient output buffer");
  EXPECT_CALLS(double_, {});
}

TEST_F(ItemKindsTest, GetInfoTexts) {
  PsdVar x = MakePsdVar("X", 1, 1);
  LmiConstraint row(problem_, "L", 1, 1);
  double out = 0.0;
  double_.FailNext("VORQ_GetPSDColInfo", 5);
  x.GetInfo("Value", &out, 1);
  EXPECT_EQ(Report(x.status), "5 (INTERNAL) Fail to get informations of PSD variables");
  double_.FailNext("VORQ_GetLMIConstrInfo", 5);
  row.GetInfo("Slack", &out, 1);
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to get information of LMI constraint");
  x.MarkRemoved();
  x.GetInfo("Value", &out, 0);
  EXPECT_EQ(Report(x.status), "3 (INVALID) Invalid PSD variable");
  row.MarkRemoved();
  row.GetInfo("Slack", &out, 0);
  EXPECT_EQ(Report(row.status), "3 (INVALID) Invalid LMI constraint");
}

TEST_F(ItemKindsTest, LmiRightSideIsSetByIndex) {
  LmiConstraint row(problem_, "L", 1, 3);
  row.SetRhs(MakeMatrix(4, 3));
  EXPECT_CALLS(double_, {"VORQ_SetLMIConstrRhs(prob#1, 1, [1], [4])"});
  double_.FailNext("VORQ_SetLMIConstrRhs", 5);
  row.SetRhs(MakeMatrix(4, 3));
  EXPECT_EQ(Report(row.status), "5 (INTERNAL) Fail to set constant term of LMI constraint");
}

TEST_F(ItemKindsTest, TheLastFailedTestOfALmiRightSideDecidesTheText) {
  LmiConstraint row(problem_, "L", 1, 3);
  row.SetRhs(MakeMatrix(4, 2));
  EXPECT_EQ(Report(row.status), "3 (INVALID) Input matrix has wrong dimension");
  row.SetRhs(MakeMatrix(-2, 2));
  EXPECT_EQ(Report(row.status), "3 (INVALID) RHS is an invalid SymMatrix with index -2");
  row.SetRhs(SymMatrix::Cached(3, 0, 0, 1.0));
  EXPECT_EQ(Report(row.status), "3 (INVALID) RHS is an invalid SymMatrix with index -1");
  LmiConstraint removed(problem_, "L", -3, 3);
  removed.SetRhs(MakeMatrix(4, 3));
  EXPECT_EQ(Report(removed.status), "3 (INVALID) Invalid LMI constraint");
  EXPECT_CALLS(double_, {});
}

TEST_F(ItemKindsTest, IISOfGeneralConstraintsAndSos) {
  double_.Values("VORQ_GetIndicatorIIS", {1});
  double_.Values("VORQ_GetSOSIIS", {1});
  GenConstr indicator = Make<GenConstr>("i", 0);
  Sos sos = Make<Sos>("", 0);
  EXPECT_EQ(indicator.GetIIS(), 1);
  EXPECT_EQ(sos.GetIIS(), 1);
  double_.FailNext("VORQ_GetIndicatorIIS", 5);
  EXPECT_EQ(indicator.GetIIS(), 0);
  EXPECT_EQ(Report(indicator.status), "5 (INTERNAL) Fail to get IIS status of general constraint");
  double_.FailNext("VORQ_GetSOSIIS", 5);
  EXPECT_EQ(sos.GetIIS(), 0);
  EXPECT_EQ(Report(sos.status), "5 (INTERNAL) Fail to get IIS status of SOS constraint");
  indicator.MarkRemoved();
  indicator.GetIIS();
  EXPECT_EQ(Report(indicator.status), "3 (INVALID) Invalid general constraint");
  sos.MarkRemoved();
  sos.GetIIS();
  EXPECT_EQ(Report(sos.status), "3 (INVALID) Invalid SOS constraint");
}

TEST_F(ItemKindsTest, ACopiedProblemIsMadeByTheSolver) {
  problem_->dirty = true;
  Vorq::ProbHandle copy(*problem_);
  EXPECT_TRUE(copy.dirty);
  EXPECT_CALLS(double_, {"VORQ_CreateCopy(prob#1, out)"});
}

TEST_F(ItemKindsTest, AFailedCopyOfAProblemIsNull) {
  double_.FailNext("VORQ_CreateCopy", VORQ_MEMORY);
  Vorq::ProbHandle copy(*problem_);
  EXPECT_EQ(copy.prob, nullptr);
}

TEST_F(ItemKindsTest, AssigningAProblemDeletesTheOldOneFirst) {
  Vorq::ProbHandle other(env_);
  double_.ClearLog();
  other = *problem_;
  EXPECT_EQ(double_.CallNames(), (std::vector<std::string>{"VORQ_DeleteProb", "VORQ_CreateCopy"}));
  double_.ClearLog();
  Vorq::ProbHandle const& same = other;
  other = same;
  EXPECT_CALLS(double_, {});
}

// Elements of arrays that were never given an item.
template <class Item>
void CheckWithoutRecord() {
  Item item;
  EXPECT_FALSE(item.HasRecord());
  EXPECT_EQ(item.Idx(), -2);
  EXPECT_FALSE(item.IsLive());
  item.MarkRemoved();
  EXPECT_EQ(item.Idx(), -2);
  Item const copy = item;
  EXPECT_EQ(copy.Idx(), -2);
}
template <class Item>
void CheckNameWithoutRecord(std::string const& invalid) {
  CheckWithoutRecord<Item>();
  Item item;
  EXPECT_STREQ(item.GetName(), "");
  item.SetName("a");
  EXPECT_STREQ(item.status.Text(), invalid.c_str());
}

TEST_F(ItemKindsTest, ItemsWithoutARecordReadAsInvalid) {
  CheckNameWithoutRecord<Var>("(INVALID) Invalid variable");
  CheckNameWithoutRecord<Constraint>("(INVALID) Invalid constraint");
  CheckNameWithoutRecord<QConstraint>("(INVALID) Invalid constraint");
  CheckNameWithoutRecord<PsdVar>("(INVALID) Invalid PSD variable");
  CheckNameWithoutRecord<PsdConstraint>("(INVALID) Invalid constraint");
  CheckNameWithoutRecord<LmiConstraint>("(INVALID) Invalid LMI constraint");
  CheckNameWithoutRecord<GenConstr>("(INVALID) Invalid general constraint");
  CheckNameWithoutRecord<AffineCone>("(INVALID) Invalid affine cone");
  CheckWithoutRecord<Sos>();
  CheckWithoutRecord<Cone>();
  CheckWithoutRecord<ExpCone>();
  CheckWithoutRecord<SymMatrix>();
  EXPECT_CALLS(double_, {});
}

TEST_F(ItemKindsTest, ReadsOfItemsWithoutARecordFail) {
  Var var;
  EXPECT_EQ(var.Get("Value"), -2147483648.0);
  EXPECT_EQ(Report(var.status), "3 (INVALID) Invalid variable");
  EXPECT_EQ(var.GetType(), 0);
  Constraint constr;
  constr.Set("LB", 1.0);
  EXPECT_EQ(Report(constr.status), "3 (INVALID) Invalid constraint");
  LmiConstraint lmi;
  lmi.SetRhs(SymMatrix());
  EXPECT_EQ(Report(lmi.status), "3 (INVALID) RHS is an invalid SymMatrix with index -2");
  EXPECT_EQ(Print(Vorq::Expr(var, 1.0)), "");
  EXPECT_CALLS(double_, {});
}

}  // namespace
}  // namespace vorqtest
