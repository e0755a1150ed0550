// The table of attributes, and the work behind those that are more than a look at a field.
#include "solver/problem/attributes.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

#include "solver/engines/problem_class.hpp"
#include "solver/parameters/name_index.hpp"
#include "solver/problem/failure.hpp"
#include "solver/problem/row_activity.hpp"

namespace vorqsolver {
namespace {

int ToInt(std::size_t count) {
  if (count > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    Refuse("The count ", count, " is more than an attribute can hold");
  }
  return static_cast<int>(count);
}

// ------------------------------------------------------------------ the problem

int CountTypes(Problem const& problem, std::string_view types) {
  return ToInt(static_cast<std::size_t>(std::ranges::count_if(
      problem.data.columns.type, [types](char type) { return types.find(type) != std::string_view::npos; })));
}

bool IsMip(Problem const& problem) {
  return Classify(problem.data).IsDiscrete();
}

std::size_t Square(int dim) {
  return static_cast<std::size_t>(dim) * static_cast<std::size_t>(dim);
}

int PsdLens(Problem const& problem) {
  std::size_t length = 0;
  for (int const dim : problem.data.psdDims) length += Square(dim);
  return ToInt(length);
}

int LmiLens(Problem const& problem) {
  std::size_t length = 0;
  for (LmiConstraint const& constraint : problem.data.lmiConstraints) length += Square(constraint.dim);
  return ToInt(length);
}

// ------------------------------------------------------------------ the results

// How many positions have a flag in either list; the lists may differ in length.
int CountFlags(std::vector<int> const& lower, std::vector<int> const& upper) {
  int count = 0;
  for (std::size_t k = 0; k < std::max(lower.size(), upper.size()); ++k) {
    if ((k < lower.size() && lower[k] != 0) || (k < upper.size() && upper[k] != 0)) ++count;
  }
  return count;
}

// The objective that is worse than any, and the bound that is better than any.
double WorstObjective(Problem const& problem) {
  return problem.data.objective.sense < 0 ? -kInfinity : kInfinity;
}
double BestConceivable(Problem const& problem) {
  return -WorstObjective(problem);
}

double LpObjective(Problem const& problem) {
  if (problem.HasLpSolution()) return problem.result.lpObjective;
  return problem.result.lpStatus == SolveStatus::kUnbounded ? BestConceivable(problem) : WorstObjective(problem);
}

double BestObjective(Problem const& problem) {
  return problem.HasMipSolution() ? problem.result.mipObjective : WorstObjective(problem);
}

double BestBound(Problem const& problem) {
  switch (problem.result.mipStatus) {
    case SolveStatus::kInfeasible: return WorstObjective(problem);
    case SolveStatus::kUnstarted:
    case SolveStatus::kUnbounded:
    case SolveStatus::kInfeasibleOrUnbounded: return BestConceivable(problem);
    default: return problem.result.bestBound;
  }
}

double RelaxedPenalty(Problem const& problem) {
  if (!problem.result.relaxed.available) Refuse("There is no feasibility relaxation");
  return problem.result.relaxed.penalty;
}

double BestGap(Problem const& problem) {
  return problem.HasMipSolution() ? problem.result.bestGap : kInfinity;
}

// ------------------------------------------------------------------ infeasibilities

class Infeasibility {
 public:
  explicit Infeasibility(double tolerance) : tolerance_(tolerance) {}

  void Add(double amount) {
    if (!(amount > 0.0)) return;
    max_ = std::max(max_, amount);
    sum_ += amount;
    if (amount > tolerance_) ++count_;
  }

  double Max() const { return max_; }
  double Sum() const { return sum_; }
  int Count() const { return count_; }

