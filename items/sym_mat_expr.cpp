// The operations of linear combinations of symmetric matrices.
#include "items/sym_mat_expr.hpp"

#include <algorithm>
#include <ostream>
#include <tuple>

#include "items/term_list.hpp"

namespace Vorq {

SymMatExpr::SymMatExpr(SymMatrix const& mat, double coeff) : mats{mat}, coeffs{coeff}, dim(mat.dim) {}

bool SymMatExpr::TakeDimension(int dimension) {
  if (dim == 0) dim = dimension;
  if (dim == dimension) return true;
  SetStatus(status, kInvalid, "Dimension of symmetric matrix mismatch");
  return false;
}

bool SymMatExpr::AddTerm(SymMatrix const& mat, double c) {
  if (mat.dim < 1 || !TakeDimension(mat.dim)) return false;
  AppendTerm(coeffs, mats, c, mat);
  return true;
}

int SymMatExpr::AddTerms(std::vector<SymMatrix> const& matrices, double const* c, int n) {
  int const count = static_cast<int>(matrices.size());
  if (c == nullptr || n < count) return -1;
  MakeRoomForTerms(matrices.size(), mats, coeffs);
  for (std::size_t i = 0; i < matrices.size(); ++i) {
    if (!AddTerm(matrices[i], c[i])) return -1;
  }
  return count;
}

void SymMatExpr::AddSymMatExpr(SymMatExpr const& other, double mult) {
  if (other.GetDim() < 1 || !TakeDimension(other.GetDim())) return;
  // The number of terms is taken first: `other` may be this expression.
  std::size_t const count = other.Size();
  MakeRoomForMore(count, mats, coeffs);
  for (std::size_t i = 0; i < count; ++i) {
    double const c = other.coeffs[i];
    if (!AddTerm(other.mats[i], mult == 1.0 ? c : c * mult)) return;
  }
}

void SymMatExpr::Remove(int i) {
  RemoveTerm(i, mats, coeffs);
}

void SymMatExpr::Remove(SymMatrix const& mat) {
  // A copy, for `mat` may be an element of this list.
  RemoveMatchingTerms([sought = mat](SymMatrix const& other) { return other == sought; }, mats, coeffs);
}

void SymMatExpr::Reserve(int n) {
  ReserveTerms(n, mats, coeffs);
}

void SymMatExpr::Multiply(double c) {
  if (c == 1.0) return;
  for (double& coeff : coeffs) coeff *= c;
}

int SymMatExpr::GetElements(std::vector<int>* rows, std::vector<int>* cols, std::vector<double>* values) const {
  if (rows == nullptr || cols == nullptr || values == nullptr) return -1;
  std::vector<SymMatElement> elements;
  for (std::size_t i = 0; i < mats.size(); ++i) {
    std::size_t const first = elements.size();
    if (mats[i].ReadElements(elements) != kOk) return -1;
    for (std::size_t k = first; k < elements.size(); ++k) {
      SymMatElement& e = elements[k];
      e = {std::max(e.row, e.col), std::min(e.row, e.col), e.value * coeffs[i]};
    }
  }
  auto const position = [](SymMatElement const& e) { return std::tuple(e.row, e.col); };
  std::stable_sort(elements.begin(), elements.end(),
                   [&](auto const& a, auto const& b) { return position(a) < position(b); });

  rows->clear();
  cols->clear();
  values->clear();
  for (std::size_t i = 0; i < elements.size(); ++i) {
    SymMatElement const& e = elements[i];
    if (i > 0 && position(e) == position(elements[i - 1])) {
      values->back() += e.value;
      continue;
    }
    rows->push_back(e.row);
    cols->push_back(e.col);
    values->push_back(e.value);
  }
  return static_cast<int>(rows->size());
}

std::ostream& operator<<(std::ostream& out, SymMatExpr const& expr) {
  for (std::size_t i = 0; i < expr.Size(); ++i) {
    if (i > 0) out << " + ";
    if (expr.mats[i].cached) {
      out << "<SymMatrix (cached)>";
    } else {
      out << "<SymMatrix " << expr.mats[i].Idx() << "-th>";
    }
    if (expr.coeffs[i] != 1.0) out << " * " << expr.coeffs[i];
  }
  return out;
}

}  // namespace Vorq
