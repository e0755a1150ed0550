// Blocks of linear constraints, cuts and lazy constraints, and single cells as constraints: one call for a block, with
// each row merged and lazy products written straight from where they lie.
#include "matrix/rank_change.hpp"
#include "tests/model/blocks_fixture.hpp"

namespace {

using vorqtest::kNaN;
using vorqtest::Own;

class BlockConstraintsTest : public vorqtest::BlocksTest {
 protected:
  // The entries of the rows of the last block, as begins, counts, columns and coefficients.
  std::string LastEntries() {
    std::string const call = double_.Calls("VORQ_AddRows").back();
    std::size_t const begin = call.find('[');
    return call.substr(begin, call.find(", ['") - begin);
  }
};

TEST_F(BlockConstraintsTest, BuilderMakesOneCall) {
  auto const block =
      Block<2>({2, 2}, std::vector<Vorq::MExpression>{Cell({{x_, 1.0}}, 3.0), Cell({{y_, 2.0}, {z_, 4.0}}),
                                                      Cell({}, -1.0), Cell({{z_, 5.0}}, 0.5)});
  auto const rows = Own(model_->AddMConstr(BlockBuilder(block, 'G').get(), "c"));
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_AddRows(prob#1, 4, [0,1,3,3], [1,2,0,1], [0,1,2,2], [1,2,4,5], ['G','G','G','G'], "
                         R"_([-3,0,1,-0.5], [1e+30,1e+30,1e+30,1e+30], ["c(0,0)","c(0,1)","c(1,0)","c(1,1)"]))_"});
  EXPECT_EQ(Content(rows), "(2, 2) 0 1 2 3");
  EXPECT_STREQ(Own(rows->Get(std::uint64_t{2}))->GetName(), "c(1,0)");
  EXPECT_EQ(rows->GetLastError(), 0);
}

TEST_F(BlockConstraintsTest, AllRanks) {
  Vorq::MExpression const cell = Cell({{x_, 1.0}});
  EXPECT_EQ(Content(Own(model_->AddMConstr(BlockBuilder(Block<0>({}, std::vector{cell}), 'L').get(), "a"))), "() 0");
  EXPECT_EQ(Content(Own(model_->AddMConstr(BlockBuilder(Block<1>({1}, std::vector{cell}), 'L').get(), "b"))), "(1) 1");
  EXPECT_EQ(
      Content(Own(model_->AddMConstr(BlockBuilder(Block<3>({1, 1, 2}, std::vector{cell, cell}), 'E').get(), nullptr))),
      "(1, 1, 2) 2 3");
  EXPECT_CALLS(double_, {R"_(VORQ_AddRows(prob#1, 1, [0], [1], [0], [1], ['L'], [0], [1e+30], ["a()"]))_",
                         R"_(VORQ_AddRows(prob#1, 1, [0], [1], [0], [1], ['L'], [0], [1e+30], ["b(0)"]))_",
                         "VORQ_AddRows(prob#1, 2, [0,1], [1,1], [0,0], [1,1], ['E','E'], [0,0], [1e+30,1e+30], "
                         R"_(["(0,0,0)","(0,0,1)"]))_"});
}

TEST_F(BlockConstraintsTest, BoundsOfEachSense) {
  std::vector const cells{Cell({{x_, 1.0}}, 3.0)};
  for (char sense : {'E', 'G', 'L', 'N'}) AddRows(cells, sense);
  EXPECT_CALLS(double_, {R"_(VORQ_AddRows(prob#1, 1, [0], [1], [0], [1], ['E'], [-3], [1e+30], ["c(0)"]))_",
                         R"_(VORQ_AddRows(prob#1, 1, [0], [1], [0], [1], ['G'], [-3], [1e+30], ["c(0)"]))_",
                         R"_(VORQ_AddRows(prob#1, 1, [0], [1], [0], [1], ['L'], [-3], [1e+30], ["c(0)"]))_",
                         R"_(VORQ_AddRows(prob#1, 1, [0], [1], [0], [1], ['N'], [-1e+30], [1e+30], ["c(0)"]))_"});
}

