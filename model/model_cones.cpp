// Cones and exponential cones: adding, with or without their variables, and reading them back as builders.
#include "model/block_cones.hpp"
#include "model/model_var_lists.hpp"

namespace Vorq {
namespace {

constexpr int kQuadraticCone = 1;
constexpr int kRotatedCone = 2;
constexpr int kPrimalExpCone = 3;
constexpr int kDualExpCone = 4;
constexpr int kExpConeSize = 3;

struct ConeDimension {
  int type;
  int dim;
  char const* belowIt;
};
constexpr ConeDimension kLeastDimensions[] = {{kQuadraticCone, 2, "Invalid dimension for cone"},
                                              {kRotatedCone, 3, "Invalid dimension for rotated cone"}};

constexpr VarListReader kConeReader{.read =
                                        [](VORQ_Prob* prob, int count, int const* indices, int* types, int* begins,
                                           int* counts, int* cols, double*, int capacity, int* required) {
                                          return VORQ_GetCones(prob, count, indices, types, begins, counts, cols,
                                                               capacity, required);
                                        },
                                    .sizeFailed = "Fail to get required cone size",
                                    .dataFailed = "Fail to get cones"};

constexpr VarListReader kExpConeReader{.read =
                                           [](VORQ_Prob* prob, int count, int const* indices, int* types, int* begins,
                                              int* counts, int* cols, double*, int capacity, int* required) {
                                             for (int i = 0; i < count && begins != nullptr; ++i) {
                                               begins[i] = kExpConeSize * i;
                                               counts[i] = kExpConeSize;
                                             }
                                             return VORQ_GetExpCones(prob, count, indices, types, cols, capacity,
                                                                     required);
                                           },
                                       .sizeFailed = "Fail to get required exponential cone size",
                                       .dataFailed = "Fail to get exponential cones"};

// New variables of a cone start without a lower bound.
std::vector<double> FreeBounds(int count) {
  return std::vector<double>(static_cast<std::size_t>(std::max(count, 0)), -kInfinity);
}

void BoundBinaries(VarArray& vars, char const* types) {
  if (types == nullptr) return;
  for (std::size_t i = 0; i < vars.size(); ++i) {
    if (types[i] == 'B') vars[i].Set("LB", 0.0);
  }
}

}  // namespace

Cone Model::AddCone(VarArray const& vars, int type) {
  std::vector<int> cols;
  if (!LiveColumns(vars, cols)) return Invalid<Cone>();
  int const begin = 0;
  int const count = static_cast<int>(cols.size());
  return Added<Cone>(VORQ_AddCones(Prob(), 1, &type, &begin, &count, cols.data()), "Fail to add a cone", std::string());
}

Cone Model::AddCone(MVar<1> const& vars, int type) {
  return AddCone(CellList(vars), type);
}

ConeArray Model::AddCones(MVar<2> const& vars, int type) {
  if (status.Failed()) return {};
  return AddEachRow<Cone>(vars, [&](MVar<1> const& row, std::uint64_t) { return AddCone(row, type); });
}

Cone Model::AddCone(ConeBuilder const& builder) {
  return AddCone(builder.vars, builder.type);
}

// Other types than the two are not checked here, which is meant: the solver library has the last word.
Cone Model::AddCone(int dim, int type, char const* types, char const* prefix) {
  for (ConeDimension const& least : kLeastDimensions) {
    if (type != least.type || dim >= least.dim) continue;
    Refuse(least.belowIt);
    return Invalid<Cone>();
  }
  VarArray vars = AddVars(dim, FreeBounds(dim).data(), nullptr, nullptr, types, prefix);
  if (static_cast<int>(vars.size()) < dim) return Invalid<Cone>();
  if (type == kQuadraticCone) vars.front().Set("LB", 0.0);
  BoundBinaries(vars, types);
  return AddCone(vars, type);
}

ConeBuilderArray Model::GetConeBuilders(ConeArray const& cones) {
  return GetVarListBuilders<ConeBuilder>(kConeReader, cones);
}

ExpCone Model::AddExpCone(VarArray const& vars, int type) {
  std::vector<int> cols;
  if (vars.size() != kExpConeSize) {
    Refuse("Invalid dimension of variable array for exponential cone");
    return Invalid<ExpCone>();
  }
  if (!LiveColumns(vars, cols)) return Invalid<ExpCone>();
  return Added<ExpCone>(VORQ_AddExpCones(Prob(), 1, &type, cols.data()), "Fail to add an exponential cone",
                        std::string());
}

ExpCone Model::AddExpCone(MVar<1> const& vars, int type) {
  return AddExpCone(CellList(vars), type);
}

ExpConeArray Model::AddExpCones(MVar<2> const& vars, int type) {
  if (status.Failed()) return {};
  return AddEachRow<ExpCone>(vars, [&](MVar<1> const& row, std::uint64_t) { return AddExpCone(row, type); });
}

ExpCone Model::AddExpCone(ExpConeBuilder const& builder) {
  return AddExpCone(builder.vars, builder.type);
}

ExpCone Model::AddExpCone(int type, char const* types, char const* prefix) {
  if (type != kPrimalExpCone && type != kDualExpCone) {
    Refuse("Invalid type for exponential cone");
    return Invalid<ExpCone>();
  }
  VarArray vars = AddVars(kExpConeSize, FreeBounds(kExpConeSize).data(), nullptr, nullptr, types, prefix);
  if (vars.size() < kExpConeSize) return Invalid<ExpCone>();
  if (type == kPrimalExpCone) {
    vars.front().Set("LB", 0.0);
  } else {
    vars.back().Set("UB", 0.0);
  }
  BoundBinaries(vars, types);
  return AddExpCone(vars, type);
}

ExpConeBuilderArray Model::GetExpConeBuilders(ExpConeArray const& cones) {
  return GetVarListBuilders<ExpConeBuilder>(kExpConeReader, cones);
}

}  // namespace Vorq
