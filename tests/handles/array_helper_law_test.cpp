// The laws of the array service, checked for each of its operations.
#include <array>

#include "tests/handles/array_laws.hpp"

namespace vorqtest {
namespace {

using Vorq::IMConstr;
using Vorq::IMExpression;
using Vorq::IMHelper;
using Vorq::IMLinExpr;
using Vorq::IMPsdConstr;
using Vorq::IMPsdExpr;
using Vorq::IMQConstr;
using Vorq::IMQExpression;
using Vorq::IMQuadExpr;
using Vorq::IMVar;
using Vorq::INdArray;
using Vorq::INDim;
using Vorq::IPsdExpr;
using Vorq::IVar;
using Vorq::IVarArray;

// The first sizes of which fit a stretched operand, which has size 3 on its first axis.
SizeList const kSizesOfRank[] = {{}, {3}, {3, 2}, {3, 2, 4}};

// Calls check(left, right) for operands of these sizes in all pairs of layouts.
template <class Left, class Right, class Check>
void ForEachPairOfLayouts(ArrayLaw& test, SizeList const& leftSizes, SizeList const& rightSizes, Check const& check) {
  for (Layout leftLayout : kLayouts) {
    for (Layout rightLayout : kLayouts) {
      if (leftLayout == Layout::kStretched && leftSizes.front() != 3) continue;
      if (rightLayout == Layout::kStretched && rightSizes.front() != 3) continue;
      SCOPED_TRACE("layouts " + std::to_string(int(leftLayout)) + ", " + std::to_string(int(rightLayout)));
      check(*test.Make<Left>(leftSizes, leftLayout, 1), *test.Make<Right>(rightSizes, rightLayout, 8));
    }
  }
}

template <class Object, class Check>
void ForEachLayout(ArrayLaw& test, SizeList const& sizes, Check const& check) {
  for (Layout layout : kLayouts) {
    SCOPED_TRACE("layout " + std::to_string(int(layout)));
    check(*test.Make<Object>(sizes, layout, 1));
  }
}

struct MatMultLaw {
  template <class Result, class Left, class Right>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Left*, Right*)) {
    std::uint64_t const rows = kRankOf<Left> == 2 ? 3 : 1;
    std::uint64_t const columns = kRankOf<Right> == 2 ? 2 : 1;
    SizeList const leftSizes = kRankOf<Left> == 2 ? SizeList{3, 3} : SizeList{3};
    SizeList const rightSizes = kRankOf<Right> == 2 ? SizeList{3, 2} : SizeList{3};
    SizeList sizes;
    if (kRankOf<Left> == 2) sizes.push_back(rows);
    if (kRankOf<Right> == 2) sizes.push_back(columns);
    ForEachPairOfLayouts<Left, Right>(test, leftSizes, rightSizes, [&](Left& left, Right& right) {
      Outcome const a = ArrayLaw::ReadObject(&left);
      Outcome const b = ArrayLaw::ReadObject(&right);
      std::vector<double> expected;
      for (std::uint64_t i = 0; i < rows * columns; ++i) {
        double sum = 0.0;
        for (std::uint64_t k = 0; k < 3; ++k) {
          sum += a.values[i / columns * 3 + k] * b.values[k * columns + i % columns];
        }
        expected.push_back(sum);
      }
      ArrayLaw::ExpectFresh(ArrayLaw::Take((*test.helper_.*call)(&left, &right)), sizes, expected);
      ArrayLaw::ExpectUnchanged(ArrayLaw::ReadObject(&left), a);
      ArrayLaw::ExpectUnchanged(ArrayLaw::ReadObject(&right), b);
    });
  }

  // An array of variables is a vector of its variables. With int numbers it is something else.
  template <class Result, class Numbers>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Numbers*, IVarArray*)) {
    CheckArray<Numbers>(
        test, {3, 3}, [&](Numbers& numbers, IVarArray& vars) { return (*test.helper_.*call)(&numbers, &vars); },
        [&](Numbers& numbers, IMVar<1>& vars) { return test.helper_->MatMult(&numbers, &vars); });
  }
  template <class Result, class Numbers>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(IVarArray*, Numbers*)) {
    if constexpr (!std::is_same_v<CellOf<Numbers>, int>) {
      CheckArray<Numbers>(
          test, {3, 2}, [&](Numbers& numbers, IVarArray& vars) { return (*test.helper_.*call)(&vars, &numbers); },
          [&](Numbers& numbers, IMVar<1>& vars) { return test.helper_->MatMult(&vars, &numbers); });
    }
  }

  template <class Numbers, class Call, class CallOnBlock>
  static void CheckArray(ArrayLaw& test, SizeList sizes, Call const& call, CallOnBlock const& callOnBlock) {
    if (kRankOf<Numbers> == 1) sizes = {3};
    std::unique_ptr<IMVar<1>> const block = test.Make<IMVar<1>>({3}, Layout::kCompact, 4);
    std::unique_ptr<IVarArray> const array(Vorq::Wrap<IVarArray>());
    for (std::uint64_t i = 0; i < 3; ++i) array->PushBack(*std::unique_ptr<IVar>(block->Get(i)));
    ForEachLayout<Numbers>(test, sizes, [&](Numbers& numbers) {
      Outcome const expected = ArrayLaw::Take(callOnBlock(numbers, *block));
      ArrayLaw::ExpectFresh(ArrayLaw::Take(call(numbers, *array)), expected.sizes, expected.values);
    });
  }
};