TEST_F(BlockConstraintsTest, RangeIsTheUpperBoundOfAllRows) {
  Vorq::MConstrBuilder<1> builder;
  builder.SetRange(Block<1>({2}, std::vector{Cell({{x_, 1.0}}, -1.0), Cell({{y_, 1.0}}, 2.0)}), 4.0);
  auto const rows = Own(model_->AddMConstr(Wrapped(builder).get(), "c"));
  EXPECT_EQ(Content(rows), "(2) 0 1");
  EXPECT_CALLS(double_, {"VORQ_AddRows(prob#1, 2, [0,1], [1,1], [0,1], [1,1], ['R','R'], [1,-2], [4,4], "
                         R"_(["c(0)","c(1)"]))_"});
}

TEST_F(BlockConstraintsTest, TheRightSideOfABuilderIsInItsCells) {
  Vorq::MConstrBuilder<1> builder;
  builder.Set(Block<1>({1}, std::vector{Cell({{x_, 1.0}})}), 'L', 5.0);
  Own(model_->AddMConstr(Wrapped(builder).get(), "c"));
  EXPECT_CALLS(double_, {R"_(VORQ_AddRows(prob#1, 1, [0], [1], [0], [1], ['L'], [5], [1e+30], ["c(0)"]))_"});
}

TEST_F(BlockConstraintsTest, TheRightSideOfAnExpressionIsNotApplied) {
  auto const expr = Handle(Block<1>({2}, std::vector{Cell({{x_, 1.0}}), Cell({{y_, 1.0}}, 2.0)}));
  auto const rows = Own(model_->AddMConstr(expr.get(), 'L', 5.0, "c"));
  EXPECT_EQ(Content(rows), "(2) 0 1");
  EXPECT_CALLS(double_, {"VORQ_AddRows(prob#1, 2, [0,1], [1,1], [0,1], [1,1], ['L','L'], [0,-2], [1e+30,1e+30], "
                         R"_(["c(0)","c(1)"]))_"});
}

TEST_F(BlockConstraintsTest, ExpressionsTakePlainSensesOnly) {
  auto const expr = Handle(Block<1>({1}, std::vector{Cell({{x_, 1.0}})}));
  for (char sense : {'R', 'N', 'l', '\0'}) {
    auto const rows = Own(model_->AddMConstr(expr.get(), sense, 1.0, "c"));
    EXPECT_FAILURE(model_, 3, "(INVALID) Invalid constraint sense");
    EXPECT_EQ(rows->GetSize(), 0u);
  }
  EXPECT_EQ(double_.CountCalls("VORQ_AddRows"), 0u);
}

