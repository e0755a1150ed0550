// Reading and writing files: dispatch by ending, and the path that goes to the solver library.
#include <stdexcept>

#include "model/file_paths.hpp"
#include "model/model.hpp"

namespace Vorq {
namespace {

bool IsMissing(char const* path) {
  return path == nullptr || *path == '\0';
}

FileFormat const* FindFormat(std::span<FileFormat const* const> formats, char const* path, bool compressed) {
  std::string_view const text = path == nullptr ? "" : path;
  for (FileFormat const* format : formats) {
    if (EndsWith(text, format->extension)) return format;
    if (compressed && format->reloads && EndsWith(text, std::string(format->extension) + ".gz")) return format;
  }
  return nullptr;
}

int TransferByPath(FileFormat const& format, VORQ_Prob* prob, char const* path) {
  if (IsMissing(path)) return kInvalid;
  std::string const resolved = ResolvePath(WorkingDirectory(), path);
  return resolved.empty() ? static_cast<int>(kFile) : format.transfer(prob, resolved.c_str());
}

}  // namespace

void Model::Transfer(FileFormat const& format, char const* path) {
  if (format.flushes && !ApplyRemovals()) return;
  if (Record(TransferByPath(format, Prob(), path), format.failed) && format.reloads) ReloadItems();
}

void Model::Read(char const* path) {
  FileFormat const* const format = FindFormat(kReadDispatch, path, true);
  if (format == nullptr) {
    Refuse("Unknown file type");
  } else {
    Transfer(*format, path);
  }
}

void Model::Write(char const* path) {
  FileFormat const* const format = FindFormat(kWriteDispatch, path, false);
  if (format != nullptr) Transfer(*format, path);
}

void Model::Transfer(IndexedFileFormat const& format, int index, char const* path) {
  if (!ApplyRemovals()) return;
  // The two checks record and do not return, which is meant: the solver library has the last word.
  if (IsMissing(path)) Refuse(format.failed);
  if (path == nullptr) throw std::logic_error("The path of a file is null");
  std::string const resolved = ResolvePath(WorkingDirectory(), path);
  if (resolved.empty()) Record(kFile, format.failed);
  Record(format.transfer(Prob(), index, resolved.c_str()), format.failed);
}

ProbBuffer Model::WriteMpsStr() {
  ProbBuffer buffer(0);
  if (!ApplyRemovals()) return buffer;
  int size = 0;
  Record(VORQ_WriteMpsStr(Prob(), nullptr, 0, &size), "Fail to get required size of MPS problem");
  if (size < 0) Record(kInternal, "The size of MPS problem exceeds the limit");
  if (status.Failed() || size <= buffer.Size()) return buffer;
  buffer.Resize(size);
  Record(VORQ_WriteMpsStr(Prob(), buffer.Data(), size, nullptr), "Fail to output MPS problem to string");
  return buffer;
}

}  // namespace Vorq
