// Bulk loads: they replace the problem whole or not at all.
#include "problem_fixture.hpp"

namespace {

using testing::ElementsAre;

class BulkLoadsTest : public ProblemTest {
 protected:
  int const colBeg[3] = {0, 1, 3};
  int const rows[3] = {1, 0, 1};
  double const coefs[3] = {1.0, 2.0, 3.0};
  double const objs[2] = {4.0, 5.0};
  double const lowers[2] = {0.0, -1e30};
  double const uppers[2] = {6.0, 7.0};

  int Load(int const* cells, char const* senses) {
    return VORQ_LoadProb(prob, 2, 2, -1, 9.0, objs, colBeg, nullptr, cells, coefs, "CI", nullptr, nullptr, senses,
                         lowers, uppers, nullptr, nullptr);
  }
};

TEST_F(BulkLoadsTest, LoadProbReplacesTheProblem) {
  AddCols(5, 'B');
  ASSERT_EQ(VORQ_AddPSDCol(prob, 2, "X"), VORQ_OK);
  ASSERT_EQ(Load(rows, nullptr), VORQ_OK);
  EXPECT_EQ(Attribute("Cols"), 2);
  EXPECT_EQ(Attribute("PSDCols"), 0);
  EXPECT_EQ(Attribute("ObjSense"), -1);
  EXPECT_EQ(Row(1), (Run{{0, 1}, {1.0, 3.0}}));
  EXPECT_EQ(Info(VORQ_GetRowInfo, "LB", 1), -1e30);
  EXPECT_EQ(Info(VORQ_GetRowInfo, "UB", 1), 7.0);
  EXPECT_EQ(Info(VORQ_GetColInfo, "Obj", 1), 5.0);
}

TEST_F(BulkLoadsTest, LoadProbWithSensesReadsRightHandSides) {
  ASSERT_EQ(Load(rows, "EL"), VORQ_OK);
  EXPECT_EQ(Info(VORQ_GetRowInfo, "UB", 0), 0.0);
  EXPECT_EQ(Info(VORQ_GetRowInfo, "LB", 0), 0.0);
}

TEST_F(BulkLoadsTest, AFailedLoadLeavesTheProblem) {
  AddCols(5);
  int const outside[] = {1, 0, 2};
  EXPECT_EQ(Load(outside, nullptr), VORQ_INVALID);
  EXPECT_EQ(Load(rows, "EX"), VORQ_INVALID);
  EXPECT_EQ(Attribute("Cols"), 5);
  EXPECT_EQ(Attribute("ObjSense"), 1);
}

TEST_F(BulkLoadsTest, LoadConeProbStatesAllKinds) {
  int const symDims[] = {2, 3};
  int const symBeg[] = {0, 1, 3};
  int const symRows[] = {0, 1, 2};
  int const symCols[] = {0, 0, 2};
  double const symVals[] = {1.0, 2.0, 3.0};
  int const quadIndex = 1;
  double const quadValue = 8.0;
  int const coneTypes[] = {1, 2};
  int const coneDims[] = {1, 2};
  int const coneCols[] = {0, 1, 0};
  int const expTypes[] = {4};
  int const expCols[] = {0, 1, 2};
  int const psdDims[] = {3, 2};
  int const psdObjMats[] = {-1, 0};
  int const counts[] = {0, 0, 0};
  char const* const psdNames[] = {"X", "Y"};
  auto const load = [&](int const* matrices, int const* dims) {
    return VORQ_LoadConeProb(prob, 3, 0, 2, 1, 2, 2, 3, 1, symDims, symBeg, symRows, symCols, symVals, 1, 2.0, nullptr,
                             nullptr, counts, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &quadIndex,
                             &quadIndex, &quadValue, coneTypes, dims, coneCols, expTypes, expCols, psdDims, nullptr,
                             nullptr, psdNames, matrices);
  };
  ASSERT_EQ(load(psdObjMats, coneDims), VORQ_OK);
  EXPECT_EQ(Attribute("Cols"), 3);
  EXPECT_EQ(Attribute("Cones"), 2);
  EXPECT_EQ(Attribute("ExpCones"), 1);
  EXPECT_EQ(Attribute("SymMats"), 2);
  EXPECT_EQ(Attribute("QElems"), 1);
  int members[2];
  int const second = 1;
  ASSERT_EQ(VORQ_GetCones(prob, 1, &second, nullptr, nullptr, nullptr, members, 2, nullptr), VORQ_OK);
  EXPECT_THAT(members, ElementsAre(1, 0));
  int index = -1;
  EXPECT_EQ(VORQ_GetPSDColIdx(prob, "Y", &index), VORQ_OK);
  EXPECT_EQ(index, 1);
  int matrix = -9;
  EXPECT_EQ(VORQ_GetPSDObj(prob, 0, &matrix), VORQ_OK);
  EXPECT_EQ(matrix, -1);
  EXPECT_EQ(VORQ_GetPSDObj(prob, 1, &matrix), VORQ_OK);
  EXPECT_EQ(matrix, 0);
  int const wrongMats[] = {0, -1};
  int const wrongDims[] = {1, -2};
  EXPECT_EQ(load(wrongMats, coneDims), VORQ_INVALID);
  EXPECT_EQ(load(psdObjMats, wrongDims), VORQ_INVALID);
  EXPECT_EQ(Attribute("SymMats"), 2);
}

}  // namespace
