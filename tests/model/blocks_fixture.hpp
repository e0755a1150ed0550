// BlocksTest: a model over the recording double, with three variables, and shorthands for shapes, blocks and cells. The
// model is used through its interface; blocks are made from cells, so that all kinds of views and lazy products occur.
#pragma once

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "handles/item_arrays.hpp"
#include "handles/m_expressions.hpp"
#include "handles/matrix_builders.hpp"
#include "handles/matrix_items.hpp"
#include "matrix/nda_from_array.hpp"
#include "tests/model/special_fixture.hpp"

namespace vorqtest {

class BlocksTest : public SpecialConstraintsTest {
 protected:
  template <int N>
  using Sizes = typename Vorq::NDim<N>::Sizes;
  template <int N>
  using VarBlock = std::unique_ptr<Vorq::IMVar<N>>;

  BlocksTest() { double_.ClearLog(); }

  template <int N>
  static std::unique_ptr<Vorq::INDim<N>> Shape(Sizes<N> const& sizes) {
    return Own(Vorq::Wrap<Vorq::INDim<N>>(sizes));
  }

  // A block of continuous variables, and the calls forgotten.
  template <int N>
  VarBlock<N> AddBlock(Sizes<N> const& sizes) {
    auto block = Own(model_->AddMVar(Shape<N>(sizes).get(), 'C', "v"));
    double_.ClearLog();
    return block;
  }

  template <class T, int N>
  static Vorq::NdArray<T, N> Array(Sizes<N> const& sizes, std::vector<T> const& values) {
    return Vorq::NdArray<T, N>::Generated(Vorq::NDim<N>(sizes), [&](std::uint64_t i) { return values[i]; });
  }
  static Vorq::NdArray<double, 1> Numbers(std::vector<double> const& values) {
    return Array<double, 1>({values.size()}, values);
  }

  // A cell of explicit terms, and one that holds the lazy product of the numbers with the variables.
  static Vorq::MExpression Cell(std::initializer_list<Term> terms, double constant = 0.0) {
    Vorq::MExpression cell(constant);
    for (Term const& term : terms) cell.AddTerm(Vorq::Unwrap(term.var.get()), term.coefficient);
    return cell;
  }
  static Vorq::MExpression Lazy(std::vector<double> const& coefficients, VarBlock<1> const& vars) {
    return {Numbers(coefficients), Vorq::Unwrap(vars.get()).Cells()};
  }

  // Each row of the matrix times the variables, straight from its place.
  static std::vector<Vorq::MExpression> Product(Vorq::NdArray<double, 2> const& matrix, VarBlock<1> const& vars) {
    std::vector<Vorq::MExpression> cells;
    for (std::uint64_t i = 0; i < matrix.GetDim(0); ++i) {
      auto const& shape = matrix.GetShape();
      std::int64_t const start = shape.Start() + static_cast<std::int64_t>(i) * shape.GetStride(0);
      cells.emplace_back(Vorq::StridedVector<double>(matrix.Store(), start, shape.GetStride(1), matrix.GetDim(1)),
                         Vorq::StridedVector<Vorq::Var>(Vorq::Unwrap(vars.get()).Cells()));
    }
    return cells;
  }

  template <int N, class C>
  static Vorq::MatrixObject<C, N> Block(Sizes<N> const& sizes, std::vector<C> const& cells) {
    return Vorq::MatrixObject<C, N>(Array<C, N>(sizes, cells));
  }
  template <class C, int N>
  static auto Handle(Vorq::MatrixObject<C, N> block) {
    return Own(Vorq::WrapBlock(std::move(block)));
  }

  template <int N>
  static auto Wrapped(Vorq::MConstrBuilder<N> const& builder) {
    return Own(Vorq::Wrap<Vorq::IMConstrBuilder<N>>(builder));
  }
  // A builder that compares the block with 0.
  template <int N>
  static std::unique_ptr<Vorq::IMConstrBuilder<N>> BlockBuilder(Vorq::MLinExpr<N> const& block, char sense) {
    Vorq::MConstrBuilder<N> builder;
    builder.Set(block, sense, 0.0);
    return Wrapped(builder);
  }

  // Adds the cells as one block, and tells what happened.
  std::unique_ptr<Vorq::IMConstr<1>> AddRows(std::vector<Vorq::MExpression> const& cells, char sense = 'L') {
    auto const builder = BlockBuilder(Block<1>({cells.size()}, cells), sense);
    return Own(model_->AddMConstr(builder.get(), "c"));
  }

  // The sizes and the item indices of a block: "(2, 2) 0 1 2 3".
  template <class IBlock>
  static std::string Content(IBlock const& block) {
    std::string content = Own(block->GetShape())->ToString(0);
    auto const indices = Own(block->GetIdx());
    for (std::uint64_t i = 0; i < indices->GetSize(); ++i) content += ' ' + std::to_string(indices->Get(i));
    return content;
  }
};

inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

}  // namespace vorqtest
