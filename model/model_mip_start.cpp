// The store of start values: filled by SetMipStart, handed over and emptied by LoadMipStart.
#include "model/model.hpp"

namespace Vorq {
namespace {

constexpr char const* kNoValues = "Argument 'values' of SetMipStart is null";

}  // namespace

void Model::SetMipStart(int count, double const* values) {
  auto const& vars = core_->Table<Var>().items;
  if (count > 0 && !vars.empty() && values == nullptr) {
    Refuse(kNoValues);
    return;
  }
  int taken = 0;
  for (Var const& var : vars) {
    if (taken >= count) return;
    if (var.IsLive()) core_->mipStart.insert_or_assign(var, values[taken++]);
  }
}

void Model::SetMipStart(Var const& var, double value) {
  if (var.IsLive()) core_->mipStart.insert_or_assign(var, value);
}

void Model::SetMipStart(VarArray const& vars, double const* values) {
  if (!vars.empty() && values == nullptr) {
    Refuse(kNoValues);
    return;
  }
  // Variables that are not live are stored too: LoadMipStart passes over them.
  for (std::size_t i = 0; i < vars.size(); ++i) core_->mipStart.insert_or_assign(vars[i], values[i]);
}

void Model::LoadMipStart() {
  if (!ApplyRemovals()) return;
  MipStart const start = std::exchange(core_->mipStart, MipStart());
  std::vector<int> indices;
  std::vector<double> values;
  for (auto const& [var, value] : start) {
    if (!var.IsLive()) continue;
    indices.push_back(var.Idx());
    values.push_back(value);
  }
  if (indices.empty()) return;
  Record(VORQ_AddMipStart(Prob(), static_cast<int>(indices.size()), indices.data(), values.data()),
         "Fail to add MIP start information");
}

}  // namespace Vorq
