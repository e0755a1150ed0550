// SparseMatrix: both forms, single entries, deletion, and random edits against a naive model.
#include "solver/problem/sparse_matrix.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

namespace vorqsolver {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

SparseMatrix TwoByThree() {
  SparseMatrix matrix;
  matrix.AppendEmptyCols(3);
  matrix.AppendRow(std::vector{2, 0}, std::vector{3.0, 1.0});
  matrix.AppendRow(std::vector{1, 2}, std::vector{5.0, 6.0});
  return matrix;
}

TEST(SparseMatrixTest, RowsKeepTheOrderOfTheirEntries) {
  auto const matrix = TwoByThree();
  EXPECT_EQ(matrix.RowCount(), 2);
  EXPECT_EQ(matrix.ColCount(), 3);
  EXPECT_EQ(matrix.ElementCount(), 4u);
  EXPECT_THAT(matrix.Row(0).indices, ElementsAre(2, 0));
  EXPECT_THAT(matrix.Row(0).values, ElementsAre(3.0, 1.0));
  EXPECT_THAT(matrix.RowBegins(), ElementsAre(0u, 2u, 4u));
}

TEST(SparseMatrixTest, ColumnFormHasAscendingRows) {
  auto const matrix = TwoByThree();
  EXPECT_THAT(matrix.ColBegins(), ElementsAre(0u, 1u, 2u, 4u));
  EXPECT_THAT(matrix.ColIndices(), ElementsAre(0, 1, 0, 1));
  EXPECT_THAT(matrix.ColValues(), ElementsAre(1.0, 5.0, 3.0, 6.0));
  EXPECT_THAT(matrix.Col(2).indices, ElementsAre(0, 1));
}

TEST(SparseMatrixTest, AnEmptyMatrixHasEmptyForms) {
  SparseMatrix const matrix;
  EXPECT_THAT(matrix.RowBegins(), ElementsAre(0u));
  EXPECT_THAT(matrix.ColBegins(), ElementsAre(0u));
  EXPECT_THAT(matrix.RowIndices(), IsEmpty());
}

TEST(SparseMatrixTest, DuplicatesInARowAreSummedAtTheFirstPlace) {
  SparseMatrix matrix;
  matrix.AppendEmptyCols(3);
  matrix.AppendRow(std::vector{2, 0, 2, 1, 0}, std::vector{1.0, 2.0, 3.0, 4.0, 5.0});
  EXPECT_THAT(matrix.Row(0).indices, ElementsAre(2, 0, 1));
  EXPECT_THAT(matrix.Row(0).values, ElementsAre(4.0, 7.0, 4.0));
}

TEST(SparseMatrixTest, DuplicatesInALongRowAreSummedAtTheFirstPlace) {
  SparseMatrix matrix;
  matrix.AppendEmptyCols(40);
  std::vector<int> cols;
  for (int k = 0; k < 80; ++k) cols.push_back((79 - k) % 40);
  matrix.AppendRow(cols, std::vector<double>(80, 0.5));
  ASSERT_EQ(matrix.Row(0).indices.size(), 40u);
  for (std::size_t k = 0; k < 40; ++k) {
    EXPECT_EQ(matrix.Row(0).indices[k], 39 - static_cast<int>(k));
    EXPECT_EQ(matrix.Row(0).values[k], 1.0);
  }
}

TEST(SparseMatrixTest, DuplicatesInAColumnAreSummed) {
  auto matrix = TwoByThree();
  matrix.AppendCol(std::vector{1, 0, 1}, std::vector{1.0, 2.0, 3.0});
  EXPECT_EQ(matrix.Get(1, 3), 4.0);
  EXPECT_EQ(matrix.Get(0, 3), 2.0);
  EXPECT_EQ(matrix.ElementCount(), 6u);
}

TEST(SparseMatrixTest, StatedZerosStay) {
  SparseMatrix matrix;
  matrix.AppendEmptyCols(2);
  matrix.AppendRow(std::vector{0, 1}, std::vector{0.0, 1.0});
  EXPECT_EQ(matrix.ElementCount(), 2u);
}

TEST(SparseMatrixTest, SetZeroRemovesTheEntry) {
  auto matrix = TwoByThree();
  matrix.Set(0, 2, 0.0);
  matrix.Set(0, 1, 0.0);
  EXPECT_EQ(matrix.ElementCount(), 3u);
  EXPECT_THAT(matrix.Row(0).indices, ElementsAre(0));
  EXPECT_THAT(matrix.RowBegins(), ElementsAre(0u, 1u, 3u));
}

TEST(SparseMatrixTest, SetChangesAMadeColumnForm) {
  auto matrix = TwoByThree();
  EXPECT_THAT(matrix.Col(2).values, ElementsAre(3.0, 6.0));
  matrix.Set(1, 2, 8.0);
  EXPECT_THAT(matrix.Col(2).values, ElementsAre(3.0, 8.0));
  matrix.Set(1, 0, 9.0);
  EXPECT_THAT(matrix.Col(0).values, ElementsAre(1.0, 9.0));
}

TEST(SparseMatrixTest, ColumnsAppendedBehindAMadeColumnFormAreEmpty) {
  auto matrix = TwoByThree();
  ASSERT_EQ(matrix.Col(2).indices.size(), 2u);
  matrix.AppendEmptyCols(2);
  EXPECT_THAT(matrix.Col(4).indices, IsEmpty());
}

// The naive model: a map a row.
class Naive {
 public:
  std::vector<std::map<int, double>> rows;
  int cols = 0;

