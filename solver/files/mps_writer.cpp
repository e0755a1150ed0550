// Writing MPS files: sections in the usual order, numbers as short as they read back the same.
#include "solver/files/mps_writer.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "solver/files/file_names.hpp"
#include "solver/files/text_source.hpp"
#include "solver/problem/deletion.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

// How a row stands in ROWS, RHS and RANGES.
struct RowForm {
  char sense;
  double rhs;
  double range = 0.0;  // 0 for none
};

// The width of a range, stated from the end that lies nearer to zero, is rounded; a neighbour of it may hit the other
// end where it does not. Only where both ends have about the same size and differ in sign may none do so. A reader
// takes a width of 1e30 for an infinite one.
RowForm RangeForm(double lower, double upper, std::string const& name) {
  bool const fromLower = std::abs(lower) <= std::abs(upper);
  double const width = upper - lower;
  if (width >= kInfinity) Refuse("An MPS file cannot hold row '", name, "', whose range is 1e30 wide or more");
  for (double const range : {width, std::nextafter(width, 0.0), std::nextafter(width, 2.0 * width)}) {
    if (range >= kInfinity) continue;
    if (fromLower && lower + range == upper) return {'G', lower, range};
    if (!fromLower && upper - range == lower) return {'L', upper, range};
  }
  return fromLower ? RowForm{'G', lower, width} : RowForm{'L', upper, width};
}

RowForm FormOf(double lower, double upper, std::string const& name) {
  if (lower <= -kInfinity) {
    // A free row keeps its place as a row without an effective bound.
    return upper >= kInfinity ? RowForm{'G', -kInfinity} : RowForm{'L', upper};
  }
  if (upper >= kInfinity) return {'G', lower};
  if (lower == upper) return {'E', lower};
  if (lower > upper) Refuse("An MPS file cannot hold row '", name, "', whose bounds cross");
  return RangeForm(lower, upper, name);
}

struct WriterRow {
  std::string const* name;
  RowForm form;
};

struct WriterEntry {
  int col;
  std::size_t row;
  double value;
};

class MpsWriter {
 public:
  explicit MpsWriter(ProblemData const& data) : data_(data), names_(FitMpsNames(data, written_.warnings)) {}

  WrittenFile Write() {
    RefuseConicKinds(data_, "MPS");
    CheckNoLostColumns(data_);
    CollectRows();
    WriteHead();
    WriteRows();
    WriteColumns();
    WriteRhs();
    WriteRanges();
    WriteBounds();
    WriteQuadratics();
    WriteSoss();
    WriteIndicators();
    Line("ENDATA");
    return std::move(written_);
  }

 private:
  template <typename... Pieces>
  void Line(Pieces const&... pieces) {
    (Append(pieces), ...);
    written_.text += '\n';
  }
  void Append(std::string_view piece) { written_.text += piece; }
  void Append(double piece) { written_.text += NumberText(piece); }

  void Pad(std::string_view word, std::size_t width) {
    written_.text += word;
    written_.text.append(word.size() < width ? width - word.size() : 0, ' ');
  }

  // "    first     second    value"
  void Triple(std::string_view first, std::string_view second, std::string_view value) {
    Append("    ");
    Pad(first, 8);
    Append("  ");
    Pad(second, 8);
    Line("  ", value);
  }
  void Triple(std::string_view first, std::string_view second, double value) {
    Triple(first, second, CoefficientText(value));
  }

  // ------------------------------------------------------------ rows of all kinds
  // The linear rows come first, by columns out of their matrix; the others give their entries here.
  void CollectRows() {
    AddRows(data_.rows, names_.rows);
    for (std::size_t k = 0; k < data_.quadConstraints.size(); ++k) {
      QuadConstraint const& constraint = data_.quadConstraints[k];
      AddTerms(constraint.linear, constraint.sense, constraint.rhs, names_.quadConstraints[k]);
    }
    for (std::size_t k = 0; k < data_.indicators.size(); ++k) {
      Indicator const& indicator = data_.indicators[k];
      AddTerms(indicator.terms, indicator.sense, indicator.rhs, names_.indicators[k]);
    }
    firstLazy_ = rows_.size();
    AddSideRows(data_.lazyConstraints, names_.lazyConstraints);
    firstCut_ = rows_.size();
    AddSideRows(data_.userCuts, names_.userCuts);
    std::stable_sort(entries_.begin(), entries_.end(),
                     [](WriterEntry const& a, WriterEntry const& b) { return a.col < b.col; });
  }

