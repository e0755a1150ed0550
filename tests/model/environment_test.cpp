// Environments and their settings: opening, banner, closing, failures, and the order in which things end.
#include "tests/model/model_fixture.hpp"

namespace {

using vorqtest::Own;

class RecordingSink : public Vorq::ILogSink {
 public:
  void Log(char const* text) override { lines.emplace_back(text); }
  std::vector<std::string> lines;
};

class EnvironmentTest : public vorqtest::SolverDoubleTest {
 protected:
  RecordingSink sink_;
};

TEST_F(EnvironmentTest, OpensWithoutPath) {
  auto const envr = Own(CreateEnvr(&sink_));
  EXPECT_SUCCESS(envr);
  EXPECT_EQ(envr->GetErrorMessage(), nullptr);
  EXPECT_CALLS(double_, {"VORQ_GetBanner(out, 1020)", "VORQ_CreateEnvWithPath(null, out)"});
}

TEST_F(EnvironmentTest, HandsThePathOn) {
  auto const envr = Own(CreateEnvrWithPath("licenses", &sink_));
  EXPECT_CALLS(double_, {"VORQ_GetBanner(out, 1020)", R"(VORQ_CreateEnvWithPath("licenses", out))"});
}

TEST_F(EnvironmentTest, BannerGoesToTheSinkWithoutLineEnd) {
  double_.Banner("Vorq 7.2.5");
  testing::internal::CaptureStdout();
  auto const envr = Own(CreateEnvr(&sink_));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(sink_.lines, std::vector<std::string>{"Vorq 7.2.5"});
}

TEST_F(EnvironmentTest, BannerGoesToStandardOutputWithoutASink) {
  double_.Banner("Vorq 7.2.5");
  testing::internal::CaptureStdout();
  auto const envr = Own(CreateEnvr(nullptr));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "Vorq 7.2.5\n");
}

TEST_F(EnvironmentTest, EmptyBannerIsNotShown) {
  double_.Banner("");
  testing::internal::CaptureStdout();
  auto const quiet = Own(CreateEnvr(nullptr));
  auto const logged = Own(CreateEnvr(&sink_));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_TRUE(sink_.lines.empty());
}

TEST_F(EnvironmentTest, FailedBannerOpensNothing) {
  double_.FailNext("VORQ_GetBanner", VORQ_FILE);
  auto const envr = Own(CreateEnvr(&sink_));
  EXPECT_FAILURE(envr, 2, "(FILE) Fail to create VORQ environment");
  EXPECT_CALLS(double_, {"VORQ_GetBanner(out, 1020)"});
}

TEST_F(EnvironmentTest, FailureTextsTellTheFactories) {
  auto const config = Own(CreateEnvrConfig());
  double_.FailNext("VORQ_CreateEnvWithPath", VORQ_SERVER);
  auto const plain = Own(CreateEnvr(&sink_));
  EXPECT_FAILURE(plain, 7, "(SERVER) Fail to create VORQ environment");
  double_.FailNext("VORQ_CreateEnvWithPath", VORQ_FILE);
  auto const withPath = Own(CreateEnvrWithPath("here", &sink_));
  EXPECT_FAILURE(withPath, 2, "(FILE) Fail to create VORQ environment with path");
  double_.FailNext("VORQ_CreateEnvWithConfig", VORQ_INVALID);
  auto const withConfig = Own(CreateEnvrWithConfig(config.get(), &sink_));
  EXPECT_FAILURE(withConfig, 3, "(INVALID) Fail to create VORQ environment with config");
}

TEST_F(EnvironmentTest, BannerIsShownAlsoWhenOpeningFails) {
  double_.Banner("banner");
  double_.FailNext("VORQ_CreateEnvWithPath", VORQ_SERVER);
  auto const envr = Own(CreateEnvr(&sink_));
  EXPECT_EQ(sink_.lines, std::vector<std::string>{"banner"});
}

TEST_F(EnvironmentTest, ModelOfAFailedEnvironmentReportsIt) {
  double_.FailNext("VORQ_CreateEnvWithPath", VORQ_SERVER);
  auto const envr = Own(CreateEnvr(&sink_));
  auto const model = Own(envr->CreateModel("m"));
  EXPECT_FAILURE(model, 1, "(MEMORY) Critical: fail to create problem");
  EXPECT_EQ(double_.TakeViolations().size(), 1u);  // the environment of that call is null
}

TEST_F(EnvironmentTest, ConfigGoesToTheSolverLibrary) {
  auto const config = Own(CreateEnvrConfig());
  config->Set("Silent", "1");
  EXPECT_SUCCESS(config);
  auto const envr = Own(CreateEnvrWithConfig(config.get(), &sink_));
  EXPECT_SUCCESS(envr);
  EXPECT_CALLS(double_, {"VORQ_CreateEnvConfig(out)", R"(VORQ_SetEnvConfig(config#1, "Silent", "1"))",
                         "VORQ_GetBanner(out, 1020)", "VORQ_CreateEnvWithConfig(config#1, out)"});
}

