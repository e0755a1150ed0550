// Sorting entries into matrices.
#include "solver/files/matrix_entries.hpp"

#include <algorithm>
#include <tuple>
#include <utility>

namespace vorqsolver {

void AppendMatrices(std::vector<SymMatrix>& matrices, std::vector<MatrixEntry> entries, TextSource const& source,
                    std::function<int(MatrixEntry const&)> const& dimension,
                    std::function<void(MatrixEntry const& first, int matrix)> const& use) {
  for (MatrixEntry& entry : entries) {
    if (entry.row < entry.col) std::swap(entry.row, entry.col);
  }
  auto const matrixOf = [](MatrixEntry const& entry) { return std::pair(entry.owner, entry.member); };
  auto const placeOf = [](MatrixEntry const& entry) {
    return std::tuple(entry.owner, entry.member, entry.col, entry.row);
  };
  std::ranges::stable_sort(entries, {}, placeOf);
  for (std::size_t k = 0; k < entries.size(); ++k) {
    MatrixEntry const& entry = entries[k];
    if (k > 0 && placeOf(entries[k - 1]) == placeOf(entry)) {
      RefuseText(source, entry.line, "the entry is stated a second time, first in line ", entries[k - 1].line);
    }
    if (k == 0 || matrixOf(entries[k - 1]) != matrixOf(entry)) {
      matrices.push_back({dimension(entry), {}});
      use(entry, static_cast<int>(matrices.size()) - 1);
    }
    matrices.back().elements.push_back({entry.row, entry.col, entry.value});
  }
}

}  // namespace vorqsolver
