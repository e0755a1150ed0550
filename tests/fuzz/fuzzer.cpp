// The entry of a fuzzer. A Failure is the right end of a bad input; anything else that leaves a reader is a defect.
#include "tests/fuzz/readers.hpp"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
  try {
    vorqsolver::fuzz::VORQ_FUZZED_READ(std::string(reinterpret_cast<char const*>(bytes), size));
  } catch (vorqsolver::Failure const&) {
  }
  return 0;
}
