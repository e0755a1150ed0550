// Writing NL files after D. M. Gay, "Writing .nl Files" (Sandia National Laboratories, SAND2005-7907P) and "Hooking
// Your Solver to AMPL" (Bell Laboratories, 1997): variables and constraints are put into the order that the header
// counts.
#include "solver/files/nl_writer.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

// The groups of variables in their order. Nonlinear ones come first: those of constraints and objective, of constraints
// only, of the objective only; in each of these continuous ones before integer ones.
enum Group : std::size_t {
  kBoth,
  kBothInteger,
  kConstraints,
  kConstraintsInteger,
  kObjective,
  kObjectiveInteger,
  kLinear,
  kLinearBinary,
  kLinearInteger,
  kGroupCount
};

struct Constraint {
  std::vector<QuadTerm> quadratic;
  std::vector<LinearTerm> linear;
  double lower;
  double upper;
};

std::vector<QuadTerm> NonzeroProducts(std::vector<QuadTerm> const& terms) {
  auto merged = MergedTerms(terms);
  std::erase_if(merged, [](QuadTerm const& term) { return term.value == 0.0; });
  return merged;
}

class NlWriter {
 public:
  explicit NlWriter(ProblemData const& data) : data_(data) {}

  WrittenFile Write() {
    RefuseOtherKinds();
    CollectConstraints();
    OrderVariables();
    Renumber();
    WriteHeader();
    for (std::size_t i = 0; i < constraints_.size(); ++i) {
      Line("C", i);
      WriteSum(constraints_[i].quadratic, 0.0);
    }
    Line("O0 ", data_.objective.sense < 0 ? 1 : 0);
    WriteSum(objectiveProducts_, data_.objective.constant);
    WriteBounds();
    WriteColumnCounts();
    for (std::size_t i = 0; i < constraints_.size(); ++i) WriteLinear(Text("J", i), constraints_[i].linear);
    WriteLinear("G0", objective_);
    TellOfChanges();
    return std::move(written_);
  }

 private:
  void RefuseOtherKinds() const {
    RefuseConicKinds(data_, "NL");
    std::pair<bool, char const*> const kinds[] = {
        {!data_.soss.empty(), "SOS"},
        {!data_.indicators.empty(), "indicators"},
        {data_.lazyConstraints.Count() > 0, "lazy constraints"},
        {data_.userCuts.Count() > 0, "user cuts"},
        {std::ranges::count(data_.columns.type, 'S') > 0, "semicontinuous columns"},
        {std::ranges::count(data_.columns.type, 'N') > 0, "semi-integer columns"},
    };
    for (auto const& [present, kind] : kinds) {
      if (present) Refuse("An NL file cannot hold ", kind);
    }
  }

  // -------------------------------------------------------------------- the order
  // Nonlinear constraints come first.
  void CollectConstraints() {
    for (QuadConstraint const& constraint : data_.quadConstraints) {
      auto products = NonzeroProducts(constraint.quadratic);
      if (!products.empty()) AddQuadratic(constraint, std::move(products));
    }
    nonlinearCount_ = constraints_.size();
    for (int i = 0; i < data_.rows.Count(); ++i) {
      auto const k = static_cast<std::size_t>(i);
      auto const view = data_.rows.matrix.Row(i);
      Constraint row{{}, {}, data_.rows.lower[k], data_.rows.upper[k]};
      for (std::size_t t = 0; t < view.indices.size(); ++t) row.linear.push_back({view.indices[t], view.values[t]});
      constraints_.push_back(std::move(row));
    }
    for (QuadConstraint const& constraint : data_.quadConstraints) {
      if (NonzeroProducts(constraint.quadratic).empty()) AddQuadratic(constraint, {});
    }
    objectiveProducts_ = NonzeroProducts(data_.objective.quadratic);
    for (int j = 0; j < data_.columns.Count(); ++j) {
      double const value = data_.columns.objective[static_cast<std::size_t>(j)];
      if (value != 0.0) objective_.push_back({j, value});
    }
  }

  void AddQuadratic(QuadConstraint const& constraint, std::vector<QuadTerm> products) {
    double const lower = constraint.sense == 'L' ? -kInfinity : constraint.rhs;
    double const upper = constraint.sense == 'G' ? kInfinity : constraint.rhs;
    constraints_.push_back({std::move(products), MergedTerms(constraint.linear), lower, upper});
  }

