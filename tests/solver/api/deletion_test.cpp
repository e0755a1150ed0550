// Deletion: gaps close, terms of deleted columns vanish, refusals change nothing.
#include "problem_fixture.hpp"

namespace {

using testing::ElementsAre;

struct Deleter {
  char const* kind;
  char const* counter;
  void (*add)(VORQ_Prob* prob);  // three of them
  int (*erase)(VORQ_Prob*, int, int const*);
};

int const kIndices[] = {0, 1, 2};
int const kOnes[] = {1, 1, 1};
int const kTypes[] = {1, 1, 1};
double const kCoefs[] = {1.0, 1.0, 1.0};

template <typename Add>
void Thrice(Add add) {
  for (int k = 0; k < 3; ++k) ASSERT_EQ(add(), VORQ_OK);
}

Deleter const kDeleters[] = {
    {"Cols", "Cols", [](VORQ_Prob*) {}, VORQ_DelCols},
    {"Rows", "Rows",
     [](VORQ_Prob* prob) { Thrice([&] { return VORQ_AddRow(prob, 3, kIndices, kCoefs, 'L', 1.0, 1.0, nullptr); }); },
     VORQ_DelRows},
    {"SOSs", "Soss",
     [](VORQ_Prob* prob) { Thrice([&] { return VORQ_AddSOSs(prob, 1, kTypes, kIndices, kOnes, kIndices, kCoefs); }); },
     VORQ_DelSOSs},
    {"Cones", "Cones",
     [](VORQ_Prob* prob) { Thrice([&] { return VORQ_AddCones(prob, 1, kTypes, kIndices, kOnes, kIndices); }); },
     VORQ_DelCones},
    {"ExpCones", "ExpCones",
     [](VORQ_Prob* prob) { Thrice([&] { return VORQ_AddExpCones(prob, 1, nullptr, kIndices); }); }, VORQ_DelExpCones},
    {"AffineCones", "AffineCones",
     [](VORQ_Prob* prob) {
       Thrice([&] {
         return VORQ_AddAffineCone(prob, 1, 1, 0, 0, nullptr, nullptr, nullptr, nullptr, kIndices, kOnes, kIndices,
                                   kCoefs, kCoefs, nullptr);
       });
     },
     VORQ_DelAffineCones},
    {"Indicators", "Indicators",
     [](VORQ_Prob* prob) {
       Thrice([&] {
         return VORQ_AddIndicators(prob, 1, kTypes, kIndices, kOnes, kIndices, kOnes, kIndices, kCoefs, "L", kCoefs,
                                   nullptr);
       });
     },
     VORQ_DelIndicators},
    {"QConstrs", "QConstrs",
     [](VORQ_Prob* prob) {
       Thrice([&] {
         return VORQ_AddQConstr(prob, 1, kIndices, kCoefs, 1, kIndices, kIndices, kCoefs, 'L', 1.0, nullptr);
       });
     },
     VORQ_DelQConstrs},
    {"PSDCols", "PSDCols", [](VORQ_Prob* prob) { Thrice([&] { return VORQ_AddPSDCol(prob, 2, nullptr); }); },
     VORQ_DelPSDCols},
    {"PSDConstrs", "PSDConstrs",
     [](VORQ_Prob* prob) {
       Thrice(
           [&] { return VORQ_AddPSDConstr(prob, 1, kIndices, kCoefs, 0, nullptr, nullptr, 'L', 1.0, 1.0, nullptr); });
     },
     VORQ_DelPSDConstrs},
    {"LMIConstrs", "LMIConstrs",
     [](VORQ_Prob* prob) { Thrice([&] { return VORQ_AddLMIConstr(prob, 2, 0, nullptr, nullptr, -1, nullptr); }); },
     VORQ_DelLMIConstrs},
};

class DeleterTest : public ProblemTest, public testing::WithParamInterface<Deleter> {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    AddCols(3, 'B');
    ASSERT_NO_FATAL_FAILURE(GetParam().add(prob));
  }
};

TEST_P(DeleterTest, DuplicatesAreDeletedOnceInAnyOrder) {
  int const indices[] = {2, 0, 2};
  ASSERT_EQ(GetParam().erase(prob, 3, indices), VORQ_OK);
  EXPECT_EQ(Attribute(GetParam().counter), 1);
}

