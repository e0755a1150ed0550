// The handles on blocks of expressions.
#pragma once

#include "handles/matrix_items.hpp"

template <int N>
class VorqMLinExpr final
    : public Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMLinExpr<N>, Vorq::MExpression, N>> {
 public:
  using Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMLinExpr<N>, Vorq::MExpression, N>>::ExpressionBlockHandle;

  void AddExpr(Vorq::IExpr* e, double c) override { this->AddToEach(Vorq::Unwrap(e), c); }
};

template <int N>
class VorqMQuadExpr final
    : public Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMQuadExpr<N>, Vorq::MQExpression, N>> {
  using Base = Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMQuadExpr<N>, Vorq::MQExpression, N>>;

 public:
  using Base::AddTerm;
  using Base::Base;

  void AddTerm(Vorq::IVar* first, Vorq::IVar* second, double c) override {
    this->Impl().ForEach([&var1 = Vorq::Unwrap(first), &var2 = Vorq::Unwrap(second), c](Vorq::MQExpression& cell) {
      cell.AddTerm(var1, var2, c);
    });
  }
  void AddLinExpr(Vorq::IExpr* e, double c) override { this->AddToEach(Vorq::Unwrap(e), c); }
  void AddQuadExpr(Vorq::IQuadExpr* q, double c) override { this->AddToEach(Vorq::Unwrap(q), c); }
  void AddMQExpression(Vorq::IMQExpression* m, double c) override { this->AddToEach(Vorq::Unwrap(m), c); }
  void AddMQuadExpr(Vorq::IMQuadExpr<N>* other, double c) override { this->Impl().AddBlock(Vorq::Unwrap(other), c); }
};

template <int N>
class VorqMPsdExpr final : public Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMPsdExpr<N>, Vorq::PsdExpr, N>> {
  using Base = Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMPsdExpr<N>, Vorq::PsdExpr, N>>;

 public:
  using Base::AddTerm;
  using Base::Base;
  using Base::Set;

  void Set(std::uint64_t index, Vorq::IMExpression* value) override {
    this->Impl().Set(index, Vorq::PsdExprOf(Vorq::Unwrap(value)));
  }
  void AddTerm(Vorq::IPsdVar* v, Vorq::ISymMatrix* m) override { AddPsdTerm(Vorq::Unwrap(v), Vorq::Unwrap(m)); }
  void AddTerm(Vorq::IPsdVar* v, Vorq::ISymMatExpr* e) override { AddPsdTerm(Vorq::Unwrap(v), Vorq::Unwrap(e)); }
  void AddLinExpr(Vorq::IExpr* e, double c) override { this->AddToEach(Vorq::Unwrap(e), c); }
  void AddPsdExpr(Vorq::IPsdExpr* p, double c) override { this->AddToEach(Vorq::Unwrap(p), c); }
  void AddMPsdExpr(Vorq::IMPsdExpr<N>* other, double c) override { this->Impl().AddBlock(Vorq::Unwrap(other), c); }

 private:
  template <class Matrix>
  void AddPsdTerm(Vorq::PsdVar const& var, Matrix const& matrix) {
    this->Impl().ForEach([&var, &matrix](Vorq::PsdExpr& cell) { cell.AddTerm(var, matrix); });
  }
};

#define VORQ_EXPRESSION_BLOCK_HANDLES(N)  \
  extern template class VorqMLinExpr<N>;  \
  extern template class VorqMQuadExpr<N>; \
  extern template class VorqMPsdExpr<N>;

VORQ_EXPRESSION_BLOCK_HANDLES(0)
VORQ_EXPRESSION_BLOCK_HANDLES(1)
VORQ_EXPRESSION_BLOCK_HANDLES(2)
VORQ_EXPRESSION_BLOCK_HANDLES(3)

#undef VORQ_EXPRESSION_BLOCK_HANDLES
