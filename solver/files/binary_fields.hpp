// FieldsOf: the members of each record of a problem in the order of the binary format. Writer and reader both walk this
// one list, so that they cannot differ. A change of any list is a new version of the format.
#pragma once

#include <concepts>
#include <tuple>
#include <type_traits>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// The record itself, or the record as a constant.
template <typename T, typename Record>
concept Is = std::same_as<std::remove_const_t<T>, Record>;

auto FieldsOf(Is<LinearTerm> auto& term) {
  return std::tie(term.col, term.value);
}
auto FieldsOf(Is<QuadTerm> auto& term) {
  return std::tie(term.row, term.col, term.value);
}
auto FieldsOf(Is<PsdTerm> auto& term) {
  return std::tie(term.psdCol, term.symMat);
}
auto FieldsOf(Is<Sos> auto& sos) {
  return std::tie(sos.type, sos.cols, sos.weights);
}
auto FieldsOf(Is<Cone> auto& cone) {
  return std::tie(cone.type, cone.cols);
}
auto FieldsOf(Is<ExpCone> auto& cone) {
  return std::tie(cone.type, cone.cols[0], cone.cols[1], cone.cols[2]);
}
auto FieldsOf(Is<Indicator> auto& indicator) {
  return std::tie(indicator.type, indicator.binCol, indicator.binVal, indicator.terms, indicator.sense, indicator.rhs);
}
auto FieldsOf(Is<QuadConstraint> auto& constraint) {
  return std::tie(constraint.linear, constraint.quadratic, constraint.sense, constraint.rhs);
}
auto FieldsOf(Is<SymMatrix> auto& matrix) {
  return std::tie(matrix.dim, matrix.elements);
}
auto FieldsOf(Is<PsdConstraint> auto& constraint) {
  return std::tie(constraint.linear, constraint.psd, constraint.lower, constraint.upper);
}
auto FieldsOf(Is<LmiConstraint> auto& constraint) {
  return std::tie(constraint.dim, constraint.cols, constraint.symMats, constraint.constant);
}
auto FieldsOf(Is<AffineRow> auto& row) {
  return std::tie(row.linear, row.psd, row.constant);
}
auto FieldsOf(Is<AffineCone> auto& cone) {
  return std::tie(cone.type, cone.rows);
}
auto FieldsOf(Is<Columns> auto& columns) {
  return std::tie(columns.lower, columns.upper, columns.objective, columns.type, columns.names);
}
auto FieldsOf(Is<Rows> auto& rows) {
  return std::tie(rows.matrix, rows.lower, rows.upper, rows.names);
}
auto FieldsOf(Is<SideRows> auto& rows) {
  return std::tie(rows.matrix, rows.lower, rows.upper, rows.names);
}
auto FieldsOf(Is<Objective> auto& objective) {
  return std::tie(objective.sense, objective.constant, objective.quadratic, objective.psd);
}
auto FieldsOf(Is<ProblemData> auto& data) {
  return std::tie(data.name, data.objective, data.columns, data.rows, data.soss, data.indicators, data.indicatorNames,
                  data.cones, data.expCones, data.affineCones, data.affineConeNames, data.quadConstraints,
                  data.quadConstraintNames, data.psdDims, data.psdColNames, data.psdConstraints,
                  data.psdConstraintNames, data.lmiConstraints, data.lmiConstraintNames, data.symMatrices,
                  data.lazyConstraints, data.userCuts);
}

}  // namespace vorqsolver
