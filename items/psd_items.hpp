// The semidefinite items: PsdVar, a matrix variable; PsdConstraint, a row over matrix variables; LmiConstraint, a
// linear matrix inequality.
#pragma once

#include "items/item.hpp"
#include "ndarray/nd_array_numbers.hpp"

namespace Vorq {

class SymMatrix;

class PsdVar : public MatrixItem<kPsdVarKind> {
 public:
  using MatrixItem::MatrixItem;

  // Writes `len` values to `out`, which has room for `size`.
  void GetInfo(char const* name, double* out, int size);

  // The same as a matrix; zeros after a failure.
  NdArray<double, 2> Get(char const* name);
};

class PsdConstraint : public NamedItem<kPsdConstraintKind> {
 public:
  using NamedItem::NamedItem;

  double Get(char const* name);
  void Set(char const* name, double value);
};

class LmiConstraint : public MatrixItem<kLmiConstraintKind> {
 public:
  using MatrixItem::MatrixItem;

  // Writes `len` values to `out`, which has room for `size`.
  void GetInfo(char const* name, double* out, int size);

  // Sets the constant matrix.
  void SetRhs(SymMatrix const& matrix);
};

}  // namespace Vorq
