// Writing LP files: one constraint after the other, lines broken between terms.
#include "solver/files/lp_writer.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "solver/files/file_names.hpp"
#include "solver/files/lp_tokens.hpp"
#include "solver/problem/deletion.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

constexpr std::size_t kLineWidth = 100;

// Whether the reader takes the name as one: its characters, and subscripts in brackets.
bool IsLpName(std::string_view name) {
  if (!IsLpNameStart(name.front()) || IsLpKeyword(name)) return false;
  for (std::size_t k = 0; k < name.size(); ++k) {
    if (name[k] == '[') {
      while (k < name.size() && name[k] != ']' && static_cast<unsigned char>(name[k]) > ' ') ++k;
      if (k == name.size() || name[k] != ']') return false;
    } else if (!IsLpNameCharacter(name[k])) {
      return false;
    }
  }
  return true;
}

NameRules const kLpNames = {IsLpName, IsLpNameCharacter, IsLpNameStart};

class LpWriter {
 public:
  explicit LpWriter(ProblemData const& data) : data_(data) {}

  WrittenFile Write() {
    RefuseConicKinds(data_, "LP");
    CheckNoLostColumns(data_);
    FitAllNames();
    WriteObjective();
    WriteConstraints();
    WriteSideRows("Lazy Constraints", data_.lazyConstraints, rowNames_[3]);
    WriteSideRows("User Cuts", data_.userCuts, rowNames_[4]);
    WriteBounds();
    WriteTypes();
    WriteSoss();
    Line("End");
    return std::move(written_);
  }

 private:
  template <typename... Pieces>
  void Line(Pieces const&... pieces) {
    (written_.text.append(pieces), ...);
    written_.text += '\n';
    lineStart_ = written_.text.size();
  }

  // Adds a term, on a new line where this one is full.
  void Term(std::string_view piece) {
    if (written_.text.size() - lineStart_ + piece.size() > kLineWidth && written_.text.back() != '\n') Line();
    written_.text += ' ';
    written_.text += piece;
  }

  void FitAllNames() {
    NameGroup const columns[] = {{"column", "C", &data_.columns.names, data_.columns.Count()}};
    NameGroup const rows[] = {
        {"row", "R", &data_.rows.names, data_.rows.Count()},
        {"quadratic constraint", "Q", &data_.quadConstraintNames, static_cast<int>(data_.quadConstraints.size())},
        {"indicator", "I", &data_.indicatorNames, static_cast<int>(data_.indicators.size())},
        {"lazy constraint", "L", &data_.lazyConstraints.names, data_.lazyConstraints.Count()},
        {"user cut", "U", &data_.userCuts.names, data_.userCuts.Count()},
    };
    columnNames_ = std::move(FitNames(kLpNames, columns, written_.warnings)[0]);
    rowNames_ = FitNames(kLpNames, rows, written_.warnings);
  }

  std::string const& Column(int col) const { return columnNames_[static_cast<std::size_t>(col)]; }

  // --------------------------------------------------------------- expressions
  static std::string Signed(double value) {
    return value < 0.0 ? Text("- ", CoefficientText(-value)) : Text("+ ", CoefficientText(value));
  }

  void LinearPart(std::vector<LinearTerm> const& terms) {
    for (LinearTerm const& term : terms) Term(Text(Signed(term.value), " ", Column(term.col)));
  }

  void LinearPart(SparseMatrix::View row) {
    for (std::size_t k = 0; k < row.indices.size(); ++k) {
      Term(Text(Signed(row.values[k]), " ", Column(row.indices[k])));
    }
  }

  void QuadraticPart(std::vector<QuadTerm> const& terms, double factor) {
    Term("+ [");
    for (QuadTerm const& term : MergedTerms(terms)) {
      std::string const product =
          term.row == term.col ? Text(Column(term.row), " ^2") : Text(Column(term.row), " * ", Column(term.col));
      Term(Text(Signed(factor * term.value), " ", product));
    }
    Term("]");
  }

