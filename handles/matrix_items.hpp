// The handles on blocks of variables and constraints.
#pragma once

#include "handles/matrix_handle.hpp"

template <int N>
class VorqMVar final
    : public Vorq::SummableBlockHandle<Vorq::LinearItemBlockHandle<Vorq::BlockHandle<VorqMVar<N>, Vorq::Var, N>>> {
 public:
  using Vorq::SummableBlockHandle<
      Vorq::LinearItemBlockHandle<Vorq::BlockHandle<VorqMVar<N>, Vorq::Var, N>>>::SummableBlockHandle;

  Vorq::INdArray<char, N>* GetType() override {
    return this->template Read<char>([](Vorq::Var const& var) { return var.GetType(); });
  }
};

template <int N>
class VorqMConstr final : public Vorq::LinearItemBlockHandle<Vorq::BlockHandle<VorqMConstr<N>, Vorq::Constraint, N>> {
 public:
  using Vorq::LinearItemBlockHandle<Vorq::BlockHandle<VorqMConstr<N>, Vorq::Constraint, N>>::LinearItemBlockHandle;
};

template <int N>
class VorqMQConstr final : public Vorq::ItemBlockHandle<Vorq::BlockHandle<VorqMQConstr<N>, Vorq::QConstraint, N>> {
 public:
  using Vorq::ItemBlockHandle<Vorq::BlockHandle<VorqMQConstr<N>, Vorq::QConstraint, N>>::ItemBlockHandle;

  Vorq::INdArray<double, N>* GetRhs() override {
    return this->template Read<double>([](Vorq::QConstraint& constr) { return constr.GetRhs(); });
  }
  Vorq::INdArray<char, N>* GetSense() override {
    return this->template Read<char>([](Vorq::QConstraint& constr) { return constr.GetSense(); });
  }
};

template <int N>
class VorqMPsdConstr final
    : public Vorq::ItemBlockHandle<Vorq::BlockHandle<VorqMPsdConstr<N>, Vorq::PsdConstraint, N>> {
 public:
  using Vorq::ItemBlockHandle<Vorq::BlockHandle<VorqMPsdConstr<N>, Vorq::PsdConstraint, N>>::ItemBlockHandle;
};

#define VORQ_ITEM_BLOCK_HANDLES(N)       \
  extern template class VorqMVar<N>;     \
  extern template class VorqMConstr<N>;  \
  extern template class VorqMQConstr<N>; \
  extern template class VorqMPsdConstr<N>;

VORQ_ITEM_BLOCK_HANDLES(0)
VORQ_ITEM_BLOCK_HANDLES(1)
VORQ_ITEM_BLOCK_HANDLES(2)
VORQ_ITEM_BLOCK_HANDLES(3)

#undef VORQ_ITEM_BLOCK_HANDLES
