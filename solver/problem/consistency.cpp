// One check for each kind of item.
#include "solver/problem/consistency.hpp"

#include <algorithm>
#include <cmath>
#include <span>
#include <string_view>

#include "solver/problem/failure.hpp"
#include "solver/problem/largest_dimension.hpp"

namespace vorqsolver {
namespace {

bool IsCoefficient(double value) {
  return std::abs(value) < kInfinity;  // false for NaN
}

bool IsName(std::string_view name) {
  return std::ranges::none_of(name, [](char character) {
    auto const code = static_cast<unsigned char>(character);
    return code < 0x20 || code == 0x7f;
  });
}

// The checks of one item, which failures name.
class Item {
 public:
  Item(ProblemData const& data, char const* kind, std::size_t place) : data_(data), kind_(kind), place_(place) {}

  template <typename... Pieces>
  [[noreturn]] void Fail(Pieces const&... pieces) const {
    Refuse(kind_, " ", place_, ": ", pieces...);
  }

  void Index(int index, std::size_t count, char const* kind) const {
    if (index < 0 || static_cast<std::size_t>(index) >= count) {
      Fail(kind, " ", index, " does not exist (there are ", count, ")");
    }
  }
  void Column(int col) const { Index(col, static_cast<std::size_t>(data_.columns.Count()), "column"); }

  void DistinctColumns(std::span<int const> cols) const {
    for (int const col : cols) Column(col);
    std::vector<int> sorted(cols.begin(), cols.end());
    std::ranges::sort(sorted);
    if (auto const twice = std::ranges::adjacent_find(sorted); twice != sorted.end()) Fail("column ", *twice, " twice");
  }

  void Coefficient(double value) const {
    if (!IsCoefficient(value)) Fail("the value ", value, " is not finite");
  }
  void Bounds(double lower, double upper) const {
    if (std::isnan(lower) || std::isnan(upper)) Fail("a bound is not a number");
    if (std::abs(lower) > kInfinity || std::abs(upper) > kInfinity) Fail("a bound is beyond ", kInfinity);
  }
  void Sense(char sense) const {
    if (std::string_view("EGL").find(sense) == std::string_view::npos) Fail("unknown sense ", static_cast<int>(sense));
  }
  void Type(int type, int low, int high) const {
    if (type < low || type > high) Fail("unknown type ", type);
  }

  void Terms(std::vector<LinearTerm> const& terms) const {
    for (LinearTerm const& term : terms) Column(term.col), Coefficient(term.value);
  }
  void Terms(std::vector<QuadTerm> const& terms) const {
    for (QuadTerm const& term : terms) Column(term.row), Column(term.col), Coefficient(term.value);
  }
  void Terms(std::vector<PsdTerm> const& terms) const {
    for (PsdTerm const& term : terms) {
      Index(term.psdCol, data_.psdDims.size(), "PSD column");
      Matrix(term.symMat, data_.psdDims[static_cast<std::size_t>(term.psdCol)]);
    }
  }
  void Matrix(int matrix, int dim) const {
    Index(matrix, data_.symMatrices.size(), "symmetric matrix");
    int const found = data_.symMatrices[static_cast<std::size_t>(matrix)].dim;
    if (found != dim) Fail("symmetric matrix ", matrix, " has the dimension ", found, ", not ", dim);
  }

 private:
  ProblemData const& data_;
  char const* kind_;
  std::size_t place_;
};

class Checker {
 public:
  explicit Checker(ProblemData const& data) : data_(data) {}

