// What a callback may ask of the solver library and tell it.
#include "model/callback_proxy.hpp"

#include <algorithm>
#include <utility>

namespace Vorq {

// The name of a vector's information, and the texts of its readers' failures. Two of the last kind are worded
// differently, which is meant.
struct CallbackProxy::VectorTexts {
  char const* name;
  char const* allFailed;
  char const* varsFailed;
  char const* varFailed;
  char const* invalidVar;
};

namespace {

constexpr char const* kInvalidArguments = "Invalid arguments";
constexpr char const* kInvalidSolutionVar = "Var is invalid in model";
constexpr double kNoObjective = 1e30;

// Rows behind each other, as the batch functions take them.
struct CutBatch {
  explicit CutBatch(ConstrBuilderArray const& builders) {
    std::size_t terms = 0;
    for (ConstrBuilder const& builder : builders) terms += builder.expr.Size();
    cols.reserve(terms);
    coeffs.reserve(terms);
    begins.reserve(builders.size());
    counts.reserve(builders.size());
    senses.reserve(builders.size());
    rhss.reserve(builders.size());
  }

  // False for a sense that has more than a right side.
  bool Add(ConstrBuilder& builder, TermMerger& merger) {
    Expr& expr = builder.expr;
    begins.push_back(static_cast<int>(cols.size()));
    merger.Merge(expr, cols);
    coeffs.insert(coeffs.end(), expr.coeffs.begin(), expr.coeffs.end());
    counts.push_back(static_cast<int>(expr.Size()));
    senses.push_back(builder.sense);
    rhss.push_back(0.0 - expr.constant);
    return builder.sense != 'N' && builder.sense != 'R';
  }

