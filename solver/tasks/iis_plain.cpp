// The search for plain causes: one pass over columns and rows.
#include "solver/tasks/iis_plain.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "solver/problem/failure.hpp"
#include "solver/tasks/validate.hpp"

namespace vorqsolver {

namespace {

class PlainSearch {
 public:
  PlainSearch(ProblemData const& data, ParameterSet const& parameters)
      : data_(data), tolerance_(parameters.Dbl(DblParam::kFeasTol)), rounding_(parameters.Dbl(DblParam::kIntTol)) {}

  PlainCause Run();

 private:
  void Offer(Members members, std::string text);
  bool Crosses(double lower, double upper) const {
    return lower > upper + tolerance_ * std::max(1.0, std::abs(upper)) || lower >= kInfinity || upper <= -kInfinity;
  }
  void OfferCrossing(Member lower, Member upper, double lowerValue, double upperValue, std::string const& owner);
  void CheckColumn(int col);
  void CheckRow(int row);
  void CheckSide(int row, bool isLower);
  void CheckDivisor(int row);
  void DropIdle(int row, bool isLower, Members& members) const;
  double Reach(int row, bool isLower, Members const* kept) const;

  ProblemData const& data_;
  double tolerance_;
  double rounding_;
  PlainCause best_;
};

void PlainSearch::Offer(Members members, std::string text) {
  if (!best_.members.empty() && best_.members.size() <= members.size()) return;
  best_ = {std::move(members), std::move(text)};
}

// An infinite bound on the wrong side leaves no room by itself.
void PlainSearch::OfferCrossing(Member lower, Member upper, double lowerValue, double upperValue,
                                std::string const& owner) {
  if (lowerValue >= kInfinity) {
    Offer({lower}, Text(owner, ": its lower bound is infinite"));
  } else if (upperValue <= -kInfinity) {
    Offer({upper}, Text(owner, ": its upper bound is minus infinity"));
  } else {
    Offer({lower, upper}, Text(owner, ": its lower bound ", lowerValue, " is above its upper bound ", upperValue));
  }
}

void PlainSearch::CheckColumn(int col) {
  auto const& columns = data_.columns;
  char const type = columns.type[col];
  double const lower = columns.lower[col];
  double const upper = columns.upper[col];
  if (type == 'S' || type == 'N') return;
  Member const low = {MemberKind::kColLower, col};
  Member const upp = {MemberKind::kColUpper, col};
  auto const owner = [&] { return Called("column", columns.names, col); };
  if (Crosses(lower, upper)) {
    OfferCrossing(low, upp, lower, upper, owner());
    return;
  }
  bool const isInteger = type == 'B' || type == 'I';
  if (isInteger && std::ceil(lower - rounding_) > std::floor(upper + rounding_)) {
    // A binary column needs no bound of its own for 0 and 1.
    Members members;
    if (type != 'B' || lower > 0.0) members.push_back(low);
    if (type != 'B' || upper < 1.0) members.push_back(upp);
    Offer(std::move(members), Text(owner(), ": no integer lies between its bounds ", lower, " and ", upper));
  }
}

// The greatest activity of a row against its lower side, or the least against its upper one. With `kept`, only these
// bounds of columns count.
double PlainSearch::Reach(int row, bool isLower, Members const* kept) const {
  double reach = 0.0;
  auto const view = data_.rows.matrix.Row(row);
  for (std::size_t k = 0; k < view.indices.size(); ++k) {
    if (view.values[k] == 0.0) continue;
    int const col = view.indices[k];
    bool const usesUpper = (view.values[k] > 0.0) == isLower;
    Member const member = {usesUpper ? MemberKind::kColUpper : MemberKind::kColLower, col};
    auto const [lower, upper] = HullOf(data_.columns, col);
    char const type = data_.columns.type[col];
    double bound = usesUpper ? upper : lower;
    if (kept != nullptr && std::ranges::find(*kept, member) == kept->end()) {
      bound = usesUpper ? WithoutUpper(type, upper) : WithoutLower(type, lower);
    }
    if (std::abs(bound) >= kInfinity) return isLower ? kInfinity : -kInfinity;
    reach += view.values[k] * bound;
  }
  return reach;
}

void PlainSearch::CheckSide(int row, bool isLower) {
  double const side = isLower ? data_.rows.lower[row] : data_.rows.upper[row];
  if (std::abs(side) >= kInfinity) return;
  double const reach = Reach(row, isLower, nullptr);
  // Beyond rounding, so that a solve finds the same.
  double const margin = 10.0 * tolerance_ * std::max({1.0, std::abs(side), std::abs(reach)});
  if (isLower ? reach >= side - margin : reach <= side + margin) return;
  auto const view = data_.rows.matrix.Row(row);
  Members members = {{isLower ? MemberKind::kRowLower : MemberKind::kRowUpper, row}};
  for (std::size_t k = 0; k < view.indices.size(); ++k) {
    if (view.values[k] == 0.0) continue;
    int const col = view.indices[k];
    char const type = data_.columns.type[col];
    if (type == 'S' || type == 'N') return;
    bool const usesUpper = (view.values[k] > 0.0) == isLower;
    if (usesUpper ? data_.columns.upper[col] < WithoutUpper(type, 0.0)
                  : data_.columns.lower[col] > WithoutLower(type, 0.0)) {
      members.push_back({usesUpper ? MemberKind::kColUpper : MemberKind::kColLower, col});
    }
  }
  if (!best_.members.empty() && best_.members.size() <= members.size()) return;
  DropIdle(row, isLower, members);
  Offer(std::move(members), Text(Called("row", data_.rows.names, row), ": it asks for ",
                                 isLower ? "at least " : "at most ", side, " and reaches ", reach + 0.0));
}

// Bounds of binary columns may be idle, as 0 and 1 hold without them.
void PlainSearch::DropIdle(int row, bool isLower, Members& members) const {
  double const side = isLower ? data_.rows.lower[row] : data_.rows.upper[row];
  for (std::size_t k = members.size(); k-- > 1;) {
    if (data_.columns.type[members[k].index] != 'B') continue;
    Members fewer = members;
    fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(k));
    double const reach = Reach(row, isLower, &fewer);
    double const margin = 10.0 * tolerance_ * std::max({1.0, std::abs(side), std::abs(reach)});
    if (isLower ? reach < side - margin : reach > side + margin) members = std::move(fewer);
  }
}

void PlainSearch::CheckRow(int row) {
  double const lower = data_.rows.lower[row];
  double const upper = data_.rows.upper[row];
  if (Crosses(lower, upper)) {
    OfferCrossing({MemberKind::kRowLower, row}, {MemberKind::kRowUpper, row}, lower, upper,
                  Called("row", data_.rows.names, row));
    return;
  }
  CheckSide(row, true);
  CheckSide(row, false);
  CheckDivisor(row);
}

// A row of integers has an activity that the greatest common divisor of its coefficients divides.
void PlainSearch::CheckDivisor(int row) {
  constexpr double kGreatest = 1e9;
  double const lower = data_.rows.lower[row];
  double const upper = data_.rows.upper[row];
  if (lower <= -kGreatest || upper >= kGreatest) return;
  long divisor = 0;
  auto const view = data_.rows.matrix.Row(row);
  for (std::size_t k = 0; k < view.indices.size(); ++k) {
    char const type = data_.columns.type[view.indices[k]];
    double const value = view.values[k];
    if (type != 'B' && type != 'I') return;
    if (std::abs(value) > kGreatest || value != std::round(value)) return;
    divisor = std::gcd(divisor, std::lround(value));
  }
  if (divisor == 0) return;
  auto const unit = static_cast<double>(divisor);
  if (std::ceil(lower / unit - rounding_) <= std::floor(upper / unit + rounding_)) return;
  Offer({{MemberKind::kRowLower, row}, {MemberKind::kRowUpper, row}},
        Text(Called("row", data_.rows.names, row), ": its activity is a multiple of ", divisor,
             ", and none lies between ", lower, " and ", upper));
}

PlainCause PlainSearch::Run() {
  for (int col = 0; col < data_.columns.Count(); ++col) CheckColumn(col);
  for (int row = 0; row < data_.rows.Count(); ++row) CheckRow(row);
  return std::move(best_);
}

}  // namespace

PlainCause FindPlainCause(ProblemData const& data, ParameterSet const& parameters) {
  return PlainSearch(data, parameters).Run();
}

}  // namespace vorqsolver
