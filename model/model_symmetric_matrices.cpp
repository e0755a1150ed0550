// Symmetric matrices: each operation makes a new one in the solver library, also for an expression that it has seen.
#include <cstdlib>
#include <limits>
#include <numeric>

#include "model/model.hpp"

namespace Vorq {
namespace {

constexpr char const* kInvalidMatrix = "Invalid dimension of input symmetric matrix";
constexpr char const* kInvalidDiagonal = "Invalid dimension of input diagonal matrix";
constexpr char const* kInvalidOffset = "Invalid dimension of input diagonal matrix with offset";

}  // namespace

SymMatrix Model::AddSparseMat(int dim, int count, int const* rows, int const* cols, double const* values) {
  return Added<SymMatrix>(VORQ_AddSymMat(Prob(), dim, count, rows, cols, values),
                          "Failed to add a sparse symmetric matrix to model", std::string(), dim);
}

SymMatrix Model::AddDenseMat(int dim, double const* values, int length) {
  if (values == nullptr || length < 1 || dim < 1) {
    Refuse(kInvalidMatrix);
    return Invalid<SymMatrix>();
  }
  std::vector<int> rows, cols;
  int row = 0;
  int col = 0;
  for (int k = 0; k < length && col < dim; ++k) {
    rows.push_back(row);
    cols.push_back(col);
    if (++row == dim) row = ++col;
  }
  return AddSparseMat(dim, static_cast<int>(rows.size()), rows.data(), cols.data(), values);
}

SymMatrix Model::AddDenseMat(int dim, double value) {
  long long const length = static_cast<long long>(dim) * (static_cast<long long>(dim) + 1) / 2;
  if (dim < 1 || length > std::numeric_limits<int>::max()) {
    Refuse(kInvalidMatrix);
    return Invalid<SymMatrix>();
  }
  std::vector<double> const values(static_cast<std::size_t>(length), value);
  return AddDenseMat(dim, values.data(), static_cast<int>(length));
}

SymMatrix Model::AddDiagMat(int dim, double const* values, int length) {
  if (values == nullptr || length < 1 || dim < 1) {
    Refuse(kInvalidDiagonal);
    return Invalid<SymMatrix>();
  }
  std::vector<int> positions(static_cast<std::size_t>(std::min(dim, length)));
  std::iota(positions.begin(), positions.end(), 0);
  return AddSparseMat(dim, static_cast<int>(positions.size()), positions.data(), positions.data(), values);
}

// Its text differs from that of the form that it calls, which is meant.
SymMatrix Model::AddDiagMat(int dim, double value) {
  if (dim < 1) {
    Refuse(kInvalidMatrix);
    return Invalid<SymMatrix>();
  }
  std::vector<double> const values(static_cast<std::size_t>(dim), value);
  return AddDiagMat(dim, values.data(), dim);
}

SymMatrix Model::AddDiagMat(int dim, double const* values, int length, int offset) {
  if (offset == 0) return AddDiagMat(dim, values, length);
  // A diagonal above the main one is the same as the one below it.
  long long const distance = std::abs(static_cast<long long>(offset));
  if (values == nullptr || length < 1 || dim < 1 || distance >= dim) {
    Refuse(kInvalidOffset);
    return Invalid<SymMatrix>();
  }
  int const first = static_cast<int>(distance);
  auto const count = static_cast<std::size_t>(std::min(length, dim - first));
  std::vector<int> rows(count), cols(count);
  std::iota(rows.begin(), rows.end(), first);
  std::iota(cols.begin(), cols.end(), 0);
  return AddSparseMat(dim, static_cast<int>(count), rows.data(), cols.data(), values);
}

SymMatrix Model::AddDiagMat(int dim, double value, int offset) {
  if (dim < 1) {
    Refuse(kInvalidOffset);
    return Invalid<SymMatrix>();
  }
  std::vector<double> const values(static_cast<std::size_t>(dim), value);
  return AddDiagMat(dim, values.data(), dim, offset);
}

SymMatrix Model::AddSymMat(SymMatExpr const& expr) {
  if (expr.Size() == 0) {
    Refuse("Empty symmetric matrix expression object");
    return Invalid<SymMatrix>();
  }
  std::vector<int> rows, cols;
  std::vector<double> values;
  int const count = expr.GetElements(&rows, &cols, &values);
  if (count < 0) {
    Refuse("Failed to get elements of expression of symmetric matrices");
    return Invalid<SymMatrix>();
  }
  int const dim = expr.GetDim();
  return Added<SymMatrix>(VORQ_AddSymMat(Prob(), dim, count, rows.data(), cols.data(), values.data()),
                          "Failed to add a symmetric matrix to model", std::string(), dim);
}

bool Model::CheckMatrix(SymMatrix const& mat) {
  if (mat.Idx() >= 0) return true;
  SetStatus(status, kInvalid, "Invalid SymMatrix with index %d", mat.Idx());
  return false;
}

bool Model::AddMatrices(std::vector<SymMatExpr> const& coeffs, std::vector<int>& matrices, int* dim) {
  for (SymMatExpr const& coeff : coeffs) {
    SymMatrix const matrix = AddSymMat(coeff);
    if (status.Failed()) return false;
    matrices.push_back(matrix.Idx());
    if (dim != nullptr) *dim = matrix.dim;
  }
  return true;
}

}  // namespace Vorq
