/* Solves a model of one variable through the installed solver library. */
#include <stddef.h>
#include <vorq_solver.h>

int main(void) {
  VORQ_Env* env = NULL;
  VORQ_Prob* prob = NULL;
  double value = 0.0;
  int failures = 0;
  failures += VORQ_CreateEnvWithPath(NULL, &env) != VORQ_OK;
  failures += VORQ_CreateProb(env, &prob) != VORQ_OK;
  failures += VORQ_AddCol(prob, 1.0, 0, NULL, NULL, 'C', 1.0, 2.0, "x") != VORQ_OK;
  failures += VORQ_Solve(prob) != VORQ_OK;
  failures += VORQ_GetLpSolution(prob, &value, NULL, NULL, NULL) != VORQ_OK;
  failures += value != 1.0;
  failures += VORQ_DeleteProb(&prob) != VORQ_OK;
  failures += VORQ_DeleteEnv(&env) != VORQ_OK;
  return failures;
}
