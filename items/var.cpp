// The operations of a variable.
#include "items/var.hpp"

#include <limits>

namespace Vorq {
namespace {

constexpr ItemQuery<int> kBasis{VORQ_GetColBasis, "Fail to set variable basis", kNoInt};  // "set" is meant
constexpr ItemQuery<int> kLowerIIS{VORQ_GetColLowerIIS, "Fail to get IIS status for variable", 0};
constexpr ItemQuery<int> kUpperIIS{VORQ_GetColUpperIIS, "Fail to get IIS status for variable", 0};

constexpr InfoSetter kSetters[] = {{"LB", VORQ_SetColLower, "Fail to set variable LB"},
                                   {"UB", VORQ_SetColUpper, "Fail to set variable UB"},
                                   {"Obj", VORQ_SetColObj, "Fail to set variable Obj"}};
constexpr InfoSetterTable kInfo{"Invalid args", "Unknown variable information", kSetters};

}  // namespace

// Neither a dead item nor a failed read is reported, which is meant.
char Var::GetType() const {
  char type = 0;
  if (IsLive()) VORQ_GetColType(Prob(), 1, &Record().idx, &type);
  return type;
}

void Var::SetType(char type) {
  Assign(kVarKind, VORQ_SetColType, type, "Fail to set variable type");
}
int Var::GetBasis() {
  return Query(kVarKind, kBasis);
}
int Var::GetLowerIIS() {
  return Query(kVarKind, kLowerIIS);
}
int Var::GetUpperIIS() {
  return Query(kVarKind, kUpperIIS);
}
double Var::Get(char const* name) {
  return QueryInfo(kVarKind, VORQ_GetColInfo, name, "Fail to get variable information");
}
void Var::Set(char const* name, double value) {
  AssignInfo(kVarKind, kInfo, name, value);
}

double Var::Value() {
  double const value = Get("Value");
  return status.Failed() ? std::numeric_limits<double>::quiet_NaN() : value;
}

}  // namespace Vorq