  void Run() const {
    CheckObjective();
    CheckColumns();
    CheckRows(data_.rows, "row");
    CheckRows(data_.lazyConstraints, "lazy constraint");
    CheckRows(data_.userCuts, "user cut");
    ForEach(data_.soss, "SOS", CheckSos);
    ForEach(data_.indicators, "indicator", [this](auto const& indicator, Item const& item) {
      item.Type(indicator.type, 0, 1);
      item.Column(indicator.binCol);
      if (data_.columns.type[static_cast<std::size_t>(indicator.binCol)] != 'B') item.Fail("its column is not binary");
      item.Type(indicator.binVal, 0, 1);
      CheckComparison(indicator.terms, indicator.sense, indicator.rhs, item);
    });
    ForEach(data_.cones, "cone", [](Cone const& cone, Item const& item) {
      item.Type(cone.type, 1, 2);
      if (cone.cols.size() < static_cast<std::size_t>(cone.type)) item.Fail("too few columns");
      item.DistinctColumns(cone.cols);
    });
    ForEach(data_.expCones, "exponential cone", [](ExpCone const& cone, Item const& item) {
      item.Type(cone.type, 3, 4);
      item.DistinctColumns(cone.cols);
    });
    ForEach(data_.affineCones, "affine cone", CheckAffineCone);
    ForEach(data_.quadConstraints, "quadratic constraint", [](auto const& constraint, Item const& item) {
      CheckComparison(constraint.linear, constraint.sense, constraint.rhs, item);
      item.Terms(constraint.quadratic);
    });
    CheckSemidefinite();
    CheckAllNames();
  }

 private:
  template <typename Record, typename Check>
  void ForEach(std::vector<Record> const& records, char const* kind, Check check) const {
    for (std::size_t k = 0; k < records.size(); ++k) check(records[k], Item(data_, kind, k));
  }

  void CheckObjective() const {
    Objective const& objective = data_.objective;
    if (objective.sense != 1 && objective.sense != -1) Refuse("objective: unknown sense ", objective.sense);
    Item const item(data_, "objective", 0);
    item.Coefficient(objective.constant);
    item.Terms(objective.quadratic);
    item.Terms(objective.psd);
  }

  void CheckColumns() const {
    Columns const& columns = data_.columns;
    auto const count = columns.type.size();
    if (columns.lower.size() != count || columns.upper.size() != count || columns.objective.size() != count) {
      Refuse("the lists of the columns differ in length");
    }
    for (std::size_t j = 0; j < count; ++j) {
      Item const item(data_, "column", j);
      char const type = columns.type[j];
      if (std::string_view("CBISN").find(type) == std::string_view::npos) {
        item.Fail("unknown type ", static_cast<int>(type));
      }
      item.Bounds(columns.lower[j], columns.upper[j]);
      if (type == 'B' && (columns.lower[j] < 0.0 || columns.upper[j] > 1.0)) {
        item.Fail("the bounds of a binary column are not within 0 and 1");
      }
      item.Coefficient(columns.objective[j]);
    }
  }

  // `rows` is a Rows or a SideRows.
  template <typename AnyRows>
  void CheckRows(AnyRows const& rows, char const* kind) const {
    auto const count = static_cast<std::size_t>(rows.matrix.RowCount());
    if (rows.lower.size() != count || rows.upper.size() != count)
      Refuse("the lists of the ", kind, "s differ in length");
    if (rows.matrix.ColCount() != data_.columns.Count()) {
      Refuse("the matrix of the ", kind, "s has ", rows.matrix.ColCount(), " columns, the problem ",
             data_.columns.Count());
    }
    for (std::size_t i = 0; i < count; ++i) {
      Item const item(data_, kind, i);
      item.Bounds(rows.lower[i], rows.upper[i]);
      for (double const value : rows.matrix.Row(static_cast<int>(i)).values) item.Coefficient(value);
    }
  }

  static void CheckComparison(std::vector<LinearTerm> const& terms, char sense, double rhs, Item const& item) {
    item.Terms(terms);
    item.Sense(sense);
    item.Coefficient(rhs);
  }

  static void CheckSos(Sos const& sos, Item const& item) {
    item.Type(sos.type, 1, 2);
    item.DistinctColumns(sos.cols);
    if (!sos.weights.empty() && sos.weights.size() != sos.cols.size()) item.Fail("not one weight for each column");
    for (double const weight : sos.weights) item.Coefficient(weight);
  }

