// What becomes of exceptions at the C functions.
#include "solver/api/guard.hpp"

#include <gtest/gtest.h>

#include <new>
#include <system_error>

namespace {

using vorqsolver::Guard;

TEST(Guard, ExceptionsBecomeCodes) {
  EXPECT_EQ(Guard([] {}), VORQ_OK);
  EXPECT_EQ(Guard([]() -> int { throw vorqsolver::Failure(VORQ_NONCONVEX, "text"); }), VORQ_NONCONVEX);
  EXPECT_EQ(Guard([] { throw std::bad_alloc(); }), VORQ_MEMORY);
  EXPECT_EQ(Guard([] { throw std::length_error("text"); }), VORQ_MEMORY);
  EXPECT_EQ(Guard([] { throw 1; }), VORQ_INTERNAL);
}

TEST(Guard, AThreadThatCannotBeStartedHasItsOwnCode) {
  auto const throws = [](std::errc error) { throw std::system_error(std::make_error_code(error)); };
  EXPECT_EQ(Guard([&] { throws(std::errc::resource_unavailable_try_again); }), VORQ_THREAD);
  EXPECT_EQ(Guard([&] { throws(std::errc::io_error); }), VORQ_INTERNAL);
}

}  // namespace
