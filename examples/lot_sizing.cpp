// Lot sizing: when to produce how much of one product, with the cuts that the model needs found on the way.
//
//     lot_sizing [periods [seed]]
//
// Each period has a demand. Producing in a period costs a setup beside the units, stock is held over at a cost. Nothing
// limits a lot, so the only link between lots and setups is a weak one: a lot is at most all demand to come. The (l,S)
// inequalities close that gap: for a period l and periods S up to it, what is made in S for the time up to l needs
// setups, or stays in stock (Barany, Van Roy and Wolsey, Uncapacitated lot-sizing: the convex hull of solutions,
// Mathematical Programming Study 22, 1984). There is one for each l and each S; the most violated S of an l is found by
// looking at each period once. The program solves without and with them.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include <vorq>

namespace {

template <class T>
using Owned = std::unique_ptr<T>;

// Where the solver calls back.
constexpr int kRelaxation = 1;

struct Period {
  double demand;
  double setupCost;
  double unitCost;
  double holdingCost;  // a unit, to the next period
};

std::vector<Period> RandomPeriods(int count, unsigned seed) {
  std::mt19937 random(seed);
  auto const between = [&random](int low, int high) {
    return static_cast<double>(low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1)));
  };
  std::vector<Period> periods;
  for (int t = 0; t < count; ++t) {
    double const demand = between(10, 90);
    double const setupCost = between(300, 900);
    double const unitCost = between(4, 6);
    double const holdingCost = between(1, 3);
    periods.push_back({demand, setupCost, unitCost, holdingCost});
  }
  return periods;
}

class LotSizing {
 public:
  LotSizing(Vorq::IEnvr& envr, std::vector<Period> const& periods);

  Vorq::IModel& Model() { return *model_; }
  int PeriodCount() const { return static_cast<int>(periods_.size()); }
  // The demand of the periods `first` to `last`.
  double Demand(int first, int last) const { return demandBefore_[last + 1] - demandBefore_[first]; }

  Vorq::IVar* Make(int t) const { return make_[t].get(); }
  Vorq::IVar* Setup(int t) const { return setup_[t].get(); }
  // Behind the last period there is no stock.
  Vorq::IVar* Stock(int t) const { return stock_[t].get(); }

 private:
  std::vector<Period> periods_;
  std::vector<double> demandBefore_;
  Owned<Vorq::IModel> model_;
  std::vector<Owned<Vorq::IVar>> make_, setup_, stock_;
};

LotSizing::LotSizing(Vorq::IEnvr& envr, std::vector<Period> const& periods)
    : periods_(periods), demandBefore_(periods.size() + 1, 0.0), model_(CreateModel(&envr, "lot_sizing")) {
  model_->SetIntParam("LogToConsole", 0);
  model_->SetDblParam("RelGap", 0.0);
  int const last = PeriodCount() - 1;
  for (int t = 0; t <= last; ++t) {
    Period const& period = periods_[t];
    demandBefore_[t + 1] = demandBefore_[t] + period.demand;
    std::string const number = std::to_string(t);
    make_.emplace_back(model_->AddVar(0.0, 1e30, period.unitCost, 'C', ("make_" + number).c_str()));
    setup_.emplace_back(model_->AddVar(0.0, 1.0, period.setupCost, 'B', ("setup_" + number).c_str()));
    stock_.emplace_back(
        model_->AddVar(0.0, t == last ? 0.0 : 1e30, period.holdingCost, 'C', ("stock_" + number).c_str()));
  }
  for (int t = 0; t <= last; ++t) {
    Owned<Vorq::IExpr> balance(CreateLinExpr(Make(t), 1.0));
    if (t > 0) balance->AddTerm(Stock(t - 1), 1.0);
    balance->AddTerm(Stock(t), -1.0);
    Owned<Vorq::IConstraint> balanceRow(model_->AddConstr(balance.get(), 'E', periods_[t].demand, "balance"));
    Owned<Vorq::IExpr> link(CreateLinExpr(Make(t), 1.0));
    link->AddTerm(Setup(t), -Demand(t, last));
    Owned<Vorq::IConstraint> linkRow(model_->AddConstr(link.get(), 'L', 0.0, "link"));
  }
}

// Adds the (l,S) inequalities that the relaxation of a node breaks.
class LotSizingCuts final : public Vorq::ICallback {
 public:
  explicit LotSizingCuts(LotSizing const& lots) : lots_(lots) {}

