// The recording double itself: what it logs, how it answers, what it notices.
#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "tests/double/arguments.hpp"
#include "tests/double/solver_double.hpp"

namespace vorqtest {
namespace {

using testing::ElementsAre;

class DoubleTest : public SolverDoubleTest {
 protected:
  DoubleTest() {
    VORQ_CreateEnvWithPath(nullptr, &env_);
    VORQ_CreateProb(env_, &prob_);
    double_.ClearLog();
  }

  ~DoubleTest() override {
    if (prob_ != nullptr) VORQ_DeleteProb(&prob_);
    if (env_ != nullptr) VORQ_DeleteEnv(&env_);
  }

  int AddCol(char const* name, int type = 'C') { return VORQ_AddCol(prob_, 0, 0, nullptr, nullptr, type, 0, 1, name); }

  VORQ_Env* env_ = nullptr;
  VORQ_Prob* prob_ = nullptr;
};

// ---- The log

TEST_F(DoubleTest, RowIsLoggedWithAllArguments) {
  int const cols[] = {0, 1};
  double const coefs[] = {1, 2};
  EXPECT_EQ(VORQ_AddRow(prob_, 2, cols, coefs, 'L', 4, 1e30, "c1"), VORQ_OK);
  EXPECT_CALLS(double_, {R"(VORQ_AddRow(prob#1, 2, [0,1], [1,2], 'L', 4, 1e+30, "c1"))"});
}

TEST_F(DoubleTest, NumbersTextsAndNullsAreRendered) {
  double const nan = std::numeric_limits<double>::quiet_NaN();
  VORQ_AddCol(prob_, nan, 0, nullptr, nullptr, 0, -0.0, 0.5, "say \"x\"\n");
  VORQ_AddCol(prob_, 0.1, 0, nullptr, nullptr, 300, -1e30, 1e40, nullptr);
  VORQ_SetObjSense(prob_, VORQ_MAXIMIZE);
  EXPECT_CALLS(double_,
               {R"(VORQ_AddCol(prob#1, nan, 0, null, null, 0, -0, 0.5, "say \"x\"\n"))",
                "VORQ_AddCol(prob#1, 0.1, 0, null, null, 300, -1e+30, 1e+40, null)", "VORQ_SetObjSense(prob#1, -1)"});
}

TEST_F(DoubleTest, BatchIsLoggedWithTheUsedPartOfItsElements) {
  int const begins[] = {0, 2};
  int const counts[] = {2, 1};
  int const cols[] = {0, 1, 1, 99};
  double const coefs[] = {1, 2, 3, 99};
  double const lowers[] = {0, 1};
  char const* const names[] = {"a", nullptr};
  VORQ_AddRows(prob_, 2, begins, counts, cols, coefs, "LG", lowers, nullptr, names);
  EXPECT_CALLS(double_, {"VORQ_AddRows(prob#1, 2, [0,2], [2,1], [0,1,1], [1,2,3], ['L','G'], [0,1], null, "
                         "[\"a\",null])"});
}

TEST_F(DoubleTest, BatchWithoutRowsHasNoElements) {
  double const lowers[] = {0};
  VORQ_AddRows(prob_, 1, nullptr, nullptr, nullptr, nullptr, nullptr, lowers, lowers, nullptr);
  EXPECT_CALLS(double_, {"VORQ_AddRows(prob#1, 1, null, null, null, null, null, [0], [0], null)"});
}

TEST_F(DoubleTest, BeginsWithoutLengthsHaveOneMoreEntry) {
  int const begins[] = {0, 1, 3};
  int const cols[] = {4, 5, 6};
  VORQ_AddCones(prob_, 2, nullptr, begins, nullptr, cols);
  EXPECT_CALLS(double_, {"VORQ_AddCones(prob#1, 2, null, [0,1,3], null, [4,5,6])"});
}

