// What the two shared libraries export: the declared functions and nothing else.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

std::string FileText(std::string const& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

std::set<std::string> ExportedSymbols(std::string const& library) {
  std::string const command = std::string(VORQ_NM) + " --dynamic --defined-only --format=posix " + library;
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::set<std::string> symbols;
  std::array<char, 4096> line{};
  while (pipe && std::fgets(line.data(), line.size(), pipe.get()) != nullptr) {
    std::string const text = line.data();
    symbols.insert(text.substr(0, text.find(' ')));
  }
  return symbols;
}

std::set<std::string> DeclaredFunctions(std::string const& header, std::string const& pattern) {
  std::string const text = FileText(header);
  std::regex const declaration(pattern);
  std::set<std::string> names;
  for (std::sregex_iterator match(text.begin(), text.end(), declaration), end; match != end; ++match) {
    names.insert((*match)[1]);
  }
  return names;
}

TEST(Symbols, SolverLibraryExportsItsFunctionsOnly) {
  std::set<std::string> const declared =
      DeclaredFunctions(VORQ_SOURCE_DIR "/frame/vorq_solver.h", R"(VORQ_API int (VORQ_\w+)\()");
  EXPECT_EQ(declared.size(), 193u);
  EXPECT_EQ(ExportedSymbols(VORQ_LIBRARY), declared);
}

TEST(Symbols, ModellingLibraryExportsItsFunctionsOnly) {
  std::set<std::string> const declared =
      DeclaredFunctions(VORQ_SOURCE_DIR "/include/vorqmodel/exports.h", R"(VORQMODEL_API [^;(]*?[* ](\w+)\()");
  EXPECT_EQ(declared.size(), 105u);
  EXPECT_EQ(ExportedSymbols(VORQMODEL_LIBRARY), declared);
}

}  // namespace