  // ------------------------------------------------------------------ objective
  void WriteObjective() {
    if (!data_.name.empty()) Line("\\Problem name: ", data_.name);
    Line(data_.objective.sense < 0 ? "Maximize" : "Minimize");
    written_.text += " obj:";
    std::size_t const listed = ListedColumns();
    for (std::size_t j = 0; j < columnNames_.size(); ++j) {
      double const value = data_.columns.objective[j];
      if (value != 0.0 || j < listed) Term(Text(Signed(value), " ", columnNames_[j]));
    }
    if (!data_.objective.quadratic.empty()) {
      QuadraticPart(data_.objective.quadratic, 2.0);
      Term("/ 2");
    }
    if (data_.objective.constant != 0.0) Term(Signed(data_.objective.constant));
    Line();
  }

  // A reader numbers the columns as they come. So many of the first columns must stand in the objective, if need be
  // with the coefficient 0, that all columns come in their order.
  std::size_t ListedColumns() const {
    int listed = 0;
    for (int j = 0; j < data_.columns.Count(); ++j) {
      if (data_.columns.objective[static_cast<std::size_t>(j)] != 0.0) listed = j + 1;
    }
    int next = listed;
    auto const meet = [&](int col) {
      if (col > next) listed = next = col;
      if (col == next) ++next;
    };
    auto const meetTerms = [&](auto const& terms) {
      for (auto const& term : terms) meet(term.col);
    };
    auto const meetRows = [&](auto const& rows) {
      for (int i = 0; i < rows.Count(); ++i) {
        for (int const col : rows.matrix.Row(i).indices) meet(col);
      }
    };
    auto const meetProducts = [&](std::vector<QuadTerm> const& terms) {
      for (QuadTerm const& term : MergedTerms(terms)) meet(term.row), meet(term.col);
    };
    meetProducts(data_.objective.quadratic);
    meetRows(data_.rows);
    for (QuadConstraint const& constraint : data_.quadConstraints) {
      meetTerms(MergedTerms(constraint.linear));
      meetProducts(constraint.quadratic);
    }
    for (Indicator const& indicator : data_.indicators) {
      meet(indicator.binCol);
      meetTerms(MergedTerms(indicator.terms));
    }
    meetRows(data_.lazyConstraints);
    meetRows(data_.userCuts);
    return static_cast<std::size_t>(next < data_.columns.Count() ? data_.columns.Count() : listed);
  }

  // ---------------------------------------------------------------- constraints
  void WriteConstraints() {
    Line("Subject To");
    WriteRows(data_.rows, rowNames_[0]);
    for (std::size_t k = 0; k < data_.quadConstraints.size(); ++k) {
      QuadConstraint const& constraint = data_.quadConstraints[k];
      Label(rowNames_[1][k]);
      LinearPart(MergedTerms(constraint.linear));
      // Without brackets it would read as a linear row.
      bool const bare = constraint.quadratic.empty();
      if (bare && columnNames_.empty()) Refuse("An LP file cannot hold quadratic constraints without columns");
      QuadraticPart(bare ? std::vector<QuadTerm>{{0, 0, 0.0}} : constraint.quadratic, 1.0);
      EndWith(constraint.sense, constraint.rhs);
    }
    for (std::size_t k = 0; k < data_.indicators.size(); ++k) {
      Indicator const& indicator = data_.indicators[k];
      Label(rowNames_[2][k]);
      Term(Text(Column(indicator.binCol), " = ", indicator.binVal, " ->"));
      auto const terms = MergedTerms(indicator.terms);
      LinearPart(terms);
      if (terms.empty()) Term("0");
      EndWith(indicator.sense, indicator.rhs);
    }
  }

  void WriteSideRows(char const* title, SideRows const& rows, std::vector<std::string> const& names) {
    if (rows.Count() == 0) return;
    Line(title);
    WriteRows(rows, names);
  }

  template <typename AnyRows>
  void WriteRows(AnyRows const& rows, std::vector<std::string> const& names) {
    for (std::size_t i = 0; i < names.size(); ++i) {
      WriteRow(names[i], rows.matrix.Row(static_cast<int>(i)), rows.lower[i], rows.upper[i]);
    }
  }

