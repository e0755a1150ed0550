// The kinds of items: what they are called in messages, how many there are, their names, and how they are deleted.
#pragma once

#include <span>

#include "solver/problem/problem.hpp"

namespace vorqsolver {

struct ItemKind {
  char const* title;  // begins with a capital
  int (*count)(ProblemData const& data);
  NameList& (*names)(ProblemData& data);  // null for kinds without names
  void (*erase)(Problem& problem, std::span<int const> deleted);

  int Count(Problem const& problem) const { return count(problem.data); }
};

extern ItemKind const kColumnKind;
extern ItemKind const kRowKind;
extern ItemKind const kSosKind;
extern ItemKind const kIndicatorKind;
extern ItemKind const kConeKind;
extern ItemKind const kExpConeKind;
extern ItemKind const kAffineConeKind;
extern ItemKind const kQuadConstraintKind;
extern ItemKind const kPsdColumnKind;
extern ItemKind const kPsdConstraintKind;
extern ItemKind const kLmiConstraintKind;

// Symmetric matrices have neither names nor a deleter.
inline constexpr char const* kSymMatrixTitle = "Symmetric matrix";

}  // namespace vorqsolver
