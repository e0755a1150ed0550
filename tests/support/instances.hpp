// The folder of public instances with known optima, which are not part of the project: the environment variable
// VORQ_INSTANCES names it.
#pragma once

#include <cstdlib>
#include <string>

inline constexpr char const* kNoInstances = "VORQ_INSTANCES does not name the folder of the instances";

// Empty where it is not told.
inline std::string InstanceFolder() {
  char const* const folder = std::getenv("VORQ_INSTANCES");
  return folder == nullptr ? std::string() : folder;
}
