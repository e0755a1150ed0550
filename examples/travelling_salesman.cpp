// Travelling salesman: the shortest round trip through cities, with the rows that forbid subtours found on the way.
//
//     travelling_salesman [cities [seed [seconds [lazy]]]]
//
// The cities lie on a grid of 1000 by 1000, scattered by the seed; distances are rounded to integers. The model has a
// binary variable for each pair of cities and says that each city has two neighbours on the tour. That its solutions
// may fall into several round trips is forbidden by the subtour constraints of Dantzig, Fulkerson and Johnson (Solution
// of a large-scale traveling-salesman problem, Operations Research 2, 1954). There is one for each set of cities, far
// too many to write down: a callback adds those that a solution breaks.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

#include <vorq>

namespace {

template <class T>
using Owned = std::unique_ptr<T>;

using Tour = std::vector<int>;

// Where the solver calls back.
constexpr int kRelaxation = 1;
constexpr int kCandidate = 2;

struct City {
  int x, y;
};

std::vector<City> ScatteredCities(int count, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<City> cities;
  for (int i = 0; i < count; ++i) {
    int const x = static_cast<int>(random() % 1000);
    int const y = static_cast<int>(random() % 1000);
    cities.push_back({x, y});
  }
  return cities;
}

// The pairs of cities, numbered (0,1), (0,2), (1,2), (0,3), ..., and their distances.
class Pairs {
 public:
  explicit Pairs(std::vector<City> const& cities) : cityCount_(static_cast<int>(cities.size())) {
    for (int b = 1; b < cityCount_; ++b) {
      for (int a = 0; a < b; ++a) {
        distances_.push_back(std::round(std::hypot(cities[a].x - cities[b].x, cities[a].y - cities[b].y)));
      }
    }
  }

  int CityCount() const { return cityCount_; }
  int Count() const { return static_cast<int>(distances_.size()); }
  int Of(int a, int b) const { return a < b ? b * (b - 1) / 2 + a : a * (a - 1) / 2 + b; }
  double Distance(int a, int b) const { return distances_[Of(a, b)]; }
  std::vector<double> const& Distances() const { return distances_; }

 private:
  int cityCount_;
  std::vector<double> distances_;
};

// ---- Sets of cities that a solution enters too rarely

// The parts into which the pairs with a positive value join the cities.
std::vector<std::vector<int>> ConnectedParts(Pairs const& pairs, std::vector<double> const& values) {
  std::vector<std::vector<int>> parts;
  std::vector<bool> isReached(pairs.CityCount());
  for (int start = 0; start < pairs.CityCount(); ++start) {
    if (isReached[start]) continue;
    std::vector<int> part = {start};
    isReached[start] = true;
    for (std::size_t next = 0; next < part.size(); ++next) {
      for (int city = 0; city < pairs.CityCount(); ++city) {
        if (isReached[city] || values[pairs.Of(part[next], city)] < 1e-6) continue;
        isReached[city] = true;
        part.push_back(city);
      }
    }
    parts.push_back(std::move(part));
  }
  return parts;
}

struct Cut {
  double value = 1e30;
  std::vector<int> side;
};

// The set of cities with the least value on the pairs that lead out of it (Stoer and Wagner, A simple min-cut
// algorithm, Journal of the ACM 44, 1997): cities are merged until one is left, each phase giving one cut.
Cut MinimumCut(Pairs const& pairs, std::vector<double> const& values) {
  int const n = pairs.CityCount();
  std::vector<std::vector<double>> weight(n, std::vector<double>(n, 0.0));
  std::vector<std::vector<int>> merged(n);
  for (int a = 0; a < n; ++a) {
    merged[a] = {a};
    for (int b = 0; b < a; ++b) weight[a][b] = weight[b][a] = values[pairs.Of(a, b)];
  }
  std::vector<int> left(n);
  std::iota(left.begin(), left.end(), 0);
  Cut best;
  while (left.size() > 1) {
    std::vector<double> attachment(n, 0.0);
    std::vector<int> order = left;
    for (std::size_t k = 0; k < order.size(); ++k) {
      auto const next = std::max_element(order.begin() + static_cast<std::ptrdiff_t>(k), order.end(),
                                         [&](int a, int b) { return attachment[a] < attachment[b]; });
      std::swap(order[k], *next);
      if (k + 1 == order.size()) break;
      for (int city : left) attachment[city] += weight[order[k]][city];
    }
    int const last = order[order.size() - 1];
    int const before = order[order.size() - 2];
    if (attachment[last] < best.value) best = {attachment[last], merged[last]};
    merged[before].insert(merged[before].end(), merged[last].begin(), merged[last].end());
    for (int city : left) weight[before][city] = weight[city][before] += weight[last][city];
    weight[before][before] = 0.0;
    std::erase(left, last);
  }
  return best;
}

// The cities of a set, or those outside of it, whichever are fewer.
std::vector<int> SmallerSide(int cityCount, std::vector<int> const& side) {
  if (2 * static_cast<int>(side.size()) <= cityCount) return side;
  std::vector<int> others;
  for (int city = 0; city < cityCount; ++city) {
    if (std::find(side.begin(), side.end(), city) == side.end()) others.push_back(city);
  }
  return others;
}

// ---- Tours from fractional values

// Exchanges two pairs for two others as long as that makes the tour shorter.
void ImproveByExchanges(Pairs const& pairs, Tour& tour) {
  std::size_t const n = tour.size();
  for (bool isImproved = true; isImproved;) {
    isImproved = false;
    for (std::size_t i = 0; i + 1 < n; ++i) {
      for (std::size_t j = i + 2; j < n; ++j) {
        int const a = tour[i], b = tour[i + 1], c = tour[j], d = tour[(j + 1) % n];
        if (a == d) continue;
        double const gain = pairs.Distance(a, b) + pairs.Distance(c, d) - pairs.Distance(a, c) - pairs.Distance(b, d);
        if (gain < 0.5) continue;
        std::reverse(tour.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                     tour.begin() + static_cast<std::ptrdiff_t>(j) + 1);
        isImproved = true;
      }
    }
  }
}

// From each city on to the one that the values like best, the nearest among equals.
Tour TourAlong(Pairs const& pairs, std::vector<double> const& values) {
  Tour tour = {0};
  std::vector<int> left(static_cast<std::size_t>(pairs.CityCount() - 1));
  std::iota(left.begin(), left.end(), 1);
  while (!left.empty()) {
    int const here = tour.back();
    auto const next = std::min_element(left.begin(), left.end(), [&](int a, int b) {
      auto const rank = [&](int city) {
        return std::pair(-std::round(10.0 * values[pairs.Of(here, city)]), pairs.Distance(here, city));
      };
      return rank(a) < rank(b);
    });
    tour.push_back(*next);
    left.erase(next);
  }
  ImproveByExchanges(pairs, tour);
  return tour;
}

double Length(Pairs const& pairs, Tour const& tour) {
  double length = pairs.Distance(tour.back(), tour.front());
  for (std::size_t i = 1; i < tour.size(); ++i) length += pairs.Distance(tour[i - 1], tour[i]);
  return length;
}

// ---- The callback

class SubtourElimination final : public Vorq::ICallback {
 public:
  SubtourElimination(Pairs const& pairs, Vorq::IVarArray& vars, double seconds)
      : pairs_(pairs), vars_(vars), values_(static_cast<std::size_t>(pairs.Count())), seconds_(seconds) {
    for (int pair = 0; pair < pairs.Count(); ++pair) var_.emplace_back(vars.Get(pair));
  }

