// What is said of a null argument.
#include "handles/handle_call.hpp"

#include <string_view>

namespace Vorq {

std::string NullText(char const* operation, char const* arguments, int place) {
  std::string_view names = arguments;
  for (int i = 1; i < place; ++i) names.remove_prefix(names.find(',') + 2);
  std::string text = "Argument '";
  text += names.substr(0, names.find(','));
  text += "' of ";
  text += operation;
  text += " is null";
  return text;
}

}  // namespace Vorq
