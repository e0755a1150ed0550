// Files: dispatch by ending, paths, failures of each format, the oddities of indexed files, the problem buffer.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "tests/model/model_fixture.hpp"

namespace {

using vorqtest::Own;

class FilesTest : public vorqtest::ModelTest {
 protected:
  void SetUp() override {
    directory_ = std::filesystem::canonical(std::filesystem::temp_directory_path()) /
                 ("vorq-files-" + std::to_string(::getpid()));
    std::filesystem::create_directories(directory_);
  }
  void TearDown() override { std::filesystem::remove_all(directory_); }

  // The path as it shows in the log, quoted.
  static std::string Quoted(std::string const& path) { return "\"" + path + "\""; }

  std::filesystem::path directory_;
};

using Transfer = void (Vorq::IModel::*)(char const*);

struct Format {
  char const* function;
  Transfer transfer;
  char const* text;
  bool flushes;
  bool reloads;
};

std::vector<Format> const& Formats() {
  using Model = Vorq::IModel;
  static std::vector<Format> const formats{
      {"VORQ_ReadMps", &Model::ReadMps, "(FILE) Failed to read MPS file", false, true},
      {"VORQ_ReadLp", &Model::ReadLp, "(FILE) Failed to read LP file", false, true},
      {"VORQ_ReadSDPA", &Model::ReadSdpa, "(FILE) Failed to read SDPA file", false, true},
      {"VORQ_ReadCbf", &Model::ReadCbf, "(FILE) Failed to read CBF file", false, true},
      {"VORQ_ReadBin", &Model::ReadBin, "(FILE) Failed to read VORQ binary file", false, true},
      {"VORQ_ReadSol", &Model::ReadSol, "(FILE) Failed to read solution file", true, false},
      {"VORQ_ReadBasis", &Model::ReadBasis, "(FILE) Failed to read basis file", true, false},
      {"VORQ_ReadMst", &Model::ReadMst, "(FILE) Failed to read MIP start file", true, false},
      {"VORQ_ReadParam", &Model::ReadParam, "(FILE) Failed to read parameter file", false, false},
      {"VORQ_ReadTune", &Model::ReadTune, "(FILE) Failed to read tune file", false, false},
      {"VORQ_WriteMps", &Model::WriteMps, "(FILE) Fail to write to MPS file", true, false},
      {"VORQ_WriteLp", &Model::WriteLp, "(FILE) Fail to write to LP file", true, false},
      {"VORQ_WriteCbf", &Model::WriteCbf, "(FILE) Fail to write to CBF file", true, false},
      {"VORQ_WriteBin", &Model::WriteBin, "(FILE) Fail to write to VORQ binary file", true, false},
      {"VORQ_WriteNL", &Model::WriteNL, "(FILE) Fail to write to NL file", true, false},
      {"VORQ_WriteIIS", &Model::WriteIIS, "(FILE) Fail to write to IIS file", true, false},
      {"VORQ_WriteRelax", &Model::WriteRelax, "(FILE) Fail to write to feasibility relaxation problem file", true,
       false},
      {"VORQ_WriteSol", &Model::WriteSol, "(FILE) Fail to write to solution file", true, false},
      {"VORQ_WriteBasis", &Model::WriteBasis, "(FILE) Fail to write to basis file", true, false},
      {"VORQ_WriteMst", &Model::WriteMst, "(FILE) Fail to write to MIP start file", true, false},
      {"VORQ_WriteParam", &Model::WriteParam, "(FILE) Fail to write to Param file", false, false}};
  return formats;
}

TEST_F(FilesTest, EachFormatTakesAnyEnding) {
  for (Format const& format : Formats()) {
    double_.ClearLog();
    (model_.get()->*format.transfer)("/no/such/file.xyz");
    EXPECT_SUCCESS(model_);
    EXPECT_EQ(double_.Calls()[0], std::string(format.function) + R"((prob#1, "/no/such/file.xyz"))");
    EXPECT_EQ(double_.CountCalls("VORQ_GetIntAttr"), format.reloads ? 12u : 0u) << format.function;
  }
}

TEST_F(FilesTest, EachFormatHasItsTextAndReloadsNothingAfterAFailure) {
  for (Format const& format : Formats()) {
    double_.ClearLog();
    double_.FailNext(format.function, VORQ_FILE);
    (model_.get()->*format.transfer)("/no/such/file.xyz");
    EXPECT_FAILURE(model_, 2, format.text);
    EXPECT_EQ(double_.Calls().size(), 1u);
  }
}

TEST_F(FilesTest, MissingPathsAreInvalid) {
  for (Format const& format : Formats()) {
    double_.ClearLog();
    for (char const* path : {static_cast<char const*>(nullptr), ""}) {
      (model_.get()->*format.transfer)(path);
      std::string const text = "(INVALID)" + std::string(format.text).substr(6);
      EXPECT_FAILURE(model_, 3, text.c_str());
    }
    EXPECT_CALLS(double_, {});
  }
}

TEST_F(FilesTest, FlushComesBeforeTheFileWhereItMatters) {
  for (Format const& format : Formats()) {
    Var const doomed = AddVar("doomed");
    doomed->Remove();
    double_.ClearLog();
    if (format.flushes) {
      double_.FailNext("VORQ_DelCols", VORQ_MEMORY);
      (model_.get()->*format.transfer)("/no/such/file.xyz");
      EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to del cols");
      EXPECT_EQ(double_.Calls().size(), 1u);
      model_->Solve();
    } else {
      (model_.get()->*format.transfer)("/no/such/file.xyz");
      EXPECT_EQ(double_.CountCalls("VORQ_DelCols"), 0u);
    }
  }
}

TEST_F(FilesTest, ReadMakesNewItems) {
  auto const vars = AddVars(2);
  double_.On("VORQ_ReadMps", [this](vorqtest::DoubleCall& call) {
    double_.SetItems(call.prob, "Cols", 1);
    return 0;
  });
  model_->Read("/no/such/file.mps");
  EXPECT_EQ(Own(model_->GetVars())->Size(), 1);
  EXPECT_EQ(vars[1]->GetIdx(), 1);
}

// ---- Dispatch

TEST_F(FilesTest, ReadGoesByTheEnding) {
  struct Case {
    char const* path;
    char const* function;
  };
  for (Case const& file :
       {Case{"/x/a.mps", "VORQ_ReadMps"}, Case{"/x/a.mps.gz", "VORQ_ReadMps"}, Case{"/x/A.MPS.GZ", "VORQ_ReadMps"},
        Case{"/x/a.lp", "VORQ_ReadLp"}, Case{"/x/a.lp.gz", "VORQ_ReadLp"}, Case{"/x/a.bin", "VORQ_ReadBin"},
        Case{"/x/a.bin.gz", "VORQ_ReadBin"}, Case{"/x/a.dat-s", "VORQ_ReadSDPA"},
        Case{"/x/a.dat-s.gz", "VORQ_ReadSDPA"}, Case{"/x/a.cbf", "VORQ_ReadCbf"}, Case{"/x/a.cbf.gz", "VORQ_ReadCbf"},
        Case{"/x/a.sol", "VORQ_ReadSol"}, Case{"/x/a.bas", "VORQ_ReadBasis"}, Case{"/x/a.mst", "VORQ_ReadMst"},
        Case{"/x/a.par", "VORQ_ReadParam"}, Case{"/x/a.tune", "VORQ_ReadTune"}}) {
    double_.ClearLog();
    model_->Read(file.path);
    EXPECT_SUCCESS(model_);
    EXPECT_EQ(double_.Calls()[0], std::string(file.function) + "(prob#1, " + Quoted(file.path) + ")");
  }
}

TEST_F(FilesTest, ReadOfUnknownEndingsFails) {
  for (char const* path : {"/x/a.mps.bak", "/x/a", "/x/a.sol.gz", "/x/a.iis", "", static_cast<char const*>(nullptr)}) {
    model_->Read(path);
    EXPECT_FAILURE(model_, 3, "(INVALID) Unknown file type");
    model_->SetObjSense(1);
  }
}

TEST_F(FilesTest, WriteGoesByTheEnding) {
  struct Case {
    char const* path;
    char const* function;
  };
  for (Case const& file :
       {Case{"/x/a.mps", "VORQ_WriteMps"}, Case{"/x/a.LP", "VORQ_WriteLp"}, Case{"/x/a.cbf", "VORQ_WriteCbf"},
        Case{"/x/a.bin", "VORQ_WriteBin"}, Case{"/x/a.nl", "VORQ_WriteNL"}, Case{"/x/a.iis", "VORQ_WriteIIS"},
        Case{"/x/a.relax", "VORQ_WriteRelax"}, Case{"/x/a.sol", "VORQ_WriteSol"}, Case{"/x/a.bas", "VORQ_WriteBasis"},
        Case{"/x/a.mst", "VORQ_WriteMst"}, Case{"/x/a.par", "VORQ_WriteParam"}}) {
    double_.ClearLog();
    model_->Write(file.path);
    EXPECT_CALLS(double_, {std::string(file.function) + "(prob#1, " + Quoted(file.path) + ")"});
  }
}

TEST_F(FilesTest, WriteOfUnknownEndingsIsSilent) {
  Fail();
  AddVars(1)[0]->Remove();
  for (char const* path : {"/x/a.tune", "/x/a.mps.gz", "/x/a", "/x/a.dat-s", "", static_cast<char const*>(nullptr)}) {
    model_->Write(path);
  }
  EXPECT_FAILURE(model_, 0, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

// ---- Paths

TEST_F(FilesTest, WhiteSpaceAroundAPathIsTrimmed) {
  model_->Read(" \t/x/a b.lp \n");
  EXPECT_EQ(double_.Calls()[0], R"(VORQ_ReadLp(prob#1, "/x/a b.lp"))");
}

TEST_F(FilesTest, RelativePathsStartInTheWorkingDirectory) {
  std::string const here = std::filesystem::current_path().string();
  model_->WriteMps("no-such-file.mps");
  EXPECT_CALLS(double_, {"VORQ_WriteMps(prob#1, " + Quoted(here + "/no-such-file.mps") + ")"});
}

TEST_F(FilesTest, TildeIsTheHomeDirectory) {
  ::setenv("HOME", "/home/someone", 1);
  model_->WriteMps("~/models/a.mps");
  ::unsetenv("HOME");
  model_->WriteMps("~/models/a.mps");
  EXPECT_CALLS(double_,
               {R"(VORQ_WriteMps(prob#1, "/home/someone/models/a.mps"))", R"(VORQ_WriteMps(prob#1, "/models/a.mps"))"});
}

TEST_F(FilesTest, ExistingFilesGetTheirCanonicalPath) {
  std::ofstream(directory_ / "a.mps") << "NAME\n";
  std::filesystem::create_symlink(directory_ / "a.mps", directory_ / "link.mps");
  model_->WriteMps((directory_ / ".." / directory_.filename() / "link.mps").c_str());
  EXPECT_CALLS(double_, {"VORQ_WriteMps(prob#1, " + Quoted((directory_ / "a.mps").string()) + ")"});
}

TEST_F(FilesTest, OverlongPathsPassThrough) {
  std::string const path = "/" + std::string(5000, 'x') + ".mps";
  model_->WriteMps(path.c_str());
  EXPECT_CALLS(double_, {"VORQ_WriteMps(prob#1, " + Quoted(path) + ")"});
}

// ---- Files chosen by an index

TEST_F(FilesTest, IndexedFilesResolveTheirPath) {
  model_->WritePoolSol(2, " /x/a.sol ");
  model_->WriteTuneParam(3, "/x/a.par");
  EXPECT_CALLS(double_,
               {R"(VORQ_WritePoolSol(prob#1, 2, "/x/a.sol"))", R"(VORQ_WriteTuneParam(prob#1, 3, "/x/a.par"))"});
}

TEST_F(FilesTest, EmptyIndexedPathLeavesTheLastWordToTheSolverLibrary) {
  std::string const here = std::filesystem::canonical(std::filesystem::current_path()).string();
  model_->WritePoolSol(2, "");
  EXPECT_FAILURE(model_, 0, "(INVALID) Fail to write to solution file");
  double_.FailNext("VORQ_WriteTuneParam", VORQ_FILE);
  model_->WriteTuneParam(2, "");
  EXPECT_FAILURE(model_, 2, "(FILE) Fail to write tuned parameters to file");
  EXPECT_CALLS(double_, {"VORQ_WritePoolSol(prob#1, 2, " + Quoted(here) + ")",
                         "VORQ_WriteTuneParam(prob#1, 2, " + Quoted(here) + ")"});
}

TEST_F(FilesTest, NullIndexedPathThrows) {
  EXPECT_THROW(model_->WritePoolSol(2, nullptr), std::logic_error);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to write to solution file");
  EXPECT_THROW(model_->WriteTuneParam(2, nullptr), std::logic_error);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to write tuned parameters to file");
  EXPECT_CALLS(double_, {});
}

TEST_F(FilesTest, IndexedFilesFlushFirst) {
  AddVars(1)[0]->Remove();
  double_.FailNext("VORQ_DelCols", VORQ_MEMORY);
  model_->WritePoolSol(2, nullptr);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to del cols");
}

// ---- The problem as a text

TEST_F(FilesTest, MpsTextIsFetchedInTwoCalls) {
  double_.Answer("VORQ_WriteMpsStr").Set("buffer", "NAME");
  auto const buffer = Own(model_->WriteMpsStr());
  EXPECT_CALLS(double_, {"VORQ_WriteMpsStr(prob#1, null, 0, out)", "VORQ_WriteMpsStr(prob#1, out, 5, null)"});
  EXPECT_EQ(buffer->GetSize(), 6);
  EXPECT_EQ(buffer->GetData()[5], '\0');
  EXPECT_STREQ(buffer->GetData(), "NAME");
}

TEST_F(FilesTest, TinyMpsTextsLeaveOneZeroByte) {
  for (int size : {0, 1}) {
    double_.AnswerNext("VORQ_WriteMpsStr").Set("required", size);
    auto const buffer = Own(model_->WriteMpsStr());
    EXPECT_EQ(buffer->GetSize(), 1);
    EXPECT_STREQ(buffer->GetData(), "");
    EXPECT_SUCCESS(model_);
  }
  EXPECT_EQ(double_.CountCalls("VORQ_WriteMpsStr"), 2u);
}

TEST_F(FilesTest, HugeMpsTextsAreRefused) {
  double_.AnswerNext("VORQ_WriteMpsStr").Set("required", -2147483647);
  EXPECT_EQ(Own(model_->WriteMpsStr())->GetSize(), 1);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) The size of MPS problem exceeds the limit");
}

TEST_F(FilesTest, MpsTextTellsWhichCallFailed) {
  double_.FailNext("VORQ_WriteMpsStr", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->WriteMpsStr())->GetSize(), 1);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get required size of MPS problem");
  double_.AnswerNext("VORQ_WriteMpsStr").Set("required", 5);
  double_.FailNext("VORQ_WriteMpsStr", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->WriteMpsStr())->GetSize(), 6);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to output MPS problem to string");
}

