// Problem: what a VORQ_Prob points to: the data, the parameters, the last results and where log lines go.
#pragma once

#include <atomic>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "frame/vorq_solver.h"
#include "solver/parameters/parameter_set.hpp"
#include "solver/problem/problem_data.hpp"
#include "solver/problem/solution.hpp"
#include "solver/problem/tuning.hpp"
#include "solver/tasks/callback_session.hpp"
#include "solver/tasks/log.hpp"

namespace vorqsolver {

struct UserCallback {
  VORQ_CallbackFunction function = nullptr;
  int contextMask = 0;
  void* user = nullptr;
};

class Problem {
 public:
  ProblemData data;
  ParameterSet parameters;
  SolveResult result;

  Basis startBasis;              // given by the caller for the next solve, empty if none
  std::vector<MipStart> starts;  // MIP starts for the next solve
  Tuning tuning;                 // stays until the next tuning or a reset of everything

  Log log{&parameters};
  UserCallback callback;
  CallbackSession callbackSession;  // lives as long as the problem, so that stale callback data is told as such
  std::atomic<bool> interrupted = false;
  std::atomic<bool> solving = false;  // results and data must not change then

  // The text of the last failure, for the log and for tools; return codes alone tell little of a bad file.
  std::string lastMessage;

  // Whether the last solve left a solution of that kind, or the caller gave one.
  bool HasLpSolution() const;
  bool HasMipSolution() const;

  // The basis that the next LP solve starts from, and that reads of the basis give: the one set by the caller,
  // otherwise that of the last solve; empty if there is none.
  Basis const& CurrentBasis() const;
  bool HasBasis() const;

  // To be called after each change of the data: results no longer hold, and the starts follow new columns and rows.
  // The basis of the last linear solve stays as the start of the next one where the caller gave none.
  void DataChanged() {
    if (!result.IsEmpty() || !startBasis.IsEmpty() || !starts.empty()) [[unlikely]]
      UpdateStarts();
  }

  // To be called after a deletion instead: a start basis may have lost its basic columns, so it goes; the MIP starts
  // lose the entries of the deleted columns.
  void ColumnsDeleted(std::span<int const> deleted);
  void RowsDeleted();

  // Forgets the results, and with `all` the starts too.
  void ResetResults(bool all);

 private:
  void UpdateStarts();
};

}  // namespace vorqsolver
