// LpExpressions: reads the expressions of an LP file; columns come up as their names are first met.
#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

#include "solver/files/lp_tokens.hpp"
#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

struct LpExpression {
  std::vector<LinearTerm> linear;
  std::vector<QuadTerm> quadratic;
  double constant = 0.0;
  bool stated = false;  // whether there was any term

  bool IsConstant() const { return linear.empty() && quadratic.empty(); }

  // Adds `factor` times the other.
  void Add(LpExpression const& other, double factor);
};

// How an expression ends besides at a token that cannot belong to it: a right side ends with its line, and where the
// left side was a number, a number and a name on different lines do not make a term.
enum class LpSide { kLeft, kMiddle, kRight };

class LpExpressions {
 public:
  explicit LpExpressions(LpTokens& tokens) : tokens_(tokens) {}

  LpExpression Read(LpSide side);

  // A number with a sign, or an infinite one.
  double ReadBound();
  bool AtBound();

  int ColumnOf(std::string_view name);

  // The column of the name at hand; fails for one that no expression has.
  int TakeKnownColumn();

  std::vector<std::string_view> const& Names() const { return names_; }

 private:
  bool EndsBefore(LpExpression const& expression, LpSide side);
  double TakeSigns(bool& stated);
  void ReadTerm(LpExpression& expression, double sign, LpSide side);
  void ReadQuadratic(LpExpression& expression, double sign);
  void ReadQuadTerm(LpExpression& expression, bool first);
  int TakeColumn();
  bool AtLabel();

  LpTokens& tokens_;
  std::unordered_map<std::string_view, int> index_;
  std::vector<std::string_view> names_;
};

// The values clipped to the infinite ones.
double Clipped(double value);

}  // namespace vorqsolver
