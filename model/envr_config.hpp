// EnvrConfig: named settings for an environment that is about to be opened.
#pragma once

#include "frame/shared_ptr.hpp"
#include "frame/status.hpp"
#include "frame/vorq_solver.h"

namespace Vorq {

class EnvrConfig {
 public:
  EnvrConfig();

  void Set(char const* name, char const* value);

  // The solver library's record, null when it could not be made.
  VORQ_EnvConfig* Config() const { return cell_->config; }

  Status status;

 private:
  struct Cell {
    Cell() { VORQ_CreateEnvConfig(&config); }
    Cell(Cell const&) = delete;
    Cell& operator=(Cell const&) = delete;
    ~Cell() { VORQ_DeleteEnvConfig(&config); }

    VORQ_EnvConfig* config = nullptr;
  };

  SharedPtr<Cell> cell_;
};

}  // namespace Vorq
