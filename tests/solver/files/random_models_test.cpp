// Random models read back the same from every format that can hold them.
#include <gtest/gtest.h>

#include "solver/files/binary_file.hpp"
#include "solver/files/cbf_reader.hpp"
#include "solver/files/cbf_writer.hpp"
#include "solver/files/lp_reader.hpp"
#include "solver/files/lp_writer.hpp"
#include "solver/files/mps_reader.hpp"
#include "solver/files/mps_writer.hpp"
#include "solver/problem/consistency.hpp"
#include "tests/solver/files/describe.hpp"
#include "tests/solver/files/sample_models.hpp"

namespace vorqsolver::test {
namespace {

struct Format {
  char const* name;
  ModelKinds kinds;
  WrittenModel (*write)(ProblemData const& data);
  ReadModel (*read)(TextSource const& source);
};

class RandomModels : public testing::TestWithParam<Format> {};

TEST_P(RandomModels, ReadBackTheSame) {
  auto const& [name, kinds, write, read] = GetParam();
  for (unsigned seed = 1; seed <= 300; ++seed) {
    ProblemData const data = RandomModel(seed, kinds).Make();
    CheckConsistent(data);
    auto const written = write(data);
    ASSERT_EQ(written.warnings, Warnings()) << "seed " << seed;
    ProblemData const again = read({"m", written.text}).data;
    ASSERT_EQ(Describe(again), Describe(data)) << "seed " << seed << "\n" << written.text;
    EXPECT_EQ(again.name, data.name);
    CheckConsistent(again);
    ASSERT_EQ(write(again).text, written.text) << "seed " << seed;
  }
}

constexpr ModelKinds kLinear{.discrete = true, .semi = true, .quadratic = true, .names = true};
constexpr ModelKinds kConic{.discrete = true, .conic = true, .simpleBounds = true};
constexpr ModelKinds kAll{.discrete = true, .semi = true, .quadratic = true, .conic = true, .names = true};

INSTANTIATE_TEST_SUITE_P(Formats, RandomModels,
                         testing::Values(Format{"mps", kLinear, WriteMps, ReadMps},
                                         Format{"lp", kLinear, WriteLp, ReadLp},
                                         Format{"cbf", kConic, WriteCbf, ReadCbf},
                                         Format{"bin", kAll, WriteBinary, ReadBinary}),
                         [](auto const& format) { return std::string(format.param.name); });

}  // namespace
}  // namespace vorqsolver::test
