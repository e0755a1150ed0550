// Quadratic constraints: adding, and reading them back as expressions and builders.
#include "items/normalize_name.hpp"
#include "model/model_live_items.hpp"
#include "model/model_terms.hpp"
#include "model/quadratic_terms.hpp"

namespace Vorq {

QConstraint Model::AddQConstr(QuadExpr& expr, char sense, double rhs, char const* name) {
  if (expr.Size() == 0) {
    Refuse("Invalid quadratic expression object");
    return Invalid<QConstraint>();
  }
  std::string const normalized = NormalizeName(name);
  if (sense != 'E' && sense != 'G' && sense != 'L') Refuse("Invalid quadratic constraint sense");
  // A failure that an earlier operation left stops this one too, which is meant.
  if (status.Failed()) return Invalid<QConstraint>();
  Expr& linear = expr.linear;
  int const count = Compact(linear, Count<Var>());
  QuadraticTerms const terms(expr);
  int const code =
      VORQ_AddQConstr(Prob(), count, indices_.data(), linear.coeffs.data(), terms.Count(), terms.rows.data(),
                      terms.cols.data(), expr.coeffs.data(), sense, rhs - linear.constant, normalized.c_str());
  return Added<QConstraint>(code, "Fail to add a quadratic constraint", normalized);
}

QConstraint Model::AddQConstr(QuadExpr const& lhs, char sense, QuadExpr const& rhs, char const* name) {
  QuadExpr difference(lhs);
  difference.AddQuadExpr(rhs, -1.0);
  return AddQConstr(difference, sense, 0.0, name);
}

QConstraint Model::AddQConstr(QConstrBuilder& builder, char const* name) {
  return AddQConstr(builder.expr, builder.sense, 0.0, name);
}

QuadExpr Model::GetQuadRow(QConstraint const& constr) {
  QConstrBuilder builder;
  ReadQuadRow(constr, builder);
  return std::move(builder.expr);
}

QConstrBuilder Model::GetQConstrBuilder(QConstraint const& constr) {
  QConstrBuilder builder;
  double const rhs = ReadQuadRow(constr, builder);
  if (!status.Failed()) builder.expr.linear.AddConstant(-rhs);
  return builder;
}

QConstrBuilderArray Model::GetQConstrBuilders() {
  return BuildersOfLive<QConstraint, QConstrBuilder>([&](QConstraint const& constr, QConstrBuilder& builder) {
    builder = GetQConstrBuilder(constr);
    return !status.Failed();
  });
}

// Fills all but the constant, which belongs to the right side that is the result.
double Model::ReadQuadRow(QConstraint const& constr, QConstrBuilder& builder) {
  double rhs = 0.0;
  int const index = constr.Idx();
  if (index < 0) {
    Refuse("Invalid quadratic constraint");
    return rhs;
  }
  int linearCount = 0;
  int quadraticCount = 0;
  std::vector<int> linear, rows, cols;
  std::vector<double> linearCoeffs, coeffs;
  bool const hasRead = ReadTwice(
      [&](int* required) {
        return VORQ_GetQConstr(Prob(), index, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                               nullptr, 0, required);
      },
      "Fail to get required quad row buffer size",
      [&](int capacity) {
        auto const size = static_cast<std::size_t>(capacity);
        for (auto* list : {&linear, &rows, &cols}) list->resize(size);
        for (auto* list : {&linearCoeffs, &coeffs}) list->resize(size);
        return VORQ_GetQConstr(Prob(), index, &linearCount, linear.data(), linearCoeffs.data(), &quadraticCount,
                               rows.data(), cols.data(), coeffs.data(), &builder.sense, &rhs, capacity, nullptr);
      },
      "Fail to get quad row data");
  if (!hasRead) return rhs;
  auto const linearSize = static_cast<std::size_t>(linearCount);
  AddTerms<Var>(std::span(linear).first(linearSize), std::span(linearCoeffs).first(linearSize), builder.expr.linear);
  if (status.Failed()) return rhs;
  auto const size = static_cast<std::size_t>(quadraticCount);
  AddQuadraticTerms(std::span(rows).first(size), cols, coeffs, builder.expr);
  return rhs;
}

}  // namespace Vorq
