// A problem of its own for each test, and what all tests of the C functions share.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/vorq_solver.h"

class ProblemTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(VORQ_CreateEnvWithPath(nullptr, &env_), VORQ_OK);
    ASSERT_EQ(VORQ_CreateProb(env_, &prob), VORQ_OK);
    ASSERT_EQ(VORQ_SetIntParam(prob, "LogToConsole", 0), VORQ_OK);
  }

  void TearDown() override {
    EXPECT_EQ(VORQ_DeleteProb(&prob), VORQ_OK);
    EXPECT_EQ(prob, nullptr);
    EXPECT_EQ(VORQ_DeleteEnv(&env_), VORQ_OK);
  }

  void AddCols(int count, char type = 'C') {
    std::vector<char> const types(static_cast<std::size_t>(count), type);
    ASSERT_EQ(
        VORQ_AddCols(prob, count, nullptr, nullptr, nullptr, nullptr, nullptr, types.data(), nullptr, nullptr, nullptr),
        VORQ_OK);
  }

  int AddRow(std::vector<int> const& cols, std::vector<double> const& coefs, int sense = 'L', double bound = 1.0,
             double upper = 1e30, char const* name = nullptr) {
    return VORQ_AddRow(prob, static_cast<int>(cols.size()), cols.data(), coefs.data(), sense, bound, upper, name);
  }

  int Attribute(char const* name) const {
    int value = -1;
    EXPECT_EQ(VORQ_GetIntAttr(prob, name, &value), VORQ_OK) << name;
    return value;
  }

  using InfoReader = int (*)(VORQ_Prob*, char const*, int, int const*, double*);

  double Info(InfoReader reader, char const* name, int index) const {
    double value = -777.0;
    EXPECT_EQ(reader(prob, name, 1, &index, &value), VORQ_OK) << name << " of " << index;
    return value;
  }

  // The indices and coefficients of one row or column.
  using RunReader = int (*)(VORQ_Prob*, int, int const*, int*, int*, int*, double*, int, int*);

  struct Run {
    std::vector<int> indices;
    std::vector<double> coefs;
    bool operator==(Run const&) const = default;
  };

  Run Read(RunReader reader, int index) const {
    int required = -1;
    EXPECT_EQ(reader(prob, 1, &index, nullptr, nullptr, nullptr, nullptr, 0, &required), VORQ_OK);
    Run run{std::vector<int>(static_cast<std::size_t>(required)),
            std::vector<double>(static_cast<std::size_t>(required))};
    int begin = -1;
    int count = -1;
    EXPECT_EQ(reader(prob, 1, &index, &begin, &count, run.indices.data(), run.coefs.data(), required, nullptr),
              VORQ_OK);
    EXPECT_EQ(begin, 0);
    EXPECT_EQ(count, required);
    return run;
  }

  Run Row(int index) const { return Read(VORQ_GetRows, index); }
  Run Col(int index) const { return Read(VORQ_GetCols, index); }

  // The lines that the problem logs from now on.
  void ListenToLog() {
    ASSERT_EQ(VORQ_SetIntParam(prob, "Logging", 1), VORQ_OK);
    ASSERT_EQ(
        VORQ_SetLogCallback(
            prob,
            [](char const* line, void* user) { static_cast<std::vector<std::string>*>(user)->emplace_back(line); },
            &lines),
        VORQ_OK);
  }

  VORQ_Prob* prob = nullptr;
  std::vector<std::string> lines;

 private:
  VORQ_Env* env_ = nullptr;
};
