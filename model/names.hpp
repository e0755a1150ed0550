// Names of a batch of items: a names buffer holds them one behind the other, each closed by its terminating zero.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace Vorq {

// The first `count` names of a buffer of `length` bytes. False when the buffer ends before the last of them does;
// surplus names are passed over.
bool SplitNames(char const* names, std::size_t length, int count, std::vector<char const*>& result);

// The names prefix_first, prefix_first+1, ... as a names buffer. The prefix is normalised; a null one counts as empty.
std::string NumberedNames(char const* prefix, int first, int count);

}  // namespace Vorq
