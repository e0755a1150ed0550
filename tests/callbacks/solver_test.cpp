// What a callback may do, over the real solver library: places, information, solutions, interruption, exceptions.
#include <atomic>
#include <chrono>
#include <cmath>
#include <future>
#include <stdexcept>
#include <thread>

#include "tests/callbacks/solver_fixture.hpp"

namespace {

using Vorq::ICallbackProxy;
using vorqtest::BinaryModel;
using vorqtest::CallbackSolverTest;
using vorqtest::FunctionCallback;
using vorqtest::Own;

// ---- Places

TEST_F(CallbackSolverTest, TheMaskChoosesThePlaces) {
  for (int const context : {vorqtest::kRelaxation, vorqtest::kCandidate, vorqtest::kIncumbent}) {
    BinaryModel const knapsack = Knapsack(12, 2, 1);
    callback_.calls = 0;
    callback_.body = [context](ICallbackProxy& proxy) { EXPECT_EQ(proxy.GetContext(), context); };
    knapsack.model->SetCallback(&callback_, context);
    SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything));
    EXPECT_GT(callback_.calls, 0) << context;
  }
}

TEST_F(CallbackSolverTest, ACallbackThatIsTakenAwayIsNotCalled) {
  BinaryModel const knapsack = Knapsack(12, 2, 1);
  knapsack.model->SetCallback(&callback_, vorqtest::kEverywhere);
  knapsack.model->SetCallback(nullptr, 0);
  SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything));
  EXPECT_EQ(callback_.calls, 0);
}

TEST_F(CallbackSolverTest, ModelsWithoutIntegersAreSolvedWithoutCalls) {
  BinaryModel const knapsack = Knapsack(12, 2, 1);
  for (auto const& var : knapsack.vars) var->SetType('C');
  knapsack.model->SetCallback(&callback_, vorqtest::kEverywhere);
  knapsack.model->Solve();
  EXPECT_SUCCESS(knapsack.model);
  EXPECT_EQ(callback_.calls, 0);
}

// ---- Information and vectors

TEST_F(CallbackSolverTest, InformationHasItsTypes) {
  BinaryModel const knapsack = Knapsack(12, 2, 1);
  knapsack.model->SetCallback(&callback_, vorqtest::kEverywhere);
  EXPECT_EQ(callback_.proxy->SearchInfo("NodeCnt"), 0);
  EXPECT_EQ(callback_.proxy->SearchInfo("BestObj"), 1);
  EXPECT_EQ(callback_.proxy->SearchInfo("Incumbent"), 9);
  EXPECT_EQ(callback_.proxy->SearchInfo("MipCandidate"), 9);
  EXPECT_EQ(callback_.proxy->SearchInfo("RelaxSolution"), 9);
  EXPECT_EQ(callback_.proxy->SearchInfo("nothing"), -1);
}

