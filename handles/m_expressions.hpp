// The handles on the cells of blocks of expressions.
#pragma once

#include <cstdint>
#include <string>

#include "handles/expressions.hpp"
#include "handles/handle.hpp"
#include "handles/items.hpp"
#include "matrix/m_expression.hpp"
#include "matrix/m_q_expression.hpp"
#include "vorqmodel/m_expression.h"
#include "vorqmodel/m_q_expression.h"

class VorqMExpression;
class VorqMQExpression;

template <>
struct Vorq::HandleTraits<Vorq::IMExpression> {
  using Handle = VorqMExpression;
};
template <>
struct Vorq::HandleTraits<Vorq::IMQExpression> {
  using Handle = VorqMQExpression;
};

namespace Vorq {

// What both kinds of cells have.
template <class Derived, class Interface, class Cell>
class CellHandle : public Handle<Derived, Interface, Cell> {
 public:
  using Handle<Derived, Interface, Cell>::Handle;
  using Interface::AddTerm;

  double GetConstant() override { return this->Impl().GetConstant(); }
  void AddConstant(double c) override { this->Impl().AddConstant(c); }
  void AddTerm(IVar* v, double c) override { this->Impl().AddTerm(Unwrap(v), c); }
  void AddMExpression(IMExpression* m, double c) override;
  void Multiply(double c) override { this->Impl().Multiply(c); }
  Interface* Clone() override { return Wrap<Interface>(this->Impl()); }
  std::string ToString(std::uint64_t limit) override { return this->Impl().ToString(limit); }
};

}  // namespace Vorq

class VorqMExpression final : public Vorq::CellHandle<VorqMExpression, Vorq::IMExpression, Vorq::MExpression> {
 public:
  using CellHandle::CellHandle;

  void SetConstant(double c) override { Impl().SetConstant(c); }
  void AddExpr(Vorq::IExpr* e, double c) override { Impl().AddExpr(Vorq::Unwrap(e), c); }
};

class VorqMQExpression final : public Vorq::CellHandle<VorqMQExpression, Vorq::IMQExpression, Vorq::MQExpression> {
 public:
  using CellHandle::AddTerm;
  using CellHandle::CellHandle;

  void AddTerm(Vorq::IVar* first, Vorq::IVar* second, double c) override {
    Impl().AddTerm(Vorq::Unwrap(first), Vorq::Unwrap(second), c);
  }
  void AddLinExpr(Vorq::IExpr* e, double c) override { Impl().AddLinExpr(Vorq::Unwrap(e), c); }
  void AddQuadExpr(Vorq::IQuadExpr* q, double c) override { Impl().AddQuadExpr(Vorq::Unwrap(q), c); }
  void AddProduct(Vorq::IMExpression* m, Vorq::IVar* v) override {
    Impl().AddProduct(Vorq::Unwrap(m), Vorq::Unwrap(v));
  }
  void AddProduct(Vorq::IMExpression* m, Vorq::IExpr* e) override {
    Impl().AddProduct(Vorq::Unwrap(m), Vorq::Unwrap(e));
  }
  void AddProduct(Vorq::IMExpression* a, Vorq::IMExpression* b, double c) override {
    Impl().AddProduct(Vorq::Unwrap(a), Vorq::Unwrap(b), c);
  }
  void AddMQExpression(Vorq::IMQExpression* m, double c) override { Impl().AddMQExpression(Vorq::Unwrap(m), c); }
};

namespace Vorq {

template <class Derived, class Interface, class Cell>
void CellHandle<Derived, Interface, Cell>::AddMExpression(IMExpression* m, double c) {
  this->Impl().AddMExpression(Unwrap(m), c);
}

}  // namespace Vorq
