// The operations of a linear constraint.
#include "items/constraint.hpp"

namespace Vorq {
namespace {

constexpr ItemQuery<int> kBasis{VORQ_GetRowBasis, "Fail to get a constraint basis", kNoInt};
constexpr ItemQuery<int> kLowerIIS{VORQ_GetRowLowerIIS, "Fail to get IIS status for constraint", 0};
constexpr ItemQuery<int> kUpperIIS{VORQ_GetRowUpperIIS, "Fail to get IIS status for constraint", 0};

constexpr InfoSetter kSetters[] = {{"LB", VORQ_SetRowLower, "Fail to set constraint LB"},
                                   {"UB", VORQ_SetRowUpper, "Fail to set constraint UB"}};
constexpr InfoSetterTable kInfo{"Invalid args", "Unknown constraint information", kSetters};

}  // namespace

int Constraint::GetBasis() {
  return Query(kConstraintKind, kBasis);
}
int Constraint::GetLowerIIS() {
  return Query(kConstraintKind, kLowerIIS);
}
int Constraint::GetUpperIIS() {
  return Query(kConstraintKind, kUpperIIS);
}
double Constraint::Get(char const* name) {
  return QueryInfo(kConstraintKind, VORQ_GetRowInfo, name, "Fail to get a constraint information");
}
void Constraint::Set(char const* name, double value) {
  AssignInfo(kConstraintKind, kInfo, name, value);
}

}  // namespace Vorq
