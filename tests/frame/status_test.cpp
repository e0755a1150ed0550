// Status: the texts of failures to the letter, their limits, copies, and the exception of the name search.
#include "frame/status.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>

#include "tests/double/solver_double.hpp"
#include "vorqmodel/exception.h"

namespace Vorq {
namespace {

Status Failed(int code, std::string const& text) {
  Status status;
  SetStatus(status, code, "%s", text.c_str());
  return status;
}

// The text of a copy of a status whose message is `message`.
std::string CopiedText(std::string const& message) {
  Status const source = Failed(3, message);
  Status const copy(source);
  return copy.Text();
}

TEST(StatusTest, NewStatusIsClearWithoutText) {
  Status const status;
  EXPECT_EQ(status.Code(), 0);
  EXPECT_FALSE(status.Failed());
  EXPECT_EQ(status.Text(), nullptr);
}

TEST(StatusTest, EachCodeHasItsName) {
  std::pair<int, char const*> const texts[] = {{1, "(MEMORY) x"},   {2, "(FILE) x"},      {3, "(INVALID) x"},
                                               {4, "(UNKNOWN) x"},  {5, "(INTERNAL) x"},  {6, "(THREAD) x"},
                                               {7, "(SERVER) x"},   {8, "(NONCONVEX) x"}, {9, "(UNKNOWN) x"},
                                               {-1, "(UNKNOWN) x"}, {1000, "(UNKNOWN) x"}};
  for (auto const& [code, text] : texts) {
    Status const status = Failed(code, "x");
    EXPECT_EQ(status.Code(), code);
    EXPECT_STREQ(status.Text(), text);
  }
}

TEST(StatusTest, ArgumentsAreFormatted) {
  Status status;
  SetStatus(status, 3, "The %d-th variable has been removed", 5);
  EXPECT_STREQ(status.Text(), "(INVALID) The 5-th variable has been removed");
}

TEST(StatusTest, SuccessClearsTheCodeAndKeepsTheText) {
  Status status = Failed(3, "Invalid variable");
  SetStatus(status, 0, "Fail to solve problem");
  EXPECT_EQ(status.Code(), 0);
  EXPECT_FALSE(status.Failed());
  EXPECT_STREQ(status.Text(), "(INVALID) Invalid variable");
}

TEST(StatusTest, SuccessMakesNoText) {
  Status status;
  SetStatus(status, 0, "Fail to solve problem");
  EXPECT_EQ(status.Text(), nullptr);
}

TEST(StatusTest, SuccessDoesNotReadTheFormat) {
  Status status;
  char const* const null = nullptr;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat"
  SetStatus(status, 0, null);
#pragma GCC diagnostic pop
  EXPECT_EQ(status.Code(), 0);
}

TEST(StatusTest, LaterFailureReusesTheTextsMemory) {
  Status status = Failed(3, "Invalid variable");
  char const* const memory = status.Text();
  SetStatus(status, 2, "y");
  EXPECT_EQ(status.Text(), memory);
  EXPECT_STREQ(status.Text(), "(FILE) y");
}

// ---- Limits

TEST(StatusTest, MessageIsCutAt95Characters) {
  Status const status = Failed(3, std::string(200, 'a'));
  EXPECT_EQ(std::string(status.Text()), "(INVALID) " + std::string(95, 'a'));
}

TEST(StatusTest, MessageOf95CharactersIsKept) {
  Status const status = Failed(3, std::string(94, 'a') + "z");
  EXPECT_EQ(std::string(status.Text()), "(INVALID) " + std::string(94, 'a') + "z");
}

TEST(StatusTest, MessageOf96CharactersLosesItsLast) {
  Status const status = Failed(3, std::string(95, 'a') + "z");
  EXPECT_EQ(std::string(status.Text()), "(INVALID) " + std::string(95, 'a'));
}

TEST(StatusTest, TextNeverExceeds127Characters) {
  for (int code = 1; code < 10; ++code) {
    EXPECT_LE(std::strlen(Failed(code, std::string(1000, 'a')).Text()), 127u) << code;
  }
}

TEST(StatusTest, FailureHandedOnHasThePrefixTwice) {
  Status const first = Failed(3, "Invalid variable");
  Status second;
  SetStatus(second, 3, "%s", first.Text());
  EXPECT_STREQ(second.Text(), "(INVALID) (INVALID) Invalid variable");
}

// ---- Copies

TEST(StatusTest, CopyHasTheCodeAndThePrefixTwice) {
  Status const source = Failed(8, "Fail to solve problem");
  Status const copy(source);
  EXPECT_EQ(copy.Code(), 8);
  EXPECT_STREQ(copy.Text(), "(NONCONVEX) (NONCONVEX) Fail to solve problem");
  EXPECT_STREQ(source.Text(), "(NONCONVEX) Fail to solve problem");
}

TEST(StatusTest, CopyOfACopyHasThePrefixThrice) {
  Status const source = Failed(3, "x");
  Status const copy(source);
  Status const again(copy);
  EXPECT_STREQ(again.Text(), "(INVALID) (INVALID) (INVALID) x");
}

TEST(StatusTest, CopyOfAClearedStatusHasNoText) {
  Status source = Failed(3, "Invalid variable");
  SetStatus(source, 0, "Fail to solve problem");
  Status const copy(source);
  EXPECT_EQ(copy.Code(), 0);
  EXPECT_EQ(copy.Text(), nullptr);
}

TEST(StatusTest, CopyOfALongTextIsCut) {
  EXPECT_EQ(CopiedText(std::string(95, 'a')), "(INVALID) (INVALID) " + std::string(85, 'a'));
}

TEST(StatusTest, AssignmentCopiesLikeTheConstructor) {
  Status const source = Failed(2, "x");
  Status target = Failed(3, "old");
  target = source;
  EXPECT_EQ(target.Code(), 2);
  EXPECT_STREQ(target.Text(), "(FILE) (FILE) x");
}

TEST(StatusTest, AssignmentOfAClearStatusKeepsTheText) {
  Status kept = Failed(3, "old");
  Status const clear;
  kept = clear;
  EXPECT_EQ(kept.Code(), 0);
  EXPECT_STREQ(kept.Text(), "(INVALID) old");
}

TEST(StatusTest, SelfAssignmentChangesNothing) {
  Status status = Failed(3, "x");
  Status const& same = status;
  status = same;
  EXPECT_EQ(status.Code(), 3);
  EXPECT_STREQ(status.Text(), "(INVALID) x");
}

TEST(StatusTest, MoveTakesTheTextAsItStands) {
  Status source = Failed(3, "100%");
  Status const target(std::move(source));
  EXPECT_EQ(target.Code(), 3);
  EXPECT_STREQ(target.Text(), "(INVALID) 100%");
  EXPECT_EQ(source.Code(), 0);
  EXPECT_EQ(source.Text(), nullptr);
}

// A copied text is a format whose conversions meet zero.
TEST(StatusTest, CopyReadsPercentSignsAsConversions) {
  std::pair<char const*, char const*> const texts[] = {
      {"a %s b", "a  b"},        {"a %n b", "a  b"},  {"a %d b", "a 0 b"},   {"a %% b", "a % b"},
      {"100%", "100%"},          {"%", "%"},          {"%%%", "%%"},         {"%5d|", "    0|"},
      {"%-5d|", "0    |"},       {"%.3f|", "0.000|"}, {"%*d|", "0|"},        {"%.*f|", "0|"},
      {"%ld %lld %zu", "0 0 0"}, {"%hhd %hd", "0 0"}, {"%x %X %o", "0 0 0"}, {"%#x", "0"},
      {"%e", "0.000000e+00"},    {"%g", "0"},         {"%s%s%s%n", ""},      {"%5s|", "     |"},
      {"50% done", "50 0one"},   {"%hn|%lln|", "||"}, {"%lc|", "|"},         {"%ls|", "|"}};
  for (auto const& [message, expected] : texts) {
    EXPECT_EQ(CopiedText(message), std::string("(INVALID) (INVALID) ") + expected) << message;
  }
}

TEST(StatusTest, CopyOfAWideConversionIsCut) {
  EXPECT_EQ(CopiedText("%500d"), "(INVALID) (INVALID) " + std::string(85, ' '));
}

TEST(StatusTest, CopyOfAnAbsurdWidthIsCut) {
  EXPECT_EQ(CopiedText("%99999999999999999999d|"), "(INVALID) (INVALID) " + std::string(85, ' '));
  EXPECT_EQ(CopiedText("%.2000000000f|"), "(INVALID) (INVALID) 0." + std::string(83, '0'));
}

// ---- CheckRetcode

class CheckRetcodeTest : public vorqtest::SolverDoubleTest {};

TEST_F(CheckRetcodeTest, SuccessCallsNothing) {
  CheckRetcode(0);
  EXPECT_CALLS(double_, {});
}

TEST_F(CheckRetcodeTest, FailureThrowsTheSolversText) {
  double_.Answer("VORQ_GetRetcodeMsg").Set("buffer", "no such server, 100% sure");
  try {
    CheckRetcode(7);
    FAIL() << "no exception";
  } catch (Exception const& failure) {
    EXPECT_STREQ(failure.what(), "no such server, 100% sure");
    EXPECT_EQ(failure.code, 7);
  }
  EXPECT_CALLS(double_, {"VORQ_GetRetcodeMsg(7, out, 1020)"});
}

TEST_F(CheckRetcodeTest, FailureToGetTheTextThrowsWithoutOne) {
  double_.FailNext("VORQ_GetRetcodeMsg", VORQ_INTERNAL);
  try {
    CheckRetcode(3);
    FAIL() << "no exception";
  } catch (Exception const& failure) {
    EXPECT_STREQ(failure.what(), "");
    EXPECT_EQ(failure.code, 3);
  }
}

TEST_F(CheckRetcodeTest, TextMayFillTheWholeBuffer) {
  std::string const text(1019, 'a');
  double_.Answer("VORQ_GetRetcodeMsg").Set("buffer", text);
  try {
    CheckRetcode(-4);
    FAIL() << "no exception";
  } catch (Exception const& failure) {
    EXPECT_EQ(failure.what(), text);
    EXPECT_EQ(failure.code, -4);
  }
}

TEST(ExceptionTest, WithoutTextItSaysError) {
  Exception const failure(6);
  EXPECT_STREQ(failure.what(), "ERROR");
  EXPECT_EQ(failure.code, 6);
}

}  // namespace
}  // namespace Vorq
