// Making a problem of what a CBF file states.
#include "solver/files/cbf_content.hpp"

#include <numeric>
#include <utility>

namespace vorqsolver {
namespace {

struct Interval {
  double lower;
  double upper;
};

// Of an entry in a domain of single entries; the entries of a cone are free by themselves.
Interval IntervalOf(CbfDomain domain) {
  switch (domain) {
    case CbfDomain::kPositive: return {0.0, kInfinity};
    case CbfDomain::kNegative: return {-kInfinity, 0.0};
    case CbfDomain::kZero: return {0.0, 0.0};
    default: return {-kInfinity, kInfinity};
  }
}

class Assembly {
 public:
  Assembly(CbfContent& content, TextSource const& source) : content_(content), source_(source) {}

  ProblemData Run() {
    data_.objective.sense = content_.sense;
    data_.objective.constant = content_.objectiveConstant;
    data_.psdDims = std::move(content_.psdDims);
    for (int const dim : content_.lmiDims) data_.lmiConstraints.push_back({dim, {}, {}, -1});
    AddColumns();
    AppendMatrices(
        data_.symMatrices, std::move(content_.psdObjective), source_, [&](auto const& entry) { return PsdDim(entry); },
        [&](MatrixEntry const& first, int matrix) {
          data_.objective.psd.push_back({first.member, matrix});
        });
    SortTerms();
    AddConstraints();
    AddMatricesOfLmis();
    return std::move(data_);
  }

 private:
  // ---------------------------------------------------------------------- columns
  void AddColumns() {
    Columns& columns = data_.columns;
    for (auto const& [domain, size] : content_.columnCones) {
      int const first = columns.Count();
      auto const count = columns.type.size() + static_cast<std::size_t>(size);
      auto const [lower, upper] = IntervalOf(domain->domain);
      columns.type.resize(count, 'C');
      columns.lower.resize(count, lower);
      columns.upper.resize(count, upper);
      columns.objective.resize(count, 0.0);
      AddCone(*domain, first, size);
    }
    for (int const col : content_.integers) columns.type[static_cast<std::size_t>(col)] = 'I';
    std::vector<std::size_t> lines(columns.type.size());
    for (CbfScalarEntry const& entry : content_.objective) {
      RefuseTwice(lines[static_cast<std::size_t>(entry.col)], entry);
      columns.objective[static_cast<std::size_t>(entry.col)] = entry.value;
    }
    for (SparseMatrix* matrix : {&data_.rows.matrix, &data_.lazyConstraints.matrix, &data_.userCuts.matrix}) {
      matrix->AppendEmptyCols(columns.Count());
    }
  }

  void AddCone(CbfDomainName const& domain, int first, int size) {
    if (domain.coneType == 0) return;
    if (domain.coneType > 2) {
      data_.expCones.push_back({domain.coneType, {first, first + 1, first + 2}});
      return;
    }
    Cone cone{domain.coneType, std::vector<int>(static_cast<std::size_t>(size))};
    std::iota(cone.cols.begin(), cone.cols.end(), first);
    data_.cones.push_back(std::move(cone));
  }

  void RefuseTwice(std::size_t& firstLine, CbfScalarEntry const& entry) const {
    if (firstLine != 0) {
      RefuseText(source_, entry.line, "the entry is stated a second time, first in line ", firstLine);
    }
    firstLine = entry.line;
  }

  // ------------------------------------------------------------------ constraints
  // Terms and constants by constraints; those of constraint i stand from begins_[i] to begins_[i + 1].
  void SortTerms() {
    auto const count = static_cast<std::size_t>(content_.constraintCount);
    begins_.assign(count + 1, 0);
    for (CbfScalarEntry const& entry : content_.coefficients) ++begins_[static_cast<std::size_t>(entry.row) + 1];
    std::partial_sum(begins_.begin(), begins_.end(), begins_.begin());
    std::vector<std::size_t> next(begins_.begin(), begins_.end() - 1);
    std::vector<CbfScalarEntry> sorted(content_.coefficients.size());
    for (CbfScalarEntry const& entry : content_.coefficients)
      sorted[next[static_cast<std::size_t>(entry.row)]++] = entry;
    content_.coefficients = std::move(sorted);
    RefuseDoubleTerms();

    constants_.assign(count, 0.0);
    std::vector<std::size_t> lines(count);
    for (CbfScalarEntry const& entry : content_.constants) {
      RefuseTwice(lines[static_cast<std::size_t>(entry.row)], entry);
      constants_[static_cast<std::size_t>(entry.row)] = entry.value;
    }
  }

