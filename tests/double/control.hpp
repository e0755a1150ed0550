// SolverDouble: what a test says to the recording double, and what it asks of it. See solver_double.hpp for its use.
#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "frame/vorq_solver.h"

namespace vorqtest {

// The value of an output: numbers, or a text for a char array.
struct Value {
  Value(int number) : numbers{static_cast<double>(number)} {}
  Value(double number) : numbers{number} {}
  Value(std::initializer_list<double> list) : numbers(list) {}
  Value(std::vector<double> list) : numbers(std::move(list)) {}
  Value(char const* characters) : Value(std::string(characters)) {}
  Value(std::string characters) : numbers(characters.begin(), characters.end()), text(std::move(characters)) {}

  std::vector<double> numbers;
  std::string text;
};

using Outputs = std::map<std::string, Value, std::less<>>;

// A scripted answer: the return code, and outputs by the names of their arguments.
class DoubleAnswer {
 public:
  DoubleAnswer& Code(int newCode) {
    code = newCode;
    return *this;
  }
  DoubleAnswer& Set(std::string const& argument, Value value) {
    outputs.insert_or_assign(argument, std::move(value));
    return *this;
  }

  int code = VORQ_OK;
  Outputs outputs;
};

// What a hook sees of the call, and where it puts its outputs; it returns the code.
struct DoubleCall {
  std::string text;  // as in the log
  VORQ_Prob* prob;   // null for functions without a problem
  DoubleAnswer answer;
};

using Hook = std::function<int(DoubleCall&)>;

class SolverDouble {
 public:
  static SolverDouble& Instance();

  // As new: nothing logged, nothing scripted, no handle live, labels from 1.
  void Reset();

  // The log.
  void ClearLog();
  std::vector<std::string> Calls() const;
  std::vector<std::string> Calls(std::string_view function) const;
  std::vector<std::string> CallNames() const;
  std::size_t CountCalls(std::string_view function) const { return Calls(function).size(); }

  // Scripts. Of those for one call, each call takes the first in line; then the hook, then the lasting answer.
  DoubleAnswer& Answer(std::string const& function);
  DoubleAnswer& AnswerNext(std::string const& function);
  void FailNext(std::string const& function, int code);
  void FailNth(std::string const& function, int n, int code);
  void FailNthCall(int n, int code);
  void SpoilOutputsOfFailures(bool spoil);
  void On(std::string const& function, Hook hook);

  SolverDouble& Values(std::string const& function, std::vector<double> values) { return Values(function, "", values); }
  SolverDouble& Values(std::string const& function, std::string const& name, std::vector<double> values);
  SolverDouble& IntAttr(std::string const& name, int value);
  SolverDouble& DblAttr(std::string const& name, double value);
  SolverDouble& IntParam(std::string const& name, int value);
  SolverDouble& DblParam(std::string const& name, double value);
  SolverDouble& CallbackInt(std::string const& name, int value);
  SolverDouble& CallbackDbl(std::string const& name, double value);
  SolverDouble& CallbackVector(std::string const& name, std::vector<double> values);
  SolverDouble& Banner(std::string const& text);

  // The leading word of the configs that are made from now on.
  void ConfigLeadingWord(int word);

  // The items of a kind that the problem holds from now on, nameless, as after a file was read: `counter` is the
  // attribute, such as "Cols".
  void SetItems(VORQ_Prob* prob, std::string const& counter, int count);

  // Calls back as the solver would: the callback, and the log function, of the problem that last set one. The result of
  // the callback, or -1 when there is none.
  int RunCallback(int context);
  // From now on each VORQ_Solve calls back at these places, in order, as far as the mask of the callback chooses them.
  // A result that is not 0 ends the solve with it as code; an exception passes through.
  void SolveCallsBack(std::vector<int> contexts);
  void SendLogLine(std::string const& line);

  // The label of a handle, such as "prob#1".
  std::string Label(void const* handle) const;

  // The verdicts.
  std::vector<std::string> Violations() const;
  std::vector<std::string> TakeViolations();
  std::vector<std::string> UnusedScripts() const;
  int LiveEnvs() const;
  int LiveProblems() const;
  int LiveConfigs() const;

 private:
  friend class Backstage;

  struct State;

  SolverDouble();
  ~SolverDouble();

  std::unique_ptr<State> state_;
};

// One line a text.
std::string JoinLines(std::vector<std::string> const& lines);

}  // namespace vorqtest
