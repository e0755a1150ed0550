// The rows of the parameter table, and the ranges that many parameters share.
#include "solver/parameters/parameter_table.hpp"

#include <limits>

namespace vorqsolver {
namespace {

using enum ParamEffect;

constexpr int kMaxInt = std::numeric_limits<int>::max();

// -1 leaves the choice to the library, 0 is off, higher levels do more.
constexpr ParamRange<int> kLevel = {-1, -1, 3};
constexpr ParamRange<int> kSwitch = {-1, -1, 1};
constexpr ParamRange<int> kOff = {0, 0, 1};
constexpr ParamRange<int> kOn = {1, 0, 1};
// -1 stands for no limit, or for a number that the library chooses.
constexpr ParamRange<int> kCount = {-1, -1, kMaxInt};
constexpr ParamRange<int> kThreads = {-1, -1, 256};

constexpr ParamRange<double> kTolerance = {1e-6, 0.0, 1.0};
constexpr ParamRange<double> kFactor = {1.0, 0.0, 1e20};
constexpr ParamRange<double> kFraction = {0.5, 0.0, 1.0};
constexpr ParamRange<double> kOptionalLimit = {-1.0, -1.0, 1e20};
// An objective value; 1e30 and -1e30 stand for none.
constexpr ParamRange<double> kObjective = {1e30, -1e30, 1e30};

#define PARAM(name, effect, ...) {#name, effect, __VA_ARGS__},
constexpr ParamRow<double> kDblRows[] = {
#include "solver/parameters/double_parameters.inc"
};
constexpr ParamRow<int> kIntRows[] = {
#include "solver/parameters/integer_parameters.inc"
};
#undef PARAM

static_assert(std::size(kDblRows) == 52 && std::size(kIntRows) == 410);

}  // namespace

std::span<ParamRow<double> const> DblParamRows() {
  return kDblRows;
}
std::span<ParamRow<int> const> IntParamRows() {
  return kIntRows;
}

}  // namespace vorqsolver