TEST_F(BlockConstraintsTest, BuildersTakeFiveSenses) {
  for (char sense : {'l', '\0', 'X'}) {
    EXPECT_EQ(AddRows({Cell({{x_, 1.0}})}, sense)->GetSize(), 0u);
    EXPECT_FAILURE(model_, 3, "(INVALID) Invalid constraint sense");
  }
  // One that was never set has no sense.
  auto const fresh = Own(Own(CreateMFactory())->CreateMConstrBuilder(Shape<2>({2, 2}).get()));
  EXPECT_EQ(Own(model_->AddMConstr(fresh.get(), "c"))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid constraint sense");
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockConstraintsTest, RepeatedVariablesAreMerged) {
  AddRows({Cell({{x_, 1.0}, {x_, 1.0}}), Cell({{z_, 1.0}, {x_, 2.0}, {z_, 3.0}}), Cell({{y_, 1.0}, {y_, -1.0}})});
  EXPECT_EQ(LastEntries(), "[0,1,3], [1,2,1], [0,2,0,1], [2,4,2,0]");
}

TEST_F(BlockConstraintsTest, ZeroTermsAndNaN) {
  AddRows({Cell({{x_, 0.0}, {y_, kNaN}, {z_, -0.0}})});
  EXPECT_EQ(LastEntries(), "[0], [1], [1], [nan]");
}

TEST_F(BlockConstraintsTest, RemovedVariablesDisappear) {
  auto const expr = Handle(Block<1>({2}, std::vector{Cell({{x_, 1.0}, {y_, 2.0}}), Cell({{x_, 3.0}})}));
  x_->Remove();
  auto const rows = Own(model_->AddMConstr(expr.get(), 'E', 0.0, "c"));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(LastEntries(), "[0,1], [1,0], [1], [2]");
}

TEST_F(BlockConstraintsTest, CellsAreOnlyRead) {
  auto const expr = Handle(Block<1>({1}, std::vector{Cell({{x_, 1.0}, {x_, 1.0}, {y_, 0.0}}, 4.0)}));
  std::string const before = expr->ToString(1000);
  Own(model_->AddMConstr(expr.get(), 'E', 0.0, "c"));
  EXPECT_EQ(expr->ToString(1000), before);
}

TEST_F(BlockConstraintsTest, RowsOfAProduct) {
  auto const v = AddBlock<1>({3});
  auto const matrix = Array<double, 2>({3, 3}, {1, 2, 3, 4, 5, 6, 7, 8, 9});
  AddRows(Product(matrix, v));
  EXPECT_EQ(LastEntries(), "[0,3,6], [3,3,3], [3,4,5,3,4,5,3,4,5], [1,2,3,4,5,6,7,8,9]");
}

TEST_F(BlockConstraintsTest, ZerosInAnyRowOfAProduct) {
  auto const v = AddBlock<1>({2});
  AddRows(Product(Array<double, 2>({4, 2}, {0, 2, 3, 4, 5, 6, 7, 8}), v));
  EXPECT_EQ(LastEntries(), "[0,1,3,5], [1,2,2,2], [4,3,4,3,4,3,4], [2,3,4,5,6,7,8]");
  AddRows(Product(Array<double, 2>({4, 2}, {1, 2, 0, 4, 5, 6, 7, -0.0}), v));
  EXPECT_EQ(LastEntries(), "[0,2,3,5], [2,1,2,1], [3,4,4,3,4,3], [1,2,4,5,6,7]");
  AddRows(Product(Array<double, 2>({4, 2}, {1, 2, 3, 4, 5, 6, 0, 0}), v));
  EXPECT_EQ(LastEntries(), "[0,2,4,6], [2,2,2,0], [3,4,3,4,3,4], [1,2,3,4,5,6]");
}

TEST_F(BlockConstraintsTest, NaNInAProductStays) {
  auto const v = AddBlock<1>({2});
  AddRows(Product(Array<double, 2>({3, 2}, {1, 2, 3, kNaN, 5, 6}), v));
  EXPECT_EQ(LastEntries(), "[0,2,4], [2,2,2], [3,4,3,4,3,4], [1,2,3,nan,5,6]");
}

TEST_F(BlockConstraintsTest, RowsOfATransposedMatrix) {
  auto const v = AddBlock<1>({2});
  AddRows(Product(Array<double, 2>({2, 3}, {1, 2, 3, 4, 5, 6}).Transpose(), v));
  EXPECT_EQ(LastEntries(), "[0,2,4], [2,2,2], [3,4,3,4,3,4], [1,4,2,5,3,6]");
}

TEST_F(BlockConstraintsTest, RowsThatDoNotFollowEachOther) {
  auto const v = AddBlock<1>({2});
  std::vector<Vorq::MExpression> cells = Product(Array<double, 2>({4, 2}, {1, 2, 3, 4, 5, 6, 7, 8}), v);
  std::swap(cells[2], cells[3]);
  AddRows(cells);
  EXPECT_EQ(LastEntries(), "[0,2,4,6], [2,2,2,2], [3,4,3,4,3,4,3,4], [1,2,3,4,7,8,5,6]");
  AddRows({cells[1], cells[1], cells[1]});
  EXPECT_EQ(LastEntries(), "[0,2,4], [2,2,2], [3,4,3,4,3,4], [3,4,3,4,3,4]");
}

TEST_F(BlockConstraintsTest, ScaledRowsAmongOthers) {
  auto const v = AddBlock<1>({2});
  std::vector<Vorq::MExpression> cells = Product(Array<double, 2>({5, 2}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}), v);
  cells[1].Multiply(-2.0);
  cells[2].Multiply(0.0);
  cells[3].Multiply(kNaN);
  AddRows(cells);
  EXPECT_EQ(LastEntries(), "[0,2,4,4,6], [2,2,0,2,2], [3,4,3,4,3,4,3,4], [1,2,-6,-8,nan,nan,9,10]");
}

TEST_F(BlockConstraintsTest, ExplicitTermsAmongLazyRows) {
  auto const v = AddBlock<1>({2});
  std::vector<Vorq::MExpression> cells = Product(Array<double, 2>({4, 2}, {1, 2, 3, 4, 5, 6, 7, 8}), v);
  cells[2].AddTerm(Vorq::Unwrap(x_.get()), 9.0);
  cells[2].AddTerm(Vorq::Unwrap(Own(v->Get(std::uint64_t{1})).get()), 1.0);
  cells.insert(cells.begin() + 1, Cell({{y_, 1.0}}, 2.0));
  AddRows(cells);
  EXPECT_EQ(LastEntries(), "[0,2,3,5,8], [2,1,2,3,2], [3,4,1,3,4,0,4,3,3,4], [1,2,1,3,4,9,7,5,7,8]");
}

