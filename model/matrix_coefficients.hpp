// Templates of Model for coefficients that are symmetric matrices.
#pragma once

#include "model/model.hpp"

namespace Vorq {

// A matrix whose index `read` gives; where there is none, the lookup says so.
template <class Reader>
SymMatrix Model::GetMatrix(Reader read, char const* failed) {
  int index = -1;
  if (!Record(read(&index), failed)) return Invalid<SymMatrix>();
  return Get<SymMatrix>(index);
}

template <class Item, class Expression>
bool Model::AddMatrixTerm(int item, int matrix, Expression& expr) {
  SymMatrix const coeff = Get<SymMatrix>(matrix);
  if (status.Failed()) return false;
  Item const var = Get<Item>(item);
  if (status.Failed()) return false;
  expr.AddTerm(var, coeff);
  return true;
}

}  // namespace Vorq
