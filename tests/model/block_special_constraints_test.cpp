// Blocks of quadratic, PSD and indicator constraints, and single cells as such constraints and as objectives: one call
// of the solver library a cell.
#include "matrix/rank_change.hpp"
#include "tests/model/blocks_fixture.hpp"

namespace {

using vorqtest::kNaN;
using vorqtest::Own;

class BlockSpecialConstraintsTest : public vorqtest::BlocksTest {
 protected:
  // 2 x y + 3 y x + z + z + 1
  Vorq::MQExpression QuadCell() const {
    Vorq::MQExpression cell(1.0);
    Vorq::Var const& x = Vorq::Unwrap(x_.get());
    Vorq::Var const& y = Vorq::Unwrap(y_.get());
    cell.AddTerm(x, y, 2.0);
    cell.AddTerm(y, x, 3.0);
    cell.AddTerm(Vorq::Unwrap(z_.get()), 1.0);
    cell.AddTerm(Vorq::Unwrap(z_.get()), 1.0);
    return cell;
  }
  static std::unique_ptr<Vorq::IMQExpression> Quad(Vorq::MQExpression const& cell) {
    return Own(Vorq::Wrap<Vorq::IMQExpression>(cell));
  }
  static std::unique_ptr<Vorq::IMExpression> Linear(Vorq::MExpression const& cell) {
    return Own(Vorq::Wrap<Vorq::IMExpression>(cell));
  }
  static Vorq::NdArray<Vorq::Var, 1> const& Cells(VarBlock<1> const& vars) { return Vorq::Unwrap(vars.get()).Cells(); }

  using BlocksTest::Wrapped;
  template <int N>
  static auto Wrapped(Vorq::MQConstrBuilder<N> const& builder) {
    return Own(Vorq::Wrap<Vorq::IMQConstrBuilder<N>>(builder));
  }
  template <int N>
  static auto Wrapped(Vorq::MPsdConstrBuilder<N> const& builder) {
    return Own(Vorq::Wrap<Vorq::IMPsdConstrBuilder<N>>(builder));
  }

