// Operations of the model on blocks in place of arrays: cones, removal, relaxation.
#include "tests/model/matrix_forms_fixture.hpp"

namespace {

using vorqtest::Own;

class BlockConesTest : public vorqtest::MatrixFormsTest {};
class BlockRemovalTest : public vorqtest::MatrixFormsTest {};
class BlockRelaxationTest : public vorqtest::MatrixFormsTest {
 protected:
  BlockRelaxationTest() : constrs_(AddConstrs(2)) {
    double_.DblParam("InfBound", 1e20);
    double_.ClearLog();
  }

  std::vector<Constr> constrs_;
  std::unique_ptr<Vorq::INdArray<double, 1>> none_ = Numbers({});
};

constexpr char kReadInfinity[] = R"(VORQ_GetDblParam(prob#1, "InfBound", out))";

// ---- Cones

TEST_F(BlockConesTest, AVectorIsOneCone) {
  auto const cone = Own(model_->AddCone(Vector({z_.get(), x_.get()}).get(), 1));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(cone->GetIdx(), 0);
  EXPECT_CALLS(double_, {"VORQ_AddCones(prob#1, 1, [1], [0], [2], [2,0])"});
}

TEST_F(BlockConesTest, TheShapeOfAVectorGivesTheOrder) {
  auto const view = Own(factory_->CreateView());
  Own(view->Slice(0, 0, -1, 6));
  auto const reversed = Own(Vector({x_.get(), y_.get(), z_.get()})->View(view.get()));
  Own(model_->AddCone(reversed.get(), 2));
  Own(model_->AddExpCone(reversed.get(), 4));
  EXPECT_CALLS(double_,
               {"VORQ_AddCones(prob#1, 1, [2], [0], [3], [2,1,0])", "VORQ_AddExpCones(prob#1, 1, [4], [2,1,0])"});
}

TEST_F(BlockConesTest, RemovedVariableIsRefused) {
  y_->Remove();
  EXPECT_EQ(Own(model_->AddCone(Vector({x_.get(), y_.get()}).get(), 1))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid variable");
  EXPECT_EQ(Own(model_->AddExpCone(Vector({x_.get(), y_.get(), z_.get()}).get(), 3))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid variable");
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockConesTest, AViewBeyondItsVectorHoldsNoVariable) {
  auto const view = Own(factory_->CreateView());
  Own(view->Scalar(2));
  auto const outside = Own(Vector({x_.get(), y_.get()})->View(view.get()));
  EXPECT_EQ(Own(model_->AddCone(outside.get(), 1))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid variable");
  model_->Remove(outside.get());
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockConesTest, RefusedConesHaveTheirTexts) {
  auto const vars = Vector({x_.get(), y_.get(), z_.get()});
  double_.FailNext("VORQ_AddCones", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddCone(vars.get(), 1))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add a cone");
  double_.FailNext("VORQ_AddExpCones", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddExpCone(vars.get(), 3))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add an exponential cone");
}

TEST_F(BlockConesTest, ExponentialConeNeedsAVectorOfThree) {
  EXPECT_EQ(Own(model_->AddExpCone(Vector({x_.get(), y_.get()}).get(), 3))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid dimension of variable array for exponential cone");
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockConesTest, EachRowOfAMatrixIsACone) {
  auto const matrix = Matrix(2, 3, {x_.get(), y_.get(), z_.get(), z_.get(), y_.get(), x_.get()});
  auto const cones = Own(model_->AddCones(matrix.get(), 2));
  auto const expCones = Own(model_->AddExpCones(matrix.get(), 3));
  EXPECT_SUCCESS(model_);
  ASSERT_EQ(cones->Size(), 2);
  EXPECT_EQ(Own(cones->Get(1))->GetIdx(), 1);
  ASSERT_EQ(expCones->Size(), 2);
  EXPECT_EQ(Own(expCones->Get(1))->GetIdx(), 1);
  EXPECT_CALLS(double_,
               {"VORQ_AddCones(prob#1, 1, [2], [0], [3], [0,1,2])", "VORQ_AddCones(prob#1, 1, [2], [0], [3], [2,1,0])",
                "VORQ_AddExpCones(prob#1, 1, [3], [0,1,2])", "VORQ_AddExpCones(prob#1, 1, [3], [2,1,0])"});
}

TEST_F(BlockConesTest, ColumnsBecomeRowsOfTheTranspose) {
  auto const matrix = Matrix(2, 2, {x_.get(), y_.get(), z_.get(), x_.get()});
  Own(model_->AddCones(Own(matrix->Transpose()).get(), 1));
  EXPECT_CALLS(double_,
               {"VORQ_AddCones(prob#1, 1, [1], [0], [2], [0,2])", "VORQ_AddCones(prob#1, 1, [1], [0], [2], [1,0])"});
}

TEST_F(BlockConesTest, AMatrixWithoutRowsAddsNothing) {
  auto const empty = Matrix(0, 3, {});
  EXPECT_EQ(Own(model_->AddCones(empty.get(), 1))->Size(), 0);
  EXPECT_EQ(Own(model_->AddExpCones(empty.get(), 3))->Size(), 0);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockConesTest, RowsOfAnotherLengthFailAtTheFirst) {
  auto const wide = Matrix(2, 4, {x_.get(), y_.get(), z_.get(), x_.get(), x_.get(), y_.get(), z_.get(), x_.get()});
  auto const cones = Own(model_->AddExpCones(wide.get(), 3));
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid dimension of variable array for exponential cone");
  ASSERT_EQ(cones->Size(), 1);
  EXPECT_EQ(Own(cones->Get(0))->GetIdx(), -2);
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockConesTest, AFailedRowEndsTheWalkAndLeavesThoseBeforeIt) {
  auto const matrix = Matrix(3, 1, {x_.get(), y_.get(), z_.get()});
  double_.FailNth("VORQ_AddCones", 2, VORQ_INTERNAL);
  auto const cones = Own(model_->AddCones(matrix.get(), 1));
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to add a cone");
  ASSERT_EQ(cones->Size(), 2);
  EXPECT_EQ(Own(cones->Get(0))->GetIdx(), 0);
  EXPECT_EQ(Own(cones->Get(1))->GetIdx(), -2);
  EXPECT_CALLS(double_,
               {"VORQ_AddCones(prob#1, 1, [1], [0], [1], [0])", "VORQ_AddCones(prob#1, 1, [1], [0], [1], [1])"});
  EXPECT_EQ(model_->GetIntAttr("Cones"), 1);
}

TEST_F(BlockConesTest, AnEarlierFailureStopsTheWalkBeforeItBegins) {
  auto const matrix = Matrix(1, 3, {x_.get(), y_.get(), z_.get()});
  Fail();
  EXPECT_EQ(Own(model_->AddCones(matrix.get(), 1))->Size(), 0);
  EXPECT_EQ(Own(model_->AddExpCones(matrix.get(), 3))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockConesTest, NullBlocksAreRefused) {
  Vorq::IMVar<1>* const vector = nullptr;
  Vorq::IMVar<2>* const matrix = nullptr;
  EXPECT_EQ(Own(model_->AddCone(vector, 1))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'vars' of AddCone is null");
  EXPECT_EQ(Own(model_->AddExpCone(vector, 3))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'vars' of AddExpCone is null");
  EXPECT_EQ(Own(model_->AddCones(matrix, 1))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'vars' of AddCones is null");
  EXPECT_EQ(Own(model_->AddExpCones(matrix, 3))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'vars' of AddExpCones is null");
  EXPECT_CALLS(double_, {});
}

// ---- Removal

TEST_F(BlockRemovalTest, MarksEachVariableOfAMatrix) {
  model_->Remove(Matrix(1, 2, {z_.get(), x_.get()}).get());
  EXPECT_EQ(z_->GetIdx(), -5);
  EXPECT_EQ(x_->GetIdx(), -3);
  EXPECT_EQ(y_->GetIdx(), 1);
  EXPECT_CALLS(double_, {});
  EXPECT_EQ(model_->GetIntAttr("Cols"), 1);
  EXPECT_EQ(double_.Calls()[0], "VORQ_DelCols(prob#1, 2, [0,2])");
  EXPECT_EQ(y_->GetIdx(), 0);
}

TEST_F(BlockRemovalTest, AVariableThatIsRepeatedIsMarkedOnce) {
  auto const repeated = Own(Vector({y_.get()})->Repeat(3, 0));
  model_->Remove(repeated.get());
  EXPECT_EQ(y_->GetIdx(), -4);
  model_->Remove(repeated.get());
  EXPECT_EQ(y_->GetIdx(), -4);
}

TEST_F(BlockRemovalTest, AViewMarksWhatItShows) {
  auto const view = Own(factory_->CreateView());
  Own(view->Slice(1, 3, 1, 0));
  model_->Remove(Own(Vector({x_.get(), y_.get(), z_.get()})->View(view.get())).get());
  EXPECT_EQ(x_->GetIdx(), 0);
  EXPECT_EQ(y_->GetIdx(), -4);
  EXPECT_EQ(z_->GetIdx(), -5);
}

TEST_F(BlockRemovalTest, AnEmptyBlockMarksNothing) {
  model_->Remove(Matrix(0, 3, {}).get());
  EXPECT_EQ(model_->GetIntAttr("Cols"), 3);
  EXPECT_EQ(double_.CountCalls("VORQ_DelCols"), 0u);
}

TEST_F(BlockRemovalTest, BlocksOfAllKindsAndRanks) {
  auto const mat = AddMatrix(2);
  auto const psdVar = AddPsdVar(2);
  auto const quad = Own(CreateQuadExpr1(0.0));
  quad->AddTerm(x_.get(), x_.get(), 1.0);
  auto const psd = Own(CreatePsdExpr4(psdVar.get(), mat.get()));

  auto const check = [&](auto addItem, auto createBlock, char const* deleter, char const* calls) {
    double_.ClearLog();
    auto const ranks = [&](auto* shape) {
      std::unique_ptr item = Own(addItem());
      std::unique_ptr const owned = Own(shape);
      model_->Remove(Own(createBlock(owned.get(), item.get())).get());
      EXPECT_LT(item->GetIdx(), -2);
    };
    ranks(factory_->CreateNDim());
    ranks(factory_->CreateNDim(1));
    ranks(factory_->CreateNDim(1, 2));
    ranks(factory_->CreateNDim(2, 1, 1));
    model_->GetIntAttr("Cols");
    EXPECT_EQ(vorqtest::JoinLines(double_.Calls(deleter)), calls);
  };
  check([&] { return model_->AddVar(0.0, 1.0, 0.0, 'C', "v"); },
        [&](auto* shape, Vorq::IVar* item) { return factory_->CreateMVar(shape, item); }, "VORQ_DelCols",
        "VORQ_DelCols(prob#1, 4, [3,4,5,6])\n");
  check([&] { return model_->AddConstr(Own(CreateExpr(0.0)).get(), 'L', 1.0, "c"); },
        [&](auto* shape, Vorq::IConstraint* item) { return factory_->CreateMConstr(shape, item); }, "VORQ_DelRows",
        "VORQ_DelRows(prob#1, 4, [0,1,2,3])\n");
  check([&] { return model_->AddQConstr(quad.get(), 'L', 1.0, "q"); },
        [&](auto* shape, Vorq::IQConstraint* item) { return factory_->CreateMQConstr(shape, item); },
        "VORQ_DelQConstrs", "VORQ_DelQConstrs(prob#1, 4, [0,1,2,3])\n");
  check([&] { return model_->AddPsdConstr(psd.get(), 'L', 1.0, "p"); },
        [&](auto* shape, Vorq::IPsdConstraint* item) { return factory_->CreateMPsdConstr(shape, item); },
        "VORQ_DelPSDConstrs", "VORQ_DelPSDConstrs(prob#1, 4, [0,1,2,3])\n");
}

TEST_F(BlockRemovalTest, NullBlocksAreRefused) {
  Vorq::IMVar<0>* const vars = nullptr;
  Vorq::IMPsdConstr<3>* const constrs = nullptr;
  model_->Remove(vars);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'vars' of Remove is null");
  model_->Remove(constrs);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'constrs' of Remove is null");
}

// ---- Relaxation with pointers

TEST_F(BlockRelaxationTest, PenaltiesStandAtTheIndices) {
  double const lows[] = {1.0, 2.0};
  double const upps[] = {3.0, 4.0};
  double const bnds[] = {5.0};
  double const rowUpps[] = {6.0};
  model_->FeasRelax(Vector({z_.get(), x_.get()}).get(), lows, upps, Vector({constrs_[1].get()}).get(), bnds, rowUpps);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {kReadInfinity, "VORQ_FeasRelax(prob#1, [2,1e+20,1], [4,1e+20,3], [1e+20,5], [1e+20,6])"});
}

TEST_F(BlockRelaxationTest, MissingPointersLeaveTheirArraysHard) {
  double const lows[] = {1.0};
  double const* const none = nullptr;
  model_->FeasRelax(Vector({y_.get()}).get(), lows, none, Vector(std::initializer_list<Vorq::IConstraint*>{}).get(),
                    none, none);
  EXPECT_CALLS(double_, {kReadInfinity,
                         "VORQ_FeasRelax(prob#1, [1e+20,1,1e+20], [1e+20,1e+20,1e+20], [1e+20,1e+20], "
                         "[1e+20,1e+20])"});
}

TEST_F(BlockRelaxationTest, RemovedItemsAreDroppedWithTheirPenalties) {
  double const lows[] = {1.0, 2.0};
  double const* const none = nullptr;
  x_->Remove();
  model_->FeasRelax(Vector({x_.get(), z_.get()}).get(), lows, none, Vector({constrs_[0].get()}).get(), none, none);
  EXPECT_CALLS(double_, {"VORQ_DelCols(prob#1, 1, [0])", kReadInfinity,
                         "VORQ_FeasRelax(prob#1, [1e+20,2], [1e+20,1e+20], [1e+20,1e+20], [1e+20,1e+20])"});
}

TEST_F(BlockRelaxationTest, TwoEmptyBlocksRelaxNothing) {
  auto const vars = Vector(Items{});
  auto const constrs = Vector(std::initializer_list<Vorq::IConstraint*>{});
  double const* const none = nullptr;
  model_->FeasRelax(vars.get(), none, none, constrs.get(), none, none);
  model_->FeasRelax(vars.get(), none_.get(), none_.get(), constrs.get(), none_.get(), none_.get());
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockRelaxationTest, ArraysAreGivenAlsoWithoutRows) {
  for (auto& constr : constrs_) constr->Remove();
  double const* const none = nullptr;
  model_->FeasRelax(Vector({x_.get()}).get(), none, none, Vector({constrs_[0].get()}).get(), none, none);
  EXPECT_CALLS_OF(double_, "VORQ_FeasRelax",
                  {"VORQ_FeasRelax(prob#1, [1e+20,1e+20,1e+20], [1e+20,1e+20,1e+20], [], [])"});
}

TEST_F(BlockRelaxationTest, FailuresOfTheSolverLibrary) {
  double const* const none = nullptr;
  auto const vars = Vector({x_.get()});
  auto const constrs = Vector({constrs_[0].get()});
  double_.FailNext("VORQ_FeasRelax", VORQ_MEMORY);
  model_->FeasRelax(vars.get(), none, none, constrs.get(), none, none);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to call FeasRelax");
  double_.FailNext("VORQ_FeasRelax", VORQ_INTERNAL);
  model_->FeasRelax(vars.get(), none_.get(), none_.get(), constrs.get(), none_.get(), none_.get());
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to call FeasRelax");
  double_.ClearLog();
  y_->Remove();
  double_.FailNext("VORQ_DelCols", VORQ_MEMORY);
  model_->FeasRelax(vars.get(), none, none, constrs.get(), none, none);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to del cols");
  EXPECT_CALLS(double_, {"VORQ_DelCols(prob#1, 1, [1])"});
}

TEST_F(BlockRelaxationTest, AnInfinityThatCannotBeReadIsZero) {
  double const* const none = nullptr;
  double_.FailNext("VORQ_GetDblParam", VORQ_INVALID);
  model_->FeasRelax(Vector({x_.get()}).get(), none, none, Vector({constrs_[0].get()}).get(), none, none);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS_OF(double_, "VORQ_FeasRelax", {"VORQ_FeasRelax(prob#1, [0,0,0], [0,0,0], [0,0], [0,0])"});
}

// ---- Relaxation with arrays of numbers

TEST_F(BlockRelaxationTest, OneNumberHoldsForAllItemsOfTheBlock) {
  z_->Remove();
  model_->FeasRelax(Vector({x_.get(), z_.get()}).get(), Numbers({2.5}).get(), none_.get(),
                    Vector({constrs_[0].get(), constrs_[1].get()}).get(), Numbers({1.0, 2.0}).get(),
                    Numbers({3.0}).get());
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_DelCols(prob#1, 1, [2])", kReadInfinity,
                         "VORQ_FeasRelax(prob#1, [2.5,1e+20], [1e+20,1e+20], [1,2], [3,3])"});
}

TEST_F(BlockRelaxationTest, NumbersAreReadThroughTheirShape) {
  auto const view = Own(factory_->CreateView());
  Own(view->Slice(0, 0, -1, 6));
  auto const reversed = Own(Numbers({1.0, 2.0, 3.0})->View(view.get()));
  model_->FeasRelax(Vector({x_.get(), y_.get(), z_.get()}).get(), none_.get(), reversed.get(),
                    Vector(std::initializer_list<Vorq::IConstraint*>{}).get(), none_.get(), none_.get());
  EXPECT_CALLS_OF(double_, "VORQ_FeasRelax",
                  {"VORQ_FeasRelax(prob#1, [1e+20,1e+20,1e+20], [3,2,1], [1e+20,1e+20], [1e+20,1e+20])"});
}

TEST_F(BlockRelaxationTest, OtherSizesAreRefusedInOrder) {
  auto const vars = Vector({x_.get(), y_.get(), z_.get()});
  auto const constrs = Vector({constrs_[0].get(), constrs_[1].get()});
  auto const bad = Numbers({1.0, 2.0, 3.0, 4.0});
  auto const two = Numbers({1.0, 2.0});
  auto const one = Numbers({1.0});
  model_->FeasRelax(vars.get(), two.get(), bad.get(), constrs.get(), bad.get(), bad.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) colLowPen has invalid size");
  model_->FeasRelax(vars.get(), one.get(), bad.get(), constrs.get(), bad.get(), bad.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) colUppPen has invalid size");
  model_->FeasRelax(vars.get(), one.get(), none_.get(), constrs.get(), bad.get(), bad.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) rowBndPen has invalid size");
  model_->FeasRelax(vars.get(), one.get(), none_.get(), constrs.get(), two.get(), bad.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) rowUppPen has invalid size");
  EXPECT_EQ(double_.CountCalls("VORQ_FeasRelax"), 0u);
}

TEST_F(BlockRelaxationTest, OneNumberForNoItemIsPassedOver) {
  auto const one = Numbers({1.0});
  model_->FeasRelax(Vector({x_.get()}).get(), one.get(), none_.get(),
                    Vector(std::initializer_list<Vorq::IConstraint*>{}).get(), one.get(), none_.get());
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS_OF(double_, "VORQ_FeasRelax",
                  {"VORQ_FeasRelax(prob#1, [1,1e+20,1e+20], [1e+20,1e+20,1e+20], [1e+20,1e+20], [1e+20,1e+20])"});
}

TEST_F(BlockRelaxationTest, NullObjectsAreRefused) {
  double const* const none = nullptr;
  Vorq::IMVar<1>* const noVars = nullptr;
  Vorq::INdArray<double, 1>* const noNumbers = nullptr;
  auto const vars = Vector({x_.get()});
  auto const constrs = Vector({constrs_[0].get()});
  model_->FeasRelax(noVars, none, none, constrs.get(), none, none);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'vars' of FeasRelax is null");
  EXPECT_SUCCESS(Own(model_->GetVar(0)));
  model_->FeasRelax(vars.get(), none_.get(), none_.get(), constrs.get(), none_.get(), noNumbers);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'rowUppPen' of FeasRelax is null");
  EXPECT_CALLS(double_, {});
}

}  // namespace
