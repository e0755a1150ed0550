// The C functions that read an information of items by its name, in any mix of case: one table a kind.
#include <algorithm>
#include <cctype>
#include <span>
#include <string_view>
#include <vector>

#include "solver/api/arguments.hpp"
#include "solver/api/item_kinds.hpp"
#include "solver/problem/row_activity.hpp"

using namespace vorqsolver;

namespace {

// ------------------------------------------------------------------ where values come from

// `list` as the last solve left it, one entry for each of `count` items or matrix entries.
std::vector<double> const& Found(std::vector<double> const& list, std::size_t count, char const* what) {
  if (list.empty() || list.size() != count) Refuse("There is no ", what);
  return list;
}

std::vector<double> const& ColumnValues(Problem const& problem) {
  auto const& result = problem.result;
  if (result.relaxed.available) return result.relaxed.values;
  return Found(result.isMip ? result.mipValues : result.lp.values, problem.data.columns.type.size(), "solution");
}

// Duals and the like of a linear solve; a mixed-integer solution has none.
std::vector<double> const& OfLinearSolve(Problem const& problem, std::vector<double> LpSolution::*list,
                                         std::size_t count, char const* what) {
  if (problem.result.isMip) Refuse("There is no ", what, " of a mixed-integer solution");
  return Found(problem.result.lp.*list, count, what);
}

double SlackOfRow(Problem const& problem, int row) {
  auto const& relaxed = problem.result.relaxed;
  if (relaxed.available) return relaxed.slacks[static_cast<std::size_t>(row)];
  if (problem.result.isMip) return RowSlack(problem.data.rows, row, ColumnValues(problem));
  return Found(problem.result.lp.slacks, problem.data.rows.lower.size(), "slack")[static_cast<std::size_t>(row)];
}

template <FlatList<double> Columns::*list>
double OfColumn(Problem const& problem, int col) {
  return (problem.data.columns.*list)[static_cast<std::size_t>(col)];
}

template <FlatList<double> Rows::*list>
double OfRow(Problem const& problem, int row) {
  return (problem.data.rows.*list)[static_cast<std::size_t>(row)];
}

template <double PsdConstraint::*bound>
double OfPsdConstraint(Problem const& problem, int index) {
  return problem.data.psdConstraints[static_cast<std::size_t>(index)].*bound;
}

// ------------------------------------------------------------------ one number for each item

struct NumberInfo {
  std::string_view name;
  double (*read)(Problem const& problem, int index);
};

constexpr NumberInfo kColumnInfos[] = {
    {"LB", OfColumn<&Columns::lower>},
    {"UB", OfColumn<&Columns::upper>},
    {"Obj", OfColumn<&Columns::objective>},
    {"Value", [](Problem const& problem, int col) { return ColumnValues(problem)[static_cast<std::size_t>(col)]; }},
    {"RedCost",
     [](Problem const& problem, int col) {
       auto const count = problem.data.columns.type.size();
       return OfLinearSolve(problem, &LpSolution::reducedCosts, count, "reduced cost")[static_cast<std::size_t>(col)];
     }},
    {"PrimalRay",
     [](Problem const& problem, int col) {
       auto const count = problem.data.columns.type.size();
       return Found(problem.result.primalRay, count, "primal ray")[static_cast<std::size_t>(col)];
     }},
};

constexpr NumberInfo kRowInfos[] = {
    {"LB", OfRow<&Rows::lower>},
    {"UB", OfRow<&Rows::upper>},
    {"Slack", SlackOfRow},
    {"Dual",
     [](Problem const& problem, int row) {
       auto const count = problem.data.rows.lower.size();
       return OfLinearSolve(problem, &LpSolution::duals, count, "dual solution")[static_cast<std::size_t>(row)];
     }},
    {"DualFarkas",
     [](Problem const& problem, int row) {
       auto const count = problem.data.rows.lower.size();
       return Found(problem.result.farkasRay, count, "Farkas ray")[static_cast<std::size_t>(row)];
     }},
};

constexpr NumberInfo kQuadConstraintInfos[] = {
    {"Slack",
     [](Problem const& problem, int index) {
       auto const count = problem.data.quadConstraints.size();
       return Found(problem.result.quadratic.slacks, count, "slack")[static_cast<std::size_t>(index)];
     }},
    {"Dual",
     [](Problem const& problem, int index) {
       auto const count = problem.data.quadConstraints.size();
       return Found(problem.result.quadratic.duals, count, "dual solution")[static_cast<std::size_t>(index)];
     }},
};

constexpr NumberInfo kPsdConstraintInfos[] = {
    {"LB", OfPsdConstraint<&PsdConstraint::lower>},
    {"UB", OfPsdConstraint<&PsdConstraint::upper>},
    {"Slack",
     [](Problem const& problem, int index) {
       auto const count = problem.data.psdConstraints.size();
       return Found(problem.result.psd.slacks, count, "slack")[static_cast<std::size_t>(index)];
     }},
    {"Dual",
     [](Problem const& problem, int index) {
       auto const count = problem.data.psdConstraints.size();
       return Found(problem.result.psd.duals, count, "dual solution")[static_cast<std::size_t>(index)];
     }},
};

// ------------------------------------------------------------------ one matrix for each item

struct MatrixInfo {
  std::string_view name;
  std::vector<double> const& (*list)(SolveResult const& result);
  char const* what;
};

template <typename Solution, Solution SolveResult::*solution, std::vector<double> Solution::*list>
std::vector<double> const& Matrices(SolveResult const& result) {
  return result.*solution.*list;
}

constexpr MatrixInfo kPsdColumnInfos[] = {
    {"Value", Matrices<PsdSolution, &SolveResult::psd, &PsdSolution::values>, "solution"},
    {"RedCost", Matrices<PsdSolution, &SolveResult::psd, &PsdSolution::reducedCosts>, "reduced cost"},
};

constexpr MatrixInfo kLmiConstraintInfos[] = {
    {"Slack", Matrices<LmiSolution, &SolveResult::lmi, &LmiSolution::slacks>, "slack"},
    {"Dual", Matrices<LmiSolution, &SolveResult::lmi, &LmiSolution::duals>, "dual solution"},
};

// ------------------------------------------------------------------ the frames

bool IsSame(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right,
                            [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

template <typename Info>
Info const& FindInfo(std::span<Info const> infos, ItemKind const& kind, char const* name) {
  Need(name, "infoName");
  auto const found = std::ranges::find_if(infos, [name](Info const& info) { return IsSame(info.name, name); });
  if (found == infos.end()) Refuse(kind.title, "s have no information '", name, "'");
  return *found;
}

int GetNumbers(VORQ_Prob* prob, ItemKind const& kind, std::span<NumberInfo const> infos, char const* name, int count,
               int const* indices, double* values) {
  return Guard(prob, [&](Problem& problem) {
    auto const& info = FindInfo(infos, kind, name);
    Selection const items(count, indices, kind.Count(problem), kind.title);
    if (count > 0) Need(values, "values");
    for (int place = 0; place < count; ++place) values[place] = info.read(problem, items[place]);
  });
}

// Matrices come in full, row by row, behind each other. `dimOf(problem, index)` is the dimension of an item.
template <typename DimOf>
int GetMatrices(VORQ_Prob* prob, ItemKind const& kind, std::span<MatrixInfo const> infos, char const* name, int count,
                int const* indices, double* values, DimOf dimOf) {
  return Guard(prob, [&](Problem& problem) {
    auto const& info = FindInfo(infos, kind, name);
    Selection const items(count, indices, kind.Count(problem), kind.title);
    if (count == 0) return;
    Need(values, "values");
    std::vector<std::size_t> begins = {0};
    for (int index = 0; index < kind.Count(problem); ++index) {
      auto const dim = static_cast<std::size_t>(dimOf(problem.data, index));
      begins.push_back(begins.back() + dim * dim);
    }
    auto const& list = Found(info.list(problem.result), begins.back(), info.what);
    for (int place = 0; place < count; ++place) {
      auto const index = static_cast<std::size_t>(items[place]);
      auto const size = begins[index + 1] - begins[index];
      values = std::ranges::copy(std::span(list).subspan(begins[index], size), values).out;
    }
  });
}

}  // namespace

int VORQ_GetColInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values) {
  return GetNumbers(prob, kColumnKind, kColumnInfos, infoName, count, indices, values);
}

int VORQ_GetRowInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values) {
  return GetNumbers(prob, kRowKind, kRowInfos, infoName, count, indices, values);
}

int VORQ_GetQConstrInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values) {
  return GetNumbers(prob, kQuadConstraintKind, kQuadConstraintInfos, infoName, count, indices, values);
}

int VORQ_GetPSDConstrInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values) {
  return GetNumbers(prob, kPsdConstraintKind, kPsdConstraintInfos, infoName, count, indices, values);
}

int VORQ_GetPSDColInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values) {
  return GetMatrices(prob, kPsdColumnKind, kPsdColumnInfos, infoName, count, indices, values,
                     [](ProblemData const& data, int index) { return data.psdDims[static_cast<std::size_t>(index)]; });
}

int VORQ_GetLMIConstrInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values) {
  return GetMatrices(
      prob, kLmiConstraintKind, kLmiConstraintInfos, infoName, count, indices, values,
      [](ProblemData const& data, int index) { return data.lmiConstraints[static_cast<std::size_t>(index)].dim; });
}
