// One piece of information, read or written for a whole array of items.
#include <span>

#include "items/equals_no_case.hpp"
#include "model/model_live_items.hpp"

namespace Vorq {
namespace {

struct InfoWriter {
  char const* name;
  ItemWriter<double> write;
  char const* failed;
};

// Kinds that can only be read have nothing but the first two.
struct InfoKind {
  InfoReader read;
  char const* readFailed;
  char const* missingName = nullptr;
  char const* badValues = nullptr;
  char const* unknownName = nullptr;
  std::span<InfoWriter const> writers = {};
};

constexpr InfoWriter kColWriters[] = {{"LB", VORQ_SetColLower, "Fail to set col LB"},
                                      {"UB", VORQ_SetColUpper, "Fail to set col UB"},
                                      {"Obj", VORQ_SetColObj, "Fail to set col obj"}};
constexpr InfoWriter kRowWriters[] = {{"LB", VORQ_SetRowLower, "Fail to set row LB"},
                                      {"UB", VORQ_SetRowUpper, "Fail to set row UB"}};
constexpr InfoWriter kPsdConstrWriters[] = {{"LB", VORQ_SetPSDConstrLower, "Fail to set LB of PSD constraint"},
                                            {"UB", VORQ_SetPSDConstrUpper, "Fail to set UB of PSD constraint"}};

template <class Item>
constexpr InfoKind kInfoKind{};
template <>
constexpr InfoKind kInfoKind<Var>{.read = VORQ_GetColInfo,
                                  .readFailed = "Fail to get col info",
                                  .missingName = "Empty information name of variables",
                                  .badValues = "Invalid input values for variables",
                                  .unknownName = "Unknown double information of variable",
                                  .writers = kColWriters};
template <>
constexpr InfoKind kInfoKind<Constraint>{.read = VORQ_GetRowInfo,
                                         .readFailed = "Fail to get row info",
                                         .missingName = "Empty information name of constraints",
                                         .badValues = "Invalid input values for constraints",
                                         .unknownName = "Unknown double information of constraint",
                                         .writers = kRowWriters};
template <>
constexpr InfoKind kInfoKind<QConstraint>{.read = VORQ_GetQConstrInfo,
                                          .readFailed = "Fail to get quadratic constraint info"};
template <>
constexpr InfoKind kInfoKind<PsdConstraint>{.read = VORQ_GetPSDConstrInfo,
                                            .readFailed = "Fail to get info of PSD constraints",
                                            .missingName = "Empty information name of PSD constraints",
                                            .badValues = "Invalid input values for PSD constraints",
                                            .unknownName = "Unknown double information of PSD constraint",
                                            .writers = kPsdConstrWriters};

}  // namespace

template <class Item>
int Model::GetInfo(char const* name, std::vector<Item> const& items, double* out) {
  InfoKind const& kind = kInfoKind<Item>;
  std::vector<int> const indices = LiveIndices(items);
  int const count = static_cast<int>(indices.size());
  return Record(kind.read(Prob(), name, count, indices.data(), out), kind.readFailed) ? count : -1;
}

template <class Item>
void Model::SetInfo(char const* name, std::vector<Item> const& items, double const* values, int len) {
  InfoKind const& kind = kInfoKind<Item>;
  if (name == nullptr || *name == '\0') {
    Refuse(kind.missingName);
    return;
  }
  if (values == nullptr || len < static_cast<int>(items.size())) {
    Refuse(kind.badValues);
    return;
  }
  std::vector<int> indices;
  std::vector<double> kept;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (!items[i].IsLive()) continue;
    indices.push_back(items[i].Idx());
    kept.push_back(values[i]);
  }
  if (indices.empty()) return;
  for (InfoWriter const& writer : kind.writers) {
    if (!EqualsNoCase(name, writer.name)) continue;
    Record(writer.write(Prob(), static_cast<int>(indices.size()), indices.data(), kept.data()), writer.failed);
    return;
  }
  Refuse(kind.unknownName);
}

template int Model::GetInfo<Var>(char const*, VarArray const&, double*);
template int Model::GetInfo<Constraint>(char const*, ConstrArray const&, double*);
template int Model::GetInfo<QConstraint>(char const*, QConstrArray const&, double*);
template int Model::GetInfo<PsdConstraint>(char const*, PsdConstrArray const&, double*);
template void Model::SetInfo<Var>(char const*, VarArray const&, double const*, int);
template void Model::SetInfo<Constraint>(char const*, ConstrArray const&, double const*, int);
template void Model::SetInfo<PsdConstraint>(char const*, PsdConstrArray const&, double const*, int);

}  // namespace Vorq
