// The C functions that add columns, read them, and change their bounds, types and objective coefficients.
#include <algorithm>

#include "solver/api/arguments.hpp"
#include "solver/api/columns.hpp"
#include "solver/api/item_kinds.hpp"
#include "solver/problem/growth.hpp"

using namespace vorqsolver;

namespace {

char ToType(int type) {
  if (type != 'C' && type != 'B' && type != 'I' && type != 'S' && type != 'N')
    Refuse("Unknown type ", type, " of a column");
  return static_cast<char>(type);
}

// Those of a binary column lie in [0, 1].
double ToLower(char type, double value) {
  return type == 'B' ? std::max(value, 0.0) : ToBound(value);
}
double ToUpper(char type, double value) {
  return type == 'B' ? std::min(value, 1.0) : ToBound(value);
}

template <typename T>
T Entry(T const* list, int place, T absent) {
  return list == nullptr ? absent : list[place];
}

void CheckColumns(ProblemData const& data, ColumnBatch const& batch) {
  auto const count = batch.terms.Count();
  auto const check = [count](double const* list, char const* what, void (*test)(std::span<double const>, char const*)) {
    if (list != nullptr) test({list, static_cast<std::size_t>(count)}, what);
  };
  check(batch.objs, "objs", CheckCoefficients);
  check(batch.lowers, "lbs", CheckBounds);
  check(batch.uppers, "ubs", CheckBounds);
  for (int place = 0; batch.types != nullptr && place < count; ++place) ToType(batch.types[place]);
  CheckNames(count, batch.names);
  if (batch.terms.ElementCount() == 0) return;
  Need(batch.coefs, "coefs");
  for (int place = 0; place < count; ++place) {
    CheckIndices(batch.terms.Of(place, batch.rows), data.rows.Count(), "Row");
    CheckCoefficients(batch.terms.Of(place, batch.coefs), "coefs");
  }
}

// What has reached the names and the matrices of an addition that failed.
void TakeBackColumns(ProblemData& data, int first) {
  data.columns.names.Truncate(first);
  for (auto* each : {&data.rows.matrix, &data.lazyConstraints.matrix, &data.userCuts.matrix}) each->TakeBackCols(first);
}

// Bounds of existing columns; `toBound` is ToLower or ToUpper.
int SetBounds(VORQ_Prob* prob, int count, int const* indices, double const* values, FlatList<double> Columns::*bounds,
              double (*toBound)(char, double)) {
  return Edit(prob, [&](Problem& problem) {
    auto& columns = problem.data.columns;
    Selection const items(count, indices, columns.Count(), kColumnKind.title);
    CheckBounds(List(count, values, "values"), "values");
    for (int place = 0; place < count; ++place) {
      auto const col = static_cast<std::size_t>(items[place]);
      (columns.*bounds)[col] = toBound(columns.type[col], values[place]);
    }
  });
}

}  // namespace

namespace vorqsolver {

void AppendColumns(ProblemData& data, ColumnBatch const& batch) {
  CheckColumns(data, batch);
  auto& columns = data.columns;
  auto& matrix = data.rows.matrix;
  auto const first = columns.Count();
  auto const count = batch.terms.Count();
  for (auto* list : {&columns.lower, &columns.upper, &columns.objective})
    ReserveMore(*list, static_cast<std::size_t>(count));
  ReserveMore(columns.type, static_cast<std::size_t>(count));
  try {
    SetNames(columns.names, first, count, batch.names);
    if (batch.terms.ElementCount() == 0) {
      matrix.AppendEmptyCols(count);
    } else {
      for (int place = 0; place < count; ++place) {
        matrix.AppendCol(batch.terms.Of(place, batch.rows), batch.terms.Of(place, batch.coefs));
      }
    }
    data.lazyConstraints.matrix.AppendEmptyCols(count);
    data.userCuts.matrix.AppendEmptyCols(count);
  } catch (...) {
    TakeBackColumns(data, first);
    throw;
  }
  for (int place = 0; place < count; ++place) {
    auto const type = Entry(batch.types, place, 'C');
    columns.type.push_back(type);
    columns.lower.push_back(ToLower(type, Entry(batch.lowers, place, 0.0)));
    columns.upper.push_back(ToUpper(type, Entry(batch.uppers, place, kInfinity)));
    columns.objective.push_back(Entry(batch.objs, place, 0.0));
  }
}

void CheckDistinct(std::span<int const> cols, char const* item) {
  std::vector<int> sorted(cols.begin(), cols.end());
  std::ranges::sort(sorted);
  auto const twice = std::ranges::adjacent_find(sorted);
  if (twice != sorted.end()) Refuse(item, " has column ", *twice, " twice");
}

}  // namespace vorqsolver

