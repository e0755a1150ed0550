// Reading the expressions of LP files.
#include "solver/files/lp_expression.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vorqsolver {

double Clipped(double value) {
  return std::clamp(value, -kInfinity, kInfinity);
}

void LpExpression::Add(LpExpression const& other, double factor) {
  for (LinearTerm const& term : other.linear) linear.push_back({term.col, factor * term.value});
  for (QuadTerm const& term : other.quadratic) quadratic.push_back({term.row, term.col, factor * term.value});
  constant += factor * other.constant;
}

LpExpression LpExpressions::Read(LpSide side) {
  LpExpression expression;
  while (!EndsBefore(expression, side)) {
    bool signStated = false;
    double const sign = TakeSigns(signStated);
    if (expression.stated && !signStated) break;
    ReadTerm(expression, sign, side);
    expression.stated = true;
  }
  return expression;
}

bool LpExpressions::EndsBefore(LpExpression const& expression, LpSide side) {
  LpToken const& token = tokens_.Peek();
  switch (token.kind) {
    case LpTokenKind::kName: return expression.stated || tokens_.AtSection() || AtLabel();
    case LpTokenKind::kNumber:
    case LpTokenKind::kOpen: return expression.stated;
    case LpTokenKind::kPlus:
    case LpTokenKind::kMinus: return side == LpSide::kRight && expression.stated && token.firstOnLine;
    default: return true;
  }
}

double LpExpressions::TakeSigns(bool& stated) {
  double sign = 1.0;
  for (;;) {
    if (tokens_.TakeIf(LpTokenKind::kMinus)) {
      sign = -sign;
    } else if (!tokens_.TakeIf(LpTokenKind::kPlus)) {
      return sign;
    }
    stated = true;
  }
}

bool LpExpressions::AtLabel() {
  auto const behind = tokens_.Peek(1).kind;
  return behind == LpTokenKind::kColon || behind == LpTokenKind::kDoubleColon;
}

void LpExpressions::ReadTerm(LpExpression& expression, double sign, LpSide side) {
  LpToken const token = tokens_.Peek();
  if (token.kind == LpTokenKind::kOpen) {
    ReadQuadratic(expression, sign);
    return;
  }
  if (token.kind == LpTokenKind::kName && IsInfinityWord(token.text)) {
    tokens_.Take();
    expression.constant += sign * kInfinity;
    return;
  }
  double value = sign;
  if (token.kind == LpTokenKind::kNumber) {
    value *= tokens_.Take().value;
    LpToken const& next = tokens_.Peek();
    bool const star = next.kind == LpTokenKind::kStar;
    bool const apart = side != LpSide::kLeft && next.firstOnLine;
    if (!star && (next.kind != LpTokenKind::kName || apart || tokens_.AtSection() || AtLabel())) {
      expression.constant += value;
      return;
    }
    if (star) tokens_.Take();
  }
  if (tokens_.AtSection()) tokens_.RefuseToken(tokens_.Peek(), "a term");
  expression.linear.push_back({TakeColumn(), value});
}

// "[ x^2 + 2 x * y ] / 2"; a product may also be written without '*'.
void LpExpressions::ReadQuadratic(LpExpression& expression, double sign) {
  tokens_.Take();
  std::size_t const begin = expression.quadratic.size();
  do {
    ReadQuadTerm(expression, expression.quadratic.size() == begin);
  } while (tokens_.Peek().kind != LpTokenKind::kClose);
  tokens_.Take();
  double divisor = 1.0;
  if (tokens_.TakeIf(LpTokenKind::kSlash)) {
    LpToken const number = tokens_.Take();
    if (number.kind != LpTokenKind::kNumber || number.value == 0.0) tokens_.RefuseToken(number, "a divisor");
    divisor = number.value;
  }
  for (std::size_t k = begin; k < expression.quadratic.size(); ++k) {
    expression.quadratic[k].value = sign * expression.quadratic[k].value / divisor;
  }
}

void LpExpressions::ReadQuadTerm(LpExpression& expression, bool first) {
  bool signStated = false;
  double value = TakeSigns(signStated);
  if (!first && !signStated) tokens_.RefuseToken(tokens_.Peek(), "'+', '-' or ']'");
  if (tokens_.Peek().kind == LpTokenKind::kNumber) {
    value *= tokens_.Take().value;
    tokens_.TakeIf(LpTokenKind::kStar);
  }
  int const row = TakeColumn();
  int col = row;
  if (tokens_.TakeIf(LpTokenKind::kCaret)) {
    LpToken const power = tokens_.Take();
    if (power.kind != LpTokenKind::kNumber || power.value != 2.0) tokens_.RefuseToken(power, "the power 2");
  } else {
    bool const star = tokens_.TakeIf(LpTokenKind::kStar);
    if (!star && tokens_.Peek().kind != LpTokenKind::kName) tokens_.RefuseToken(tokens_.Peek(), "'^2' or '*'");
    col = TakeColumn();
  }
  expression.quadratic.push_back({row, col, value});
}

int LpExpressions::TakeColumn() {
  LpToken const token = tokens_.Take();
  if (token.kind != LpTokenKind::kName || IsInfinityWord(token.text)) tokens_.RefuseToken(token, "a term");
  return ColumnOf(token.text);
}

int LpExpressions::TakeKnownColumn() {
  LpToken const token = tokens_.Take();
  if (token.kind != LpTokenKind::kName) tokens_.RefuseToken(token, "a column");
  auto const found = index_.find(token.text);
  if (found == index_.end()) tokens_.Refuse(token, "unknown column '", token.text, "'");
  return found->second;
}

int LpExpressions::ColumnOf(std::string_view name) {
  auto const [place, added] = index_.emplace(name, static_cast<int>(names_.size()));
  if (added) names_.push_back(name);
  return place->second;
}

bool LpExpressions::AtBound() {
  LpToken const& token = tokens_.Peek();
  return token.kind == LpTokenKind::kNumber || token.kind == LpTokenKind::kPlus || token.kind == LpTokenKind::kMinus ||
         (token.kind == LpTokenKind::kName && IsInfinityWord(token.text));
}

double LpExpressions::ReadBound() {
  bool signStated = false;
  double const sign = TakeSigns(signStated);
  LpToken const token = tokens_.Take();
  if (token.kind == LpTokenKind::kNumber) return Clipped(sign * token.value);
  if (token.kind != LpTokenKind::kName || !IsInfinityWord(token.text)) tokens_.RefuseToken(token, "a number");
  return sign * kInfinity;
}

}  // namespace vorqsolver
