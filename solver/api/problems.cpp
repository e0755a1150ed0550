// The C functions that make, copy, clear and end problems.
#include <memory>

#include "solver/api/guard.hpp"
#include "solver/problem/environment.hpp"

using namespace vorqsolver;

int VORQ_CreateProb(VORQ_Env* env, VORQ_Prob** prob) {
  return Guard([&] {
    Need(prob, "prob");
    *prob = nullptr;
    auto const& environment = OpenEnvironment(env);
    auto problem = std::make_unique<Problem>();
    problem->parameters = environment.parameters;
    *prob = ToHandle(problem.release());
  });
}

// Data, names and parameters are copied; results, starts, callback and log are not.
int VORQ_CreateCopy(VORQ_Prob* prob, VORQ_Prob** copy) {
  if (copy != nullptr) *copy = nullptr;
  return Guard(prob, [&](Problem& problem) {
    Need(copy, "copy");
    auto made = std::make_unique<Problem>();
    made->data = problem.data;
    made->parameters = problem.parameters;
    *copy = ToHandle(made.release());
  });
}

int VORQ_DeleteProb(VORQ_Prob** prob) {
  if (prob == nullptr) return VORQ_INVALID;
  if (*prob == nullptr) return VORQ_OK;
  return Guard(*prob, [&](Problem& problem) {
    if (problem.solving) Refuse("The problem cannot be deleted while it is being solved");
    delete &problem;
    *prob = nullptr;
  });
}

// Parameters, callback and log stay.
int VORQ_ClearProb(VORQ_Prob* prob) {
  return Edit(prob, [](Problem& problem) {
    problem.data = ProblemData();
    problem.ResetResults(true);
  });
}

int VORQ_Reset(VORQ_Prob* prob, int all) {
  return Guard(prob, [&](Problem& problem) {
    if (problem.solving) Refuse("The problem cannot be reset while it is being solved");
    problem.ResetResults(all != 0);
  });
}

int VORQ_ResetParam(VORQ_Prob* prob) {
  return Guard(prob, [](Problem& problem) {
    if (problem.solving) Refuse("Parameters cannot be changed while the problem is being solved");
    problem.parameters.Reset();
  });
}
