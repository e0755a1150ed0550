// Names of items: one set of tests for all eight kinds.
#include <string>

#include "problem_fixture.hpp"

namespace {

struct NameFunctions {
  char const* kind;
  void (*addTwo)(VORQ_Prob* prob);
  int (*find)(VORQ_Prob*, char const*, int*);
  int (*set)(VORQ_Prob*, int, int const*, char const* const*);
  int (*get)(VORQ_Prob*, int, char*, int, int*);
};

template <typename Add>
void Twice(Add add) {
  ASSERT_EQ(add("first"), VORQ_OK);
  ASSERT_EQ(add(nullptr), VORQ_OK);
}

void NeedColumns(VORQ_Prob* prob) {
  ASSERT_EQ(VORQ_AddCols(prob, 2, nullptr, nullptr, nullptr, nullptr, nullptr, "BB", nullptr, nullptr, nullptr),
            VORQ_OK);
}

int const kZero = 0;
int const kOne = 1;
double const kCoef = 1.0;

NameFunctions const kFamilies[] = {
    {"Col",
     [](VORQ_Prob* prob) {
       Twice([prob](char const* name) { return VORQ_AddCol(prob, 0.0, 0, nullptr, nullptr, 'C', 0.0, 1.0, name); });
     },
     VORQ_GetColIdx, VORQ_SetColNames, VORQ_GetColName},
    {"Row",
     [](VORQ_Prob* prob) {
       Twice([prob](char const* name) { return VORQ_AddRow(prob, 0, nullptr, nullptr, 'L', 0.0, 0.0, name); });
     },
     VORQ_GetRowIdx, VORQ_SetRowNames, VORQ_GetRowName},
    {"Indicator",
     [](VORQ_Prob* prob) {
       NeedColumns(prob);
       Twice([prob](char const* name) {
         return VORQ_AddIndicators(prob, 1, &kZero, &kZero, &kOne, &kZero, &kOne, &kOne, &kCoef, "L", &kCoef, &name);
       });
     },
     VORQ_GetIndicatorIdx, VORQ_SetIndicatorNames, VORQ_GetIndicatorName},
    {"AffineCone",
     [](VORQ_Prob* prob) {
       Twice([prob](char const* name) {
         return VORQ_AddAffineCone(prob, 1, 1, 0, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                   nullptr, &kCoef, name);
       });
     },
     VORQ_GetAffineConeIdx, VORQ_SetAffineConeNames, VORQ_GetAffineConeName},
    {"QConstr",
     [](VORQ_Prob* prob) {
       NeedColumns(prob);
       Twice([prob](char const* name) {
         return VORQ_AddQConstr(prob, 0, nullptr, nullptr, 1, &kZero, &kZero, &kCoef, 'L', 1.0, name);
       });
     },
     VORQ_GetQConstrIdx, VORQ_SetQConstrNames, VORQ_GetQConstrName},
    {"PSDCol", [](VORQ_Prob* prob) { Twice([prob](char const* name) { return VORQ_AddPSDCol(prob, 2, name); }); },
     VORQ_GetPSDColIdx, VORQ_SetPSDColNames, VORQ_GetPSDColName},
    {"PSDConstr",
     [](VORQ_Prob* prob) {
       Twice([prob](char const* name) {
         return VORQ_AddPSDConstr(prob, 0, nullptr, nullptr, 0, nullptr, nullptr, 'L', 1.0, 1e30, name);
       });
     },
     VORQ_GetPSDConstrIdx, VORQ_SetPSDConstrNames, VORQ_GetPSDConstrName},
    {"LMIConstr",
     [](VORQ_Prob* prob) {
       Twice([prob](char const* name) { return VORQ_AddLMIConstr(prob, 2, 0, nullptr, nullptr, -1, name); });
     },
     VORQ_GetLMIConstrIdx, VORQ_SetLMIConstrNames, VORQ_GetLMIConstrName},
};

class NamesTest : public ProblemTest, public testing::WithParamInterface<NameFunctions> {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    ASSERT_NO_FATAL_FAILURE(GetParam().addTwo(prob));
  }

  std::string Name(int index) const {
    int required = 0;
    EXPECT_EQ(GetParam().get(prob, index, nullptr, 0, &required), VORQ_OK);
    std::string name(static_cast<std::size_t>(required), '?');
    EXPECT_EQ(GetParam().get(prob, index, name.data(), required, nullptr), VORQ_OK);
    EXPECT_EQ(name.back(), '\0');
    name.pop_back();
    return name;
  }

