// Writing CBF files: the structure first, then the coefficients.
#include "solver/files/cbf_writer.hpp"

#include <algorithm>
#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "solver/files/cbf_content.hpp"
#include "solver/problem/deletion.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

CbfDomainName const& NameOf(CbfDomain domain) {
  return *std::ranges::find(kCbfDomains, domain, &CbfDomainName::domain);
}
CbfDomainName const& NameOfCone(int type) {
  return *std::ranges::find(kCbfDomains, type, &CbfDomainName::coneType);
}

// Whether the cone itself says that its member at `place` has that bound.
bool ImpliesZero(int coneType, std::size_t place, bool lower) {
  switch (coneType) {
    case 1: return lower && place == 0;
    case 2:
    case 3: return lower && place <= 1;
    default: return lower ? place == 0 : place == 2;
  }
}

class CbfWriter {
 public:
  explicit CbfWriter(ProblemData const& data) : data_(data) {}

  WrittenFile Write() {
    RefuseOtherKinds();
    CheckNoLostColumns(data_);
    ChooseColumnDomains();
    AddRows();
    AddPsdConstraints();
    AddAffineCones();
    AddConesOfScatteredColumns();
    AddBounds();
    AddMatrixEntries();
    TellOfChanges();
    WriteStructure();
    WriteCoefficients();
    return std::move(written_);
  }

 private:
  // Entries of matrices by owner, member, column and row; what several matrices state at one place adds up.
  struct Place {
    int owner;
    int member;
    int col;
    int row;

    friend bool operator<(Place const& a, Place const& b) {
      return std::tie(a.owner, a.member, a.col, a.row) < std::tie(b.owner, b.member, b.col, b.row);
    }
  };
  using MatrixEntries = std::map<Place, double>;

  struct Term {
    int row;
    int col;
    double value;
  };

  void RefuseOtherKinds() const {
    std::pair<bool, char const*> const kinds[] = {
        {!data_.objective.quadratic.empty(), "a quadratic objective"},
        {!data_.quadConstraints.empty(), "quadratic constraints"},
        {!data_.soss.empty(), "SOS"},
        {!data_.indicators.empty(), "indicators"},
        {data_.lazyConstraints.Count() > 0, "lazy constraints"},
        {data_.userCuts.Count() > 0, "user cuts"},
        {std::ranges::count(data_.columns.type, 'S') > 0, "semicontinuous columns"},
        {std::ranges::count(data_.columns.type, 'N') > 0, "semi-integer columns"},
    };
    for (auto const& [present, kind] : kinds) {
      if (present) Refuse("A CBF file cannot hold ", kind);
    }
  }

  // ---------------------------------------------------------------------- columns
  double Lower(int col) const { return data_.columns.lower[static_cast<std::size_t>(col)]; }
  double Upper(int col) const { return data_.columns.upper[static_cast<std::size_t>(col)]; }

  // A cone is stated with the variables where its columns stand side by side and in no other cone; all others are
  // stated as affine ones.
  void ChooseColumnDomains() {
    columnDomains_.assign(static_cast<std::size_t>(data_.columns.Count()), {});
    for (Cone const& cone : data_.cones) TakeColumns(cone.type, cone.cols);
    for (ExpCone const& cone : data_.expCones) TakeColumns(cone.type, cone.cols);
    for (int j = 0; j < data_.columns.Count(); ++j) {
      ColumnDomain& place = columnDomains_[static_cast<std::size_t>(j)];
      if (place.name == nullptr) place.name = &NameOf(DomainOfBounds(j));
    }
  }

  void TakeColumns(int type, std::span<int const> cols) {
    bool fits = true;
    for (std::size_t k = 0; k < cols.size(); ++k) {
      fits = fits && cols[k] == cols[0] + static_cast<int>(k) &&
             columnDomains_[static_cast<std::size_t>(cols[k])].name == nullptr;
    }
    if (!fits) {
      scattered_.push_back({type, {cols.begin(), cols.end()}});
      return;
    }
    for (std::size_t k = 0; k < cols.size(); ++k) {
      columnDomains_[static_cast<std::size_t>(cols[k])] = {&NameOfCone(type), k, cols.size()};
    }
  }

