// SpecialConstraintsTest: a model over the recording double with three variables, and shorthands for what the tests of
// quadratic, logical, conic and semidefinite parts need.
#pragma once

#include "tests/model/model_fixture.hpp"

namespace vorqtest {

class SpecialConstraintsTest : public ModelTest {
 protected:
  SpecialConstraintsTest() : vars_(AddVars(3)) {}

  // A symmetric matrix without entries, and the calls forgotten.
  std::unique_ptr<Vorq::ISymMatrix> AddMatrix(int dim) {
    auto matrix = Own(model_->AddSparseMat(dim, 0, nullptr, nullptr, nullptr));
    double_.ClearLog();
    return matrix;
  }
  std::unique_ptr<Vorq::IPsdVar> AddPsdVar(int dim) {
    auto var = Own(model_->AddPsdVar(dim, "X"));
    double_.ClearLog();
    return var;
  }

  std::vector<Var> vars_;
  Var const& x_ = vars_[0];
  Var const& y_ = vars_[1];
  Var const& z_ = vars_[2];
};

}  // namespace vorqtest