  int Find(char const* name) const {
    int index = -5;
    EXPECT_EQ(GetParam().find(prob, name, &index), index == -1 ? VORQ_INVALID : VORQ_OK);
    return index;
  }

  int Set(int index, char const* name) { return GetParam().set(prob, 1, &index, &name); }
};

TEST_P(NamesTest, NamesComeWithTheItems) {
  EXPECT_EQ(Name(0), "first");
  EXPECT_EQ(Name(1), "");
  EXPECT_EQ(Find("first"), 0);
}

TEST_P(NamesTest, UnknownAndEmptyNamesAreNotFoundAndLeaveTheLogAlone) {
  ListenToLog();
  int index = 7;
  EXPECT_EQ(GetParam().find(prob, "nobody", &index), VORQ_INVALID);
  EXPECT_EQ(index, -1);
  EXPECT_EQ(GetParam().find(prob, "", &index), VORQ_INVALID);
  EXPECT_TRUE(lines.empty());
}

TEST_P(NamesTest, SetReplacesANameAndAnEmptyOneTakesItAway) {
  ASSERT_EQ(Set(0, "other"), VORQ_OK);
  EXPECT_EQ(Name(0), "other");
  ASSERT_EQ(Set(0, ""), VORQ_OK);
  EXPECT_EQ(Name(0), "");
  ASSERT_EQ(Set(1, "second"), VORQ_OK);
  ASSERT_EQ(Set(1, nullptr), VORQ_OK);
  EXPECT_EQ(Name(1), "");
}

TEST_P(NamesTest, OfDuplicatesTheFirstIsFound) {
  ASSERT_EQ(Set(1, "first"), VORQ_OK);
  EXPECT_EQ(Find("first"), 0);
  ASSERT_EQ(Set(0, "else"), VORQ_OK);
  EXPECT_EQ(Find("first"), 1);
}

TEST_P(NamesTest, ControlCharactersAreRefusedAndNothingChanges) {
  char const* const names[] = {"good", "b\tad"};
  EXPECT_EQ(GetParam().set(prob, 2, nullptr, names), VORQ_INVALID);
  EXPECT_EQ(Name(0), "first");
}

TEST_P(NamesTest, OtherCharactersAreTaken) {
  ASSERT_EQ(Set(0, "Größe [m²] 100%s"), VORQ_OK);
  EXPECT_EQ(Name(0), "Größe [m²] 100%s");
  EXPECT_EQ(Find("Größe [m²] 100%s"), 0);
}

TEST_P(NamesTest, ABufferTooSmallGetsTheSizeAndIsLeftAlone) {
  ListenToLog();
  char buffer[6] = "?????";
  int required = 0;
  EXPECT_EQ(GetParam().get(prob, 0, buffer, 5, &required), VORQ_INVALID);
  EXPECT_EQ(required, 6);
  EXPECT_STREQ(buffer, "?????");
  EXPECT_EQ(GetParam().get(prob, 0, buffer, 6, nullptr), VORQ_OK);
  EXPECT_STREQ(buffer, "first");
  EXPECT_TRUE(lines.empty());
}

TEST_P(NamesTest, LongNamesAreKeptWhole) {
  std::string const name(1000, 'x');
  ASSERT_EQ(Set(1, name.c_str()), VORQ_OK);
  EXPECT_EQ(Name(1), name);
}

TEST_P(NamesTest, BadArgumentsAreRefused) {
  char buffer[8];
  int index = 0;
  EXPECT_EQ(GetParam().get(prob, 2, buffer, 8, nullptr), VORQ_INVALID);
  EXPECT_EQ(GetParam().get(prob, -1, buffer, 8, nullptr), VORQ_INVALID);
  EXPECT_EQ(GetParam().get(prob, 0, nullptr, 0, nullptr), VORQ_INVALID);
  EXPECT_EQ(GetParam().find(prob, nullptr, &index), VORQ_INVALID);
  EXPECT_EQ(GetParam().find(prob, "first", nullptr), VORQ_INVALID);
  EXPECT_EQ(GetParam().set(prob, 1, &index, nullptr), VORQ_INVALID);
  EXPECT_EQ(Set(2, "beyond"), VORQ_INVALID);
  EXPECT_EQ(GetParam().set(prob, 0, nullptr, nullptr), VORQ_OK);
  EXPECT_EQ(GetParam().find(nullptr, "first", &index), VORQ_INVALID);
}

INSTANTIATE_TEST_SUITE_P(Families, NamesTest, testing::ValuesIn(kFamilies),
                         [](auto const& family) { return std::string(family.param.kind); });

}  // namespace
