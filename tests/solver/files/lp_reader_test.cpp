// What LP files say: one feature of the dialect a test.
#include "solver/files/lp_reader.hpp"

#include <gtest/gtest.h>

#include "tests/solver/files/describe.hpp"

namespace vorqsolver::test {
namespace {

ReadModel Read(std::string text) {
  return ReadLp({"m.lp", std::move(text)});
}

std::string const kX = "col x C [0,1e+30] 1\n";
std::string const kY = "col y C [0,1e+30] 2\n";

// The rows and what follows them, of a problem with the objective x + 2 y.
std::string RowsOf(std::string const& constraints) {
  std::string const text = Describe(Read("min x + 2 y\nst\n" + constraints + "end\n").data);
  std::string const head = "min 0\n" + kX + kY;
  return text.starts_with(head) ? text.substr(head.size()) : text;
}

// The lines of the columns x and y.
std::string ColumnsOf(std::string const& sections) {
  std::string const text = Describe(Read("min x + 2 y\nst\n" + sections + "end\n").data);
  return text.substr(text.find('\n') + 1);
}

struct TextCase {
  char const* text;
  char const* result;
};

class LpObjective : public testing::TestWithParam<TextCase> {};

TEST_P(LpObjective, IsRead) {
  std::string const text = Describe(Read(std::string(GetParam().text) + "\nend\n").data);
  EXPECT_EQ(text.substr(0, text.find('\n')), GetParam().result);
}
INSTANTIATE_TEST_SUITE_P(Dialects, LpObjective,
                         testing::Values(TextCase{"Minimize\n obj: x", "min 0"}, TextCase{"MAXIMISE\n x", "max 0"},
                                         TextCase{"max x", "max 0"}, TextCase{"minimum\nx", "min 0"},
                                         TextCase{"Minimize\n cost:", "min 0"}, TextCase{"min\n", "min 0"},
                                         TextCase{"min x + 5 - 2.5", "min 2.5"}, TextCase{"min 5", "min 5"},
                                         TextCase{"min [ x^2 + 4 x * y ] / 2", "min 0 0.5*x*x 2*x*y"},
                                         TextCase{"min x - [ x ^ 2 - x y ]", "min 0 -1*x*x 1*x*y"},
                                         TextCase{"min [2x^2]/2 + [y*x + x*y]", "min 0 1*x*x 2*x*y"}));

TEST(LpReader, AddsUpRepeatedTerms) {
  EXPECT_EQ(Describe(Read("min 3 x + 2 y - x + 1\nend").data), "min 1\ncol x C [0,1e+30] 2\n" + kY);
}

TEST(LpReader, ReadsSpellingsOfCoefficients) {
  EXPECT_EQ(Describe(Read("min 2x + 3*y - - .5 z + -1e2 w\nend").data),
            "min 0\ncol x C [0,1e+30] 2\ncol y C [0,1e+30] 3\ncol z C [0,1e+30] 0.5\ncol w C [0,1e+30] -100\n");
}

TEST(LpReader, SkipsComments) {
  EXPECT_EQ(Describe(Read("\\ a comment\nmin x \\ + 9 q\n + 2 y\nend \\ done\n").data), "min 0\n" + kX + kY);
}

TEST(LpReader, TakesTheNameOfTheProblemFromItsComment) {
  EXPECT_EQ(Read("\\Problem name: my model\nmin x\nend").data.name, "my model");
}

TEST(LpReader, TakesNamesOfOddCharacters) {
  auto const& names = Read("min x#1$a@2 + e(p1) + e2 + _z!~ + y[1,2] + q.7 + w[a+b]\nend").data.columns.names;
  char const* const expected[] = {"x#1$a@2", "e(p1)", "e2", "_z!~", "y[1,2]", "q.7", "w[a+b]"};
  for (int k = 0; k < 7; ++k) EXPECT_EQ(names.Get(k), expected[k]);
}

class LpRow : public testing::TestWithParam<TextCase> {};

TEST_P(LpRow, IsRead) {
  EXPECT_EQ(RowsOf(GetParam().text), GetParam().result);
}
INSTANTIATE_TEST_SUITE_P(
    Forms, LpRow,
    testing::Values(
        TextCase{"c1: x + y <= 3\n", "row c1 [-1e+30,3] 1*x 1*y\n"},
        TextCase{"x + y < 3\n", "row  [-1e+30,3] 1*x 1*y\n"},
        TextCase{"c1: x - y =< 3\n", "row c1 [-1e+30,3] 1*x -1*y\n"}, TextCase{"x => -3\n", "row  [-3,1e+30] 1*x\n"},
        TextCase{"x > 3\n", "row  [3,1e+30] 1*x\n"}, TextCase{"2 x = 3\n", "row  [3,3] 2*x\n"},
        TextCase{"c1:\n x\n + y\n >= 2\n", "row c1 [2,1e+30] 1*x 1*y\n"},
        TextCase{"c1: x + y >=\n 2\n", "row c1 [2,1e+30] 1*x 1*y\n"},
        TextCase{"-1 <= x - y <= 2\n", "row  [-1,2] 1*x -1*y\n"},
        TextCase{"R1: 2 <= x + y <= 5\n", "row R1 [2,5] 1*x 1*y\n"},
        TextCase{"R1: 5 >= x\n + y >= 2\n", "row R1 [2,5] 1*x 1*y\n"},
        TextCase{"R1: 2 <= x + 1 <= 5\n", "row R1 [1,4] 1*x\n"}, TextCase{"3 >= x\n", "row  [-1e+30,3] 1*x\n"},
        TextCase{"x + 1 <= y + 4\n", "row  [-1e+30,3] 1*x -1*y\n"},
        TextCase{"x <= 3 y\n", "row  [-1e+30,0] 1*x -3*y\n"}, TextCase{"x >= 2 x\n", "row  [0,1e+30] -1*x\n"},
        TextCase{"x <= 1\ny <= 2\n", "row  [-1e+30,1] 1*x\nrow  [-1e+30,2] 1*y\n"},
        TextCase{"x <= 1\n- y <= 2\n", "row  [-1e+30,1] 1*x\nrow  [-1e+30,2] -1*y\n"},
        TextCase{"x >= -inf\n", "row  [-1e+30,1e+30] 1*x\n"},
        TextCase{"-infinity <= x <= 4\n", "row  [-1e+30,4] 1*x\n"}, TextCase{"c1: 0 <= 2\n", "row c1 [-1e+30,2]\n"},
        TextCase{"bounds: x <= 4\n", "row bounds [-1e+30,4] 1*x\n"},
        TextCase{"q: x + [ x^2 + 2 x * y - y^2 ] <= 4\n", "quad q 1*x | 1*x*x 2*x*y -1*y*y L 4\n"},
        TextCase{"q: [ x^2 ] / 2 >= 4 - y\n", "quad q 1*y | 0.5*x*x G 4\n"}));

class LpStart : public testing::TestWithParam<char const*> {};

TEST_P(LpStart, OfTheConstraintsIsKnown) {
  EXPECT_EQ(Describe(Read("min x\n" + std::string(GetParam()) + " c1: x >= 1\nend").data),
            "min 0\n" + kX + "row c1 [1,1e+30] 1*x\n");
}
INSTANTIATE_TEST_SUITE_P(Words, LpStart,
                         testing::Values("Subject To\n", "subject to", "SUBJECT\nTO\n", "such that\n", "st\n", "S.T.\n",
                                         "st."));

TEST(LpReader, ReadsLazyConstraintsAndUserCuts) {
  EXPECT_EQ(RowsOf("c1: x <= 1\nLazy Constraints\n l1: y <= 2\nUser Cuts\n u1: x + y <= 3\n"),
            "row c1 [-1e+30,1] 1*x\nlazy l1 [-1e+30,2] 1*y\ncut u1 [-1e+30,3] 1*x 1*y\n");
}

TEST(LpReader, ReadsIndicators) {
  EXPECT_EQ(ColumnsOf("i1: y = 1 -> x <= 3\ni2: y = 0 -> x + 2 >= 5\nbinaries\n y\n"),
            kX + "col y B [0,1] 2\nindicator i1 y=1 1*x L 3\nindicator i2 y=0 1*x G 3\n");
}

TEST(LpReader, TakesAnIntegerColumnWithinZeroAndOneForAnIndicator) {
  EXPECT_EQ(ColumnsOf("i1: y = 1 -> x <= 3\nbounds\n y <= 1\ngeneral\n y\n"),
            kX + "col y B [0,1] 2\nindicator i1 y=1 1*x L 3\n");
}

class LpBounds : public testing::TestWithParam<TextCase> {};

TEST_P(LpBounds, AreRead) {
  EXPECT_EQ(ColumnsOf(std::string("Bounds\n") + GetParam().text), GetParam().result + kY);
}
INSTANTIATE_TEST_SUITE_P(
    Forms, LpBounds,
    testing::Values(TextCase{" x <= 4\n", "col x C [0,4] 1\n"}, TextCase{" x >= -4\n", "col x C [-4,1e+30] 1\n"},
                    TextCase{" x = 4\n", "col x C [4,4] 1\n"}, TextCase{" x free\n", "col x C [-1e+30,1e+30] 1\n"},
                    TextCase{" -1 <= x <= 4\n", "col x C [-1,4] 1\n"},
                    TextCase{" 4 >= x >= -1\n", "col x C [-1,4] 1\n"}, TextCase{" 2 <= x\n", "col x C [2,1e+30] 1\n"},
                    TextCase{" 2 = x\n", "col x C [2,2] 1\n"}, TextCase{" -inf <= x <= 4\n", "col x C [-1e+30,4] 1\n"},
                    TextCase{" x >= -Infinity\n", "col x C [-1e+30,1e+30] 1\n"},
                    TextCase{" x <= +inf\n x >= 1\n", "col x C [1,1e+30] 1\n"},
                    TextCase{" x <= 1e31\n", "col x C [0,1e+30] 1\n"}));

TEST(LpReader, WarnsOfBoundsThatCross) {
  auto const model = Read("min x\nbounds\n x <= -4\nend\n");
  EXPECT_EQ(Describe(model.data), "min 0\ncol x C [0,-4] 1\n");
  EXPECT_EQ(model.warnings, (Warnings{"m.lp: the bounds of column 'x' cross"}));
}

class LpTypes : public testing::TestWithParam<TextCase> {};

TEST_P(LpTypes, AreRead) {
  EXPECT_EQ(ColumnsOf(GetParam().text), GetParam().result + kY);
}
INSTANTIATE_TEST_SUITE_P(Sections, LpTypes,
                         testing::Values(TextCase{"Generals\n x\n", "col x I [0,1e+30] 1\n"},
                                         TextCase{"integer\n x\n", "col x I [0,1e+30] 1\n"},
                                         TextCase{"Binary\n x\n", "col x B [0,1] 1\n"},
                                         TextCase{"Bounds\n x <= 0\nBinaries\n x\n", "col x B [0,0] 1\n"},
                                         TextCase{"Binaries\n x\nBounds\n x <= 9\n", "col x B [0,1] 1\n"},
                                         TextCase{"Bounds\n 2 <= x <= 9\nSemi-Continuous\n x\n", "col x S [2,9] 1\n"},
                                         TextCase{"semis\n x\ngen\n x\n", "col x N [0,1e+30] 1\n"}));

TEST(LpReader, ReadsSosWithAndWithoutNames) {
  EXPECT_EQ(RowsOf("SOS\n SOS2: S2:: x:1 y:2\n S1:: y:1 x:-2.5\n t:S1::x:3\n"),
            "sos2 x:1 y:2\nsos1 y:1 x:-2.5\nsos1 x:3\n");
}

TEST(LpReader, IsLinearInManyOpenBrackets) {
  std::string text = "min ";
  for (int k = 0; k < 200000; ++k) text += "x[";
  EXPECT_EQ(FailureOf([&] { Read(text); }), "m.lp:1: expected an operator or a section, found '['");
}

struct FailureCase {
  char const* text;
  char const* message;
};
class LpFailure : public testing::TestWithParam<FailureCase> {};

TEST_P(LpFailure, TellsFileLineAndCause) {
  EXPECT_EQ(FailureOf([&] { Read(GetParam().text); }), GetParam().message);
}
INSTANTIATE_TEST_SUITE_P(
    Texts, LpFailure,
    testing::Values(
        FailureCase{"", "m.lp:1: expected Minimize or Maximize, found the end of the file"},
        FailureCase{"x + y\nend", "m.lp:1: expected Minimize or Maximize, found 'x'"},
        FailureCase{"min x\n", "m.lp:2: expected a section, found the end of the file"},
        FailureCase{"min x\nmax y\nend", "m.lp:2: second objective"},
        FailureCase{"min x y\nend", "m.lp:1: expected an operator or a section, found 'y'"},
        FailureCase{"min x^2\nend", "m.lp:1: expected an operator or a section, found '^'"},
        FailureCase{"min x +\nend", "m.lp:2: expected a term, found 'end'"},
        FailureCase{"min inf\nend", "m.lp:1: the constant of the objective is infinite"},
        FailureCase{"min 1e999 x\nend", "m.lp:1: number '1e999' is out of range"},
        FailureCase{"min [ x ]\nend", "m.lp:1: expected '^2' or '*', found ']'"},
        FailureCase{"min [ x^3 ]\nend", "m.lp:1: expected the power 2, found '3'"},
        FailureCase{"min [ ]\nend", "m.lp:1: expected a term, found ']'"},
        FailureCase{"min [ x^2 y^2 ]\nend", "m.lp:1: expected '+', '-' or ']', found 'y'"},
        FailureCase{"min [ x^2 ] / 0\nend", "m.lp:1: expected a divisor, found '0'"},
        FailureCase{"min [ x^2", "m.lp:1: expected '+', '-' or ']', found the end of the file"},
        FailureCase{"min [ 1e308 x^2 ] / 1e-308\nend", "m.lp:1: a coefficient of the objective is out of range"},
        FailureCase{"min x\nst\nc1: x\nend", "m.lp:4: expected an operator or a relation, found 'end'"},
        FailureCase{"min x\nst\nc1: >= 2\nend", "m.lp:3: expected a term, found '>='"},
        FailureCase{"min x\nst\nc1: x >=\nend", "m.lp:4: expected a term, found 'end'"},
        FailureCase{"min x\nst\nx <= 1\nc1: x <= 1\nc1: x >= 0\nend", "m.lp:5: constraint 'c1' is stated twice"},
        FailureCase{"min x\nst\n1 <= x >= 2\nend", "m.lp:3: the two relations of a range must be alike"},
        FailureCase{"min x\nst\n1 <= x <= y\nend", "m.lp:3: a range must end with a number"},
        FailureCase{"min x\nst\nx <= 2 <= 3\nend", "m.lp:3: expected a term, found '<='"},
        FailureCase{"min x\nst\nx = inf\nend", "m.lp:3: an equality with an infinite right-hand side"},
        FailureCase{"min x\nst\n1 <= [ x^2 ] <= 2\nend", "m.lp:3: a range of a quadratic constraint"},
        FailureCase{"min x\nst\n2 x = 1 -> x <= 2\nend", "m.lp:3: an indicator needs one column and its value"},
        FailureCase{"min x\nst\nx = 2 -> x <= 2\nend", "m.lp:3: expected the value 0 or 1 of an indicator, found '2'"},
        FailureCase{"min x\nst\nx = 1 -> [ x^2 ] <= 2\nend", "m.lp:3: an indicator of a quadratic constraint"},
        FailureCase{"min x\nst\nx = 1 -> x <= 2\nend", "m.lp:3: column 'x' of an indicator is not binary"},
        FailureCase{"min x\nlazy constraints\n[ x^2 ] <= 2\nend",
                    "m.lp:3: a lazy constraint or user cut with quadratic terms"},
        FailureCase{"min x\nbounds\n z <= 1\nend", "m.lp:3: unknown column 'z'"},
        FailureCase{"min x\nbounds\n x\nend", "m.lp:4: expected an operator or a relation, found 'end'"},
        FailureCase{"min x\nbounds\n x <= y\nend", "m.lp:3: expected a number, found 'y'"},
        FailureCase{"min x\nbounds\n 1 <= x >= 3\nend", "m.lp:3: the two relations of a range must be alike"},
        FailureCase{"min x\ngenerals\n 3\nend", "m.lp:3: expected a column, found '3'"},
        FailureCase{"min x\nsos\n S3:: x:1\nend", "m.lp:3: expected S1 or S2, found 'S3'"},
        FailureCase{"min x\nsos\n S1: x:1\nend", "m.lp:3: expected S1 or S2, found 'x'"},
        FailureCase{"min x\nsos\n S1:: x\nend", "m.lp:4: expected ':', found 'end'"},
        FailureCase{"min x\nsos\n S1:: x:1 x:2\nend", "m.lp:3: column 'x' is twice in one set"},
        FailureCase{"min x\nsos\n S1:: x:inf\nend", "m.lp:3: the weight of 'x' is infinite"},
        FailureCase{"min x\nend\nmin y\n", "m.lp:3: expected nothing behind End, found 'min'"},
        FailureCase{"min x\x01\nend", "m.lp:1: unexpected character '?'"}));

}  // namespace
}  // namespace vorqsolver::test
