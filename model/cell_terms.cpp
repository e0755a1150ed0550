// Walking through the terms of cells.
#include "model/cell_terms.hpp"

#include <algorithm>
#include <cstdint>

#include "items/term_list.hpp"

namespace Vorq {
namespace {

// Appends the entries of one line and merges them. The mark of a column is the position of its entry plus one.
class EntryMerger {
 public:
  EntryMerger(std::vector<int>& marks, std::vector<int>& indices, std::vector<double>& coefficients)
      : marks_(marks), indices_(indices), coefficients_(coefficients), start_(indices.size()) {}
  EntryMerger(EntryMerger const&) = delete;
  EntryMerger& operator=(EntryMerger const&) = delete;
  ~EntryMerger() {
    for (std::size_t k = start_; k < indices_.size(); ++k) marks_[static_cast<std::size_t>(indices_[k])] = 0;
  }

  void MakeRoom(std::size_t terms) { MakeRoomForMore(terms, indices_, coefficients_); }

  // Expects room for the entry.
  void Add(Var const& var, double coefficient) { Add(var.Idx(), coefficient); }
  void Add(int index, double coefficient) {
    if (index < 0) return;
    auto const column = static_cast<std::size_t>(index);
    if (column >= marks_.size()) marks_.resize(column + 1);
    int& mark = marks_[column];
    if (mark != 0) {
      coefficients_[start_ + static_cast<std::size_t>(mark) - 1] += coefficient;
      return;
    }
    indices_.push_back(index);
    coefficients_.push_back(coefficient);
    mark = static_cast<int>(Count());
  }

  std::size_t Count() const { return indices_.size() - start_; }

 private:
  std::vector<int>& marks_;
  std::vector<int>& indices_;
  std::vector<double>& coefficients_;
  std::size_t start_;
};

void AddExplicitTerms(Expr const& expr, EntryMerger& merger) {
  for (std::size_t i = 0; i < expr.coeffs.size(); ++i) {
    if (expr.coeffs[i] != 0.0) merger.Add(expr.vars[i], expr.coeffs[i]);
  }
}

void AddSparseTerms(SparseTerms const& terms, int const* columns, EntryMerger& merger) {
  if (columns == nullptr) {
    terms.ForEach([&merger](Var const& var, double coefficient) {
      if (coefficient != 0.0) merger.Add(var, coefficient);
    });
    return;
  }
  int const* const places = terms.Places();
  double const* const values = terms.Values();
  for (std::size_t k = 0; k < terms.Size(); ++k) {
    if (values[k] != 0.0) merger.Add(columns[places[k]], values[k]);
  }
}

// A coefficient of zero is told before it is scaled.
void AddLazyTerms(MExpression const& cell, EntryMerger& merger) {
  double const* coefficient = cell.coeffs.First();
  Var const* var = cell.vars.First();
  for (std::uint64_t count = cell.LazySize(); count > 0; --count) {
    if (*coefficient != 0.0) merger.Add(*var, *coefficient * cell.scale);
    coefficient += cell.coeffs.Stride();
    var += cell.vars.Stride();
  }
}

// The lists of quadratic entries.
class QuadraticEntries {
 public:
  QuadraticEntries(std::vector<int>& rows, std::vector<int>& cols, std::vector<double>& values)
      : rows_(rows), cols_(cols), values_(values), start_(values.size()) {}

  void MakeRoom(std::size_t entries) { MakeRoomForMore(entries, rows_, cols_, values_); }
  void Add(Var const& first, Var const& second, double value) {
    MakeRoom(1);
    rows_.push_back(first.Idx());
    cols_.push_back(second.Idx());
    values_.push_back(value);
  }
  std::size_t Count() const { return values_.size() - start_; }

 private:
  std::vector<int>& rows_;
  std::vector<int>& cols_;
  std::vector<double>& values_;
  std::size_t start_;
};

// Calls visit(variable, factor) for each term of a linear cell in a product, the lazy ones first. The constant has no
// part in it.
template <class Visit>
void ForEachFactor(MExpression const& cell, Visit&& visit) {
  cell.ForEachLazyTerm(visit);
  cell.ForEachExplicitTerm(visit);
}

void AddProducts(StridedVector<MExpression> const& cells, StridedVector<Var> const& vars, std::uint64_t size,
                 double scale, QuadraticEntries& entries) {
  for (std::uint64_t i = 0; i < size; ++i) {
    ForEachFactor(cells[i], [&](Var const& var, double factor) {
      if (factor != 0.0) entries.Add(var, vars[i], factor * scale);
    });
  }
}

void AddLazyProducts(MQExpression const& cell, QuadraticEntries& entries) {
  ProductSide const& first = cell.side1;
  ProductSide const& second = cell.side2;
  // Sides of one length, unless one of them came from a block without a store.
  std::uint64_t const size = std::min(first.Size(), second.Size());
  if (first.kind == SideKind::kVars && second.kind == SideKind::kVars) {
    entries.MakeRoom(size);
    // The scale is not applied to products of two variables, which is meant.
    for (std::uint64_t i = 0; i < size; ++i) entries.Add(first.vars[i], second.vars[i], 1.0);
  } else if (first.kind == SideKind::kVars) {
    AddProducts(second.lins, first.vars, size, cell.scale, entries);
  } else if (second.kind == SideKind::kVars) {
    AddProducts(first.lins, second.vars, size, cell.scale, entries);
  } else {
    for (std::uint64_t i = 0; i < size; ++i) {
      ForEachFactor(first.lins[i], [&](Var const& left, double leftFactor) {
        ForEachFactor(second.lins[i], [&](Var const& right, double rightFactor) {
          entries.Add(left, right, leftFactor * rightFactor * cell.scale);
        });
      });
    }
  }
}

}  // namespace

std::size_t CollectTerms(MExpression const& cell, std::vector<int>& marks, std::vector<int>& indices,
                         std::vector<double>& coefficients, int const* sparseColumns) {
  // A scale of NaN counts.
  bool const hasLazyPart = cell.scale != 0.0 && !cell.vars.IsEmpty() && !cell.coeffs.IsEmpty();
  EntryMerger merger(marks, indices, coefficients);
  merger.MakeRoom(cell.ExplicitSize() + (hasLazyPart ? cell.LazySize() : 0));
  AddSparseTerms(cell.Sparse(), sparseColumns, merger);
  AddExplicitTerms(cell.expr, merger);
  if (hasLazyPart) AddLazyTerms(cell, merger);
  return merger.Count();
}

std::size_t CollectTerms(Expr const& expr, std::vector<int>& marks, std::vector<int>& indices,
                         std::vector<double>& coefficients) {
  EntryMerger merger(marks, indices, coefficients);
  merger.MakeRoom(expr.Size());
  AddExplicitTerms(expr, merger);
  return merger.Count();
}

std::size_t CollectQuadTerms(MQExpression const& cell, std::vector<int>& rows, std::vector<int>& cols,
                             std::vector<double>& values) {
  QuadraticEntries entries(rows, cols, values);
  QuadExpr const& expr = cell.expr;
  entries.MakeRoom(expr.Size());
  for (std::size_t k = 0; k < expr.Size(); ++k) {
    if (expr.coeffs[k] != 0.0) entries.Add(expr.vars1[k], expr.vars2[k], expr.coeffs[k]);
  }
  AddLazyProducts(cell, entries);
  return entries.Count();
}

}  // namespace Vorq
