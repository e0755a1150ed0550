// The name index: public names in any case, all others through the solver library.
#include "vocabulary/param_attr_index.hpp"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "tests/double/solver_double.hpp"
#include "vocabulary/param_attr_rows.hpp"
#include "vorqmodel/exception.h"

namespace {

using Vorq::SearchParamAttrName;

class ParamAttrIndexTest : public vorqtest::SolverDoubleTest {
 protected:
  std::string canonical_ = "before";
};

TEST_F(ParamAttrIndexTest, EveryPublicNameIsFoundWithoutTheSolverLibrary) {
  double_.ClearLog();
  for (Vorq::ParamAttrRow const& row : Vorq::ParamAttrRows) {
    if (row.hidden != 0) continue;
    EXPECT_EQ(SearchParamAttrName(row.name, canonical_), row.type) << row.name;
    EXPECT_EQ(canonical_, row.name);
  }
  EXPECT_CALLS(double_, {});
}

TEST_F(ParamAttrIndexTest, MixedCaseGivesTheSpellingOfTheTable) {
  EXPECT_EQ(SearchParamAttrName("tImElImIt", canonical_), 0);
  EXPECT_EQ(canonical_, "TimeLimit");
  EXPECT_EQ(SearchParamAttrName("PDLPTOL", canonical_), 0);
  EXPECT_EQ(canonical_, "PDLPTol");
  EXPECT_EQ(SearchParamAttrName("THREADS", canonical_), 1);
  EXPECT_EQ(canonical_, "Threads");
  EXPECT_EQ(SearchParamAttrName("lpobjval", canonical_), 2);
  EXPECT_EQ(canonical_, "LpObjval");
  EXPECT_EQ(SearchParamAttrName("ismip", canonical_), 3);
  EXPECT_EQ(canonical_, "IsMIP");
}

TEST_F(ParamAttrIndexTest, NullAndEmptyNamesAreUnknownAndLeaveTheCanonicalName) {
  double_.ClearLog();
  EXPECT_EQ(SearchParamAttrName(nullptr, canonical_), -1);
  EXPECT_EQ(SearchParamAttrName("", canonical_), -1);
  EXPECT_EQ(canonical_, "before");
  EXPECT_CALLS(double_, {});
}

TEST_F(ParamAttrIndexTest, InternalNameGoesToTheSolverLibraryAsWritten) {
  double_.AnswerNext("VORQ_SearchParamAttr").Set("type", 0);
  double_.ClearLog();
  EXPECT_EQ(SearchParamAttrName("INFbound", canonical_), 0);
  EXPECT_EQ(canonical_, "INFbound");
  EXPECT_CALLS(double_, {R"(VORQ_SearchParamAttr(null, "INFbound", out))"});
}

TEST_F(ParamAttrIndexTest, PrefixOfANameIsNotInTheIndex) {
  double_.AnswerNext("VORQ_SearchParamAttr").Set("type", -1);
  double_.ClearLog();
  EXPECT_EQ(SearchParamAttrName("TimeLim", canonical_), -1);
  EXPECT_EQ(canonical_, "TimeLim");
  EXPECT_CALLS(double_, {R"(VORQ_SearchParamAttr(null, "TimeLim", out))"});
}

TEST_F(ParamAttrIndexTest, NameThatGoesOnBehindAKnownOneIsNotInTheIndex) {
  double_.AnswerNext("VORQ_SearchParamAttr").Set("type", -1);
  double_.ClearLog();
  EXPECT_EQ(SearchParamAttrName("TimeLimits", canonical_), -1);
  EXPECT_CALLS(double_, {R"(VORQ_SearchParamAttr(null, "TimeLimits", out))"});
}

TEST_F(ParamAttrIndexTest, NameWithinALongerOneIsFoundByItself) {
  EXPECT_EQ(SearchParamAttrName("cones", canonical_), 3);
  EXPECT_EQ(canonical_, "Cones");
  EXPECT_EQ(SearchParamAttrName("crossoverthreads", canonical_), 1);
  EXPECT_EQ(SearchParamAttrName("crossover", canonical_), 1);
  EXPECT_EQ(canonical_, "Crossover");
}

TEST_F(ParamAttrIndexTest, CharactersBeyondAsciiAreNoPartOfAName) {
  double_.AnswerNext("VORQ_SearchParamAttr").Set("type", -1);
  EXPECT_EQ(SearchParamAttrName("Time\xC3\xA4", canonical_), -1);
}

TEST_F(ParamAttrIndexTest, FailureOfTheSolverLibraryThrowsItsText) {
  double_.FailNext("VORQ_SearchParamAttr", VORQ_MEMORY);
  double_.Answer("VORQ_GetRetcodeMsg").Set("buffer", "no room");
  try {
    SearchParamAttrName("Nobody", canonical_);
    FAIL() << "nothing was thrown";
  } catch (Vorq::Exception const& exception) {
    EXPECT_EQ(exception.code, VORQ_MEMORY);
    EXPECT_STREQ(exception.what(), "no room");
  }
  EXPECT_EQ(canonical_, "Nobody");
}

TEST_F(ParamAttrIndexTest, LookupsFromSeveralThreadsAgree) {
  std::vector<int> kinds(4, -1);
  {
    std::vector<std::jthread> threads;
    for (int& kind : kinds) {
      threads.emplace_back([&kind] {
        std::string canonical;
        kind = SearchParamAttrName("bestgap", canonical);
      });
    }
  }
  EXPECT_EQ(kinds, std::vector<int>(4, 2));
}

}  // namespace
