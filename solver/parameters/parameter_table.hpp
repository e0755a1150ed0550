// The parameters of the solver library: their names, defaults, ranges, and whether any part of the library reads them.
//
// The rows stand in double_parameters.inc and integer_parameters.inc. Each has an enumerator, k and the name, for those
// who read the parameter: parameters.Dbl(DblParam::kTimeLimit).
#pragma once

#include <span>

namespace vorqsolver {

enum class DblParam : int {
#define PARAM(name, ...) k##name,
#include "solver/parameters/double_parameters.inc"
#undef PARAM
};

enum class IntParam : int {
#define PARAM(name, ...) k##name,
#include "solver/parameters/integer_parameters.inc"
#undef PARAM
};

template <class T>
struct ParamRange {
  T standard;  // the default
  T minimum;
  T maximum;
};

// A parameter without effect keeps its value and reports it, and nothing reads it.
enum class ParamEffect { kNone, kUsed };

template <class T>
struct ParamRow {
  char const* name;
  ParamEffect effect;
  ParamRange<T> range;
};

// In each span the public parameters come first; a row's position is the number of its enumerator.
std::span<ParamRow<double> const> DblParamRows();
std::span<ParamRow<int> const> IntParamRows();

inline constexpr int kPublicDblParams = 13;
inline constexpr int kPublicIntParams = 49;

}  // namespace vorqsolver
