// Environments, their settings, the banner and the texts of return codes.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "frame/vorq_solver.h"

namespace {

class EnvironmentTest : public testing::Test {
 protected:
  EnvironmentTest() { std::filesystem::create_directories(folder_); }
  ~EnvironmentTest() override {
    VORQ_DeleteProb(&prob_);
    VORQ_DeleteEnv(&env_);
    VORQ_DeleteEnvConfig(&config_);
    std::filesystem::remove_all(folder_);
  }

  std::string Write(std::string const& name, std::string const& text) {
    std::string const path = folder_ + "/" + name;
    std::ofstream(path) << text;
    return path;
  }

  int ThreadsOfNewProblem() {
    int threads = -77;
    EXPECT_EQ(VORQ_CreateProb(env_, &prob_), VORQ_OK);
    EXPECT_EQ(VORQ_GetIntParam(prob_, "Threads", &threads), VORQ_OK);
    return threads;
  }

  // Callers read the leading word of the record.
  std::int32_t LeadingWord() const {
    std::int32_t word = -1;
    std::memcpy(&word, config_, sizeof word);
    return word;
  }

  std::string const folder_ =
      testing::TempDir() + "vorq_" + testing::UnitTest::GetInstance()->current_test_info()->name();
  VORQ_Env* env_ = nullptr;
  VORQ_Prob* prob_ = nullptr;
  VORQ_EnvConfig* config_ = nullptr;
};

TEST_F(EnvironmentTest, BannerNamesTheProductOnOneLine) {
  char buffer[1024] = {};
  EXPECT_EQ(VORQ_GetBanner(buffer, 1020), VORQ_OK);
  EXPECT_EQ(std::string(buffer).substr(0, 10), "Vorq 7.2.5");
  EXPECT_EQ(std::string(buffer).find('\n'), std::string::npos);
}

TEST_F(EnvironmentTest, BannerIsCutToTheBuffer) {
  char buffer[8] = "xxxxxxx";
  EXPECT_EQ(VORQ_GetBanner(buffer, 5), VORQ_OK);
  EXPECT_STREQ(buffer, "Vorq");
  EXPECT_EQ(buffer[5], 'x');
}

TEST_F(EnvironmentTest, TextWithoutABufferIsRefused) {
  char buffer[8] = {};
  EXPECT_EQ(VORQ_GetBanner(nullptr, 10), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetBanner(buffer, 0), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetRetcodeMsg(0, nullptr, 10), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetRetcodeMsg(0, buffer, -1), VORQ_INVALID);
}

TEST_F(EnvironmentTest, EveryReturnCodeHasATextOfItsOwn) {
  auto const text = [](int code) {
    char buffer[1024] = {};
    EXPECT_EQ(VORQ_GetRetcodeMsg(code, buffer, 1020), VORQ_OK);
    return std::string(buffer);
  };
  EXPECT_EQ(text(VORQ_OK), "Success");
  EXPECT_EQ(text(VORQ_MEMORY), "Out of memory");
  EXPECT_EQ(text(VORQ_FILE), "File cannot be opened, read or written");
  EXPECT_EQ(text(VORQ_INVALID), "Invalid argument or operation");
  EXPECT_EQ(text(VORQ_INTERNAL), "Internal failure");
  EXPECT_EQ(text(VORQ_THREAD), "Failure of a thread");
  EXPECT_EQ(text(VORQ_SERVER), "Failure of a server");
  EXPECT_EQ(text(VORQ_NONCONVEX), "Problem is not convex");
  EXPECT_EQ(text(4), "Unknown return code");
  EXPECT_EQ(text(-1), "Unknown return code");
}

TEST_F(EnvironmentTest, CreateWithoutPathGivesDefaults) {
  ASSERT_EQ(VORQ_CreateEnvWithPath(nullptr, &env_), VORQ_OK);
  EXPECT_EQ(ThreadsOfNewProblem(), -1);
}

TEST_F(EnvironmentTest, SettingsFileGivesTheFirstValuesOfNewProblems) {
  ASSERT_EQ(VORQ_CreateEnvWithPath(Write("own.par", "Threads 3\n").c_str(), &env_), VORQ_OK);
  EXPECT_EQ(ThreadsOfNewProblem(), 3);
}

TEST_F(EnvironmentTest, DirectoryIsSearchedForItsSettingsFile) {
  Write("vorq.par", "Threads 4\n");
  ASSERT_EQ(VORQ_CreateEnvWithPath(folder_.c_str(), &env_), VORQ_OK);
  EXPECT_EQ(ThreadsOfNewProblem(), 4);
}

TEST_F(EnvironmentTest, DirectoryWithoutSettingsFileGivesDefaults) {
  ASSERT_EQ(VORQ_CreateEnvWithPath(folder_.c_str(), &env_), VORQ_OK);
  EXPECT_EQ(ThreadsOfNewProblem(), -1);
}

TEST_F(EnvironmentTest, PathThatDoesNotExistIsRefused) {
  env_ = reinterpret_cast<VORQ_Env*>(this);
  EXPECT_EQ(VORQ_CreateEnvWithPath((folder_ + "/nowhere").c_str(), &env_), VORQ_FILE);
  EXPECT_EQ(env_, nullptr);
  EXPECT_EQ(VORQ_CreateEnvWithPath("", &env_), VORQ_FILE);
}

TEST_F(EnvironmentTest, BadSettingsFileIsRefused) {
  EXPECT_EQ(VORQ_CreateEnvWithPath(Write("own.par", "Threads many\n").c_str(), &env_), VORQ_FILE);
  EXPECT_EQ(env_, nullptr);
}

TEST_F(EnvironmentTest, CreateRefusesNullArguments) {
  EXPECT_EQ(VORQ_CreateEnvWithPath(nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_CreateEnvWithConfig(nullptr, &env_), VORQ_INVALID);
  EXPECT_EQ(env_, nullptr);
  EXPECT_EQ(VORQ_CreateEnvConfig(nullptr), VORQ_INVALID);
}

TEST_F(EnvironmentTest, ClosedEnvironmentGivesNoProblem) {
  ASSERT_EQ(VORQ_CreateEnvWithPath(nullptr, &env_), VORQ_OK);
  EXPECT_EQ(VORQ_CloseEnv(&env_), VORQ_OK);
  EXPECT_NE(env_, nullptr);
  EXPECT_EQ(VORQ_CreateProb(env_, &prob_), VORQ_INVALID);
  EXPECT_EQ(prob_, nullptr);
}

TEST_F(EnvironmentTest, ClosingTwiceIsRefused) {
  ASSERT_EQ(VORQ_CreateEnvWithPath(nullptr, &env_), VORQ_OK);
  EXPECT_EQ(VORQ_CloseEnv(&env_), VORQ_OK);
  EXPECT_EQ(VORQ_CloseEnv(&env_), VORQ_INVALID);
}

TEST_F(EnvironmentTest, CloseRefusesNull) {
  EXPECT_EQ(VORQ_CloseEnv(nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_CloseEnv(&env_), VORQ_INVALID);
}

TEST_F(EnvironmentTest, ProblemLivesOnWithoutItsEnvironment) {
  ASSERT_EQ(VORQ_CreateEnvWithPath(Write("own.par", "Threads 3\n").c_str(), &env_), VORQ_OK);
  EXPECT_EQ(ThreadsOfNewProblem(), 3);
  EXPECT_EQ(VORQ_CloseEnv(&env_), VORQ_OK);
  EXPECT_EQ(VORQ_DeleteEnv(&env_), VORQ_OK);
  EXPECT_EQ(env_, nullptr);
  int cols = -1;
  EXPECT_EQ(VORQ_AddCol(prob_, 1.0, 0, nullptr, nullptr, 'C', 0.0, 1.0, "x"), VORQ_OK);
  EXPECT_EQ(VORQ_GetIntAttr(prob_, "Cols", &cols), VORQ_OK);
  EXPECT_EQ(cols, 1);
}

TEST_F(EnvironmentTest, DeletingNothingSucceedsAndNoAddressIsRefused) {
  EXPECT_EQ(VORQ_DeleteEnv(&env_), VORQ_OK);
  EXPECT_EQ(VORQ_DeleteEnvConfig(&config_), VORQ_OK);
  EXPECT_EQ(VORQ_DeleteEnv(nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_DeleteEnvConfig(nullptr), VORQ_INVALID);
}

TEST_F(EnvironmentTest, NewConfigShowsTheBanner) {
  ASSERT_EQ(VORQ_CreateEnvConfig(&config_), VORQ_OK);
  EXPECT_EQ(LeadingWord(), 0);
}

TEST_F(EnvironmentTest, BannerSettingTurnsTheLeadingWord) {
  ASSERT_EQ(VORQ_CreateEnvConfig(&config_), VORQ_OK);
  EXPECT_EQ(VORQ_SetEnvConfig(config_, "banner", "0"), VORQ_OK);
  EXPECT_NE(LeadingWord(), 0);
  EXPECT_EQ(VORQ_SetEnvConfig(config_, "Banner", "1"), VORQ_OK);
  EXPECT_EQ(LeadingWord(), 0);
  EXPECT_EQ(VORQ_SetEnvConfig(config_, "Banner", "no"), VORQ_INVALID);
}

TEST_F(EnvironmentTest, ParametersAreSettings) {
  ASSERT_EQ(VORQ_CreateEnvConfig(&config_), VORQ_OK);
  EXPECT_EQ(VORQ_SetEnvConfig(config_, "Threads", "5"), VORQ_OK);
  EXPECT_EQ(VORQ_SetEnvConfig(config_, "Threads", "-9"), VORQ_INVALID);
  ASSERT_EQ(VORQ_CreateEnvWithConfig(config_, &env_), VORQ_OK);
  EXPECT_EQ(VORQ_DeleteEnvConfig(&config_), VORQ_OK);
  EXPECT_EQ(config_, nullptr);
  EXPECT_EQ(ThreadsOfNewProblem(), 5);
}

TEST_F(EnvironmentTest, PathSettingReadsAFileAndLaterSettingsWin) {
  std::string const path = Write("own.par", "Threads 3\nTimeLimit 8\n");
  ASSERT_EQ(VORQ_CreateEnvConfig(&config_), VORQ_OK);
  EXPECT_EQ(VORQ_SetEnvConfig(config_, "Path", path.c_str()), VORQ_OK);
  EXPECT_EQ(VORQ_SetEnvConfig(config_, "Threads", "6"), VORQ_OK);
  ASSERT_EQ(VORQ_CreateEnvWithConfig(config_, &env_), VORQ_OK);
  EXPECT_EQ(ThreadsOfNewProblem(), 6);
  double limit = 0.0;
  EXPECT_EQ(VORQ_GetDblParam(prob_, "TimeLimit", &limit), VORQ_OK);
  EXPECT_EQ(limit, 8.0);
}

TEST_F(EnvironmentTest, UnknownSettingIsRefused) {
  ASSERT_EQ(VORQ_CreateEnvConfig(&config_), VORQ_OK);
  EXPECT_EQ(VORQ_SetEnvConfig(config_, "Colour", "red"), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetEnvConfig(config_, nullptr, "1"), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetEnvConfig(config_, "Threads", nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetEnvConfig(nullptr, "Threads", "1"), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetEnvConfig(config_, "Path", (folder_ + "/nowhere").c_str()), VORQ_FILE);
}

}  // namespace
