// What a callback must not do, over the real solver library: each ends in a code, and the solve goes on.
#include <limits>
#include <thread>

#include "tests/callbacks/solver_fixture.hpp"

namespace {

using Vorq::ICallbackProxy;
using vorqtest::BinaryModel;
using vorqtest::CallbackSolverTest;
using vorqtest::Own;

class CallbackMisuseTest : public CallbackSolverTest {
 protected:
  CallbackMisuseTest() : knapsack_(Knapsack(12, 2, 1)) {}

  // Solves to the optimum, with `body` at each call, and expects that there was one.
  void At(int context, vorqtest::FunctionCallback::Body body) {
    callback_.body = std::move(body);
    knapsack_.model->SetCallback(&callback_, context);
    SolveToOptimum(*knapsack_.model, knapsack_.BestGain(Anything));
    EXPECT_GT(callback_.calls, 0);
    knapsack_.model->SetCallback(nullptr, 0);
    callback_.calls = 0;
  }

  // Each operation that needs a callback.
  void ExpectNothingWorks(ICallbackProxy& proxy) {
    double values[12];
    EXPECT_EQ(proxy.GetIntInfo("NodeCnt"), 0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to get int info in callback");
    EXPECT_EQ(proxy.GetDblInfo("BestObj"), 0.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to get double info in callback");
    EXPECT_EQ(proxy.GetIncumbent(x_.get()), 0.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to get incumbent for given var");
    EXPECT_EQ(proxy.GetRelaxSolution(knapsack_.array.get(), values, 12), -1);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to get relax solution for vars");
    EXPECT_EQ(proxy.GetSolution(values, 12), -1);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to get solution");
    proxy.AddUserCut(Term(x_).get(), 'L', 1.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add cut in callback");
    proxy.AddLazyConstr(Term(x_).get(), 'L', 1.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add lazy constraint in callback");
    proxy.AddUserCuts(Own(CreateConstrBuilderArray()).get());
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add cuts in callback");
    proxy.AddLazyConstrs(Own(CreateConstrBuilderArray()).get());
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add lazy constraints in callback");
  }

  static std::unique_ptr<Vorq::IExpr> Term(std::unique_ptr<Vorq::IVar> const& var, double coefficient = 1.0) {
    return Own(CreateLinExpr(var.get(), coefficient));
  }

  BinaryModel knapsack_;
  std::unique_ptr<Vorq::IVar> const& x_ = knapsack_.vars[0];
};

TEST_F(CallbackMisuseTest, BeforeASolveNothingWorks) {
  knapsack_.model->SetCallback(&callback_, vorqtest::kEverywhere);
  ExpectNothingWorks(*callback_.proxy);
}

TEST_F(CallbackMisuseTest, AfterASolveNothingWorks) {
  At(vorqtest::kEverywhere, {});
  ExpectNothingWorks(*callback_.proxy);
}

TEST_F(CallbackMisuseTest, WithoutAModelNothingWorks) {
  auto const proxy = Own(CreateCallbackProxy());
  double values[1];
  EXPECT_EQ(proxy->GetIncumbent(values, 1), -1);
  EXPECT_FAILURE(proxy, 3, "(INVALID) Fail to get incumbent");
  EXPECT_EQ(proxy->GetIncumbent(x_.get()), 0.0);
  EXPECT_FAILURE(proxy, 3, "(INVALID) 'var' is invalid in model");
  proxy->AddLazyConstr(Term(x_).get(), 'L', 1.0);
  EXPECT_FAILURE(proxy, 3, "(INVALID) Fail to add lazy constraint in callback");
  proxy->SetSolution(x_.get(), 1.0);
  EXPECT_FAILURE(proxy, 3, "(INVALID) Var is invalid in model");
  EXPECT_EQ(proxy->LoadSolution(), 1e30);
  EXPECT_EQ(proxy->GetIntInfo("NodeCnt"), 0);
  EXPECT_NE(proxy->GetLastError(), 0);
  proxy->Interrupt();
  EXPECT_FAILURE(proxy, 3, "(INVALID) Fail to call interrupt in callback");
}

TEST_F(CallbackMisuseTest, AfterTheModelHasGoneNothingWorks) {
  At(vorqtest::kEverywhere, {});
  knapsack_.model.reset();
  ExpectNothingWorks(*callback_.proxy);
}

TEST_F(CallbackMisuseTest, OnAnotherThreadNothingWorks) {
  At(vorqtest::kRelaxation,
     [this](ICallbackProxy& proxy) { std::thread([this, &proxy] { ExpectNothingWorks(proxy); }).join(); });
}

TEST_F(CallbackMisuseTest, UserCutsAreTakenForRelaxationsOnly) {
  At(vorqtest::kCandidate, [this](ICallbackProxy& proxy) {
    proxy.AddUserCut(Term(x_).get(), 'L', 1.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add cut in callback");
  });
}

TEST_F(CallbackMisuseTest, LazyConstraintsComeTooLateForAnIncumbent) {
  At(vorqtest::kIncumbent, [this](ICallbackProxy& proxy) {
    proxy.AddLazyConstr(Term(x_).get(), 'L', 0.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add lazy constraint in callback");
  });
}

TEST_F(CallbackMisuseTest, ThereIsNoRelaxationAtACandidate) {
  At(vorqtest::kCandidate, [this](ICallbackProxy& proxy) {
    EXPECT_EQ(proxy.GetRelaxSolution(x_.get()), 0.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to get relax solution for given var");
  });
}

TEST_F(CallbackMisuseTest, ThereIsNoCandidateAtARelaxation) {
  At(vorqtest::kRelaxation, [this](ICallbackProxy& proxy) {
    EXPECT_EQ(proxy.GetSolution(x_.get()), 0.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to get solution for given var");
  });
}

TEST_F(CallbackMisuseTest, ColumnsThatAreNotThereAreRefused) {
  BinaryModel const bigger = Knapsack(30, 1, 2);
  At(vorqtest::kRelaxation, [&](ICallbackProxy& proxy) {
    proxy.AddLazyConstr(Term(bigger.vars[29]).get(), 'L', 0.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add lazy constraint in callback");
    EXPECT_EQ(proxy.GetRelaxSolution(bigger.vars[29].get()), 0.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) 'var' is invalid in model");
    proxy.SetSolution(bigger.vars[29].get(), 1.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Var is invalid in model");
  });
}

TEST_F(CallbackMisuseTest, BadSensesAreRefused) {
  At(vorqtest::kRelaxation, [this](ICallbackProxy& proxy) {
    auto const range = Own(CreateConstrBuilder());
    range->SetRange(Term(x_).get(), 1.0);
    proxy.AddUserCut(range.get());
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add cut in callback");
    for (char const sense : {'x', '\0', '\xff'}) {
      proxy.AddUserCut(Term(x_).get(), sense, 0.0);
      EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add cut in callback");
      proxy.AddLazyConstr(Term(x_).get(), sense, 0.0);
      EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add lazy constraint in callback");
    }
  });
}

TEST_F(CallbackMisuseTest, NumbersThatAreNoneAreRefused) {
  double const nan = std::numeric_limits<double>::quiet_NaN();
  At(vorqtest::kRelaxation, [&](ICallbackProxy& proxy) {
    for (double const bad : {nan, std::numeric_limits<double>::infinity()}) {
      proxy.AddLazyConstr(Term(x_, bad).get(), 'L', 0.0);
      EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add lazy constraint in callback");
    }
    proxy.AddUserCut(Term(x_).get(), 'L', nan);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to add cut in callback");
    proxy.SetSolution(x_.get(), nan);
    EXPECT_EQ(proxy.LoadSolution(), 1e30);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to load solution in callback");
    proxy.SetSolution(x_.get(), 1e40);
  });
}

TEST_F(CallbackMisuseTest, TheModelCannotBeChangedWhileItIsSolved) {
  At(vorqtest::kRelaxation, [this](ICallbackProxy&) {
    Vorq::IModel& model = *knapsack_.model;
    Own(model.AddVar(0.0, 1.0, 1000.0, 'B', "late"));
    EXPECT_FAILURE(&model, 3, "(INVALID) Fail to add a variable");
    Own(model.AddConstr(Term(x_).get(), 0.0, 0.0, "late"));
    EXPECT_FAILURE(&model, 3, "(INVALID) Fail to add a constraint");
    model.SetObjSense(1);
    EXPECT_NE(model.GetLastError(), 0);
    x_->Set("UB", 0.0);
    EXPECT_NE(x_->GetLastError(), 0);
    model.Solve();
    EXPECT_FAILURE(&model, 3, "(INVALID) Fail to solve problem");
    model.SetCallback(nullptr, 0);
    EXPECT_FAILURE(&model, 3, "(INVALID) Fail to clean user callback");
    model.Clear();
    EXPECT_NE(model.GetLastError(), 0);
  });
}

TEST_F(CallbackMisuseTest, AMaskWithUnknownPlacesIsRefused) {
  knapsack_.model->SetCallback(&callback_, 1024);
  EXPECT_FAILURE(knapsack_.model, 3, "(INVALID) Fail to set user callback");
}

}  // namespace
