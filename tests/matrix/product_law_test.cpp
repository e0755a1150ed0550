// The law of the dense products: what a result is worth at a point is the product of what the operands are worth, for
// all groups and pairs of ranks, with operands of all layouts. Shapes, stores and operands are checked on the way.
#include "matrix/dense_products.hpp"
#include "tests/ndarray/arrays.hpp"
#include "tests/operators/operand_fixture.hpp"

namespace vorqtest {
namespace {

using Vorq::NdArray;
using Vorq::NDim;
using Vorq::OperandCells;

// How an operand lies in its store: row behind row, column behind column, every second element from behind, or a single
// row, or element, that is read again and again.
enum class Layout { kCompact, kTransposed, kSliced, kStretched };
constexpr Layout kLayouts[] = {Layout::kCompact, Layout::kTransposed, Layout::kSliced, Layout::kStretched};

class ProductLaw;

struct ProductGroup {
  std::string name;  // "Dbl_Var"
  void (*check)(ProductLaw& law);

  friend std::ostream& operator<<(std::ostream& out, ProductGroup const& group) { return out << group.name; }
};

class ProductLaw : public OperandTest, public testing::WithParamInterface<ProductGroup> {
 public:
  static constexpr std::uint64_t kRows = 2, kInner = 3, kColumns = 4;

  void TestBody() override {}

  template <class Cell, int N>
  Vorq::BlockOf<Cell, N> MakeFactor(Sizes<N> const& sizes, int seed, Layout layout) const {
    if (layout == Layout::kSliced) {
      Sizes<N> doubled = sizes;
      Vorq::View view;
      for (std::uint64_t& size : doubled) {
        size *= 2;
        view.Slice(-1, 0, -2, Vorq::Slice::kStopOmitted);
      }
      return Vorq::BlockOf<Cell, N>(Vorq::CellsOf(MakeOperand<Cell, N>(doubled, seed)).View(view));
    }
    if (layout == Layout::kStretched) {
      Sizes<N> single = sizes;
      single.front() = 1;
      return Vorq::BlockOf<Cell, N>(
          arrays::Stretched(Vorq::CellsOf(MakeOperand<Cell, N>(single, seed)), NDim<N>(sizes)));
    }
    return MakeOperand<Cell, N>(sizes, seed, layout == Layout::kTransposed);
  }

  // The product of the values, each operand being a matrix of the given number of rows.
  static std::vector<double> Multiply(std::vector<double> const& left, std::vector<double> const& right,
                                      std::uint64_t rows, std::uint64_t columns) {
    std::vector<double> product;
    for (std::uint64_t i = 0; i < rows; ++i) {
      for (std::uint64_t j = 0; j < columns; ++j) {
        double sum = 0.0;
        for (std::uint64_t k = 0; k < kInner; ++k) sum += left[i * kInner + k] * right[k * columns + j];
        product.push_back(sum);
      }
    }
    return product;
  }

  template <class Left, int L, class Right, int R>
  void CheckLayouts(Layout leftLayout, Layout rightLayout) const {
    SCOPED_TRACE("ranks " + std::to_string(L) + " and " + std::to_string(R) + ", layouts " +
                 std::to_string(static_cast<int>(leftLayout)) + " and " +
                 std::to_string(static_cast<int>(rightLayout)));
    Sizes<L> leftSizes{};
    Sizes<R> rightSizes{};
    leftSizes.front() = kRows;
    leftSizes.back() = kInner;
    rightSizes.back() = kColumns;
    rightSizes.front() = kInner;
    auto const left = MakeFactor<Left, L>(leftSizes, 1, leftLayout);
    auto const right = MakeFactor<Right, R>(rightSizes, 8, rightLayout);
    Outcome const leftBefore = Read(left);
    Outcome const rightBefore = Read(right);

    Outcome const result = Read(Vorq::MatMult(left, right));

    EXPECT_EQ(result.code, 0);
    EXPECT_TRUE(result.isCompact);
    EXPECT_NE(result.store, leftBefore.store);
    EXPECT_NE(result.store, rightBefore.store);
    std::vector<std::uint64_t> sizes;
    if (L == 2) sizes.push_back(kRows);
    if (R == 2) sizes.push_back(kColumns);
    EXPECT_EQ(result.sizes, sizes);
    EXPECT_EQ(result.values,
              Multiply(leftBefore.values, rightBefore.values, L == 2 ? kRows : 1, R == 2 ? kColumns : 1));
    EXPECT_EQ(Read(left).values, leftBefore.values);
    EXPECT_EQ(Read(right).values, rightBefore.values);
  }