TEST_F(EnvironmentTest, RefusedSettingIsReported) {
  auto const config = Own(CreateEnvrConfig());
  double_.FailNext("VORQ_SetEnvConfig", VORQ_INVALID);
  config->Set("no such setting", "1");
  EXPECT_FAILURE(config, 3, "(INVALID) Fail to set VORQ environment config");
}

TEST_F(EnvironmentTest, ConfigWithALeadingWordGetsNoBanner) {
  double_.Banner("banner").ConfigLeadingWord(1);
  auto const config = Own(CreateEnvrConfig());
  auto const envr = Own(CreateEnvrWithConfig(config.get(), &sink_));
  EXPECT_SUCCESS(envr);
  EXPECT_EQ(double_.CountCalls("VORQ_GetBanner"), 0u);
  EXPECT_TRUE(sink_.lines.empty());
}

TEST_F(EnvironmentTest, ConfigMayGoOnceTheEnvironmentIsOpen) {
  auto config = Own(CreateEnvrConfig());
  auto const envr = Own(CreateEnvrWithConfig(config.get(), &sink_));
  config.reset();
  EXPECT_EQ(double_.LiveConfigs(), 0);
  EXPECT_SUCCESS(envr);
}

TEST_F(EnvironmentTest, FailedConfigIsDroppedWithoutAReport) {
  double_.FailNext("VORQ_CreateEnvConfig", VORQ_MEMORY);
  auto config = Own(CreateEnvrConfig());
  EXPECT_SUCCESS(config);
  config.reset();
  EXPECT_EQ(double_.TakeViolations().size(), 1u);  // there was nothing to delete
}

TEST_F(EnvironmentTest, CloseReturnsTheCodeAndLeavesTheStatus) {
  auto const envr = Own(CreateEnvr(&sink_));
  EXPECT_EQ(envr->Close(), 0);
  double_.FailNext("VORQ_CloseEnv", VORQ_INTERNAL);
  EXPECT_EQ(envr->Close(), 5);
  EXPECT_SUCCESS(envr);
  EXPECT_EQ(envr->GetErrorMessage(), nullptr);
  EXPECT_EQ(double_.CountCalls("VORQ_CloseEnv"), 2u);
}

TEST_F(EnvironmentTest, ProblemThatCannotBeMadeIsReported) {
  double_.FailNext("VORQ_CreateProb", VORQ_SERVER);
  auto const envr = Own(CreateEnvr(&sink_));
  auto const model = Own(envr->CreateModel("m"));
  EXPECT_FAILURE(model, 1, "(MEMORY) Critical: fail to create problem");
  EXPECT_EQ(double_.LiveProblems(), 0);
}

TEST_F(EnvironmentTest, ModelKeepsTheEnvironmentAlive) {
  auto envr = Own(CreateEnvr(&sink_));
  auto model = Own(envr->CreateModel("m"));
  envr.reset();
  EXPECT_EQ(double_.LiveEnvs(), 1);
  double_.ClearLog();
  model.reset();
  EXPECT_CALLS(double_, {"VORQ_DeleteProb(prob#1)", "VORQ_DeleteEnv(env#1)"});
}

TEST_F(EnvironmentTest, ClosedEnvironmentIsStillDeletedAfterItsModel) {
  auto envr = Own(CreateEnvr(&sink_));
  auto model = Own(envr->CreateModel("m"));
  envr->Close();
  envr.reset();
  double_.ClearLog();
  model.reset();
  EXPECT_CALLS(double_, {"VORQ_DeleteProb(prob#1)", "VORQ_DeleteEnv(env#1)"});
}

TEST_F(EnvironmentTest, ExportMakesAModelToo) {
  auto const envr = Own(CreateEnvr(&sink_));
  auto const model = Own(CreateModel(envr.get(), "m"));
  EXPECT_SUCCESS(model);
  EXPECT_EQ(double_.LiveProblems(), 1);
}

TEST_F(EnvironmentTest, LiveItemsKeepTheProblemAlive) {
  auto envr = Own(CreateEnvr(&sink_));
  auto model = Own(envr->CreateModel("m"));
  auto var = Own(model->AddVar(0.0, 1.0, 0.0, 'C', "x"));
  model.reset();
  EXPECT_EQ(double_.LiveProblems(), 1);
  EXPECT_STREQ(var->GetName(), "x");
  EXPECT_EQ(var->GetIdx(), 0);
  var->Set("LB", 0.5);
  EXPECT_SUCCESS(var);
  // An item holds the problem only, so that both go in this order where nothing else is left.
  var.reset();
  EXPECT_EQ(double_.LiveProblems(), 0);
}

TEST(Version, IsThatOfTheProduct) {
  EXPECT_EQ(GetVorqVersion(0), 7);
  EXPECT_EQ(GetVorqVersion(1), 2);
  EXPECT_EQ(GetVorqVersion(2), 5);
}

TEST(Version, OtherSelectorsGiveMinusOne) {
  EXPECT_EQ(GetVorqVersion(3), -1);
  EXPECT_EQ(GetVorqVersion(-1), -1);
}

}  // namespace
