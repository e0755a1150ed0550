// Cells that share the terms of a sparse product, beside cells that list the same terms: nothing that can be seen of
// them differs, whatever is done with them.
#include <functional>
#include <limits>
#include <random>
#include <thread>

#include "matrix/concat.hpp"
#include "matrix/dense_products.hpp"
#include "matrix/matrix_constr_builder.hpp"
#include "matrix/sparse_products.hpp"
#include "matrix/sum_axis.hpp"
#include "model/cell_terms.hpp"
#include "tests/operators/operand_fixture.hpp"

namespace vorqtest {

using Vorq::Expr;
using Vorq::MatMult;
using Vorq::MExpression;
using Vorq::MLinExpr;
using Vorq::MQExpression;
using Vorq::MVar;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::SparseMatrix;
using Vorq::SparseOrder;
using Vorq::Var;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Every bit of what expressions hold: constants, and terms in their order.
class Listing {
 public:
  void Number(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%a ", value);
    out_ += text;
  }
  void Term(Var const& var, double coefficient) {
    Number(coefficient);
    out_ +=
        std::string(var.GetName()) + '@' + std::to_string(var.Idx()) + ' ' + (var.status.Failed() ? "failed, " : ", ");
  }
  void Add(Expr const& expr) {
    Number(expr.constant);
    for (std::size_t i = 0; i < expr.Size(); ++i) Term(expr.vars[i], expr.coeffs[i]);
    out_ += '|';
  }
  void Add(MExpression const& cell) {
    Number(cell.GetConstant());
    Number(cell.scale);
    out_ += std::to_string(cell.LazySize()) + ' ';
    cell.ForEachTerm([this](Var const& var, double factor) { Term(var, factor); });
    out_ += cell.ToString(1000) + '|';
  }
  void Add(MQExpression const& cell) {
    Add(cell.expr.linear);
    for (std::size_t i = 0; i < cell.expr.Size(); ++i) {
      Term(cell.expr.vars1[i], cell.expr.coeffs[i]);
      out_ += cell.expr.vars2[i].GetName();
    }
    out_ += cell.ToString(1000) + '|';
  }
  void Add(Vorq::PsdExpr const& cell) { Add(cell.linear); }
  template <class Cell, int N>
  void Add(Vorq::MatrixObject<Cell, N> const& block) {
    block.Cells().ForEach([this](Cell const& cell) { Add(cell); });
  }

  std::string const& Text() const { return out_; }

 private:
  std::string out_;
};

template <class Value>
std::string ListingOf(Value const& value) {
  Listing listing;
  listing.Add(value);
  return listing.Text();
}

class SparseCells : public OperandTest {
 public:
  // Rows with repeated places, zeros of both signs and numbers that are none, an empty one, and a long one.
  static constexpr int kRows = 6;
  static constexpr int kColumns = 7;

  SparseCells() {
    AddRow({{2, 1.5}, {0, -2.0}, {2, 0.5}, {6, 4.0}});
    AddRow({});
    AddRow({{1, 0.0}, {3, -0.0}, {4, kNaN}, {5, kInfinity}, {1, 1e-320}});
    AddRow({{6, 3.0}});
    AddRow({{0, 1.0}, {1, 1.0}, {2, 1.0}, {3, 1.0}});
    std::vector<std::pair<int, double>> row;
    for (int k = 0; k < 90; ++k) row.emplace_back(k * 5 % kColumns, 0.25 * (k % 9 - 4));
    AddRow(row);
    // A removed variable, one that never was, and one that has failed.
    Var failed = MakeVar("f", 4);
    Vorq::SetStatus(failed.status, 3, "failed");
    std::vector<Var> vars = MakeItems<Var>(4);
    vars.push_back(failed);
    vars.push_back(MakeVar("gone", -5));
    vars.push_back(Var());
    vars[6] = MakeVar("none", Vorq::kInvalidIndex);
    x_ = MVar<1>(Vorq::NdaFromArray<Var>(vars));
  }

  SparseMatrix Matrix() const {
    return {SparseOrder::kRows, kColumns, beg_.data(), kRows + 1, idx_.data(), val_.data()};
  }
  MLinExpr<1> Shared() const { return MatMult(Matrix(), x_); }
  // The same, term by term.
  MLinExpr<1> Listed() const {
    return MLinExpr<1>(NdArray<MExpression, 1>::Generated(NDim<1>({kRows}), [this](std::uint64_t i) {
      MExpression cell;
      for (int k = beg_[i]; k < beg_[i + 1]; ++k) {
        cell.AddTerm(x_.Get(static_cast<std::uint64_t>(idx_[static_cast<std::size_t>(k)])),
                     val_[static_cast<std::size_t>(k)]);
      }
      return cell;
    }));
  }

