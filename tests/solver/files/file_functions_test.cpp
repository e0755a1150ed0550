// The C functions on files, against the built library.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "frame/vorq_solver.h"

namespace {

namespace fs = std::filesystem;

void KeepLine(char const* line, void* user) {
  static_cast<std::vector<std::string>*>(user)->push_back(line);
}

class FileFunctions : public testing::Test {
 protected:
  FileFunctions() {
    folder_ = fs::temp_directory_path() / ("vorq_file_functions_" + std::to_string(::getpid()));
    fs::create_directories(folder_);
    EXPECT_EQ(VORQ_CreateEnvWithPath(nullptr, &env_), VORQ_OK);
    EXPECT_EQ(VORQ_CreateProb(env_, &prob_), VORQ_OK);
    EXPECT_EQ(VORQ_SetIntParam(prob_, "LogToConsole", 0), VORQ_OK);
    EXPECT_EQ(VORQ_SetLogCallback(prob_, KeepLine, &lines_), VORQ_OK);
  }
  ~FileFunctions() override {
    VORQ_DeleteProb(&prob_);
    VORQ_DeleteEnv(&env_);
    fs::remove_all(folder_);
  }

  std::string Path(char const* name) const { return (folder_ / name).string(); }

  std::string Put(char const* name, std::string const& text) const {
    std::ofstream(Path(name), std::ios::binary) << text;
    return Path(name);
  }

