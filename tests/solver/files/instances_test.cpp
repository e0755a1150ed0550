// The open instances, where the environment variable VORQ_INSTANCES names their folder: each reads with the number of
// rows and columns that the table optima.csv tells, and what is written reads back the same.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "solver/files/lp_reader.hpp"
#include "solver/files/lp_writer.hpp"
#include "solver/files/mps_reader.hpp"
#include "solver/files/mps_writer.hpp"
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
    table[name + "." + format] = {std::stoi(rows), std::stoi(columns)};
  }
  // Here the table counts what a solver's own reformulation added: a column and a row for each indicator, and rows for
  // semicontinuous columns.
  table["mcf64-4-1.lp"] = {760 + 84, 1224};
  table["meanvarxsc.lp"] = {31, 36};
  return table;
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
      bool const known = name.ends_with(".mps.gz") || name.ends_with(".qps") || name.ends_with(".lp");
      if (known && table_.contains(name)) files_.push_back(entry.path());
    }
    ASSERT_FALSE(files_.empty());
  }

  static ProblemData Read(fs::path const& path) {
    auto const source = LoadText(path.string());
    return path.extension() == ".lp" ? ReadLp(source).data : ReadMps(source).data;
  }

  std::map<std::string, Size> table_;
  std::vector<fs::path> files_;
};

TEST_F(Instances, ReadWithTheRightSize) {
  for (auto const& path : files_) {
    auto const data = Read(path);
    auto const [rows, columns] = table_[path.filename().string()];
    auto const others = data.quadConstraints.size() + data.soss.size() + data.indicators.size();
    EXPECT_EQ(data.rows.Count() + static_cast<int>(others), rows) << path;
    EXPECT_EQ(data.columns.Count(), columns) << path;
  }
}

TEST_F(Instances, ReadBackTheSameFromMps) {
  for (auto const& path : files_) {
    auto const data = Read(path);
    EXPECT_TRUE(Describe(ReadMps({"m.mps", WriteMps(data).text}).data) == Describe(data)) << path;
  }
}

TEST_F(Instances, ReadBackTheSameFromLp) {
  for (auto const& path : files_) {
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
