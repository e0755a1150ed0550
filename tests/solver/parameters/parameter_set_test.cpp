// Parameters: lookup by name, values within their ranges, defaults.
#include "solver/parameters/parameter_set.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

template <class Call>
std::string TextOfInvalid(Call call) {
  try {
    call();
  } catch (Failure const& failure) {
    EXPECT_EQ(failure.code, VORQ_INVALID);
    return failure.what();
  }
  return "no failure";
}

TEST(ParameterTable, HasAllParameters) {
  EXPECT_EQ(DblParamRows().size() + IntParamRows().size(), 462u);
  EXPECT_STREQ(DblParamRows()[kPublicDblParams].name, "InfBound");
  EXPECT_STREQ(IntParamRows()[kPublicIntParams].name, "Sifting");
}

TEST(ParameterTable, EnumeratorsStandForTheRowsOfTheirNames) {
  EXPECT_STREQ(ParameterSet::Row(DblParam::kTimeLimit).name, "TimeLimit");
  EXPECT_STREQ(ParameterSet::Row(DblParam::kHeurLnsDisableLNSFac).name, "HeurLnsDisableLNSFac");
  EXPECT_STREQ(ParameterSet::Row(IntParam::kLogging).name, "Logging");
  EXPECT_STREQ(ParameterSet::Row(IntParam::kSubMipHeur65).name, "SubMipHeur65");
}

template <class Rows>
void ExpectDefaultsInRange(Rows rows) {
  for (auto const& row : rows) {
    EXPECT_LE(row.range.minimum, row.range.standard) << row.name;
    EXPECT_LE(row.range.standard, row.range.maximum) << row.name;
    EXPECT_LT(row.range.minimum, row.range.maximum) << row.name;
  }
}

TEST(ParameterTable, DefaultsLieInTheirRanges) {
  ExpectDefaultsInRange(DblParamRows());
  ExpectDefaultsInRange(IntParamRows());
}

TEST(ParameterSet, StartsAtTheDefaults) {
  ParameterSet const parameters;
  EXPECT_EQ(parameters.Dbl(DblParam::kTimeLimit), 1e20);
  EXPECT_EQ(parameters.Dbl(DblParam::kFeasTol), 1e-6);
  EXPECT_EQ(parameters.Dbl(DblParam::kDualTol), 1e-6);
  EXPECT_EQ(parameters.Dbl(DblParam::kIntTol), 1e-6);
  EXPECT_EQ(parameters.Dbl(DblParam::kRelGap), 1e-4);
  EXPECT_EQ(parameters.Dbl(DblParam::kAbsGap), 1e-6);
  EXPECT_EQ(parameters.Dbl(DblParam::kMatrixTol), 1e-10);
  EXPECT_EQ(parameters.Dbl(DblParam::kInfBound), 1e30);
  EXPECT_EQ(parameters.Int(IntParam::kLogging), 1);
  EXPECT_EQ(parameters.Int(IntParam::kLogToConsole), 1);
  EXPECT_EQ(parameters.Int(IntParam::kPresolve), -1);
  EXPECT_EQ(parameters.Int(IntParam::kThreads), -1);
  EXPECT_EQ(parameters.Int(IntParam::kNodeLimit), -1);
  EXPECT_EQ(parameters.Int(IntParam::kReqFarkasRay), 0);
  EXPECT_TRUE(parameters.Changed().empty());
}

TEST(ParameterSet, FindIgnoresCase) {
  EXPECT_EQ(ParameterSet::Find("timelimit"), ParamId(DblParam::kTimeLimit));
  EXPECT_EQ(ParameterSet::Find("NODELIMIT"), ParamId(IntParam::kNodeLimit));
  EXPECT_EQ(ParameterSet::Find("infBOUND"), ParamId(DblParam::kInfBound));
}

TEST(ParameterSet, FindKnowsNoOtherNames) {
  EXPECT_FALSE(ParameterSet::Find(""));
  EXPECT_FALSE(ParameterSet::Find("TimeLim"));
  EXPECT_FALSE(ParameterSet::Find("TimeLimits"));
  EXPECT_FALSE(ParameterSet::Find("Cols"));
}

TEST(ParameterSet, UnknownNameIsRefused) {
  ParameterSet parameters;
  EXPECT_EQ(TextOfInvalid([&] { parameters.GetInt("Thread"); }), "Unknown parameter 'Thread'");
  EXPECT_EQ(TextOfInvalid([&] { parameters.SetDbl("Thread", 1.0); }), "Unknown parameter 'Thread'");
}

TEST(ParameterSet, OtherKindIsRefused) {
  ParameterSet parameters;
  EXPECT_EQ(TextOfInvalid([&] { parameters.GetInt("timelimit"); }),
            "Parameter 'timelimit' is not an integer parameter");
  EXPECT_EQ(TextOfInvalid([&] { parameters.SetDbl("Threads", 1.0); }), "Parameter 'Threads' is not a double parameter");
}

