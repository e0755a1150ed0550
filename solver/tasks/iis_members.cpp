// Stating a set of members as a problem, and evaluating members at a point.
#include "solver/tasks/iis_members.hpp"

#include <algorithm>
#include <cmath>

#include "solver/engines/linear_model.hpp"
#include "solver/engines/mip_model.hpp"
#include "solver/engines/problem_class.hpp"

namespace vorqsolver {

namespace {

bool IsSemicontinuous(char type) {
  return type == 'S' || type == 'N';
}

// Flags by index, one list for each kind.
Iis EmptyFlags(ProblemData const& data) {
  Iis flags;
  flags.colLower.assign(data.columns.type.size(), 0);
  flags.colUpper.assign(data.columns.type.size(), 0);
  flags.rowLower.assign(data.rows.lower.size(), 0);
  flags.rowUpper.assign(data.rows.lower.size(), 0);
  flags.soss.assign(data.soss.size(), 0);
  flags.indicators.assign(data.indicators.size(), 0);
  return flags;
}

// A kind of member and its list of flags, in the order in which members stand.
struct FlagList {
  MemberKind kind;
  std::vector<int> Iis::*flags;
};
constexpr FlagList kFlagLists[] = {{MemberKind::kRowLower, &Iis::rowLower},    {MemberKind::kRowUpper, &Iis::rowUpper},
                                   {MemberKind::kIndicator, &Iis::indicators}, {MemberKind::kSos, &Iis::soss},
                                   {MemberKind::kColLower, &Iis::colLower},    {MemberKind::kColUpper, &Iis::colUpper}};

// Builds the problem that flags state.
class Statement {
 public:
  Statement(ProblemData const& data, Iis const& flags) : data_(data), flags_(flags) {}

  MemberProblem Build(bool lazyAsRows);

 private:
  void MarkColumns();
  void Mark(int col) { place_[static_cast<std::size_t>(col)] = 0; }
  void AddColumns();
  void AddRow(SparseMatrix::View row, double lower, double upper, std::string_view name, int origin);
  void AddRows();
  void AddSosAndIndicators();
  void AddLazy(bool asRows);
  std::vector<int> Moved(std::span<int const> cols) const;