TEST_F(BlockConstraintsTest, ConstantsOfLazyRowsAreBounds) {
  auto const v = AddBlock<1>({2});
  std::vector<Vorq::MExpression> cells = Product(Array<double, 2>({3, 2}, {1, 2, 3, 4, 5, 6}), v);
  for (std::size_t i = 0; i < 3; ++i) cells[i].AddConstant(-1.5 * static_cast<double>(i));
  AddRows(cells);
  EXPECT_CALLS(double_, {"VORQ_AddRows(prob#1, 3, [0,2,4], [2,2,2], [3,4,3,4,3,4], [1,2,3,4,5,6], ['L','L','L'], "
                         R"_([0,1.5,3], [1e+30,1e+30,1e+30], ["c(0)","c(1)","c(2)"]))_"});
}

TEST_F(BlockConstraintsTest, RepeatedVariablesInALazyRowAreMerged) {
  auto const v = AddBlock<1>({2});
  auto const repeated = Own(v->RepeatBlock(2, 0));
  AddRows(Product(Array<double, 2>({3, 4}, {1, 2, 3, 4, 5, 6, -5, 8, 0, 1, 0, 1}), repeated));
  EXPECT_EQ(LastEntries(), "[0,2,4], [2,2,1], [3,4,3,4,4], [4,6,0,14,2]");
}

TEST_F(BlockConstraintsTest, RemovedVariablesOfALazyRowDisappear) {
  auto const v = AddBlock<1>({3});
  Own(v->Get(std::uint64_t{1}))->Remove();
  AddRows(Product(Array<double, 2>({3, 3}, {1, 2, 3, 4, 5, 6, 7, 8, 9}), v));
  EXPECT_EQ(LastEntries(), "[0,2,4], [2,2,2], [3,5,3,5,3,5], [1,3,4,6,7,9]");
}

TEST_F(BlockConstraintsTest, LazyRowsOfDifferentVectors) {
  auto const v = AddBlock<1>({2});
  auto const w = AddBlock<1>({2});
  AddRows({Lazy({1, 2}, v), Lazy({3, 4}, w), Lazy({5, 6}, w), Lazy({7, 8}, v), Lazy({9, 0}, v)});
  EXPECT_EQ(LastEntries(), "[0,2,4,6,8], [2,2,2,2,1], [3,4,5,6,5,6,3,4,3], [1,2,3,4,5,6,7,8,9]");
}

TEST_F(BlockConstraintsTest, AViewOfABlockGoesInItsOwnOrder) {
  auto const block =
      Block<2>({2, 2}, std::vector{Cell({{x_, 1.0}}), Cell({{x_, 2.0}}), Cell({{x_, 3.0}}), Cell({{x_, 4.0}}, 5.0)});
  auto const expr = Handle(block.Transpose());
  auto const rows = Own(model_->AddMConstr(expr.get(), 'E', 0.0, "c"));
  EXPECT_CALLS(double_, {"VORQ_AddRows(prob#1, 4, [0,1,2,3], [1,1,1,1], [0,0,0,0], [1,3,2,4], ['E','E','E','E'], "
                         R"_([0,0,0,-5], [1e+30,1e+30,1e+30,1e+30], ["c(0,0)","c(0,1)","c(1,0)","c(1,1)"]))_"});
  EXPECT_EQ(Content(rows), "(2, 2) 0 1 2 3");
  EXPECT_EQ(Own(rows->GetShape())->ToString(1), "(2, 1)");
}

TEST_F(BlockConstraintsTest, ABroadcastRightSide) {
  auto const v = AddBlock<2>({2, 2});
  Vorq::MConstrBuilder<2> builder;
  builder.Set(Block<2>({2, 2}, std::vector(4, Cell({{x_, 1.0}}))), 'E', Vorq::Unwrap(AddBlock<1>({2}).get()));
  Own(model_->AddMConstr(Wrapped(builder).get(), "c"));
  EXPECT_EQ(LastEntries(), "[0,2,4,6], [2,2,2,2], [0,7,0,8,0,7,0,8], [1,-1,1,-1,1,-1,1,-1]");
}

