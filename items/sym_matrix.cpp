// Reading and printing of symmetric matrices.
#include "items/sym_matrix.hpp"

#include <ostream>
#include <sstream>

namespace Vorq {

SymMatrix SymMatrix::Cached(int dim, int row, int col, double value) {
  SymMatrix matrix;
  matrix.dim = dim;
  matrix.row = row;
  matrix.col = col;
  matrix.value = value;
  matrix.cached = true;
  return matrix;
}

int SymMatrix::ReadElements(std::vector<SymMatElement>& elements) const {
  if (cached) {
    elements.push_back({row, col, value});
    return kOk;
  }
  int const index = Idx();
  if (index < 0 || dim < 1) return kInvalid;

  int count = 0;
  if (int const code = VORQ_GetSymMat(Prob(), index, nullptr, &count, nullptr, nullptr, nullptr); code != kOk) {
    return code;
  }
  if (count <= 0) return kOk;
  std::size_t const size = static_cast<std::size_t>(count);
  std::vector<int> rows(size);
  std::vector<int> cols(size);
  std::vector<double> values(size);
  int const code = VORQ_GetSymMat(Prob(), index, nullptr, nullptr, rows.data(), cols.data(), values.data());
  if (code != kOk) return code;
  for (std::size_t i = 0; i < size; ++i) elements.push_back({rows[i], cols[i], values[i]});
  return kOk;
}

std::string SymMatrix::ToString() {
  std::ostringstream out;
  if (cached) {
    out << " SymMatrix (cached) = [ ";
  } else {
    out << " SymMatrix " << Idx() << "-th = [ ";
  }
  std::vector<SymMatElement> elements;
  int const code = ReadElements(elements);
  SetStatus(status, code, "Fail to get elements of matrix operand");
  if (code != kOk) {
    out << "Invalid data";
  }
  char const* separator = "";
  for (auto const& element : elements) {
    out << separator << '(' << element.row << ", " << element.col << ", " << element.value << ')';
    separator = ", ";
  }
  out << " ]";
  return out.str();
}

bool operator==(SymMatrix const& a, SymMatrix const& b) {
  if (a.cached != b.cached) return false;
  return a.cached ? a.row == b.row && a.col == b.col && a.value == b.value : a.Idx() == b.Idx();
}

std::ostream& operator<<(std::ostream& out, SymMatrix& matrix) {
  return out << matrix.ToString();
}

}  // namespace Vorq