TEST_F(DoubleTest, OutputsAreLoggedAsOutOrNull) {
  int required = 0;
  VORQ_GetRows(prob_, 0, nullptr, nullptr, nullptr, nullptr, nullptr, 0, &required);
  EXPECT_CALLS(double_, {"VORQ_GetRows(prob#1, 0, null, null, null, null, null, 0, out)"});
}

TEST_F(DoubleTest, ClearLogStartsAnew) {
  VORQ_Solve(prob_);
  double_.ClearLog();
  VORQ_SolveLp(prob_);
  VORQ_Solve(prob_);
  EXPECT_THAT(double_.CallNames(), ElementsAre("VORQ_SolveLp", "VORQ_Solve"));
  EXPECT_THAT(double_.Calls("VORQ_Solve"), ElementsAre("VORQ_Solve(prob#1)"));
  EXPECT_CALLS_OF(double_, "VORQ_SolveLp", {"VORQ_SolveLp(prob#1)"});
  EXPECT_EQ(double_.CountCalls("VORQ_Tune"), 0u);
}

TEST_F(DoubleTest, LoadProbSizesItsArraysByColumnsAndRows) {
  int const begins[] = {0, 1};
  int const counts[] = {1, 1};
  int const rows[] = {0, 0};
  double const values[] = {1, 2};
  double const row[] = {5};
  VORQ_LoadProb(prob_, 2, 1, 1, 0, values, begins, counts, rows, values, "CI", values, values, nullptr, row, row,
                nullptr, nullptr);
  EXPECT_CALLS(double_, {"VORQ_LoadProb(prob#1, 2, 1, 1, 0, [1,2], [0,1], [1,1], [0,0], [1,2], ['C','I'], [1,2], "
                         "[1,2], null, [5], [5], null, null)"});
}

// ---- The store

TEST_F(DoubleTest, CountersFollowAddingAndDeleting) {
  AddCol("x");
  AddCol("y");
  AddCol("z");
  int const doomed[] = {0};
  VORQ_DelCols(prob_, 1, doomed);
  int cols = 0;
  int index = -1;
  EXPECT_EQ(VORQ_GetIntAttr(prob_, "Cols", &cols), VORQ_OK);
  EXPECT_EQ(cols, 2);
  EXPECT_EQ(VORQ_GetColIdx(prob_, "y", &index), VORQ_OK);
  EXPECT_EQ(index, 0);
}

TEST_F(DoubleTest, UnknownNameIsRefusedAndItsOutputUntouched) {
  int index = 77;
  EXPECT_EQ(VORQ_GetRowIdx(prob_, "none", &index), VORQ_INVALID);
  EXPECT_EQ(index, 77);
}

TEST_F(DoubleTest, NamesAndTypesAreKept) {
  AddCol("x", 'B');
  int const indices[] = {0};
  char const* const names[] = {"longer"};
  VORQ_SetColNames(prob_, 1, indices, names);
  char buffer[8];
  int required = 0;
  char type = '?';
  EXPECT_EQ(VORQ_GetColName(prob_, 0, buffer, 8, &required), VORQ_OK);
  EXPECT_STREQ(buffer, "longer");
  EXPECT_EQ(required, 7);
  EXPECT_EQ(VORQ_GetColType(prob_, 1, nullptr, &type), VORQ_OK);
  EXPECT_EQ(type, 'B');
}

TEST_F(DoubleTest, NameThatDoesNotFitGivesTheRequiredSizeOnly) {
  AddCol("seven77");
  char buffer[7] = "before";
  int required = 0;
  EXPECT_EQ(VORQ_GetColName(prob_, 0, buffer, 7, &required), VORQ_INVALID);
  EXPECT_EQ(required, 8);
  EXPECT_STREQ(buffer, "before");
}

