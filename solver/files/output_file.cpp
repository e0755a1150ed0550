// Writing a whole file through a temporary one.
#include "solver/files/output_file.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include "solver/files/text_source.hpp"

namespace vorqsolver {
namespace {

// What the system or the compressing said of it; a failure may leave no error number.
[[noreturn]] void RefuseFile(std::string const& path) {
  int const number = errno;
  throw Failure(VORQ_FILE, Text(path, ": ", number != 0 ? std::strerror(number) : "cannot write the file"));
}

class Descriptor {
 public:
  explicit Descriptor(int value) : value_(value) {}
  Descriptor(Descriptor const&) = delete;
  Descriptor& operator=(Descriptor const&) = delete;
  ~Descriptor() {
    if (value_ >= 0) ::close(value_);
  }

  int Get() const { return value_; }
  bool Close() { return ::close(std::exchange(value_, -1)) == 0; }

 private:
  int value_;
};

void WritePlain(int descriptor, std::string_view text, std::string const& path) {
  while (!text.empty()) {
    auto const count = ::write(descriptor, text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) RefuseFile(path);
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

void WritePacked(int descriptor, std::string_view text, std::string const& path) {
  errno = 0;
  int const copy = ::dup(descriptor);
  gzFile const file = gzdopen(copy, "wb");
  if (file == nullptr) {
    if (copy >= 0) ::close(copy);
    RefuseFile(path);
  }
  bool good = true;
  while (good && !text.empty()) {
    auto const part = text.substr(0, 1 << 20);
    good = gzwrite(file, part.data(), static_cast<unsigned>(part.size())) == static_cast<int>(part.size());
    text.remove_prefix(part.size());
  }
  if (gzclose(file) != Z_OK || !good) RefuseFile(path);
}

void WriteAll(int descriptor, std::string_view text, std::string const& path) {
  if (path.size() > 3 && EqualsNoCase(std::string_view(path).substr(path.size() - 3), ".gz")) {
    WritePacked(descriptor, text, path);
  } else {
    WritePlain(descriptor, text, path);
  }
}

// Opens a new file beside `target`, and gives it the mode of the target where there is one.
Descriptor CreateBeside(std::string const& target, std::string& temporary, struct stat const* former) {
  for (int attempt = 0;; ++attempt) {
    temporary = Text(target, ".part-", ::getpid(), "-", attempt);
    int const descriptor = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor < 0 && errno == EEXIST && attempt < 1000) continue;
    if (descriptor >= 0 && former != nullptr) ::fchmod(descriptor, former->st_mode & 0777);
    return Descriptor(descriptor);
  }
}

class TemporaryFile {
 public:
  explicit TemporaryFile(std::string path) : path_(std::move(path)) {}
  TemporaryFile(TemporaryFile const&) = delete;
  TemporaryFile& operator=(TemporaryFile const&) = delete;
  ~TemporaryFile() {
    if (!path_.empty()) ::unlink(path_.c_str());
  }

  bool MoveTo(std::string const& target) {
    if (::rename(path_.c_str(), target.c_str()) != 0) return false;
    path_.clear();
    return true;
  }

 private:
  std::string path_;
};

}  // namespace

void WriteTextFile(std::string const& path, std::string_view text) {
  struct stat former {};
  bool const exists = ::stat(path.c_str(), &former) == 0;
  if (exists && !S_ISREG(former.st_mode)) {
    Descriptor direct(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
    if (direct.Get() < 0) RefuseFile(path);
    WriteAll(direct.Get(), text, path);
    return;
  }
  // A link stays a link: the file that it points to is replaced.
  std::error_code ignored;
  auto const resolved = std::filesystem::canonical(path, ignored);
  std::string const target = exists && !ignored ? resolved.string() : path;

  std::string name;
  Descriptor descriptor = CreateBeside(target, name, exists ? &former : nullptr);
  if (descriptor.Get() < 0) RefuseFile(path);
  TemporaryFile temporary(name);
  WriteAll(descriptor.Get(), text, path);
  if (!descriptor.Close() || !temporary.MoveTo(target)) RefuseFile(path);
}

}  // namespace vorqsolver
