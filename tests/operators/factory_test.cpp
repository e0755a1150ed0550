// The matrix factory, through its interface.
#include "vorqmodel/matrix_factory.h"

#include <memory>

#include "handles/item_arrays.hpp"
#include "handles/matrix_builders.hpp"
#include "handles/shapes.hpp"
#include "handles/views.hpp"
#include "tests/operators/operand_fixture.hpp"
#include "vorqmodel/broadcast_helper.h"
#include "vorqmodel/exports.h"

namespace vorqtest {
namespace {

template <class T>
std::unique_ptr<T> Own(T* object) {
  return std::unique_ptr<T>(object);
}

class Factory : public OperandTest {
 protected:
  template <class Interface, class Implementation>
  static std::unique_ptr<Interface> Handle(Implementation const& object) {
    return Own(Vorq::Wrap<Interface>(object));
  }
  template <class Interface>
  static auto& Impl(std::unique_ptr<Interface> const& object) {
    return Vorq::Unwrap(object.get());
  }
  template <int N>
  static std::unique_ptr<Vorq::INDim<N>> Shape(Sizes<N> const& sizes) {
    return Own(Vorq::Wrap<Vorq::INDim<N>>(sizes));
  }
  // Positions of the items of a block.
  template <class Interface>
  static std::vector<int> Positions(std::unique_ptr<Interface> const& block) {
    std::vector<int> positions;
    Impl(block).ForEach([&](auto& item) { positions.push_back(item.Idx()); });
    return positions;
  }

  // Calls check(shape) for a shape of each rank: (), (2), (1, 2), (2, 1, 1).
  template <class Check>
  static void ForEachRank(Check&& check) {
    check(Shape<0>({}), 1U);
    check(Shape<1>({2}), 2U);
    check(Shape<2>({1, 2}), 2U);
    check(Shape<3>({2, 1, 1}), 2U);
  }

  template <class Item, class IItem, class IArray, class Create>
  void CheckItemFamilies(Create&& create) {
    auto const prototype = Handle<IItem>(Make<Item>("p", 4));
    auto const items = Handle<IArray>(MakeItems<Item>(2, 7));
    ForEachRank([&](auto const& shape, std::size_t size) {
      auto const copies = Own(create(shape.get(), prototype.get()));
      EXPECT_EQ(Positions(copies), std::vector<int>(size, 4));
      EXPECT_TRUE(Impl(copies).GetShape().Equals(Impl(shape)));
      auto const block = Own(create(shape.get(), items.get()));
      EXPECT_EQ(Positions(block), size == 1 ? std::vector<int>{7} : (std::vector<int>{7, 8}));
      EXPECT_TRUE(Impl(block).GetShape().Equals(Impl(shape)));
      EXPECT_EQ(Impl(block).Cells().Store().Block()->count, size);
    });
  }

