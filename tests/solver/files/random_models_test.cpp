// Random models read back the same from every format that can hold them.
#include <gtest/gtest.h>

#include "solver/files/binary_file.hpp"
#include "solver/files/cbf_reader.hpp"
#include "solver/files/cbf_writer.hpp"
#include "solver/files/lp_reader.hpp"
#include "solver/files/lp_writer.hpp"
#include "solver/files/mps_reader.hpp"
#include "solver/files/mps_writer.hpp"
#include "solver/files/nl_writer.hpp"
#include "solver/problem/consistency.hpp"
#include "tests/solver/files/describe.hpp"
#include "tests/solver/files/sample_models.hpp"

namespace vorqsolver::test {
namespace {

struct Format {
  char const* name;
  ModelKinds kinds;
  WrittenFile (*write)(ProblemData const& data);
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

// Sums of terms that are just finite read as infinite: no writer may put them down.
TEST(HugeCoefficients, AreRefusedByWritersAndReaders) {
  constexpr double kHuge = 9e29;
  ProblemData data = RandomModel(1, {}).Make();
  data.quadConstraints.push_back({{}, {{0, 0, kHuge}, {0, 0, kHuge}}, 'L', 1.0});
  for (auto const write : {WriteMps, WriteLp, WriteNl}) {
    EXPECT_EQ(FailureOf([&] { write(data); }), "The coefficient 1.8e+30 is too large for a file");
  }
  EXPECT_EQ(FailureOf([] {
              ReadLp({"m.lp", "min 9e29 x + 9e29 x\nend\n"});
            }),
            "m.lp:1: a coefficient of the objective is out of range");
  EXPECT_EQ(FailureOf([] {
              ReadLp({"m.lp", "min x\nst\n c: 2e30 x <= 1\nend\n"});
            }),
            "m.lp:3: a coefficient of constraint 'c' is out of range");
  EXPECT_EQ(FailureOf([] {
              ReadLp({"m.lp", "min x\nst\n q: [ x^2 ] <= inf\nend\n"});
            }),
            "m.lp:3: a quadratic constraint with an infinite right-hand side");
  EXPECT_EQ(FailureOf([] {
              ReadLp({"m.lp", "min x\nst\n x = 1 -> x <= inf\nbinary\nx\nend\n"});
            }),
            "m.lp:3: an indicator with an infinite right-hand side");
  EXPECT_EQ(FailureOf([] {
              ReadMps({"m.mps", "ROWS\n N o\n L q\nCOLUMNS\n x o 1 q 1\nRHS\n R q inf\nQCMATRIX q\n x x 1\nENDATA\n"});
            }),
            "m.mps:3: quadratic constraint 'q' has an infinite right-hand side");
}

TEST(RowsWithoutFiniteValue, AreRefusedByTheLpWriter) {
  auto const data = ReadMps({"m.mps", "ROWS\n N o\n L c\nCOLUMNS\n x o 1 c 1\nRHS\n R c -inf\nENDATA\n"}).data;
  EXPECT_EQ(FailureOf([&] { WriteLp(data); }),
            "An LP file cannot hold row 'c', which has no finite value within its bounds");
}

}  // namespace
}  // namespace vorqsolver::test
