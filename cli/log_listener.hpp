// Passes log lines on to standard output, and keeps what the tool reports: the engine, warnings and the last error.
#pragma once

#include <string>
#include <vector>

#include <vorq>

namespace cli {

class LogListener final : public Vorq::ILogSink {
 public:
  explicit LogListener(bool print) : print_(print) {}

  void Log(char const* text) override;

  std::string const& Engine() const { return engine_; }
  std::string const& Error() const { return error_; }
  std::vector<std::string> const& Warnings() const { return warnings_; }

 private:
  bool print_;
  std::string engine_;
  std::string error_;
  std::vector<std::string> warnings_;
};

}  // namespace cli
