// The pages that users read, and the passages of code in them.
#pragma once

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/cli/program.hpp"

// In the order of their names.
inline std::vector<std::filesystem::path> Pages() {
  std::filesystem::path const root = VORQ_SOURCE_DIR;
  std::vector<std::filesystem::path> pages = {root / "CONTRIBUTING.md", root / "README.md"};
  for (auto const& entry : std::filesystem::directory_iterator(root / "docs")) {
    if (entry.path().extension() == ".md") pages.push_back(entry.path());
  }
  std::sort(pages.begin(), pages.end());
  return pages;
}

struct Passage {
  std::string language;  // what stands behind the fence; empty for a passage that is indented
  std::string text;      // without fences and indentation
};

// A passage stands between two fences, or begins behind an empty line and is indented by four blanks.
inline std::vector<Passage> Passages(std::string const& page) {
  constexpr std::string_view kFence = "```";
  constexpr std::string_view kIndent = "    ";
  std::vector<Passage> passages;
  std::istringstream lines(page);
  std::string line;
  bool isFenced = false;
  bool isIndented = false;
  bool isBehindEmpty = true;
  while (std::getline(lines, line)) {
    if (line.starts_with(kFence)) {
      isFenced = !isFenced;
      if (isFenced) passages.push_back({line.substr(kFence.size()), ""});
    } else if (isFenced) {
      passages.back().text += line + '\n';
    } else {
      bool const begins = !isIndented && isBehindEmpty && line.starts_with(kIndent);
      isIndented = begins || (isIndented && line.starts_with(kIndent));
      if (begins) passages.emplace_back();
      if (isIndented) passages.back().text += line.substr(kIndent.size()) + '\n';
    }
    isBehindEmpty = line.empty();
  }
  return passages;
}