  MExpression Other() const {
    MExpression cell = LazyCell({2.0, 0.0, 3.0}, 10);
    cell.AddTerm(MakeVar("a", 20), 7.0);
    cell.AddConstant(0.5);
    return cell;
  }

 protected:
  void AddRow(std::vector<std::pair<int, double>> const& entries) {
    for (auto const& [column, value] : entries) {
      idx_.push_back(column);
      val_.push_back(value);
    }
    beg_.push_back(static_cast<int>(idx_.size()));
  }

  std::vector<int> beg_ = {0};
  std::vector<int> idx_;
  std::vector<double> val_;
  MVar<1> x_;
};

namespace {

TEST_F(SparseCells, ListTheTermsOfTheProduct) {
  EXPECT_EQ(ListingOf(Shared()), ListingOf(Listed()));
  MLinExpr<1> const shared = Shared();
  EXPECT_EQ(shared.Get(0).ExplicitSize(), 4U);
  EXPECT_EQ(shared.Get(0).expr.Size(), 0U);
  EXPECT_EQ(ListingOf(shared.Get(5).ExplicitPart()), ListingOf(Listed().Get(5).ExplicitPart()));
}

TEST_F(SparseCells, PrintAsListsDo) {
  MLinExpr<1> const shared = Shared();
  MLinExpr<1> const listed = Listed();
  EXPECT_EQ(shared.Get(0).ToString(1000), "1.5 * x2 - 2 * x0 + 0.5 * x2");
  for (std::uint64_t limit = 0; limit < 900; limit += limit < 100 ? 1 : 50) {
    for (std::uint64_t i = 0; i < kRows; ++i) EXPECT_EQ(shared.Get(i).ToString(limit), listed.Get(i).ToString(limit));
    EXPECT_EQ(shared.ToString(limit), listed.ToString(limit));
  }
}

TEST_F(SparseCells, DoNotSeeLaterWritesToTheVariables) {
  MLinExpr<1> const shared = Shared();
  std::string const before = ListingOf(shared);
  for (std::uint64_t i = 0; i < kColumns; ++i) x_.Set(i, MakeVar("new", 50));
  EXPECT_EQ(ListingOf(shared), before);
}

TEST_F(SparseCells, DoNotSeeLaterWritesToTheMatrix) {
  MLinExpr<1> const shared = Shared();
  std::string const before = ListingOf(shared);
  std::fill(val_.begin(), val_.end(), 99.0);
  std::fill(idx_.begin(), idx_.end(), 0);
  EXPECT_EQ(ListingOf(shared), before);
}

TEST_F(SparseCells, SeeWhatBecomesOfTheirVariables) {
  MLinExpr<1> const shared = Shared();
  x_.Get(2).Record().idx = -7;
  x_.Get(0).Record().name = "renamed";
  EXPECT_EQ(shared.Get(0).ToString(1000), " - 2 * renamed");
  EXPECT_EQ(ListingOf(shared), ListingOf(Listed()));
}

TEST_F(SparseCells, OfFewEntriesInALongVector) {
  MVar<1> const many = MakeVars<1>({1000});
  std::vector<int> const beg = {0, 2, 3};
  std::vector<int> const idx = {999, 5, 999};
  std::vector<double> const val = {1.0, 2.0, 3.0};
  EXPECT_EQ(
      MatMult(SparseMatrix{SparseOrder::kRows, 1000, beg.data(), 3, idx.data(), val.data()}, many).ToString(1000),
      MatMult(many, SparseMatrix{SparseOrder::kColumns, 1000, beg.data(), 3, idx.data(), val.data()}).ToString(1000));
  MLinExpr<1> const rows = MatMult(SparseMatrix{SparseOrder::kRows, 1000, beg.data(), 3, idx.data(), val.data()}, many);
  EXPECT_EQ(rows.Get(0).ToString(1000), "x999 + 2 * x5");
  EXPECT_EQ(rows.Get(1).ToString(1000), "3 * x999");
  MVar<2> const two = MakeVars<2>({1000, 2});
  MLinExpr<2> const pairs = MatMult(SparseMatrix{SparseOrder::kRows, 1000, beg.data(), 3, idx.data(), val.data()}, two);
  EXPECT_EQ(pairs.Get(1).ToString(1000), "x1999 + 2 * x11");
  EXPECT_EQ(pairs.Get(2).ToString(1000), "3 * x1998");
}

// ---- Changes

struct Change {
  char const* name;
  void (*apply)(SparseCells const& test, MExpression& cell);

