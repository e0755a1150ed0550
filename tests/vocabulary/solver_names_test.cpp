// The name table against the solver library: both know the same names, of the same kinds.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>

#include "frame/vorq_solver.h"
#include "vocabulary/param_attr_rows.hpp"

namespace {

int Search(std::string const& name) {
  int type = -2;
  EXPECT_EQ(VORQ_SearchParamAttr(nullptr, name.c_str(), &type), VORQ_OK);
  return type;
}

TEST(SolverNames, EveryRowIsKnownWithItsKind) {
  for (Vorq::ParamAttrRow const& row : Vorq::ParamAttrRows) EXPECT_EQ(Search(row.name), row.type) << row.name;
}

TEST(SolverNames, EveryRowIsKnownInUpperCase) {
  for (Vorq::ParamAttrRow const& row : Vorq::ParamAttrRows) {
    std::string upper = row.name;
    std::ranges::transform(upper, upper.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    EXPECT_EQ(Search(upper), row.type) << upper;
  }
}

TEST(SolverNames, OtherNamesAreUnknown) {
  EXPECT_EQ(Search(""), VORQ_UNKNOWN_NAME);
  EXPECT_EQ(Search("TimeLim"), VORQ_UNKNOWN_NAME);
  EXPECT_EQ(Search("TimeLimits"), VORQ_UNKNOWN_NAME);
  EXPECT_EQ(Search("Heur66"), VORQ_UNKNOWN_NAME);
}

}  // namespace
