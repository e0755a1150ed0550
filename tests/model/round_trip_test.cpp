// Every kind on the real solver library, through the interfaces: what was added by expression reads back as the same
// builder, after removals, in a copy, and by name.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vorq>

#include "tests/model/cone_problem_arrays.hpp"
#include "tests/model/expression_texts.hpp"
#include "tests/support/objects.hpp"

namespace {

using vorqtest::Own;
using vorqtest::SilentSink;
using vorqtest::Text;

// Builders and expressions as texts.
std::string Text(Vorq::IQuadExpr* expr) {
  std::ostringstream out;
  out << Text(Own(expr->GetLinExpr()).get());
  for (int i = 0; i < static_cast<int>(expr->GetSize()); ++i) {
    out << " + " << expr->GetCoeff(i) << ' ' << Own(expr->GetVar1(i))->GetName() << ' '
        << Own(expr->GetVar2(i))->GetName();
  }
  return out.str();
}
std::string Text(Vorq::ISymMatExpr* expr) {
  std::ostringstream out;
  for (int i = 0; i < static_cast<int>(expr->GetSize()); ++i) {
    out << (i > 0 ? " + " : "") << expr->GetCoeff(i) << " #" << Own(expr->GetSymMat(i))->GetIdx();
  }
  return out.str();
}
std::string Text(Vorq::IPsdExpr* expr) {
  std::ostringstream out;
  out << Text(Own(expr->GetLinExpr()).get());
  for (int i = 0; i < static_cast<int>(expr->GetSize()); ++i) {
    out << " + (" << Text(Own(expr->GetCoeff(i)).get()) << ") " << Own(expr->GetPsdVar(i))->GetName();
  }
  return out.str();
}
std::string Text(Vorq::ILmiExpr* expr) {
  std::ostringstream out;
  out << '(' << Text(Own(expr->GetConstant()).get()) << ')';
  for (int i = 0; i < static_cast<int>(expr->GetSize()); ++i) {
    out << " + (" << Text(Own(expr->GetCoeff(i)).get()) << ") " << Own(expr->GetVar(i))->GetName();
  }
  return out.str();
}
template <class Builder>
std::string ListText(Builder* builder) {
  std::ostringstream out;
  out << "type " << builder->GetType();
  for (int i = 0; i < builder->GetSize(); ++i) out << ' ' << Own(builder->GetVar(i))->GetName();
  return out.str();
}
std::string Text(Vorq::ISosBuilder* builder) {
  std::ostringstream out;
  out << ListText(builder) << " weights";
  for (int i = 0; i < builder->GetSize(); ++i) out << ' ' << builder->GetWeight(i);
  return out.str();
}
std::string Text(Vorq::IConeBuilder* builder) {
  return ListText(builder);
}
std::string Text(Vorq::IExpConeBuilder* builder) {
  return ListText(builder);
}
std::string Text(Vorq::IQConstrBuilder* builder) {
  return Text(Own(builder->GetQuadExpr()).get()) + ' ' + builder->GetSense();
}
std::string Text(Vorq::IPsdConstrBuilder* builder) {
  std::ostringstream out;
  out << Text(Own(builder->GetPsdExpr()).get()) << ' ' << builder->GetSense() << ' ' << builder->GetRange();
  return out.str();
}
std::string Text(Vorq::IAffineConeBuilder* builder) {
  std::ostringstream out;
  out << "type " << builder->GetType() << ':';
  for (int i = 0; i < builder->GetDim(); ++i) out << " [" << Text(Own(builder->GetPsdExpr(i)).get()) << ']';
  return out.str();
}
std::string Text(Vorq::IGenConstrBuilder* builder) {
  std::ostringstream out;
  out << Own(builder->GetBinVar())->GetName() << " = " << builder->GetBinVal() << " (" << builder->GetType()
      << "): " << Text(Own(builder->GetExpr()).get()) << ' ' << builder->GetSense();
  return out.str();
}

template <class Array>
std::string Texts(Array const& builders) {
  std::string text;
  for (int i = 0; i < builders->Size(); ++i) text += Text(Own(builders->Get(i)).get()) + '\n';
  return text;
}

// Two items of each kind over the columns x, y, z, b.
class RoundTripTest : public testing::Test {
 protected:
  RoundTripTest() {
    model_->SetIntParam("LogToConsole", 0);
    AddLogicalParts();
    AddCones();
    AddQuadraticParts();
    AddSemidefiniteParts();
    AddAffineCones();
    EXPECT_EQ(model_->GetLastError(), 0) << model_->GetErrorMessage();
  }

