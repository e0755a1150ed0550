// What of a model cannot be seen through the interfaces: names of copies, listeners, dimensions, scratch space.
#include "model/model.hpp"
#include "tests/double/solver_double.hpp"
#include "tests/support/objects.hpp"

namespace {

using vorqtest::SilentSink;

class CoreUnitTest : public vorqtest::SolverDoubleTest {
 protected:
  CoreUnitTest() { double_.ClearLog(); }

  VORQ_Prob* Prob() { return model_.Core().prob->prob; }

  // Sets a callback that does nothing, and who is told of the columns.
  void Listen(Vorq::Model::ColumnCountListener listener) {
    auto const ignore = [](VORQ_Prob*, VORQ_CallbackData*, int, void*) { return 0; };
    EXPECT_TRUE(model_.SetCallback(ignore, 1, nullptr, std::move(listener)));
  }

  SilentSink sink_;
  Vorq::Envr envr_{&sink_};
  Vorq::Model model_{envr_, "m"};
};

TEST_F(CoreUnitTest, CopiesAreNamedAfterTheirSource) {
  Vorq::Model copy(model_.Clone());
  EXPECT_EQ(copy.Core().name, "m_copy");
  Vorq::Model further(copy.Clone());
  EXPECT_EQ(further.Core().name, "m_copy_copy");
}

TEST_F(CoreUnitTest, ListenerHearsOfRemovedColumns) {
  std::vector<int> heard;
  Vorq::VarArray vars = model_.AddVars(3, 'C', "x");
  Listen([&heard](int count) {
    heard.push_back(count);
    return true;
  });
  vars[1].MarkRemoved();
  EXPECT_TRUE(model_.ApplyRemovals());
  EXPECT_EQ(heard, std::vector<int>{2});
}

TEST_F(CoreUnitTest, ListenerDoesNotHearOfOtherKinds) {
  bool heard = false;
  double const bounds[] = {0.0};
  Vorq::ConstrArray constrs = model_.AddConstrs(1, bounds, bounds, "c");
  Listen([&heard](int) { return heard = true; });
  constrs[0].MarkRemoved();
  EXPECT_TRUE(model_.ApplyRemovals());
  EXPECT_FALSE(heard);
}

TEST_F(CoreUnitTest, ListenerHearsOfAReload) {
  std::vector<int> heard;
  Listen([&heard](int count) {
    heard.push_back(count);
    return true;
  });
  double_.SetItems(Prob(), "Cols", 5);
  model_.ReloadItems();
  EXPECT_EQ(heard, std::vector<int>{5});
}

TEST_F(CoreUnitTest, ClearForgetsTheListener) {
  bool heard = false;
  Listen([&heard](int) { return heard = true; });
  model_.Clear();
  model_.ReloadItems();
  EXPECT_FALSE(heard);
}

TEST_F(CoreUnitTest, ListenerHearsOfASolveAndMayRefuseIt) {
  bool takes = true;
  std::vector<int> heard;
  Listen([&](int count) {
    heard.push_back(count);
    return takes;
  });
  model_.AddVars(3, 'C', "x");
  double_.ClearLog();
  model_.Solve();
  takes = false;
  model_.Solve();
  EXPECT_STREQ(model_.status.Text(), "(INVALID) The callback is running for another model");
  EXPECT_EQ(heard, (std::vector<int>{3, 3}));
  EXPECT_CALLS(double_, {"VORQ_Solve(prob#1)"});
}

TEST_F(CoreUnitTest, ReloadReadsCountersInOrderAndThenDimensions) {
  double_.SetItems(Prob(), "PSDCols", 2);
  double_.SetItems(Prob(), "LMIConstrs", 1);
  double_.SetItems(Prob(), "SymMats", 1);
  double_.Answer("VORQ_GetPSDCols").Set("dims", {3, 4});
  double_.Answer("VORQ_GetLMIConstr").Set("dim", 5);
  double_.Answer("VORQ_GetSymMat").Set("dim", 6);
  model_.ReloadItems();
  EXPECT_CALLS(double_,
               {R"(VORQ_GetIntAttr(prob#1, "Cols", out))", R"(VORQ_GetIntAttr(prob#1, "Rows", out))",
                R"(VORQ_GetIntAttr(prob#1, "Soss", out))", R"(VORQ_GetIntAttr(prob#1, "Indicators", out))",
                R"(VORQ_GetIntAttr(prob#1, "Cones", out))", R"(VORQ_GetIntAttr(prob#1, "ExpCones", out))",
                R"(VORQ_GetIntAttr(prob#1, "AffineCones", out))", R"(VORQ_GetIntAttr(prob#1, "QConstrs", out))",
                R"(VORQ_GetIntAttr(prob#1, "PSDCols", out))", R"(VORQ_GetIntAttr(prob#1, "PSDConstrs", out))",
                R"(VORQ_GetIntAttr(prob#1, "LMIConstrs", out))", R"(VORQ_GetIntAttr(prob#1, "SymMats", out))",
                "VORQ_GetPSDCols(prob#1, 2, null, out, null)",
                "VORQ_GetLMIConstr(prob#1, 0, out, null, null, null, null, 0, null)",
                "VORQ_GetSymMat(prob#1, 0, out, null, null, null, null)"});
  EXPECT_EQ(model_.Get<Vorq::PsdVar>(1).dim, 4);
  EXPECT_EQ(model_.Get<Vorq::PsdVar>(1).len, 16);
  EXPECT_EQ(model_.Get<Vorq::LmiConstraint>(0).dim, 5);
  EXPECT_EQ(model_.Get<Vorq::SymMatrix>(0).dim, 6);
}

TEST_F(CoreUnitTest, ReloadThatBreaksOffLeavesTheTablesAsFarAsTheyCame) {
  struct Step {
    char const* counter;
    char const* function;
    char const* text;
  };
  for (Step const& step :
       {Step{"PSDCols", "VORQ_GetPSDCols", "(MEMORY) Fail to load dimension of PSD variables"},
        Step{"LMIConstrs", "VORQ_GetLMIConstr", "(MEMORY) Fail to load dimensions of LMI constraints"},
        Step{"SymMats", "VORQ_GetSymMat", "(MEMORY) Fail to load dimensions of symmetric matrices"}}) {
    double_.SetItems(Prob(), "Cols", 2);
    double_.SetItems(Prob(), step.counter, 1);
    double_.FailNext(step.function, VORQ_MEMORY);
    model_.ReloadItems();
    EXPECT_EQ(model_.status.Code(), 1);
    EXPECT_STREQ(model_.status.Text(), step.text);
    EXPECT_EQ(model_.Get<Vorq::Var>(1).Idx(), 1);
    double_.SetItems(Prob(), step.counter, 0);
  }
}

TEST_F(CoreUnitTest, ReloadStopsAtACounterThatCannotBeRead) {
  double_.SetItems(Prob(), "Cols", 2);
  double_.FailNext("VORQ_GetIntAttr", VORQ_INTERNAL);
  model_.ReloadItems();
  EXPECT_STREQ(model_.status.Text(), "(INTERNAL) Failed to get int attribute");
  EXPECT_EQ(model_.Count<Vorq::Var>(), 0);
}

TEST_F(CoreUnitTest, ReloadForgetsMarksAndMipStart) {
  Vorq::VarArray vars = model_.AddVars(2, 'C', "x");
  model_.SetMipStart(vars[1], 1.0);
  vars[0].MarkRemoved();
  model_.ReloadItems();
  EXPECT_FALSE(model_.Core().prob->dirty);
  EXPECT_TRUE(model_.Core().mipStart.empty());
  EXPECT_EQ(model_.Count<Vorq::Var>(), 2);
}

TEST_F(CoreUnitTest, CloneReadsDimensionsFromTheCopyOrTheSource) {
  double_.SetItems(Prob(), "PSDCols", 1);
  double_.SetItems(Prob(), "LMIConstrs", 1);
  double_.SetItems(Prob(), "SymMats", 1);
  double_.Answer("VORQ_GetPSDCols").Set("dims", {3});
  double_.Answer("VORQ_GetLMIConstr").Set("dim", 5);
  double_.Answer("VORQ_GetSymMat").Set("dim", 6);
  model_.ReloadItems();
  double_.ClearLog();
  Vorq::Model copy(model_.Clone());
  EXPECT_CALLS(double_, {"VORQ_CreateCopy(prob#1, out)", "VORQ_GetPSDCols(prob#2, 1, null, out, null)",
                         "VORQ_GetLMIConstr(prob#2, 0, out, null, null, null, null, 0, null)"});
  EXPECT_EQ(copy.Get<Vorq::PsdVar>(0).dim, 3);
  EXPECT_EQ(copy.Get<Vorq::LmiConstraint>(0).dim, 5);
  EXPECT_EQ(copy.Get<Vorq::SymMatrix>(0).dim, 6);
}

TEST_F(CoreUnitTest, CloneRecordsMissingDimensionsOnTheSource) {
  double_.SetItems(Prob(), "PSDCols", 1);
  model_.ReloadItems();
  double_.FailNext("VORQ_GetPSDCols", VORQ_MEMORY);
  Vorq::Model copy(model_.Clone());
  EXPECT_STREQ(model_.status.Text(), "(MEMORY) Fail to load dimensions of PSD variables");
  EXPECT_EQ(copy.Count<Vorq::PsdVar>(), 0);
  EXPECT_FALSE(copy.status.Failed());
}

TEST_F(CoreUnitTest, ItemsOfALargerModelAreJustIndices) {
  Vorq::Model other(envr_, "larger");
  Vorq::VarArray const vars = other.AddVars(100, 'C', "x");
  model_.AddVar(0.0, 1.0, 0.0, 'C', "y");
  Vorq::Expr expr(vars[99], 2.0);
  expr.AddTerm(vars[99], 1.0);
  double_.ClearLog();
  model_.AddConstr(expr, 'L', 1.0, "c");
  EXPECT_CALLS(double_, {R"(VORQ_AddRow(prob#1, 1, [99], [3], 'L', 1, 1e+30, "c"))"});
}

TEST_F(CoreUnitTest, SingleVariableIsAnObjective) {
  Vorq::Var const x = model_.AddVar(0.0, 1.0, 0.0, 'C', "x");
  double_.ClearLog();
  model_.SetObjective(x, -1);
  EXPECT_CALLS(double_, {"VORQ_ReplaceColObj(prob#1, 1, [0], [1])", "VORQ_SetObjConst(prob#1, 0)",
                         "VORQ_SetObjSense(prob#1, -1)"});
}

}  // namespace