  static void CheckAffineCone(AffineCone const& cone, Item const& item) {
    item.Type(cone.type, 1, 4);
    bool const fits = cone.type <= 2 ? cone.rows.size() >= static_cast<std::size_t>(cone.type) : cone.rows.size() == 3;
    if (!fits) item.Fail("it cannot have ", cone.rows.size(), " rows");
    for (AffineRow const& row : cone.rows) {
      item.Terms(row.linear);
      item.Terms(row.psd);
      item.Coefficient(row.constant);
    }
  }

  void CheckSemidefinite() const {
    ForEach(data_.psdDims, "PSD column", [](int dim, Item const& item) {
      if (dim < 1 || dim > kLargestDimension) item.Fail("it cannot have the dimension ", dim);
    });
    ForEach(data_.symMatrices, "symmetric matrix", [](SymMatrix const& matrix, Item const& item) {
      if (matrix.dim < 1) item.Fail("it cannot have the dimension ", matrix.dim);
      for (QuadTerm const& element : matrix.elements) {
        item.Index(element.row, static_cast<std::size_t>(matrix.dim), "row");
        item.Index(element.col, static_cast<std::size_t>(element.row) + 1, "column of the lower triangle");
        item.Coefficient(element.value);
      }
    });
    ForEach(data_.psdConstraints, "PSD constraint", [](PsdConstraint const& constraint, Item const& item) {
      item.Terms(constraint.linear);
      item.Terms(constraint.psd);
      item.Bounds(constraint.lower, constraint.upper);
    });
    ForEach(data_.lmiConstraints, "LMI constraint", [](LmiConstraint const& constraint, Item const& item) {
      if (constraint.dim < 1) item.Fail("it cannot have the dimension ", constraint.dim);
      if (constraint.cols.size() != constraint.symMats.size()) item.Fail("not one matrix for each column");
      for (int const col : constraint.cols) item.Column(col);
      for (int const matrix : constraint.symMats) item.Matrix(matrix, constraint.dim);
      if (constraint.constant != -1) item.Matrix(constraint.constant, constraint.dim);
    });
  }

  void CheckNames(NameList const& names, std::size_t count, char const* kind) const {
    if (static_cast<std::size_t>(names.End()) > count) Refuse("there are more names than items: ", kind);
    for (int k = 0; k < names.End(); ++k) {
      if (!IsName(names.Get(k))) Item(data_, kind, static_cast<std::size_t>(k)).Fail("its name has a zero byte");
    }
  }

  void CheckAllNames() const {
    if (!IsName(data_.name)) Refuse("the name of the problem has a zero byte");
    CheckNames(data_.columns.names, data_.columns.type.size(), "column");
    CheckNames(data_.rows.names, data_.rows.lower.size(), "row");
    CheckNames(data_.lazyConstraints.names, data_.lazyConstraints.lower.size(), "lazy constraint");
    CheckNames(data_.userCuts.names, data_.userCuts.lower.size(), "user cut");
    CheckNames(data_.indicatorNames, data_.indicators.size(), "indicator");
    CheckNames(data_.affineConeNames, data_.affineCones.size(), "affine cone");
    CheckNames(data_.quadConstraintNames, data_.quadConstraints.size(), "quadratic constraint");
    CheckNames(data_.psdColNames, data_.psdDims.size(), "PSD column");
    CheckNames(data_.psdConstraintNames, data_.psdConstraints.size(), "PSD constraint");
    CheckNames(data_.lmiConstraintNames, data_.lmiConstraints.size(), "LMI constraint");
  }

  ProblemData const& data_;
};

}  // namespace

void CheckConsistent(ProblemData const& data) {
  Checker(data).Run();
}

}  // namespace vorqsolver
