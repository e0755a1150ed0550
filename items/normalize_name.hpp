// How the name of an item is written down.
#pragma once

#include <string>

namespace Vorq {

// `name` without leading and trailing white space, each blank left in it turned into '_'. Other white space inside
// stays. Null gives the empty name.
std::string NormalizeName(char const* name);

}  // namespace Vorq