struct DiagonalLaw {
  template <class Result, class Object>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Object*, int, int, int)) {
    SizeList const sizes = kSizesOfRank[kRankOf<Object>];
    constexpr int kRank = kRankOf<Object>;
    ForEachLayout<Object>(test, sizes, [&](Object& object) {
      for (int low = 0; low < kRank; ++low) {
        for (int high = low + 1; high < kRank; ++high) {
          for (int offset = -static_cast<int>(sizes[low]) + 1; offset < static_cast<int>(sizes[high]); ++offset) {
            SCOPED_TRACE("axes " + std::to_string(low) + ", " + std::to_string(high) + ", offset " +
                         std::to_string(offset));
            CheckOne(test, call, object, sizes, offset, low, high);
          }
        }
      }
      Outcome const before = ArrayLaw::ReadObject(&object);
      ArrayLaw::ExpectFailure(ArrayLaw::Take((*test.helper_.*call)(&object, 0, 1, 1)), kRank - 1,
                              "(INVALID) Axis 1 and axis 2 are the same (1)", before.values.front());
    });
  }

  template <class Result, class Object>
  static void CheckOne(ArrayLaw& test, Result* (IMHelper::*call)(Object*, int, int, int), Object& object,
                       SizeList const& sizes, int offset, int low, int high) {
    Outcome const before = ArrayLaw::ReadObject(&object);
    // The cells of the diagonal, in the order of the other axes and then along it.
    SizeList resultSizes = sizes;
    resultSizes.erase(resultSizes.begin() + high);
    resultSizes.erase(resultSizes.begin() + low);
    std::uint64_t length = 0;
    for (std::uint64_t i = 0; i < sizes[static_cast<std::size_t>(low)]; ++i) {
      auto const column = static_cast<std::int64_t>(i) + offset;
      if (column >= 0 && column < static_cast<std::int64_t>(sizes[static_cast<std::size_t>(high)])) ++length;
    }
    resultSizes.push_back(length);
    std::vector<double> expected;
    for (std::uint64_t i = 0; i < Count(resultSizes); ++i) {
      SizeList coordinates = Coordinates(resultSizes, i);
      std::uint64_t const along = coordinates.back();
      coordinates.pop_back();
      coordinates.insert(coordinates.begin() + low, along + static_cast<std::uint64_t>(std::max(0, -offset)));
      coordinates.insert(coordinates.begin() + high, along + static_cast<std::uint64_t>(std::max(0, offset)));
      expected.push_back(before.values[FlatIndex(sizes, coordinates)]);
    }
    ArrayLaw::ExpectView(ArrayLaw::Take((*test.helper_.*call)(&object, offset, low, high)), before, resultSizes,
                         expected);
    ArrayLaw::ExpectView(ArrayLaw::Take((*test.helper_.*call)(&object, offset, high, low)), before, resultSizes,
                         expected);
  }
};

