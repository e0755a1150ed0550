// Attributes: the table, what the problem says of itself, and what stands where there is no result.
#include "solver/problem/attributes.hpp"

#include <gtest/gtest.h>

#include <array>

#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

// Two columns x, y with 0 <= x <= 4, y integer, and one row 1 <= x + 2 y <= 8.
class AttributesTest : public testing::Test {
 protected:
  AttributesTest() {
    ProblemData& data = problem_.data;
    data.columns.lower = {0.0, 0.0};
    data.columns.upper = {4.0, kInfinity};
    data.columns.objective = {1.0, 1.0};
    data.columns.type = {'C', 'I'};
    data.rows.matrix.AppendEmptyCols(2);
    data.rows.matrix.AppendRow(std::array{0, 1}, std::array{1.0, 2.0});
    data.rows.lower = {1.0};
    data.rows.upper = {8.0};
  }

  int Int(char const* name) const { return GetIntAttr(problem_, name); }
  double Dbl(char const* name) const { return GetDblAttr(problem_, name); }

  std::string FailureOf(char const* name) const {
    try {
      FindAttr(name) == VORQ_INT_ATTR ? static_cast<void>(Int(name)) : static_cast<void>(Dbl(name));
    } catch (Failure const& failure) {
      EXPECT_EQ(failure.code, VORQ_INVALID);
      return failure.what();
    }
    return "no failure";
  }

  Problem problem_;
};

TEST_F(AttributesTest, TableHasAllAttributes) {
  EXPECT_EQ(DblAttrRows().size() + IntAttrRows().size(), 77u);
  EXPECT_STREQ(DblAttrRows()[kPublicDblAttrs].name, "ReadingTime");
  EXPECT_STREQ(IntAttrRows()[kPublicIntAttrs].name, "PrimalInf");
}

TEST_F(AttributesTest, FindTellsTheKindInAnyCase) {
  EXPECT_EQ(FindAttr("bestobj"), VORQ_DBL_ATTR);
  EXPECT_EQ(FindAttr("COLS"), VORQ_INT_ATTR);
  EXPECT_EQ(FindAttr("primalINF"), VORQ_INT_ATTR);
  EXPECT_EQ(FindAttr("Col"), VORQ_UNKNOWN_NAME);
  EXPECT_EQ(FindAttr("TimeLimit"), VORQ_UNKNOWN_NAME);
}

TEST_F(AttributesTest, UnknownNameAndOtherKindAreRefused) {
  EXPECT_EQ(FailureOf("Colz"), "Unknown attribute 'Colz'");
  EXPECT_THROW(Int("BestObj"), Failure);
  try {
    Dbl("Cols");
    FAIL();
  } catch (Failure const& failure) {
    EXPECT_STREQ(failure.what(), "Attribute 'Cols' is not a double attribute");
  }
}

TEST_F(AttributesTest, CountsFollowTheData) {
  ProblemData& data = problem_.data;
  data.objective.quadratic = {{0, 0, 2.0}, {1, 0, 1.0}};
  data.objective.psd = {{0, 0}};
  data.objective.sense = -1;
  data.objective.constant = 7.5;
  data.psdDims = {2, 3};
  data.symMatrices.resize(4);
  data.soss.resize(1);
  data.cones.resize(2);
  data.expCones.resize(3);
  data.affineCones.resize(4);
  data.quadConstraints.resize(5);
  data.psdConstraints.resize(6);
  data.lmiConstraints.resize(2);
  data.lmiConstraints[0].dim = 2;
  data.lmiConstraints[1].dim = 4;
  data.indicators.resize(8);
  EXPECT_EQ(Int("Cols"), 2);
  EXPECT_EQ(Int("Rows"), 1);
  EXPECT_EQ(Int("Elems"), 2);
  EXPECT_EQ(Int("QElems"), 2);
  EXPECT_EQ(Int("PSDElems"), 1);
  EXPECT_EQ(Int("PSDCols"), 2);
  EXPECT_EQ(Int("PSDLens"), 4 + 9);
  EXPECT_EQ(Int("SymMats"), 4);
  EXPECT_EQ(Int("Soss"), 1);
  EXPECT_EQ(Int("Cones"), 2);
  EXPECT_EQ(Int("ExpCones"), 3);
  EXPECT_EQ(Int("AffineCones"), 4);
  EXPECT_EQ(Int("QConstrs"), 5);
  EXPECT_EQ(Int("PSDConstrs"), 6);
  EXPECT_EQ(Int("LMIConstrs"), 2);
  EXPECT_EQ(Int("LMILens"), 4 + 16);
  EXPECT_EQ(Int("Indicators"), 8);
  EXPECT_EQ(Int("ObjSense"), -1);
  EXPECT_EQ(Dbl("ObjConst"), 7.5);
  EXPECT_EQ(Int("HasQObj"), 1);
  EXPECT_EQ(Int("HasPSDObj"), 1);
}

