// SparseMatrix: the coefficients of linear rows, kept by rows, with a column form made when first asked for.
//
// Rows lie packed behind each other in flat arrays (begins, indices, values). The entries of appended columns wait in a
// list until somebody reads them. Entries that come into a row later make the matrix loose: a row that outgrows its
// place moves to the end of the arrays with room to grow, and the arrays are packed again when asked for as a whole.
// So any order of edits and reads of single entries costs amortised constant time for each entry.
//
// Reading makes these forms too, so a matrix must not be read from two threads before Pack and ColBegins were called.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "frame/flat_list.hpp"

namespace vorqsolver {

using Vorq::FlatList;

// Appending rows or columns costs about a memory copy. An entry that is stated twice is summed; explicit zeros stay.
class SparseMatrix {
 public:
  struct View {
    std::span<int const> indices;
    std::span<double const> values;
  };

  int RowCount() const { return static_cast<int>(begins_.size()) - 1; }
  int ColCount() const { return colCount_; }
  std::size_t ElementCount() const { return elementCount_; }

  // The entries of one row (column indices) or one column (row indices, ascending).
  View Row(int row) const;
  View Col(int col) const;

  // The whole matrix by rows or by columns: entry k of row i lies at begins[i] + k.
  std::span<std::size_t const> RowBegins() const;
  std::span<int const> RowIndices() const;
  std::span<double const> RowValues() const;
  std::span<std::size_t const> ColBegins() const;
  std::span<int const> ColIndices() const;
  std::span<double const> ColValues() const;

  // Makes room for as many more rows and entries.
  void Reserve(std::size_t rows, std::size_t elements);

  void AppendRow(std::span<int const> cols, std::span<double const> values);
  void AppendEmptyCols(int count) {
    if (!colBegins_.empty()) ExtendColumnForm(count);
    colCount_ += count;
  }
  void AppendCol(std::span<int const> rows, std::span<double const> values);

  // Take back the last rows or columns appended, down to `count`; nothing else may have been done in between. They take
  // no memory.
  void TakeBackRows(int count);
  void TakeBackCols(int count);

  double Get(int row, int col) const;

  // The value 0 removes the entry.
  void Set(int row, int col, double value);

  // Closes the gaps: `deleted` is ascending and without duplicates.
  void DeleteRows(std::span<int const> deleted);
  void DeleteCols(std::span<int const> deleted);

  // Moves each column to its new position, below `remaining`; a negative one deletes it. Needs packed rows, and takes
  // no memory.
  void MoveCols(std::span<int const> positions, int remaining);
  void Clear();

  // Brings the rows into their packed form.
  void Pack() const;

 private:
  struct Entry {
    int row;
    int col;
    double value;
  };

  struct Merged {
    std::vector<int> indices;
    std::vector<double> values;
  };

  std::size_t Length(int row) const;
  void AppendDistinct(std::span<int const> cols, std::span<double const> values);
  bool IsLoose() const { return !lengths_.empty(); }
  void MergePending() const;
  void Rebuild() const;
  void Loosen() const;
  void Insert(Entry const& entry) const;
  void Erase(int row, std::size_t place);
  void MakeColumnForm() const;
  void ExtendColumnForm(int count);
  void ForgetColumnForm() { colBegins_.clear(); }
  void PatchColumnForm(int row, int col, double value);
  bool HasDuplicates(std::span<int const> indices, int limit);
  static Merged SumDuplicates(std::span<int const> indices, std::span<double const> values);

  int colCount_ = 0;
  std::size_t elementCount_ = 0;

  // The last begin is the size of the arrays. While packed, each row ends where the next one begins.
  mutable FlatList<std::size_t> begins_ = {0};
  mutable FlatList<int> indices_;
  mutable FlatList<double> values_;

  // Of each row while loose, empty while packed.
  mutable std::vector<int> lengths_;
  mutable std::vector<int> capacities_;

  mutable FlatList<Entry> pending_;

  // The column form; no begins while there is none.
  mutable FlatList<std::size_t> colBegins_;
  mutable FlatList<int> colIndices_;
  mutable FlatList<double> colValues_;

  std::vector<std::uint64_t> seen_;  // one bit for each index, all clear between calls
};

}  // namespace vorqsolver
