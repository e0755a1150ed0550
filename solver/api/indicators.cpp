// The C functions that add and read indicator constraints.
#include "solver/api/append_items.hpp"
#include "solver/api/item_kinds.hpp"
#include "solver/api/reading.hpp"

using namespace vorqsolver;

namespace {

// Types 0 and 1 both state the implication: where the column has its value, the row holds.
Indicator MakeIndicator(ProblemData const& data, int type, int binCol, int binVal, int sense, double rhs) {
  if (type != 0 && type != 1) Refuse("Unknown type ", type, " of an indicator constraint");
  CheckIndex(binCol, data.columns.Count(), kColumnKind.title);
  auto const columnType = data.columns.type[static_cast<std::size_t>(binCol)];
  if (columnType != 'B') Refuse("Column ", binCol, " of an indicator constraint is not binary");
  if (binVal != 0 && binVal != 1) Refuse("The value ", binVal, " of an indicator constraint's column is not 0 or 1");
  CheckCoefficient(rhs, "rhss");
  return {type, binCol, binVal, {}, ToComparison(sense), rhs};
}

}  // namespace

int VORQ_AddIndicators(VORQ_Prob* prob, int count, int const* types, int const* binCols, int const* binVals,
                       int const* rowBeg, int const* rowCnt, int const* cols, double const* coefs, char const* senses,
                       double const* rhss, char const* const* names) {
  return Edit(prob, [&](Problem& problem) {
    Batch const batch(count, rowBeg, rowCnt, cols != nullptr);
    if (count > 0) {
      Need(binCols, "binCols");
      Need(senses, "senses");
    }
    if (batch.ElementCount() > 0) Need(coefs, "coefs");
    std::vector<Indicator> added;
    for (int place = 0; place < count; ++place) {
      added.push_back(MakeIndicator(problem.data, types == nullptr ? 0 : types[place], binCols[place],
                                    binVals == nullptr ? 1 : binVals[place], senses[place],
                                    rhss == nullptr ? 0.0 : rhss[place]));
      added.back().terms = LinearTerms(batch.Of(place, cols), batch.Of(place, coefs), problem.data.columns.Count());
    }
    AppendItems(problem.data.indicators, problem.data.indicatorNames, std::move(added), names);
  });
}

int VORQ_GetIndicators(VORQ_Prob* prob, int count, int const* indices, int* types, int* binCols, int* binVals,
                       int* rowBeg, int* rowCnt, int* cols, double* coefs, char* senses, double* rhss, int capacity,
                       int* required) {
  return Guard(prob, [&](Problem& problem) {
    Selection const items(count, indices, kIndicatorKind.Count(problem), kIndicatorKind.title);
    auto const indicator = [&](int index) -> Indicator const& {
      return problem.data.indicators[static_cast<std::size_t>(index)];
    };
    ReadRuns(
        items, rowBeg, rowCnt, {cols, coefs}, capacity, required,
        [&](int index) { return indicator(index).terms.size(); },
        [&](int index, std::size_t begin) {
          StoreMembers(indicator(index).terms, &LinearTerm::col, cols, begin);
          StoreMembers(indicator(index).terms, &LinearTerm::value, coefs, begin);
        });
    StoreEach(items, types, [&](int index) { return indicator(index).type; });
    StoreEach(items, binCols, [&](int index) { return indicator(index).binCol; });
    StoreEach(items, binVals, [&](int index) { return indicator(index).binVal; });
    StoreEach(items, senses, [&](int index) { return indicator(index).sense; });
    StoreEach(items, rhss, [&](int index) { return indicator(index).rhs; });
  });
}
