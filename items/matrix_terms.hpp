// Lists of terms whose coefficients are symmetric matrix expressions: what PSD and LMI expressions have in common.
#pragma once

#include <ostream>
#include <vector>

#include "items/sym_mat_expr.hpp"
#include "items/term_list.hpp"

namespace Vorq {

template <class Item>
void AppendMatrixTerm(std::vector<SymMatExpr>& coeffs, std::vector<Item>& vars, SymMatExpr&& coeff, Item const& var) {
  MakeRoomForOne(coeffs);
  vars.push_back(var);
  coeffs.push_back(std::move(coeff));
}

// -1 if the lists differ in length; otherwise their length. Each matrix is taken with coefficient 1.
template <class Item>
int AddMatrixTerms(std::vector<SymMatExpr>& coeffs, std::vector<Item>& vars, std::vector<Item> const& newVars,
                   std::vector<SymMatrix> const& matrices) {
  if (newVars.size() != matrices.size()) return -1;
  MakeRoomForTerms(newVars.size(), vars, coeffs);
  for (std::size_t i = 0; i < newVars.size(); ++i) {
    AppendMatrixTerm(coeffs, vars, SymMatExpr(matrices[i]), newVars[i]);
  }
  return static_cast<int>(newVars.size());
}

// Appends the terms of another, or of the same, list, their coefficients multiplied; also by 0.
template <class Item>
void AppendMatrixTerms(std::vector<SymMatExpr>& coeffs, std::vector<Item>& vars,
                       std::vector<SymMatExpr> const& newCoeffs, std::vector<Item> const& newVars, double mult) {
  AppendTerms(coeffs, vars, newCoeffs, newVars, [mult](SymMatExpr const& coeff) {
    SymMatExpr scaled = coeff;
    scaled.Multiply(mult);
    return scaled;
  });
}

// Leaves one term for each live variable.
template <class Item>
void MergeMatrixTerms(std::vector<SymMatExpr>& coeffs, std::vector<Item>& vars) {
  MergeDuplicates([&](std::size_t to, std::size_t from) { coeffs[to].AddSymMatExpr(coeffs[from], 1.0); }, vars, coeffs);
}

// Terms of variables that are not live print nothing.
template <class Item>
void WriteMatrixTerms(std::ostream& out, std::vector<SymMatExpr> const& coeffs, std::vector<Item> const& vars) {
  for (std::size_t i = 0; i < vars.size(); ++i) {
    if (vars[i].IsLive()) out << " +  (" << coeffs[i] << ") * " << vars[i].GetName();
  }
}

}  // namespace Vorq
