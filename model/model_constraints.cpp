// Adding linear constraints, and reading rows back.
#include <string_view>

#include "items/normalize_name.hpp"
#include "model/builder_bounds.hpp"
#include "model/model_live_items.hpp"
#include "model/model_terms.hpp"
#include "model/names.hpp"
#include "model/row_batch.hpp"

namespace Vorq {
namespace {

constexpr char const* kInvalidSense = "Invalid constraint sense";
constexpr char const* kAddConstrsFailed = "Fail to add constraints";
constexpr char const* kRowSizeFailed = "Fail to get required row buffer size";
constexpr char const* kRowDataFailed = "Fail to get row data";

// The sense that says: the pair of bounds counts.
constexpr int kBoundsSense = 0;

bool IsPlainSense(char sense) {
  return sense == 'E' || sense == 'G' || sense == 'L';
}

}  // namespace

Constraint Model::AddRow(Expr& expr, int sense, double bound, double upper, std::string const& name) {
  int const n = Compact(expr, Count<Var>());
  int const code = VORQ_AddRow(Prob(), n, indices_.data(), expr.coeffs.data(), sense, bound, upper, name.c_str());
  return Added<Constraint>(code, "Fail to add a constraint", name);
}

Constraint Model::AddConstr(Expr& expr, char sense, double rhs, char const* name) {
  if (!IsPlainSense(sense)) Refuse(kInvalidSense);
  // A failure that an earlier operation left stops this one too, which is meant.
  if (status.Failed()) return Invalid<Constraint>();
  return AddRow(expr, sense, rhs - expr.constant, kInfinity, NormalizeName(name));
}

Constraint Model::AddConstr(Expr const& lhs, char sense, Expr const& rhs, char const* name) {
  Expr difference(lhs);
  difference -= rhs;
  return AddConstr(difference, sense, 0.0, name);
}

Constraint Model::AddConstr(Expr& expr, double lower, double upper, char const* name) {
  return AddRow(expr, kBoundsSense, lower - expr.constant, upper - expr.constant, NormalizeName(name));
}

Constraint Model::AddConstr(ConstrBuilder& builder, char const* name) {
  if (builder.sense == 'R') return AddConstr(builder.expr, -builder.range, 0.0, name);
  return AddConstr(builder.expr, builder.sense, 0.0, name);
}

ConstrArray Model::AddConstrs(int count, char const* senses, double const* rhss, char const* prefix) {
  if (senses == nullptr || rhss == nullptr || count < 1) return {};
  auto const n = static_cast<std::size_t>(count);
  std::vector<double> lowers(n), uppers(n);
  // A bad sense leaves the rows from there on at bounds 0, and adding goes on: a success clears its failure. It is
  // meant.
  for (std::size_t i = 0; i < n; ++i) {
    char const sense = senses[i];
    if (!IsPlainSense(sense) && sense != 'N') {
      Refuse(sense == 'R' ? "Use constrbuilder to add range constraint" : kInvalidSense);
      break;
    }
    lowers[i] = sense == 'E' || sense == 'G' ? rhss[i] : -kInfinity;
    uppers[i] = sense == 'E' || sense == 'L' ? rhss[i] : kInfinity;
  }
  return AddConstrs(count, lowers.data(), uppers.data(), prefix);
}

ConstrArray Model::AddConstrs(int count, double const* lowers, double const* uppers, char const* prefix) {
  if (lowers == nullptr || uppers == nullptr || count < 1) return {};
  std::string const names = NumberedNames(prefix, Count<Constraint>(), count);
  return AddConstrs(count, lowers, uppers, names.data(), names.size());
}

ConstrArray Model::AddConstrs(int count, double const* lowers, double const* uppers, char const* names,
                              std::size_t length) {
  std::vector<char const*> split;
  if (lowers == nullptr || uppers == nullptr || count < 1 || !TakeNames(names, length, count, split)) return {};
  int const code =
      VORQ_AddRows(Prob(), count, nullptr, nullptr, nullptr, nullptr, nullptr, lowers, uppers, split.data());
  return AddedAll<Constraint>(code, kAddConstrsFailed, split);
}

// Fills all but the names; gives kInvalid at a sense that is not known.
int Model::FlattenBuilders(ConstrBuilderArray& builders, RowBatch& batch) {
  std::size_t terms = 0;
  for (ConstrBuilder const& builder : builders) terms += builder.expr.Size();
  batch.Reserve(builders.size(), terms);
  batch.senses.reserve(builders.size());
  batch.lowers.reserve(builders.size());
  batch.uppers.reserve(builders.size());
  for (ConstrBuilder& builder : builders) {
    Expr& expr = builder.expr;
    Flatten(expr, Count<Var>(), batch);
    batch.senses.push_back(builder.sense);
    if (!IsPlainSense(builder.sense) && builder.sense != 'N' && builder.sense != 'R') return kInvalid;
    batch.lowers.push_back(builder.sense == 'N' ? -kInfinity : -expr.constant);
    // The range is not shifted by the constant, unlike that of a single constraint, which is meant.
    batch.uppers.push_back(builder.sense == 'R' ? builder.range : kInfinity);
  }
  return kOk;
}

ConstrArray Model::AddConstrs(ConstrBuilderArray& builders, char const* prefix) {
  std::string const names = NumberedNames(prefix, Count<Constraint>(), static_cast<int>(builders.size()));
  return AddConstrs(builders, names.data(), names.size());
}

ConstrArray Model::AddConstrs(ConstrBuilderArray& builders, char const* names, std::size_t length) {
  if (builders.empty()) return {};
  RowBatch batch;
  if (!TakeNames(names, length, static_cast<int>(builders.size()), batch.names)) return {};
  if (FlattenBuilders(builders, batch) != kOk) {
    Refuse(kInvalidSense);
    return {};
  }
  return AddedAll<Constraint>(batch.Add(VORQ_AddRows, Prob()), kAddConstrsFailed, batch.names);
}

bool Model::ReadLines(SparseGetter get, int count, int const* indices, char const* sizeFailed, char const* dataFailed,
                      SparseLines& lines) {
  return ReadTwice(
      [&](int* required) { return get(Prob(), count, indices, nullptr, nullptr, nullptr, nullptr, 0, required); },
      sizeFailed,
      [&](int capacity) {
        auto const elements = static_cast<std::size_t>(capacity);
        lines.begin.resize(static_cast<std::size_t>(count));
        lines.count.resize(static_cast<std::size_t>(count));
        lines.index.resize(elements);
        lines.value.resize(elements);
        return get(Prob(), count, indices, lines.begin.data(), lines.count.data(), lines.index.data(),
                   lines.value.data(), capacity, nullptr);
      },
      dataFailed);
}

Expr Model::GetRow(Constraint const& constr) {
  Expr row;
  int const index = constr.Idx();
  if (index < 0) {
    Refuse("Invalid constraint");
    return row;
  }
  SparseLines lines;
  if (ReadLines(VORQ_GetRows, 1, &index, kRowSizeFailed, kRowDataFailed, lines)) AddLine<Var>(lines, 0, row);
  return row;
}

ConstrBuilder Model::GetConstrBuilder(Constraint& constr) {
  ConstrBuilder builder;
  builder.expr = GetRow(constr);
  if (!status.Failed()) AddBounds(builder, builder.expr, constr);
  return builder;
}

ConstrBuilderArray Model::GetConstrBuilders() {
  SparseLines lines;
  if (!ReadLines(VORQ_GetRows, Count<Constraint>(), nullptr, kRowSizeFailed, kRowDataFailed, lines)) return {};
  return BuildersOfLive<Constraint, ConstrBuilder>([&](Constraint& constr, ConstrBuilder& builder) {
    AddLine<Var>(lines, static_cast<std::size_t>(constr.Idx()), builder.expr);
    return !status.Failed() && AddBounds(builder, builder.expr, constr);
  });
}

}  // namespace Vorq
