// Log: where the lines of a problem go: the caller's function, a file, and standard output where the parameters say so.
#pragma once

#include <chrono>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "frame/vorq_solver.h"

namespace vorqsolver {

class ParameterSet;

// The parameters are looked at for each line, so that a change holds from the next line on: Logging 0 is silent
// everywhere, LogToConsole is for standard output only. A log without parameters never writes to standard output.
// Lines may come from several threads; they never mix. A sink may itself cause lines.
class Log {
 public:
  explicit Log(ParameterSet const* parameters = nullptr) : parameters_(parameters) {}

  // A null function ends the calls.
  void SetSink(VORQ_LogFunction function, void* user);

  // Opens the file for appending; a null or empty path closes. Throws Failure(VORQ_FILE); the former file stays then.
  void SetFile(char const* path);

  // Whether a line would go anywhere; to spare the work of making it.
  bool Enabled() const;

  // When the last line went out; the beginning of the clock if none has.
  std::chrono::steady_clock::time_point LastLine() const;

  // Sends one line, without a line end; a text with line ends goes out line by line.
  void Line(std::string_view text);

  // As Line, with the conversions of printf.
  void Print(char const* format, ...) __attribute__((format(printf, 2, 3)));

 private:
  struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  void Send(std::string const& line, bool console);

  ParameterSet const* parameters_;
  mutable std::recursive_mutex mutex_;
  VORQ_LogFunction sink_ = nullptr;
  void* user_ = nullptr;
  std::chrono::steady_clock::time_point lastLine_;
  std::unique_ptr<std::FILE, Close> file_;
};

}  // namespace vorqsolver