  template <typename AnyRows>
  void AddRows(AnyRows const& rows, std::vector<std::string> const& names) {
    for (std::size_t i = 0; i < names.size(); ++i) {
      rows_.push_back({&names[i], FormOf(rows.lower[i], rows.upper[i], names[i])});
    }
  }

  void AddSideRows(SideRows const& rows, std::vector<std::string> const& names) {
    std::size_t const first = rows_.size();
    AddRows(rows, names);
    for (int i = 0; i < rows.Count(); ++i) {
      auto const view = rows.matrix.Row(i);
      for (std::size_t k = 0; k < view.indices.size(); ++k) {
        entries_.push_back({view.indices[k], first + static_cast<std::size_t>(i), view.values[k]});
      }
    }
  }

  void AddTerms(std::vector<LinearTerm> const& terms, char sense, double rhs, std::string const& name) {
    if (sense != 'E' && sense != 'G' && sense != 'L') Refuse("Row '", name, "' has the unknown sense '", sense, "'");
    for (LinearTerm const& term : MergedTerms(terms)) entries_.push_back({term.col, rows_.size(), term.value});
    rows_.push_back({&name, {sense, rhs}});
  }

  // --------------------------------------------------------------------- sections
  void WriteHead() {
    Line("NAME", data_.name.empty() ? "" : "          ", data_.name);
    if (data_.objective.sense < 0) Line("OBJSENSE\n    MAX");
  }

