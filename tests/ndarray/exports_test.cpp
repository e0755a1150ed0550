// The exported factories of arrays, through the interfaces alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vorq>

namespace {

template <class T>
std::unique_ptr<T> Own(T* object) {
  return std::unique_ptr<T>(object);
}

// What is common to the factories of one element type.
template <class T>
struct Factories;

#define VORQ_TEST_FACTORIES(T, Word)                                      \
  template <>                                                             \
  struct Factories<T> {                                                   \
    static constexpr auto kTaken1 = CreateNdArray##Word##1##WithData;     \
    static constexpr auto kTaken2 = CreateNdArray##Word##2##WithData;     \
    static constexpr auto kTaken3 = CreateNdArray##Word##3##WithData;     \
    static constexpr auto kCallers1 = CreateNdArray##Word##1##WithExData; \
    static constexpr auto kCallers2 = CreateNdArray##Word##2##WithExData; \
    static constexpr auto kCallers3 = CreateNdArray##Word##3##WithExData; \
  };

VORQ_TEST_FACTORIES(double, Dbl)
VORQ_TEST_FACTORIES(int, Int)
VORQ_TEST_FACTORIES(long long, Int64t)

#undef VORQ_TEST_FACTORIES

template <class T>
class EachElementType : public testing::Test {
 protected:
  T data[12] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};

  // A copy of the data, for an array to own.
  T* Copy() {
    T* copy = new T[12];
    std::copy_n(data, 12, copy);
    return copy;
  }
};

using ElementTypes = testing::Types<double, int, long long>;
TYPED_TEST_SUITE(EachElementType, ElementTypes);

TYPED_TEST(EachElementType, WithExDataReadsTheCallersElements) {
  using Make = Factories<TypeParam>;
  EXPECT_EQ(Own(Make::kCallers1(this->data, 3))->ToString(100), "[0, 1, 2]\n");
  EXPECT_EQ(Own(Make::kCallers2(this->data, 2, 2))->ToString(100), "[[0, 1]\n [2, 3]\n]\n");
  EXPECT_EQ(Own(Make::kCallers3(this->data, 1, 2, 2))->ToString(100), "[[[0, 1]\n  [2, 3]\n ]\n]\n");
}

TYPED_TEST(EachElementType, WithExDataWritesTheCallersElements) {
  using Make = Factories<TypeParam>;
  auto const transposed = Own(Own(Make::kCallers2(this->data, 3, 4))->Transpose());
  transposed->Set(1, 40);
  EXPECT_EQ(this->data[4], 40);
  transposed->Fill(7);
  EXPECT_EQ(this->data[11], 7);
}

TYPED_TEST(EachElementType, WithExDataLeavesTheElementsToTheCaller) {
  using Make = Factories<TypeParam>;
  delete Make::kCallers1(this->data, 12);
  EXPECT_EQ(this->data[11], 11);
}

TYPED_TEST(EachElementType, WithDataOwnsTheElements) {
  using Make = Factories<TypeParam>;
  EXPECT_EQ(Own(Make::kTaken1(this->Copy(), 12))->GetDim(0), 12U);
  EXPECT_EQ(Own(Own(Make::kTaken2(this->Copy(), 3, 4))->GetShape())->ToString(0), "(3, 4)");
  EXPECT_EQ(Own(Own(Make::kTaken3(this->Copy(), 2, 3, 2))->GetShape())->ToString(0), "(2, 3, 2)");
}

TYPED_TEST(EachElementType, WithDataOwnsOneElementAndNone) {
  using Make = Factories<TypeParam>;
  EXPECT_EQ(Own(Make::kTaken1(new TypeParam[1]{5}, 1))->Get(0), 5);
  EXPECT_EQ(Own(Make::kTaken2(new TypeParam[1]{5}, 3, 0))->GetSize(), 0U);
}

TYPED_TEST(EachElementType, ASliceOfAnEmptyArrayThatWasHandedOverReadsZeros) {
  auto const none = Own(Factories<TypeParam>::kTaken1(new TypeParam[0], 0));
  std::unique_ptr<Vorq::IMFactory> const factory(CreateMFactory());
  auto const view = Own(factory->CreateView());
  Own(view->Slice(0, 5, 1, 0));
  auto const five = Own(none->View(view.get()));
  EXPECT_EQ(five->GetSize(), 5U);
  five->Set(0, 1);
  EXPECT_EQ(five->Get(4), TypeParam(0));
}

TYPED_TEST(EachElementType, NullElementsMakeNoStore) {
  using Make = Factories<TypeParam>;
  for (auto make : {Make::kTaken1, Make::kCallers1}) {
    auto const array = Own(make(nullptr, 2));
    EXPECT_EQ(array->GetSize(), 2U);
    array->Set(0, 1);
    EXPECT_EQ(array->ToString(100), "[0, 0]\n");
    EXPECT_EQ(array->GetLastError(), 0);
  }
}

TYPED_TEST(EachElementType, NegativeSizeIsTakenAsZeroAndRecorded) {
  using Make = Factories<TypeParam>;
  auto const array = Own(Make::kTaken2(this->Copy(), 3, -4));
  EXPECT_EQ(array->GetSize(), 0U);
  EXPECT_EQ(array->GetLastError(), 3);
  EXPECT_STREQ(array->GetErrorMessage(), "(INVALID) Dimension size at axis 1 is negative (-4)");
}

TEST(ArrayExports, ViewsKeepAHandedOverBufferAlive) {
  auto transposed = std::unique_ptr<Vorq::INdArray<double, 2>>();
  {
    auto const array = Own(CreateNdArrayDbl2WithData(new double[4]{1, 2, 3, 4}, 2, 2));
    transposed.reset(array->Transpose());
  }
  EXPECT_EQ(transposed->ToString(100), "[[1, 3]\n [2, 4]\n]\n");
}

TEST(ArrayExports, ReshapeFailureCarriesItsText) {
  double data[] = {1, 2, 3, 4, 5, 6};
  auto const array = Own(CreateNdArrayDbl1WithExData(data, 6));
  auto const shape = Own(Own(array->GetShape())->CreateUniform(4));
  auto const failed = Own(array->Reshape(shape.get()));
  EXPECT_EQ(failed->GetLastError(), 3);
  EXPECT_STREQ(failed->GetErrorMessage(), "(INVALID) Cannot reshape NdArray of size 6 to new shape (4)");
  EXPECT_EQ(failed->ToString(100), "[1]\n");
}

TEST(ArrayExports, PickReadsIndicesOfAnotherArray) {
  long long data[] = {10, 11, 12, 13};
  int indices[] = {3, 0};
  auto const array = Own(CreateNdArrayInt64t2WithExData(data, 2, 2));
  auto const chosen = Own(CreateNdArrayInt1WithExData(indices, 2));
  EXPECT_EQ(Own(array->Pick(chosen.get()))->ToString(100), "[13, 10]\n");
  int coordinates[] = {1, 0, 0, 1};
  auto const rows = Own(CreateNdArrayInt2WithExData(coordinates, 2, 2));
  EXPECT_EQ(Own(array->PickAt(rows.get()))->ToString(100), "[12, 11]\n");
}

TEST(ArrayExports, SumIsARankZeroArray) {
  int data[] = {1, 2, 3};
  auto const sum = Own(Own(CreateNdArrayInt1WithExData(data, 3))->Sum());
  EXPECT_EQ(sum->GetND(), 0);
  EXPECT_EQ(sum->ToString(0), "6");
  EXPECT_EQ(Own(sum->Repeat(2, 0))->GetLastError(), 3);
}

}  // namespace
