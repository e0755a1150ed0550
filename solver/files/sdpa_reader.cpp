// Reading SDPA sparse files: minimise c'x where x1 F1 + ... + xm Fm - F0 is positive semidefinite, block by block. The
// columns of the problem are x; a block is an LMI constraint, and a diagonal one as many rows.
#include "solver/files/sdpa_reader.hpp"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "solver/files/matrix_entries.hpp"
#include "solver/problem/largest_dimension.hpp"

namespace vorqsolver {
namespace {

struct Block {
  int size;
  int constraint;  // the LMI constraint, or the first row of a diagonal block
  bool diagonal;
};

struct DiagonalEntry {
  int row;
  int col;  // -1 for the constant
  double value;
  std::size_t line;
};

bool IsSeparator(char c) {
  return IsBlank(c) || c == ',' || c == '(' || c == ')' || c == '{' || c == '}';
}

class SdpaReader {
 public:
  explicit SdpaReader(TextSource const& source) : source_(source), lines_(source) {}

  ReadModel Read() {
    ReadColumnCount();
    ReadBlocks();
    ReadObjective();
    ReadEntries();
    Assemble();
    return {std::move(data_), {}};
  }

 private:
  // ----------------------------------------------------------------------- words
  std::string_view NextPiece() {
    std::size_t begin = 0;
    while (begin < rest_.size() && IsSeparator(rest_[begin])) ++begin;
    std::size_t end = begin;
    while (end < rest_.size() && !IsSeparator(rest_[end])) ++end;
    auto const word = rest_.substr(begin, end - begin);
    rest_.remove_prefix(end);
    return word;
  }

  // The next word, if need be of a later line.
  std::string_view Word(char const* expected) {
    for (;;) {
      if (auto const word = NextPiece(); !word.empty()) return word;
      if (!lines_.Next()) lines_.Refuse("the file ends where ", expected, " is expected");
      rest_ = lines_.Line();
    }
  }

  int Integer(std::string_view word) const { return IntegerAt(source_, lines_.Number(), word); }
  double Finite(std::string_view word) const { return FiniteNumberAt(source_, lines_.Number(), word); }

  // ------------------------------------------------------------------------ head
  // Comments stand above all else. What follows the number on its line is a remark.
  void ReadColumnCount() {
    do {
      if (!lines_.Next()) lines_.Refuse("the file ends where the number of variables is expected");
      rest_ = lines_.Line();
    } while (Trim(rest_).empty() || rest_.front() == '"' || rest_.front() == '*');
    columnCount_ = Integer(Word("the number of variables"));
    if (columnCount_ < 1) lines_.Refuse("the number of variables is ", columnCount_);
    rest_ = {};
  }

  void ReadBlocks() {
    int const count = Integer(Word("the number of blocks"));
    if (count < 1) lines_.Refuse("the number of blocks is ", count);
    rest_ = {};
    for (int k = 0; k < count; ++k) AddBlock(Integer(Word("the size of a block")));
    rest_ = {};
  }

  void AddBlock(int size) {
    if (size == 0 || size > kLargestDimension) lines_.Refuse("a block cannot have the size ", size);
    // A block of one entry is a row, too.
    if (size > 1) {
      blocks_.push_back({size, static_cast<int>(data_.lmiConstraints.size()), false});
      data_.lmiConstraints.push_back({size, {}, {}, -1});
      return;
    }
    long long const rows = size < 0 ? -static_cast<long long>(size) : 1;
    if (static_cast<std::size_t>(rowCount_ + rows) > MostClaimedItems(source_)) {
      lines_.Refuse("the diagonal blocks have more rows than a file of this size may claim");
    }
    blocks_.push_back({static_cast<int>(rows), static_cast<int>(rowCount_), true});
    rowCount_ += rows;
  }

  void ReadObjective() {
    Columns& columns = data_.columns;
    for (int j = 0; j < columnCount_; ++j) {
      // Files state zeros as -0.0, too.
      columns.objective.push_back(0.0 + Finite(Word("a coefficient of the objective")));
    }
    auto const count = columns.objective.size();
    columns.type.assign(count, 'C');
    columns.lower.assign(count, -kInfinity);
    columns.upper.assign(count, kInfinity);
    if (auto const word = NextPiece(); !word.empty()) lines_.Refuse("unexpected '", word, "' behind the objective");
  }

  // --------------------------------------------------------------------- entries
  void ReadEntries() {
    while (lines_.Next()) {
      rest_ = lines_.Line();
      if (rest_.starts_with('*')) {
        ReadExtension(Trim(rest_.substr(1)));
        continue;
      }
      auto const word = NextPiece();
      if (word.empty()) continue;
      if (integers_) lines_.Refuse("unexpected '", word, "' behind *INTEGER");
      ReadEntry(Integer(word));
    }
  }

