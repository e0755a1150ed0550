// The rows of products with sparse matrices, in the very call of the solver library that their terms make when they are
// added one by one.
#include <algorithm>
#include <numeric>
#include <random>

#include "matrix/block_rows.hpp"
#include "matrix/sparse_products.hpp"
#include "tests/model/blocks_fixture.hpp"

namespace {

using Vorq::MatMult;
using Vorq::MExpression;
using Vorq::MLinExpr;
using Vorq::MVar;
using Vorq::SparseMatrix;
using Vorq::SparseOrder;
using vorqtest::kNaN;
using vorqtest::Own;

// A matrix by rows.
struct Rows {
  explicit Rows(int columnCount) : columns(columnCount) {}

  int columns;
  std::vector<int> beg{0}, idx;
  std::vector<double> val;

  Rows& Add(std::vector<std::pair<int, double>> const& entries) {
    for (auto const& [column, value] : entries) {
      idx.push_back(column);
      val.push_back(value);
    }
    beg.push_back(static_cast<int>(idx.size()));
    return *this;
  }
  SparseMatrix Matrix() const {
    return {SparseOrder::kRows, columns, beg.data(), static_cast<int>(beg.size()), idx.data(), val.data()};
  }
};

class SparseRowsTest : public vorqtest::BlocksTest {
 protected:
  // x, y and z, and five more: in the order of their columns.
  SparseRowsTest() {
    auto const more = AddBlock<1>({5});
    for (auto const* var : {&x_, &y_, &z_}) all_.push_back(Vorq::Unwrap(var->get()));
    for (Vorq::Var const& var : Vorq::CellList(Vorq::Unwrap(more.get()))) all_.push_back(var);
  }

  // A block of the variables at these columns.
  MVar<1> Vars(std::vector<int> const& columns) const {
    std::vector<Vorq::Var> vars;
    for (int const column : columns) vars.push_back(all_[static_cast<std::size_t>(column)]);
    return MVar<1>(Vorq::NdaFromArray<Vorq::Var>(vars));
  }
  MVar<1> AllVars() const { return MVar<1>(Vorq::NdaFromArray<Vorq::Var>(all_)); }

  // A cell that lists what another one shares.
  static MExpression Listed(MExpression const& cell) {
    MExpression listed(cell.GetConstant());
    cell.ForEachTerm([&listed](Vorq::Var const& var, double coefficient) { listed.AddTerm(var, coefficient); });
    return listed;
  }
  static std::vector<MExpression> Listed(std::vector<MExpression> cells) {
    std::ranges::transform(cells, cells.begin(), [](MExpression const& cell) { return Listed(cell); });
    return cells;
  }

  // The call that adds the cells as rows.
  std::string CallOf(std::vector<MExpression> const& cells) {
    double_.ClearLog();
    AddRows(cells);
    EXPECT_SUCCESS(model_);
    EXPECT_EQ(double_.CountCalls("VORQ_AddRows"), 1U);
    return double_.Calls("VORQ_AddRows").back();
  }
  template <int N>
  void ExpectCallOfLists(MLinExpr<N> const& product) {
    std::vector<MExpression> const cells = Vorq::CellList(product);
    EXPECT_EQ(CallOf(cells), CallOf(Listed(cells)));
  }

  static Rows RandomRows(std::mt19937& random, int rows, int columns, bool isPlain) {
    Rows result(columns);
    for (int i = 0; i < rows; ++i) {
      std::vector<std::pair<int, double>> entries;
      std::vector<int> order(static_cast<std::size_t>(columns));
      std::iota(order.begin(), order.end(), 0);
      std::ranges::shuffle(order, random);
      for (auto k = random() % static_cast<unsigned>(columns + 1); k > 0; --k) {
        int const column = isPlain ? order[k - 1] : static_cast<int>(random() % static_cast<unsigned>(columns));
        double const value = 0.5 * (static_cast<int>(random() % 7) - 3);
        entries.emplace_back(column, isPlain && value == 0.0 ? 4.0 : value);
      }
      result.Add(entries);
    }
    return result;
  }

