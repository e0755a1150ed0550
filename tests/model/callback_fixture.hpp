// CallbackTest: the base of tests of the callback proxy, over the recording double: a model of three columns, and a
// callback object that runs what a test gives it.
#pragma once

#include <vector>

#include "tests/model/model_fixture.hpp"
#include "tests/support/function_callback.hpp"

namespace vorqtest {

class CallbackTest : public ModelTest {
 protected:
  static constexpr int kPlace = 2;

  CallbackTest() : vars_(AddVars(3)) {
    model_->SetCallback(&callback_, kPlace);
    double_.SolveCallsBack({kPlace});
    double_.ClearLog();
  }

  // Solves, with one callback that runs `body`, and leaves in the log what the body called.
  void InCallback(FunctionCallback::Body body) {
    callback_.body = [this, &body](Vorq::ICallbackProxy& proxy) {
      double_.ClearLog();
      body(proxy);
    };
    model_->Solve();
    callback_.body = {};
    EXPECT_SUCCESS(model_);
  }

  Vorq::ICallbackProxy& Proxy() { return *callback_.proxy; }

  std::vector<Var> vars_;
  Var const& x_ = vars_[0];
  Var const& y_ = vars_[1];
  Var const& z_ = vars_[2];
  FunctionCallback callback_;
};

}  // namespace vorqtest
