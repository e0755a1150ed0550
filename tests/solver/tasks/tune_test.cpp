// Tuning: that it finds what is better, that it changes nothing else, its files, and bad input.
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "tests/solver/engines/solve_fixture.hpp"

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

class TuneTest : public SolveTest {
 protected:
  ~TuneTest() override { std::filesystem::remove(path_); }

  int Param(char const* name) const {
    int value = -7;
    EXPECT_EQ(VORQ_GetIntParam(prob, name, &value), VORQ_OK) << name;
    return value;
  }

  std::string Content() const {
    std::ifstream file(path_);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  void Put(std::string const& text) const { std::ofstream(path_) << text; }

  std::string Mps() const {
    int size = 0;
    EXPECT_EQ(VORQ_WriteMpsStr(prob, nullptr, 0, &size), VORQ_OK);
    std::string text(static_cast<std::size_t>(size), ' ');
    EXPECT_EQ(VORQ_WriteMpsStr(prob, text.data(), size, nullptr), VORQ_OK);
    return text;
  }

  // Its bound of the first node is far off without cuts.
  void AddWeakProblem() {
    for (int j = 0; j < 12; ++j) Col(-1.0, 0.0, 1.0, 'B');
    for (int i = 0; i < 12; ++i) {
      for (int j = i + 1; j < 12; ++j) Row({i, j}, {1.0, 1.0}, 'L', 1.0);
    }
  }

  std::string path_ =
      (std::filesystem::temp_directory_path() / ("vorq_" + std::to_string(::getpid()) + ".tune")).string();
};

class WeakStart : public TuneTest {
 protected:
  // A bound measured at the root: the cuts that are off would close the gap, and nothing here depends on time.
  WeakStart() {
    AddWeakProblem();
    Set("CutLevel", 0);
    Set("HeurLevel", 0);
    Set("Presolve", 0);
    Set("NodeLimit", 0);
    Set("StrongBranching", 0);
    Set("TuneMode", 3);
  }
};

TEST_F(WeakStart, CutsThatAreOffAreFoundToHelp) {
  ListenToLog();
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  ASSERT_GE(Int("TuneResults"), 1);
  EXPECT_GE(Dbl("TuneTime"), 0.0);
  EXPECT_THAT(lines, Contains(HasSubstr("Tuning: best of ")));
  ASSERT_EQ(VORQ_WriteTuneParam(prob, 0, path_.c_str()), VORQ_OK);
  EXPECT_THAT(Content(), testing::AnyOf(HasSubstr("CutLevel -1\n"), HasSubstr("Presolve -1\n")));
}

TEST_F(WeakStart, DataParametersAndResultsStay) {
  Solve();
  auto const status = Int("MipStatus");
  auto const bound = Dbl("BestBnd");
  auto const before = Mps();
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  EXPECT_EQ(Mps(), before);
  EXPECT_EQ(Param("CutLevel"), 0);
  EXPECT_EQ(Param("HeurLevel"), 0);
  EXPECT_EQ(Param("Presolve"), 0);
  EXPECT_EQ(Int("MipStatus"), status);
  EXPECT_EQ(Dbl("BestBnd"), bound);
}

TEST_F(WeakStart, LoadedSetIsBetterThanWhatThereWas) {
  Solve();
  double const before = Dbl("BestBnd");
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  ASSERT_EQ(VORQ_LoadTuneParam(prob, 0), VORQ_OK);
  EXPECT_EQ(Param("NodeLimit"), 0);
  Solve();
  EXPECT_GT(Dbl("BestBnd"), before + 0.1);
}

TEST_F(WeakStart, BothThreadsFindTheSame) {
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  int const alone = Int("TuneResults");
  Set("Threads", 2);
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  EXPECT_EQ(Int("TuneResults"), alone);
}

TEST_F(WeakStart, ValuesOfAFileAreTriedAndNoOthers) {
  Put("# what to try\nHeurLevel 0 -1\ncutlevel -1 # on\n");
  ListenToLog();
  ASSERT_EQ(VORQ_ReadTune(prob, path_.c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  std::vector<std::string> tried;
  for (auto const& line : lines) {
    for (char const* const name : {"Presolve", "StrongBranching"})
      EXPECT_EQ(line.find(std::string("  ") + name), line.npos);
    if (line.starts_with("  HeurLevel -1:") || line.starts_with("  cutlevel -1:")) tried.push_back(line);
  }
  EXPECT_EQ(tried.size(), 2u);
}

TEST_F(WeakStart, AllCombinationsAreTriedOnRequest) {
  Put("HeurLevel -1\nCutLevel -1\n");
  ASSERT_EQ(VORQ_ReadTune(prob, path_.c_str()), VORQ_OK);
  Set("TuneMethod", 1);
  ListenToLog();
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  EXPECT_THAT(lines, Contains(testing::StartsWith("  HeurLevel -1, CutLevel -1: bound ")));
}

TEST_F(WeakStart, OutputLevelsSayLessOrMore) {
  ListenToLog();
  Set("TuneOutputLevel", 0);
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  EXPECT_THAT(lines, IsEmpty());
  Set("TuneOutputLevel", 1);
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  EXPECT_THAT(lines, Not(Contains(testing::StartsWith("  CutLevel -1:"))));
  auto const few = lines.size();
  lines.clear();
  Set("TuneOutputLevel", 3);
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  EXPECT_GT(lines.size(), few);
  EXPECT_THAT(lines, Contains(HasSubstr("(unfinished)")));
}

TEST_F(WeakStart, ResetOfEverythingForgetsTheSets) {
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  ASSERT_EQ(VORQ_Reset(prob, 0), VORQ_OK);
  EXPECT_GE(Int("TuneResults"), 1);
  ASSERT_EQ(VORQ_Reset(prob, 1), VORQ_OK);
  EXPECT_EQ(Int("TuneResults"), 0);
}

TEST_F(TuneTest, TargetThatIsMetEndsTheTuning) {
  Col(1.0, 1.0);
  Row({0}, {1.0}, 'G', 2.0);
  Set("TuneTargetTime", 100.0);
  ListenToLog();
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  EXPECT_EQ(Int("TuneResults"), 0);
  EXPECT_THAT(lines, Contains("The target is met already"));
  EXPECT_THAT(lines, Contains("Tuning: nothing was better than the parameters as they are"));
}

TEST_F(TuneTest, NothingIsBetterThanTheOptimum) {
  AddWeakProblem();
  Set("TuneMode", 2);
  ListenToLog();
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  EXPECT_EQ(Int("TuneResults"), 0);
  EXPECT_THAT(lines, Contains("Tuning: nothing was better than the parameters as they are"));
}

TEST_F(TuneTest, PermutationsAreSolvedToo) {
  AddWeakProblem();
  Set("TuneMode", 2);
  Set("TunePermutes", 3);
  Set("TuneMeasure", 1);
  ListenToLog();
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  EXPECT_THAT(lines, Contains("  the parameters as they are: objective -1 over 3 orders of columns and rows"));
}

TEST_F(TuneTest, LinearProblemIsTunedByItsMethods) {
  for (int j = 0; j < 5; ++j) Col(1.0, 0.0, 10.0);
  for (int j = 0; j < 4; ++j) Row({j, j + 1}, {1.0, 1.0}, 'G', 3.0);
  Set("TuneTargetTime", 0.0);
  ListenToLog();
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  for (char const* const set :
       {"  LpMethod 0: time ", "  LpMethod 1: time ", "  Presolve 0: time ", "  Scaling 0: time "}) {
    EXPECT_THAT(lines, Contains(testing::StartsWith(set)));
  }
}

TEST_F(TuneTest, TimeLimitHolds) {
  AddMarketSplit(5, 40);
  Set("TuneTimeLimit", 1.0);
  auto const begin = std::chrono::steady_clock::now();
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  EXPECT_LT(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count(), 10.0);
}

TEST_F(TuneTest, InterruptionEndsIt) {
  AddMarketSplit(5, 40);
  std::jthread const other([this] {
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    VORQ_Interrupt(prob);
  });
  auto const begin = std::chrono::steady_clock::now();
  ASSERT_EQ(VORQ_Tune(prob), VORQ_OK);
  EXPECT_LT(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count(), 10.0);
}

TEST_F(TuneTest, SetsThatDoNotExistAreRefused) {
  ListenToLog();
  EXPECT_EQ(VORQ_LoadTuneParam(prob, 0), VORQ_INVALID);
  EXPECT_EQ(lines.back(), "Error: Tuned parameter set 0 does not exist (there are 0)");
  EXPECT_EQ(VORQ_WriteTuneParam(prob, -1, path_.c_str()), VORQ_INVALID);
  EXPECT_FALSE(std::filesystem::exists(path_));
  EXPECT_EQ(VORQ_Tune(nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_LoadTuneParam(nullptr, 0), VORQ_INVALID);
}

TEST_F(TuneTest, FilesWithMistakesAreRefusedWithTheirLine) {
  ListenToLog();
  struct Case {
    char const* text;
    char const* cause;
  };
  for (auto const& [text, cause] :
       {Case{"CutLevel\n", ":1: Parameter 'CutLevel' has no value"},
        Case{"\nNoSuch 1\n", ":2: Unknown parameter 'NoSuch'"},
        Case{"CutLevel 0\ncutlevel 1\n", ":2: Parameter 'cutlevel' stands twice"},
        Case{"CutLevel 77\n", ":1: Value 77 of parameter CutLevel is out of its range, -1 to 3"}}) {
    Put(text);
    EXPECT_EQ(VORQ_ReadTune(prob, path_.c_str()), VORQ_FILE);
    EXPECT_EQ(lines.back(), "Error: " + path_ + cause);
  }
  EXPECT_EQ(VORQ_ReadTune(prob, "/nowhere/a.tune"), VORQ_FILE);
}

}  // namespace