  static std::string Text(std::string const& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  int Attribute(char const* name) const {
    int value = -1;
    EXPECT_EQ(VORQ_GetIntAttr(prob_, name, &value), VORQ_OK);
    return value;
  }

  // min x + 2 y, x + y >= 1, and with `integer` x is integer.
  void ReadSample(bool integer) {
    std::string const types = integer ? "generals\n x\n" : "";
    std::string const path = Put("sample.lp", "min x + 2 y\nst\nc1: x + y >= 1\nbounds\nx <= 5\n" + types + "end\n");
    ASSERT_EQ(VORQ_ReadLp(prob_, path.c_str()), VORQ_OK);
    lines_.clear();
  }

  fs::path folder_;
  VORQ_Env* env_ = nullptr;
  VORQ_Prob* prob_ = nullptr;
  std::vector<std::string> lines_;
};

TEST_F(FileFunctions, ReadingTellsTheSizeInTheLog) {
  std::string const path = Put("m.mps", "ROWS\n N obj\n G c1\nCOLUMNS\n x obj 1 c1 1\n y c1 2\nENDATA\n");
  EXPECT_EQ(VORQ_ReadMps(prob_, path.c_str()), VORQ_OK);
  EXPECT_EQ(Attribute("Cols"), 2);
  EXPECT_EQ(Attribute("Rows"), 1);
  EXPECT_EQ(lines_, (std::vector<std::string>{"Read '" + path + "': 1 rows, 2 columns, 2 nonzeros"}));
}

TEST_F(FileFunctions, ReadingLogsWarnings) {
  std::string const path = Put("m.mps", "ROWS\n N obj\n N n2\nCOLUMNS\n x obj 1\nENDATA\n");
  EXPECT_EQ(VORQ_ReadMps(prob_, path.c_str()), VORQ_OK);
  ASSERT_EQ(lines_.size(), 2u);
  EXPECT_EQ(lines_[0], "Warning: " + path + ":3: free row 'n2' beside the objective is dropped");
}

TEST_F(FileFunctions, AFailedReadChangesNothing) {
  ReadSample(false);
  std::string const path = Put("bad.mps", "ROWS\n N obj\nCOLUMNS\n z obj 1\n z c9 1\n");
  EXPECT_EQ(VORQ_ReadMps(prob_, path.c_str()), VORQ_FILE);
  EXPECT_EQ(Attribute("Cols"), 2);
  EXPECT_EQ(lines_, (std::vector<std::string>{"Error: " + path + ":5: unknown row 'c9'"}));
}

TEST_F(FileFunctions, AMissingFileIsToldWithItsPath) {
  EXPECT_EQ(VORQ_ReadLp(prob_, Path("none.lp").c_str()), VORQ_FILE);
  EXPECT_EQ(lines_, (std::vector<std::string>{"Error: " + Path("none.lp") + ": No such file or directory"}));
}

TEST_F(FileFunctions, ReadingKeepsParameters) {
  ASSERT_EQ(VORQ_SetDblParam(prob_, "TimeLimit", 17.0), VORQ_OK);
  ReadSample(false);
  double value = 0.0;
  EXPECT_EQ(VORQ_GetDblParam(prob_, "TimeLimit", &value), VORQ_OK);
  EXPECT_EQ(value, 17.0);
}

TEST_F(FileFunctions, WritingAndReadingGivesTheSameText) {
  ReadSample(true);
  ASSERT_EQ(VORQ_WriteMps(prob_, Path("a.mps.gz").c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_WriteLp(prob_, Path("a.lp").c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_ReadMps(prob_, Path("a.mps.gz").c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_WriteLp(prob_, Path("b.lp").c_str()), VORQ_OK);
  EXPECT_EQ(Text(Path("b.lp")), Text(Path("a.lp")));
}

TEST_F(FileFunctions, AFailedWriteKeepsTheFormerFile) {
  ReadSample(false);
  ASSERT_EQ(VORQ_AddPSDCol(prob_, 2, "P"), VORQ_OK);
  std::string const path = Put("a.mps", "former");
  EXPECT_EQ(VORQ_WriteMps(prob_, path.c_str()), VORQ_INVALID);
  EXPECT_EQ(Text(path), "former");
  EXPECT_EQ(lines_.back(), "Error: An MPS file cannot hold PSD variables");
}

TEST_F(FileFunctions, TheMpsTextNeedsItsSizeWithTheZero) {
  ReadSample(false);
  ASSERT_EQ(VORQ_WriteMps(prob_, Path("a.mps").c_str()), VORQ_OK);
  std::string const text = Text(Path("a.mps"));
  int required = 0;
  ASSERT_EQ(VORQ_WriteMpsStr(prob_, nullptr, 0, &required), VORQ_OK);
  EXPECT_EQ(required, static_cast<int>(text.size()) + 1);
  std::vector<char> buffer(static_cast<std::size_t>(required), '?');
  EXPECT_EQ(VORQ_WriteMpsStr(prob_, buffer.data(), required - 1, nullptr), VORQ_INVALID);
  EXPECT_EQ(buffer[0], '?');
  EXPECT_EQ(VORQ_WriteMpsStr(prob_, buffer.data(), required, nullptr), VORQ_OK);
  EXPECT_EQ(buffer.data(), text);
}

TEST_F(FileFunctions, ASolutionIsWrittenAndReadAsAStart) {
  ReadSample(true);
  ASSERT_EQ(VORQ_Solve(prob_), VORQ_OK);
  ASSERT_EQ(VORQ_WriteSol(prob_, Path("a.sol").c_str()), VORQ_OK);
  EXPECT_EQ(Text(Path("a.sol")), "# Objective value = 1\nx 1\ny 0\n");
  lines_.clear();
  ASSERT_EQ(VORQ_ReadSol(prob_, Path("a.sol").c_str()), VORQ_OK);
  EXPECT_EQ(lines_,
            (std::vector<std::string>{"Read '" + Path("a.sol") + "': values of 2 of 2 columns, kept as a MIP start"}));
}

TEST_F(FileFunctions, AStartIsWrittenWhereThereIsNoSolution) {
  ReadSample(true);
  ASSERT_EQ(VORQ_ReadMst(prob_, Put("a.mst", "x 2\n").c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_WriteMst(prob_, Path("b.mst").c_str()), VORQ_OK);
  EXPECT_EQ(Text(Path("b.mst")), "x 2\n");
}

TEST_F(FileFunctions, AnUnknownColumnInAStartIsNamed) {
  ReadSample(true);
  std::string const path = Put("a.mst", "q 2\n");
  EXPECT_EQ(VORQ_ReadMst(prob_, path.c_str()), VORQ_INVALID);
  EXPECT_EQ(lines_, (std::vector<std::string>{"Error: " + path + ":1: unknown column 'q'"}));
}

TEST_F(FileFunctions, PoolSolutionsAreWritten) {
  ReadSample(true);
  ASSERT_EQ(VORQ_Solve(prob_), VORQ_OK);
  ASSERT_EQ(VORQ_WritePoolSol(prob_, 0, Path("p.sol").c_str()), VORQ_OK);
  EXPECT_EQ(Text(Path("p.sol")), "# Objective value = 1\nx 1\ny 0\n");
  EXPECT_EQ(VORQ_WritePoolSol(prob_, 99, Path("q.sol").c_str()), VORQ_INVALID);
  EXPECT_FALSE(fs::exists(Path("q.sol")));
}

TEST_F(FileFunctions, ABasisIsWrittenAndRead) {
  ReadSample(false);
  ASSERT_EQ(VORQ_Solve(prob_), VORQ_OK);
  ASSERT_EQ(VORQ_WriteBasis(prob_, Path("a.bas").c_str()), VORQ_OK);
  EXPECT_EQ(Text(Path("a.bas")), "NAME\n XL x  c1\nENDATA\n");
  EXPECT_EQ(VORQ_ReadBasis(prob_, Path("a.bas").c_str()), VORQ_OK);
}

// Solutions, starts and bases tell of names that they cannot hold, as problem files do.
TEST_F(FileFunctions, ChangedNamesAreTold) {
  std::string const warning = "Warning: Name 'b c' of column 1 is written as ";
  ReadSample(false);
  char const* const names[] = {"b c"};
  ASSERT_EQ(VORQ_SetColNames(prob_, 1, nullptr, names), VORQ_OK);
  ASSERT_EQ(VORQ_Solve(prob_), VORQ_OK);
  lines_.clear();
  EXPECT_EQ(VORQ_WriteBasis(prob_, Path("a.bas").c_str()), VORQ_OK);
  EXPECT_EQ(lines_, (std::vector<std::string>{warning + "'b_c'", "Wrote '" + Path("a.bas") + "'"}));
  char const* const twins[] = {"x", "x"};
  ASSERT_EQ(VORQ_SetColNames(prob_, 2, nullptr, twins), VORQ_OK);
  for (auto const write : {VORQ_WriteSol, VORQ_WriteMst}) {
    lines_.clear();
    EXPECT_EQ(write(prob_, Path("a.sol").c_str()), VORQ_OK);
    EXPECT_EQ(lines_, (std::vector<std::string>{"Warning: Name 'x' of column 2 is written as 'x_2'",
                                                "Wrote '" + Path("a.sol") + "'"}));
  }
}

// Packed by gzip itself, which puts name and time into the head.
TEST_F(FileFunctions, ConicFilesPackedByGzipAreRead) {
  std::string const sdpa = Put("m.dat-s", "2\n2\n2 -1\n1 2\n0 1 1 1 1\n1 1 1 1 1\n2 1 2 2 1\n1 2 1 1 3\n");
  std::string const cbf = Put("m.cbf", "VER\n1\nVAR\n3 1\nQ 3\nCON\n1 1\nL+ 1\nACOORD\n1\n0 2 5\n");
  ASSERT_EQ(std::system(("gzip " + sdpa + " " + cbf).c_str()), 0);
  ASSERT_FALSE(fs::exists(sdpa) || fs::exists(cbf));
  ASSERT_EQ(VORQ_ReadSDPA(prob_, (sdpa + ".gz").c_str()), VORQ_OK);
  EXPECT_EQ(lines_.back(), "Read '" + sdpa + ".gz': 1 rows, 2 columns, 1 nonzeros, 1 LMI constraints");
  ASSERT_EQ(VORQ_ReadCbf(prob_, (cbf + ".gz").c_str()), VORQ_OK);
  EXPECT_EQ(lines_.back(), "Read '" + cbf + ".gz': 1 rows, 3 columns, 1 nonzeros, 1 cones");
}

int WriteTuned(VORQ_Prob* prob, char const* path) {
  return VORQ_WriteTuneParam(prob, 0, path);
}

TEST_F(FileFunctions, WithoutResultsThereIsNothingToWrite) {
  ReadSample(true);
  EXPECT_EQ(VORQ_WriteSol(prob_, Path("a").c_str()), VORQ_INVALID);
  EXPECT_EQ(VORQ_WriteMst(prob_, Path("a").c_str()), VORQ_INVALID);
  EXPECT_EQ(VORQ_WriteBasis(prob_, Path("a").c_str()), VORQ_INVALID);
  EXPECT_EQ(VORQ_WriteIIS(prob_, Path("a").c_str()), VORQ_INVALID);
  EXPECT_EQ(VORQ_WriteRelax(prob_, Path("a").c_str()), VORQ_INVALID);
  EXPECT_EQ(WriteTuned(prob_, Path("a").c_str()), VORQ_INVALID);
  EXPECT_EQ(lines_, (std::vector<std::string>{"Error: There is no solution to write",
                                              "Error: There is neither a solution nor a MIP start to write",
                                              "Error: There is no basis to write", "Error: There is no IIS to write",
                                              "Error: There is no feasibility relaxation to write",
                                              "Error: Tuned parameter set 0 does not exist (there are 0)"}));
  EXPECT_FALSE(fs::exists(Path("a")));
}

TEST_F(FileFunctions, ParametersAreWrittenAndRead) {
  ASSERT_EQ(VORQ_SetDblParam(prob_, "TimeLimit", 17.0), VORQ_OK);
  ASSERT_EQ(VORQ_WriteParam(prob_, Path("a.par").c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_ResetParam(prob_), VORQ_OK);
  ASSERT_EQ(VORQ_ReadParam(prob_, Path("a.par").c_str()), VORQ_OK);
  double value = 0.0;
  EXPECT_EQ(VORQ_GetDblParam(prob_, "TimeLimit", &value), VORQ_OK);
  EXPECT_EQ(value, 17.0);
}

// Everything that a problem can hold comes back, packed and unpacked.
TEST_F(FileFunctions, BinaryFilesHoldTheWholeProblem) {
  ReadSample(true);
  int const cols[] = {0, 1};
  ASSERT_EQ(VORQ_AddCones(prob_, 1, nullptr, nullptr, std::vector<int>{2}.data(), cols), VORQ_OK);
  ASSERT_EQ(VORQ_AddPSDCol(prob_, 3, "P"), VORQ_OK);
  ASSERT_EQ(VORQ_WriteBin(prob_, Path("a.bin").c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_WriteBin(prob_, Path("a.bin.gz").c_str()), VORQ_OK);
  EXPECT_NE(Text(Path("a.bin")), Text(Path("a.bin.gz")));
  ASSERT_EQ(VORQ_ClearProb(prob_), VORQ_OK);
  ASSERT_EQ(VORQ_ReadBin(prob_, Path("a.bin.gz").c_str()), VORQ_OK);
  EXPECT_EQ(lines_.back(), "Read '" + Path("a.bin.gz") + "': 1 rows, 2 columns, 2 nonzeros, 1 cones, 1 PSD variables");
  int index = -1;
  EXPECT_EQ(VORQ_GetPSDColIdx(prob_, "P", &index), VORQ_OK);
  EXPECT_EQ(VORQ_GetRowIdx(prob_, "c1", &index), VORQ_OK);
  ASSERT_EQ(VORQ_WriteBin(prob_, Path("b.bin").c_str()), VORQ_OK);
  EXPECT_EQ(Text(Path("b.bin")), Text(Path("a.bin")));
}

TEST_F(FileFunctions, ADamagedBinaryFileLeavesTheProblemAsItWas) {
  ReadSample(false);
  ASSERT_EQ(VORQ_WriteBin(prob_, Path("a.bin").c_str()), VORQ_OK);
  std::string text = Text(Path("a.bin"));
  text[40] ^= 1;
  EXPECT_EQ(VORQ_ReadBin(prob_, Put("bad.bin", text).c_str()), VORQ_FILE);
  EXPECT_EQ(lines_.back(), "Error: " + Path("bad.bin") + ": the checksum does not hold: the file is damaged");
  EXPECT_EQ(Attribute("Cols"), 2);
}

TEST_F(FileFunctions, SdpaProblemsAreWrittenAsCbf) {
  std::string const path = Put("m.dat-s", "2\n2\n2 -1\n1 2\n0 1 1 1 1\n1 1 1 1 1\n2 1 2 2 1\n1 2 1 1 3\n");
  ASSERT_EQ(VORQ_ReadSDPA(prob_, path.c_str()), VORQ_OK);
  EXPECT_EQ(lines_.back(), "Read '" + path + "': 1 rows, 2 columns, 1 nonzeros, 1 LMI constraints");
  ASSERT_EQ(VORQ_WriteCbf(prob_, Path("a.cbf.gz").c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_ReadCbf(prob_, Path("a.cbf.gz").c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_WriteCbf(prob_, Path("a.cbf").c_str()), VORQ_OK);
  EXPECT_EQ(Text(Path("a.cbf")),
            "VER\n1\n\nOBJSENSE\nMIN\n\nVAR\n2 1\nF 2\n\nPSDCON\n1\n2\n\nCON\n1 1\nL+ 1\n\n"
            "OBJACOORD\n2\n0 1\n1 2\n\nACOORD\n1\n0 0 3\n\n"
            "HCOORD\n2\n0 0 0 0 1\n0 1 1 1 1\n\nDCOORD\n1\n0 0 0 -1\n\n");
}

TEST_F(FileFunctions, FailuresOfConicFilesTellTheLine) {
  ReadSample(false);
  EXPECT_EQ(VORQ_ReadCbf(prob_, Put("m.cbf", "VER\n1\nVAR\n1 1\nX 1\n").c_str()), VORQ_FILE);
  EXPECT_EQ(lines_.back(), "Error: " + Path("m.cbf") + ":5: unknown cone 'X'");
  EXPECT_EQ(VORQ_ReadSDPA(prob_, Put("m.dat-s", "1\n1\n0\n").c_str()), VORQ_FILE);
  EXPECT_EQ(lines_.back(), "Error: " + Path("m.dat-s") + ":3: a block cannot have the size 0");
  EXPECT_EQ(Attribute("Cols"), 2);
}

TEST_F(FileFunctions, NlFilesAreWrittenWithWarningsInTheLog) {
  ReadSample(true);
  ASSERT_EQ(VORQ_WriteNL(prob_, Path("a.nl").c_str()), VORQ_OK);
  EXPECT_TRUE(Text(Path("a.nl")).starts_with("g3 1 1 0\t# problem unnamed\n 2 1 1 0 0\t# vars"));
  EXPECT_EQ(lines_, (std::vector<std::string>{"Warning: The columns stand in another order in the NL file",
                                              "Warning: An NL file holds no names", "Wrote '" + Path("a.nl") + "'"}));
}

int WritePool(VORQ_Prob* prob, char const* path) {
  return VORQ_WritePoolSol(prob, 0, path);
}

TEST_F(FileFunctions, NullAndEmptyArgumentsAreRefused) {
  int (*const functions[])(VORQ_Prob*, char const*) = {
      VORQ_ReadMps,   VORQ_ReadLp,     VORQ_ReadSDPA,  VORQ_ReadCbf,    VORQ_ReadBin,  VORQ_ReadSol,
      VORQ_ReadBasis, VORQ_ReadMst,    VORQ_ReadParam, VORQ_ReadTune,   VORQ_WriteMps, VORQ_WriteLp,
      VORQ_WriteCbf,  VORQ_WriteBin,   VORQ_WriteNL,   VORQ_WriteIIS,   VORQ_WriteSol, VORQ_WriteRelax,
      WritePool,      VORQ_WriteBasis, VORQ_WriteMst,  VORQ_WriteParam, WriteTuned};
  for (auto const function : functions) {
    EXPECT_EQ(function(nullptr, "x"), VORQ_INVALID);
    EXPECT_EQ(function(prob_, nullptr), VORQ_INVALID);
    EXPECT_EQ(function(prob_, ""), VORQ_INVALID);
  }
  EXPECT_EQ(VORQ_WriteMpsStr(prob_, nullptr, 0, nullptr), VORQ_INVALID);
}

}  // namespace