  std::unique_ptr<Vorq::IMFactory> const factory_{CreateMFactory()};
};

TEST_F(Factory, HasTheOperationsOfItsTable) {
  static_assert(Vorq::kFactoryOperations == 121);
}

TEST_F(Factory, BlocksOfVariables) {
  CheckItemFamilies<Vorq::Var, Vorq::IVar, Vorq::IVarArray>(
      [&](auto* shape, auto* source) { return factory_->CreateMVar(shape, source); });
}

TEST_F(Factory, BlocksOfConstraints) {
  CheckItemFamilies<Vorq::Constraint, Vorq::IConstraint, Vorq::IConstrArray>(
      [&](auto* shape, auto* source) { return factory_->CreateMConstr(shape, source); });
}

TEST_F(Factory, BlocksOfQuadraticConstraints) {
  CheckItemFamilies<Vorq::QConstraint, Vorq::IQConstraint, Vorq::IQConstrArray>(
      [&](auto* shape, auto* source) { return factory_->CreateMQConstr(shape, source); });
}

TEST_F(Factory, BlocksOfPsdConstraints) {
  CheckItemFamilies<Vorq::PsdConstraint, Vorq::IPsdConstraint, Vorq::IPsdConstrArray>(
      [&](auto* shape, auto* source) { return factory_->CreateMPsdConstr(shape, source); });
}

TEST_F(Factory, PrototypeIsSharedByAllCells) {
  auto const prototype = Handle<Vorq::IVar>(MakeVar("x0", 0));
  auto const block = Own(factory_->CreateMVar(Shape<1>({3}).get(), prototype.get()));
  auto const sum = Own(block->Sum());
  EXPECT_EQ(Terms(Impl(sum).Get(0).expr), "0; 1 x0, 1 x0, 1 x0");
  EXPECT_EQ(&Impl(block).Get(2).Record(), &Impl(prototype).Record());
}

TEST_F(Factory, RankZeroTakesTheFirstOfAnArray) {
  auto const items = Handle<Vorq::IVarArray>(MakeItems<Vorq::Var>(3, 7));
  EXPECT_EQ(Positions(Own(factory_->CreateMVar(Shape<0>({}).get(), items.get()))), std::vector<int>{7});
}

TEST_F(Factory, ItemsThatAnArrayHasNotStandForNothing) {
  auto const items = Handle<Vorq::IVarArray>(MakeItems<Vorq::Var>(2));
  EXPECT_EQ(Positions(Own(factory_->CreateMVar(Shape<2>({2, 2}).get(), items.get()))),
            (std::vector<int>{0, 1, -2, -2}));
  auto const none = Handle<Vorq::IVarArray>(std::vector<Vorq::Var>());
  EXPECT_EQ(Positions(Own(factory_->CreateMVar(Shape<0>({}).get(), none.get()))), std::vector<int>{-2});
}

TEST_F(Factory, StridedShapesGiveCompactBlocks) {
  auto const shape = Handle<Vorq::INDim<2>>(Vorq::NDim<2>({3, 2}).Transpose());
  auto const items = Handle<Vorq::IVarArray>(MakeItems<Vorq::Var>(6));
  auto const block = Own(factory_->CreateMVar(shape.get(), items.get()));
  EXPECT_EQ(Impl(block).GetShape().ToString(Vorq::kStrides), "(3, 1)");
  EXPECT_EQ(Positions(block), (std::vector<int>{0, 1, 2, 3, 4, 5}));
}

TEST_F(Factory, ShapeOfSizeZeroMakesAnEmptyStore) {
  auto const block = Own(factory_->CreateMLinExpr(Shape<2>({0, 3}).get(), 1.0));
  EXPECT_EQ(block->GetSize(), 0U);
  EXPECT_EQ(block->GetDim(1), 3U);
  EXPECT_FALSE(Impl(block).Cells().Store());
}

TEST_F(Factory, LinearBlocks) {
  auto const cell = Handle<Vorq::IMExpression>(LazyCell({2.0, 3.0}));
  auto const expr = Handle<Vorq::IExpr>(Vorq::Expr(MakeVar("x5", 5), 2.0));
  ForEachRank([&](auto const& shape, std::size_t size) {
    auto const ofCell = Own(factory_->CreateMLinExpr(shape.get(), cell.get()));
    EXPECT_EQ(Impl(ofCell).Get(size - 1).LazySize(), 2U);
    EXPECT_EQ(Impl(ofCell).Get(0).coeffs.Store(), Impl(cell).coeffs.Store());
    auto const ofExpr = Own(factory_->CreateMLinExpr(shape.get(), expr.get()));
    EXPECT_EQ(Terms(Impl(ofExpr).Get(size - 1).expr), "0; 2 x5");
    EXPECT_EQ(Read(Impl(Own(factory_->CreateMLinExpr(shape.get(), 1.5)))).values, std::vector<double>(size, 1.5));
  });
  EXPECT_EQ(Read(Impl(Own(factory_->CreateMLinExpr(Shape<2>({2, 2}).get(), 1.5)))).values, std::vector<double>(4, 1.5));
}

TEST_F(Factory, QuadraticBlocks) {
  auto const vars = MakeVars<1>({2}).Cells();
  auto const cell = Handle<Vorq::IMQExpression>(Vorq::MQExpression(vars, vars));
  Vorq::QuadExpr square;
  square.AddTerm(MakeVar("x5", 5), MakeVar("x5", 5), 2.0);
  auto const expr = Handle<Vorq::IQuadExpr>(square);
  ForEachRank([&](auto const& shape, std::size_t size) {
    auto const ofCell = Own(factory_->CreateMQuadExpr(shape.get(), cell.get()));
    EXPECT_EQ(Impl(ofCell).Get(size - 1).side1.kind, Vorq::SideKind::kVars);
    auto const ofExpr = Own(factory_->CreateMQuadExpr(shape.get(), expr.get()));
    EXPECT_EQ(Terms(Impl(ofExpr).Get(size - 1).expr), "0; | 2 x5 x5");
    EXPECT_EQ(Read(Impl(Own(factory_->CreateMQuadExpr(shape.get(), -2.0)))).values, std::vector<double>(size, -2.0));
  });
}

TEST_F(Factory, PsdBlocks) {
  auto const cell = Handle<Vorq::IMExpression>(LazyCell({2.0, 0.0}));
  auto const expr = Handle<Vorq::IPsdExpr>(Vorq::PsdExpr(MakePsdVar("X", 0, 2), Vorq::SymMatrix::Cached(2, 1, 0, 1.5)));
  ForEachRank([&](auto const& shape, std::size_t size) {
    auto const ofCell = Own(factory_->CreateMPsdExpr(shape.get(), cell.get()));
    EXPECT_EQ(Terms(Impl(ofCell).Get(size - 1).linear), "0; 2 x0, 0 x1");
    auto const ofExpr = Own(factory_->CreateMPsdExpr(shape.get(), expr.get()));
    EXPECT_EQ(Impl(ofExpr).Get(size - 1).Size(), 1U);
    EXPECT_EQ(Read(Impl(Own(factory_->CreateMPsdExpr(shape.get(), 3.0)))).values, std::vector<double>(size, 3.0));
  });
}

TEST_F(Factory, Cells) {
  auto const constant = Own(factory_->CreateMExpression(2.5));
  EXPECT_EQ(constant->GetConstant(), 2.5);
  EXPECT_EQ(constant->ToString(100), "2.5");
  auto const expr = Handle<Vorq::IExpr>(Vorq::Expr(MakeVar("x5", 5), 2.0));
  auto const cell = Own(factory_->CreateMExpression(expr.get()));
  Impl(expr).AddConstant(1.0);
  EXPECT_EQ(Terms(Impl(cell).expr), "0; 2 x5");
  EXPECT_EQ(Impl(cell).LazySize(), 0U);

  auto const quadConstant = Own(factory_->CreateMQExpression(-1.0));
  EXPECT_EQ(quadConstant->GetConstant(), -1.0);
  EXPECT_EQ(Impl(quadConstant).side1.kind, Vorq::SideKind::kNone);
  auto const quad = Handle<Vorq::IQuadExpr>(Vorq::QuadExpr(MakeVar("x5", 5), 3.0));
  EXPECT_EQ(Terms(Impl(Own(factory_->CreateMQExpression(quad.get()))).expr), "0; 3 x5 |");
}

TEST_F(Factory, BuildersHoldConstantZeroAndNoSense) {
  ForEachRank([&](auto const& shape, std::size_t size) {
    auto const check = [&](auto const& builder) {
      EXPECT_EQ(Read(Impl(builder).expr).values, std::vector<double>(size, 0.0));
      EXPECT_TRUE(Impl(builder).expr.GetShape().Equals(Impl(shape)));
      EXPECT_EQ(std::string("EGLNR").find(builder->GetSense()), std::string::npos);
      EXPECT_FALSE(Impl(builder).isRange);
    };
    check(Own(factory_->CreateMConstrBuilder(shape.get())));
    check(Own(factory_->CreateMQConstrBuilder(shape.get())));
    check(Own(factory_->CreateMPsdConstrBuilder(shape.get())));
  });
}

TEST_F(Factory, Shapes) {
  EXPECT_EQ(Own(factory_->CreateNDim())->ToString(Vorq::kSizes), "()");
  EXPECT_EQ(Own(factory_->CreateNDim(7))->ToString(Vorq::kSizes), "(7)");
  auto const shape = Own(factory_->CreateNDim(2, 3));
  EXPECT_EQ(shape->ToString(Vorq::kSizes), "(2, 3)");
  EXPECT_EQ(shape->ToString(Vorq::kStrides), "(3, 1)");
  EXPECT_EQ(Own(factory_->CreateNDim(2, 3, 4))->ToString(Vorq::kStrides), "(12, 4, 1)");
}

TEST_F(Factory, ArraysOfOneValue) {
  ForEachRank([&](auto const& shape, std::size_t size) {
    EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(shape.get(), 3)))), std::vector<int>(size, 3));
    EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(shape.get(), 0.5)))), std::vector<double>(size, 0.5));
    EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(shape.get(), 1LL << 40)))),
              std::vector<long long>(size, 1LL << 40));
  });
}

