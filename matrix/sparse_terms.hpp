// SparseTerms: the terms of one cell of a product of a sparse matrix and variables. All cells of a product share one
// record of its factors: the entries of the matrix, and the variables as they were when the product was made. A cell
// only tells which row of entries meets which vector of variables, so that it costs neither terms nor allocations.
//
//     SharedPtr<SparseFactors> const factors = ...;          // of A x
//     SparseTerms const terms(factors, i, 0);                // of row i
//     terms.ForEach([](Var const& var, double coefficient) { ... });
//
// The factors never change, so any number of cells and threads may read them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "frame/huge_pages.hpp"
#include "frame/shared_ptr.hpp"
#include "items/expr.hpp"

namespace Vorq {

// The entries of a matrix, vector behind vector: those of vector i stand from begins[i] up to begins[i + 1].
class SparseEntries {
 public:
  // Places and values are left unset.
  explicit SparseEntries(std::vector<int> starts)
      : begins(std::move(starts)), places(MakeLarge<int>(Size())), values(MakeLarge<double>(Size())) {}

  std::size_t Size() const { return static_cast<std::size_t>(begins.back()); }

  std::vector<int> begins;  // one more than vectors
  std::unique_ptr<int[]> places;
  std::unique_ptr<double[]> values;

 private:
  template <class T>
  static std::unique_ptr<T[]> MakeLarge(std::size_t count) {
    std::unique_ptr<T[]> elements(new T[count]);
    AdviseHugePages(elements.get(), count * sizeof(T));
    return elements;
  }
};

// The places of the entries are positions in a vector of variables. The vectors lie behind each other.
struct SparseFactors {
  SparseFactors(SparseEntries matrix, SharedPtr<Var> variables, std::size_t vectorLength)
      : entries(std::move(matrix)), vars(std::move(variables)), length(vectorLength) {}

  std::span<Var const> Vars() const { return {vars.Get(), vars ? vars.Block()->count : 0}; }

  SparseEntries entries;
  SharedPtr<Var> vars;
  std::size_t length;
};

class SparseTerms {
 public:
  SparseTerms() = default;
  // The row of entries `row` times the vector of variables `vector`.
  SparseTerms(SharedPtr<SparseFactors> factors, std::uint32_t row, std::uint32_t vector)
      : factors_(std::move(factors)), row_(row), vector_(vector) {}

  bool IsEmpty() const { return Size() == 0; }
  std::size_t Size() const { return factors_ ? static_cast<std::size_t>(End() - Begin()) : 0; }

  // For those who read the terms of many cells. There must be terms.
  SparseFactors const& Factors() const { return *factors_; }
  double const* Values() const { return factors_->entries.values.get() + Begin(); }
  int const* Places() const { return factors_->entries.places.get() + Begin(); }
  // Where the vector of variables begins among all of them.
  std::size_t VectorBegin() const { return vector_ * factors_->length; }

  // Calls visit(variable, coefficient) for each term.
  template <class Visit>
  void ForEach(Visit&& visit) const {
    constexpr std::size_t kAhead = 8;
    std::size_t const count = Size();
    if (count == 0) return;
    Var const* const vars = factors_->vars.Get() + VectorBegin();
    int const* const places = Places();
    double const* const values = Values();
    for (std::size_t k = 0; k < count; ++k) {
      if (k + kAhead < count) vars[places[k + kAhead]].Prefetch();
      visit(vars[places[k]], values[k]);
    }
  }

  // Adds c times the terms, as Expr::AddExpr does.
  void AddTo(Expr& target, double c) const {
    if (c == 0.0) return;
    MakeRoomForMore(Size(), target.coeffs, target.vars);
    ForEach([&](Var const& var, double coefficient) { target.AddTerm(var, ScaledCoefficient(coefficient, c)); });
  }

 private:
  int Begin() const { return factors_->entries.begins[row_]; }
  int End() const { return factors_->entries.begins[row_ + std::size_t{1}]; }

  SharedPtr<SparseFactors> factors_;
  std::uint32_t row_ = 0;
  std::uint32_t vector_ = 0;
};

}  // namespace Vorq