TEST_F(AttributesTest, LazyConstraintsAreCountedByThemselves) {
  SideRows& lazy = problem_.data.lazyConstraints;
  lazy.matrix.AppendEmptyCols(2);
  lazy.matrix.AppendRow(std::array{0, 1}, std::array{1.0, 1.0});
  lazy.lower = {-kInfinity};
  lazy.upper = {3.0};
  EXPECT_EQ(Int("LazyCons"), 1);
  EXPECT_EQ(Int("LazyConsElems"), 2);
  EXPECT_EQ(Int("Rows"), 1);
}

TEST_F(AttributesTest, BinaryAndIntegerColumnsAreCountedApart) {
  problem_.data.columns.type = {'B', 'I', 'C', 'S', 'N'};
  EXPECT_EQ(Int("Bins"), 1);
  EXPECT_EQ(Int("Ints"), 2);
}

TEST_F(AttributesTest, ProblemIsMipWhereItNeedsBranching) {
  EXPECT_EQ(Int("IsMIP"), 1);
  problem_.data.columns.type = {'C', 'C'};
  EXPECT_EQ(Int("IsMIP"), 0);
  problem_.data.soss.resize(1);
  EXPECT_EQ(Int("IsMIP"), 1);
}

TEST_F(AttributesTest, UnsolvedProblemHasNoResults) {
  for (char const* name :
       {"LpStatus",        "MipStatus", "SimplexIter",   "BarrierIter",  "PDLPIter", "NodeCnt",      "PoolSols",
        "TuneResults",     "HasLpSol",  "HasDualFarkas", "HasPrimalRay", "HasBasis", "HasMipSol",    "HasIIS",
        "HasFeasRelaxSol", "IsMinIIS",  "IISCols",       "IISRows",      "IISSOSs",  "IISIndicators"}) {
    EXPECT_EQ(Int(name), 0) << name;
  }
  EXPECT_EQ(Dbl("SolvingTime"), 0.0);
}

TEST_F(AttributesTest, ObjectivesWithoutASolutionAreTheWorst) {
  EXPECT_EQ(Dbl("LpObjval"), 1e30);
  EXPECT_EQ(Dbl("BestObj"), 1e30);
  EXPECT_EQ(Dbl("BestBnd"), -1e30);
  EXPECT_EQ(Dbl("BestGap"), 1e30);
  problem_.data.objective.sense = -1;
  EXPECT_EQ(Dbl("LpObjval"), -1e30);
  EXPECT_EQ(Dbl("BestObj"), -1e30);
  EXPECT_EQ(Dbl("BestBnd"), 1e30);
  EXPECT_EQ(Dbl("BestGap"), 1e30);
}

TEST_F(AttributesTest, ObjectiveOfAnUnboundedLpIsTheBestConceivable) {
  problem_.result.lpStatus = SolveStatus::kUnbounded;
  EXPECT_EQ(Dbl("LpObjval"), -1e30);
}