TEST_F(CallbackSolverTest, InformationOfATypeIsRefusedAsAnother) {
  BinaryModel const knapsack = Knapsack(12, 2, 1);
  callback_.body = [](ICallbackProxy& proxy) {
    EXPECT_EQ(proxy.GetIntInfo("BestObj"), 0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) The info name does not have int type");
    EXPECT_EQ(proxy.GetDblInfo("NodeCnt"), 0.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) The info name does not have double type");
    EXPECT_EQ(proxy.GetDblInfo("nothing"), 0.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Unknown name of callback info");
  };
  knapsack.model->SetCallback(&callback_, vorqtest::kRelaxation);
  knapsack.model->Solve();
  EXPECT_GT(callback_.calls, 0);
}

TEST_F(CallbackSolverTest, BoundAndIncumbentCloseInOnTheOptimum) {
  BinaryModel const knapsack = Knapsack(15, 3, 4);
  double const best = knapsack.BestGain(Anything);
  double lastObjective = -1e30;
  callback_.body = [&](ICallbackProxy& proxy) {
    double const objective = proxy.GetDblInfo("BestObj");
    EXPECT_SUCCESS(&proxy);
    EXPECT_GE(objective, lastObjective);
    EXPECT_LE(objective, best + 1e-6);
    EXPECT_GE(proxy.GetDblInfo("BestBnd"), best - 1e-6);
    EXPECT_GE(proxy.GetIntInfo("NodeCnt"), 0);
    lastObjective = objective;
  };
  knapsack.model->SetCallback(&callback_, vorqtest::kIncumbent);
  SolveToOptimum(*knapsack.model, best);
  EXPECT_NEAR(lastObjective, best, 1e-6);
}

TEST_F(CallbackSolverTest, VectorsSatisfyTheModel) {
  BinaryModel const knapsack = Knapsack(15, 3, 4);
  auto const load = [&](std::vector<double> const& values, std::vector<double> const& numbers) {
    double sum = 0.0;
    for (std::size_t i = 0; i < values.size(); ++i) sum += values[i] * numbers[i];
    return sum;
  };
  callback_.body = [&](ICallbackProxy& proxy) {
    std::vector<double> values(15);
    bool const isRelaxation = proxy.GetContext() == vorqtest::kRelaxation;
    int const count = isRelaxation ? proxy.GetRelaxSolution(values.data(), 15) : proxy.GetSolution(values.data(), 15);
    ASSERT_EQ(count, 15);
    for (std::size_t row = 0; row < knapsack.limits.size(); ++row) {
      EXPECT_LE(load(values, knapsack.weights[row]), knapsack.limits[row] + 1e-6);
    }
    EXPECT_NEAR(load(values, knapsack.gains), proxy.GetDblInfo(isRelaxation ? "RelaxSolutionObj" : "MipCandidateObj"),
                1e-6);
    for (double const value : values) {
      EXPECT_GE(value, -1e-6);
      EXPECT_LE(value, 1.0 + 1e-6);
      EXPECT_TRUE(isRelaxation || std::abs(value - std::round(value)) < 1e-6) << value;
    }
    EXPECT_EQ(isRelaxation ? proxy.GetRelaxSolution(knapsack.vars[3].get()) : proxy.GetSolution(knapsack.vars[3].get()),
              values[3]);
  };
  knapsack.model->SetCallback(&callback_, vorqtest::kRelaxation + vorqtest::kCandidate);
  SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything));
}

TEST_F(CallbackSolverTest, TheLastIncumbentIsTheSolution) {
  BinaryModel const knapsack = Knapsack(15, 3, 4);
  std::vector<double> incumbent(15);
  callback_.body = [&](ICallbackProxy& proxy) { ASSERT_EQ(proxy.GetIncumbent(incumbent.data(), 15), 15); };
  knapsack.model->SetCallback(&callback_, vorqtest::kIncumbent);
  SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything));
  for (std::size_t i = 0; i < incumbent.size(); ++i) EXPECT_NEAR(knapsack.vars[i]->Get("Value"), incumbent[i], 1e-6);
}

// ---- Columns

TEST_F(CallbackSolverTest, ColumnsMayComeAndGoAfterTheCallbackWasSet) {
  BinaryModel knapsack = Knapsack(12, 2, 1);
  knapsack.model->SetCallback(&callback_, vorqtest::kRelaxation);
  auto const late = Own(knapsack.model->AddVar(0.0, 5.0, 1.0, 'I', "late"));
  int columns = 13;
  callback_.body = [&](ICallbackProxy& proxy) {
    EXPECT_EQ(proxy.GetRelaxSolution(nullptr, 0), columns);
    EXPECT_NEAR(proxy.GetRelaxSolution(late.get()), 5.0, 1e-6);
  };
  SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything) + 5.0);
  knapsack.vars[0]->Remove();
  columns = 12;
  SolveToOptimum(*knapsack.model, knapsack.BestGain([](unsigned chosen) { return (chosen & 1u) == 0; }) + 5.0);
  EXPECT_GT(callback_.calls, 0);
}

// ---- Offered solutions