TEST_F(FilesTest, MpsTextFlushesFirst) {
  AddVars(1)[0]->Remove();
  double_.FailNext("VORQ_DelCols", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->WriteMpsStr())->GetSize(), 1);
  EXPECT_EQ(double_.CountCalls("VORQ_WriteMpsStr"), 0u);
}

TEST(ProblemBuffer, HoldsOneZeroByteMoreThanAskedFor) {
  auto const buffer = Own(CreateProbBuffer(3));
  EXPECT_EQ(buffer->GetSize(), 4);
  EXPECT_STREQ(buffer->GetData(), "");
}

TEST(ProblemBuffer, ResizeKeepsWhatFits) {
  auto const buffer = Own(CreateProbBuffer(3));
  std::copy_n("abc", 3, buffer->GetData());
  buffer->Resize(5);
  EXPECT_EQ(buffer->GetSize(), 6);
  EXPECT_STREQ(buffer->GetData(), "abc");
  buffer->Resize(2);
  EXPECT_STREQ(buffer->GetData(), "ab");
  buffer->Resize(0);
  EXPECT_EQ(buffer->GetSize(), 1);
  EXPECT_STREQ(buffer->GetData(), "");
}

TEST(ProblemBuffer, NegativeSizesCountAsZero) {
  auto const buffer = Own(CreateProbBuffer(-7));
  EXPECT_EQ(buffer->GetSize(), 1);
  buffer->Resize(-1);
  EXPECT_EQ(buffer->GetSize(), 1);
}

}  // namespace
