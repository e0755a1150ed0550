// Lazy constraints and user cuts that a callback adds over the real solver library: answers against enumeration.
#include <numeric>

#include "tests/callbacks/solver_fixture.hpp"

namespace {

using Vorq::ICallbackProxy;
using vorqtest::BinaryModel;
using vorqtest::CallbackSolverTest;
using vorqtest::Own;

// A few rules, each forbidding three items together.
struct Rules {
  std::vector<std::vector<int>> triples;

  Rules(int items, unsigned seed) {
    std::mt19937 random(seed);
    for (int i = 0; i < 12; ++i) {
      std::vector<int> all(static_cast<std::size_t>(items));
      std::iota(all.begin(), all.end(), 0);
      for (int k = 0; k < 3; ++k) std::swap(all[k], all[k + random() % (all.size() - k)]);
      triples.emplace_back(all.begin(), all.begin() + 3);
    }
  }

  bool Accept(unsigned chosen) const {
    return std::ranges::all_of(triples, [chosen](std::vector<int> const& triple) {
      return !std::ranges::all_of(triple, [chosen](int item) { return (chosen >> item & 1u) != 0; });
    });
  }
};

class CallbackRulesTest : public CallbackSolverTest {
 protected:
  static constexpr int kItems = 12;

  static std::unique_ptr<Vorq::IExpr> SumOf(BinaryModel const& knapsack, std::vector<int> const& items) {
    auto sum = Own(CreateExpr(0.0));
    for (int const item : items) sum->AddTerm(knapsack.vars[item].get(), 1.0);
    return sum;
  }

  // Adds the rules that the candidate breaks, each by `add`.
  void AddBrokenRules(BinaryModel const& knapsack, Rules const& rules,
                      std::function<void(ICallbackProxy&, Vorq::IExpr&)> const& add) {
    callback_.body = [&knapsack, &rules, add, this](ICallbackProxy& proxy) {
      std::vector<double> values(kItems);
      ASSERT_EQ(proxy.GetSolution(values.data(), kItems), kItems);
      for (std::vector<int> const& triple : rules.triples) {
        double sum = 0.0;
        for (int const item : triple) sum += values[item];
        if (sum < 2.5) continue;
        add(proxy, *SumOf(knapsack, triple));
        EXPECT_SUCCESS(&proxy);
        ++added_;
      }
    };
  }

  int added_ = 0;
};

TEST_F(CallbackRulesTest, SolutionsKeepLazyConstraints) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    BinaryModel const knapsack = Knapsack(kItems, 2, seed);
    Rules const rules(kItems, seed);
    AddBrokenRules(knapsack, rules,
                   [](ICallbackProxy& proxy, Vorq::IExpr& sum) { proxy.AddLazyConstr(&sum, 'L', 2.0); });
    knapsack.model->SetCallback(&callback_, vorqtest::kCandidate);
    SolveToOptimum(*knapsack.model, knapsack.BestGain([&rules](unsigned chosen) { return rules.Accept(chosen); }));
  }
  EXPECT_GT(added_, 0);
}

TEST_F(CallbackRulesTest, EachFormOfALazyConstraintCounts) {
  std::vector<std::function<void(ICallbackProxy&, Vorq::IExpr&)>> const forms = {
      [](ICallbackProxy& proxy, Vorq::IExpr& sum) {
        auto const two = Own(CreateExpr(2.0));
        proxy.AddLazyConstr(&sum, 'L', two.get());
      },
      [](ICallbackProxy& proxy, Vorq::IExpr& sum) {
        auto const builder = Own(CreateConstrBuilder());
        sum.Multiply(-1.0);
        builder->Set(&sum, 'G', -2.0);
        proxy.AddLazyConstr(builder.get());
      },
      [](ICallbackProxy& proxy, Vorq::IExpr& sum) {
        auto const builder = Own(CreateConstrBuilder());
        auto const builders = Own(CreateConstrBuilderArray());
        builder->Set(&sum, 'L', 2.0);
        builders->PushBack(*builder);
        builders->PushBack(*builder);
        proxy.AddLazyConstrs(builders.get());
      },
      [](ICallbackProxy& proxy, Vorq::IExpr& sum) {
        auto const factory = Own(CreateMFactory());
        auto const shape = Own(factory->CreateNDim(1));
        auto const block = Own(factory->CreateMLinExpr(shape.get(), &sum));
        auto const builder = Own(factory->CreateMConstrBuilder(shape.get()));
        builder->Set(block.get(), 'L', 2.0);
        proxy.AddLazyConstrs(builder.get());
      },
  };
  for (auto const& form : forms) {
    added_ = 0;
    for (unsigned seed = 1; seed <= 10; ++seed) {
      BinaryModel const knapsack = Knapsack(kItems, 2, seed);
      Rules const rules(kItems, seed);
      AddBrokenRules(knapsack, rules, form);
      knapsack.model->SetCallback(&callback_, vorqtest::kCandidate);
      SolveToOptimum(*knapsack.model, knapsack.BestGain([&rules](unsigned chosen) { return rules.Accept(chosen); }));
    }
    EXPECT_GT(added_, 0);
  }
}

