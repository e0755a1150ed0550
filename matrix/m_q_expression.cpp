// The operations of quadratic cells.
#include "matrix/m_q_expression.hpp"

#include <sstream>

#include "items/printing.hpp"
#include "matrix/lazy_text.hpp"

namespace Vorq {
namespace {

// Adds c times a cell times a variable. A constant of 0 gives no term here.
void AddScaledProduct(QuadExpr& target, MExpression const& cell, Var const& var, double c) {
  if (cell.GetConstant() != 0.0) target.AddTerm(var, cell.GetConstant() * c);
  cell.ForEachTerm([&](Var const& other, double factor) { target.AddTerm(other, var, factor * c); });
}

void WriteFactor(std::ostream& out, ProductSide const& side, std::uint64_t i) {
  if (side.kind == SideKind::kVars) {
    out << side.vars[i].GetName();
  } else {
    out << '(' << side.lins[i].ToString(kPrintLimit) << ')';
  }
}

}  // namespace

double MQExpression::GetConstant() const {
  double constant = expr.linear.constant;
  if (side1.kind == SideKind::kLins && side2.kind == SideKind::kLins) {
    for (std::uint64_t i = 0; i < side1.Size(); ++i) {
      constant += side1.lins[i].GetConstant() * side2.lins[i].GetConstant() * scale;
    }
  }
  return constant;
}

void MQExpression::AddProduct(MExpression const& cell, Var const& var) {
  cell.WithExplicitPart([&](Expr const& part) { expr.AddProduct(part, var); });
  cell.ForEachLazyTerm([&](Var const& other, double factor) { expr.AddTerm(other, var, factor); });
}

void MQExpression::AddProduct(MExpression const& cell, Expr const& other) {
  cell.WithExplicitPart([&](Expr const& part) { expr.AddProduct(part, other); });
  MakeRoomForMore(cell.LazySize() * other.Size(), expr.coeffs, expr.vars1, expr.vars2);
  cell.ForEachLazyTerm([&](Var const& var, double factor) {
    if (other.constant != 0.0) expr.AddTerm(var, factor * other.constant);
    for (std::size_t j = 0; j < other.Size(); ++j) expr.AddTerm(var, other.vars[j], factor * other.coeffs[j]);
  });
}

void MQExpression::AddProduct(MExpression const& a, MExpression const& b, double c) {
  if (c == 1.0) {
    b.WithExplicitPart([&](Expr const& part) { AddProduct(a, part); });
  } else {
    Expr scaled = b.ExplicitPart();
    scaled.Multiply(c);
    AddProduct(a, scaled);
  }
  b.ForEachLazyTerm([&](Var const& var, double factor) { AddScaledProduct(expr, a, var, factor * c); });
}

void MQExpression::AddMQExpression(MQExpression const& other, double c) {
  expr.AddQuadExpr(other.expr, c);
  if (c != 0.0 && other.scale != 0.0) AddLazyPart(other, other.scale * c);
}

void MQExpression::AddLazyPart(MQExpression const& other, double factor) {
  ProductSide const& first = other.side1;
  ProductSide const& second = other.side2;
  std::uint64_t const count = first.Size();
  if (first.kind == SideKind::kVars && second.kind == SideKind::kVars) {
    MakeRoomForMore(count, expr.coeffs, expr.vars1, expr.vars2);
    for (std::uint64_t i = 0; i < count; ++i) expr.AddTerm(first.vars[i], second.vars[i], factor);
  } else if (first.kind == SideKind::kLins && second.kind == SideKind::kLins) {
    for (std::uint64_t i = 0; i < count; ++i) AddProduct(first.lins[i], second.lins[i], factor);
  } else if (count > 0) {
    bool const variablesFirst = first.kind == SideKind::kVars;
    StridedVector<Var> const& variables = variablesFirst ? first.vars : second.vars;
    StridedVector<MExpression> const& cells = variablesFirst ? second.lins : first.lins;
    Expr term(variables[0], factor);
    for (std::uint64_t i = 0; i < count; ++i) {
      term.vars[0] = variables[i];
      AddProduct(cells[i], term);
    }
  }
}

void MQExpression::Multiply(double c) {
  if (c == 0.0) {
    expr.Clear();
    scale = 0.0;
  } else {
    expr.Multiply(c);
    scale *= c;
  }
}

std::string MQExpression::ToString(std::uint64_t limit) const {
  std::string text = expr.ToString(ExplicitLimit(limit));
  std::ostringstream lazyText;
  std::uint64_t const shown = ShownLazyTerms(LazySize(), limit, text.size());
  for (std::uint64_t i = 0; i < shown; ++i) {
    lazyText << " + ";
    WriteFactor(lazyText, side1, i);
    lazyText << " * ";
    WriteFactor(lazyText, side2, i);
  }
  if (shown < LazySize()) lazyText << kMoreTerms;
  return text + lazyText.str();
}

}  // namespace Vorq
