// SymMatExpr: a linear combination of symmetric matrices of one dimension.
#pragma once

#include <iosfwd>
#include <vector>

#include "frame/status.hpp"
#include "items/sym_matrix.hpp"

namespace Vorq {

class SymMatExpr {
 public:
  SymMatExpr() = default;
  explicit SymMatExpr(SymMatrix const& mat, double coeff = 1.0);

  std::size_t Size() const { return coeffs.size(); }

  // The dimension of the first matrix, 0 with no terms; not the field `dim`.
  int GetDim() const { return mats.empty() ? 0 : mats.front().dim; }

  // False for a matrix of dimension below 1, and for one of a wrong dimension, which is a failure. `mat`
  // must not be an element of this expression's own list.
  bool AddTerm(SymMatrix const& mat, double c);
  // -1 if `c` is null, `n` is below the number of matrices, or a term was refused; otherwise that number.
  int AddTerms(std::vector<SymMatrix> const& matrices, double const* c, int n);
  void AddSymMatExpr(SymMatExpr const& other, double mult);
  void Remove(int i);
  void Remove(SymMatrix const& mat);
  void Reserve(int n);
  void Multiply(double c);

  // The sum as entries of the lower triangle, ordered by row and column, equal positions merged. Returns their
  // number, or -1 if an output is null or a matrix cannot be read.
  int GetElements(std::vector<int>* rows, std::vector<int>* cols, std::vector<double>* values) const;

  std::vector<SymMatrix> mats;
  std::vector<double> coeffs;
  int dim = 0;  // 0 until the first matrix of a positive dimension arrives
  Status status;

 private:
  bool TakeDimension(int dimension);
};

std::ostream& operator<<(std::ostream& out, SymMatExpr const& expr);

}  // namespace Vorq
