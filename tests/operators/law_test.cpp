// The law of the operators: what the result is worth at a point is the operation on what the operands are worth, for
// all groups and pairs of ranks, with stretched and strided operands. Shapes, stores and failures are checked on the
// way.
#include "tests/operators/law_table.hpp"

#include <array>
#include <map>

#include "vorqmodel/exports.h"

namespace vorqtest {
namespace {

using SizeList = std::vector<std::uint64_t>;

struct Form {
  SizeList sizes;
  bool strided = false;
};

// All sizes of one place are 1 or the same number, so that all forms fit each other.
std::vector<Form> FormsOfRank(int rank) {
  switch (rank) {
    case 0: return {{{}}};
    case 1: return {{{3}}, {{1}}};
    case 2: return {{{2, 3}}, {{2, 3}, true}, {{2, 1}}, {{1, 3}}};
    default: return {{{4, 2, 3}}, {{4, 2, 3}, true}, {{1, 2, 1}}, {{4, 1, 3}, true}};
  }
}

// An operand behind its interface.
struct LawOperand {
  std::shared_ptr<void> interface;
  Outcome (*read)(void* interface) = nullptr;

  Outcome Read() const { return read(interface.get()); }
};

class Law : public OperandTest, public testing::WithParamInterface<LawGroup> {
 protected:
  template <class Cell, int N>
  LawOperand MakeRanked(Form const& form, int seed) const {
    Sizes<N> sizes{};
    std::copy_n(form.sizes.begin(), N, sizes.begin());
    auto block = MakeOperand<Cell, N>(sizes, seed, form.strided);
    auto* const wrapped = WrapOperand(std::move(block));
    using Interface = std::remove_pointer_t<decltype(wrapped)>;
    return {std::shared_ptr<Interface>(wrapped),
            [](void* interface) { return OperandTest::Read(Vorq::Unwrap(static_cast<Interface*>(interface))); }};
  }

  template <class Cell>
  LawOperand MakeOf(Form const& form, int seed) const {
    switch (form.sizes.size()) {
      case 0: return MakeRanked<Cell, 0>(form, seed);
      case 1: return MakeRanked<Cell, 1>(form, seed);
      case 2: return MakeRanked<Cell, 2>(form, seed);
      default: return MakeRanked<Cell, 3>(form, seed);
    }
  }

  LawOperand Make(Kind kind, Form const& form, int seed) const {
    switch (kind) {
      case Kind::Var: return MakeOf<Vorq::Var>(form, seed);
      case Kind::Lin: return MakeOf<Vorq::MExpression>(form, seed);
      case Kind::Quad: return MakeOf<Vorq::MQExpression>(form, seed);
      case Kind::Psd: return MakeOf<Vorq::PsdExpr>(form, seed);
      case Kind::Dbl: return MakeOf<double>(form, seed);
      case Kind::Lng: return MakeOf<long long>(form, seed);
      default: return MakeOf<int>(form, seed);
    }
  }

  static double Operate(std::string const& operation, double a, double b) {
    return operation == "Add" ? a + b : operation == "Sub" ? a - b : a * b;
  }

  // The flat index in an array of `sizes` of what stands at flat index i of the common sizes, which align at the last.
  static std::size_t SourceIndex(SizeList const& sizes, SizeList const& common, std::size_t i) {
    std::size_t index = 0;
    std::size_t step = 1;
    for (std::size_t k = 0; k < common.size(); ++k) {
      std::size_t const coordinate = i % common[common.size() - 1 - k];
      i /= common[common.size() - 1 - k];
      if (k >= sizes.size()) continue;
      std::size_t const size = sizes[sizes.size() - 1 - k];
      index += (size == 1 ? 0 : coordinate) * step;
      step *= size;
    }
    return index;
  }

  static SizeList CommonSizes(SizeList const& a, SizeList const& b) {
    SizeList common(std::max(a.size(), b.size()), 1);
    for (SizeList const* sizes : {&a, &b}) {
      std::size_t const front = common.size() - sizes->size();
      for (std::size_t k = 0; k < sizes->size(); ++k) common[front + k] = std::max(common[front + k], (*sizes)[k]);
    }
    return common;
  }

  static std::string Text(SizeList const& sizes) {
    std::string text;
    for (std::uint64_t size : sizes) text += (text.empty() ? "" : ", ") + std::to_string(size);
    return "(" + text + ")";
  }

