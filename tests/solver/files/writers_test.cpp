// Writers: whole texts, and models of every kind that the formats hold, which read back the same.
#include <gtest/gtest.h>

#include <cmath>

#include "solver/files/lp_reader.hpp"
#include "solver/files/lp_writer.hpp"
#include "solver/files/mps_reader.hpp"
#include "solver/files/mps_writer.hpp"
#include "solver/problem/deletion.hpp"
#include "solver/problem/failure.hpp"
#include "tests/solver/files/describe.hpp"

namespace vorqsolver::test {
namespace {

void AddColumn(ProblemData& data, std::string const& name, char type, double lower, double upper, double objective) {
  data.columns.names.Set(data.columns.Count(), name);
  data.columns.type.push_back(type);
  data.columns.lower.push_back(lower);
  data.columns.upper.push_back(upper);
  data.columns.objective.push_back(objective);
  data.rows.matrix.AppendEmptyCols(1);
}

template <typename AnyRows>
void AddRow(AnyRows& rows, std::string const& name, std::vector<LinearTerm> const& terms, double lower, double upper) {
  std::vector<int> cols;
  std::vector<double> values;
  for (auto const& term : terms) {
    cols.push_back(term.col);
    values.push_back(term.value);
  }
  rows.matrix.AppendRow(cols, values);
  rows.names.Set(rows.Count(), name);
  rows.lower.push_back(lower);
  rows.upper.push_back(upper);
}

ProblemData TwoColumns() {
  ProblemData data;
  AddColumn(data, "x", 'C', 0, kInfinity, 1);
  AddColumn(data, "y", 'C', 0, kInfinity, 2);
  return data;
}

// All that both formats can hold.
ProblemData Everything() {
  ProblemData data;
  data.name = "all kinds";
  data.objective = {-1, 0.1, {{0, 0, 1.0 / 3.0}, {1, 0, -2}, {0, 1, 0.5}}, {}};
  AddColumn(data, "free", 'C', -kInfinity, kInfinity, 0);
  AddColumn(data, "zero to inf", 'C', 0, kInfinity, 1.0 / 3.0);
  AddColumn(data, "boxed", 'C', -1.5, 2.5, 0);
  AddColumn(data, "fixed", 'C', 0.1, 0.1, 1e-300);
  AddColumn(data, "upper", 'C', -kInfinity, -4, 0);
  AddColumn(data, "neg", 'C', 0, -4, 0);
  AddColumn(data, "int", 'I', 0, kInfinity, 0);
  AddColumn(data, "int01", 'I', 0, 1, 123456789.123456789);
  AddColumn(data, "intlow", 'I', -3, kInfinity, 0);
  AddColumn(data, "b", 'B', 0, 1, 0);
  AddColumn(data, "bin0", 'B', 0, 0, 0);
  AddColumn(data, "sc", 'S', 2.8, 10, 0);
  AddColumn(data, "semint", 'N', 0, 7, 0);
  AddColumn(data, "", 'C', 0, 1, 0);
  AddColumn(data, "S1", 'C', 0, 5, 0);
  AddRow(data.rows, "eq", {{1, 1}, {2, -1}}, 4, 4);
  AddRow(data.rows, "le", {{3, 0.1}}, -kInfinity, 0.3);
  AddRow(data.rows, "ge", {{14, 1}, {0, 2}}, -7, kInfinity);
  AddRow(data.rows, "range", {{1, 1}, {5, 1}}, -1, 2);
  AddRow(data.rows, "range2", {{1, 1}}, 0.1, 0.7);
  AddRow(data.rows, "range3", {{1, 1}}, -1e6, 0.1);
  AddRow(data.rows, "nobound", {{1, 1}}, -kInfinity, kInfinity);
  AddRow(data.rows, "empty", {}, -1, kInfinity);
  AddRow(data.rows, "", {{1, 1}}, 0, 0);
  data.quadConstraints.push_back({{{1, 1}, {1, 2}}, {{2, 2, 3}, {1, 2, 0.5}, {2, 1, 0.5}}, 'L', 5});
  data.quadConstraints.push_back({{}, {{1, 1, 1}}, 'G', -5});
  data.quadConstraintNames.Set(0, "quad");
  data.indicators.push_back({0, 9, 1, {{1, 1}, {2, 2}}, 'L', 3});
  data.indicators.push_back({1, 10, 0, {{1, 1}}, 'E', 0});
  data.indicatorNames.Set(0, "when");
  data.soss = {{1, {1, 14}, {1, 2}}, {2, {1, 2, 3}, {}}};
  data.lazyConstraints.matrix.AppendEmptyCols(15);
  AddRow(data.lazyConstraints, "later", {{1, 1}}, -kInfinity, 5);
  data.userCuts.matrix.AppendEmptyCols(15);
  AddRow(data.userCuts, "cut", {{1, 1}}, 1, 5);
  return data;
}

// What reads back of Everything: unnamed items have names, words make names, sets have weights.
std::string Named(ProblemData data, std::string const& spaced, std::string const& free) {
  data.columns.names.Set(0, free);
  data.columns.names.Set(1, spaced);
  data.columns.names.Set(6, free == "free" ? "int" : "int_");
  data.columns.names.Set(13, "C14");
  data.rows.names.Set(8, "R9");
  data.quadConstraintNames.Set(1, "Q2");
  data.indicatorNames.Set(1, "I2");
  data.soss[1].weights = {1, 2, 3};
  return Describe(data);
}

TEST(Writers, MpsReadsBackTheSame) {
  auto const written = WriteMps(Everything());
  auto const read = ReadMps({"m.mps", written.text});
  EXPECT_EQ(Describe(read.data), Named(Everything(), "zero_to_inf", "free"));
  EXPECT_EQ(read.data.name, "all kinds");
  EXPECT_TRUE(read.warnings.empty());
  EXPECT_EQ(written.warnings, (Warnings{"Name 'zero to inf' of column 2 is written as 'zero_to_inf'"}));
}

TEST(Writers, LpReadsBackTheSame) {
  auto const written = WriteLp(Everything());
  auto const read = ReadLp({"m.lp", written.text});
  EXPECT_EQ(Describe(read.data), Named(Everything(), "zero_to_inf", "free_"));
  EXPECT_EQ(read.data.name, "all kinds");
  EXPECT_EQ(written.warnings, (Warnings{"Name 'free' of column 1 is written as 'free_'",
                                        "Name 'zero to inf' of column 2 is written as 'zero_to_inf'",
                                        "Name 'int' of column 7 is written as 'int_'"}));
}

TEST(Writers, MpsHasTheUsualForm) {
  ProblemData data = TwoColumns();
  data.objective.sense = -1;
  data.objective.constant = 3;
  AddRow(data.rows, "c1", {{0, 1}, {1, 0.1}}, 1, 4);
  EXPECT_EQ(WriteMps(data).text,
            "NAME\n"
            "OBJSENSE\n"
            "    MAX\n"
            "ROWS\n"
            " N  OBJ\n"
            " G  c1\n"
            "COLUMNS\n"
            "    x         OBJ       1\n"
            "    x         c1        1\n"
            "    y         OBJ       2\n"
            "    y         c1        0.1\n"
            "RHS\n"
            "    RHS       OBJ       -3\n"
            "    RHS       c1        1\n"
            "RANGES\n"
            "    RNG       c1        3\n"
            "ENDATA\n");
}

TEST(Writers, LpHasTheUsualForm) {
  ProblemData data = TwoColumns();
  data.objective.constant = -3;
  data.columns.upper[0] = 9;
  AddRow(data.rows, "c1", {{0, 1}, {1, -0.1}}, 1, 4);
  EXPECT_EQ(WriteLp(data).text,
            "Minimize\n"
            " obj: + 1 x + 2 y - 3\n"
            "Subject To\n"
            " c1: 1 <= + 1 x - 0.1 y <= 4\n"
            "Bounds\n"
            " x <= 9\n"
            "End\n");
}

TEST(Writers, LpListsColumnsInTheObjectiveWhereTheOrderNeedsIt) {
  ProblemData data;
  for (char const* name : {"a", "b", "c", "d"}) AddColumn(data, name, 'C', 0, kInfinity, 0);
  AddRow(data.rows, "c1", {{1, 1}}, 0, 0);
  AddRow(data.rows, "c2", {{0, 1}, {2, 1}, {3, 1}}, 0, 0);
  EXPECT_EQ(WriteLp(data).text.substr(0, 38), "Minimize\n obj: + 0 a\nSubject To\n c1: +");
  EXPECT_EQ(Describe(ReadLp({"m.lp", WriteLp(data).text}).data), Describe(data));
}

TEST(Writers, LpBreaksLongLines) {
  ProblemData data;
  std::vector<LinearTerm> terms;
  for (int k = 0; k < 60; ++k) {
    AddColumn(data, Text("a_rather_long_name_", k), 'I', 0, kInfinity, 1);
    terms.push_back({k, 1.5});
  }
  AddRow(data.rows, "c1", terms, 1, 2);
  std::string const text = WriteLp(data).text;
  for (std::size_t begin = 0; begin < text.size();) {
    auto const end = text.find('\n', begin);
    EXPECT_LE(end - begin, 110u);
    begin = end + 1;
  }
  EXPECT_EQ(Describe(ReadLp({"m.lp", text}).data), Describe(data));
}

TEST(Writers, EmptyProblemsReadBack) {
  EXPECT_EQ(Describe(ReadMps({"m.mps", WriteMps({}).text}).data), "min 0\n");
  EXPECT_EQ(Describe(ReadLp({"m.lp", WriteLp({}).text}).data), "min 0\n");
}

TEST(Writers, NamesStayUnique) {
  ProblemData data;
  for (char const* name : {"a b", "a_b", "a b", "", "C4", "a_b"}) AddColumn(data, name, 'C', 0, kInfinity, 1);
  auto const written = WriteMps(data);
  auto const& names = ReadMps({"m.mps", written.text}).data.columns.names;
  char const* const expected[] = {"a_b_2", "a_b", "a_b_3", "C4_2", "C4", "a_b_4"};
  for (int k = 0; k < 6; ++k) EXPECT_EQ(names.Get(k), expected[k]) << k;
  EXPECT_EQ(written.warnings,
            (Warnings{"Name 'a b' of column 1 is written as 'a_b_2'", "Name 'a b' of column 3 is written as 'a_b_3'",
                      "Name 'a_b' of column 6 is written as 'a_b_4'"}));
}

TEST(Writers, ManyChangedNamesAreToldInOneLine) {
  ProblemData data;
  for (int k = 0; k < 25; ++k) AddColumn(data, Text("x ", k), 'C', 0, kInfinity, 1);
  auto const warnings = WriteMps(data).warnings;
  ASSERT_EQ(warnings.size(), 11u);
  EXPECT_EQ(warnings.back(), "15 more names were changed");
}

TEST(Writers, LpKeepsSubscriptsAndMendsOtherBrackets) {
  ProblemData data;
  for (char const* name : {"x[1]", "x[", "x]", "7up", "a-b"}) AddColumn(data, name, 'C', 0, kInfinity, 1);
  auto const& names = ReadLp({"m.lp", WriteLp(data).text}).data.columns.names;
  char const* const expected[] = {"x[1]", "x_", "x__2", "_7up", "a_b"};
  for (int k = 0; k < 5; ++k) EXPECT_EQ(names.Get(k), expected[k]) << k;
}

struct KindCase {
  char const* kind;
  void (*add)(ProblemData& data);
};
class WriterRefusal : public testing::TestWithParam<KindCase> {};

TEST_P(WriterRefusal, NamesTheKind) {
  ProblemData data = TwoColumns();
  GetParam().add(data);
  EXPECT_EQ(FailureOf([&] { WriteMps(data); }), Text("An MPS file cannot hold ", GetParam().kind));
  EXPECT_EQ(FailureOf([&] { WriteLp(data); }), Text("An LP file cannot hold ", GetParam().kind));
}
INSTANTIATE_TEST_SUITE_P(
    Kinds, WriterRefusal,
    testing::Values(KindCase{"cones", [](ProblemData& d) { d.cones.resize(1); }},
                    KindCase{"exponential cones", [](ProblemData& d) { d.expCones.resize(1); }},
                    KindCase{"affine cones", [](ProblemData& d) { d.affineCones.resize(1); }},
                    KindCase{"PSD variables", [](ProblemData& d) { d.psdDims.resize(1); }},
                    KindCase{"PSD constraints", [](ProblemData& d) { d.psdConstraints.resize(1); }},
                    KindCase{"LMI constraints", [](ProblemData& d) { d.lmiConstraints.resize(1); }}));

TEST(Writers, MpsRefusesRowsWhoseBoundsCross) {
  ProblemData data = TwoColumns();
  AddRow(data.rows, "c1", {{0, 1}}, 3, 2);
  EXPECT_EQ(FailureOf([&] { WriteMps(data); }), "An MPS file cannot hold row 'c1', whose bounds cross");
  EXPECT_EQ(Describe(ReadLp({"m.lp", WriteLp(data).text}).data), Describe(data));
}

// 1e30 is infinite to a reader; the width just below it is the widest that can be stated.
TEST(Writers, MpsRefusesRangesThatAreTooWide) {
  for (double const upper : {6e29, 5e29}) {
    ProblemData data = TwoColumns();
    AddRow(data.rows, "c1", {{0, 1}}, -upper, upper);
    EXPECT_EQ(FailureOf([&] { WriteMps(data); }), "An MPS file cannot hold row 'c1', whose range is 1e30 wide or more");
    EXPECT_EQ(Describe(ReadLp({"m.lp", WriteLp(data).text}).data), Describe(data));
  }
  ProblemData data = TwoColumns();
  AddRow(data.rows, "c1", {{0, 1}}, 1, std::nextafter(1e30, 0.0));
  AddRow(data.rows, "c2", {{0, 1}}, -4.9e29, 5e29);
  EXPECT_EQ(Describe(ReadMps({"m.mps", WriteMps(data).text}).data), Describe(data));
}

TEST(Writers, MpsKeepsMarkersAndNamesApart) {
  ProblemData data;
  AddColumn(data, "'MARKER'", 'I', 0, 9, 1);
  AddColumn(data, "'INTORG'", 'C', 0, 9, 1);
  AddRow(data.rows, "'MARKER'", {{0, 1}, {1, 1}}, 1, kInfinity);
  AddRow(data.rows, "'INTEND'", {{0, 1}, {1, 2}}, 1, kInfinity);
  auto const written = WriteMps(data);
  EXPECT_EQ(written.warnings, (Warnings{"Name ''MARKER'' of column 1 is written as ''MARKER'_'",
                                        "Name ''MARKER'' of row 1 is written as ''MARKER'_'"}));
  data.columns.names.Set(0, "'MARKER'_");
  data.rows.names.Set(0, "'MARKER'_");
  EXPECT_EQ(Describe(ReadMps({"m.mps", written.text}).data), Describe(data));
}

TEST(Writers, RefuseValuesThatAreNotNumbers) {
  ProblemData data = TwoColumns();
  data.columns.objective[0] = std::nan("");
  EXPECT_EQ(FailureOf([&] { WriteMps(data); }), "The problem has a value that is not a number");
  EXPECT_EQ(FailureOf([&] { WriteLp(data); }), "The problem has a value that is not a number");
}

TEST(Writers, RefuseAnIndicatorThatLostItsColumn) {
  auto data = TwoColumns();
  data.indicators.push_back({0, 0, 1, {{1, 1.0}}, 'L', 2.0});
  data.indicatorNames.Set(0, "when");
  int const first[] = {0};
  DeleteColumns(data, first);
  EXPECT_THROW(WriteMps(data), Failure);
  EXPECT_THROW(WriteLp(data), Failure);
}

}  // namespace
}  // namespace vorqsolver::test
