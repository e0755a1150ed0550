// Every passage of C++ in the documentation stands in an example program, to the letter.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string FileText(fs::path const& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

// The pages that users read.
std::vector<fs::path> Pages() {
  fs::path const root = VORQ_SOURCE_DIR;
  std::vector<fs::path> pages = {root / "README.md"};
  for (auto const& entry : fs::directory_iterator(root / "docs")) {
    if (entry.path().extension() == ".md") pages.push_back(entry.path());
  }
  return pages;
}

std::vector<std::string> CodePassages(std::string const& page) {
  constexpr char kOpen[] = "```cpp\n";
  std::vector<std::string> passages;
  std::size_t begin = 0;
  while ((begin = page.find(kOpen, begin)) != std::string::npos) {
    begin += sizeof kOpen - 1;
    std::size_t const end = page.find("```", begin);
    passages.push_back(page.substr(begin, end - begin));
    begin = end;
  }
  return passages;
}

TEST(Documentation, PassagesOfCodeStandInExamples) {
  std::string programs;
  for (auto const& entry : fs::directory_iterator(fs::path(VORQ_SOURCE_DIR) / "examples")) {
    if (entry.path().extension() == ".cpp") programs += FileText(entry.path());
  }
  int count = 0;
  for (fs::path const& page : Pages()) {
    for (std::string const& passage : CodePassages(FileText(page))) {
      ++count;
      EXPECT_NE(programs.find(passage), std::string::npos) << page << " shows code that no example holds:\n" << passage;
    }
  }
  EXPECT_GT(count, 5);
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
