// The operations of columns.
#include "items/column.hpp"

namespace Vorq {

int Column::AddTerms(std::vector<Constraint> const& constraints, double const* c, int n) {
  return AddLinearTerms(coeffs, constrs, constraints, c, n);
}

void Column::AddColumn(Column const& other, double mult) {
  AppendTerms(coeffs, constrs, other.coeffs, other.constrs, [mult](double c) { return c * mult; });
}

void Column::Remove(int i) {
  RemoveTerm(i, coeffs, constrs);
}
int Column::Remove(Constraint const& constr) {
  return RemoveTermsOf(constr, constrs, coeffs) ? 1 : 0;
}
void Column::Reserve(int n) {
  ReserveTerms(n, coeffs, constrs);
}

void Column::Clear() {
  coeffs.clear();
  constrs.clear();
}

void Column::Reduce(int size) {
  ReduceTerms(coeffs, constrs, size);
}

}  // namespace Vorq
