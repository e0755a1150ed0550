// What the handles on blocks have in common, in layers without data: each layer implements operations that some of the
// interfaces share.
//
//     VorqMVar<N> : SummableBlockHandle : LinearItemBlockHandle : ItemBlockHandle : BlockHandle : Handle : IMVar<N>
#pragma once

#include <cstdint>
#include <string>

#include "handles/expressions.hpp"
#include "handles/handle.hpp"
#include "handles/items.hpp"
#include "handles/m_expressions.hpp"
#include "handles/nd_array.hpp"
#include "handles/shapes.hpp"
#include "handles/views.hpp"
#include "matrix/matrix_object.hpp"
#include "vorqmodel/m_constr.h"
#include "vorqmodel/m_lin_expr.h"
#include "vorqmodel/m_psd_constr.h"
#include "vorqmodel/m_psd_expr.h"
#include "vorqmodel/m_q_constr.h"
#include "vorqmodel/m_quad_expr.h"
#include "vorqmodel/m_var.h"

template <int N>
class VorqMVar;
template <int N>
class VorqMLinExpr;
template <int N>
class VorqMQuadExpr;
template <int N>
class VorqMPsdExpr;
template <int N>
class VorqMConstr;
template <int N>
class VorqMQConstr;
template <int N>
class VorqMPsdConstr;

namespace Vorq {

template <int N>
struct HandleTraits<IMVar<N>> {
  using Handle = VorqMVar<N>;
};
template <int N>
struct HandleTraits<IMLinExpr<N>> {
  using Handle = VorqMLinExpr<N>;
};
template <int N>
struct HandleTraits<IMQuadExpr<N>> {
  using Handle = VorqMQuadExpr<N>;
};
template <int N>
struct HandleTraits<IMPsdExpr<N>> {
  using Handle = VorqMPsdExpr<N>;
};
template <int N>
struct HandleTraits<IMConstr<N>> {
  using Handle = VorqMConstr<N>;
};
template <int N>
struct HandleTraits<IMQConstr<N>> {
  using Handle = VorqMQConstr<N>;
};
template <int N>
struct HandleTraits<IMPsdConstr<N>> {
  using Handle = VorqMPsdConstr<N>;
};

// The interface of a cell, and the one of a block of such cells.
template <class Cell>
struct CellInterfaces;
template <>
struct CellInterfaces<Var> {
  using Single = IVar;
  template <int N>
  using Block = IMVar<N>;
};
template <>
struct CellInterfaces<Constraint> {
  using Single = IConstraint;
  template <int N>
  using Block = IMConstr<N>;
};
template <>
struct CellInterfaces<QConstraint> {
  using Single = IQConstraint;
  template <int N>
  using Block = IMQConstr<N>;
};
template <>
struct CellInterfaces<PsdConstraint> {
  using Single = IPsdConstraint;
  template <int N>
  using Block = IMPsdConstr<N>;
};
template <>
struct CellInterfaces<MExpression> {
  using Single = IMExpression;
  template <int N>
  using Block = IMLinExpr<N>;
};
template <>
struct CellInterfaces<MQExpression> {
  using Single = IMQExpression;
  template <int N>
  using Block = IMQuadExpr<N>;
};
template <>
struct CellInterfaces<PsdExpr> {
  using Single = IPsdExpr;
  template <int N>
  using Block = IMPsdExpr<N>;
};

template <class Cell, int N>
using IMatrixObject = typename CellInterfaces<Cell>::template Block<N>;

// A handle on a block, owned by the caller. Instantiated where the handles are, so that nobody else needs their tables.
template <class Cell, int N>
IMatrixObject<Cell, N>* WrapBlock(MatrixObject<Cell, N>&& block);

// What all blocks have: shapes, stores, texts.
template <class Derived, class CellType, int N>
class BlockHandle : public Handle<Derived, IMatrixObject<CellType, N>, MatrixObject<CellType, N>> {
 public:
  using Handle<Derived, IMatrixObject<CellType, N>, MatrixObject<CellType, N>>::Handle;
  using Cell = CellType;
  using ICell = typename CellInterfaces<Cell>::Single;
  template <int M>
  using IBlock = IMatrixObject<Cell, M>;
  static constexpr int kRank = N;