  void Callback() override {
    Owned<Vorq::IConstrBuilderArray> cuts(CreateConstrBuilderArray());
    for (int l = 0; l < lots_.PeriodCount(); ++l) AddIfViolated(l, *cuts);
    if (cuts->Size() == 0) return;
    count_ += cuts->Size();
    proxy_->AddUserCuts(cuts.get());
    if (proxy_->GetLastError() != 0) throw std::runtime_error(proxy_->GetErrorMessage());
  }

  Vorq::ICallbackProxy* GetCallbackProxy() override { return proxy_.get(); }

  int Count() const { return count_; }

 private:
  // The sum of the lots in S is at most the sum of the demands up to l that their setups allow, and the stock behind l.
  void AddIfViolated(int l, Vorq::IConstrBuilderArray& cuts) {
    double violation = -proxy_->GetRelaxSolution(lots_.Stock(l));
    Owned<Vorq::IExpr> expr(CreateLinExpr(lots_.Stock(l), -1.0));
    for (int t = 0; t <= l; ++t) {
      double const excess =
          proxy_->GetRelaxSolution(lots_.Make(t)) - lots_.Demand(t, l) * proxy_->GetRelaxSolution(lots_.Setup(t));
      if (excess <= 0.0) continue;
      violation += excess;
      expr->AddTerm(lots_.Make(t), 1.0);
      expr->AddTerm(lots_.Setup(t), -lots_.Demand(t, l));
    }
    if (violation < 1e-4) return;
    Owned<Vorq::IConstrBuilder> cut(CreateConstrBuilder());
    cut->Set(expr.get(), 'L', 0.0);
    cuts.PushBack(*cut);
  }

  LotSizing const& lots_;
  Owned<Vorq::ICallbackProxy> proxy_{CreateCallbackProxy()};
  int count_ = 0;
};

void Solve(Vorq::IModel& model) {
  model.Solve();
  if (model.GetLastError() != 0) throw std::runtime_error(model.GetErrorMessage());
  if (model.GetIntAttr("HasMipSol") == 0) throw std::runtime_error("no plan was found");
}

void PrintPlan(std::vector<Period> const& periods, LotSizing const& lots) {
  std::printf("period demand setup unit holding   make  stock\n");
  for (int t = 0; t < lots.PeriodCount(); ++t) {
    Period const& period = periods[t];
    std::printf("%6d %6.0f %5.0f %4.0f %7.0f %6.0f %6.0f\n", t, period.demand, period.setupCost, period.unitCost,
                period.holdingCost, lots.Make(t)->Get("Value"), lots.Stock(t)->Get("Value"));
  }
}

void SolveBothWays(std::vector<Period> const& periods) {
  Owned<Vorq::IEnvr> envr(CreateEnvr(nullptr));
  LotSizing plain(*envr, periods);
  plain.Model().SetDblParam("TimeLimit", 60.0);
  Solve(plain.Model());

  LotSizing lots(*envr, periods);
  LotSizingCuts cuts(lots);
  lots.Model().SetCallback(&cuts, kRelaxation);
  Solve(lots.Model());

  PrintPlan(periods, lots);
  std::printf("without cuts: cost %.0f, at least %.0f, %d nodes\n", plain.Model().GetDblAttr("BestObj"),
              plain.Model().GetDblAttr("BestBnd"), plain.Model().GetIntAttr("NodeCnt"));
  std::printf("with %d cuts: cost %.0f, at least %.0f, %d nodes\n", cuts.Count(), lots.Model().GetDblAttr("BestObj"),
              lots.Model().GetDblAttr("BestBnd"), lots.Model().GetIntAttr("NodeCnt"));
}

}  // namespace

int main(int argc, char** argv) {
  int const periods = argc > 1 ? std::atoi(argv[1]) : 30;
  int const seed = argc > 2 ? std::atoi(argv[2]) : 1;
  if (periods < 1 || periods > 500) {
    std::fprintf(stderr, "lot_sizing: the number of periods must be from 1 to 500\n");
    return 1;
  }
  try {
    SolveBothWays(RandomPeriods(periods, static_cast<unsigned>(seed)));
    return 0;
  } catch (std::exception const& failure) {
    std::fprintf(stderr, "lot_sizing: %s\n", failure.what());
    return 1;
  }
}