TEST_F(DoubleTest, SymmetricMatricesAreKept) {
  int const rows[] = {0, 1};
  double const values[] = {1.5, 2.5};
  VORQ_AddSymMat(prob_, 3, 2, rows, rows, values);
  int dim = 0, n = 0, readRows[2], readCols[2];
  double readValues[2];
  EXPECT_EQ(VORQ_GetSymMat(prob_, 0, &dim, &n, nullptr, nullptr, nullptr), VORQ_OK);
  EXPECT_EQ(VORQ_GetSymMat(prob_, 0, &dim, &n, readRows, readCols, readValues), VORQ_OK);
  EXPECT_EQ(dim, 3);
  EXPECT_EQ(n, 2);
  EXPECT_THAT(readRows, ElementsAre(0, 1));
  EXPECT_THAT(readValues, ElementsAre(1.5, 2.5));
}

TEST_F(DoubleTest, PsdDimensionsAreKept) {
  int const added[] = {2, 3};
  VORQ_AddPSDCols(prob_, 2, added, nullptr);
  VORQ_AddLMIConstr(prob_, 4, 0, nullptr, nullptr, -1, nullptr);
  int dims[2];
  int lmiDim = 0;
  VORQ_GetPSDCols(prob_, 2, nullptr, dims, nullptr);
  VORQ_GetLMIConstr(prob_, 0, &lmiDim, nullptr, nullptr, nullptr, nullptr, 0, nullptr);
  EXPECT_THAT(dims, ElementsAre(2, 3));
  EXPECT_EQ(lmiDim, 4);
}

TEST_F(DoubleTest, CopyHasTheItemsOfItsSource) {
  AddCol("x");
  VORQ_Prob* copy = nullptr;
  EXPECT_EQ(VORQ_CreateCopy(prob_, &copy), VORQ_OK);
  AddCol("y");
  int cols = 0;
  VORQ_GetIntAttr(copy, "Cols", &cols);
  EXPECT_EQ(cols, 1);
  EXPECT_EQ(double_.Label(copy), "prob#2");
  VORQ_DeleteProb(&copy);
}

TEST_F(DoubleTest, ParametersAreKeptUntilReset) {
  int value = -1;
  double_.IntParam("Threads", 4);
  VORQ_GetIntParam(prob_, "Threads", &value);
  EXPECT_EQ(value, 4);
  VORQ_SetIntParam(prob_, "Threads", 2);
  VORQ_GetIntParam(prob_, "Threads", &value);
  EXPECT_EQ(value, 2);
  VORQ_ResetParam(prob_);
  VORQ_GetIntParam(prob_, "Threads", &value);
  EXPECT_EQ(value, 4);
}

TEST_F(DoubleTest, SetItemsIsWhatAFileBrought) {
  double_.SetItems(prob_, "PSDCols", 3);
  int count = 0;
  VORQ_GetIntAttr(prob_, "PSDCols", &count);
  EXPECT_EQ(count, 3);
}

// ---- Scripts

TEST_F(DoubleTest, AnswerServesBothCallsOfARead) {
  double_.Answer("VORQ_GetRows").Set("rowBeg", {0}).Set("rowCnt", {2}).Set("cols", {3, 4}).Set("coefs", {1, 2.5});
  int const index = 0;
  int required = 0, begin, count, cols[3] = {0, 0, 77};
  double coefs[2];
  EXPECT_EQ(VORQ_GetRows(prob_, 1, &index, nullptr, nullptr, nullptr, nullptr, 0, &required), VORQ_OK);
  EXPECT_EQ(required, 2);
  EXPECT_EQ(VORQ_GetRows(prob_, 1, &index, &begin, &count, cols, coefs, required, nullptr), VORQ_OK);
  EXPECT_EQ(count, 2);
  EXPECT_THAT(cols, ElementsAre(3, 4, 77));
  EXPECT_THAT(coefs, ElementsAre(1, 2.5));
}

TEST_F(DoubleTest, RoomBehindTheElementsIsFilledWithGarbage) {
  double_.Answer("VORQ_GetExpCones").Set("cols", {1, 2, 3});
  int cols[5] = {};
  EXPECT_EQ(VORQ_GetExpCones(prob_, 1, nullptr, nullptr, cols, 4, nullptr), VORQ_OK);
  EXPECT_THAT(cols, ElementsAre(1, 2, 3, kGarbage<int>, 0));
}