  ProblemData const& data_;
  Iis const& flags_;
  std::vector<int> place_;  // of each column, -1 where it is left out
  MemberProblem stated_;
};

void Statement::MarkColumns() {
  place_.assign(data_.columns.type.size(), Classify(data_).IsLinear() ? -1 : 0);
  auto const markRow = [&](SparseMatrix const& matrix, int row) {
    for (int const col : matrix.Row(row).indices) Mark(col);
  };
  for (int row = 0; row < data_.rows.Count(); ++row) {
    if (flags_.rowLower[row] != 0 || flags_.rowUpper[row] != 0) markRow(data_.rows.matrix, row);
  }
  for (int row = 0; row < data_.lazyConstraints.Count(); ++row) markRow(data_.lazyConstraints.matrix, row);
  for (int col = 0; col < data_.columns.Count(); ++col) {
    if (flags_.colLower[col] != 0 || flags_.colUpper[col] != 0) Mark(col);
  }
  for (std::size_t k = 0; k < data_.soss.size(); ++k) {
    if (flags_.soss[k] == 0) continue;
    for (int const col : data_.soss[k].cols) Mark(col);
  }
  for (std::size_t k = 0; k < data_.indicators.size(); ++k) {
    if (flags_.indicators[k] == 0) continue;
    Mark(data_.indicators[k].binCol);
    for (auto const& term : data_.indicators[k].terms) Mark(term.col);
  }
}

void Statement::AddColumns() {
  auto& to = stated_.data.columns;
  auto const& from = data_.columns;
  to = Columns();
  for (int col = 0; col < from.Count(); ++col) {
    if (place_[col] < 0) continue;
    int const place = to.Count();
    place_[col] = place;
    char const type = from.type[col];
    to.type.push_back(type);
    to.objective.push_back(0.0);
    to.lower.push_back(flags_.colLower[col] != 0 ? from.lower[col] : WithoutLower(type, from.lower[col]));
    to.upper.push_back(flags_.colUpper[col] != 0 ? from.upper[col] : WithoutUpper(type, from.upper[col]));
    auto const name = from.names.Get(col);
    if (!name.empty()) to.names.Set(place, name);
    stated_.cols.push_back(col);
  }
}

std::vector<int> Statement::Moved(std::span<int const> cols) const {
  std::vector<int> moved;
  moved.reserve(cols.size());
  for (int const col : cols) moved.push_back(place_[static_cast<std::size_t>(col)]);
  return moved;
}

void Statement::AddRow(SparseMatrix::View row, double lower, double upper, std::string_view name, int origin) {
  auto& rows = stated_.data.rows;
  rows.matrix.AppendRow(Moved(row.indices), row.values);
  rows.lower.push_back(lower);
  rows.upper.push_back(upper);
  if (!name.empty()) rows.names.Set(rows.Count() - 1, name);
  stated_.rows.push_back(origin);
}

void Statement::AddRows() {
  stated_.data.rows = Rows();
  stated_.data.rows.matrix.AppendEmptyCols(stated_.data.columns.Count());
  for (int row = 0; row < data_.rows.Count(); ++row) {
    bool const hasLower = flags_.rowLower[row] != 0;
    bool const hasUpper = flags_.rowUpper[row] != 0;
    if (!hasLower && !hasUpper) continue;
    AddRow(data_.rows.matrix.Row(row), hasLower ? data_.rows.lower[row] : -kInfinity,
           hasUpper ? data_.rows.upper[row] : kInfinity, data_.rows.names.Get(row), row);
  }
}

void Statement::AddSosAndIndicators() {
  auto& to = stated_.data;
  to.soss.clear();
  for (std::size_t k = 0; k < data_.soss.size(); ++k) {
    if (flags_.soss[k] == 0) continue;
    to.soss.push_back(data_.soss[k]);
    to.soss.back().cols = Moved(data_.soss[k].cols);
  }
  to.indicators.clear();
  to.indicatorNames.Clear();
  for (std::size_t k = 0; k < data_.indicators.size(); ++k) {
    if (flags_.indicators[k] == 0) continue;
    Indicator indicator = data_.indicators[k];
    indicator.binCol = place_[static_cast<std::size_t>(indicator.binCol)];
    for (auto& term : indicator.terms) term.col = place_[static_cast<std::size_t>(term.col)];
    auto const name = data_.indicatorNames.Get(static_cast<int>(k));
    if (!name.empty()) to.indicatorNames.Set(static_cast<int>(to.indicators.size()), name);
    to.indicators.push_back(std::move(indicator));
  }
}

void Statement::AddLazy(bool asRows) {
  auto const& from = data_.lazyConstraints;
  auto& to = stated_.data.lazyConstraints;
  to = SideRows();
  to.matrix.AppendEmptyCols(stated_.data.columns.Count());
  for (int row = 0; row < from.Count(); ++row) {
    auto const view = from.matrix.Row(row);
    if (asRows) {
      AddRow(view, from.lower[row], from.upper[row], from.names.Get(row), -1);
      continue;
    }
    to.matrix.AppendRow(Moved(view.indices), view.values);
    to.lower.push_back(from.lower[row]);
    to.upper.push_back(from.upper[row]);
    if (!from.names.Get(row).empty()) to.names.Set(row, from.names.Get(row));
  }
}

MemberProblem Statement::Build(bool lazyAsRows) {
  if (Classify(data_).IsLinear()) {
    stated_.data.name = data_.name;
  } else {
    stated_.data = data_;
    stated_.data.objective = Objective();
  }
  MarkColumns();
  AddColumns();
  stated_.data.userCuts = SideRows();
  stated_.data.userCuts.matrix.AppendEmptyCols(stated_.data.columns.Count());
  AddRows();
  AddSosAndIndicators();
  AddLazy(lazyAsRows);
  return std::move(stated_);
}

bool IsOutside(double value, double lower, double upper, double tolerance) {
  return (lower > -kInfinity && value < lower - tolerance) || (upper < kInfinity && value > upper + tolerance);
}

// For the kinds that are no single inequality.
bool ViolatesDiscrete(ProblemData const& data, Member member, std::span<double const> values, double tolerance) {
  if (member.kind == MemberKind::kIndicator) {
    auto const& indicator = data.indicators[static_cast<std::size_t>(member.index)];
    if ((values[indicator.binCol] > 0.5) != (indicator.binVal != 0)) return false;
    double activity = 0.0;
    for (auto const& term : indicator.terms) activity += term.value * values[term.col];
    auto const [lower, upper] = SideOf(indicator);
    return IsOutside(activity, lower, upper, tolerance);
  }
  auto const& sos = data.soss[static_cast<std::size_t>(member.index)];
  auto const cols = OrderedMembers(sos);
  int first = -1;
  int last = -1;
  for (int k = 0; k < static_cast<int>(cols.size()); ++k) {
    if (std::abs(values[cols[k]]) <= tolerance) continue;
    if (first < 0) first = k;
    last = k;
  }
  return first >= 0 && last - first >= sos.type;
}

bool ViolatesRow(Rows const& rows, Member member, std::span<double const> values, double tolerance) {
  double activity = 0.0;
  auto const row = rows.matrix.Row(member.index);
  for (std::size_t k = 0; k < row.indices.size(); ++k) activity += row.values[k] * values[row.indices[k]];
  if (member.kind == MemberKind::kRowLower) {
    return IsOutside(activity, rows.lower[member.index], kInfinity, tolerance);
  }
  return IsOutside(activity, -kInfinity, rows.upper[member.index], tolerance);
}

bool ViolatesBound(Columns const& columns, Member member, std::span<double const> values, double tolerance) {
  double const value = values[member.index];
  if (IsSemicontinuous(columns.type[member.index]) && std::abs(value) <= tolerance) return false;
  if (member.kind == MemberKind::kColLower) {
    return IsOutside(value, columns.lower[member.index], kInfinity, tolerance);
  }
  return IsOutside(value, -kInfinity, columns.upper[member.index], tolerance);
}

bool Violates(ProblemData const& data, Member member, std::span<double const> values, double tolerance) {
  switch (member.kind) {
    case MemberKind::kRowLower:
    case MemberKind::kRowUpper: return ViolatesRow(data.rows, member, values, tolerance);
    case MemberKind::kColLower:
    case MemberKind::kColUpper: return ViolatesBound(data.columns, member, values, tolerance);
    default: return ViolatesDiscrete(data, member, values, tolerance);
  }
}

}  // namespace

double WithoutLower(char type, double lower) {
  if (type == 'B') return 0.0;
  return IsSemicontinuous(type) && lower > 0.0 ? 0.0 : -kInfinity;
}

double WithoutUpper(char type, double upper) {
  if (type == 'B') return 1.0;
  return IsSemicontinuous(type) && upper < 0.0 ? 0.0 : kInfinity;
}

Interval HullOf(Columns const& columns, int col) {
  double lower = columns.lower[col];
  double upper = columns.upper[col];
  if (columns.type[col] == 'B') return {std::max(lower, 0.0), std::min(upper, 1.0)};
  if (IsSemicontinuous(columns.type[col])) return {std::min(lower, 0.0), std::max(upper, 0.0)};
  return {lower, upper};
}

Members AllMembers(ProblemData const& data) {
  Iis flags = EmptyFlags(data);
  for (int row = 0; row < data.rows.Count(); ++row) {
    flags.rowLower[row] = data.rows.lower[row] > -kInfinity;
    flags.rowUpper[row] = data.rows.upper[row] < kInfinity;
  }
  std::ranges::fill(flags.indicators, 1);
  std::ranges::fill(flags.soss, 1);
  auto const& columns = data.columns;
  for (int col = 0; col < columns.Count(); ++col) {
    flags.colLower[col] = columns.lower[col] > WithoutLower(columns.type[col], columns.lower[col]);
    flags.colUpper[col] = columns.upper[col] < WithoutUpper(columns.type[col], columns.upper[col]);
  }
  return ToMembers(flags);
}

MemberProblem StateMembers(ProblemData const& data, Members const& members, bool lazyAsRows) {
  Iis const flags = ToIis(data, members);
  return Statement(data, flags).Build(lazyAsRows);
}

Members MembersOfRay(ProblemData const& data, MemberProblem const& stated, std::span<double const> ray) {
  Iis flags = EmptyFlags(data);
  auto const& rows = stated.data.rows;
  auto const& columns = stated.data.columns;
  std::vector<double> combined(columns.type.size(), 0.0);
  std::vector<double> size(columns.type.size(), 0.0);
  for (int row = 0; row < rows.Count(); ++row) {
    if (ray[row] == 0.0) continue;
    int const origin = stated.rows[row];
    if (origin >= 0) (ray[row] > 0.0 ? flags.rowLower : flags.rowUpper)[origin] = 1;
    auto const view = rows.matrix.Row(row);
    for (std::size_t k = 0; k < view.indices.size(); ++k) {
      double const term = ray[row] * view.values[k];
      combined[view.indices[k]] += term;
      size[view.indices[k]] = std::max(size[view.indices[k]], std::abs(term));
    }
  }
  // Sums that are zero but for rounding rest upon no bound, as in the verification of rays.
  constexpr double kCancelled = 1e-8;
  for (int col = 0; col < columns.Count(); ++col) {
    if (std::abs(combined[col]) <= kCancelled * size[col]) continue;
    Columns without;
    without.type = {columns.type[col]};
    without.lower = {WithoutLower(columns.type[col], columns.lower[col])};
    without.upper = {WithoutUpper(columns.type[col], columns.upper[col])};
    auto const [lower, upper] = HullOf(columns, col);
    auto const [lowest, highest] = HullOf(without, 0);
    if (combined[col] > 0.0 && upper < highest) flags.colUpper[stated.cols[col]] = 1;
    if (combined[col] < 0.0 && lower > lowest) flags.colLower[stated.cols[col]] = 1;
  }
  return ToMembers(flags);
}

std::vector<char> Violated(ProblemData const& data, Members const& members, std::span<double const> values,
                           double tolerance) {
  std::vector<char> violated;
  violated.reserve(members.size());
  for (auto const& member : members) violated.push_back(Violates(data, member, values, tolerance) ? 1 : 0);
  return violated;
}

Iis ToIis(ProblemData const& data, Members const& members) {
  Iis flags = EmptyFlags(data);
  for (auto const [kind, index] : members) {
    for (auto const& list : kFlagLists) {
      if (list.kind == kind) (flags.*list.flags)[static_cast<std::size_t>(index)] = 1;
    }
  }
  return flags;
}

Members ToMembers(Iis const& iis) {
  Members members;
  for (auto const& list : kFlagLists) {
    auto const& flags = iis.*list.flags;
    for (std::size_t k = 0; k < flags.size(); ++k) {
      if (flags[k] != 0) members.push_back({list.kind, static_cast<int>(k)});
    }
  }
  return members;
}

}  // namespace vorqsolver