struct ExpandDimsLaw {
  template <class Result, class Object>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Object*, int)) {
    constexpr int kRank = kRankOf<Object>;
    ForEachLayout<Object>(test, kSizesOfRank[kRank], [&](Object& object) {
      Outcome const before = ArrayLaw::ReadObject(&object);
      for (int axis = 0; axis <= kRank; ++axis) {
        SizeList sizes = before.sizes;
        sizes.insert(sizes.begin() + axis, 1);
        ArrayLaw::ExpectView(ArrayLaw::Take((*test.helper_.*call)(&object, axis)), before, sizes, before.values);
      }
      std::string const rank = std::to_string(kRank);
      ArrayLaw::ExpectFailure(ArrayLaw::Take((*test.helper_.*call)(&object, -1)), kRank + 1,
                              kRank == 0 ? "(INVALID) (INVALID) Axis is out of bounds: #axis (-1)"
                                         : "(INVALID) (INVALID) Axis is negative (-1)",
                              before.values.front());
      ArrayLaw::ExpectFailure(
          ArrayLaw::Take((*test.helper_.*call)(&object, 4)), kRank + 1,
          "(INVALID) (INVALID) Axis is out of bounds: #axis (4)" + (kRank == 0 ? "" : " > #ND (" + rank + ")"),
          before.values.front());
    });
  }

  template <int N>
  static void Check(ArrayLaw& test, INDim<N + 1>* (IMHelper::*call)(INDim<N>*, int)) {
    typename Vorq::NDim<N>::Sizes sizes{};
    sizes.fill(5);
    std::unique_ptr<INDim<N>> const shape(Vorq::Wrap<INDim<N>>(sizes));
    std::unique_ptr<INDim<N + 1>> const expanded((*test.helper_.*call)(shape.get(), N));
    EXPECT_EQ(expanded->GetLastError(), 0);
    EXPECT_EQ(expanded->GetDim(N), 1U);
    EXPECT_EQ(expanded->GetSize(), shape->GetSize());
    std::unique_ptr<INDim<N + 1>> const failed((*test.helper_.*call)(shape.get(), -1));
    EXPECT_STREQ(failed->GetErrorMessage(),
                 N == 0 ? "(INVALID) Axis is out of bounds: #axis (-1)" : "(INVALID) Axis is negative (-1)");
    EXPECT_EQ(failed->GetSize(), 1U);
  }
};

struct SqueezeLaw {
  template <class Result, class Object>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Object*, int)) {
    constexpr int kRank = kRankOf<Object>;
    for (int axis = 0; axis < kRank; ++axis) {
      SizeList sizes = kSizesOfRank[kRank];
      sizes[static_cast<std::size_t>(axis)] = 1;
      for (Layout layout : {Layout::kCompact, Layout::kTransposed, Layout::kReversed}) {
        SCOPED_TRACE("axis " + std::to_string(axis) + ", layout " + std::to_string(int(layout)));
        auto const object = test.Make<Object>(sizes, layout, 1);
        Outcome const before = ArrayLaw::ReadObject(object.get());
        SizeList resultSizes = sizes;
        resultSizes.erase(resultSizes.begin() + axis);
        ArrayLaw::ExpectView(ArrayLaw::Take((*test.helper_.*call)(object.get(), axis)), before, resultSizes,
                             before.values);
      }
    }
    ForEachLayout<Object>(test, kSizesOfRank[kRank], [&](Object& object) {
      double const first = ArrayLaw::ReadObject(&object).values.front();
      ArrayLaw::ExpectFailure(ArrayLaw::Take((*test.helper_.*call)(&object, -1)), kRank - 1,
                              "(INVALID) (INVALID) Axis is negative (-1)", first);
      ArrayLaw::ExpectFailure(
          ArrayLaw::Take((*test.helper_.*call)(&object, 3)), kRank - 1,
          "(INVALID) (INVALID) Axis is out of bounds: #axis (3) >= #ND (" + std::to_string(kRank) + ")", first);
      ArrayLaw::ExpectFailure(ArrayLaw::Take((*test.helper_.*call)(&object, 0)), kRank - 1,
                              "(INVALID) (INVALID) Dimension size at axis 0 is not one (3)", first);
    });
  }

  template <int N>
  static void Check(ArrayLaw& test, INDim<N - 1>* (IMHelper::*call)(INDim<N>*, int)) {
    typename Vorq::NDim<N>::Sizes sizes{};
    sizes.fill(5);
    sizes.back() = 1;
    std::unique_ptr<INDim<N>> const shape(Vorq::Wrap<INDim<N>>(sizes));
    std::unique_ptr<INDim<N - 1>> const squeezed((*test.helper_.*call)(shape.get(), N - 1));
    EXPECT_EQ(squeezed->GetLastError(), 0);
    EXPECT_EQ(squeezed->GetSize(), shape->GetSize());
    std::unique_ptr<INDim<N - 1>> const failed((*test.helper_.*call)(shape.get(), N));
    std::string const rank = std::to_string(N);
    EXPECT_EQ(failed->GetErrorMessage(), "(INVALID) Axis is out of bounds: #axis (" + rank + ") >= #ND (" + rank + ")");
  }
};

