// The C functions that add linear rows, lazy constraints and user cuts, read rows and change their bounds.
#include "solver/api/rows.hpp"

#include <algorithm>

#include "solver/api/item_kinds.hpp"
#include "solver/problem/growth.hpp"

namespace vorqsolver {

namespace {

void CheckRows(RowBatch const& batch) {
  auto const count = batch.terms.Count();
  for (int place = 0; place < count; ++place) RangeOf(batch, place);
  CheckNames(count, batch.names);
  if (batch.terms.ElementCount() > 0) Need(batch.coefs, "coefs");
}

template <typename Table>
void Append(Table& rows, RowBatch const& batch) {
  CheckRows(batch);
  auto const first = rows.Count();
  auto const count = batch.terms.Count();
  ReserveMore(rows.lower, static_cast<std::size_t>(count));
  ReserveMore(rows.upper, static_cast<std::size_t>(count));
  rows.matrix.Reserve(static_cast<std::size_t>(count), batch.terms.ElementCount());
  try {
    SetNames(rows.names, first, count, batch.names);
    // Terms are checked row by row, right before they are copied, so that they pass through the cache once.
    for (int place = 0; place < count; ++place) {
      auto const cols = batch.terms.Of(place, batch.cols);
      auto const coefs = batch.terms.Of(place, batch.coefs);
      CheckIndices(cols, rows.matrix.ColCount(), "Column");
      CheckCoefficients(coefs, "coefs");
      rows.matrix.AppendRow(cols, coefs);
    }
  } catch (...) {
    rows.names.Truncate(first);
    rows.matrix.TakeBackRows(first);
    throw;
  }
  for (int place = 0; place < count; ++place) {
    auto const [lower, upper] = RangeOf(batch, place);
    rows.lower.push_back(lower);
    rows.upper.push_back(upper);
  }
}

}  // namespace

Range RangeOf(RowBatch const& batch, int place) {
  double const upper = batch.uppers == nullptr ? kInfinity : batch.uppers[place];
  if (batch.senses == nullptr) return ToRange(0, batch.lowers == nullptr ? -kInfinity : batch.lowers[place], upper);
  double const bound = batch.lowers == nullptr ? 0.0 : batch.lowers[place];
  if (batch.senses[place] == 0) Refuse("Unknown sense 0 of a row");
  return ToRange(batch.senses[place], bound, upper);
}

void AppendRows(Rows& rows, RowBatch const& batch) {
  Append(rows, batch);
}
void AppendRows(SideRows& rows, RowBatch const& batch) {
  Append(rows, batch);
}

}  // namespace vorqsolver

using namespace vorqsolver;

namespace {

// Models are also built row by row, so one row does not pay for the frame of a batch.
template <typename Table>
int AddRow(VORQ_Prob* prob, Table ProblemData::*table, int n, int const* cols, double const* coefs, int sense,
           double bound, double upper, char const* name) {
  return Edit(prob, [&](Problem& problem) {
    Table& rows = problem.data.*table;
    auto const indices = List(n, cols, "cols");
    auto const values = List(n, coefs, "coefs");
    auto const range = ToRange(sense, bound, upper);
    CheckIndices(indices, rows.matrix.ColCount(), "Column");
    CheckCoefficients(values, "coefs");
    auto const text = ToName(name);
    auto const place = rows.Count();
    ReserveMore(rows.lower, 1);
    ReserveMore(rows.upper, 1);
    rows.matrix.AppendRow(indices, values);
    try {
      rows.names.Set(place, text);
    } catch (...) {
      rows.matrix.TakeBackRows(place);
      throw;
    }
    rows.lower.push_back(range.lower);
    rows.upper.push_back(range.upper);
  });
}

template <typename Table>
int AddRows(VORQ_Prob* prob, Table ProblemData::*table, int count, int const* rowBeg, int const* rowCnt,
            int const* cols, double const* coefs, char const* senses, double const* lowers, double const* uppers,
            char const* const* names) {
  return Edit(prob, [&](Problem& problem) {
    AppendRows(problem.data.*table, {.terms = Batch(count, rowBeg, rowCnt, cols != nullptr),
                                     .cols = cols,
                                     .coefs = coefs,
                                     .senses = senses,
                                     .lowers = lowers,
                                     .uppers = uppers,
                                     .names = names});
  });
}

int SetBounds(VORQ_Prob* prob, int count, int const* indices, double const* values, FlatList<double> Rows::*bounds) {
  return Edit(prob, [&](Problem& problem) {
    auto& rows = problem.data.rows;
    Selection const items(count, indices, rows.Count(), kRowKind.title);
    CheckBounds(List(count, values, "values"), "values");
    for (int place = 0; place < count; ++place) {
      (rows.*bounds)[static_cast<std::size_t>(items[place])] = ToBound(values[place]);
    }
  });
}

}  // namespace

#define VORQ_ROW_ADDERS(one, many, table)                                                                         \
  int VORQ_Add##one(VORQ_Prob* prob, int n, int const* cols, double const* coefs, int sense, double bound,        \
                    double upper, char const* name) {                                                             \
    return AddRow(prob, &ProblemData::table, n, cols, coefs, sense, bound, upper, name);                          \
  }                                                                                                               \
  int VORQ_Add##many(VORQ_Prob* prob, int count, int const* rowBeg, int const* rowCnt, int const* cols,           \
                     double const* coefs, char const* senses, double const* lowers, double const* uppers,         \
                     char const* const* names) {                                                                  \
    return AddRows(prob, &ProblemData::table, count, rowBeg, rowCnt, cols, coefs, senses, lowers, uppers, names); \
  }

VORQ_ROW_ADDERS(Row, Rows, rows)
VORQ_ROW_ADDERS(UserCut, UserCuts, userCuts)
VORQ_ROW_ADDERS(LazyConstr, LazyConstrs, lazyConstraints)

#undef VORQ_ROW_ADDERS

int VORQ_SetRowLower(VORQ_Prob* prob, int count, int const* indices, double const* values) {
  return SetBounds(prob, count, indices, values, &Rows::lower);
}

int VORQ_SetRowUpper(VORQ_Prob* prob, int count, int const* indices, double const* values) {
  return SetBounds(prob, count, indices, values, &Rows::upper);
}
