// SharedPtr: counting, the forms of ownership, and the order in which elements end.
#include "frame/shared_ptr.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace Vorq {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<int> ended;  // the numbers of the witnesses, as they were destroyed

struct Witness {
  Witness() : Witness(++made) {}
  explicit Witness(int n) : number(n) {
    if (n == throwAt) throw std::runtime_error("no more");
  }
  Witness(Witness const&) = delete;
  ~Witness() { ended.push_back(number); }

  int number;

  static inline int made = 0;
  static inline int throwAt = -1;
};

class SharedPtrTest : public testing::Test {
 protected:
  SharedPtrTest() {
    ended.clear();
    Witness::made = 0;
    Witness::throwAt = -1;
  }
};

template <class T>
int Refs(SharedPtr<T> const& holder) {
  return holder.Block()->refs.load();
}

// ---- Null holders

TEST_F(SharedPtrTest, DefaultHolderIsNull) {
  SharedPtr<int> const holder;
  EXPECT_EQ(holder.Get(), nullptr);
  EXPECT_EQ(holder.Block(), nullptr);
  EXPECT_FALSE(holder);
}

TEST_F(SharedPtrTest, NullPointerMakesNoBlock) {
  SharedPtr<Witness> const holder(nullptr);
  SharedPtr<int> const array(nullptr, 5);
  EXPECT_EQ(holder.Block(), nullptr);
  EXPECT_EQ(array.Block(), nullptr);
}

TEST_F(SharedPtrTest, CopyingAndReleasingNullTouchesNothing) {
  SharedPtr<Witness> null;
  {
    SharedPtr<Witness> const copy(null);
    EXPECT_EQ(copy.Block(), nullptr);
  }
  null = SharedPtr<Witness>();
  EXPECT_EQ(null.Block(), nullptr);
  EXPECT_THAT(ended, IsEmpty());
}

// ---- Counting

TEST_F(SharedPtrTest, NewBlockCountsOne) {
  SharedPtr<Witness> const holder(new Witness(1));
  EXPECT_EQ(Refs(holder), 1);
  EXPECT_EQ(holder.Block()->count, 1u);
  EXPECT_EQ(holder.Block()->ptr, holder.Get());
}

TEST_F(SharedPtrTest, CopyAddsOneAndItsEndTakesOne) {
  SharedPtr<Witness> const first(new Witness(1));
  {
    SharedPtr<Witness> const second(first);
    EXPECT_EQ(Refs(first), 2);
    EXPECT_EQ(second.Block(), first.Block());
    EXPECT_TRUE(second == first);
  }
  EXPECT_EQ(Refs(first), 1);
  EXPECT_THAT(ended, IsEmpty());
}

TEST_F(SharedPtrTest, ObjectOutlivesItsFirstHolder) {
  SharedPtr<Witness> second;
  {
    SharedPtr<Witness> const first(new Witness(7));
    second = first;
  }
  EXPECT_THAT(ended, IsEmpty());
  EXPECT_EQ(second->number, 7);
  second = SharedPtr<Witness>();
  EXPECT_THAT(ended, ElementsAre(7));
}

TEST_F(SharedPtrTest, MoveTakesTheBlockOver) {
  SharedPtr<Witness> source(new Witness(1));
  SharedPtr<Witness> const target(std::move(source));
  EXPECT_EQ(Refs(target), 1);
  EXPECT_FALSE(source);
}

TEST_F(SharedPtrTest, AssignmentReleasesWhatWasHeld) {
  SharedPtr<Witness> holder(new Witness(1));
  SharedPtr<Witness> const other(new Witness(2));
  holder = other;
  EXPECT_THAT(ended, ElementsAre(1));
  EXPECT_EQ(Refs(other), 2);
}

TEST_F(SharedPtrTest, AssignmentOfNullReleases) {
  SharedPtr<Witness> holder(new Witness(1));
  SharedPtr<Witness> const null;
  holder = null;
  EXPECT_FALSE(holder);
  EXPECT_THAT(ended, ElementsAre(1));
}

TEST_F(SharedPtrTest, SelfAssignmentLeavesTheCount) {
  SharedPtr<Witness> holder(new Witness(1));
  SharedPtr<Witness> const& same = holder;
  holder = same;
  EXPECT_EQ(Refs(holder), 1);
  EXPECT_THAT(ended, IsEmpty());
}