TEST(ParameterSet, BothEndsOfARangeAreAccepted) {
  ParameterSet parameters;
  for (ParamRow<double> const& row : DblParamRows()) {
    for (double const value : {row.range.minimum, row.range.maximum}) {
      parameters.SetDbl(row.name, value);
      EXPECT_EQ(parameters.GetDbl(row.name), value) << row.name;
    }
  }
  for (ParamRow<int> const& row : IntParamRows()) {
    for (int const value : {row.range.minimum, row.range.maximum}) {
      parameters.SetInt(row.name, value);
      EXPECT_EQ(parameters.GetInt(row.name), value) << row.name;
    }
  }
}

TEST(ParameterSet, ValueOutOfRangeIsRefusedAndTheFormerKept) {
  ParameterSet parameters;
  parameters.Set(DblParam::kFeasTol, 1e-5);
  parameters.Set(IntParam::kPresolve, 2);
  EXPECT_EQ(TextOfInvalid([&] { parameters.Set(DblParam::kFeasTol, 0.5); }),
            "Value 0.5 of parameter FeasTol is out of its range, 1e-09 to 0.01");
  EXPECT_EQ(TextOfInvalid([&] { parameters.SetInt("presolve", 4); }),
            "Value 4 of parameter Presolve is out of its range, -1 to 3");
  EXPECT_EQ(TextOfInvalid([&] { parameters.SetInt("Presolve", -2); }),
            "Value -2 of parameter Presolve is out of its range, -1 to 3");
  EXPECT_EQ(parameters.Dbl(DblParam::kFeasTol), 1e-5);
  EXPECT_EQ(parameters.Int(IntParam::kPresolve), 2);
}

TEST(ParameterSet, NotANumberAndInfinityAreRefused) {
  ParameterSet parameters;
  EXPECT_EQ(TextOfInvalid([&] { parameters.Set(DblParam::kTimeLimit, std::nan("")); }),
            "Value nan of parameter TimeLimit is out of its range, 0 to 1e+20");
  EXPECT_EQ(TextOfInvalid([&] { parameters.Set(DblParam::kTimeLimit, std::numeric_limits<double>::infinity()); }),
            "Value inf of parameter TimeLimit is out of its range, 0 to 1e+20");
  EXPECT_EQ(parameters.Dbl(DblParam::kTimeLimit), 1e20);
}

TEST(ParameterSet, SetTextTakesEitherKind) {
  ParameterSet parameters;
  parameters.SetText("timelimit", "2.5e1");
  parameters.SetText("Threads", "4");
  EXPECT_EQ(parameters.Dbl(DblParam::kTimeLimit), 25.0);
  EXPECT_EQ(parameters.Int(IntParam::kThreads), 4);
}

TEST(ParameterSet, SetTextRefusesWhatIsNoValue) {
  ParameterSet parameters;
  EXPECT_EQ(TextOfInvalid([&] { parameters.SetText("Threads", "4.5"); }),
            "Value '4.5' of parameter Threads is not a 32-bit integer");
  EXPECT_EQ(TextOfInvalid([&] { parameters.SetText("Threads", "9999999999"); }),
            "Value '9999999999' of parameter Threads is not a 32-bit integer");
  EXPECT_EQ(TextOfInvalid([&] { parameters.SetText("TimeLimit", "soon"); }),
            "Value 'soon' of parameter TimeLimit is not a number");
  EXPECT_EQ(TextOfInvalid([&] { parameters.SetText("TimeLimit", ""); }),
            "Value '' of parameter TimeLimit is not a number");
  EXPECT_EQ(TextOfInvalid([&] { parameters.SetText("TimeLimit", "nan"); }),
            "Value nan of parameter TimeLimit is out of its range, 0 to 1e+20");
  EXPECT_EQ(parameters, ParameterSet());
}

TEST(ParameterSet, ChangedTellsWhatIsNotAtItsDefault) {
  ParameterSet parameters;
  parameters.SetInt("Threads", 2);
  parameters.SetDbl("RelGap", 0.125);
  parameters.SetDbl("AbsGap", 1e-6);
  auto const changed = parameters.Changed();
  ASSERT_EQ(changed.size(), 2u);
  EXPECT_STREQ(changed[0].first, "RelGap");
  EXPECT_EQ(changed[0].second, "0.125");
  EXPECT_STREQ(changed[1].first, "Threads");
  EXPECT_EQ(changed[1].second, "2");
}

TEST(ParameterSet, ResetGoesBackToTheDefaults) {
  ParameterSet parameters;
  parameters.SetInt("Threads", 2);
  parameters.SetDbl("InfBound", 1e25);
  parameters.Reset();
  EXPECT_EQ(parameters, ParameterSet());
}

}  // namespace
}  // namespace vorqsolver
