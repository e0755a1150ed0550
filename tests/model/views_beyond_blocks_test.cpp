// Views whose indices lead beyond their block: no operation reads or writes outside of a store, and default cells stand
// where there are none.
#include "tests/model/matrix_forms_fixture.hpp"

namespace {

using vorqtest::Own;

class ViewsBeyondBlocksTest : public vorqtest::MatrixFormsTest {
 protected:
  ViewsBeyondBlocksTest() {
    Own(partly_->Slice(-10, 2, 1, 1));
    Own(outside_->Scalar(6));
    viewed_ = Own(vars_->View(partly_.get()));
  }

  std::unique_ptr<Vorq::INdArray<double, 1>> Ones(std::uint64_t count) {
    return Own(factory_->CreateNdArray(Own(factory_->CreateNDim(count)).get(), 1.0));
  }

  std::unique_ptr<Vorq::IView> partly_ = Own(factory_->CreateView());
  std::unique_ptr<Vorq::IView> outside_ = Own(factory_->CreateView());
  std::unique_ptr<Vorq::IBroadCastHelper> operators_{CreateBroadCastHelper()};
  std::unique_ptr<Vorq::IMVar<1>> vars_ = Vector({x_.get(), y_.get(), z_.get()});
  std::unique_ptr<Vorq::IMVar<1>> viewed_;
};

TEST_F(ViewsBeyondBlocksTest, HoldDefaultCellsAndThoseOfTheBlock) {
  EXPECT_EQ(Own(viewed_->Get(0))->GetIdx(), -2);
  EXPECT_EQ(Own(viewed_->Get(1))->GetIdx(), 0);
  EXPECT_EQ(Own(viewed_->Get(2))->GetIdx(), 1);
}

TEST_F(ViewsBeyondBlocksTest, AreOperandsLikeOthers) {
  auto const sum = Own(operators_->Add(Own(vars_->View(outside_.get())).get(), Ones(1).get()));
  EXPECT_EQ(sum->GetSize(), 1U);
  EXPECT_EQ(Own(sum->Get(0))->GetConstant(), 1.0);
}

TEST_F(ViewsBeyondBlocksTest, TakeConstantsWithoutTouchingTheBlock) {
  auto const exprs = Own(factory_->CreateMLinExpr(Own(factory_->CreateNDim(3)).get(), 1.5));
  auto const some = Own(exprs->View(partly_.get()));
  some->AddConstant(Ones(3).get());
  some->AddConstant(Ones(4).get());
  EXPECT_EQ(Own(some->Get(2))->GetConstant(), 3.5);
  for (std::uint64_t i = 0; i < 3; ++i) EXPECT_EQ(Own(exprs->Get(i))->GetConstant(), 1.5);
}

TEST_F(ViewsBeyondBlocksTest, MakeRowsOfDefaultCells) {
  auto const exprs = Own(factory_->CreateMLinExpr(Own(factory_->CreateNDim(3)).get(), 1.5));
  auto const rows = Own(model_->AddMConstr(Own(exprs->View(partly_.get())).get(), 'L', 0.0, "c"));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(rows->GetSize(), 3U);
}

TEST_F(ViewsBeyondBlocksTest, MakeQuadraticRowsAndAreRefusedAsPsdOnes) {
  auto const shape = Own(factory_->CreateNDim(3));
  auto const quads = Own(factory_->CreateMQuadExpr(shape.get(), 1.5));
  EXPECT_EQ(Own(model_->AddMQConstr(Own(quads->View(partly_.get())).get(), 'L', 0.0, "q"))->GetSize(), 3U);
  EXPECT_SUCCESS(model_);
  auto const psds = Own(factory_->CreateMPsdExpr(shape.get(), 1.5));
  Own(model_->AddMPsdConstr(Own(psds->View(partly_.get())).get(), 'L', 0.0, "p"));
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid PSD expression object");
}

TEST_F(ViewsBeyondBlocksTest, PickedAndRepeatedCellsCanBeUsedLikeOthers) {
  auto const reverse = Own(factory_->CreateView());
  Own(reverse->Slice(0, 0, -1, 6));
  auto const repeated = Own(Own(viewed_->View(reverse.get()))->Repeat(2, 0));
  auto const picked = Own(vars_->Pick(Own(factory_->CreateNdArray(Own(factory_->CreateNDim(1)).get(), 99)).get()));
  for (auto const& item : {Own(repeated->Get(5)), Own(picked->Get(0))}) {
    EXPECT_EQ(item->GetIdx(), -2);
    EXPECT_STREQ(item->GetName(), "");
    double value = 1.0;
    model_->SetMipStart(ArrayOf({item.get()}).get(), &value);
  }
}

TEST_F(ViewsBeyondBlocksTest, AttributesOfMissingVariablesAreNotSet) {
  Own(vars_->View(outside_.get()))->Set("LB", Ones(1).get());
  EXPECT_CALLS(double_, {});
}

TEST_F(ViewsBeyondBlocksTest, BlockThatWasRefusedForItsSizeHasNothingToRemove) {
  auto const refused = Own(model_->AddMVar(Own(factory_->CreateNDim(1ULL << 40)).get(), 'C', "v"));
  EXPECT_NE(model_->GetLastError(), 0);
  model_->Remove(refused.get());
  EXPECT_CALLS(double_, {});
}

}  // namespace