TEST_F(CallbackSolverTest, AnOfferedSolutionBecomesTheIncumbent) {
  BinaryModel const knapsack = Knapsack(15, 3, 4);
  double const best = knapsack.BestGain(Anything);
  std::vector<double> optimum(15);
  SolveToOptimum(*knapsack.model, best);
  knapsack.model->GetSolution(optimum.data());
  knapsack.model->ResetAll();

  double offered = 0.0;
  int incumbents = 0;
  callback_.body = [&](ICallbackProxy& proxy) {
    if (proxy.GetContext() == vorqtest::kIncumbent) {
      ++incumbents;
      return;
    }
    if (offered != 0.0) return;
    proxy.SetSolution(knapsack.array.get(), optimum.data(), 15);
    EXPECT_SUCCESS(&proxy);
    offered = proxy.LoadSolution();
    EXPECT_SUCCESS(&proxy);
  };
  knapsack.model->SetCallback(&callback_, vorqtest::kRelaxation + vorqtest::kIncumbent);
  SolveToOptimum(*knapsack.model, best);
  EXPECT_NEAR(offered, best, 1e-6);
  EXPECT_GT(incumbents, 0);
}

TEST_F(CallbackSolverTest, APartOfASolutionIsCompleted) {
  BinaryModel const knapsack = Knapsack(15, 3, 4);
  double objective = 1e30;
  callback_.body = [&](ICallbackProxy& proxy) {
    proxy.SetSolution(knapsack.vars[0].get(), 1.0);
    objective = proxy.LoadSolution();
    EXPECT_SUCCESS(&proxy);
  };
  knapsack.model->SetCallback(&callback_, vorqtest::kRelaxation);
  SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything));
  EXPECT_LE(objective, knapsack.BestGain([](unsigned chosen) { return (chosen & 1u) != 0; }) + 1e-6);
}

TEST_F(CallbackSolverTest, AnInfeasibleSolutionIsNotTaken) {
  BinaryModel const knapsack = Knapsack(12, 2, 1);
  std::vector<double> const all(12, 1.0);
  callback_.body = [&](ICallbackProxy& proxy) {
    proxy.SetSolution(knapsack.array.get(), all.data(), 12);
    EXPECT_EQ(proxy.LoadSolution(), 1e30);
  };
  knapsack.model->SetCallback(&callback_, vorqtest::kRelaxation);
  SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything));
}

// ---- Interruption

TEST_F(CallbackSolverTest, ACallbackMayInterrupt) {
  BinaryModel const endless = Endless();
  callback_.body = [](ICallbackProxy& proxy) {
    proxy.Interrupt();
    EXPECT_SUCCESS(&proxy);
  };
  endless.model->SetCallback(&callback_, vorqtest::kRelaxation);
  endless.model->Solve();
  EXPECT_SUCCESS(endless.model);
  EXPECT_EQ(endless.model->GetIntAttr("MipStatus"), vorqtest::kInterrupted);
}

TEST_F(CallbackSolverTest, AnInterruptedModelIsSolvedAgain) {
  BinaryModel const knapsack = Knapsack(15, 3, 4);
  callback_.body = [](ICallbackProxy& proxy) { proxy.Interrupt(); };
  knapsack.model->SetCallback(&callback_, vorqtest::kRelaxation);
  knapsack.model->Solve();
  EXPECT_SUCCESS(knapsack.model);
  callback_.body = {};
  SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything));
}

// Runs an endless solve and, once it has called back, `interrupt` on another thread.
void InterruptFromOutside(BinaryModel const& endless, FunctionCallback& callback,
                          std::function<void()> const& interrupt) {
  std::promise<void> running;
  callback.body = [&](ICallbackProxy&) {
    if (callback.calls == 3) running.set_value();
  };
  endless.model->SetCallback(&callback, vorqtest::kRelaxation);
  std::thread other([&] {
    running.get_future().wait();
    interrupt();
  });
  auto const begin = std::chrono::steady_clock::now();
  endless.model->SetDblParam("TimeLimit", 60.0);
  endless.model->Solve();
  other.join();
  EXPECT_SUCCESS(endless.model);
  EXPECT_EQ(endless.model->GetIntAttr("MipStatus"), vorqtest::kInterrupted);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(50));
}

TEST_F(CallbackSolverTest, AnotherThreadMayInterruptThroughTheProxy) {
  BinaryModel const endless = Endless();
  InterruptFromOutside(endless, callback_, [this] { callback_.proxy->Interrupt(); });
}

TEST_F(CallbackSolverTest, AnotherThreadMayInterruptThroughTheModel) {
  BinaryModel const endless = Endless();
  InterruptFromOutside(endless, callback_, [&endless] { endless.model->Interrupt(); });
}