  void OrderVariables() {
    auto const count = static_cast<std::size_t>(data_.columns.Count());
    std::vector<char> inConstraints(count), inObjective(count);
    auto const mark = [](std::vector<char>& marks, std::vector<QuadTerm> const& products) {
      for (QuadTerm const& term : products) {
        marks[static_cast<std::size_t>(term.row)] = marks[static_cast<std::size_t>(term.col)] = 1;
      }
    };
    for (Constraint const& constraint : constraints_) mark(inConstraints, constraint.quadratic);
    mark(inObjective, objectiveProducts_);

    std::vector<Group> groups(count);
    for (std::size_t j = 0; j < count; ++j) {
      groups[j] = GroupOf(data_.columns.type[j], inConstraints[j] != 0, inObjective[j] != 0);
      ++sizes_[groups[j]];
    }
    order_.resize(count);
    std::iota(order_.begin(), order_.end(), 0);
    std::ranges::stable_sort(order_, {}, [&](int col) { return groups[static_cast<std::size_t>(col)]; });
    numbers_.resize(count);
    for (std::size_t k = 0; k < count; ++k) numbers_[static_cast<std::size_t>(order_[k])] = static_cast<int>(k);
  }

  static Group GroupOf(char type, bool inConstraints, bool inObjective) {
    bool const integer = type != 'C';
    if (inConstraints && inObjective) return integer ? kBothInteger : kBoth;
    if (inConstraints) return integer ? kConstraintsInteger : kConstraints;
    if (inObjective) return integer ? kObjectiveInteger : kObjective;
    return type == 'B' ? kLinearBinary : integer ? kLinearInteger : kLinear;
  }

  // From columns to variables of the file, whose linear terms come in ascending order. Variables of products stand
  // among the linear terms too, if need be with the coefficient 0.
  void Renumber() {
    for (Constraint& constraint : constraints_) RenumberParts(constraint.linear, constraint.quadratic);
    RenumberParts(objective_, objectiveProducts_);
  }

  void RenumberParts(std::vector<LinearTerm>& linear, std::vector<QuadTerm>& products) const {
    for (QuadTerm const& term : products) linear.push_back({term.row, 0.0}), linear.push_back({term.col, 0.0});
    for (LinearTerm& term : linear) term.col = numbers_[static_cast<std::size_t>(term.col)];
    for (QuadTerm& term : products) {
      term.row = numbers_[static_cast<std::size_t>(term.row)];
      term.col = numbers_[static_cast<std::size_t>(term.col)];
    }
    linear = MergedTerms(linear);
  }

  // --------------------------------------------------------------------- the text
  template <typename... Pieces>
  void Line(Pieces const&... pieces) {
    written_.text += Text(pieces...);
    written_.text += '\n';
  }

  std::size_t Sum(std::initializer_list<Group> groups) const {
    std::size_t sum = 0;
    for (Group const group : groups) sum += sizes_[group];
    return sum;
  }

  void WriteHeader() {
    auto const isEquation = [](Constraint const& row) { return row.lower == row.upper; };
    auto const isRange = [](Constraint const& row) {
      return row.lower > -kInfinity && row.upper < kInfinity && row.lower != row.upper;
    };
    std::size_t const both = Sum({kBoth, kBothInteger});
    std::size_t const inConstraints = both + Sum({kConstraints, kConstraintsInteger});
    std::size_t const onlyInObjective = Sum({kObjective, kObjectiveInteger});
    // The variables of the objective only stand behind those of the constraints, and the count goes up to the last.
    std::size_t const inObjective = onlyInObjective > 0 ? inConstraints + onlyInObjective : both;
    std::size_t nonzeros = 0;
    for (Constraint const& constraint : constraints_) nonzeros += constraint.linear.size();

    Line("g3 1 1 0\t# problem ", data_.name.empty() ? std::string_view("unnamed") : std::string_view(data_.name));
    Line(" ", data_.columns.Count(), " ", constraints_.size(), " 1 ", std::ranges::count_if(constraints_, isRange), " ",
         std::ranges::count_if(constraints_, isEquation), "\t# vars, constraints, objectives, ranges, eqns");
    Line(" ", nonlinearCount_, " ", objectiveProducts_.empty() ? 0 : 1, "\t# nonlinear constraints, objectives");
    Line(" 0 0\t# network constraints: nonlinear, linear");
    Line(" ", inConstraints, " ", inObjective, " ", both, "\t# nonlinear vars in constraints, objectives, both");
    Line(" 0 0 0 1\t# linear network variables; functions; arith, flags");
    Line(" ", sizes_[kLinearBinary], " ", sizes_[kLinearInteger], " ", sizes_[kBothInteger], " ",
         sizes_[kConstraintsInteger], " ", sizes_[kObjectiveInteger],
         "\t# discrete variables: binary, integer, nonlinear (b,c,o)");
    Line(" ", nonzeros, " ", objective_.size(), "\t# nonzeros in Jacobian, gradients");
    Line(" 0 0\t# max name lengths: constraints, variables");
    Line(" 0 0 0 0 0\t# common exprs: b,c,o,c1,o1");
  }

