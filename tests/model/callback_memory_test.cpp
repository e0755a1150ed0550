// What reading solutions in a callback allocates. The solver library's functions that are called here stand in the
// test, so that they allocate nothing themselves.
#include <gtest/gtest.h>

#include <algorithm>

#include "model/callback_proxy.hpp"
#include "tests/support/allocations.hpp"

namespace {

constexpr int kColumns = 1000;

int fetches = 0;
int offers = 0;

}  // namespace

int VORQ_GetCallbackInfo(VORQ_CallbackData*, char const*, void* value) {
  ++fetches;
  std::fill_n(static_cast<double*>(value), kColumns, 2.5);
  return VORQ_OK;
}

int VORQ_AddCallbackSolution(VORQ_CallbackData*, double const*, double* objective) {
  ++offers;
  *objective = 1.0;
  return VORQ_OK;
}

namespace {

class CallbackMemoryTest : public testing::Test {
 protected:
  CallbackMemoryTest() {
    for (int i = 0; i < kColumns; ++i) vars_.emplace_back(problem_, "", i);
    values_.resize(kColumns);
    proxy_.Attach(problem_, kColumns);
  }

  // One callback that reads all vectors in all ways, and offers a solution.
  void ReadAll() {
    proxy_.Run(nullptr, 1, [this] {
      for (auto const which :
           {Vorq::CallbackVector::kIncumbent, Vorq::CallbackVector::kRelaxation, Vorq::CallbackVector::kCandidate}) {
        for (Vorq::Var const& var : vars_) sum_ += proxy_.GetValue(which, var);
        proxy_.GetValues(which, vars_, values_.data());
        proxy_.GetAllValues(which, values_.data(), kColumns);
      }
      proxy_.SetSolution(vars_, values_.data(), kColumns);
    });
  }

  Vorq::SharedPtr<Vorq::ProbHandle> problem_ = Vorq::MakeShared<Vorq::ProbHandle>();
  Vorq::VarArray vars_;
  std::vector<double> values_;
  double sum_ = 0.0;
  Vorq::CallbackProxy proxy_;
};

TEST_F(CallbackMemoryTest, ASteadyRunAllocatesNothing) {
  ReadAll();
  std::size_t const before = vorqtest::allocations;
  fetches = offers = 0;
  for (int i = 0; i < 10; ++i) ReadAll();
  EXPECT_EQ(vorqtest::allocations - before, 0u);
  EXPECT_EQ(fetches, 30);
  EXPECT_EQ(offers, 10);
  EXPECT_EQ(sum_, 11 * 3 * kColumns * 2.5);
}

TEST_F(CallbackMemoryTest, TheFirstRunAllocatesOneBufferAVector) {
  std::size_t const before = vorqtest::allocatedBytes;
  ReadAll();
  EXPECT_EQ(vorqtest::allocatedBytes - before, 4 * kColumns * sizeof(double));
}

}  // namespace
