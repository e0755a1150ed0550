// The C functions that add and read cones and exponential cones.
#include "solver/api/cones.hpp"

#include "solver/api/append_items.hpp"
#include "solver/api/columns.hpp"
#include "solver/api/item_kinds.hpp"
#include "solver/api/reading.hpp"

namespace vorqsolver {

Cone MakeCone(int type, std::span<int const> cols, int colCount) {
  if (type != 1 && type != 2) Refuse("Unknown type ", type, " of a cone");
  if (cols.size() < static_cast<std::size_t>(type)) {
    Refuse("A cone of type ", type, " needs ", type, " columns at least, but has ", cols.size());
  }
  CheckIndices(cols, colCount, kColumnKind.title);
  CheckDistinct(cols, "A cone");
  return {type, {cols.begin(), cols.end()}};
}

ExpCone MakeExpCone(int type, std::span<int const, 3> cols, int colCount) {
  if (type != 3 && type != 4) Refuse("Unknown type ", type, " of an exponential cone");
  CheckIndices(cols, colCount, kColumnKind.title);
  CheckDistinct(cols, "An exponential cone");
  return {type, {cols[0], cols[1], cols[2]}};
}

}  // namespace vorqsolver

using namespace vorqsolver;

int VORQ_AddCones(VORQ_Prob* prob, int count, int const* types, int const* begins, int const* counts, int const* cols) {
  return Edit(prob, [&](Problem& problem) {
    Batch const batch(count, begins, counts, cols != nullptr);
    std::vector<Cone> added;
    for (int place = 0; place < count; ++place) {
      auto const type = types == nullptr ? 1 : types[place];
      added.push_back(MakeCone(type, batch.Of(place, cols), problem.data.columns.Count()));
    }
    AppendItems(problem.data.cones, std::move(added));
  });
}

int VORQ_GetCones(VORQ_Prob* prob, int count, int const* indices, int* types, int* begins, int* counts, int* cols,
                  int capacity, int* required) {
  return Guard(prob, [&](Problem& problem) {
    Selection const items(count, indices, kConeKind.Count(problem), kConeKind.title);
    auto const cone = [&](int index) -> Cone const& { return problem.data.cones[static_cast<std::size_t>(index)]; };
    ReadRuns(
        items, begins, counts, {cols}, capacity, required, [&](int index) { return cone(index).cols.size(); },
        [&](int index, std::size_t begin) { StoreAt(cone(index).cols, cols, begin); });
    StoreEach(items, types, [&](int index) { return cone(index).type; });
  });
}

int VORQ_AddExpCones(VORQ_Prob* prob, int count, int const* types, int const* cols) {
  return Edit(prob, [&](Problem& problem) {
    CheckCount(count, "count");
    if (count > 0) Need(cols, "cols");
    std::vector<ExpCone> added;
    for (int place = 0; place < count; ++place) {
      std::span<int const, 3> const members(cols + 3 * static_cast<std::size_t>(place), 3);
      added.push_back(MakeExpCone(types == nullptr ? 3 : types[place], members, problem.data.columns.Count()));
    }
    AppendItems(problem.data.expCones, std::move(added));
  });
}

int VORQ_GetExpCones(VORQ_Prob* prob, int count, int const* indices, int* types, int* cols, int capacity,
                     int* required) {
  return Guard(prob, [&](Problem& problem) {
    Selection const items(count, indices, kExpConeKind.Count(problem), kExpConeKind.title);
    auto const cone = [&](int index) -> ExpCone const& {
      return problem.data.expCones[static_cast<std::size_t>(index)];
    };
    ReadRuns(
        items, nullptr, nullptr, {cols}, capacity, required, [](int) { return std::size_t{3}; },
        [&](int index, std::size_t begin) { StoreAt(cone(index).cols, cols, begin); });
    StoreEach(items, types, [&](int index) { return cone(index).type; });
  });
}
