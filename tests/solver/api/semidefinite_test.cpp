// Symmetric matrices, PSD columns, PSD constraints and LMI constraints.
#include "problem_fixture.hpp"

namespace {

using testing::ElementsAre;

class SemidefiniteTest : public ProblemTest {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    AddCols(3);
    int const dims[] = {2, 3};
    ASSERT_EQ(VORQ_AddPSDCols(prob, 2, dims, nullptr), VORQ_OK);
    for (int const dim : {2, 3, 2, 3}) AddMatrix(dim);
  }

  void AddMatrix(int dim) {
    int const zero = 0;
    double const one = 1.0;
    ASSERT_EQ(VORQ_AddSymMat(prob, dim, 1, &zero, &zero, &one), VORQ_OK);
  }

  int GetPsdElem(int psdCol, int constr) {
    int mat = -9;
    EXPECT_EQ(VORQ_GetPSDElem(prob, psdCol, constr, &mat), VORQ_OK);
    return mat;
  }

  int GetLmiElem(int col, int constr) {
    int mat = -9;
    EXPECT_EQ(VORQ_GetLMIElem(prob, col, constr, &mat), VORQ_OK);
    return mat;
  }
};

TEST_F(SemidefiniteTest, MatricesKeepTheirLowerTriangleWithDuplicatesSummed) {
  int const rows[] = {0, 2, 1, 1, 0};
  int const cols[] = {2, 0, 1, 0, 0};
  double const values[] = {1.0, 2.0, 3.0, 4.0, 5.0};
  ASSERT_EQ(VORQ_AddSymMat(prob, 3, 5, rows, cols, values), VORQ_OK);
  int dim = 0, count = 0, newRows[4], newCols[4];
  double newValues[4];
  ASSERT_EQ(VORQ_GetSymMat(prob, 4, &dim, &count, nullptr, nullptr, nullptr), VORQ_OK);
  EXPECT_EQ(dim, 3);
  ASSERT_EQ(count, 4);
  ASSERT_EQ(VORQ_GetSymMat(prob, 4, nullptr, nullptr, newRows, newCols, newValues), VORQ_OK);
  EXPECT_THAT(newRows, ElementsAre(0, 1, 2, 1));
  EXPECT_THAT(newCols, ElementsAre(0, 0, 0, 1));
  EXPECT_THAT(newValues, ElementsAre(5.0, 4.0, 3.0, 3.0));
}

TEST_F(SemidefiniteTest, AMatrixMayBeEmpty) {
  EXPECT_EQ(VORQ_AddSymMat(prob, 3, 0, nullptr, nullptr, nullptr), VORQ_OK);
  EXPECT_EQ(Attribute("SymMats"), 5);
}

