// The handles on shapes, views and arrays.
#include <gtest/gtest.h>

#include <memory>

#include "handles/nd_array.hpp"
#include "tests/ndarray/arrays.hpp"

namespace {

using Vorq::INdArray;
using Vorq::INDim;
using Vorq::IView;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::Unwrap;
using Vorq::Wrap;

template <class T>
std::unique_ptr<T> Own(T* object) {
  return std::unique_ptr<T>(object);
}

template <int N>
std::unique_ptr<INDim<N>> Shape(typename NDim<N>::Sizes const& sizes) {
  return Own(Wrap<INDim<N>>(sizes));
}

template <class T, int N>
std::unique_ptr<INdArray<T, N>> Counting(typename NDim<N>::Sizes const& sizes) {
  return Own(Vorq::WrapArray(arrays::Counting<T, N>(sizes)));
}

TEST(ShapeHandle, ForwardsAllOperations) {
  auto const shape = Shape<2>({3, 4});
  EXPECT_EQ(shape->GetND(), 2);
  EXPECT_EQ(shape->GetDim(1), 4U);
  EXPECT_EQ(shape->GetSize(), 12U);
  EXPECT_EQ(shape->GetStride(0), 4);
  EXPECT_EQ(shape->GetOffset(0), 0);
  EXPECT_EQ(shape->ToString(0), "(3, 4)");
  EXPECT_EQ(Own(shape->CreateUniform(5))->ToString(0), "(5, 5)");
  EXPECT_EQ(shape->GetLastError(), 0);
  EXPECT_EQ(shape->GetErrorMessage(), nullptr);
  auto const clone = Own(shape->Clone());
  EXPECT_TRUE(shape->Equals(clone.get()));
  EXPECT_FALSE(shape->Equals(Shape<2>({4, 3}).get()));
}

TEST(ShapeHandle, OfEachRank) {
  EXPECT_EQ(Own(Wrap<INDim<0>>())->ToString(1), "(1)");
  EXPECT_EQ(Shape<1>({7})->ToString(0), "(7)");
  EXPECT_EQ(Shape<3>({2, 3, 4})->ToString(1), "(12, 4, 1)");
}

TEST(ViewHandle, AppendsToBothViews) {
  auto const view = Own(Wrap<IView>());
  auto const first = Own(view->Full());
  auto const second = Own(view->Scalar(0));
  auto const third = Own(second->Slice(0, 1, 1, 0));
  EXPECT_EQ(Unwrap(view.get()).Operations().size(), 2U);
  EXPECT_EQ(Unwrap(first.get()).Operations().size(), 1U);
  EXPECT_EQ(Unwrap(second.get()).Operations().size(), 3U);
  EXPECT_EQ(Unwrap(third.get()).Operations().size(), 3U);
}

TEST(ArrayHandle, GetShapeCopiesStridesAndOffsets) {
  auto const view = Own(Wrap<IView>());
  delete view->Slice(0, 0, -1, 6);
  auto const seen = Own(Counting<int, 2>({3, 4})->View(view.get()));
  auto const shape = Own(seen->GetShape());
  EXPECT_EQ(shape->ToString(1), "(-4, 1)");
  EXPECT_EQ(shape->ToString(2), "(8, 0)");
}

TEST(ArrayHandle, SharesElementsWithItsViews) {
  auto const array = Counting<double, 2>({2, 3});
  auto const transposed = Own(array->Transpose());
  transposed->Set(1, 50.5);
  EXPECT_EQ(array->Get(3), 50.5);
}

TEST(ArrayHandle, OutlivesItsSource) {
  auto transposed = std::unique_ptr<INdArray<int, 2>>();
  {
    auto const array = Counting<int, 2>({2, 3});
    transposed.reset(array->Transpose());
  }
  EXPECT_EQ(transposed->ToString(100), "[[0, 3]\n [1, 4]\n [2, 5]\n]\n");
}

TEST(ArrayHandle, FailureStaysWithTheResult) {
  auto const array = Counting<int, 2>({2, 3});
  auto const failed = Own(array->Repeat(3, 2));
  EXPECT_EQ(failed->GetLastError(), 3);
  EXPECT_STREQ(failed->GetErrorMessage(), "(INVALID) Axis 2 is out of bounds for array of dimensions 2");
  EXPECT_EQ(array->GetLastError(), 0);
  EXPECT_EQ(array->GetErrorMessage(), nullptr);
}

// All operations of one class.
template <class Array>
class EachArray : public testing::Test {};

template <class ElementType, int N>
struct Kind {
  using Element = ElementType;
  static constexpr int kRank = N;
};
using Kinds = testing::Types<Kind<char, 0>, Kind<char, 1>, Kind<char, 2>, Kind<char, 3>, Kind<int, 0>, Kind<int, 1>,
                             Kind<int, 2>, Kind<int, 3>, Kind<long long, 0>, Kind<long long, 1>, Kind<long long, 2>,
                             Kind<long long, 3>, Kind<double, 0>, Kind<double, 1>, Kind<double, 2>, Kind<double, 3>>;
TYPED_TEST_SUITE(EachArray, Kinds);

TYPED_TEST(EachArray, ForwardsAllOperations) {
  using T = typename TypeParam::Element;
  constexpr int kRank = TypeParam::kRank;
  // Two elements along each axis: 1, 2 or 4 or 8 of them.
  auto const dims = NDim<kRank>::Uniform(2).GetDims();
  std::uint64_t const size = NDim<kRank>(dims).GetSize();
  auto const array = Counting<T, kRank>(dims);
  EXPECT_EQ(array->GetND(), kRank);
  EXPECT_EQ(array->GetSize(), size);
  EXPECT_EQ(array->GetDim(0), kRank == 0 ? 0U : 2U);
  EXPECT_EQ(Own(array->GetShape())->GetSize(), size);
  EXPECT_EQ(Own(array->Reshape(Shape<1>({size}).get()))->GetDim(0), size);
  EXPECT_EQ(Own(array->Reshape(Shape<2>({1, size}).get()))->GetDim(1), size);
  EXPECT_EQ(Own(array->Reshape(Shape<3>({1, 1, size}).get()))->GetDim(2), size);
  EXPECT_EQ(Own(array->Flatten())->GetDim(0), size);
  EXPECT_EQ(Own(array->Repeat(3, 0))->GetSize(), kRank == 0 ? 1 : 3 * size);
  EXPECT_EQ(Own(array->RepeatBlock(3, 0))->GetSize(), kRank == 0 ? 1 : 3 * size);
  EXPECT_EQ(Own(array->Sum())->Get(0), static_cast<T>(size * (size - 1) / 2));
  EXPECT_EQ(Own(array->Transpose())->Get(size - 1), static_cast<T>(size - 1));
  auto const view = Own(Wrap<IView>());
  delete view->Scalar(-1);
  EXPECT_EQ(Own(array->View(view.get()))->Get(0), static_cast<T>(size / 2));
  EXPECT_EQ(Own(array->Pick(Counting<int, 1>({size}).get()))->Get(size - 1), static_cast<T>(size - 1));
  EXPECT_EQ(Own(array->PickAt(Counting<int, 2>({1, kRank}).get()))->GetSize(), 1U);
  array->Set(size - 1, 1);
  EXPECT_EQ(array->Get(size - 1), T{1});
  array->Fill('7');
  EXPECT_EQ(array->Get(0), static_cast<T>('7'));
  bool const isText = std::is_same_v<T, char>;
  std::string const whole = isText ? "7" : "55";
  EXPECT_EQ(array->ToString(0), kRank == 0 ? whole : std::string(kRank, '[') + "...");
  EXPECT_EQ(array->GetLastError(), 0);
  EXPECT_EQ(array->GetErrorMessage(), nullptr);
}

}  // namespace
