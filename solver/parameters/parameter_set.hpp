// ParameterSet: a value for each parameter of the solver library.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "solver/parameters/parameter_table.hpp"

namespace vorqsolver {

// A parameter found by name; the alternative tells the kind.
using ParamId = std::variant<DblParam, IntParam>;

// Names are found in any mix of case. A failing call throws Failure with VORQ_INVALID and changes nothing.
class ParameterSet {
 public:
  // All parameters at their defaults.
  ParameterSet();

  static std::optional<ParamId> Find(std::string_view name);

  // The parameter of that name and kind; fails for an unknown name and for one of the other kind.
  static DblParam FindDbl(std::string_view name);
  static IntParam FindInt(std::string_view name);

  static ParamRow<double> const& Row(DblParam id) { return DblParamRows()[static_cast<std::size_t>(id)]; }
  static ParamRow<int> const& Row(IntParam id) { return IntParamRows()[static_cast<std::size_t>(id)]; }

  double Dbl(DblParam id) const { return doubles_[static_cast<std::size_t>(id)]; }
  int Int(IntParam id) const { return integers_[static_cast<std::size_t>(id)]; }
  double GetDbl(std::string_view name) const { return Dbl(FindDbl(name)); }
  int GetInt(std::string_view name) const { return Int(FindInt(name)); }

  // Fails for a value outside of the parameter's range, not-a-number included.
  void Set(DblParam id, double value);
  void Set(IntParam id, int value);
  void SetDbl(std::string_view name, double value) { Set(FindDbl(name), value); }
  void SetInt(std::string_view name, int value) { Set(FindInt(name), value); }

  // Sets the parameter of that name, of either kind, from the text of its value.
  void SetText(std::string_view name, std::string_view value);

  // Name and value of each parameter that is not at its default, doubles first.
  std::vector<std::pair<char const*, std::string>> Changed() const;

  // Back to the defaults.
  void Reset();

  bool operator==(ParameterSet const&) const = default;

 private:
  std::vector<double> doubles_;
  std::vector<int> integers_;
};

}  // namespace vorqsolver
