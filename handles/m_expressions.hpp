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
  void AddTerm(IVar* v, double c) override { this->Do(VORQ_CALL(AddTerm, v, c)); }
  void AddMExpression(IMExpression* m, double c) override { this->Do(VORQ_CALL(AddMExpression, m, c)); }
  void Multiply(double c) override { this->Impl().Multiply(c); }
  Interface* Clone() override { return Wrap<Interface>(this->Impl()); }
  std::string ToString(std::uint64_t limit) override { return this->Impl().ToString(limit); }
};

}  // namespace Vorq

class VorqMExpression final : public Vorq::CellHandle<VorqMExpression, Vorq::IMExpression, Vorq::MExpression> {
 public:
  using CellHandle::CellHandle;

  void SetConstant(double c) override { Impl().SetConstant(c); }
  void AddExpr(Vorq::IExpr* e, double c) override { Do(VORQ_CALL(AddExpr, e, c)); }
};

class VorqMQExpression final : public Vorq::CellHandle<VorqMQExpression, Vorq::IMQExpression, Vorq::MQExpression> {
 public:
  using CellHandle::AddTerm;
  using CellHandle::CellHandle;

  void AddTerm(Vorq::IVar* first, Vorq::IVar* second, double c) override { Do(VORQ_CALL(AddTerm, first, second, c)); }
  void AddLinExpr(Vorq::IExpr* e, double c) override { Do(VORQ_CALL(AddLinExpr, e, c)); }
  void AddQuadExpr(Vorq::IQuadExpr* q, double c) override { Do(VORQ_CALL(AddQuadExpr, q, c)); }
  void AddProduct(Vorq::IMExpression* m, Vorq::IVar* v) override { Do(VORQ_CALL(AddProduct, m, v)); }
  void AddProduct(Vorq::IMExpression* m, Vorq::IExpr* e) override { Do(VORQ_CALL(AddProduct, m, e)); }
  void AddProduct(Vorq::IMExpression* a, Vorq::IMExpression* b, double c) override {
    Do(VORQ_CALL(AddProduct, a, b, c));
  }
  void AddMQExpression(Vorq::IMQExpression* m, double c) override { Do(VORQ_CALL(AddMQExpression, m, c)); }
};