TEST_F(DoubleTest, CapacityBelowTheElementsIsRefused) {
  double_.Answer("VORQ_GetExpCones").Set("cols", {1, 2, 3});
  int cols[3] = {7, 7, 7};
  EXPECT_EQ(VORQ_GetExpCones(prob_, 1, nullptr, nullptr, cols, 2, nullptr), VORQ_INVALID);
  EXPECT_THAT(cols, ElementsAre(7, 7, 7));
}

TEST_F(DoubleTest, AffineConeHasTwoRequiredSizes) {
  double_.Answer("VORQ_GetAffineCone")
      .Set("type", 2)
      .Set("constants", {1, 2})
      .Set("psdCols", {5})
      .Set("cols", {1, 2, 3});
  int type = 0, nExprs = 0, psdRequired = 0, required = 0;
  VORQ_GetAffineCone(prob_, 0, &type, &nExprs, 0, 0, nullptr, nullptr, nullptr, nullptr, 0, &psdRequired, nullptr,
                     nullptr, nullptr, nullptr, nullptr, 0, &required);
  EXPECT_EQ(type, 2);
  EXPECT_EQ(nExprs, 2);
  EXPECT_EQ(psdRequired, 1);
  EXPECT_EQ(required, 3);
}

TEST_F(DoubleTest, AnswersInLineAreTakenOneByOne) {
  double_.AnswerNext("VORQ_GetColIdx").Set("index", 4);
  double_.FailNext("VORQ_GetColIdx", VORQ_MEMORY);
  double_.Answer("VORQ_GetColIdx").Set("index", 9);
  int index = -1;
  EXPECT_EQ(VORQ_GetColIdx(prob_, "x", &index), VORQ_OK);
  EXPECT_EQ(index, 4);
  EXPECT_EQ(VORQ_GetColIdx(prob_, "x", &index), VORQ_MEMORY);
  EXPECT_EQ(index, 4);
  EXPECT_EQ(VORQ_GetColIdx(prob_, "x", &index), VORQ_OK);
  EXPECT_EQ(index, 9);
}

TEST_F(DoubleTest, FailNthCountsCallsOfTheName) {
  double_.FailNth("VORQ_Solve", 2, VORQ_SERVER);
  EXPECT_EQ(VORQ_Solve(prob_), VORQ_OK);
  EXPECT_EQ(VORQ_SolveLp(prob_), VORQ_OK);
  EXPECT_EQ(VORQ_Solve(prob_), VORQ_SERVER);
  EXPECT_EQ(VORQ_Solve(prob_), VORQ_OK);
}

TEST_F(DoubleTest, FailNthCallCountsAllCalls) {
  double_.FailNthCall(2, VORQ_INTERNAL);
  EXPECT_EQ(VORQ_Solve(prob_), VORQ_OK);
  EXPECT_EQ(AddCol("x"), VORQ_INTERNAL);
  int cols = -1;
  EXPECT_EQ(VORQ_GetIntAttr(prob_, "Cols", &cols), VORQ_OK);
  EXPECT_EQ(cols, 0);
}

TEST_F(DoubleTest, FailureLeavesGarbageWhenAskedTo) {
  double_.SpoilOutputsOfFailures(true);
  double_.FailNext("VORQ_GetDblAttr", VORQ_INVALID);
  double value = 3;
  EXPECT_EQ(VORQ_GetDblAttr(prob_, "ObjVal", &value), VORQ_INVALID);
  EXPECT_EQ(value, kGarbage<double>);
}

TEST_F(DoubleTest, HookGivesOutputsAndCode) {
  double_.On("VORQ_GetDblAttr", [](DoubleCall& call) {
    call.answer.Set("value", call.text == "VORQ_GetDblAttr(prob#1, \"ObjVal\", out)" ? 2.5 : 0.0);
    return VORQ_OK;
  });
  double_.On("VORQ_Solve", [](DoubleCall&) { return VORQ_NONCONVEX; });
  double value = 0;
  EXPECT_EQ(VORQ_GetDblAttr(prob_, "ObjVal", &value), VORQ_OK);
  EXPECT_EQ(value, 2.5);
  EXPECT_EQ(VORQ_Solve(prob_), VORQ_NONCONVEX);
}

