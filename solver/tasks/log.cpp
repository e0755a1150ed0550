// Lines to sink, file and standard output.
#include "solver/tasks/log.hpp"

#include <cstdarg>

#include "solver/parameters/parameter_set.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {

void Log::SetSink(VORQ_LogFunction function, void* user) {
  std::lock_guard lock(mutex_);
  sink_ = function;
  user_ = user;
}

void Log::SetFile(char const* path) {
  std::lock_guard lock(mutex_);
  if (path == nullptr || *path == '\0') {
    file_.reset();
    return;
  }
  std::unique_ptr<std::FILE, Close> opened(std::fopen(path, "a"));
  if (!opened) throw Failure(VORQ_FILE, "Cannot open log file '" + std::string(path) + "'");
  file_ = std::move(opened);
}

bool Log::Enabled() const {
  std::lock_guard lock(mutex_);
  if (parameters_ != nullptr && parameters_->Int(IntParam::kLogging) == 0) return false;
  return sink_ != nullptr || file_ || (parameters_ != nullptr && parameters_->Int(IntParam::kLogToConsole) != 0);
}

std::chrono::steady_clock::time_point Log::LastLine() const {
  std::lock_guard lock(mutex_);
  return lastLine_;
}

void Log::Line(std::string_view text) {
  std::lock_guard lock(mutex_);
  if (!Enabled()) return;
  lastLine_ = std::chrono::steady_clock::now();
  bool const console = parameters_ != nullptr && parameters_->Int(IntParam::kLogToConsole) != 0;
  while (text.ends_with('\n')) text.remove_suffix(1);
  for (;;) {
    auto const end = text.find('\n');
    Send(std::string(text.substr(0, end)), console);
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + 1);
  }
}

void Log::Print(char const* format, ...) {
  if (!Enabled()) return;
  std::va_list arguments;
  std::va_list again;
  va_start(arguments, format);
  va_copy(again, arguments);
  int const length = std::vsnprintf(nullptr, 0, format, arguments);
  va_end(arguments);
  if (length < 0) {
    va_end(again);
    return;
  }
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  std::vsnprintf(text.data(), text.size(), format, again);
  va_end(again);
  text.pop_back();
  Line(text);
}

void Log::Send(std::string const& line, bool console) {
  if (file_) {
    std::fprintf(file_.get(), "%s\n", line.c_str());
    std::fflush(file_.get());
  }
  if (console) {
    std::fprintf(stdout, "%s\n", line.c_str());
    std::fflush(stdout);
  }
  if (sink_ == nullptr) return;
  try {
    sink_(line.c_str(), user_);
  } catch (...) {
    // A log line is called from the middle of engines and from a thread of our own, which no exception may leave.
    return;
  }
}

}  // namespace vorqsolver
