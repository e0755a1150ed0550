// The handles on builders of blocks of constraints.
#pragma once

#include "handles/matrix_expressions.hpp"
#include "matrix/matrix_constr_builder.hpp"
#include "vorqmodel/m_constr_builder.h"
#include "vorqmodel/m_psd_constr_builder.h"
#include "vorqmodel/m_q_constr_builder.h"

template <int N>
class VorqMConstrBuilder;
template <int N>
class VorqMQConstrBuilder;
template <int N>
class VorqMPsdConstrBuilder;

namespace Vorq {

template <int N>
struct HandleTraits<IMConstrBuilder<N>> {
  using Handle = VorqMConstrBuilder<N>;
};
template <int N>
struct HandleTraits<IMQConstrBuilder<N>> {
  using Handle = VorqMQConstrBuilder<N>;
};
template <int N>
struct HandleTraits<IMPsdConstrBuilder<N>> {
  using Handle = VorqMPsdConstrBuilder<N>;
};

// What all builders have. IBuilder is the interface of a rank.
template <class Derived, template <int> class IBuilder, class Cell, int N>
class BlockBuilderHandle : public Handle<Derived, IBuilder<N>, MatrixConstrBuilder<Cell, N>> {
 public:
  using Handle<Derived, IBuilder<N>, MatrixConstrBuilder<Cell, N>>::Handle;
  using IBlock = IMatrixObject<Cell, N>;
  static constexpr int kRank = N;

  using IBuilder<N>::Set;

  IBuilder<1>* Flatten() override { return Wrap<IBuilder<1>>(this->Impl().Flatten()); }
  int GetND() override { return N; }
  IBlock* GetExpr() override { return Wrap<IBlock>(this->Impl().expr); }
  char GetSense() override { return this->Impl().sense; }
  void Set(IBlock* lhs, char sense, double rhs) override { this->Do(VORQ_CALL(Set, lhs, sense, rhs)); }
  void Set(IBlock* lhs, char sense, INdArray<double, N>* rhs) override { SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, INdArray<long long, N>* rhs) override { SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, INdArray<int, N>* rhs) override { SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, IMVar<0>* rhs) override { SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, IMVar<1>* rhs) override { SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, IMVar<2>* rhs) override { SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, IMVar<3>* rhs) override { SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, IMLinExpr<0>* rhs) override { SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, IMLinExpr<1>* rhs) override { SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, IMLinExpr<2>* rhs) override { SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, IMLinExpr<3>* rhs) override { SetFolded(lhs, sense, rhs); }
  int GetLastError() override { return this->Impl().status.Code(); }
  char const* GetErrorMessage() override { return this->Impl().status.Text(); }

 protected:
  template <class IRightSide>
  void SetFolded(IBlock* lhs, char sense, IRightSide* rhs) {
    this->Do(VORQ_CALL(Set, lhs, sense, rhs));
  }
};

// Builders with a right side of their own class of expressions, beside linear ones.
template <class Base, template <int> class IExprBlock>
class OwnRightSideBuilderHandle : public Base {
 public:
  using Base::Base;
  using Base::Set;
  using typename Base::IBlock;

  void Set(IBlock* lhs, char sense, IExprBlock<0>* rhs) override { this->SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, IExprBlock<1>* rhs) override { this->SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, IExprBlock<2>* rhs) override { this->SetFolded(lhs, sense, rhs); }
  void Set(IBlock* lhs, char sense, IExprBlock<3>* rhs) override { this->SetFolded(lhs, sense, rhs); }
};

// Builders that can state a range.
template <class Base>
class RangedBuilderHandle : public Base {
 public:
  using Base::Base;
  using typename Base::IBlock;

  double GetRange() override { return this->Impl().range; }
  void SetRange(IBlock* expr, double range) override { this->Do(VORQ_CALL(SetRange, expr, range)); }
};

}  // namespace Vorq

template <int N>
class VorqMConstrBuilder final
    : public Vorq::RangedBuilderHandle<
          Vorq::BlockBuilderHandle<VorqMConstrBuilder<N>, Vorq::IMConstrBuilder, Vorq::MExpression, N>> {
  using Base = Vorq::RangedBuilderHandle<
      Vorq::BlockBuilderHandle<VorqMConstrBuilder<N>, Vorq::IMConstrBuilder, Vorq::MExpression, N>>;

 public:
  using Base::Base;
};

template <int N>
class VorqMQConstrBuilder final
    : public Vorq::OwnRightSideBuilderHandle<
          Vorq::BlockBuilderHandle<VorqMQConstrBuilder<N>, Vorq::IMQConstrBuilder, Vorq::MQExpression, N>,
          Vorq::IMQuadExpr> {
  using Base = Vorq::OwnRightSideBuilderHandle<
      Vorq::BlockBuilderHandle<VorqMQConstrBuilder<N>, Vorq::IMQConstrBuilder, Vorq::MQExpression, N>,
      Vorq::IMQuadExpr>;

 public:
  using Base::Base;
};

template <int N>
class VorqMPsdConstrBuilder final
    : public Vorq::RangedBuilderHandle<Vorq::OwnRightSideBuilderHandle<
          Vorq::BlockBuilderHandle<VorqMPsdConstrBuilder<N>, Vorq::IMPsdConstrBuilder, Vorq::PsdExpr, N>,
          Vorq::IMPsdExpr>> {
  using Base = Vorq::RangedBuilderHandle<Vorq::OwnRightSideBuilderHandle<
      Vorq::BlockBuilderHandle<VorqMPsdConstrBuilder<N>, Vorq::IMPsdConstrBuilder, Vorq::PsdExpr, N>, Vorq::IMPsdExpr>>;

 public:
  using Base::Base;
};

#define VORQ_BUILDER_HANDLES(N)                 \
  extern template class VorqMConstrBuilder<N>;  \
  extern template class VorqMQConstrBuilder<N>; \
  extern template class VorqMPsdConstrBuilder<N>;

VORQ_BUILDER_HANDLES(0)
VORQ_BUILDER_HANDLES(1)
VORQ_BUILDER_HANDLES(2)
VORQ_BUILDER_HANDLES(3)

#undef VORQ_BUILDER_HANDLES
