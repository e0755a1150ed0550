// A problem with a callback that is a function object of the test.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/solver/engines/solve_fixture.hpp"

// What a callback can do, in a line each.
class Call {
 public:
  Call(VORQ_CallbackData* callbackData, int at, std::size_t cols) : context(at), data(callbackData), cols_(cols) {}

  int Int(char const* name) const {
    int value = -777;
    EXPECT_EQ(VORQ_GetCallbackInfo(data, name, &value), VORQ_OK) << name;
    return value;
  }
  double Dbl(char const* name) const {
    double value = -777.0;
    EXPECT_EQ(VORQ_GetCallbackInfo(data, name, &value), VORQ_OK) << name;
    return value;
  }
  std::vector<double> Vector(char const* name) const {
    std::vector<double> values(cols_, -777.0);
    EXPECT_EQ(VORQ_GetCallbackInfo(data, name, values.data()), VORQ_OK) << name;
    return values;
  }
  // The point of the relaxation or the candidate, whichever there is.
  std::vector<double> Point() const {
    return Vector(context == VORQ_CONTEXT_RELAXATION ? "RelaxSolution" : "MipCandidate");
  }

  void Lazy(std::vector<int> const& cols, std::vector<double> const& coefs, char sense, double rhs) const {
    int const count = static_cast<int>(cols.size());
    EXPECT_EQ(VORQ_AddCallbackLazyConstr(data, count, cols.data(), coefs.data(), sense, rhs), VORQ_OK);
  }
  void Cut(std::vector<int> const& cols, std::vector<double> const& coefs, char sense, double rhs) const {
    int const count = static_cast<int>(cols.size());
    EXPECT_EQ(VORQ_AddCallbackUserCut(data, count, cols.data(), coefs.data(), sense, rhs), VORQ_OK);
  }
  double Offer(std::vector<double> const& values) const {
    double objective = -777.0;
    EXPECT_EQ(VORQ_AddCallbackSolution(data, values.data(), &objective), VORQ_OK);
    return objective;
  }

  int context;
  VORQ_CallbackData* data;

 private:
  std::size_t cols_;
};

class CallbackTest : public SolveTest {
 protected:
  static constexpr int kRelaxation = VORQ_CONTEXT_RELAXATION;
  static constexpr int kCandidate = VORQ_CONTEXT_CANDIDATE;
  static constexpr int kIncumbent = VORQ_CONTEXT_INCUMBENT;
  static constexpr int kAll = -1;

  // From now on solves call this.
  void OnCall(int mask, std::function<void(Call const&)> body) {
    body_ = std::move(body);
    EXPECT_EQ(VORQ_SetCallback(
                  prob,
                  [](VORQ_Prob*, VORQ_CallbackData* data, int context, void* user) {
                    auto& self = *static_cast<CallbackTest*>(user);
                    ++self.calls[context];
                    self.body_({data, context, self.cols_});
                    return self.answer;
                  },
                  mask, this),
              VORQ_OK);
  }

  int Run() {
    calls.clear();
    cols_ = static_cast<std::size_t>(Int("Cols"));
    return Solve();
  }

  std::map<int, int> calls;  // by context
  int answer = 0;            // of the callback

 private:
  std::function<void(Call const&)> body_;
  std::size_t cols_ = 0;
};
