// CallbackSolverTest: the base of tests of callbacks over the real solver library.
#pragma once

#include <vorq>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

#include "tests/support/function_callback.hpp"
#include "tests/support/objects.hpp"

namespace vorqtest {

// Where the solver calls back.
inline constexpr int kRelaxation = 1;
inline constexpr int kCandidate = 2;
inline constexpr int kIncumbent = 4;
inline constexpr int kEverywhere = -1;

// Ends of a MIP solve.
inline constexpr int kOptimal = 1;
inline constexpr int kInterrupted = 10;

// A model of binary variables, with its data.
struct BinaryModel {
  std::unique_ptr<Vorq::IModel> model;
  std::vector<std::unique_ptr<Vorq::IVar>> vars;
  std::unique_ptr<Vorq::IVarArray> array;
  std::vector<double> gains;
  std::vector<std::vector<double>> weights;
  std::vector<double> limits;

  // The weights fit, and so does whatever `accepts` says of the chosen ones.
  double BestGain(auto&& accepts) const {
    double best = -1e30;
    for (unsigned chosen = 0; chosen < 1u << vars.size(); ++chosen) {
      auto const total = [&](std::vector<double> const& numbers) {
        double sum = 0.0;
        for (std::size_t i = 0; i < numbers.size(); ++i) sum += (chosen >> i & 1u) != 0 ? numbers[i] : 0.0;
        return sum;
      };
      bool fits = accepts(chosen);
      for (std::size_t row = 0; row < weights.size(); ++row) fits = fits && total(weights[row]) <= limits[row];
      if (fits) best = std::max(best, total(gains));
    }
    return best;
  }
};

class CallbackSolverTest : public testing::Test {
 protected:
  // A knapsack with several limits: the greatest gain.
  BinaryModel Knapsack(int items, int rows, unsigned seed) {
    std::mt19937 random(seed);
    BinaryModel result;
    result.model = Own(envr_->CreateModel("knapsack"));
    result.model->SetIntParam("LogToConsole", 0);
    result.model->SetDblParam("RelGap", 0.0);
    result.array = Own(CreateVarArray());
    for (int i = 0; i < items; ++i) {
      result.gains.push_back(static_cast<double>(10 + random() % 40));
      result.vars.push_back(Own(result.model->AddVar(0.0, 1.0, result.gains.back(), 'B', nullptr)));
      result.array->PushBack(*result.vars.back());
    }
    for (int row = 0; row < rows; ++row) {
      std::vector<double>& weights = result.weights.emplace_back();
      double all = 0.0;
      auto const sum = Own(CreateExpr(0.0));
      for (int i = 0; i < items; ++i) {
        weights.push_back(static_cast<double>(5 + random() % 30));
        all += weights.back();
        sum->AddTerm(result.vars[i].get(), weights.back());
      }
      result.limits.push_back(std::floor(all / 3.0));
      Own(result.model->AddConstr(sum.get(), 'L', result.limits.back(), nullptr));
    }
    result.model->SetObjSense(-1);
    return result;
  }

  // A search that does not end by itself in the time of a test: equations that hardly any choice satisfies (Cornuejols
  // and Dawande, A class of hard small 0-1 programs, 1998), with slack that is to be small.
  BinaryModel Endless() {
    constexpr int kItems = 50;
    std::mt19937 random(5);
    BinaryModel result;
    result.model = Own(envr_->CreateModel("endless"));
    result.model->SetIntParam("LogToConsole", 0);
    for (int i = 0; i < kItems; ++i) result.vars.push_back(Own(result.model->AddVar(0.0, 1.0, 0.0, 'B', nullptr)));
    for (int row = 0; row < 6; ++row) {
      auto const sum = Own(CreateExpr(0.0));
      double half = 0.0;
      for (int i = 0; i < kItems; ++i) {
        auto const weight = static_cast<double>(random() % 100);
        sum->AddTerm(result.vars[i].get(), weight);
        half += weight / 2.0;
      }
      for (double const sign : {1.0, -1.0}) {
        auto const slack = Own(result.model->AddVar(0.0, 1e30, 1.0, 'C', nullptr));
        sum->AddTerm(slack.get(), sign);
      }
      Own(result.model->AddConstr(sum.get(), 'E', std::floor(half), nullptr));
    }
    return result;
  }

  static void SolveToOptimum(Vorq::IModel& model, double gain) {
    model.Solve();
    EXPECT_SUCCESS(&model);
    EXPECT_EQ(model.GetIntAttr("MipStatus"), kOptimal);
    EXPECT_NEAR(model.GetDblAttr("BestObj"), gain, 1e-6);
  }

  static bool Anything(unsigned) { return true; }

  SilentSink sink_;
  std::unique_ptr<Vorq::IEnvr> envr_{CreateEnvr(&sink_)};
  FunctionCallback callback_;
};

}  // namespace vorqtest
