// A PSD variable as a matrix of expressions.
#include <sstream>

#include "tests/model/matrix_forms_fixture.hpp"

namespace {

using vorqtest::Own;

class PsdVarMatrixTest : public vorqtest::MatrixFormsTest {
 protected:
  PsdVarMatrixTest() : two_(AddPsdVar(2)), three_(AddPsdVar(3)) {}

  // What stands in the solver library when the expression is the left side of a constraint: "(1,0)=0.5".
  std::string Entries(Vorq::IPsdExpr* expr) {
    double_.ClearLog();
    Own(model_->AddPsdConstr(expr, 'E', 0.0, "p"));
    std::string text;
    for (std::string const& call : double_.Calls("VORQ_AddSymMat")) text += call.substr(std::string("VORQ_").size());
    double_.ClearLog();
    return text;
  }
  template <int N>
  std::vector<std::string> Entries(std::unique_ptr<Vorq::IMPsdExpr<N>> const& block) {
    std::vector<std::string> texts;
    texts.reserve(block->GetSize());
    for (std::uint64_t i = 0; i < block->GetSize(); ++i) texts.push_back(Entries(Own(block->Get(i)).get()));
    return texts;
  }
  // The entry of three_ at (row, col), as the text of a call.
  static std::string Entry(int row, int col, int dim = 3) {
    std::ostringstream text;
    text << "AddSymMat(prob#1, " << dim << ", 1, [" << std::max(row, col) << "], [" << std::min(row, col) << "], ["
         << (row == col ? "1" : "0.5") << "])";
    return text.str();
  }

  std::unique_ptr<Vorq::INdArray<int, 1>> Positions(std::vector<int> const& values) {
    auto const shape = Own(factory_->CreateNDim(values.size()));
    return Own(factory_->CreateNdArray(shape.get(), values.data(), values.size()));
  }
  std::unique_ptr<Vorq::INdArray<int, 2>> Coords(std::uint64_t rows, std::uint64_t cols,
                                                 std::vector<int> const& values) {
    auto const shape = Own(factory_->CreateNDim(rows, cols));
    return Own(factory_->CreateNdArray(shape.get(), values.data(), values.size()));
  }