  template <class Left, int L, class Right, int R>
  void CheckFailure() const {
    Sizes<L> leftSizes{};
    Sizes<R> rightSizes{};
    leftSizes.fill(3);
    rightSizes.fill(2);
    auto const product = Vorq::MatMult(MakeOperand<Left, L>(leftSizes, 1), MakeOperand<Right, R>(rightSizes, 2));
    Outcome const result = Read(product);
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.message, "(INVALID) Operand 1 has a mismatch at axis " + std::to_string(L - 1) + ", size 3 != 2");
    EXPECT_EQ(result.sizes, std::vector<std::uint64_t>(L + R - 2, 1));
    EXPECT_EQ(result.values, std::vector<double>{0.0});
  }

  template <class Left, int L, class Right, int R, class Result>
  void CheckRanks() const {
    using Product =
        decltype(Vorq::MatMult(std::declval<Vorq::BlockOf<Left, L>>(), std::declval<Vorq::BlockOf<Right, R>>()));
    static_assert(std::is_same_v<Product, Vorq::BlockOf<Result, L + R - 2>>);
    for (Layout left : kLayouts) {
      for (Layout right : kLayouts) CheckLayouts<Left, L, Right, R>(left, right);
    }
    CheckFailure<Left, L, Right, R>();
  }
};

#define VORQ_ENTRY(L, R, RESULT, Left, Right, Result) \
  law.CheckRanks<OperandCells::Left, L, OperandCells::Right, R, OperandCells::Result>();
#define VORQ_PRODUCT(Left, Right, Result) \
  {#Left "_" #Right, [](ProductLaw& law) { VORQ_PRODUCT_RANKS(VORQ_ENTRY, Left, Right, Result) }},

std::vector<ProductGroup> const& ProductGroups() {
  static std::vector<ProductGroup> const groups = {
#include "matrix/product_groups.inc"
  };
  return groups;
}

#undef VORQ_ENTRY

TEST_P(ProductLaw, ResultIsWorthTheProductOfTheOperands) {
  GetParam().check(*this);
}

INSTANTIATE_TEST_SUITE_P(AllGroups, ProductLaw, testing::ValuesIn(ProductGroups()),
                         [](testing::TestParamInfo<ProductGroup> const& group) { return group.param.name; });

#define VORQ_ENTRY(...) +1
#define VORQ_PRODUCT(...) VORQ_PRODUCT_RANKS(VORQ_ENTRY, )
TEST(ProductTable, HasEveryOperation) {
  constexpr int kOperations = 0
#include "matrix/product_groups.inc"
      ;
  // The rest are those of arrays of variables.
  EXPECT_EQ(kOperations, 148 - 12);
  EXPECT_EQ(ProductGroups().size(), 34U);
}
#undef VORQ_ENTRY

template <class Left, class Right>
constexpr bool kHasProduct = requires(Left const& left, Right const& right) {
  Vorq::MatMult(left, right);
};

TEST(ProductTable, HasNoOtherPair) {
  // No product of blocks and PSD expressions, of a quadratic factor, of long long numbers on the right among arrays.
  EXPECT_TRUE((kHasProduct<Vorq::MVar<1>, Vorq::MVar<1>>));
  EXPECT_FALSE((kHasProduct<Vorq::MVar<1>, Vorq::MQuadExpr<1>>));
  EXPECT_FALSE((kHasProduct<Vorq::MPsdExpr<1>, Vorq::MVar<1>>));
  EXPECT_FALSE((kHasProduct<NdArray<double, 1>, NdArray<long long, 1>>));
  EXPECT_FALSE((kHasProduct<NdArray<char, 1>, Vorq::MVar<1>>));
  EXPECT_FALSE((kHasProduct<NdArray<double, 0>, Vorq::MVar<1>>));
  EXPECT_FALSE((kHasProduct<NdArray<double, 3>, Vorq::MVar<1>>));
  EXPECT_FALSE((kHasProduct<Vorq::VarArray, Vorq::MVar<1>>));
}

}  // namespace
}  // namespace vorqtest
