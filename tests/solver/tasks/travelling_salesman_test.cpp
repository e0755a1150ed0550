// Random travelling-salesman problems with subtours forbidden by a callback or by lazy constraints, against a dynamic
// programme.
#include <algorithm>
#include <limits>
#include <string>

#include "tests/solver/tasks/callback_fixture.hpp"
#include "tests/solver/tasks/random.hpp"

namespace {

using Matrix = std::vector<std::vector<int>>;

Matrix RandomDistances(int cities, Random& random, bool isMetric) {
  Matrix distance(cities, std::vector<int>(cities, 0));
  std::vector<std::pair<int, int>> places;
  for (int i = 0; i < cities; ++i) places.emplace_back(random.Int(0, 100), random.Int(0, 100));
  for (int i = 0; i < cities; ++i) {
    for (int j = i + 1; j < cities; ++j) {
      int const plane = std::abs(places[i].first - places[j].first) + std::abs(places[i].second - places[j].second);
      distance[i][j] = distance[j][i] = isMetric ? plane : random.Int(1, 100);
    }
  }
  return distance;
}

// The length of the shortest tour, by subsets of the cities visited.
int ShortestTour(Matrix const& distance) {
  int const others = static_cast<int>(distance.size()) - 1;
  constexpr int kFar = std::numeric_limits<int>::max() / 2;
  std::vector<std::vector<int>> best(std::size_t{1} << others, std::vector<int>(others, kFar));
  for (int city = 0; city < others; ++city) best[std::size_t{1} << city][city] = distance[others][city];
  for (std::size_t visited = 1; visited < best.size(); ++visited) {
    for (int last = 0; last < others; ++last) {
      if (best[visited][last] >= kFar) continue;
      for (int next = 0; next < others; ++next) {
        auto const bit = std::size_t{1} << next;
        if ((visited & bit) != 0) continue;
        int& entry = best[visited | bit][next];
        entry = std::min(entry, best[visited][last] + distance[last][next]);
      }
    }
  }
  int shortest = kFar;
  for (int last = 0; last < others; ++last) shortest = std::min(shortest, best.back()[last] + distance[last][others]);
  return shortest;
}

// The component of each city in the graph of the edges with a value of a half and more.
std::vector<int> Components(int cities, std::vector<double> const& values, double least) {
  std::vector<int> component(cities);
  for (int city = 0; city < cities; ++city) component[city] = city;
  int edge = 0;
  for (int i = 0; i < cities; ++i) {
    for (int j = i + 1; j < cities; ++j, ++edge) {
      if (values[edge] < least || component[i] == component[j]) continue;
      std::ranges::replace(component, int{component[j]}, int{component[i]});
    }
  }
  return component;
}

class TourTest : public CallbackTest {
 protected:
  void AddTours(Matrix const& distance) {
    cities = static_cast<int>(distance.size());
    std::vector<std::vector<int>> at(cities);
    for (int i = 0; i < cities; ++i) {
      for (int j = i + 1; j < cities; ++j) {
        int const col = Col(distance[i][j], 0.0, 1.0, 'B');
        at[i].push_back(col);
        at[j].push_back(col);
      }
    }
    for (auto const& edges : at) Row(edges, std::vector<double>(edges.size(), 1.0), 'E', 2.0);
  }

  // The edges that leave the cities of a component.
  std::vector<int> Leaving(std::vector<int> const& component, int which) const {
    std::vector<int> edges;
    int edge = 0;
    for (int i = 0; i < cities; ++i) {
      for (int j = i + 1; j < cities; ++j, ++edge) {
        if ((component[i] == which) != (component[j] == which)) edges.push_back(edge);
      }
    }
    return edges;
  }

  // Forbids what the point has of subtours.
  void Separate(Call const& call) const {
    auto const point = call.Point();
    auto const component = Components(cities, point, call.context == kCandidate ? 0.5 : 1e-3);
    for (int which = 1; which < cities; ++which) {
      bool const isOne = component[which] == which && component[0] != which;
      if (!isOne) continue;
      auto const edges = Leaving(component, which);
      call.Lazy(edges, std::vector<double>(edges.size(), 1.0), 'G', 2.0);
    }
  }

  bool IsTour() const {
    auto const component = Components(cities, Values(), 0.5);
    return std::ranges::count(component, component[0]) == cities;
  }

  int cities = 0;
};

struct Setting {
  char const* name;
  int mask;
  int presolve;
  int heuristics;
  int cuts;
};

void PrintTo(Setting const& setting, std::ostream* stream) {
  *stream << setting.name;
}

class RandomTours : public TourTest, public testing::WithParamInterface<Setting> {};

TEST_P(RandomTours, AreTheShortest) {
  auto const [name, mask, presolve, heuristics, cuts] = GetParam();
  for (int seed = 1; seed <= 100; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Random random(static_cast<std::uint64_t>(seed));
    auto const distance = RandomDistances(random.Int(8, 14), random, random.Chance(50));
    EXPECT_EQ(VORQ_ClearProb(prob), VORQ_OK);
    AddTours(distance);
    Set("Presolve", presolve);
    Set("HeurLevel", heuristics);
    Set("CutLevel", cuts);
    OnCall(mask, [&](Call const& call) { Separate(call); });
    ASSERT_EQ(Run(), kOptimal);
    EXPECT_NEAR(Dbl("BestObj"), ShortestTour(distance), 1e-6);
    EXPECT_TRUE(IsTour());
  }
}

INSTANTIATE_TEST_SUITE_P(Settings, RandomTours,
                         testing::Values(Setting{"Default", VORQ_CONTEXT_CANDIDATE, -1, -1, -1},
                                         Setting{"AlsoAtFractionalPoints",
                                                 VORQ_CONTEXT_CANDIDATE | VORQ_CONTEXT_RELAXATION, -1, -1, -1},
                                         Setting{"Everything", VORQ_CONTEXT_CANDIDATE, 1, 3, 3},
                                         Setting{"Plain", VORQ_CONTEXT_CANDIDATE, 0, 0, 0}),
                         [](auto const& setting) { return setting.param.name; });

}  // namespace
