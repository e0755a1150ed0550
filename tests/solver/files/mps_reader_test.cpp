// What MPS files say: one feature of the dialect a test.
#include "solver/files/mps_reader.hpp"

#include <gtest/gtest.h>

#include "tests/solver/files/describe.hpp"

namespace vorqsolver::test {
namespace {

ReadModel Read(std::string text) {
  return ReadMps({"m.mps", std::move(text)});
}

// Two columns with one entry each in the objective and in row c1; `rest` comes behind the columns.
std::string Small(std::string const& rest, std::string const& head = "ROWS\n N obj\n G c1\n") {
  return "NAME small\n" + head + "COLUMNS\n x obj 1 c1 1\n y obj 2 c1 1\n" + rest + "ENDATA\n";
}

std::string Columns(std::string const& x, std::string const& y) {
  return "min 0\n" + x + "\n" + y + "\n";
}
std::string const kX = "col x C [0,1e+30] 1";
std::string const kY = "col y C [0,1e+30] 2";
std::string const kRow = "row c1 [0,1e+30] 1*x 1*y\n";

TEST(MpsReader, ReadsFreeFormat) {
  auto const model = Read(Small("RHS\n r c1 4\n"));
  EXPECT_EQ(Describe(model.data), Columns(kX, kY) + "row c1 [4,1e+30] 1*x 1*y\n");
  EXPECT_EQ(model.data.name, "small");
  EXPECT_TRUE(model.warnings.empty());
}

TEST(MpsReader, ReadsNamesWithBlanksByTheFixedColumns) {
  auto const model = Read(
      "NAME          TEST\n"
      "ROWS\n"
      " N  COST\n"
      " L  LIM 1\n"
      " E  MY EQ\n"
      "COLUMNS\n"
      "    X ONE     COST               1.0   LIM 1              2.0\n"
      "    X ONE     MY EQ              3.0\n"
      "    Y         LIM 1              4.0\n"
      "RHS\n"
      "    RHS       LIM 1              5.0   MY EQ              6.0\n"
      "BOUNDS\n"
      " UP BND       X ONE              7.0\n"
      " FR BND       Y\n"
      "ENDATA\n");
  EXPECT_EQ(Describe(model.data),
            "min 0\ncol X ONE C [0,7] 1\ncol Y C [-1e+30,1e+30] 0\n"
            "row LIM 1 [-1e+30,5] 2*X ONE 4*Y\nrow MY EQ [6,6] 3*X ONE\n");
}

TEST(MpsReader, TakesWindowsLineEndsTabsCommentsAndByteOrderMark) {
  auto const model =
      Read("\xEF\xBB\xBF* comment\r\nNAME\tm\r\nROWS\r\n N\tobj\r\n\r\nCOLUMNS\r\n\tx\tobj\t1\r\nENDATA\r\n");
  EXPECT_EQ(Describe(model.data), "min 0\ncol x C [0,1e+30] 1\n");
}

TEST(MpsReader, IgnoresWhatStandsBehindTheEnd) {
  EXPECT_EQ(Read(Small("") + "IMPORTANCES\n garbage\n").data.columns.Count(), 2);
}

struct SenseCase {
  char const* text;
  int sense;
};
class MpsSense : public testing::TestWithParam<SenseCase> {};

TEST_P(MpsSense, IsRead) {
  EXPECT_EQ(Read(GetParam().text + Small("")).data.objective.sense, GetParam().sense);
}
INSTANTIATE_TEST_SUITE_P(Dialects, MpsSense,
                         testing::Values(SenseCase{"", 1}, SenseCase{"OBJSENSE\n    MAX\n", -1},
                                         SenseCase{"OBJSENSE MAXIMIZE\n", -1}, SenseCase{"OBJSENSE\n  minimize\n", 1},
                                         SenseCase{"OBJSENSE MIN\n", 1}));

TEST(MpsReader, TakesTheObjectiveThatObjNameTells) {
  auto const model = Read("OBJNAME\n    c2\n" + Small("", "ROWS\n N obj\n N c2\n G c1\n"));
  EXPECT_EQ(Describe(model.data), "min 0\ncol x C [0,1e+30] 0\ncol y C [0,1e+30] 0\n" + kRow);
  EXPECT_EQ(model.warnings, (Warnings{"m.mps:5: free row 'obj' beside the objective is dropped"}));
}

TEST(MpsReader, DropsFurtherFreeRowsWithAWarning) {
  auto const model = Read(Small("RHS\n r n2 7\n", "ROWS\n N obj\n N n2\n G c1\n"));
  EXPECT_EQ(Describe(model.data), Columns(kX, kY) + kRow);
  EXPECT_EQ(model.warnings, (Warnings{"m.mps:4: free row 'n2' beside the objective is dropped"}));
}

TEST(MpsReader, TakesTheObjectiveEntryOfTheRightHandSidesAsMinusTheConstant) {
  EXPECT_EQ(Read(Small("RHS\n r obj -7.5\n")).data.objective.constant, 7.5);
}

TEST(MpsReader, ReadsRightHandSidesWithoutASetName) {
  EXPECT_EQ(Describe(Read(Small("RHS\n c1 4\n")).data), Columns(kX, kY) + "row c1 [4,1e+30] 1*x 1*y\n");
}

struct RangeCase {
  char sense;
  double range;
  char const* bounds;
};
class MpsRange : public testing::TestWithParam<RangeCase> {};

TEST_P(MpsRange, FollowsTheSignRules) {
  auto const [sense, range, bounds] = GetParam();
  std::string const head = Text("ROWS\n N obj\n ", sense, " c1\n");
  auto const model = Read(Small(Text("RHS\n r c1 10\nRANGES\n g c1 ", range, "\n"), head));
  EXPECT_EQ(Describe(model.data), Columns(kX, kY) + "row c1 " + bounds + " 1*x 1*y\n");
}
INSTANTIATE_TEST_SUITE_P(Rules, MpsRange,
                         testing::Values(RangeCase{'E', 4, "[10,14]"}, RangeCase{'E', -4, "[6,10]"},
                                         RangeCase{'E', 0, "[10,10]"}, RangeCase{'L', 4, "[6,10]"},
                                         RangeCase{'L', -4, "[6,10]"}, RangeCase{'G', 4, "[10,14]"},
                                         RangeCase{'G', -4, "[10,14]"}));

struct BoundCase {
  char const* lines;
  char const* column;
};
class MpsBounds : public testing::TestWithParam<BoundCase> {};

TEST_P(MpsBounds, AreRead) {
  auto const model = Read(Small(std::string("BOUNDS\n") + GetParam().lines));
  EXPECT_EQ(Describe(model.data), Columns(GetParam().column, kY) + kRow);
}
INSTANTIATE_TEST_SUITE_P(
    Kinds, MpsBounds,
    testing::Values(BoundCase{" UP b x 4\n", "col x C [0,4] 1"}, BoundCase{" LO b x -4\n", "col x C [-4,1e+30] 1"},
                    BoundCase{" FX b x 3\n", "col x C [3,3] 1"}, BoundCase{" FR b x\n", "col x C [-1e+30,1e+30] 1"},
                    BoundCase{" MI b x\n UP b x 4\n", "col x C [-1e+30,4] 1"},
                    BoundCase{" UP b x 4\n MI b x\n", "col x C [-1e+30,4] 1"},
                    BoundCase{" PL b x\n", "col x C [0,1e+30] 1"}, BoundCase{" BV b x\n", "col x B [0,1] 1"},
                    BoundCase{" BV b x 1\n", "col x B [0,1] 1"}, BoundCase{" LI b x 2\n", "col x I [2,1e+30] 1"},
                    BoundCase{" UI b x 9\n", "col x I [0,9] 1"}, BoundCase{" SC b x 9\n", "col x S [0,9] 1"},
                    BoundCase{" LO b x 2\n SC b x 9\n", "col x S [2,9] 1"},
                    BoundCase{" SC b x\n", "col x S [0,1e+30] 1"}, BoundCase{" UP x 4\n", "col x C [0,4] 1"},
                    BoundCase{" FR x\n", "col x C [-1e+30,1e+30] 1"}, BoundCase{" UP b x inf\n", "col x C [0,1e+30] 1"},
                    BoundCase{" LO b x -Infinity\n", "col x C [-1e+30,1e+30] 1"},
                    BoundCase{" LO b x -1e31\n", "col x C [-1e+30,1e+30] 1"},
                    BoundCase{" LO b x 0\n UP b x -4\n", "col x C [0,-4] 1"}));

TEST(MpsReader, MakesTheLowerBoundInfiniteUnderANegativeUpperOne) {
  auto const model = Read(Small("BOUNDS\n UP b x -4\n"));
  EXPECT_EQ(Describe(model.data), Columns("col x C [-1e+30,-4] 1", kY) + kRow);
  EXPECT_EQ(model.warnings,
            (Warnings{"m.mps:9: column 'x' has a negative upper bound and no lower one, which becomes -infinity"}));
}

std::string WithMarkers(std::string const& bounds) {
  return "ROWS\n N obj\nCOLUMNS\n M1 'MARKER' 'INTORG'\n x obj 1\n M2 'MARKER' 'INTEND'\n y obj 2\n" + bounds +
         "ENDATA\n";
}

TEST(MpsReader, TakesIntegerColumnsWithoutBoundsAsBinary) {
  EXPECT_EQ(Describe(Read(WithMarkers("")).data), Columns("col x B [0,1] 1", kY));
}

TEST(MpsReader, GivesIntegerColumnsWithABoundTheUsualOtherOne) {
  EXPECT_EQ(Describe(Read(WithMarkers("BOUNDS\n LO b x 0\n")).data), Columns("col x I [0,1e+30] 1", kY));
  EXPECT_EQ(Describe(Read(WithMarkers("BOUNDS\n UP b x 5\n")).data), Columns("col x I [0,5] 1", kY));
  EXPECT_EQ(Describe(Read(WithMarkers("BOUNDS\n PL b x\n")).data), Columns("col x I [0,1e+30] 1", kY));
}

TEST(MpsReader, TakesASemicontinuousIntegerColumnAsSemiInteger) {
  EXPECT_EQ(Describe(Read(WithMarkers("BOUNDS\n SC b x 5\n")).data), Columns("col x N [0,5] 1", kY));
}

TEST(MpsReader, HalvesTheDiagonalOfQuadObj) {
  auto const model = Read(Small("QUADOBJ\n x x 4\n x y 3\n"));
  EXPECT_EQ(Describe(model.data), "min 0 2*x*x 3*x*y\n" + kX + "\n" + kY + "\n" + kRow);
}

TEST(MpsReader, JoinsBothTrianglesOfQMatrix) {
  auto const model = Read(Small("QMATRIX\n x x 4\n x y 3\n y x 3\n"));
  EXPECT_EQ(Describe(model.data), "min 0 2*x*x 3*x*y\n" + kX + "\n" + kY + "\n" + kRow);
}

TEST(MpsReader, ReadsQSectionsOfObjectiveAndRows) {
  auto const model = Read(Small("QSECTION obj\n x x 4\nQSECTION c1\n x y 3\n y y 2\n"));
  EXPECT_EQ(Describe(model.data), "min 0 2*x*x\n" + kX + "\n" + kY + "\nquad c1 1*x 1*y | 3*x*y 1*y*y G 0\n");
}

TEST(MpsReader, TakesQcMatrixAsItStands) {
  auto const model = Read(Small("RHS\n r c1 5\nQCMATRIX c1\n x x 4\n x y 0.5\n y x 0.5\n"));
  EXPECT_EQ(Describe(model.data), Columns(kX, kY) + "quad c1 1*x 1*y | 4*x*x 1*x*y G 5\n");
}

class MpsSos : public testing::TestWithParam<char const*> {};

TEST_P(MpsSos, IsReadInEachDialect) {
  EXPECT_EQ(Describe(Read(Small(GetParam())).data), Columns(kX, kY) + kRow + "sos1 x:1 y:2\n");
}
INSTANTIATE_TEST_SUITE_P(Dialects, MpsSos,
                         testing::Values("SOS\n S1 s1\n    x 1\n    y 2\n", "SOS\n S1 SOS s1\n    x:1\n    y:2\n",
                                         "SOS\n S1 SOS s1 5\n    SOS x 1\n    SOS y 2\n",
                                         "SOS1\n S1 s1\n    x 1\n    y 2\n"));

TEST(MpsReader, ReadsSosOfType2) {
  EXPECT_EQ(Describe(Read(Small("SOS2\n S2 a\n x 1\n y 2\n S2 b\n y 1\n")).data),
            Columns(kX, kY) + kRow + "sos2 x:1 y:2\nsos2 y:1\n");
}

TEST(MpsReader, TakesTheRowsOfIndicatorsOutOfTheRows) {
  auto const model = Read(Small("RHS\n r c1 4\nBOUNDS\n BV b y\nINDICATORS\n IF c1 y 0\n"));
  EXPECT_EQ(Describe(model.data), Columns(kX, "col y B [0,1] 2") + "indicator c1 y=0 1*x 1*y G 4\n");
}

TEST(MpsReader, ReadsLazyConstraintsAndUserCuts) {
  auto const model = Read(Small("RHS\n r c1 4\n", "ROWS\n N obj\nLAZYCONS\n L c1\nUSERCUTS\n G c2\n"));
  EXPECT_EQ(Describe(model.data), Columns(kX, kY) + "lazy c1 [-1e+30,4] 1*x 1*y\ncut c2 [0,1e+30]\n");
}

}  // namespace
}  // namespace vorqsolver::test
