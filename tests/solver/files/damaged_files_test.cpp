// Damaged texts end in a model or in a failure with a text, whatever is cut off or changed.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "solver/files/basis_file.hpp"
#include "solver/files/binary_file.hpp"
#include "solver/files/cbf_reader.hpp"
#include "solver/files/cbf_writer.hpp"
#include "solver/files/lp_reader.hpp"
#include "solver/files/lp_writer.hpp"
#include "solver/files/mps_reader.hpp"
#include "solver/files/mps_writer.hpp"
#include "solver/files/sdpa_reader.hpp"
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

char const kCbf[] =
    "VER\n3\nOBJSENSE\nMAX\nPSDVAR\n2\n2\n1\nVAR\n13 6\nF 1\nL+ 2\nQ 3\nL= 1\nEXP 3\nEXP* 3\nINT\n1\n1\n"
    "PSDCON\n1\n2\nCON\n8 4\nL= 2\nL- 1\nQR 3\nF 2\nOBJFCOORD\n1\n0 1 0 2.5\nOBJACOORD\n2\n0 3\n12 -1\n"
    "OBJBCOORD\n7\nFCOORD\n2\n1 0 0 0 1\n4 0 1 1 -1\nACOORD\n3\n0 0 1\n0 2 -2\n3 1 1\nBCOORD\n2\n0 -4\n5 1.5\n"
    "HCOORD\n2\n0 2 1 0 1\n0 0 0 0 3\nDCOORD\n1\n0 1 1 -1\n";
char const kSdpa[] =
    "* remark\n2 = mDIM\n3\n(2, -2, 1)\n{10.0, -20.0}\n0 1 1 1 1.5\n0 1 1 2 -3\n1 1 2 2 1\n2 1 1 2 7\n0 2 2 2 5\n"
    "1 2 1 1 2\n2 2 2 2 3\n1 3 1 1 8\n*INTEGER\n*1\n";
char const kSolution[] = "# Objective value = 3\nx 1\ny 2.5\nz[1] -3e2\nb 1\n";
char const kBasis[] = "NAME all\n XU x c1\n XL y c2\n UL b\n LL z[1]\nENDATA\n";

ProblemData Model() {
  return ReadLp({"m.lp", kLp}).data;
}

// What was read must be whole: it can be written, and stands the checks of the binary format.
void UseLp(std::string text) {
  auto const data = ReadLp({"f", std::move(text)}).data;
  ReadBinary({"f", WriteBinary(data).text});
  WriteMps(data);
}
void UseMps(std::string text) {
  auto const data = ReadMps({"f", std::move(text)}).data;
  ReadBinary({"f", WriteBinary(data).text});
  WriteLp(data);
}
void UseCbf(std::string text) {
  auto const data = ReadCbf({"f", std::move(text)}).data;
  ReadBinary({"f", WriteBinary(data).text});
  WriteCbf(data);
}
void UseSdpa(std::string text) {
  auto const data = ReadSdpa({"f", std::move(text)}).data;
  ReadBinary({"f", WriteBinary(data).text});
  WriteCbf(data);
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

// Neither a line of megabytes nor rubbish makes a failure of megabytes or control characters.
TEST_P(DamagedFiles, MessagesAreShortAndPrintable) {
  std::string rubbish;
  for (int k = 1; k < 32; ++k) rubbish += static_cast<char>(k);
  std::string const& good = GetParam().text;
  auto const middle = good.find('\n', good.size() / 2) + 1;
  for (std::string const& bad : {std::string(2'000'000, 'x'), rubbish, std::string(1'000'000, '9')}) {
    for (std::string const& text : {bad, " " + bad + " 1 2", good.substr(0, middle) + bad + good.substr(middle)}) {
      std::string const failure = FailureOf([&] { GetParam().use(text); });
      EXPECT_LT(failure.size(), 400u);
      EXPECT_TRUE(std::ranges::all_of(failure, [](char c) { return static_cast<unsigned char>(c) >= ' '; })) << failure;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Formats, DamagedFiles,
                         testing::Values(Format{"lp", kLp, UseLp}, Format{"mps", WriteMps(Model()).text, UseMps},
                                         Format{"cbf", kCbf, UseCbf}, Format{"sdpa", kSdpa, UseSdpa},
                                         Format{"solution", kSolution, UseSolution}, Format{"basis", kBasis, UseBasis}),
                         [](auto const& format) { return std::string(format.param.name); });

}  // namespace
}  // namespace vorqsolver::test