TEST_F(SharedPtrTest, SelfMoveKeepsTheObject) {
  SharedPtr<Witness> holder(new Witness(1));
  SharedPtr<Witness>& same = holder;
  holder = std::move(same);
  EXPECT_EQ(holder->number, 1);
  EXPECT_EQ(Refs(holder), 1);
}

TEST_F(SharedPtrTest, AssignmentBetweenHoldersOfOneBlockKeepsTheObject) {
  SharedPtr<Witness> holder(new Witness(1));
  SharedPtr<Witness> const other(holder);
  holder = other;
  EXPECT_EQ(Refs(holder), 2);
  EXPECT_THAT(ended, IsEmpty());
}

TEST_F(SharedPtrTest, HoldersOfTwoBlocksDiffer) {
  SharedPtr<Witness> const first(new Witness(1));
  SharedPtr<Witness> const second(new Witness(1));
  EXPECT_FALSE(first == second);
}

TEST_F(SharedPtrTest, ThreadsMayCopyAndRelease) {
  SharedPtr<Witness> holder(new Witness(1));
  {
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t) {
      threads.emplace_back([holder] {
        for (int i = 0; i < 10000; ++i) SharedPtr<Witness> const copy(holder);
      });
    }
  }
  EXPECT_EQ(Refs(holder), 1);
  EXPECT_THAT(ended, IsEmpty());
}

// ---- Forms of ownership

TEST_F(SharedPtrTest, BorrowedMemoryStaysWithItsOwner) {
  double values[] = {1.5, 2.5};
  {
    SharedPtr<double> const holder(values, 0);
    EXPECT_EQ(holder.Block()->count, 0u);
    EXPECT_EQ(holder.Get(), values);
    holder[1] = 3.5;
  }
  EXPECT_THAT(values, ElementsAre(1.5, 3.5));
}

TEST_F(SharedPtrTest, BorrowedObjectIsNotDestroyed) {
  Witness witness(1);
  { SharedPtr<Witness> const holder(&witness, 0); }
  EXPECT_THAT(ended, IsEmpty());
}

TEST_F(SharedPtrTest, NumbersAreOwnedAsAnArray) {
  SharedPtr<int> const three(new int[3]{4, 5, 6}, 3);
  SharedPtr<double> const one(new double[1]{2.5}, 1);
  EXPECT_EQ(three[2], 6);
  EXPECT_EQ(three.Block()->count, 3u);
  EXPECT_EQ(*one, 2.5);
}

TEST_F(SharedPtrTest, ArrayMadeWithNewIsDestroyedWhole) {
  { SharedPtr<Witness> const holder(new Witness[3], 3); }
  EXPECT_THAT(ended, testing::UnorderedElementsAre(1, 2, 3));
}

TEST_F(SharedPtrTest, SharedArrayIsDestroyedInAscendingOrder) {
  {
    SharedPtr<Witness> const holder = MakeSharedArray<Witness>(4);
    EXPECT_EQ(holder.Block()->count, 4u);
    EXPECT_EQ(holder[3].number, 4);
  }
  EXPECT_THAT(ended, ElementsAre(1, 2, 3, 4));
}

TEST_F(SharedPtrTest, SharedArrayOfNoneIsNull) {
  EXPECT_EQ(MakeSharedArray<Witness>(0).Block(), nullptr);
}

TEST_F(SharedPtrTest, SharedArrayOfOneIsASingleObject) {
  {
    SharedPtr<Witness> const holder = MakeSharedArray<Witness>(1);
    EXPECT_EQ(holder.Block()->count, 1u);
  }
  EXPECT_THAT(ended, ElementsAre(1));
}

TEST_F(SharedPtrTest, SharedArrayOfNumbersIsAnOwnedArray) {
  SharedPtr<long long> const holder = MakeSharedArray<long long>(2);
  holder[1] = 9;
  EXPECT_EQ(holder[1], 9);
  EXPECT_EQ(holder.Block()->count, 2u);
}

TEST_F(SharedPtrTest, ThrowingElementEndsThoseBeforeIt) {
  Witness::throwAt = 3;
  EXPECT_THROW(MakeSharedArray<Witness>(5), std::runtime_error);
  EXPECT_THAT(ended, testing::UnorderedElementsAre(1, 2));
}

// ---- Arrays made element by element