  friend std::ostream& operator<<(std::ostream& out, Change const& change) { return out << change.name; }
};

template <int kTimes>
void MultiplyBy(SparseCells const&, MExpression& cell) {
  cell.Multiply(kTimes);
}

Change const kChanges[] = {
    {"AddTerm", [](SparseCells const& test, MExpression& cell) { cell.AddTerm(test.Other().vars[0], 2.5); }},
    {"AddConstant", [](SparseCells const&, MExpression& cell) { cell.AddConstant(2.5); }},
    {"SetConstant", [](SparseCells const&, MExpression& cell) { cell.SetConstant(-0.0); }},
    {"AddExpr", [](SparseCells const& test, MExpression& cell) { cell.AddExpr(test.Other().expr, -1.0); }},
    {"AddNoExpr", [](SparseCells const& test, MExpression& cell) { cell.AddExpr(test.Other().expr, 0.0); }},
    {"AddCell", [](SparseCells const& test, MExpression& cell) { cell.AddMExpression(test.Other(), 1.0); }},
    {"AddScaledCell", [](SparseCells const& test, MExpression& cell) { cell.AddMExpression(test.Other(), -3.0); }},
    {"AddItself", [](SparseCells const&, MExpression& cell) { cell.AddMExpression(cell, 1.0); }},
    {"AddItselfScaled", [](SparseCells const&, MExpression& cell) { cell.AddMExpression(cell, -0.5); }},
    {"AddACopy", [](SparseCells const&, MExpression& cell) { cell.AddMExpression(MExpression(cell), 1.0); }},
    {"SubtractACopy", [](SparseCells const&, MExpression& cell) { cell.AddMExpression(MExpression(cell), -1.0); }},
    {"MultiplyByZero", MultiplyBy<0>},
    {"MultiplyByOne", MultiplyBy<1>},
    {"MultiplyByMinusOne", MultiplyBy<-1>},
    {"MultiplyByThree", MultiplyBy<3>},
    {"MultiplyByNaN", [](SparseCells const&, MExpression& cell) { cell.Multiply(kNaN); }},
    {"MultiplyByInfinity", [](SparseCells const&, MExpression& cell) { cell.Multiply(kInfinity); }},
    {"MultiplyTwice",
     [](SparseCells const&, MExpression& cell) {
       cell.Multiply(1.1);
       cell.Multiply(1.3);
     }},
    {"ZeroThenMore",
     [](SparseCells const& test, MExpression& cell) {
       cell.Multiply(0.0);
       cell.AddMExpression(test.Shared().Get(0), 1.0);
     }},
    {"TakenByAnEmptyCell",
     [](SparseCells const&, MExpression& cell) {
       MExpression target(4.0);
       target.AddMExpression(cell, 1.0);
       cell = target;
     }},
    {"TakenByALazyCell",
     [](SparseCells const& test, MExpression& cell) {
       MExpression target = test.Other();
       target.Multiply(0.0);
       target.AddMExpression(cell, 1.0);
       cell = target;
     }},
};

class ChangedSparseCells : public SparseCells, public testing::WithParamInterface<Change> {};

TEST_P(ChangedSparseCells, AreWhatChangedListsAre) {
  MLinExpr<1> shared = Shared();
  MLinExpr<1> listed = Listed();
  for (Change const& second : kChanges) {
    MLinExpr<1> ours = shared.Clone();
    MLinExpr<1> theirs = listed.Clone();
    for (MLinExpr<1>* block : {&ours, &theirs}) {
      block->ForEach([&](MExpression& cell) {
        GetParam().apply(*this, cell);
        second.apply(*this, cell);
      });
    }
    EXPECT_EQ(ListingOf(ours), ListingOf(theirs)) << second.name;
  }
}

TEST_P(ChangedSparseCells, LeaveCopiesAsTheyWere) {
  MLinExpr<1> shared = Shared();
  MLinExpr<1> const clone = shared.Clone();
  std::string const before = ListingOf(clone);
  shared.ForEach([this](MExpression& cell) { GetParam().apply(*this, cell); });
  EXPECT_EQ(ListingOf(clone), before);
}

INSTANTIATE_TEST_SUITE_P(AllChanges, ChangedSparseCells, testing::ValuesIn(kChanges),
                         [](testing::TestParamInfo<Change> const& change) { return change.param.name; });

// ---- Use in other operations

struct Use {
  char const* name;
  std::string (*apply)(SparseCells const& test, MLinExpr<1> const& block);

