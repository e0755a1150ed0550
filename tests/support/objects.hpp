// What tests of the interfaces need: owners of handles, checks of statuses, a log sink that says nothing.
#pragma once

#include <vorq>

#include <gtest/gtest.h>

#include <memory>

// The outcome of the last operation of an environment, a model or an item. Without a text only the code is looked at,
// for a success keeps the text of an earlier failure.
#define EXPECT_SUCCESS(object) EXPECT_EQ((object)->GetLastError(), 0) << (object)->GetErrorMessage()
#define EXPECT_FAILURE(object, code, text)           \
  do {                                               \
    EXPECT_EQ((object)->GetLastError(), code);       \
    EXPECT_STREQ((object)->GetErrorMessage(), text); \
  } while (false)

namespace vorqtest {

template <class T>
std::unique_ptr<T> Own(T* object) {
  return std::unique_ptr<T>(object);
}

class SilentSink : public Vorq::ILogSink {
 public:
  void Log(char const*) override {}
};

}  // namespace vorqtest