  // Bounds that no domain has are left to constraints.
  CbfDomain DomainOfBounds(int col) const {
    double const lower = Lower(col), upper = Upper(col);
    if (lower == 0.0 && upper == 0.0) return CbfDomain::kZero;
    if (lower == 0.0) return CbfDomain::kPositive;
    if (upper == 0.0) return CbfDomain::kNegative;
    return CbfDomain::kFree;
  }

  // ------------------------------------------------------------------ constraints
  // Begins a constraint with the constant in the domain, and gives its number.
  int AddConstraint(CbfDomainName const& domain, double constant, bool beginsCone = true) {
    bool const alike = domain.coneType == 0 && !cones_.empty() && cones_.back().domain == &domain;
    if (alike || !beginsCone) {
      ++cones_.back().size;
    } else {
      cones_.push_back({&domain, 1});
    }
    constants_.push_back(constant);
    return static_cast<int>(constants_.size()) - 1;
  }

  // What lies between two bounds becomes one constraint or two, each of which gets the terms from `addTerms`.
  template <typename AddTerms>
  void AddInterval(double lower, double upper, std::string const& name, AddTerms addTerms) {
    if (lower >= kInfinity || upper <= -kInfinity) {
      Refuse("A CBF file cannot hold ", name, ", which has no finite value within its bounds");
    }
    bool const hasLower = lower > -kInfinity, hasUpper = upper < kInfinity;
    if (hasLower && lower == upper) {
      addTerms(AddConstraint(NameOf(CbfDomain::kZero), -lower));
      return;
    }
    if (!hasLower && !hasUpper) addTerms(AddConstraint(NameOf(CbfDomain::kFree), 0.0));
    if (hasLower) addTerms(AddConstraint(NameOf(CbfDomain::kPositive), -lower));
    if (hasUpper) addTerms(AddConstraint(NameOf(CbfDomain::kNegative), -upper));
    if (hasLower && hasUpper) ++ranges_;
  }

  void AddTerms(int constraint, std::vector<LinearTerm> const& terms) {
    for (LinearTerm const& term : MergedTerms(terms)) terms_.push_back({constraint, term.col, term.value});
  }

  void AddRows() {
    Rows const& rows = data_.rows;
    for (int i = 0; i < rows.Count(); ++i) {
      auto const k = static_cast<std::size_t>(i);
      auto const view = rows.matrix.Row(i);
      AddInterval(rows.lower[k], rows.upper[k], Text("row ", i), [&](int constraint) {
        for (std::size_t t = 0; t < view.indices.size(); ++t) {
          terms_.push_back({constraint, view.indices[t], view.values[t]});
        }
      });
    }
  }

  void AddPsdConstraints() {
    for (std::size_t k = 0; k < data_.psdConstraints.size(); ++k) {
      PsdConstraint const& row = data_.psdConstraints[k];
      AddInterval(row.lower, row.upper, Text("PSD constraint ", k), [&](int constraint) {
        AddTerms(constraint, row.linear);
        AddMatrices(psdEntries_, constraint, row.psd);
      });
    }
  }

  void AddAffineCones() {
    for (AffineCone const& cone : data_.affineCones) {
      for (AffineRow const& row : cone.rows) {
        int const constraint = AddConstraint(NameOfCone(cone.type), row.constant, &row == &cone.rows.front());
        AddTerms(constraint, row.linear);
        AddMatrices(psdEntries_, constraint, row.psd);
      }
    }
  }

  void AddConesOfScatteredColumns() {
    for (Cone const& cone : scattered_) {
      for (std::size_t k = 0; k < cone.cols.size(); ++k) {
        terms_.push_back({AddConstraint(NameOfCone(cone.type), 0.0, k == 0), cone.cols[k], 1.0});
      }
    }
  }