  void DeleteRows(std::vector<int> const& deleted) {
    for (auto row = deleted.rbegin(); row != deleted.rend(); ++row) rows.erase(rows.begin() + *row);
  }

  void DeleteCols(std::vector<int> const& deleted) {
    for (auto& row : rows) {
      std::map<int, double> kept;
      for (auto const& [col, value] : row) {
        int shift = 0;
        bool gone = false;
        for (auto const other : deleted) {
          shift += other < col;
          gone |= other == col;
        }
        if (!gone) kept[col - shift] = value;
      }
      row = kept;
    }
    cols -= static_cast<int>(deleted.size());
  }
};

void ExpectEqual(SparseMatrix const& matrix, Naive const& naive) {
  ASSERT_EQ(matrix.RowCount(), static_cast<int>(naive.rows.size()));
  ASSERT_EQ(matrix.ColCount(), naive.cols);
  std::vector<std::map<int, double>> byCols(static_cast<std::size_t>(naive.cols));
  std::size_t elements = 0;
  for (int row = 0; row < matrix.RowCount(); ++row) {
    auto const& expected = naive.rows[static_cast<std::size_t>(row)];
    auto const view = matrix.Row(row);
    std::map<int, double> found;
    for (std::size_t k = 0; k < view.indices.size(); ++k) found[view.indices[k]] = view.values[k];
    ASSERT_EQ(found, expected) << "row " << row;
    ASSERT_EQ(view.indices.size(), expected.size()) << "row " << row;
    elements += expected.size();
    for (auto const& [col, value] : expected) byCols[static_cast<std::size_t>(col)][row] = value;
  }
  ASSERT_EQ(matrix.ElementCount(), elements);
  for (int col = 0; col < naive.cols; ++col) {
    auto const view = matrix.Col(col);
    auto expected = byCols[static_cast<std::size_t>(col)].begin();
    ASSERT_EQ(view.indices.size(), byCols[static_cast<std::size_t>(col)].size()) << "column " << col;
    for (std::size_t k = 0; k < view.indices.size(); ++k, ++expected) {
      ASSERT_EQ(view.indices[k], expected->first) << "column " << col;
      ASSERT_EQ(view.values[k], expected->second) << "column " << col;
    }
  }
  ASSERT_EQ(matrix.RowValues().size(), elements);
}

class RandomEdits {
 public:
  explicit RandomEdits(unsigned seed) : random_(seed) {}

