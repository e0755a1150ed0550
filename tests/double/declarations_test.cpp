// The double defines the functions of the solver library's header: all of them, and no other under its prefix.
#include <dlfcn.h>
#include <elf.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "frame/vorq_solver.h"

namespace {

std::string ReadFile(std::string const& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::set<std::string> DeclaredFunctions() {
  std::string const header = ReadFile(VORQ_SOURCE_DIR "/frame/vorq_solver.h");
  std::regex const declaration(R"(VORQ_API\s+int\s+(VORQ_\w+)\s*\()");
  std::set<std::string> names;
  for (std::sregex_iterator match(header.begin(), header.end(), declaration), end; match != end; ++match) {
    names.insert((*match)[1]);
  }
  return names;
}

template <class Record>
Record ReadRecord(std::string const& file, std::size_t offset) {
  Record record;
  std::memcpy(&record, file.data() + offset, sizeof record);
  return record;
}

std::string LibraryPath() {
  Dl_info info;
  return dladdr(reinterpret_cast<void*>(&VORQ_Solve), &info) == 0 ? "" : info.dli_fname;
}

// The functions with the prefix in the library's table of dynamic symbols.
std::set<std::string> DefinedFunctions() {
  std::string const file = ReadFile(LibraryPath());
  auto const header = ReadRecord<Elf64_Ehdr>(file, 0);
  auto const section = [&](std::size_t i) {
    return ReadRecord<Elf64_Shdr>(file, header.e_shoff + i * sizeof(Elf64_Shdr));
  };
  std::set<std::string> names;
  for (std::size_t i = 0; i < header.e_shnum; ++i) {
    Elf64_Shdr const table = section(i);
    if (table.sh_type != SHT_DYNSYM) continue;
    std::size_t const texts = section(table.sh_link).sh_offset;
    for (std::size_t at = table.sh_offset; at < table.sh_offset + table.sh_size; at += sizeof(Elf64_Sym)) {
      auto const symbol = ReadRecord<Elf64_Sym>(file, at);
      std::string const name = file.c_str() + texts + symbol.st_name;
      if (symbol.st_shndx != SHN_UNDEF && name.starts_with("VORQ_")) names.insert(name);
    }
  }
  return names;
}

TEST(Declarations, ThereAre193) {
  EXPECT_EQ(DeclaredFunctions().size(), 193u);
}

TEST(Declarations, DoubleDefinesExactlyTheDeclaredFunctions) {
  EXPECT_EQ(DefinedFunctions(), DeclaredFunctions());
}

TEST(Declarations, EachFunctionIsFoundInTheDouble) {
  void* const library = dlopen(LibraryPath().c_str(), RTLD_NOW | RTLD_NOLOAD);
  ASSERT_NE(library, nullptr) << dlerror();
  for (std::string const& name : DeclaredFunctions()) EXPECT_NE(dlsym(library, name.c_str()), nullptr) << name;
  dlclose(library);
}

}  // namespace
