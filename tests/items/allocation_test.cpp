// How many allocations and holder copies the hot operations take, and the slabs behind handles and records.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>
#include <set>
#include <thread>
#include <vector>

#include "frame/slab.hpp"
#include "handles/expressions.hpp"
#include "vorqmodel/exports.h"

namespace {

std::atomic<long> allocations{0};

long AllocationsIn(auto&& body) {
  long const before = allocations;
  body();
  return allocations - before;
}

}  // namespace

void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace {

using Vorq::Expr;
using Vorq::MakeShared;
using Vorq::ProbHandle;
using Vorq::Slab;
using Vorq::Var;

class AllocationTest : public testing::Test {
 protected:
  Vorq::SharedPtr<ProbHandle> problem_ = MakeShared<ProbHandle>();
};

TEST_F(AllocationTest, AddingTermsToAReservedExpressionAllocatesNothing) {
  Var const x(problem_, "x", 0);
  Expr expr;
  expr.Reserve(1000);
  EXPECT_EQ(AllocationsIn([&] {
              for (int i = 0; i < 1000; ++i) expr.AddTerm(x, 1.0);
            }),
            0);
}

TEST_F(AllocationTest, AClearedExpressionKeepsItsRoom) {
  Var const x(problem_, "x", 0);
  Expr expr;
  for (int i = 0; i < 20; ++i) expr.AddTerm(x, 1.0);
  EXPECT_EQ(AllocationsIn([&] {
              expr.Clear();
              for (int i = 0; i < 20; ++i) expr.AddTerm(x, 1.0);
            }),
            0);
}

TEST_F(AllocationTest, AnExpressionOfATypicalRowTakesOneAllocationAList) {
  Var const x(problem_, "x", 0);
  EXPECT_EQ(AllocationsIn([&] {
              Expr expr;
              for (int i = 0; i < 8; ++i) expr.AddTerm(x, 1.0);
            }),
            2);
}

TEST_F(AllocationTest, DenseReduceAllocatesNothing) {
  Expr expr;
  for (int i = 0; i < 8; ++i) expr.AddTerm(Var(problem_, "", i % 3), 1.0);
  std::vector<double> sums(3);
  std::vector<unsigned char> marks(3);
  EXPECT_EQ(AllocationsIn([&] { expr.ReduceDense(sums, marks); }), 0);
  EXPECT_EQ(expr.Size(), 3u);
}

TEST_F(AllocationTest, CopyingAVariableAllocatesNothing) {
  Var const x(problem_, "x", 0);
  EXPECT_EQ(AllocationsIn([&] { Var copy = x; }), 0);
}

TEST_F(AllocationTest, MovingAFailedVariableAllocatesNothing) {
  Var x(problem_, "x", -2);
  x.GetBasis();
  EXPECT_EQ(AllocationsIn([&] { Var moved = std::move(x); }), 0);
}

#if !defined(__SANITIZE_ADDRESS__)
TEST_F(AllocationTest, ItemsAndHandlesComeFromSlabs) {
  std::vector<Var> vars;
  vars.reserve(1000);
  std::vector<Vorq::IVar*> handles;
  handles.reserve(1000);
  EXPECT_LE(AllocationsIn([&] {
              for (int i = 0; i < 1000; ++i) vars.emplace_back(problem_, "", i);
            }),
            25);
  EXPECT_LE(AllocationsIn([&] {
              for (Var const& var : vars) handles.push_back(Vorq::Wrap<Vorq::IVar>(var));
            }),
            25);
  for (auto* handle : handles) delete handle;
}

TEST_F(AllocationTest, ATemporaryHandleTakesTheSameSlotsAgain) {
  Var const x(problem_, "x", 0);
  delete Vorq::Wrap<Vorq::IVar>(x);
  EXPECT_EQ(AllocationsIn([&] {
              for (int i = 0; i < 1000; ++i) delete Vorq::Wrap<Vorq::IVar>(x);
            }),
            0);
}

TEST(SlabTest, ManySlotsCostFewChunks) {
  using Pool = Slab<200>;
  EXPECT_LE(AllocationsIn([] {
              for (int round = 0; round < 1000; ++round) {
                void* first = Pool::Allocate();
                void* second = Pool::Allocate();
                Pool::Release(first);
                Pool::Release(second);
              }
            }),
            60);
}
#endif

// Batches of all sizes, so that some end where a chunk ends.
TEST(SlabTest, SlotsMayComeBackInTheOrderInWhichTheyWereTaken) {
  using Pool = Slab<216>;
  for (std::size_t size = 1; size < 60; ++size) {
    std::vector<void*> slots;
    for (std::size_t i = 0; i < size; ++i) slots.push_back(Pool::Allocate());
    EXPECT_EQ(std::set<void*>(slots.begin(), slots.end()).size(), size);
    for (void* slot : slots) Pool::Release(slot);
  }
}

TEST(SlabTest, SlotsDoNotOverlap) {
  using Pool = Slab<24>;
  std::vector<unsigned char*> slots;
  for (int i = 0; i < 1000; ++i) {
    slots.push_back(static_cast<unsigned char*>(Pool::Allocate()));
    std::fill_n(slots.back(), 24, static_cast<unsigned char>(i));
  }
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(std::count(slots[static_cast<std::size_t>(i)], slots[static_cast<std::size_t>(i)] + 24,
                         static_cast<unsigned char>(i)),
              24);
  }
  for (unsigned char* slot : slots) Pool::Release(slot);
}

TEST(SlabTest, SlotsMayComeBackOnAnotherThread) {
  using Pool = Slab<40>;
  for (int round = 0; round < 20; ++round) {
    std::vector<void*> slots;
    std::thread([&slots] {
      for (int i = 0; i < 300; ++i) slots.push_back(Pool::Allocate());
    }).join();
    std::thread other([&slots] {
      for (std::size_t i = 0; i < slots.size(); i += 2) Pool::Release(slots[i]);
    });
    for (std::size_t i = 1; i < slots.size(); i += 2) Pool::Release(slots[i]);
    other.join();
  }
}

TEST_F(AllocationTest, HandlesMayBeReleasedByTwoThreads) {
  Var const x(problem_, "x", 0);
  std::vector<Vorq::IVar*> handles;
  for (int i = 0; i < 2000; ++i) handles.push_back(Vorq::Wrap<Vorq::IVar>(x));
  auto release = [&handles, &x](std::size_t first) {
    for (std::size_t i = first; i < handles.size(); i += 2) {
      delete handles[i];
      delete Vorq::Wrap<Vorq::IVar>(x);
    }
  };
  std::thread other(release, 0);
  release(1);
  other.join();
  EXPECT_EQ(x.Idx(), 0);
}

TEST_F(AllocationTest, HandlesOfAThreadOutliveIt) {
  std::vector<Vorq::IExpr*> exprs;
  std::thread([&] {
    Var const x(problem_, "x", 3);
    for (int i = 0; i < 500; ++i) {
      exprs.push_back(CreateExpr(i));
      Vorq::Unwrap(exprs.back()).AddTerm(x, i);
    }
  }).join();
  EXPECT_EQ(exprs[400]->GetCoeff(0), 400.0);
  for (auto* expr : exprs) delete expr;
}

}  // namespace
