// Solutions in all forms, the basis, the solution pool, and what belongs to an irreducible infeasible subsystem.
#include "model/model_live_items.hpp"

namespace Vorq {
namespace {

constexpr char const* kVarIISFailed = "Fail to get IIS status of variables";
constexpr char const* kConstrIISFailed = "Fail to get IIS status of constraints";

}  // namespace

void Model::GetSolution(double* values) {
  if (values != nullptr) FlushAndCall("Failed to get MIP solution", VORQ_GetSolution, values);
}

void Model::GetLpSolution(double* value, double* slack, double* dual, double* redcost) {
  if (value == nullptr && slack == nullptr && dual == nullptr && redcost == nullptr) return;
  FlushAndCall("Fail to get LP solution", VORQ_GetLpSolution, value, slack, dual, redcost);
}

void Model::SetLpSolution(double const* value, double const* slack, double const* dual, double const* redcost) {
  if (value == nullptr || slack == nullptr || dual == nullptr || redcost == nullptr) return;
  FlushAndCall("Fail to set LP solution", VORQ_SetLpSolution, value, slack, dual, redcost);
}

void Model::GetPsdSolution(double* values, double* slacks, double* duals, double* redcosts) {
  if (values == nullptr && slacks == nullptr && duals == nullptr && redcosts == nullptr) return;
  FlushAndCall("Fail to get PSD solution", VORQ_GetPSDSolution, values, slacks, duals, redcosts);
}

void Model::GetLmiSolution(double* slacks, double* duals) {
  if (slacks == nullptr && duals == nullptr) return;
  FlushAndCall("Fail to get LMI solution", VORQ_GetLMISolution, slacks, duals);
}

int Model::GetColBasis(int* basis) {
  if (!ApplyRemovals()) return -1;
  if (basis != nullptr) Record(VORQ_GetBasis(Prob(), basis, nullptr), "Fail to get col basis");
  return status.Failed() ? -1 : Count<Var>();
}

int Model::GetRowBasis(int* basis) {
  if (!ApplyRemovals()) return -1;
  if (basis != nullptr) Record(VORQ_GetBasis(Prob(), nullptr, basis), "Fail to get row basis");
  return status.Failed() ? -1 : Count<Constraint>();
}

void Model::SetBasis(int const* colBasis, int const* rowBasis) {
  FlushAndCall("Fail to set basis", VORQ_SetBasis, colBasis, rowBasis);
}

void Model::SetSlackBasis() {
  FlushAndCall("Fail to set slack basis", VORQ_SetSlackBasis);
}

double Model::GetPoolObjVal(int index) {
  double value = kInfinity;
  FlushAndCall("Fail to get objective value from solution pool", VORQ_GetPoolObjVal, index, &value);
  return value;
}

int Model::GetPoolSolution(int index, VarArray const& vars, double* out) {
  std::vector<int> const indices = LiveIndices(vars);
  int const count = static_cast<int>(indices.size());
  Record(VORQ_GetPoolSolution(Prob(), index, count, indices.data(), out),
         "Fail to get solution values from solution pool");
  return count;
}

int Model::GetColLowerIIS(VarArray const& vars, int* out) {
  return ReadLive<Var, int>(VORQ_GetColLowerIIS, vars, out, kVarIISFailed);
}

int Model::GetColUpperIIS(VarArray const& vars, int* out) {
  return ReadLive<Var, int>(VORQ_GetColUpperIIS, vars, out, kVarIISFailed);
}

int Model::GetRowLowerIIS(ConstrArray const& constrs, int* out) {
  return ReadLive<Constraint, int>(VORQ_GetRowLowerIIS, constrs, out, kConstrIISFailed);
}

int Model::GetRowUpperIIS(ConstrArray const& constrs, int* out) {
  return ReadLive<Constraint, int>(VORQ_GetRowUpperIIS, constrs, out, kConstrIISFailed);
}

int Model::GetSOSIIS(SosArray const& soss, int* out) {
  return ReadLive<Sos, int>(VORQ_GetSOSIIS, soss, out, "Fail to get IIS status of SOS constraints");
}

int Model::GetIndicatorIIS(GenConstrArray const& constrs, int* out) {
  return ReadLive<GenConstr, int>(VORQ_GetIndicatorIIS, constrs, out,
                                  "Fail to get IIS status of indicator constraints");
}

}  // namespace Vorq