  using Texts = std::vector<std::string>;
  std::unique_ptr<Vorq::IPsdVar> two_;
  std::unique_ptr<Vorq::IPsdVar> three_;
};

TEST_F(PsdVarMatrixTest, EntriesOffTheDiagonalAreHalved) {
  auto const matrix = Own(two_->ToMPsdExpr());
  EXPECT_EQ(matrix->GetDim(0), 2u);
  EXPECT_EQ(matrix->GetDim(1), 2u);
  EXPECT_EQ(Entries(matrix), (Texts{Entry(0, 0, 2), Entry(0, 1, 2), Entry(1, 0, 2), Entry(1, 1, 2)}));
  auto const cell = Own(matrix->Get(1));
  EXPECT_EQ(cell->GetSize(), 1u);
  EXPECT_EQ(cell->GetConstant(), 0.0);
  EXPECT_EQ(Own(cell->GetPsdVar(0))->GetIdx(), 0);
  auto const coeff = Own(cell->GetCoeff(0));
  EXPECT_EQ(coeff->GetSize(), 1u);
  EXPECT_EQ(coeff->GetDim(), 2);
  EXPECT_EQ(Own(coeff->GetSymMat(0))->GetIdx(), -1);
}

TEST_F(PsdVarMatrixTest, NothingIsMadeInTheSolverLibrary) {
  double_.ClearLog();
  Own(two_->ToMPsdExpr());
  Own(two_->Sum());
  Own(two_->Diagonal(0));
  EXPECT_CALLS(double_, {});
}

TEST_F(PsdVarMatrixTest, SumHasATermForEachEntryOfTheTriangle) {
  auto const sum = Own(two_->Sum());
  ASSERT_EQ(sum->GetSize(), 3u);
  EXPECT_EQ(Own(sum->GetPsdVar(2))->GetIdx(), 0);
  EXPECT_EQ(Entries(sum.get()), "AddSymMat(prob#1, 2, 3, [0,1,1], [0,0,1], [1,1,1])");
}

TEST_F(PsdVarMatrixTest, SumCountsBothHalves) {
  double_.Answer("VORQ_GetPSDColInfo").Set("values", {1, 10, 10, 100});
  EXPECT_EQ(Own(two_->Sum())->Evaluate(), 121.0);
  EXPECT_EQ(Own(Own(two_->ToMPsdExpr())->Get(1))->Evaluate(), 10.0);
}

TEST_F(PsdVarMatrixTest, DiagonalsAboveAndBelow) {
  EXPECT_EQ(Entries(Own(three_->Diagonal(0))), (Texts{Entry(0, 0), Entry(1, 1), Entry(2, 2)}));
  auto const above = Own(three_->Diagonal(1));
  EXPECT_EQ(Entries(above), (Texts{Entry(0, 1), Entry(1, 2)}));
  EXPECT_EQ(Entries(Own(three_->Diagonal(-2))), Texts{Entry(2, 0)});
  EXPECT_SUCCESS(three_);
}

TEST_F(PsdVarMatrixTest, DiagonalsOutsideAreRefused) {
  auto const none = Own(three_->Diagonal(3));
  EXPECT_FAILURE(three_, 3, "(INVALID) Diagonal offset (=3) is out of bound for dimension 3");
  EXPECT_FAILURE(none, 3, "(INVALID) Diagonal offset (=3) is out of bound for dimension 3");
  EXPECT_EQ(none->GetSize(), 1u);
  EXPECT_EQ(Own(none->Get(0))->GetSize(), 0u);
  Own(three_->Diagonal(-2147483647 - 1));
  EXPECT_FAILURE(three_, 3, "(INVALID) Diagonal offset (=-2147483648) is out of bound for dimension 3");
  Own(three_->Diagonal(0));
  EXPECT_SUCCESS(three_);
}

TEST_F(PsdVarMatrixTest, AViewPicksAPartOfTheMatrix) {
  auto const view = Own(factory_->CreateView());
  Own(view->Scalar(-1));
  Own(view->Slice(0, 0, -2, 6));
  auto const part = Own(three_->Pick(view.get()));
  EXPECT_EQ(part->GetDim(0), 1u);
  EXPECT_EQ(part->GetDim(1), 2u);
  EXPECT_EQ(Entries(part), (Texts{Entry(2, 2), Entry(2, 0)}));
  EXPECT_EQ(Entries(Own(two_->Pick(Own(factory_->CreateView()).get()))), Entries(Own(two_->ToMPsdExpr())));
  EXPECT_SUCCESS(three_);
}

TEST_F(PsdVarMatrixTest, AViewOfTooManyOperationsIsRefused) {
  auto const view = Own(factory_->CreateView());
  for (int i = 0; i < 3; ++i) Own(view->Scalar(1));
  auto const part = Own(three_->Pick(view.get()));
  EXPECT_FAILURE(three_, 3, "(INVALID) View has more operations than #ND (2)");
  EXPECT_FAILURE(part, 3, "(INVALID) View has more operations than #ND (2)");
  EXPECT_EQ(Entries(part), Texts{Entry(0, 0)});
}

TEST_F(PsdVarMatrixTest, AViewThatLeavesTheMatrixIsRefused) {
  auto const view = Own(factory_->CreateView());
  Own(view->Scalar(7));
  auto const part = Own(three_->Pick(view.get()));
  EXPECT_FAILURE(three_, 3, "(INVALID) Index (=9) is out of bound for dimension 3");
  EXPECT_EQ(part->GetSize(), 1u);
}

TEST_F(PsdVarMatrixTest, PositionsCountRowByRow) {
  EXPECT_EQ(Entries(Own(three_->Pick(Positions({5, 0, 5}).get()))), (Texts{Entry(1, 2), Entry(0, 0), Entry(1, 2)}));
  EXPECT_EQ(Own(three_->Pick(Positions({}).get()))->GetSize(), 0u);
  EXPECT_SUCCESS(three_);
}

TEST_F(PsdVarMatrixTest, PositionsOutsideAreRefused) {
  for (int position : {9, -1}) {
    auto const none = Own(three_->Pick(Positions({0, position}).get()));
    std::string const text = "(INVALID) Index (=" + std::to_string(position) + ") is out of bound for dimension 3";
    EXPECT_FAILURE(three_, 3, text.c_str());
    EXPECT_FAILURE(none, 3, text.c_str());
    EXPECT_EQ(none->GetSize(), 1u);
  }
}

TEST_F(PsdVarMatrixTest, CoordinatesPickSingleEntries) {
  auto const picked = Own(three_->Pick(Coords(3, 2, {0, 2, 1, 1, -1, -3}).get()));
  EXPECT_EQ(Entries(picked), (Texts{Entry(0, 2), Entry(1, 1), Entry(2, 0)}));
  EXPECT_EQ(Entries(Own(three_->Pick(Coords(2, 1, {1, 2}).get()))), (Texts{Entry(1, 0), Entry(2, 0)}));
  EXPECT_EQ(Entries(Own(three_->Pick(Coords(1, 3, {1, 1, 1}).get()))), Texts{Entry(0, 0)});
  EXPECT_SUCCESS(three_);
}

TEST_F(PsdVarMatrixTest, CoordinatesOutsideAreRefused) {
  auto const none = Own(three_->Pick(Coords(1, 2, {5, 0}).get()));
  EXPECT_FAILURE(three_, 3, "(INVALID) Index (=9) is out of bound for dimension 3");
  EXPECT_EQ(none->GetSize(), 1u);
}

TEST_F(PsdVarMatrixTest, AnInvalidVariableHasNoEntries) {
  auto const invalid = Own(model_->GetPsdVar(-1));
  EXPECT_EQ(Own(invalid->ToMPsdExpr())->GetSize(), 0u);
  EXPECT_EQ(Own(invalid->Sum())->GetSize(), 0u);
  EXPECT_EQ(Own(invalid->Pick(Own(factory_->CreateView()).get()))->GetSize(), 0u);
  EXPECT_SUCCESS(invalid);
  Own(invalid->Diagonal(0));
  EXPECT_FAILURE(invalid, 3, "(INVALID) Diagonal offset (=0) is out of bound for dimension 0");
  Own(invalid->Pick(Positions({0}).get()));
  EXPECT_FAILURE(invalid, 3, "(INVALID) Index (=0) is out of bound for dimension 0");
}

TEST_F(PsdVarMatrixTest, ARemovedVariableLeavesTheRows) {
  auto const diagonal = Own(two_->Diagonal(0));
  auto const first = Own(diagonal->Get(0));
  first->AddPsdExpr(Own(Own(three_->Diagonal(0))->Get(0)).get(), 1.0);
  two_->Remove();
  EXPECT_EQ(Entries(first.get()), Entry(0, 0));
}

TEST_F(PsdVarMatrixTest, NullArgumentsAreRefused) {
  Vorq::IView* const view = nullptr;
  Vorq::INdArray<int, 1>* const positions = nullptr;
  Vorq::INdArray<int, 2>* const coords = nullptr;
  EXPECT_EQ(Own(two_->Pick(view))->GetSize(), 1u);
  EXPECT_FAILURE(two_, 3, "(INVALID) Argument 'view' of Pick is null");
  EXPECT_EQ(Own(two_->Pick(positions))->GetSize(), 1u);
  EXPECT_EQ(Own(two_->Pick(coords))->GetLastError(), 3);
}

}  // namespace
