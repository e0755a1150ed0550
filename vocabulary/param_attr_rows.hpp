// The table of all names of parameters and attributes, as constant data.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace Vorq {

struct ParamAttrRow {
  char const* name;         // the spelling that reaches the solver library
  std::int32_t type;        // 0 double parameter, 1 integer parameter, 2 double attribute, 3 integer attribute
  std::int32_t hidden;      // 0 public, 1 internal
  char const* description;  // one line for a person
};

inline constexpr std::size_t kParamAttrRowCount = 539;

// Ordered by type, public rows before internal ones; the 462 parameters first.
extern std::array<ParamAttrRow, kParamAttrRowCount> const ParamAttrRows;

}  // namespace Vorq
