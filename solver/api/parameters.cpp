// The C functions on parameters and attributes.
#include <type_traits>
#include <variant>

#include "frame/vorq_solver.h"
#include "solver/api/guard.hpp"
#include "solver/parameters/parameter_set.hpp"
#include "solver/problem/attributes.hpp"

using namespace vorqsolver;

namespace {

// The frame of all getters: `read(problem, name)` gives the value.
template <class T, class Read>
int Get(VORQ_Prob* prob, char const* name, T* value, Read read) {
  return Guard(prob, [&](Problem& problem) {
    Need(name, "name");
    Need(value, "value");
    *value = read(problem, name);
  });
}

// `figure` is the default, the minimum or the maximum.
template <class T>
int GetFigure(VORQ_Prob* prob, char const* name, T* value, T ParamRange<T>::*figure) {
  return Get(prob, name, value, [figure](Problem&, char const* parameter) {
    if constexpr (std::is_same_v<T, int>) {
      return ParameterSet::Row(ParameterSet::FindInt(parameter)).range.*figure;
    } else {
      return ParameterSet::Row(ParameterSet::FindDbl(parameter)).range.*figure;
    }
  });
}

VORQ_NameKind NameKind(char const* name) {
  auto const parameter = ParameterSet::Find(name);
  if (!parameter) return FindAttr(name);
  return std::holds_alternative<DblParam>(*parameter) ? VORQ_DBL_PARAM : VORQ_INT_PARAM;
}

template <typename Change>
int Set(VORQ_Prob* prob, char const* name, Change&& change) {
  return Guard(prob, [&](Problem& problem) {
    Need(name, "name");
    if (problem.solving) Refuse("Parameters cannot be changed while the problem is being solved");
    change(problem.parameters, name);
  });
}

}  // namespace

int VORQ_SearchParamAttr(VORQ_Prob*, char const* name, int* type) {
  return Guard([&] {
    Need(name, "name");
    Need(type, "type");
    *type = NameKind(name);
  });
}

int VORQ_GetIntParam(VORQ_Prob* prob, char const* name, int* value) {
  return Get(prob, name, value,
             [](Problem& problem, char const* parameter) { return problem.parameters.GetInt(parameter); });
}

int VORQ_GetDblParam(VORQ_Prob* prob, char const* name, double* value) {
  return Get(prob, name, value,
             [](Problem& problem, char const* parameter) { return problem.parameters.GetDbl(parameter); });
}

int VORQ_SetIntParam(VORQ_Prob* prob, char const* name, int value) {
  return Set(prob, name,
             [value](ParameterSet& parameters, char const* parameter) { parameters.SetInt(parameter, value); });
}

int VORQ_SetDblParam(VORQ_Prob* prob, char const* name, double value) {
  return Set(prob, name,
             [value](ParameterSet& parameters, char const* parameter) { parameters.SetDbl(parameter, value); });
}

int VORQ_GetIntParamDef(VORQ_Prob* prob, char const* name, int* value) {
  return GetFigure(prob, name, value, &ParamRange<int>::standard);
}

int VORQ_GetDblParamDef(VORQ_Prob* prob, char const* name, double* value) {
  return GetFigure(prob, name, value, &ParamRange<double>::standard);
}

int VORQ_GetIntParamMin(VORQ_Prob* prob, char const* name, int* value) {
  return GetFigure(prob, name, value, &ParamRange<int>::minimum);
}

int VORQ_GetDblParamMin(VORQ_Prob* prob, char const* name, double* value) {
  return GetFigure(prob, name, value, &ParamRange<double>::minimum);
}

int VORQ_GetIntParamMax(VORQ_Prob* prob, char const* name, int* value) {
  return GetFigure(prob, name, value, &ParamRange<int>::maximum);
}

int VORQ_GetDblParamMax(VORQ_Prob* prob, char const* name, double* value) {
  return GetFigure(prob, name, value, &ParamRange<double>::maximum);
}

int VORQ_GetIntAttr(VORQ_Prob* prob, char const* name, int* value) {
  return Get(prob, name, value, [](Problem& problem, char const* attribute) { return GetIntAttr(problem, attribute); });
}

int VORQ_GetDblAttr(VORQ_Prob* prob, char const* name, double* value) {
  return Get(prob, name, value, [](Problem& problem, char const* attribute) { return GetDblAttr(problem, attribute); });
}