  // A block of the given number of binary variables, in columns 3 and on; the solver library knows their type.
  VarBlock<1> AddBinaries(std::uint64_t count) {
    auto block = Own(model_->AddMVar(Shape<1>({count}).get(), 'B', "b"));
    double_.ClearLog();
    return block;
  }
};

// ---- Quadratic constraints

TEST_F(BlockSpecialConstraintsTest, QuadraticCell) {
  auto const cell = Quad(QuadCell());
  auto const constr = Own(model_->AddQConstr(cell.get(), 'L', 5.0, " q 1 "));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(constr->GetIdx(), 0);
  EXPECT_STREQ(constr->GetName(), "q_1");
  EXPECT_CALLS(double_, {R"(VORQ_AddQConstr(prob#1, 1, [2], [2], 2, [0,1], [1,0], [2,3], 'L', 4, "q_1"))"});
  EXPECT_EQ(Vorq::Unwrap(cell.get()).expr.linear.Size(), 2u);
}

TEST_F(BlockSpecialConstraintsTest, LazyProductOfVariablesTakesNoScale) {
  auto const v = AddBlock<1>({2});
  Vorq::MQExpression cell(Cells(v), Cells(v));
  cell.Multiply(-2.5);
  Own(model_->AddQConstr(Quad(cell).get(), 'G', 1.0, "q"));
  EXPECT_CALLS(double_, {R"(VORQ_AddQConstr(prob#1, 0, null, null, 2, [3,4], [3,4], [1,1], 'G', 1, "q"))"});
}

TEST_F(BlockSpecialConstraintsTest, ConstantsOfLazyProductsDoNotEnter) {
  auto const first = Vorq::NdArray<Vorq::MExpression, 1>::OneElement(Cell({{x_, 2.0}}, 10.0));
  auto const second = Vorq::NdArray<Vorq::MExpression, 1>::OneElement(Cell({{y_, 3.0}}, 20.0));
  Vorq::MQExpression cell(first, second);
  cell.AddConstant(1.5);
  cell.Multiply(2.0);
  EXPECT_EQ(cell.GetConstant(), 403.0);
  Own(model_->AddQConstr(Quad(cell).get(), 'E', 1.0, "q"));
  EXPECT_CALLS(double_, {R"(VORQ_AddQConstr(prob#1, 0, null, null, 1, [0], [1], [12], 'E', -2, "q"))"});
}

TEST_F(BlockSpecialConstraintsTest, LinearQuadraticCellIsLeftToTheSolverLibrary) {
  Vorq::MQExpression cell;
  cell.AddTerm(Vorq::Unwrap(x_.get()), 1.0);
  Own(model_->AddQConstr(Quad(cell).get(), 'E', 1.0, "q"));
  EXPECT_CALLS(double_, {R"(VORQ_AddQConstr(prob#1, 1, [0], [1], 0, null, null, null, 'E', 1, "q"))"});
}

TEST_F(BlockSpecialConstraintsTest, RemovedVariablesOfQuadraticCells) {
  auto const cell = Quad(QuadCell());
  y_->Remove();
  z_->Remove();
  Own(model_->AddQConstr(cell.get(), 'L', 5.0, "q"));
  EXPECT_CALLS(double_, {R"(VORQ_AddQConstr(prob#1, 0, [], [], 2, [0,-4], [-4,0], [2,3], 'L', 4, "q"))"});
}

TEST_F(BlockSpecialConstraintsTest, OtherSensesOfQuadraticCellsAreRefused) {
  EXPECT_EQ(Own(model_->AddQConstr(Quad(QuadCell()).get(), 'R', 0.0, "q"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid quadratic constraint sense: 82");
  EXPECT_EQ(Own(model_->AddQConstr(Quad(QuadCell()).get(), 'N', 0.0, "q"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid quadratic constraint sense: 78");
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockSpecialConstraintsTest, AnEarlierFailureDoesNotStopAQuadraticCell) {
  Fail();
  EXPECT_EQ(Own(model_->AddQConstr(Quad(QuadCell()).get(), 'L', 0.0, "q"))->GetIdx(), 0);
  EXPECT_SUCCESS(model_);
}

TEST_F(BlockSpecialConstraintsTest, RefusedQuadraticCellIsInvalid) {
  double_.FailNext("VORQ_AddQConstr", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddQConstr(Quad(QuadCell()).get(), 'L', 0.0, "q"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add a quadratic constraint");
}

TEST_F(BlockSpecialConstraintsTest, QuadraticBlockIsAddedCellByCell) {
  Vorq::MQExpression other;
  other.AddTerm(Vorq::Unwrap(z_.get()), Vorq::Unwrap(z_.get()), 7.0);
  auto const expr = Handle(Block<2>({1, 2}, std::vector{QuadCell(), other}));
  auto const rows = Own(model_->AddMQConstr(expr.get(), 'L', 5.0, " q 1"));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(Content(rows), "(1, 2) 0 1");
  EXPECT_CALLS(double_, {R"_(VORQ_AddQConstr(prob#1, 1, [2], [2], 2, [0,1], [1,0], [2,3], 'L', 4, "q_1(0,0)"))_",
                         R"_(VORQ_AddQConstr(prob#1, 0, [], [], 1, [2], [2], [7], 'L', 5, "q_1(0,1)"))_"});
}

TEST_F(BlockSpecialConstraintsTest, QuadraticBlocksOfAllRanks) {
  auto const add = [this](auto const& block) {
    return Content(Own(model_->AddMQConstr(Handle(block).get(), 'E', 0.0, "q")));
  };
  EXPECT_EQ(add(Block<0>({}, std::vector{QuadCell()})), "() 0");
  EXPECT_EQ(add(Block<1>({2}, std::vector(2, QuadCell()))), "(2) 1 2");
  EXPECT_EQ(add(Block<3>({1, 2, 1}, std::vector(2, QuadCell()))), "(1, 2, 1) 3 4");
}

TEST_F(BlockSpecialConstraintsTest, BuildersOfQuadraticBlocks) {
  auto const add = [this]<int N>(Vorq::MQuadExpr<N> const& block) {
    Vorq::MQConstrBuilder<N> builder;
    builder.Set(block, 'G', 4.0);
    return Content(Own(model_->AddMQConstr(Wrapped(builder).get(), "q")));
  };
  EXPECT_EQ(add(Block<0>({}, std::vector{QuadCell()})), "() 0");
  EXPECT_EQ(add(Block<1>({1}, std::vector{QuadCell()})), "(1) 1");
  EXPECT_EQ(add(Block<2>({1, 1}, std::vector{QuadCell()})), "(1, 1) 2");
  EXPECT_EQ(add(Block<3>({1, 1, 1}, std::vector{QuadCell()})), "(1, 1, 1) 3");
  EXPECT_EQ(double_.Calls().front(),
            R"_(VORQ_AddQConstr(prob#1, 1, [2], [2], 2, [0,1], [1,0], [2,3], 'G', 3, "q()"))_");
}

TEST_F(BlockSpecialConstraintsTest, AFailureStopsAQuadraticBlock) {
  auto const expr = Handle(Block<1>({3}, std::vector(3, QuadCell())));
  double_.FailNth("VORQ_AddQConstr", 2, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddMQConstr(expr.get(), 'L', 0.0, "q"))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add a quadratic constraint");
  EXPECT_EQ(double_.CountCalls("VORQ_AddQConstr"), 2u);
  // The one before stays in the model.
  EXPECT_EQ(Own(model_->GetQConstr(0))->GetIdx(), 0);
}

TEST_F(BlockSpecialConstraintsTest, OtherSensesOfQuadraticBlocksAreRefused) {
  auto const expr = Handle(Block<1>({3}, std::vector(3, QuadCell())));
  EXPECT_EQ(Own(model_->AddMQConstr(expr.get(), 'N', 0.0, "q"))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid quadratic constraint sense: 78");
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockSpecialConstraintsTest, QuadraticBlockWithoutCellsMakesNoCall) {
  auto const expr = Handle(Vorq::MQuadExpr<2>(Vorq::NdArray<Vorq::MQExpression, 2>(Vorq::NDim<2>({3, 0}), {})));
  EXPECT_EQ(Content(Own(model_->AddMQConstr(expr.get(), 'L', 0.0, "q"))), "(3, 0)");
  EXPECT_CALLS(double_, {});
}

// ---- PSD constraints

class BlockPsdTest : public BlockSpecialConstraintsTest {
 protected:
  // X with a matrix, and x + x + 1.
  Vorq::PsdExpr PsdCell() {
    auto const expr = Own(CreatePsdExpr1(1.0));
    expr->AddTerm(big_.get(), mat_.get());
    expr->AddTerm(x_.get(), 1.0);
    expr->AddTerm(x_.get(), 1.0);
    return Vorq::Unwrap(expr.get());
  }
  std::vector<std::string> Constraints() { return double_.Calls("VORQ_AddPSDConstr"); }

  std::unique_ptr<Vorq::IPsdVar> big_ = AddPsdVar(2);
  std::unique_ptr<Vorq::ISymMatrix> mat_ = AddMatrix(2);
};

TEST_F(BlockPsdTest, BlockIsAddedCellByCell) {
  auto const expr = Handle(Block<1>({2}, std::vector{PsdCell(), PsdCell()}));
  auto const rows = Own(model_->AddMPsdConstr(expr.get(), 'L', 5.0, "p"));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(Content(rows), "(2) 0 1");
  // Each constraint has a matrix of its own.
  EXPECT_CALLS_OF(double_, "VORQ_AddPSDConstr",
                  {R"_(VORQ_AddPSDConstr(prob#1, 1, [0], [2], 1, [0], [1], 'L', 4, 1e+30, "p(0)"))_",
                   R"_(VORQ_AddPSDConstr(prob#1, 1, [0], [2], 1, [0], [2], 'L', 4, 1e+30, "p(1)"))_"});
}

TEST_F(BlockPsdTest, CellsAreOnlyRead) {
  auto const expr = Handle(Block<1>({1}, std::vector{PsdCell()}));
  std::string const before = expr->ToString(1000);
  Own(model_->AddMPsdConstr(expr.get(), 'L', 5.0, "p"));
  EXPECT_EQ(expr->ToString(1000), before);
}

TEST_F(BlockPsdTest, AllRanks) {
  auto const add = [this]<int N>(Vorq::MPsdExpr<N> const& block) {
    Vorq::MPsdConstrBuilder<N> builder;
    builder.Set(block, 'G', 4.0);
    std::string const rows = Content(Own(model_->AddMPsdConstr(Handle(block).get(), 'E', 0.0, "p")));
    return rows + " | " + Content(Own(model_->AddMPsdConstr(Wrapped(builder).get(), "p")));
  };
  EXPECT_EQ(add(Block<0>({}, std::vector{PsdCell()})), "() 0 | () 1");
  EXPECT_EQ(add(Block<1>({1}, std::vector{PsdCell()})), "(1) 2 | (1) 3");
  EXPECT_EQ(add(Block<2>({1, 1}, std::vector{PsdCell()})), "(1, 1) 4 | (1, 1) 5");
  EXPECT_EQ(add(Block<3>({1, 1, 1}, std::vector{PsdCell()})), "(1, 1, 1) 6 | (1, 1, 1) 7");
  EXPECT_EQ(Constraints()[1], R"_(VORQ_AddPSDConstr(prob#1, 1, [0], [2], 1, [0], [2], 'G', 3, 1e+30, "p()"))_");
}

TEST_F(BlockPsdTest, RangesGoThroughBounds) {
  Vorq::MPsdConstrBuilder<1> builder;
  builder.SetRange(Block<1>({1}, std::vector{PsdCell()}), 4.0);
  Own(model_->AddMPsdConstr(Wrapped(builder).get(), "p"));
  EXPECT_CALLS_OF(double_, "VORQ_AddPSDConstr",
                  {R"_(VORQ_AddPSDConstr(prob#1, 1, [0], [2], 1, [0], [1], 0, -5, -1, "p(0)"))_"});
}

TEST_F(BlockPsdTest, ExpressionsTakeNoRange) {
  auto const expr = Handle(Block<1>({2}, std::vector{PsdCell(), PsdCell()}));
  EXPECT_EQ(Own(model_->AddMPsdConstr(expr.get(), 'R', 0.0, "p"))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid sense of PSD constraint");
  EXPECT_TRUE(Constraints().empty());
}

TEST_F(BlockPsdTest, ACellWithoutPsdTermsStopsTheBlock) {
  auto const expr = Handle(Block<1>({3}, std::vector{PsdCell(), Vorq::PsdExpr(2.0), PsdCell()}));
  EXPECT_EQ(Own(model_->AddMPsdConstr(expr.get(), 'L', 0.0, "p"))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid PSD expression object");
  EXPECT_EQ(Constraints().size(), 1u);
}

TEST_F(BlockPsdTest, ARefusedConstraintStopsTheBlock) {
  auto const expr = Handle(Block<1>({3}, std::vector{PsdCell(), PsdCell(), PsdCell()}));
  double_.FailNth("VORQ_AddPSDConstr", 2, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddMPsdConstr(expr.get(), 'L', 0.0, "p"))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add a PSD constraint");
  EXPECT_EQ(Constraints().size(), 2u);
  EXPECT_EQ(Own(model_->GetPsdConstr(0))->GetIdx(), 0);
}

// ---- Indicator constraints

TEST_F(BlockSpecialConstraintsTest, IndicatorOfACell) {
  auto const b = AddBinaries(1);
  auto const v = AddBlock<1>({2});
  Vorq::MExpression cell = Lazy({2.0, 3.0}, v);
  cell.AddTerm(Vorq::Unwrap(x_.get()), 1.0);
  cell.AddTerm(Vorq::Unwrap(x_.get()), 1.0);
  cell.AddConstant(3.0);
  auto const binary = Own(b->Get(std::uint64_t{0}));
  auto const constr = Own(model_->AddGenConstrIndicator(binary.get(), 1, Linear(cell).get(), 'L', 5.0, 2, " my row "));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(constr->GetIdx(), 0);
  EXPECT_STREQ(constr->GetName(), "my_row");
  EXPECT_CALLS(double_,
               {"VORQ_GetColType(prob#1, 1, [3], out)",
                R"(VORQ_AddIndicators(prob#1, 1, [2], [3], [1], [0], [3], [0,4,5], [2,2,3], ['L'], [2], ["my_row"]))"});
}

TEST_F(BlockSpecialConstraintsTest, IndicatorOfACellIsChecked) {
  auto const cell = Linear(Cell({{x_, 1.0}}));
  EXPECT_EQ(Own(model_->AddGenConstrIndicator(x_.get(), 1, cell.get(), 'L', 0.0, 0, "g"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid indicator variable");
  auto const b = AddBinaries(1);
  auto const binary = Own(b->Get(std::uint64_t{0}));
  EXPECT_EQ(Own(model_->AddGenConstrIndicator(binary.get(), 1, cell.get(), 'N', 0.0, 0, "g"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid general constraint sense");
  EXPECT_EQ(double_.CountCalls("VORQ_AddIndicators"), 0u);
}

TEST_F(BlockSpecialConstraintsTest, IndicatorsOfABlock) {
  auto const b = AddBinaries(2);
  auto const block = Block<1>({2}, std::vector{Cell({{x_, 1.0}}, 3.0), Cell({{y_, 2.0}})});
  auto const constrs = Own(model_->AddGenConstrIndicators(b.get(), 0, BlockBuilder(block, 'G').get(), 1, "g"));
  EXPECT_SUCCESS(model_);
  ASSERT_EQ(constrs->Size(), 2);
  EXPECT_EQ(Own(constrs->Get(1))->GetIdx(), 1);
  EXPECT_CALLS(double_,
               {"VORQ_GetColType(prob#1, 1, [3], out)",
                R"_(VORQ_AddIndicators(prob#1, 1, [1], [3], [0], [0], [1], [0], [1], ['G'], [-3], ["g(0)"]))_",
                "VORQ_GetColType(prob#1, 1, [4], out)",
                R"_(VORQ_AddIndicators(prob#1, 1, [1], [4], [0], [0], [1], [1], [2], ['G'], [0], ["g(1)"]))_"});
}

TEST_F(BlockSpecialConstraintsTest, IndicatorsOfAllRanks) {
  Vorq::MExpression const cell = Cell({{x_, 1.0}});
  auto const add = [&]<int N>(Sizes<N> const& sizes) {
    auto const binaries = Own(model_->AddMVar(Shape<N>(sizes).get(), 'B', "b"));
    std::uint64_t const count = binaries->GetSize();
    auto const builder = BlockBuilder(Block<N>(sizes, std::vector(count, cell)), 'E');
    return Own(model_->AddGenConstrIndicators(binaries.get(), 1, builder.get(), 0, "g"))->Size();
  };
  EXPECT_EQ(add.template operator()<0>({}), 1);
  EXPECT_EQ(add.template operator()<2>({2, 1}), 2);
  EXPECT_EQ(add.template operator()<3>({1, 2, 2}), 4);
  EXPECT_EQ(double_.Calls("VORQ_AddIndicators").back(),
            R"_(VORQ_AddIndicators(prob#1, 1, [0], [9], [1], [0], [1], [0], [1], ['E'], [0], ["g(0,1,1)"]))_");
}

TEST_F(BlockSpecialConstraintsTest, SizesOfIndicatorsMustBeEqual) {
  auto const b = AddBinaries(2);
  auto const builder = BlockBuilder(Block<1>({3}, std::vector(3, Cell({{x_, 1.0}}))), 'L');
  EXPECT_EQ(Own(model_->AddGenConstrIndicators(b.get(), 1, builder.get(), 0, "g"))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Size of binaries (2) is different from size of builder (3)");
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockSpecialConstraintsTest, IndicatorsOfNothing) {
  auto const b = Own(model_->AddMVar(Shape<1>({0}).get(), 'B', "b"));
  auto const builder = BlockBuilder(Block<1>({0}, std::vector<Vorq::MExpression>{}), 'L');
  EXPECT_EQ(Own(model_->AddGenConstrIndicators(b.get(), 1, builder.get(), 0, "g"))->Size(), 0);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockSpecialConstraintsTest, IndicatorsBeforeAFailureStay) {
  auto const b = AddBinaries(3);
  auto const builder = BlockBuilder(Block<1>({3}, std::vector(3, Cell({{x_, 1.0}}))), 'L');
  Own(b->Get(std::uint64_t{1}))->SetType('C');
  auto const constrs = Own(model_->AddGenConstrIndicators(b.get(), 1, builder.get(), 0, "g"));
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid indicator variable");
  EXPECT_EQ(double_.CountCalls("VORQ_AddIndicators"), 1u);
  ASSERT_EQ(constrs->Size(), 1);
  EXPECT_EQ(Own(constrs->Get(0))->GetIdx(), 0);
  EXPECT_EQ(Own(model_->GetGenConstr(0))->GetIdx(), 0);
}

TEST_F(BlockSpecialConstraintsTest, SensesOfIndicators) {
  auto const b = AddBinaries(1);
  Vorq::MConstrBuilder<1> builder;
  builder.SetRange(Block<1>({1}, std::vector{Cell({{x_, 1.0}})}), 4.0);
  EXPECT_EQ(Own(model_->AddGenConstrIndicators(b.get(), 1, BlocksTest::Wrapped(builder).get(), 0, "g"))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid general constraint sense");
}

TEST_F(BlockSpecialConstraintsTest, BinariesThatWereRefused) {
  double_.FailNext("VORQ_AddCols", VORQ_MEMORY);
  auto const b = Own(model_->AddMVar(Shape<1>({1}).get(), 'B', "b"));
  auto const builder = BlockBuilder(Block<1>({1}, std::vector{Cell({{x_, 1.0}})}), 'L');
  EXPECT_EQ(Own(model_->AddGenConstrIndicators(b.get(), 1, builder.get(), 0, "g"))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid indicator variable");
}

// ---- Objectives

TEST_F(BlockSpecialConstraintsTest, CellAsObjective) {
  auto const v = AddBlock<1>({2});
  Vorq::MExpression cell = Lazy({2.0, 0.0}, v);
  cell.AddTerm(Vorq::Unwrap(x_.get()), 1.0);
  cell.AddTerm(Vorq::Unwrap(x_.get()), -1.0);
  cell.AddConstant(3.0);
  model_->SetObjective(Linear(cell).get(), -1);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_ReplaceColObj(prob#1, 2, [0,3], [0,2])", "VORQ_SetObjConst(prob#1, 3)",
                         "VORQ_SetObjSense(prob#1, -1)"});
}

TEST_F(BlockSpecialConstraintsTest, EmptyCellAsObjectiveLeavesTheSense) {
  model_->SetObjective(Linear(Vorq::MExpression()).get(), 0);
  EXPECT_CALLS(double_, {"VORQ_ReplaceColObj(prob#1, 0, null, null)", "VORQ_SetObjConst(prob#1, 0)"});
}

TEST_F(BlockSpecialConstraintsTest, AFailureStopsAnObjective) {
  auto const cell = Linear(Cell({{x_, 1.0}}));
  double_.FailNext("VORQ_ReplaceColObj", VORQ_MEMORY);
  model_->SetObjective(cell.get(), 1);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to set objective coefficients");
  double_.FailNext("VORQ_SetObjConst", VORQ_MEMORY);
  model_->SetObjective(cell.get(), 1);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to set obj const");
  double_.FailNext("VORQ_SetObjSense", VORQ_MEMORY);
  model_->SetObjective(cell.get(), 1);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to set obj sense");
  EXPECT_EQ(double_.CountCalls("VORQ_SetObjConst"), 2u);
  EXPECT_EQ(double_.CountCalls("VORQ_SetObjSense"), 1u);
}

TEST_F(BlockSpecialConstraintsTest, QuadraticCellAsObjective) {
  auto const cell = Quad(QuadCell());
  model_->SetQuadObjective(cell.get(), 1);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_SetQuadObj(prob#1, 2, [0,1], [1,0], [2,3])", "VORQ_ReplaceColObj(prob#1, 1, [2], [2])",
                         "VORQ_SetObjConst(prob#1, 1)", "VORQ_SetObjSense(prob#1, 1)"});
  // The cell is only read, its linear terms included.
  EXPECT_EQ(Vorq::Unwrap(cell.get()).expr.linear.Size(), 2u);
}

TEST_F(BlockSpecialConstraintsTest, LazyProductAsObjective) {
  auto const v = AddBlock<1>({2});
  auto const lins = Array<Vorq::MExpression, 1>({2}, {Lazy({2.0, 3.0}, v), Cell({{x_, kNaN}}, 4.0)});
  model_->SetQuadObjective(Quad(Vorq::MQExpression(lins, Cells(v))).get(), 0);
  EXPECT_CALLS(double_, {"VORQ_SetQuadObj(prob#1, 3, [3,4,0], [3,3,4], [2,3,nan])",
                         "VORQ_ReplaceColObj(prob#1, 0, null, null)", "VORQ_SetObjConst(prob#1, 0)"});
}

TEST_F(BlockSpecialConstraintsTest, AFailedQuadraticPartLeavesTheLinearObjective) {
  double_.FailNext("VORQ_SetQuadObj", VORQ_MEMORY);
  model_->SetQuadObjective(Quad(QuadCell()).get(), 1);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to set quadratic objective");
  EXPECT_EQ(double_.Calls().size(), 1u);
}

TEST_F(BlockSpecialConstraintsTest, MoreConstraintsThanTheSolverLibraryCountsAreRefused) {
  constexpr std::uint64_t kEndless = 1ULL << 32;
  auto const quadratic = Handle(Vorq::Repeat1d(Vorq::MQExpression(1.0), kEndless));
  EXPECT_EQ(Own(model_->AddMQConstr(quadratic.get(), 'L', 1.0, "q"))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of quadratic constraint names");
  auto const semidefinite = Handle(Vorq::Repeat1d(Vorq::PsdExpr(1.0), kEndless));
  EXPECT_EQ(Own(model_->AddMPsdConstr(semidefinite.get(), 'L', 1.0, "p"))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of PSD constraint names");
  auto const vars = Handle(Vorq::Repeat1d(Vorq::Unwrap(x_.get()), kEndless));
  Vorq::MConstrBuilder<1> builder;
  builder.expr = Vorq::Repeat1d(Cell({{x_, 1.0}}), kEndless);
  builder.sense = 'L';
  EXPECT_EQ(Own(model_->AddGenConstrIndicators(vars.get(), 1, BlocksTest::Wrapped(builder).get(), 0, "g"))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of general constraint names");
  EXPECT_CALLS(double_, {});
}

}  // namespace
