// The handles that the double has handed out: labels, life, and who belongs to whom.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vorqtest {

enum class HandleKind { kEnv, kProb, kConfig, kData };

struct Handle {
  HandleKind kind;
  int number;
  bool live;
  bool closed;         // environments: closed, but not deleted
  void const* parent;  // problems: their environment
};

class Handles {
 public:
  void* Make(HandleKind kind, void const* parent, std::int32_t leadingWord);

  Handle* Find(void const* handle);
  std::string Label(void const* handle) const;
  int Live(HandleKind kind) const;
  std::vector<std::string> LiveChildren(void const* parent) const;

 private:
  std::map<void const*, Handle> handles_;
  std::map<HandleKind, int> made_;
  std::vector<std::unique_ptr<std::int32_t[]>> configRecords_;
};

}  // namespace vorqtest
