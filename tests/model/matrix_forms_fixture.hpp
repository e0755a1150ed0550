// MatrixFormsTest: a model over the recording double with three variables, and blocks of them made by the factory.
#pragma once

#include "tests/model/special_fixture.hpp"

namespace vorqtest {

class MatrixFormsTest : public SpecialConstraintsTest {
 protected:
  using Items = std::initializer_list<Vorq::IVar*>;

  std::unique_ptr<Vorq::IMVar<1>> Vector(Items vars) {
    return Own(factory_->CreateMVar(Own(factory_->CreateNDim(vars.size())).get(), ArrayOf(vars).get()));
  }
  std::unique_ptr<Vorq::IMVar<2>> Matrix(std::uint64_t rows, std::uint64_t cols, Items vars) {
    return Own(factory_->CreateMVar(Own(factory_->CreateNDim(rows, cols)).get(), ArrayOf(vars).get()));
  }
  std::unique_ptr<Vorq::IMConstr<1>> Vector(std::initializer_list<Vorq::IConstraint*> constrs) {
    return Own(factory_->CreateMConstr(Own(factory_->CreateNDim(constrs.size())).get(), ArrayOf(constrs).get()));
  }
  std::unique_ptr<Vorq::INdArray<double, 1>> Numbers(std::vector<double> values) {
    return Own(factory_->CreateNdArray(Own(factory_->CreateNDim(values.size())).get(), values.data(), values.size()));
  }

  std::unique_ptr<Vorq::IMFactory> factory_{CreateMFactory()};
};

}  // namespace vorqtest
