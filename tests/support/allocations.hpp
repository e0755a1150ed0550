// Counts what a test program allocates with operator new. A program that links allocations.cpp has the counting forms.
#pragma once

#include <cstddef>

namespace vorqtest {

extern std::size_t allocations;
extern std::size_t allocatedBytes;

}  // namespace vorqtest