  friend std::ostream& operator<<(std::ostream& out, Use const& use) { return out << use.name; }
};

template <class Make>
std::string OfEach(MLinExpr<1> const& block, Make make) {
  Listing listing;
  block.Cells().ForEach([&](MExpression const& cell) { listing.Add(make(cell)); });
  return listing.Text();
}

NdArray<double, 1> Numbers() {
  return NdArray<double, 1>::Generated(NDim<1>({SparseCells::kRows}),
                                       [](std::uint64_t i) { return 0.5 * static_cast<double>(i) - 1.0; });
}

Use const kUses[] = {
    {"AddTo",
     [](SparseCells const& test, MLinExpr<1> const& block) {
       std::string text;
       for (double const c : {0.0, 1.0, -1.0, 2.5, kNaN}) {
         text += OfEach(block, [&](MExpression const& cell) {
           Expr target = test.Other().expr;
           cell.AddTo(target, c);
           return target;
         });
       }
       return text;
     }},
    {"PlusNumbers", [](SparseCells const&, MLinExpr<1> const& block) { return ListingOf(Add(block, Numbers())); }},
    {"MinusNumbers", [](SparseCells const&, MLinExpr<1> const& block) { return ListingOf(Sub(block, Numbers())); }},
    {"NumbersMinus", [](SparseCells const&, MLinExpr<1> const& block) { return ListingOf(Sub(Numbers(), block)); }},
    {"TimesNumbers", [](SparseCells const&, MLinExpr<1> const& block) { return ListingOf(Mul(block, Numbers())); }},
    {"PlusItself", [](SparseCells const&, MLinExpr<1> const& block) { return ListingOf(Add(block, block)); }},
    {"MinusItself", [](SparseCells const&, MLinExpr<1> const& block) { return ListingOf(Sub(block, block)); }},
    {"TimesItself", [](SparseCells const&, MLinExpr<1> const& block) { return ListingOf(Mul(block, block)); }},
    {"TimesVariables",
     [](SparseCells const& test, MLinExpr<1> const& block) {
       MVar<1> const vars(NDim<1>({SparseCells::kRows}), test.Other().vars[1]);
       return ListingOf(Mul(block, vars)) + ListingOf(Mul(vars, block)) + ListingOf(Sub(vars, block));
     }},
    {"WithPsdCells",
     [](SparseCells const& test, MLinExpr<1> const& block) {
       Vorq::PsdExpr psd;
       psd.linear = test.Other().expr;
       Vorq::MPsdExpr<1> const cells(NDim<1>({SparseCells::kRows}), psd);
       return ListingOf(Add(block, cells)) + ListingOf(Sub(cells, block)) + ListingOf(Sub(block, cells));
     }},
    {"WithQuadraticCells",
     [](SparseCells const& test, MLinExpr<1> const& block) {
       MQExpression quad;
       quad.AddProduct(test.Other(), test.Other().vars[0]);
       Vorq::MQuadExpr<1> const cells(NDim<1>({SparseCells::kRows}), quad);
       return ListingOf(Add(block, cells)) + ListingOf(Sub(cells, block));
     }},
    {"Products",
     [](SparseCells const& test, MLinExpr<1> const& block) {
       return OfEach(block, [&](MExpression const& cell) {
         MQExpression target;
         target.AddProduct(cell, test.Other().vars[0]);
         target.AddProduct(cell, test.Other().expr);
         for (double const c : {1.0, -2.0}) {
           target.AddProduct(cell, test.Other(), c);
           target.AddProduct(test.Other(), cell, c);
         }
         return target;
       });
     }},
    {"DenseProducts",
     [](SparseCells const&, MLinExpr<1> const& block) {
       return ListingOf(MatMult(Numbers(), block)) + ListingOf(MatMult(block, block));
     }},
    {"ExpandedDenseProducts",
     [](SparseCells const&, MLinExpr<1> const& block) {
       MQExpression target;
       target.AddMQExpression(MatMult(block, block).Get(0), 1.5);
       return ListingOf(target);
     }},
    {"SparseProducts",
     [](SparseCells const&, MLinExpr<1> const& block) {
       std::vector<int> const beg = {0, 3, 4};
       std::vector<int> const idx = {5, 0, 5, 2};
       std::vector<double> const val = {2.0, 0.0, -1.0, 1.0};
       return ListingOf(
           MatMult(SparseMatrix{SparseOrder::kRows, SparseCells::kRows, beg.data(), 3, idx.data(), val.data()}, block));
     }},
    {"Sums",
     [](SparseCells const&, MLinExpr<1> const& block) { return ListingOf(Sum(block)) + ListingOf(SumAxis(block, 0)); }},
    {"Concatenation",
     [](SparseCells const&, MLinExpr<1> const& block) {
       Vorq::MQuadExpr<1> const quads(NDim<1>({2}), MQExpression(1.0));
       return ListingOf(Concat(block, block, 0)) + ListingOf(Concat(block, quads, 0));
     }},
    {"Shapes",
     [](SparseCells const&, MLinExpr<1> const& block) {
       return ListingOf(block.Repeat(2, 0)) + ListingOf(block.Reshape(NDim<2>({3, 2})).Transpose().Flatten());
     }},
    {"Builders",
     [](SparseCells const& test, MLinExpr<1> const& block) {
       Vorq::MConstrBuilder<1> builder;
       builder.Set(block, 'L', Numbers());
       Listing listing;
       listing.Add(builder.Flatten().expr);
       for (Vorq::ConstrBuilder const& single : ToConstrBuilderArray(builder)) listing.Add(single.expr);
       builder.Set(block, 'E', MLinExpr<1>(NDim<1>({SparseCells::kRows}), test.Other()));
       listing.Add(builder.expr);
       return listing.Text();
     }},
    {"Entries",
     [](SparseCells const&, MLinExpr<1> const& block) {
       std::vector<int> marks(10), indices;
       std::vector<double> coefficients;
       Listing listing;
       block.Cells().ForEach([&](MExpression const& cell) {
         listing.Number(static_cast<double>(Vorq::CollectTerms(cell, marks, indices, coefficients)));
       });
       for (std::size_t k = 0; k < indices.size(); ++k) {
         listing.Number(indices[k]);
         listing.Number(coefficients[k]);
       }
       return listing.Text();
     }},
    {"QuadraticEntries",
     [](SparseCells const&, MLinExpr<1> const& block) {
       std::vector<int> rows, cols;
       std::vector<double> values;
       Vorq::CollectQuadTerms(MatMult(block, block).Get(0), rows, cols, values);
       Listing listing;
       for (std::size_t k = 0; k < values.size(); ++k) {
         for (double const number : {double(rows[k]), double(cols[k]), values[k]}) listing.Number(number);
       }
       return listing.Text();
     }},
};

class UsedSparseCells : public SparseCells, public testing::WithParamInterface<Use> {};

TEST_P(UsedSparseCells, GiveWhatListsGive) {
  MLinExpr<1> shared = Shared();
  std::string const before = ListingOf(shared);
  EXPECT_EQ(GetParam().apply(*this, shared), GetParam().apply(*this, Listed()));
  EXPECT_EQ(ListingOf(shared), before);
}

TEST_P(UsedSparseCells, GiveWhatListsGiveWithTermsBehindThem) {
  MLinExpr<1> shared = Shared();
  MLinExpr<1> listed = Listed();
  for (MLinExpr<1>* block : {&shared, &listed}) {
    block->ForEach([this](MExpression& cell) {
      cell.AddTerm(Other().vars[0], 2.0);
      cell.AddConstant(1.25);
    });
  }
  EXPECT_EQ(GetParam().apply(*this, shared), GetParam().apply(*this, listed));
}

INSTANTIATE_TEST_SUITE_P(AllUses, UsedSparseCells, testing::ValuesIn(kUses),
                         [](testing::TestParamInfo<Use> const& use) { return use.param.name; });

// ---- Threads

TEST_F(SparseCells, AreReadByTwoThreadsAtOnce) {
  MLinExpr<1> const shared = Shared();
  std::string const expected = ListingOf(shared);
  std::string texts[2];
  std::vector<std::thread> threads;
  for (std::string& text : texts) {
    threads.emplace_back([&text, &shared] {
      for (int i = 0; i < 20; ++i) {
        text = ListingOf(shared);
        MLinExpr<1> copy = shared.Clone();
        copy.ForEach([](MExpression& cell) { cell.Multiply(2.0); });
        static_cast<void>(Sum(shared));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(texts[0], expected);
  EXPECT_EQ(texts[1], expected);
}

}  // namespace
}  // namespace vorqtest