// All items that fit in order of their gain: a solution that breaks rules.
std::vector<double> GreedyChoice(BinaryModel const& knapsack) {
  std::vector<int> order(knapsack.vars.size());
  std::iota(order.begin(), order.end(), 0);
  std::ranges::sort(order, [&](int a, int b) { return knapsack.gains[a] > knapsack.gains[b]; });
  std::vector<double> chosen(order.size(), 0.0);
  std::vector<double> left = knapsack.limits;
  for (int const item : order) {
    bool fits = true;
    for (std::size_t row = 0; row < left.size(); ++row) fits = fits && knapsack.weights[row][item] <= left[row];
    if (!fits) continue;
    chosen[item] = 1.0;
    for (std::size_t row = 0; row < left.size(); ++row) left[row] -= knapsack.weights[row][item];
  }
  return chosen;
}

// The choice that is offered is forbidden, and each one that holds it.
TEST_F(CallbackRulesTest, MipStartsAndOffersAreCandidatesToo) {
  for (bool const offers : {false, true}) {
    int shown = 0;
    for (unsigned seed = 1; seed <= 10; ++seed) {
      SCOPED_TRACE(testing::Message() << (offers ? "offer, seed " : "start, seed ") << seed);
      BinaryModel const knapsack = Knapsack(kItems, 2, seed);
      std::vector<double> const start = GreedyChoice(knapsack);
      std::vector<int> items;
      unsigned choice = 0;
      for (int item = 0; item < kItems; ++item) {
        if (start[item] == 0.0) continue;
        items.push_back(item);
        choice |= 1u << item;
      }
      double const limit = static_cast<double>(items.size()) - 1.0;
      callback_.body = [&](ICallbackProxy& proxy) {
        std::vector<double> values(kItems);
        if (proxy.GetContext() == vorqtest::kRelaxation) {
          if (offers) proxy.SetSolution(knapsack.array.get(), start.data(), kItems);
          return;
        }
        ASSERT_EQ(proxy.GetSolution(values.data(), kItems), kItems);
        double sum = 0.0;
        for (int const item : items) sum += values[item];
        if (sum <= limit + 0.5) return;
        ++shown;
        proxy.AddLazyConstr(SumOf(knapsack, items).get(), 'L', limit);
        EXPECT_SUCCESS(&proxy);
      };
      if (!offers) {
        knapsack.model->SetMipStart(kItems, start.data());
        knapsack.model->LoadMipStart();
      }
      knapsack.model->SetCallback(&callback_, vorqtest::kRelaxation + vorqtest::kCandidate);
      SolveToOptimum(*knapsack.model,
                     knapsack.BestGain([choice](unsigned chosen) { return (chosen & choice) != choice; }));
    }
    EXPECT_GT(shown, 0);
  }
}

TEST_F(CallbackRulesTest, LazyConstraintsThatLeaveNothingMakeTheModelInfeasible) {
  BinaryModel const knapsack = Knapsack(kItems, 2, 1);
  callback_.body = [&](ICallbackProxy& proxy) {
    std::vector<int> all(kItems);
    std::iota(all.begin(), all.end(), 0);
    proxy.AddLazyConstr(SumOf(knapsack, all).get(), 'G', kItems + 1.0);
  };
  knapsack.model->SetCallback(&callback_, vorqtest::kCandidate);
  knapsack.model->Solve();
  EXPECT_SUCCESS(knapsack.model);
  constexpr int kInfeasible = 2;
  EXPECT_EQ(knapsack.model->GetIntAttr("MipStatus"), kInfeasible);
  EXPECT_EQ(knapsack.model->GetIntAttr("HasMipSol"), 0);
}

TEST_F(CallbackRulesTest, LazyConstraintsOfASolveAreForgottenByTheNext) {
  BinaryModel const knapsack = Knapsack(kItems, 2, 3);
  callback_.body = [&knapsack](ICallbackProxy& proxy) {
    for (int item = 0; item < kItems; ++item) proxy.AddLazyConstr(SumOf(knapsack, {item}).get(), 'L', 0.0);
  };
  knapsack.model->SetCallback(&callback_, vorqtest::kCandidate);
  SolveToOptimum(*knapsack.model, 0.0);
  knapsack.model->SetCallback(nullptr, 0);
  SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything));
}

// Cover inequalities: of items that do not fit together, one stays out.
TEST_F(CallbackRulesTest, ValidUserCutsChangeNoOptimum) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    BinaryModel const knapsack = Knapsack(kItems, 1, seed);
    callback_.body = [&](ICallbackProxy& proxy) {
      std::vector<double> values(kItems);
      ASSERT_EQ(proxy.GetRelaxSolution(values.data(), kItems), kItems);
      std::vector<int> order(kItems);
      std::iota(order.begin(), order.end(), 0);
      std::ranges::sort(order, [&values](int a, int b) { return values[a] > values[b]; });
      std::vector<int> cover;
      double weight = 0.0, value = 0.0;
      for (int const item : order) {
        cover.push_back(item);
        weight += knapsack.weights[0][item];
        value += values[item];
        if (weight > knapsack.limits[0]) break;
      }
      double const limit = static_cast<double>(cover.size()) - 1.0;
      if (value <= limit + 1e-6) return;
      proxy.AddUserCut(SumOf(knapsack, cover).get(), 'L', limit);
      EXPECT_SUCCESS(&proxy);
      ++added_;
    };
    knapsack.model->SetCallback(&callback_, vorqtest::kRelaxation);
    SolveToOptimum(*knapsack.model, knapsack.BestGain(Anything));
  }
  EXPECT_GT(added_, 0);
}

}  // namespace
