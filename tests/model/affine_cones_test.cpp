// Affine cones: builders, adding from linear and PSD expressions, and reading them back.
#include "tests/model/matrix_forms_fixture.hpp"

namespace {

using vorqtest::Own;

class AffineConeTest : public vorqtest::MatrixFormsTest {
 protected:
  using PsdExpr = std::unique_ptr<Vorq::IPsdExpr>;

  AffineConeTest() : psdVar_(AddPsdVar(2)), mat_(AddMatrix(2)) {}

  // The rows 2 x + y + 1, 3 and -z.
  std::unique_ptr<Vorq::IMLinExpr<1>> LinearRows() {
    auto rows = Own(factory_->CreateMLinExpr(Own(factory_->CreateNDim(3)).get(), 0.0));
    Put(*rows, 0, Sum({{x_, 2.0}, {y_, 1.0}}, 1.0));
    Put(*rows, 1, Sum({}, 3.0));
    Put(*rows, 2, Sum({{z_, -1.0}}));
    return rows;
  }
  // The same rows as PSD expressions.
  std::unique_ptr<Vorq::IMPsdExpr<1>> PsdRows() {
    auto rows = Own(factory_->CreateMPsdExpr(Own(factory_->CreateNDim(3)).get(), 0.0));
    auto const linear = LinearRows();
    rows->AddMLinExpr(linear.get(), 1.0);
    return rows;
  }
  PsdExpr PsdTerm() { return Own(CreatePsdExpr4(psdVar_.get(), mat_.get())); }

  template <int N>
  void Put(Vorq::IMLinExpr<N>& block, std::uint64_t index, Expr const& expr) {
    block.Set(index, Own(factory_->CreateMExpression(expr.get())).get());
  }