struct Repeat1dLaw {
  template <class Result, class Value>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Value, std::uint64_t)) {
    using Cell = CellOf<Result>;
    auto const cell = test.MakeCell<Cell>(0, 4);
    for (std::uint64_t n : {0, 1, 5}) {
      Outcome result;
      if constexpr (std::is_pointer_v<Value>) {
        std::unique_ptr<std::remove_pointer_t<Value>> const value(Vorq::Wrap<std::remove_pointer_t<Value>>(cell));
        result = ArrayLaw::Take((*test.helper_.*call)(value.get(), n));
      } else {
        result = ArrayLaw::Take((*test.helper_.*call)(cell, n));
      }
      EXPECT_EQ(result.code, 0);
      EXPECT_EQ(result.sizes, SizeList{n});
      EXPECT_EQ(result.values, std::vector<double>(n, ArrayLaw::ValueOf(cell)));
    }
  }
};

struct ConcatLaw {
  template <class Result, class Left, class Right>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Left*, Right*, int)) {
    constexpr int kRank = kRankOf<Result>;
    SizeList const leftSizes = kSizesOfRank[kRank];
    for (int axis = -kRank; axis < kRank; ++axis) {
      SCOPED_TRACE("axis " + std::to_string(axis));
      std::size_t const place = static_cast<std::size_t>(axis < 0 ? axis + kRank : axis);
      SizeList rightSizes = leftSizes;
      rightSizes[place] = 5;
      SizeList sizes = leftSizes;
      sizes[place] += 5;
      ForEachPairOfLayouts<Left, Right>(test, leftSizes, rightSizes, [&](Left& left, Right& right) {
        Outcome const a = ArrayLaw::ReadObject(&left);
        Outcome const b = ArrayLaw::ReadObject(&right);
        std::vector<double> expected;
        for (std::uint64_t i = 0; i < Count(sizes); ++i) {
          SizeList at = Coordinates(sizes, i);
          bool const isLeft = at[place] < leftSizes[place];
          if (!isLeft) at[place] -= leftSizes[place];
          expected.push_back(isLeft ? a.values[FlatIndex(leftSizes, at)] : b.values[FlatIndex(rightSizes, at)]);
        }
        Outcome const result = ArrayLaw::Take((*test.helper_.*call)(&left, &right, axis));
        ArrayLaw::ExpectFresh(result, sizes, expected);
        EXPECT_NE(result.store, a.store);
        EXPECT_NE(result.store, b.store);
        ArrayLaw::ExpectUnchanged(ArrayLaw::ReadObject(&left), a);
        ArrayLaw::ExpectUnchanged(ArrayLaw::ReadObject(&right), b);
      });
    }
    CheckFailures(test, call, leftSizes);
  }

  template <class Result, class Left, class Right>
  static void CheckFailures(ArrayLaw& test, Result* (IMHelper::*call)(Left*, Right*, int), SizeList const& sizes) {
    constexpr int kRank = kRankOf<Result>;
    auto const left = test.Make<Left>(sizes, Layout::kCompact, 1);
    SizeList larger = sizes;
    for (std::uint64_t& size : larger) ++size;
    auto const right = test.Make<Right>(larger, Layout::kCompact, 8);
    for (int axis : {-kRank - 1, kRank}) {
      ArrayLaw::ExpectFailure(ArrayLaw::Take((*test.helper_.*call)(left.get(), right.get(), axis)), kRank,
                              "(INVALID) Axis " + std::to_string(axis) + " is out of bounds for array of dimensions " +
                                  std::to_string(kRank));
    }
    if (kRank > 1) {
      ArrayLaw::ExpectFailure(ArrayLaw::Take((*test.helper_.*call)(left.get(), right.get(), 0)), kRank,
                              "(INVALID) Along the 1-th dimension, array 1 has size [2] and array 2 has size [3]");
      ArrayLaw::ExpectFailure(ArrayLaw::Take((*test.helper_.*call)(left.get(), right.get(), -1)), kRank,
                              "(INVALID) Along the 0-th dimension, array 1 has size [3] and array 2 has size [4]");
    }
  }
};

