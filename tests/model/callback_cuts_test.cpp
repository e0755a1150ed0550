// Cuts and lazy constraints of the callback proxy over the recording double: two kinds, one path.
#include <gmock/gmock.h>

#include "tests/model/callback_fixture.hpp"

namespace {

using testing::HasSubstr;
using Vorq::ICallbackProxy;
using vorqtest::Own;

template <int N>
using BlockAdder = void (ICallbackProxy::*)(Vorq::IMConstrBuilder<N>*);

struct Kind {
  char const* name;
  void (ICallbackProxy::*withNumber)(Vorq::IExpr*, char, double);
  void (ICallbackProxy::*withExpr)(Vorq::IExpr*, char, Vorq::IExpr*);
  void (ICallbackProxy::*withBuilder)(Vorq::IConstrBuilder*);
  void (ICallbackProxy::*many)(Vorq::IConstrBuilderArray*);
  BlockAdder<0> block0;
  BlockAdder<1> block1;
  BlockAdder<2> block2;
  BlockAdder<3> block3;
  char const* oneFailed;
  char const* manyFailed;
};

constexpr Kind kKinds[] = {
    {"UserCut", &ICallbackProxy::AddUserCut, &ICallbackProxy::AddUserCut, &ICallbackProxy::AddUserCut,
     &ICallbackProxy::AddUserCuts, &ICallbackProxy::AddUserCuts, &ICallbackProxy::AddUserCuts,
     &ICallbackProxy::AddUserCuts, &ICallbackProxy::AddUserCuts, "Fail to add cut in callback",
     "Fail to add cuts in callback"},
    {"LazyConstr", &ICallbackProxy::AddLazyConstr, &ICallbackProxy::AddLazyConstr, &ICallbackProxy::AddLazyConstr,
     &ICallbackProxy::AddLazyConstrs, &ICallbackProxy::AddLazyConstrs, &ICallbackProxy::AddLazyConstrs,
     &ICallbackProxy::AddLazyConstrs, &ICallbackProxy::AddLazyConstrs, "Fail to add lazy constraint in callback",
     "Fail to add lazy constraints in callback"},
};

class CallbackCutsTest : public vorqtest::CallbackTest, public testing::WithParamInterface<Kind> {
 protected:
  // A call of the function for one row, or for many.
  static std::string One(std::string const& arguments) {
    return std::string("VORQ_AddCallback") + GetParam().name + "(data#1, " + arguments + ")";
  }
  static std::string Many(std::string const& arguments) {
    return std::string("VORQ_AddCallback") + GetParam().name + "s(data#1, " + arguments + ")";
  }

