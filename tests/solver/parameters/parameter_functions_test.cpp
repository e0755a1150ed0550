// The C functions on parameters and attributes.
#include <gtest/gtest.h>

#include <cmath>

#include "frame/vorq_solver.h"

namespace {

class ParameterFunctions : public testing::Test {
 protected:
  ParameterFunctions() {
    EXPECT_EQ(VORQ_CreateEnvWithPath(nullptr, &env_), VORQ_OK);
    EXPECT_EQ(VORQ_CreateProb(env_, &prob_), VORQ_OK);
    EXPECT_EQ(VORQ_SetIntParam(prob_, "LogToConsole", 0), VORQ_OK);
  }
  ~ParameterFunctions() override {
    VORQ_DeleteProb(&prob_);
    VORQ_DeleteEnv(&env_);
  }

  VORQ_Env* env_ = nullptr;
  VORQ_Prob* prob_ = nullptr;
  int number_ = -77;
  double real_ = -77.0;
};

TEST_F(ParameterFunctions, SetValueIsReadBackInAnyCase) {
  EXPECT_EQ(VORQ_SetIntParam(prob_, "THREADS", 3), VORQ_OK);
  EXPECT_EQ(VORQ_GetIntParam(prob_, "threads", &number_), VORQ_OK);
  EXPECT_EQ(number_, 3);
  EXPECT_EQ(VORQ_SetDblParam(prob_, "timelimit", 12.5), VORQ_OK);
  EXPECT_EQ(VORQ_GetDblParam(prob_, "TimeLimit", &real_), VORQ_OK);
  EXPECT_EQ(real_, 12.5);
}

TEST_F(ParameterFunctions, DefaultMinimumAndMaximumStayWhenTheValueChanges) {
  EXPECT_EQ(VORQ_SetIntParam(prob_, "Presolve", 2), VORQ_OK);
  EXPECT_EQ(VORQ_GetIntParamDef(prob_, "Presolve", &number_), VORQ_OK);
  EXPECT_EQ(number_, -1);
  EXPECT_EQ(VORQ_GetIntParamMin(prob_, "Presolve", &number_), VORQ_OK);
  EXPECT_EQ(number_, -1);
  EXPECT_EQ(VORQ_GetIntParamMax(prob_, "Presolve", &number_), VORQ_OK);
  EXPECT_EQ(number_, 3);
  EXPECT_EQ(VORQ_GetDblParamDef(prob_, "FeasTol", &real_), VORQ_OK);
  EXPECT_EQ(real_, 1e-6);
  EXPECT_EQ(VORQ_GetDblParamMin(prob_, "FeasTol", &real_), VORQ_OK);
  EXPECT_EQ(real_, 1e-9);
  EXPECT_EQ(VORQ_GetDblParamMax(prob_, "FeasTol", &real_), VORQ_OK);
  EXPECT_EQ(real_, 1e-2);
}

TEST_F(ParameterFunctions, ValueOutOfRangeIsRefusedAndTheFormerKept) {
  EXPECT_EQ(VORQ_SetIntParam(prob_, "Presolve", 99), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetIntParam(prob_, "Presolve", &number_), VORQ_OK);
  EXPECT_EQ(number_, -1);
  EXPECT_EQ(VORQ_SetDblParam(prob_, "FeasTol", std::nan("")), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetDblParam(prob_, "FeasTol", &real_), VORQ_OK);
  EXPECT_EQ(real_, 1e-6);
}

TEST_F(ParameterFunctions, UnknownNameAndOtherKindLeaveTheOutput) {
  EXPECT_EQ(VORQ_GetIntParam(prob_, "Thread", &number_), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetIntParam(prob_, "TimeLimit", &number_), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetIntParamMax(prob_, "TimeLimit", &number_), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetIntAttr(prob_, "BestObj", &number_), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetDblParam(prob_, "Threads", &real_), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetDblAttr(prob_, "Cols", &real_), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetIntParam(prob_, "Cols", 1), VORQ_INVALID);
  EXPECT_EQ(number_, -77);
  EXPECT_EQ(real_, -77.0);
}

TEST_F(ParameterFunctions, NullArgumentsAreRefused) {
  EXPECT_EQ(VORQ_GetIntParam(nullptr, "Threads", &number_), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetIntParam(prob_, nullptr, &number_), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetIntParam(prob_, "Threads", nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetIntParam(prob_, nullptr, 1), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetDblParam(nullptr, "TimeLimit", 1.0), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetDblAttr(prob_, "BestObj", nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetIntAttr(nullptr, "Cols", &number_), VORQ_INVALID);
}

TEST_F(ParameterFunctions, AttributesFollowTheProblem) {
  EXPECT_EQ(VORQ_AddCol(prob_, 1.0, 0, nullptr, nullptr, 'B', 0.0, 1.0, "x"), VORQ_OK);
  EXPECT_EQ(VORQ_GetIntAttr(prob_, "cols", &number_), VORQ_OK);
  EXPECT_EQ(number_, 1);
  EXPECT_EQ(VORQ_GetIntAttr(prob_, "IsMIP", &number_), VORQ_OK);
  EXPECT_EQ(number_, 1);
  EXPECT_EQ(VORQ_GetDblAttr(prob_, "BestObj", &real_), VORQ_OK);
  EXPECT_EQ(real_, 1e30);
}

TEST_F(ParameterFunctions, SearchTellsTheKindWithAndWithoutAProblem) {
  for (VORQ_Prob* prob : {static_cast<VORQ_Prob*>(nullptr), prob_}) {
    EXPECT_EQ(VORQ_SearchParamAttr(prob, "infbound", &number_), VORQ_OK);
    EXPECT_EQ(number_, VORQ_DBL_PARAM);
    EXPECT_EQ(VORQ_SearchParamAttr(prob, "Threads", &number_), VORQ_OK);
    EXPECT_EQ(number_, VORQ_INT_PARAM);
    EXPECT_EQ(VORQ_SearchParamAttr(prob, "BestGap", &number_), VORQ_OK);
    EXPECT_EQ(number_, VORQ_DBL_ATTR);
    EXPECT_EQ(VORQ_SearchParamAttr(prob, "PrimalInf", &number_), VORQ_OK);
    EXPECT_EQ(number_, VORQ_INT_ATTR);
  }
}

TEST_F(ParameterFunctions, SearchOfAnUnknownNameSucceedsWithMinusOne) {
  EXPECT_EQ(VORQ_SearchParamAttr(nullptr, "Nobody", &number_), VORQ_OK);
  EXPECT_EQ(number_, VORQ_UNKNOWN_NAME);
}

TEST_F(ParameterFunctions, SearchRefusesNullArguments) {
  EXPECT_EQ(VORQ_SearchParamAttr(nullptr, nullptr, &number_), VORQ_INVALID);
  EXPECT_EQ(VORQ_SearchParamAttr(nullptr, "Threads", nullptr), VORQ_INVALID);
}

TEST_F(ParameterFunctions, ResetParamGoesBackToTheDefaults) {
  EXPECT_EQ(VORQ_SetIntParam(prob_, "Threads", 2), VORQ_OK);
  EXPECT_EQ(VORQ_ResetParam(prob_), VORQ_OK);
  EXPECT_EQ(VORQ_GetIntParam(prob_, "Threads", &number_), VORQ_OK);
  EXPECT_EQ(number_, -1);
}

}  // namespace
