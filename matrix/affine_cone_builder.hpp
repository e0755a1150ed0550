// AffineConeBuilder: what is needed to add an affine cone, without a model: a type, and one expression for each row of
// the vector that shall lie in the cone.
#pragma once

#include <vector>

#include "items/var.hpp"
#include "matrix/matrix_object.hpp"

namespace Vorq {

class AffineConeBuilder {
 public:
  AffineConeBuilder() = default;
  // A copy has cells of its own.
  AffineConeBuilder(AffineConeBuilder const& other)
      : type(other.type), dim(other.dim), flag(other.flag), rows(other.rows.Clone()) {}
  AffineConeBuilder(AffineConeBuilder&&) noexcept = default;
  AffineConeBuilder& operator=(AffineConeBuilder const& other) { return *this = AffineConeBuilder(other); }
  AffineConeBuilder& operator=(AffineConeBuilder&&) noexcept = default;
  ~AffineConeBuilder() = default;

  // Each replaces the rows by copies, also after a former Set.
  void Set(MPsdExpr<1> const& exprs, int newType);
  void Set(MLinExpr<1> const& exprs, int newType);
  // One row for each variable, with coefficient 1.
  void Set(std::vector<Var> const& vars, int newType);
  // Takes the rows over.
  void Take(MPsdExpr<1> newRows, int newType);

  // The linear parts of the rows.
  MLinExpr<1> LinearRows() const;

  int type = 0;
  int dim = 0;
  bool flag = false;  // without a meaning yet
  MPsdExpr<1> rows;
};

using AffineConeBuilderArray = std::vector<AffineConeBuilder>;

}  // namespace Vorq
