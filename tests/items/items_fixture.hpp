// The base of tests of items and expressions: a problem of the recording double with some items of each kind, and
// shorthands to make objects that stand for them.
#pragma once

#include <gmock/gmock.h>

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "items/item_arrays.hpp"
#include "items/lmi_expr.hpp"
#include "tests/double/solver_double.hpp"

namespace vorqtest {

class ItemsTest : public SolverDoubleTest {
 protected:
  ItemsTest() {
    VORQ_CreateEnvWithPath(nullptr, &env_);
    problem_ = Vorq::MakeShared<Vorq::ProbHandle>(env_);
    for (char const* counter : {"Cols", "Rows", "Soss", "Indicators", "Cones", "ExpCones", "AffineCones", "QConstrs",
                                "PSDCols", "PSDConstrs", "LMIConstrs", "SymMats"}) {
      double_.SetItems(problem_->prob, counter, 500);
    }
    double_.ClearLog();
  }

  ~ItemsTest() override {
    problem_ = {};
    VORQ_DeleteEnv(&env_);
  }

  template <class Item>
  Item Make(std::string name, int idx) const {
    return Item(problem_, std::move(name), idx);
  }
  Vorq::Var MakeVar(std::string name, int idx) const { return Make<Vorq::Var>(std::move(name), idx); }
  Vorq::PsdVar MakePsdVar(std::string name, int idx, int dim) const { return {problem_, std::move(name), idx, dim}; }
  Vorq::SymMatrix MakeMatrix(int idx, int dim) const { return {problem_, "", idx, dim}; }

  template <class T>
  static std::string Print(T&& object) {
    std::ostringstream out;
    out << object;
    return out.str();
  }

  // The positions of a list of items.
  template <class Item>
  static std::vector<int> Indices(std::vector<Item> const& items) {
    std::vector<int> result;
    for (Item const& item : items) result.push_back(item.Idx());
    return result;
  }

  // Code and text of a failure record.
  static std::string Report(Vorq::Status const& status) {
    return std::to_string(status.Code()) + " " + (status.Text() == nullptr ? "-" : status.Text());
  }

  VORQ_Env* env_ = nullptr;
  Vorq::SharedPtr<Vorq::ProbHandle> problem_;
};

}  // namespace vorqtest
