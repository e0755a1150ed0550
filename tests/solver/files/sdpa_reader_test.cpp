// SDPA sparse files: what becomes of blocks, and failures with their lines.
#include "solver/files/sdpa_reader.hpp"

#include <gtest/gtest.h>

#include "tests/solver/files/describe.hpp"

namespace vorqsolver::test {
namespace {

std::string Read(std::string text) {
  return Describe(ReadSdpa({"m.dat-s", std::move(text)}).data);
}
std::string FailureToRead(std::string text) {
  return FailureOf([&] { Read(std::move(text)); });
}

constexpr char kHead[] = "2\n2\n2 -2\n1 2\n";

// A failure on the line behind the head, without the name of the file.
std::string FailureOfEntry(std::string const& entry) {
  std::string const failure = FailureToRead(kHead + entry + "\n");
  EXPECT_TRUE(failure.starts_with("m.dat-s:5: ")) << failure;
  return failure.substr(std::min(failure.size(), sizeof "m.dat-s:5: " - 1));
}

TEST(SdpaReader, ReadsVariablesBlocksAndDiagonalBlocks) {
  EXPECT_EQ(Read("\"Example\n* remark\n 2 = mDIM\n 3 = nBLOCK\n (2, -2, 1) = bLOCKsTRUCT\n{10.0, -20.0}\n"
                 "0 1 1 1 1.5\n0 1 1 2 -3\n1 1 2 2 1\n1 1 1 1 4\n2 1 1 2 7\n"
                 "0 2 2 2 5\n1 2 1 1 2\n2 2 1 1 -1\n2 2 2 2 3\n1 3 1 1 8\n"),
            "min 0\n"
            "col  C [-1e+30,1e+30] 10\n"
            "col  C [-1e+30,1e+30] -20\n"
            "row  [0,1e+30] 2*#0 -1*#1\n"
            "row  [5,1e+30] 3*#1\n"
            "row  [0,1e+30] 8*#0\n"
            "lmi  2 constant 2x2 (0,0)-1.5 (1,0)3 #0*[ 2x2 (0,0)4 (1,1)1] #1*[ 2x2 (1,0)7]\n");
}

TEST(SdpaReader, TakesEntriesOfBothTrianglesAndListsOverSeveralLines) {
  EXPECT_EQ(Read("2\n1\n2\n1\n2\n1 1 2 1 3\n"),
            "min 0\ncol  C [-1e+30,1e+30] 1\ncol  C [-1e+30,1e+30] 2\n"
            "lmi  2 constant none #0*[ 2x2 (1,0)3]\n");
}

TEST(SdpaReader, ReadsIntegerVariables) {
  EXPECT_EQ(Read("2\n1\n-1\n1 1\n1 1 1 1 1\n*INTEGER\n*2\n"),
            "min 0\ncol  C [-1e+30,1e+30] 1\ncol  I [-1e+30,1e+30] 1\nrow  [0,1e+30] 1*#0\n");
}

TEST(SdpaReader, RefusesBadHeads) {
  EXPECT_EQ(FailureToRead(""), "m.dat-s:1: the file ends where the number of variables is expected");
  EXPECT_EQ(FailureToRead("* remark\n"), "m.dat-s:1: the file ends where the number of variables is expected");
  EXPECT_EQ(FailureToRead("x\n"), "m.dat-s:1: 'x' is not a whole number");
  EXPECT_EQ(FailureToRead("-1\n"), "m.dat-s:1: the number of variables is -1");
  EXPECT_EQ(FailureToRead("99999999999\n"), "m.dat-s:1: number '99999999999' is out of range");
  EXPECT_EQ(FailureToRead("1\n0\n"), "m.dat-s:2: the number of blocks is 0");
  EXPECT_EQ(FailureToRead("1\n2\n3\n"), "m.dat-s:3: the file ends where the size of a block is expected");
  EXPECT_EQ(FailureToRead("1\n1\n0\n"), "m.dat-s:3: a block cannot have the size 0");
  EXPECT_EQ(FailureToRead("2\n1\n2\n1\n"), "m.dat-s:4: the file ends where a coefficient of the objective is expected");
  EXPECT_EQ(FailureToRead("1\n1\n2\n1 2\n"), "m.dat-s:4: unexpected '2' behind the objective");
  EXPECT_EQ(FailureToRead("1\n1\n2\nnan\n"), "m.dat-s:4: 'nan' is not a number");
}

TEST(SdpaReader, RefusesBadEntries) {
  EXPECT_EQ(FailureOfEntry("3 1 1 1 1"), "matrix 3 does not exist (there are 0 to 2)");
  EXPECT_EQ(FailureOfEntry("1 3 1 1 1"), "block 3 does not exist (there are 2)");
  EXPECT_EQ(FailureOfEntry("1 1 1 3 1"), "position 3 is outside of a block of size 2");
  EXPECT_EQ(FailureOfEntry("1 2 1 2 1"), "entry 1 2 of a diagonal block");
  EXPECT_EQ(FailureOfEntry("1 1 1"), "an entry is matrix, block, row, column and value");
  EXPECT_EQ(FailureOfEntry("1 1 1 1 1 1"), "unexpected '1' behind the entry");
  EXPECT_EQ(FailureOfEntry("1 1 1 1 inf"), "value 'inf' is not finite");
  EXPECT_EQ(FailureOfEntry("*RANK1"), "rank constraints are not supported");
}

TEST(SdpaReader, RefusesEntriesThatAreStatedTwice) {
  EXPECT_EQ(FailureToRead(Text(kHead, "1 1 1 2 1\n1 1 2 1 1\n")),
            "m.dat-s:6: the entry is stated a second time, first in line 5");
  EXPECT_EQ(FailureToRead(Text(kHead, "1 2 1 1 1\n1 2 1 1 1\n")),
            "m.dat-s:6: the entry is stated a second time, first in line 5");
}

TEST(SdpaReader, RefusesMoreRowsThanTheFileMayClaim) {
  EXPECT_EQ(FailureToRead("1\n1\n-2000000000\n1\n"),
            "m.dat-s:3: the diagonal blocks have more rows than a file of this size may claim");
  EXPECT_EQ(FailureToRead("1\n1\n-2147483648\n1\n"),
            "m.dat-s:3: the diagonal blocks have more rows than a file of this size may claim");
}

}  // namespace
}  // namespace vorqsolver::test
