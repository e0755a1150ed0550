// The state of the double, and the road of each call through it.
#include "tests/double/control.hpp"

#include <deque>
#include <list>
#include <mutex>
#include <utility>

#include "tests/double/backstage.hpp"
#include "tests/double/handles.hpp"
#include "tests/double/store.hpp"

namespace vorqtest {
namespace {

struct LoggedCall {
  std::string function;
  std::string text;
};

struct LateFailure {
  int callsLeft;
  int code;
};

template <class Function>
struct Registered {
  VORQ_Prob* prob = nullptr;
  Function function = nullptr;
  void* user = nullptr;
};

struct CallbackName {
  int type;
  int dim;
};

// Counts a call against the failures that wait for it; the code of the one whose turn it is, 0 for none.
int TakeFailure(std::list<LateFailure>& failures) {
  int code = VORQ_OK;
  for (auto failure = failures.begin(); failure != failures.end();) {
    if (--failure->callsLeft > 0) {
      ++failure;
      continue;
    }
    if (code == VORQ_OK) code = failure->code;
    failure = failures.erase(failure);
  }
  return code;
}

}  // namespace

struct SolverDouble::State {
  mutable std::mutex mutex;

  std::vector<LoggedCall> log;
  std::vector<std::string> violations;
  Handles handles;
  std::map<void const*, Store> stores;

  std::map<std::string, DoubleAnswer, std::less<>> answers;
  std::map<std::string, std::deque<DoubleAnswer>, std::less<>> answersInLine;
  std::map<std::string, std::list<LateFailure>, std::less<>> failures;
  std::list<LateFailure> failuresOfAny;
  std::map<std::string, Hook, std::less<>> hooks;
  bool spoil = false;

  std::map<std::pair<std::string, std::string>, std::vector<double>> values;
  std::map<std::string, int, std::less<>> nameKinds;
  std::map<std::string, CallbackName, std::less<>> callbackNames;
  Value banner = "double banner";
  int configLeadingWord = 0;

  Registered<VORQ_CallbackFunction> callback;
  int callbackMask = 0;
  Registered<VORQ_LogFunction> logFunction;

  State() {
    for (std::string_view const counter : kCounters) nameKinds.emplace(counter, VORQ_INT_ATTR);
  }

