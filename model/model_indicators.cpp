// Indicator constraints: adding, and reading them back as builders.
#include "items/normalize_name.hpp"
#include "model/model_live_items.hpp"
#include "model/model_terms.hpp"
#include "model/names.hpp"
#include "model/row_batch.hpp"

namespace Vorq {
namespace {

constexpr char const* kInvalidVariable = "Invalid indicator variable";
constexpr char const* kInvalidSense = "Invalid general constraint sense";

bool IsPlainSense(char sense) {
  return sense == 'E' || sense == 'G' || sense == 'L';
}

}  // namespace

// Indicator constraints as the solver library hands them out.
struct Model::IndicatorLines {
  SparseLines rows;
  std::vector<int> types;
  std::vector<int> binCols;
  std::vector<int> binVals;
  std::string senses;
  std::vector<double> rhss;
};

bool Model::CheckIndicator(Var const& var, char sense) {
  if (var.GetType() != 'B') return Refuse(kInvalidVariable);
  return IsPlainSense(sense) || Refuse(kInvalidSense);
}

// The terms stand in `indices_`.
GenConstr Model::AddIndicator(Var const& var, int value, double const* coeffs, char sense, double rhs, int type,
                              char const* name) {
  std::string const normalized = NormalizeName(name);
  char const* const names = normalized.c_str();
  int const count = static_cast<int>(indices_.size());
  int const col = var.Idx();
  int const begin = 0;
  int const code =
      VORQ_AddIndicators(Prob(), 1, &type, &col, &value, &begin, &count, indices_.data(), coeffs, &sense, &rhs, &names);
  return Added<GenConstr>(code, "Fail to add an indicator constraint", normalized);
}

GenConstr Model::AddGenConstrIndicator(Var const& var, int value, Expr& expr, char sense, double rhs, int type,
                                       char const* name) {
  if (!CheckIndicator(var, sense)) return Invalid<GenConstr>();
  Compact(expr, Count<Var>());
  return AddIndicator(var, value, expr.coeffs.data(), sense, rhs - expr.constant, type, name);
}

GenConstr Model::AddGenConstrIndicator(Var const& var, int value, MExpression const& cell, char sense, double rhs,
                                       int type, char const* name) {
  if (!CheckIndicator(var, sense)) return Invalid<GenConstr>();
  Collect(cell);
  return AddIndicator(var, value, coeffs_.data(), sense, rhs - cell.GetConstant(), type, name);
}

GenConstr Model::AddGenConstrIndicator(Var const& var, int value, ConstrBuilder& builder, int type, char const* name) {
  return AddGenConstrIndicator(var, value, builder.expr, builder.sense, 0.0, type, name);
}

GenConstr Model::AddGenConstrIndicator(GenConstrBuilder& builder, char const* name) {
  if (builder.binVar.vars.empty()) {
    Refuse(kInvalidVariable);
    return Invalid<GenConstr>();
  }
  return AddGenConstrIndicator(builder.binVar.vars.front(), builder.binVal, builder.expr, builder.sense, 0.0,
                               builder.type, name);
}

GenConstrArray Model::AddGenConstrIndicators(GenConstrBuilderArray& builders, char const* prefix) {
  std::string const names = NumberedNames(prefix, Count<GenConstr>(), static_cast<int>(builders.size()));
  return AddGenConstrIndicators(builders, names.data(), names.size());
}

// Unlike the form for one, this one leaves the type of the variables to the solver library.
GenConstrArray Model::AddGenConstrIndicators(GenConstrBuilderArray& builders, char const* names, std::size_t length) {
  std::vector<char const*> split;
  int const count = static_cast<int>(builders.size());
  if (builders.empty() || !TakeNames(names, length, count, split)) return {};

  std::size_t terms = 0;
  for (GenConstrBuilder const& builder : builders) terms += builder.expr.Size();
  TermBatch rows;
  rows.Reserve(builders.size(), terms);
  std::vector<int> types, binCols, binVals;
  std::string senses;
  std::vector<double> rhss;
  for (GenConstrBuilder& builder : builders) {
    bool const hasVariable = !builder.binVar.vars.empty();
    if (!hasVariable || !IsPlainSense(builder.sense)) {
      Refuse(hasVariable ? kInvalidSense : kInvalidVariable);
      return {};
    }
    Flatten(builder.expr, Count<Var>(), rows);
    types.push_back(builder.type);
    binCols.push_back(builder.binVar.vars.front().Idx());
    binVals.push_back(builder.binVal);
    senses.push_back(builder.sense);
    rhss.push_back(0.0 - builder.expr.constant);
  }
  int const code = VORQ_AddIndicators(Prob(), count, types.data(), binCols.data(), binVals.data(), rows.begins.data(),
                                      rows.counts.data(), rows.indices.data(), rows.coeffs.data(), senses.data(),
                                      rhss.data(), split.data());
  return AddedAll<GenConstr>(code, "Fail to add indicator constraints", split);
}

bool Model::ReadIndicators(int count, int const* indices, char const* sizeFailed, char const* dataFailed,
                           IndicatorLines& lines) {
  return ReadTwice(
      [&](int* required) {
        return VORQ_GetIndicators(Prob(), count, indices, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                  nullptr, nullptr, 0, required);
      },
      sizeFailed,
      [&](int capacity) {
        auto const n = static_cast<std::size_t>(count);
        for (auto* list : {&lines.types, &lines.binCols, &lines.binVals, &lines.rows.begin, &lines.rows.count}) {
          list->resize(n);
        }
        lines.senses.resize(n);
        lines.rhss.resize(n);
        lines.rows.index.resize(static_cast<std::size_t>(capacity));
        lines.rows.value.resize(static_cast<std::size_t>(capacity));
        return VORQ_GetIndicators(Prob(), count, indices, lines.types.data(), lines.binCols.data(),
                                  lines.binVals.data(), lines.rows.begin.data(), lines.rows.count.data(),
                                  lines.rows.index.data(), lines.rows.value.data(), lines.senses.data(),
                                  lines.rhss.data(), capacity, nullptr);
      },
      dataFailed);
}

// False after a failure; the builder then holds what could be read.
bool Model::MakeBuilder(IndicatorLines const& lines, std::size_t line, GenConstrBuilder& builder) {
  builder.expr.constant = 0.0 - lines.rhss[line];
  builder.sense = lines.senses[line];
  builder.type = lines.types[line];
  builder.binVal = lines.binVals[line];
  Var const var = Get<Var>(lines.binCols[line]);
  if (status.Failed()) return false;
  builder.binVar = Expr(var, 1.0);
  AddLine<Var>(lines.rows, line, builder.expr);
  return !status.Failed();
}

GenConstrBuilder Model::GetGenConstrBuilder(GenConstr const& constr) {
  GenConstrBuilder builder;
  int const index = constr.Idx();
  IndicatorLines lines;
  if (ReadIndicators(1, &index, "Fail to get required indicator size", "Fail to get indicator data", lines)) {
    MakeBuilder(lines, 0, builder);
  }
  return builder;
}

GenConstrBuilderArray Model::GetGenConstrBuilders() {
  IndicatorLines lines;
  if (!ReadIndicators(Count<GenConstr>(), nullptr, "Fail to get required size of general constraints",
                      "Fail to get data of indicators", lines)) {
    return {};
  }
  return BuildersOfLive<GenConstr, GenConstrBuilder>([&](GenConstr const& constr, GenConstrBuilder& builder) {
    return MakeBuilder(lines, static_cast<std::size_t>(constr.Idx()), builder);
  });
}

}  // namespace Vorq