  std::vector<Vorq::Var> all_;
};

TEST_F(SparseRowsTest, ColumnsInTheirOrder) {
  Rows const rows = Rows(8).Add({{7, 1.0}, {0, 2.0}}).Add({}).Add({{3, 3.0}});
  EXPECT_EQ(CallOf(Vorq::CellList(MatMult(rows.Matrix(), AllVars()))),
            "VORQ_AddRows(prob#1, 3, [0,2,2], [2,0,1], [7,0,3], [1,2,3], ['L','L','L'], [0,0,0], "
            R"_([1e+30,1e+30,1e+30], ["c(0)","c(1)","c(2)"]))_");
}

TEST_F(SparseRowsTest, ColumnsInAnotherOrder) {
  Rows const rows = Rows(3).Add({{2, 1.0}, {0, 2.0}}).Add({{1, 3.0}, {2, 4.0}});
  EXPECT_EQ(CallOf(Vorq::CellList(MatMult(rows.Matrix(), Vars({6, 0, 4})))),
            "VORQ_AddRows(prob#1, 2, [0,2], [2,2], [4,6,0,4], [1,2,3,4], ['L','L'], [0,0], "
            R"_([1e+30,1e+30], ["c(0)","c(1)"]))_");
}

TEST_F(SparseRowsTest, RepeatedPlacesZerosAndNaN) {
  Rows const rows = Rows(8)
                        .Add({{1, 1.0}, {2, 2.0}})
                        .Add({{1, 1.0}, {5, 2.0}, {1, -1.0}})
                        .Add({{4, 0.0}, {3, -0.0}, {6, kNaN}})
                        .Add({{7, 1.0}, {6, 2.0}});
  EXPECT_EQ(CallOf(Vorq::CellList(MatMult(rows.Matrix(), AllVars()))),
            "VORQ_AddRows(prob#1, 4, [0,2,4,5], [2,2,1,2], [1,2,1,5,6,7,6], [1,2,0,2,nan,1,2], ['L','L','L','L'], "
            R"_([0,0,0,0], [1e+30,1e+30,1e+30,1e+30], ["c(0)","c(1)","c(2)","c(3)"]))_");
}

TEST_F(SparseRowsTest, RandomProductsOfAnyColumnMap) {
  std::mt19937 random(5);
  for (int round = 0; round < 40; ++round) {
    std::vector<int> columns(8);
    std::iota(columns.begin(), columns.end(), 0);
    // In order, in another order, or with repeated columns.
    if (round % 3 == 1) std::ranges::shuffle(columns, random);
    if (round % 3 == 2) std::ranges::generate(columns, [&] { return static_cast<int>(random() % 8); });
    Rows const rows = RandomRows(random, 6, 8, round % 2 == 0);
    ExpectCallOfLists(MatMult(rows.Matrix(), Vars(columns)));
    Rows const turned = RandomRows(random, 8, 5, round % 2 == 0);
    ExpectCallOfLists(MatMult(Vars(columns), turned.Matrix()));
  }
}

TEST_F(SparseRowsTest, RandomProductsWithTwoAxes) {
  std::mt19937 random(6);
  for (int round = 0; round < 10; ++round) {
    Rows const rows = RandomRows(random, 6, 4, round % 2 == 0);
    auto const x = MVar<2>(AllVars().Reshape(Vorq::NDim<2>({4, 2})));
    ExpectCallOfLists(MatMult(rows.Matrix(), x));
    ExpectCallOfLists(MatMult(x.Transpose(), RandomRows(random, 4, 3, round % 2 == 0).Matrix()));
  }
}

TEST_F(SparseRowsTest, VariablesRemovedBehindTheProduct) {
  std::mt19937 random(7);
  Rows const rows = RandomRows(random, 9, 8, true);
  MLinExpr<1> const product = MatMult(rows.Matrix(), AllVars());
  ExpectCallOfLists(product);
  // The removed one disappears at once, the columns of the others move with the next solve.
  y_->Remove();
  ExpectCallOfLists(product);
  model_->Solve();
  ExpectCallOfLists(product);
  EXPECT_EQ(all_[7].Idx(), 6);
}

TEST_F(SparseRowsTest, VariablesOfALongerModel) {
  auto const other = Own(envr_->CreateModel("other"));
  auto const vars = Own(other->AddVars(200, 'C', "x"));
  all_[2] = Vorq::Unwrap(Own(vars->Get(150)).get());
  Rows const rows = Rows(8).Add({{2, 1.0}, {0, 2.0}}).Add({{2, 1.0}, {2, 2.0}}).Add({{1, 1.0}, {2, 2.0}});
  ExpectCallOfLists(MatMult(rows.Matrix(), AllVars()));
}

TEST_F(SparseRowsTest, RowsAmongOthers) {
  std::mt19937 random(8);
  auto const v = AddBlock<1>({2});
  std::vector<MExpression> cells = Vorq::CellList(MatMult(RandomRows(random, 6, 8, true).Matrix(), AllVars()));
  std::vector<MExpression> const others =
      Vorq::CellList(MatMult(RandomRows(random, 6, 8, true).Matrix(), Vars({3, 1, 0, 2, 7, 6, 5, 4})));
  std::vector<MExpression> mixed;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    mixed.insert(mixed.end(), {cells[i], others[i], Lazy({1.0, 2.0}, v), Cell({{x_, 1.0}}, 2.0), cells[i]});
    mixed.back().AddTerm(Vorq::Unwrap(z_.get()), 1.5);
    mixed.back().AddConstant(-2.0);
    mixed.push_back(cells[i]);
    mixed.back().Multiply(-3.0);
    mixed.push_back(cells[i]);
    mixed.back().Multiply(0.0);
  }
  EXPECT_EQ(CallOf(mixed), CallOf(Listed(mixed)));
  std::ranges::reverse(cells);
  EXPECT_EQ(CallOf(cells), CallOf(Listed(cells)));
  cells.insert(cells.begin() + 3, cells.front());
  EXPECT_EQ(CallOf(cells), CallOf(Listed(cells)));
}