  SparseMatrix matrix;
  Naive naive;

  void Step() {
    switch (Below(20)) {
      case 0: return DeleteSome(static_cast<int>(naive.rows.size()), true);
      case 1: return DeleteSome(naive.cols, false);
      case 2:
      case 3:
      case 4: return AppendRow();
      case 5:
      case 6:
      case 7: return AppendCol();
      case 8:
        matrix.AppendEmptyCols(1);
        ++naive.cols;
        return;
      case 9: return matrix.Pack();
      default: return SetOrGet();
    }
  }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  void DeleteSome(int count, bool rows) {
    std::vector<int> deleted;
    for (int place = 0; place < count; ++place) {
      if (Below(8) == 0) deleted.push_back(place);
    }
    if (rows) {
      matrix.DeleteRows(deleted);
      naive.DeleteRows(deleted);
    } else {
      matrix.DeleteCols(deleted);
      naive.DeleteCols(deleted);
    }
  }

  void RandomEntries(int limit, std::vector<int>& indices, std::vector<double>& values) {
    auto const count = limit == 0 ? 0 : Below(7);
    for (int k = 0; k < count; ++k) {
      indices.push_back(Below(limit));
      values.push_back(1.0 + Below(9));
    }
  }

  void AppendRow() {
    std::vector<int> cols;
    std::vector<double> values;
    RandomEntries(naive.cols, cols, values);
    matrix.AppendRow(cols, values);
    auto& row = naive.rows.emplace_back();
    for (std::size_t k = 0; k < cols.size(); ++k) row[cols[k]] += values[k];
  }

  void AppendCol() {
    std::vector<int> rows;
    std::vector<double> values;
    RandomEntries(static_cast<int>(naive.rows.size()), rows, values);
    matrix.AppendCol(rows, values);
    for (std::size_t k = 0; k < rows.size(); ++k)
      naive.rows[static_cast<std::size_t>(rows[k])][naive.cols] += values[k];
    ++naive.cols;
  }

  void SetOrGet() {
    if (naive.rows.empty() || naive.cols == 0) return;
    auto const row = Below(static_cast<int>(naive.rows.size()));
    auto const col = Below(naive.cols);
    auto& entries = naive.rows[static_cast<std::size_t>(row)];
    auto const value = static_cast<double>(Below(4));
    if (Below(4) == 0) {
      auto const found = entries.find(col);
      ASSERT_EQ(matrix.Get(row, col), found == entries.end() ? 0.0 : found->second);
    } else {
      matrix.Set(row, col, value);
      if (value == 0.0) {
        entries.erase(col);
      } else {
        entries[col] = value;
      }
    }
  }

  std::mt19937 random_;
};

TEST(SparseMatrixTest, RandomEditsAgreeWithANaiveModel) {
  for (unsigned seed = 0; seed < 40; ++seed) {
    RandomEdits edits(seed);
    for (int step = 0; step < 400; ++step) {
      edits.Step();
      if (step % 7 == 0) {
        SCOPED_TRACE(testing::Message() << "seed " << seed << " step " << step);
        ASSERT_NO_FATAL_FAILURE(ExpectEqual(edits.matrix, edits.naive));
      }
    }
  }
}

// With a form rebuilt at each turn this would take hours.
TEST(SparseMatrixTest, AlternatingEditsAndReadsStayCheap) {
  constexpr int kCount = 200000;
  SparseMatrix matrix;
  for (int row = 0; row < kCount; ++row) matrix.AppendRow({}, {});
  for (int col = 0; col < kCount; ++col) {
    matrix.AppendCol(std::vector{col}, std::vector{1.0});
    matrix.Set(col, col, 2.0);
    matrix.Set((col * 7919) % kCount, col / 2, 3.0);
  }
  EXPECT_EQ(matrix.Get(kCount - 1, kCount - 1), 2.0);
}

}  // namespace
}  // namespace vorqsolver
