// Making a problem of what an MPS file states.
#include "solver/files/mps_content.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <span>
#include <tuple>
#include <utility>

namespace vorqsolver {
namespace {

struct Interval {
  double lower;
  double upper;
};

Interval BoundsOf(MpsRow const& row) {
  double const width = std::abs(row.range);
  switch (row.sense) {
    case 'E':
      if (!row.hasRange) return {row.rhs, row.rhs};
      return row.range < 0.0 ? Interval{row.rhs - width, row.rhs} : Interval{row.rhs, row.rhs + width};
    case 'L': return {row.hasRange ? row.rhs - width : -kInfinity, row.rhs};
    default: return {row.rhs, row.hasRange ? row.rhs + width : kInfinity};
  }
}

// The entries by rows: those of row i stand from begins[i] to begins[i + 1], in the order of the file.
struct EntriesByRow {
  std::vector<std::size_t> begins;
  std::vector<int> cols;
  std::vector<double> values;

  explicit EntriesByRow(MpsContent const& content)
      : begins(content.rows.size() + 1), cols(content.entries.size()), values(content.entries.size()) {
    for (MpsEntry const& entry : content.entries) ++begins[static_cast<std::size_t>(entry.row) + 1];
    std::partial_sum(begins.begin(), begins.end(), begins.begin());
    auto next = begins;
    for (MpsEntry const& entry : content.entries) {
      auto const place = next[static_cast<std::size_t>(entry.row)]++;
      cols[place] = entry.col;
      values[place] = entry.value;
    }
  }

  SparseMatrix::View Row(std::size_t row) const {
    auto const length = begins[row + 1] - begins[row];
    return {std::span(cols).subspan(begins[row], length), std::span(values).subspan(begins[row], length)};
  }

  std::vector<LinearTerm> Terms(std::size_t row) const {
    std::vector<LinearTerm> terms;
    auto const view = Row(row);
    for (std::size_t k = 0; k < view.indices.size(); ++k) terms.push_back({view.indices[k], view.values[k]});
    return terms;
  }
};

class Assembly {
 public:
  Assembly(MpsContent& content, TextSource const& source) : content_(content), source_(source), byRow_(content) {}

  ProblemData Run() {
    data_.name = std::move(content_.problemName);
    data_.objective.sense = content_.sense;
    data_.objective.constant = content_.objectiveConstant;
    AddColumns();
    CollectQuadTerms();
    for (SparseMatrix* matrix : {&data_.rows.matrix, &data_.lazyConstraints.matrix, &data_.userCuts.matrix}) {
      matrix->AppendEmptyCols(data_.columns.Count());
    }
    for (std::size_t i = 0; i < content_.rows.size(); ++i) AddRow(i);
    data_.soss = std::move(content_.soss);
    return std::move(data_);
  }

 private:
  void AddColumns() {
    Columns& columns = data_.columns;
    for (MpsColumn const& column : content_.columns) {
      // The default bounds of a column between integer markers are those of a binary column.
      bool const binary = column.type == 'B' || (column.integer && column.statedBounds == 0);
      columns.names.Set(columns.Count(), column.name);
      columns.type.push_back(binary ? 'B' : column.type);
      columns.lower.push_back(binary ? std::max(column.lower, 0.0) : column.lower);
      columns.upper.push_back(binary ? std::min(column.upper, 1.0) : column.upper);
      columns.objective.push_back(column.objective);
    }
  }

  void AddRow(std::size_t i) {
    MpsRow const& row = content_.rows[i];
    if (row.use == MpsRowUse::kObjective || row.use == MpsRowUse::kDropped) return;
    if (row.sense == 'E' && std::abs(row.rhs) >= kInfinity) {
      RefuseText(source_, row.line, "equality row '", row.name, "' has an infinite right-hand side");
    }
    switch (row.use) {
      case MpsRowUse::kLinear: AddTo(data_.rows, i); return;
      case MpsRowUse::kLazy: AddTo(data_.lazyConstraints, i); return;
      case MpsRowUse::kCut: AddTo(data_.userCuts, i); return;
      case MpsRowUse::kQuadratic: AddQuadConstraint(i); return;
      default: AddIndicator(i); return;
    }
  }

  // `rows` is a Rows or a SideRows.
  template <typename AnyRows>
  void AddTo(AnyRows& rows, std::size_t i) {
    MpsRow const& row = content_.rows[i];
    auto const view = byRow_.Row(i);
    rows.matrix.AppendRow(view.indices, view.values);
    // A side plus its range may lie beyond infinity.
    auto const [lower, upper] = BoundsOf(row);
    rows.names.Set(rows.Count(), row.name);
    rows.lower.push_back(std::clamp(lower, -kInfinity, kInfinity));
    rows.upper.push_back(std::clamp(upper, -kInfinity, kInfinity));
  }

