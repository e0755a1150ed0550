// A simplex method in exact fractions for small linear problems with integer data: slow, and never wrong.
#pragma once

#include <vector>

struct ExactRow {
  std::vector<int> coefs;
  char sense = 'L';  // L, G or E
  int side = 0;
};

// Minimise. A free column has no bounds; the others have both.
struct ExactProblem {
  struct Column {
    int cost = 0;
    bool isFree = false;
    int lower = 0;
    int upper = 0;
  };
  std::vector<Column> columns;
  std::vector<ExactRow> rows;
};

struct ExactResult {
  enum class Outcome { kOptimal, kInfeasible, kUnbounded };
  Outcome outcome = Outcome::kOptimal;
  double objective = 0.0;
};

ExactResult SolveExactly(ExactProblem const& problem);