  void Check(LawEntry const& entry, Form const& leftForm, Form const& rightForm) {
    SCOPED_TRACE(Text(leftForm.sizes) + (leftForm.strided ? " strided" : "") + " with " + Text(rightForm.sizes) +
                 (rightForm.strided ? " strided" : ""));
    LawOperand const left = Make(GetParam().left, leftForm, 1);
    LawOperand const right = Make(GetParam().right, rightForm, 8);
    Outcome const leftBefore = left.Read();
    Outcome const rightBefore = right.Read();

    Outcome const result = entry.call(*helper_, left.interface.get(), right.interface.get());

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.message, "");
    EXPECT_TRUE(result.isCompact);
    EXPECT_NE(result.store, leftBefore.store);
    EXPECT_NE(result.store, rightBefore.store);
    SizeList const common = CommonSizes(leftForm.sizes, rightForm.sizes);
    ASSERT_EQ(result.sizes, common);
    std::vector<double> expected;
    for (std::size_t i = 0; i < result.values.size(); ++i) {
      expected.push_back(Operate(GetParam().operation, leftBefore.values[SourceIndex(leftForm.sizes, common, i)],
                                 rightBefore.values[SourceIndex(rightForm.sizes, common, i)]));
    }
    EXPECT_EQ(result.values, expected);
    EXPECT_EQ(left.Read().values, leftBefore.values);
    EXPECT_EQ(right.Read().values, rightBefore.values);
  }

  std::unique_ptr<Vorq::IBroadCastHelper> const helper_{CreateBroadCastHelper()};

 private:
  template <class Cell, int N>
  static auto* WrapOperand(Vorq::MatrixObject<Cell, N>&& block) {
    return Vorq::WrapBlock(std::move(block));
  }
  template <class T, int N>
  static auto* WrapOperand(Vorq::NdArray<T, N>&& array) {
    return Vorq::WrapArray(std::move(array));
  }
};

TEST_P(Law, ResultIsWorthTheOperationOnTheOperands) {
  ASSERT_EQ(GetParam().entries.size(), 16U);
  for (LawEntry const& entry : GetParam().entries) {
    ASSERT_EQ(entry.resultRank, std::max(entry.leftRank, entry.rightRank));
    for (Form const& left : FormsOfRank(entry.leftRank)) {
      for (Form const& right : FormsOfRank(entry.rightRank)) Check(entry, left, right);
    }
  }
}

TEST_P(Law, ShapesThatDoNotFitGiveOneDefaultCell) {
  for (LawEntry const& entry : GetParam().entries) {
    if (entry.leftRank == 0 || entry.rightRank == 0) continue;
    SizeList leftSizes(static_cast<std::size_t>(entry.leftRank), 2);
    SizeList rightSizes(static_cast<std::size_t>(entry.rightRank), 2);
    rightSizes.back() = 3;
    SCOPED_TRACE(Text(leftSizes) + " with " + Text(rightSizes));
    LawOperand const left = Make(GetParam().left, {leftSizes}, 1);
    LawOperand const right = Make(GetParam().right, {rightSizes}, 8);
    Outcome const result = entry.call(*helper_, left.interface.get(), right.interface.get());
    EXPECT_EQ(result.code, 3);
    // The text is one that has been copied: it has the prefix twice, and the room of a text.
    std::string const text = "(INVALID) Operand 1 of shape " + Text(leftSizes) +
                             " is not compatible with Operand 2 of shape " + Text(rightSizes);
    EXPECT_EQ(result.message, "(INVALID) " + text.substr(0, 95));
    EXPECT_EQ(result.sizes, SizeList(static_cast<std::size_t>(entry.resultRank), 1));
    EXPECT_EQ(result.values, std::vector<double>{0.0});
    EXPECT_EQ(left.Read().code, 0);
    EXPECT_EQ(right.Read().code, 0);
  }
}

INSTANTIATE_TEST_SUITE_P(AllGroups, Law, testing::ValuesIn(LawGroups()),
                         [](testing::TestParamInfo<LawGroup> const& group) { return group.param.name; });

TEST(LawTable, CoversEveryOperation) {
  static_assert(Vorq::kBroadcastGroups == 107);
  static_assert(Vorq::kBroadcastOperations == 1712);
  std::map<std::string, int> groupsOf;
  for (LawGroup const& group : LawGroups()) ++groupsOf[group.operation];
  EXPECT_EQ(groupsOf, (std::map<std::string, int>{{"Add", 39}, {"Mul", 29}, {"Sub", 39}}));
}

}  // namespace
}  // namespace vorqtest
