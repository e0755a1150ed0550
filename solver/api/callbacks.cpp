// The C functions of callbacks and of the log sink.
#include <algorithm>
#include <cmath>
#include <optional>

#include "solver/api/arguments.hpp"
#include "solver/api/guard.hpp"
#include "solver/tasks/callback_session.hpp"
#include "solver/tasks/validate.hpp"

using namespace vorqsolver;

namespace {

constexpr int kAllContexts = VORQ_CONTEXT_RELAXATION | VORQ_CONTEXT_CANDIDATE | VORQ_CONTEXT_INCUMBENT;

// For what is allowed inside of a call only. Elsewhere the problem may belong to another thread, so not even its last
// message is touched.
template <typename Body>
int InsideCall(VORQ_CallbackData* data, Body&& body) noexcept {
  if (data == nullptr) return VORQ_INVALID;
  auto& session = *reinterpret_cast<CallbackSession*>(data);
  if (!session.IsInside()) return VORQ_INVALID;
  return Guard(session.Prob(), [&](Problem& problem) { body(session, problem); });
}

// Rows as callbacks give them.
struct GivenRows {
  char const* kind;  // begins with a capital
  Batch terms;
  int const* cols;
  double const* coefs;
  char const* senses;
  double const* sides;
};

LinearRow TakeRow(GivenRows const& given, int place, int colCount) {
  char const sense = ToComparison(given.senses[place]);
  auto const range = ToRange(sense, given.sides[place], kInfinity);
  if (range.lower >= kInfinity || range.upper <= -kInfinity) {
    Refuse("No point keeps its side ", given.sides[place], " of sense '", sense, "'");
  }
  LinearRow row = {LinearTerms(given.terms.Of(place, given.cols), given.terms.Of(place, given.coefs), colCount),
                   range.lower, range.upper};
  for (auto const& term : row.terms) {
    if (std::abs(term.value) < kTooGreat) continue;
    Refuse("Its coefficient ", term.value, " of column ", term.col, " is too great to calculate with");
  }
  return row;
}

// All rows, checked, or a failure that names the first bad one.
std::vector<LinearRow> TakeRows(GivenRows const& given, int colCount) {
  if (given.terms.ElementCount() > 0) Need(given.coefs, "coefs");
  std::vector<LinearRow> rows;
  for (int place = 0; place < given.terms.Count(); ++place) {
    try {
      rows.push_back(TakeRow(given, place, colCount));
    } catch (Failure const& failure) {
      throw Failure(failure.code, Text(given.kind, " ", place, " of the callback: ", failure.what()));
    }
  }
  return rows;
}

int AddLazyConstraints(CallbackSession& session, std::vector<LinearRow> rows) {
  if (session.Context() == VORQ_CONTEXT_INCUMBENT) {
    Refuse("Lazy constraints are not taken for a new incumbent, which was accepted already");
  }
  session.Search().TakeLazyConstraints(std::move(rows));
  return VORQ_OK;
}

int AddUserCuts(CallbackSession& session, std::vector<LinearRow> rows) {
  if (session.Context() != VORQ_CONTEXT_RELAXATION) Refuse("User cuts are taken for the relaxation of a node only");
  session.Search().TakeUserCuts(std::move(rows));
  return VORQ_OK;
}

using Taker = int (*)(CallbackSession&, std::vector<LinearRow>);

int AddRow(VORQ_CallbackData* data, char const* kind, Taker taker, int n, int const* cols, double const* coefs,
           int sense, double rhs) {
  return InsideCall(data, [&](CallbackSession& session, Problem& problem) {
    if (n > 0) Need(cols, "cols");
    int const begin = 0;
    char const letter = ToComparison(sense);
    taker(session, TakeRows({kind, Batch(1, &begin, &n, cols != nullptr), cols, coefs, &letter, &rhs},
                            problem.data.columns.Count()));
  });
}

int AddRows(VORQ_CallbackData* data, char const* kind, Taker taker, int count, int const* rowBeg, int const* rowCnt,
            int const* cols, double const* coefs, char const* senses, double const* rhss) {
  return InsideCall(data, [&](CallbackSession& session, Problem& problem) {
    CheckCount(count, "count");
    if (count > 0) Need(senses, "senses");
    if (count > 0) Need(rhss, "rhss");
    taker(session, TakeRows({kind, Batch(count, rowBeg, rowCnt, cols != nullptr), cols, coefs, senses, rhss},
                            problem.data.columns.Count()));
  });
}

// Copies an information to the place that the caller gave.
struct InfoCopier {
  SearchState const& state;
  std::string_view name;
  void* place;