  std::unique_ptr<Vorq::IPsdVar> psdVar_;
  std::unique_ptr<Vorq::ISymMatrix> mat_;
};

class AffineConeBuilderTest : public AffineConeTest {
 protected:
  std::unique_ptr<Vorq::IAffineConeBuilder> builder_{CreateAffineConeBuilder()};
};

// ---- Builders

TEST_F(AffineConeBuilderTest, ANewBuilderIsEmpty) {
  EXPECT_EQ(builder_->GetDim(), 0);
  EXPECT_EQ(builder_->GetType(), 0);
  EXPECT_FALSE(builder_->GetFlag());
  EXPECT_EQ(Own(builder_->GetMLinExpr())->GetSize(), 0u);
  EXPECT_EQ(Own(builder_->GetMPsdExpr())->GetSize(), 0u);
}

TEST_F(AffineConeBuilderTest, VariablesBecomeRows) {
  builder_->Set(std::vector<Vorq::IVar*>{z_.get(), x_.get(), y_.get()}, 2);
  EXPECT_EQ(builder_->GetDim(), 3);
  EXPECT_EQ(builder_->GetType(), 2);
  Expr const row = Own(builder_->GetExpr(1));
  ASSERT_EQ(row->GetSize(), 1u);
  EXPECT_EQ(row->GetCoeff(0), 1.0);
  EXPECT_EQ(row->GetConstant(), 0.0);
  EXPECT_EQ(Own(row->GetVar(0))->GetIdx(), 0);
}

TEST_F(AffineConeBuilderTest, ListOfAnArrayOfVariables) {
  std::vector<Vorq::IVar*> const vars = ArrayOf({x_.get(), y_.get()})->ToVector();
  builder_->Set(vars, 1);
  for (Vorq::IVar* var : vars) delete var;
  EXPECT_EQ(Own(Own(builder_->GetExpr(1))->GetVar(0))->GetIdx(), 1);
}

TEST_F(AffineConeBuilderTest, LinearRowsAreCopied) {
  auto const rows = LinearRows();
  builder_->Set(rows.get(), 1);
  rows->Multiply(10.0);
  EXPECT_EQ(builder_->GetDim(), 3);
  Expr const row = Own(builder_->GetExpr(0));
  EXPECT_EQ(row->GetCoeff(0), 2.0);
  EXPECT_EQ(row->GetConstant(), 1.0);
  EXPECT_EQ(Own(builder_->GetPsdExpr(0))->GetSize(), 0u);
}

TEST_F(AffineConeBuilderTest, LazyTermsBecomeExplicit) {
  auto const helper = Own(CreateBroadCastHelper());
  auto const product = Own(helper->Mul(Own(factory_->CreateNdArray(Own(factory_->CreateNDim(2)).get(), 4.0)).get(),
                                       Vector({x_.get(), y_.get()}).get()));
  builder_->Set(product.get(), 1);
  EXPECT_EQ(builder_->GetDim(), 2);
  EXPECT_EQ(Own(builder_->GetExpr(1))->GetCoeff(0), 4.0);
}

TEST_F(AffineConeBuilderTest, PsdRowsAreCopied) {
  PsdExpr const expr = PsdTerm();
  expr->AddTerm(x_.get(), 2.0);
  auto const rows = Own(factory_->CreateMPsdExpr(Own(factory_->CreateNDim(2)).get(), expr.get()));
  builder_->Set(rows.get(), 1);
  rows->Clear();
  EXPECT_EQ(builder_->GetDim(), 2);
  EXPECT_EQ(Own(builder_->GetPsdExpr(1))->GetSize(), 1u);
  EXPECT_EQ(Own(builder_->GetExpr(1))->GetSize(), 1u);
  auto const linear = Own(builder_->GetMLinExpr());
  EXPECT_EQ(linear->GetSize(), 2u);
  EXPECT_EQ(linear->ToString(100), "[2 * x_0, 2 * x_0]\n");
}

TEST_F(AffineConeBuilderTest, ListsOfExpressionsAreCopied) {
  PsdExpr const first = PsdTerm();
  PsdExpr const second = Own(CreatePsdExpr1(2.5));
  builder_->Set(std::vector<Vorq::IPsdExpr*>{first.get(), second.get()}, 3);
  second->SetConstant(7.0);
  EXPECT_EQ(builder_->GetDim(), 2);
  EXPECT_EQ(builder_->GetType(), 3);
  EXPECT_EQ(Own(builder_->GetPsdExpr(0))->GetSize(), 1u);
  EXPECT_EQ(Own(builder_->GetPsdExpr(1))->GetConstant(), 2.5);
}

TEST_F(AffineConeBuilderTest, ASecondSetReplacesTheRows) {
  builder_->Set(LinearRows().get(), 1);
  builder_->Set(std::vector<Vorq::IVar*>{y_.get()}, 2);
  EXPECT_EQ(builder_->GetDim(), 1);
  EXPECT_EQ(builder_->GetType(), 2);
  EXPECT_EQ(Own(builder_->GetMPsdExpr())->GetSize(), 1u);
  builder_->Set(std::vector<Vorq::IVar*>{}, 4);
  EXPECT_EQ(builder_->GetDim(), 0);
}

TEST_F(AffineConeBuilderTest, PsdRowsAreSeenThroughAView) {
  builder_->Set(LinearRows().get(), 1);
  Own(builder_->GetMPsdExpr())->AddConstant(10.0);
  EXPECT_EQ(Own(builder_->GetPsdExpr(0))->GetConstant(), 11.0);
  Own(builder_->GetMLinExpr())->AddConstant(10.0);
  Own(builder_->GetExpr(0))->AddConstant(10.0);
  EXPECT_EQ(Own(builder_->GetPsdExpr(0))->GetConstant(), 11.0);
}

TEST_F(AffineConeBuilderTest, ItsOwnRowsCanBeSetAgain) {
  builder_->Set(LinearRows().get(), 1);
  builder_->Set(Own(builder_->GetMPsdExpr()).get(), 2);
  EXPECT_EQ(builder_->GetDim(), 3);
  EXPECT_EQ(Own(builder_->GetExpr(2))->GetCoeff(0), -1.0);
}

TEST_F(AffineConeBuilderTest, NullArgumentsLeaveItAsItIs) {
  builder_->Set(LinearRows().get(), 1);
  builder_->Set(static_cast<Vorq::IMLinExpr<1>*>(nullptr), 2);
  builder_->Set(static_cast<Vorq::IMPsdExpr<1>*>(nullptr), 2);
  builder_->Set(std::vector<Vorq::IVar*>{x_.get(), nullptr}, 2);
  builder_->Set(std::vector<Vorq::IPsdExpr*>{nullptr}, 2);
  EXPECT_EQ(builder_->GetDim(), 3);
  EXPECT_EQ(builder_->GetType(), 1);
}

TEST_F(AffineConeBuilderTest, RowsThatThereAreNotAreEmpty) {
  builder_->Set(LinearRows().get(), 1);
  EXPECT_EQ(Own(builder_->GetExpr(3))->GetSize(), 0u);
  EXPECT_EQ(Own(builder_->GetPsdExpr(-1))->GetConstant(), 0.0);
}

TEST_F(AffineConeBuilderTest, ArraysTakeCopies) {
  builder_->Set(LinearRows().get(), 1);
  auto const builders = Own(CreateAffineConeBuilderArray());
  builders->PushBack(*builder_);
  Own(builder_->GetMPsdExpr())->AddConstant(10.0);
  ASSERT_EQ(builders->Size(), 1);
  auto const copy = Own(builders->Get(0));
  EXPECT_EQ(copy->GetDim(), 3);
  EXPECT_EQ(copy->GetType(), 1);
  EXPECT_FALSE(copy->GetFlag());
  EXPECT_EQ(Own(copy->GetExpr(0))->GetConstant(), 1.0);
}

// ---- Linear cones

constexpr char kLinearCall[] =
    "VORQ_AddAffineCone(prob#1, 1, 3, 0, 0, null, null, null, null, [0,2,2], [2,0,1], [0,1,2], [2,1,-1], [1,3,0], "
    R"("a_b"))";

TEST_F(AffineConeTest, LinearRowsAreOneCall) {
  auto const cone = Own(model_->AddAffineCone(LinearRows().get(), 1, " a b "));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(cone->GetIdx(), 0);
  EXPECT_STREQ(cone->GetName(), "a_b");
  EXPECT_CALLS(double_, {kLinearCall});
}

TEST_F(AffineConeTest, ListsOfLinearExpressionsMakeTheSameCall) {
  Expr const first = Sum({{x_, 2.0}, {y_, 1.0}}, 1.0);
  Expr const second = Sum({}, 3.0);
  Expr const third = Sum({{z_, -1.0}});
  Own(model_->AddAffineCone(std::vector<Vorq::IExpr*>{first.get(), second.get(), third.get()}, 1, "a b"));
  EXPECT_CALLS(double_, {kLinearCall});
}

TEST_F(AffineConeTest, PsdRowsWithoutPsdTermsMakeTheSameCall) {
  Own(model_->AddAffineCone(PsdRows().get(), 1, "a b"));
  auto const builder = Own(CreateAffineConeBuilder());
  builder->Set(LinearRows().get(), 1);
  Own(model_->AddAffineCone(builder.get(), "a b"));
  EXPECT_CALLS(double_, {kLinearCall, kLinearCall});
}

TEST_F(AffineConeTest, LinearTermsAreMergedAndTheBlockStays) {
  auto const rows = Own(factory_->CreateMLinExpr(Own(factory_->CreateNDim(2)).get(), 0.0));
  Put(*rows, 0, Sum({{z_, 1.0}, {x_, 2.0}, {z_, 3.0}}));
  Put(*rows, 1, Sum({{x_, 1.0}, {y_, 0.0}, {x_, -1.0}}));
  Own(model_->AddAffineCone(rows.get(), 1, nullptr));
  EXPECT_CALLS(double_, {"VORQ_AddAffineCone(prob#1, 1, 2, 0, 0, null, null, null, null, [0,2], [2,1], [2,0,0], "
                         R"([4,2,0], [0,0], ""))"});
  EXPECT_EQ(Own(rows->Get(0))->ToString(100), "x_2 + 2 * x_0 + 3 * x_2");
}

TEST_F(AffineConeTest, LazyTermsAreReadAsTheyStand) {
  auto const helper = Own(CreateBroadCastHelper());
  auto const coeffs = Own(factory_->CreateNdArray(Own(factory_->CreateNDim(2)).get(), 4.0));
  auto const product = Own(helper->Mul(coeffs.get(), Vector({z_.get(), x_.get()}).get()));
  Own(model_->AddAffineCone(product.get(), 7, "c"));
  EXPECT_CALLS(double_, {"VORQ_AddAffineCone(prob#1, 7, 2, 0, 0, null, null, null, null, [0,1], [1,1], [2,0], [4,4], "
                         R"([0,0], "c"))"});
}

TEST_F(AffineConeTest, TermsOfRemovedVariablesAreDropped) {
  auto const linear = LinearRows();
  auto const psd = PsdRows();
  y_->Remove();
  Own(model_->AddAffineCone(linear.get(), 1, "c"));
  Own(model_->AddAffineCone(psd.get(), 1, "c"));
  std::string const call =
      "VORQ_AddAffineCone(prob#1, 1, 3, 0, 0, null, null, null, null, [0,1,1], [1,0,1], [0,2], [2,-1], [1,3,0], "
      R"("c"))";
  EXPECT_CALLS(double_, {call, call});
}

TEST_F(AffineConeTest, AnEarlierFailureDoesNotStopLinearRows) {
  Fail();
  EXPECT_EQ(Own(model_->AddAffineCone(LinearRows().get(), 1, "a b"))->GetIdx(), 0);
  EXPECT_SUCCESS(model_);
}

TEST_F(AffineConeTest, RefusedConesAreInvalidAndTakeNoIndex) {
  double_.FailNext("VORQ_AddAffineCone", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddAffineCone(LinearRows().get(), 1, "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add an affine cone");
  EXPECT_EQ(Own(model_->AddAffineCone(LinearRows().get(), 1, "c"))->GetIdx(), 0);
  double_.FailNext("VORQ_AddAffineCone", VORQ_INTERNAL);
  EXPECT_EQ(Own(model_->AddAffineCone(PsdRows().get(), 1, "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to add an affine cone");
}

TEST_F(AffineConeTest, AnEmptyBlockIsLeftToTheSolverLibrary) {
  auto const shape = Own(factory_->CreateNDim(0));
  Own(model_->AddAffineCone(Own(factory_->CreateMPsdExpr(shape.get(), 0.0)).get(), 1, "c"));
  Own(model_->AddAffineCone(std::vector<Vorq::IPsdExpr*>{}, 1, "c"));
  std::string const call =
      R"(VORQ_AddAffineCone(prob#1, 1, 0, 0, 0, null, null, null, null, null, null, null, null, null, "c"))";
  EXPECT_CALLS(double_, {call, call});
}

TEST_F(AffineConeTest, NullObjectsAreRefused) {
  Expr const expr = Sum({{x_, 1.0}});
  EXPECT_EQ(Own(model_->AddAffineCone(static_cast<Vorq::IAffineConeBuilder*>(nullptr), "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'builder' of AddAffineCone is null");
  EXPECT_EQ(Own(model_->AddAffineCone(static_cast<Vorq::IMLinExpr<1>*>(nullptr), 1, "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'exprs' of AddAffineCone is null");
  EXPECT_EQ(Own(model_->AddAffineCone(static_cast<Vorq::IMPsdExpr<1>*>(nullptr), 1, "c"))->GetIdx(), -2);
  EXPECT_EQ(Own(model_->AddAffineCone(std::vector<Vorq::IExpr*>{expr.get(), nullptr}, 1, "c"))->GetIdx(), -2);
  EXPECT_EQ(Own(model_->AddAffineCone(std::vector<Vorq::IPsdExpr*>{nullptr}, 1, "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'exprs' of AddAffineCone holds a null");
  EXPECT_EQ(Own(model_->AddAffineCones(static_cast<Vorq::IMLinExpr<2>*>(nullptr), 1, "c"))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'exprs' of AddAffineCones is null");
  EXPECT_EQ(Own(model_->AddAffineCones(static_cast<Vorq::IMPsdExpr<2>*>(nullptr), 1, "c", 2))->Size(), 0);
  EXPECT_CALLS(double_, {});
}

// ---- Cones with PSD terms

TEST_F(AffineConeTest, PsdTermsMakeTheirMatrices) {
  auto const rows = PsdRows();
  rows->Set(1, PsdTerm().get());
  auto const other = AddPsdVar(2);
  double_.ClearLog();
  PsdExpr const last = PsdTerm();
  last->AddTerm(other.get(), mat_.get());
  last->AddTerm(psdVar_.get(), mat_.get());
  last->AddTerm(z_.get(), 5.0);
  last->AddConstant(6.0);
  rows->Set(2, last.get());
  auto const cone = Own(model_->AddAffineCone(rows.get(), 2, "c"));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(cone->GetIdx(), 0);
  EXPECT_EQ(double_.CountCalls("VORQ_AddSymMat"), 3u);
  EXPECT_CALLS_OF(double_, "VORQ_AddAffineCone",
                  {"VORQ_AddAffineCone(prob#1, 2, 3, 0, 0, [0,0,1], [0,1,2], [0,0,1], [1,2,3], [0,2,2], [2,0,1], "
                   R"([0,1,2], [2,1,5], [1,0,6], "c"))"});
  // The terms of the caller's rows have been merged.
  EXPECT_EQ(Own(rows->Get(2))->GetSize(), 2u);
}

TEST_F(AffineConeTest, LinearPartsOfPsdRowsAreMergedInPlace) {
  PsdExpr const expr = Own(CreatePsdExpr2(x_.get(), 1.0));
  expr->AddTerm(x_.get(), 2.0);
  auto const rows = Own(factory_->CreateMPsdExpr(Own(factory_->CreateNDim(1)).get(), expr.get()));
  Own(model_->AddAffineCone(rows.get(), 1, "c"));
  EXPECT_EQ(Own(Own(rows->Get(0))->GetLinExpr())->GetSize(), 1u);
  // The expressions of a list are copied.
  Own(model_->AddAffineCone(std::vector<Vorq::IPsdExpr*>{expr.get()}, 1, "c"));
  EXPECT_EQ(Own(expr->GetLinExpr())->GetSize(), 2u);
}

TEST_F(AffineConeTest, LinearArraysAreLeftOutWithoutLinearTerms) {
  PsdExpr const expr = PsdTerm();
  expr->AddConstant(2.0);
  Own(model_->AddAffineCone(std::vector<Vorq::IPsdExpr*>{expr.get(), expr.get()}, 1, "c"));
  EXPECT_CALLS_OF(double_, "VORQ_AddAffineCone",
                  {"VORQ_AddAffineCone(prob#1, 1, 2, 0, 0, [0,1], [1,1], [0,0], [1,2], null, null, null, null, [2,2], "
                   R"("c"))"});
}

TEST_F(AffineConeTest, TermsOfARemovedPsdVariableAreDropped) {
  PsdExpr const expr = PsdTerm();
  psdVar_->Remove();
  Own(model_->AddAffineCone(std::vector<Vorq::IPsdExpr*>{expr.get()}, 1, "c"));
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_,
               {R"(VORQ_AddAffineCone(prob#1, 1, 1, 0, 0, [0], [0], [], [], null, null, null, null, [0], "c"))"});
}

TEST_F(AffineConeTest, AMatrixThatFailsLeavesThoseBeforeIt) {
  PsdExpr const good = PsdTerm();
  PsdExpr const bad = Own(CreatePsdExpr5(psdVar_.get(), Own(CreateSymMatExpr1()).get()));
  EXPECT_EQ(
      Own(model_->AddAffineCone(std::vector<Vorq::IPsdExpr*>{good.get(), bad.get(), good.get()}, 1, "c"))->GetIdx(),
      -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Empty symmetric matrix expression object");
  EXPECT_EQ(double_.CountCalls("VORQ_AddAffineCone"), 0u);
  EXPECT_EQ(double_.CountCalls("VORQ_AddSymMat"), 1u);
  EXPECT_EQ(Own(model_->GetSymMat(1))->GetIdx(), 1);
}

TEST_F(AffineConeTest, AnEarlierFailureStopsPsdRows) {
  Fail();
  EXPECT_EQ(Own(model_->AddAffineCone(PsdRows().get(), 1, "c"))->GetIdx(), -2);
  PsdExpr const expr = PsdTerm();
  EXPECT_EQ(Own(model_->AddAffineCone(std::vector<Vorq::IPsdExpr*>{expr.get()}, 1, "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(AffineConeTest, ItemsOfAnotherModelAreJudgedByTheSolverLibrary) {
  auto const other = Own(envr_->CreateModel("other"));
  auto const vars = Own(other->AddVars(9, 'C', "o"));
  double_.ClearLog();
  auto const rows = Own(factory_->CreateMPsdExpr(Own(factory_->CreateNDim(1)).get(), 0.0));
  rows->AddTerm(Own(vars->Get(8)).get(), 1.5);
  Own(model_->AddAffineCone(rows.get(), 1, "c"));
  EXPECT_CALLS(double_, {"VORQ_AddAffineCone(prob#1, 1, 1, 0, 0, null, null, null, null, [0], [1], [8], [1.5], [0], "
                         R"("c"))"});
}

// ---- Many cones

// Two rows of two linear expressions: x and 1, z and 1.
class AffineConesTest : public AffineConeTest {
 protected:
  AffineConesTest() {
    Put(*linear_, 0, Sum({{x_, 1.0}}));
    Put(*linear_, 2, Sum({{z_, 1.0}}));
    psd_->AddMLinExpr(linear_.get(), 1.0);
  }

  static std::string Call(int col, char const* name) {
    return "VORQ_AddAffineCone(prob#1, 1, 2, 0, 0, null, null, null, null, [0,1], [1,0], [" + std::to_string(col) +
           "], [1], [0,1], \"" + name + "\")";
  }

  std::unique_ptr<Vorq::INDim<2>> shape_{factory_->CreateNDim(2, 2)};
  std::unique_ptr<Vorq::IMLinExpr<2>> linear_{MakeLinear()};
  std::unique_ptr<Vorq::IMPsdExpr<2>> psd_{factory_->CreateMPsdExpr(shape_.get(), 0.0)};

 private:
  Vorq::IMLinExpr<2>* MakeLinear() {
    auto block = Own(factory_->CreateMLinExpr(shape_.get(), 0.0));
    for (std::uint64_t i : {1, 3}) Put(*block, i, Sum({}, 1.0));
    return block.release();
  }
};

TEST_F(AffineConesTest, NamesOfAPrefixCountTheRows) {
  auto const cones = Own(model_->AddAffineCones(linear_.get(), 1, " a b"));
  EXPECT_SUCCESS(model_);
  ASSERT_EQ(cones->Size(), 2);
  EXPECT_EQ(Own(cones->Get(1))->GetIdx(), 1);
  EXPECT_STREQ(Own(cones->Get(1))->GetName(), "a_b(1)");
  Own(model_->AddAffineCones(psd_.get(), 1, "a"));
  Own(model_->AddAffineCones(linear_.get(), 1, static_cast<char const*>(nullptr)));
  EXPECT_CALLS(double_, {Call(0, "a_b(0)"), Call(2, "a_b(1)"), Call(0, "a(0)"), Call(2, "a(1)"), Call(0, "(0)"),
                         Call(2, "(1)")});
}

TEST_F(AffineConesTest, NamesOfABuffer) {
  Own(model_->AddAffineCones(linear_.get(), 1, "one\0two", 8));
  Own(model_->AddAffineCones(psd_.get(), 1, "one\0two\0three", 14));
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {Call(0, "one"), Call(2, "two"), Call(0, "one"), Call(2, "two")});
}

TEST_F(AffineConesTest, BuffersThatAreTooShortAddNothing) {
  char const* const noNames = nullptr;
  EXPECT_EQ(Own(model_->AddAffineCones(linear_.get(), 1, "one\0two", 7))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of affine cone names");
  EXPECT_EQ(Own(model_->AddAffineCones(psd_.get(), 1, "one", 4))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of affine cone names");
  EXPECT_EQ(Own(model_->AddAffineCones(linear_.get(), 1, noNames, 0))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of affine cone names");
  EXPECT_CALLS(double_, {});
  EXPECT_EQ(Own(model_->AddAffineCones(linear_.get(), 1, "a"))->Size(), 2);
  EXPECT_SUCCESS(model_);
}

TEST_F(AffineConesTest, ABlockWithoutRowsAddsNothing) {
  auto const shape = Own(factory_->CreateNDim(0, 3));
  auto const empty = Own(factory_->CreateMLinExpr(shape.get(), 0.0));
  EXPECT_EQ(Own(model_->AddAffineCones(empty.get(), 1, "a"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddAffineCones(empty.get(), 1, nullptr, 0))->Size(), 0);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {});
}

TEST_F(AffineConesTest, AFailedRowEndsTheWalkAndLeavesThoseBeforeIt) {
  double_.FailNth("VORQ_AddAffineCone", 2, VORQ_MEMORY);
  auto const tall = Own(Own(linear_->Transpose())->Repeat(2, 0));
  auto const cones = Own(model_->AddAffineCones(tall.get(), 1, "a"));
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add an affine cone");
  ASSERT_EQ(cones->Size(), 2);
  EXPECT_EQ(Own(cones->Get(0))->GetIdx(), 0);
  EXPECT_EQ(Own(cones->Get(1))->GetIdx(), -2);
  EXPECT_EQ(double_.CountCalls("VORQ_AddAffineCone"), 2u);
  EXPECT_EQ(model_->GetIntAttr("AffineCones"), 1);
}

TEST_F(AffineConesTest, RowsOfAPsdBlockChangeInPlace) {
  psd_->AddTerm(y_.get(), 1.0);
  psd_->AddTerm(y_.get(), 1.0);
  EXPECT_EQ(Own(Own(psd_->Get(3))->GetLinExpr())->GetSize(), 2u);
  Own(model_->AddAffineCones(psd_.get(), 1, "a"));
  EXPECT_EQ(Own(Own(psd_->Get(3))->GetLinExpr())->GetSize(), 1u);
}

// ---- Reading back

// Two cones of which the model knows, and what the solver library says of both.
class AffineConeReadingTest : public AffineConeTest {
 protected:
  AffineConeReadingTest() {
    for (auto& cone : cones_) cone = Own(model_->AddAffineCone(LinearRows().get(), 1, "c"));
    double_.Answer("VORQ_GetAffineCone")
        .Set("type", 2)
        .Set("psdBeg", {0, 1})
        .Set("psdCnt", {1, 0})
        .Set("psdCols", {0})
        .Set("psdMats", {0})
        .Set("rowBeg", {0, 1})
        .Set("rowCnt", {1, 2})
        .Set("cols", {2, 0, 1})
        .Set("coefs", {1.5, 2.5, 3.5})
        .Set("constants", {4.5, 5.5});
    double_.ClearLog();
  }

  std::unique_ptr<Vorq::IAffineCone> cones_[2];
};

constexpr char kReadSizes[] =
    "VORQ_GetAffineCone(prob#1, 0, out, out, 0, 0, null, null, null, null, 0, out, null, null, null, null, null, 0, "
    "out)";
constexpr char kReadData[] =
    "VORQ_GetAffineCone(prob#1, 0, out, out, 0, 0, out, out, out, out, 1, null, out, out, out, out, out, 3, null)";

TEST_F(AffineConeReadingTest, ABuilderHasAllRows) {
  auto const builder = Own(model_->GetAffineConeBuilder(cones_[0].get()));
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {kReadSizes, kReadData});
  EXPECT_EQ(builder->GetType(), 2);
  ASSERT_EQ(builder->GetDim(), 2);
  EXPECT_FALSE(builder->GetFlag());
  PsdExpr const first = Own(builder->GetPsdExpr(0));
  ASSERT_EQ(first->GetSize(), 1u);
  EXPECT_EQ(Own(first->GetPsdVar(0))->GetIdx(), 0);
  EXPECT_EQ(Own(Own(first->GetCoeff(0))->GetSymMat(0))->GetIdx(), 0);
  EXPECT_EQ(first->GetConstant(), 4.5);
  EXPECT_EQ(Own(builder->GetPsdExpr(1))->GetSize(), 0u);
  Expr const second = Own(builder->GetExpr(1));
  ASSERT_EQ(second->GetSize(), 2u);
  EXPECT_EQ(second->GetCoeff(1), 3.5);
  EXPECT_EQ(Own(second->GetVar(1))->GetIdx(), 1);
  EXPECT_EQ(second->GetConstant(), 5.5);
}

TEST_F(AffineConeReadingTest, ARemovedConeHasAnEmptyBuilder) {
  cones_[0]->Remove();
  auto const invalid = Own(model_->GetAffineCone(-1));
  EXPECT_EQ(Own(model_->GetAffineConeBuilder(cones_[0].get()))->GetDim(), 0);
  EXPECT_EQ(Own(model_->GetAffineConeBuilder(invalid.get()))->GetType(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid affine cone index");  // as it stood
  EXPECT_CALLS(double_, {});
}

TEST_F(AffineConeReadingTest, AllBuildersPassOverMarkedCones) {
  cones_[1]->Remove();
  EXPECT_EQ(Own(model_->GetAffineConeBuilders())->Size(), 1);
  EXPECT_EQ(Own(model_->GetAffineConeBuilders(Own(CreateAffineConeArray()).get()))->Size(), 1);
  EXPECT_CALLS(double_, {kReadSizes, kReadData, kReadSizes, kReadData});
}

TEST_F(AffineConeReadingTest, AnArrayChooses) {
  auto const chosen = Own(CreateAffineConeArray());
  chosen->PushBack(*cones_[1]);
  chosen->PushBack(*cones_[0]);
  chosen->PushBack(*cones_[1]);
  cones_[0]->Remove();
  auto const builders = Own(model_->GetAffineConeBuilders(chosen.get()));
  EXPECT_SUCCESS(model_);
  ASSERT_EQ(builders->Size(), 3);
  EXPECT_EQ(Own(builders->Get(0))->GetDim(), 2);
  EXPECT_EQ(Own(builders->Get(1))->GetDim(), 0);
  EXPECT_EQ(Own(builders->Get(2))->GetDim(), 2);
  EXPECT_EQ(double_.CountCalls("VORQ_GetAffineCone"), 4u);
}

TEST_F(AffineConeReadingTest, FailuresTellWhichReadFailed) {
  double_.FailNth("VORQ_GetAffineCone", 1, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetAffineConeBuilder(cones_[0].get()))->GetDim(), 0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get required row buffer size of affine cone constraint");
  double_.FailNth("VORQ_GetAffineCone", 2, VORQ_INTERNAL);
  EXPECT_EQ(Own(model_->GetAffineConeBuilder(cones_[0].get()))->GetDim(), 0);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get row data of affine cone constraint");
}

TEST_F(AffineConeReadingTest, AFailedReadDoesNotEndTheArray) {
  double_.FailNth("VORQ_GetAffineCone", 1, VORQ_MEMORY);
  auto const all = Own(model_->GetAffineConeBuilders());
  EXPECT_SUCCESS(model_);  // as the last read ended
  ASSERT_EQ(all->Size(), 2);
  EXPECT_EQ(Own(all->Get(0))->GetDim(), 0);
  EXPECT_EQ(Own(all->Get(1))->GetDim(), 2);
  auto const chosen = Own(CreateAffineConeArray());
  for (auto const& cone : cones_) chosen->PushBack(*cone);
  double_.FailNth("VORQ_GetAffineCone", 4, VORQ_MEMORY);
  auto const builders = Own(model_->GetAffineConeBuilders(chosen.get()));
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get row data of affine cone constraint");
  ASSERT_EQ(builders->Size(), 2);
  EXPECT_EQ(Own(builders->Get(0))->GetDim(), 2);
  EXPECT_EQ(Own(builders->Get(1))->GetDim(), 0);
}

TEST_F(AffineConeReadingTest, UnknownItemsEmptyTheBuilder) {
  double_.AnswerNext("VORQ_GetAffineCone").Set("rowBeg", {0}).Set("cols", {9}).Set("coefs", {1});
  double_.AnswerNext("VORQ_GetAffineCone").Set("rowBeg", {0}).Set("rowCnt", {1}).Set("cols", {9}).Set("coefs", {1});
  EXPECT_EQ(Own(model_->GetAffineConeBuilder(cones_[0].get()))->GetDim(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  double_.AnswerNext("VORQ_GetAffineCone").Set("psdBeg", {0}).Set("psdCols", {0}).Set("psdMats", {9});
  double_.AnswerNext("VORQ_GetAffineCone").Set("psdCnt", {1}).Set("psdCols", {0}).Set("psdMats", {9});
  EXPECT_EQ(Own(model_->GetAffineConeBuilder(cones_[0].get()))->GetDim(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid index of symmetric matrix");
}

TEST_F(AffineConeReadingTest, NullObjectsAreRefused) {
  EXPECT_EQ(Own(model_->GetAffineConeBuilder(nullptr))->GetDim(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'cone' of GetAffineConeBuilder is null");
  EXPECT_EQ(Own(model_->GetAffineConeBuilders(nullptr))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Argument 'cones' of GetAffineConeBuilders is null");
}

TEST_F(AffineConeReadingTest, ABuilderAddsTheSameConeAgain) {
  auto const builder = Own(model_->GetAffineConeBuilder(cones_[0].get()));
  double_.ClearLog();
  Own(model_->AddAffineCone(builder.get(), "again"));
  EXPECT_CALLS_OF(double_, "VORQ_AddAffineCone",
                  {"VORQ_AddAffineCone(prob#1, 2, 2, 0, 0, [0,1], [1,0], [0], [1], [0,1], [1,2], [2,0,1], "
                   R"([1.5,2.5,3.5], [4.5,5.5], "again"))"});
}

}  // namespace
