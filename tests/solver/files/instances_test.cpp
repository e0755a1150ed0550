// The open instances, where the environment variable VORQ_INSTANCES names their folder: each reads with the number of
// rows and columns that the table optima.csv tells, and what is written reads back the same, from each format that can
// hold it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "solver/files/binary_file.hpp"
#include "solver/files/cbf_reader.hpp"
#include "solver/files/cbf_writer.hpp"
#include "solver/files/lp_reader.hpp"
#include "solver/files/lp_writer.hpp"
#include "solver/files/mps_reader.hpp"
#include "solver/files/mps_writer.hpp"
#include "solver/files/sdpa_reader.hpp"
#include "tests/cli/program.hpp"
#include "tests/solver/files/describe.hpp"

namespace vorqsolver::test {
namespace {

namespace fs = std::filesystem;

struct Size {
  int rows;
  int columns;
};

// The first columns of the table are name, format, class, rows and columns.
std::map<std::string, Size> ReadTable(fs::path const& path) {
  std::map<std::string, Size> table;
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    std::istringstream cells(line);
    std::string name, format, kind, rows, columns;
    std::getline(cells, name, ',');
    std::getline(cells, format, ',');
    std::getline(cells, kind, ',');
    std::getline(cells, rows, ',');
    std::getline(cells, columns, ',');
    name += '.';
    name += format;
    table[name] = {std::stoi(rows), std::stoi(columns)};
  }
  // Here the table counts what a solver's own reformulation added: a column and a row for each indicator, and rows for
  // semicontinuous columns.
  table["mcf64-4-1.lp"] = {760 + 84, 1224};
  table["meanvarxsc.lp"] = {31, 36};
  return table;
}

struct Reader {
  char const* ending;
  ReadModel (*read)(TextSource const& source);
};
constexpr Reader kReaders[] = {
    {".mps.gz", ReadMps}, {".qps", ReadMps}, {".lp", ReadLp}, {".cbf", ReadCbf}, {".dat-s", ReadSdpa}};

Reader const* ReaderOf(fs::path const& path) {
  for (Reader const& reader : kReaders) {
    if (path.string().ends_with(reader.ending)) return &reader;
  }
  return nullptr;
}

// A file with power cones, which a problem cannot hold.
constexpr char kRefused[] = "HMCR-n20-m400.cbf";

bool IsConic(fs::path const& path) {
  return path.extension() == ".cbf" || path.extension() == ".dat-s";
}

// Rows, those of affine cones, and constraints of other kinds, as the table counts them.
Size SizeOf(ProblemData const& data) {
  std::size_t rows = data.quadConstraints.size() + data.soss.size() + data.indicators.size();
  for (AffineCone const& cone : data.affineCones) rows += cone.rows.size();
  return {data.rows.Count() + static_cast<int>(rows), data.columns.Count()};
}

// For SDPA files the table has the number of variables, and the sum of the sizes of the blocks.
Size SizeOfSdpa(ProblemData const& data) {
  int size = data.rows.Count();
  for (LmiConstraint const& lmi : data.lmiConstraints) size += lmi.dim;
  return {data.columns.Count(), size};
}

class Instances : public testing::Test {
 protected:
  void SetUp() override {
    char const* folder = std::getenv("VORQ_INSTANCES");
    if (folder == nullptr) GTEST_SKIP() << "VORQ_INSTANCES is not set: the open instances are not read";
    if (!fs::is_regular_file(fs::path(folder) / "optima.csv")) {
      GTEST_SKIP() << "VORQ_INSTANCES has no optima.csv: the open instances are not read";
    }
    table_ = ReadTable(fs::path(folder) / "optima.csv");
    for (auto const& entry : fs::recursive_directory_iterator(folder)) {
      std::string const name = entry.path().filename().string();
      if (ReaderOf(name) != nullptr && table_.contains(name) && name != kRefused) files_.push_back(entry.path());
    }
    ASSERT_FALSE(files_.empty());
  }

  static ProblemData Read(fs::path const& path) { return ReaderOf(path)->read(LoadText(path.string())).data; }

  std::map<std::string, Size> table_;
  std::vector<fs::path> files_;
};

TEST_F(Instances, ReadWithTheRightSize) {
  for (auto const& path : files_) {
    auto const data = Read(path);
    auto const [rows, columns] = table_[path.filename().string()];
    Size const size = path.extension() == ".dat-s" ? SizeOfSdpa(data) : SizeOf(data);
    EXPECT_EQ(size.rows, rows) << path;
    EXPECT_EQ(size.columns, columns) << path;
  }
}

TEST_F(Instances, ReadBackTheSameFromBinary) {
  for (auto const& path : files_) {
    auto const data = Read(path);
    auto const text = WriteBinary(data).text;
    auto const again = ReadBinary({"m.bin", text}).data;
    EXPECT_TRUE(Describe(again) == Describe(data)) << path;
    EXPECT_TRUE(WriteBinary(again).text == text) << path;
  }
}

TEST_F(Instances, ReadBackTheSameFromCbf) {
  for (auto const& path : files_) {
    if (!IsConic(path)) continue;
    auto const data = Read(path);
    auto const written = WriteCbf(data);
    EXPECT_EQ(written.warnings, Warnings()) << path;
    EXPECT_TRUE(Describe(ReadCbf({"m.cbf", written.text}).data) == Describe(data)) << path;
  }
}

// Packed by gzip, as instances are handed out: .cbf.gz and .dat-s.gz.
TEST_F(Instances, ConicFilesReadTheSameWhenPacked) {
  TemporaryFolder const folder;
  for (auto const& path : files_) {
    if (!IsConic(path)) continue;
    std::string const packed = folder.File(path.filename().string() + ".gz").string();
    ASSERT_EQ(std::system(("gzip -c '" + path.string() + "' >" + packed).c_str()), 0);
    EXPECT_TRUE(Describe(ReaderOf(path)->read(LoadText(packed)).data) == Describe(Read(path))) << path;
  }
}

TEST_F(Instances, PowerConesAreRefusedByName) {
  fs::path const path = fs::path(std::getenv("VORQ_INSTANCES")) / "cbf" / kRefused;
  if (!fs::exists(path)) GTEST_SKIP() << "there is no " << kRefused;
  EXPECT_EQ(FailureOf([&] { Read(path); }), path.string() + ":4: section POWCONES: power cones are not supported");
}

TEST_F(Instances, ReadBackTheSameFromMps) {
  for (auto const& path : files_) {
    if (IsConic(path)) continue;
    auto const data = Read(path);
    EXPECT_TRUE(Describe(ReadMps({"m.mps", WriteMps(data).text}).data) == Describe(data)) << path;
  }
}

TEST_F(Instances, ReadBackTheSameFromLp) {
  for (auto const& path : files_) {
    if (IsConic(path)) continue;
    auto const data = Read(path);
    auto const written = WriteLp(data);
    auto const again = ReadLp({"m.lp", written.text}).data;
    // Names that an LP file cannot hold are other ones now.
    if (written.warnings.empty()) {
      EXPECT_TRUE(Describe(again) == Describe(data)) << path;
    }
    EXPECT_TRUE(WriteLp(again).text == written.text) << path;
  }
}

}  // namespace
}  // namespace vorqsolver::test
