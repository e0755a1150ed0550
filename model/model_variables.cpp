// Adding variables, and reading columns back.
#include "items/normalize_name.hpp"
#include "model/model_terms.hpp"
#include "model/names.hpp"
#include "model/row_batch.hpp"

namespace Vorq {
namespace {

constexpr char const* kAddVarsFailed = "Fail to add vars";

// What the solver library assumes when it gets no types.
constexpr char kContinuous = 'C';

// One attribute for each variable of a batch.
std::vector<double> Repeat(int count, double value) {
  return std::vector<double>(static_cast<std::size_t>(std::max(count, 0)), value);
}

std::string RepeatType(int count, char type) {
  return type == kContinuous ? std::string() : std::string(static_cast<std::size_t>(std::max(count, 0)), type);
}

char const* OrNull(std::string const& types) {
  return types.empty() ? nullptr : types.data();
}

}  // namespace

Var Model::AddVar(double lb, double ub, double obj, char type, char const* name) {
  std::string const normalized = NormalizeName(name);
  int const code = VORQ_AddCol(Prob(), obj, 0, nullptr, nullptr, type, lb, ub, normalized.c_str());
  return Added<Var>(code, "Fail to add a variable", normalized);
}

Var Model::AddVar(double lb, double ub, double obj, char type, Column& column, char const* name) {
  std::string const normalized = NormalizeName(name);
  int const n = Compact(column, Count<Constraint>());
  int const code = VORQ_AddCol(Prob(), obj, n, indices_.data(), column.coeffs.data(), type, lb, ub, normalized.c_str());
  return Added<Var>(code, "Fail to add a variable using Column data", normalized);
}

VarArray Model::AddVars(int count, char type, char const* prefix) {
  std::string const types = RepeatType(count, type);
  return AddVars(count, nullptr, nullptr, nullptr, OrNull(types), prefix);
}

VarArray Model::AddVars(int count, char type, char const* names, std::size_t length) {
  std::string const types = RepeatType(count, type);
  return AddVars(count, nullptr, nullptr, nullptr, OrNull(types), names, length);
}

VarArray Model::AddVars(int count, double lb, double ub, double obj, char type, char const* prefix) {
  if (count < 1) return {};
  std::string const names = NumberedNames(prefix, Count<Var>(), count);
  return AddVars(count, lb, ub, obj, type, names.data(), names.size());
}

VarArray Model::AddVars(int count, double lb, double ub, double obj, char type, char const* names, std::size_t length) {
  std::vector<double> const lbs = Repeat(count, lb);
  std::vector<double> const ubs = Repeat(count, ub);
  std::vector<double> const objs = Repeat(count, obj);
  std::string const types = RepeatType(count, type);
  return AddVars(count, lbs.data(), ubs.data(), objs.data(), OrNull(types), names, length);
}

VarArray Model::AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                        char const* prefix) {
  if (count < 1) return {};
  std::string const names = NumberedNames(prefix, Count<Var>(), count);
  return AddVars(count, lbs, ubs, objs, types, names.data(), names.size());
}

VarArray Model::AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                        char const* names, std::size_t length) {
  std::vector<char const*> split;
  if (count < 1 || !TakeNames(names, length, count, split)) return {};
  int const code = VORQ_AddCols(Prob(), count, objs, nullptr, nullptr, nullptr, nullptr, types, lbs, ubs, split.data());
  return AddedAll<Var>(code, kAddVarsFailed, split);
}

VarArray Model::AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                        ColumnArray& columns, char const* prefix) {
  if (count < 1) return {};
  auto const used = static_cast<std::size_t>(count);
  if (columns.size() < used) {
    Refuse("Not enough columns");
    return {};
  }
  std::string const names = NumberedNames(prefix, Count<Var>(), count);
  std::vector<char const*> split;
  if (!TakeNames(names.data(), names.size(), count, split)) return {};

  std::size_t terms = 0;
  for (Column const& column : columns) terms += column.Size();
  TermBatch batch;
  batch.Reserve(used, terms);
  for (std::size_t i = 0; i < used; ++i) Flatten(columns[i], Count<Constraint>(), batch);
  int const code = VORQ_AddCols(Prob(), count, objs, batch.begins.data(), batch.counts.data(), batch.indices.data(),
                                batch.coeffs.data(), types, lbs, ubs, split.data());
  return AddedAll<Var>(code, kAddVarsFailed, split);
}

Column Model::GetCol(Var const& var) {
  Column column;
  int const index = var.Idx();
  SparseLines lines;
  if (index < 0 ||
      !ReadLines(VORQ_GetCols, 1, &index, "Fail to get required col size", "Fail to get col data", lines)) {
    return column;
  }
  AddLine<Constraint>(lines, 0, column);
  return column;
}

}  // namespace Vorq
