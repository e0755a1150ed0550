// Column: how a new variable enters existing constraints, an unsorted list of terms. Duplicates stay until Reduce.
#pragma once

#include <vector>

#include "items/constraint.hpp"
#include "items/term_list.hpp"

namespace Vorq {

class Column {
 public:
  std::size_t Size() const { return coeffs.size(); }

  // `constr` must not be an element of this column's own list.
  void AddTerm(Constraint const& constr, double c) { AppendTerm(coeffs, constrs, c, constr); }
  // -1 if `c` is null or `n` is below the number of constraints; otherwise that number.
  int AddTerms(std::vector<Constraint> const& constraints, double const* c, int n);
  // Adds `mult` times `other`, also for mult = 0, which differs from Expr::AddExpr on purpose.
  void AddColumn(Column const& other, double mult);
  void Remove(int i);
  // 1 if a term was removed, otherwise 0.
  int Remove(Constraint const& constr);
  void Reserve(int n);
  void Clear();

  // Merges duplicates. `size` is above all indices.
  void Reduce(int size);

  std::vector<double> coeffs;
  std::vector<Constraint> constrs;
};

}  // namespace Vorq
