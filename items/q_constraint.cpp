// The operations of a quadratic constraint.
#include "items/q_constraint.hpp"

namespace Vorq {
namespace {

constexpr ItemQuery<double> kRhs{VORQ_GetQConstrRhs, "Fail to get rhs of quadratic constraint", 0.0};
constexpr ItemQuery<char> kSense{VORQ_GetQConstrSense, "Fail to get sense of quadratic constraint", 0};
constexpr InfoSetterTable kInfo{
    "Must specify information name of quadratic constraint", "Unknown quadratic constraint information", {}};

}  // namespace

double QConstraint::GetRhs() {
  return Query(kQConstraintKind, kRhs);
}
char QConstraint::GetSense() {
  return Query(kQConstraintKind, kSense);
}
void QConstraint::SetRhs(double rhs) {
  Assign(kQConstraintKind, VORQ_SetQConstrRhs, rhs, "Fail to set rhs of quadratic constraint");
}
void QConstraint::SetSense(char sense) {
  Assign(kQConstraintKind, VORQ_SetQConstrSense, sense, "Fail to set sense of quadratic constraint");
}
double QConstraint::Get(char const* name) {
  return QueryInfo(kQConstraintKind, VORQ_GetQConstrInfo, name, "Fail to get information of a quadratic constraint");
}
void QConstraint::Set(char const* name, double value) {
  AssignInfo(kQConstraintKind, kInfo, name, value);
}

}  // namespace Vorq
