// The two phases on a dense tableau, with Bland's rule, so that it ends.
#include "tests/solver/engines/exact_simplex.hpp"

#include <numeric>
#include <optional>
#include <stdexcept>

namespace {

__extension__ using Wide = __int128;

// A fraction in lowest terms with a positive denominator. Throws where it outgrows the integers.
class Fraction {
 public:
  Fraction(Wide numerator = 0, Wide denominator = 1) : numerator_(numerator), denominator_(denominator) {
    if (denominator_ < 0) numerator_ = -numerator_, denominator_ = -denominator_;
    Wide const divisor = Divisor(numerator_ < 0 ? -numerator_ : numerator_, denominator_);
    numerator_ /= divisor;
    denominator_ /= divisor;
    Wide const most = Wide(1) << 62;
    if (numerator_ > most || numerator_ < -most || denominator_ > most) throw std::overflow_error("fraction");
  }

  Fraction operator-() const { return {-numerator_, denominator_}; }
  Fraction operator+(Fraction const& other) const {
    return {numerator_ * other.denominator_ + other.numerator_ * denominator_, denominator_ * other.denominator_};
  }
  Fraction operator-(Fraction const& other) const { return *this + -other; }
  Fraction operator*(Fraction const& other) const {
    return {numerator_ * other.numerator_, denominator_ * other.denominator_};
  }
  Fraction operator/(Fraction const& other) const {
    return {numerator_ * other.denominator_, denominator_ * other.numerator_};
  }
  int Sign() const { return numerator_ > 0 ? 1 : numerator_ < 0 ? -1 : 0; }
  double Value() const { return static_cast<double>(numerator_) / static_cast<double>(denominator_); }

 private:
  static Wide Divisor(Wide a, Wide b) {
    while (b != 0) {
      Wide const rest = a % b;
      a = b;
      b = rest;
    }
    return a;
  }

  Wide numerator_;
  Wide denominator_;
};

// Columns x = offset + sum of sign times a nonnegative variable; rows as equations with nonnegative right sides, each
// with an artificial variable in the basis.
class Tableau {
 public:
  explicit Tableau(ExactProblem const& problem);
  ExactResult Solve();

 private:
  void AddRow(ExactRow const& row);
  void Pivot(std::size_t row, std::size_t entering);
  bool Minimise(std::vector<Fraction> const& cost, std::size_t allowed);
  Fraction ValueOf(std::vector<Fraction> const& cost) const;

