// MIP starts: which of them MipStartMode takes, and the line of the log that says what became of each.
#pragma once

#include <span>
#include <string>

#include "solver/engines/engine.hpp"

namespace vorqsolver {

// What TakeCompleted says as a rule.
inline constexpr char const* kNoSolutionFound = "no solution with its integers was found";

// A search that takes starts.
class StartTaker {
 public:
  virtual ~StartTaker() = default;

  // Takes a complete start as it is; tells what speaks against that, and nothing where it is done.
  virtual std::string TakeAsIs(MipStart const& start) = 0;

  // Takes a solution that has the start's integers, open entries (1e40) and continuous columns being free; tells as
  // above.
  virtual std::string TakeCompleted(MipStart const& start) = 0;

  // Of the solution that was taken last.
  virtual double TakenObjective() const = 0;
};

void TakeStarts(SolveTask const& task, StartTaker& taker);

// Tells of starts that no search takes.
void PassOverStarts(std::span<MipStart const> starts, Log& log, char const* cause);

// Whether the start gives all that is discrete, so that a linear problem is left.
bool GivesAllDiscrete(ProblemData const& data, std::span<double const> values);

}  // namespace vorqsolver