TEST_P(DeleterTest, AnIndexOutOfRangeRefusesAndNothingChanges) {
  int const beyond[] = {0, 3};
  int const negative[] = {0, -1};
  EXPECT_EQ(GetParam().erase(prob, 2, beyond), VORQ_INVALID);
  EXPECT_EQ(GetParam().erase(prob, 2, negative), VORQ_INVALID);
  EXPECT_EQ(GetParam().erase(prob, 1, nullptr), VORQ_INVALID);
  EXPECT_EQ(GetParam().erase(prob, -1, beyond), VORQ_INVALID);
  EXPECT_EQ(GetParam().erase(nullptr, 1, beyond), VORQ_INVALID);
  EXPECT_EQ(Attribute(GetParam().counter), 3);
}

TEST_P(DeleterTest, NothingToDeleteIsFine) {
  EXPECT_EQ(GetParam().erase(prob, 0, nullptr), VORQ_OK);
  EXPECT_EQ(Attribute(GetParam().counter), 3);
}

INSTANTIATE_TEST_SUITE_P(Kinds, DeleterTest, testing::ValuesIn(kDeleters),
                         [](auto const& family) { return std::string(family.param.kind); });

class DeletionTest : public ProblemTest {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    AddCols(4, 'B');
  }

  void DeleteCol(int col) { ASSERT_EQ(VORQ_DelCols(prob, 1, &col), VORQ_OK); }
};

TEST_F(DeletionTest, RowsLoseTheTermsOfDeletedColumns) {
  ASSERT_EQ(AddRow({3, 1, 0}, {3.0, 1.0, 5.0}), VORQ_OK);
  DeleteCol(1);
  EXPECT_EQ(Row(0), (Run{{2, 0}, {3.0, 5.0}}));
  EXPECT_EQ(Attribute("Elems"), 2);
}

TEST_F(DeletionTest, RowsAndTheirBoundsAndNamesMoveUp) {
  ASSERT_EQ(AddRow({0}, {1.0}, 'L', 1.0, 0.0, "a"), VORQ_OK);
  ASSERT_EQ(AddRow({1}, {2.0}, 'L', 2.0, 0.0, "b"), VORQ_OK);
  ASSERT_EQ(AddRow({2}, {3.0}, 'L', 3.0, 0.0, "c"), VORQ_OK);
  int const row = 1;
  ASSERT_EQ(VORQ_DelRows(prob, 1, &row), VORQ_OK);
  EXPECT_EQ(Row(1), (Run{{2}, {3.0}}));
  EXPECT_EQ(Info(VORQ_GetRowInfo, "UB", 1), 3.0);
  int index = -1;
  EXPECT_EQ(VORQ_GetRowIdx(prob, "c", &index), VORQ_OK);
  EXPECT_EQ(index, 1);
  EXPECT_EQ(Col(1), (Run{{}, {}}));
}

TEST_F(DeletionTest, LazyConstraintsFollowTheColumns) {
  int const cols[] = {0, 2};
  double const coefs[] = {1.0, 1.0};
  ASSERT_EQ(VORQ_AddLazyConstr(prob, 2, cols, coefs, 'L', 1.0, 1.0, nullptr), VORQ_OK);
  DeleteCol(0);
  EXPECT_EQ(Attribute("LazyConsElems"), 1);
}

TEST_F(DeletionTest, QuadraticTermsOfDeletedColumnsVanish) {
  int const rows[] = {0, 1, 3};
  int const cols[] = {1, 1, 2};
  double const values[] = {1.0, 2.0, 3.0};
  ASSERT_EQ(VORQ_SetQuadObj(prob, 3, rows, cols, values), VORQ_OK);
  DeleteCol(0);
  int count = 0;
  int newRows[2];
  int newCols[2];
  ASSERT_EQ(VORQ_GetQuadObj(prob, &count, newRows, newCols, nullptr), VORQ_OK);
  ASSERT_EQ(count, 2);
  EXPECT_THAT(newRows, ElementsAre(0, 2));
  EXPECT_THAT(newCols, ElementsAre(0, 1));
}

TEST_F(DeletionTest, SosKeepsTheWeightsOfItsOtherMembers) {
  int const type = 1;
  int const begin = 0;
  int const count = 3;
  int const cols[] = {3, 1, 0};
  double const weights[] = {5.0, 6.0, 7.0};
  ASSERT_EQ(VORQ_AddSOSs(prob, 1, &type, &begin, &count, cols, weights), VORQ_OK);
  DeleteCol(1);
  int newCols[2];
  double newWeights[2];
  ASSERT_EQ(VORQ_GetSOSs(prob, 1, nullptr, nullptr, nullptr, nullptr, newCols, newWeights, 2, nullptr), VORQ_OK);
  EXPECT_THAT(newCols, ElementsAre(2, 0));
  EXPECT_THAT(newWeights, ElementsAre(5.0, 7.0));
}