TEST_F(SharedPtrTest, BuilderMakesElementsWhereTheyStay) {
  {
    SharedArrayBuilder<Witness> builder(3);
    Witness const* const first = &builder.Emplace(11);
    builder.Emplace(12);
    EXPECT_EQ(builder.Emplace(13).number, 13);
    SharedPtr<Witness> const holder = builder.Finish();
    EXPECT_EQ(holder.Get(), first);
    EXPECT_EQ(holder.Block()->count, 3u);
    EXPECT_EQ(holder[1].number, 12);
    EXPECT_THAT(ended, IsEmpty());
  }
  EXPECT_THAT(ended, ElementsAre(11, 12, 13));
}

TEST_F(SharedPtrTest, BuilderOfNoneGivesANullHolder) {
  EXPECT_EQ(SharedArrayBuilder<Witness>(0).Finish().Block(), nullptr);
}

TEST_F(SharedPtrTest, BuilderOfOneGivesAnOwnedElement) {
  {
    SharedArrayBuilder<Witness> builder(1);
    builder.Emplace(5);
    SharedPtr<Witness> const holder = builder.Finish();
    EXPECT_EQ(holder.Block()->count, 1u);
    EXPECT_EQ(holder->number, 5);
  }
  EXPECT_THAT(ended, ElementsAre(5));
}

TEST_F(SharedPtrTest, BuilderMakesTheRestByDefault) {
  SharedArrayBuilder<Witness> builder(3);
  builder.Emplace(7);
  SharedPtr<Witness> const holder = builder.Finish();
  EXPECT_EQ(holder[0].number, 7);
  EXPECT_EQ(holder[2].number, 2);
}

TEST_F(SharedPtrTest, UnfinishedBuilderEndsWhatItMade) {
  {
    SharedArrayBuilder<Witness> builder(3);
    builder.Emplace(1);
    builder.Emplace(2);
  }
  EXPECT_THAT(ended, ElementsAre(1, 2));
}

TEST_F(SharedPtrTest, ThrowingElementOfABuilderIsNotMade) {
  Witness::throwAt = 2;
  {
    SharedArrayBuilder<Witness> builder(3);
    builder.Emplace(1);
    EXPECT_THROW(builder.Emplace(2), std::runtime_error);
  }
  EXPECT_THAT(ended, ElementsAre(1));
}

// ---- Objects beside their block

TEST_F(SharedPtrTest, JoinedObjectLivesAsLongAsItsBlock) {
  SharedPtr<Witness> holder = MakeShared<Witness>(5);
  SharedPtr<Witness> const other(holder);
  holder = SharedPtr<Witness>();
  EXPECT_EQ(other->number, 5);
  EXPECT_EQ(Refs(other), 1);
  EXPECT_EQ(other.Block()->count, 1u);
  EXPECT_THAT(ended, IsEmpty());
}

TEST_F(SharedPtrTest, JoinedObjectIsDestroyedOnce) {
  { SharedPtr<Witness> const holder = MakeShared<Witness>(5); }
  EXPECT_THAT(ended, ElementsAre(5));
}

TEST_F(SharedPtrTest, ThrowingConstructorLeaksNothing) {
  Witness::throwAt = 5;
  EXPECT_THROW(MakeShared<Witness>(5), std::runtime_error);
  EXPECT_THAT(ended, IsEmpty());
}

// An object that the allocator happened to place right behind its block is no joined one.
TEST_F(SharedPtrTest, SeparateObjectsOfWideAlignmentAreToldFromJoinedOnes) {
  struct alignas(16) Wide {
    ~Wide() { ended.push_back(1); }
    long double number = 1;
  };
  {
    std::vector<SharedPtr<Wide>> holders;
    for (int i = 0; i < 100; ++i) {
      holders.push_back(SharedPtr<Wide>(new Wide));
      holders.push_back(MakeShared<Wide>());
    }
  }
  EXPECT_EQ(ended.size(), 200u);
}

TEST_F(SharedPtrTest, OverAlignedObjectsKeepTheirAlignment) {
  struct alignas(64) Line {
    ~Line() { ended.push_back(1); }
  };
  {
    SharedPtr<Line> const one = MakeShared<Line>();
    SharedPtr<Line> const many = MakeSharedArray<Line>(3);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(one.Get()) % 64, 0u);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(many.Get()) % 64, 0u);
  }
  EXPECT_EQ(ended.size(), 4u);
}

}  // namespace
}  // namespace Vorq