  std::vector<int> begins, counts, cols;
  std::vector<double> coeffs, rhss;
  std::vector<char> senses;
};

}  // namespace

CallbackProxy::VectorTexts const& CallbackProxy::TextsOf(CallbackVector which) {
  static constexpr VectorTexts kTexts[] = {
      {"Incumbent", "Fail to get incumbent", "Fail to get incumbent for vars", "Fail to get incumbent for given var",
       "'var' is invalid in model"},
      {"RelaxSolution", "Fail to get relax solution", "Fail to get relax solution for vars",
       "Fail to get relax solution for given var", "'var' is invalid in model"},
      {"MipCandidate", "Fail to get solution", "Fail to get solution for vars", "Fail to get solution for given var",
       kInvalidSolutionVar},
  };
  return kTexts[static_cast<std::size_t>(which)];
}

// ---- Life

bool CallbackProxy::Attach(SharedPtr<ProbHandle> const& problem, int columnCount) {
  if (problem != problem_) {
    if (isRunning_) return false;
    problem_ = problem;
    data_ = nullptr;  // may go with the problem from before
  }
  solver_.store(std::this_thread::get_id());
  if (columnCount != numCols_) {
    numCols_ = columnCount;
    ForgetVectors();
    if (!solution_.empty()) solution_.resize(static_cast<std::size_t>(columnCount), VORQ_UNDEFINED);
  }
  return true;
}

void CallbackProxy::ForgetVectors() {
  for (std::vector<double>& values : fetched_) values.clear();  // the capacity stays for the next callback
}

void CallbackProxy::Interrupt() {
  int const code = VORQ_Interrupt(Prob());
  std::thread::id const solver = solver_.load();
  bool const isAlone = solver == std::thread::id() || solver == std::this_thread::get_id();
  if (isAlone) Record(code, "Fail to call interrupt in callback");
}

// ---- Cuts and lazy constraints

void CallbackProxy::AddCut(CallbackCutKind const& kind, Expr& expr, char sense, double rhs) {
  std::vector<int> cols;
  cols.reserve(expr.Size());
  merger_.Merge(expr, cols);
  Record(kind.addOne(data_, static_cast<int>(cols.size()), cols.data(), expr.coeffs.data(), sense, rhs - expr.constant),
         kind.addOneFailed);
}

void CallbackProxy::AddCut(CallbackCutKind const& kind, Expr const& lhs, char sense, Expr const& rhs) {
  Expr difference(lhs);
  difference -= rhs;
  AddCut(kind, difference, sense, 0.0);
}

void CallbackProxy::AddCut(CallbackCutKind const& kind, ConstrBuilder& builder) {
  AddCut(kind, builder.expr, builder.sense, 0.0);  // any sense goes on, and the range is not looked at, which is meant
}

void CallbackProxy::AddCuts(CallbackCutKind const& kind, ConstrBuilderArray& builders) {
  CutBatch batch(builders);
  int code = kOk;
  for (auto builder = builders.begin(); builder != builders.end() && code == kOk; ++builder) {
    if (!batch.Add(*builder, merger_)) code = kInvalid;
  }
  if (code == kOk) {
    // An empty array makes the call as well, which is meant.
    code = kind.addMany(data_, static_cast<int>(builders.size()), batch.begins.data(), batch.counts.data(),
                        batch.cols.data(), batch.coeffs.data(), batch.senses.data(), batch.rhss.data());
  }
  Record(code, kind.addManyFailed);
}

// ---- Information

int CallbackProxy::SearchInfo(char const* name) {
  int type = -1;
  int dim = -1;
  Record(VORQ_SearchCallbackInfo(Prob(), name, &type, &dim), "Fail to get type of callback info");
  return type == -1 || dim == -1 ? -1 : type + 8 * dim;
}

template <class T>
T CallbackProxy::GetInfo(char const* name, int type, char const* failed, char const* otherType) {
  T value = 0;
  int const found = SearchInfo(name);
  if (found < 0) {
    Record(kInvalid, "Unknown name of callback info");
  } else if (found != type) {
    Record(kInvalid, otherType);
  } else {
    Record(VORQ_GetCallbackInfo(data_, name, &value), failed);
  }
  return value;
}

int CallbackProxy::GetIntInfo(char const* name) {
  return GetInfo<int>(name, 0, "Fail to get int info in callback", "The info name does not have int type");
}

double CallbackProxy::GetDblInfo(char const* name) {
  return GetInfo<double>(name, 1, "Fail to get double info in callback", "The info name does not have double type");
}

// ---- Solutions

int CallbackProxy::Fetch(CallbackVector which) {
  std::vector<double>& values = Fetched(which);
  if (!values.empty()) return kOk;
  // Undefined values stay when the fetch fails: a vector is asked for once in a callback, which is meant.
  values.assign(static_cast<std::size_t>(numCols_), VORQ_UNDEFINED);
  return VORQ_GetCallbackInfo(data_, TextsOf(which).name, values.data());
}

double CallbackProxy::GetValue(CallbackVector which, Var const& var) {
  VectorTexts const& texts = TextsOf(which);
  if (!HasColumn(var)) {
    Record(kInvalid, texts.invalidVar);
    return 0.0;
  }
  if (!Record(Fetch(which), texts.varFailed)) return 0.0;
  return Fetched(which)[static_cast<std::size_t>(var.Idx())];
}

int CallbackProxy::GetValues(CallbackVector which, VarArray const& vars, double* out) {
  if (out == nullptr) {
    Record(kInvalid, kInvalidArguments);
    return -1;
  }
  if (!Record(Fetch(which), TextsOf(which).varsFailed)) return -1;
  std::vector<double> const& values = Fetched(which);
  int written = 0;
  for (Var const& var : vars) {
    if (HasColumn(var)) out[written++] = values[static_cast<std::size_t>(var.Idx())];
  }
  return written;
}

int CallbackProxy::GetAllValues(CallbackVector which, double* out, int len) {
  if (!Record(Fetch(which), TextsOf(which).allFailed)) return -1;
  if (out != nullptr && len > 0) std::copy_n(Fetched(which).begin(), std::min(len, numCols_), out);
  return numCols_;
}

void CallbackProxy::BeginSolution() {
  if (solution_.empty()) solution_.assign(static_cast<std::size_t>(numCols_), VORQ_UNDEFINED);
}

void CallbackProxy::SetSolution(Var const& var, double value) {
  BeginSolution();  // also for a variable that is refused, which is meant
  if (!HasColumn(var)) {
    Record(kInvalid, kInvalidSolutionVar);
    return;
  }
  solution_[static_cast<std::size_t>(var.Idx())] = value;  // a failure from before stays in the status, which is meant
}

void CallbackProxy::SetSolution(VarArray const& vars, double const* values, int len) {
  if (values == nullptr || static_cast<int>(vars.size()) != len) {
    Record(kInvalid, kInvalidArguments);
    return;
  }
  if (len < 1) return;
  BeginSolution();
  for (Var const& var : vars) {
    if (!HasColumn(var)) {
      Record(kInvalid, "Fail to set solution for vars");  // what was stored so far stays
      return;
    }
    solution_[static_cast<std::size_t>(var.Idx())] = *values++;
  }
  Record(kOk, "");
}

double CallbackProxy::LoadSolution() {
  double objective = kNoObjective;
  if (!solution_.empty()) {
    Record(VORQ_AddCallbackSolution(data_, solution_.data(), &objective), "Fail to load solution in callback");
  }
  return objective;
}

}  // namespace Vorq
