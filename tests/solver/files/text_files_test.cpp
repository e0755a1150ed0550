// Whole files: plain and packed reading, and writing through a temporary file.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "solver/files/output_file.hpp"
#include "solver/files/text_source.hpp"
#include "tests/solver/files/describe.hpp"

namespace vorqsolver::test {
namespace {

namespace fs = std::filesystem;

class TextFiles : public testing::Test {
 protected:
  TextFiles() {
    folder_ = fs::temp_directory_path() / Text("vorq_text_files_", ::getpid());
    fs::create_directories(folder_);
  }
  ~TextFiles() override { fs::remove_all(folder_); }

  std::string Path(char const* name) const { return (folder_ / name).string(); }

  static void Put(std::string const& path, std::string const& bytes) { std::ofstream(path, std::ios::binary) << bytes; }
  static std::string Bytes(std::string const& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::size_t FileCount() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }

  fs::path folder_;
};

TEST_F(TextFiles, ReadPlain) {
  Put(Path("a"), "one\ntwo");
  auto const source = LoadText(Path("a"));
  EXPECT_EQ(source.text, "one\ntwo");
  EXPECT_EQ(source.name, Path("a"));
}

TEST_F(TextFiles, ReadPackedWhateverTheName) {
  std::string const text(300000, 'x');
  WriteTextFile(Path("a.GZ"), text);
  EXPECT_LT(fs::file_size(Path("a.GZ")), 10000u);
  fs::rename(Path("a.GZ"), Path("a"));
  EXPECT_EQ(LoadText(Path("a")).text, text);
}

TEST_F(TextFiles, RefuseAPackedFileThatIsCutOff) {
  std::string text;
  for (int k = 0; k < 20000; ++k) text += std::to_string(k * 7919);
  WriteTextFile(Path("a.gz"), text);
  std::string const bytes = Bytes(Path("a.gz"));
  for (std::size_t const size : {bytes.size() - 1, bytes.size() - 8, bytes.size() / 2, std::size_t{15}}) {
    Put(Path("a.gz"), bytes.substr(0, size));
    EXPECT_EQ(FailureOf([&] { LoadText(Path("a.gz")); }), Path("a.gz") + ": the packed file is cut off") << size;
  }
}

TEST_F(TextFiles, RefuseADamagedPackedFile) {
  WriteTextFile(Path("a.gz"), "some text that is packed, some text that is packed");
  std::string bytes = Bytes(Path("a.gz"));
  bytes[bytes.size() - 6] ^= 1;  // in the checksum
  Put(Path("a.gz"), bytes);
  EXPECT_EQ(FailureOf([&] { LoadText(Path("a.gz")); }),
            Path("a.gz") + ": the packed file is damaged (incorrect data check)");
}

TEST_F(TextFiles, RefuseAPackedFileThatUnpacksToFarMore) {
  WriteTextFile(Path("a.gz"), std::string((std::size_t{64} << 20) + 1, 'x'));
  EXPECT_LT(fs::file_size(Path("a.gz")), 100000u);
  EXPECT_EQ(FailureOf([&] { LoadText(Path("a.gz")); }),
            Path("a.gz") + ": the packed file unpacks to more than 200 times its size");
}

TEST_F(TextFiles, TellPathAndCauseWhereNothingCanBeRead) {
  EXPECT_EQ(FailureOf([&] { LoadText(Path("none")); }), Path("none") + ": No such file or directory");
  EXPECT_EQ(FailureOf([&] { LoadText(folder_.string()); }), folder_.string() + ": Is a directory");
}

TEST_F(TextFiles, WriteReplacesAndLeavesNoTemporaryFile) {
  Put(Path("a"), "a longer text from before");
  WriteTextFile(Path("a"), "new");
  EXPECT_EQ(Bytes(Path("a")), "new");
  EXPECT_EQ(FileCount(), 1u);
}

TEST_F(TextFiles, WriteKeepsModeAndLink) {
  Put(Path("a"), "old");
  ::chmod(Path("a").c_str(), 0640);
  fs::create_symlink(Path("a"), Path("link"));
  WriteTextFile(Path("link"), "new");
  EXPECT_TRUE(fs::is_symlink(Path("link")));
  EXPECT_EQ(Bytes(Path("a")), "new");
  EXPECT_EQ(static_cast<unsigned>(fs::status(Path("a")).permissions()), 0640u);
}

TEST_F(TextFiles, WriteToADevice) {
  WriteTextFile("/dev/null", "text");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(TextFiles, WriteTellsPathAndCause) {
  EXPECT_EQ(FailureOf([&] { WriteTextFile(Path("none/a"), "x"); }), Path("none/a") + ": No such file or directory");
  EXPECT_EQ(FailureOf([&] { WriteTextFile(folder_.string(), "x"); }), folder_.string() + ": Is a directory");
}

TEST_F(TextFiles, AFullDeviceIsAFailure) {
  EXPECT_EQ(FailureOf([] { WriteTextFile("/dev/full", "x"); }), "/dev/full: No space left on device");
}

struct NumberCase {
  char const* text;
  NumberForm form;
  double value;
};
class Numbers : public testing::TestWithParam<NumberCase> {};

TEST_P(Numbers, AreTakenWholeOnly) {
  double value = 0.0;
  EXPECT_EQ(ParseNumber(GetParam().text, value), GetParam().form);
  if (GetParam().form == NumberForm::kNumber) {
    EXPECT_EQ(value, GetParam().value);
  }
}
INSTANTIATE_TEST_SUITE_P(
    Texts, Numbers,
    testing::Values(NumberCase{"1", NumberForm::kNumber, 1}, NumberCase{"+1.5e+2", NumberForm::kNumber, 150},
                    NumberCase{"-.5", NumberForm::kNumber, -0.5}, NumberCase{"3.", NumberForm::kNumber, 3},
                    NumberCase{"1E5", NumberForm::kNumber, 1e5}, NumberCase{"5e-324", NumberForm::kNumber, 5e-324},
                    NumberCase{"", NumberForm::kNone, 0}, NumberCase{"+", NumberForm::kNone, 0},
                    NumberCase{"+-1", NumberForm::kNone, 0}, NumberCase{"1x", NumberForm::kNone, 0},
                    NumberCase{"1,5", NumberForm::kNone, 0}, NumberCase{"0x10", NumberForm::kNone, 0},
                    NumberCase{"nan", NumberForm::kNone, 0}, NumberCase{"1e400", NumberForm::kOutOfRange, 0}));

}  // namespace
}  // namespace vorqsolver::test