  void WriteRow(std::string const& name, SparseMatrix::View row, double lower, double upper) {
    if (lower == upper && std::abs(lower) >= kInfinity) {
      Refuse("An LP file cannot hold row '", name, "', which has no finite value within its bounds");
    }
    Label(name);
    bool const ranged = lower != upper && lower > -kInfinity && upper < kInfinity;
    if (ranged) Term(Text(NumberText(lower), " <="));
    LinearPart(row);
    if (row.indices.empty()) Term("0");
    if (lower == upper) {
      EndWith('E', lower);
    } else if (upper < kInfinity) {
      EndWith('L', upper);
    } else {
      EndWith('G', lower);
    }
  }

  void Label(std::string const& name) { written_.text += Text(" ", name, ":"); }

  void EndWith(char sense, double rhs) {
    std::string_view const relation = sense == 'E' ? " = " : sense == 'L' ? " <= " : sense == 'G' ? " >= " : "";
    if (relation.empty()) Refuse("An LP file cannot hold a constraint of sense '", sense, "'");
    Line(relation, BoundText(rhs));
  }

  static std::string BoundText(double value) {
    if (value <= -kInfinity) return "-inf";
    return value >= kInfinity ? "inf" : NumberText(value);
  }

  // --------------------------------------------------------------- bounds, types
  void WriteBounds() {
    std::size_t const before = written_.text.size();
    Line("Bounds");
    std::size_t const empty = written_.text.size();
    for (std::size_t j = 0; j < columnNames_.size(); ++j) WriteBoundsOf(j);
    if (written_.text.size() == empty) written_.text.resize(before);
  }

  void WriteBoundsOf(std::size_t j) {
    double lower = data_.columns.lower[j];
    double upper = data_.columns.upper[j];
    bool const binary = data_.columns.type[j] == 'B';
    if (binary && (lower < 0.0 || upper > 1.0)) {
      written_.warnings.push_back(
          Text("The bounds of binary column '", columnNames_[j], "' are written within 0 and 1"));
      lower = std::max(lower, 0.0);
      upper = std::min(upper, 1.0);
    }
    bool const fromZero = lower == 0.0;
    if (fromZero && upper >= (binary ? 1.0 : kInfinity)) return;
    std::string const& name = columnNames_[j];
    if (lower == upper) {
      Line(" ", name, " = ", BoundText(lower));
    } else if (lower <= -kInfinity && upper >= kInfinity) {
      Line(" ", name, " free");
    } else if (upper >= kInfinity) {
      Line(" ", name, " >= ", BoundText(lower));
    } else if (fromZero && upper >= 0.0) {
      Line(" ", name, " <= ", BoundText(upper));
    } else {
      Line(" ", BoundText(lower), " <= ", name, " <= ", BoundText(upper));
    }
  }

  void WriteTypes() {
    for (char const type : data_.columns.type) {
      if (std::string_view("CBISN").find(type) == std::string_view::npos) Refuse("Unknown column type '", type, "'");
    }
    WriteList("Binaries", "B");
    WriteList("Generals", "IN");
    WriteList("Semi-Continuous", "SN");
  }

  void WriteList(std::string_view title, std::string_view types) {
    bool begun = false;
    for (std::size_t j = 0; j < columnNames_.size(); ++j) {
      if (types.find(data_.columns.type[j]) == std::string_view::npos) continue;
      if (!std::exchange(begun, true)) Line(title);
      Term(columnNames_[j]);
    }
    if (begun) Line();
  }

  void WriteSoss() {
    if (!data_.soss.empty()) Line("SOS");
    for (std::size_t k = 0; k < data_.soss.size(); ++k) {
      Sos const& sos = data_.soss[k];
      if (sos.type != 1 && sos.type != 2) Refuse("An LP file cannot hold SOS ", k, " of type ", sos.type);
      written_.text += Text(" set", k + 1, ": S", sos.type, "::");
      for (std::size_t m = 0; m < sos.cols.size(); ++m) {
        double const weight = sos.weights.empty() ? static_cast<double>(m + 1) : sos.weights[m];
        Term(Text(Column(sos.cols[m]), ":", NumberText(weight)));
      }
      Line();
    }
  }

  ProblemData const& data_;
  WrittenFile written_;
  std::size_t lineStart_ = 0;
  std::vector<std::string> columnNames_;
  std::vector<std::vector<std::string>> rowNames_;
};

}  // namespace

WrittenFile WriteLp(ProblemData const& data) {
  return LpWriter(data).Write();
}

}  // namespace vorqsolver
