// Attributes: what a problem tells of itself and of its last results, by name. docs/parameters.md lists what each one
// says where there is no result yet.
#pragma once

#include <span>
#include <string_view>

#include "frame/vorq_solver.h"
#include "solver/problem/problem.hpp"

namespace vorqsolver {

template <class T>
struct AttrRow {
  char const* name;
  T (*read)(Problem const& problem);  // fails with VORQ_INVALID where the attribute has no value
};

// In each span the public attributes come first.
std::span<AttrRow<double> const> DblAttrRows();
std::span<AttrRow<int> const> IntAttrRows();

inline constexpr int kPublicDblAttrs = 7;
inline constexpr int kPublicIntAttrs = 44;

// VORQ_DBL_ATTR, VORQ_INT_ATTR or VORQ_UNKNOWN_NAME. Names are found in any mix of case.
VORQ_NameKind FindAttr(std::string_view name);

// The value of the attribute; fails with VORQ_INVALID for an unknown name and for one of the other kind.
double GetDblAttr(Problem const& problem, std::string_view name);
int GetIntAttr(Problem const& problem, std::string_view name);

}  // namespace vorqsolver