  void WriteSum(std::vector<QuadTerm> const& products, double constant) {
    std::size_t const count = products.size() + (constant != 0.0 ? 1 : 0);
    if (count == 0) Line("n0");
    if (count == 2) Line("o0");
    if (count > 2) Line("o54\n", count);
    for (QuadTerm const& term : products) WriteProduct(term);
    if (constant != 0.0) Line("n", NumberText(constant));
  }

  void WriteProduct(QuadTerm const& term) {
    if (term.value == -1.0) {
      Line("o16");
    } else if (term.value != 1.0) {
      Line("o2\nn", CoefficientText(term.value));
    }
    if (term.row == term.col) {
      Line("o5\nv", term.row, "\nn2");
    } else {
      Line("o2\nv", term.row, "\nv", term.col);
    }
  }

  void WriteBounds() {
    if (!constraints_.empty()) Line("r");
    for (Constraint const& constraint : constraints_) WriteInterval(constraint.lower, constraint.upper);
    if (!order_.empty()) Line("b");
    for (int const col : order_) {
      auto const j = static_cast<std::size_t>(col);
      WriteInterval(data_.columns.lower[j], data_.columns.upper[j]);
    }
  }

  void WriteInterval(double lower, double upper) {
    if (lower == upper) {
      Line("4 ", NumberText(lower));
    } else if (lower <= -kInfinity) {
      upper >= kInfinity ? Line("3") : Line("1 ", NumberText(upper));
    } else {
      upper >= kInfinity ? Line("2 ", NumberText(lower)) : Line("0 ", NumberText(lower), " ", NumberText(upper));
    }
  }

  // How many nonzeros of the constraints lie in the first column, the first two, and so on, without the last.
  void WriteColumnCounts() {
    if (order_.empty()) return;
    std::vector<std::size_t> counts(order_.size());
    for (Constraint const& constraint : constraints_) {
      for (LinearTerm const& term : constraint.linear) ++counts[static_cast<std::size_t>(term.col)];
    }
    Line("k", order_.size() - 1);
    std::size_t sum = 0;
    for (std::size_t k = 0; k + 1 < counts.size(); ++k) Line(sum += counts[k]);
  }

  void WriteLinear(std::string const& title, std::vector<LinearTerm> const& terms) {
    if (terms.empty()) return;
    Line(title, " ", terms.size());
    for (LinearTerm const& term : terms) Line(term.col, " ", CoefficientText(term.value));
  }

  void TellOfChanges() {
    bool const moved = !std::ranges::is_sorted(order_);
    if (moved) written_.warnings.emplace_back("The columns stand in another order in the NL file");
    if (nonlinearCount_ > 0 && data_.rows.Count() > 0) {
      written_.warnings.emplace_back("The quadratic constraints stand before the rows in the NL file");
    }
    NameList const* const lists[] = {&data_.columns.names, &data_.rows.names, &data_.quadConstraintNames};
    bool const named = std::ranges::any_of(lists, [](NameList const* names) { return names->End() > 0; });
    if (named) written_.warnings.emplace_back("An NL file holds no names");
  }

  ProblemData const& data_;
  WrittenFile written_;
  std::vector<Constraint> constraints_;
  std::size_t nonlinearCount_ = 0;
  std::vector<LinearTerm> objective_;
  std::vector<QuadTerm> objectiveProducts_;
  std::array<std::size_t, kGroupCount> sizes_ = {};
  std::vector<int> order_;    // the column of each variable
  std::vector<int> numbers_;  // the variable of each column
};

}  // namespace

WrittenFile WriteNl(ProblemData const& data) {
  return NlWriter(data).Write();
}

}  // namespace vorqsolver