TEST_F(DoubleTest, HookMayThrow) {
  double_.On("VORQ_Solve", [](DoubleCall&) -> int { throw std::runtime_error("from the callback"); });
  EXPECT_THROW(VORQ_Solve(prob_), std::runtime_error);
  EXPECT_EQ(VORQ_SolveLp(prob_), VORQ_OK);
}

TEST_F(DoubleTest, ValuesGoByItemPosition) {
  double_.Values("VORQ_GetColInfo", "Value", {10, 11, 12}).Values("VORQ_GetColBasis", {0, 1, 2});
  int const indices[] = {2, 0, 5};
  double values[3];
  int basis[2];
  VORQ_GetColInfo(prob_, "Value", 3, indices, values);
  EXPECT_THAT(values, ElementsAre(12, 10, kGarbage<double>));
  VORQ_GetColBasis(prob_, 2, nullptr, basis);
  EXPECT_THAT(basis, ElementsAre(0, 1));
}

TEST_F(DoubleTest, UnscriptedValuesAreZero) {
  double values[2] = {7, 7};
  VORQ_GetRowInfo(prob_, "LB", 2, nullptr, values);
  EXPECT_THAT(values, ElementsAre(0, 0));
  int symMat = 7;
  VORQ_GetPSDObj(prob_, 0, &symMat);
  EXPECT_EQ(symMat, -1);
}

TEST_F(DoubleTest, NamesOfAttributesAndParametersHaveKinds) {
  double_.DblAttr("ObjVal", 1).DblParam("InfBound", 1e20).IntParam("Threads", 1);
  auto const kind = [](char const* name) {
    int type = 77;
    VORQ_SearchParamAttr(nullptr, name, &type);
    return type;
  };
  EXPECT_EQ(kind("Cols"), VORQ_INT_ATTR);
  EXPECT_EQ(kind("ObjVal"), VORQ_DBL_ATTR);
  EXPECT_EQ(kind("InfBound"), VORQ_DBL_PARAM);
  EXPECT_EQ(kind("Threads"), VORQ_INT_PARAM);
  EXPECT_EQ(kind("nothing"), VORQ_UNKNOWN_NAME);
}

TEST_F(DoubleTest, SolutionIsAsLongAsThereAreColumns) {
  AddCol("x");
  AddCol("y");
  double_.Answer("VORQ_GetSolution").Set("values", {1, 2, 3});
  double values[3] = {0, 0, 7};
  VORQ_GetSolution(prob_, values);
  EXPECT_THAT(values, ElementsAre(1, 2, 7));
}

TEST_F(DoubleTest, TextBufferIsFilledWholly) {
  double_.Banner("hi");
  char buffer[6] = "-----";
  EXPECT_EQ(VORQ_GetBanner(buffer, 5), VORQ_OK);
  EXPECT_EQ(std::string(buffer, 6), std::string("hi\0??\0", 6));
}

TEST_F(DoubleTest, MpsTextFollowsTheRequiredSizeProtocol) {
  double_.Answer("VORQ_WriteMpsStr").Set("buffer", "NAME\n");
  int required = 0;
  char buffer[6];
  EXPECT_EQ(VORQ_WriteMpsStr(prob_, nullptr, 0, &required), VORQ_OK);
  EXPECT_EQ(required, 6);
  EXPECT_EQ(VORQ_WriteMpsStr(prob_, buffer, required, nullptr), VORQ_OK);
  EXPECT_STREQ(buffer, "NAME\n");
}

TEST_F(DoubleTest, RequiredSizeCanBeScriptedByItself) {
  double_.Answer("VORQ_WriteMpsStr").Set("required", -5);
  int required = 0;
  EXPECT_EQ(VORQ_WriteMpsStr(prob_, nullptr, 0, &required), VORQ_OK);
  EXPECT_EQ(required, -5);
}