  void operator()(int SearchState::*member) const { *static_cast<int*>(place) = state.*member; }
  void operator()(double SearchState::*member) const { *static_cast<double*>(place) = state.*member; }
  void operator()(std::span<double const> SearchState::*member) const {
    if ((state.*member).data() == nullptr) Refuse("There is no '", name, "' at this point of the solve");
    std::ranges::copy(state.*member, static_cast<double*>(place));
  }
};

}  // namespace

int VORQ_SetLogCallback(VORQ_Prob* prob, VORQ_LogFunction function, void* user) {
  return Guard(prob, [&](Problem& problem) { problem.log.SetSink(function, user); });
}

int VORQ_SetCallback(VORQ_Prob* prob, VORQ_CallbackFunction function, int contextMask, void* user) {
  return Guard(prob, [&](Problem& problem) {
    if (problem.solving) Refuse("The callback cannot be changed while the problem is being solved");
    if (contextMask != -1 && (contextMask & ~kAllContexts) != 0) {
      Refuse("The mask ", contextMask, " names a context that does not exist");
    }
    problem.callback = {function, contextMask, user};
  });
}

int VORQ_SearchCallbackInfo(VORQ_Prob*, char const* name, int* type, int* dim) {
  return Guard([&] {
    Need(name, "name");
    auto const* info = FindCallbackInfo(name);
    if (info == nullptr) {
      Store(type, -1);
      Store(dim, 0);
      return;
    }
    bool const isVector = std::holds_alternative<std::span<double const> SearchState::*>(info->member);
    Store(type, std::holds_alternative<int SearchState::*>(info->member) ? 0 : 1);
    Store(dim, isVector ? 1 : 0);
  });
}

int VORQ_GetCallbackInfo(VORQ_CallbackData* data, char const* name, void* value) {
  return InsideCall(data, [&](CallbackSession& session, Problem&) {
    Need(name, "name");
    Need(value, "value");
    auto const* info = FindCallbackInfo(name);
    if (info == nullptr) Refuse("There is no callback information '", name, "'");
    std::visit(InfoCopier{session.Search().State(), info->name, value}, info->member);
  });
}

int VORQ_AddCallbackSolution(VORQ_CallbackData* data, double const* values, double* objective) {
  return InsideCall(data, [&](CallbackSession& session, Problem& problem) {
    int const cols = problem.data.columns.Count();
    auto const given = List(cols, values, "values");
    for (int col = 0; col < cols; ++col) {
      double const value = given[static_cast<std::size_t>(col)];
      if (value != VORQ_UNDEFINED && !(std::abs(value) < kInfinity)) {
        Refuse("The solution of the callback has the value ", value, " for column ", col);
      }
    }
    Store(objective, session.Search().OfferSolution(given).value_or(kInfinity));
  });
}

int VORQ_AddCallbackUserCut(VORQ_CallbackData* data, int n, int const* cols, double const* coefs, int sense,
                            double rhs) {
  return AddRow(data, "User cut", AddUserCuts, n, cols, coefs, sense, rhs);
}

int VORQ_AddCallbackUserCuts(VORQ_CallbackData* data, int count, int const* rowBeg, int const* rowCnt, int const* cols,
                             double const* coefs, char const* senses, double const* rhss) {
  return AddRows(data, "User cut", AddUserCuts, count, rowBeg, rowCnt, cols, coefs, senses, rhss);
}

int VORQ_AddCallbackLazyConstr(VORQ_CallbackData* data, int n, int const* cols, double const* coefs, int sense,
                               double rhs) {
  return AddRow(data, "Lazy constraint", AddLazyConstraints, n, cols, coefs, sense, rhs);
}

int VORQ_AddCallbackLazyConstrs(VORQ_CallbackData* data, int count, int const* rowBeg, int const* rowCnt,
                                int const* cols, double const* coefs, char const* senses, double const* rhss) {
  return AddRows(data, "Lazy constraint", AddLazyConstraints, count, rowBeg, rowCnt, cols, coefs, senses, rhss);
}
