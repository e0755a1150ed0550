// Status: the failure record that each object with fallible operations carries.
//
// A check and a solver call read the same everywhere: SetStatus(status, code, text). Code 0 clears the code and leaves
// the text of an earlier failure, so that one call serves to report and to clear.
#pragma once

#include <cstdint>
#include <utility>

namespace Vorq {

// The return codes that the modelling library sets by itself; all others are the solver library's.
enum Retcode : int { kOk = 0, kMemory = 1, kFile = 2, kInvalid = 3, kInternal = 5 };

// The result of a failed read of a number.
inline constexpr int kNoInt = -2147483647 - 1;
inline constexpr double kNoDouble = -2147483648.0;

class Status {
 public:
  static constexpr int kTextSize = 128;
  static constexpr int kPrefixRoom = 32;
  static constexpr int kMessageRoom = 96;

  Status() = default;
  Status(Status const& other);
  Status(Status&& other) noexcept : failure_(std::exchange(other.failure_, nullptr)) {}
  Status& operator=(Status const& other);
  Status& operator=(Status&& other) noexcept;
  ~Status() { delete failure_; }

  int Code() const { return failure_ == nullptr ? 0 : static_cast<int>(failure_->code); }
  bool Failed() const { return failure_ != nullptr && failure_->code != 0; }

  // The text of the last failure, null before the first one. Valid until the next failure of this object.
  char const* Text() const { return failure_ == nullptr ? nullptr : failure_->text; }

  // What SetStatus does for code 0.
  void Clear() {
    if (failure_ != nullptr) failure_->code = 0;
  }

 private:
  friend void SetStatus(Status& status, int code, char const* format, ...);

  // Statuses are many and failures few: an item, of which each term of an expression holds one, pays one word.
  struct Failure {
    std::uint32_t code;
    char text[kTextSize];
  };

  // The place of the message behind the prefix "(NAME) ".
  char* BeginMessage(int code);
  void CopyFailure(Status const& other);

  Failure* failure_ = nullptr;
};

// Records `code`; if it is not 0, also the text: the name of the code, then `format` with its arguments, cut to fit.
[[gnu::format(printf, 3, 4)]] void SetStatus(Status& status, int code, char const* format, ...);

// Throws Vorq::Exception with the solver library's text when `code` is not 0.
void CheckRetcode(int code);

}  // namespace Vorq
