// Calls of the caller's callback, and the table of informations.
#include "solver/tasks/callback_session.hpp"

#include <algorithm>
#include <cctype>

namespace vorqsolver {

void CallbackSession::Set(VORQ_Prob* prob, VORQ_CallbackFunction function, int contextMask, void* user) {
  prob_ = prob;
  function_ = function;
  mask_ = contextMask;
  user_ = user;
}

bool CallbackSession::Call(int context, RunningSearch& search) {
  if (!Wants(context)) return true;
  struct Inside {
    explicit Inside(CallbackSession& owner) : session(owner) {}
    Inside(Inside const&) = delete;
    Inside& operator=(Inside const&) = delete;
    ~Inside() {
      session.caller_ = std::thread::id();
      session.search_ = nullptr;
    }
    CallbackSession& session;
  };
  Inside const inside(*this);
  context_ = context;
  search_ = &search;
  caller_ = std::this_thread::get_id();
  try {
    return function_(prob_, reinterpret_cast<VORQ_CallbackData*>(this), context, user_) == 0;
  } catch (...) {
    throw CallbackException{std::current_exception()};
  }
}

namespace {

constexpr CallbackInfo kInfos[] = {
    {"NodeCnt", &SearchState::nodes},
    {"OpenNodeCnt", &SearchState::openNodes},
    {"SolutionCnt", &SearchState::solutions},
    {"LazyConstrCnt", &SearchState::lazyConstraints},
    {"UserCutCnt", &SearchState::userCuts},
    {"SolvingTime", &SearchState::seconds},
    {"BestObj", &SearchState::bestObjective},
    {"BestBnd", &SearchState::bestBound},
    {"BestGap", &SearchState::bestGap},
    {"MipCandidateObj", &SearchState::candidateObjective},
    {"RelaxSolutionObj", &SearchState::relaxationObjective},
    {"Incumbent", &SearchState::incumbent},
    {"MipCandidate", &SearchState::candidate},
    {"RelaxSolution", &SearchState::relaxation},
};

bool IsSameName(std::string_view left, std::string_view right) {
  auto const lower = [](char character) { return std::tolower(static_cast<unsigned char>(character)); };
  return std::ranges::equal(left, right, {}, lower, lower);
}

}  // namespace

CallbackInfo const* FindCallbackInfo(std::string_view name) {
  auto const found =
      std::ranges::find_if(kInfos, [&](CallbackInfo const& info) { return IsSameName(info.name, name); });
  return found == std::end(kInfos) ? nullptr : &*found;
}

}  // namespace vorqsolver
