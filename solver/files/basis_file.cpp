// Reading and writing bases.
#include "solver/files/basis_file.hpp"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "solver/files/file_names.hpp"

namespace vorqsolver {
namespace {

constexpr int Code(BasisStatus status) {
  return static_cast<int>(status);
}

// The code of a nonbasic item with these bounds.
int Nonbasic(double lower, double upper, bool atUpper) {
  bool const hasLower = lower > -kInfinity;
  bool const hasUpper = upper < kInfinity;
  if (!hasLower && !hasUpper) return Code(BasisStatus::kSuperBasic);
  if (lower == upper) return Code(BasisStatus::kFixed);
  return Code(hasUpper && (atUpper || !hasLower) ? BasisStatus::kUpper : BasisStatus::kLower);
}

using NameIndex = std::unordered_map<std::string_view, std::size_t>;

NameIndex IndexOf(std::vector<std::string> const& names) {
  NameIndex index;
  for (std::size_t k = 0; k < names.size(); ++k) index.emplace(names[k], k);
  return index;
}

class BasisReader {
 public:
  BasisReader(TextSource const& source, ProblemData const& data)
      : lines_(source),
        data_(data),
        names_(FitBasisNames(data, ignored_)),
        columns_(IndexOf(names_.columns)),
        rows_(IndexOf(names_.rows)),
        columnStated_(names_.columns.size()),
        rowStated_(names_.rows.size()) {}

  Basis Read() {
    basis_.rows.assign(names_.rows.size(), Code(BasisStatus::kBasic));
    for (std::size_t j = 0; j < names_.columns.size(); ++j) {
      basis_.cols.push_back(Nonbasic(data_.columns.lower[j], data_.columns.upper[j], false));
    }
    bool ended = false;
    while (!ended && lines_.Next()) {
      auto const line = lines_.Line();
      if (line.starts_with('*') || Trim(line).empty()) continue;
      if (IsBlank(line.front())) {
        ReadLine(line);
      } else {
        ended = ReadHeader(line);
      }
    }
    if (!ended) lines_.Refuse("the file ends without ENDATA");
    return std::move(basis_);
  }

 private:
  // Whether it is the end.
  bool ReadHeader(std::string_view line) {
    auto const word = NextWord(line);
    if (EqualsNoCase(word, "ENDATA")) return true;
    if (!EqualsNoCase(word, "NAME")) lines_.Refuse("unknown section '", word, "'");
    return false;
  }

  void ReadLine(std::string_view line) {
    auto const kind = NextWord(line);
    auto const column = NextWord(line);
    auto const row = NextWord(line);
    bool const paired = EqualsNoCase(kind, "XU") || EqualsNoCase(kind, "XL");
    bool const upper = EqualsNoCase(kind, "XU") || EqualsNoCase(kind, "UL");
    if (!paired && !upper && !EqualsNoCase(kind, "LL")) lines_.Refuse("unknown kind of line '", kind, "'");
    if (column.empty() || row.empty() == paired || !NextWord(line).empty()) {
      lines_.Refuse("a line ", kind, " needs ", paired ? "a column and a row" : "one column");
    }
    std::size_t const j = Find(columns_, column, "column", columnStated_);
    if (!paired) {
      basis_.cols[j] = Nonbasic(data_.columns.lower[j], data_.columns.upper[j], upper);
      return;
    }
    std::size_t const i = Find(rows_, row, "row", rowStated_);
    basis_.cols[j] = Code(BasisStatus::kBasic);
    basis_.rows[i] = Nonbasic(data_.rows.lower[i], data_.rows.upper[i], upper);
  }

  std::size_t Find(NameIndex const& index, std::string_view name, char const* kind, std::vector<bool>& stated) {
    auto const found = index.find(name);
    if (found == index.end()) RefuseContent(lines_.Source(), lines_.Number(), "unknown ", kind, " '", name, "'");
    if (stated[found->second]) lines_.Refuse(kind, " '", name, "' is stated twice");
    stated[found->second] = true;
    return found->second;
  }

  LineReader lines_;
  ProblemData const& data_;
  Warnings ignored_;  // the writer told of these names
  MpsNames names_;
  NameIndex columns_;
  NameIndex rows_;
  std::vector<bool> columnStated_;
  std::vector<bool> rowStated_;
  Basis basis_;
};

}  // namespace

Basis ReadBasisFile(TextSource const& source, ProblemData const& data) {
  return BasisReader(source, data).Read();
}

WrittenFile WriteBasisFile(ProblemData const& data, Basis const& basis) {
  WrittenFile written;
  MpsNames const names = FitBasisNames(data, written.warnings);
  if (basis.cols.size() != names.columns.size() || basis.rows.size() != names.rows.size()) {
    Refuse("The basis has ", basis.cols.size(), " columns and ", basis.rows.size(), " rows, the problem ",
           names.columns.size(), " and ", names.rows.size());
  }
  auto const basic = [](int code) { return code == Code(BasisStatus::kBasic); };
  auto const basicCols = std::count_if(basis.cols.begin(), basis.cols.end(), basic);
  auto const basicRows = std::count_if(basis.rows.begin(), basis.rows.end(), basic);
  if (static_cast<std::size_t>(basicCols + basicRows) != basis.rows.size()) {
    Refuse("The basis has ", basicCols + basicRows, " basic items for ", basis.rows.size(), " rows");
  }
  std::string& text = written.text;
  text = data.name.empty() ? "NAME\n" : Text("NAME          ", data.name, "\n");
  std::size_t i = 0;  // each basic column goes with the next row that is not basic
  for (std::size_t j = 0; j < basis.cols.size(); ++j) {
    if (basic(basis.cols[j])) {
      while (basic(basis.rows[i])) ++i;
      bool const upper = basis.rows[i] == Code(BasisStatus::kUpper);
      text += Text(upper ? " XU " : " XL ", names.columns[j], "  ", names.rows[i], "\n");
      ++i;
    } else if (basis.cols[j] == Code(BasisStatus::kUpper)) {
      text += Text(" UL ", names.columns[j], "\n");
    }
  }
  text += "ENDATA\n";
  return written;
}

}  // namespace vorqsolver