struct SumAxisLaw {
  template <class Result, class Object>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Object*, int)) {
    constexpr int kRank = kRankOf<Object>;
    ForEachLayout<Object>(test, kSizesOfRank[kRank], [&](Object& object) {
      Outcome const before = ArrayLaw::ReadObject(&object);
      for (int axis = 0; axis < kRank; ++axis) {
        SizeList sizes = before.sizes;
        sizes.erase(sizes.begin() + axis);
        std::vector<double> expected(Count(sizes));
        for (std::uint64_t i = 0; i < before.values.size(); ++i) {
          SizeList at = Coordinates(before.sizes, i);
          at.erase(at.begin() + axis);
          expected[FlatIndex(sizes, at)] += before.values[i];
        }
        Outcome const result = ArrayLaw::Take((*test.helper_.*call)(&object, axis));
        ArrayLaw::ExpectFresh(result, sizes, expected);
        EXPECT_NE(result.store, before.store);
      }
      ArrayLaw::ExpectFailure(ArrayLaw::Take((*test.helper_.*call)(&object, -1)), kRank - 1,
                              "(INVALID) Axis is negative (-1)");
      ArrayLaw::ExpectFailure(ArrayLaw::Take((*test.helper_.*call)(&object, kRank)), kRank - 1,
                              "(INVALID) Axis is out of bounds: #axis (" + std::to_string(kRank) + ") >= #ND (" +
                                  std::to_string(kRank) + ")");
      ArrayLaw::ExpectUnchanged(ArrayLaw::ReadObject(&object), before);
    });
  }
};

// Null in place of each operand in turn.
struct NullLaw {
  template <class Result, class Left, class Right>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Left*, Right*)) {
    Expect(1, (*test.helper_.*call)(nullptr, nullptr));
    if constexpr (!std::is_same_v<Left, IVarArray>) {
      auto const left = test.Make<Left>(kSizesOfRank[kRankOf<Left>], Layout::kCompact, 1);
      Expect(2, (*test.helper_.*call)(left.get(), nullptr));
    }
  }
  template <class Result, class Left, class Right>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Left*, Right*, int)) {
    auto const left = test.Make<Left>(kSizesOfRank[kRankOf<Left>], Layout::kCompact, 1);
    Expect(1, (*test.helper_.*call)(nullptr, nullptr, 0));
    Expect(2, (*test.helper_.*call)(left.get(), nullptr, 0));
  }
  template <class Result, class Object>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Object*, int, int, int)) {
    Expect(1, (*test.helper_.*call)(nullptr, 0, 0, 1));
  }
  template <class Result, class Object>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Object*, int)) {
    Expect(1, (*test.helper_.*call)(nullptr, 0));
  }
  template <class Result, class Value>
  static void Check(ArrayLaw& test, Result* (IMHelper::*call)(Value, std::uint64_t)) {
    if constexpr (std::is_pointer_v<Value>) Expect(1, (*test.helper_.*call)(nullptr, 2));
  }

  template <class Result>
  static void Expect(int place, Result* result) {
    std::unique_ptr<Result> const owner(result);
    EXPECT_EQ(result->GetLastError(), 3);
    EXPECT_EQ(result->GetErrorMessage(), "(INVALID) Operand " + std::to_string(place) + " is null");
    EXPECT_EQ(result->GetSize(), 1U);
    EXPECT_EQ(result->GetDim(0), result->GetND() == 0 ? 0U : 1U);
  }
};

// One operation of the interface.
struct Slot {
  char const* operation;
  std::function<void(ArrayLaw&)> checkLaw;
  std::function<void(ArrayLaw&)> checkNull;
};

template <class Law, class Result, class... Arguments>
Slot MakeSlot(char const* operation, Result* (IMHelper::*call)(Arguments...)) {
  return {operation, [call](ArrayLaw& test) { Law::Check(test, call); },
          [call](ArrayLaw& test) { NullLaw::Check(test, call); }};
}

std::vector<Slot> const& Slots() {
#define VORQ_OPERATION(operation, Kind, N, ...) \
  MakeSlot<operation##Law>(#operation,          \
                           static_cast<VORQ_KIND(Kind, N) * (IMHelper::*)(__VA_ARGS__)>(&IMHelper::operation)),
  static std::vector<Slot> const slots = {
#include "vorqmodel/array_groups.inc"
  };
  return slots;
}

class EachOperation : public ArrayLaw, public testing::WithParamInterface<std::size_t> {};

TEST_P(EachOperation, HoldsItsLaw) {
  Slots()[GetParam()].checkLaw(*this);
}

TEST_P(EachOperation, RefusesNull) {
  Slots()[GetParam()].checkNull(*this);
}

// Slots 0 and 1 are the destructors.
INSTANTIATE_TEST_SUITE_P(OfTheService, EachOperation, testing::Range(std::size_t{0}, Slots().size()),
                         [](testing::TestParamInfo<std::size_t> const& slot) {
                           return std::string(Slots()[slot.param].operation) + "_" + std::to_string(slot.param + 2);
                         });

TEST(ArrayServiceSlots, AreAllThere) {
  EXPECT_EQ(Slots().size(), 412U);
}

}  // namespace
}  // namespace vorqtest