  void TearDown() override { ExpectSuccess(); }
  void ExpectSuccess() { EXPECT_EQ(model_->GetLastError(), 0) << model_->GetErrorMessage(); }

  static std::unique_ptr<Vorq::IVarArray> ListOf(std::initializer_list<Vorq::IVar*> vars) {
    auto array = Own(CreateVarArray());
    for (Vorq::IVar* var : vars) array->PushBack(*var);
    return array;
  }

  void AddLogicalParts() {
    double const weights[] = {3.0, 1.0, 2.0};
    Own(model_->AddSos(ListOf({x_.get(), y_.get(), z_.get()}).get(), weights, 1));
    Own(model_->AddSos(ListOf({z_.get(), y_.get()}).get(), nullptr, 2));
    auto const expr = Own(CreateLinExpr(x_.get(), 2.0));
    expr->AddTerm(y_.get(), -1.0);
    expr->AddConstant(1.0);
    Own(model_->AddGenConstrIndicator(b_.get(), 1, expr.get(), 'L', 5.0, 0, "g0"));
    Own(model_->AddGenConstrIndicator(b_.get(), 0, expr.get(), 'G', 7.0, 0, "g1"));
  }
  void AddCones() {
    Own(model_->AddCone(ListOf({x_.get(), y_.get()}).get(), 1));
    Own(model_->AddCone(ListOf({z_.get(), y_.get(), x_.get()}).get(), 2));
    Own(model_->AddExpCone(ListOf({x_.get(), y_.get(), z_.get()}).get(), 3));
    Own(model_->AddExpCone(ListOf({z_.get(), y_.get(), x_.get()}).get(), 4));
  }
  void AddQuadraticParts() {
    auto const quad = Own(CreateQuadExpr1(1.0));
    quad->AddTerm(y_.get(), z_.get(), 2.0);
    quad->AddTerm(y_.get(), y_.get(), 3.0);
    quad->AddTerm(z_.get(), 4.0);
    Own(model_->AddQConstr(quad.get(), 'L', 6.0, "q0"));
    Own(model_->AddQConstr(quad.get(), 'G', 0.0, "q1"));
    model_->SetQuadObjective(quad.get(), -1);
  }
  void AddSemidefiniteParts() {
    int const dims[] = {2, 2};
    auto const psdVars = Own(model_->AddPsdVars(2, dims, "X\0Y", 4));
    first_ = Own(psdVars->Get(0));
    second_ = Own(psdVars->Get(1));
    eye_ = Own(model_->AddEyeMat(2));    // matrix 0
    ones_ = Own(model_->AddOnesMat(2));  // matrix 1
    auto const psd = Own(CreatePsdExpr4(first_.get(), eye_.get()));
    psd->AddTerm(second_.get(), ones_.get());
    psd->AddTerm(z_.get(), 1.5);
    psd->AddConstant(2.0);
    Own(model_->AddPsdConstr(psd.get(), 'G', 5.0, "p0"));  // matrices 2 and 3
    Own(model_->AddPsdConstr(psd.get(), 1.0, 4.0, "p1"));  // matrices 4 and 5
    auto const lmi = Own(CreateLmiExpr4(y_.get(), eye_.get()));
    lmi->AddTerm(z_.get(), ones_.get());
    Own(model_->AddLmiConstr(lmi.get(), "l0"));  // matrices 6 and 7
    auto const withConstant = Own(CreateLmiExpr2(ones_.get()));
    withConstant->AddTerm(z_.get(), eye_.get());
    Own(model_->AddLmiConstr(withConstant.get(), "l1"));  // matrices 8 and 9
  }

  void AddAffineCones() {
    auto const linear = Own(CreateLinExpr(x_.get(), 2.0));
    linear->AddTerm(z_.get(), -1.0);
    linear->AddConstant(4.0);
    auto const constant = Own(CreateExpr(3.0));
    Own(model_->AddAffineCone(std::vector<Vorq::IExpr*>{constant.get(), linear.get()}, 1, "a0"));
    auto const psd = Own(CreatePsdExpr4(second_.get(), eye_.get()));
    psd->AddTerm(y_.get(), 1.5);
    auto const row = Own(CreatePsdExpr3(linear.get()));
    Own(model_->AddAffineCone(std::vector<Vorq::IPsdExpr*>{psd.get(), row.get(), psd.get()}, 2, "a1"));  // 10 and 11
  }

