// Special ordered sets: adding, and reading them back as builders.
#include "model/model_var_lists.hpp"

namespace Vorq {
namespace {

constexpr VarListReader kSosReader{
    .read = VORQ_GetSOSs, .sizeFailed = "Fail to get required SOS size", .dataFailed = "Fail to get row data"};

}  // namespace

Sos Model::AddSos(SosBuilder const& builder) {
  return AddSos(builder.vars, builder.weights.data(), builder.type);
}

Sos Model::AddSos(VarArray const& vars, double const* weights, int type) {
  std::vector<int> cols;
  if (!LiveColumns(vars, cols)) return Invalid<Sos>();
  int const begin = 0;
  int const count = static_cast<int>(cols.size());
  return Added<Sos>(VORQ_AddSOSs(Prob(), 1, &type, &begin, &count, cols.data(), weights), "Fail to add sos constraint",
                    std::string());
}

SosBuilderArray Model::GetSosBuilders(SosArray const& soss) {
  return GetVarListBuilders<SosBuilder>(kSosReader, soss);
}

}  // namespace Vorq
