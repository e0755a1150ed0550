// What the model does with its tables, for all kinds of items: lookup, names, collecting, removal, reload, clone.
#include "model/model.hpp"
#include "tests/double/solver_double.hpp"

namespace {

// The solver library's functions and the texts of a kind, as they are to be. Null: the kind has no such thing.
struct Expected {
  char const* counter;
  char const* badIndex;
  char const* badTable;
  char const* remove;
  char const* removeFailed;
  char const* find = nullptr;
  char const* notFound = nullptr;
  char const* setNames = nullptr;
  char const* setNamesFailed = nullptr;
  char const* removed = nullptr;
};

template <class Item>
constexpr Expected kExpected{};
template <>
constexpr Expected kExpected<Vorq::Var>{"Cols",
                                        "(INVALID) Invalid col index",
                                        "(INTERNAL) Internal col index error",
                                        "VORQ_DelCols",
                                        "(MEMORY) Fail to del cols",
                                        "VORQ_GetColIdx",
                                        "(INVALID) No such variable",
                                        "VORQ_SetColNames",
                                        "(INTERNAL) Fail to set names of variables",
                                        "(INVALID) The 1-th variable has been removed"};
template <>
constexpr Expected kExpected<Vorq::Constraint>{"Rows",
                                               "(INVALID) Invalid row index",
                                               "(INTERNAL) Internal row index error",
                                               "VORQ_DelRows",
                                               "(MEMORY) Fail to del rows",
                                               "VORQ_GetRowIdx",
                                               "(INVALID) No such constraint",
                                               "VORQ_SetRowNames",
                                               "(INTERNAL) Fail to set names of constraints",
                                               "(INVALID) The 1-th constraint has been removed"};
template <>
constexpr Expected kExpected<Vorq::Sos>{"Soss", "(INVALID) Invalid sos index", "(INTERNAL) Internal sos index error",
                                        "VORQ_DelSOSs", "(MEMORY) Fail to del SOSs"};
template <>
constexpr Expected kExpected<Vorq::GenConstr>{"Indicators",
                                              "(INVALID) Invalid index of general constraint",
                                              "(INTERNAL) Internal index error of gernal constraint",
                                              "VORQ_DelIndicators",
                                              "(MEMORY) Fail to del GenConstrs",
                                              "VORQ_GetIndicatorIdx",
                                              "(INVALID) No such general constraint",
                                              "VORQ_SetIndicatorNames",
                                              "(INTERNAL) Fail to set names of general constraints",
                                              "(INVALID) The 1-th general constraint has been removed"};
template <>
constexpr Expected kExpected<Vorq::Cone>{"Cones", "(INVALID) Invalid cone index",
                                         "(INTERNAL) Internal cone index error", "VORQ_DelCones",
                                         "(MEMORY) Fail to del cones"};
template <>
constexpr Expected kExpected<Vorq::ExpCone>{"ExpCones", "(INVALID) Invalid exponential cone index",
                                            "(INTERNAL) Internal exponential cone index error", "VORQ_DelExpCones",
                                            "(MEMORY) Fail to del exponential cones"};
template <>
constexpr Expected kExpected<Vorq::AffineCone>{"AffineCones",
                                               "(INVALID) Invalid affine cone index",
                                               "(INTERNAL) Internal affine cone index error",
                                               "VORQ_DelAffineCones",
                                               "(MEMORY) Fail to delete affine cones",
                                               "VORQ_GetAffineConeIdx",
                                               "(INVALID) Invalid affine cone constraint name",
                                               "VORQ_SetAffineConeNames",
                                               "(INTERNAL) Fail to set names of affine cone constraints",
                                               "(INVALID) The 1-th affine cone constraint has been removed"};
template <>
constexpr Expected kExpected<Vorq::QConstraint>{"QConstrs",
                                                "(INVALID) Invalid quad row index",
                                                "(INTERNAL) Internal quad row index error",
                                                "VORQ_DelQConstrs",
                                                "(MEMORY) Fail to del quatratic constraints",
                                                "VORQ_GetQConstrIdx",
                                                "(INVALID) No such constraint",
                                                "VORQ_SetQConstrNames",
                                                "(INTERNAL) Fail to set names of quadratic constraints",
                                                "(INVALID) The 1-th quadratic constraint has been removed"};
template <>
constexpr Expected kExpected<Vorq::PsdVar>{"PSDCols",
                                           "(INVALID) Invalid index of PSD variables",
                                           "(INTERNAL) Internal index error of PSD variables",
                                           "VORQ_DelPSDCols",
                                           "(MEMORY) Fail to delete PSD vars",
                                           "VORQ_GetPSDColIdx",
                                           "(INVALID) No such PSD variable",
                                           "VORQ_SetPSDColNames",
                                           "(INTERNAL) Fail to set names of PSD variables",
                                           "(INVALID) The 1-th PSD variable has been removed"};
template <>
constexpr Expected kExpected<Vorq::PsdConstraint>{"PSDConstrs",
                                                  "(INVALID) Invalid row index of PSD constraint",
                                                  "(INTERNAL) Internal row index error of PSD constraint",
                                                  "VORQ_DelPSDConstrs",
                                                  "(MEMORY) Fail to del PSD constraints",
                                                  "VORQ_GetPSDConstrIdx",
                                                  "(INVALID) No such PSD constraint",
                                                  "VORQ_SetPSDConstrNames",
                                                  "(INTERNAL) Fail to set names of PSD constraints",
                                                  "(INVALID) The 1-th PSD constraint has been removed"};
template <>
constexpr Expected kExpected<Vorq::LmiConstraint>{"LMIConstrs",
                                                  "(INVALID) Invalid row index of LMI constraint",
                                                  "(INTERNAL) Internal row index error of LMI constraint",
                                                  "VORQ_DelLMIConstrs",
                                                  "(MEMORY) Fail to del LMI constraints",
                                                  "VORQ_GetLMIConstrIdx",
                                                  "(INVALID) No such LMI constraint",
                                                  "VORQ_SetLMIConstrNames",
                                                  "(INTERNAL) Fail to set names of LMI constraints",
                                                  "(INVALID) The 1-th LMI constraint has been removed"};
template <>
constexpr Expected kExpected<Vorq::SymMatrix>{"SymMats", "(INVALID) Invalid index of symmetric matrix",
                                              "(INTERNAL) Internal index error of symmetric matrix", nullptr, nullptr};

// A model that holds four items of the kind, as after a file was read.
template <class Item>
class KindTest : public vorqtest::SolverDoubleTest {
 protected:
  KindTest() {
    double_.SetItems(model_.Core().prob->prob, expected_.counter, 4);
    model_.ReloadItems();
    double_.ClearLog();
  }

