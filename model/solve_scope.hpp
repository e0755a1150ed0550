// Model::SolveScope: the time of an operation that another thread may interrupt.
#pragma once

#include <atomic>

#include "model/model.hpp"

namespace Vorq {

// While one lives, Interrupt leaves the status to the operation that it interrupts. One may live inside of another.
class Model::SolveScope {
 public:
  explicit SolveScope(Model& model) : solving_(model.solving_), before_(solving_.exchange(true)) {}
  SolveScope(SolveScope const&) = delete;
  SolveScope& operator=(SolveScope const&) = delete;
  ~SolveScope() { solving_ = before_; }

 private:
  std::atomic<bool>& solving_;
  bool const before_;
};

}  // namespace Vorq
