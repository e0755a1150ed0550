// What the tests of infeasible sets share: the flags of a set, its file read back, and the proof by solves that it is
// infeasible and that no member can go.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/solver/engines/solve_fixture.hpp"

class IisTest : public SolveTest {
 protected:
  ~IisTest() override { std::filesystem::remove_all(folder_); }

  std::string Path(char const* name) const { return (folder_ / name).string(); }

  static std::string Content(std::string const& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  using Reader = int (*)(VORQ_Prob*, int, int const*, int*);
  std::vector<int> Flags(Reader read, char const* count) const {
    std::vector<int> flags(static_cast<std::size_t>(Int(count)), -1);
    EXPECT_EQ(read(prob, static_cast<int>(flags.size()), nullptr, flags.data()), VORQ_OK);
    return flags;
  }
  std::vector<int> ColLower() const { return Flags(VORQ_GetColLowerIIS, "Cols"); }
  std::vector<int> ColUpper() const { return Flags(VORQ_GetColUpperIIS, "Cols"); }
  std::vector<int> RowLower() const { return Flags(VORQ_GetRowLowerIIS, "Rows"); }
  std::vector<int> RowUpper() const { return Flags(VORQ_GetRowUpperIIS, "Rows"); }

  // The text of the file of the set.
  std::string IisFile() const {
    EXPECT_EQ(VORQ_WriteIIS(prob, Path("set.iis").c_str()), VORQ_OK);
    return Content(Path("set.iis"));
  }

  // Reads the set's own file into another problem, which must be infeasible, and feasible without any one member.
  void ExpectIrreducible() const {
    ASSERT_EQ(VORQ_WriteIIS(prob, Path("set.iis").c_str()), VORQ_OK);
    Stated const set(Path("set.iis"));
    EXPECT_TRUE(set.IsInfeasible()) << Content(Path("set.iis"));
    int members = 0;
    for (int row = 0; row < set.Count("Rows"); ++row) {
      members += ExpectNeeded(set, row, "row", VORQ_GetRowInfo, "LB", VORQ_SetRowLower, -kInf, -kInf);
      members += ExpectNeeded(set, row, "row", VORQ_GetRowInfo, "UB", VORQ_SetRowUpper, kInf, kInf);
    }
    for (int col = 0; col < set.Count("Cols"); ++col) {
      bool const isBinary = set.Type(col) == 'B';
      members +=
          ExpectNeeded(set, col, "column", VORQ_GetColInfo, "LB", VORQ_SetColLower, isBinary ? 0.0 : -kInf, -kInf);
      members += ExpectNeeded(set, col, "column", VORQ_GetColInfo, "UB", VORQ_SetColUpper, isBinary ? 1.0 : kInf, kInf);
    }
    for (int sos = 0; sos < set.Count("Soss"); ++sos, ++members) {
      Stated const rest(Path("set.iis"));
      EXPECT_EQ(VORQ_DelSOSs(rest.prob, 1, &sos), VORQ_OK);
      EXPECT_FALSE(rest.IsInfeasible()) << "SOS " << sos;
    }
    for (int indicator = 0; indicator < set.Count("Indicators"); ++indicator, ++members) {
      Stated const rest(Path("set.iis"));
      EXPECT_EQ(VORQ_DelIndicators(rest.prob, 1, &indicator), VORQ_OK);
      EXPECT_FALSE(rest.IsInfeasible()) << "indicator " << indicator;
    }
    EXPECT_EQ(members, MemberCount());
  }

  int MemberCount() const {
    int count = 0;
    for (auto const& flags : {ColLower(), ColUpper(), RowLower(), RowUpper(), Flags(VORQ_GetSOSIIS, "Soss"),
                              Flags(VORQ_GetIndicatorIIS, "Indicators")}) {
      for (int const flag : flags) count += flag;
    }
    return count;
  }

 private:
  // A problem read from a file of a set.
  struct Stated {
    explicit Stated(std::string const& path) {
      EXPECT_EQ(VORQ_CreateEnvWithPath(nullptr, &env), VORQ_OK);
      EXPECT_EQ(VORQ_CreateProb(env, &prob), VORQ_OK);
      EXPECT_EQ(VORQ_SetIntParam(prob, "Logging", 0), VORQ_OK);
      EXPECT_EQ(VORQ_ReadLp(prob, path.c_str()), VORQ_OK);
    }
    Stated(Stated const&) = delete;
    Stated& operator=(Stated const&) = delete;
    ~Stated() {
      VORQ_DeleteProb(&prob);
      VORQ_DeleteEnv(&env);
    }
    int Count(char const* name) const {
      int value = -1;
      EXPECT_EQ(VORQ_GetIntAttr(prob, name, &value), VORQ_OK);
      return value;
    }
    char Type(int col) const {
      char type = 0;
      EXPECT_EQ(VORQ_GetColType(prob, 1, &col, &type), VORQ_OK);
      return type;
    }
    bool IsInfeasible() const {
      EXPECT_EQ(VORQ_Solve(prob), VORQ_OK);
      return Count(Count("IsMIP") != 0 ? "MipStatus" : "LpStatus") == kInfeasible;
    }
    VORQ_Env* env = nullptr;
    VORQ_Prob* prob = nullptr;
  };

  // Takes one bound away where there is one beyond what always holds; 1 for a member.
  template <typename Get, typename Change>
  static int ExpectNeeded(Stated const& set, int index, char const* kind, Get get, char const* info, Change change,
                          double always, double without) {
    double value = 0.0;
    EXPECT_EQ(get(set.prob, info, 1, &index, &value), VORQ_OK);
    if (value == always || value == without) return 0;
    EXPECT_EQ(change(set.prob, 1, &index, &without), VORQ_OK);
    EXPECT_FALSE(set.IsInfeasible()) << kind << " " << index << " is not needed by its " << info;
    EXPECT_EQ(change(set.prob, 1, &index, &value), VORQ_OK);
    return 1;
  }

  std::filesystem::path folder_ = MakeFolder();

  static std::filesystem::path MakeFolder() {
    auto const folder = std::filesystem::temp_directory_path() / ("vorq_iis_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    return folder;
  }
};
