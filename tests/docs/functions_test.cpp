// The list of all functions of the solver library says what the header says.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>
#include <string>

#include "tests/docs/pages.hpp"

namespace {

// The names of the parameters in a declaration, as "cols, coefs". A problem in front is left out.
std::string ParameterNames(std::string const& declared) {
  static std::regex const problem("^VORQ_Prob\\* prob(,\\s*|$)");
  static std::regex const name("(\\w+)\\s*(,|$)");
  std::string const rest = std::regex_replace(declared, problem, "");
  std::string names;
  for (std::sregex_iterator found(rest.begin(), rest.end(), name), end; found != end; ++found) {
    names += (names.empty() ? "" : ", ") + (*found)[1].str();
  }
  return names;
}

// By the names of the functions.
std::map<std::string, std::string> DeclaredFunctions() {
  std::string const header = FileText(VORQ_SOURCE_DIR "/frame/vorq_solver.h");
  static std::regex const declaration(R"(VORQ_API int (VORQ_\w+)\(([^;]*)\);)");
  std::map<std::string, std::string> functions;
  for (std::sregex_iterator found(header.begin(), header.end(), declaration), end; found != end; ++found) {
    functions[(*found)[1]] = ParameterNames((*found)[2]);
  }
  return functions;
}

// The section "All functions".
std::string Section() {
  std::string const page = FileText(VORQ_SOURCE_DIR "/docs/solver-library.md");
  std::size_t const begin = page.find("\n## All functions\n");
  if (begin == std::string::npos) return "";
  return page.substr(begin, page.find("\n## ", begin + 1) - begin);
}

TEST(SolverLibraryPage, ListsEachFunctionOnceWithItsArguments) {
  auto const functions = DeclaredFunctions();
  ASSERT_EQ(functions.size(), 193u);
  std::string const section = Section();
  static std::regex const row(R"(\n\| `(VORQ_\w+)` \| (?:`([^`]*)`)? ?\| (\S[^|]*) \|)");
  std::set<std::string> listed;
  for (std::sregex_iterator found(section.begin(), section.end(), row), end; found != end; ++found) {
    std::string const name = (*found)[1];
    EXPECT_TRUE(listed.insert(name).second) << name << " is listed twice";
    auto const declared = functions.find(name);
    ASSERT_NE(declared, functions.end()) << name << " is not declared";
    EXPECT_EQ((*found)[2].str(), declared->second) << name;
  }
  for (auto const& [name, parameters] : functions) EXPECT_TRUE(listed.contains(name)) << name << " is not listed";
}

TEST(SolverLibraryPage, NamesNoFunctionThatDoesNotExist) {
  auto const functions = DeclaredFunctions();
  // Return codes, infinite values, senses and contexts have no small letters.
  static std::regex const function(R"(VORQ_[A-Z]+[a-z]\w*)");
  for (auto const& page : Pages()) {
    std::string const text = FileText(page);
    for (std::sregex_iterator found(text.begin(), text.end(), function), end; found != end; ++found) {
      EXPECT_TRUE(functions.contains(found->str())) << page << " names " << found->str();
    }
  }
}

}  // namespace