TEST_F(AttributesTest, BoundOfAnInfeasibleMipIsTheWorst) {
  problem_.result.mipStatus = SolveStatus::kInfeasible;
  EXPECT_EQ(Dbl("BestBnd"), 1e30);
}

TEST_F(AttributesTest, BoundOfAStoppedMipHoldsWithoutASolution) {
  problem_.result.mipStatus = SolveStatus::kTimeLimit;
  problem_.result.bestBound = 2.5;
  EXPECT_EQ(Dbl("BestBnd"), 2.5);
  EXPECT_EQ(Dbl("BestObj"), 1e30);
}

TEST_F(AttributesTest, MipResultsAreToldAsTheyAre) {
  SolveResult& result = problem_.result;
  result.isMip = true;
  result.mipStatus = SolveStatus::kOptimal;
  result.mipValues = {1.0, 0.0};
  result.mipObjective = 1.0;
  result.bestBound = 0.5;
  result.bestGap = 0.5;
  result.nodes = 12;
  result.pool.resize(3);
  EXPECT_EQ(Int("MipStatus"), 1);
  EXPECT_EQ(Int("HasMipSol"), 1);
  EXPECT_EQ(Dbl("BestObj"), 1.0);
  EXPECT_EQ(Dbl("BestBnd"), 0.5);
  EXPECT_EQ(Dbl("BestGap"), 0.5);
  EXPECT_EQ(Int("NodeCnt"), 12);
  EXPECT_EQ(Int("PoolSols"), 3);
  EXPECT_EQ(Int("IsRelaxSolved"), 0);
}

TEST_F(AttributesTest, LpResultsAreToldAsTheyAre) {
  SolveResult& result = problem_.result;
  result.lpStatus = SolveStatus::kOptimal;
  result.lp.values = {1.0, 0.0};
  result.lpObjective = 1.0;
  result.basis = {{1, 0}, {0}};
  result.simplexIterations = 4;
  result.barrierIterations = 5;
  result.seconds = 0.25;
  EXPECT_EQ(Int("LpStatus"), 1);
  EXPECT_EQ(Int("HasLpSol"), 1);
  EXPECT_EQ(Int("HasBasis"), 1);
  EXPECT_EQ(Dbl("LpObjval"), 1.0);
  EXPECT_EQ(Int("SimplexIter"), 4);
  EXPECT_EQ(Int("BarrierIter"), 5);
  EXPECT_EQ(Dbl("SolvingTime"), 0.25);
  EXPECT_EQ(Int("IsRelaxSolved"), 1);
}

TEST_F(AttributesTest, RaysAreReportedWhereTheyAre) {
  problem_.result.farkasRay = {1.0};
  EXPECT_EQ(Int("HasDualFarkas"), 1);
  EXPECT_EQ(Int("HasPrimalRay"), 0);
  problem_.result.primalRay = {1.0, 1.0};
  EXPECT_EQ(Int("HasPrimalRay"), 1);
}

TEST_F(AttributesTest, SolvedProblemWithoutColumnsHasASolution) {
  Problem empty;
  EXPECT_EQ(GetIntAttr(empty, "HasLpSol"), 0);
  empty.result.lpStatus = SolveStatus::kOptimal;
  EXPECT_EQ(GetIntAttr(empty, "HasLpSol"), 1);
}

TEST_F(AttributesTest, IisMembersAreCountedOnceEach) {
  Iis& iis = problem_.result.iis;
  iis.available = true;
  iis.colLower = {1, 0};
  iis.colUpper = {1, 1};
  iis.rowLower = {0};
  iis.rowUpper = {1};
  iis.soss = {1, 1};
  EXPECT_EQ(Int("HasIIS"), 1);
  EXPECT_EQ(Int("IsMinIIS"), 1);
  iis.irreducible = false;
  EXPECT_EQ(Int("IsMinIIS"), 0);
  EXPECT_EQ(Int("IISCols"), 2);
  EXPECT_EQ(Int("IISRows"), 1);
  EXPECT_EQ(Int("IISSOSs"), 2);
  EXPECT_EQ(Int("IISIndicators"), 0);
}

