// The callback proxy over the recording double: its life, information, fetched vectors, solutions to offer.
#include <gmock/gmock.h>

#include <stdexcept>
#include <thread>

#include "tests/model/callback_fixture.hpp"

namespace {

using testing::ElementsAre;
using Vorq::ICallbackProxy;
using vorqtest::CallbackTest;
using vorqtest::FunctionCallback;
using vorqtest::Own;

// ---- Setting and calling

TEST_F(CallbackTest, SettingACallbackIsOneCall) {
  model_->SetCallback(&callback_, 7);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_SetCallback(prob#1, function, 7, user)"});
}

TEST_F(CallbackTest, NullTakesTheCallbackAway) {
  model_->SetCallback(nullptr, 7);
  EXPECT_CALLS(double_, {"VORQ_SetCallback(prob#1, null, 0, null)"});
  model_->Solve();
  EXPECT_EQ(callback_.calls, 0);
}

TEST_F(CallbackTest, RefusedCallbacksHaveTheirTexts) {
  double_.FailNext("VORQ_SetCallback", VORQ_MEMORY);
  model_->SetCallback(&callback_, kPlace);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to set user callback");
  double_.FailNext("VORQ_SetCallback", VORQ_INTERNAL);
  model_->SetCallback(nullptr, 0);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to clean user callback");
}

TEST_F(CallbackTest, AnObjectWithoutAProxyIsRefused) {
  FunctionCallback bare;
  bare.proxy.reset();
  model_->SetCallback(&bare, kPlace);
  EXPECT_FAILURE(model_, 3, "(INVALID) The callback object has no proxy");
  EXPECT_CALLS(double_, {});
  model_->Solve();
  EXPECT_EQ(callback_.calls, 1);
}

TEST_F(CallbackTest, RunsAtTheChosenPlacesAndKnowsThem) {
  std::vector<int> places;
  callback_.body = [&](ICallbackProxy& proxy) { places.push_back(proxy.GetContext()); };
  model_->SetCallback(&callback_, 6);
  double_.SolveCallsBack({1, 2, 4, 2});
  model_->Solve();
  EXPECT_SUCCESS(model_);
  EXPECT_THAT(places, ElementsAre(2, 4, 2));
  EXPECT_EQ(Proxy().GetContext(), 2);
}

TEST_F(CallbackTest, NothingIsCalledForACallbackThatDoesNothing) {
  model_->Solve();
  EXPECT_CALLS(double_, {"VORQ_Solve(prob#1)"});
  EXPECT_EQ(double_.RunCallback(kPlace), 0);
}

TEST_F(CallbackTest, ClearTakesTheCallbackAway) {
  model_->Clear();
  double_.ClearLog();
  double_.SolveCallsBack({kPlace});
  model_->Solve();
  EXPECT_EQ(callback_.calls, 0);
  // The proxy is not told of columns any more.
  std::vector<Var> const vars = AddVars(2);
  vars[0]->Remove();
  model_->Solve();
  callback_.proxy->SetSolution(vars[1].get(), 1.0);
  EXPECT_SUCCESS(callback_.proxy);
}

TEST_F(CallbackTest, CopiesOfAModelHaveNoCallback) {
  auto const copy = Own(model_->Clone());
  copy->Solve();
  EXPECT_EQ(callback_.calls, 0);
}

TEST_F(CallbackTest, FailuresGoToTheProxyAlone) {
  InCallback([](ICallbackProxy& proxy) { proxy.GetIntInfo("nothing"); });
  EXPECT_FAILURE(callback_.proxy, 3, "(INVALID) Unknown name of callback info");
  EXPECT_SUCCESS(model_);
}

// ---- Exceptions

TEST_F(CallbackTest, ExceptionsOfTheCallbackPassThroughTheSolve) {
  struct Thrown {
    int number;
  };
  callback_.body = [](ICallbackProxy&) { throw Thrown{17}; };
  try {
    model_->Solve();
    FAIL() << "nothing was thrown";
  } catch (Thrown const& thrown) {
    EXPECT_EQ(thrown.number, 17);
  }
  callback_.body = {};
  model_->Solve();
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(callback_.calls, 2);
}

TEST_F(CallbackTest, AnExceptionForgetsWhatWasFetchedAndOffersNothing) {
  double_.CallbackVector("Incumbent", {1, 2, 3});
  callback_.body = [this](ICallbackProxy& proxy) {
    proxy.GetIncumbent(x_.get());
    proxy.SetSolution(x_.get(), 4.0);
    throw std::runtime_error("from the callback");
  };
  EXPECT_THROW(model_->Solve(), std::runtime_error);
  EXPECT_EQ(double_.CountCalls("VORQ_AddCallbackSolution"), 0u);
  double_.CallbackVector("Incumbent", {5, 6, 7});
  InCallback([this](ICallbackProxy& proxy) { EXPECT_EQ(proxy.GetIncumbent(x_.get()), 5.0); });
}

// ---- Information

TEST_F(CallbackTest, InformationIsReadByItsType) {
  double_.CallbackInt("NodeCnt", 3).CallbackDbl("BestObj", 2.5);
  InCallback([](ICallbackProxy& proxy) {
    EXPECT_EQ(proxy.GetIntInfo("NodeCnt"), 3);
    EXPECT_SUCCESS(&proxy);
    EXPECT_EQ(proxy.GetDblInfo("BestObj"), 2.5);
    EXPECT_SUCCESS(&proxy);
  });
  EXPECT_CALLS(
      double_,
      {R"(VORQ_SearchCallbackInfo(prob#1, "NodeCnt", out, out))", R"(VORQ_GetCallbackInfo(data#1, "NodeCnt", out))",
       R"(VORQ_SearchCallbackInfo(prob#1, "BestObj", out, out))", R"(VORQ_GetCallbackInfo(data#1, "BestObj", out))"});
}

TEST_F(CallbackTest, InformationOfAnotherTypeIsNotRead) {
  double_.CallbackInt("NodeCnt", 3).CallbackDbl("BestObj", 2.5).CallbackVector("Incumbent", {1, 2, 3});
  InCallback([](ICallbackProxy& proxy) {
    for (char const* name : {"BestObj", "Incumbent"}) {
      EXPECT_EQ(proxy.GetIntInfo(name), 0);
      EXPECT_FAILURE(&proxy, 3, "(INVALID) The info name does not have int type");
    }
    for (char const* name : {"NodeCnt", "Incumbent"}) {
      EXPECT_EQ(proxy.GetDblInfo(name), 0.0);
      EXPECT_FAILURE(&proxy, 3, "(INVALID) The info name does not have double type");
    }
  });
  EXPECT_EQ(double_.CountCalls("VORQ_GetCallbackInfo"), 0u);
}

TEST_F(CallbackTest, UnknownInformationIsRefused) {
  InCallback([](ICallbackProxy& proxy) {
    EXPECT_EQ(proxy.GetIntInfo("nothing"), 0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Unknown name of callback info");
    EXPECT_EQ(proxy.GetDblInfo("nothing"), 0.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Unknown name of callback info");
  });
}

TEST_F(CallbackTest, InformationThatCannotBeReadHasItsText) {
  double_.CallbackInt("NodeCnt", 3).CallbackDbl("BestObj", 2.5);
  InCallback([this](ICallbackProxy& proxy) {
    double_.FailNext("VORQ_GetCallbackInfo", VORQ_INTERNAL);
    EXPECT_EQ(proxy.GetIntInfo("NodeCnt"), 0);
    EXPECT_FAILURE(&proxy, 5, "(INTERNAL) Fail to get int info in callback");
    double_.FailNext("VORQ_GetCallbackInfo", VORQ_INTERNAL);
    EXPECT_EQ(proxy.GetDblInfo("BestObj"), 0.0);
    EXPECT_FAILURE(&proxy, 5, "(INTERNAL) Fail to get double info in callback");
  });
}

TEST_F(CallbackTest, SearchPacksTypeAndDimension) {
  double_.CallbackInt("NodeCnt", 3).CallbackDbl("BestObj", 2.5).CallbackVector("Incumbent", {1, 2, 3});
  EXPECT_EQ(Proxy().SearchInfo("NodeCnt"), 0);
  EXPECT_EQ(Proxy().SearchInfo("BestObj"), 1);
  EXPECT_EQ(Proxy().SearchInfo("Incumbent"), 9);
  EXPECT_EQ(Proxy().SearchInfo("nothing"), -1);
  EXPECT_SUCCESS(callback_.proxy);
}

TEST_F(CallbackTest, SearchNeedsBothTypeAndDimension) {
  double_.AnswerNext("VORQ_SearchCallbackInfo").Set("type", 1).Set("dim", -1);
  EXPECT_EQ(Proxy().SearchInfo("odd"), -1);
  double_.AnswerNext("VORQ_SearchCallbackInfo").Set("type", -1).Set("dim", 0);
  EXPECT_EQ(Proxy().SearchInfo("odd"), -1);
  double_.AnswerNext("VORQ_SearchCallbackInfo").Set("type", 2).Set("dim", 3);
  EXPECT_EQ(Proxy().SearchInfo("odd"), 26);
}

TEST_F(CallbackTest, SearchThatFailsHasItsText) {
  double_.FailNext("VORQ_SearchCallbackInfo", VORQ_MEMORY);
  EXPECT_EQ(Proxy().SearchInfo("NodeCnt"), -1);
  EXPECT_FAILURE(callback_.proxy, 1, "(MEMORY) Fail to get type of callback info");
}

TEST_F(CallbackTest, InterruptIsOneCallWithItsText) {
  InCallback([](ICallbackProxy& proxy) {
    proxy.Interrupt();
    EXPECT_SUCCESS(&proxy);
  });
  EXPECT_CALLS(double_, {"VORQ_Interrupt(prob#1)"});
  double_.FailNext("VORQ_Interrupt", VORQ_THREAD);
  Proxy().Interrupt();
  EXPECT_FAILURE(callback_.proxy, 6, "(THREAD) Fail to call interrupt in callback");
}

TEST_F(CallbackTest, InterruptFromAnotherThreadLeavesTheStatusToTheCallback) {
  InCallback([this](ICallbackProxy& proxy) {
    proxy.GetIntInfo("nothing");
    double_.FailNext("VORQ_Interrupt", VORQ_THREAD);
    std::thread([&proxy] { proxy.Interrupt(); }).join();
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Unknown name of callback info");
  });
  EXPECT_CALLS_OF(double_, "VORQ_Interrupt", {"VORQ_Interrupt(prob#1)"});
}

// ---- Fetched vectors

// One of the three vectors, with its readers.
struct Vector {
  char const* name;
  double (ICallbackProxy::*one)(Vorq::IVar*);
  int (ICallbackProxy::*some)(Vorq::IVarArray*, double*, int);
  int (ICallbackProxy::*all)(double*, int);
  char const* oneFailed;
  char const* someFailed;
  char const* allFailed;
  char const* invalidVar;
};

constexpr Vector kVectors[] = {
    {"Incumbent", &ICallbackProxy::GetIncumbent, &ICallbackProxy::GetIncumbent, &ICallbackProxy::GetIncumbent,
     "(MEMORY) Fail to get incumbent for given var", "(MEMORY) Fail to get incumbent for vars",
     "(MEMORY) Fail to get incumbent", "(INVALID) 'var' is invalid in model"},
    {"RelaxSolution", &ICallbackProxy::GetRelaxSolution, &ICallbackProxy::GetRelaxSolution,
     &ICallbackProxy::GetRelaxSolution, "(MEMORY) Fail to get relax solution for given var",
     "(MEMORY) Fail to get relax solution for vars", "(MEMORY) Fail to get relax solution",
     "(INVALID) 'var' is invalid in model"},
    {"MipCandidate", &ICallbackProxy::GetSolution, &ICallbackProxy::GetSolution, &ICallbackProxy::GetSolution,
     "(MEMORY) Fail to get solution for given var", "(MEMORY) Fail to get solution for vars",
     "(MEMORY) Fail to get solution", "(INVALID) Var is invalid in model"},
};

class CallbackVectorTest : public CallbackTest, public testing::WithParamInterface<Vector> {
 protected:
  CallbackVectorTest() { double_.CallbackVector(GetParam().name, {10, 11, 12}); }

  double One(ICallbackProxy& proxy, Var const& var) { return (proxy.*GetParam().one)(var.get()); }
  int Some(ICallbackProxy& proxy, Vorq::IVarArray& vars, double* out, int len) {
    return (proxy.*GetParam().some)(&vars, out, len);
  }
  int All(ICallbackProxy& proxy, double* out, int len) { return (proxy.*GetParam().all)(out, len); }

  std::string Fetch(int data) {
    return "VORQ_GetCallbackInfo(data#" + std::to_string(data) + ", \"" + GetParam().name + "\", out)";
  }

  double values_[4] = {-1, -1, -1, -1};
};

INSTANTIATE_TEST_SUITE_P(Callback, CallbackVectorTest, testing::ValuesIn(kVectors),
                         [](auto const& kind) { return std::string(kind.param.name); });

TEST_P(CallbackVectorTest, IsFetchedOnceInACallback) {
  auto const both = ArrayOf({y_.get(), x_.get()});
  InCallback([&](ICallbackProxy& proxy) {
    EXPECT_EQ(One(proxy, x_), 10.0);
    EXPECT_EQ(One(proxy, z_), 12.0);
    EXPECT_EQ(Some(proxy, *both, values_, 2), 2);
    EXPECT_THAT(values_, ElementsAre(11, 10, -1, -1));
    EXPECT_EQ(All(proxy, values_, 3), 3);
    EXPECT_THAT(values_, ElementsAre(10, 11, 12, -1));
    EXPECT_SUCCESS(&proxy);
  });
  EXPECT_CALLS(double_, {Fetch(1)});
}

TEST_P(CallbackVectorTest, IsFetchedAnewInTheNextCallback) {
  InCallback([&](ICallbackProxy& proxy) { EXPECT_EQ(One(proxy, x_), 10.0); });
  EXPECT_CALLS(double_, {Fetch(1)});
  double_.CallbackVector(GetParam().name, {20, 21, 22});
  InCallback([&](ICallbackProxy& proxy) { EXPECT_EQ(One(proxy, x_), 20.0); });
  EXPECT_CALLS(double_, {Fetch(2)});
}

TEST_P(CallbackVectorTest, WithoutABufferIsFetchedAndCounted) {
  InCallback([&](ICallbackProxy& proxy) { EXPECT_EQ(All(proxy, nullptr, 0), 3); });
  EXPECT_CALLS(double_, {Fetch(1)});
}

TEST_P(CallbackVectorTest, IsCopiedAsFarAsTheBufferReaches) {
  InCallback([&](ICallbackProxy& proxy) {
    EXPECT_EQ(All(proxy, values_, 2), 3);
    EXPECT_THAT(values_, ElementsAre(10, 11, -1, -1));
    EXPECT_EQ(All(proxy, values_ + 2, 0), 3);
    EXPECT_EQ(All(proxy, values_ + 2, -5), 3);
    EXPECT_THAT(values_, ElementsAre(10, 11, -1, -1));
    EXPECT_EQ(All(proxy, values_, 4), 3);
    EXPECT_THAT(values_, ElementsAre(10, 11, 12, -1));
  });
}

TEST_P(CallbackVectorTest, RemovedVariablesLeaveNoGap) {
  InCallback([&](ICallbackProxy& proxy) {
    auto const three = ArrayOf({x_.get(), y_.get(), z_.get()});
    y_->Remove();
    EXPECT_EQ(Some(proxy, *three, values_, 2), 2);
    EXPECT_THAT(values_, ElementsAre(10, 12, -1, -1));
    EXPECT_SUCCESS(&proxy);
  });
}

TEST_P(CallbackVectorTest, LengthOfTheBufferOfAnArrayIsNotLookedAt) {
  InCallback([&](ICallbackProxy& proxy) {
    EXPECT_EQ(Some(proxy, *ArrayOf({x_.get(), y_.get()}), values_, -1), 2);
    EXPECT_THAT(values_, ElementsAre(10, 11, -1, -1));
  });
}

TEST_P(CallbackVectorTest, AnEmptyArrayFetchesAndReadsNothing) {
  InCallback([&](ICallbackProxy& proxy) { EXPECT_EQ(Some(proxy, *Own(CreateVarArray()), values_, 4), 0); });
  EXPECT_CALLS(double_, {Fetch(1)});
}

TEST_P(CallbackVectorTest, AnArrayNeedsABuffer) {
  InCallback([&](ICallbackProxy& proxy) {
    EXPECT_EQ(Some(proxy, *ArrayOf({x_.get()}), nullptr, 1), -1);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Invalid arguments");
  });
  EXPECT_CALLS(double_, {});
}

TEST_P(CallbackVectorTest, AVariableThatIsNotInTheModelIsRefused) {
  y_->Remove();
  InCallback([&](ICallbackProxy& proxy) {
    EXPECT_EQ(One(proxy, y_), 0.0);
    EXPECT_FAILURE(&proxy, 3, GetParam().invalidVar);
    Var const stranger = Own(model_->GetVar(-1));
    EXPECT_EQ(One(proxy, stranger), 0.0);
    EXPECT_FAILURE(&proxy, 3, GetParam().invalidVar);
    model_->ResetAll();  // clears the model's failure
  });
  EXPECT_EQ(double_.CountCalls("VORQ_GetCallbackInfo"), 0u);
}

TEST_P(CallbackVectorTest, AFetchThatFailsHasTheTextOfItsReader) {
  InCallback([&](ICallbackProxy& proxy) {
    double_.FailNext("VORQ_GetCallbackInfo", VORQ_MEMORY);
    EXPECT_EQ(One(proxy, x_), 0.0);
    EXPECT_FAILURE(&proxy, 1, GetParam().oneFailed);
  });
  InCallback([&](ICallbackProxy& proxy) {
    double_.FailNext("VORQ_GetCallbackInfo", VORQ_MEMORY);
    EXPECT_EQ(Some(proxy, *ArrayOf({x_.get()}), values_, 1), -1);
    EXPECT_FAILURE(&proxy, 1, GetParam().someFailed);
  });
  InCallback([&](ICallbackProxy& proxy) {
    double_.FailNext("VORQ_GetCallbackInfo", VORQ_MEMORY);
    EXPECT_EQ(All(proxy, values_, 4), -1);
    EXPECT_FAILURE(&proxy, 1, GetParam().allFailed);
  });
  EXPECT_THAT(values_, ElementsAre(-1, -1, -1, -1));
}

TEST_P(CallbackVectorTest, AFetchThatFailedIsNotTriedAgainAndLeavesUndefinedValues) {
  InCallback([&](ICallbackProxy& proxy) {
    double_.FailNext("VORQ_GetCallbackInfo", VORQ_MEMORY);
    EXPECT_EQ(One(proxy, x_), 0.0);
    EXPECT_EQ(One(proxy, x_), 1e40);
    EXPECT_SUCCESS(&proxy);
  });
  EXPECT_CALLS(double_, {Fetch(1)});
}

TEST_P(CallbackVectorTest, ReadingClearsAFailure) {
  InCallback([&](ICallbackProxy& proxy) {
    for (auto const& read : {std::function<void()>([&] { One(proxy, x_); }),
                             std::function<void()>([&] { Some(proxy, *ArrayOf({x_.get()}), values_, 1); }),
                             std::function<void()>([&] { All(proxy, values_, 4); })}) {
      proxy.GetIntInfo("nothing");
      EXPECT_EQ(proxy.GetLastError(), 3);
      read();
      EXPECT_SUCCESS(&proxy);
    }
  });
}

// ---- Solutions to offer

TEST_F(CallbackTest, ASolutionIsOfferedAfterThisCallbackAndEachLaterOne) {
  double_.SolveCallsBack({kPlace, kPlace});
  callback_.body = [this](ICallbackProxy& proxy) {
    if (callback_.calls == 1) proxy.SetSolution(y_.get(), 4.5);
  };
  model_->Solve();
  EXPECT_CALLS(double_, {"VORQ_Solve(prob#1)", "VORQ_AddCallbackSolution(data#1, [1e+40,4.5,1e+40], out)",
                         "VORQ_AddCallbackSolution(data#2, [1e+40,4.5,1e+40], out)"});
  double_.ClearLog();
  model_->Solve();
  EXPECT_EQ(double_.CountCalls("VORQ_AddCallbackSolution"), 2u);
}

TEST_F(CallbackTest, ASolutionGrowsByWhatIsSet) {
  double const values[] = {1.0, 3.0};
  InCallback([&](ICallbackProxy& proxy) {
    proxy.SetSolution(ArrayOf({x_.get(), z_.get()}).get(), values, 2);
    EXPECT_SUCCESS(&proxy);
    proxy.SetSolution(z_.get(), 5.0);
  });
  EXPECT_CALLS(double_, {"VORQ_AddCallbackSolution(data#1, [1,1e+40,5], out)"});
}

TEST_F(CallbackTest, LoadingGivesTheObjectiveValue) {
  double_.Answer("VORQ_AddCallbackSolution").Set("objective", 12.5);
  InCallback([this](ICallbackProxy& proxy) {
    proxy.SetSolution(x_.get(), 1.0);
    EXPECT_EQ(proxy.LoadSolution(), 12.5);
    EXPECT_SUCCESS(&proxy);
  });
  EXPECT_CALLS(double_, {"VORQ_AddCallbackSolution(data#1, [1,1e+40,1e+40], out)",
                         "VORQ_AddCallbackSolution(data#1, [1,1e+40,1e+40], out)"});
}

TEST_F(CallbackTest, LoadingWithoutASolutionCallsNothing) {
  InCallback([](ICallbackProxy& proxy) {
    proxy.GetIntInfo("nothing");
    EXPECT_EQ(proxy.LoadSolution(), 1e30);
    EXPECT_EQ(proxy.GetLastError(), 3);
  });
  EXPECT_EQ(double_.CountCalls("VORQ_AddCallbackSolution"), 0u);
}

TEST_F(CallbackTest, ARefusedSolutionHasItsTextAndNoObjective) {
  InCallback([this](ICallbackProxy& proxy) {
    proxy.SetSolution(x_.get(), 1.0);
    double_.FailNext("VORQ_AddCallbackSolution", VORQ_INVALID);
    EXPECT_EQ(proxy.LoadSolution(), 1e30);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to load solution in callback");
  });
}

TEST_F(CallbackTest, SettingAVariableThatIsNotInTheModelIsRefusedAndBeginsASolution) {
  InCallback([this](ICallbackProxy& proxy) {
    Var const stranger = Own(model_->GetVar(-1));
    proxy.SetSolution(stranger.get(), 1.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Var is invalid in model");
    model_->ResetAll();  // clears the model's failure
  });
  EXPECT_CALLS_OF(double_, "VORQ_AddCallbackSolution", {"VORQ_AddCallbackSolution(data#1, [1e+40,1e+40,1e+40], out)"});
}

TEST_F(CallbackTest, SettingOneVariableLeavesAFailureStanding) {
  InCallback([this](ICallbackProxy& proxy) {
    proxy.GetIntInfo("nothing");
    proxy.SetSolution(x_.get(), 1.0);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Unknown name of callback info");
    double const value = 2.0;
    proxy.SetSolution(ArrayOf({y_.get()}).get(), &value, 1);
    EXPECT_SUCCESS(&proxy);
  });
}

TEST_F(CallbackTest, SettingAnArrayWantsAsManyValues) {
  double const values[] = {1.0, 2.0, 3.0};
  auto const both = ArrayOf({x_.get(), y_.get()});
  InCallback([&](ICallbackProxy& proxy) {
    proxy.SetSolution(both.get(), nullptr, 2);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Invalid arguments");
    proxy.GetContext();
    for (int const len : {1, 3, -1}) {
      proxy.SetSolution(both.get(), values, len);
      EXPECT_FAILURE(&proxy, 3, "(INVALID) Invalid arguments");
    }
  });
  EXPECT_CALLS(double_, {});
}

TEST_F(CallbackTest, SettingAnEmptyArrayDoesNothing) {
  double const values[] = {1.0};
  InCallback([&](ICallbackProxy& proxy) {
    proxy.GetIntInfo("nothing");
    double_.ClearLog();
    proxy.SetSolution(Own(CreateVarArray()).get(), values, 0);
    EXPECT_EQ(proxy.GetLastError(), 3);
  });
  EXPECT_CALLS(double_, {});
}

TEST_F(CallbackTest, SettingAnArrayEndsAtAVariableThatIsNotInTheModel) {
  double const values[] = {1.0, 2.0, 3.0};
  InCallback([&](ICallbackProxy& proxy) {
    auto const three = ArrayOf({x_.get(), y_.get(), z_.get()});
    y_->Remove();
    proxy.SetSolution(three.get(), values, 3);
    EXPECT_FAILURE(&proxy, 3, "(INVALID) Fail to set solution for vars");
  });
  EXPECT_CALLS(double_, {"VORQ_AddCallbackSolution(data#1, [1,1e+40,1e+40], out)"});
}

// ---- The number of columns

TEST_F(CallbackTest, AFlushTellsTheProxyTheNumberOfColumns) {
  double_.CallbackVector("Incumbent", {1, 2});
  x_->Remove();
  InCallback([](ICallbackProxy& proxy) { EXPECT_EQ(proxy.GetIncumbent(nullptr, 0), 2); });
}

TEST_F(CallbackTest, AReloadTellsTheProxyTheNumberOfColumns) {
  double_.On("VORQ_ReadMps", [this](vorqtest::DoubleCall& call) {
    double_.SetItems(call.prob, "Cols", 5);
    return VORQ_OK;
  });
  double_.CallbackVector("Incumbent", {1, 2, 3, 4, 5});
  model_->ReadMps("model.mps");
  EXPECT_EQ(double_.RunCallback(kPlace), 0);
  Var const last = Own(model_->GetVar(4));
  Proxy().SetSolution(last.get(), 1.0);
  EXPECT_SUCCESS(callback_.proxy);
}

TEST_F(CallbackTest, ColumnsAddedSinceAreKnownInTheSolve) {
  Var const later = AddVar("later");
  double_.CallbackVector("Incumbent", {1, 2, 3, 4});
  InCallback([&](ICallbackProxy& proxy) {
    EXPECT_EQ(proxy.GetIncumbent(nullptr, 0), 4);
    EXPECT_EQ(proxy.GetIncumbent(later.get()), 4.0);
  });
}

TEST_F(CallbackTest, ASolutionFromBeforeFollowsTheNumberOfColumns) {
  Proxy().SetSolution(z_.get(), 3.0);
  AddVar("later");
  InCallback([](ICallbackProxy&) {});
  EXPECT_CALLS(double_, {"VORQ_AddCallbackSolution(data#1, [1e+40,1e+40,3,1e+40], out)"});
  x_->Remove();
  y_->Remove();
  InCallback([](ICallbackProxy&) {});
  EXPECT_CALLS(double_, {"VORQ_AddCallbackSolution(data#2, [1e+40,1e+40], out)"});
}

TEST_F(CallbackTest, ColumnsThatGoInTheCallbackMakeWhatWasFetchedStale) {
  double_.CallbackVector("Incumbent", {1, 2, 3});
  InCallback([this](ICallbackProxy& proxy) {
    EXPECT_EQ(proxy.GetIncumbent(nullptr, 0), 3);
    x_->Remove();
    EXPECT_EQ(model_->GetIntAttr("Cols"), 2);
    double_.CallbackVector("Incumbent", {2, 3});
    EXPECT_EQ(proxy.GetIncumbent(y_.get()), 2.0);
  });
}

// ---- Outside a callback, and beyond the model

TEST_F(CallbackTest, AProxyWithoutAModelFindsNothing) {
  auto const proxy = Own(CreateCallbackProxy());
  double values[1];
  double const given[1] = {1.0};
  EXPECT_EQ(proxy->GetLastError(), 0);
  EXPECT_EQ(proxy->GetErrorMessage(), nullptr);
  EXPECT_EQ(proxy->GetContext(), 0);
  EXPECT_EQ(proxy->LoadSolution(), 1e30);
  EXPECT_EQ(proxy->GetIncumbent(x_.get()), 0.0);
  EXPECT_FAILURE(proxy, 3, "(INVALID) 'var' is invalid in model");
  EXPECT_EQ(proxy->GetSolution(values, 1), -1);
  EXPECT_FAILURE(proxy, 3, "(INVALID) Fail to get solution");
  proxy->SetSolution(x_.get(), 1.0);
  EXPECT_FAILURE(proxy, 3, "(INVALID) Var is invalid in model");
  proxy->SetSolution(ArrayOf({x_.get()}).get(), given, 1);
  EXPECT_FAILURE(proxy, 3, "(INVALID) Fail to set solution for vars");
  EXPECT_EQ(proxy->GetIntInfo("NodeCnt"), 0);
  EXPECT_FAILURE(proxy, 3, "(INVALID) Unknown name of callback info");
  proxy->Interrupt();
  EXPECT_FAILURE(proxy, 3, "(INVALID) Fail to call interrupt in callback");
  proxy->AddUserCut(Sum({{x_, 1.0}}).get(), 'L', 1.0);
  EXPECT_FAILURE(proxy, 3, "(INVALID) Fail to add cut in callback");
  EXPECT_THAT(double_.TakeViolations(),
              ElementsAre("null handle in VORQ_GetCallbackInfo(null, \"MipCandidate\", null)",
                          "null handle in VORQ_SearchCallbackInfo(null, \"NodeCnt\", out, out)",
                          "null handle in VORQ_Interrupt(null)",
                          "null handle in VORQ_AddCallbackUserCut(null, 1, [0], [1], 'L', 1)"));
}

TEST_F(CallbackTest, AfterACallbackItsDataIsOver) {
  double_.CallbackDbl("BestObj", 2.5);
  InCallback([](ICallbackProxy&) {});
  EXPECT_EQ(Proxy().GetDblInfo("BestObj"), 0.0);
  EXPECT_FAILURE(callback_.proxy, 3, "(INVALID) Fail to get double info in callback");
  EXPECT_THAT(double_.TakeViolations(),
              ElementsAre("deleted handle in VORQ_GetCallbackInfo(data#1, \"BestObj\", out)"));
}

TEST_F(CallbackTest, TheProxyKeepsTheProblemOfAModelThatHasGone) {
  vars_.clear();
  model_.reset();
  EXPECT_EQ(double_.LiveProblems(), 1);
  Proxy().Interrupt();
  EXPECT_SUCCESS(callback_.proxy);
  callback_.proxy.reset();
  EXPECT_EQ(double_.LiveProblems(), 0);
}

// ---- One callback object for two models

class SharedCallbackTest : public CallbackTest {
 protected:
  SharedCallbackTest() { Own(other_->AddVars(5, 'C', "y")); }

  std::unique_ptr<Vorq::IModel> other_{envr_->CreateModel("other")};
};

TEST_F(SharedCallbackTest, TheModelThatSetItLastHasTheProxy) {
  other_->SetCallback(&callback_, kPlace);
  Proxy().Interrupt();
  EXPECT_CALLS_OF(double_, "VORQ_Interrupt", {"VORQ_Interrupt(prob#2)"});
}

TEST_F(SharedCallbackTest, TheModelThatIsSolvedTakesTheProxyOver) {
  other_->SetCallback(&callback_, kPlace);
  model_->SetCallback(&callback_, kPlace);
  double_.CallbackVector("Incumbent", {1, 2, 3, 4, 5});
  callback_.body = [](ICallbackProxy& proxy) { EXPECT_EQ(proxy.GetIncumbent(nullptr, 0), 5); };
  other_->SetCallback(&callback_, kPlace);
  other_->Solve();
  double_.CallbackVector("Incumbent", {1, 2, 3});
  callback_.body = [](ICallbackProxy& proxy) {
    EXPECT_EQ(proxy.GetIncumbent(nullptr, 0), 3);
    proxy.Interrupt();
  };
  model_->SetCallback(&callback_, kPlace);
  model_->Solve();
  EXPECT_CALLS_OF(double_, "VORQ_Interrupt", {"VORQ_Interrupt(prob#1)"});
}

TEST_F(SharedCallbackTest, InsideOfACallbackItServesNoOtherModel) {
  InCallback([this](ICallbackProxy& proxy) {
    other_->SetCallback(&callback_, kPlace);
    EXPECT_FAILURE(other_, 3, "(INVALID) The callback is running for another model");
    proxy.Interrupt();
  });
  EXPECT_CALLS(double_, {"VORQ_Interrupt(prob#1)"});
}

TEST_F(SharedCallbackTest, InsideOfACallbackNoOtherModelIsSolvedWithIt) {
  other_->SetCallback(&callback_, kPlace);
  model_->SetCallback(&callback_, kPlace);
  InCallback([this](ICallbackProxy&) {
    other_->Solve();
    EXPECT_FAILURE(other_, 3, "(INVALID) The callback is running for another model");
  });
  EXPECT_CALLS(double_, {});
  other_->Solve();
  EXPECT_SUCCESS(other_);
}

TEST_F(CallbackTest, ACallbackMayDeleteItsProxy) {
  callback_.body = [this](ICallbackProxy& proxy) {
    proxy.SetSolution(x_.get(), 1.0);
    callback_.proxy.reset();
  };
  model_->Solve();
  EXPECT_EQ(double_.CountCalls("VORQ_AddCallbackSolution"), 1u);
  model_->SetCallback(nullptr, 0);
}

}  // namespace
