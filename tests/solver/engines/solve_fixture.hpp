// A problem to build and solve in a line or two each, through the C functions.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/vorq_solver.h"

inline constexpr double kInf = VORQ_INFINITY;

enum Status { kOptimal = 1, kInfeasible = 2, kUnbounded = 3, kNodeLimit = 6, kTimeLimit = 8, kInterrupted = 10 };

class SolveTest : public testing::Test {
 protected:
  SolveTest() {
    EXPECT_EQ(VORQ_CreateEnvWithPath(nullptr, &env_), VORQ_OK);
    EXPECT_EQ(VORQ_CreateProb(env_, &prob), VORQ_OK);
    Set("LogToConsole", 0);
  }
  ~SolveTest() override {
    VORQ_DeleteProb(&prob);
    VORQ_DeleteEnv(&env_);
  }

  void Set(char const* name, int value) { EXPECT_EQ(VORQ_SetIntParam(prob, name, value), VORQ_OK) << name; }
  void Set(char const* name, double value) { EXPECT_EQ(VORQ_SetDblParam(prob, name, value), VORQ_OK) << name; }

  int Int(char const* name) const {
    int value = -1;
    EXPECT_EQ(VORQ_GetIntAttr(prob, name, &value), VORQ_OK) << name;
    return value;
  }
  double Dbl(char const* name) const {
    double value = -1.0;
    EXPECT_EQ(VORQ_GetDblAttr(prob, name, &value), VORQ_OK) << name;
    return value;
  }

  void Maximise() { EXPECT_EQ(VORQ_SetObjSense(prob, VORQ_MAXIMIZE), VORQ_OK); }

  int Col(double obj, double lower = 0.0, double upper = kInf, char type = 'C') {
    EXPECT_EQ(VORQ_AddCol(prob, obj, 0, nullptr, nullptr, type, lower, upper, nullptr), VORQ_OK);
    return Int("Cols") - 1;
  }
  int Row(std::vector<int> const& cols, std::vector<double> const& coefs, char sense, double bound,
          double upper = 0.0) {
    EXPECT_EQ(VORQ_AddRow(prob, static_cast<int>(cols.size()), cols.data(), coefs.data(), sense, bound, upper, nullptr),
              VORQ_OK);
    return Int("Rows") - 1;
  }
  void Sos(int type, std::vector<int> const& cols, std::vector<double> const& weights = {}) {
    int const begin = 0;
    int const count = static_cast<int>(cols.size());
    EXPECT_EQ(VORQ_AddSOSs(prob, 1, &type, &begin, &count, cols.data(), weights.empty() ? nullptr : weights.data()),
              VORQ_OK);
  }
  void Indicator(int binary, int value, std::vector<int> const& cols, std::vector<double> const& coefs, char sense,
                 double rhs, int type = 0) {
    int const begin = 0;
    int const count = static_cast<int>(cols.size());
    EXPECT_EQ(VORQ_AddIndicators(prob, 1, &type, &binary, &value, &begin, &count, cols.data(), coefs.data(), &sense,
                                 &rhs, nullptr),
              VORQ_OK);
  }

  void SetUpper(int col, double value) { EXPECT_EQ(VORQ_SetColUpper(prob, 1, &col, &value), VORQ_OK); }

  // Solves and gives the status of the LP or, for a problem with discrete parts, of the MIP.
  int Solve() {
    EXPECT_EQ(VORQ_Solve(prob), VORQ_OK);
    return Int(Int("IsMIP") != 0 ? "MipStatus" : "LpStatus");
  }

  std::vector<double> Values() const {
    std::vector<double> values(static_cast<std::size_t>(Int("Cols")), -777.0);
    EXPECT_EQ(VORQ_GetSolution(prob, values.data()), VORQ_OK);
    return values;
  }

  // 0 values, 1 slacks, 2 duals, 3 reduced costs.
  std::vector<double> Lp(int which) const {
    std::vector<double> values(static_cast<std::size_t>(Int(which == 1 || which == 2 ? "Rows" : "Cols")), -777.0);
    double* at[4] = {};
    at[which] = values.data();
    EXPECT_EQ(VORQ_GetLpSolution(prob, at[0], at[1], at[2], at[3]), VORQ_OK);
    return values;
  }

  // The lines that the problem logs from now on.
  void ListenToLog() {
    EXPECT_EQ(
        VORQ_SetLogCallback(
            prob, [](char const* line, void* user) { static_cast<std::vector<std::string>*>(user)->push_back(line); },
            &lines),
        VORQ_OK);
  }

  // A knapsack-like problem that takes branch and cut long: market split equations with slack.
  void AddMarketSplit(int rows, int cols) {
    unsigned state = 12345;
    auto const random = [&state] {
      state = state * 1664525u + 1013904223u;
      return static_cast<double>((state >> 16) % 100);
    };
    for (int j = 0; j < cols; ++j) Col(0.0, 0.0, 1.0, 'B');
    for (int i = 0; i < rows; ++i) {
      std::vector<int> indices;
      std::vector<double> coefs;
      double sum = 0.0;
      for (int j = 0; j < cols; ++j) {
        indices.push_back(j);
        coefs.push_back(random());
        sum += coefs.back();
      }
      for (double const sign : {1.0, -1.0}) {
        indices.push_back(Col(1.0));
        coefs.push_back(sign);
      }
      Row(indices, coefs, 'E', static_cast<double>(static_cast<int>(sum / 2)));
    }
  }

  VORQ_Prob* prob = nullptr;
  std::vector<std::string> lines;

 private:
  VORQ_Env* env_ = nullptr;
};

inline auto AreClose(std::vector<double> const& expected) {
  return testing::Pointwise(testing::DoubleNear(1e-6), expected);
}
