// The infeasible public instances: their sets are proved irreducible by solves. The folder of the instances is told by
// the environment variable VORQ_INSTANCES.
#include <cmath>

#include "tests/solver/tasks/iis_fixture.hpp"
#include "tests/support/instances.hpp"

namespace {

class IisInstancesTest : public IisTest {
 protected:
  // False where the folder is not told.
  bool ReadInstance(std::string const& file) {
    auto const folder = InstanceFolder();
    if (folder.empty()) return false;
    std::string const path = folder + "/" + file;
    EXPECT_EQ((file.ends_with(".lp") ? VORQ_ReadLp : VORQ_ReadMps)(prob, path.c_str()), VORQ_OK) << path;
    return true;
  }
};

class LinearInstance : public IisInstancesTest, public testing::WithParamInterface<char const*> {};

TEST_P(LinearInstance, HasAnIrreducibleSet) {
  if (!ReadInstance(std::string("lp_infeasible/") + GetParam() + ".mps.gz")) {
    GTEST_SKIP() << kNoInstances;
  }
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(Int("IsMinIIS"), 1);
  RecordProperty("members", MemberCount());
  ExpectIrreducible();
}

std::string NameOf(testing::TestParamInfo<char const*> const& instance) {
  return instance.param;
}

INSTANTIATE_TEST_SUITE_P(All, LinearInstance, testing::Values("itest2", "galenet", "bgprtr", "woodinfe", "klein1"),
                         NameOf);

// A budget row that the optimum does not meet: sets of hundreds of members, with numbers of very different size.
class TightBudget : public IisInstancesTest, public testing::WithParamInterface<char const*> {};

TEST_P(TightBudget, HasAnIrreducibleSet) {
  if (!ReadInstance(std::string("lp/") + GetParam() + ".mps.gz")) {
    GTEST_SKIP() << kNoInstances;
  }
  ASSERT_EQ(Solve(), kOptimal);
  double const optimum = Dbl("LpObjval") - Dbl("ObjConst");
  std::vector<double> costs(static_cast<std::size_t>(Int("Cols")));
  ASSERT_EQ(VORQ_GetColInfo(prob, "Obj", Int("Cols"), nullptr, costs.data()), VORQ_OK);
  std::vector<int> cols(costs.size());
  for (std::size_t k = 0; k < cols.size(); ++k) cols[k] = static_cast<int>(k);
  Row(cols, costs, 'L', optimum - 0.01 * std::abs(optimum));
  Set("TimeLimit", 60.0);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(RowUpper().back(), 1);
  if (Int("IsMinIIS") == 1) ExpectIrreducible();
}

INSTANTIATE_TEST_SUITE_P(All, TightBudget, testing::Values("share2b", "blend", "stair"), NameOf);

TEST_F(IisInstancesTest, MixedIntegerInstanceHasAnIrreducibleSet) {
  if (!ReadInstance("mip/stein27_inf.lp")) {
    GTEST_SKIP() << kNoInstances;
  }
  Set("TimeLimit", 30.0);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(Int("HasIIS"), 1);
  if (Int("IsMinIIS") == 1) {
    ExpectIrreducible();
    return;
  }
  // Cut short, it is infeasible all the same.
  ASSERT_EQ(VORQ_WriteIIS(prob, Path("set.iis").c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_ReadLp(prob, Path("set.iis").c_str()), VORQ_OK);
  EXPECT_EQ(Solve(), kInfeasible);
}

}  // namespace