TEST_F(BlockConstraintsTest, NoCellsMakeNoCall) {
  Fail();
  auto const expr = Handle(Vorq::MLinExpr<2>(Vorq::NdArray<Vorq::MExpression, 2>(Vorq::NDim<2>({0, 3}), {})));
  EXPECT_EQ(Content(Own(model_->AddMConstr(expr.get(), 'L', 0.0, "c"))), "(0, 3)");
  EXPECT_EQ(Content(AddRows({})), "(0)");
  EXPECT_CALLS(double_, {});
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
}

TEST_F(BlockConstraintsTest, AnEarlierFailureDoesNotStopABlock) {
  Fail();
  EXPECT_EQ(AddRows({Cell({{x_, 1.0}})})->GetSize(), 1u);
  EXPECT_SUCCESS(model_);
}

TEST_F(BlockConstraintsTest, RefusedBlockIsEmpty) {
  double_.FailNext("VORQ_AddRows", VORQ_MEMORY);
  auto const rows = AddRows({Cell({{x_, 1.0}})});
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add constraints");
  EXPECT_EQ(rows->GetSize(), 0u);
  EXPECT_EQ(rows->GetLastError(), 0);
  EXPECT_EQ(Own(model_->GetConstrs())->Size(), 0);
  // The next one is not disturbed.
  EXPECT_EQ(Content(AddRows({Cell({{x_, 1.0}, {x_, 1.0}})})), "(1) 0");
  EXPECT_EQ(LastEntries(), "[0], [1], [0], [2]");
}

TEST_F(BlockConstraintsTest, RefusedBlockOfRankZeroHasAnInvalidRow) {
  double_.FailNext("VORQ_AddRows", VORQ_MEMORY);
  auto const expr = Handle(Block<0>({}, std::vector{Cell({{x_, 1.0}})}));
  EXPECT_EQ(Content(Own(model_->AddMConstr(expr.get(), 'L', 0.0, "c"))), "() -2");
}

TEST_F(BlockConstraintsTest, VariablesOfALongerModelAreLeftToTheSolverLibrary) {
  auto const other = Own(envr_->CreateModel("other"));
  auto const vars = Own(other->AddVars(9, 'C', "x"));
  Var const last = Own(vars->Get(8));
  AddRows({Cell({{last, 1.0}, {last, 2.0}, {x_, 1.0}})});
  EXPECT_EQ(LastEntries(), "[0], [2], [8,0], [3,1]");
}

TEST_F(BlockConstraintsTest, CellAsConstraint) {
  auto const v = AddBlock<1>({2});
  Vorq::MExpression cell = Lazy({2.0, 3.0}, v);
  cell.AddTerm(Vorq::Unwrap(z_.get()), 1.0);
  cell.AddTerm(Vorq::Unwrap(z_.get()), 1.0);
  cell.AddConstant(3.0);
  auto const handle = Own(Vorq::Wrap<Vorq::IMExpression>(cell));
  auto const row = Own(model_->AddConstr(handle.get(), 'L', 5.0, " my row "));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(row->GetIdx(), 0);
  EXPECT_STREQ(row->GetName(), "my_row");
  EXPECT_CALLS(double_, {R"_(VORQ_AddRow(prob#1, 3, [2,3,4], [2,2,3], 'L', 2, 1e+30, "my_row"))_"});
}

TEST_F(BlockConstraintsTest, CellsKeepTheOrderOfFirstAppearance) {
  auto const handle = Own(Vorq::Wrap<Vorq::IMExpression>(Cell({{x_, 1.0}, {x_, 1.0}, {y_, 1.0}, {z_, 1.0}})));
  Own(model_->AddConstr(handle.get(), 'E', 0.0, nullptr));
  EXPECT_CALLS(double_, {R"_(VORQ_AddRow(prob#1, 3, [0,1,2], [2,1,1], 'E', 0, 1e+30, ""))_"});
}