  void RefuseDoubleTerms() const {
    struct Last {
      int row = -1;
      std::size_t line = 0;
    };
    std::vector<Last> lasts(static_cast<std::size_t>(content_.columnCount));
    for (CbfScalarEntry const& entry : content_.coefficients) {
      Last& last = lasts[static_cast<std::size_t>(entry.col)];
      if (last.row == entry.row) RefuseTwice(last.line, entry);
      last = {entry.row, entry.line};
    }
  }

  std::vector<LinearTerm> TermsOf(std::size_t row) const {
    std::vector<LinearTerm> terms;
    for (auto k = begins_[row]; k < begins_[row + 1]; ++k) {
      terms.push_back({content_.coefficients[k].col, content_.coefficients[k].value});
    }
    return terms;
  }

  void AddConstraints() {
    auto const psdTerms = PsdTermsByConstraint();
    std::size_t row = 0;
    for (auto const& [domain, size] : content_.constraintCones) {
      AffineCone cone{domain->coneType, {}};
      for (auto const end = row + static_cast<std::size_t>(size); row < end; ++row) {
        auto const psd = psdTerms.empty() ? std::vector<PsdTerm>() : psdTerms[row];
        if (cone.type > 0) {
          cone.rows.push_back({TermsOf(row), psd, constants_[row]});
        } else {
          AddRow(domain->domain, row, psd);
        }
      }
      if (cone.type > 0) data_.affineCones.push_back(std::move(cone));
    }
    NumberMatrices();
  }

  // A row is its terms plus the constant in the domain.
  void AddRow(CbfDomain domain, std::size_t row, std::vector<PsdTerm> const& psd) {
    auto [lower, upper] = IntervalOf(domain);
    if (lower == 0.0) lower -= constants_[row];
    if (upper == 0.0) upper -= constants_[row];
    if (!psd.empty()) {
      data_.psdConstraints.push_back({TermsOf(row), psd, lower, upper});
      return;
    }
    cols_.clear();
    values_.clear();
    for (LinearTerm const& term : TermsOf(row)) {
      cols_.push_back(term.col);
      values_.push_back(term.value);
    }
    data_.rows.matrix.AppendRow(cols_, values_);
    data_.rows.lower.push_back(lower);
    data_.rows.upper.push_back(upper);
  }

  // --------------------------------------------------------------------- matrices
  int PsdDim(MatrixEntry const& entry) const { return data_.psdDims[static_cast<std::size_t>(entry.member)]; }

  // The terms of each constraint, with matrices of a list of their own; empty where there are none at all.
  std::vector<std::vector<PsdTerm>> PsdTermsByConstraint() {
    if (content_.psdCoefficients.empty()) return {};
    std::vector<std::vector<PsdTerm>> terms(static_cast<std::size_t>(content_.constraintCount));
    AppendMatrices(
        rowMatrices_, std::move(content_.psdCoefficients), source_, [&](auto const& entry) { return PsdDim(entry); },
        [&](MatrixEntry const& first, int matrix) {
          terms[static_cast<std::size_t>(first.owner)].push_back({first.member, matrix});
        });
    return terms;
  }

  // Matrices come in the order of the items that use them, kind by kind, so that a problem that was written reads back
  // with the same numbers.
  void NumberMatrices() {
    for (PsdConstraint& constraint : data_.psdConstraints) NumberMatrices(constraint.psd);
    for (AffineCone& cone : data_.affineCones) {
      for (AffineRow& row : cone.rows) NumberMatrices(row.psd);
    }
  }
  void NumberMatrices(std::vector<PsdTerm>& terms) {
    for (PsdTerm& term : terms) {
      data_.symMatrices.push_back(std::move(rowMatrices_[static_cast<std::size_t>(term.symMat)]));
      term.symMat = static_cast<int>(data_.symMatrices.size()) - 1;
    }
  }

  void AddMatricesOfLmis() {
    auto const lmi = [&](MatrixEntry const& entry) -> LmiConstraint& {
      return data_.lmiConstraints[static_cast<std::size_t>(entry.owner)];
    };
    AppendMatrices(
        data_.symMatrices, std::move(content_.lmiEntries), source_, [&](auto const& entry) { return lmi(entry).dim; },
        [&](MatrixEntry const& first, int matrix) {
          if (first.member < 0) {
            lmi(first).constant = matrix;
          } else {
            lmi(first).cols.push_back(first.member);
            lmi(first).symMats.push_back(matrix);
          }
        });
  }

  CbfContent& content_;
  TextSource const& source_;
  ProblemData data_;
  std::vector<std::size_t> begins_;
  std::vector<double> constants_;
  std::vector<SymMatrix> rowMatrices_;
  std::vector<int> cols_;
  std::vector<double> values_;
};

}  // namespace

ProblemData ToProblemData(CbfContent& content, TextSource const& source) {
  return Assembly(content, source).Run();
}

}  // namespace vorqsolver