  static void Add(ICallbackProxy& proxy, Expr const& lhs, char sense, double rhs) {
    (proxy.*GetParam().withNumber)(lhs.get(), sense, rhs);
  }
  static void Add(ICallbackProxy& proxy, Vorq::IConstrBuilderArray& builders) { (proxy.*GetParam().many)(&builders); }
};

INSTANTIATE_TEST_SUITE_P(Callback, CallbackCutsTest, testing::ValuesIn(kKinds),
                         [](auto const& kind) { return std::string(kind.param.name); });

TEST_P(CallbackCutsTest, TheConstantGoesToTheRightSide) {
  InCallback([this](ICallbackProxy& proxy) {
    Add(proxy, Sum({{x_, 1.0}, {z_, 2.0}}, 1.0), 'L', 5.0);
    EXPECT_SUCCESS(&proxy);
  });
  EXPECT_CALLS(double_, {One("2, [0,2], [1,2], 'L', 4")});
}

TEST_P(CallbackCutsTest, TermsAreMergedInTheCallersExpression) {
  InCallback([this](ICallbackProxy& proxy) {
    Expr const expr = Sum({{x_, 1.0}, {x_, 1.0}, {y_, 0.0}, {z_, 3.0}});
    Add(proxy, expr, 'G', 5.0);
    EXPECT_EQ(expr->GetSize(), 2u);
    EXPECT_EQ(expr->GetCoeff(0), 2.0);
    Add(proxy, expr, 'G', 6.0);
  });
  EXPECT_CALLS(double_, {One("2, [0,2], [2,3], 'G', 5"), One("2, [0,2], [2,3], 'G', 6")});
}

TEST_P(CallbackCutsTest, TermsThatCancelStayWithZero) {
  InCallback([this](ICallbackProxy& proxy) { Add(proxy, Sum({{x_, 1.0}, {x_, -1.0}}), 'E', 0.0); });
  EXPECT_CALLS(double_, {One("1, [0], [0], 'E', 0")});
}

TEST_P(CallbackCutsTest, TermsOfRemovedVariablesGo) {
  InCallback([this](ICallbackProxy& proxy) {
    y_->Remove();
    Add(proxy, Sum({{x_, 1.0}, {y_, 1.0}}), 'E', 0.0);
  });
  EXPECT_CALLS(double_, {One("1, [0], [1], 'E', 0")});
}

TEST_P(CallbackCutsTest, ColumnsOfABiggerModelAreLeftToTheSolverLibrary) {
  auto const other = Own(envr_->CreateModel("other"));
  auto const vars = Own(other->AddVars(10, 'C', "x"));
  InCallback([&](ICallbackProxy& proxy) { Add(proxy, Sum({{Own(vars->Get(9)), 1.0}, {x_, 2.0}}), 'E', 0.0); });
  EXPECT_CALLS(double_, {One("2, [9,0], [1,2], 'E', 0")});
}

TEST_P(CallbackCutsTest, AnyLetterGoesToTheSolverLibrary) {
  InCallback([this](ICallbackProxy& proxy) { Add(proxy, Sum({{x_, 1.0}}), '?', 0.0); });
  EXPECT_CALLS(double_, {One("1, [0], [1], '?', 0")});
}

TEST_P(CallbackCutsTest, TwoExpressionsMakeTheirDifferenceAndStay) {
  InCallback([this](ICallbackProxy& proxy) {
    Expr const lhs = Sum({{x_, 1.0}, {x_, 1.0}}, 1.0);
    Expr const rhs = Sum({{y_, 3.0}}, 5.0);
    (proxy.*GetParam().withExpr)(lhs.get(), 'G', rhs.get());
    EXPECT_SUCCESS(&proxy);
    EXPECT_EQ(lhs->GetSize(), 2u);
    EXPECT_EQ(rhs->GetSize(), 1u);
  });
  EXPECT_CALLS(double_, {One("2, [0,1], [2,-3], 'G', 4")});
}

TEST_P(CallbackCutsTest, ABuilderGoesOnWithAnySense) {
  InCallback([this](ICallbackProxy& proxy) {
    auto const plain = Builder(Sum({{x_, 1.0}}), 'L', 5.0);
    auto const range = RangeBuilder(Sum({{x_, 1.0}}, 2.0), 4.0);
    (proxy.*GetParam().withBuilder)(plain.get());
    (proxy.*GetParam().withBuilder)(range.get());
    EXPECT_SUCCESS(&proxy);
  });
  EXPECT_CALLS(double_, {One("1, [0], [1], 'L', 5"), One("1, [0], [1], 'R', -2")});
}

TEST_P(CallbackCutsTest, ABuilderTakesTheMergedTerms) {
  InCallback([this](ICallbackProxy& proxy) {
    auto const builder = Builder(Sum({{x_, 1.0}, {x_, 2.0}}), 'L', 5.0);
    (proxy.*GetParam().withBuilder)(builder.get());
    EXPECT_EQ(Own(builder->GetExpr())->GetSize(), 1u);
  });
  EXPECT_CALLS(double_, {One("1, [0], [3], 'L', 5")});
}

TEST_P(CallbackCutsTest, RefusedRowsHaveTheirTexts) {
  InCallback([this](ICallbackProxy& proxy) {
    std::string const function = std::string("VORQ_AddCallback") + GetParam().name;
    auto const builder = Builder(Sum({{x_, 1.0}}), 'L', 5.0);
    std::string const oneFailed = std::string("(NONCONVEX) ") + GetParam().oneFailed;
    double_.FailNext(function, VORQ_NONCONVEX);
    Add(proxy, Sum({{x_, 1.0}}), 'L', 5.0);
    EXPECT_FAILURE(&proxy, 8, oneFailed.c_str());
    double_.FailNext(function, VORQ_NONCONVEX);
    (proxy.*GetParam().withExpr)(Sum({{x_, 1.0}}).get(), 'L', Sum({}).get());
    EXPECT_FAILURE(&proxy, 8, oneFailed.c_str());
    double_.FailNext(function, VORQ_NONCONVEX);
    (proxy.*GetParam().withBuilder)(builder.get());
    EXPECT_FAILURE(&proxy, 8, oneFailed.c_str());
    double_.FailNext(function + "s", VORQ_NONCONVEX);
    Add(proxy, *ArrayOf({builder.get()}));
    EXPECT_FAILURE(&proxy, 8, (std::string("(NONCONVEX) ") + GetParam().manyFailed).c_str());
    Add(proxy, *ArrayOf({builder.get()}));
    EXPECT_SUCCESS(&proxy);
  });
}

TEST_P(CallbackCutsTest, ManyRowsAreOneCall) {
  InCallback([this](ICallbackProxy& proxy) {
    auto const a = Builder(Sum({{x_, 1.0}, {y_, 1.0}, {x_, 1.0}}), 'L', 5.0);
    auto const b = Builder(Sum({}), 'G', -1.0);
    auto const c = Builder(Sum({{z_, 3.0}}, 1.0), 'E', 0.0);
    Add(proxy, *ArrayOf({a.get(), b.get(), c.get()}));
    EXPECT_SUCCESS(&proxy);
  });
  EXPECT_CALLS(double_, {Many("3, [0,2,2], [2,0,1], [0,1,2], [2,1,3], ['L','G','E'], [5,-1,-1]")});
}

TEST_P(CallbackCutsTest, ManyRowsAreMergedInTheCallersArray) {
  InCallback([this](ICallbackProxy& proxy) {
    auto const builder = Builder(Sum({{x_, 1.0}, {x_, 1.0}}), 'L', 5.0);
    auto const builders = ArrayOf({builder.get()});
    Add(proxy, *builders);
    EXPECT_EQ(Own(Own(builders->Get(0))->GetExpr())->GetSize(), 1u);
  });
}

TEST_P(CallbackCutsTest, FreeAndRangeRowsAmongManyAreRefusedWithAllOthers) {
  InCallback([this](ICallbackProxy& proxy) {
    auto const plain = Builder(Sum({{x_, 1.0}}), 'L', 5.0);
    auto const range = RangeBuilder(Sum({{x_, 1.0}}), 4.0);
    auto const free = Builder(Sum({{x_, 1.0}}), 'N', 0.0);
    std::string const text = std::string("(INVALID) ") + GetParam().manyFailed;
    for (Vorq::IConstrBuilder* bad : {range.get(), free.get()}) {
      Add(proxy, *ArrayOf({plain.get(), bad, plain.get()}));
      EXPECT_FAILURE(&proxy, 3, text.c_str());
    }
  });
  EXPECT_CALLS(double_, {});
}

TEST_P(CallbackCutsTest, OtherLettersAmongManyGoToTheSolverLibrary) {
  InCallback([this](ICallbackProxy& proxy) { Add(proxy, *ArrayOf({Builder(Sum({{x_, 1.0}}), '?', 5.0).get()})); });
  EXPECT_CALLS(double_, {Many("1, [0], [1], [0], [1], ['?'], [5]")});
}

TEST_P(CallbackCutsTest, AnEmptyArrayStillCallsTheSolverLibrary) {
  InCallback([](ICallbackProxy& proxy) {
    Add(proxy, *Own(CreateConstrBuilderArray()));
    EXPECT_SUCCESS(&proxy);
  });
  ASSERT_EQ(double_.Calls().size(), 1u);
  EXPECT_THAT(double_.Calls()[0], HasSubstr(Many("0, null").substr(0, Many("0").size() - 1)));
}

// ---- Blocks

class CallbackBlockCutsTest : public CallbackCutsTest {
 protected:
  template <int N>
  static BlockAdder<N> Adder() {
    if constexpr (N == 0) return GetParam().block0;
    if constexpr (N == 1) return GetParam().block1;
    if constexpr (N == 2) return GetParam().block2;
    if constexpr (N == 3) return GetParam().block3;
  }
  template <int N>
  static void Add(ICallbackProxy& proxy, Vorq::IMConstrBuilder<N>& builder) {
    (proxy.*Adder<N>())(&builder);
  }

