// CallbackProxy: acts for the model inside a callback of the solver library. It holds the library's callback data for
// the duration of one call, keeps the solution vectors that were fetched, and collects a solution to offer.
//
//     proxy.Attach(core.prob, columnCount);                          // when it is set, and before a solve
//     proxy.Run(data, context, [&] { callback.Callback(); });        // each time that the solver library calls
//
//     proxy.GetValue(CallbackVector::kRelaxation, x);                // inside: one fetch, whatever is read of it
//     proxy.AddCut(kCallbackLazyConstr, expr, 'L', 3.0);
//
// Failures go to the proxy's status, not to the model's. The solver library calls one at a time; only Interrupt is
// meant for other threads.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <thread>
#include <vector>

#include "frame/shared_ptr.hpp"
#include "frame/status.hpp"
#include "items/item_arrays.hpp"
#include "items/prob_handle.hpp"
#include "matrix/matrix_constr_builder.hpp"
#include "model/cut_kinds.hpp"
#include "model/term_merger.hpp"

namespace Vorq {

// The solutions that can be read: the best one, the relaxation's, the candidate.
enum class CallbackVector { kIncumbent, kRelaxation, kCandidate };

class CallbackProxy {
 public:
  Status status;

  // Takes over the problem, which stays alive as long as the proxy, and its number of columns. Vectors of another
  // length are of no use: what was fetched goes, the solution to offer keeps what fits. False, with nothing changed,
  // inside of a callback of another problem.
  bool Attach(SharedPtr<ProbHandle> const& problem, int columnCount);

  // One callback: `body` runs the user's code, then the solution is offered, if there is one. It stays for the
  // callbacks to come, which is meant. An exception out of `body` passes through.
  template <class Body>
  void Run(VORQ_CallbackData* data, int context, Body body) {
    Call const call(*this);
    data_ = data;  // kept when the callback is over, but dead then
    context_ = context;
    body();
    if (!solution_.empty()) LoadSolution();
  }

  int Context() const { return context_; }
  // From a thread other than the one that solves, the status is left alone.
  void Interrupt();

  // Adding cuts and lazy constraints. The expressions that are given lose duplicate, zero and removed terms.
  void AddCut(CallbackCutKind const& kind, Expr& expr, char sense, double rhs);
  void AddCut(CallbackCutKind const& kind, Expr const& lhs, char sense, Expr const& rhs);
  void AddCut(CallbackCutKind const& kind, ConstrBuilder& builder);
  // None is added if one has sense 'N' or 'R'.
  void AddCuts(CallbackCutKind const& kind, ConstrBuilderArray& builders);
  template <int N>
  void AddCuts(CallbackCutKind const& kind, MConstrBuilder<N> const& builder) {
    ConstrBuilderArray builders = ToConstrBuilderArray(builder);
    AddCuts(kind, builders);
  }

  // Information by name, 0 on failure.
  int GetIntInfo(char const* name);
  double GetDblInfo(char const* name);
  // The type of the information plus 8 times its dimension, -1 for an unknown one.
  int SearchInfo(char const* name);

  // One value, 0.0 on failure; those of an array without gaps, with their number; all columns, at most `len` of them
  // copied, with the number of columns. -1 on failure.
  double GetValue(CallbackVector which, Var const& var);
  int GetValues(CallbackVector which, VarArray const& vars, double* out);
  int GetAllValues(CallbackVector which, double* out, int len);

  // The solution to offer, VORQ_UNDEFINED where nothing was set.
  void SetSolution(Var const& var, double value);
  void SetSolution(VarArray const& vars, double const* values, int len);
  // The objective value of the solution offered, 1e30 if there is none.
  double LoadSolution();

 private:
  struct VectorTexts;
  static VectorTexts const& TextsOf(CallbackVector which);

  // The time of one callback, at whose end what was fetched is forgotten.
  class Call {
   public:
    // What was fetched before, in vain, is forgotten too.
    explicit Call(CallbackProxy& proxy) : proxy_(proxy), solver_(proxy.solver_.exchange(std::this_thread::get_id())) {
      proxy_.isRunning_ = true;
      proxy_.ForgetVectors();
    }
    Call(Call const&) = delete;
    Call& operator=(Call const&) = delete;
    ~Call() {
      proxy_.isRunning_ = false;
      proxy_.ForgetVectors();
      proxy_.solver_.store(solver_);
    }

   private:
    CallbackProxy& proxy_;
    std::thread::id solver_;
  };

  VORQ_Prob* Prob() const { return problem_ ? problem_->prob : nullptr; }
  std::vector<double>& Fetched(CallbackVector which) { return fetched_[static_cast<std::size_t>(which)]; }
  bool HasColumn(Var const& var) const { return var.Idx() >= 0 && var.Idx() < numCols_; }

  // Records a code; true for success.
  bool Record(int code, char const* text) {
    SetStatus(status, code, "%s", text);
    return code == kOk;
  }

  // Fetches a vector unless that was done in this callback; the solver library's code.
  int Fetch(CallbackVector which);
  void ForgetVectors();
  void BeginSolution();
  template <class T>
  T GetInfo(char const* name, int type, char const* failed, char const* otherType);

  int context_ = 0;
  int numCols_ = 0;
  VORQ_CallbackData* data_ = nullptr;
  SharedPtr<ProbHandle> problem_;
  // Each is empty, or has one entry for each column.
  std::array<std::vector<double>, 3> fetched_;
  std::vector<double> solution_;
  TermMerger merger_;
  bool isRunning_ = false;
  // The thread that attached last or, inside of a callback, the one that runs it.
  std::atomic<std::thread::id> solver_;
};

}  // namespace Vorq
