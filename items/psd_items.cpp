// The operations of the semidefinite items.
#include "items/psd_items.hpp"

#include <algorithm>

#include "items/sym_matrix.hpp"

namespace Vorq {
namespace {

constexpr InfoSetter kSetters[] = {{"LB", VORQ_SetPSDConstrLower, "Fail to set LB of PSD constraint"},
                                   {"UB", VORQ_SetPSDConstrUpper, "Fail to set UB of PSD constraint"}};
constexpr InfoSetterTable kInfo{"Must specify information name of PSD constraint", "Unknown PSD constraint information",
                                kSetters};

}  // namespace

void PsdVar::GetInfo(char const* name, double* out, int size) {
  ReadMatrix(VORQ_GetPSDColInfo, "Fail to get informations of PSD variables", name, out, size);
}

NdArray<double, 2> PsdVar::Get(char const* name) {
  auto const side = static_cast<std::uint64_t>(std::max(dim, 0));
  auto matrix = NdArray<double, 2>::Filled(NDim<2>({side, side}), 0.0);
  GetInfo(name, matrix.Store().Get(), len);
  return matrix;
}

double PsdConstraint::Get(char const* name) {
  return QueryInfo(kPsdConstraintKind, VORQ_GetPSDConstrInfo, name, "Fail to get a PSD constraint information");
}
void PsdConstraint::Set(char const* name, double value) {
  AssignInfo(kPsdConstraintKind, kInfo, name, value);
}

void LmiConstraint::GetInfo(char const* name, double* out, int size) {
  ReadMatrix(VORQ_GetLMIConstrInfo, "Fail to get information of LMI constraint", name, out, size);
}

// The three tests do not stop at each other: the last one that fails gives the text. A failure of an earlier operation
// counts like one of these.
void LmiConstraint::SetRhs(SymMatrix const& matrix) {
  int const index = matrix.Idx();
  CheckLive(kLmiConstraintKind.invalid);
  if (matrix.dim != dim) SetStatus(status, kInvalid, "Input matrix has wrong dimension");
  if (index < 0) SetStatus(status, kInvalid, "RHS is an invalid SymMatrix with index %d", index);
  if (status.Failed()) return;
  SetStatus(status, VORQ_SetLMIConstrRhs(Prob(), 1, &Record().idx, &index),
            "Fail to set constant term of LMI constraint");
}

}  // namespace Vorq
