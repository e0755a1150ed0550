// The binary format: equal to the bit, and damage of any kind told with its cause.
#include "solver/files/binary_file.hpp"

#include <gtest/gtest.h>
#include <zlib.h>

#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

#include "tests/solver/files/describe.hpp"
#include "tests/solver/files/sample_models.hpp"

namespace vorqsolver::test {
namespace {

constexpr std::size_t kByteOrderPlace = 8;
constexpr std::size_t kVersionPlace = 12;
constexpr std::size_t kSizePlace = 16;
constexpr std::size_t kRecordsPlace = 24;

template <typename T>
void Put(std::string& bytes, std::size_t place, T value) {
  std::memcpy(bytes.data() + place, &value, sizeof value);
}

// Makes size and checksum right again, so that the records themselves are read.
std::string Sealed(std::string bytes) {
  Put(bytes, kSizePlace, static_cast<std::uint64_t>(bytes.size()));
  auto const checked = bytes.size() - sizeof(std::uint32_t);
  auto const sum = crc32(0, reinterpret_cast<unsigned char const*>(bytes.data()), static_cast<unsigned>(checked));
  Put(bytes, checked, static_cast<std::uint32_t>(sum));
  return bytes;
}

std::string FailureToRead(std::string bytes) {
  return FailureOf([&] { ReadBinary({"m.bin", std::move(bytes)}); });
}

ProblemData OneColumn() {
  ProblemData data;
  data.columns = {{0.0}, {1.0}, {2.0}, {'C'}, {}};
  for (SparseMatrix* matrix : {&data.rows.matrix, &data.lazyConstraints.matrix, &data.userCuts.matrix}) {
    matrix->AppendEmptyCols(1);
  }
  return data;
}

// What reading tells of a problem that no C function could have made.
std::string FailureOfContent(ProblemData const& data) {
  return FailureToRead(WriteBinary(data).text);
}

TEST(BinaryFile, HoldsEveryKind) {
  ProblemData const data = EveryKind();
  auto const written = WriteBinary(data);
  ProblemData const again = ReadBinary({"m.bin", written.text}).data;
  EXPECT_EQ(Describe(again), Describe(data));
  EXPECT_EQ(again.name, data.name);
  EXPECT_TRUE(WriteBinary(again).text == written.text);
  EXPECT_EQ(written.warnings, Warnings());
}

TEST(BinaryFile, HoldsAnEmptyProblem) {
  auto const text = WriteBinary({}).text;
  EXPECT_EQ(Describe(ReadBinary({"m.bin", text}).data), Describe({}));
}

TEST(BinaryFile, KeepsNumbersToTheBit) {
  ProblemData data = OneColumn();
  data.columns.lower[0] = -0.0;
  data.columns.upper[0] = std::numeric_limits<double>::denorm_min();
  data.columns.objective[0] = 0.1 + 0.2;
  ProblemData const again = ReadBinary({"m.bin", WriteBinary(data).text}).data;
  EXPECT_EQ(std::bit_cast<std::uint64_t>(again.columns.lower[0]), std::bit_cast<std::uint64_t>(-0.0));
  EXPECT_EQ(again.columns.upper[0], std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(again.columns.objective[0], 0.1 + 0.2);
}

TEST(BinaryFile, KeepsExplicitZerosAndTheOrderOfEntries) {
  ProblemData data = OneColumn();
  data.columns = {{0.0, 0.0}, {1.0, 1.0}, {0.0, 0.0}, {'C', 'C'}, {}};
  for (SparseMatrix* matrix : {&data.rows.matrix, &data.lazyConstraints.matrix, &data.userCuts.matrix}) {
    matrix->AppendEmptyCols(1);
  }
  data.rows.matrix.AppendRow(std::vector<int>{1, 0}, std::vector<double>{0.0, 5.0});
  data.rows.lower = {0.0};
  data.rows.upper = {1.0};
  ProblemData const again = ReadBinary({"m.bin", WriteBinary(data).text}).data;
  auto const row = again.rows.matrix.Row(0);
  EXPECT_EQ(std::vector<int>(row.indices.begin(), row.indices.end()), (std::vector<int>{1, 0}));
  EXPECT_EQ(std::vector<double>(row.values.begin(), row.values.end()), (std::vector<double>{0.0, 5.0}));
}

TEST(BinaryFile, KeepsMatricesThatNothingUses) {
  ProblemData data;
  data.symMatrices = {{2, {{1, 0, 3.0}}}, {3, {}}};
  ProblemData const again = ReadBinary({"m.bin", WriteBinary(data).text}).data;
  ASSERT_EQ(again.symMatrices.size(), 2u);
  EXPECT_EQ(again.symMatrices[0].elements[0].value, 3.0);
  EXPECT_EQ(again.symMatrices[1].dim, 3);
}

TEST(BinaryFile, RefusesOtherFiles) {
  EXPECT_EQ(FailureToRead(""), "m.bin: this is no binary file of vorq");
  EXPECT_EQ(FailureToRead("Minimize\n obj: x\nEnd\n"), "m.bin: this is no binary file of vorq");
}

TEST(BinaryFile, RefusesOtherByteOrdersAndVersions) {
  auto const good = WriteBinary(OneColumn()).text;
  auto bytes = good;
  Put(bytes, kByteOrderPlace, std::uint32_t{0x04030201});
  EXPECT_EQ(FailureToRead(bytes), "m.bin: the file comes from a machine of the other byte order");
  Put(bytes, kByteOrderPlace, std::uint32_t{7});
  EXPECT_EQ(FailureToRead(bytes), "m.bin: the mark of the byte order is damaged");
  bytes = good;
  Put(bytes, kVersionPlace, std::uint32_t{2});
  EXPECT_EQ(FailureToRead(bytes), "m.bin: version 2 of the format is not known, only 1");
}

TEST(BinaryFile, RefusesEveryTruncation) {
  auto const good = WriteBinary(EveryKind()).text;
  for (std::size_t size = 0; size < good.size(); ++size) EXPECT_NE(FailureToRead(good.substr(0, size)), "") << size;
  EXPECT_EQ(FailureToRead(good.substr(0, 20)), "m.bin: the file is cut off behind 20 bytes");
  EXPECT_EQ(FailureToRead(good.substr(0, 100)),
            Text("m.bin: the file is cut off: 100 of ", good.size(), " bytes are there"));
  EXPECT_EQ(FailureToRead(good + "x"), "m.bin: there are 1 bytes behind the end");
}

TEST(BinaryFile, RefusesEveryChangedBit) {
  auto const good = WriteBinary(OneColumn()).text;
  for (std::size_t bit = 0; bit < 8 * good.size(); ++bit) {
    auto bytes = good;
    bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << bit % 8));
    EXPECT_NE(FailureToRead(bytes), "") << bit;
  }
  auto bytes = good;
  bytes[kRecordsPlace] ^= 1;
  EXPECT_EQ(FailureToRead(bytes), "m.bin: the checksum does not hold: the file is damaged");
}

TEST(BinaryFile, RefusesCountsOfWhatIsNotThere) {
  auto bytes = WriteBinary({}).text;
  Put(bytes, kRecordsPlace, std::uint64_t{1} << 60);  // the length of the problem's name
  EXPECT_EQ(FailureToRead(Sealed(bytes)), "m.bin: a list of 1152921504606846976 entries cannot be there");
  EXPECT_EQ(FailureToRead(Sealed(WriteBinary({}).text + std::string(8, '\0'))),
            "m.bin: there is more behind the records, from byte 312 of them on");
}

// Whoever can write a file can make its checksum right, too.
TEST(BinaryFile, DamageUnderARightChecksumEndsWell) {
  auto const good = WriteBinary(EveryKind()).text;
  std::mt19937 random(77);
  int successes = 0, failures = 0;
  for (int round = 0; round < 20000; ++round) {
    auto bytes = good;
    for (auto changes = random() % 3 + 1; changes > 0; --changes) {
      auto const place = kRecordsPlace + random() % (bytes.size() - kRecordsPlace - 8);
      switch (random() % 4) {
        case 0: Put(bytes, place, std::int32_t{-1}); break;
        case 1: Put(bytes, place, static_cast<std::uint64_t>(random()) << random() % 40); break;
        case 2: bytes.erase(place, random() % 8 + 1); break;
        default: bytes[place] = static_cast<char>(random()); break;
      }
    }
    try {
      auto const data = ReadBinary({"m.bin", Sealed(bytes)}).data;
      EXPECT_FALSE(WriteBinary(data).text.empty());
      ++successes;
    } catch (Failure const& failure) {
      EXPECT_EQ(failure.code, VORQ_FILE);
      ++failures;
    }
  }
  EXPECT_GT(successes, 0);
  EXPECT_GT(failures, 0);
}

TEST(BinaryFile, NamesTheItemThatCannotBe) {
  ProblemData data = OneColumn();
  data.columns.type[0] = '\x07';
  EXPECT_EQ(FailureOfContent(data), "m.bin: column 0: unknown type 7");
  data = OneColumn();
  data.columns.upper[0] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(FailureOfContent(data), "m.bin: column 0: a bound is not a number");
  data = OneColumn();
  data.columns.objective[0] = std::numeric_limits<double>::infinity();
  EXPECT_EQ(FailureOfContent(data), "m.bin: column 0: the value inf is not finite");
  data = OneColumn();
  data.columns.lower.clear();
  EXPECT_EQ(FailureOfContent(data), "m.bin: the lists of the columns differ in length");
  data = OneColumn();
  data.soss.push_back({1, {1}, {}});
  EXPECT_EQ(FailureOfContent(data), "m.bin: SOS 0: column 1 does not exist (there are 1)");
  data = OneColumn();
  data.soss.push_back({1, {0, 0}, {}});
  EXPECT_EQ(FailureOfContent(data), "m.bin: SOS 0: column 0 twice");
  data = OneColumn();
  data.indicators.push_back({0, 0, 1, {}, 'L', 0.0});
  EXPECT_EQ(FailureOfContent(data), "m.bin: indicator 0: its column is not binary");
  data = OneColumn();
  data.quadConstraints.push_back({{}, {}, 'R', 0.0});
  EXPECT_EQ(FailureOfContent(data), "m.bin: quadratic constraint 0: unknown sense 82");
  data = OneColumn();
  data.cones.push_back({1, {0, 0}});
  EXPECT_EQ(FailureOfContent(data), "m.bin: cone 0: column 0 twice");
  data = OneColumn();
  data.psdDims = {2};
  data.symMatrices = {{3, {}}};
  data.objective.psd = {{0, 0}};
  EXPECT_EQ(FailureOfContent(data), "m.bin: objective 0: symmetric matrix 0 has the dimension 3, not 2");
  data = OneColumn();
  data.rows.matrix.AppendEmptyCols(1);
  EXPECT_EQ(FailureOfContent(data), "m.bin: the matrix of the rows has 2 columns, the problem 1");
  data = OneColumn();
  data.affineCones.push_back({3, {{}, {}}});
  EXPECT_EQ(FailureOfContent(data), "m.bin: affine cone 0: it cannot have 2 rows");
}

TEST(BinaryFile, RefusesAConeThatLostAColumn) {
  ProblemData data = OneColumn();
  data.cones.push_back({1, {-1}});
  EXPECT_EQ(FailureOf([&] { WriteBinary(data); }), "cone 0 lacks a column that was deleted; delete the cone too");
}

}  // namespace
}  // namespace vorqsolver::test