TEST_F(Factory, ArraysCopyUpToTheSmallerSize) {
  double const doubles[] = {1.5, 2.5, 3.5};
  long long const longs[] = {1, 2};
  int const ints[] = {4, 5, 6, 7};
  auto const shape = Shape<1>({3});
  auto const array = Own(factory_->CreateNdArray(shape.get(), doubles, 3));
  EXPECT_EQ(Elements(Impl(array)), (std::vector<double>{1.5, 2.5, 3.5}));
  EXPECT_NE(Impl(array).Store().Get(), doubles);
  EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(shape.get(), longs, 2)))), (std::vector<long long>{1, 2, 0}));
  EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(Shape<2>({1, 2}).get(), ints, 4)))), (std::vector<int>{4, 5}));
  EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(Shape<3>({1, 2, 1}).get(), ints, 0)))), (std::vector<int>{0, 0}));
}

TEST_F(Factory, RankZeroReadsOneElement) {
  double const data[] = {1.5, 2.5};
  EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(Shape<0>({}).get(), data, 2)))), std::vector<double>{1.5});
  EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(Shape<0>({}).get(), data, 0)))), std::vector<double>{1.5});
}

TEST_F(Factory, ArraysOfNoDataAreZeros) {
  EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(Shape<1>({2}).get(), static_cast<int const*>(nullptr), 2)))),
            (std::vector<int>{0, 0}));
}

