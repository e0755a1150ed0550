// Reading and writing by ending on the real solver library: what the files hold comes back as items.
#include <vorq>

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "tests/support/objects.hpp"

namespace {

using vorqtest::Own;
using vorqtest::SilentSink;

namespace fs = std::filesystem;

class RealFilesTest : public testing::Test {
 protected:
  RealFilesTest() {
    folder_ = fs::temp_directory_path() / ("vorq-real-files-" + std::to_string(::getpid()));
    fs::create_directories(folder_);
    model_->SetIntParam("LogToConsole", 0);
  }
  ~RealFilesTest() override { fs::remove_all(folder_); }

  std::string Path(std::string const& name) const { return (folder_ / name).string(); }

  static std::string Bytes(std::string const& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  // Parameters go, too.
  void ClearModel() {
    model_->Clear();
    model_->SetIntParam("LogToConsole", 0);
  }

  void ExpectSuccess() { EXPECT_EQ(model_->GetLastError(), 0) << model_->GetErrorMessage(); }

  void Fill(bool conic) {
    auto const vars = Own(model_->AddVars(3, 'C', "v"));
    auto const x = Own(vars->Get(0));
    auto const sum = Own(CreateLinExpr(x.get(), 2.0));
    Own(model_->AddConstr(sum.get(), 'L', 4.0, "row"));
    model_->SetObjective(sum.get(), -1);
    if (conic) {
      Own(model_->AddCone(3, 1, nullptr, "t"));
      auto const matrix = Own(model_->AddPsdVar(2, "X"));
      auto const unit = Own(model_->AddEyeMat(2));
      auto const trace = Own(CreatePsdExpr4(matrix.get(), unit.get()));
      Own(model_->AddPsdConstr(trace.get(), 'E', 1.0, "trace"));
      auto const lmi = Own(CreateLmiExpr4(x.get(), unit.get()));
      Own(model_->AddLmiConstr(lmi.get(), "lmi"));
    }
    ExpectSuccess();
  }

  // Writes by ending, empties the model, reads by ending.
  void Exchange(std::string const& name) {
    model_->Write(Path(name).c_str());
    ExpectSuccess();
    ASSERT_TRUE(fs::exists(Path(name))) << name;
    ClearModel();
    model_->Read(Path(name).c_str());
    ExpectSuccess();
  }

  SilentSink sink_;
  std::unique_ptr<Vorq::IEnvr> envr_{CreateEnvr(&sink_)};
  std::unique_ptr<Vorq::IModel> model_{envr_->CreateModel("files")};
  fs::path folder_;
};

TEST_F(RealFilesTest, LinearModelsComeBackFromEveryFormat) {
  Fill(false);
  for (char const* name : {"a.mps", "a.lp", "a.BIN", "a.cbf"}) {
    Exchange(name);
    EXPECT_EQ(model_->GetIntAttr("Cols"), 3) << name;
    EXPECT_EQ(model_->GetIntAttr("Rows"), 1) << name;
    EXPECT_EQ(model_->GetIntAttr("ObjSense"), -1) << name;
    EXPECT_EQ(Own(model_->GetVar(0))->Get("Obj"), 2.0) << name;
    EXPECT_EQ(Own(model_->GetConstr(0))->Get("UB"), 4.0) << name;
  }
}

TEST_F(RealFilesTest, ConicModelsComeBackFromTheirFormats) {
  Fill(true);
  for (char const* name : {"a.bin", "a.cbf"}) {
    Exchange(name);
    EXPECT_EQ(model_->GetIntAttr("Cols"), 6) << name;
    EXPECT_EQ(model_->GetIntAttr("Cones"), 1) << name;
    EXPECT_EQ(model_->GetIntAttr("PSDCols"), 1) << name;
    EXPECT_EQ(model_->GetIntAttr("PSDConstrs"), 1) << name;
    EXPECT_EQ(model_->GetIntAttr("LMIConstrs"), 1) << name;
    EXPECT_EQ(Own(model_->GetPsdVar(0))->GetDim(), 2) << name;
    // The items that came in can be used.
    auto const lmi = Own(model_->GetLmiConstr(0));
    EXPECT_EQ(lmi->GetDim(), 2) << name;
    EXPECT_EQ(Own(model_->GetCone(0))->GetIdx(), 0) << name;
    ExpectSuccess();
  }
}

TEST_F(RealFilesTest, NamesComeBackFromBinaryFiles) {
  Fill(true);
  Exchange("a.bin");
  EXPECT_EQ(Own(model_->GetVarByName("v_1"))->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetPsdVarByName("X"))->GetIdx(), 0);
  EXPECT_EQ(Own(model_->GetLmiConstrByName("lmi"))->GetIdx(), 0);
}

TEST_F(RealFilesTest, ModelsThatAFormatCannotHoldAreRefused) {
  Fill(true);
  for (char const* name : {"a.mps", "a.lp", "a.nl"}) {
    model_->Write(Path(name).c_str());
    EXPECT_EQ(model_->GetLastError(), 3) << name;
    EXPECT_FALSE(fs::exists(Path(name))) << name;
  }
}

TEST_F(RealFilesTest, PackedFilesAreWrittenByFormatAndReadByEnding) {
  Fill(false);
  model_->Write(Path("a.mps.gz").c_str());
  ExpectSuccess();
  EXPECT_FALSE(fs::exists(Path("a.mps.gz")));
  model_->WriteBin(Path("a.bin.gz").c_str());
  ExpectSuccess();
  EXPECT_EQ(Bytes(Path("a.bin.gz")).substr(0, 2), "\x1f\x8b");
  ClearModel();
  model_->Read(Path("a.bin.gz").c_str());
  ExpectSuccess();
  EXPECT_EQ(model_->GetIntAttr("Cols"), 3);
}

TEST_F(RealFilesTest, NlFilesAreWritten) {
  Fill(false);
  model_->Write(Path("a.nl").c_str());
  ExpectSuccess();
  EXPECT_EQ(Bytes(Path("a.nl")).substr(0, 9), "g3 1 1 0\t");
}

TEST_F(RealFilesTest, SdpaFilesBecomeLmiConstraints) {
  std::ofstream(Path("a.dat-s")) << "2\n2\n2 -1\n1 2\n0 1 1 1 1\n1 1 1 1 1\n2 1 2 2 1\n1 2 1 1 3\n";
  model_->Read(Path("a.dat-s").c_str());
  ExpectSuccess();
  EXPECT_EQ(model_->GetIntAttr("Cols"), 2);
  EXPECT_EQ(model_->GetIntAttr("Rows"), 1);
  EXPECT_EQ(Own(model_->GetLmiConstr(0))->GetDim(), 2);
}

TEST_F(RealFilesTest, AFailedReadLeavesTheModelAsItWas) {
  Fill(false);
  std::ofstream(Path("a.cbf")) << "VER\n1\nVAR\n1 1\nX 1\n";
  model_->Read(Path("a.cbf").c_str());
  EXPECT_EQ(model_->GetLastError(), 2);
  EXPECT_STREQ(model_->GetErrorMessage(), "(FILE) Failed to read CBF file");
  EXPECT_EQ(Own(model_->GetVar(2))->GetIdx(), 2);
}

}  // namespace
