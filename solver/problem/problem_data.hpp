// ProblemData: all that a problem states, as plain data. Readers fill one, writers and engines read one, and the C
// functions edit the one of their problem.
#pragma once

#include <string>
#include <vector>

#include "frame/flat_list.hpp"
#include "solver/problem/name_list.hpp"
#include "solver/problem/sparse_matrix.hpp"

namespace vorqsolver {

using Vorq::FlatList;

inline constexpr double kInfinity = 1e30;

struct Columns {
  FlatList<double> lower;
  FlatList<double> upper;
  FlatList<double> objective;
  FlatList<char> type;  // 'C' continuous, 'B' binary, 'I' integer, 'S' semicontinuous, 'N' semi-integer
  NameList names;

  int Count() const { return static_cast<int>(type.size()); }
};

// Linear rows: lower <= row <= upper.
struct Rows {
  SparseMatrix matrix;
  FlatList<double> lower;
  FlatList<double> upper;
  NameList names;

  int Count() const { return static_cast<int>(lower.size()); }
};

struct Sos {
  int type = 1;
  std::vector<int> cols;
  std::vector<double> weights;  // empty, or one for each column
};

// Type 1 is the quadratic cone x0 >= |x1..|, type 2 the rotated cone 2 x0 x1 >= |x2..|^2, x0, x1 >= 0.
struct Cone {
  int type = 1;
  std::vector<int> cols;
};

// Type 3 is the primal exponential cone, type 4 its dual.
struct ExpCone {
  int type = 3;
  int cols[3] = {};
};

struct QuadTerm {
  int row = 0;
  int col = 0;
  double value = 0.0;
};

struct LinearTerm {
  int col = 0;
  double value = 0.0;
};

struct PsdTerm {
  int psdCol = 0;
  int symMat = 0;
};

// lower <= terms <= upper, apart from any table.
struct LinearRow {
  std::vector<LinearTerm> terms;
  double lower = -kInfinity;
  double upper = kInfinity;
};

struct Indicator {
  int type = 0;
  int binCol = 0;
  int binVal = 1;
  std::vector<LinearTerm> terms;
  char sense = 'L';
  double rhs = 0.0;
};

struct QuadConstraint {
  std::vector<LinearTerm> linear;
  std::vector<QuadTerm> quadratic;
  char sense = 'L';
  double rhs = 0.0;
};

// Elements of the lower triangle.
struct SymMatrix {
  int dim = 0;
  std::vector<QuadTerm> elements;
};

struct PsdConstraint {
  std::vector<LinearTerm> linear;
  std::vector<PsdTerm> psd;
  double lower = -kInfinity;
  double upper = kInfinity;
};

// sum of variable times matrix, plus the constant matrix, is positive semidefinite.
struct LmiConstraint {
  int dim = 0;
  std::vector<int> cols;
  std::vector<int> symMats;
  int constant = -1;
};

struct AffineRow {
  std::vector<LinearTerm> linear;
  std::vector<PsdTerm> psd;
  double constant = 0.0;
};

struct AffineCone {
  int type = 1;
  std::vector<AffineRow> rows;
};

// Rows that hold besides those of the problem: lazy constraints and user cuts.
struct SideRows {
  SparseMatrix matrix;
  FlatList<double> lower;
  FlatList<double> upper;
  NameList names;

  int Count() const { return static_cast<int>(lower.size()); }
};

struct Objective {
  int sense = 1;  // 1 minimise, -1 maximise
  double constant = 0.0;
  std::vector<QuadTerm> quadratic;
  std::vector<PsdTerm> psd;
};

struct ProblemData {
  std::string name;
  Objective objective;
  Columns columns;
  Rows rows;

  std::vector<Sos> soss;
  std::vector<Indicator> indicators;
  NameList indicatorNames;
  std::vector<Cone> cones;
  std::vector<ExpCone> expCones;
  std::vector<AffineCone> affineCones;
  NameList affineConeNames;
  std::vector<QuadConstraint> quadConstraints;
  NameList quadConstraintNames;
  std::vector<int> psdDims;
  NameList psdColNames;
  std::vector<PsdConstraint> psdConstraints;
  NameList psdConstraintNames;
  std::vector<LmiConstraint> lmiConstraints;
  NameList lmiConstraintNames;
  std::vector<SymMatrix> symMatrices;

  SideRows lazyConstraints;
  SideRows userCuts;
};

}  // namespace vorqsolver