TEST_F(DoubleTest, UnusedScriptsAreTold) {
  double_.FailNext("VORQ_Tune", VORQ_MEMORY);
  EXPECT_THAT(double_.UnusedScripts(), ElementsAre("VORQ_Tune"));
  EXPECT_EQ(VORQ_Tune(prob_), VORQ_MEMORY);
}

// ---- Callbacks

TEST_F(DoubleTest, CallbackRunsWithDataThatDiesAfterIt) {
  AddCol("x");
  double_.CallbackInt("NodeCnt", 3).CallbackDbl("BestObj", 2.5).CallbackVector("Incumbent", {1});
  VORQ_CallbackData* kept = nullptr;
  VORQ_SetCallback(
      prob_,
      [](VORQ_Prob* prob, VORQ_CallbackData* data, int context, void* user) {
        *static_cast<VORQ_CallbackData**>(user) = data;
        int nodes = 0, type = 0, dim = 0;
        double best = 0, incumbent = 0, objective = 0;
        EXPECT_EQ(VORQ_GetCallbackInfo(data, "NodeCnt", &nodes), VORQ_OK);
        EXPECT_EQ(VORQ_GetCallbackInfo(data, "BestObj", &best), VORQ_OK);
        EXPECT_EQ(VORQ_GetCallbackInfo(data, "Incumbent", &incumbent), VORQ_OK);
        EXPECT_EQ(VORQ_GetCallbackInfo(data, "nothing", &incumbent), VORQ_INVALID);
        EXPECT_EQ(VORQ_SearchCallbackInfo(prob, "NodeCnt", &type, &dim), VORQ_OK);
        EXPECT_EQ(type, 0);
        EXPECT_EQ(dim, 0);
        EXPECT_EQ(nodes, 3);
        EXPECT_EQ(best, 2.5);
        EXPECT_EQ(incumbent, 1);
        VORQ_AddCallbackSolution(data, &best, &objective);
        return context + 1;
      },
      6, &kept);
  double_.On("VORQ_Solve", [this](DoubleCall&) {
    EXPECT_EQ(double_.RunCallback(2), 3);
    return VORQ_OK;
  });
  EXPECT_EQ(VORQ_Solve(prob_), VORQ_OK);
  EXPECT_CALLS_OF(double_, "VORQ_SetCallback", {"VORQ_SetCallback(prob#1, function, 6, user)"});
  EXPECT_CALLS_OF(double_, "VORQ_AddCallbackSolution", {"VORQ_AddCallbackSolution(data#1, [2.5], out)"});

  int nodes = 0;
  EXPECT_EQ(VORQ_GetCallbackInfo(kept, "NodeCnt", &nodes), VORQ_INVALID);
  EXPECT_THAT(double_.TakeViolations(),
              ElementsAre("deleted handle in VORQ_GetCallbackInfo(data#1, \"NodeCnt\", out)"));
}

TEST_F(DoubleTest, SolvesCallBackAtTheChosenPlaces) {
  std::vector<int> contexts;
  VORQ_SetCallback(
      prob_,
      [](VORQ_Prob*, VORQ_CallbackData*, int context, void* user) -> int {
        static_cast<std::vector<int>*>(user)->push_back(context);
        return context == 4 ? VORQ_NONCONVEX : VORQ_OK;
      },
      5, &contexts);
  double_.SolveCallsBack({1, 2, 1, 4, 1});
  EXPECT_EQ(VORQ_Solve(prob_), VORQ_NONCONVEX);
  EXPECT_THAT(contexts, ElementsAre(1, 1, 4));
}

TEST_F(DoubleTest, ExceptionsOfACallbackPassThroughTheSolve) {
  VORQ_SetCallback(
      prob_, [](VORQ_Prob*, VORQ_CallbackData*, int, void*) -> int { throw std::runtime_error("from the callback"); },
      1, nullptr);
  double_.SolveCallsBack({1});
  EXPECT_THROW(VORQ_Solve(prob_), std::runtime_error);
  VORQ_SetCallback(prob_, nullptr, 0, nullptr);
  EXPECT_EQ(VORQ_Solve(prob_), VORQ_OK);
}