  void AddQuadConstraint(std::size_t i) {
    MpsRow const& row = content_.rows[i];
    CheckSingleSide(row, "quadratic constraint");
    data_.quadConstraintNames.Set(static_cast<int>(data_.quadConstraints.size()), row.name);
    data_.quadConstraints.push_back({byRow_.Terms(i), std::move(quadTerms_[i]), row.sense, row.rhs});
  }

  void AddIndicator(std::size_t i) {
    MpsRow const& row = content_.rows[i];
    CheckSingleSide(row, "indicator");
    if (!MakeBinary(data_.columns, row.indicatorCol)) {
      RefuseText(source_, row.line, "column '", data_.columns.names.Get(row.indicatorCol), "' of indicator '", row.name,
                 "' is not binary");
    }
    Indicator indicator;
    indicator.binCol = row.indicatorCol;
    indicator.binVal = row.indicatorVal;
    indicator.terms = byRow_.Terms(i);
    indicator.sense = row.sense;
    indicator.rhs = row.rhs;
    data_.indicatorNames.Set(static_cast<int>(data_.indicators.size()), row.name);
    data_.indicators.push_back(std::move(indicator));
  }

  void CheckSingleSide(MpsRow const& row, char const* kind) const {
    if (std::abs(row.rhs) >= kInfinity) {
      RefuseText(source_, row.line, kind, " '", row.name, "' has an infinite right-hand side");
    }
    if (row.hasRange) RefuseText(source_, row.line, kind, " '", row.name, "' has a range");
  }

  void CollectQuadTerms() {
    quadTerms_.resize(content_.rows.size());
    for (MpsQuadSection& section : content_.quadSections) {
      auto const key = [](MpsQuadEntry const& e) {
        return std::tuple(e.constraint, std::min(e.first, e.second), std::max(e.first, e.second));
      };
      std::stable_sort(section.entries.begin(), section.entries.end(),
                       [&](auto const& a, auto const& b) { return key(a) < key(b); });
      for (std::size_t k = 0; k < section.entries.size();) {
        std::size_t end = k + 1;
        while (end < section.entries.size() && key(section.entries[end]) == key(section.entries[k])) ++end;
        AddQuadTerm(section, std::span(section.entries).subspan(k, end - k));
        k = end;
      }
    }
  }

  // `entries` are all that the section states on one pair of columns.
  void AddQuadTerm(MpsQuadSection const& section, std::span<MpsQuadEntry const> entries) {
    MpsQuadEntry const& entry = entries.front();
    bool const diagonal = entry.first == entry.second;
    bool const both = section.triangles == MpsTriangles::kBoth && !diagonal;
    std::size_t const needed = both ? 2 : 1;
    bool const mirrored = entries.size() == 2 && entries[0].first == entries[1].second;
    if (entries.size() > needed || (both && entries.size() == 2 && !mirrored)) {
      RefuseText(source_, entries[1].line, "the entry of ", Pair(entries[1]), " is stated twice");
    }
    if (entries.size() < needed || (both && entries[0].value != entries[1].value)) {
      RefuseText(source_, entries.back().line, "the matrix is not symmetric at ", Pair(entry));
    }
    QuadTerm const term{std::min(entry.first, entry.second), std::max(entry.first, entry.second),
                        diagonal ? section.scale * entry.value : 2.0 * section.scale * entry.value};
    if (std::abs(term.value) >= kInfinity)
      RefuseText(source_, entry.line, "the entry of ", Pair(entry), " is too large");
    TermsOf(entry.constraint).push_back(term);
  }

  std::vector<QuadTerm>& TermsOf(int constraint) {
    return constraint < 0 ? data_.objective.quadratic : quadTerms_[static_cast<std::size_t>(constraint)];
  }

  std::string Pair(MpsQuadEntry const& entry) const {
    auto const name = [&](int col) { return content_.columns[static_cast<std::size_t>(col)].name; };
    return Text("'", name(entry.first), "' and '", name(entry.second), "'");
  }

  MpsContent& content_;
  TextSource const& source_;
  EntriesByRow byRow_;
  std::vector<std::vector<QuadTerm>> quadTerms_;  // by row of the file
  ProblemData data_;
};

}  // namespace

ProblemData ToProblemData(MpsContent& content, TextSource const& source) {
  return Assembly(content, source).Run();
}

}  // namespace vorqsolver