  using IBlock<N>::Get;
  using IBlock<N>::Set;

  int GetND() override { return N; }
  std::uint64_t GetDim(int axis) override { return this->Impl().GetDim(axis); }
  std::uint64_t GetSize() override { return this->Impl().GetSize(); }
  INDim<N>* GetShape() override { return Wrap<INDim<N>>(this->Impl().GetShape()); }
  IBlock<1>* Reshape(INDim<1>* shape) override { return this->template Make<IBlock<1>>(VORQ_CALL(Reshape, shape)); }
  IBlock<2>* Reshape(INDim<2>* shape) override { return this->template Make<IBlock<2>>(VORQ_CALL(Reshape, shape)); }
  IBlock<3>* Reshape(INDim<3>* shape) override { return this->template Make<IBlock<3>>(VORQ_CALL(Reshape, shape)); }
  IBlock<1>* Flatten() override { return WrapBlock(this->Impl().Flatten()); }
  IBlock<N>* Transpose() override { return WrapBlock(this->Impl().Transpose()); }
  ICell* Get(std::uint64_t index) override { return Wrap<ICell>(this->Impl().Get(index)); }
  IBlock<N>* View(IView* view) override { return this->template Make<IBlock<N>>(VORQ_CALL(View, view)); }
  IBlock<1>* Pick(INdArray<int, 1>* indices) override {
    return this->template Make<IBlock<1>>(VORQ_CALL(Pick, indices));
  }
  IBlock<1>* PickAt(INdArray<int, 2>* coords) override {
    return this->template Make<IBlock<1>>(VORQ_CALL(PickAt, coords));
  }
  void Set(std::uint64_t index, ICell* value) override { this->Do(VORQ_CALL(Set, index, value)); }
  IBlock<N>* Clone() override { return WrapBlock(this->Impl().Clone()); }
  std::string ToString(std::uint64_t limit) override { return this->Impl().ToString(limit); }
  int GetLastError() override { return this->Impl().GetLastError(); }
  char const* GetErrorMessage() override { return this->Impl().GetErrorMessage(); }
};

// Blocks whose cells can stand twice and be summed.
template <class Base>
class SummableBlockHandle : public Base {
 public:
  using Base::Base;
  using Cell = typename Base::Cell;
  template <int M>
  using IBlock = IMatrixObject<Cell, M>;

  IBlock<Base::kRank>* Repeat(std::uint64_t count, int axis) override {
    return WrapBlock(this->Impl().Repeat(count, axis));
  }
  IBlock<Base::kRank>* RepeatBlock(std::uint64_t count, int axis) override {
    return WrapBlock(this->Impl().RepeatBlock(count, axis));
  }
  IMatrixObject<typename CellTraits<Cell>::SumCell, 0>* Sum() override { return WrapBlock(Vorq::Sum(this->Impl())); }
};

// Blocks of items: each reader asks item by item.
template <class Base>
class ItemBlockHandle : public Base {
 public:
  using Base::Base;
  using Base::Get;
  using Base::Set;
  using Cell = typename Base::Cell;
  template <class T>
  using INumbers = INdArray<T, Base::kRank>;

  INumbers<int>* GetIdx() override {
    return Read<int>([](Cell& cell) { return cell.Idx(); });
  }
  INumbers<double>* Get(char const* attr) override {
    return Read<double>([attr](Cell& cell) { return cell.Get(attr); });
  }
  void Set(char const* attr, double value) override {
    this->Impl().ForEach([attr, value](Cell& cell) { cell.Set(attr, value); });
  }
  void Set(char const* attr, INumbers<double>* values) override {
    auto const setEach = [](auto& block, char const* name, auto const& numbers) {
      block.ForEachWith([name](Cell& cell, double value) { cell.Set(name, value); }, numbers);
    };
    this->Do(VORQ_CALL_BY(Set, setEach, attr, values));
  }