  // 2 v + 1 for the variables v of an array.
  template <int N>
  std::unique_ptr<Vorq::IMLinExpr<N>> Twice(Vorq::INDim<N>* shape, Vorq::IVarArray* vars) {
    auto expr = Own(factory_->CreateMLinExpr(shape, 1.0));
    expr->AddTerm(Own(factory_->CreateMVar(shape, vars)).get(), 2.0);
    return expr;
  }
  // 2 v + 1 <= 5.
  template <int N>
  std::unique_ptr<Vorq::IMConstrBuilder<N>> AtMostFive(Vorq::INDim<N>* shape, Vorq::IVarArray* vars) {
    auto builder = Own(factory_->CreateMConstrBuilder(shape));
    builder->Set(Twice(shape, vars).get(), 'L', 5.0);
    return builder;
  }

  // A block of the first variables in the order of their columns.
  template <int N>
  void ExpectRowsInFlatOrder(std::unique_ptr<Vorq::INDim<N>> const& shape, Vorq::IVarArray* vars, char const* rows) {
    auto const builder = AtMostFive(shape.get(), vars);
    InCallback([&](ICallbackProxy& proxy) {
      Add(proxy, *builder);
      EXPECT_SUCCESS(&proxy);
    });
    EXPECT_CALLS(double_, {Many(rows)});
  }