TEST_F(DoubleTest, LogLinesReachTheLogFunction) {
  std::string line;
  VORQ_SetLogCallback(
      prob_, [](char const* text, void* user) { *static_cast<std::string*>(user) = text; }, &line);
  double_.SendLogLine("Solving");
  EXPECT_EQ(line, "Solving");
}

TEST_F(DoubleTest, WithoutCallbackNothingIsCalled) {
  EXPECT_EQ(double_.RunCallback(1), -1);
  VORQ_SetCallback(prob_, nullptr, 0, nullptr);
  EXPECT_EQ(double_.RunCallback(1), -1);
}

// ---- Handles and misuse

TEST_F(DoubleTest, HandlesAreOddAndFar) {
  EXPECT_NE(reinterpret_cast<std::uintptr_t>(env_) % 2, 0u);
  EXPECT_NE(reinterpret_cast<std::uintptr_t>(prob_) % 2, 0u);
  EXPECT_GT(reinterpret_cast<std::uintptr_t>(prob_), std::uintptr_t{1} << 56);
}

TEST_F(DoubleTest, LiveHandlesAreCounted) {
  VORQ_EnvConfig* config = nullptr;
  VORQ_CreateEnvConfig(&config);
  EXPECT_EQ(double_.LiveEnvs(), 1);
  EXPECT_EQ(double_.LiveProblems(), 1);
  EXPECT_EQ(double_.LiveConfigs(), 1);
  VORQ_DeleteEnvConfig(&config);
  EXPECT_EQ(config, nullptr);
  EXPECT_EQ(double_.LiveConfigs(), 0);
}

TEST_F(DoubleTest, ConfigHasItsLeadingWord) {
  double_.ConfigLeadingWord(5);
  VORQ_EnvConfig* config = nullptr;
  VORQ_CreateEnvConfig(&config);
  EXPECT_EQ(*reinterpret_cast<int const*>(config), 5);
  VORQ_DeleteEnvConfig(&config);
}

TEST_F(DoubleTest, UseAfterDeletionIsAViolation) {
  VORQ_Prob* const stale = prob_;
  VORQ_DeleteProb(&prob_);
  EXPECT_EQ(prob_, nullptr);
  EXPECT_EQ(VORQ_Solve(stale), VORQ_INVALID);
  VORQ_Prob* again = stale;
  EXPECT_EQ(VORQ_DeleteProb(&again), VORQ_INVALID);
  EXPECT_EQ(again, stale);
  EXPECT_THAT(double_.TakeViolations(),
              ElementsAre("deleted handle in VORQ_Solve(prob#1)", "deleted handle in VORQ_DeleteProb(prob#1)"));
}

