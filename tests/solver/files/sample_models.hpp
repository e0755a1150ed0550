// Models for tests of files: one with an item of every kind, and random ones of chosen kinds.
#pragma once

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "solver/problem/failure.hpp"
#include "solver/problem/problem_data.hpp"

namespace vorqsolver::test {

// What a random model has besides columns, rows and an objective.
struct ModelKinds {
  bool discrete = false;   // column types, SOS, indicators, lazy constraints, user cuts
  bool semi = false;       // semicontinuous and semi-integer columns
  bool quadratic = false;  // objective and constraints
  bool conic = false;      // cones, PSD variables and constraints, affine cones, LMI constraints
  bool names = false;
  bool simpleBounds = false;  // columns free or with one bound at 0, rows with one side
};

class RandomModel {
 public:
  RandomModel(unsigned seed, ModelKinds kinds) : random_(seed), kinds_(kinds) {}

  ProblemData Make() {
    data_.objective.sense = Pick(2) == 0 ? 1 : -1;
    data_.objective.constant = Pick(2) == 0 ? 0.0 : Value();
    if (kinds_.names) data_.name = "random";
    AddColumns(3 + Pick(8));
    for (SparseMatrix* matrix : {&data_.rows.matrix, &data_.lazyConstraints.matrix, &data_.userCuts.matrix}) {
      matrix->AppendEmptyCols(data_.columns.Count());
    }
    AddRows(data_.rows, Pick(7), "row");
    if (kinds_.discrete) AddDiscrete();
    if (kinds_.quadratic) AddQuadratic();
    if (kinds_.conic) AddConic();
    return std::move(data_);
  }

 private:
  int Pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

  // Some values need all digits.
  double Value() {
    double const whole = Pick(19) - 9;
    double const value = Pick(3) == 0 ? std::uniform_real_distribution(-5.0, 5.0)(random_) : whole;
    return value == 0.0 ? 1.0 : value;
  }

  int Column() { return Pick(data_.columns.Count()); }

  std::vector<int> DistinctColumns(int most) {
    std::vector<int> cols(data_.columns.type.size());
    std::iota(cols.begin(), cols.end(), 0);
    std::ranges::shuffle(cols, random_);
    cols.resize(static_cast<std::size_t>(std::min(most, data_.columns.Count())));
    return cols;
  }

  // Ascending columns, as all formats give them back.
  std::vector<LinearTerm> Terms(int most) {
    auto cols = DistinctColumns(Pick(most + 1));
    std::ranges::sort(cols);
    std::vector<LinearTerm> terms;
    terms.reserve(cols.size());
    for (int const col : cols) terms.push_back({col, Value()});
    return terms;
  }

  std::vector<QuadTerm> Products(int most) {
    std::vector<QuadTerm> terms;
    for (int k = Pick(most) + 1; k > 0; --k) {
      terms.push_back({Column(), Column(), Value()});
    }
    return terms;
  }

  char Sense() { return "EGL"[Pick(3)]; }

  void Name(NameList& names, std::size_t place, char const* stem) {
    if (kinds_.names) names.Set(static_cast<int>(place), Text(stem, "_", Pick(100), "_", place));
  }

  std::pair<double, double> Bounds() {
    double const a = Value(), b = Value();
    // Whole numbers for a range: an MPS file states its width, which rounding may spoil in the last digit.
    std::pair<double, double> const choices[] = {{0.0, kInfinity},
                                                 {-kInfinity, kInfinity},
                                                 {-kInfinity, 0.0},
                                                 {0.0, 0.0},
                                                 {a, kInfinity},
                                                 {-kInfinity, a},
                                                 {a, a},
                                                 {std::floor(std::min(a, b)), 0.0 + std::ceil(std::max(a, b))}};
    return choices[Pick(kinds_.simpleBounds ? 4 : 8)];
  }

  void AddColumns(int count) {
    Columns& columns = data_.columns;
    for (int j = 0; j < count; ++j) {
      std::string types = "CCC";
      if (kinds_.discrete) types += kinds_.simpleBounds ? "I" : "BI";
      if (kinds_.semi) types += "SN";
      char const type = types[static_cast<std::size_t>(Pick(static_cast<int>(types.size())))];
      auto [lower, upper] = Bounds();
      if (type == 'B') lower = Pick(3) == 0 ? 1.0 : 0.0, upper = 1.0;
      if (type == 'S' || type == 'N') lower = Pick(2), upper = Pick(3) == 0 ? kInfinity : 5.5;
      Name(columns.names, static_cast<std::size_t>(j), "col");
      columns.type.push_back(type);
      columns.lower.push_back(lower);
      columns.upper.push_back(upper);
      columns.objective.push_back(Pick(2) == 0 ? 0.0 : Value());
    }
  }

  // `rows` is a Rows or a SideRows.
  template <typename AnyRows>
  void AddRows(AnyRows& rows, int count, char const* stem) {
    for (int i = 0; i < count; ++i) {
      std::vector<int> cols;
      std::vector<double> values;
      for (auto const& [col, value] : Terms(5)) cols.push_back(col), values.push_back(value);
      auto [lower, upper] = Bounds();
      if (kinds_.simpleBounds && lower == 0.0) lower = Value(), upper = upper == 0.0 ? lower : upper;
      Name(rows.names, rows.lower.size(), stem);
      rows.matrix.AppendRow(cols, values);
      rows.lower.push_back(lower);
      rows.upper.push_back(upper);
    }
  }