  void AddBounds() {
    std::size_t const before = ranges_;
    for (int j = 0; j < data_.columns.Count(); ++j) {
      ColumnDomain const& domain = columnDomains_[static_cast<std::size_t>(j)];
      auto const stated = [&](double bound, bool lower) {
        if (bound != 0.0) return false;
        int const type = domain.name->coneType;
        if (type > 0) return ImpliesZero(type, domain.place, lower);
        CbfDomain const opposite = lower ? CbfDomain::kNegative : CbfDomain::kPositive;
        return domain.name->domain != opposite && domain.name->domain != CbfDomain::kFree;
      };
      double const lower = stated(Lower(j), true) ? -kInfinity : Lower(j);
      double const upper = stated(Upper(j), false) ? kInfinity : Upper(j);
      if (lower <= -kInfinity && upper >= kInfinity) continue;
      ++bounds_;
      AddInterval(lower, upper, Text("column ", j), [&](int constraint) { terms_.push_back({constraint, j, 1.0}); });
    }
    ranges_ = before;
  }

  // --------------------------------------------------------------------- matrices
  void AddMatrix(MatrixEntries& entries, int owner, int member, int matrix) {
    for (QuadTerm const& element : data_.symMatrices[static_cast<std::size_t>(matrix)].elements) {
      entries[{owner, member, element.col, element.row}] += element.value;
    }
  }
  void AddMatrices(MatrixEntries& entries, int owner, std::vector<PsdTerm> const& terms) {
    for (PsdTerm const& term : terms) AddMatrix(entries, owner, term.psdCol, term.symMat);
  }

  void AddMatrixEntries() {
    AddMatrices(objectiveEntries_, 0, data_.objective.psd);
    for (std::size_t k = 0; k < data_.lmiConstraints.size(); ++k) {
      LmiConstraint const& lmi = data_.lmiConstraints[k];
      for (std::size_t t = 0; t < lmi.cols.size(); ++t) {
        AddMatrix(lmiEntries_, static_cast<int>(k), lmi.cols[t], lmi.symMats[t]);
      }
      if (lmi.constant >= 0) AddMatrix(lmiConstants_, static_cast<int>(k), 0, lmi.constant);
    }
  }

  // --------------------------------------------------------------------- the text
  void TellOfChanges() {
    std::pair<std::size_t, char const*> const changes[] = {
        {ranges_, "rows with two bounds are written as two constraints each"},
        {bounds_, "columns have bounds that are written as constraints"},
        {scattered_.size(), "cones of columns that do not stand side by side are written as affine cones"},
    };
    for (auto const& [count, text] : changes) {
      if (count > 0) written_.warnings.push_back(Text(count, " ", text));
    }
    NameList const* const lists[] = {&data_.columns.names, &data_.rows.names,         &data_.affineConeNames,
                                     &data_.psdColNames,   &data_.psdConstraintNames, &data_.lmiConstraintNames};
    bool const named = std::ranges::any_of(lists, [](NameList const* names) { return names->End() > 0; });
    if (named) written_.warnings.emplace_back("A CBF file holds no names");
  }

  template <typename... Pieces>
  void Line(Pieces const&... pieces) {
    written_.text += Text(pieces...);
    written_.text += '\n';
  }

  void WriteStructure() {
    auto const columnCones = ColumnCones();
    int version = 1;
    for (CbfCone const& cone : columnCones) version = std::max(version, cone.domain->version);
    for (CbfCone const& cone : cones_) version = std::max(version, cone.domain->version);
    Line("VER\n", version, "\n\nOBJSENSE\n", data_.objective.sense < 0 ? "MAX" : "MIN", "\n");
    WriteDimensions("PSDVAR", data_.psdDims);
    WriteCones("VAR", columnCones, columnDomains_.size());
    std::vector<int> integers;
    for (int j = 0; j < data_.columns.Count(); ++j) {
      if (data_.columns.type[static_cast<std::size_t>(j)] != 'C') integers.push_back(j);
    }
    WriteDimensions("INT", integers);
    std::vector<int> lmiDims;
    for (LmiConstraint const& lmi : data_.lmiConstraints) lmiDims.push_back(lmi.dim);
    WriteDimensions("PSDCON", lmiDims);
    WriteCones("CON", cones_, constants_.size());
  }

