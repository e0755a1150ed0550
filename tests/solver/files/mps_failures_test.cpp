// MPS files that are refused, with the whole text of each failure.
#include <gtest/gtest.h>

#include "solver/files/mps_reader.hpp"
#include "tests/solver/files/describe.hpp"

namespace vorqsolver::test {
namespace {

struct FailureCase {
  char const* text;
  char const* message;
};
class MpsFailure : public testing::TestWithParam<FailureCase> {};

TEST_P(MpsFailure, TellsFileLineAndCause) {
  EXPECT_EQ(FailureOf([&] { ReadMps({"m.mps", GetParam().text}); }), GetParam().message);
}

#define ROWS_AND_X "ROWS\n N obj\n G c1\nCOLUMNS\n x obj 1\n"

INSTANTIATE_TEST_SUITE_P(
    Texts, MpsFailure,
    testing::Values(
        FailureCase{"", "m.mps:1: the file ends without ENDATA"},
        FailureCase{ROWS_AND_X, "m.mps:5: the file ends without ENDATA"},
        FailureCase{" x 1\n", "m.mps:1: data before the first section"},
        FailureCase{"NONSENSE\n", "m.mps:1: unknown section 'NONSENSE'"},
        FailureCase{"ROWS\n N obj\nROWS\n", "m.mps:3: section ROWS is stated twice"},
        FailureCase{"ROWS more\n", "m.mps:1: unexpected 'more' behind ROWS"},
        FailureCase{"NAME\n x\n", "m.mps:2: data behind NAME"},
        FailureCase{"OBJSENSE\n up\n", "m.mps:2: unknown objective sense 'up'"},
        FailureCase{"OBJNAME c\nROWS\n N obj\nENDATA\n", "m.mps:4: unknown objective row 'c'"},
        FailureCase{"ROWS\n N obj\nOBJNAME obj\n", "m.mps:3: OBJNAME behind the rows"},
        FailureCase{"ROWS\n X c1\n", "m.mps:2: unknown row type 'X'"},
        FailureCase{"ROWS\n G c1 c2 c3\n", "m.mps:2: a line of ROWS needs a sense and a name"},
        FailureCase{"ROWS\n G c1\n L c1\n", "m.mps:3: row 'c1' is stated twice"},
        FailureCase{"LAZYCONS\n N c1\n", "m.mps:2: free row 'c1' in LAZYCONS"},
        FailureCase{ROWS_AND_X " y c3 1\n", "m.mps:6: unknown row 'c3'"},
        FailureCase{ROWS_AND_X " y c1 abc\n", "m.mps:6: 'abc' is not a number"},
        FailureCase{ROWS_AND_X " y c1 1,5\n", "m.mps:6: '1,5' is not a number"},
        FailureCase{ROWS_AND_X " y c1 1e999\n", "m.mps:6: number '1e999' is out of range"},
        FailureCase{ROWS_AND_X " y c1 nan\n", "m.mps:6: 'nan' is not a number"},
        FailureCase{ROWS_AND_X " y c1 inf\n", "m.mps:6: value 'inf' is not finite"},
        FailureCase{ROWS_AND_X " y c1\n", "m.mps:6: a name and pairs of name and number are needed"},
        FailureCase{ROWS_AND_X " x obj 1\n", "m.mps:6: column 'x' has two entries in row 'obj'"},
        FailureCase{ROWS_AND_X " y c1 1\n x c1 1\n", "m.mps:7: column 'x' is stated twice"},
        FailureCase{ROWS_AND_X " M 'MARKER' 'INTEND'\n", "m.mps:6: marker 'INTEND' outside of integer columns"},
        FailureCase{ROWS_AND_X " M 'MARKER' 'XYZ'\n", "m.mps:6: unknown marker 'XYZ'"},
        FailureCase{ROWS_AND_X "RHS\n r c1 1\n r c1 2\n", "m.mps:8: row 'c1' has two right-hand sides"},
        FailureCase{ROWS_AND_X "RHS\n r c1 1\n s obj 2\n", "m.mps:8: second set 's' in RHS (the first is 'r')"},
        FailureCase{ROWS_AND_X "RANGES\n r c1 1\n r c1 2\n", "m.mps:8: row 'c1' has two ranges"},
        FailureCase{ROWS_AND_X "RANGES\n r obj 1\n", "m.mps:7: free row 'obj' has a range"},
        FailureCase{ROWS_AND_X "BOUNDS\n XX b x 1\n", "m.mps:7: unknown kind of bound 'XX'"},
        FailureCase{ROWS_AND_X "BOUNDS\n UP b z 1\n", "m.mps:7: unknown column 'z'"},
        FailureCase{ROWS_AND_X "BOUNDS\n UP b x\n", "m.mps:7: a line of BOUNDS needs kind, set, column and value"},
        FailureCase{ROWS_AND_X "BOUNDS\n UP b x 1\n UP b x 2\n", "m.mps:8: bound UP of column 'x' is stated twice"},
        FailureCase{ROWS_AND_X "QUADOBJ\n x z 1\n", "m.mps:7: unknown column 'z'"},
        FailureCase{ROWS_AND_X " y c1 1\nQUADOBJ\n x y 1\n y x 1\nENDATA\n",
                    "m.mps:9: the entry of 'y' and 'x' is stated twice"},
        FailureCase{ROWS_AND_X " y c1 1\nQMATRIX\n x y 1\nENDATA\n",
                    "m.mps:8: the matrix is not symmetric at 'x' and 'y'"},
        FailureCase{ROWS_AND_X "QUADOBJ\n x x 1\nQMATRIX\n",
                    "m.mps:8: quadratic terms of the objective are stated twice"},
        FailureCase{ROWS_AND_X "QCMATRIX\n", "m.mps:6: QCMATRIX needs the name of a row"},
        FailureCase{ROWS_AND_X "QCMATRIX obj\n", "m.mps:6: row 'obj' cannot have quadratic terms"},
        FailureCase{ROWS_AND_X "QCMATRIX c1\n x x 1\nQCMATRIX c1\n",
                    "m.mps:8: quadratic terms of row 'c1' are stated twice"},
        FailureCase{ROWS_AND_X "RANGES\n r c1 1\nQCMATRIX c1\n x x 1\nENDATA\n",
                    "m.mps:3: quadratic constraint 'c1' has a range"},
        FailureCase{ROWS_AND_X "SOS\n x 1\n", "m.mps:7: a member of a set before the first set"},
        FailureCase{ROWS_AND_X "SOS\n S1 s\n x 1\n x 2\n", "m.mps:9: column 'x' is twice in one set"},
        FailureCase{ROWS_AND_X "SOS1\n S2 s\n", "m.mps:7: a set of type 2 in SOS1"},
        FailureCase{ROWS_AND_X "INDICATORS\n IF c1 x\n",
                    "m.mps:7: a line of INDICATORS needs IF, row, column and value"},
        FailureCase{ROWS_AND_X "INDICATORS\n IF c1 x 2\n", "m.mps:7: an indicator has the value 0 or 1, not 2"},
        FailureCase{ROWS_AND_X "INDICATORS\n IF c1 x 1\nENDATA\n",
                    "m.mps:3: column 'x' of indicator 'c1' is not binary"},
        FailureCase{ROWS_AND_X "INDICATORS\n IF obj x 1\n", "m.mps:7: row 'obj' cannot have an indicator"},
        FailureCase{"ROWS\n N obj\n E c1\nCOLUMNS\n x c1 1\nRHS\n r c1 1e30\nENDATA\n",
                    "m.mps:3: equality row 'c1' has an infinite right-hand side"}));

#undef ROWS_AND_X

TEST(MpsFailures, AZeroByteIsRefusedWithItsLine) {
  std::string text = "ROWS\n N obj\n";
  text += '\0';
  EXPECT_EQ(FailureOf([&] { ReadMps({"m.mps", text}); }), "m.mps:3: zero byte in a text file");
}

TEST(MpsFailures, HaveTheCodeOfAFile) {
  try {
    ReadMps({"m.mps", "NONSENSE\n"});
    FAIL();
  } catch (Failure const& failure) {
    EXPECT_EQ(failure.code, VORQ_FILE);
  }
}

}  // namespace
}  // namespace vorqsolver::test
