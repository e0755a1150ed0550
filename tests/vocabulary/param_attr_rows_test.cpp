// The table of names: its counts, its order, and samples of its texts.
#include "vocabulary/param_attr_rows.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <string_view>
#include <tuple>

namespace {

using Vorq::ParamAttrRow;
using Vorq::ParamAttrRows;

auto Count(int type, int hidden) {
  return std::ranges::count_if(ParamAttrRows,
                               [=](ParamAttrRow const& row) { return row.type == type && row.hidden == hidden; });
}

std::string_view Description(std::string_view name) {
  auto const row =
      std::ranges::find(ParamAttrRows, name, [](ParamAttrRow const& r) { return std::string_view(r.name); });
  return row == ParamAttrRows.end() ? "no such row" : row->description;
}

TEST(ParamAttrRows, HasAllRowsOfEachKind) {
  EXPECT_EQ(ParamAttrRows.size(), 539u);
  EXPECT_EQ(Count(0, 0), 13);
  EXPECT_EQ(Count(0, 1), 39);
  EXPECT_EQ(Count(1, 0), 49);
  EXPECT_EQ(Count(1, 1), 361);
  EXPECT_EQ(Count(2, 0), 7);
  EXPECT_EQ(Count(2, 1), 16);
  EXPECT_EQ(Count(3, 0), 44);
  EXPECT_EQ(Count(3, 1), 10);
}

TEST(ParamAttrRows, OrderIsByTypeAndPublicFirst) {
  EXPECT_TRUE(std::ranges::is_sorted(ParamAttrRows, {},
                                     [](ParamAttrRow const& row) { return std::tuple(row.type, row.hidden); }));
}

TEST(ParamAttrRows, NamesDifferEvenWithoutCase) {
  std::set<std::string> names;
  for (ParamAttrRow const& row : ParamAttrRows) {
    std::string lower = row.name;
    std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    EXPECT_TRUE(names.insert(lower).second) << row.name;
  }
}

TEST(ParamAttrRows, EveryRowHasADescription) {
  for (ParamAttrRow const& row : ParamAttrRows) EXPECT_NE(std::string_view(row.description), "") << row.name;
}

TEST(ParamAttrRows, FirstAndLastRowsOfTheKindsStandInPlace) {
  EXPECT_STREQ(ParamAttrRows[0].name, "TimeLimit");
  EXPECT_STREQ(ParamAttrRows[13].name, "InfBound");
  EXPECT_STREQ(ParamAttrRows[52].name, "Logging");
  EXPECT_STREQ(ParamAttrRows[101].name, "Sifting");
  EXPECT_STREQ(ParamAttrRows[330].name, "Heur0");
  EXPECT_STREQ(ParamAttrRows[395].name, "Heur65");
  EXPECT_STREQ(ParamAttrRows[396].name, "SubMipHeur0");
  EXPECT_STREQ(ParamAttrRows[461].name, "SubMipHeur65");
  EXPECT_STREQ(ParamAttrRows[462].name, "SolvingTime");
  EXPECT_STREQ(ParamAttrRows[485].name, "Cols");
  EXPECT_STREQ(ParamAttrRows[538].name, "IsFolded");
}

TEST(ParamAttrRows, DescriptionsAreKeptToTheLetter) {
  EXPECT_EQ(Description("TuneTimeLimit"), "Time limit of tuning (0: auto)");
  EXPECT_EQ(Description("TuneOutputLevel"),
            "Output level for tuner (0: no output, 1: only for best paramter, 2: summary for each parameter set, "
            "3: detailed output)");
  EXPECT_EQ(Description("BarStart"),
            "Starting point method for barrier (-1: automatic, 0: Simple, 1: Mehrotra 2: Modified Mehrotra)");
  EXPECT_EQ(Description("LazyConstraints"), "Whether lazy constraints will be added (-1: auto, 0: no, 1: yes).");
  EXPECT_EQ(Description("QpReformulate"), "Reformulation of QP (0 = 1 = diagonalize, 2 = to SOCP)");
  EXPECT_EQ(Description("SubMipParallel"),
            "Parallelization mode for sub-MIP heuristics (0: run sequentially (with single thread), 1: run in parallel "
            "to others, 3: run alonn-");
  EXPECT_EQ(Description("RQuadMethod"),
            "Specifies method for rotated cone reformulation (-1: auto, 0: inplace, 1: auxilary row)");
  EXPECT_EQ(Description("AnalyticCenterEffort"),
            "Specifies the effort we spent in computing analytic center (0: don't compute, 1: only compute in AC "
            "presolver, 2: compute AC in i-");
  EXPECT_EQ(Description("MipIffTol"), "The tolearance for linearizing IFF constraints");
  EXPECT_EQ(Description("Heur17"), "Level of heuristic_17");
  EXPECT_EQ(Description("SubMipHeur65"), "Level of heuristic_65 in subMIPs");
  EXPECT_EQ(Description("RootCutGomory"), "Level of root Gomory cuttings");
  EXPECT_EQ(Description("TreeCutClique"), "Level of tree clique cuttings");
  EXPECT_EQ(Description("MipPreClique"), "Whether to use clique presolver");
  EXPECT_EQ(Description("HeurRINS"), "Level of RINS heuristic");
  EXPECT_EQ(Description("FeasRelaxObj"), "Feasibility relaxation objective value");
  EXPECT_EQ(Description("LazyCons"), "Number of lazy constraint in the problem");
}

TEST(ParamAttrRows, TheTwoSetPpcNamesShareADescription) {
  EXPECT_EQ(Description("MipPreSetPPC"), "Whether to use set PPC presolver");
  EXPECT_EQ(Description("MipPreSetPPCStrength"), "Whether to use set PPC presolver");
}

TEST(ParamAttrRows, InfBoundIsInternal) {
  auto const row = std::ranges::find(ParamAttrRows, std::string_view("InfBound"),
                                     [](ParamAttrRow const& r) { return std::string_view(r.name); });
  ASSERT_NE(row, ParamAttrRows.end());
  EXPECT_EQ(row->hidden, 1);
  EXPECT_EQ(row->type, 0);
}

}  // namespace
