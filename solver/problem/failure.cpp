// The text of a number in messages.
#include "solver/problem/failure.hpp"

#include <charconv>

namespace vorqsolver {

std::string ToText(double value) {
  char buffer[32];
  auto const end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  return {buffer, end};
}

}  // namespace vorqsolver
