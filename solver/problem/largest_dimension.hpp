// The largest dimension of a PSD column or matrix.
#pragma once

namespace vorqsolver {

// So that an int can still count the entries of the full matrix.
inline constexpr int kLargestDimension = 46340;

}  // namespace vorqsolver