  void Callback() override {
    // When the time is over, the first tour will do.
    if (proxy_->GetDblInfo("SolvingTime") > seconds_ && proxy_->GetIntInfo("SolutionCnt") > 0) proxy_->Interrupt();
    CheckProxy();
    if (proxy_->GetContext() == kCandidate) {
      CheckCandidate();
    } else {
      TightenRelaxation();
    }
  }

  Vorq::ICallbackProxy* GetCallbackProxy() override { return proxy_.get(); }

  int LazyConstraints() const { return lazyConstraints_; }
  int UserCuts() const { return userCuts_; }

 private:
  // What is thrown here comes out of Solve.
  void CheckProxy() const {
    if (proxy_->GetLastError() != 0) throw std::runtime_error(proxy_->GetErrorMessage());
  }

  // A candidate is integral and gives each city two neighbours, so that it is a tour or several.
  void CheckCandidate() {
    proxy_->GetSolution(values_.data(), pairs_.Count());
    CheckProxy();
    auto const parts = ConnectedParts(pairs_, values_);
    if (parts.size() == 1) return;
    for (std::vector<int> const& part : parts) {
      proxy_->AddLazyConstr(PairsWithin(part).get(), 'L', static_cast<double>(part.size()) - 1.0);
      CheckProxy();
      ++lazyConstraints_;
    }
  }

  // The same constraints make the bound of a relaxation better; what is worth adding is found by minimum cuts.
  void TightenRelaxation() {
    proxy_->GetRelaxSolution(values_.data(), pairs_.Count());
    CheckProxy();
    auto parts = ConnectedParts(pairs_, values_);
    if (parts.size() == 1) {
      Cut const cut = MinimumCut(pairs_, values_);
      if (cut.value > 2.0 - 1e-4) {
        OfferTour();
        return;
      }
      parts = {SmallerSide(pairs_.CityCount(), cut.side)};
    }
    for (std::vector<int> const& part : parts) {
      proxy_->AddUserCut(PairsWithin(part).get(), 'L', static_cast<double>(part.size()) - 1.0);
      CheckProxy();
      ++userCuts_;
    }
  }

  // A tour that follows the relaxation, if it is shorter than those before.
  void OfferTour() {
    Tour const tour = TourAlong(pairs_, values_);
    double const length = Length(pairs_, tour);
    if (length >= shortest_) return;
    shortest_ = length;
    std::vector<double> onTour(values_.size(), 0.0);
    for (std::size_t i = 0; i < tour.size(); ++i) onTour[pairs_.Of(tour[i], tour[(i + 1) % tour.size()])] = 1.0;
    proxy_->SetSolution(&vars_, onTour.data(), pairs_.Count());
    CheckProxy();
  }

