// SymMatrix: a symmetric matrix, either registered in a model or cached: a single entry made on the fly, unknown to the
// model.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "items/item.hpp"

namespace Vorq {

// One entry of a symmetric matrix; an entry off the diagonal stands for its mirror image too.
struct SymMatElement {
  int row;
  int col;
  double value;
};

class SymMatrix : public FallibleItem {
 public:
  SymMatrix() = default;
  SymMatrix(SharedPtr<ProbHandle> const& prob, std::string_view name, int idx, int dimension = 0)
      : FallibleItem(prob, name, idx), dim(dimension) {}

  // A matrix with the single entry (row, col, value).
  static SymMatrix Cached(int dim, int row, int col, double value);

  // The index in the model, -1 for a cached matrix.
  int Idx() const { return cached ? -1 : Item::Idx(); }

  // Appends the entries to `elements` and returns the code of the read; nothing is appended on failure.
  int ReadElements(std::vector<SymMatElement>& elements) const;

  // The text with all entries. A failed read of them is recorded in the status.
  std::string ToString();

  int dim = 0;
  int row = 0;
  int col = 0;
  double value = 0.0;
  bool cached = false;
};

// Registered matrices are equal by index, cached ones by their entry; their dimensions play no part.
bool operator==(SymMatrix const& a, SymMatrix const& b);

std::ostream& operator<<(std::ostream& out, SymMatrix& matrix);

}  // namespace Vorq