  // All builders of all kinds.
  static std::string Everything(Vorq::IModel& model) {
    std::string text = Texts(Own(model.GetSosBuilders())) + Texts(Own(model.GetGenConstrBuilders())) +
                       Texts(Own(model.GetConeBuilders())) + Texts(Own(model.GetExpConeBuilders())) +
                       Texts(Own(model.GetAffineConeBuilders())) + Texts(Own(model.GetQConstrBuilders())) +
                       Texts(Own(model.GetPsdConstrBuilders()));
    auto const lmis = Own(model.GetLmiConstrs());
    for (int i = 0; i < lmis->Size(); ++i) {
      text += Text(Own(model.GetLmiRow(Own(lmis->Get(i)).get())).get()) + '\n';
    }
    return text + Text(Own(model.GetQuadObjective()).get()) + '\n';
  }

  SilentSink sink_;
  std::unique_ptr<Vorq::IEnvr> envr_{CreateEnvr(&sink_)};
  std::unique_ptr<Vorq::IModel> model_{envr_->CreateModel("real")};
  std::unique_ptr<Vorq::IVar> x_{model_->AddVar(-1e30, 1e30, 0.0, 'C', "x")};
  std::unique_ptr<Vorq::IVar> y_{model_->AddVar(0.0, 1e30, 0.0, 'C', "y")};
  std::unique_ptr<Vorq::IVar> z_{model_->AddVar(0.0, 1e30, 0.0, 'C', "z")};
  std::unique_ptr<Vorq::IVar> b_{model_->AddVar(0.0, 1.0, 0.0, 'B', "b")};
  std::unique_ptr<Vorq::IPsdVar> first_, second_;
  std::unique_ptr<Vorq::ISymMatrix> eye_, ones_;
};

constexpr char kEverything[] =
    "type 1 x y z weights 3 1 2\n"
    "type 2 z y weights 1 2\n"
    "b = 1 (0): -4 + 2 x + -1 y L\n"
    "b = 0 (0): -6 + 2 x + -1 y G\n"
    "type 1 x y\n"
    "type 2 z y x\n"
    "type 3 x y z\n"
    "type 4 z y x\n"
    "type 1: [3] [4 + 2 x + -1 z]\n"
    "type 2: [0 + 1.5 y + (1 #10) Y] [4 + 2 x + -1 z] [0 + 1.5 y + (1 #11) Y]\n"
    "-5 + 4 z + 2 y z + 3 y y L\n"
    "1 + 4 z + 2 y z + 3 y y G\n"
    "-3 + 1.5 z + (1 #2) X + (1 #3) Y G 0\n"
    "-2 + 1.5 z + (1 #4) X + (1 #5) Y R 3\n"
    "() + (1 #6) y + (1 #7) z\n"
    "(1 #9) + (1 #8) z\n"
    "1 + 4 z + 2 y z + 3 y y\n";

TEST_F(RoundTripTest, EveryKindReadsBackAsItWasAdded) {
  EXPECT_EQ(Everything(*model_), kEverything);
}

TEST_F(RoundTripTest, ACopyHoldsTheSame) {
  auto const copy = Own(model_->Clone());
  EXPECT_EQ(Everything(*copy), kEverything);
  EXPECT_EQ(Own(copy->GetPsdVar(1))->GetLen(), 4);
  EXPECT_EQ(Own(copy->GetLmiConstr(1))->GetDim(), 2);
  EXPECT_EQ(Own(copy->GetSymMat(11))->GetDim(), 2);
}

// The first item of each kind goes, and the second takes its index.
TEST_F(RoundTripTest, RemovalLeavesTheSecondOfEachKind) {
  auto const psdConstr = Own(model_->GetPsdConstrByName("p1"));
  Own(model_->GetSos(0))->Remove();
  Own(model_->GetGenConstr(0))->Remove();
  Own(model_->GetCone(0))->Remove();
  Own(model_->GetExpCone(0))->Remove();
  Own(model_->GetAffineCone(0))->Remove();
  Own(model_->GetQConstr(0))->Remove();
  Own(model_->GetPsdConstr(0))->Remove();
  Own(model_->GetLmiConstr(0))->Remove();
  constexpr char kSeconds[] =
      "type 2 z y weights 1 2\n"
      "b = 0 (0): -6 + 2 x + -1 y G\n"
      "type 2 z y x\n"
      "type 4 z y x\n"
      "type 2: [0 + 1.5 y + (1 #10) Y] [4 + 2 x + -1 z] [0 + 1.5 y + (1 #11) Y]\n"
      "1 + 4 z + 2 y z + 3 y y G\n"
      "-2 + 1.5 z + (1 #4) X + (1 #5) Y R 3\n"
      "(1 #9) + (1 #8) z\n"
      "1 + 4 z + 2 y z + 3 y y\n";
  EXPECT_EQ(Everything(*model_), kSeconds);  // the marks alone hide the items
  for (char const* counter :
       {"Soss", "Indicators", "Cones", "ExpCones", "AffineCones", "QConstrs", "PSDConstrs", "LMIConstrs"}) {
    EXPECT_EQ(model_->GetIntAttr(counter), 1) << counter;
  }
  EXPECT_EQ(psdConstr->GetIdx(), 0);
  EXPECT_EQ(Everything(*model_), kSeconds);
}

TEST_F(RoundTripTest, RemovedColumnLeavesItsTerms) {
  for (int i : {0, 1}) {
    Own(model_->GetCone(i))->Remove();
    Own(model_->GetExpCone(i))->Remove();
  }
  x_->Remove();
  EXPECT_EQ(model_->GetIntAttr("Cols"), 3);
  EXPECT_EQ(Everything(*model_),
            "type 1 y z weights 1 2\n"
            "type 2 z y weights 1 2\n"
            "b = 1 (0): -4 + -1 y L\n"
            "b = 0 (0): -6 + -1 y G\n"
            "type 1: [3] [4 + -1 z]\n"
            "type 2: [0 + 1.5 y + (1 #10) Y] [4 + -1 z] [0 + 1.5 y + (1 #11) Y]\n"
            "-5 + 4 z + 2 y z + 3 y y L\n"
            "1 + 4 z + 2 y z + 3 y y G\n"
            "-3 + 1.5 z + (1 #2) X + (1 #3) Y G 0\n"
            "-2 + 1.5 z + (1 #4) X + (1 #5) Y R 3\n"
            "() + (1 #6) y + (1 #7) z\n"
            "(1 #9) + (1 #8) z\n"
            "1 + 4 z + 2 y z + 3 y y\n");
}

TEST_F(RoundTripTest, RemovedPsdVariableLeavesItsTerms) {
  first_->Remove();
  EXPECT_EQ(model_->GetIntAttr("PSDCols"), 1);
  EXPECT_EQ(second_->GetIdx(), 0);
  EXPECT_EQ(Texts(Own(model_->GetPsdConstrBuilders())), "-3 + 1.5 z + (1 #3) Y G 0\n-2 + 1.5 z + (1 #5) Y R 3\n");
  second_->Remove();
  EXPECT_EQ(model_->GetIntAttr("PSDCols"), 0);
  EXPECT_EQ(Texts(Own(model_->GetAffineConeBuilders())),
            "type 1: [3] [4 + 2 x + -1 z]\ntype 2: [0 + 1.5 y] [4 + 2 x + -1 z] [0 + 1.5 y]\n");
}

// The column goes before the cone: the cone stays with a gap until it is removed too.
TEST_F(RoundTripTest, ConeWithoutItsColumnCanStillBeRemoved) {
  x_->Remove();
  EXPECT_EQ(model_->GetIntAttr("Cols"), 3);
  EXPECT_EQ(Own(model_->GetConeBuilders())->Size(), 0);
  EXPECT_STREQ(model_->GetErrorMessage(), "(INVALID) Invalid col index");
  for (int i : {0, 1}) Own(model_->GetCone(i))->Remove();
  EXPECT_EQ(model_->GetIntAttr("Cones"), 0);
  EXPECT_EQ(Own(model_->GetConeBuilders())->Size(), 0);
}

TEST_F(RoundTripTest, BuildersMakeTheSameAgain) {
  auto const other = Own(envr_->CreateModel("other"));
  for (char const* name : {"x", "y", "z"}) Own(other->AddVar(0.0, 1.0, 0.0, 'C', name));
  Own(other->AddVar(0.0, 1.0, 0.0, 'B', "b"));
  // Items of another model are taken by their index.
  auto const soss = Own(model_->GetSosBuilders());
  auto const cones = Own(model_->GetConeBuilders());
  auto const expCones = Own(model_->GetExpConeBuilders());
  auto const quads = Own(model_->GetQConstrBuilders());
  for (int i : {0, 1}) {
    Own(other->AddSos(Own(soss->Get(i)).get()));
    Own(other->AddCone(Own(cones->Get(i)).get()));
    Own(other->AddExpCone(Own(expCones->Get(i)).get()));
    Own(other->AddQConstr(Own(quads->Get(i)).get(), nullptr));
  }
  auto const affine = Own(model_->GetAffineConeBuilders());
  Own(other->AddAffineCone(Own(affine->Get(0)).get(), nullptr));
  EXPECT_EQ(Text(Own(Own(other->GetAffineConeBuilders())->Get(0)).get()), Text(Own(affine->Get(0)).get()));
  Own(other->AddGenConstrIndicators(Own(model_->GetGenConstrBuilders()).get(), "g"));
  EXPECT_EQ(other->GetLastError(), 0) << other->GetErrorMessage();
  EXPECT_EQ(Texts(Own(other->GetSosBuilders())), Texts(soss));
  EXPECT_EQ(Texts(Own(other->GetConeBuilders())), Texts(cones));
  EXPECT_EQ(Texts(Own(other->GetExpConeBuilders())), Texts(expCones));
  EXPECT_EQ(Texts(Own(other->GetQConstrBuilders())), Texts(quads));
  EXPECT_EQ(Texts(Own(other->GetGenConstrBuilders())), Texts(Own(model_->GetGenConstrBuilders())));
}

TEST_F(RoundTripTest, NamesFindTheirItems) {
  EXPECT_EQ(Own(model_->GetGenConstrByName("g1"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetQConstrByName("q1"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetPsdVarByName("Y"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetPsdConstrByName("p1"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetLmiConstrByName("l1"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetAffineConeByName("a1"))->GetIdx(), 1);
}

TEST_F(RoundTripTest, NewNamesAreFound) {
  model_->SetNames(Own(model_->GetGenConstrs()).get(), "a\0b", 4);
  model_->SetNames(Own(model_->GetQConstrs()).get(), "c\0d", 4);
  model_->SetNames(Own(model_->GetPsdVars()).get(), "e\0f", 4);
  model_->SetNames(Own(model_->GetPsdConstrs()).get(), "g\0h", 4);
  model_->SetNames(Own(model_->GetLmiConstrs()).get(), "i\0j", 4);
  EXPECT_EQ(Own(model_->GetGenConstrByName("b"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetQConstrByName("d"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetPsdVarByName("f"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetPsdConstrByName("h"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetLmiConstrByName("j"))->GetIdx(), 1);
  model_->SetNames(Own(model_->GetAffineCones()).get(), "k\0l", 4);
  EXPECT_EQ(Own(model_->GetAffineConeByName("l"))->GetIdx(), 1);
}

TEST_F(RoundTripTest, ClearLeavesNothingOfAnyKind) {
  model_->Clear();
  for (char const* counter : {"Cols", "Soss", "Indicators", "Cones", "ExpCones", "AffineCones", "QConstrs", "PSDCols",
                              "PSDConstrs", "LMIConstrs", "SymMats"}) {
    EXPECT_EQ(model_->GetIntAttr(counter), 0) << counter;
  }
  EXPECT_EQ(Everything(*model_), "0\n");
}

TEST_F(RoundTripTest, BoundsAndRightSidesCanBeChanged) {
  auto const constr = Own(model_->GetPsdConstr(0));
  constr->Set("UB", 9.0);
  EXPECT_EQ(constr->Get("LB"), 3.0);
  EXPECT_EQ(constr->Get("UB"), 9.0);
  auto const list = Own(model_->GetPsdConstrs());
  double const lowers[] = {-1e30, 2.0};
  double values[2];
  model_->SetPsdConstrInfo("LB", list.get(), lowers, 2);
  EXPECT_EQ(model_->GetPsdConstrInfo("LB", list.get(), values), 2);
  EXPECT_EQ(values[1], 2.0);
  auto const quad = Own(model_->GetQConstr(0));
  quad->SetRhs(8.0);
  quad->SetSense('E');
  EXPECT_EQ(quad->GetRhs(), 8.0);
  EXPECT_EQ(Text(Own(model_->GetQConstrBuilder(quad.get())).get()), "-8 + 4 z + 2 y z + 3 y y E");
}

TEST_F(RoundTripTest, MatrixCoefficientsCanBeChanged) {
  auto const psd = Own(model_->GetPsdConstr(0));
  EXPECT_EQ(Own(model_->GetPsdCoeff(psd.get(), second_.get()))->GetIdx(), 3);
  model_->SetPsdCoeff(psd.get(), second_.get(), eye_.get());
  EXPECT_EQ(Own(model_->GetPsdCoeff(psd.get(), second_.get()))->GetIdx(), 0);
  auto const lmi = Own(model_->GetLmiConstr(0));
  EXPECT_EQ(Own(model_->GetLmiCoeff(lmi.get(), z_.get()))->GetIdx(), 7);
  model_->SetLmiCoeff(lmi.get(), x_.get(), ones_.get());
  model_->SetLmiRhs(lmi.get(), eye_.get());
  EXPECT_EQ(Own(model_->GetLmiRhs(lmi.get()))->GetIdx(), 0);
  EXPECT_EQ(Text(Own(model_->GetLmiRow(lmi.get())).get()), "(1 #0) + (1 #6) y + (1 #7) z + (1 #1) x");
}

TEST_F(RoundTripTest, PsdObjectiveReadsBack) {
  auto const objective = Own(CreatePsdExpr4(second_.get(), ones_.get()));
  objective->AddTerm(y_.get(), 2.5);
  objective->AddConstant(7.0);
  model_->SetPsdObjective(objective.get(), 1);
  EXPECT_EQ(Text(Own(model_->GetPsdObjective()).get()), "7 + 2.5 y + (1 #12) Y");
  model_->DelPsdObj();
  EXPECT_EQ(Text(Own(model_->GetPsdObjective()).get()), "7 + 2.5 y");
  model_->DelQuadObj();
  EXPECT_EQ(Text(Own(model_->GetQuadObjective()).get()), "7 + 2.5 y");
}

TEST_F(RoundTripTest, NewConesMakeTheirVariables) {
  EXPECT_EQ(Own(model_->AddCone(3, 1, "BCC", "c"))->GetIdx(), 2);
  EXPECT_EQ(Own(model_->AddExpCone(4, nullptr, "e"))->GetIdx(), 2);
  EXPECT_EQ(Text(Own(Own(model_->GetConeBuilders())->Get(2)).get()), "type 1 c_4 c_5 c_6");
  EXPECT_EQ(Text(Own(Own(model_->GetExpConeBuilders())->Get(2)).get()), "type 4 e_7 e_8 e_9");
  EXPECT_EQ(Own(model_->GetVar(4))->Get("LB"), 0.0);
  EXPECT_EQ(Own(model_->GetVar(5))->Get("LB"), -1e30);
  EXPECT_EQ(Own(model_->GetVar(9))->Get("UB"), 0.0);
}

TEST_F(RoundTripTest, ConeProblemIsLoadedWhole) {
  vorqtest::LoadConeProblem(*model_, {0, 0, 0});
  ExpectSuccess();
  char const* const names[] = {"u", "v", "w"};
  for (int i = 0; i < 3; ++i) Own(model_->GetVar(i))->SetName(names[i]);
  Own(model_->GetPsdVar(0))->SetName("U");
  EXPECT_EQ(Everything(*model_), "type 1 u v\ntype 3 w v u\n0 + 1 u + 2 v + 3 w + 13 u v\n");
  EXPECT_EQ(Text(Own(model_->GetPsdObjective()).get()), "0 + 1 u + 2 v + 3 w + (1 #0) U");
}

TEST_F(RoundTripTest, PiecesAreLoadedWithoutItems) {
  int const cols[] = {0, 1, 2};
  int const dims[] = {3};
  double const values[] = {1.0, 2.0, 3.0};
  model_->LoadQ(3, cols, cols, values);
  ExpectSuccess();
  EXPECT_EQ(Text(Own(model_->GetQuadObjective()).get()), "1 + 4 z + 1 x x + 2 y y + 3 z z");
  model_->LoadCone(1, nullptr, dims, cols);
  model_->LoadExpCone(1, nullptr, cols);
  EXPECT_EQ(model_->GetIntAttr("Cones"), 3);
  EXPECT_EQ(model_->GetIntAttr("ExpCones"), 3);
  EXPECT_EQ(Own(model_->GetCones())->Size(), 2);
}

TEST_F(RoundTripTest, SolvingWhatNoEngineTakesIsRefused) {
  model_->Solve();
  EXPECT_EQ(model_->GetLastError(), 5);
  Own(model_->GetVar(0));  // clears the failure
}

}  // namespace