  void WriteRows() {
    Line("ROWS\n N  ", names_.objective);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      if (i == firstLazy_ && i < firstCut_) Line("LAZYCONS");
      if (i == firstCut_) Line("USERCUTS");
      Line(" ", std::string_view(&rows_[i].form.sense, 1), "  ", *rows_[i].name);
    }
  }

  void WriteColumns() {
    Line("COLUMNS");
    bool integer = false;
    std::size_t next = 0;
    for (int j = 0; j < data_.columns.Count(); ++j) {
      char const type = data_.columns.type[static_cast<std::size_t>(j)];
      if ((type == 'I' || type == 'N') != integer) WriteMarker(integer = !integer);
      WriteColumn(j, next);
    }
    if (integer) WriteMarker(false);
  }

  void WriteMarker(bool begin) { Line("    MARKER    'MARKER'  ", begin ? "'INTORG'" : "'INTEND'"); }

  void WriteColumn(int j, std::size_t& next) {
    std::string const& name = names_.columns[static_cast<std::size_t>(j)];
    double const objective = data_.columns.objective[static_cast<std::size_t>(j)];
    auto const view = data_.rows.Count() > 0 ? data_.rows.matrix.Col(j) : SparseMatrix::View{};
    bool const others = next < entries_.size() && entries_[next].col == j;
    // A column without any entry is stated by its place in the objective.
    if (objective != 0.0 || (view.indices.empty() && !others)) Triple(name, names_.objective, objective);
    for (std::size_t k = 0; k < view.indices.size(); ++k) {
      Triple(name, names_.rows[static_cast<std::size_t>(view.indices[k])], view.values[k]);
    }
    for (; next < entries_.size() && entries_[next].col == j; ++next) {
      Triple(name, *rows_[entries_[next].row].name, entries_[next].value);
    }
  }

  void WriteRhs() {
    Line("RHS");
    // An entry of the objective is minus its constant.
    if (data_.objective.constant != 0.0) Triple("RHS", names_.objective, -data_.objective.constant);
    for (WriterRow const& row : rows_) {
      if (row.form.rhs != 0.0) Triple("RHS", *row.name, NumberText(row.form.rhs));
    }
  }

  void WriteRanges() {
    auto const ranged = [](WriterRow const& row) { return row.form.range != 0.0; };
    if (std::none_of(rows_.begin(), rows_.end(), ranged)) return;
    Line("RANGES");
    for (WriterRow const& row : rows_) {
      if (ranged(row)) Triple("RNG", *row.name, NumberText(row.form.range));
    }
  }

  void WriteBounds() {
    std::size_t const before = written_.text.size();
    Line("BOUNDS");
    std::size_t const empty = written_.text.size();
    for (std::size_t j = 0; j < names_.columns.size(); ++j) WriteBoundsOf(j);
    if (written_.text.size() == empty) written_.text.resize(before);
  }

  void WriteBoundsOf(std::size_t j) {
    double const lower = data_.columns.lower[j];
    double const upper = data_.columns.upper[j];
    switch (data_.columns.type[j]) {
      case 'B':
        Bound("BV", j);
        if (lower != 0.0) Bound("LO", j, lower);
        if (upper != 1.0) Bound("UP", j, upper);
        break;
      case 'S':
      case 'N':
        if (lower != 0.0) Bound("LO", j, lower);
        Bound("SC", j, upper);
        break;
      case 'I':
        WriteUsualBounds(j, lower, upper);
        // Without any bound an integer column would read as a binary one.
        if (lower == 0.0 && upper >= kInfinity) Bound("PL", j);
        break;
      case 'C': WriteUsualBounds(j, lower, upper); break;
      default: Refuse("Column '", names_.columns[j], "' has the unknown type '", data_.columns.type[j], "'");
    }
  }

  void WriteUsualBounds(std::size_t j, double lower, double upper) {
    if (lower <= -kInfinity && upper >= kInfinity) {
      Bound("FR", j);
    } else if (lower == upper) {
      Bound("FX", j, lower);
    } else {
      if (lower <= -kInfinity) {
        Bound("MI", j);
      } else if (lower != 0.0 || upper < 0.0) {
        Bound("LO", j, lower);
      }
      if (upper < kInfinity) Bound("UP", j, upper);
    }
  }

  void Bound(char const* kind, std::size_t j) { Line(" ", kind, " BND       ", names_.columns[j]); }

  void Bound(char const* kind, std::size_t j, double value) {
    Append(" ");
    Append(kind);
    Append(" BND       ");
    Pad(names_.columns[j], 8);
    Line("  ", value);
  }

  void WriteQuadratics() {
    if (!data_.objective.quadratic.empty()) {
      Line("QUADOBJ");
      for (QuadTerm const& term : MergedTerms(data_.objective.quadratic)) {
        WriteQuadTerm(term, term.row == term.col ? 2.0 * term.value : term.value);
      }
    }
    for (std::size_t k = 0; k < data_.quadConstraints.size(); ++k) {
      Line("QCMATRIX   ", names_.quadConstraints[k]);
      for (QuadTerm const& term : MergedTerms(data_.quadConstraints[k].quadratic)) {
        bool const diagonal = term.row == term.col;
        WriteQuadTerm(term, diagonal ? term.value : 0.5 * term.value);
        if (!diagonal) WriteQuadTerm({term.col, term.row, 0.0}, 0.5 * term.value);
      }
    }
  }

  void WriteQuadTerm(QuadTerm const& term, double value) { Triple(ColumnName(term.row), ColumnName(term.col), value); }

  void WriteSoss() {
    if (!data_.soss.empty()) Line("SOS");
    for (std::size_t k = 0; k < data_.soss.size(); ++k) {
      Sos const& sos = data_.soss[k];
      if (sos.type != 1 && sos.type != 2) Refuse("An MPS file cannot hold SOS ", k, " of type ", sos.type);
      std::string const set = Text("set", k + 1);
      Line(" S", std::to_string(sos.type), " ", set);
      for (std::size_t m = 0; m < sos.cols.size(); ++m) {
        double const weight = sos.weights.empty() ? static_cast<double>(m + 1) : sos.weights[m];
        std::string const& name = ColumnName(sos.cols[m]);
        // A column of this name would begin a set, were it the first word.
        if (EqualsNoCase(name, "S1") || EqualsNoCase(name, "S2")) Append(Text("    ", set));
        Append("    ");
        Pad(name, 8);
        Line("  ", weight);
      }
    }
  }

  void WriteIndicators() {
    if (!data_.indicators.empty()) Line("INDICATORS");
    for (std::size_t k = 0; k < data_.indicators.size(); ++k) {
      Indicator const& indicator = data_.indicators[k];
      Line(" IF ", names_.indicators[k], "  ", ColumnName(indicator.binCol), "  ", std::to_string(indicator.binVal));
    }
  }

  std::string const& ColumnName(int col) const { return names_.columns[static_cast<std::size_t>(col)]; }

  ProblemData const& data_;
  WrittenFile written_;
  MpsNames names_;
  std::vector<WriterRow> rows_;
  std::vector<WriterEntry> entries_;  // of all but the linear rows, by columns
  std::size_t firstLazy_ = 0;
  std::size_t firstCut_ = 0;
};

}  // namespace

WrittenFile WriteMps(ProblemData const& data) {
  return MpsWriter(data).Write();
}

}  // namespace vorqsolver