TEST_F(DeletionTest, AConeKeepsThePlaceOfALostColumn) {
  int const begin = 0;
  int const count = 3;
  int const cols[] = {0, 1, 3};
  ASSERT_EQ(VORQ_AddCones(prob, 1, nullptr, &begin, &count, cols), VORQ_OK);
  DeleteCol(1);
  int members[3];
  ASSERT_EQ(VORQ_GetCones(prob, 1, nullptr, nullptr, nullptr, nullptr, members, 3, nullptr), VORQ_OK);
  EXPECT_THAT(members, ElementsAre(0, -1, 2));
  EXPECT_EQ(VORQ_Solve(prob), VORQ_INVALID);
  ASSERT_EQ(VORQ_DelCones(prob, 1, &begin), VORQ_OK);
  EXPECT_EQ(Attribute("Cones"), 0);
}

TEST_F(DeletionTest, AnIndicatorKeepsThePlaceOfItsLostColumn) {
  int const begin = 0;
  int const count = 2;
  int const cols[] = {1, 2};
  double const coefs[] = {1.0, 2.0};
  ASSERT_EQ(VORQ_AddIndicators(prob, 1, nullptr, &begin, nullptr, &begin, &count, cols, coefs, "L", nullptr, nullptr),
            VORQ_OK);
  int const both[] = {0, 1};
  ASSERT_EQ(VORQ_DelCols(prob, 2, both), VORQ_OK);
  int binCol = 0;
  int member = 0;
  double coef = 0.0;
  ASSERT_EQ(VORQ_GetIndicators(prob, 1, nullptr, nullptr, &binCol, nullptr, nullptr, nullptr, &member, &coef, nullptr,
                               nullptr, 1, nullptr),
            VORQ_OK);
  EXPECT_EQ(binCol, -1);
  EXPECT_EQ(member, 0);
  EXPECT_EQ(coef, 2.0);
  EXPECT_EQ(VORQ_Solve(prob), VORQ_INVALID);
}

TEST_F(DeletionTest, LmiTermsOfDeletedColumnsVanish) {
  int const zero = 0;
  double const one = 1.0;
  ASSERT_EQ(VORQ_AddSymMat(prob, 2, 1, &zero, &zero, &one), VORQ_OK);
  ASSERT_EQ(VORQ_AddSymMat(prob, 2, 1, &zero, &zero, &one), VORQ_OK);
  int const cols[] = {0, 2};
  int const mats[] = {0, 1};
  ASSERT_EQ(VORQ_AddLMIConstr(prob, 2, 2, cols, mats, -1, nullptr), VORQ_OK);
  DeleteCol(0);
  int mat = -5;
  EXPECT_EQ(VORQ_GetLMIElem(prob, 1, 0, &mat), VORQ_OK);
  EXPECT_EQ(mat, 1);
  EXPECT_EQ(VORQ_GetLMIElem(prob, 0, 0, &mat), VORQ_OK);
  EXPECT_EQ(mat, -1);
}

TEST_F(DeletionTest, TermsOfDeletedPsdColumnsVanish) {
  int const dims[] = {2, 3};
  int const zero = 0;
  double const one = 1.0;
  ASSERT_EQ(VORQ_AddPSDCols(prob, 2, dims, nullptr), VORQ_OK);
  ASSERT_EQ(VORQ_AddSymMat(prob, 2, 1, &zero, &zero, &one), VORQ_OK);
  ASSERT_EQ(VORQ_AddSymMat(prob, 3, 1, &zero, &zero, &one), VORQ_OK);
  int const both[] = {0, 1};
  ASSERT_EQ(VORQ_AddPSDConstr(prob, 0, nullptr, nullptr, 2, both, both, 'E', 1.0, 1.0, nullptr), VORQ_OK);
  ASSERT_EQ(VORQ_ReplacePSDObj(prob, 2, both, both), VORQ_OK);
  ASSERT_EQ(VORQ_DelPSDCols(prob, 1, &zero), VORQ_OK);
  int mat = -5;
  EXPECT_EQ(VORQ_GetPSDElem(prob, 0, 0, &mat), VORQ_OK);
  EXPECT_EQ(mat, 1);
  EXPECT_EQ(VORQ_GetPSDObj(prob, 0, &mat), VORQ_OK);
  EXPECT_EQ(mat, 1);
  int dim = 0;
  int len = 0;
  EXPECT_EQ(VORQ_GetPSDCols(prob, 1, nullptr, &dim, &len), VORQ_OK);
  EXPECT_EQ(dim, 3);
  EXPECT_EQ(len, 9);
}

}  // namespace
