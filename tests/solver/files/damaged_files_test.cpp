// Damaged texts end in a model or in a failure with a text, whatever is cut off or changed.
#include <gtest/gtest.h>

#include <random>

#include "solver/files/basis_file.hpp"
#include "solver/files/lp_reader.hpp"
#include "solver/files/lp_writer.hpp"
#include "solver/files/mps_reader.hpp"
#include "solver/files/mps_writer.hpp"
#include "solver/files/solution_file.hpp"
#include "tests/solver/files/describe.hpp"

namespace vorqsolver::test {
namespace {

char const kLp[] =
    "\\Problem name: all\nMaximize\n obj: 3 x + 2 y - z[1] + [ x^2 + 4 x * y ] / 2 + 7\nSubject To\n"
    " c1: x + 2 y <= 8\n c2: -1 <= x - y + 2 z[1] <= 1e1\n q1: x + [ y^2 - 2 x * z[1] ] >= -4\n"
    " i1: b = 1 -> x + y <= 3\nLazy Constraints\n l1: x <= 5\nUser Cuts\n u1: y >= 1\n"
    "Bounds\n x <= 4\n -inf <= y <= 5\n z[1] free\nGenerals\n z[1]\nBinaries\n b\nSemi-Continuous\n x\n"
    "SOS\n s1: S1:: x:1 y:2\nEnd\n";

char const kSolution[] = "# Objective value = 3\nx 1\ny 2.5\nz[1] -3e2\nb 1\n";
char const kBasis[] = "NAME all\n XU x c1\n XL y c2\n UL b\n LL z[1]\nENDATA\n";

ProblemData Model() {
  return ReadLp({"m.lp", kLp}).data;
}

// What was read must be whole enough to be written.
void UseLp(std::string text) {
  WriteMps(ReadLp({"f", std::move(text)}).data);
}
void UseMps(std::string text) {
  WriteLp(ReadMps({"f", std::move(text)}).data);
}
void UseSolution(std::string text) {
  ReadSolution({"f", std::move(text)}, Model());
}
void UseBasis(std::string text) {
  ReadBasisFile({"f", std::move(text)}, Model());
}

struct Format {
  char const* name;
  std::string text;
  void (*use)(std::string text);
};

class DamagedFiles : public testing::TestWithParam<Format> {
 protected:
  void Use(std::string const& text) {
    try {
      GetParam().use(text);
      ++successes_;
    } catch (Failure const& failure) {
      ++failures_;
      EXPECT_NE(std::string(failure.what()), "");
    }
  }

  int successes_ = 0;
  int failures_ = 0;
};

TEST_P(DamagedFiles, AnyTruncationEndsWell) {
  for (std::size_t size = 0; size <= GetParam().text.size(); ++size) Use(GetParam().text.substr(0, size));
  EXPECT_GT(successes_, 0);
  EXPECT_GT(failures_, 0);
}

TEST_P(DamagedFiles, AnyChangedBytesEndWell) {
  std::mt19937 random(20240229);
  char const letters[] = " \n\t\\:[]<>=+-*/^.e19x'#\xFF\x01";
  for (int round = 0; round < 4000; ++round) {
    std::string text = GetParam().text;
    for (unsigned changes = random() % 4 + 1; changes > 0; --changes) {
      auto const place = random() % text.size();
      switch (random() % 4) {
        case 0: text.erase(place, random() % 9 + 1); break;
        case 1: text.insert(place, text.substr(random() % text.size(), random() % 20)); break;
        case 2: text[place] = static_cast<char>(random()); break;
        default: text[place] = letters[random() % (sizeof letters - 1)]; break;
      }
      if (text.empty()) text = "x";
    }
    Use(text);
  }
  EXPECT_GT(successes_, 0);
  EXPECT_GT(failures_, 0);
}

INSTANTIATE_TEST_SUITE_P(Formats, DamagedFiles,
                         testing::Values(Format{"lp", kLp, UseLp}, Format{"mps", WriteMps(Model()).text, UseMps},
                                         Format{"solution", kSolution, UseSolution}, Format{"basis", kBasis, UseBasis}),
                         [](auto const& format) { return std::string(format.param.name); });

}  // namespace
}  // namespace vorqsolver::test