 protected:
  template <class T, class Reader>
  INumbers<T>* Read(Reader read) const {
    return WrapArray(this->Impl().template Read<T>(read));
  }
};

// Blocks of columns and rows of linear problems.
template <class Base>
class LinearItemBlockHandle : public ItemBlockHandle<Base> {
 public:
  using ItemBlockHandle<Base>::ItemBlockHandle;
  using Cell = typename Base::Cell;
  using INumbers = INdArray<int, Base::kRank>;

  INumbers* GetBasis() override {
    return this->template Read<int>([](Cell& cell) { return cell.GetBasis(); });
  }
  INumbers* GetLowerIIS() override {
    return this->template Read<int>([](Cell& cell) { return cell.GetLowerIIS(); });
  }
  INumbers* GetUpperIIS() override {
    return this->template Read<int>([](Cell& cell) { return cell.GetUpperIIS(); });
  }
};

// Blocks of expressions: operations in place, cell by cell. Sizes of arguments are not compared.
template <class Base>
class ExpressionBlockHandle : public SummableBlockHandle<Base> {
 public:
  using SummableBlockHandle<Base>::SummableBlockHandle;
  using Cell = typename Base::Cell;
  static constexpr int kRank = Base::kRank;

  using IMatrixObject<Cell, kRank>::AddTerm;

  void Multiply(double c) override {
    this->Impl().ForEach([c](Cell& cell) { cell.Multiply(c); });
  }
  void AddConstant(double c) override {
    this->Impl().ForEach([c](Cell& cell) { LinearPart(cell).AddConstant(c); });
  }
  void AddConstant(INdArray<double, kRank>* values) override {
    this->Do(VORQ_CALL_AS(AddConstant, AddConstants, values));
  }
  void AddConstant(INdArray<long long, kRank>* values) override {
    this->Do(VORQ_CALL_AS(AddConstant, AddConstants, values));
  }
  void AddConstant(INdArray<int, kRank>* values) override { this->Do(VORQ_CALL_AS(AddConstant, AddConstants, values)); }
  void SubConstant(INdArray<double, kRank>* values) override {
    this->Do(VORQ_CALL_AS(SubConstant, SubConstants, values));
  }
  void SubConstant(INdArray<long long, kRank>* values) override {
    this->Do(VORQ_CALL_AS(SubConstant, SubConstants, values));
  }
  void SubConstant(INdArray<int, kRank>* values) override { this->Do(VORQ_CALL_AS(SubConstant, SubConstants, values)); }
  void AddTerm(IVar* v, double c) override { this->Do(VORQ_CALL_BY(AddTerm, kAddToEach, v, c)); }
  void AddTerm(IMVar<kRank>* vars, double c) override { this->Do(VORQ_CALL_AS(AddTerm, AddBlock, vars, c)); }
  void AddTerm(IMVar<kRank>* vars, INdArray<double, kRank>* coeffs) override {
    constexpr auto kAddEach = [](auto& block, auto const& variables, auto const& numbers) {
      block.ForEachWith([](Cell& cell, Var const& var, double c) { AddCell(cell, var, c); }, variables.Cells(),
                        numbers);
    };
    this->Do(VORQ_CALL_BY(AddTerm, kAddEach, vars, coeffs));
  }
  void AddMExpression(IMExpression* m, double c) override { this->Do(VORQ_CALL_BY(AddMExpression, kAddToEach, m, c)); }
  void AddMLinExpr(IMLinExpr<kRank>* other, double c) override {
    this->Do(VORQ_CALL_AS(AddMLinExpr, AddBlock, other, c));
  }
  void Clear() override {
    this->Impl().ForEach([](Cell& cell) { cell = Cell(); });
  }

 protected:
  static constexpr auto kAddToEach = [](auto& block, auto const& addend, double c) {
    block.ForEach([&addend, c](Cell& cell) { AddCell(cell, addend, c); });
  };
};

}  // namespace Vorq
