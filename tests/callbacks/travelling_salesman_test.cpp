// The tours of the example program, against a dynamic programme for few cities, and for more against the same model
// solved without a callback, its subtour constraints being ordinary rows.
#include <vorq>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <numeric>
#include <sstream>
#include <string>
#include <vector>

#include "tests/cli/program.hpp"
#include "tests/support/objects.hpp"

namespace {

using vorqtest::Own;
using vorqtest::SilentSink;

using testing::HasSubstr;

using Distances = std::vector<std::vector<double>>;

// What the program printed.
struct Answer {
  Distances distances;
  std::vector<int> tour;
  double length = -1.0;
  double bound = -1.0;
  int lazyConstraints = -1;
  bool isInterrupted = false;
};

Answer RunTour(int cities, int seed, std::string const& options = "") {
  std::string const arguments = std::to_string(cities) + " " + std::to_string(seed) + " " + options;
  ProgramResult const result = RunProgram(TRAVELLING_SALESMAN " " + arguments);
  EXPECT_EQ(result.exitCode, 0) << arguments << ": " << result.errors;
  Answer answer;
  std::vector<std::pair<int, int>> places;
  std::istringstream lines(result.output);
  for (std::string line; std::getline(lines, line);) {
    int x = 0, y = 0;
    if (std::sscanf(line.c_str(), "city %*d at (%d, %d)", &x, &y) == 2) places.emplace_back(x, y);
    if (line.starts_with("tour ")) {
      std::istringstream numbers(line.substr(5));
      for (int city; numbers >> city;) answer.tour.push_back(city);
    }
    if (line.ends_with(", interrupted")) answer.isInterrupted = true;
    std::sscanf(line.c_str(), "length %lf, at least %lf", &answer.length, &answer.bound);
    std::sscanf(line.c_str(), "%d lazy constraints", &answer.lazyConstraints);
  }
  EXPECT_EQ(places.size(), static_cast<std::size_t>(cities));
  for (auto const& [x, y] : places) {
    std::vector<double>& row = answer.distances.emplace_back();
    for (auto const& [u, v] : places) row.push_back(std::round(std::hypot(x - u, y - v)));
  }
  return answer;
}

void ExpectRoundTrip(Answer const& answer) {
  std::vector<int> cities(answer.distances.size());
  std::iota(cities.begin(), cities.end(), 0);
  ASSERT_THAT(answer.tour, testing::UnorderedElementsAreArray(cities));
  double length = answer.distances[answer.tour.back()][answer.tour.front()];
  for (std::size_t i = 1; i < answer.tour.size(); ++i) length += answer.distances[answer.tour[i - 1]][answer.tour[i]];
  EXPECT_EQ(answer.length, length);
}

// The length of the shortest tour: for each set of cities without city 0 and each last city in it, the shortest way
// from city 0 through the set (Held and Karp, A dynamic programming approach to sequencing problems, Journal of the
// Society for Industrial and Applied Mathematics 10, 1962).
double ShortestTour(Distances const& distances) {
  int const last = static_cast<int>(distances.size()) - 1;
  std::vector<std::vector<double>> way(1u << last, std::vector<double>(last, 1e30));
  for (int city = 0; city < last; ++city) way[1u << city][city] = distances[0][city + 1];
  for (unsigned set = 1; set < way.size(); ++set) {
    for (int city = 0; city < last; ++city) {
      if ((set >> city & 1u) == 0) continue;
      for (int next = 0; next < last; ++next) {
        if ((set >> next & 1u) != 0) continue;
        double& known = way[set | 1u << next][next];
        known = std::min(known, way[set][city] + distances[city + 1][next + 1]);
      }
    }
  }
  double shortest = 1e30;
  for (int city = 0; city < last; ++city) shortest = std::min(shortest, way.back()[city] + distances[city + 1][0]);
  return shortest;
}

// The same by integer programmes without a callback: the tours that a solution falls into become ordinary rows, until
// there is one tour.
class RowByRow {
 public:
  explicit RowByRow(Distances const& distances) : n_(static_cast<int>(distances.size())) {
    model_->SetIntParam("LogToConsole", 0);
    model_->SetDblParam("RelGap", 0.0);
    vars_.resize(n_);
    for (int a = 0; a < n_; ++a) {
      for (int b = 0; b < a; ++b) vars_[a].push_back(Own(model_->AddVar(0.0, 1.0, distances[a][b], 'B', nullptr)));
    }
    for (int city = 0; city < n_; ++city) {
      auto const sum = Own(CreateExpr(0.0));
      for (int other = 0; other < n_; ++other) {
        if (other != city) sum->AddTerm(Pair(city, other), 1.0);
      }
      Own(model_->AddConstr(sum.get(), 'E', 2.0, nullptr));
    }
  }

