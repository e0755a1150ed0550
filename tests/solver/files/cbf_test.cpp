// CBF files: what becomes of cones, what a writer makes of bounds and ranges, failures with their lines.
#include <gtest/gtest.h>

#include "solver/files/cbf_reader.hpp"
#include "solver/files/cbf_writer.hpp"
#include "solver/files/lp_reader.hpp"
#include "tests/solver/files/describe.hpp"
#include "tests/solver/files/sample_models.hpp"

namespace vorqsolver::test {
namespace {

ProblemData Data(std::string text) {
  return ReadCbf({"m.cbf", std::move(text)}).data;
}
std::string Read(std::string text) {
  return Describe(Data(std::move(text)));
}
std::string FailureToRead(std::string text) {
  return FailureOf([&] { Data(std::move(text)); });
}
ProblemData FromLp(std::string text) {
  return ReadLp({"m.lp", std::move(text)}).data;
}

constexpr char kAll[] =
    "# every section\nVER\n3\n\nOBJSENSE\nMAX\n\nPSDVAR\n2\n2\n1\n\nVAR\n13 6\nF 1\nL+ 2\nQ 3\nL= 1\nEXP 3\nEXP* 3\n\n"
    "INT\n1\n1\n\nPSDCON\n1\n2\n\nCON\n11 5\nL= 2\nL- 1\nQR 3\nF 2\nEXP 3\n\n"
    "OBJFCOORD\n1\n0 1 0 2.5\n\nOBJACOORD\n2\n0 3\n12 -1\n\nOBJBCOORD\n7\n\n"
    "FCOORD\n3\n1 0 0 0 1\n1 1 0 0 2\n4 0 1 1 -1\n\nACOORD\n4\n0 0 1\n0 2 -2\n3 1 1\n8 5 4\n\n"
    "BCOORD\n3\n0 -4\n2 6\n5 1.5\n\nHCOORD\n2\n0 2 1 0 1\n0 0 0 0 3\n\nDCOORD\n1\n0 1 1 -1\n";

TEST(CbfReader, ReadsEverySection) {
  std::string columns;
  for (int j = 0; j < 13; ++j) {
    bool const positive = j == 1 || j == 2;
    columns +=
        Text("col  ", j == 1 ? "I" : "C", " [", positive || j == 6 ? "0" : "-1e+30", ",", j == 6 ? "0" : "1e+30", "] ",
             j == 0    ? "3"
             : j == 12 ? "-1"
                       : "0",
             "\n");
  }
  EXPECT_EQ(Read(kAll), "max 7\n" + columns +
                            "row  [4,4] 1*#0 -2*#2\n"
                            "row  [-1e+30,-6]\n"
                            "row  [-1e+30,1e+30]\n"
                            "row  [-1e+30,1e+30]\n"
                            "psd objective X0*[ 2x2 (1,0)2.5]\n"
                            "cone1 #3 #4 #5\n"
                            "cone3 #7 #8 #9\n"
                            "cone4 #10 #11 #12\n"
                            "affine cone2 \n"
                            "  0 1*#1\n"
                            "  0 X0*[ 2x2 (1,1)-1]\n"
                            "  1.5\n"
                            "affine cone3 \n"
                            "  0 4*#5\n"
                            "  0\n"
                            "  0\n"
                            "psd  2\n"
                            "psd  1\n"
                            "psd row  [0,0] X0*[ 2x2 (0,0)1] X1*[ 1x1 (0,0)2]\n"
                            "lmi  2 constant 2x2 (1,1)-1 #0*[ 2x2 (0,0)3] #2*[ 2x2 (1,0)1]\n");
}

TEST(CbfReader, ReadsItsOwnText) {
  auto const written = WriteCbf(Data(kAll)).text;
  EXPECT_EQ(Read(written), Read(kAll));
  EXPECT_EQ(WriteCbf(Data(written)).text, written);
}

TEST(CbfReader, RefusesWhatAProblemCannotHold) {
  EXPECT_EQ(FailureToRead("VER\n3\nPOWCONES\n1 2\n2\n1\n1\n"),
            "m.cbf:3: section POWCONES: power cones are not supported");
  EXPECT_EQ(FailureToRead("VER\n3\nVAR\n3 1\n@0:POW 3\n"), "m.cbf:5: power cone '@0:POW' is not supported");
  EXPECT_EQ(FailureToRead("VER\n4\nVAR\n3 1\nSVECPSD 3\n"), "m.cbf:5: cone 'SVECPSD' is not supported");
  EXPECT_EQ(FailureToRead("VER\n4\nVAR\n3 1\nGMEANABS* 3\n"), "m.cbf:5: cone 'GMEANABS*' is not supported");
  EXPECT_EQ(FailureToRead("VER\n1\nCHANGE\n"), "m.cbf:3: section CHANGE: a file of several problems is not supported");
  EXPECT_EQ(FailureToRead("VER\n1\nVAR\n3 1\nP 3\n"), "m.cbf:5: unknown cone 'P'");
}

TEST(CbfReader, RefusesBadStructure) {
  EXPECT_EQ(FailureToRead(""), "m.cbf:1: the file is empty");
  EXPECT_EQ(FailureToRead("OBJSENSE\nMIN\n"), "m.cbf:1: a CBF file begins with VER, not 'OBJSENSE'");
  EXPECT_EQ(FailureToRead("VER\n5\n"), "m.cbf:2: version 5 of the format is not known");
  EXPECT_EQ(FailureToRead("VER\n"), "m.cbf:1: the file ends within section VER");
  EXPECT_EQ(FailureToRead("VER\n1\nVER\n1\n"), "m.cbf:3: section VER is stated twice");
  EXPECT_EQ(FailureToRead("VER\n1\nXYZ\n"), "m.cbf:3: unknown section 'XYZ'");
  EXPECT_EQ(FailureToRead("VER 1\n"), "m.cbf:1: unexpected '1'");
  EXPECT_EQ(FailureToRead("VER\n1\nOBJSENSE\nUP\n"), "m.cbf:4: unknown objective sense 'UP'");
  EXPECT_EQ(FailureToRead("VER\n1\nVAR\n3 1\nF 2\n"), "m.cbf:5: the sizes of the cones do not add up to 3");
  EXPECT_EQ(FailureToRead("VER\n1\nVAR\n3 2\nF 2\n"), "m.cbf:5: the file ends within section VAR");
  EXPECT_EQ(FailureToRead("VER\n1\nVAR\n-3 1\nF -3\n"), "m.cbf:4: the count -3 is negative");
  EXPECT_EQ(FailureToRead("VER\n1\nVAR\n1 1\nQR 1\n"), "m.cbf:5: cone 'QR' cannot have the size 1");
  EXPECT_EQ(FailureToRead("VER\n2\nVAR\n4 1\nEXP 4\n"), "m.cbf:5: cone 'EXP' cannot have the size 4");
  EXPECT_EQ(FailureToRead("VER\n1\nPSDVAR\n1\n0\n"), "m.cbf:5: a matrix cannot have the dimension 0");
}

TEST(CbfReader, RefusesBadCoefficients) {
  std::string const head = "VER\n1\nVAR\n2 1\nF 2\nCON\n1 1\nL= 1\nPSDVAR\n1\n2\nPSDCON\n1\n2\n";  // 14 lines
  EXPECT_EQ(FailureToRead(head + "ACOORD\n1\n1 0 1\n"), "m.cbf:17: constraint 1 does not exist (there are 1)");
  EXPECT_EQ(FailureToRead(head + "ACOORD\n1\n0 2 1\n"), "m.cbf:17: variable 2 does not exist (there are 2)");
  EXPECT_EQ(FailureToRead(head + "ACOORD\n1\n0 1\n"), "m.cbf:17: the line ends too early");
  EXPECT_EQ(FailureToRead(head + "ACOORD\n1\n0 1 nan\n"), "m.cbf:17: 'nan' is not a number");
  EXPECT_EQ(FailureToRead(head + "ACOORD\n1\n0 1 1 1\n"), "m.cbf:17: unexpected '1'");
  EXPECT_EQ(FailureToRead(head + "ACOORD\n2\n0 1 1\n0 1 2\n"),
            "m.cbf:18: the entry is stated a second time, first in line 17");
  EXPECT_EQ(FailureToRead(head + "BCOORD\n2\n0 1\n0 1\n"),
            "m.cbf:18: the entry is stated a second time, first in line 17");
  EXPECT_EQ(FailureToRead(head + "OBJACOORD\n2\n1 1\n1 1\n"),
            "m.cbf:18: the entry is stated a second time, first in line 17");
  EXPECT_EQ(FailureToRead(head + "FCOORD\n1\n0 1 0 0 1\n"), "m.cbf:17: PSD variable 1 does not exist (there are 1)");
  EXPECT_EQ(FailureToRead(head + "FCOORD\n1\n0 0 0 2 1\n"), "m.cbf:17: row or column 2 does not exist (there are 2)");
  EXPECT_EQ(FailureToRead(head + "HCOORD\n2\n0 1 0 1 1\n0 1 1 0 1\n"),
            "m.cbf:18: the entry is stated a second time, first in line 17");
  EXPECT_EQ(FailureToRead(head + "DCOORD\n1\n1 0 0 1\n"), "m.cbf:17: PSD constraint 1 does not exist (there are 1)");
  EXPECT_EQ(FailureToRead(head + "INT\n1\n5\n"), "m.cbf:17: variable 5 does not exist (there are 2)");
}

TEST(CbfReader, RefusesMoreEntriesThanTheFileMayClaim) {
  EXPECT_EQ(FailureToRead("VER\n1\nVAR\n2000000000 1\nF 2000000000\n"),
            "m.cbf:4: 2000000000 entries are more than a file of this size may claim");
  EXPECT_EQ(FailureToRead("VER\n1\nVAR\n2147483648 1\nF 1\n"), "m.cbf:4: number '2147483648' is out of range");
  EXPECT_EQ(FailureToRead("VER\n1\nINT\n2000000000\n"), "m.cbf:4: the file ends within section INT");
}

TEST(CbfWriter, WritesBoundsAndRangesAsConstraints) {
  auto const written = WriteCbf(
      FromLp("max x + 2 y + 5\nst\n c1: 1 <= x + y <= 3\n c2: x - b = 2\n c3: x + z >= -inf\nbounds\n x <= 4\n y free\n"
             " z >= 1\nbinary\n b\nend\n"));
  EXPECT_EQ(written.text,
            "VER\n1\n\nOBJSENSE\nMAX\n\n"
            "VAR\n4 4\nL+ 1\nF 1\nL+ 1\nF 1\n\n"
            "INT\n1\n2\n\n"
            "CON\n7 6\nL+ 1\nL- 1\nL= 1\nF 1\nL- 2\nL+ 1\n\n"
            "OBJACOORD\n2\n0 1\n1 2\n\nOBJBCOORD\n5\n\n"
            "ACOORD\n11\n0 0 1\n0 1 1\n1 0 1\n1 1 1\n2 0 1\n2 2 -1\n3 0 1\n3 3 1\n4 0 1\n5 2 1\n6 3 1\n\n"
            "BCOORD\n6\n0 -1\n1 -3\n2 -2\n4 -4\n5 -1\n6 -1\n\n");
  EXPECT_EQ(written.warnings,
            (Warnings{"1 rows with two bounds are written as two constraints each",
                      "3 columns have bounds that are written as constraints", "A CBF file holds no names"}));
}

// Four free columns.
ProblemData FourColumns() {
  return Data("VER\n1\nVAR\n4 1\nF 4\n");
}

TEST(CbfWriter, WritesConesOfScatteredColumnsAsAffineOnes) {
  ProblemData data = FourColumns();
  data.cones = {{1, {0, 1}}, {2, {1, 3, 2}}};
  auto const written = WriteCbf(data);
  EXPECT_EQ(written.text,
            "VER\n1\n\nOBJSENSE\nMIN\n\nVAR\n4 2\nQ 2\nF 2\n\nCON\n3 1\nQR 3\n\nACOORD\n3\n0 1 1\n1 3 1\n2 2 1\n\n");
  EXPECT_EQ(written.warnings,
            Warnings{"1 cones of columns that do not stand side by side are written as affine cones"});
}

TEST(CbfWriter, LeavesOutBoundsThatTheConeImplies) {
  ProblemData data = FourColumns();
  data.cones = {{2, {0, 1, 2}}};
  data.columns.lower = {0.0, 0.0, 0.0, -kInfinity};
  data.columns.upper[0] = 9.0;
  EXPECT_EQ(WriteCbf(data).text,
            "VER\n1\n\nOBJSENSE\nMIN\n\nVAR\n4 2\nQR 3\nF 1\n\nCON\n2 2\nL- 1\nL+ 1\n\n"
            "ACOORD\n2\n0 0 1\n1 2 1\n\nBCOORD\n1\n0 -9\n\n");
}

TEST(CbfWriter, StatesTheVersionThatTheConesNeed) {
  ProblemData data = FourColumns();
  data.expCones = {{3, {0, 1, 2}}};
  EXPECT_TRUE(WriteCbf(data).text.starts_with("VER\n2\n"));
  data.expCones[0].type = 4;
  EXPECT_TRUE(WriteCbf(data).text.starts_with("VER\n3\n"));
}

TEST(CbfWriter, AddsUpMatricesOfOneMember) {
  ProblemData data = FourColumns();
  data.symMatrices = {{2, {{0, 0, 1.0}, {1, 0, 2.0}}}, {2, {{1, 0, 3.0}}}};
  data.lmiConstraints.push_back({2, {1, 1}, {0, 1}, 0});
  EXPECT_EQ(WriteCbf(data).text,
            "VER\n1\n\nOBJSENSE\nMIN\n\nVAR\n4 1\nF 4\n\nPSDCON\n1\n2\n\n"
            "HCOORD\n2\n0 1 0 0 1\n0 1 1 0 5\n\nDCOORD\n2\n0 0 0 1\n0 1 0 2\n\n");
}

TEST(CbfWriter, RefusesOtherKindsByName) {
  auto const failure = [](auto change) {
    ProblemData data = FourColumns();
    change(data);
    return FailureOf([&] { WriteCbf(data); });
  };
  EXPECT_EQ(failure([](auto& data) {
              data.objective.quadratic = {{0, 0, 1.0}};
            }),
            "A CBF file cannot hold a quadratic objective");
  EXPECT_EQ(failure([](auto& data) { data.quadConstraints.resize(1); }),
            "A CBF file cannot hold quadratic constraints");
  EXPECT_EQ(failure([](auto& data) { data.soss.resize(1); }), "A CBF file cannot hold SOS");
  EXPECT_EQ(failure([](auto& data) { data.indicators.resize(1); }), "A CBF file cannot hold indicators");
  EXPECT_EQ(failure([](auto& data) { data.lazyConstraints.lower.resize(1); }),
            "A CBF file cannot hold lazy constraints");
  EXPECT_EQ(failure([](auto& data) { data.userCuts.lower.resize(1); }), "A CBF file cannot hold user cuts");
  EXPECT_EQ(failure([](auto& data) { data.columns.type[1] = 'S'; }), "A CBF file cannot hold semicontinuous columns");
  EXPECT_EQ(failure([](auto& data) { data.columns.type[1] = 'N'; }), "A CBF file cannot hold semi-integer columns");
  EXPECT_EQ(failure([](auto& data) { data.columns.lower[1] = kInfinity; }),
            "A CBF file cannot hold column 1, which has no finite value within its bounds");
}

}  // namespace
}  // namespace vorqsolver::test
