// The handles on blocks of expressions.
#pragma once

#include "handles/matrix_items.hpp"

template <int N>
class VorqMLinExpr final
    : public Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMLinExpr<N>, Vorq::MExpression, N>> {
  using Base = Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMLinExpr<N>, Vorq::MExpression, N>>;

 public:
  using Base::Base;

  void AddExpr(Vorq::IExpr* e, double c) override { this->Do(VORQ_CALL_BY(AddExpr, Base::kAddToEach, e, c)); }
};

template <int N>
class VorqMQuadExpr final
    : public Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMQuadExpr<N>, Vorq::MQExpression, N>> {
  using Base = Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMQuadExpr<N>, Vorq::MQExpression, N>>;

 public:
  using Base::AddTerm;
  using Base::Base;

  void AddTerm(Vorq::IVar* first, Vorq::IVar* second, double c) override {
    constexpr auto kAddEach = [](auto& block, Vorq::Var const& var1, Vorq::Var const& var2, double coefficient) {
      block.ForEach([&](Vorq::MQExpression& cell) { cell.AddTerm(var1, var2, coefficient); });
    };
    this->Do(VORQ_CALL_BY(AddTerm, kAddEach, first, second, c));
  }
  void AddLinExpr(Vorq::IExpr* e, double c) override { this->Do(VORQ_CALL_BY(AddLinExpr, Base::kAddToEach, e, c)); }
  void AddQuadExpr(Vorq::IQuadExpr* q, double c) override {
    this->Do(VORQ_CALL_BY(AddQuadExpr, Base::kAddToEach, q, c));
  }
  void AddMQExpression(Vorq::IMQExpression* m, double c) override {
    this->Do(VORQ_CALL_BY(AddMQExpression, Base::kAddToEach, m, c));
  }
  void AddMQuadExpr(Vorq::IMQuadExpr<N>* other, double c) override {
    this->Do(VORQ_CALL_AS(AddMQuadExpr, AddBlock, other, c));
  }
};

template <int N>
class VorqMPsdExpr final : public Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMPsdExpr<N>, Vorq::PsdExpr, N>> {
  using Base = Vorq::ExpressionBlockHandle<Vorq::BlockHandle<VorqMPsdExpr<N>, Vorq::PsdExpr, N>>;

 public:
  using Base::AddTerm;
  using Base::Base;
  using Base::Set;

  void Set(std::uint64_t index, Vorq::IMExpression* value) override {
    constexpr auto kSet = [](auto& block, std::uint64_t i, auto const& cell) { block.Set(i, Vorq::PsdExprOf(cell)); };
    this->Do(VORQ_CALL_BY(Set, kSet, index, value));
  }
  void AddTerm(Vorq::IPsdVar* v, Vorq::ISymMatrix* m) override { this->Do(VORQ_CALL_BY(AddTerm, kAddPsdTerm, v, m)); }
  void AddTerm(Vorq::IPsdVar* v, Vorq::ISymMatExpr* e) override { this->Do(VORQ_CALL_BY(AddTerm, kAddPsdTerm, v, e)); }
  void AddLinExpr(Vorq::IExpr* e, double c) override { this->Do(VORQ_CALL_BY(AddLinExpr, Base::kAddToEach, e, c)); }
  void AddPsdExpr(Vorq::IPsdExpr* p, double c) override { this->Do(VORQ_CALL_BY(AddPsdExpr, Base::kAddToEach, p, c)); }
  void AddMPsdExpr(Vorq::IMPsdExpr<N>* other, double c) override {
    this->Do(VORQ_CALL_AS(AddMPsdExpr, AddBlock, other, c));
  }

 private:
  static constexpr auto kAddPsdTerm = [](auto& block, Vorq::PsdVar const& var, auto const& matrix) {
    block.ForEach([&var, &matrix](Vorq::PsdExpr& cell) { cell.AddTerm(var, matrix); });
  };
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