TEST_F(AttributesTest, PrimalInfeasibilitiesAreMeasuredOverBoundsAndRows) {
  problem_.result.lp.values = {4.5, 2.0};  // x is 0.5 above its bound, the row is 8.5
  EXPECT_EQ(Dbl("PrimalInfMax"), 0.5);
  EXPECT_EQ(Dbl("PrimalInfSum"), 1.0);
  EXPECT_EQ(Int("PrimalInf"), 2);
}

TEST_F(AttributesTest, InfeasibilityWithinTheToleranceIsNotCounted) {
  problem_.result.lp.values = {4.0 + 5e-7, 0.0};
  EXPECT_NEAR(Dbl("PrimalInfMax"), 5e-7, 1e-12);
  EXPECT_EQ(Int("PrimalInf"), 0);
}

TEST_F(AttributesTest, SemicontinuousColumnMayBeZero) {
  problem_.data.columns.type = {'S', 'C'};
  problem_.data.columns.lower = {2.0, 0.0};
  problem_.result.lp.values = {0.0, 1.0};
  EXPECT_EQ(Dbl("PrimalInfMax"), 0.0);
}

TEST_F(AttributesTest, DualInfeasibilitiesFollowTheSense) {
  LpSolution& lp = problem_.result.lp;
  lp.values = {0.0, 0.5};  // x at its lower bound, the row at its lower one
  lp.duals = {0.5};        // right for minimising
  lp.reducedCosts = {0.5, 0.0};
  EXPECT_EQ(Dbl("DualInfMax"), 0.0);
  EXPECT_EQ(Int("DualInf"), 0);
  problem_.data.objective.sense = -1;
  EXPECT_EQ(Dbl("DualInfMax"), 0.5);
  EXPECT_EQ(Dbl("DualInfSum"), 1.0);
  EXPECT_EQ(Int("DualInf"), 2);
}

TEST_F(AttributesTest, InfeasibilitiesNeedASolution) {
  EXPECT_EQ(FailureOf("PrimalInf"), "Attribute PrimalInf has no value: There is no solution");
  EXPECT_EQ(FailureOf("DualInfMax"), "Attribute DualInfMax has no value: There is no dual solution");
}

TEST_F(AttributesTest, RelaxationTellsItsPenalty) {
  EXPECT_EQ(FailureOf("FeasRelaxObj"), "Attribute FeasRelaxObj has no value: There is no feasibility relaxation");
  problem_.result.relaxed.available = true;
  problem_.result.relaxed.penalty = 2.5;
  EXPECT_EQ(Dbl("FeasRelaxObj"), 2.5);
  EXPECT_EQ(Int("HasFeasRelaxSol"), 1);
}

TEST_F(AttributesTest, WhatIsNotComputedFails) {
  for (char const* name : {"ReadingTime", "BarPrimalObj", "BarDualObj", "DimacPInf", "DimacDInf", "DimacMinPEV",
                           "DimacMinDEV", "DimacRelGap", "DimacRelXDotS"}) {
    EXPECT_EQ(FailureOf(name),
              "Attribute " + std::string(name) + " has no value: The attribute is not computed by this version");
  }
}

TEST_F(AttributesTest, EveryAttributeAnswersOrRefusesOnAnEmptyProblem) {
  Problem const empty;
  auto const read = [&](auto const& row) {
    try {
      row.read(empty);
    } catch (Failure const& failure) {
      EXPECT_EQ(failure.code, VORQ_INVALID) << row.name;
    }
  };
  for (auto const& row : DblAttrRows()) read(row);
  for (auto const& row : IntAttrRows()) read(row);
}

}  // namespace
}  // namespace vorqsolver