// ---- Exceptions

struct Thrown {
  int number;
};

TEST_F(CallbackSolverTest, ExceptionsComeOutOfTheSolveFromEachPlace) {
  for (int const context : {vorqtest::kRelaxation, vorqtest::kCandidate, vorqtest::kIncumbent}) {
    SCOPED_TRACE(context);
    BinaryModel const knapsack = Knapsack(15, 3, 4);
    callback_.body = [context](ICallbackProxy&) { throw Thrown{context}; };
    knapsack.model->SetCallback(&callback_, context);
    for (int round = 0; round < 3; ++round) {
      try {
        knapsack.model->Solve();
        ADD_FAILURE() << "nothing was thrown";
      } catch (Thrown const& thrown) {
        EXPECT_EQ(thrown.number, context);
      }
    }
    callback_.body = {};
    SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything));
  }
}

TEST_F(CallbackSolverTest, AfterAnExceptionTheModelIsChangedAndSolved) {
  BinaryModel const knapsack = Knapsack(12, 2, 1);
  callback_.body = [this](ICallbackProxy&) {
    if (callback_.calls == 2) throw std::runtime_error("from the callback");
  };
  knapsack.model->SetCallback(&callback_, vorqtest::kEverywhere);
  EXPECT_THROW(knapsack.model->Solve(), std::runtime_error);
  EXPECT_EQ(knapsack.model->GetIntAttr("MipStatus"), 0);
  EXPECT_EQ(knapsack.model->GetIntAttr("HasMipSol"), 0);
  auto const late = Own(knapsack.model->AddVar(0.0, 5.0, 1.0, 'I', "late"));
  EXPECT_SUCCESS(knapsack.model);
  knapsack.model->SetCallback(nullptr, 0);
  SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything) + 5.0);
}

TEST_F(CallbackSolverTest, AnExceptionMayPassThroughTwoSolves) {
  BinaryModel const outer = Knapsack(12, 2, 1);
  BinaryModel const inner = Knapsack(12, 2, 2);
  FunctionCallback innerCallback([](ICallbackProxy&) { throw Thrown{42}; });
  inner.model->SetCallback(&innerCallback, vorqtest::kRelaxation);
  callback_.body = [&inner](ICallbackProxy&) { inner.model->Solve(); };
  outer.model->SetCallback(&callback_, vorqtest::kRelaxation);
  EXPECT_THROW(outer.model->Solve(), Thrown);
  innerCallback.body = {};
  SolveToOptimum(*outer.model, outer.BestGain(Anything));
  EXPECT_NEAR(inner.model->GetDblAttr("BestObj"), inner.BestGain(Anything), 1e-6);
}

// ---- Several models and threads

TEST_F(CallbackSolverTest, TwoModelsAreSolvedInTwoThreads) {
  auto const solve = [](BinaryModel const& knapsack) {
    FunctionCallback callback([&knapsack](ICallbackProxy& proxy) {
      EXPECT_EQ(proxy.GetRelaxSolution(nullptr, 0), static_cast<int>(knapsack.vars.size()));
    });
    knapsack.model->SetCallback(&callback, vorqtest::kRelaxation);
    SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything));
    EXPECT_GT(callback.calls, 0);
    knapsack.model->SetCallback(nullptr, 0);
  };
  BinaryModel const first = Knapsack(15, 3, 4);
  BinaryModel const second = Knapsack(12, 2, 1);
  std::thread other([&] { solve(first); });
  solve(second);
  other.join();
}

TEST_F(CallbackSolverTest, OneCallbackServesModelsOneAfterAnother) {
  BinaryModel const first = Knapsack(15, 3, 4);
  BinaryModel const second = Knapsack(12, 2, 1);
  first.model->SetCallback(&callback_, vorqtest::kRelaxation);
  second.model->SetCallback(&callback_, vorqtest::kRelaxation);
  int columns = 15;
  callback_.body = [&columns](ICallbackProxy& proxy) { EXPECT_EQ(proxy.GetRelaxSolution(nullptr, 0), columns); };
  SolveToOptimum(*first.model, first.BestGain(Anything));
  columns = 12;
  SolveToOptimum(*second.model, second.BestGain(Anything));
}

}  // namespace