  Owned<Vorq::IExpr> PairsWithin(std::vector<int> const& part) const {
    Owned<Vorq::IExpr> sum(CreateExpr(0.0));
    for (std::size_t i = 0; i < part.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) sum->AddTerm(var_[pairs_.Of(part[i], part[j])].get(), 1.0);
    }
    return sum;
  }

  Owned<Vorq::ICallbackProxy> proxy_{CreateCallbackProxy()};
  Pairs const& pairs_;
  Vorq::IVarArray& vars_;
  std::vector<Owned<Vorq::IVar>> var_;
  std::vector<double> values_;
  double seconds_;
  double shortest_ = 1e30;
  int lazyConstraints_ = 0;
  int userCuts_ = 0;
};

// ---- The model

Owned<Vorq::IVarArray> AddPairs(Vorq::IModel& model, Pairs const& pairs) {
  std::vector<char> const types(static_cast<std::size_t>(pairs.Count()), 'B');
  Owned<Vorq::IVarArray> vars(
      model.AddVars(pairs.Count(), nullptr, nullptr, pairs.Distances().data(), types.data(), "pair"));
  for (int city = 0; city < pairs.CityCount(); ++city) {
    Owned<Vorq::IExpr> neighbours(CreateExpr(0.0));
    for (int other = 0; other < pairs.CityCount(); ++other) {
      if (other == city) continue;
      Owned<Vorq::IVar> var(vars->Get(pairs.Of(city, other)));
      neighbours->AddTerm(var.get(), 1.0);
    }
    Owned<Vorq::IConstraint> row(model.AddConstr(neighbours.get(), 'E', 2.0, "neighbours"));
  }
  return vars;
}

Tour TourOf(Pairs const& pairs, std::vector<double> const& values) {
  Tour tour = {0};
  std::vector<bool> isVisited(pairs.CityCount());
  isVisited[0] = true;
  for (int next = 0; next != pairs.CityCount();) {
    for (next = 0; next < pairs.CityCount(); ++next) {
      if (!isVisited[next] && values[pairs.Of(tour.back(), next)] > 0.5) break;
    }
    if (next == pairs.CityCount()) break;
    isVisited[next] = true;
    tour.push_back(next);
  }
  return tour;
}

int Solve(std::vector<City> const& cities, double seconds, bool isLazy) {
  Owned<Vorq::IEnvr> envr(CreateEnvr(nullptr));
  Owned<Vorq::IModel> model(CreateModel(envr.get(), "travelling_salesman"));
  model->SetIntParam("LogToConsole", 0);
  model->SetDblParam("RelGap", 0.0);
  Pairs const pairs(cities);
  Owned<Vorq::IVarArray> vars = AddPairs(*model, pairs);

  SubtourElimination elimination(pairs, *vars, seconds);
  model->SetCallback(&elimination, isLazy ? kCandidate : kRelaxation + kCandidate);
  model->Solve();
  if (model->GetLastError() != 0) throw std::runtime_error(model->GetErrorMessage());
  if (model->GetIntAttr("HasMipSol") == 0) throw std::runtime_error("no tour was found");

  std::vector<double> values(static_cast<std::size_t>(pairs.Count()));
  model->GetSolution(values.data());
  for (std::size_t i = 0; i < cities.size(); ++i) {
    std::printf("city %zu at (%d, %d)\n", i, cities[i].x, cities[i].y);
  }
  std::printf("tour");
  for (int const city : TourOf(pairs, values)) std::printf(" %d", city);
  constexpr int kInterrupted = 10;
  std::printf("\nlength %.0f, at least %.0f%s\n", model->GetDblAttr("BestObj"),
              std::ceil(model->GetDblAttr("BestBnd") - 1e-6),
              model->GetIntAttr("MipStatus") == kInterrupted ? ", interrupted" : "");
  std::printf("%d lazy constraints, %d user cuts, %d nodes\n", elimination.LazyConstraints(), elimination.UserCuts(),
              model->GetIntAttr("NodeCnt"));
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  int const cities = argc > 1 ? std::atoi(argv[1]) : 40;
  int const seed = argc > 2 ? std::atoi(argv[2]) : 1;
  double const seconds = argc > 3 ? std::atof(argv[3]) : 60.0;
  bool const isLazy = argc > 4 && std::string_view(argv[4]) == "lazy";
  if (cities < 3 || cities > 500) {
    std::fprintf(stderr, "travelling_salesman: the number of cities must be from 3 to 500\n");
    return 1;
  }
  try {
    return Solve(ScatteredCities(cities, static_cast<unsigned>(seed)), seconds, isLazy);
  } catch (std::exception const& failure) {
    std::fprintf(stderr, "travelling_salesman: %s\n", failure.what());
    return 1;
  }
}
