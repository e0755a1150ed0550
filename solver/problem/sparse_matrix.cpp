// Appending is a plain copy; all that costs more waits until somebody reads.
#include "solver/problem/sparse_matrix.hpp"

#include <algorithm>
#include <numeric>

#include "solver/problem/growth.hpp"
#include "solver/problem/remaining.hpp"

namespace vorqsolver {

namespace {

constexpr std::size_t kShortRow = 24;  // up to this length, comparing all pairs is cheaper than sorting

}  // namespace

std::size_t SparseMatrix::Length(int row) const {
  auto const place = static_cast<std::size_t>(row);
  return IsLoose() ? static_cast<std::size_t>(lengths_[place]) : begins_[place + 1] - begins_[place];
}

SparseMatrix::View SparseMatrix::Row(int row) const {
  MergePending();
  auto const begin = begins_[static_cast<std::size_t>(row)];
  auto const length = Length(row);
  return {{indices_.data() + begin, length}, {values_.data() + begin, length}};
}

SparseMatrix::View SparseMatrix::Col(int col) const {
  MakeColumnForm();
  auto const begin = colBegins_[static_cast<std::size_t>(col)];
  auto const length = colBegins_[static_cast<std::size_t>(col) + 1] - begin;
  return {{colIndices_.data() + begin, length}, {colValues_.data() + begin, length}};
}

std::span<std::size_t const> SparseMatrix::RowBegins() const {
  Pack();
  return begins_;
}

std::span<int const> SparseMatrix::RowIndices() const {
  Pack();
  return indices_;
}

std::span<double const> SparseMatrix::RowValues() const {
  Pack();
  return values_;
}

std::span<std::size_t const> SparseMatrix::ColBegins() const {
  MakeColumnForm();
  return colBegins_;
}

std::span<int const> SparseMatrix::ColIndices() const {
  MakeColumnForm();
  return colIndices_;
}

std::span<double const> SparseMatrix::ColValues() const {
  MakeColumnForm();
  return colValues_;
}

void SparseMatrix::Reserve(std::size_t rows, std::size_t elements) {
  ReserveMore(begins_, rows);
  ReserveMore(indices_, elements);
  ReserveMore(values_, elements);
}

void SparseMatrix::AppendRow(std::span<int const> cols, std::span<double const> values) {
  if (!HasDuplicates(cols, colCount_)) return AppendDistinct(cols, values);
  Merged const merged = SumDuplicates(cols, values);
  AppendDistinct(merged.indices, merged.values);
}

void SparseMatrix::AppendDistinct(std::span<int const> cols, std::span<double const> values) {
  ReserveMore(begins_, 1);
  if (IsLoose()) {
    ReserveMore(lengths_, 1);
    ReserveMore(capacities_, 1);
  }
  ReserveMore(indices_, cols.size());
  ReserveMore(values_, cols.size());
  indices_.append(cols.begin(), cols.end());
  values_.append(values.begin(), values.end());
  begins_.push_back(indices_.size());
  if (IsLoose()) {
    lengths_.push_back(static_cast<int>(cols.size()));
    capacities_.push_back(static_cast<int>(cols.size()));
  }
  elementCount_ += cols.size();
  ForgetColumnForm();
}

void SparseMatrix::ExtendColumnForm(int count) {
  auto const end = colBegins_.back();
  ReserveMore(colBegins_, static_cast<std::size_t>(count));
  for (int col = 0; col < count; ++col) colBegins_.push_back(end);
}

void SparseMatrix::AppendCol(std::span<int const> rows, std::span<double const> values) {
  if (rows.empty()) return AppendEmptyCols(1);
  Merged merged;
  if (HasDuplicates(rows, RowCount())) {
    merged = SumDuplicates(rows, values);
    rows = merged.indices;
    values = merged.values;
  }
  ReserveMore(pending_, rows.size());
  for (std::size_t k = 0; k < rows.size(); ++k) pending_.push_back({rows[k], colCount_, values[k]});
  elementCount_ += rows.size();
  ++colCount_;
  ForgetColumnForm();
}

void SparseMatrix::TakeBackRows(int count) {
  auto const rows = static_cast<std::size_t>(count);
  for (auto row = count; row < RowCount(); ++row) elementCount_ -= Length(row);
  indices_.resize(begins_[rows]);
  values_.resize(begins_[rows]);
  begins_.resize(rows + 1);
  if (IsLoose()) {
    lengths_.resize(rows);
    capacities_.resize(rows);
  }
}

void SparseMatrix::TakeBackCols(int count) {
  while (!pending_.empty() && pending_.back().col >= count) {
    pending_.pop_back();
    --elementCount_;
  }
  colCount_ = count;
  ForgetColumnForm();
}

double SparseMatrix::Get(int row, int col) const {
  auto const [indices, values] = Row(row);
  auto const found = std::find(indices.begin(), indices.end(), col);
  return found == indices.end() ? 0.0 : values[static_cast<std::size_t>(found - indices.begin())];
}

void SparseMatrix::Set(int row, int col, double value) {
  auto const indices = Row(row).indices;
  auto const found = std::find(indices.begin(), indices.end(), col);
  auto const place = begins_[static_cast<std::size_t>(row)] + static_cast<std::size_t>(found - indices.begin());
  bool const exists = found != indices.end();
  if (exists && value != 0.0) {
    values_[place] = value;
    PatchColumnForm(row, col, value);
  } else if (exists) {
    Erase(row, place);
  } else if (value != 0.0) {
    Insert({row, col, value});
    ++elementCount_;
    ForgetColumnForm();
  }
}

void SparseMatrix::DeleteRows(std::span<int const> deleted) {
  if (deleted.empty()) return;
  Pack();
  ForgetColumnForm();
  std::size_t end = 0;
  std::size_t kept = 0;
  auto next = deleted.begin();
  for (std::size_t row = 0; row + 1 < begins_.size(); ++row) {
    if (next != deleted.end() && static_cast<std::size_t>(*next) == row) {
      ++next;
      continue;
    }
    auto const from = static_cast<std::ptrdiff_t>(begins_[row]);
    auto const to = static_cast<std::ptrdiff_t>(begins_[row + 1]);
    std::copy(indices_.begin() + from, indices_.begin() + to, indices_.begin() + static_cast<std::ptrdiff_t>(end));
    std::copy(values_.begin() + from, values_.begin() + to, values_.begin() + static_cast<std::ptrdiff_t>(end));
    begins_[kept++] = end;
    end += static_cast<std::size_t>(to - from);
  }
  begins_[kept] = end;
  begins_.resize(kept + 1);
  indices_.resize(end);
  values_.resize(end);
  elementCount_ = end;
}

void SparseMatrix::DeleteCols(std::span<int const> deleted) {
  if (deleted.empty()) return;
  Pack();
  MoveCols(NewPositions(colCount_, deleted), colCount_ - static_cast<int>(deleted.size()));
}

void SparseMatrix::MoveCols(std::span<int const> positions, int remaining) {
  ForgetColumnForm();
  std::size_t end = 0;
  std::size_t place = 0;
  for (std::size_t row = 0; row + 1 < begins_.size(); ++row) {
    begins_[row] = end;
    for (; place < begins_[row + 1]; ++place) {
      auto const position = positions[static_cast<std::size_t>(indices_[place])];
      if (position < 0) continue;
      indices_[end] = position;
      values_[end++] = values_[place];
    }
  }
  begins_.back() = end;
  indices_.resize(end);
  values_.resize(end);
  elementCount_ = end;
  colCount_ = remaining;
}

void SparseMatrix::Clear() {
  *this = SparseMatrix();
}

void SparseMatrix::Pack() const {
  if (pending_.empty() && !IsLoose()) return;
  Rebuild();
}

// A few entries go into their rows one by one; many are merged by one pass over the matrix.
void SparseMatrix::MergePending() const {
  if (pending_.empty()) return;
  if (pending_.size() > indices_.size() / 8) return Rebuild();
  for (auto const& entry : pending_) Insert(entry);
  pending_.clear();
}

void SparseMatrix::Rebuild() const {
  auto const rowCount = begins_.size() - 1;
  FlatList<std::size_t> begins(rowCount + 1);
  for (auto const& entry : pending_) ++begins[static_cast<std::size_t>(entry.row) + 1];
  for (std::size_t row = 0; row < rowCount; ++row) begins[row + 1] += begins[row] + Length(static_cast<int>(row));

  FlatList<int> indices(begins.back());
  FlatList<double> values(begins.back());
  std::vector<std::size_t> ends(rowCount);
  for (std::size_t row = 0; row < rowCount; ++row) {
    auto const length = Length(static_cast<int>(row));
    std::copy_n(indices_.begin() + static_cast<std::ptrdiff_t>(begins_[row]), length,
                indices.begin() + static_cast<std::ptrdiff_t>(begins[row]));
    std::copy_n(values_.begin() + static_cast<std::ptrdiff_t>(begins_[row]), length,
                values.begin() + static_cast<std::ptrdiff_t>(begins[row]));
    ends[row] = begins[row] + length;
  }
  for (auto const& entry : pending_) {
    auto const place = ends[static_cast<std::size_t>(entry.row)]++;
    indices[place] = entry.col;
    values[place] = entry.value;
  }
  begins_ = std::move(begins);
  indices_ = std::move(indices);
  values_ = std::move(values);
  lengths_ = {};
  capacities_ = {};
  pending_ = FlatList<Entry>();
}

void SparseMatrix::Loosen() const {
  auto const rowCount = begins_.size() - 1;
  std::vector<int> lengths(rowCount);
  for (std::size_t row = 0; row < rowCount; ++row) lengths[row] = static_cast<int>(begins_[row + 1] - begins_[row]);
  capacities_ = lengths;
  lengths_ = std::move(lengths);
}

void SparseMatrix::Insert(Entry const& entry) const {
  if (!IsLoose()) Loosen();
  auto const row = static_cast<std::size_t>(entry.row);
  if (lengths_[row] == capacities_[row]) {
    auto const length = static_cast<std::size_t>(lengths_[row]);
    auto const capacity = std::max<std::size_t>(4, 2 * length);
    auto const begin = indices_.size();
    ReserveMore(indices_, capacity);
    ReserveMore(values_, capacity);
    indices_.resize(begin + capacity);
    values_.resize(begin + capacity);
    auto const from = static_cast<std::ptrdiff_t>(begins_[row]);
    std::copy_n(indices_.begin() + from, length, indices_.begin() + static_cast<std::ptrdiff_t>(begin));
    std::copy_n(values_.begin() + from, length, values_.begin() + static_cast<std::ptrdiff_t>(begin));
    begins_[row] = begin;
    begins_.back() = indices_.size();
    capacities_[row] = static_cast<int>(capacity);
  }
  auto const place = begins_[row] + static_cast<std::size_t>(lengths_[row]++);
  indices_[place] = entry.col;
  values_[place] = entry.value;
}

void SparseMatrix::Erase(int row, std::size_t place) {
  if (!IsLoose()) Loosen();
  auto const index = static_cast<std::size_t>(row);
  auto const from = static_cast<std::ptrdiff_t>(place) + 1;
  auto const to = static_cast<std::ptrdiff_t>(begins_[index]) + lengths_[index];
  std::copy(indices_.begin() + from, indices_.begin() + to, indices_.begin() + from - 1);
  std::copy(values_.begin() + from, values_.begin() + to, values_.begin() + from - 1);
  --lengths_[index];
  --elementCount_;
  ForgetColumnForm();
}

void SparseMatrix::MakeColumnForm() const {
  if (!colBegins_.empty()) return;
  Pack();
  FlatList<std::size_t> begins(static_cast<std::size_t>(colCount_) + 1);
  for (auto const col : indices_) ++begins[static_cast<std::size_t>(col) + 1];
  std::partial_sum(begins.begin(), begins.end(), begins.begin());
  colIndices_.resize(indices_.size());
  colValues_.resize(values_.size());
  std::vector<std::size_t> ends(begins.begin(), begins.end() - 1);
  for (std::size_t row = 0; row + 1 < begins_.size(); ++row) {
    for (auto k = begins_[row]; k < begins_[row + 1]; ++k) {
      auto const place = ends[static_cast<std::size_t>(indices_[k])]++;
      colIndices_[place] = static_cast<int>(row);
      colValues_[place] = values_[k];
    }
  }
  colBegins_ = std::move(begins);
}

void SparseMatrix::PatchColumnForm(int row, int col, double value) {
  if (colBegins_.empty()) return;
  auto const begin = colIndices_.begin() + static_cast<std::ptrdiff_t>(colBegins_[static_cast<std::size_t>(col)]);
  auto const end = colIndices_.begin() + static_cast<std::ptrdiff_t>(colBegins_[static_cast<std::size_t>(col) + 1]);
  auto const place = std::lower_bound(begin, end, row) - colIndices_.begin();
  colValues_[static_cast<std::size_t>(place)] = value;
}

bool SparseMatrix::HasDuplicates(std::span<int const> indices, int limit) {
  // A step that does not go up has the sign bit: one operation takes many entries.
  int signs = 0;
  for (std::size_t k = 1; k < indices.size(); ++k) signs |= indices[k] - indices[k - 1] - 1;
  if (signs >= 0) return false;

  auto const words = static_cast<std::size_t>(limit) / 64 + 1;
  if (seen_.size() < words) seen_.resize(std::max(words, 2 * seen_.size()));
  bool duplicates = false;
  for (auto const index : indices) {
    auto& word = seen_[static_cast<std::size_t>(index) / 64];
    auto const bit = std::uint64_t{1} << (index % 64);
    duplicates |= (word & bit) != 0;
    word |= bit;
  }
  for (auto const index : indices) seen_[static_cast<std::size_t>(index) / 64] = 0;
  return duplicates;
}

// Each index stays at its first place, with the sum of its values.
SparseMatrix::Merged SparseMatrix::SumDuplicates(std::span<int const> indices, std::span<double const> values) {
  auto const count = indices.size();
  std::vector<std::size_t> firsts(count);  // for each entry the first place of its index
  if (count <= kShortRow) {
    for (std::size_t k = 0; k < count; ++k) {
      firsts[k] = static_cast<std::size_t>(std::find(indices.begin(), indices.end(), indices[k]) - indices.begin());
    }
  } else {
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return indices[a] < indices[b]; });
    for (std::size_t k = 0; k < count; ++k) {
      bool const same = k > 0 && indices[order[k]] == indices[order[k - 1]];
      firsts[order[k]] = same ? firsts[order[k - 1]] : order[k];
    }
  }
  Merged merged;
  std::vector<std::size_t> places(count);
  for (std::size_t k = 0; k < count; ++k) {
    if (firsts[k] == k) {
      places[k] = merged.indices.size();
      merged.indices.push_back(indices[k]);
      merged.values.push_back(values[k]);
    } else {
      merged.values[places[firsts[k]]] += values[k];
    }
  }
  return merged;
}

}  // namespace vorqsolver
