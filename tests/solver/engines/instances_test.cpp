// Instances with published optima. The folder is told by the environment variable VORQ_INSTANCES; it holds optima.csv,
// whose columns are found by the names in its first line.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "frame/vorq_solver.h"
#include "tests/support/instances.hpp"

namespace {

std::vector<std::string> SplitCsv(std::string const& line) {
  std::vector<std::string> fields(1);
  bool isQuoted = false;
  for (char const c : line) {
    if (c == '"') {
      isQuoted = !isQuoted;
    } else if (c == ',' && !isQuoted) {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

using Instance = std::map<std::string, std::string>;

std::vector<Instance> ReadInstances(std::string const& folder, std::string const& kind) {
  std::ifstream file(folder + "/optima.csv");
  std::string line;
  std::getline(file, line);
  auto const names = SplitCsv(line);
  std::vector<Instance> instances;
  while (std::getline(file, line)) {
    auto const fields = SplitCsv(line);
    Instance instance;
    for (std::size_t k = 0; k < names.size() && k < fields.size(); ++k) instance[names[k]] = fields[k];
    if (instance["class"] == kind) instances.push_back(instance);
  }
  return instances;
}

// The instances of the classes that the engines solve, all of them: the table is known only where the folder is.
constexpr char const* kClasses[] = {"lp",  "lp_infeasible", "mip",           "mip_infeasible",
                                    "sos", "indicator",     "semicontinuous"};

// Semicontinuous, and quadratic as well.
constexpr char const* kUnsolved = "meanvarxsc";

constexpr char const* kNames[] = {
    "afiro",     "adlittle", "share2b",  "sc50a",   "blend",    "israel",     "scagr25",     "bandm",    "e226",
    "brandy",    "stair",    "pilot4",   "25fv47",  "degen2",   "d2q06c",     "greenbea",    "pilot",    "fit2p",
    "kb2",       "lotfi",    "capri",    "recipe",  "scsd8",    "ship04l",    "etamacro",    "grow15",   "sctap1",
    "agg2",      "boeing1",  "stocfor1", "itest2",  "galenet",  "bgprtr",     "woodinfe",    "klein1",   "p0033",
    "p0201",     "misc03",   "flugpl",   "stein27", "egout",    "lseu",       "mod008",      "bell5",    "vpm2",
    "gesa2",     "rgn",      "gt2",      "dcmulti", "khb05250", "enigma",     "fiber",       "misc06",   "p0282",
    "vpm1",      "fixnet6",  "l152lav",  "mod010",  "gr4x6",    "sp150x300d", "stein27_inf", "findRoot", "pcu_0.1",
    "mcf64-4-1", "semicon1",
};

// Its relaxation says next to nothing of the SOS, and the search closes the gap in minutes only: a short search must
// bracket the published optimum.
constexpr char const* kBracketed = "sparse2";

std::vector<Instance> ReadSolvable(std::string const& folder) {
  std::vector<Instance> instances;
  for (char const* const kind : kClasses) {
    for (auto const& instance : ReadInstances(folder, kind)) {
      if (instance.at("name") != kUnsolved) instances.push_back(instance);
    }
  }
  return instances;
}

class InstancesTest : public testing::TestWithParam<char const*> {};

double Attribute(VORQ_Prob* prob, char const* name) {
  double value = 0.0;
  EXPECT_EQ(VORQ_GetDblAttr(prob, name, &value), VORQ_OK) << name;
  return value;
}

double Tolerance(Instance const& instance) {
  return std::stod(instance.at("relative_tolerance")) * std::max(1.0, std::abs(std::stod(instance.at("optimum"))));
}

int IntAttribute(VORQ_Prob* prob, char const* name) {
  int value = 0;
  EXPECT_EQ(VORQ_GetIntAttr(prob, name, &value), VORQ_OK) << name;
  return value;
}

void ReadAndSolve(VORQ_Prob* prob, std::string const& path, double relativeGap, double seconds) {
  bool const isMps = path.find(".mps") != std::string::npos;
  ASSERT_EQ(VORQ_SetIntParam(prob, "LogToConsole", 0), VORQ_OK);
  ASSERT_EQ((isMps ? VORQ_ReadMps : VORQ_ReadLp)(prob, path.c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_SetDblParam(prob, "RelGap", relativeGap), VORQ_OK);
  ASSERT_EQ(VORQ_SetDblParam(prob, "TimeLimit", seconds), VORQ_OK);
  ASSERT_EQ(VORQ_Solve(prob), VORQ_OK);
}

void ExpectOptimum(VORQ_Prob* prob, Instance const& instance) {
  bool const isMip = IntAttribute(prob, "IsMIP") != 0;
  int const status = IntAttribute(prob, isMip ? "MipStatus" : "LpStatus");
  if (instance.at("optimum") == "infeasible") {
    EXPECT_EQ(status, 2);
    return;
  }
  ASSERT_EQ(status, 1);
  EXPECT_NEAR(Attribute(prob, isMip ? "BestObj" : "LpObjval"), std::stod(instance.at("optimum")), Tolerance(instance));
}

// Bound and objective lie on either side of the optimum.
void ExpectBracket(VORQ_Prob* prob, Instance const& instance) {
  double const optimum = std::stod(instance.at("optimum"));
  double const sense = IntAttribute(prob, "ObjSense");
  EXPECT_LE(sense * Attribute(prob, "BestBnd"), sense * optimum + Tolerance(instance));
  if (IntAttribute(prob, "HasMipSol") != 0) {
    EXPECT_GE(sense * Attribute(prob, "BestObj"), sense * optimum - Tolerance(instance));
  }
}

// Takes half a minute of processor time, of the engine's own code, which a sanitizer build does not look into.
constexpr char const* kLong = "sp150x300d";

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kIsSanitized = true;
#elif defined(__has_feature)
constexpr bool kIsSanitized = __has_feature(address_sanitizer) || __has_feature(thread_sanitizer);
#else
constexpr bool kIsSanitized = false;
#endif

// Solves the instance `name` and hands the problem to `expect`.
void SolveNamed(char const* name, double seconds, void (*expect)(VORQ_Prob*, Instance const&)) {
  auto const folder = InstanceFolder();
  if (folder.empty()) GTEST_SKIP() << kNoInstances;
  auto const instances = ReadSolvable(folder);
  auto const found =
      std::ranges::find_if(instances, [name](Instance const& instance) { return instance.at("name") == name; });
  ASSERT_NE(found, instances.end());
  VORQ_Env* env = nullptr;
  VORQ_Prob* prob = nullptr;
  ASSERT_EQ(VORQ_CreateEnvWithPath(nullptr, &env), VORQ_OK);
  ASSERT_EQ(VORQ_CreateProb(env, &prob), VORQ_OK);
  // Ten times as close as the comparison asks for.
  double const relativeGap = 0.1 * std::stod(found->at("relative_tolerance"));
  ReadAndSolve(prob, folder + "/" + found->at("file"), relativeGap, seconds);
  if (!testing::Test::HasFatalFailure()) expect(prob, *found);
  VORQ_DeleteProb(&prob);
  VORQ_DeleteEnv(&env);
}

TEST_P(InstancesTest, ReachesThePublishedOptimum) {
  if (kIsSanitized && GetParam() == std::string_view(kLong)) {
    GTEST_SKIP() << kLong << " takes too long in a sanitizer build; other builds solve it";
  }
  SolveNamed(GetParam(), 800.0, ExpectOptimum);
}

TEST(Instances, AShortSearchBracketsTheOptimumOfAHardSosModel) {
  SolveNamed(kBracketed, 15.0, ExpectBracket);
}

std::string TestName(testing::TestParamInfo<char const*> const& info) {
  std::string name = info.param;
  std::ranges::replace_if(
      name, [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, InstancesTest, testing::ValuesIn(kNames), TestName);

TEST(Instances, AreAllNamedHere) {
  auto const folder = InstanceFolder();
  if (folder.empty()) GTEST_SKIP() << kNoInstances;
  for (auto const& instance : ReadSolvable(folder)) {
    bool const isNamed = std::ranges::find(kNames, instance.at("name")) != std::end(kNames);
    EXPECT_TRUE(isNamed || instance.at("name") == kBracketed) << instance.at("name");
  }
}

}  // namespace