TEST_F(DoubleTest, NullAndStrangeHandlesAreViolations) {
  EXPECT_EQ(VORQ_Solve(nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_Solve(reinterpret_cast<VORQ_Prob*>(env_)), VORQ_INVALID);
  EXPECT_EQ(VORQ_Solve(reinterpret_cast<VORQ_Prob*>(this)), VORQ_INVALID);
  EXPECT_THAT(double_.TakeViolations(),
              ElementsAre("null handle in VORQ_Solve(null)", "strange handle in VORQ_Solve(env#1)",
                          "strange handle in VORQ_Solve(stranger)"));
}

TEST_F(DoubleTest, BadArraysAreViolations) {
  EXPECT_EQ(VORQ_DelCols(prob_, 2, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddRow(prob_, -1, nullptr, nullptr, 'L', 0, 0, nullptr), VORQ_INVALID);
  auto const violations = double_.TakeViolations();
  ASSERT_FALSE(violations.empty());
  EXPECT_EQ(violations.front(), "null array in VORQ_DelCols(prob#1, 2, null)");
  EXPECT_EQ(violations.back(), "negative count in VORQ_AddRow(prob#1, -1, [], [], 'L', 0, 0, null)");
}

TEST_F(DoubleTest, EnvironmentBeforeItsProblemsIsAViolation) {
  VORQ_Env* const env = env_;
  VORQ_DeleteEnv(&env_);
  EXPECT_EQ(double_.Label(env), "env#1");
  EXPECT_THAT(double_.TakeViolations(), ElementsAre("env#1 deleted before prob#1"));
}

TEST_F(DoubleTest, ClosedEnvironmentCanStillBeDeleted) {
  VORQ_Env* const env = env_;
  EXPECT_EQ(VORQ_CloseEnv(&env_), VORQ_OK);
  EXPECT_EQ(env_, env);
  EXPECT_EQ(VORQ_CloseEnv(&env_), VORQ_INVALID);
  VORQ_Prob* late = nullptr;
  EXPECT_EQ(VORQ_CreateProb(env_, &late), VORQ_INVALID);
  EXPECT_EQ(late, nullptr);
}

TEST_F(DoubleTest, FailingDeleteStillEndsItsHandle) {
  double_.FailNext("VORQ_DeleteProb", VORQ_INTERNAL);
  EXPECT_EQ(VORQ_DeleteProb(&prob_), VORQ_INTERNAL);
  EXPECT_NE(prob_, nullptr);
  EXPECT_EQ(double_.LiveProblems(), 0);
  prob_ = nullptr;
}

TEST_F(DoubleTest, FailingCreationLeavesTheHandleAlone) {
  double_.FailNext("VORQ_CreateProb", VORQ_MEMORY);
  VORQ_Prob* other = nullptr;
  EXPECT_EQ(VORQ_CreateProb(env_, &other), VORQ_MEMORY);
  EXPECT_EQ(other, nullptr);
  EXPECT_EQ(double_.LiveProblems(), 1);
}

TEST_F(DoubleTest, RetcodeMessageNamesTheCode) {
  char buffer[64];
  EXPECT_EQ(VORQ_GetRetcodeMsg(7, buffer, 60), VORQ_OK);
  EXPECT_STREQ(buffer, "double message 7");
  EXPECT_CALLS(double_, {"VORQ_GetRetcodeMsg(7, out, 60)"});
}

// ---- The fixture: each of these would pass unseen if its check were missing

struct Scene : SolverDoubleTest {
  void TestBody() override {}
};

TEST(SolverDoubleFixture, QuietTestPasses) {
  Scene const scene;
}

TEST(SolverDoubleFixture, LeakFails) {
  EXPECT_NONFATAL_FAILURE(
      {
        Scene const scene;
        VORQ_Env* env = nullptr;
        VORQ_CreateEnvWithPath("path", &env);
      },
      "LiveEnvs");
}

TEST(SolverDoubleFixture, MisuseFails) {
  EXPECT_NONFATAL_FAILURE(
      {
        Scene const scene;
        VORQ_Solve(nullptr);
      },
      "null handle in VORQ_Solve(null)");
}

TEST(SolverDoubleFixture, UnusedScriptFails) {
  EXPECT_NONFATAL_FAILURE(
      {
        Scene const scene;
        SolverDouble::Instance().FailNth("VORQ_Solve", 2, VORQ_MEMORY);
      },
      "VORQ_Solve");
}

TEST(SolverDoubleFixture, DifferentCallsFail) {
  SolverDouble& solver = SolverDouble::Instance();
  solver.Reset();
  VORQ_GetRetcodeMsg(1, nullptr, 0);
  EXPECT_NONFATAL_FAILURE(EXPECT_CALLS(SolverDouble::Instance(), {"VORQ_GetRetcodeMsg(2, null, 0)"}),
                          "VORQ_GetRetcodeMsg(1, null, 0)");
  EXPECT_CALLS(solver, {"VORQ_GetRetcodeMsg(1, null, 0)"});
  solver.Reset();
}

}  // namespace
}  // namespace vorqtest