  ExactProblem const& problem_;
  std::vector<std::size_t> first_;  // the first variable of each column
  std::size_t own_ = 0;             // variables of columns and slacks
  std::size_t nextSlack_ = 0;
  std::vector<std::vector<Fraction>> cells_;  // the right side comes last
  std::vector<std::size_t> basis_;
};

Tableau::Tableau(ExactProblem const& problem) : problem_(problem) {
  std::vector<ExactRow> rows = problem.rows;
  for (std::size_t col = 0; col < problem.columns.size(); ++col) {
    auto const& column = problem.columns[col];
    first_.push_back(own_);
    own_ += column.isFree ? 2 : 1;
    if (column.isFree) continue;
    ExactRow upper{std::vector<int>(problem.columns.size(), 0), 'L', column.upper};
    upper.coefs[col] = 1;
    rows.push_back(upper);
  }
  nextSlack_ = own_;
  for (auto const& row : rows) own_ += row.sense == 'E' ? 0 : 1;
  cells_.assign(rows.size(), std::vector<Fraction>(own_ + rows.size() + 1));
  for (auto const& row : rows) AddRow(row);
}

void Tableau::AddRow(ExactRow const& row) {
  std::size_t const place = basis_.size();
  auto& cells = cells_[place];
  Fraction side = row.side;
  for (std::size_t col = 0; col < row.coefs.size(); ++col) {
    Fraction const value = row.coefs[col];
    cells[first_[col]] = value;
    if (problem_.columns[col].isFree) {
      cells[first_[col] + 1] = -value;
    } else {
      side = side - value * problem_.columns[col].lower;
    }
  }
  if (row.sense != 'E') cells[nextSlack_++] = row.sense == 'L' ? 1 : -1;
  cells.back() = side;
  if (side.Sign() < 0) {
    for (auto& cell : cells) cell = -cell;
  }
  cells[own_ + place] = 1;
  basis_.push_back(own_ + place);
}

void Tableau::Pivot(std::size_t row, std::size_t entering) {
  Fraction const pivot = cells_[row][entering];
  for (auto& cell : cells_[row]) cell = cell / pivot;
  for (std::size_t other = 0; other < cells_.size(); ++other) {
    Fraction const factor = cells_[other][entering];
    if (other == row || factor.Sign() == 0) continue;
    for (std::size_t k = 0; k < cells_[row].size(); ++k) {
      if (cells_[row][k].Sign() != 0) cells_[other][k] = cells_[other][k] - factor * cells_[row][k];
    }
  }
  basis_[row] = entering;
}

Fraction Tableau::ValueOf(std::vector<Fraction> const& cost) const {
  Fraction value;
  for (std::size_t row = 0; row < cells_.size(); ++row) value = value + cost[basis_[row]] * cells_[row].back();
  return value;
}

// False where the cost falls for ever. Only the variables before `allowed` may enter.
bool Tableau::Minimise(std::vector<Fraction> const& cost, std::size_t allowed) {
  for (;;) {
    std::optional<std::size_t> entering;
    for (std::size_t k = 0; k < allowed && !entering; ++k) {
      Fraction reduced = cost[k];
      for (std::size_t row = 0; row < cells_.size(); ++row) reduced = reduced - cost[basis_[row]] * cells_[row][k];
      if (reduced.Sign() < 0) entering = k;
    }
    if (!entering) return true;
    std::optional<std::size_t> leaving;
    for (std::size_t row = 0; row < cells_.size(); ++row) {
      if (cells_[row][*entering].Sign() <= 0) continue;
      if (!leaving) {
        leaving = row;
        continue;
      }
      int const order =
          (cells_[row].back() / cells_[row][*entering] - cells_[*leaving].back() / cells_[*leaving][*entering]).Sign();
      if (order < 0 || (order == 0 && basis_[row] < basis_[*leaving])) leaving = row;
    }
    if (!leaving) return false;
    Pivot(*leaving, *entering);
  }
}

ExactResult Tableau::Solve() {
  std::vector<Fraction> artificial(own_ + cells_.size(), 0);
  for (std::size_t k = own_; k < artificial.size(); ++k) artificial[k] = 1;
  Minimise(artificial, own_);
  if (ValueOf(artificial).Sign() > 0) return {ExactResult::Outcome::kInfeasible, 0.0};
  // An artificial variable that stays in the basis at 0 must not grow again.
  for (std::size_t row = 0; row < cells_.size(); ++row) {
    if (basis_[row] < own_) continue;
    for (std::size_t k = 0; k < own_; ++k) {
      if (cells_[row][k].Sign() == 0) continue;
      Pivot(row, k);
      break;
    }
  }
  std::vector<Fraction> cost(own_ + cells_.size(), 0);
  Fraction constant;
  for (std::size_t col = 0; col < problem_.columns.size(); ++col) {
    auto const& column = problem_.columns[col];
    cost[first_[col]] = column.cost;
    if (column.isFree) cost[first_[col] + 1] = -column.cost;
    if (!column.isFree) constant = constant + Fraction(column.cost) * column.lower;
  }
  if (!Minimise(cost, own_)) return {ExactResult::Outcome::kUnbounded, 0.0};
  return {ExactResult::Outcome::kOptimal, (ValueOf(cost) + constant).Value()};
}

}  // namespace

ExactResult SolveExactly(ExactProblem const& problem) {
  return Tableau(problem).Solve();
}
