// Runs a program and keeps what it printed.
#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

struct ProgramResult {
  int exitCode = -1;
  std::string output;
  std::string errors;
};

inline std::string FileText(std::filesystem::path const& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

// A folder that goes with its owner.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "vorq-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    path_ = name;
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  TemporaryFolder(TemporaryFolder const&) = delete;
  TemporaryFolder& operator=(TemporaryFolder const&) = delete;

  std::filesystem::path File(std::string const& name) const { return path_ / name; }

  std::string Write(std::string const& name, std::string const& text) const {
    std::ofstream(File(name)) << text;
    return File(name).string();
  }

 private:
  std::filesystem::path path_;
};

// `command` is a shell command line.
inline ProgramResult RunProgram(std::string const& command) {
  TemporaryFolder const folder;
  std::string const line =
      command + " >" + folder.File("out").string() + " 2>" + folder.File("err").string() + " </dev/null";
  int const status = std::system(line.c_str());
  ProgramResult result;
  if (WIFEXITED(status)) result.exitCode = WEXITSTATUS(status);
  result.output = FileText(folder.File("out"));
  result.errors = FileText(folder.File("err"));
  return result;
}