// Models are also built column by column, so one column does not pay for the frame of a batch.
int VORQ_AddCol(VORQ_Prob* prob, double obj, int n, int const* rows, double const* coefs, int type, double lb,
                double ub, char const* name) {
  return Edit(prob, [&](Problem& problem) {
    auto& data = problem.data;
    auto& columns = data.columns;
    auto const indices = List(n, rows, "rows");
    auto const values = List(n, coefs, "coefs");
    char const letter = ToType(type);
    CheckCoefficient(obj, "obj");
    CheckBound(lb, "lb");
    CheckBound(ub, "ub");
    CheckIndices(indices, data.rows.Count(), "Row");
    CheckCoefficients(values, "coefs");
    auto const text = ToName(name);
    auto const place = columns.Count();
    for (auto* list : {&columns.lower, &columns.upper, &columns.objective}) ReserveMore(*list, 1);
    ReserveMore(columns.type, 1);
    try {
      columns.names.Set(place, text);
      data.rows.matrix.AppendCol(indices, values);
      data.lazyConstraints.matrix.AppendEmptyCols(1);
      data.userCuts.matrix.AppendEmptyCols(1);
    } catch (...) {
      TakeBackColumns(data, place);
      throw;
    }
    columns.type.push_back(letter);
    columns.lower.push_back(ToLower(letter, lb));
    columns.upper.push_back(ToUpper(letter, ub));
    columns.objective.push_back(obj);
  });
}

int VORQ_AddCols(VORQ_Prob* prob, int count, double const* objs, int const* colBeg, int const* colCnt, int const* rows,
                 double const* coefs, char const* types, double const* lbs, double const* ubs,
                 char const* const* names) {
  return Edit(prob, [&](Problem& problem) {
    AppendColumns(problem.data, {.terms = Batch(count, colBeg, colCnt, rows != nullptr),
                                 .rows = rows,
                                 .coefs = coefs,
                                 .objs = objs,
                                 .types = types,
                                 .lowers = lbs,
                                 .uppers = ubs,
                                 .names = names});
  });
}

int VORQ_GetColType(VORQ_Prob* prob, int count, int const* indices, char* types) {
  return Guard(prob, [&](Problem& problem) {
    Selection const items(count, indices, problem.data.columns.Count(), kColumnKind.title);
    if (count > 0) Need(types, "types");
    for (int place = 0; place < count; ++place) {
      types[place] = problem.data.columns.type[static_cast<std::size_t>(items[place])];
    }
  });
}

int VORQ_SetColType(VORQ_Prob* prob, int count, int const* indices, char const* types) {
  return Edit(prob, [&](Problem& problem) {
    auto& columns = problem.data.columns;
    Selection const items(count, indices, columns.Count(), kColumnKind.title);
    for (auto const type : List(count, types, "types")) ToType(type);
    for (int place = 0; place < count; ++place) {
      auto const col = static_cast<std::size_t>(items[place]);
      columns.type[col] = types[place];
      columns.lower[col] = ToLower(types[place], columns.lower[col]);
      columns.upper[col] = ToUpper(types[place], columns.upper[col]);
    }
  });
}

int VORQ_SetColLower(VORQ_Prob* prob, int count, int const* indices, double const* values) {
  return SetBounds(prob, count, indices, values, &Columns::lower, ToLower);
}

int VORQ_SetColUpper(VORQ_Prob* prob, int count, int const* indices, double const* values) {
  return SetBounds(prob, count, indices, values, &Columns::upper, ToUpper);
}

int VORQ_SetColObj(VORQ_Prob* prob, int count, int const* indices, double const* values) {
  return Edit(prob, [&](Problem& problem) {
    auto& columns = problem.data.columns;
    Selection const items(count, indices, columns.Count(), kColumnKind.title);
    CheckCoefficients(List(count, values, "values"), "values");
    for (int place = 0; place < count; ++place) {
      columns.objective[static_cast<std::size_t>(items[place])] = values[place];
    }
  });
}