 private:
  double tolerance_;
  double max_ = 0.0;
  double sum_ = 0.0;
  int count_ = 0;
};

// Visits each column, then each row, with its value, lower bound, upper bound and position.
template <class VisitColumn, class VisitRow>
void WalkBounds(Problem const& problem, std::vector<double> const& values, VisitColumn visitColumn, VisitRow visitRow) {
  Columns const& columns = problem.data.columns;
  for (std::size_t j = 0; j < values.size(); ++j) visitColumn(values[j], columns.lower[j], columns.upper[j], j);
  Rows const& rows = problem.data.rows;
  for (int row = 0; row < rows.Count(); ++row) {
    auto const i = static_cast<std::size_t>(row);
    visitRow(RowActivity(rows, row, values), rows.lower[i], rows.upper[i], i);
  }
}

// How far the solution, of the MIP if there is one, lies outside of the bounds of columns and linear rows.
Infeasibility PrimalInfeasibility(Problem const& problem) {
  if (!problem.HasMipSolution() && !problem.HasLpSolution()) Refuse("There is no solution");
  Infeasibility infeasibility(problem.parameters.Dbl(DblParam::kFeasTol));
  auto const outside = [](double value, double lower, double upper) { return std::max(lower - value, value - upper); };
  WalkBounds(
      problem, problem.HasMipSolution() ? problem.result.mipValues : problem.result.lp.values,
      [&](double value, double lower, double upper, std::size_t j) {
        char const type = problem.data.columns.type[j];
        double const amount = outside(value, lower, upper);
        bool const mayBeZero = type == 'S' || type == 'N';
        infeasibility.Add(mayBeZero ? std::min(amount, std::abs(value)) : amount);
      },
      [&](double value, double lower, double upper, std::size_t) { infeasibility.Add(outside(value, lower, upper)); });
  return infeasibility;
}

// How far reduced costs and duals of the LP solution have the wrong sign: a value below its upper bound must not gain
// by growing, one above its lower bound must not gain by shrinking.
Infeasibility DualInfeasibility(Problem const& problem) {
  LpSolution const& lp = problem.result.lp;
  if (!problem.HasLpSolution() || std::ssize(lp.duals) != problem.data.rows.Count() ||
      std::ssize(lp.reducedCosts) != problem.data.columns.Count()) {
    Refuse("There is no dual solution");
  }
  double const tolerance = problem.parameters.Dbl(DblParam::kFeasTol);
  double const sense = problem.data.objective.sense < 0 ? -1.0 : 1.0;
  Infeasibility infeasibility(problem.parameters.Dbl(DblParam::kDualTol));
  auto const check = [&](double value, double lower, double upper, double price) {
    if (value < upper - tolerance) infeasibility.Add(-price);
    if (value > lower + tolerance) infeasibility.Add(price);
  };
  WalkBounds(
      problem, lp.values,
      [&](double value, double lower, double upper, std::size_t j) {
        check(value, lower, upper, sense * lp.reducedCosts[j]);
      },
      [&](double value, double lower, double upper, std::size_t i) {
        check(value, lower, upper, sense * lp.duals[i]);
      });
  return infeasibility;
}

// ------------------------------------------------------------------ the tables

using P = Problem const&;

// What no part of the library produces has no value to report.
double NotComputed(P) {
  Refuse("The attribute is not computed by this version");
}

// Kinds of items and results that the library does not know: there are none in any problem.
int Never(P) {
  return 0;
}

constexpr AttrRow<double> kDblRows[] = {
    {"SolvingTime", [](P p) { return p.result.seconds; }},
    {"ObjConst", [](P p) { return p.data.objective.constant; }},
    {"LpObjval", LpObjective},
    {"BestObj", BestObjective},
    {"BestBnd", BestBound},
    {"BestGap", BestGap},
    {"FeasRelaxObj", RelaxedPenalty},

    {"ReadingTime", NotComputed},
    {"IISTime", [](P p) { return p.result.iis.seconds; }},
    {"FeasRelaxTime", [](P p) { return p.result.relaxed.seconds; }},
    {"TuneTime", [](P p) { return p.tuning.seconds; }},
    {"PrimalInfMax", [](P p) { return PrimalInfeasibility(p).Max(); }},
    {"PrimalInfSum", [](P p) { return PrimalInfeasibility(p).Sum(); }},
    {"DualInfMax", [](P p) { return DualInfeasibility(p).Max(); }},
    {"DualInfSum", [](P p) { return DualInfeasibility(p).Sum(); }},
    {"BarPrimalObj", NotComputed},
    {"BarDualObj", NotComputed},
    {"DimacPInf", NotComputed},
    {"DimacDInf", NotComputed},
    {"DimacMinPEV", NotComputed},
    {"DimacMinDEV", NotComputed},
    {"DimacRelGap", NotComputed},
    {"DimacRelXDotS", NotComputed},
};

constexpr AttrRow<int> kIntRows[] = {
    {"Cols", [](P p) { return p.data.columns.Count(); }},
    {"PSDCols", [](P p) { return ToInt(p.data.psdDims.size()); }},
    {"Rows", [](P p) { return p.data.rows.Count(); }},
    {"Elems", [](P p) { return ToInt(p.data.rows.matrix.ElementCount()); }},
    {"QElems", [](P p) { return ToInt(p.data.objective.quadratic.size()); }},
    {"NLElems", Never},
    {"PSDElems", [](P p) { return ToInt(p.data.objective.psd.size()); }},
    {"SymMats", [](P p) { return ToInt(p.data.symMatrices.size()); }},
    {"Bins", [](P p) { return CountTypes(p, "B"); }},
    {"Ints", [](P p) { return CountTypes(p, "IN"); }},
    {"Soss", [](P p) { return ToInt(p.data.soss.size()); }},
    {"Cones", [](P p) { return ToInt(p.data.cones.size()); }},
    {"ExpCones", [](P p) { return ToInt(p.data.expCones.size()); }},
    {"AffineCones", [](P p) { return ToInt(p.data.affineCones.size()); }},
    {"QConstrs", [](P p) { return ToInt(p.data.quadConstraints.size()); }},
    {"NLConstrs", Never},
    {"PSDConstrs", [](P p) { return ToInt(p.data.psdConstraints.size()); }},
    {"LMIConstrs", [](P p) { return ToInt(p.data.lmiConstraints.size()); }},
    {"Indicators", [](P p) { return ToInt(p.data.indicators.size()); }},
    {"IISCols", [](P p) { return CountFlags(p.result.iis.colLower, p.result.iis.colUpper); }},
    {"IISRows", [](P p) { return CountFlags(p.result.iis.rowLower, p.result.iis.rowUpper); }},
    {"IISSOSs", [](P p) { return CountFlags(p.result.iis.soss, {}); }},
    {"IISIndicators", [](P p) { return CountFlags(p.result.iis.indicators, {}); }},
    {"ObjSense", [](P p) { return p.data.objective.sense; }},
    {"LpStatus", [](P p) { return static_cast<int>(p.result.lpStatus); }},
    {"MipStatus", [](P p) { return static_cast<int>(p.result.mipStatus); }},
    {"SimplexIter", [](P p) { return p.result.simplexIterations; }},
    {"BarrierIter", [](P p) { return p.result.barrierIterations; }},
    {"PDLPIter", Never},
    {"NodeCnt", [](P p) { return p.result.nodes; }},
    {"PoolSols", [](P p) { return ToInt(p.result.pool.size()); }},
    {"TuneResults", [](P p) { return ToInt(p.tuning.sets.size()); }},
    {"HasLpSol", [](P p) { return p.HasLpSolution() ? 1 : 0; }},
    {"HasDualFarkas", [](P p) { return p.result.farkasRay.empty() ? 0 : 1; }},
    {"HasPrimalRay", [](P p) { return p.result.primalRay.empty() ? 0 : 1; }},
    {"HasBasis", [](P p) { return p.HasBasis() ? 1 : 0; }},
    {"HasMipSol", [](P p) { return p.HasMipSolution() ? 1 : 0; }},
    {"HasQObj", [](P p) { return p.data.objective.quadratic.empty() ? 0 : 1; }},
    {"HasNLObj", Never},
    {"HasPSDObj", [](P p) { return p.data.objective.psd.empty() ? 0 : 1; }},
    {"HasIIS", [](P p) { return p.result.iis.available ? 1 : 0; }},
    {"HasFeasRelaxSol", [](P p) { return p.result.relaxed.available ? 1 : 0; }},
    {"IsMIP", [](P p) { return IsMip(p) ? 1 : 0; }},
    {"IsMinIIS", [](P p) { return p.result.iis.available && p.result.iis.irreducible ? 1 : 0; }},

    {"PrimalInf", [](P p) { return PrimalInfeasibility(p).Count(); }},
    {"DualInf", [](P p) { return DualInfeasibility(p).Count(); }},
    {"IsRelaxSolved",
     [](P p) {
       bool const lpOnly =
           p.result.lpStatus != SolveStatus::kUnstarted && p.result.mipStatus == SolveStatus::kUnstarted;
       return IsMip(p) && lpOnly ? 1 : 0;
     }},
    {"PSDLens", PsdLens},
    {"LMILens", LmiLens},
    {"LazyCons", [](P p) { return p.data.lazyConstraints.Count(); }},
    {"LazyConsElems", [](P p) { return ToInt(p.data.lazyConstraints.matrix.ElementCount()); }},
    {"HasNLData", Never},
    {"QcpPreFixType", Never},
    {"IsFolded", Never},
};

static_assert(std::size(kDblRows) == 23 && std::size(kIntRows) == 54);

NameIndex const& DblNames() {
  static NameIndex const index(kDblRows);
  return index;
}

NameIndex const& IntNames() {
  static NameIndex const index(kIntRows);
  return index;
}

template <class T>
T Read(Problem const& problem, std::span<AttrRow<T> const> rows, std::optional<std::size_t> position,
       std::string_view name, char const* kind) {
  if (!position) {
    if (FindAttr(name) == VORQ_UNKNOWN_NAME) Refuse("Unknown attribute '", name, "'");
    Refuse("Attribute '", name, "' is not ", kind);
  }
  AttrRow<T> const& row = rows[*position];
  try {
    return row.read(problem);
  } catch (Failure const& failure) {
    Refuse("Attribute ", row.name, " has no value: ", failure.what());
  }
}

}  // namespace

std::span<AttrRow<double> const> DblAttrRows() {
  return kDblRows;
}
std::span<AttrRow<int> const> IntAttrRows() {
  return kIntRows;
}

VORQ_NameKind FindAttr(std::string_view name) {
  if (DblNames().Find(name)) return VORQ_DBL_ATTR;
  if (IntNames().Find(name)) return VORQ_INT_ATTR;
  return VORQ_UNKNOWN_NAME;
}

double GetDblAttr(Problem const& problem, std::string_view name) {
  return Read(problem, DblAttrRows(), DblNames().Find(name), name, "a double attribute");
}

int GetIntAttr(Problem const& problem, std::string_view name) {
  return Read(problem, IntAttrRows(), IntNames().Find(name), name, "an integer attribute");
}

}  // namespace vorqsolver