  void AddDiscrete() {
    if (kinds_.simpleBounds) return;
    for (int k = Pick(3); k > 0; --k) {
      Sos sos{1 + Pick(2), DistinctColumns(3), {}};
      for (std::size_t m = 0; m < sos.cols.size(); ++m) sos.weights.push_back(static_cast<double>(m) + 0.5);
      data_.soss.push_back(std::move(sos));
    }
    auto const binary = std::ranges::find(data_.columns.type, 'B') - data_.columns.type.begin();
    for (int k = binary < data_.columns.Count() ? Pick(3) : 0; k > 0; --k) {
      Name(data_.indicatorNames, data_.indicators.size(), "ind");
      data_.indicators.push_back({0, static_cast<int>(binary), Pick(2), Terms(4), Sense(), Value()});
    }
    AddRows(data_.lazyConstraints, Pick(3), "lazy");
    AddRows(data_.userCuts, Pick(3), "cut");
  }

  void AddQuadratic() {
    if (Pick(2) == 0) data_.objective.quadratic = Products(6);
    for (int k = Pick(3); k > 0; --k) {
      Name(data_.quadConstraintNames, data_.quadConstraints.size(), "quad");
      data_.quadConstraints.push_back({Terms(4), Products(4), Sense(), Value()});
    }
  }

  // A matrix with one element at least.
  int Matrix(int dim) {
    SymMatrix matrix{dim, {}};
    for (int col = 0; col < dim; ++col) {
      for (int row = col; row < dim; ++row) {
        if (Pick(3) == 0 || (col == 0 && row == 0)) matrix.elements.push_back({row, col, Value()});
      }
    }
    data_.symMatrices.push_back(std::move(matrix));
    return static_cast<int>(data_.symMatrices.size()) - 1;
  }

  std::vector<PsdTerm> PsdTerms(bool needed) {
    std::vector<PsdTerm> terms;
    for (int k = 0; k < static_cast<int>(data_.psdDims.size()); ++k) {
      bool const last = k + 1 == static_cast<int>(data_.psdDims.size());
      if (Pick(2) == 0 || (needed && last && terms.empty())) {
        terms.push_back({k, Matrix(data_.psdDims[static_cast<std::size_t>(k)])});
      }
    }
    return terms;
  }

  // Cones stand on columns side by side that have no bounds.
  void AddColumnCones() {
    int next = 0;
    while (next + 3 <= data_.columns.Count()) {
      int const type = Pick(6);
      if (type >= 1 && type <= 4) {
        for (int j = next; j < next + 3; ++j) {
          if (data_.columns.type[static_cast<std::size_t>(j)] == 'B') continue;
          data_.columns.lower[static_cast<std::size_t>(j)] = -kInfinity;
          data_.columns.upper[static_cast<std::size_t>(j)] = kInfinity;
        }
        if (type <= 2) data_.cones.push_back({type, {next, next + 1, next + 2}});
        if (type > 2) data_.expCones.push_back({type, {next, next + 1, next + 2}});
      }
      next += 3;
    }
  }

  void AddConic() {
    AddColumnCones();
    for (int k = Pick(3) + 1; k > 0; --k) {
      Name(data_.psdColNames, data_.psdDims.size(), "psd");
      data_.psdDims.push_back(1 + Pick(4));
    }
    data_.objective.psd = PsdTerms(false);
    for (int k = Pick(3); k > 0; --k) {
      auto [lower, upper] = Bounds();
      Name(data_.psdConstraintNames, data_.psdConstraints.size(), "psdrow");
      data_.psdConstraints.push_back({Terms(3), PsdTerms(true), lower, upper});
    }
    for (int k = Pick(3); k > 0; --k) {
      AffineCone cone{1 + Pick(4), {}};
      for (int row = 0; row < 3; ++row) cone.rows.push_back({Terms(3), PsdTerms(false), Value()});
      Name(data_.affineConeNames, data_.affineCones.size(), "affine");
      data_.affineCones.push_back(std::move(cone));
    }
    for (int k = Pick(3); k > 0; --k) {
      LmiConstraint lmi{1 + Pick(4), {}, {}, -1};
      if (Pick(2) == 0) lmi.constant = Matrix(lmi.dim);
      for (auto const& [col, value] : Terms(4)) {
        lmi.cols.push_back(col);
        lmi.symMats.push_back(Matrix(lmi.dim));
      }
      Name(data_.lmiConstraintNames, data_.lmiConstraints.size(), "lmi");
      data_.lmiConstraints.push_back(std::move(lmi));
    }
  }

  std::mt19937 random_;
  ModelKinds kinds_;
  ProblemData data_;
};

// An item of every kind, with names.
inline ProblemData EveryKind() {
  ModelKinds const all{.discrete = true, .semi = true, .quadratic = true, .conic = true, .names = true};
  for (unsigned seed = 1;; ++seed) {
    ProblemData data = RandomModel(seed, all).Make();
    bool const whole = data.rows.Count() > 0 && !data.soss.empty() && !data.indicators.empty() && !data.cones.empty() &&
                       !data.expCones.empty() && !data.affineCones.empty() && !data.quadConstraints.empty() &&
                       !data.objective.quadratic.empty() && !data.objective.psd.empty() &&
                       !data.psdConstraints.empty() && !data.lmiConstraints.empty() &&
                       data.lazyConstraints.Count() > 0 && data.userCuts.Count() > 0;
    if (whole) return data;
  }
}

}  // namespace vorqsolver::test