TEST_F(SparseRowsTest, AFewRowsOfALargeProduct) {
  std::vector<Vorq::Var> many(5000, all_[1]);
  for (std::size_t i = 0; i < many.size(); i += 2) many[i] = all_[i % 8];
  Rows rows(5000);
  for (int i = 0; i < 1000; ++i) rows.Add({{i, 1.0}, {4 * i + 2, 2.0}, {i + 7, 3.0}, {i, 4.0}, {0, 1.0}, {4999, 2.0}});
  MLinExpr<1> const product = MatMult(rows.Matrix(), MVar<1>(Vorq::NdaFromArray<Vorq::Var>(many)));
  for (std::size_t const row : {0, 17, 999}) {
    std::vector<MExpression> const cells = {product.Get(row), product.Get(5)};
    EXPECT_EQ(CallOf(cells), CallOf(Listed(cells)));
  }
  ExpectCallOfLists(product);
}

TEST_F(SparseRowsTest, CellsInOtherCalls) {
  Rows const rows = Rows(8).Add({{7, 1.0}, {0, 2.0}, {7, 3.0}, {1, 0.0}});
  MExpression const cell = MatMult(rows.Matrix(), AllVars()).Get(0);
  auto const handle = Own(Vorq::Wrap<Vorq::IMExpression>(cell));
  double_.ClearLog();
  Own(model_->AddConstr(handle.get(), 'L', 5.0, "c"));
  model_->SetObjective(handle.get(), 0);
  EXPECT_CALLS(double_, {R"_(VORQ_AddRow(prob#1, 2, [7,0], [4,2], 'L', 5, 1e+30, "c"))_",
                         "VORQ_ReplaceColObj(prob#1, 2, [7,0], [4,2])", "VORQ_SetObjConst(prob#1, 0)"});
}

TEST_F(SparseRowsTest, TheProductStaysAsItIs) {
  std::mt19937 random(9);
  MLinExpr<1> const product = MatMult(RandomRows(random, 9, 8, false).Matrix(), AllVars());
  std::string const before = product.ToString(1000);
  auto const handle = Own(Vorq::WrapBlock(product.Clone()));
  Own(model_->AddMConstr(handle.get(), 'L', 0.0, "c"));
  EXPECT_EQ(product.ToString(1000), before);
  EXPECT_EQ(handle->ToString(1000), before);
}

}  // namespace
