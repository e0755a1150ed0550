// The C functions that add and read SOS constraints.
#include "solver/api/append_items.hpp"
#include "solver/api/columns.hpp"
#include "solver/api/item_kinds.hpp"
#include "solver/api/reading.hpp"

using namespace vorqsolver;

// Without weights the order of the columns counts; they read back as 1, 2 and so on.
int VORQ_AddSOSs(VORQ_Prob* prob, int count, int const* types, int const* begins, int const* counts, int const* cols,
                 double const* weights) {
  return Edit(prob, [&](Problem& problem) {
    Batch const batch(count, begins, counts, cols != nullptr);
    if (count > 0) Need(types, "types");
    std::vector<Sos> added;
    for (int place = 0; place < count; ++place) {
      if (types[place] != 1 && types[place] != 2) Refuse("Unknown type ", types[place], " of an SOS constraint");
      auto const members = batch.Of(place, cols);
      CheckIndices(members, problem.data.columns.Count(), kColumnKind.title);
      CheckDistinct(members, "An SOS constraint");
      auto& sos = added.emplace_back(Sos{types[place], {members.begin(), members.end()}, {}});
      if (weights == nullptr) continue;
      auto const given = batch.Of(place, weights);
      CheckCoefficients(given, "weights");
      sos.weights.assign(given.begin(), given.end());
    }
    AppendItems(problem.data.soss, std::move(added));
  });
}

int VORQ_GetSOSs(VORQ_Prob* prob, int count, int const* indices, int* types, int* begins, int* counts, int* cols,
                 double* weights, int capacity, int* required) {
  return Guard(prob, [&](Problem& problem) {
    Selection const items(count, indices, kSosKind.Count(problem), kSosKind.title);
    auto const sos = [&](int index) -> Sos const& { return problem.data.soss[static_cast<std::size_t>(index)]; };
    ReadRuns(
        items, begins, counts, {cols, weights}, capacity, required, [&](int index) { return sos(index).cols.size(); },
        [&](int index, std::size_t begin) {
          StoreAt(sos(index).cols, cols, begin);
          StoreAt(sos(index).weights, weights, begin);
          if (weights == nullptr || !sos(index).weights.empty()) return;
          for (std::size_t k = 0; k < sos(index).cols.size(); ++k) weights[begin + k] = static_cast<double>(k + 1);
        });
    StoreEach(items, types, [&](int index) { return sos(index).type; });
  });
}