  std::vector<CbfCone> ColumnCones() const {
    std::vector<CbfCone> cones;
    for (std::size_t j = 0; j < columnDomains_.size();) {
      ColumnDomain const& domain = columnDomains_[j];
      auto end = j + domain.size;
      if (domain.name->coneType == 0) {
        while (end < columnDomains_.size() && columnDomains_[end].name == domain.name) ++end;
      }
      cones.push_back({domain.name, static_cast<int>(end - j)});
      j = end;
    }
    return cones;
  }

  // A section of numbers, one a line.
  void WriteDimensions(char const* title, std::vector<int> const& numbers) {
    if (numbers.empty()) return;
    Line(title, "\n", numbers.size());
    for (int const number : numbers) Line(number);
    Line();
  }

  void WriteCones(char const* title, std::vector<CbfCone> const& cones, std::size_t total) {
    if (total == 0) return;
    Line(title, "\n", total, " ", cones.size());
    for (CbfCone const& cone : cones) Line(cone.domain->name, " ", cone.size);
    Line();
  }

  void WriteCoefficients() {
    WriteMatrices("OBJFCOORD", objectiveEntries_, false, true);
    WriteValues("OBJACOORD", data_.columns.objective);
    if (data_.objective.constant != 0.0) Line("OBJBCOORD\n", NumberText(data_.objective.constant), "\n");
    WriteMatrices("FCOORD", psdEntries_, true, true);
    if (!terms_.empty()) {
      Line("ACOORD\n", terms_.size());
      for (Term const& term : terms_) Line(term.row, " ", term.col, " ", CoefficientText(term.value));
      Line();
    }
    WriteValues("BCOORD", constants_);
    WriteMatrices("HCOORD", lmiEntries_, true, true);
    WriteMatrices("DCOORD", lmiConstants_, true, false);
  }

  void WriteValues(char const* title, std::span<double const> values) {
    auto const count = std::ranges::count_if(values, [](double value) { return value != 0.0; });
    if (count == 0) return;
    Line(title, "\n", count);
    for (std::size_t k = 0; k < values.size(); ++k) {
      if (values[k] != 0.0) Line(k, " ", NumberText(values[k]));
    }
    Line();
  }

  void WriteMatrices(char const* title, MatrixEntries const& entries, bool withOwner, bool withMember) {
    if (entries.empty()) return;
    Line(title, "\n", entries.size());
    for (auto const& [place, value] : entries) {
      std::string const owner = withOwner ? Text(place.owner, " ") : "";
      std::string const member = withMember ? Text(place.member, " ") : "";
      Line(owner, member, place.row, " ", place.col, " ", CoefficientText(value));
    }
    Line();
  }

  struct ColumnDomain {
    CbfDomainName const* name = nullptr;
    std::size_t place = 0;  // within the cone
    std::size_t size = 1;   // of the cone
  };

  ProblemData const& data_;
  WrittenFile written_;
  std::vector<ColumnDomain> columnDomains_;
  std::vector<Cone> scattered_;
  std::vector<CbfCone> cones_;
  std::vector<double> constants_;
  std::vector<Term> terms_;
  MatrixEntries objectiveEntries_;
  MatrixEntries psdEntries_;
  MatrixEntries lmiEntries_;
  MatrixEntries lmiConstants_;
  std::size_t ranges_ = 0;
  std::size_t bounds_ = 0;
};

}  // namespace

WrittenFile WriteCbf(ProblemData const& data) {
  return CbfWriter(data).Write();
}

}  // namespace vorqsolver