  std::unique_ptr<Vorq::IMFactory> factory_{CreateMFactory()};
  std::unique_ptr<Vorq::IVarArray> backwards_ = ArrayOf({z_.get(), y_.get(), x_.get(), z_.get()});
};

INSTANTIATE_TEST_SUITE_P(Callback, CallbackBlockCutsTest, testing::ValuesIn(kKinds),
                         [](auto const& kind) { return std::string(kind.param.name); });

TEST_P(CallbackBlockCutsTest, RankZeroIsOneRow) {
  ExpectRowsInFlatOrder(Own(factory_->CreateNDim()), backwards_.get(), "1, [0], [1], [2], [2], ['L'], [4]");
}

TEST_P(CallbackBlockCutsTest, RankOneIsARowACell) {
  ExpectRowsInFlatOrder(Own(factory_->CreateNDim(2)), backwards_.get(),
                        "2, [0,1], [1,1], [2,1], [2,2], ['L','L'], [4,4]");
}

TEST_P(CallbackBlockCutsTest, RankTwoGoesInFlatOrder) {
  ExpectRowsInFlatOrder(Own(factory_->CreateNDim(2, 2)), backwards_.get(),
                        "4, [0,1,2,3], [1,1,1,1], [2,1,0,2], [2,2,2,2], ['L','L','L','L'], [4,4,4,4]");
}

TEST_P(CallbackBlockCutsTest, RankThreeGoesInFlatOrder) {
  ExpectRowsInFlatOrder(Own(factory_->CreateNDim(2, 1, 2)), backwards_.get(),
                        "4, [0,1,2,3], [1,1,1,1], [2,1,0,2], [2,2,2,2], ['L','L','L','L'], [4,4,4,4]");
}

TEST_P(CallbackBlockCutsTest, TheCallersBlockKeepsItsTerms) {
  auto const shape = Own(factory_->CreateNDim(1));
  auto expr = Twice(shape.get(), backwards_.get());
  expr->AddTerm(z_.get(), 3.0);
  auto const builder = Own(factory_->CreateMConstrBuilder(shape.get()));
  builder->Set(expr.get(), 'G', 0.0);
  InCallback([&](ICallbackProxy& proxy) {
    Add(proxy, *builder);
    Add(proxy, *builder);
  });
  std::string const row = Many("1, [0], [1], [2], [5], ['G'], [-1]");
  EXPECT_CALLS(double_, {row, row});
}

TEST_P(CallbackBlockCutsTest, ARangeIsRefused) {
  auto const shape = Own(factory_->CreateNDim(2));
  auto const builder = Own(factory_->CreateMConstrBuilder(shape.get()));
  builder->SetRange(Twice(shape.get(), backwards_.get()).get(), 4.0);
  InCallback([&](ICallbackProxy& proxy) {
    Add(proxy, *builder);
    EXPECT_FAILURE(&proxy, 3, (std::string("(INVALID) ") + GetParam().manyFailed).c_str());
  });
  EXPECT_CALLS(double_, {});
}

TEST_P(CallbackBlockCutsTest, AnEmptyBlockStillCallsTheSolverLibrary) {
  auto const builder = Own(factory_->CreateMConstrBuilder(Own(factory_->CreateNDim(0)).get()));
  InCallback([&](ICallbackProxy& proxy) { Add(proxy, *builder); });
  EXPECT_EQ(double_.Calls().size(), 1u);
}

}  // namespace