TEST_F(Factory, FillFunctionIsCalledOnceForEachIndexInOrder) {
  static std::vector<std::uint64_t> calls;
  calls.clear();
  Vorq::FillFunction<double> const fill = [](std::uint64_t i) {
    calls.push_back(i);
    return 0.5 * static_cast<double>(i);
  };
  auto const array = Own(factory_->CreateNdArray(Shape<1>({3}).get(), fill));
  EXPECT_EQ(calls, (std::vector<std::uint64_t>{0, 1, 2}));
  EXPECT_EQ(Elements(Impl(array)), (std::vector<double>{0.0, 0.5, 1.0}));
  Vorq::FillFunction<int> const fillInts = [](std::uint64_t i) { return static_cast<int>(i) + 1; };
  EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(Shape<2>({2, 1}).get(), fillInts)))), (std::vector<int>{1, 2}));
  EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(Shape<0>({}).get(), fillInts)))), std::vector<int>{1});
}

TEST_F(Factory, NullFillFunctionGivesZeros) {
  EXPECT_EQ(Elements(Impl(Own(factory_->CreateNdArray(Shape<1>({2}).get(), Vorq::FillFunction<double>())))),
            (std::vector<double>{0, 0}));
}

TEST_F(Factory, ViewIsEmpty) {
  auto const view = Own(factory_->CreateView());
  EXPECT_TRUE(Impl(view).Operations().empty());
}

TEST_F(Factory, NullObjectsAreRefused) {
  auto const shape = Shape<2>({2, 3});
  auto const var = Handle<Vorq::IVar>(Make<Vorq::Var>("x", 0));
  auto const expectRefused = [](auto const& block, char const* text) {
    EXPECT_EQ(block->GetSize(), 1u);
    EXPECT_EQ(block->GetLastError(), 3);
    EXPECT_STREQ(block->GetErrorMessage(), text);
  };
  Vorq::INdArray<double, 2>* const noNumbers = nullptr;
  Vorq::INDim<2>* const noShape = nullptr;
  Vorq::IVar* const noVar = nullptr;
  Vorq::IVarArray* const noVars = nullptr;
  expectRefused(Own(factory_->CreateMVar(noShape, var.get())), "(INVALID) Operand 1 is null");
  expectRefused(Own(factory_->CreateMVar(shape.get(), noVar)), "(INVALID) Operand 2 is null");
  expectRefused(Own(factory_->CreateMVar(shape.get(), noVars)), "(INVALID) Operand 2 is null");
  expectRefused(Own(factory_->CreateNdArray(noShape, 1.0)), "(INVALID) Operand 1 is null");
  EXPECT_EQ(Own(factory_->CreateMConstrBuilder(noShape))->GetLastError(), 3);
  EXPECT_EQ(Own(factory_->CreateMExpression(static_cast<Vorq::IExpr*>(nullptr)))->GetConstant(), 0.0);

  auto const helper = Own(CreateBroadCastHelper());
  auto const block = Own(factory_->CreateMVar(shape.get(), var.get()));
  expectRefused(Own(helper->Add(block.get(), noNumbers)), "(INVALID) Operand 2 is null");
  expectRefused(Own(helper->Mul(noNumbers, block.get())), "(INVALID) Operand 1 is null");
  expectRefused(Own(helper->Sub(noNumbers, noNumbers)), "(INVALID) Operand 1 is null");
}

}  // namespace
}  // namespace vorqtest
