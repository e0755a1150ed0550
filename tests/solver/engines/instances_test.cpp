// Instances with published optima. The folder is told by the environment variable VORQ_INSTANCES; it holds optima.csv,
// whose columns are found by the names in its first line.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "frame/vorq_solver.h"

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

class InstancesTest : public testing::TestWithParam<char const*> {};

double Attribute(VORQ_Prob* prob, char const* name) {
  double value = 0.0;
  EXPECT_EQ(VORQ_GetDblAttr(prob, name, &value), VORQ_OK) << name;
  return value;
}

// Takes branch and cut minutes: only the bounds around its optimum are checked, after a while.
bool IsHard(Instance const& instance) {
  return instance.at("name") == "sp150x300d";
}

void SolveInstance(VORQ_Prob* prob, std::string const& path, Instance const& instance) {
  bool const isMps = path.find(".mps") != std::string::npos;
  ASSERT_EQ(VORQ_SetIntParam(prob, "LogToConsole", 0), VORQ_OK);
  ASSERT_EQ((isMps ? VORQ_ReadMps : VORQ_ReadLp)(prob, path.c_str()), VORQ_OK);
  // Ten times as close as the comparison asks for.
  ASSERT_EQ(VORQ_SetDblParam(prob, "RelGap", 0.1 * std::stod(instance.at("relative_tolerance"))), VORQ_OK);
  ASSERT_EQ(VORQ_SetDblParam(prob, "TimeLimit", IsHard(instance) ? 10.0 : 120.0), VORQ_OK);
  ASSERT_EQ(VORQ_Solve(prob), VORQ_OK);
  int isMip = 0;
  int status = 0;
  ASSERT_EQ(VORQ_GetIntAttr(prob, "IsMIP", &isMip), VORQ_OK);
  ASSERT_EQ(VORQ_GetIntAttr(prob, isMip != 0 ? "MipStatus" : "LpStatus", &status), VORQ_OK);
  auto const& optimum = instance.at("optimum");
  if (optimum == "infeasible") {
    EXPECT_EQ(status, 2);
    return;
  }
  double const expected = std::stod(optimum);
  double const tolerance = std::stod(instance.at("relative_tolerance")) * std::max(1.0, std::abs(expected));
  if (IsHard(instance) && status == 8) {
    EXPECT_LE(Attribute(prob, "BestBnd"), expected + tolerance);
    EXPECT_GE(Attribute(prob, "BestObj"), expected - tolerance);
    return;
  }
  ASSERT_EQ(status, 1);
  EXPECT_NEAR(Attribute(prob, isMip != 0 ? "BestObj" : "LpObjval"), expected, tolerance);
}

TEST_P(InstancesTest, ReachThePublishedOptima) {
  char const* folder = std::getenv("VORQ_INSTANCES");
  if (folder == nullptr) GTEST_SKIP() << "VORQ_INSTANCES does not name the folder of the instances";
  auto const instances = ReadInstances(folder, GetParam());
  ASSERT_FALSE(instances.empty());
  for (auto const& instance : instances) {
    SCOPED_TRACE(instance.at("name"));
    VORQ_Env* env = nullptr;
    VORQ_Prob* prob = nullptr;
    ASSERT_EQ(VORQ_CreateEnvWithPath(nullptr, &env), VORQ_OK);
    ASSERT_EQ(VORQ_CreateProb(env, &prob), VORQ_OK);
    SolveInstance(prob, std::string(folder) + "/" + instance.at("file"), instance);
    VORQ_DeleteProb(&prob);
    VORQ_DeleteEnv(&env);
  }
}

INSTANTIATE_TEST_SUITE_P(Classes, InstancesTest, testing::Values("lp", "lp_infeasible", "mip", "mip_infeasible"));

}  // namespace
