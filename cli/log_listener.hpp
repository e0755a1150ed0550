// Passes log lines on to standard output, and keeps what the tool reports: the engine and the last error.
#pragma once

#include <string>

#include <vorq>

namespace cli {

class LogListener final : public Vorq::ILogSink {
 public:
  explicit LogListener(bool print) : print_(print) {}

  void Log(char const* text) override;

  std::string const& Engine() const { return engine_; }
  std::string const& Error() const { return error_; }

 private:
  bool print_;
  std::string engine_;
  std::string error_;
};

}  // namespace cli
