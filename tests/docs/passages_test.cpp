// Every passage of C++ in the documentation stands in an example program, to the letter; links lead somewhere.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "tests/docs/pages.hpp"

namespace {

namespace fs = std::filesystem;

TEST(Documentation, PassagesOfCodeStandInExamples) {
  std::string programs;
  for (auto const& entry : fs::directory_iterator(fs::path(VORQ_SOURCE_DIR) / "examples")) {
    if (entry.path().extension() == ".cpp") programs += FileText(entry.path());
  }
  int count = 0;
  for (fs::path const& page : Pages()) {
    for (Passage const& passage : Passages(FileText(page))) {
      if (passage.language != "cpp") continue;
      ++count;
      EXPECT_NE(programs.find(passage.text), std::string::npos) << page << " shows code that no example holds:\n"
                                                                << passage.text;
    }
  }
  EXPECT_GT(count, 40);
}

TEST(Documentation, LinksBetweenPagesLeadSomewhere) {
  for (fs::path const& page : Pages()) {
    std::string const text = FileText(page);
    std::size_t at = 0;
    while ((at = text.find("](", at)) != std::string::npos) {
      at += 2;
      std::string target = text.substr(at, text.find(')', at) - at);
      target.erase(std::min(target.find('#'), target.size()));
      EXPECT_TRUE(fs::exists(page.parent_path() / target)) << page << " links to " << target;
    }
  }
}

}  // namespace
