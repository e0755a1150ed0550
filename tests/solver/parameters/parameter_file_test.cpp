// Parameter files: what they say, what they refuse, and that they read back.
#include "solver/files/parameter_file.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>

#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

class ParameterFileTest : public testing::Test {
 protected:
  ~ParameterFileTest() override { std::remove(path_.c_str()); }

  void Write(std::string const& text) { std::ofstream(path_, std::ios::binary) << text; }

  std::string FailureOf(std::string const& text) {
    Write(text);
    try {
      ReadParameterFile(path_, ParameterSet());
    } catch (Failure const& failure) {
      EXPECT_EQ(failure.code, VORQ_FILE);
      return failure.what();
    }
    return "no failure";
  }

  std::string const path_ =
      testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name() + std::string(".par");
};

TEST_F(ParameterFileTest, ReadSetsWhatTheFileNames) {
  Write("# a comment\n\nTimeLimit 12.5\r\n  threads\t3   # behind a value\nRELGAP 0");
  ParameterSet const parameters = ReadParameterFile(path_, ParameterSet());
  EXPECT_EQ(parameters.Dbl(DblParam::kTimeLimit), 12.5);
  EXPECT_EQ(parameters.Int(IntParam::kThreads), 3);
  EXPECT_EQ(parameters.Dbl(DblParam::kRelGap), 0.0);
}

TEST_F(ParameterFileTest, ReadKeepsTheOtherValuesOfTheBase) {
  ParameterSet base;
  base.SetInt("Threads", 5);
  base.SetDbl("TimeLimit", 1.0);
  Write("TimeLimit 2\n");
  ParameterSet const parameters = ReadParameterFile(path_, base);
  EXPECT_EQ(parameters.Int(IntParam::kThreads), 5);
  EXPECT_EQ(parameters.Dbl(DblParam::kTimeLimit), 2.0);
}

TEST_F(ParameterFileTest, EmptyFileChangesNothing) {
  Write("");
  EXPECT_EQ(ReadParameterFile(path_, ParameterSet()), ParameterSet());
}

TEST_F(ParameterFileTest, UnknownNameIsRefusedWithItsLine) {
  EXPECT_EQ(FailureOf("Threads 2\nTimeLimits 3\n"), path_ + ":2: Unknown parameter 'TimeLimits'");
}

TEST_F(ParameterFileTest, MissingValueIsRefused) {
  EXPECT_EQ(FailureOf("Threads # 2\n"), path_ + ":1: Parameter 'Threads' has no value");
}

TEST_F(ParameterFileTest, SurplusWordIsRefused) {
  EXPECT_EQ(FailureOf("Threads 2 3\n"), path_ + ":1: Unexpected '3' behind the value of parameter 'Threads'");
}

TEST_F(ParameterFileTest, BadValueIsRefused) {
  EXPECT_EQ(FailureOf("\nThreads two\n"), path_ + ":2: Value 'two' of parameter Threads is not a 32-bit integer");
}

TEST_F(ParameterFileTest, ValueOutOfRangeIsRefused) {
  EXPECT_EQ(FailureOf("RelGap -1\n"), path_ + ":1: Value -1 of parameter RelGap is out of its range, 0 to 1e+20");
}

TEST_F(ParameterFileTest, MissingFileIsRefused) {
  EXPECT_THROW(ReadParameterFile(path_, ParameterSet()), Failure);
}

TEST_F(ParameterFileTest, DirectoryIsRefused) {
  EXPECT_THROW(ReadParameterFile(testing::TempDir(), ParameterSet()), Failure);
}

TEST_F(ParameterFileTest, WriteTellsOnlyWhatIsNotAtItsDefault) {
  ParameterSet parameters;
  parameters.SetInt("Presolve", 0);
  parameters.SetDbl("TimeLimit", 60.0);
  WriteParameterFile(path_, parameters);
  std::ifstream file(path_);
  std::string const text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  EXPECT_EQ(text, "TimeLimit 60\nPresolve 0\n");
}

TEST_F(ParameterFileTest, WrittenValuesReadBackToTheLastDigit) {
  ParameterSet parameters;
  parameters.SetDbl("RelGap", 1.0 / 3.0);
  parameters.SetDbl("InfBound", 1e29);
  parameters.SetInt("NodeLimit", 2147483647);
  WriteParameterFile(path_, parameters);
  EXPECT_EQ(ReadParameterFile(path_, ParameterSet()), parameters);
}

TEST_F(ParameterFileTest, WriteToNowhereIsRefused) {
  EXPECT_THROW(WriteParameterFile(testing::TempDir() + "no/such/folder/x.par", ParameterSet()), Failure);
}

}  // namespace
}  // namespace vorqsolver
