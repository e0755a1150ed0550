// Putting symmetric matrices into a model, and finding them.
#include "tests/model/special_fixture.hpp"

namespace {

using vorqtest::Own;

class SymmetricMatricesTest : public vorqtest::SpecialConstraintsTest {
 protected:
  void ExpectRefused(std::unique_ptr<Vorq::ISymMatrix> const& matrix, char const* text) {
    EXPECT_EQ(matrix->GetIdx(), -2);
    EXPECT_EQ(matrix->GetDim(), 0);
    EXPECT_FAILURE(model_, 3, text);
    EXPECT_CALLS(double_, {});
  }

  double const values_[6] = {1, 2, 3, 4, 5, 6};
};

TEST_F(SymmetricMatricesTest, SparseMatrixIsHandedOn) {
  int const rows[] = {1, 2};
  int const cols[] = {0, 2};
  auto const matrix = Own(model_->AddSparseMat(3, 2, rows, cols, values_));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(matrix->GetIdx(), 0);
  EXPECT_EQ(matrix->GetDim(), 3);
  EXPECT_CALLS(double_, {"VORQ_AddSymMat(prob#1, 3, 2, [1,2], [0,2], [1,2])"});
}

TEST_F(SymmetricMatricesTest, RefusedMatrixIsInvalid) {
  double_.FailNext("VORQ_AddSymMat", VORQ_MEMORY);
  auto const matrix = Own(model_->AddSparseMat(3, 0, nullptr, nullptr, nullptr));
  EXPECT_EQ(matrix->GetIdx(), -2);
  EXPECT_EQ(matrix->GetDim(), 0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Failed to add a sparse symmetric matrix to model");
  EXPECT_EQ(Own(model_->AddEyeMat(2))->GetIdx(), 0);
}

TEST_F(SymmetricMatricesTest, DenseMatrixIsTheLowerTriangleByColumns) {
  Own(model_->AddDenseMat(2, values_, 3));
  Own(model_->AddDenseMat(3, values_, 6));
  EXPECT_CALLS(double_, {"VORQ_AddSymMat(prob#1, 2, 3, [0,1,1], [0,0,1], [1,2,3])",
                         "VORQ_AddSymMat(prob#1, 3, 6, [0,1,2,1,2,2], [0,0,0,1,1,2], [1,2,3,4,5,6])"});
}

TEST_F(SymmetricMatricesTest, DenseMatrixEndsWithItsValues) {
  EXPECT_EQ(Own(model_->AddDenseMat(3, values_, 2))->GetDim(), 3);
  EXPECT_CALLS(double_, {"VORQ_AddSymMat(prob#1, 3, 2, [0,1], [0,0], [1,2])"});
}

TEST_F(SymmetricMatricesTest, DenseMatrixIgnoresSurplusValues) {
  Own(model_->AddDenseMat(1, values_, 6));
  EXPECT_CALLS(double_, {"VORQ_AddSymMat(prob#1, 1, 1, [0], [0], [1])"});
}

TEST_F(SymmetricMatricesTest, DenseMatrixOfBadDimensionsIsRefused) {
  char const* const text = "(INVALID) Invalid dimension of input symmetric matrix";
  ExpectRefused(Own(model_->AddDenseMat(2, nullptr, 3)), text);
  ExpectRefused(Own(model_->AddDenseMat(2, values_, 0)), text);
  ExpectRefused(Own(model_->AddDenseMat(0, values_, 3)), text);
  ExpectRefused(Own(model_->AddDenseMat(0, 1.0)), text);
  ExpectRefused(Own(model_->AddOnesMat(-1)), text);
  ExpectRefused(Own(model_->AddDenseMat(70000, 1.0)), text);
}

TEST_F(SymmetricMatricesTest, EqualEntries) {
  Own(model_->AddDenseMat(2, 2.5));
  Own(model_->AddOnesMat(2));
  EXPECT_CALLS(double_, {"VORQ_AddSymMat(prob#1, 2, 3, [0,1,1], [0,0,1], [2.5,2.5,2.5])",
                         "VORQ_AddSymMat(prob#1, 2, 3, [0,1,1], [0,0,1], [1,1,1])"});
}

TEST_F(SymmetricMatricesTest, Diagonals) {
  Own(model_->AddDiagMat(3, values_, 2));
  Own(model_->AddDiagMat(2, values_, 6));
  Own(model_->AddDiagMat(2, 2.5));
  Own(model_->AddEyeMat(2));
  EXPECT_CALLS(
      double_,
      {"VORQ_AddSymMat(prob#1, 3, 2, [0,1], [0,1], [1,2])", "VORQ_AddSymMat(prob#1, 2, 2, [0,1], [0,1], [1,2])",
       "VORQ_AddSymMat(prob#1, 2, 2, [0,1], [0,1], [2.5,2.5])", "VORQ_AddSymMat(prob#1, 2, 2, [0,1], [0,1], [1,1])"});
}

TEST_F(SymmetricMatricesTest, DiagonalsOfBadDimensionsHaveTwoTexts) {
  char const* const diagonal = "(INVALID) Invalid dimension of input diagonal matrix";
  char const* const symmetric = "(INVALID) Invalid dimension of input symmetric matrix";
  ExpectRefused(Own(model_->AddDiagMat(0, values_, 1)), diagonal);
  ExpectRefused(Own(model_->AddDiagMat(2, values_, 0)), diagonal);
  ExpectRefused(Own(model_->AddDiagMat(2, static_cast<double const*>(nullptr), 2)), diagonal);
  ExpectRefused(Own(model_->AddDiagMat(2, values_, 0, 0)), diagonal);
  ExpectRefused(Own(model_->AddDiagMat(0, 1.0)), symmetric);
  ExpectRefused(Own(model_->AddEyeMat(0)), symmetric);
}

TEST_F(SymmetricMatricesTest, OffsetDiagonalsIgnoreTheSign) {
  Own(model_->AddDiagMat(3, values_, 6, 1));
  Own(model_->AddDiagMat(3, values_, 6, -1));
  Own(model_->AddDiagMat(3, values_, 1, 1));
  Own(model_->AddDiagMat(3, values_, 6, 0));
  Own(model_->AddDiagMat(3, 2.5, -2));
  EXPECT_CALLS(
      double_,
      {"VORQ_AddSymMat(prob#1, 3, 2, [1,2], [0,1], [1,2])", "VORQ_AddSymMat(prob#1, 3, 2, [1,2], [0,1], [1,2])",
       "VORQ_AddSymMat(prob#1, 3, 1, [1], [0], [1])", "VORQ_AddSymMat(prob#1, 3, 3, [0,1,2], [0,1,2], [1,2,3])",
       "VORQ_AddSymMat(prob#1, 3, 1, [2], [0], [2.5])"});
}

TEST_F(SymmetricMatricesTest, OffsetOutsideOfTheMatrixIsRefused) {
  char const* const text = "(INVALID) Invalid dimension of input diagonal matrix with offset";
  for (int offset : {3, -3, -2147483647 - 1}) ExpectRefused(Own(model_->AddDiagMat(3, values_, 6, offset)), text);
  ExpectRefused(Own(model_->AddDiagMat(3, nullptr, 6, 1)), text);
  ExpectRefused(Own(model_->AddDiagMat(3, values_, 0, 1)), text);
  ExpectRefused(Own(model_->AddDiagMat(0, 1.0, 1)), text);
  ExpectRefused(Own(model_->AddDiagMat(0, 1.0, 0)), text);
}

TEST_F(SymmetricMatricesTest, ExpressionBecomesOneMatrix) {
  auto const expr = Own(CreateSymMatExpr2(Own(model_->AddDenseMat(2, values_, 3)).get(), 2.0));
  expr->AddTerm(Own(model_->AddEyeMat(2)).get(), 10.0);
  double_.ClearLog();
  auto const sum = Own(model_->AddSymMat(expr.get()));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(sum->GetIdx(), 2);
  EXPECT_EQ(sum->GetDim(), 2);
  EXPECT_CALLS_OF(double_, "VORQ_AddSymMat", {"VORQ_AddSymMat(prob#1, 2, 3, [0,1,1], [0,0,1], [12,4,16])"});
  EXPECT_EQ(expr->GetSize(), 2u);
}

TEST_F(SymmetricMatricesTest, EmptyExpressionIsRefused) {
  ExpectRefused(Own(model_->AddSymMat(Own(CreateSymMatExpr1()).get())),
                "(INVALID) Empty symmetric matrix expression object");
}

TEST_F(SymmetricMatricesTest, ExpressionThatCannotBeReadIsRefused) {
  auto const expr = Own(CreateSymMatExpr2(AddMatrix(2).get(), 1.0));
  double_.FailNext("VORQ_GetSymMat", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddSymMat(expr.get()))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Failed to get elements of expression of symmetric matrices");
  double_.FailNext("VORQ_AddSymMat", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddSymMat(expr.get()))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Failed to add a symmetric matrix to model");
}

TEST_F(SymmetricMatricesTest, LookupKnowsTheDimension) {
  AddMatrix(2);
  AddMatrix(3);
  auto const matrix = Own(model_->GetSymMat(1));
  EXPECT_EQ(matrix->GetIdx(), 1);
  EXPECT_EQ(matrix->GetDim(), 3);
}

}  // namespace