  // The script for this call: what waits in line first, then what lasts. A failure has no outputs.
  DoubleAnswer TakeAnswer(std::string const& function, bool& scripted) {
    scripted = true;
    int const anyCode = TakeFailure(failuresOfAny);
    int const code = TakeFailure(failures[function]);
    if (anyCode != VORQ_OK) return DoubleAnswer().Code(anyCode);
    if (code != VORQ_OK) return DoubleAnswer().Code(code);
    if (auto& line = answersInLine[function]; !line.empty()) {
      DoubleAnswer answer = std::move(line.front());
      line.pop_front();
      return answer;
    }
    scripted = false;
    auto const lasting = answers.find(function);
    return lasting == answers.end() ? DoubleAnswer() : lasting->second;
  }
};

// ---- What tests call

SolverDouble::SolverDouble() : state_(std::make_unique<State>()) {}
SolverDouble::~SolverDouble() = default;

SolverDouble& SolverDouble::Instance() {
  static SolverDouble instance;
  return instance;
}

void SolverDouble::Reset() {
  state_ = std::make_unique<State>();
}

void SolverDouble::ClearLog() {
  std::lock_guard const lock(state_->mutex);
  state_->log.clear();
}

std::vector<std::string> SolverDouble::Calls() const {
  std::lock_guard const lock(state_->mutex);
  std::vector<std::string> texts;
  for (LoggedCall const& call : state_->log) texts.push_back(call.text);
  return texts;
}

std::vector<std::string> SolverDouble::Calls(std::string_view function) const {
  std::lock_guard const lock(state_->mutex);
  std::vector<std::string> texts;
  for (LoggedCall const& call : state_->log) {
    if (call.function == function) texts.push_back(call.text);
  }
  return texts;
}

std::vector<std::string> SolverDouble::CallNames() const {
  std::lock_guard const lock(state_->mutex);
  std::vector<std::string> names;
  for (LoggedCall const& call : state_->log) names.push_back(call.function);
  return names;
}

DoubleAnswer& SolverDouble::Answer(std::string const& function) {
  return state_->answers[function] = DoubleAnswer();
}

DoubleAnswer& SolverDouble::AnswerNext(std::string const& function) {
  return state_->answersInLine[function].emplace_back();
}

void SolverDouble::FailNext(std::string const& function, int code) {
  AnswerNext(function).Code(code);
}

void SolverDouble::FailNth(std::string const& function, int n, int code) {
  state_->failures[function].push_back({n, code});
}

void SolverDouble::FailNthCall(int n, int code) {
  state_->failuresOfAny.push_back({n, code});
}

void SolverDouble::SpoilOutputsOfFailures(bool spoil) {
  state_->spoil = spoil;
}

void SolverDouble::On(std::string const& function, Hook hook) {
  state_->hooks[function] = std::move(hook);
}

SolverDouble& SolverDouble::Values(std::string const& function, std::string const& name, std::vector<double> values) {
  state_->values.insert_or_assign({function, name}, std::move(values));
  return *this;
}

SolverDouble& SolverDouble::IntAttr(std::string const& name, int value) {
  state_->nameKinds[name] = VORQ_INT_ATTR;
  return Values("VORQ_GetIntAttr", name, {static_cast<double>(value)});
}

SolverDouble& SolverDouble::DblAttr(std::string const& name, double value) {
  state_->nameKinds[name] = VORQ_DBL_ATTR;
  return Values("VORQ_GetDblAttr", name, {value});
}

SolverDouble& SolverDouble::IntParam(std::string const& name, int value) {
  state_->nameKinds[name] = VORQ_INT_PARAM;
  return Values("VORQ_GetIntParam", name, {static_cast<double>(value)});
}

SolverDouble& SolverDouble::DblParam(std::string const& name, double value) {
  state_->nameKinds[name] = VORQ_DBL_PARAM;
  return Values("VORQ_GetDblParam", name, {value});
}

SolverDouble& SolverDouble::CallbackInt(std::string const& name, int value) {
  state_->callbackNames[name] = {0, 0};
  return Values("VORQ_GetCallbackInfo", name, {static_cast<double>(value)});
}

SolverDouble& SolverDouble::CallbackDbl(std::string const& name, double value) {
  state_->callbackNames[name] = {1, 0};
  return Values("VORQ_GetCallbackInfo", name, {value});
}

SolverDouble& SolverDouble::CallbackVector(std::string const& name, std::vector<double> values) {
  state_->callbackNames[name] = {1, 1};
  return Values("VORQ_GetCallbackInfo", name, std::move(values));
}

SolverDouble& SolverDouble::Banner(std::string const& text) {
  state_->banner = text;
  return *this;
}

void SolverDouble::ConfigLeadingWord(int word) {
  state_->configLeadingWord = word;
}

void SolverDouble::SetItems(VORQ_Prob* prob, std::string const& counter, int count) {
  for (std::size_t kind = 0; kind < kKinds; ++kind) {
    if (kCounters[kind] == counter) {
      state_->stores[prob].items[kind].assign(static_cast<std::size_t>(count), Item());
      return;
    }
  }
  state_->violations.push_back("SetItems: no counter " + counter);
}

int SolverDouble::RunCallback(int context) {
  std::unique_lock lock(state_->mutex);
  Registered<VORQ_CallbackFunction> const callback = state_->callback;
  if (callback.function == nullptr) return -1;
  // The data lives for one call.
  struct DataLife {
    Handles& handles;
    void* data;
    ~DataLife() { handles.Find(data)->live = false; }
  };
  DataLife const life{state_->handles, state_->handles.Make(HandleKind::kData, callback.prob, 0)};
  lock.unlock();
  return callback.function(callback.prob, static_cast<VORQ_CallbackData*>(life.data), context, callback.user);
}

void SolverDouble::SolveCallsBack(std::vector<int> contexts) {
  On("VORQ_Solve", [this, contexts = std::move(contexts)](DoubleCall& call) -> int {
    for (int const context : contexts) {
      bool const wanted = state_->callback.prob == call.prob && (state_->callbackMask & context) != 0;
      int const code = wanted ? RunCallback(context) : VORQ_OK;
      if (code != VORQ_OK) return code;
    }
    return VORQ_OK;
  });
}

void SolverDouble::SendLogLine(std::string const& line) {
  Registered<VORQ_LogFunction> const log = state_->logFunction;
  if (log.function != nullptr) log.function(line.c_str(), log.user);
}

std::string SolverDouble::Label(void const* handle) const {
  return state_->handles.Label(handle);
}

std::vector<std::string> SolverDouble::Violations() const {
  std::lock_guard const lock(state_->mutex);
  return state_->violations;
}

std::vector<std::string> SolverDouble::TakeViolations() {
  std::lock_guard const lock(state_->mutex);
  return std::exchange(state_->violations, {});
}

std::vector<std::string> SolverDouble::UnusedScripts() const {
  std::lock_guard const lock(state_->mutex);
  std::vector<std::string> unused;
  for (auto const& [function, line] : state_->answersInLine) unused.insert(unused.end(), line.size(), function);
  for (auto const& [function, line] : state_->failures) unused.insert(unused.end(), line.size(), function);
  return unused;
}

int SolverDouble::LiveEnvs() const {
  return state_->handles.Live(HandleKind::kEnv);
}
int SolverDouble::LiveProblems() const {
  return state_->handles.Live(HandleKind::kProb);
}
int SolverDouble::LiveConfigs() const {
  return state_->handles.Live(HandleKind::kConfig);
}

std::string JoinLines(std::vector<std::string> const& lines) {
  std::string text;
  for (std::string const& line : lines) text += line + '\n';
  return text;
}

// ---- What the functions of the double call

int Backstage::Call(char const* function, VORQ_Prob* prob, std::vector<Argument> const& arguments,
                    Effect const& effect) {
  SolverDouble::State& state = *SolverDouble::Instance().state_;
  std::unique_lock lock(state.mutex);

  std::string text = std::string(function) + "(";
  for (std::size_t i = 0; i < arguments.size(); ++i) text.append(i > 0 ? ", " : "").append(arguments[i].text);
  text += ")";
  state.log.push_back({function, text});

  bool misused = false;
  for (Argument const& argument : arguments) {
    if (argument.violation.empty()) continue;
    state.violations.push_back(argument.violation + " in " + text);
    misused = true;
  }
  if (misused) return VORQ_INVALID;

  auto const fail = [&](int code) {
    for (Argument const& argument : arguments) {
      if (state.spoil && argument.spoil) argument.spoil();
    }
    return code;
  };

  bool scripted = false;
  DoubleAnswer answer = state.TakeAnswer(function, scripted);
  if (auto const hook = state.hooks.find(function); !scripted && hook != state.hooks.end()) {
    DoubleCall call{text, prob, answer};
    Hook const run = hook->second;
    lock.unlock();
    int const code = run(call);
    lock.lock();
    answer = std::move(call.answer);
    answer.code = code;
  }
  if (answer.code != VORQ_OK) return fail(answer.code);

  if (effect) {
    Outputs unscripted;
    Store none;
    int const code = effect(prob == nullptr ? none : state.stores[prob], unscripted);
    if (code != VORQ_OK && answer.outputs.empty()) return fail(code);
    answer.outputs.merge(unscripted);
  }

  int code = VORQ_OK;
  for (Argument const& argument : arguments) {
    int const written = argument.write ? argument.write(answer.outputs) : VORQ_OK;
    if (code == VORQ_OK) code = written;
  }
  return code;
}

Argument Backstage::HandleOf(void const* handle, HandleKind kind) {
  SolverDouble::State& state = *SolverDouble::Instance().state_;
  std::lock_guard const lock(state.mutex);
  Argument argument(state.handles.Label(handle));
  Handle const* const record = state.handles.Find(handle);
  if (handle == nullptr) {
    argument.violation = "null handle";
  } else if (record == nullptr || record->kind != kind) {
    argument.violation = "strange handle";
  } else if (!record->live) {
    argument.violation = "deleted handle";
  }
  return argument;
}

int Backstage::Create(char const* function, HandleKind kind, std::vector<Argument> arguments, void const* parent,
                      void** created) {
  arguments.push_back(Argument(created == nullptr ? "null" : "out", created == nullptr ? "null output" : ""));
  return Call(function, nullptr, arguments, [&](Store&, Outputs&) -> int {
    SolverDouble::State& state = *SolverDouble::Instance().state_;
    if (Handle const* const record = state.handles.Find(parent); record != nullptr && record->closed) {
      return VORQ_INVALID;
    }
    *created = state.handles.Make(kind, parent, state.configLeadingWord);
    return VORQ_OK;
  });
}

int Backstage::Delete(char const* function, HandleKind kind, void** handle) {
  SolverDouble::State& state = *SolverDouble::Instance().state_;
  void* const doomed = handle == nullptr ? nullptr : *handle;
  Argument argument = HandleOf(doomed, kind);
  bool const wasLive = argument.violation.empty();
  if (kind == HandleKind::kEnv && wasLive) {
    for (std::string const& problem : state.handles.LiveChildren(doomed)) {
      state.violations.push_back(argument.text + " deleted before " + problem);
    }
  }
  int const code = Call(function, nullptr, {argument}, {});
  if (wasLive) {
    std::lock_guard const lock(state.mutex);
    state.handles.Find(doomed)->live = false;
    state.stores.erase(doomed);
    if (state.callback.prob == doomed) state.callback = {};
    if (state.logFunction.prob == doomed) state.logFunction = {};
  }
  if (code == VORQ_OK) *handle = nullptr;
  return code;
}

int Backstage::CloseEnv(char const* function, VORQ_Env** env) {
  VORQ_Env* const closing = env == nullptr ? nullptr : *env;
  return Call(function, nullptr, {HandleOf(closing, HandleKind::kEnv)}, [closing](Store&, Outputs&) -> int {
    Handle* const record = SolverDouble::Instance().state_->handles.Find(closing);
    return std::exchange(record->closed, true) ? VORQ_INVALID : VORQ_OK;
  });
}

void Backstage::CopyStore(VORQ_Prob* from, VORQ_Prob* to) {
  SolverDouble::State& state = *SolverDouble::Instance().state_;
  std::lock_guard const lock(state.mutex);
  Store copy = state.stores[from];
  state.stores[to] = std::move(copy);
  state.handles.Find(to)->parent = state.handles.Find(from)->parent;
}

int Backstage::Count(VORQ_Prob const* prob, Kind kind) {
  if (auto const* scripted = Scripted("VORQ_GetIntAttr", std::string(kCounters[kind]))) {
    return static_cast<int>(scripted->front());
  }
  auto const& stores = SolverDouble::Instance().state_->stores;
  auto const found = stores.find(prob);
  return found == stores.end() ? 0 : found->second.Count(kind);
}

VORQ_Prob* Backstage::ProblemOf(VORQ_CallbackData const* data) {
  Handle const* const record = SolverDouble::Instance().state_->handles.Find(data);
  return record == nullptr ? nullptr : static_cast<VORQ_Prob*>(const_cast<void*>(record->parent));
}

std::vector<double> const* Backstage::Scripted(char const* function, std::string const& name) {
  auto const& values = SolverDouble::Instance().state_->values;
  auto const found = values.find({function, name});
  return found == values.end() || found->second.empty() ? nullptr : &found->second;
}

int Backstage::KindOfName(std::string const& name) {
  auto const& kinds = SolverDouble::Instance().state_->nameKinds;
  auto const found = kinds.find(name);
  return found == kinds.end() ? VORQ_UNKNOWN_NAME : found->second;
}

Value const& Backstage::BannerText() {
  return SolverDouble::Instance().state_->banner;
}

int Backstage::CallbackType(std::string const& name, int& dim) {
  auto const& names = SolverDouble::Instance().state_->callbackNames;
  auto const found = names.find(name);
  dim = found == names.end() ? -1 : found->second.dim;
  return found == names.end() ? -1 : found->second.type;
}

void Backstage::SetCallback(VORQ_Prob* prob, VORQ_CallbackFunction function, int contextMask, void* user) {
  SolverDouble::State& state = *SolverDouble::Instance().state_;
  state.callback = {prob, function, user};
  state.callbackMask = contextMask;
}

void Backstage::SetLogFunction(VORQ_Prob* prob, VORQ_LogFunction function, void* user) {
  SolverDouble::Instance().state_->logFunction = {prob, function, user};
}

int Do(char const* function, VORQ_Prob* prob, std::vector<Argument> arguments, Effect const& effect) {
  arguments.insert(arguments.begin(), Backstage::HandleOf(prob, HandleKind::kProb));
  return Backstage::Call(function, prob, arguments, effect);
}

}  // namespace vorqtest
