// The infeasible public instances: their sets are proved irreducible by solves. The folder of the instances is told by
// the environment variable VORQ_INSTANCES.
#include <cstdlib>

#include "tests/solver/tasks/iis_fixture.hpp"

namespace {

class IisInstancesTest : public IisTest {
 protected:
  // False where the folder is not told.
  bool ReadInstance(std::string const& file) {
    char const* folder = std::getenv("VORQ_INSTANCES");
    if (folder == nullptr) return false;
    std::string const path = std::string(folder) + "/" + file;
    EXPECT_EQ((file.ends_with(".lp") ? VORQ_ReadLp : VORQ_ReadMps)(prob, path.c_str()), VORQ_OK) << path;
    return true;
  }
};

class LinearInstance : public IisInstancesTest, public testing::WithParamInterface<char const*> {};

TEST_P(LinearInstance, HasAnIrreducibleSet) {
  if (!ReadInstance(std::string("lp_infeasible/") + GetParam() + ".mps.gz")) {
    GTEST_SKIP() << "VORQ_INSTANCES does not name the folder of the instances";
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

TEST_F(IisInstancesTest, MixedIntegerInstanceHasAnIrreducibleSet) {
  if (!ReadInstance("mip/stein27_inf.lp")) {
    GTEST_SKIP() << "VORQ_INSTANCES does not name the folder of the instances";
  }
  Set("TimeLimit", 60.0);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(Int("HasIIS"), 1);
  if (Int("IsMinIIS") == 1) ExpectIrreducible();
}

}  // namespace