  void ExpectFailure(int code, char const* text) {
    EXPECT_EQ(model_.status.Code(), code);
    EXPECT_STREQ(model_.status.Text(), text);
  }

  // A call with a list of indices, as the log shows it.
  static std::string CallWith(char const* function, std::string const& rest) {
    return std::string(function) + "(prob#1, " + rest + ")";
  }

  struct Sink : Vorq::ILogSink {
    void Log(char const*) override {}
  };

  Expected const& expected_ = kExpected<Item>;
  Sink sink_;
  Vorq::Envr envr_{&sink_};
  Vorq::Model model_{envr_, "m"};
};

template <class Item>
class AnyKind : public KindTest<Item> {};
template <class Item>
class RemovableKind : public KindTest<Item> {};
template <class Item>
class NamedKind : public KindTest<Item> {};

using Removable =
    testing::Types<Vorq::Var, Vorq::Constraint, Vorq::Sos, Vorq::GenConstr, Vorq::Cone, Vorq::ExpCone, Vorq::AffineCone,
                   Vorq::QConstraint, Vorq::PsdVar, Vorq::PsdConstraint, Vorq::LmiConstraint>;
using All =
    testing::Types<Vorq::Var, Vorq::Constraint, Vorq::Sos, Vorq::GenConstr, Vorq::Cone, Vorq::ExpCone, Vorq::AffineCone,
                   Vorq::QConstraint, Vorq::PsdVar, Vorq::PsdConstraint, Vorq::LmiConstraint, Vorq::SymMatrix>;
using Named = testing::Types<Vorq::Var, Vorq::Constraint, Vorq::GenConstr, Vorq::AffineCone, Vorq::QConstraint,
                             Vorq::PsdVar, Vorq::PsdConstraint, Vorq::LmiConstraint>;
TYPED_TEST_SUITE(AnyKind, All);
TYPED_TEST_SUITE(RemovableKind, Removable);
TYPED_TEST_SUITE(NamedKind, Named);

TYPED_TEST(AnyKind, LookupByIndexGivesTheItem) {
  EXPECT_EQ(this->model_.template Get<TypeParam>(3).Idx(), 3);
  EXPECT_FALSE(this->model_.status.Failed());
  EXPECT_CALLS(this->double_, {});
}

TYPED_TEST(AnyKind, LookupOutsideOfTheTableFails) {
  for (int index : {-1, 4}) {
    EXPECT_EQ(this->model_.template Get<TypeParam>(index).Idx(), -2);
    this->ExpectFailure(3, this->expected_.badIndex);
  }
}

TYPED_TEST(AnyKind, LookupClearsAnEarlierFailure) {
  this->model_.template Get<TypeParam>(-1);
  this->model_.template Get<TypeParam>(0);
  EXPECT_EQ(this->model_.status.Code(), 0);
}

TYPED_TEST(AnyKind, LookupInATableThatDoesNotFitFails) {
  this->model_.Core().template Table<TypeParam>().count = 5;
  EXPECT_EQ(this->model_.template Get<TypeParam>(4).Idx(), -2);
  this->ExpectFailure(5, this->expected_.badTable);
  this->model_.Core().template Table<TypeParam>().items[1].Record().idx = 2;
  EXPECT_EQ(this->model_.template Get<TypeParam>(1).Idx(), -2);
  this->ExpectFailure(5, this->expected_.badTable);
}

TYPED_TEST(AnyKind, CollectGivesAllInOrder) {
  auto const items = this->model_.template Collect<TypeParam>();
  ASSERT_EQ(items.size(), 4u);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(items[static_cast<std::size_t>(i)].Idx(), i);
}

TYPED_TEST(AnyKind, CollectStopsAtAFailureThatStands) {
  this->model_.template Get<TypeParam>(-1);
  EXPECT_TRUE(this->model_.template Collect<TypeParam>().empty());
  this->ExpectFailure(3, this->expected_.badIndex);
}

TYPED_TEST(AnyKind, ReloadMakesStrangersOfEarlierItems) {
  auto const old = this->model_.template Get<TypeParam>(3);
  this->double_.SetItems(this->model_.Core().prob->prob, this->expected_.counter, 2);
  this->model_.ReloadItems();
  EXPECT_EQ(this->model_.template Count<TypeParam>(), 2);
  EXPECT_EQ(old.Idx(), 3);
  EXPECT_NE(&old.Record(), &this->model_.template Get<TypeParam>(1).Record());
}

TYPED_TEST(AnyKind, CloneHasItsOwnItems) {
  auto const source = this->model_.template Get<TypeParam>(1);
  Vorq::Model copy(this->model_.Clone());
  EXPECT_FALSE(this->model_.status.Failed());
  EXPECT_EQ(copy.template Count<TypeParam>(), 4);
  auto const cloned = copy.template Get<TypeParam>(1);
  EXPECT_EQ(cloned.Idx(), 1);
  EXPECT_NE(&source.Record(), &cloned.Record());
  EXPECT_EQ(cloned.Record().prob->prob, copy.Core().prob->prob);
}

TYPED_TEST(AnyKind, ClearEmptiesTheTable) {
  auto const item = this->model_.template Get<TypeParam>(3);
  this->model_.Clear();
  EXPECT_FALSE(this->model_.status.Failed());
  EXPECT_EQ(this->model_.template Count<TypeParam>(), 0);
  EXPECT_TRUE(this->model_.Core().template Table<TypeParam>().items.empty());
  EXPECT_EQ(item.Idx(), 3);
}

TYPED_TEST(RemovableKind, RemovalIsOneCallAtTheNextFlush) {
  auto items = this->model_.template Collect<TypeParam>();
  std::vector<TypeParam> doomed{items[2], items[0]};
  this->model_.Remove(doomed);
  EXPECT_CALLS(this->double_, {});
  EXPECT_TRUE(this->model_.ApplyRemovals());
  EXPECT_CALLS(this->double_, {this->CallWith(this->expected_.remove, "2, [0,2]")});
  EXPECT_EQ(this->model_.template Count<TypeParam>(), 2);
  EXPECT_EQ(items[0].Idx(), -3);
  EXPECT_EQ(items[1].Idx(), 0);
  EXPECT_EQ(items[2].Idx(), -5);
  EXPECT_EQ(items[3].Idx(), 1);
  EXPECT_EQ(&this->model_.template Get<TypeParam>(1).Record(), &items[3].Record());
}

TYPED_TEST(RemovableKind, FlushWithoutMarksCallsNothing) {
  EXPECT_TRUE(this->model_.ApplyRemovals());
  EXPECT_CALLS(this->double_, {});
}

TYPED_TEST(RemovableKind, RemoveTwiceDoesNothing) {
  auto items = this->model_.template Collect<TypeParam>();
  items[1].MarkRemoved();
  items[1].MarkRemoved();
  EXPECT_EQ(items[1].Idx(), -4);
}

TYPED_TEST(RemovableKind, RemoveOfAnInvalidItemMarksNothing) {
  TypeParam invalid = this->model_.template Get<TypeParam>(-1);
  invalid.MarkRemoved();
  EXPECT_EQ(invalid.Idx(), -2);
  EXPECT_FALSE(this->model_.Core().prob->dirty);
}

TYPED_TEST(RemovableKind, MarkedItemIsStillFoundAndNotCollected) {
  this->model_.template Get<TypeParam>(1).MarkRemoved();
  EXPECT_EQ(this->model_.template Get<TypeParam>(1).Idx(), -4);
  EXPECT_FALSE(this->model_.status.Failed());
  EXPECT_EQ(this->model_.template Collect<TypeParam>().size(), 3u);
  EXPECT_EQ(this->model_.template Count<TypeParam>(), 4);
}

TYPED_TEST(RemovableKind, FailedDeleteLeavesEverythingMarked) {
  auto items = this->model_.template Collect<TypeParam>();
  items[0].MarkRemoved();
  this->double_.FailNext(this->expected_.remove, VORQ_MEMORY);
  EXPECT_FALSE(this->model_.ApplyRemovals());
  this->ExpectFailure(1, this->expected_.removeFailed);
  EXPECT_EQ(this->model_.template Count<TypeParam>(), 4);
  EXPECT_EQ(items[3].Idx(), 3);
  EXPECT_TRUE(this->model_.Core().prob->dirty);
  EXPECT_TRUE(this->model_.ApplyRemovals());
  EXPECT_EQ(this->double_.CountCalls(this->expected_.remove), 2u);
  EXPECT_EQ(items[3].Idx(), 2);
}

TYPED_TEST(NamedKind, LookupByNameNormalisesTheName) {
  this->double_.AnswerNext(this->expected_.find).Set("index", 2);
  EXPECT_EQ(this->model_.template GetByName<TypeParam>(" a b ").Idx(), 2);
  EXPECT_CALLS(this->double_, {this->CallWith(this->expected_.find, "\"a_b\", out")});
}

TYPED_TEST(NamedKind, UnknownNameGivesAnInvalidItem) {
  this->double_.FailNext(this->expected_.find, VORQ_INVALID);
  EXPECT_EQ(this->model_.template GetByName<TypeParam>("a").Idx(), -2);
  this->ExpectFailure(3, this->expected_.notFound);
}

TYPED_TEST(NamedKind, NameOutsideOfTheTableIsABadIndex) {
  this->double_.AnswerNext(this->expected_.find).Set("index", 4);
  EXPECT_EQ(this->model_.template GetByName<TypeParam>("a").Idx(), -2);
  this->ExpectFailure(3, this->expected_.badIndex);
}

TYPED_TEST(NamedKind, SetNamesTakesTheBufferApart) {
  auto items = this->model_.template Collect<TypeParam>();
  std::vector<TypeParam> const chosen{items[3], items[1]};
  this->model_.SetNames(chosen, "a b\0c\0surplus", 6);
  EXPECT_FALSE(this->model_.status.Failed());
  EXPECT_CALLS(this->double_, {this->CallWith(this->expected_.setNames, R"(2, [3,1], ["a b","c"])")});
  EXPECT_EQ(items[3].Record().name, "a_b");
  EXPECT_EQ(items[1].Record().name, "c");
}

TYPED_TEST(NamedKind, SetNamesOfNothingStillCalls) {
  this->model_.SetNames(std::vector<TypeParam>(), nullptr, 0);
  EXPECT_EQ(this->double_.CountCalls(this->expected_.setNames), 1u);
}

TYPED_TEST(NamedKind, SetNamesOfARemovedItemTellsItsOldIndex) {
  auto items = this->model_.template Collect<TypeParam>();
  items[1].MarkRemoved();
  this->model_.SetNames(std::vector<TypeParam>{items[0], items[1]}, "a\0b", 4);
  this->ExpectFailure(3, this->expected_.removed);
  EXPECT_CALLS(this->double_, {});
  EXPECT_EQ(items[0].Record().name, "");
}

TYPED_TEST(NamedKind, SetNamesWithAShortBufferFails) {
  auto const items = this->model_.template Collect<TypeParam>();
  this->model_.SetNames(items, "a\0b\0c\0d", 7);
  this->ExpectFailure(3, "(INVALID) Invalid size of input names");
  EXPECT_CALLS(this->double_, {});
}

TYPED_TEST(NamedKind, RefusedNamesAreKeptInTheItems) {
  auto const items = this->model_.template Collect<TypeParam>();
  this->double_.FailNext(this->expected_.setNames, VORQ_INTERNAL);
  this->model_.SetNames(items, "a\0b\0c\0d", 8);
  this->ExpectFailure(5, this->expected_.setNamesFailed);
  EXPECT_EQ(items[2].Record().name, "c");
}

}  // namespace
