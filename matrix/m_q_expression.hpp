// MQExpression: the cell of a block of quadratic expressions: explicit terms, and a product of two vectors that is kept
// as it is. Its value is
//
//     expr + scale * (sum of side1[i] * side2[i])
//
// where each side is a vector of variables or of linear cells. The vectors share the stores of the blocks that they
// came from; copying a cell copies no vector.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "items/quad_expr.hpp"
#include "matrix/m_expression.hpp"
#include "matrix/strided_vector.hpp"

namespace Vorq {

enum class SideKind : std::uint32_t { kVars = 0, kLins = 1, kNone = 0xFFFFFFFF };

// One factor of a lazy product. Only the vector that `kind` tells is in use.
struct ProductSide {
  ProductSide() = default;
  explicit ProductSide(StridedVector<Var> variables) : kind(SideKind::kVars), vars(std::move(variables)) {}
  explicit ProductSide(StridedVector<MExpression> cells) : kind(SideKind::kLins), lins(std::move(cells)) {}

  std::uint64_t Size() const {
    return kind == SideKind::kVars ? vars.Size() : kind == SideKind::kLins ? lins.Size() : 0;
  }

  SideKind kind = SideKind::kNone;
  StridedVector<Var> vars;
  StridedVector<MExpression> lins;
};

class MQExpression {
 public:
  MQExpression() = default;
  explicit MQExpression(double constant) : expr(constant) {}
  explicit MQExpression(QuadExpr expression) : expr(std::move(expression)) {}
  // The lazy product of two vectors, each of variables or of linear cells. The sum runs over the length of the first.
  template <class First, class Second>
  MQExpression(StridedVector<First> first, StridedVector<Second> second)
      : side1(std::move(first)), side2(std::move(second)) {}
  template <class First, class Second>
  MQExpression(NdArray<First, 1> const& first, NdArray<Second, 1> const& second)
      : MQExpression(StridedVector(first), StridedVector(second)) {}

  // With two linear sides the products of their cells' constants count as well.
  double GetConstant() const;
  void AddConstant(double c) { expr.linear.AddConstant(c); }
  void AddTerm(Var const& var, double c) { expr.AddTerm(var, c); }
  void AddTerm(Var const& first, Var const& second, double c) { expr.AddTerm(first, second, c); }
  void AddLinExpr(Expr const& other, double c) { expr.linear.AddExpr(other, c); }
  void AddMExpression(MExpression const& other, double c) { other.AddTo(expr.linear, c); }
  void AddQuadExpr(QuadExpr const& other, double c) { expr.AddQuadExpr(other, c); }
  void AddProduct(MExpression const& cell, Var const& var);
  void AddProduct(MExpression const& cell, Expr const& other);
  // Adds c times a times b.
  void AddProduct(MExpression const& a, MExpression const& b, double c);
  // Adds c times the value of `other` as explicit terms. The lazy part of this cell stays lazy.
  void AddMQExpression(MQExpression const& other, double c);
  void Multiply(double c);

  // The number of lazy products.
  std::uint64_t LazySize() const { return side1.Size(); }

  // The explicit part with half the limit, then lazy products, one for each 8 characters that are left.
  std::string ToString(std::uint64_t limit) const;

  ProductSide side1;
  ProductSide side2;
  double scale = 1.0;
  QuadExpr expr;

 private:
  void AddLazyPart(MQExpression const& other, double factor);
};

}  // namespace Vorq
