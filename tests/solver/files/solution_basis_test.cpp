// Files of values and bases.
#include <gtest/gtest.h>

#include "solver/files/basis_file.hpp"
#include "solver/files/lp_reader.hpp"
#include "solver/files/solution_file.hpp"
#include "tests/solver/files/describe.hpp"

namespace vorqsolver::test {
namespace {

// Columns x [0, inf), y [0, 4], z free, f fixed at 3; rows c1 >= 1, c2 = 2, c3 <= 3.
ProblemData Sample() {
  return ReadLp({"m.lp",
                 "min x + y + z + f\nst\nc1: x + y >= 1\nc2: x + z = 2\nc3: y + f <= 3\n"
                 "bounds\ny <= 4\nz free\nf = 3\nend"})
      .data;
}

TEST(SolutionFile, WritesObjectiveAndAllColumns) {
  EXPECT_EQ(WriteSolution(Sample(), std::vector<double>{1, 0.1, -2, 3}, 2.1).text,
            "# Objective value = 2.1\nx 1\ny 0.1\nz -2\nf 3\n");
}

TEST(SolutionFile, LeavesOpenValuesOut) {
  EXPECT_EQ(WriteSolution(Sample(), std::vector<double>{VORQ_UNDEFINED, 0.1, VORQ_UNDEFINED, 3}, std::nullopt).text,
            "y 0.1\nf 3\n");
}

TEST(SolutionFile, ReadsBackWhatWasWritten) {
  std::vector<double> const values = {1.0 / 3.0, 1e-17, -12345678.9, VORQ_UNDEFINED};
  auto const read = ReadSolution({"m.sol", WriteSolution(Sample(), values, 7.0).text}, Sample());
  EXPECT_EQ(read.values, values);
  EXPECT_EQ(read.count, 3);
}

TEST(SolutionFile, TakesCommentsEmptyLinesAndNamesWithBlanks) {
  ProblemData data = Sample();
  data.columns.names.Set(1, "my y");
  auto const read = ReadSolution({"m.sol", "# Objective value = 5\r\n\r\n  my y \t 4\r\n"}, data);
  EXPECT_EQ(read.values, (std::vector<double>{VORQ_UNDEFINED, 4, VORQ_UNDEFINED, VORQ_UNDEFINED}));
}

TEST(SolutionFile, NamesUnnamedColumnsByTheirNumber) {
  ProblemData data = Sample();
  data.columns.names.Set(2, "");
  EXPECT_EQ(ReadSolution({"m.sol", "C3 8\n"}, data).values[2], 8.0);
}

TEST(SolutionFile, TellsOfChangedNames) {
  ProblemData data = Sample();
  data.columns.names.Set(1, "# y");
  data.columns.names.Set(2, "x");
  data.columns.names.Set(3, "");
  std::vector<double> const values = {1, 2, 3, 4};
  auto const written = WriteSolution(data, values, std::nullopt);
  EXPECT_EQ(written.text, "x 1\n_# y 2\nx_2 3\nC4 4\n");
  EXPECT_EQ(written.warnings,
            (Warnings{"Name '# y' of column 2 is written as '_# y'", "Name 'x' of column 3 is written as 'x_2'"}));
  EXPECT_EQ(ReadSolution({"m.sol", written.text}, data).values, values);
}

struct FailureCase {
  char const* text;
  int code;
  char const* message;
};
class SolutionFailure : public testing::TestWithParam<FailureCase> {};

TEST_P(SolutionFailure, TellsFileLineAndCause) {
  try {
    ReadSolution({"m.sol", GetParam().text}, Sample());
    FAIL();
  } catch (Failure const& failure) {
    EXPECT_STREQ(failure.what(), GetParam().message);
    EXPECT_EQ(failure.code, GetParam().code);
  }
}
INSTANTIATE_TEST_SUITE_P(Texts, SolutionFailure,
                         testing::Values(FailureCase{"x 1\nq 2\n", VORQ_INVALID, "m.sol:2: unknown column 'q'"},
                                         FailureCase{"x\n", VORQ_FILE, "m.sol:1: a line needs a name and a value"},
                                         FailureCase{"x one\n", VORQ_FILE, "m.sol:1: 'one' is not a number"},
                                         FailureCase{"x inf\n", VORQ_FILE, "m.sol:1: value 'inf' is not finite"},
                                         FailureCase{"x 1\nx 2\n", VORQ_FILE, "m.sol:2: column 'x' has two values"}));

constexpr int kLower = static_cast<int>(BasisStatus::kLower);
constexpr int kBasic = static_cast<int>(BasisStatus::kBasic);
constexpr int kUpper = static_cast<int>(BasisStatus::kUpper);
constexpr int kSuperBasic = static_cast<int>(BasisStatus::kSuperBasic);
constexpr int kFixed = static_cast<int>(BasisStatus::kFixed);

TEST(BasisFile, AnEmptyOneIsTheSlackBasis) {
  auto const basis = ReadBasisFile({"m.bas", "NAME m\nENDATA\n"}, Sample());
  EXPECT_EQ(basis.cols, (std::vector<int>{kLower, kLower, kSuperBasic, kFixed}));
  EXPECT_EQ(basis.rows, (std::vector<int>{kBasic, kBasic, kBasic}));
}

TEST(BasisFile, ReadsAllKindsOfLines) {
  auto const basis = ReadBasisFile({"m.bas", "* a basis\nNAME\n XL x c1\n XU z c3\n UL y\n LL f\nENDATA\n"}, Sample());
  EXPECT_EQ(basis.cols, (std::vector<int>{kBasic, kUpper, kBasic, kFixed}));
  EXPECT_EQ(basis.rows, (std::vector<int>{kLower, kBasic, kUpper}));
}

TEST(BasisFile, WritesTheUsualForm) {
  Basis const basis{{kBasic, kUpper, kBasic, kFixed}, {kBasic, kFixed, kUpper}};
  EXPECT_EQ(WriteBasisFile(Sample(), basis).text, "NAME\n XL x  c2\n UL y\n XU z  c3\nENDATA\n");
}

TEST(BasisFile, ReadsBackWhatWasWritten) {
  Basis const basis{{kBasic, kUpper, kBasic, kFixed}, {kBasic, kFixed, kUpper}};
  auto const read = ReadBasisFile({"m.bas", WriteBasisFile(Sample(), basis).text}, Sample());
  EXPECT_EQ(read.cols, basis.cols);
  EXPECT_EQ(read.rows, basis.rows);
}

// Lazy constraints and the objective have names in MPS files, not in basis files.
TEST(BasisFile, TellsOfChangedNamesOfColumnsAndRows) {
  ProblemData data = Sample();
  data.columns.names.Set(0, "my x");
  data.rows.names.Set(1, "c1");
  data.rows.names.Set(2, "OBJ");
  data.lazyConstraints.matrix.AppendRow(std::vector<int>{0}, std::vector<double>{1.0});
  data.lazyConstraints.lower = {0};
  data.lazyConstraints.upper = {1};
  data.lazyConstraints.names.Set(0, "no word");
  Basis const basis{{kBasic, kUpper, kBasic, kFixed}, {kBasic, kFixed, kUpper}};
  auto const written = WriteBasisFile(data, basis);
  EXPECT_EQ(written.text, "NAME\n XL my_x  c1_2\n UL y\n XU z  OBJ\nENDATA\n");
  EXPECT_EQ(written.warnings,
            (Warnings{"Name 'my x' of column 1 is written as 'my_x'", "Name 'c1' of row 2 is written as 'c1_2'"}));
  EXPECT_EQ(ReadBasisFile({"m.bas", written.text}, data).rows, basis.rows);
}

TEST(BasisFile, RefusesToWriteABasisOfAnotherSize) {
  EXPECT_EQ(FailureOf([] {
              WriteBasisFile(Sample(), {{kBasic}, {kLower}});
            }),
            "The basis has 1 columns and 1 rows, the problem 4 and 3");
  EXPECT_EQ(FailureOf([] {
              WriteBasisFile(Sample(), {{kBasic, kLower, kLower, kLower}, {kBasic, kBasic, kBasic}});
            }),
            "The basis has 4 basic items for 3 rows");
}

class BasisFailure : public testing::TestWithParam<FailureCase> {};

TEST_P(BasisFailure, TellsFileLineAndCause) {
  try {
    ReadBasisFile({"m.bas", GetParam().text}, Sample());
    FAIL();
  } catch (Failure const& failure) {
    EXPECT_STREQ(failure.what(), GetParam().message);
    EXPECT_EQ(failure.code, GetParam().code);
  }
}
INSTANTIATE_TEST_SUITE_P(
    Texts, BasisFailure,
    testing::Values(FailureCase{"NAME\n", VORQ_FILE, "m.bas:1: the file ends without ENDATA"},
                    FailureCase{"ROWS\n", VORQ_FILE, "m.bas:1: unknown section 'ROWS'"},
                    FailureCase{" XX x\n", VORQ_FILE, "m.bas:1: unknown kind of line 'XX'"},
                    FailureCase{" XU x\n", VORQ_FILE, "m.bas:1: a line XU needs a column and a row"},
                    FailureCase{" UL x c1\n", VORQ_FILE, "m.bas:1: a line UL needs one column"},
                    FailureCase{" UL q\n", VORQ_INVALID, "m.bas:1: unknown column 'q'"},
                    FailureCase{" XU x q\n", VORQ_INVALID, "m.bas:1: unknown row 'q'"},
                    FailureCase{" UL y\n LL y\n", VORQ_FILE, "m.bas:2: column 'y' is stated twice"},
                    FailureCase{" XU x c1\n XU y c1\n", VORQ_FILE, "m.bas:2: row 'c1' is stated twice"}));

}  // namespace
}  // namespace vorqsolver::test