  void ReadEntry(int matrix) {
    if (matrix < 0 || matrix > columnCount_) {
      lines_.Refuse("matrix ", matrix, " does not exist (there are 0 to ", columnCount_, ")");
    }
    int const place = Integer(Cell());
    if (place < 1 || static_cast<std::size_t>(place) > blocks_.size()) {
      lines_.Refuse("block ", place, " does not exist (there are ", blocks_.size(), ")");
    }
    Block const& block = blocks_[static_cast<std::size_t>(place) - 1];
    int const row = Position(block), col = Position(block);
    double const value = Finite(Cell());
    if (auto const word = NextPiece(); !word.empty()) lines_.Refuse("unexpected '", word, "' behind the entry");
    if (!block.diagonal) {
      // The constant of an LMI constraint is minus F0.
      entries_.push_back({block.constraint, matrix - 1, row, col, matrix == 0 ? 0.0 - value : value, lines_.Number()});
    } else if (row != col) {
      lines_.Refuse("entry ", row + 1, " ", col + 1, " of a diagonal block");
    } else {
      diagonal_.push_back({block.constraint + row, matrix - 1, value, lines_.Number()});
    }
  }

  std::string_view Cell() {
    auto const word = NextPiece();
    if (word.empty()) lines_.Refuse("an entry is matrix, block, row, column and value");
    return word;
  }

  int Position(Block const& block) {
    int const position = Integer(Cell());
    if (position < 1 || position > block.size) {
      lines_.Refuse("position ", position, " is outside of a block of size ", block.size);
    }
    return position - 1;
  }

  // Lines that begin with '*' behind the entries: integer columns are listed below *INTEGER.
  void ReadExtension(std::string_view text) {
    if (EqualsNoCase(text, "INTEGER")) {
      integers_ = true;
    } else if (EqualsNoCase(text, "RANK1")) {
      lines_.Refuse("rank constraints are not supported");
    } else if (integers_) {
      int const col = Integer(text);
      if (col < 1 || col > columnCount_) {
        lines_.Refuse("variable ", col, " does not exist (there are ", columnCount_, ")");
      }
      data_.columns.type[static_cast<std::size_t>(col) - 1] = 'I';
    }
  }

  // -------------------------------------------------------------------- assembly
  void Assemble() {
    AppendMatrices(
        data_.symMatrices, std::move(entries_), source_, [&](MatrixEntry const& entry) { return Lmi(entry).dim; },
        [&](MatrixEntry const& entry, int matrix) {
          if (entry.member < 0) {
            Lmi(entry).constant = matrix;
          } else {
            Lmi(entry).cols.push_back(entry.member);
            Lmi(entry).symMats.push_back(matrix);
          }
        });
    AssembleRows();
  }

  LmiConstraint& Lmi(MatrixEntry const& entry) { return data_.lmiConstraints[static_cast<std::size_t>(entry.owner)]; }

  void AssembleRows() {
    Rows& rows = data_.rows;
    for (SparseMatrix* matrix : {&rows.matrix, &data_.lazyConstraints.matrix, &data_.userCuts.matrix}) {
      matrix->AppendEmptyCols(columnCount_);
    }
    auto const placeOf = [](DiagonalEntry const& entry) { return std::pair(entry.row, entry.col); };
    std::ranges::stable_sort(diagonal_, {}, placeOf);
    for (std::size_t k = 1; k < diagonal_.size(); ++k) {
      if (placeOf(diagonal_[k - 1]) != placeOf(diagonal_[k])) continue;
      RefuseText(source_, diagonal_[k].line, "the entry is stated a second time, first in line ",
                 diagonal_[k - 1].line);
    }
    rows.lower.assign(static_cast<std::size_t>(rowCount_), 0.0);
    rows.upper.assign(static_cast<std::size_t>(rowCount_), kInfinity);
    std::vector<int> cols;
    std::vector<double> values;
    auto next = diagonal_.begin();
    for (int i = 0; i < rows.Count(); ++i) {
      cols.clear();
      values.clear();
      for (; next != diagonal_.end() && next->row == i; ++next) {
        if (next->col < 0) {
          rows.lower[static_cast<std::size_t>(i)] = next->value;
        } else {
          cols.push_back(next->col);
          values.push_back(next->value);
        }
      }
      rows.matrix.AppendRow(cols, values);
    }
  }

  TextSource const& source_;
  LineReader lines_;
  std::string_view rest_;  // of the line
  ProblemData data_;
  int columnCount_ = 0;
  long long rowCount_ = 0;
  std::vector<Block> blocks_;
  std::vector<MatrixEntry> entries_;
  std::vector<DiagonalEntry> diagonal_;
  bool integers_ = false;
};

}  // namespace

ReadModel ReadSdpa(TextSource const& source) {
  return SdpaReader(source).Read();
}

}  // namespace vorqsolver
