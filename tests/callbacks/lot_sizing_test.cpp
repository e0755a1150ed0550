// The plans of the example program, against a dynamic programme.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "tests/cli/program.hpp"

namespace {

struct Period {
  double demand, setupCost, unitCost, holdingCost, make, stock;
};

// One of the two solves.
struct Outcome {
  double cost = -1.0;
  double bound = -1.0;
  int nodes = -1;
};

struct Answer {
  std::vector<Period> periods;
  Outcome plain, withCuts;
  int cuts = -1;
};

Answer RunPlan(int periods, int seed) {
  std::string const arguments = std::to_string(periods) + " " + std::to_string(seed);
  ProgramResult const result = RunProgram(LOT_SIZING " " + arguments);
  EXPECT_EQ(result.exitCode, 0) << arguments << ": " << result.errors;
  Answer answer;
  std::istringstream lines(result.output);
  for (std::string line; std::getline(lines, line);) {
    Period p{};
    int number = 0;
    if (std::sscanf(line.c_str(), "%d %lf %lf %lf %lf %lf %lf", &number, &p.demand, &p.setupCost, &p.unitCost,
                    &p.holdingCost, &p.make, &p.stock) == 7) {
      answer.periods.push_back(p);
    }
    Outcome& plain = answer.plain;
    std::sscanf(line.c_str(), "without cuts: cost %lf, at least %lf, %d nodes", &plain.cost, &plain.bound,
                &plain.nodes);
    Outcome& cuts = answer.withCuts;
    std::sscanf(line.c_str(), "with %d cuts: cost %lf, at least %lf, %d nodes", &answer.cuts, &cuts.cost, &cuts.bound,
                &cuts.nodes);
  }
  EXPECT_EQ(answer.periods.size(), static_cast<std::size_t>(periods));
  return answer;
}

// The cost of the plan that was printed, -1 if it does not meet the demand.
double CostOfPlan(std::vector<Period> const& periods) {
  double cost = 0.0, stock = 0.0;
  for (Period const& p : periods) {
    stock += p.make - p.demand;
    if (stock != p.stock || stock < 0.0 || p.make < 0.0) return -1.0;
    cost += (p.make > 0.0 ? p.setupCost : 0.0) + p.unitCost * p.make + p.holdingCost * stock;
  }
  return stock == 0.0 ? cost : -1.0;
}

// The least cost: some best plan produces only where the stock has run out, and then for a number of whole periods
// (Wagner and Whitin, Dynamic version of the economic lot size model, Management Science 5, 1958).
double LeastCost(std::vector<Period> const& periods) {
  std::size_t const n = periods.size();
  std::vector<double> costUpTo(n + 1, 1e30);
  costUpTo[0] = 0.0;
  for (std::size_t first = 0; first < n; ++first) {
    double cost = costUpTo[first] + periods[first].setupCost;
    double held = 0.0;  // the cost of holding a unit from `first` on
    for (std::size_t last = first; last < n; ++last) {
      cost += (periods[first].unitCost + held) * periods[last].demand;
      held += periods[last].holdingCost;
      costUpTo[last + 1] = std::min(costUpTo[last + 1], cost);
    }
  }
  return costUpTo[n];
}

TEST(LotSizing, PlansCostAsMuchAsThoseOfTheDynamicProgramme) {
  for (int const periods : {1, 2, 3, 5, 8, 13, 21, 30}) {
    for (int seed = 1; seed <= 3; ++seed) {
      SCOPED_TRACE(testing::Message() << periods << " periods, seed " << seed);
      Answer const answer = RunPlan(periods, seed);
      double const least = LeastCost(answer.periods);
      EXPECT_EQ(CostOfPlan(answer.periods), least);
      EXPECT_EQ(answer.withCuts.cost, least);
      EXPECT_EQ(answer.withCuts.bound, least);
      EXPECT_EQ(answer.plain.cost, least);
    }
  }
}

TEST(LotSizing, CutsLeaveLittleToSearch) {
  Answer const answer = RunPlan(30, 1);
  EXPECT_EQ(answer.withCuts.cost, LeastCost(answer.periods));
  EXPECT_GT(answer.cuts, 0);
  EXPECT_LT(10 * answer.withCuts.nodes, answer.plain.nodes);
}

TEST(LotSizing, ABadNumberOfPeriodsIsRefused) {
  ProgramResult const result = RunProgram(LOT_SIZING " 0");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.errors, "lot_sizing: the number of periods must be from 1 to 500\n");
}

}  // namespace