TEST_F(BlockConstraintsTest, CellsTakePlainSensesOnly) {
  auto const handle = Own(Vorq::Wrap<Vorq::IMExpression>(Cell({{x_, 1.0}})));
  for (char sense : {'N', 'R', 'l'}) {
    EXPECT_EQ(Own(model_->AddConstr(handle.get(), sense, 0.0, "c"))->GetIdx(), -2);
    EXPECT_FAILURE(model_, 3, "(INVALID) Invalid constraint sense");
  }
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockConstraintsTest, AnEarlierFailureStopsACell) {
  auto const handle = Own(Vorq::Wrap<Vorq::IMExpression>(Cell({{x_, 1.0}})));
  Fail();
  EXPECT_EQ(Own(model_->AddConstr(handle.get(), 'L', 0.0, "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockConstraintsTest, RefusedCellIsInvalid) {
  auto const handle = Own(Vorq::Wrap<Vorq::IMExpression>(Cell({{x_, 1.0}})));
  double_.FailNext("VORQ_AddRow", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddConstr(handle.get(), 'L', 0.0, "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add a constraint");
}

TEST_F(BlockConstraintsTest, CutsAndLazyConstraintsAreNumbered) {
  auto const v = AddBlock<1>({2});
  auto const block = Block<2>({1, 2}, std::vector{Lazy({2.0, 3.0}, v), Cell({{x_, 1.0}}, 4.0)});
  model_->AddUserCuts(BlockBuilder(block, 'L').get(), "my cut");
  model_->AddUserCuts(BlockBuilder(block, 'G').get(), "cut");
  model_->AddLazyConstrs(BlockBuilder(block, 'E').get(), "lazy");
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_AddUserCuts(prob#1, 2, [0,2], [2,1], [3,4,0], [2,3,1], ['L','L'], [-0,-4], "
                         R"_([1e+30,1e+30], ["my_cut_0","my_cut_1"]))_",
                         "VORQ_AddUserCuts(prob#1, 2, [0,2], [2,1], [3,4,0], [2,3,1], ['G','G'], [-0,-4], "
                         R"_([1e+30,1e+30], ["cut_0","cut_1"]))_",
                         "VORQ_AddLazyConstrs(prob#1, 2, [0,2], [2,1], [3,4,0], [2,3,1], ['E','E'], [-0,-4], "
                         R"_([1e+30,1e+30], ["lazy_0","lazy_1"]))_"});
}

TEST_F(BlockConstraintsTest, CutsOfAllRanks) {
  Vorq::MExpression const cell = Cell({{x_, 1.0}});
  model_->AddUserCuts(BlockBuilder(Block<0>({}, std::vector{cell}), 'L').get(), "a");
  model_->AddUserCuts(BlockBuilder(Block<1>({1}, std::vector{cell}), 'L').get(), "a");
  model_->AddUserCuts(BlockBuilder(Block<3>({1, 1, 1}, std::vector{cell}), 'L').get(), "a");
  model_->AddLazyConstrs(BlockBuilder(Block<0>({}, std::vector{cell}), 'L').get(), "a");
  model_->AddLazyConstrs(BlockBuilder(Block<1>({1}, std::vector{cell}), 'L').get(), "a");
  model_->AddLazyConstrs(BlockBuilder(Block<3>({1, 1, 1}, std::vector{cell}), 'L').get(), "a");
  EXPECT_EQ(double_.CountCalls("VORQ_AddUserCuts"), 3u);
  EXPECT_EQ(double_.CountCalls("VORQ_AddLazyConstrs"), 3u);
}

TEST_F(BlockConstraintsTest, RangesOfCuts) {
  Vorq::MConstrBuilder<1> builder;
  builder.SetRange(Block<1>({1}, std::vector{Cell({{x_, 1.0}}, -1.0)}), 4.0);
  model_->AddUserCuts(Wrapped(builder).get(), "a");
  EXPECT_CALLS(double_, {R"_(VORQ_AddUserCuts(prob#1, 1, [0], [1], [0], [1], ['R'], [1], [4], ["a_0"]))_"});
}

TEST_F(BlockConstraintsTest, MoreRowsThanTheSolverLibraryCountsAreRefused) {
  auto const endless = Handle(Vorq::Repeat1d(Cell({{x_, 1.0}}), 1ULL << 32));
  EXPECT_EQ(Own(model_->AddMConstr(endless.get(), 'L', 1.0, "c"))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of constraint names");
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockConstraintsTest, RefusedCuts) {
  auto const block = Block<1>({1}, std::vector{Cell({{x_, 1.0}})});
  model_->AddUserCuts(BlockBuilder(block, 'X').get(), "a");
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to add user cuts to model");
  model_->AddLazyConstrs(BlockBuilder(block, 'X').get(), "a");
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to add lazy constraints to model");
  EXPECT_CALLS(double_, {});
}

}  // namespace