  double ShortestTour() {
    while (true) {
      model_->Solve();
      if (model_->GetLastError() != 0 || model_->GetIntAttr("MipStatus") != 1) return -1.0;
      std::vector<std::vector<int>> const tours = Tours();
      if (tours.size() == 1) return model_->GetDblAttr("BestObj");
      for (std::vector<int> const& tour : tours) {
        auto const within = Own(CreateExpr(0.0));
        for (std::size_t i = 0; i < tour.size(); ++i) {
          for (std::size_t j = 0; j < i; ++j) within->AddTerm(Pair(tour[i], tour[j]), 1.0);
        }
        Own(model_->AddConstr(within.get(), 'L', static_cast<double>(tour.size()) - 1.0, nullptr));
      }
    }
  }

 private:
  Vorq::IVar* Pair(int a, int b) { return vars_[std::max(a, b)][std::min(a, b)].get(); }

  std::vector<std::vector<int>> Tours() {
    std::vector<double> values(static_cast<std::size_t>(n_ * (n_ - 1) / 2));
    model_->GetSolution(values.data());
    std::vector<std::vector<int>> tours;
    std::vector<bool> isVisited(n_);
    for (int start = 0; start < n_; ++start) {
      if (isVisited[start]) continue;
      std::vector<int>& tour = tours.emplace_back(1, start);
      isVisited[start] = true;
      for (std::size_t i = 0; i < tour.size(); ++i) {
        for (int city = 0; city < n_; ++city) {
          if (isVisited[city] || values[Pair(tour[i], city)->GetIdx()] < 0.5) continue;
          isVisited[city] = true;
          tour.push_back(city);
        }
      }
    }
    return tours;
  }

  int n_;
  SilentSink sink_;
  std::unique_ptr<Vorq::IEnvr> envr_{CreateEnvr(&sink_)};
  std::unique_ptr<Vorq::IModel> model_{envr_->CreateModel("rows")};
  std::vector<std::vector<std::unique_ptr<Vorq::IVar>>> vars_;
};

TEST(TravellingSalesman, FewCitiesHaveTheTourOfTheDynamicProgramme) {
  for (int cities = 3; cities <= 13; ++cities) {
    for (int seed = 1; seed <= 3; ++seed) {
      for (char const* options : {"", "60 lazy"}) {
        SCOPED_TRACE(testing::Message() << cities << " cities, seed " << seed << ", " << options);
        Answer const answer = RunTour(cities, seed, options);
        ExpectRoundTrip(answer);
        double const shortest = ShortestTour(answer.distances);
        EXPECT_EQ(answer.length, shortest);
        EXPECT_EQ(answer.bound, shortest);
      }
    }
  }
}

TEST(TravellingSalesman, LazyConstraintsAreWhatMakesATour) {
  int lazyConstraints = 0;
  for (int seed = 1; seed <= 5; ++seed) lazyConstraints += RunTour(13, seed, "60 lazy").lazyConstraints;
  EXPECT_GT(lazyConstraints, 0);
}

TEST(TravellingSalesman, MoreCitiesHaveTheTourOfTheModelWithOrdinaryRows) {
  for (int const cities : {20, 30, 40, 60}) {
    SCOPED_TRACE(testing::Message() << cities << " cities");
    Answer const answer = RunTour(cities, 7);
    ExpectRoundTrip(answer);
    EXPECT_EQ(answer.bound, answer.length);
    Answer const lazy = RunTour(cities, 7, "60 lazy");
    ExpectRoundTrip(lazy);
    EXPECT_EQ(lazy.length, answer.length);
    EXPECT_NEAR(RowByRow(answer.distances).ShortestTour(), answer.length, 1e-6);
  }
}

TEST(TravellingSalesman, InterruptionLeavesTheBestTourSoFar) {
  Answer const answer = RunTour(60, 4, "0");
  ExpectRoundTrip(answer);
  EXPECT_TRUE(answer.isInterrupted);
  EXPECT_LT(answer.bound, answer.length);
}

TEST(TravellingSalesman, TooFewCitiesAreRefused) {
  ProgramResult const result = RunProgram(TRAVELLING_SALESMAN " 2");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.errors, "travelling_salesman: the number of cities must be from 3 to 500\n");
}

}  // namespace