TEST_F(SemidefiniteTest, BadMatricesAreRefused) {
  int const zero = 0;
  int const two = 2;
  double const one = 1.0;
  double const infinite = 1e30;
  EXPECT_EQ(VORQ_AddSymMat(prob, 0, 0, nullptr, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddSymMat(prob, 2, 1, &two, &zero, &one), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddSymMat(prob, 2, 1, &zero, &zero, &infinite), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddSymMat(prob, 2, -1, &zero, &zero, &one), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddSymMat(prob, 2, 1, nullptr, &zero, &one), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetSymMat(prob, 4, nullptr, nullptr, nullptr, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(Attribute("SymMats"), 4);
}

TEST_F(SemidefiniteTest, PsdColumnsHaveDimensionsAndLengths) {
  int dims[2], lens[2];
  ASSERT_EQ(VORQ_GetPSDCols(prob, 2, nullptr, dims, lens), VORQ_OK);
  EXPECT_THAT(dims, ElementsAre(2, 3));
  EXPECT_THAT(lens, ElementsAre(4, 9));
  int const bad[] = {2, 0};
  EXPECT_EQ(VORQ_AddPSDCols(prob, 2, bad, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddPSDCol(prob, 46341, nullptr), VORQ_INVALID);
  EXPECT_EQ(Attribute("PSDCols"), 2);
}

TEST_F(SemidefiniteTest, PsdConstraintsReadBack) {
  int const linIdx[] = {2, 0, 1};
  double const linCoef[] = {1.0, 2.0, 3.0};
  int const psdCols[] = {1, 0};
  int const mats[] = {1, 0};
  ASSERT_EQ(VORQ_AddPSDConstr(prob, 3, linIdx, linCoef, 2, psdCols, mats, 'R', 1.0, 4.0, "c"), VORQ_OK);
  int required = 0;
  ASSERT_EQ(
      VORQ_GetPSDConstr(prob, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0, &required),
      VORQ_OK);
  EXPECT_EQ(required, 3);
  int nLin = 0, nPsd = 0, idx[3], cols[3], matrices[3];
  double coefs[3], lower = 0.0, upper = 0.0;
  ASSERT_EQ(VORQ_GetPSDConstr(prob, 0, &nLin, idx, coefs, &nPsd, cols, matrices, &lower, &upper, required, nullptr),
            VORQ_OK);
  EXPECT_EQ(nLin, 3);
  EXPECT_EQ(nPsd, 2);
  EXPECT_THAT(idx, ElementsAre(2, 0, 1));
  EXPECT_EQ(cols[0], 1);
  EXPECT_EQ(matrices[0], 1);
  EXPECT_EQ(lower, 1.0);
  EXPECT_EQ(upper, 4.0);
}

TEST_F(SemidefiniteTest, MatricesOfAnotherDimensionAreRefused) {
  ListenToLog();
  int const zero = 0;
  int const one = 1;
  EXPECT_EQ(VORQ_AddPSDConstr(prob, 0, nullptr, nullptr, 1, &zero, &one, 'E', 1.0, 1.0, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddLMIConstr(prob, 3, 1, &zero, &zero, -1, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddLMIConstr(prob, 3, 0, nullptr, nullptr, 0, nullptr), VORQ_INVALID);
  EXPECT_THAT(lines, ElementsAre("Error: Symmetric matrix 1 has the dimension 3, but 2 is needed",
                                 "Error: Symmetric matrix 0 has the dimension 2, but 3 is needed",
                                 "Error: Symmetric matrix 0 has the dimension 2, but 3 is needed"));
  EXPECT_EQ(Attribute("PSDConstrs"), 0);
  EXPECT_EQ(Attribute("LMIConstrs"), 0);
}

TEST_F(SemidefiniteTest, PsdCoefficientsChange) {
  ASSERT_EQ(VORQ_AddPSDConstr(prob, 0, nullptr, nullptr, 0, nullptr, nullptr, 'E', 1.0, 1.0, nullptr), VORQ_OK);
  EXPECT_EQ(GetPsdElem(0, 0), -1);
  ASSERT_EQ(VORQ_SetPSDElem(prob, 0, 0, 0), VORQ_OK);
  ASSERT_EQ(VORQ_SetPSDElem(prob, 1, 0, 3), VORQ_OK);
  EXPECT_EQ(GetPsdElem(0, 0), 0);
  ASSERT_EQ(VORQ_SetPSDElem(prob, 0, 0, 2), VORQ_OK);
  EXPECT_EQ(GetPsdElem(0, 0), 2);
  ASSERT_EQ(VORQ_SetPSDElem(prob, 0, 0, -1), VORQ_OK);
  EXPECT_EQ(GetPsdElem(0, 0), -1);
  EXPECT_EQ(GetPsdElem(1, 0), 3);
  EXPECT_EQ(VORQ_SetPSDElem(prob, 0, 0, 1), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetPSDElem(prob, 0, 1, 0), VORQ_INVALID);
}

TEST_F(SemidefiniteTest, PsdConstraintBoundsChange) {
  ASSERT_EQ(VORQ_AddPSDConstr(prob, 0, nullptr, nullptr, 0, nullptr, nullptr, 'E', 1.0, 1.0, nullptr), VORQ_OK);
  double const lower = -1e40;
  double const upper = 5.0;
  ASSERT_EQ(VORQ_SetPSDConstrLower(prob, 1, nullptr, &lower), VORQ_OK);
  ASSERT_EQ(VORQ_SetPSDConstrUpper(prob, 1, nullptr, &upper), VORQ_OK);
  EXPECT_EQ(Info(VORQ_GetPSDConstrInfo, "LB", 0), -1e30);
  EXPECT_EQ(Info(VORQ_GetPSDConstrInfo, "ub", 0), 5.0);
}

TEST_F(SemidefiniteTest, LmiConstraintsReadBack) {
  int const cols[] = {2, 0};
  int const mats[] = {2, 0};
  ASSERT_EQ(VORQ_AddLMIConstr(prob, 2, 2, cols, mats, 0, nullptr), VORQ_OK);
  int dim = 0, count = 0, required = 0, members[2], matrices[2], constant = -9;
  ASSERT_EQ(VORQ_GetLMIConstr(prob, 0, &dim, nullptr, nullptr, nullptr, nullptr, 0, nullptr), VORQ_OK);
  EXPECT_EQ(dim, 2);
  ASSERT_EQ(VORQ_GetLMIConstr(prob, 0, nullptr, nullptr, nullptr, nullptr, nullptr, 0, &required), VORQ_OK);
  EXPECT_EQ(required, 2);
  ASSERT_EQ(VORQ_GetLMIConstr(prob, 0, &dim, &count, members, matrices, &constant, 2, nullptr), VORQ_OK);
  EXPECT_EQ(count, 2);
  EXPECT_THAT(members, ElementsAre(2, 0));
  EXPECT_THAT(matrices, ElementsAre(2, 0));
  EXPECT_EQ(constant, 0);
  EXPECT_EQ(VORQ_GetLMIConstr(prob, 0, &dim, &count, members, matrices, &constant, 1, nullptr), VORQ_INVALID);
}

TEST_F(SemidefiniteTest, LmiCoefficientsAndConstantsChange) {
  int const cols[] = {2, 0, 2};
  int const mats[] = {2, 0, 0};
  ASSERT_EQ(VORQ_AddLMIConstr(prob, 2, 3, cols, mats, -1, nullptr), VORQ_OK);
  ASSERT_EQ(VORQ_SetLMIElem(prob, 2, 0, 0), VORQ_OK);
  EXPECT_EQ(GetLmiElem(2, 0), 0);
  ASSERT_EQ(VORQ_SetLMIElem(prob, 1, 0, 2), VORQ_OK);
  EXPECT_EQ(GetLmiElem(1, 0), 2);
  ASSERT_EQ(VORQ_SetLMIElem(prob, 2, 0, -1), VORQ_OK);
  EXPECT_EQ(GetLmiElem(2, 0), -1);
  int required = 0;
  ASSERT_EQ(VORQ_GetLMIConstr(prob, 0, nullptr, nullptr, nullptr, nullptr, nullptr, 0, &required), VORQ_OK);
  EXPECT_EQ(required, 2);
  int const constant = 2;
  int found = -9;
  EXPECT_EQ(VORQ_GetLMIConstrRhs(prob, 1, nullptr, &found), VORQ_OK);
  EXPECT_EQ(found, -1);
  ASSERT_EQ(VORQ_SetLMIConstrRhs(prob, 1, nullptr, &constant), VORQ_OK);
  EXPECT_EQ(VORQ_GetLMIConstrRhs(prob, 1, nullptr, &found), VORQ_OK);
  EXPECT_EQ(found, 2);
  int const wrong = 1;
  EXPECT_EQ(VORQ_SetLMIConstrRhs(prob, 1, nullptr, &wrong), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetLMIElem(prob, 3, 0, 0), VORQ_INVALID);
}

}  // namespace
