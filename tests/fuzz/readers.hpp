// The readers as fuzzers use them: what is read must pass the checks of the data, be written by every writer that takes
// it, and read back.
#pragma once

#include <zlib.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>

#include "solver/files/basis_file.hpp"
#include "solver/files/binary_file.hpp"
#include "solver/files/cbf_reader.hpp"
#include "solver/files/cbf_writer.hpp"
#include "solver/files/lp_reader.hpp"
#include "solver/files/lp_writer.hpp"
#include "solver/files/mps_reader.hpp"
#include "solver/files/mps_writer.hpp"
#include "solver/files/nl_writer.hpp"
#include "solver/files/sdpa_reader.hpp"
#include "solver/files/solution_file.hpp"

namespace vorqsolver::fuzz {

using Write = WrittenFile (*)(ProblemData const& data);
using Read = ReadModel (*)(TextSource const& source);

// A refusal to write is an answer; a text that is written must be read.
inline void CheckRoundTrip(ProblemData const& data, Write write, Read read) {
  std::string text;
  try {
    text = write(data).text;
  } catch (Failure const&) {
    return;
  }
  try {
    read({"written", std::move(text)});
  } catch (Failure const&) {
    std::abort();
  }
}

inline void UseProblem(std::string text, Read read) {
  ProblemData const data = read({"input", std::move(text)}).data;
  CheckRoundTrip(data, WriteBinary, ReadBinary);
  CheckRoundTrip(data, WriteMps, ReadMps);
  CheckRoundTrip(data, WriteLp, ReadLp);
  CheckRoundTrip(data, WriteCbf, ReadCbf);
  CheckRoundTrip(data, WriteNl, [](TextSource const&) { return ReadModel(); });
}

inline void FuzzMps(std::string text) {
  UseProblem(std::move(text), ReadMps);
}
inline void FuzzLp(std::string text) {
  UseProblem(std::move(text), ReadLp);
}
inline void FuzzCbf(std::string text) {
  UseProblem(std::move(text), ReadCbf);
}
inline void FuzzSdpa(std::string text) {
  UseProblem(std::move(text), ReadSdpa);
}

// The input is the records of a file, whose head and checksum are made right.
inline void FuzzBinary(std::string text) {
  constexpr std::size_t kHeadSize = 24;
  constexpr std::size_t kSizePlace = 16;
  std::string bytes = WriteBinary({}).text.substr(0, kHeadSize) + text;
  std::uint64_t const size = bytes.size() + sizeof(std::uint32_t);
  std::memcpy(bytes.data() + kSizePlace, &size, sizeof size);
  auto const checksum = static_cast<std::uint32_t>(
      crc32_z(0, reinterpret_cast<unsigned char const*>(bytes.data()), static_cast<z_size_t>(bytes.size())));
  bytes.append(reinterpret_cast<char const*>(&checksum), sizeof checksum);
  UseProblem(std::move(bytes), ReadBinary);
}

inline ProblemData const& SmallProblem() {
  static ProblemData const data =
      ReadLp({"m.lp", "min x + y\nst\nc1: x + y >= 1\nc2: x - y <= 2\nbounds\nx <= 4\nend\n"}).data;
  return data;
}
inline void FuzzSolution(std::string text) {
  ReadSolution({"input", std::move(text)}, SmallProblem());
}
inline void FuzzBasis(std::string text) {
  ReadBasisFile({"input", std::move(text)}, SmallProblem());
}

}  // namespace vorqsolver::fuzz
